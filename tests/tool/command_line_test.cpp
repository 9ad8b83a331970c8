// Tests the program through its command line.

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>
#include <string>

#include "tests/support/capture_file.h"
#include "tests/support/command.h"
#include "tests/support/figures.h"
#include "tools/kesto/input.h"

namespace kesto::tests {

namespace {

using command::bytes_from_hex;
using model::append;

CommandResult kesto(const std::string& arguments, const std::string& before = "")
{
    return run_command(before + " '" KESTO_PROGRAM "' " + arguments);
}

constexpr const char item[] = "ifit_dfx_query_glbdata_item_mesh";
constexpr const char hello[] = "0a000000060012000400060000000400000005000000"
                               "68656c6c6f00";

TEST(CommandLine, reads_bytes_and_hex_from_every_source)
{
    const std::string decoded = "{\"f0\":\"hello\"}\n";
    const std::string printf_hello = std::string("printf '") + hello + "' |";
    const std::string xxd = printf_hello + " sed 's/../\\\\x&/g' | xargs -0 printf |";   // the bytes themselves
    const struct {
        std::string before, arguments;
    } cases[] = {
        {"", std::string("decode ") + item + " --line --hex " + hello},
        {"", "decode 0x91cd149e --line --hex '0x0a,0x0,0x00,0x00, {06 00}: 12 00 04 00 06 00 00 00 \\x04\\x00 00 00 05 "
             "00 00 00 68 65 6C 6C 6F 00'"},
        {printf_hello, "decode 2446136478 --line -"},
        {printf_hello, std::string("decode --line --input-format hex ") + item},
        {"printf '{\"f0\":\"hello\"}' | '" KESTO_PROGRAM "' encode " + std::string(item) + " |",
         std::string("decode --line --input-format bytes ") + item},
    };
    for (const auto& each : cases) {
        const CommandResult result = kesto(each.arguments, each.before);
        EXPECT_EQ(result.output, decoded) << each.before << each.arguments;
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
        {"explain" + named + " --color always --hex " + hello, 0, "\033["},
        {"explain" + named + " --hex 0a0000000600", 1, "refused: table_position at ., position 10"},
        {"explain" + named + " --hex ''", 1, "refused: length_below_4"},
        {"explain ifit_mcp_mesh --hex " + std::string(hello), 0, "written for ifit_dfx_query_glbdata_item_mesh"},
        {"explain --raw --hex " + std::string(hello), 0, item},
        {"explain --raw --hex 00", 1, "less than the 4 bytes"},
        {"explain --raw --hex 9e14cd911c000000" + std::string(hello), 0, "written just so for: ifit_dfx_query_glbdata"},
        {"explain --raw --json --hex 9e14cd911c000000" + std::string(hello), 0, "\"stated\": 28,\n    \"present\": 28"},
        {"explain --raw --json --hex " + std::string(hello), 0,
         "\"written_for\": [\n    \"ifit_dfx_query_glbdata_item"},
        {"explain --raw --json --hex 00", 1, "\"root_table\": false"},
        {"decode" + named + " --hex 0a0000000600", 1, "refused: table_position"},
        {"decode" + named + " --memory 5 --hex " + hello, 2, "more than 5 bytes of memory"},
        {"explain" + named + " --hex 0a0", 2, "'0a0' is not hex"},
        {"explain" + named + " /nowhere/at/all", 2, "/nowhere/at/all: cannot be read"},
        {"explain" + named + " " + hello, 2, "no such file; hex text stands after --hex"},
        {"explain ifit_dfx_query_glbdata_itm_mesh --hex 00", 2, item},
        {"explain glbdata_item --hex 00", 2, item},
        {"explain 'glbdata rec' --hex 00", 2, "did you mean ifit_dfx_query_glbdata_rec_mesh"},
        {"explain 'level 2 code 22 ifit_dfx_query_glbdata_item_mesh_unp' --hex 00", 2, item},   // cut by the log
        {"explain ifit_dfx_query_glbdata_item_mesh_removed --hex 00", 2, item},
        {"explain 'ifit_dfx_datetime_mesh ifit_dfx_query_glbdata_item_mesh' --hex 00", 2,
         "names 2 messages: ifit_dfx_d"},
        {"explain --hex 00", 2, "a MESSAGE is needed"},
        {"explain" + named + " --no-such-option", 2, "--no-such-option"},
        {"", 2, "a sub-command is needed"},
        {"decode --pcap x" + named, 2, "excludes --pcap"},
        {"decode --packet 1" + named, 2, "--packet requires --pcap"},
        {"explain --pcap /nowhere/at/all", 2, KESTO_CAN_CAPTURE ? "/nowhere/at/all: No such" : "without libpcap"},
        {"list glbdata_item", 0, item},
        {"list nothing_like_it", 1, ""},
        {"show" + named, 0, "string"},
        {"show ifit_mcp_mesh", 0, "vtable at 24"},
        {"size ifit_mcp_mesh", 0, "fixed form of 40 bytes; compact form of 24 to 40"},
        {"--version", 0, "1.0.0"},
    };
    for (const auto& each : cases) {
        const CommandResult result = kesto(each.arguments, "</dev/null");
        EXPECT_EQ(result.exit_code, each.exit_code) << each.arguments << "\n" << result.output;
        EXPECT_NE(result.output.find(each.says), std::string::npos) << each.arguments << "\n" << result.output;
    }
}

// The words that hold a digit, and the longest line.
std::pair<std::multiset<std::string>, std::size_t> facts_of(const std::string& output)
{
    std::multiset<std::string> facts;
    std::size_t longest = 0;
    std::istringstream lines(output);
    for (std::string line, word; std::getline(lines, line);) {
        longest = std::max(longest, line.find_last_not_of('\r') + 1);
        for (std::istringstream words(line); words >> word;)
            if (std::ranges::any_of(word, [](unsigned char c) { return std::isdigit(c) != 0; }))
                facts.insert(word);
    }
    return {facts, longest};
}

TEST(CommandLine, a_terminal_of_80_columns_shows_everything_in_lines_that_fit)
{
    const std::string nested = "ifit_sync_ntvifit_intf_auto_detect_entry_update";
    for (const std::string& arguments :
         {std::string("list"), "show " + nested, std::string("show ifit_dfx_query_queryhash_item_mesh"),
          "size " + nested, std::string("explain --help"),
          std::string("explain ifit_mcp_mesh_delete --color never --hex ") +
              "0c00000008001000000004000800000004000000060000000a000000"}) {
        const auto [facts, longest] = facts_of(kesto(arguments).output);
        const std::string on_terminal = "script -qec \"'" KESTO_PROGRAM "' " + arguments + "\" /dev/null </dev/null";
        const auto [shown, longest_shown] = facts_of(run_command("COLUMNS=80 " + on_terminal).output);
        EXPECT_EQ(facts, shown) << arguments;
        EXPECT_GT(longest, 80u) << arguments;
        EXPECT_LE(longest_shown, 80u) << arguments;
    }
}

// As programs, headers and logs name a message.
TEST(CommandLine, knows_a_message_by_whatever_names_it)
{
    for (const char* text :
         {"IFIT_DFX_Query_glbdata_item_mesh", "0X91CD149E", "ifit_dfx_query_glbdata_item_mesh_unpack",
          "ifit_dfx_query_glbdata_item_mesh_UNPACK_non_root", "ifit_dfx_query_glbdata_item_mesh_free_unpacked",
          "ifit_dfx_query_glbdata_item_mesh_pack", "ifit_dfx_query_glbdata_item_mesh__unpack",
          "ifit_dfx_query_glbdata_item_mesh_free__unpacked", "ifit_dfx_query_glbdata_item_mesh__sendtomsg",
          "IFIT_DFX_QUERY_GLBDATA_ITEM_MESH_ID", "12:00:01 [2] id=0x91cd149e refused",
          "KESTO/KESTO_MARLOCK_SERIAL level 2 code 12 ifit_dfx_query_glbdata_item_mesh_unpack: [KESTO]:Malloc unpack "
          "data failed, size(6)"})
        EXPECT_EQ(kesto(std::string("decode '") + text + "' --line --hex " + hello).output, "{\"f0\":\"hello\"}\n");
    // A suffix that belongs to the name stays.
    EXPECT_NE(kesto("show ifit_dfx_query_glbdata_mesh_key_unpack").output.find("0xda64baf0"), std::string::npos);
}

// The byte string is the whole message's, of which the log names a part: the table of .f0 is out of range.
TEST(CommandLine, takes_the_routine_of_a_nested_message_for_the_message_around_it)
{
    const std::string logged = "ifit_dfx_query_comm_rec_mesh_unpack_non_root: [KESTO]:Table offset(99) is out of range";
    const std::string bytes = " --hex '0c000000 08000c00 04000000 08000000 53000000'";
    const CommandResult result = kesto("explain '" + logged + "'" + bytes);
    EXPECT_EQ(result.exit_code, 2);
    EXPECT_NE(result.output.find("ifit_dfx_query_stat_rec_mesh, ifit_dfx_query_glbdata_rec_mesh"), std::string::npos)
        << result.output;
    EXPECT_EQ(kesto("explain 'ifit_mcp_mesh_key_unpack_non_root'" + bytes)
                  .output.find("kesto: ifit_mcp_mesh_key_unpack"
                               "_non_root decodes a part of a "
                               "message, here of ifit_mcp_mesh_"
                               "delete\nifit_mcp_mesh_delete"),
              0u);
}

// The completions that bash offers after the given words.
std::string completions(const std::string& words)
{
    return run_command("bash -c 'source " KESTO_SOURCE_DIR "/tools/kesto/kesto.bash; COMP_WORDS=(" KESTO_PROGRAM " " +
                       words + "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _kesto; echo ${COMPREPLY[@]}'")
        .output;
}

TEST(Completion, offers_commands_options_and_messages)
{
    EXPECT_EQ(completions("ex"), "explain\n");
    EXPECT_EQ(completions("explain --h"), "--help --hex --html\n");
    EXPECT_EQ(completions("encode --form c"), "compact\n");
    EXPECT_EQ(completions("decode --line ifit_mcp_mesh_u"), "ifit_mcp_mesh_update\n");
    EXPECT_EQ(completions("diff ifit_mcp_mesh /dev/nul"), "/dev/null\n");
    EXPECT_EQ(completions("explain --pcap /dev/nul"), "/dev/null\n");
    EXPECT_EQ(completions("decode --pcap x --message ifit_mcp_mesh_u"), "ifit_mcp_mesh_update\n");
    EXPECT_EQ(completions("decode --pcap x ifit_mcp_mesh_u"), "\n");
    EXPECT_EQ(completions("compare --all x /dev/nul"), "/dev/null\n");
    EXPECT_EQ(completions("decode --names x ifit_mcp_mesh_u"), "ifit_mcp_mesh_update\n");
    EXPECT_EQ(completions("--names x decode --line ifit_mcp_mesh_u"), "ifit_mcp_mesh_update\n");
}

// Texts that would control a terminal or reverse a line, with their first character as shown.
struct Hostile {
    std::string text, shown;
    std::string in_json;   // as JSON shows it; empty if it is not valid text
};

const Hostile hostile[] = {
    {"\x1b]0;x\x07\x1b[2J", "\\x1b", R"(\u001b]0;x\u0007\u001b[2J)"},
    {"\xc2\x9b\x32J\x7f", "\\u009b", "\xc2\x9b\x32J\x7f"},
    {"\xe2\x80\xae\xe2\x81\xa6\xd8\x9c", "\\u202e", "\xe2\x80\xae\xe2\x81\xa6\xd8\x9c"},
    {"\x9b\xe2\x80", "\\x9b", ""},
};

// Only printable ASCII and newlines are left of the hostile texts.
bool is_harmless(const std::string& output)
{
    return std::all_of(output.begin(), output.end(), [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); });
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
        const std::string arguments = std::string("encode ifit_mcp_mesh --form ") + form + " -o " + path(name);
        EXPECT_EQ(kesto(arguments, std::string("echo '") + json + "' |").exit_code, 0) << name;
    };
    encode(R"({"f0":7,"f5":1})", "fixed", "a");
    encode(R"({"f0":7,"f5":1})", "compact", "b");
    encode(R"({"f0":8,"f5":1})", "compact", "c");
    EXPECT_EQ(std::filesystem::file_size(path("a")), 40u);
    EXPECT_EQ(std::filesystem::file_size(path("b")), 32u);
    const std::string diff = "diff ifit_mcp_mesh " + path("a") + " ";
    EXPECT_EQ(kesto(diff + path("b")).exit_code, 0);
    const CommandResult differs = kesto(diff + path("c"));
    EXPECT_EQ(differs.exit_code, 1);
    EXPECT_EQ(differs.output, ".f0: 7  8\n");
    EXPECT_EQ(kesto(diff + "/dev/null").exit_code, 2);
}

TEST_F(Files, foreign_text_is_escaped)
{
    const std::string named = std::string(" ") + item + " ";
    const auto check = [&](const std::string& arguments, const std::string& input, const std::string& says) {
        write_file(path("input"), {input.begin(), input.end()});
        const CommandResult result = kesto(arguments, "<'" + path("input") + "'");
        EXPECT_TRUE(is_harmless(result.output)) << arguments << "\n" << result.output;
        EXPECT_NE(result.output.find(says), std::string::npos) << arguments << "\n" << result.output;
    };
    for (const auto& [text, shown, in_json] : hostile) {
        const std::string quoted = "'" + text + "'", nowhere = "'/nowhere/" + text + "'";
        for (const std::string& arguments :
             {"list mesh " + quoted, "list --" + quoted, "explain " + quoted, "explain" + named + nowhere,
              "explain" + named + "--color " + quoted, "explain" + named + "--hex " + quoted,
              "explain" + named + "--html " + nowhere + " --hex " + hello, "explain --raw " + nowhere,
              "explain --pcap " + nowhere, "explain --pcap x --message " + quoted, "decode " + quoted,
              "decode" + named + "--memory " + quoted, "decode" + named + "--input-format hex",
              "diff" + named + nowhere + " " + nowhere, "encode " + quoted, "encode" + named + "-o " + nowhere,
              "size" + named + nowhere, "size " + quoted, "show " + quoted})
            check(arguments, arguments.starts_with("encode") ? "{}" : "00 " + text, shown);
        check("encode" + named, text, "invalid JSON");
        check("encode" + named, "{\"" + text + "\":1}", in_json == text ? shown : "invalid JSON");
        if (in_json.empty())
            continue;
        check("encode" + named, "{\"" + in_json + "\":1}", shown);
        check("encode" + named, "{\"" + in_json + "\":1,\"" + in_json + "\":1}", shown);
        check("encode" + named, "{\"f0\":{\"hex\":\"" + in_json + "\"}}", shown);
        check("encode ifit_dfx_query_queryhash_item_mesh", "{\"f7\":\"" + in_json + "\"}", shown);
        check("size ifit_mcp_mesh -", "{\"f0\":\"" + in_json + "\"}", "\\u");
    }
}

TEST_F(Files, text_fields_are_escaped_and_keep_their_value)
{
    const std::string named = std::string(" ") + item + " ", a = path("a"), b = path("b");
    write_file(b, bytes_from_hex(hello));
    for (const auto& [text, shown, in_json] : hostile) {
        Bytes bytes = bytes_from_hex("0a000000 06001200 0400 06000000 04000000");
        append(bytes, text.size(), 4);
        bytes.insert(bytes.end(), text.begin(), text.end());
        bytes.push_back(0);
        write_file(a, bytes);
        for (const std::string& arguments :
             {"explain" + named + a, "explain --json" + named + a, "explain --raw " + a, "explain --raw --json " + a,
              "decode" + named + a, "decode --line" + named + a, "diff" + named + a + " " + b,
              "diff --json" + named + b + " " + a}) {
            const CommandResult result = kesto(arguments);
            EXPECT_TRUE(is_harmless(result.output)) << arguments << "\n" << result.output;
            EXPECT_EQ(result.exit_code, arguments.starts_with("diff") ? 1 : 0) << arguments << "\n" << result.output;
        }
        if (!in_json.empty()) {
            EXPECT_EQ(nlohmann::json::parse(kesto("decode" + named + a).output).at("f0"), text);
        }
    }
}

TEST_F(Files, names_of_fields_are_used_everywhere_and_change_no_byte)
{
    const std::string plain =
        "{\"f0\":3,\"f1\":[{\"f0\":16,\"f1\":3232235521,\"f2\":\"1700000000250000000\",\"f3\":"
        "\"73588229205\",\"f4\":1700000000,\"f5\":0,\"f6\":17,\"f7\":0,\"f8\":0,\"f9\":0,\"f10\":0,"
        "\"f11\":0}]}\n";
    const std::string named =
        "{\"f0\":3,\"rows\":[{\"flow\":\"0x00000010\",\"source\":\"192.168.0.1\",\"begin\":"
        "\"2023-11-14T22:13:20.250000000Z\",\"station\":\"00:11:22:33:44:55\",\"changed\":\"2023-11-14T22:13:20Z\","
        "\"f5\":0,\"protocol\":\"udp\",\"f7\":0,\"f8\":0,\"f9\":0,\"f10\":0,\"f11\":0}]}\n";
    const std::string with_names = "KESTO_NAMES=" KESTO_SOURCE_DIR "/tests/data/fields.names";
    const std::string list = " ifit_flow_base_mesh_update ", a = path("a"), b = path("b"), json = path("json");
    const auto encode = [&](const std::string& text, const std::string& environment, const std::string& to) {
        write_file(json, {text.begin(), text.end()});
        return kesto("encode" + list + json + " -o " + to, environment);
    };
    EXPECT_EQ(encode(plain, "", a).exit_code, 0);
    EXPECT_EQ(encode(named, with_names, b).output, "");
    EXPECT_EQ(read_file(a), read_file(b));
    EXPECT_EQ(encode(plain, with_names, b).output, "");
    EXPECT_EQ(read_file(a), read_file(b));
    EXPECT_EQ(kesto("decode --line" + list + a).output, plain);
    EXPECT_EQ(kesto("decode --line" + list + a + " --names " KESTO_SOURCE_DIR "/tests/data/fields.names").output,
              named);
    EXPECT_EQ(encode("{\"rows\":[{\"protocol\":99,\"source\":\"10.0.0.1\"}]}", with_names, b).exit_code, 0);
    const std::string difference = kesto("diff" + list + a + " " + b, with_names).output;
    EXPECT_NE(difference.find(".rows[0].source: \"192.168.0.1\"  \"10.0.0.1\"\n"), std::string::npos) << difference;
    EXPECT_NE(difference.find(".rows[0].protocol: \"udp\"  99\n"), std::string::npos) << difference;
    EXPECT_NE(kesto("explain" + list + a, with_names).output.find(".rows[0].protocol  u8             udp = 17\n"),
              std::string::npos);
    EXPECT_EQ(kesto("decode --line ifit_flow_tuplev6_mesh", "echo '{\"source\":\"2001:db8::1\"}' | " + with_names +
                                                                " " KESTO_PROGRAM " encode ifit_flow_tuplev6_mesh |")
                  .output.find("[536939960,0,0,1]"),
              29u);
    EXPECT_EQ(
        kesto("list --names reset_statis", "KESTO_NAMES=" KESTO_SOURCE_DIR "/tools/kesto/example.names").exit_code, 0);

    const struct {
        const char *text, *says;
    } wrong[] = {
        {"{\"rows\":[{\"source\":\"10.0.0.256\"}]}", ".rows[0].source: '10.0.0.256' is not an IPv4 address"},
        {"{\"rows\":[{\"protocol\":\"ip\"}]}", ".rows[0].protocol: 'ip'"},
        {"{\"rows\":[{\"station\":\"00:11:22:33:44\"}]}", ".rows[0].station: '00:11:22:33:44'"},
        {"{\"rows\":[{\"begin\":\"2023-11-14T22:13\"}]}", ".rows[0].begin: "},
        {"{\"rows\":[],\"f1\":[]}", ".f1 and f1 are one field"},
        {"{\"rows\":[{\"flaw\":0}]}", "flaw: ifit_flow_base_mesh has no such field"},
    };
    for (const auto& each : wrong) {
        const CommandResult result = encode(each.text, with_names, b);
        EXPECT_EQ(result.exit_code, 2) << each.text;
        EXPECT_NE(result.output.find(each.says), std::string::npos) << result.output;
    }
}

TEST_F(Files, a_wrong_file_of_names_is_refused_with_its_line)
{
    const std::string message = "ifit_flow_base_mesh\n";
    const struct {
        std::string text;
        const char* says;
    } wrong[] = {
        {" f0 flow\n", ":1: a field stands before any message"},
        {{'#', '\n', 0, 0}, ":2: byte 0x00: the file is not text"},
        {"# first\n\nifit_flaw_base_mesh\n", ":3: no message 'ifit_flaw_base_mesh'"},
        {message + message, ":2: ifit_flow_base_mesh stands here a second time"},
        {"ifit_flow_base_mesh f0 flow", ":1: a message stands alone"},
        {message + " f12 flow\n", ":2: ifit_flow_base_mesh has no field 'f12'; its fields are f0 to f11"},
        {message + " f0\n", ":2: a name is needed"},
        {message + " f0 Flow\n", ":2: 'Flow' is no name"},
        {message + " f0 f1\n", ":2: 'f1' is another field"},
        {message + " f0 flow\n f1 flow\n", ":3: name 'flow' stands here a second time"},
        {message + " f0 flow\n f0 source\n", ":3: field 'f0' stands here a second time"},
        {message + " f0 flow octal\n", ":2: no display 'octal'"},
        {message + " f0 flow ipv6\n", ":2: f0 is u32, which 'ipv6' cannot show"},
        {message + " f0 flow hex 5\n", ":2: '5' is too much"},
        {message + " f6 protocol enum\n", ":2: an enum needs words"},
        {message + " f6 protocol enum tcp=256\n", ":2: 'tcp=256': u8 holds no number that large"},
        {message + " f6 protocol enum tcp=6 udp=6\n", ":2: 'udp=6' repeats tcp=6"},
    };
    const std::string file = path("names");
    for (const auto& each : wrong) {
        write_file(file, {each.text.begin(), each.text.end()});
        const CommandResult result = kesto("--names " + file + " list");
        EXPECT_EQ(result.output.find("kesto: " + file + each.says), 0u) << each.text << result.output;
        EXPECT_EQ(result.exit_code, 2) << each.text;
    }
}

#if KESTO_CAN_CAPTURE

// 1: a text, 2: a truncated one, 3: a packet with a wrong length, 4: an unknown id, 5: shorter than a head, 6: like 1.
Bytes capture_of_six()
{
    constexpr std::uint32_t id = 0x91cd149e;
    const Bytes text = bytes_from_hex(hello);
    const Bytes cut(text.begin(), text.begin() + 26);
    Bytes capture = capture_head(147);
    add_packet(capture, packet_of(id, text));
    add_packet(capture, packet_of(id, cut));
    add_packet(capture, packet_of(id, text, 27));
    add_packet(capture, packet_of(5, text));
    add_packet(capture, {{1, 2, 3}, 3});
    add_packet(capture, packet_of(id, text));
    return capture;
}

// Packets of the same text, all as far in the future as a capture can express, or outside any valid year.
Bytes capture_of_odd_times()
{
    const Bytes packet = packet_of(0x91cd149e, bytes_from_hex(hello)).bytes;
    Bytes capture = bytes_from_hex(
        "0a0d0d0a 1c000000 4d3c2b1a 0100 0000 ffffffffffffffff 1c000000"                // section
        "01000000 20000000 9300 0000 00000400 0900 0100 00000000 00000000 20000000");   // USER0, in whole seconds
    for (const std::uint64_t seconds : {std::uint64_t{1} << 62, std::uint64_t{1} << 40, std::uint64_t{5}}) {
        const std::size_t padded = (packet.size() + 3) / 4 * 4;
        for (const std::size_t word : {std::size_t{6}, 32 + padded, std::size_t{0}, std::size_t{seconds >> 32},
                                       std::size_t{seconds & 0xffffffff}, packet.size(), packet.size()})
            append(capture, word, 4);
        capture.insert(capture.end(), packet.begin(), packet.end());
        capture.resize(capture.size() + padded - packet.size());
        append(capture, 32 + padded, 4);
    }
    return capture;
}

TEST_F(Files, packets_are_reported_one_by_one_and_one_bad_one_fails)
{
    const std::string file = path("capture"), broken = path("broken"), odd = path("odd"), odder = path("odder"),
                      called = path("called");
    Bytes with_calls = capture_head(148);
    add_packet(with_calls, with_call(call_head(0, 7, 1, 9, 0xffffffff, 1'700'000'000'250'000'001), packet_of(5, {})));
    add_packet(with_calls, with_call(call_head(1, 0, 1, 9, 2, 0xffffffffffffffff), packet_of(5, {})));
    write_file(called, with_calls);
    Bytes capture = capture_of_six();
    write_file(file, capture);
    write_file(broken, {capture.begin(), capture.end() - 1});
    write_file(odd, capture_of_odd_times());
    capture[24 + 3] = 0x80;   // of the seconds, now above 2^31
    capture[24 + 7] = 0x40;   // of the microseconds, which were 250
    write_file(odder, capture);
    const struct {
        std::string arguments;
        int exit_code;
        std::ptrdiff_t lines;   // 0: not counted
        std::string says;
    } cases[] = {
        {"decode --pcap " + file + " --packet 6", 0, 1,
         "{\"packet\":6,\"time\":\"2023-11-14T22:13:20.000250Z\",\"id\":\"0x91cd149e\","
         "\"message\":\"ifit_dfx_query_glbdata_item_mesh\",\"record\":{\"f0\":\"hello\"}}\n"},
        {"decode --pcap " + file, 1, 6, "\"refused\":{\"code\":\"body_end\",\"path\":\".f0\",\"position\":18,"},
        {"decode --pcap - <" + file, 1, 6, "\"fault\":\"short_packet\""},
        {"decode --pcap " + file + " --message " + item, 1, 4, "\"packet\":3,"},
        {"decode --pcap " + file + " --memory 5 --message 0x91cd149e", 2, 4,
         "\"error\":\"decoding takes more than 5 bytes"},
        {"decode --pcap " + file + " --message ifit_mcp_mesh", 1, 1, "no such packet among 6"},
        {"decode --pcap " + file + " --packet 7", 1, 1, "no such packet among 6"},
        {"decode --pcap " + file + " --message ifit_mpc_mesh", 2, 0, "ifit_mcp_mesh"},
        {"decode --pcap " + broken, 2, 6, "after packet 5: truncated"},
        {"explain --pcap " + broken + " --packet 1", 0, 0, "accepted: compact form"},
        {"explain --pcap " + file + " --packet 2", 1, 0, "refused: body_end at .f0, position 18"},
        {"explain --pcap " + file + " --packet 4", 1, 2,
         "packet 4, 2023-11-14T22:13:20.000250Z: no message: unknown_id"},
        {"explain --raw --pcap " + file + " --packet 4", 0, 0, "written just so for: ifit_dfx_query_glbdata_item_mesh"},
        {"explain --json --pcap " + file, 1, 6, "\"fault\":\"length_disagrees\""},
        {"decode --pcap " + file + " --packet 6 2>&1 >/dev/full | cat", 0, 1,
         "kesto: " + file + ": packet 6: -: cannot be written: No space left on device\n"},
        {"explain --pcap " + called, 1, 4,
         "packet 1, 2023-11-14T22:13:20.250000001Z, sent on channel 1 to destination 9, result -1: no message"},
        {"explain --pcap " + called, 1, 4, "packet 2, 2554-07-21T23:34:33.709551615Z, received: no message"},
        {"decode --pcap " + called, 1, 2,
         "{\"packet\":1,\"time\":\"2023-11-14T22:13:20.250000001Z\",\"direction\":\"sent\",\"channel\":1,"
         "\"destination\":9,\"result\":-1,\"id\":"},
        {"explain --json --pcap " + called, 1, 2, "\"direction\":\"received\",\"id\":"},
        {"decode --pcap " + odd, 0, 3, "\"time\":\"4611686018427387904 s and 0 us since 1970\""},
        {"explain --pcap " + odd, 0, 0, "packet 2, 1099511627776 s and 0 us since 1970"},
        {"explain --pcap " + odd, 0, 0, "packet 3, 1970-01-01T00:00:05.000000Z"},
        {"decode --pcap " + odder, 1, 6, "\"2152984832 s and 1073742074 us since 1970\""},
    };
    for (const auto& each : cases) {
        const CommandResult result = kesto(each.arguments);
        EXPECT_EQ(result.exit_code, each.exit_code) << each.arguments << "\n" << result.output;
        EXPECT_NE(result.output.find(each.says), std::string::npos) << each.arguments << "\n" << result.output;
        EXPECT_TRUE(each.lines == 0 || std::ranges::count(result.output, '\n') == each.lines) << each.arguments << "\n"
                                                                                              << result.output;
    }
}

// Sent: 1 a text, 2 the same, 3 another, 4 one that is lost, 5 a packet that is no message.
TEST_F(Files, captures_are_summed_up_and_compared_packet_by_packet)
{
    constexpr std::uint32_t id = 0x91cd149e, other_id = 0x2492d87f;
    const Bytes text = bytes_from_hex(hello),
                other = bytes_from_hex("04000000f4ffffff000000000000000008000c0004000800");
    Bytes changed = text;
    changed[22] = 'j';
    Bytes cut = text;
    cut.resize(26);
    const auto capture = [&](const char* name, const std::vector<RawPacket>& packets) {
        Bytes bytes = capture_head(147);
        for (const RawPacket& packet : packets)
            add_packet(bytes, packet);
        write_file(path(name), bytes);
        return path(name);
    };
    const RawPacket hello_packet = packet_of(id, text);
    const std::string sent = capture(
        "sent", {hello_packet, hello_packet, packet_of(id, cut), packet_of(other_id, other), packet_of(5, text)});
    const std::string received = capture("received", {hello_packet, hello_packet, packet_of(5, text), hello_packet,
                                                      packet_of(id, changed), packet_of(other_id + 1, other)});
    const auto json_of = [&](const std::string& arguments, int exit_code) {
        const CommandResult result = kesto(arguments);
        EXPECT_EQ(result.exit_code, exit_code) << arguments;
        return nlohmann::json::parse(result.output);
    };

    const nlohmann::json summary = json_of("summary --json " + sent, 1);
    EXPECT_EQ(summary.at("packets"), 5);
    EXPECT_EQ(summary.at("bytes"), 3 * 28 + 26 + 24);
    EXPECT_EQ(summary.at("refused"), 2);
    const nlohmann::json& texts = summary.at("messages").at(0);
    EXPECT_EQ(texts.at("packets"), 3);
    EXPECT_EQ(texts.at("first"), "2023-11-14T22:13:20.000250Z");
    EXPECT_EQ(texts.at("refused").dump(),
              "[{\"code\":\"body_end\",\"first_packet\":3,\"packets\":1,\"path\":\".f0\"}]");

    nlohmann::json difference = json_of("compare --json " + sent + " " + received, 1);
    EXPECT_EQ(difference.at("as_sent"), 3);
    const auto numbers_of = [&](const char* part) {
        std::string numbers;
        for (const nlohmann::json& pair : difference.at(part))
            for (const char* side : {"sent", "received"})
                numbers += (pair.at(side).is_null() ? "-" : pair.at(side).at("packet").dump()) + " ";
        return numbers;
    };
    EXPECT_EQ(numbers_of("missing"), "4 - ");
    EXPECT_EQ(numbers_of("twice"), "1 4 ");
    EXPECT_EQ(numbers_of("changed"), "3 5 ");
    EXPECT_EQ(numbers_of("unexpected"), "- 6 ");
    EXPECT_EQ(difference.at("changed").at(0).at("reason"), "sent: refused: body_end at .f0, position 18");
    EXPECT_EQ(kesto("compare " + sent + " " + sent).exit_code, 0);
    EXPECT_NE(kesto("compare " + sent + " " + received).output.find("pairs by place and order within an id: a guess"),
              std::string::npos);

    EXPECT_EQ(kesto("summary --html " + path("page") + " " + sent).output, "");
    EXPECT_NE(read_file(path("page")).find("<td>body_end<td>.f0<td>"), std::string::npos);

    // One that was lost earlier does not take the place of one that changed.
    difference = json_of("compare --json " + capture("lost", {packet_of(id, cut), hello_packet, packet_of(id, other)}) +
                             " " + capture("rest", {hello_packet, packet_of(id, changed)}),
                         1);
    EXPECT_EQ(numbers_of("changed"), "3 2 ");
    EXPECT_EQ(numbers_of("missing"), "1 - ");
    EXPECT_EQ(kesto("compare --html " + path("page") + " " + path("lost") + " " + path("rest")).exit_code, 1);
    EXPECT_NE(read_file(path("page")).find("</span> <span class=scalar>&quot;jello&quot;</span>"), std::string::npos);

    // Both processes send and receive. An answer that was lost is no packet that arrived without having been sent.
    const RawPacket answer = with_call(call_head(0, 0, 0, 0, 0, 0), packet_of(id, changed));
    Bytes asker = capture_head(148), answerer = capture_head(148);
    add_packet(asker, with_call(call_head(0, 0, 0, 0, 0, 0), hello_packet));
    add_packet(answerer, with_call(call_head(1, 0, 0, 0, 0, 0), hello_packet));
    add_packet(answerer, answer);
    write_file(path("asker"), asker);
    write_file(path("answerer"), answerer);
    EXPECT_EQ(kesto("compare " + path("asker") + " " + path("answerer")).exit_code, 0);

    // MESH refused the first of three equal packets, and the only other one.
    Bytes with_results = capture_head(148);
    for (const std::uint32_t result : {0xfffffffeU, 0U, 0U})
        add_packet(with_results, with_call(call_head(0, 4, 0, 0, result, 0), hello_packet));
    add_packet(with_results, with_call(call_head(0, 4, 0, 0, 7, 0), packet_of(id, changed)));
    write_file(path("results"), with_results);
    const std::string with_rest = path("results") + " " + capture("two", {hello_packet, hello_packet});
    difference = json_of("compare --json " + with_rest, 0);
    EXPECT_EQ(difference.at("as_sent"), 2);
    EXPECT_EQ(numbers_of("refused_by_mesh"), "1 - 4 - ");
    EXPECT_EQ(numbers_of("missing"), "");
    EXPECT_EQ(json_of("summary --json " + path("results"), 0).at("messages").at(0).at("refused_by_mesh").dump(),
              "[{\"first_packet\":1,\"packets\":1,\"result\":-2},{\"first_packet\":4,\"packets\":1,\"result\":7}]");
    for (const auto& [verb, says] : {std::pair("compare ", "sent          4, 1970-01-01T00:00:00.000000000Z, 28 bytes, "
                                                           "result 7\n"),
                                     std::pair("summary ", ", none refused, 2 refused by MESH when sent\n")})
        EXPECT_NE(kesto(verb + (*verb == 'c' ? with_rest : path("results"))).output.find(says), std::string::npos);
    EXPECT_EQ(kesto("compare --html " + path("page") + " " + with_rest).exit_code, 0);
    EXPECT_NE(read_file(path("page")).find("<td>packet 4, 28 bytes, result 7<br>"), std::string::npos);

    write_file(path("text"), changed);
    EXPECT_NE(kesto("diff " + std::string(item) + " " + sent + " " + path("text")).output.find("--pcap reads captures"),
              std::string::npos);
    EXPECT_EQ(kesto("diff --pcap " + sent + " --packet 1 " + path("text")).output, ".f0: \"hello\"  \"jello\"\n");
    EXPECT_EQ(kesto("diff --pcap " + sent + " --packet 1 --pcap " + received + " --packet 5").output,
              ".f0: \"hello\"  \"jello\"\n");
    EXPECT_EQ(kesto("diff --pcap " + received + " --packet 1 --packet 4").exit_code, 0);
    EXPECT_EQ(kesto("diff --pcap " + received + " --packet 1 --packet 7").exit_code, 2);
    EXPECT_EQ(kesto("explain --pcap " + sent + " --packet 3 --html " + path("page")).exit_code, 1);
    EXPECT_NE(read_file(path("page")).find("truncated"), std::string::npos);
    EXPECT_EQ(kesto("explain --pcap " + sent + " --html " + path("page")).exit_code, 2);

    EXPECT_EQ(run_command("gzip -k " + sent).exit_code, 0);
    EXPECT_EQ(kesto("compare " + sent + ".gz " + sent).exit_code, 0);
    EXPECT_EQ(kesto("summary --json -", "cat " + sent + ".gz |").output, kesto("summary --json - <" + sent).output);
    EXPECT_EQ(run_command("head -c 60 " + sent + ".gz >" + path("cut")).exit_code, 0);
    EXPECT_EQ(kesto("summary " + path("cut")).exit_code, 2);   // and not a shorter capture
}

#endif

// Text from the byte string must not become part of the page.
TEST_F(Files, page_escapes_foreign_text)
{
    const std::string encode = "echo '{\"f0\":\"<script>alert(1)</script>&\\\"\"}' | '" KESTO_PROGRAM "' encode ";
    EXPECT_EQ(kesto(std::string("explain ") + item + " --html " + path("page"), encode + item + " |").exit_code, 0);
    const std::string page = read_file(path("page"));
    EXPECT_EQ(page.find("<script>alert"), std::string::npos);
    EXPECT_NE(page.find("&lt;script&gt;alert(1)&lt;/script&gt;&amp;"), std::string::npos);
}

}   // namespace

}   // namespace kesto::tests
