// The exchange of every message between two processes: that it holds, and that it would tell if it did not.

#include <gtest/gtest.h>

#include <cinttypes>
#include <cstdio>
#include <string>

#include "tests/support/command.h"
#include "tools/catalogue.h"

namespace {

using kesto::tools::MessageInfo;

// A run of the program, with the numbers in the last row of its table.
struct Result : kesto::tests::CommandResult {
    std::uint64_t messages = 0, byte_strings = 0, bytes = 0, allocations = 0, left_over = 0, failures = 0;
};

Result exchange(const std::string& arguments, const std::string& environment = "")
{
    Result result{kesto::tests::run_command(environment + " " KESTO_EXCHANGE " " + arguments)};
    const std::size_t row = result.output.find("\nall ");
    if (row == std::string::npos ||
        std::sscanf(result.output.c_str() + row,
                    "\nall %" SCNu64 " %" SCNu64 " %" SCNu64 " %" SCNu64 " %" SCNu64 " %" SCNu64, &result.messages,
                    &result.byte_strings, &result.bytes, &result.allocations, &result.left_over, &result.failures) != 6)
        ADD_FAILURE() << "no table: " << result.output;
    return result;
}

// One alone and three in a batch, in each form that there is.
std::uint64_t strings_of(const MessageInfo& message) { return message.fixed_length != 0 ? 8 : 4; }

struct Totals {
    std::uint64_t messages = 0, byte_strings = 0;
};

Totals totals()
{
    Totals sums;
    for (const kesto::tools::ModuleInfo& module : kesto::tools::modules())
        for (const MessageInfo* message : module.messages) {
            ++sums.messages;
            sums.byte_strings += strings_of(*message);
        }
    return sums;
}

TEST(Exchange, every_message_arrives_in_every_form)
{
    const Result all = exchange("");
    EXPECT_EQ(all.exit_code, 0) << all.output;
    EXPECT_EQ(all.messages, totals().messages);
    EXPECT_EQ(all.byte_strings, totals().byte_strings);
    EXPECT_GT(all.allocations, 0u);
    EXPECT_EQ(all.left_over, 0u);
    EXPECT_EQ(all.failures, 0u);
}

TEST(Exchange, one_changed_byte_is_noticed_in_every_byte_string)
{
    const Result all = exchange("--damage all");
    EXPECT_EQ(all.exit_code, 1) << all.output;
    EXPECT_EQ(all.byte_strings, totals().byte_strings);
    EXPECT_EQ(all.failures, totals().byte_strings);
    EXPECT_EQ(all.left_over, 0u);
}

TEST(Exchange, a_changed_byte_is_found_in_its_field_and_in_no_other_message)
{
    const struct {
        const char* message;
        const char* field;   // the last one of the sample
    } cases[] = {
        {"ifit_mcp_mesh", "f5"},
        {"ifit_mcp_mesh_update", "f1.items[1].f5"},
        {"ifit_dfx_query_glbdata_item_mesh", "f0"},
        {"ifit_dfx_query_stat_mesh_key", "f1.f2"},
        {"ifit_dfx_query_comm_param_mesh", "f2"},
    };
    for (const auto& damaged : cases) {
        const Result one = exchange(std::string("--damage ") + damaged.message);
        EXPECT_EQ(one.exit_code, 1) << damaged.message;
        EXPECT_EQ(one.failures, strings_of(*kesto::tools::find_message(damaged.message))) << damaged.message;
        EXPECT_NE(one.output.find(std::string(damaged.message) + ", "), std::string::npos) << one.output;
        EXPECT_NE(one.output.find(std::string(": ") + damaged.field + " differs"), std::string::npos) << one.output;
    }
}

// A failed decode leaves counts without elements, which the comparison must survive.
TEST(Exchange, a_decode_without_memory_is_noticed_and_leaves_nothing_behind)
{
    const std::uint64_t allocations = exchange("").allocations;
    const Result one = exchange("", "OSAL_STANDIN_FAIL_AT=" + std::to_string(allocations));
    EXPECT_EQ(one.exit_code, 1) << one.output;
    EXPECT_EQ(one.failures, 1u) << one.output;
    const Result many = exchange("", "OSAL_STANDIN_FAIL_FROM=1");
    EXPECT_EQ(many.exit_code, 1);
    EXPECT_EQ(many.allocations, 0u);
    EXPECT_GT(many.failures, 0u);
    EXPECT_LT(many.failures, allocations);
    for (const Result& refused : {one, many})
        EXPECT_EQ(refused.left_over, 0u) << refused.output;
}

}   // namespace
