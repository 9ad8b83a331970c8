// Colours, width and progress on a terminal.
#pragma once

#include <string>
#include <string_view>

namespace kesto::command {

enum class ColourChoice { automatic, always, never };

struct Colours {
    bool on = false;

    std::string wrap(const char* code, std::string_view text) const
    {
        return on ? std::string("\033[") + code + "m" + std::string(text) + "\033[0m" : std::string(text);
    }
    std::string faint(std::string_view text) const { return wrap("2", text); }
    std::string bold(std::string_view text) const { return wrap("1", text); }
    std::string good(std::string_view text) const { return wrap("1;32", text); }
    std::string bad(std::string_view text) const { return wrap("1;31", text); }
    std::string odd(std::string_view text) const { return wrap("33", text); }
    std::string name(std::string_view text) const { return wrap("36", text); }
};

bool is_terminal_output();
bool shows_progress();   // on standard error, with nothing else on the terminal

// Columns of the terminal that standard output is, or what COLUMNS says of them; 0 if it is not a terminal.
std::size_t terminal_width();

// Breaks lines of more than `width` columns at blanks; 0 is any width. The rest of a line begins after `indent` blanks, or
// where the line does if that is further in. Colours take no column.
std::string folded(std::string_view text, std::size_t width, std::size_t indent);

inline std::string folded_for_terminal(std::string_view text, std::size_t indent)
{
    return folded(text, terminal_width(), indent);
}

// Automatic: coloured on a terminal, unless NO_COLOR is set or TERM is "dumb".
Colours colours_for(ColourChoice choice);

}   // namespace kesto::command
