// Bytes from a file, from standard input or from the command line; and the one kind of error that the program reports.
#pragma once

#include <stdexcept>
#include <string>

#include "model/hex.h"
#include "tools/kesto/messages.h"

namespace kesto::command {

// Something that the user can mend: ends the program with 2.
struct Fault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// What `--input-format` says of files and standard input.
enum class InputFormat { automatic, bytes, hex };

// Hex digits in pairs, with blanks, commas, braces, colons, 0x and \x between them; "0x4" is a byte of its own.
Bytes bytes_from_hex(std::string_view text);
using model::to_hex;

// `path` is a file, or "-" for standard input. Automatic takes text of hex digits for hex: no byte string begins like
// that, as its root would lead hundreds of megabytes on.
Bytes read_bytes(const std::string& path, InputFormat format);

std::string read_text(const std::string& path);

// To the file, or to standard output for "-".
void write_bytes(const std::string& path, const void* bytes, std::size_t count);
inline void print(const std::string& text) { write_bytes("-", text.data(), text.size()); }

}   // namespace kesto::command
