#include "tests/support/expected_catalogue.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>

#include "tests/support/figures.h"

namespace kesto::tests {
namespace {

using namespace model;

std::vector<std::string_view> words_of(std::string_view line)
{
    std::vector<std::string_view> words;
    for (;;) {
        const std::size_t start = line.find_first_not_of(" \t\r");
        if (start == std::string_view::npos)
            return words;
        const std::size_t end = std::min(line.find_first_of(" \t\r", start), line.size());
        words.push_back(line.substr(start, end - start));
        line.remove_prefix(end);
    }
}

bool number_of(std::string_view word, int base, u32& value)
{
    const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), value, base);
    return fault == std::errc() && end == word.data() + word.size();
}

bool nested_slot(const Catalogue& catalogue, std::string_view name, Slot& slot)
{
    slot.nested = catalogue.find(name);
    return slot.nested != nullptr;
}

bool array_slot(std::string_view word, std::string_view head, u32 width, Slot& slot)
{
    if (!word.starts_with(head) || !word.ends_with("]"))
        return false;
    word.remove_prefix(head.size());
    word.remove_suffix(1);
    slot.kind = Kind::array;
    slot.width = width;
    return number_of(word, 10, slot.count) && slot.count > 0 && slot.count < 0x4000;
}

bool parse_slot(const Catalogue& catalogue, std::string_view word, Slot& slot)
{
    struct Scalar {
        std::string_view name;
        u32 width;
    };
    for (const Scalar scalar : {Scalar{"u8", 1}, Scalar{"u16", 2}, Scalar{"u32", 4}, Scalar{"u64", 8}}) {
        if (word == scalar.name)
            slot.width = scalar.width;
    }
    if (slot.width != 0)
        return true;
    if (word == "string" || word == "bytes") {
        slot.kind = word == "string" ? Kind::string : Kind::bytes;
        return true;
    }
    if (array_slot(word, "u8[", 1, slot) || array_slot(word, "u32[", 4, slot))
        return true;
    if (word.starts_with("vector:")) {
        slot.kind = Kind::vector;
        return nested_slot(catalogue, word.substr(7), slot);
    }
    slot.kind = Kind::table;
    if (word.starts_with("table:"))
        return nested_slot(catalogue, word.substr(6), slot);
    slot.lenient = true;
    return word.starts_with("table?:") && nested_slot(catalogue, word.substr(7), slot);
}

// NAME ID FORM : SLOT ...
bool add_message(Catalogue& catalogue, const std::vector<std::string_view>& words, std::string& error)
{
    Message message;
    message.name = words[0];
    if (words.size() < 3 || !words[1].starts_with("0x") || !number_of(words[1].substr(2), 16, message.id))
        return error = "expected an id such as 0x2492d87f", false;

    u32 stated_length = 0;
    std::size_t at = 3;
    if (words[2] == "fixed") {
        if (words.size() < 4 || !number_of(words[3], 10, stated_length))
            return error = "expected a length", false;
        at = 4;
    } else if (words[2] != "compact") {
        return error = "expected the form, `fixed N` or `compact`", false;
    }
    if (at >= words.size() || words[at] != ":")
        return error = "expected a colon before the slots", false;
    for (++at; at < words.size(); ++at) {
        Slot slot;
        if (!parse_slot(catalogue, words[at], slot))
            return error = "unknown slot " + std::string(words[at]), false;
        message.slots.push_back(std::move(slot));
    }
    if (!catalogue.add(std::move(message), error))
        return false;
    const u32 length = catalogue.messages.back().fixed_length;
    return length == stated_length || (error = "the slots give a fixed length of " + std::to_string(length), false);
}

bool add_lines(Catalogue& catalogue, std::string_view text, std::string& error)
{
    for (u32 number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::vector<std::string_view> words = words_of(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (words.empty() || words[0].starts_with("#"))
            continue;
        if (words[0] == "module" && words.size() == 2)
            catalogue.modules.push_back({std::string(words[1]), {}});
        else if (!add_message(catalogue, words, error))
            return error = "line " + std::to_string(number) + ": " + error, false;
    }
    return true;
}

}   // namespace

const Catalogue& expected_catalogue()
{
    static const Catalogue catalogue = [] {
        Catalogue read;
        std::string error;
        const std::string built = " " KESTO_MODULES " ", begin = "\nmodule ";
        for (const char* path : {KESTO_TEST_DATA "/messages.txt", KESTO_TEST_DATA "/../module/messages.txt"}) {
            const std::string list = read_file(path);
            for (std::size_t at = list.find(begin), next; at != std::string::npos; at = next) {
                next = list.find(begin, at + 1);
                const std::size_t name = at + begin.size();
                if (built.find(" " + list.substr(name, list.find('\n', name) - name) + " ") == std::string::npos)
                    continue;
                if (!add_lines(read, std::string_view(list).substr(at, next - at), error)) {
                    std::fprintf(stderr, "%s: %s\n", path, error.c_str());
                    std::exit(1);
                }
            }
        }
        return read;
    }();
    return catalogue;
}

}   // namespace kesto::tests
