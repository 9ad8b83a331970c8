// What the fuzzers do with one input. Apart from them, so that the corpus can be replayed where there is no fuzzer.
#pragma once

#include <cstdint>
#include <string>

namespace kesto::fuzz {

constexpr std::size_t longest_input = 4096;   // longer ones are not looked at

// Both give what differs between library and reference, empty where nothing does.

// Decodes a decode_input, and packs again what was decoded. Elements of a vector may share a table and so a block that
// each of them copies: to stay fast, at most 64 allocations of at most 16 KiB each succeed.
std::string run_decode_input(const std::uint8_t* input, std::size_t size);

// Encodes the record of a record_input in both forms and decodes them.
std::string run_record_input(const std::uint8_t* input, std::size_t size);

}   // namespace kesto::fuzz
