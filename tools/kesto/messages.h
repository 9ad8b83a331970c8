// The catalogue as the reference takes it, with the names that people give to messages and fields.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reference/decode.h"
#include "tools/catalogue.h"

namespace kesto::command {

using reference::Bytes;
using reference::Kind;
using reference::Message;
using reference::Record;
using reference::Slot;
using reference::u32;
using reference::u64;
using reference::u8;

const reference::Catalogue& catalogue();

const tools::MessageInfo& info_of(const Message& message);
const std::string& field_name(const Message& message, std::size_t slot);
std::string slot_type(const Message& message, std::size_t slot);   // as the documents name it

// ".f1[3].year"; "." for the root record.
std::string path_text(const Message& root, const reference::Path& path);

// By name, or by id as 0x2492d87f or in decimal; null if there is none.
const Message* find_message(std::string_view name_or_id);

// Names like a mistyped one, the likeliest first.
std::vector<std::string> suggestions(std::string_view name);

}   // namespace kesto::command
