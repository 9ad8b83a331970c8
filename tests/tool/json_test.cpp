// Converts records to JSON and back without loss. vectors_test does this for every message.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "model/json.h"
#include "tools/kesto/messages.h"

namespace kesto::tests {

namespace {

using command::find_message;

TEST(JsonText, distinguishes_null_empty_and_invalid_text)
{
    const model::Message& message = *find_message("ifit_dfx_query_glbdata_item_mesh");
    for (const char* text : {R"({"f0":null})", R"({"f0":""})", R"({"f0":"\"a\"\n\u00e9"})", R"({"f0":{"hex":"ff"}})",
                             R"({"f0":{"hex":"c0af"}})", R"({"f0":{"hex":"eda080"}})", R"({"f0":{"hex":"f4908080"}})",
                             R"({"f0":{"hex":"e282"}})", R"({"f0":{"hex":"610062"}})"}) {
        const nlohmann::ordered_json json = model::parse_json(text, "text");
        EXPECT_EQ(model::record_json(model::record_from_json(message, json)), json) << text;
    }
}

TEST(JsonText, errors_name_the_field_or_the_input)
{
    std::string crowded = R"({"f0":0)";
    for (int k = 1; k < 1000; ++k)
        crowded += ",\"f" + std::to_string(k) + "\":0";
    const struct {
        const char* message;
        const char* text;
        const char* place;
    } cases[] = {
        {"ifit_dfx_query_stat_rec_mesh", R"({"f1":[{},{"f3":{"yaer":1}}]})", ".f1[1].f3.yaer: "},
        {"ifit_dfx_query_stat_rec_mesh", R"({"f1":[{"f3":{"year":65536}}]})", ".f1[0].f3.year: "},
        {"ifit_dfx_query_stat_rec_mesh", R"({"f1":[{"f3":{"month":256}}]})", ".f1[0].f3.month: "},
        {"ifit_dfx_query_stat_rec_mesh", R"({"f1":[{"f3":{"month":-1}}]})", ".f1[0].f3.month: "},
        {"ifit_dfx_query_stat_rec_mesh", R"({"f1":[{"f3":{"month":1.5}}]})", ".f1[0].f3.month: "},
        {"ifit_dfx_query_stat_rec_mesh", R"({"f1":[{"f0":"00"}]})", ".f1[0].f0: 1 element instead of 50"},
        {"ifit_dfx_query_stat_rec_mesh", R"({"f1":{}})", ".f1: "},
        {"ifit_dfx_query_stat_rec_mesh", R"({"f0":null})", ".f0: "},
        {"ifit_dfx_query_stat_rec_mesh", R"({"f0":{"f3":"0g"}})", ".f0.f3: "},
        {"ifit_dfx_query_stat_rec_mesh", R"([])", ".: "},
        {"ifit_dfx_query_queryhash_item_mesh", R"({"f26":[1,2,3]})", ".f26: 3 elements instead of 4"},
        {"ifit_dfx_query_queryhash_item_mesh", R"({"f26":[1,2,3,4294967296]})", ".f26[3]: "},
        {"ifit_dfx_query_queryhash_item_mesh", R"({"f7":"18446744073709551616"})", ".f7: "},
        {"ifit_dfx_query_queryhash_item_mesh", R"({"f7":"0x1"})", ".f7: "},
        {"ifit_dfx_query_queryhash_item_mesh", R"({"f1":1,"f1":2})", "text: duplicate name \"f1\""},
        {"ifit_dfx_query_queryhash_item_mesh", R"({"f1":1)", "text: invalid JSON"},
        {"ifit_dfx_query_queryhash_item_mesh", "[[[[[[[[[[[[[[[[[[[[", "text: nested deeper"},
        {"ifit_dfx_query_queryhash_item_mesh", R"({"f1":1e400})", "text: a number is out of range"},
        {"ifit_dfx_query_queryhash_item_mesh", crowded.c_str(), "text: an object has more names"},
    };
    for (const auto& wrong : cases) {
        try {
            (void)model::record_from_json(*find_message(wrong.message), model::parse_json(wrong.text, "text"));
            ADD_FAILURE() << "taken: " << wrong.text;
        } catch (const model::JsonFault& fault) {
            EXPECT_TRUE(std::string_view(fault.what()).starts_with(wrong.place)) << wrong.text << ": " << fault.what();
        }
    }
}

}   // namespace

}   // namespace kesto::tests
