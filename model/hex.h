#pragma once
// Bytes as hex text.

#include <string>
#include <string_view>

#include "model/little_endian.h"

namespace kesto::model {

std::string to_hex(const u8* bytes, std::size_t count, std::string_view between = {});
inline std::string to_hex(const Bytes& bytes) { return to_hex(bytes.data(), bytes.size()); }

// Appends the bytes of hex text in the usual notations: "0400 08", "0x04, 0x00", "\x04\x00". Returns false on an error,
// with the reason in `error`.
[[nodiscard]] bool from_hex(std::string_view text, Bytes& bytes, std::string& error);

}   // namespace kesto::model
