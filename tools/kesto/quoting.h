// Text from outside, as a terminal may have it.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include "tools/kesto/messages.h"

namespace kesto::command {

// With escapes, as in C source, for all that steers a terminal or turns the direction of writing: control characters,
// bidirectional controls, and bytes that are not UTF-8.
std::string visible(std::string_view text);

// The same in quotes, with escapes for quotes and backslashes too.
std::string quoted(const u8* text, std::size_t length);

// As dump() has it, with \uXXXX for the same characters. An indent of -1 puts all in one line.
std::string json_text(const nlohmann::ordered_json& json, int indent);

// One line on standard error, whatever stands in `text`.
void complain(std::string_view text);

}   // namespace kesto::command
