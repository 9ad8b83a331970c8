// The catalogue against the list that was transcribed on its own, the library against the figures, and what is printed
// or exported against what was committed.

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <set>

#include "tests/support/against_reference.h"
#include "tools/catalogue.h"

namespace kesto::tests {

namespace {

std::string run(const std::string& command)
{
    std::string output;
    std::FILE* const pipe = popen(command.c_str(), "r");
    for (int c; pipe != nullptr && (c = std::fgetc(pipe)) != EOF;)
        output += static_cast<char>(c);
    if (pipe == nullptr || pclose(pipe) != 0)
        ADD_FAILURE() << "failed: " << command;
    return output;
}

bool alike(const tools::SlotInfo& slot, const reference::Slot& expected)
{
    if (static_cast<int>(slot.kind) != static_cast<int>(expected.kind))
        return false;
    if (slot.nested != nullptr)
        return slot.nested->name == expected.nested->name && slot.fault_ends_read != expected.outcome_ignored;
    return slot.width == expected.width && slot.count == expected.count;
}

static_assert(static_cast<int>(tools::SlotKind::vector) == static_cast<int>(reference::Kind::vector) &&
              static_cast<int>(tools::SlotKind::array) == static_cast<int>(reference::Kind::array));

TEST(Catalogue, is_the_transcribed_list)
{
    std::size_t next = 0;
    for (const tools::ModuleInfo& module : tools::modules())
        for (const tools::MessageInfo* message : module.messages) {
            if (is_left_out(message->name))
                continue;
            ASSERT_LT(next, transcribed().messages.size());
            const reference::Message& expected = transcribed().messages[next++];
            ASSERT_EQ(message->name, expected.name);
            EXPECT_EQ(message->module, expected.module);
            EXPECT_EQ(message->id, expected.id) << message->name;
            EXPECT_EQ(message->fixed_length, expected.fixed_length) << message->name;
            EXPECT_EQ(message->has_heap_parts, expected.owns_heap) << message->name;
            EXPECT_EQ(tools::empty_length(*message), expected.compact_zero) << message->name;
            if (!message->has_heap_parts) {
                EXPECT_EQ(tools::full_scalars_length(*message), expected.compact_full) << message->name;
            }
            ASSERT_EQ(message->slots.size(), expected.slots.size()) << message->name;
            for (std::size_t k = 0; k < expected.slots.size(); ++k)
                EXPECT_TRUE(alike(message->slots[k], expected.slots[k])) << message->name << " slot " << k;
            for (const std::uint32_t width : {4u, 8u}) {
                const tools::RecordLayout layout = tools::record_layout(*message, width);
                EXPECT_EQ(layout.size, expected.layout(width).size) << message->name;
                EXPECT_EQ(layout.offsets, expected.layout(width).offsets) << message->name;
            }
        }
    if (all_modules_built && transcribed().find("synthetic_byte") == nullptr) {
        EXPECT_EQ(next, transcribed().messages.size());
    }
}

// Of the library: each record is first written by it as by the reference.
TEST(Figures, hold_for_the_bytes_that_are_written)
{
    std::vector<Figure> figures;
    std::string error;
    ASSERT_TRUE(load_figures(figures, error)) << error;
    for (const Figure& figure : figures)
        for (const reference::Record& record : figure.records) {
            ASSERT_EQ(check_encoders(record), "") << figure.where();
            const ByteString bytes =
                figure.fixed_form ? reference::fixed_form(record) : reference::compact_form(record);
            const std::uint64_t reported = figure.fixed_form ? bytes.size() : reference::exact_size(record);
            EXPECT_EQ(fault_in_bytes(figure, record, bytes, reported), "") << figure.where();
        }
}

TEST(Printed, headers_pages_and_dissector_are_what_the_printers_print_today)
{
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("kesto_printed_" + std::to_string(getpid()));
    std::filesystem::create_directory(folder);
    (void)run(KESTO_PRINT_HEADERS " " + folder.string());
    (void)run(KESTO_PRINT_MESSAGES " " + folder.string());
    (void)run(KESTO_PRINT_SYNTHETIC " " + folder.string());
    EXPECT_TRUE(read_file(KESTO_SOURCE_DIR "/tests/module/synthetic.h") == read_file((folder / "synthetic.h").string()))
        << "tests/module/synthetic.h is not current: ./run headers";
    for (const tools::ModuleInfo& module : tools::modules())
        for (const auto& [committed_in, suffix] : {std::pair{"include/", ".h"}, std::pair{"docs/messages/", ".md"}}) {
            const std::string committed = read_file(KESTO_SOURCE_DIR "/" + (committed_in + module.name) + suffix);
            EXPECT_TRUE(committed == read_file((folder / (module.name + suffix)).string()))
                << committed_in << module.name << suffix << " is not current: ./run headers";
        }
    const std::string script = KESTO_SOURCE_DIR "/dissector/kesto.lua", printed = (folder / "kesto.lua").string();
    std::filesystem::copy_file(script, printed);
    (void)run(KESTO_PRINT_DISSECTOR " " + printed);
    EXPECT_TRUE(read_file(script) == read_file(printed)) << script << " is not current: ./run headers";
    std::filesystem::remove_all(folder);
}

TEST(Readme, shows_the_first_program_as_it_is)
{
    const std::string program = read_file(KESTO_SOURCE_DIR "/examples/first_program.c");
    EXPECT_FALSE(program.empty());
    EXPECT_NE(read_file(KESTO_SOURCE_DIR "/README.md").find("```c\n" + program + "```\n"), std::string::npos);
}

TEST(Library, exports_its_operations_and_nothing_else)
{
    std::set<std::string> expected;
    for (const reference::Message& message : transcribed().messages)
        for (const char* operation :
             {"__unpack", "_free__unpacked", "__pack", "__sendsingle", "__sendbatch", "__sendmsg", "__sendtomsg"})
            expected.insert(message.name + operation);
    for (const std::string& module : transcribed().modules)
        for (const char* operation : {"_recv_init", "_send_init", "__send_resource_clean"})
            expected.insert(module + operation);

    std::set<std::string> exported;
    const std::string listing = run("nm -D --defined-only --format=posix " KESTO_LIBRARY);
    for (std::size_t at = 0; at < listing.size(); at = listing.find('\n', at) + 1)
        exported.insert(listing.substr(at, listing.find(' ', at) - at));
    EXPECT_EQ(exported, expected);

    if (KESTO_SANITIZED)
        return;   // the sanitizer's run-time comes along
    const std::string needed = run("readelf -d " KESTO_LIBRARY);
    EXPECT_EQ(needed.find("libstdc++"), std::string::npos);
    EXPECT_EQ(needed.find("libzervamesh"), std::string::npos);   // MESH comes from the process
}

}   // namespace

}   // namespace kesto::tests
