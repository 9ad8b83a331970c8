#include "model/hex.h"

#include <algorithm>

#include "model/text.h"

namespace kesto::model {
namespace {

constexpr std::string_view digits = "0123456789abcdef";
constexpr std::string_view separators = " \t\r\n,;:(){}[]";
constexpr std::string_view word_ends = " \t\r\n,;:(){}[]\\";

// The value of a digit; 16 if the character is not a digit.
u32 value_of(char digit)
{
    const char lower = digit >= 'A' && digit <= 'F' ? static_cast<char>(digit - 'A' + 'a') : digit;
    return static_cast<u32>(std::min(digits.find(lower), digits.size()));
}

bool append_word(Bytes& bytes, std::string_view word)
{
    const bool prefixed = word.starts_with("0x") || word.starts_with("0X") || word.starts_with("\\x");
    if (prefixed)
        word.remove_prefix(2);
    const bool single_digit = prefixed && word.size() == 1;   // 0x4
    if (word.empty() || (word.size() % 2 != 0 && !single_digit))
        return false;
    for (std::size_t i = 0; i < word.size(); i += 2) {
        const u32 high = single_digit ? 0 : value_of(word[i]), low = value_of(word[single_digit ? 0 : i + 1]);
        if (high > 15 || low > 15)
            return false;
        bytes.push_back(static_cast<u8>(high << 4 | low));
    }
    return true;
}

}   // namespace

std::string to_hex(const u8* bytes, std::size_t count, std::string_view between)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        if (i != 0)
            text += between;
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 15];
    }
    return text;
}

bool from_hex(std::string_view text, Bytes& bytes, std::string& error)
{
    for (;;) {
        const std::size_t start = text.find_first_not_of(separators);
        if (start == std::string_view::npos)
            return true;
        text.remove_prefix(start);
        // "\x04\x00" is two words. The search must stop at the end of a word, as there may be millions of them.
        const std::size_t end = std::min(text.find_first_of(word_ends, 1), text.size());
        const std::string_view word = text.substr(0, end);
        if (!append_word(bytes, word)) {
            error =
                join({"'", word.substr(0, 40), "' is not hex: expected pairs of digits, as in 04 00 or 0x04, 0x00"});
            return false;
        }
        text.remove_prefix(end);
    }
}

}   // namespace kesto::model
