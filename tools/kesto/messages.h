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
using model::Record;
using model::Slot;
using model::slot_text;
using model::u32;
using model::u64;
using model::u8;

// The messages that a text names, in any case: by name, by id as 0x2492d87f or in decimal, by a routine as in
// X_unpack_non_root or X__pack, or by X_ID. The text may be a whole log line.
std::vector<const Message*> messages_named(std::string_view text);

// Whether the text holds a routine that decodes a message inside another one, as in X_unpack_non_root.
bool names_nested_routine(std::string_view text);

// Null unless the text names exactly one message.
const Message* find_message(std::string_view text);

// Names similar to a mistyped one, the likeliest first.
std::vector<std::string> suggestions(std::string_view text);

// "no message 'x'; did you mean y, z?"
std::string no_message_text(std::string_view text);

}   // namespace kesto::command
