// Fuzzer inputs: their format, running one, and packing many into one file.
#pragma once

#include <string>
#include <vector>

#include "model/record.h"

namespace kesto::fuzz {

using model::Bytes;
using model::Catalogue;
using model::Message;
using model::Record;

// An input begins with the id of its message, little-endian. An input with an unknown id is ignored.
constexpr std::size_t id_bytes = 4;
constexpr std::size_t longest_input = 4096;   // longer ones are ignored

// A byte string for a decoder: the message's id, which allocation fails, then the byte string.
//
// The byte after the id is 0 for no failure; otherwise its low seven bits give the number, counted from 1, of the
// allocation that fails, and the high bit says whether all later ones fail, too.
constexpr std::size_t before_bytes = id_bytes + 1;

// A record for the encoders: the message's id, then values in slot order (see inputs.cpp). Missing values at the end
// are zero.
Record record_from(const Message& message, const std::uint8_t* input, std::size_t size);

// Null if there is none.
const Message* message_of(const Catalogue& catalogue, const std::uint8_t* input, std::size_t size);

// ---- many inputs in one file, each preceded by its length, a little-endian u32 ----

// Both return false on an error, with the reason in `error`.
[[nodiscard]] bool read_packed(const std::string& path, std::vector<Bytes>& inputs, std::string& error);
[[nodiscard]] bool write_packed(const std::string& path, const std::vector<Bytes>& inputs, std::string& error);

// ---- running one input, in one_input.cpp ----

// Both return the difference between library and model; empty if there is none.

// Decodes the byte string and packs the resulting record again. Elements of a vector may share a table, and then each
// of them copies the same block. To stay fast, at most 64 allocations of at most 16 KiB each succeed.
std::string run_decode_input(const std::uint8_t* input, std::size_t size);

// Encodes the record in both forms and decodes them.
std::string run_record_input(const std::uint8_t* input, std::size_t size);

}   // namespace kesto::fuzz
