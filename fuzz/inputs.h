// What the fuzzers take as input, and many inputs in one file.
#pragma once

#include <string>
#include <vector>

#include "reference/record.h"

namespace kesto::fuzz {

using reference::Bytes;
using reference::Catalogue;
using reference::Message;
using reference::Record;

// A byte string for a decoder: the message's number in the catalogue, which allocation fails, then the byte string.
//
// The second byte is 0 for no failure; else its low seven bits give the number, counted from 1, of the allocation that
// fails, and the high one says that all later ones fail too.
Bytes decode_input(const Message& message, const Bytes& bytes);

// A record for the encoders: the message's number, then values in slot order (see inputs.cpp). Whatever is missing at
// the end is zero, so that every input stands for a record.
Bytes record_input(const Record& record);
Record record_from(const Catalogue& catalogue, const std::uint8_t* input, std::size_t size);

const Message& message_of(const Catalogue& catalogue, std::uint8_t number);

// ---- many inputs in one file: each is preceded by its length, a little-endian u32 ----

// Both give false with the reason in `error`.
[[nodiscard]] bool read_packed(const std::string& path, std::vector<Bytes>& inputs, std::string& error);
[[nodiscard]] bool write_packed(const std::string& path, const std::vector<Bytes>& inputs, std::string& error);

}   // namespace kesto::fuzz
