#include "tools/kesto/quoting.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <nlohmann/json.hpp>

#include "model/utf8.h"

namespace kesto::command {

using model::character_at;

namespace {

bool is_steering(u32 code)
{
    const bool is_control = code < 0x20 || (code >= 0x7f && code < 0xa0);
    const bool turns_direction = code == 0x061c || code == 0x200e || code == 0x200f ||
                                 (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
    return is_control || turns_direction;
}

std::string escaped(std::string_view text, std::string_view also)
{
    std::string out;
    const auto into = std::back_inserter(out);
    while (!text.empty()) {
        const auto [code, length] = character_at(text);
        const std::size_t taken = std::max<std::size_t>(length, 1);
        if (length == 0 || (length == 1 && is_steering(code)))
            fmt::format_to(into, "\\x{:02x}", code);
        else if (is_steering(code))
            fmt::format_to(into, "\\u{:04x}", code);
        else if (also.find(text[0]) != std::string_view::npos)
            fmt::format_to(into, "\\{}", text[0]);
        else
            out += text.substr(0, taken);
        text.remove_prefix(taken);
    }
    return out;
}

}   // namespace

std::string visible(std::string_view text) { return escaped(text, ""); }

std::string quoted(const u8* text, std::size_t length)
{
    return '"' + escaped({reinterpret_cast<const char*>(text), length}, "\"\\") + '"';
}

std::string json_text(const nlohmann::ordered_json& json, int indent)
{
    std::string text = json.dump(indent, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    // The only control characters below 0x7f in the dump are its own newlines. Characters above occur only in strings.
    const auto is_plain = [](char character) { return static_cast<u8>(character) < 0x7f; };
    if (std::all_of(text.begin(), text.end(), is_plain))
        return text;
    std::string out;
    for (std::string_view rest = text; !rest.empty();) {
        const auto [code, length] = character_at(rest);
        if (code >= 0x7f && is_steering(code))
            fmt::format_to(std::back_inserter(out), "\\u{:04x}", code);
        else
            out += rest.substr(0, length);
        rest.remove_prefix(length);
    }
    return out;
}

void complain(std::string_view text) { fmt::print(stderr, "kesto: {}\n", visible(text)); }

}   // namespace kesto::command
