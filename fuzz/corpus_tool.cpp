// Prepares what the fuzzers start from and keeps what they found:
//
//   corpus_tool seeds decode|record DIRECTORY   writes inputs made from the catalogue
//   corpus_tool dictionary FILE                 writes the numbers that matter in a byte string
//   corpus_tool unpack FILE DIRECTORY           a packed corpus as one file an input
//   corpus_tool pack DIRECTORY FILE             and back, in the order of the names
//   corpus_tool add MESSAGE HEX                 adds a byte string to what the decoders are tested with
//
// An input's file is named by its content, so that equal ones fall together.

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "fuzz/inputs.h"
#include "fuzz/one_input.h"
#include "reference/encode.h"
#include "reference/generate.h"
#include "reference/strange.h"
#include "tests/support/figures.h"

namespace {

using namespace kesto;
using reference::Bytes;
using reference::Catalogue;
using reference::Density;

using Inputs = std::vector<Bytes>;

namespace files = std::filesystem;

int fail(const std::string& reason)
{
    std::fprintf(stderr, "corpus_tool: %s\n", reason.c_str());
    return 1;
}

int write_inputs(const Inputs& inputs, const std::string& directory)
{
    std::error_code failed;
    files::create_directories(directory, failed);
    for (const Bytes& input : inputs) {
        std::uint64_t hash = 0xcbf29ce484222325;
        for (const std::uint8_t byte : input)
            hash = (hash ^ byte) * 0x100000001b3;
        char name[17];
        std::snprintf(name, sizeof name, "%016llx", static_cast<unsigned long long>(hash));
        std::ofstream file(files::path(directory) / name, std::ios::binary);
        file.write(reinterpret_cast<const char*>(input.data()), static_cast<std::streamsize>(input.size()));
        if (!file.flush())
            return fail(directory + ": cannot be written");
    }
    return 0;
}

// Every message zero, full and sparse; for the decoders in both forms and in a strange layout.
Inputs seeds(const Catalogue& catalogue, bool for_decoder)
{
    Inputs inputs;
    for (const reference::Message& message : catalogue.messages) {
        reference::Random random(message.id);
        for (const Density density : {Density::zero, Density::full, Density::sparse}) {
            const reference::Record record = reference::random_record(message, density, random);
            if (!for_decoder) {
                inputs.push_back(fuzz::record_input(record));
                continue;
            }
            inputs.push_back(fuzz::decode_input(message, reference::compact_form(record)));
            if (message.fixed_length != 0 && density == Density::full)
                inputs.push_back(fuzz::decode_input(message, reference::fixed_form(record)));
            Bytes strange = reference::strange_layout(record, random);
            if (density == Density::full && strange.size() < 1024)
                inputs.push_back(fuzz::decode_input(message, strange));
        }
    }
    return inputs;
}

int write_dictionary(const Catalogue& catalogue, const std::string& path)
{
    std::set<std::pair<std::uint32_t, std::uint64_t>> words;   // width, value
    for (const std::uint64_t value : {0u, 1u, 3u, 4u, 5u, 6u, 7u, 8u, 0x3FFFFFFFu, 0x40000000u, 0x7FFFFFFFu,
                                      0x80000000u, 0xFFFFFFF8u, 0xFFFFFFFCu, 0xFFFFFFFFu})
        words.insert({4, value});
    for (const reference::Message& message : catalogue.messages) {
        words.insert({4, message.id});
        words.insert({2, message.vtable_length});
        words.insert({2, message.vtable_length - 1});
        words.insert({4, message.vtable_length});       // a compact vtable offset
        words.insert({4, message.vtable_length + 4});   // a compact root
        if (message.fixed_length != 0)
            words.insert({4, 0 - ((message.fixed_table_length + 3) / 4 * 4)});   // a fixed vtable offset
        for (const reference::Slot& slot : message.slots)
            if (slot.kind == reference::Kind::array)
                words.insert({4, slot.count});
    }
    std::ofstream file(path);
    for (const auto& [width, value] : words) {
        file << '"';
        for (std::uint32_t i = 0; i < width; ++i) {
            char escaped[5];
            std::snprintf(escaped, sizeof escaped, "\\x%02x", static_cast<unsigned>(value >> (8 * i) & 0xFF));
            file << escaped;
        }
        file << "\"\n";
    }
    return file.flush() ? 0 : fail(path + ": cannot be written");
}

int unpack(const std::string& path, const std::string& directory)
{
    Inputs inputs;
    std::string error;
    return fuzz::read_packed(path, inputs, error) ? write_inputs(inputs, directory) : fail(error);
}

int pack(const std::string& directory, const std::string& path)
{
    std::set<files::path> names;
    std::error_code failed;
    for (const files::directory_entry& entry : files::directory_iterator(directory, failed))
        names.insert(entry.path());
    if (failed)
        return fail(directory + ": cannot be read");
    Inputs inputs;
    for (const files::path& name : names) {
        std::ifstream file(name, std::ios::binary);
        inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    std::string error;
    return fuzz::write_packed(path, inputs, error) ? 0 : fail(error);
}

// As people copy them: digits in pairs, with any blanks between them.
bool parse_hex(const std::string& text, Bytes& bytes)
{
    int high = -1;
    for (const char c : text) {
        if (std::isspace(static_cast<unsigned char>(c)) != 0 && high < 0)
            continue;
        if (std::isxdigit(static_cast<unsigned char>(c)) == 0)
            return false;
        const int digit = std::isdigit(static_cast<unsigned char>(c)) != 0 ? c - '0' : (c | 0x20) - 'a' + 10;
        if (high >= 0)
            bytes.push_back(static_cast<std::uint8_t>(16 * high + digit));
        high = high < 0 ? digit : -1;
    }
    return high < 0;
}

int add(const Catalogue& catalogue, const std::string& name, const std::string& hex)
{
    const reference::Message* const message = catalogue.find(name);
    if (message == nullptr)
        return fail("no message " + name);
    Bytes bytes;
    if (!parse_hex(hex, bytes))
        return fail("not hex digits in pairs: " + hex);
    const Bytes input = fuzz::decode_input(*message, bytes);
    if (input.size() > fuzz::longest_input)
        return fail("longer than what is replayed from there: make a case of it in tests/large_test.cpp");
    Inputs inputs;
    std::string error;
    if (!fuzz::read_packed(KESTO_CORPUS "/decode.inputs", inputs, error))
        return fail(error);
    if (std::find(inputs.begin(), inputs.end(), input) != inputs.end())
        return fail("it is there already");
    inputs.push_back(input);
    if (!fuzz::write_packed(KESTO_CORPUS "/decode.inputs", inputs, error))
        return fail(error);
    std::printf("%s: %zu bytes, input %zu of tests/fuzz/corpus/decode.inputs\n", name.c_str(), bytes.size(),
                inputs.size());
    return 0;
}

}   // namespace

int main(int count, char** arguments)
{
    const std::vector<std::string> words(arguments + 1, arguments + count);
    Catalogue catalogue;
    std::string error;
    if (!tests::load_catalogue(catalogue, error))
        return fail(error);
    if (words.size() == 3 && words[0] == "seeds" && (words[1] == "decode" || words[1] == "record"))
        return write_inputs(seeds(catalogue, words[1] == "decode"), words[2]);
    if (words.size() == 2 && words[0] == "dictionary")
        return write_dictionary(catalogue, words[1]);
    if (words.size() == 3 && words[0] == "unpack")
        return unpack(words[1], words[2]);
    if (words.size() == 3 && words[0] == "pack")
        return pack(words[1], words[2]);
    if (words.size() == 3 && words[0] == "add")
        return add(catalogue, words[1], words[2]);
    return fail("see the head of fuzz/corpus_tool.cpp for its commands");
}
