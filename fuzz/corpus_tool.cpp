// Prepares the fuzzers' initial inputs and keeps the ones they found:
//
//   corpus_tool dictionary FILE                 writes the numbers that matter in a byte string
//   corpus_tool unpack FILE DIRECTORY           unpacks a corpus into one file per input
//   corpus_tool pack DIRECTORY FILE             packs the files again, in the order of their names
//   corpus_tool add MESSAGE HEX                 adds a byte string to the decoders' corpus

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "fuzz/inputs.h"
#include "model/hex.h"
#include "tests/support/figures.h"

namespace {

using namespace kesto;
using model::Bytes;

using Inputs = std::vector<Bytes>;

namespace files = std::filesystem;

int fail(const std::string& reason)
{
    std::fprintf(stderr, "corpus_tool: %s\n", reason.c_str());
    return 1;
}

int write_dictionary(const std::string& path)
{
    std::set<std::pair<std::uint32_t, std::uint64_t>> words;   // width, value
    for (const std::uint64_t value : {0u, 1u, 3u, 4u, 5u, 6u, 7u, 8u, 0x3FFFFFFFu, 0x40000000u, 0x7FFFFFFFu,
                                      0x80000000u, 0xFFFFFFF8u, 0xFFFFFFFCu, 0xFFFFFFFFu})
        words.insert({4, value});
    for (const model::Message& message : tests::expected_catalogue().messages) {
        words.insert({4, message.id});
        words.insert({2, message.vtable_length});
        words.insert({2, message.vtable_length - 1});
        words.insert({4, message.vtable_length});       // a compact vtable offset
        words.insert({4, message.vtable_length + 4});   // a compact root
        if (message.fixed_length != 0)
            words.insert({4, 0 - ((message.fixed_table_length + 3) / 4 * 4)});   // a fixed vtable offset
        for (const model::Slot& slot : message.slots)
            if (slot.kind == model::Kind::array)
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
    if (!fuzz::read_packed(path, inputs, error))
        return fail(error);
    std::error_code failed;
    files::create_directories(directory, failed);
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        // All names have the same length, so that they sort in the order of the inputs.
        std::ofstream file(files::path(directory) / std::to_string(100000 + i), std::ios::binary);
        file.write(reinterpret_cast<const char*>(inputs[i].data()), static_cast<std::streamsize>(inputs[i].size()));
        if (!file.flush())
            return fail(directory + ": cannot be written");
    }
    return 0;
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

int add(const std::string& name, const std::string& hex)
{
    const model::Message* const message = tests::expected_catalogue().find(name);
    if (message == nullptr)
        return fail("no message " + name);
    Bytes input;
    model::append(input, message->id, fuzz::id_bytes);
    input.push_back(0);   // no allocation fails
    std::string error;
    if (!model::from_hex(hex, input, error))
        return fail(error);
    if (input.size() > fuzz::longest_input)
        return fail("too long for the corpus: add a case to tests/large_test.cpp instead");
    Inputs inputs;
    if (!fuzz::read_packed(KESTO_CORPUS "/decode.inputs", inputs, error))
        return fail(error);
    if (std::find(inputs.begin(), inputs.end(), input) != inputs.end())
        return fail("already in the corpus");
    inputs.push_back(input);
    if (!fuzz::write_packed(KESTO_CORPUS "/decode.inputs", inputs, error))
        return fail(error);
    std::printf("%s: %zu bytes, input %zu of tests/fuzz/corpus/decode.inputs\n", name.c_str(),
                input.size() - fuzz::before_bytes, inputs.size());
    return 0;
}

}   // namespace

int main(int count, char** arguments)
{
    const std::vector<std::string> words(arguments + 1, arguments + count);
    if (words.size() == 2 && words[0] == "dictionary")
        return write_dictionary(words[1]);
    if (words.size() == 3 && words[0] == "unpack")
        return unpack(words[1], words[2]);
    if (words.size() == 3 && words[0] == "pack")
        return pack(words[1], words[2]);
    if (words.size() == 3 && words[0] == "add")
        return add(words[1], words[2]);
    return fail("usage: see the top of fuzz/corpus_tool.cpp");
}
