#include "tools/kesto/input.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

namespace kesto::command {

namespace {

constexpr std::size_t most_bytes = 256 << 20;
constexpr std::string_view separators = " \t\r\n,;:(){}[]";

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

}   // namespace

Bytes bytes_from_hex(std::string_view text)
{
    Bytes bytes;
    std::string error;
    if (!model::from_hex(text, bytes, error))
        throw Fault(error);
    return bytes;
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
    if (looks_like_hex(path) && !std::filesystem::exists(path))
        throw Fault(fmt::format("{}: no such file; hex text stands after --hex", path));
    const std::string text = read_text(path);
    if (format == InputFormat::automatic && text.starts_with("\xd4\xc3\xb2\xa1"))   // as bytes, always refused
        throw Fault(fmt::format("{}: a capture, not a byte string; --pcap reads captures", path));
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
