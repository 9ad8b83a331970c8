#include "tools/kesto/page.h"

#include <fmt/format.h>

namespace kesto::command {

std::string escaped(std::string_view text)
{
    std::string out;
    for (const char character : text) {
        switch (character) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += "&quot;"; break;
        default: out += character;
        }
    }
    return out;
}

std::string page_of(const std::string& title, const std::string& body)
{
    return fmt::format("<!DOCTYPE html>\n<html lang=en><meta charset=utf-8>\n"
                       "<meta name=viewport content=\"width=device-width, initial-scale=1\">\n"
                       "<title>{}</title>\n<style>{}</style>\n{}</html>\n",
                       escaped(title), page_style, body);
}

}   // namespace kesto::command
