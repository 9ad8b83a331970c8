#include "tools/kesto/terminal.h"

#include <unistd.h>

#include <cstdlib>

namespace kesto::command {

bool is_terminal_output() { return isatty(STDOUT_FILENO) == 1; }

bool shows_progress() { return isatty(STDERR_FILENO) == 1 && !is_terminal_output(); }

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
