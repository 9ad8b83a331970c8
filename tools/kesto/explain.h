// Print an explanation.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include "tools/kesto/explanation.h"
#include "tools/kesto/terminal.h"

namespace kesto::command {

struct TextOptions {
    Colours colours;
    bool whole = false;      // prints long payloads in full
    std::size_t width = 0;   // of the terminal; 0 for none, then no line is folded
};

std::string explanation_text(const Explanation& explanation, const TextOptions& options);
std::string refused_text(const Explanation& explanation, const Colours& colours);   // only the verdict
nlohmann::ordered_json explanation_json(const Explanation& explanation);
nlohmann::ordered_json refused_json(const Explanation& explanation, const Refused& refused);
std::string explanation_html(const Explanation& explanation);   // a self-contained page

void write_page(const Explanation& explanation, const std::string& file);

// The library's log line: "level 2 code 22 ifit_mcp_mesh_unpack: ...".
std::string log_line(const model::Event& log);

}   // namespace kesto::command
