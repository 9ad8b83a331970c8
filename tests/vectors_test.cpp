// The files of vectors/ against the library and against kesto. They are read as a stranger would read them; of the
// reference this takes the list of messages and what puts a record into memory.

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

#include "reference/memory.h"
#include "tests/support/against_reference.h"
#include "tests/support/figures.h"
#include "tests/support/mesh_double.h"
#include "tests/support/services_double.h"
#include "tools/kesto/explain.h"
#include "tools/kesto/json_record.h"

namespace kesto::tests {

namespace {

using nlohmann::ordered_json;
using reference::Message;
using reference::Record;

const std::string folder = KESTO_SOURCE_DIR "/vectors/";
constexpr std::uint8_t untouched = 0xC3;

std::vector<ordered_json> lines_of(const std::string& name)
{
    std::vector<ordered_json> lines;
    std::ifstream file(folder + name);
    for (std::string line; std::getline(file, line);)
        lines.push_back(ordered_json::parse(line));
    return lines;
}

ordered_json files() { return ordered_json::parse(read_file(folder + "manifest.json"))["files"]; }

const Message& message_of(const ordered_json& line)
{
    const Message* const message = command::find_message(line["message"].get<std::string>());
    EXPECT_EQ(message, command::find_message(line["id"].get<std::string>()));
    return *message;
}

// A record that the library decodes from bytes at the end of memory.
class Decoded {
public:
    Decoded(const Message& message, const ordered_json& hex)
        : library(operations(message.name)), bytes(command::bytes_from_hex(hex.get<std::string>())),
          storage_(library.record_size / 8 + 1, 0x0101010101010101U * untouched)
    {
        static const GuardedBuffer buffer(1 << 16);
        std::uint8_t* const placed = buffer.place(bytes.size());
        std::copy(bytes.begin(), bytes.end(), placed);
        services().start();
        services().lines = &lines;
        library.unpack(placed, static_cast<std::uint32_t>(bytes.size()), record());
        services().lines = nullptr;
    }
    Decoded(const Decoded&) = delete;
    Decoded& operator=(const Decoded&) = delete;

    void* record() { return storage_.data(); }

    bool is_untouched()
    {
        const auto* const at = static_cast<const std::uint8_t*>(record());
        return std::all_of(at, at + library.record_size, [](std::uint8_t byte) { return byte == untouched; });
    }

    ByteString packed()
    {
        ByteString out(1 << 16);
        std::uint32_t length = 1 << 16;
        EXPECT_EQ(library.pack(record(), out.data(), &length), 0);
        out.resize(length);
        return out;
    }

    ByteString sent()
    {
        mesh().reset();
        EXPECT_EQ(library.sendsingle(0, record(), 0, 0), 0);
        return mesh().sends.at(0).sent.at(0).bytes;
    }

    // To be called for whatever was accepted.
    void release()
    {
        library.free_unpacked(record());
        EXPECT_EQ(services().live_blocks(), 0u);
    }

    const Operations& library;
    const ByteString bytes;
    std::vector<std::string> lines;   // of the log

private:
    std::vector<std::uint64_t> storage_;
};

TEST(Vectors, are_whole_and_what_is_printed_today)
{
    const std::string printed = testing::TempDir() + "kesto_vectors_" + std::to_string(getpid());
    std::filesystem::create_directory(printed);
    ASSERT_EQ(std::system((KESTO_PRINT_VECTORS " " + printed).c_str()), 0);
    std::set<std::string> names = {"manifest.json", "README.md"};
    std::string sums;
    for (const ordered_json& file : files()) {
        const std::string name = file["name"];
        names.insert(name);
        EXPECT_TRUE(read_file(folder + name) == read_file(printed + "/" + name)) << name << ": ./run vectors";
        EXPECT_EQ(file["lines"], lines_of(name).size()) << name;
        sums += file["sha256"].get<std::string>() + "  " + folder + name + "\n";
    }
    EXPECT_EQ(read_file(folder + "manifest.json"), read_file(printed + "/manifest.json")) << "./run vectors";
    std::filesystem::remove_all(printed);
    EXPECT_EQ(std::system(("echo '" + sums + "' | grep . | sha256sum --check --strict --quiet").c_str()), 0);

    std::uintmax_t size = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        EXPECT_TRUE(names.contains(entry.path().filename())) << entry.path() << " is not in the manifest";
        size += entry.file_size();
    }
    EXPECT_LT(size, 2u << 20);
}

TEST(Vectors, of_records_are_what_the_library_makes_and_takes)
{
    std::map<std::string, std::set<std::string>> cases;
    for (const ordered_json& file : files()) {
        if (file["name"] == "hostile.jsonl")
            continue;
        for (const ordered_json& line : lines_of(file["name"])) {
            const Message& message = message_of(line);
            const Record expected = command::record_from_json(message, line["record"]);
            EXPECT_TRUE(cases[message.name].insert(line["case"]).second);
            ASSERT_EQ(line["fixed"].is_null(), message.fixed_length == 0) << message.name;
            for (const char* form : {"compact", "fixed"}) {
                if (line[form].is_null())
                    continue;
                Decoded decoded(message, line[form]);
                ASSERT_FALSE(decoded.is_untouched()) << line;
                EXPECT_EQ(reference::difference(expected, decoded.record()), "") << line;
                EXPECT_EQ(command::record_json(reference::from_memory(message, decoded.record())), line["record"]);
                EXPECT_EQ(hex(decoded.packed()), line["compact"]) << line;
                EXPECT_EQ(hex(decoded.sent()), line["fixed"].is_null() ? line["compact"] : line["fixed"]) << line;
                EXPECT_EQ(decoded.lines, std::vector<std::string>());
                decoded.release();
            }
        }
    }
    EXPECT_EQ(cases.size(), transcribed().messages.size());
    for (const auto& [message, names] : cases)
        EXPECT_EQ(names, (std::set<std::string>{"boundary", "empty", "full"})) << message;
}

TEST(Vectors, of_hostile_byte_strings_end_in_the_library_as_they_say)
{
    for (const ordered_json& line : lines_of("hostile.jsonl")) {
        const Message& message = message_of(line);
        Decoded decoded(message, line["hex"]);
        EXPECT_EQ(ordered_json(decoded.lines), line["log"]) << line;
        ASSERT_EQ(decoded.is_untouched(), line["record"].is_null()) << line;
        if (line["refused"].is_null()) {
            const Record expected = command::record_from_json(message, line["record"]);
            EXPECT_EQ(reference::difference(expected, decoded.record()), "") << line;
            decoded.release();
        } else {
            EXPECT_EQ(services().live_blocks(), 0u) << line;
            if (!line["record"].is_null()) {
                EXPECT_EQ(command::record_json(reference::from_memory(message, decoded.record())), line["record"]);
            }
        }
    }
}

// What kesto says of a refusal, as a file of vectors says it.
ordered_json as_in_a_file(const command::Explanation& explanation, const std::optional<command::Refused>& refused)
{
    if (!refused)
        return nullptr;
    return {{"code", name_of(refused->failure.refusal)},
            {"path", command::path_text(*explanation.message, refused->failure.path)},
            {"position", refused->failure.position}};
}

TEST(Vectors, of_hostile_byte_strings_are_explained_as_they_say)
{
    for (const ordered_json& line : lines_of("hostile.jsonl")) {
        const ByteString bytes = command::bytes_from_hex(line["hex"].get<std::string>());
        const command::Explanation explanation = command::explain(message_of(line), bytes);
        EXPECT_EQ(as_in_a_file(explanation, explanation.refused), line["refused"]) << line;
        EXPECT_EQ(as_in_a_file(explanation, explanation.ignored), line["ignored"]) << line;
        ordered_json log = ordered_json::array();
        for (const auto& each : {explanation.ignored, explanation.refused})
            if (each && each->log)
                log.push_back(command::log_line(*each->log));
        EXPECT_EQ(log, line["log"]) << line;
    }
}

// Else a printer that lost half of its cases would pass.
TEST(Vectors, of_hostile_byte_strings_show_each_code_often_and_in_elements)
{
    std::map<std::string, int> often, in_elements, ignored;
    std::set<std::string> accepted;
    for (const ordered_json& line : lines_of("hostile.jsonl")) {
        if (line["refused"].is_null()) {
            accepted.insert(line["message"]);
        } else {
            const std::string code = line["refused"]["code"], path = line["refused"]["path"];
            ++often[code];
            in_elements[code] += path.find('[') != std::string::npos;
        }
        if (!line["ignored"].is_null())
            ++ignored[line["ignored"]["code"]];
    }
    for (const char* code :
         {"table_position", "vtable_position", "vtable_length", "scalar_end", "cell_end", "reference_wrap",
          "reference_range", "array_count", "count_range", "body_end", "nested_wrap", "element_wrap"}) {
        EXPECT_GE(often[code], 8) << code;
        EXPECT_GE(in_elements[code], 4) << code;
    }
    EXPECT_GE(often["length_below_4"], 4);
    EXPECT_EQ(often.size(), 13u);
    EXPECT_EQ(ignored.size(), 4u);
    EXPECT_EQ(accepted.size(), transcribed().messages.size());
}

}   // namespace

}   // namespace kesto::tests
