#include "tools/kesto/input.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace kesto::command {

namespace {

constexpr std::size_t most_bytes = 256 << 20;
constexpr std::string_view separators = " \t\r\n,;:(){}[]";
constexpr std::string_view word_ends = " \t\r\n,;:(){}[]\\";

struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Close>;

bool is_hex_digit(char character) { return std::isxdigit(static_cast<unsigned char>(character)) != 0; }

bool looks_like_hex(std::string_view text)
{
    const auto plain = [](char c) {
        return is_hex_digit(c) || c == 'x' || separators.find(c) != std::string_view::npos;
    };
    return std::all_of(text.begin(), text.end(), plain) && std::count_if(text.begin(), text.end(), is_hex_digit) >= 8;
}

void append_word(Bytes& bytes, std::string_view word)
{
    const std::string_view whole = word;
    const bool marked = word.starts_with("0x") || word.starts_with("0X") || word.starts_with("\\x");
    if (marked)
        word.remove_prefix(2);
    const std::string digits = (marked && word.size() == 1 ? "0" : "") + std::string(word);
    if (digits.empty() || digits.size() % 2 != 0 || !std::all_of(digits.begin(), digits.end(), is_hex_digit))
        throw Fault(fmt::format("'{}' is no hex text: pairs of digits are needed, as in 04 00 or 0x04, 0x00",
                                whole.substr(0, 40)));
    for (std::size_t i = 0; i < digits.size(); i += 2)
        bytes.push_back(static_cast<u8>(std::stoul(digits.substr(i, 2), nullptr, 16)));
}

}   // namespace

Bytes bytes_from_hex(std::string_view text)
{
    Bytes bytes;
    for (;;) {
        const std::size_t start = text.find_first_not_of(separators);
        if (start == std::string_view::npos)
            return bytes;
        text.remove_prefix(start);
        // "\x04\x00" is two words. Nothing after a word's end may be looked at for it: there may be millions of words.
        const std::size_t end = std::min(text.find_first_of(word_ends, 1), text.size());
        append_word(bytes, text.substr(0, end));
        text.remove_prefix(end);
    }
}

std::string to_hex(const u8* bytes, std::size_t count, const char* between)
{
    return fmt::format("{:02x}", fmt::join(bytes, bytes + count, between));
}

std::string read_text(const std::string& path)
{
    const bool standard = path == "-";
    const File opened(standard ? nullptr : std::fopen(path.c_str(), "rb"));
    std::FILE* const file = standard ? stdin : opened.get();
    std::string text;
    std::array<char, 65536> part;
    for (std::size_t got; file != nullptr && (got = std::fread(part.data(), 1, part.size(), file)) != 0;) {
        text.append(part.data(), got);
        if (text.size() > most_bytes)
            throw Fault(fmt::format("{}: longer than {} bytes, which no message is", path, most_bytes));
    }
    if (file == nullptr || std::ferror(file) != 0)
        throw Fault(fmt::format("{}: cannot be read: {}", path, std::strerror(errno)));
    return text;
}

Bytes read_bytes(const std::string& path, InputFormat format)
{
    const std::string text = read_text(path);
    if (format == InputFormat::hex || (format == InputFormat::automatic && looks_like_hex(text)))
        return bytes_from_hex(text);
    return {text.begin(), text.end()};
}

void write_bytes(const std::string& path, const void* bytes, std::size_t count)
{
    const bool standard = path == "-";
    File opened(standard ? nullptr : std::fopen(path.c_str(), "wb"));
    std::FILE* const file = standard ? stdout : opened.get();
    if (file == nullptr || std::fwrite(bytes, 1, count, file) != count || std::fflush(file) != 0)
        throw Fault(fmt::format("{}: cannot be written: {}", path, std::strerror(errno)));
}

}   // namespace kesto::command
