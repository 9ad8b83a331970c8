// Compares explanations of byte strings with the library's behaviour and with byte strings analysed by hand.

#include <gtest/gtest.h>

#include <algorithm>

#include "fuzz/inputs.h"
#include "model/generate.h"
#include "model/noncanonical.h"
#include "tests/support/every_message.h"
#include "tests/support/services_double.h"
#include "tools/kesto/explain.h"
#include "tools/kesto/input.h"
#include "tools/kesto/quoting.h"

namespace kesto::tests {

namespace {

using command::bytes_from_hex;
using command::explain;
using command::Explanation;
using command::find_message;
using model::Density;
using model::Piece;
using model::Random;
using model::Record;

constexpr std::uint64_t max_memory = 1 << 24;   // limit for the library in a test

// The library decodes while its log lines are recorded. The model, which is compared with it, gives the outcome.
class Verdicts : public EveryMessageTest {
protected:
    void expect_library_agrees(const model::Message& message, const ByteString& bytes)
    {
        const Explanation explanation = explain(*find_message(message.name), bytes);
        if (explanation.memory > max_memory)
            return;
        std::vector<std::string> lines;
        services().lines = &lines;
        ASSERT_EQ(check_.check(message, bytes), "") << model::to_hex(bytes);
        services().lines = nullptr;

        const model::Failure& failure = check_.outcome().failure;
        ASSERT_EQ(explanation.refused.has_value(), bool(failure)) << model::to_hex(bytes);
        if (explanation.refused) {
            ASSERT_EQ(to_text(explanation.refused->failure), to_text(failure)) << model::to_hex(bytes);
        }
        std::vector<std::string> expected;
        for (const auto& each : {explanation.ignored, explanation.refused})
            if (each && each->log)
                expected.push_back(command::log_line(*each->log));
        ASSERT_EQ(lines, expected) << model::to_hex(bytes);
        ASSERT_EQ(explanation.allocations, services().allocations()) << model::to_hex(bytes);
    }

    DecodeCheck check_;
};

TEST_F(Verdicts, match_the_library_on_the_fuzz_corpus)
{
    std::vector<ByteString> inputs;
    std::string error;
    ASSERT_TRUE(fuzz::read_packed(KESTO_SOURCE_DIR "/tests/fuzz/corpus/decode.inputs", inputs, error)) << error;
    for (const ByteString& input : inputs) {
        const model::Message* const message = fuzz::message_of(expected_catalogue(), input.data(), input.size());
        if (message == nullptr || input.size() < fuzz::before_bytes)
            continue;
        ASSERT_NO_FATAL_FAILURE(expect_library_agrees(*message, {input.begin() + fuzz::before_bytes, input.end()}));
    }
}

// kesto does not know the messages of the test module.
std::vector<const model::Message*> known_messages()
{
    std::vector<const model::Message*> known = all_messages();
    std::erase_if(known, [](const model::Message* message) { return find_message(message->name) == nullptr; });
    return known;
}

INSTANTIATE_TEST_SUITE_P(All, Verdicts, testing::ValuesIn(known_messages()), name_of_case);

TEST_P(Verdicts, match_the_library_on_noncanonical_and_truncated_layouts)
{
    Random chance(message().id);
    for (int round = 0; round < 12; ++round) {
        const Record record = model::random_record(message(), model::densities[round % 4], chance);
        ByteString bytes = model::noncanonical_layout(record, chance);
        ASSERT_NO_FATAL_FAILURE(expect_library_agrees(message(), bytes));
        bytes.resize(chance.below(static_cast<std::uint32_t>(bytes.size())));
        ASSERT_NO_FATAL_FAILURE(expect_library_agrees(message(), bytes));
    }
}

class Ranges : public EveryMessageTest {};

INSTANTIATE_TEST_SUITE_P(All, Ranges, testing::ValuesIn(known_messages()), name_of_case);

// In encoded byte strings nothing is unread and nothing is odd, except text of random octets.
TEST_P(Ranges, cover_every_byte_of_encoded_records_once)
{
    Random chance(message().id);
    for (const Density density : model::densities)
        for (const bool fixed_form : {false, true}) {
            if (fixed_form && !fixed())
                continue;
            const Record record = model::random_record(message(), density, chance);
            const ByteString bytes = fixed_form ? model::fixed_form(record) : model::compact_form(record);
            const Explanation explanation = explain(*find_message(message().name), bytes);
            std::uint32_t end = 0;
            for (const command::Range& range : explanation.ranges) {
                ASSERT_EQ(range.position, end) << model::to_hex(bytes);
                ASSERT_NE(range.piece, Piece::unread) << range.position << " in " << model::to_hex(bytes);
                ASSERT_EQ(range.reads, 1u);
                end += range.length;
            }
            ASSERT_EQ(end, bytes.size());
            ASSERT_LE(explanation.bytes_read, bytes.size());   // or trials of other messages would stop too early
            for (const command::Note& note : explanation.notes)
                ASSERT_STREQ(note.code, "text_not_utf8") << note.text << " in " << model::to_hex(bytes);
            // A fixed form can be as long as the compact form, but is never equal to it.
            ASSERT_EQ(explanation.origin, fixed_form ? command::Origin::fixed : command::Origin::compact);
        }
}

// The length that a note of truncation states; 0 if there is none.
std::uint64_t announced_length(const Explanation& explanation)
{
    for (const command::Note& note : explanation.notes)
        if (std::string_view(note.code) == "truncated")
            return std::stoull(note.text.substr(note.text.find_first_of("0123456789")));
    return 0;
}

class Lengths : public EveryMessageTest {};

INSTANTIATE_TEST_SUITE_P(All, Lengths, testing::ValuesIn(known_messages()), name_of_case);

TEST_P(Lengths, of_cut_and_of_padded_byte_strings_are_named_and_no_others)
{
    const model::Message& known = *find_message(message().name);
    Random chance(message().id);
    const bool holds_tables = std::ranges::any_of(message().slots, [](const auto& slot) { return slot.nested; });
    for (const bool fixed_form : {false, true}) {
        if (fixed_form && !fixed())
            continue;
        const Record record = model::random_record(message(), Density::full, chance);
        const ByteString whole = fixed_form ? model::fixed_form(record) : model::compact_form(record);
        for (std::size_t length = 4; length < whole.size(); length += 1 + whole.size() / 200) {
            const Explanation cut = explain(known, std::span(whole).first(length));
            if (cut.ignored)
                continue;   // the verdict tells where the table ends
            const std::uint64_t announced = announced_length(cut);
            ASSERT_GT(announced, length) << model::to_hex(whole);
            ASSERT_LE(announced, whole.size()) << length << " of " << model::to_hex(whole);
            if (fixed_form || (!holds_tables && length >= 8)) {
                ASSERT_EQ(announced, whole.size()) << length << " of " << model::to_hex(whole);
            }
        }
        for (const int octet : {0x00, 0xee})
            for (const std::size_t more : {1u, 3u, 12u}) {
                ByteString longer = whole;
                longer.resize(whole.size() + more, static_cast<std::uint8_t>(octet));
                const Explanation explanation = explain(known, longer);
                ASSERT_EQ(std::ranges::count_if(explanation.notes,
                                                [&](const command::Note& note) {
                                                    return std::string_view(note.code) == "surplus" &&
                                                           note.position == whole.size() && note.length == more;
                                                }),
                          1)
                    << model::to_hex(longer);
            }
        // A word that leads past the end without anything being cut.
        for (std::size_t at = 4; at + 4 <= whole.size(); at += 1 + whole.size() / 100) {
            ByteString damaged = whole;
            damaged[at + 3] |= 0x40;
            EXPECT_EQ(announced_length(explain(known, damaged)), 0) << at << " in " << model::to_hex(damaged);
        }
    }
}

constexpr char keys[] = "ifit_mcp_mesh_delete";
constexpr char text_item[] = "ifit_dfx_query_glbdata_item_mesh";

// Bytes of `keys`: no f0, and f1 with one element whose f0 is 7.
ByteString one_element()
{
    return bytes_from_hex("0c 00 00 00"         //  0 root: 12
                          "08 00 10 00"         //  4 vtable: 8, the table has 16
                          "00 00 04 00"         //  8 slots: absent, 16
                          "08 00 00 00"         // 12 table: vtable 8 back
                          "04 00 00 00"         // 16 cell: 20
                          "01 00 00 00"         // 20 count
                          "0a 00 00 00"         // 24 cell: 34
                          "06 00 08 00 04 00"   // 28 vtable: 6, the table has 8; slot: 38
                          "06 00 00 00"         // 34 table: vtable 6 back
                          "07 00 00 00");       // 38 f0
}

// Bytes of `text_item`: "hello".
ByteString one_text() { return bytes_from_hex("0a000000 06001200 0400 06000000 04000000 05000000 68656c6c6f 00"); }

ByteString damaged(ByteString whole, std::size_t at, const char* hex_text)
{
    const ByteString bytes = bytes_from_hex(hex_text);
    std::copy(bytes.begin(), bytes.end(), whole.begin() + static_cast<std::ptrdiff_t>(at));
    return whole;
}

// The range that was read last is the origin of the refused number.
TEST(Refusals, mark_the_last_range_read)
{
    const ByteString bytes = damaged(one_element(), 24, "0f");
    const Explanation explanation = explain(*find_message(keys), bytes);
    for (const command::Range& range : explanation.ranges)
        EXPECT_EQ(range.read_last, range.position == 24) << range.position;
    EXPECT_NE(explanation_text(explanation, {}).find("the cell of .f1[0] at position 24 leads there: to 24 + 15 = 39"),
              std::string::npos);
}

std::vector<std::string> codes_of(const Explanation& explanation)
{
    std::vector<std::string> codes;
    for (const command::Note& note : explanation.notes)
        codes.push_back(note.code + (" " + std::to_string(note.position)) + " " + note.path);
    return codes;
}

TEST(Notes, report_oddities_that_the_decoder_accepts_silently)
{
    const struct {
        const char* message;
        ByteString bytes;
        std::vector<std::string> codes;
    } cases[] = {
        {keys, one_element(), {}},
        {keys, damaged(one_element(), 6, "11"), {"table_length 6 ."}},
        // If there are no slots, nothing after the table's first word is read.
        {keys, damaged(one_element(), 4, "03"), {"vtable_short 4 .", "not_read 6 .", "not_read 16 ."}},
        {keys, damaged(one_element(), 28, "05"), {"vtable_odd 28 .f1[0]", "slots_missing 28 .f1[0]", "not_read 38 ."}},
        // The field begins within the table's first word.
        {keys, damaged(one_element(), 32, "02"), {"field_in_table_head 32 .f1[0].f0", "overlap 36 .f1[0].f0"}},
        {text_item, one_text(), {}},
        {text_item, bytes_from_hex("9e14cd91 04000000 00000000"), {"packet_head 0 ."}},
        {text_item, bytes_from_hex("9e14cd91 05000000 00000000"), {"packet_head 0 ."}},   // cut, or more after it
        {text_item, bytes_from_hex("9f14cd91 04000000 00000000"), {}},
        {text_item, damaged(one_text(), 27, "21"), {"table_length 6 .", "text_without_nul 22 .f0", "not_read 27 ."}},
        {text_item, damaged(one_text(), 24, "00"), {"text_with_nul 24 .f0"}},
        {text_item, damaged(one_text(), 24, "ff"), {"text_not_utf8 22 .f0"}},
        // Two elements that share one table; f1 is an unknown slot.
        {keys,
         bytes_from_hex("0c000000 08001400 0000 0400 08000000 04000000 02000000 10000000 0c000000"
                        "0800 0800 0400 0000 08000000 07000000"),
         {"slots_unknown 38 .f1[0]", "shared_table 40 .f1[0]"}},
    };
    for (const auto& each : cases)
        EXPECT_EQ(codes_of(explain(*find_message(each.message), each.bytes)), each.codes) << model::to_hex(each.bytes);
}

TEST(Texts, cannot_control_a_terminal)
{
    const struct {
        std::string text, shown;
    } cases[] = {
        {"a\x1b[2J\x1f\n\x7f\"\\", R"(a\x1b[2J\x1f\x0a\x7f\"\\)"},
        {"\xc2\x80\xc2\x9f\xc2\xa0", "\\u0080\\u009f\xc2\xa0"},
        {"\xd8\x9b\xd8\x9c\xd8\x9d", "\xd8\x9b\\u061c\xd8\x9d"},
        {"\xe2\x80\x8d\xe2\x80\x8e\xe2\x80\x8f\xe2\x80\x90", "\xe2\x80\x8d\\u200e\\u200f\xe2\x80\x90"},
        {"\xe2\x80\xa9\xe2\x80\xaa\xe2\x80\xae\xe2\x80\xaf", "\xe2\x80\xa9\\u202a\\u202e\xe2\x80\xaf"},
        {"\xe2\x81\xa5\xe2\x81\xa6\xe2\x81\xa9\xe2\x81\xaa", "\xe2\x81\xa5\\u2066\\u2069\xe2\x81\xaa"},
        {"\xc3\xa9\xf0\x9f\x98\x80\xff\xe2\x80", "\xc3\xa9\xf0\x9f\x98\x80\\xff\\xe2\\x80"},
    };
    for (const auto& [text, shown] : cases)
        EXPECT_EQ(command::quoted(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()), '"' + shown + '"');
}

// X__pack counts 8 bytes for a block with a pointer and length 0 and does not write them.
TEST(Origins, recognise_bytes_that_are_counted_but_not_written)
{
    Record record = model::zero_record(*find_message("ifit_dfx_query_comm_param_mesh"));
    record.fields[2].present = true;
    ByteString bytes = model::compact_form(record);
    bytes.resize(model::exact_size(record));
    EXPECT_EQ(explain(*record.message, bytes).origin, command::Origin::compact_with_rest);
    bytes = one_text();
    bytes.resize(bytes.size() + 8);
    EXPECT_EQ(explain(*find_message(text_item), bytes).origin, command::Origin::other);
}

}   // namespace

}   // namespace kesto::tests
