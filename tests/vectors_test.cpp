// Compares the files of vectors/ with the current printer and with the library. They are read as a third party would
// read them.

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

#include "model/json.h"
#include "tests/support/against_model.h"
#include "tests/support/services_double.h"
#include "tools/kesto/commands.h"

namespace kesto::tests {

namespace {

using model::Message;
using model::Record;
using nlohmann::ordered_json;

const std::string folder = KESTO_SOURCE_DIR "/vectors/";

std::vector<ordered_json> lines_of(const std::string& name)
{
    std::vector<ordered_json> lines;
    std::ifstream file(folder + name);
    for (std::string line; std::getline(file, line);)
        lines.push_back(ordered_json::parse(line));
    return lines;
}

ordered_json files() { return ordered_json::parse(read_file(folder + "manifest.json"))["files"]; }

TEST(Vectors, are_complete_and_up_to_date)
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

TEST(Vectors, match_the_library)
{
    std::map<std::string, std::set<std::string>> cases;   // record cases, by message
    std::map<std::string, int> counts;                    // hostile byte strings per result; "" if accepted
    std::set<std::string> noncanonical;                   // messages of the accepted ones
    DecodeCheck check;
    for (const ordered_json& file : files())
        for (const ordered_json& line : lines_of(file["name"])) {
            const Message& message = *command::find_message(line["message"].get<std::string>());
            ASSERT_EQ(&message, command::find_message(line["id"].get<std::string>()));
            const bool is_hostile = line.contains("hex");
            const std::string code = !is_hostile || line["refused"].is_null() ? "" : line["refused"]["code"];
            Record record;
            if (code.empty())
                record = model::record_from_json(message, line["record"]);
            check.expected = code.empty() ? &record : nullptr;
            std::vector<std::string> log;
            for (const char* form : {"compact", "fixed", "hex"}) {
                if (!line.contains(form) || line[form].is_null())
                    continue;
                services().lines = &log;
                ASSERT_EQ(check.check(message, command::bytes_from_hex(line[form].get<std::string>())), "") << line;
                services().lines = nullptr;
                const model::Failure& failure = check.outcome().failure;
                EXPECT_EQ(failure ? name_of(failure.refusal) : "", code) << line;
            }
            EXPECT_EQ(ordered_json(log), line.value("log", ordered_json::array())) << line;
            if (is_hostile) {
                ++counts[code];
                if (code.empty())
                    noncanonical.insert(message.name);
                continue;
            }
            cases[message.name].insert(line["case"]);
            EXPECT_EQ(model::to_hex(command::encoded(record, command::Form::compact)), line["compact"]) << line;
            ASSERT_EQ(line["fixed"].is_null(), message.fixed_length == 0) << line;
            if (message.fixed_length != 0) {
                EXPECT_EQ(model::to_hex(command::encoded(record, command::Form::fixed)), line["fixed"]) << line;
            }
        }
    // A printer that lost half of its cases must not pass.
    EXPECT_EQ(cases.size(), expected_catalogue().messages.size());
    for (const auto& [message, names] : cases)
        EXPECT_EQ(names, (std::set<std::string>{"boundary", "empty", "full"})) << message;
    EXPECT_EQ(noncanonical.size(), expected_catalogue().messages.size());
    EXPECT_EQ(counts.size(), 1u + 13u);
    for (const auto& [code, count] : counts)
        EXPECT_GE(count, code == "length_below_4" ? 4 : 8) << code;
}

}   // namespace

}   // namespace kesto::tests
