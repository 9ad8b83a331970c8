// Compares the catalogue with the expected catalogue, the library with the figures, and exported symbols with the
// operations of all messages.

#include <gtest/gtest.h>

#include <set>

#include "tests/support/against_model.h"
#include "tests/support/command.h"

namespace kesto::tests {

namespace {

bool alike(const model::Slot& slot, const model::Slot& expected)
{
    if (slot.kind != expected.kind)
        return false;
    if (slot.nested != nullptr)
        return slot.nested->name == expected.nested->name && slot.lenient == expected.lenient;
    return slot.width == expected.width && slot.count == expected.count;
}

TEST(Catalogue, matches_the_expected_catalogue)
{
    std::size_t next = 0;
    for (const model::Message& message : model::catalogue().messages) {
        if (is_left_out(message.name))
            continue;
        ASSERT_LT(next, expected_catalogue().messages.size());
        const model::Message& expected = expected_catalogue().messages[next++];
        ASSERT_EQ(message.name, expected.name);
        EXPECT_EQ(message.module, expected.module);
        EXPECT_EQ(message.id, expected.id) << message.name;
        ASSERT_EQ(message.slots.size(), expected.slots.size()) << message.name;
        for (std::size_t k = 0; k < expected.slots.size(); ++k)
            EXPECT_TRUE(alike(message.slots[k], expected.slots[k])) << message.name << " slot " << k;
    }
    if (all_modules_built && expected_catalogue().find("synthetic_byte") == nullptr) {
        EXPECT_EQ(next, expected_catalogue().messages.size());
    }
}

// Holds for the library, too: its output for each record is first compared with the model's.
TEST(Figures, match_the_encoded_bytes)
{
    std::vector<Figure> figures;
    std::string error;
    ASSERT_TRUE(load_figures(figures, error)) << error;
    for (const Figure& figure : figures)
        for (const model::Record& record : figure.records) {
            ASSERT_EQ(check_encoders(record), "") << figure.where();
            const ByteString bytes = figure.fixed_form ? model::fixed_form(record) : model::compact_form(record);
            const std::uint64_t reported = figure.fixed_form ? bytes.size() : model::exact_size(record);
            EXPECT_EQ(fault_in_bytes(figure, record, bytes, reported), "") << figure.where();
        }
}

TEST(Readme, quotes_the_first_program_verbatim)
{
    const std::string program = read_file(KESTO_SOURCE_DIR "/examples/first_program.c");
    EXPECT_FALSE(program.empty());
    EXPECT_NE(read_file(KESTO_SOURCE_DIR "/README.md").find("```c\n" + program + "```\n"), std::string::npos);
}

TEST(Library, exports_its_operations_and_nothing_else)
{
    std::set<std::string> expected;
    for (const model::Message& message : expected_catalogue().messages)
        for (const char* operation :
             {"__unpack", "_free__unpacked", "__pack", "__sendsingle", "__sendbatch", "__sendmsg", "__sendtomsg"})
            expected.insert(message.name + operation);
    for (const model::Module& module : expected_catalogue().modules)
        for (const char* operation : {"_recv_init", "_send_init", "__send_resource_clean"})
            expected.insert(module.name + operation);

    std::set<std::string> exported;
    const auto [failed, listing] = run_command("nm -D --defined-only --format=posix " KESTO_LIBRARY);
    ASSERT_EQ(failed, 0) << listing;
    for (std::size_t at = 0; at < listing.size(); at = listing.find('\n', at) + 1)
        exported.insert(listing.substr(at, listing.find(' ', at) - at));
    EXPECT_EQ(exported, expected);

    if (KESTO_SANITIZED)
        return;   // the sanitizer's run-time adds dependencies
    const auto [unreadable, needed] = run_command("readelf -d " KESTO_LIBRARY);
    ASSERT_EQ(unreadable, 0) << needed;
    EXPECT_EQ(needed.find("libstdc++"), std::string::npos);
    EXPECT_EQ(needed.find("libzervamesh"), std::string::npos);   // MESH comes from the process
}

}   // namespace

}   // namespace kesto::tests
