// Compares the packet analyser's script with the model: every range that it shows, and its verdict.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <set>

#include "fuzz/inputs.h"
#include "model/decode.h"
#include "model/encode.h"
#include "model/hex.h"
#include "model/noncanonical.h"
#include "platform/mesh.h"
#include "platform/standin/mesh_standin.h"
#include "tests/support/capture_file.h"
#include "tests/support/capture_folder.h"
#include "tests/support/command.h"
#include "tests/support/figures.h"

namespace kesto::tests {

namespace {

using namespace model;

constexpr u32 heads = 24 + 8;   // before the byte string in the stand-in's captures

// ---- the model's result for a byte string, one line per field ----

std::string line_of(const std::string& field, std::uint64_t position, std::uint64_t size, const std::string& value)
{
    return field + " at " + std::to_string(position) + ", " + std::to_string(size) + " bytes: " + value;
}

struct Shown {
    std::vector<std::string> fields;   // sorted
    std::string refused, ignored;      // code, position, value and limit; empty for none
    std::uint64_t refused_at = 0;      // where the refusal is shown
    bool is_shortened = false;
    std::string fault;   // of the packet
    std::string call;    // direction, channel, destination, result and time, as far as they are shown
    std::string error;   // in the script
};

class Expected : public Walk {
public:
    Expected(const Message& message, Bytes bytes) : message_(message), bytes_(std::move(bytes))
    {
        DecodeOptions options;
        options.walk = this;
        Outcome outcome;
        const u32 length = static_cast<u32>(bytes_.size());
        bytes_.push_back(0);   // so that an empty byte string is not a null pointer
        decode(message, bytes_.data(), length, options, outcome);
        shown.refused = text_of(outcome.failure);
        if (outcome.failure)   // a number past the end is shown at the word that leads there
            shown.refused_at = heads + (outcome.failure.position < length ? outcome.failure.position : last_word_);
        shown.ignored = text_of(outcome.ignored);
        std::sort(shown.fields.begin(), shown.fields.end());
    }

    void read(const Item& item) override
    {
        if (item.piece == Piece::payload)
            return add_payload(item);
        if (item.piece == Piece::vtable_offset)   // a table's field is shown at its first word
            add(field_name(*item.path), item.position, 4, "");
        const bool is_scalar = item.piece == Piece::scalar;
        if (!is_scalar && item.piece != Piece::table_length)
            last_word_ = item.position;
        if (!is_scalar)
            words.emplace_back(item.position, item.length);
        add(is_scalar ? field_name(*item.path) : std::string("kesto.") + name_of(item.piece), item.position,
            item.length, std::to_string(item.value));
    }

    Shown shown;
    std::vector<std::pair<u32, u32>> words;   // position and width of the numbers that lead to other parts

private:
    static std::string text_of(const Failure& failure)
    {
        if (!failure)
            return {};
        std::string text = name_of(failure.refusal);
        for (const u64 number : {u64{failure.position}, failure.value, failure.limit})
            text += " " + std::to_string(number);
        return text;
    }

    std::string field_name(const Path& path) const
    {
        const Message* message = model::catalogue().find(message_.name);   // this one has the field names
        std::string name = "kesto." + message->name;
        for (u32 i = 0; i < path.length; ++i) {
            const Slot& slot = message->slots[path.steps[i].slot];
            name += "." + slot.field;
            message = slot.nested;
        }
        return name;
    }

    void add(const std::string& field, u32 position, u32 length, const std::string& value)
    {
        shown.fields.push_back(line_of(field, heads + position, length, value));
    }

    void add_payload(const Item& item)
    {
        const Slot& slot = item.message->slots[item.path->steps[item.path->length - 1].slot];
        const std::string field = field_name(*item.path);
        if (slot.kind != Kind::array || slot.width == 1)
            return add(field, item.position, item.length, model::to_hex(bytes_.data() + item.position, item.length));
        for (u32 at = item.position; at < item.position + item.length; at += 4)
            add(field, at, 4, std::to_string(get32(&bytes_[at])));
    }

    const Message& message_;
    Bytes bytes_;
    u32 last_word_ = 0;
};

// ---- the analyser's output ----

std::string attribute(const std::string& tag, const char* name)
{
    const std::string head = std::string(" ") + name + "=\"";
    const std::size_t start = tag.find(head);
    if (start == std::string::npos)
        return {};
    const std::size_t from = start + head.size();
    return tag.substr(from, tag.find('"', from) - from);
}

// The fields that are compared as bytes: texts, blocks, u8 arrays, tables and vectors. Others are compared as numbers.
void add_fields_of_bytes(const model::Message& message, const std::string& path, std::set<std::string>& fields)
{
    fields.insert(path);
    for (const model::Slot& slot : message.slots)
        if (slot.nested != nullptr)
            add_fields_of_bytes(*slot.nested, path + "." + slot.field, fields);
        else if (slot.kind != model::Kind::scalar && slot.width != 4)
            fields.insert(path + "." + slot.field);
}

bool has_bytes(const std::string& field)
{
    static const std::set<std::string> fields = [] {
        std::set<std::string> all;
        for (const Message& message : model::catalogue().messages)
            add_fields_of_bytes(message, "kesto." + message.name, all);
        return all;
    }();
    return fields.count(field) != 0;
}

const std::set<std::string> of_call{"kesto.direction", "kesto.channel", "kesto.destination", "kesto.result",
                                    "kesto.time"};

// Processes one tag of the analyser's XML.
void process_tag(const std::string& tag, Shown& shown)
{
    const std::string name = attribute(tag, "name"), value = attribute(tag, "show");
    std::string* const stop = name.starts_with("kesto.refused")   ? &shown.refused
                              : name.starts_with("kesto.ignored") ? &shown.ignored
                                                                  : nullptr;
    // This item is below the refusal and has its range. The refusal itself may be before the table that shows it, and
    // the analyser prints another `pos` for such items.
    if (name == "kesto.refused.position")
        shown.refused_at = std::stoull(attribute(tag, "pos"));
    if (name.starts_with("_ws.lua.error"))
        shown.error += tag;
    else if (stop != nullptr && !name.ends_with(".expert"))
        *stop += (stop->empty() ? "" : " ") + value;
    else if (name == "kesto.packet_fault")
        shown.fault += value;
    else if (name == "kesto.shortened")
        shown.is_shortened = true;
    else if (of_call.contains(name))
        shown.call += (shown.call.empty() ? "" : " ") + value;
    else if (name.starts_with("kesto.") && !name.ends_with(".expert") && name != "kesto.id" && name != "kesto.length" &&
             name != "kesto.message" && name != "kesto.head_version" && name != "kesto.known")
        shown.fields.push_back(line_of(name, std::stoull(attribute(tag, "pos")), std::stoull(attribute(tag, "size")),
                                       has_bytes(name) ? attribute(tag, "value") : value));
}

struct Case {
    const Message* message;
    Bytes bytes;
};

// For a shortened tree, the verdict and the fields that are present must be right.
void compare(const Case& one, const Shown& shown)
{
    const Shown expected = Expected(*one.message, one.bytes).shown;
    const std::string which =
        one.message->name + " " + model::to_hex(one.bytes.data(), std::min<std::size_t>(one.bytes.size(), 512));
    EXPECT_EQ(shown.refused, expected.refused) << which;
    EXPECT_EQ(shown.refused_at, expected.refused_at) << which;
    EXPECT_EQ(shown.ignored, expected.ignored) << which;
    EXPECT_EQ(shown.fault + shown.error, "") << which;
    if (shown.is_shortened) {
        EXPECT_TRUE(
            std::includes(expected.fields.begin(), expected.fields.end(), shown.fields.begin(), shown.fields.end()))
            << which;
        return;
    }
    const auto [actual, wanted] =
        std::mismatch(shown.fields.begin(), shown.fields.end(), expected.fields.begin(), expected.fields.end());
    EXPECT_TRUE(shown.fields == expected.fields)
        << which << "\n  shown    " << (actual == shown.fields.end() ? "nothing more" : *actual) << "\n  expected "
        << (wanted == expected.fields.end() ? "nothing more" : *wanted);
}

class Dissector : public CaptureFolder {
protected:
    // Isolated from the user's own preferences and scripts.
    std::string analyser(const std::string& arguments) const
    {
        return "WIRESHARK_CONFIG_DIR=" + folder.string() +
               " timeout 300 " KESTO_TSHARK " -X lua_script:" KESTO_SOURCE_DIR "/dissector/kesto.lua -r " + path + " " +
               arguments + " 2>" + (folder / "errors").string();
    }

    template <class Visit>   // visit(Shown&&) for each packet
    void dissect(Visit visit) const
    {
        std::FILE* const pipe = popen(analyser("-T pdml -J kesto").c_str(), "r");
        ASSERT_NE(pipe, nullptr);
        Shown shown;
        std::string tag;
        char* line = nullptr;
        std::size_t capacity = 0;
        for (ssize_t length; (length = getline(&line, &capacity, pipe)) > 0;) {
            tag.append(line, static_cast<std::size_t>(length));
            if (!tag.ends_with(">\n"))
                continue;   // a text with several lines
            if (tag.starts_with("</packet>")) {
                std::sort(shown.fields.begin(), shown.fields.end());
                visit(std::move(shown));
                shown = Shown{};
            } else {
                process_tag(tag, shown);
            }
            tag.clear();
        }
        std::free(line);
        const std::string errors = read_file(folder / "errors");
        EXPECT_EQ(pclose(pipe), 0) << errors;
        EXPECT_EQ(errors.find("Lua"), std::string::npos) << errors;
    }

    // Sends all cases into a capture, compares what is shown for each, and returns it.
    std::vector<Shown> check(const std::vector<Case>& cases) const
    {
        EXPECT_EQ(mesh_standin_capture(path.c_str()), 0);
        for (const Case& one : cases) {
            const MeshSendItem item{one.bytes.data(), one.message->id, static_cast<u32>(one.bytes.size())};
            EXPECT_EQ(MESH_SendMsg(0, &item, 1), MESH_STANDIN_UNKNOWN_ID);
        }
        std::vector<Shown> all;
        dissect([&](Shown&& shown) {
            if (all.size() < cases.size() && !HasFailure())   // one failure is enough
                compare(cases[all.size()], shown);
            all.push_back(std::move(shown));
        });
        EXPECT_EQ(all.size(), cases.size());
        return all;
    }

    // The numbers of the packets that pass a display filter.
    std::string matching_packets(const std::string& filter) const
    {
        std::string numbers = run_command("(" + analyser("-T fields -e frame.number -Y '" + filter + "'") + ")").output;
        std::replace(numbers.begin(), numbers.end(), '\n', ' ');
        return numbers;
    }
};

// Changes each number in turn, by one or to an extreme value.
void add_corrupted(const Case& sound, Random& random, std::vector<Case>& cases)
{
    for (const auto& [position, width] : Expected(*sound.message, sound.bytes).words) {
        Case corrupted = sound;
        u8* const word = &corrupted.bytes[position];
        const u64 values[] = {get(word, width) - 1, get(word, width) + 1, 0,          0x3fffffff,
                              0x40000000,           0x7fffffff,           0xffffffff, 0xfffffff0};
        put(word, values[random.below(std::size(values))], width);
        cases.push_back(corrupted);
    }
}

std::vector<Case> cases_of_all_messages()
{
    std::vector<Case> cases;
    for (const Message& message : expected_catalogue().messages) {
        Random random(message.id);
        for (const Density density : densities) {
            const Record record = random_record(message, density, random);
            cases.push_back({&message, compact_form(record)});
            if (message.fixed_length != 0)
                cases.push_back({&message, fixed_form(record)});
            cases.push_back({&message, noncanonical_layout(record, random)});
            Bytes cut = cases.back().bytes;
            cut.resize(random.below(static_cast<u32>(cut.size())));
            cases.push_back({&message, cut});
            if (density == Density::sparse)
                add_corrupted({&message, compact_form(record)}, random, cases);
        }
    }
    return cases;
}

std::vector<Case> cases_of_the_corpus()
{
    std::vector<Case> cases;
    std::vector<Bytes> inputs;
    std::string error;
    EXPECT_TRUE(fuzz::read_packed(KESTO_SOURCE_DIR "/tests/fuzz/corpus/decode.inputs", inputs, error)) << error;
    for (const Bytes& input : inputs)
        if (input.size() >= fuzz::before_bytes)
            cases.push_back({fuzz::message_of(expected_catalogue(), input.data(), input.size()),
                             {input.begin() + fuzz::before_bytes, input.end()}});
    return cases;
}

TEST_F(Dissector, matches_the_model_in_fields_and_refusals)
{
    std::vector<Case> cases = cases_of_all_messages();
    for (Case& one : cases_of_the_corpus())
        cases.push_back(std::move(one));
    std::set<std::string> verdicts;
    for (const Shown& shown : check(cases)) {
        EXPECT_FALSE(shown.is_shortened);
        verdicts.insert(shown.refused.substr(0, shown.refused.find(' ')));
        if (!shown.ignored.empty())
            verdicts.insert("ignored");
    }
    EXPECT_EQ(verdicts.size(), 15u) << testing::PrintToString(verdicts);
}

TEST_F(Dissector, shows_the_verdict_even_if_the_tree_is_shortened)
{
    const Message& message = *expected_catalogue().find("ntvifit_entry_list_mdtlm");
    Record list = zero_record(message);
    Field& elements = list.fields[0];
    elements.present = true;
    elements.records.assign(elements.number = 560, zero_record(*message.slots[0].nested));
    Field& block = elements.records[0].fields[17];   // without it everything would be shown
    block.present = true;
    block.octets.assign(block.number = 200000, 0x62);
    Case sound{&message, compact_form(list)};
    u8* const cell = &sound.bytes[24 + 4 * 557];
    put(cell + 4, get32(cell) - 4, 4);   // a table that has been read before
    Case refused = sound;
    put(&refused.bytes[refused.bytes.size() - 4], 0x7fffffff, 4);   // from the last table to its vtable
    for (const Shown& shown : check({sound, refused}))
        EXPECT_TRUE(shown.is_shortened);
}

TEST_F(Dissector, reports_packets_that_are_not_messages)
{
    const u32 id = expected_catalogue().messages[0].id;
    const Bytes bytes = compact_form(zero_record(expected_catalogue().messages[0]));
    RawPacket cut = packet_of(id, bytes, bytes.size() + 1);
    ++cut.length_on_the_wire;
    const std::pair<RawPacket, const char*> packets[] = {
        {{{}, 0}, "short_packet"},
        {{{7, 0, 0, 0, 3, 0, 0}, 7}, "short_packet"},
        {{{7, 0, 0}, 30}, "cut"},
        {packet_of(id, bytes, bytes.size() - 1), "length_disagrees"},
        {packet_of(id, bytes, 0xffffffff), "length_disagrees"},
        {cut, "cut"},
        {packet_of(id, bytes), ""},
        {packet_of(5, bytes), "unknown_id"},
    };
    Bytes capture = capture_head(147);
    for (const auto& [packet, fault] : packets)
        add_packet(capture, packet);
    write_file(path, capture);
    std::size_t number = 0;
    dissect([&](const Shown& shown) {
        ASSERT_LT(number, std::size(packets));
        EXPECT_EQ(shown.fault, packets[number].second) << "packet " << number;
        EXPECT_EQ(shown.fields.empty(), !shown.fault.empty()) << "packet " << number;
        ++number;
    });
    EXPECT_EQ(number, std::size(packets));
}

TEST_F(Dissector, shows_the_call_of_a_packet)
{
    const RawPacket packet = packet_of(5, {1, 2});
    Bytes later = call_head(0, 0, 0, 0, 0, 0), capture = capture_head(148);
    later[0] = 2;
    for (const Bytes& head : {call_head(0, 7, 1, 0xfffffffe, 0xffffffff, 1'700'000'000'250'000'001),
                              call_head(1, 0, 1, 2, 3, 0), call_head(2, 0, 1, 2, 3, 0), later})
        add_packet(capture, with_call(head, packet));
    add_packet(capture, {call_head(0, 0, 0, 0, 0, 0), 24});
    write_file(path, capture);
    std::vector<std::string> all;
    dissect([&](const Shown& shown) { all.push_back(shown.fault + " " + shown.call); });
    EXPECT_EQ(all, (std::vector<std::string>{"unknown_id 0 1 4294967294 -1 Nov 14, 2023 22:13:20.250000001 UTC",
                                             "unknown_id 1 Jan  1, 1970 00:00:00.000000000 UTC", "unknown_head ",
                                             "unknown_head ", "short_packet "}));
}

TEST_F(Dissector, display_filters_match_fields)
{
    const auto record_of = [](const char* name, std::string_view text) {
        const Message& message = *expected_catalogue().find(name);
        Record record = zero_record(message);
        std::string error;
        EXPECT_TRUE(parse_record(message, text, record, error)) << error;
        return Case{&message, compact_form(record)};
    };
    const Case flow = record_of("ifit_flow_base_mesh_update",
                                "{5 [{1 2 0xfedcba9876543210 4 50 6 7 8 9 10 11 12} {1 2 3 4 51 6 7 8 9 10 11 12}]}");
    Case refused = flow;
    refused.bytes.pop_back();
    (void)check({record_of("ifit_dfx_query_glbdata_item_mesh", "{\"hellö\"}"), flow, refused,
                 record_of("ifit_dfx_datetime_mesh", "{2026 2 3 4 5 6}")});

    const std::string f1 = "kesto.ifit_flow_base_mesh_update.f1";
    const std::pair<std::string, const char*> cases[] = {
        {"kesto.ifit_dfx_query_glbdata_item_mesh.f0 == \"hellö\"", "1 "},
        {"kesto.ifit_dfx_query_glbdata_item_mesh.f0 == \"hell\"", ""},
        {f1 + ".f2 == 0xfedcba9876543210", "2 3 "},
        {f1 + ".f2 == 0xfedcba9876543211", ""},
        {f1 + ".f4 == 51", "2 3 "},
        {"kesto.ifit_dfx_datetime_mesh.year > 2025", "4 "},
        {"kesto.ifit_flow_base_mesh_update && !kesto.refused", "2 "},
        {"kesto.message contains \"flow\"", "2 3 "},
        {"kesto.refused == \"scalar_end\" || kesto.id == 0x91cd149e", "1 3 "},
        {"_ws.expert.severity == error", "3 "},
    };
    for (const auto& [filter, packets] : cases)
        EXPECT_EQ(matching_packets(filter), packets) << filter;
}

TEST_F(Dissector, shows_fields_by_the_names_and_displays_of_a_file)
{
    const Message& list = *expected_catalogue().find("ifit_flow_base_mesh_update");
    const Message& tuple = *expected_catalogue().find("ifit_flow_tuplev6_mesh");
    Record flows = zero_record(list), flow = zero_record(*list.slots[1].nested), ipv6 = zero_record(tuple);
    const u64 numbers[] = {16, 0xc0a80001, 1700000000250000000, 0x001122334455, 1700000000, 0, 17};
    for (std::size_t k = 0; k < std::size(numbers); ++k)
        flow.fields[k].number = numbers[k];
    flows.fields[1].present = true;
    flows.fields[1].number = 1;
    flows.fields[1].records = {flow};
    ipv6.fields[3].words = {0x20010db8, 0, 0, 1};
    (void)check({{&list, compact_form(flows)}, {&tuple, fixed_form(ipv6)}});

    setenv("KESTO_NAMES", KESTO_SOURCE_DIR "/tests/data/fields.names", 1);
    const std::string row = "kesto.ifit_flow_base_mesh_update.rows";
    EXPECT_EQ(matching_packets(row + ".flow == 0x10 && " + row + ".source == 192.168.0.1 && " + row +
                               ".begin == \"2023-11-14 22:13:20.25Z\" && " + row + ".station == 00:11:22:33:44:55 && " +
                               row + ".changed == \"2023-11-14 22:13:20Z\" && " + row + ".protocol == \"udp\""),
              "1 ")
        << read_file(folder / "errors");
    EXPECT_EQ(matching_packets("kesto.ifit_flow_tuplev6_mesh.source == 2001:db8::1"), "2 ");

    const std::string wrong = (folder / "wrong").string(), message = "ifit_flow_base_mesh\n";
    setenv("KESTO_NAMES", wrong.c_str(), 1);
    const std::pair<std::string, const char*> files[] = {
        {"\nx", ":2: 'x' is no message"},
        {{'#', '\n', 0, 0}, ":2: byte 0x00: the file is not text"},
        {message + " f6 protocol enum tcp=0xff udp=256", ":2: 'udp=256': u8 holds no number that large"},
        {message + " f2 begin enum last=18446744073709551615 next=18446744073709551616",
         ":2: 'next=18446744073709551616': u64 holds"},
    };
    for (const auto& [text, says] : files) {
        write_file(wrong, {text.begin(), text.end()});
        (void)matching_packets("");
        EXPECT_NE(read_file(folder / "errors").find(wrong + says), std::string::npos)
            << text << read_file(folder / "errors");
    }
    unsetenv("KESTO_NAMES");
}

}   // namespace

}   // namespace kesto::tests
