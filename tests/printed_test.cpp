// Compares printed headers, message pages and the dissector's table with the committed ones.

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <set>

#include "tests/support/command.h"
#include "tests/support/figures.h"

namespace kesto::tests {

namespace {

void run(const std::string& command)
{
    const CommandResult result = run_command(command);
    EXPECT_EQ(result.exit_code, 0) << command << ": " << result.output;
}

TEST(Printed, headers_pages_and_dissector_are_up_to_date)
{
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("kesto_printed_" + std::to_string(getpid()));
    std::filesystem::create_directory(folder);
    run(KESTO_PRINT_HEADERS " " + folder.string());
    run(KESTO_PRINT_MESSAGES " " + folder.string());
    run(KESTO_PRINT_SYNTHETIC " " + folder.string());
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
    run(KESTO_PRINT_DISSECTOR " " + printed);
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

}   // namespace

}   // namespace kesto::tests
