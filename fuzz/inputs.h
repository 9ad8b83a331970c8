// The inputs of the fuzzers: their form, a run on one, and many of them in one file.
#pragma once

#include <string>
#include <vector>

#include "model/record.h"

namespace kesto::fuzz {

using model::Bytes;
using model::Catalogue;
using model::Message;
using model::Record;

// An input begins with the id of its message, little-endian. One whose id nobody has stands for nothing.
constexpr std::size_t id_bytes = 4;
constexpr std::size_t longest_input = 4096;   // longer ones are not looked at

// A byte string for a decoder: the message's id, which allocation fails, then the byte string.
//
// The byte after the id is 0 for no failure; else its low seven bits give the number, counted from 1, of the allocation
// that fails, and the high one says that all later ones fail too.
constexpr std::size_t before_bytes = id_bytes + 1;

// A record for the encoders: the message's id, then values in slot order (see inputs.cpp). Whatever is missing at the
// end is zero.
Record record_from(const Message& message, const std::uint8_t* input, std::size_t size);

// Null where there is none.
const Message* message_of(const Catalogue& catalogue, const std::uint8_t* input, std::size_t size);

// ---- many inputs in one file: each is preceded by its length, a little-endian u32 ----

// Both give false with the reason in `error`.
[[nodiscard]] bool read_packed(const std::string& path, std::vector<Bytes>& inputs, std::string& error);
[[nodiscard]] bool write_packed(const std::string& path, const std::vector<Bytes>& inputs, std::string& error);

// ---- what is done with one input, in one_input.cpp ----

// Both return where library and model differ, empty if nowhere.

// Decodes the byte string, and packs again what was decoded. Elements of a vector may share a table and so a block that
// each of them copies: to stay fast, at most 64 allocations of at most 16 KiB each succeed.
std::string run_decode_input(const std::uint8_t* input, std::size_t size);

// Encodes the record in both forms and decodes them.
std::string run_record_input(const std::uint8_t* input, std::size_t size);

}   // namespace kesto::fuzz
