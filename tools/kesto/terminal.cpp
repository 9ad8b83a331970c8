#include "tools/kesto/terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>

namespace kesto::command {

namespace {

std::size_t columns_of(std::string_view text)
{
    std::size_t columns = 0;
    bool in_colour = false;
    for (const char character : text) {
        const bool continues = (static_cast<unsigned char>(character) & 0xc0) == 0x80;   // a UTF-8 character
        in_colour = in_colour || character == '\033';
        columns += !in_colour && !continues;
        in_colour = in_colour && character != 'm';
    }
    return columns;
}

std::string folded_line(std::string_view line, std::size_t width, std::size_t indent)
{
    const std::size_t leading = std::min(line.find_first_not_of(' '), line.size());
    const std::string start(std::max(indent, leading), ' ');
    std::string out;
    std::size_t columns = 0;
    for (bool is_first = true; !line.empty(); is_first = false) {
        const std::size_t blanks = std::min(line.find_first_not_of(' '), line.size());
        std::string_view word = line.substr(0, line.find(' ', blanks));   // with the blanks before it
        line.remove_prefix(word.size());
        if (!is_first && columns + columns_of(word) > width) {
            word.remove_prefix(blanks);
            out += '\n' + start;
            columns = start.size();
        }
        out += word;
        columns += columns_of(word);
    }
    return out;
}

}   // namespace

bool is_terminal_output() { return isatty(STDOUT_FILENO) == 1; }

bool shows_progress() { return isatty(STDERR_FILENO) == 1 && !is_terminal_output(); }

std::size_t terminal_width()
{
    if (!is_terminal_output())
        return 0;
    const char* const columns = std::getenv("COLUMNS");
    const std::string_view text = columns == nullptr ? "" : columns;
    std::size_t width = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), width).ec == std::errc() && width != 0)
        return width;
    winsize size{};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

std::string folded(std::string_view text, std::size_t width, std::size_t indent)
{
    constexpr std::size_t least_columns = 20;
    if (width < indent + least_columns)
        return std::string(text);
    std::string out;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        out += folded_line(line, width, indent);
        out += '\n';
    }
    return out;
}

Colours colours_for(ColourChoice choice)
{
    if (choice != ColourChoice::automatic)
        return {choice == ColourChoice::always};
    const char* const no_color = std::getenv("NO_COLOR");
    const char* const term = std::getenv("TERM");
    const bool refused =
        (no_color != nullptr && *no_color != 0) || (term != nullptr && std::string_view(term) == "dumb");
    return {is_terminal_output() && !refused};
}

}   // namespace kesto::command
