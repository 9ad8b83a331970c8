// Messages under the names that people give to them and to their fields.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/decode.h"

namespace kesto::command {

using model::Bytes;
using model::catalogue;
using model::Kind;
using model::Message;
using model::path_text;
using model::Record;
using model::Slot;
using model::slot_text;
using model::u32;
using model::u64;
using model::u8;

// Finds a message by name, or by id as 0x2492d87f or in decimal; null if there is none.
const Message* find_message(std::string_view name_or_id);

// Names similar to a mistyped one, the likeliest first.
std::vector<std::string> suggestions(std::string_view name);

}   // namespace kesto::command
