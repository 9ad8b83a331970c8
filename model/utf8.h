#pragma once
// Text as Unicode.

#include <string_view>

#include "model/little_endian.h"

namespace kesto::model {

struct Character {
    u32 code;
    std::size_t length;   // 0: not UTF-8
};

// The first character of `text`, which must not be empty. Overlong forms, surrogates and values above U+10FFFF are
// malformed.
Character character_at(std::string_view text);

bool is_utf8(const u8* text, std::size_t length);

}   // namespace kesto::model
