// Compares the catalogue with the expected catalogue, the library with the figures, and printed files and exported
// symbols with the committed ones.

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <set>

#include "tests/support/against_model.h"

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

TEST(Printed, headers_pages_and_dissector_are_up_to_date)
{
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("kesto_printed_" + std::to_string(getpid()));
    std::filesystem::create_directory(folder);
    (void)run(KESTO_PRINT_HEADERS " " + folder.string());
    (void)run(KESTO_PRINT_MESSAGES " " + folder.string());
    (void)run(KESTO_PRINT_SYNTHETIC " " + folder.string());
    for (const std::string name : {"synthetic.h", "synthetic.hpp"})
        EXPECT_TRUE(read_file(KESTO_SOURCE_DIR "/tests/module/" + name) == read_file((folder / name).string()))
            << "tests/module/" << name << " is not current: ./run headers";
    for (const model::Module& module : model::catalogue().modules)
        for (const auto& [committed_in, suffix] :
             {std::pair{"include/", ".h"}, std::pair{"include/", ".hpp"}, std::pair{"docs/messages/", ".md"}}) {
            const std::string committed = read_file(KESTO_SOURCE_DIR "/" + (committed_in + module.name) + suffix);
            EXPECT_TRUE(committed == read_file((folder / (module.name + suffix)).string()))
                << committed_in << module.name << suffix << " is not current: ./run headers";
        }
    if (all_modules_built) {
        for (const std::string name : {"README.md", "overview.svg"})
            EXPECT_TRUE(read_file(KESTO_SOURCE_DIR "/docs/messages/" + name) == read_file((folder / name).string()))
                << "docs/messages/" << name << " is not current: ./run headers";
    }
    const std::string script = KESTO_SOURCE_DIR "/dissector/kesto.lua", printed = (folder / "kesto.lua").string();
    std::filesystem::copy_file(script, printed);
    (void)run(KESTO_PRINT_DISSECTOR " " + printed);
    EXPECT_TRUE(read_file(script) == read_file(printed)) << script << " is not current: ./run headers";
    std::filesystem::remove_all(folder);
}

// The exceptions among the families, written down by hand; the printer computes them from the slots.
TEST(Printed, pages_tell_the_exceptions_and_the_picture_leads_to_every_message)
{
    const std::pair<const char*, const char*> facts[] = {
        {"ifit", "Key of [ifit_flow_srv6policy_mesh], but cannot be cut from it: slot 2 is u64 here and u32 there."},
        {"ifit", "Key of [ifit_native_ip_intf_auto_detect_mesh]: its slots 0 to 3."},
        {"ifit", "Delete of [ifit_mcp_mesh]: a list of keys."},
        {"ifit", "Delete of [ifit_paf_mesh]: a list of whole records."},
        {"ifit_sync", "Delete of [ifit_sync_mcp_mesh]: a list of whole records."},
        {"ifit_sync", "Update of [ifit_sync_ifit_rule]: one whole record."},
        {"ifit_sync", "Repeats [ifit_global_mesh] only in slots 0 to 14; slot 15 is u8 here and u16 there."},
        {"ifit_sync", "The row of [ifit_mcp_mesh], then 5 more slots, the sync tail."},
        {"ifit_sync", "The row of [ifit_rule_mesh], then 7 more slots, the last five of them the sync tail."},
        {"ifit_sync", "then 7 more slots, which are not the sync tail."},
        {"ifit_sync", "The slots of [ifit_dam_smooth_request] in another module; only the id tells them apart."},
    };
    for (const auto& [module, fact] : facts)
        EXPECT_NE(read_file(KESTO_SOURCE_DIR "/docs/messages/" + (module + std::string(".md"))).find(fact),
                  std::string::npos)
            << module << ": " << fact;

    const std::string picture = read_file(KESTO_SOURCE_DIR "/docs/messages/overview.svg");
    std::set<std::string> led_to;
    for (std::size_t at = picture.find(".md#"); at != std::string::npos; at = picture.find(".md#", at + 1))
        led_to.insert(picture.substr(at + 4, picture.find('"', at) - at - 4));
    std::set<std::string> names;
    for (const model::Message& message : expected_catalogue().messages)
        if (message.module != "synthetic")
            names.insert(message.name);
    if (all_modules_built) {
        EXPECT_EQ(led_to, names);
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
    const std::string listing = run("nm -D --defined-only --format=posix " KESTO_LIBRARY);
    for (std::size_t at = 0; at < listing.size(); at = listing.find('\n', at) + 1)
        exported.insert(listing.substr(at, listing.find(' ', at) - at));
    EXPECT_EQ(exported, expected);

    if (KESTO_SANITIZED)
        return;   // the sanitizer's run-time adds dependencies
    const std::string needed = run("readelf -d " KESTO_LIBRARY);
    EXPECT_EQ(needed.find("libstdc++"), std::string::npos);
    EXPECT_EQ(needed.find("libzervamesh"), std::string::npos);   // MESH comes from the process
}

}   // namespace

}   // namespace kesto::tests
