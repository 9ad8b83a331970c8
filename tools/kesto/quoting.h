// Makes foreign text safe for a terminal.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include "tools/kesto/messages.h"

namespace kesto::command {

// Escapes, as in C source, everything that controls a terminal or the writing direction: control characters,
// bidirectional controls, and bytes that are not UTF-8.
std::string visible(std::string_view text);

// The same in quotes; quotes and backslashes are escaped, too.
std::string quoted(const u8* text, std::size_t length);

// Like dump(), with \uXXXX for the same characters. An indent of -1 puts everything on one line.
std::string json_text(const nlohmann::ordered_json& json, int indent);

// Prints exactly one line on standard error, whatever `text` contains.
void complain(std::string_view text);

}   // namespace kesto::command
