// Reads bytes from a file, from standard input or from the command line. Defines the error that the program reports.
#pragma once

#include <stdexcept>
#include <string>

#include "model/hex.h"
#include "tools/kesto/messages.h"

namespace kesto::command {

// An error that the user can correct. Exit status 2.
struct Fault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Values of `--input-format`, for files and standard input.
enum class InputFormat { automatic, bytes, hex };

// Hex digits in pairs, separated by blanks, commas, braces, colons, 0x or \x; "0x4" is one byte.
Bytes bytes_from_hex(std::string_view text);
using model::to_hex;

// `path` is a file, or "-" for standard input. Automatic treats text of hex digits as hex: a byte string never begins
// like that, as its root would point hundreds of megabytes ahead.
Bytes read_bytes(const std::string& path, InputFormat format);

std::string read_text(const std::string& path);

// Writes to the file, or to standard output for "-".
void write_bytes(const std::string& path, const void* bytes, std::size_t count);
inline void print(const std::string& text) { write_bytes("-", text.data(), text.size()); }

}   // namespace kesto::command
