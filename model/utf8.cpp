#include "model/utf8.h"

namespace kesto::model {

Character character_at(std::string_view text)
{
    const u32 lead = static_cast<u8>(text[0]);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t length = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
    if (lead < 0xc2 || lead > 0xf4 || length > text.size())
        return {lead, 0};
    u32 code = lead & (0x7fU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const u32 more = static_cast<u8>(text[i]);
        if (more >> 6 != 2)
            return {lead, 0};
        code = code << 6 | (more & 0x3f);
    }
    const u32 least = length == 4 ? 0x10000 : length == 3 ? 0x800 : 0x80;
    const bool is_surrogate = code >= 0xd800 && code <= 0xdfff;
    return {code, code < least || code > 0x10ffff || is_surrogate ? 0 : length};
}

bool is_utf8(const u8* text, std::size_t length)
{
    for (std::string_view rest(reinterpret_cast<const char*>(text), length); !rest.empty();) {
        const Character character = character_at(rest);
        if (character.length == 0)
            return false;
        rest.remove_prefix(character.length);
    }
    return true;
}

}   // namespace kesto::model
