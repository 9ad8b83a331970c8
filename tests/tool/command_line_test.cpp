// The program as it is called.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

struct Result {
    int exit_code = -1;   // stays for a crash
    std::string output;   // standard error, too
};

Result kesto(const std::string& arguments, const std::string& before = "")
{
    Result result;
    std::FILE* const pipe = popen((before + " '" KESTO_PROGRAM "' " + arguments + " 2>&1").c_str(), "r");
    for (int c; pipe != nullptr && (c = std::fgetc(pipe)) != EOF;)
        result.output += static_cast<char>(c);
    const int status = pipe == nullptr ? -1 : pclose(pipe);
    if (status != -1 && WIFEXITED(status))
        result.exit_code = WEXITSTATUS(status);
    return result;
}

constexpr const char item[] = "ifit_dfx_query_glbdata_item_mesh";
constexpr const char hello[] = "0a000000060012000400060000000400000005000000"
                               "68656c6c6f00";

TEST(CommandLine, takes_bytes_and_hex_from_everywhere)
{
    const std::string decoded = "{\"f0\":\"hello\"}\n";
    const std::string printf_hello = std::string("printf '") + hello + "' |";
    const std::string xxd = printf_hello + " sed 's/../\\\\x&/g' | xargs -0 printf |";   // the bytes themselves
    const struct {
        std::string before, arguments;
    } ways[] = {
        {"", std::string("decode ") + item + " --line --hex " + hello},
        {"", "decode 0x91cd149e --line --hex '0x0a,0x0,0x00,0x00, {06 00}: 12 00 04 00 06 00 00 00 \\x04\\x00 00 00 05 "
             "00 00 00 68 65 6C 6C 6F 00'"},
        {printf_hello, "decode 2446136478 --line -"},
        {printf_hello, std::string("decode --line --input-format hex ") + item},
        {"printf '{\"f0\":\"hello\"}' | '" KESTO_PROGRAM "' encode " + std::string(item) + " |",
         std::string("decode --line --input-format bytes ") + item},
    };
    for (const auto& way : ways) {
        const Result result = kesto(way.arguments, way.before);
        EXPECT_EQ(result.output, decoded) << way.before << way.arguments;
        EXPECT_EQ(result.exit_code, 0);
    }
}

TEST(CommandLine, exits_with_0_1_and_2)
{
    const std::string named = std::string(" ") + item;
    const struct {
        std::string arguments;
        int exit_code;
        const char* says;
    } cases[] = {
        {"explain" + named + " --hex " + hello, 0, "accepted: compact form, just as it is written"},
        {"explain" + named + " --json --hex " + hello, 0, "\"accepted\": true"},
        {"explain" + named + " --hex 0a0000000600", 1, "refused: table_position at ., position 10"},
        {"explain" + named + " --hex ''", 1, "refused: length_below_4"},
        {"explain ifit_mcp_mesh --hex " + std::string(hello), 0, "written for ifit_dfx_query_glbdata_item_mesh"},
        {"explain --raw --hex " + std::string(hello), 0, item},
        {"explain --raw --hex 00", 1, "less than the 4 bytes"},
        {"decode" + named + " --hex 0a0000000600", 1, "refused: table_position"},
        {"decode" + named + " --memory 5 --hex " + hello, 2, "6 bytes"},
        {"explain" + named + " --hex 0a0", 2, "'0a0' is no hex text"},
        {"explain" + named + " /nowhere/at/all", 2, "/nowhere/at/all: cannot be read"},
        {"explain ifit_dfx_query_glbdata_itm_mesh --hex 00", 2, item},
        {"explain glbdata_item --hex 00", 2, item},
        {"explain --hex 00", 2, "a MESSAGE is needed"},
        {"explain" + named + " --no-such-option", 2, "--no-such-option"},
        {"", 2, "subcommand"},
        {"list glbdata_item", 0, item},
        {"list nothing_like_it", 1, ""},
        {"show" + named, 0, "string"},
        {"show ifit_mcp_mesh", 0, "vtable at 24"},
        {"size ifit_mcp_mesh", 0, "fixed form of 40 bytes; compact form of 24 to 40"},
        {"--version", 0, "1.0.0"},
    };
    for (const auto& each : cases) {
        const Result result = kesto(each.arguments, "</dev/null");
        EXPECT_EQ(result.exit_code, each.exit_code) << each.arguments << "\n" << result.output;
        EXPECT_NE(result.output.find(each.says), std::string::npos) << each.arguments << "\n" << result.output;
    }
}

TEST(CommandLine, colours_only_where_they_are_wanted)
{
    const std::string explain = std::string("explain ") + item + " --hex " + hello;
    EXPECT_EQ(kesto(explain).output.find('\033'), std::string::npos);
    EXPECT_NE(kesto(explain + " --color always").output.find('\033'), std::string::npos);
}

// What bash is offered behind the words that are there.
std::string completions(const std::string& words)
{
    const std::string script = "source " KESTO_SOURCE_DIR "/tools/kesto/kesto.bash; COMP_WORDS=(" KESTO_PROGRAM " " +
                               words + "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _kesto; echo ${COMPREPLY[@]}";
    std::string output;
    std::FILE* const pipe = popen(("bash -c '" + script + "' 2>&1").c_str(), "r");
    for (int c; pipe != nullptr && (c = std::fgetc(pipe)) != EOF;)
        output += static_cast<char>(c);
    if (pipe != nullptr)
        pclose(pipe);
    return output;
}

TEST(Completion, offers_commands_options_and_messages)
{
    EXPECT_EQ(completions("ex"), "explain\n");
    EXPECT_EQ(completions("explain --h"), "--help --hex --html\n");
    EXPECT_EQ(completions("encode --form c"), "compact\n");
    EXPECT_EQ(completions("decode --line ifit_mcp_mesh_u"), "ifit_mcp_mesh_update\n");
    EXPECT_EQ(completions("diff ifit_mcp_mesh /dev/nul"), "/dev/null\n");
}

class Files : public testing::Test {
protected:
    Files() : folder_(std::filesystem::temp_directory_path() / ("kesto_test." + std::to_string(getpid())))
    {
        std::filesystem::create_directory(folder_);
    }
    ~Files() override { std::filesystem::remove_all(folder_); }

    std::string path(const char* name) const { return (folder_ / name).string(); }

private:
    std::filesystem::path folder_;
};

TEST_F(Files, diff_compares_records_and_not_bytes)
{
    const auto encode = [&](const char* json, const char* form, const char* name) {
        const Result result = kesto(std::string("encode ifit_mcp_mesh --form ") + form + " -o " + path(name),
                                    std::string("echo '") + json + "' |");
        ASSERT_EQ(result.exit_code, 0) << result.output;
    };
    encode(R"({"f0":7,"f5":1})", "fixed", "a");
    encode(R"({"f0":7,"f5":1})", "compact", "b");
    encode(R"({"f0":8,"f5":1})", "compact", "c");
    EXPECT_EQ(std::filesystem::file_size(path("a")), 40u);
    EXPECT_EQ(std::filesystem::file_size(path("b")), 32u);
    const std::string diff = "diff ifit_mcp_mesh " + path("a") + " ";
    EXPECT_EQ(kesto(diff + path("b")).exit_code, 0);
    const Result differs = kesto(diff + path("c"));
    EXPECT_EQ(differs.exit_code, 1);
    EXPECT_EQ(differs.output, ".f0: 7  8\n");
    EXPECT_EQ(kesto(diff + "/dev/null").exit_code, 2);
}

// Text from the byte string must not become part of the page.
TEST_F(Files, a_page_holds_foreign_text_as_text)
{
    const std::string text = "<script>alert(1)</script>&\\\"";
    const Result encoded = kesto("encode --hex " + std::string(item), "echo '{\"f0\":\"" + text + "\"}' |");
    ASSERT_EQ(encoded.exit_code, 0) << encoded.output;
    const std::string hex_text = encoded.output.substr(0, encoded.output.size() - 1);
    EXPECT_EQ(kesto("explain " + std::string(item) + " --html " + path("page") + " --hex '" + hex_text + "'").exit_code,
              0);
    std::ifstream file(path("page"));
    const std::string page{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(page.find("<script>alert"), std::string::npos);
    EXPECT_NE(page.find("&lt;script&gt;alert(1)&lt;/script&gt;&amp;"), std::string::npos);
}

}   // namespace
