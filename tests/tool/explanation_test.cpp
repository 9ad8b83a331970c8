// What kesto says of a byte string, against what the library does with it and against byte strings taken apart by hand.

#include <gtest/gtest.h>

#include <algorithm>

#include "fuzz/inputs.h"
#include "reference/generate.h"
#include "reference/strange.h"
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
using command::Part;
using reference::Density;
using reference::Random;
using reference::Record;

constexpr std::uint64_t most_memory = 1 << 24;   // what the library is let take in a test

// The library decodes while its log lines are kept; the reference, held against it, tells how it ended.
class Verdicts : public EveryMessageTest {
protected:
    void expect_true(const reference::Message& message, const ByteString& bytes)
    {
        const Explanation explanation = explain(*find_message(message.name), bytes);
        if (explanation.memory > most_memory)
            return;
        std::vector<std::string> lines;
        services().lines = &lines;
        ASSERT_EQ(check_.check(message, bytes), "") << hex(bytes);
        services().lines = nullptr;

        const reference::Failure& failure = check_.outcome().failure;
        ASSERT_EQ(explanation.refused.has_value(), bool(failure)) << hex(bytes);
        if (explanation.refused) {
            ASSERT_EQ(to_text(explanation.refused->failure), to_text(failure)) << hex(bytes);
            ++refused_;
        }
        std::vector<std::string> expected;
        for (const auto& each : {explanation.ignored, explanation.refused})
            if (each && each->log)
                expected.push_back(command::log_line(*each->log));
        ASSERT_EQ(lines, expected) << hex(bytes);
        ASSERT_EQ(explanation.allocations, services().allocations()) << hex(bytes);
        ++seen_;
    }

    DecodeCheck check_;
    int seen_ = 0;
    int refused_ = 0;
};

TEST_F(Verdicts, of_what_the_fuzzers_kept_are_the_librarys)
{
    std::vector<ByteString> inputs;
    std::string error;
    ASSERT_TRUE(fuzz::read_packed(KESTO_SOURCE_DIR "/tests/fuzz/corpus/decode.inputs", inputs, error)) << error;
    for (const ByteString& input : inputs) {
        if (input.size() < fuzz::before_bytes)
            continue;
        ASSERT_NO_FATAL_FAILURE(expect_true(*fuzz::message_of(transcribed(), input.data(), input.size()),
                                            {input.begin() + fuzz::before_bytes, input.end()}));
    }
    EXPECT_GT(refused_, 100);
    EXPECT_GT(seen_ - refused_, 100);
}

KESTO_FOR_EVERY_MESSAGE(Verdicts);

TEST_P(Verdicts, of_strange_and_of_truncated_layouts_are_the_librarys)
{
    Random chance(message().id);
    for (int round = 0; round < 12; ++round) {
        const Record record = reference::random_record(message(), reference::densities[round % 4], chance);
        ByteString bytes = reference::strange_layout(record, chance);
        ASSERT_NO_FATAL_FAILURE(expect_true(message(), bytes));
        bytes.resize(chance.below(static_cast<std::uint32_t>(bytes.size())));
        ASSERT_NO_FATAL_FAILURE(expect_true(message(), bytes));
    }
}

class Ranges : public EveryMessageTest {};

KESTO_FOR_EVERY_MESSAGE(Ranges);

// Nothing is left unread and nothing reads odd in what the writers write, except text of random octets.
TEST_P(Ranges, of_written_byte_strings_cover_every_byte_once)
{
    Random chance(message().id);
    for (const Density density : reference::densities)
        for (const bool fixed_form : {false, true}) {
            if (fixed_form && !fixed())
                continue;
            const Record record = reference::random_record(message(), density, chance);
            const ByteString bytes = fixed_form ? reference::fixed_form(record) : reference::compact_form(record);
            const Explanation explanation = explain(*find_message(message().name), bytes);
            std::uint32_t end = 0;
            for (const command::Range& range : explanation.ranges) {
                ASSERT_EQ(range.position, end) << hex(bytes);
                ASSERT_NE(range.part, Part::unread) << range.position << " in " << hex(bytes);
                ASSERT_EQ(range.reads, 1u);
                end += range.length;
            }
            ASSERT_EQ(end, bytes.size());
            ASSERT_LE(explanation.bytes_read, bytes.size());   // or tries of other messages would end too early
            for (const command::Note& note : explanation.notes)
                ASSERT_STREQ(note.code, "text_not_utf8") << note.text << " in " << hex(bytes);
            // A fixed form can be as long as the compact form, but never be the same.
            ASSERT_EQ(explanation.origin, fixed_form ? command::Origin::fixed : command::Origin::compact);
        }
}

// ifit_mcp_mesh_delete: no f0, and f1 with one element whose f0 is 7.
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

// ifit_dfx_query_glbdata_item_mesh: "hello".
ByteString one_text() { return bytes_from_hex("0a000000 06001200 0400 06000000 04000000 05000000 68656c6c6f 00"); }

struct Damage {
    std::size_t at;
    const char* bytes;
    const char* code;
    const char* path;
    std::uint32_t position;
    std::uint64_t value;
    std::uint64_t limit;
    bool logs;
};

ByteString damaged(ByteString whole, std::size_t at, const char* hex_text)
{
    const ByteString bytes = bytes_from_hex(hex_text);
    std::copy(bytes.begin(), bytes.end(), whole.begin() + static_cast<std::ptrdiff_t>(at));
    return whole;
}

TEST(Refusals, name_the_check_the_field_and_the_numbers)
{
    const Damage cases[] = {
        {0, "27", "table_position", ".", 39, 39, 38, true},
        {12, "0d", "vtable_position", ".", 12, 0xffffffff, 38, true},
        {4, "ff", "vtable_length", ".", 4, 255, 38, true},
        {10, "1b", "cell_end", ".f1", 39, 43, 42, false},
        {16, "f0 ff ff ff", "reference_wrap", ".f1", 16, 0, 16, false},
        {16, "17", "reference_range", ".f1", 16, 43, 42, false},
        {20, "06", "body_end", ".f1", 20, 48, 42, false},
        {20, "00 00 00 40", "count_range", ".f1", 20, 0x40000000, 0x40000000, false},
        {24, "ff ff ff ff", "element_wrap", ".f1[0]", 24, 23, 24, false},
        {24, "0f", "table_position", ".f1[0]", 39, 39, 38, true},
        {34, "20 00 00 00", "vtable_position", ".f1[0]", 34, 2, 38, true},
        {32, "05", "scalar_end", ".f1[0].f0", 39, 43, 42, false},
    };
    const reference::Message& message = *find_message("ifit_mcp_mesh_delete");
    ASSERT_FALSE(explain(message, one_element()).refused);
    for (const Damage& damage : cases) {
        const ByteString bytes = damaged(one_element(), damage.at, damage.bytes);
        const Explanation explanation = explain(message, bytes);
        ASSERT_TRUE(explanation.refused) << damage.code;
        const reference::Failure& failure = explanation.refused->failure;
        EXPECT_STREQ(name_of(failure.refusal), damage.code);
        EXPECT_EQ(command::path_text(message, failure.path), damage.path) << damage.code;
        EXPECT_EQ(failure.position, damage.position) << damage.code;
        EXPECT_EQ(failure.value, damage.value) << damage.code;
        EXPECT_EQ(failure.limit, damage.limit) << damage.code;
        EXPECT_EQ(explanation.refused->log.has_value(), damage.logs) << damage.code;
    }
}

// The range that was read last is the one that the refused number comes from.
TEST(Refusals, mark_what_was_read_last)
{
    const ByteString bytes = damaged(one_element(), 24, "0f");
    const Explanation explanation = explain(*find_message("ifit_mcp_mesh_delete"), bytes);
    for (const command::Range& range : explanation.ranges)
        EXPECT_EQ(range.read_last, range.position == 24) << range.position;
    EXPECT_NE(explanation_text(explanation, {}).find("the cell of .f1[0] at position 24 leads there: to 24 + 15 = 39"),
              std::string::npos);
}

TEST(Refusals, of_a_lenient_table_are_shown_and_ignored)
{
    const ByteString bytes = bytes_from_hex("0c000000 08000800 0000 0400 08000000 ffffff7f");
    const Explanation explanation = explain(*find_message("ifit_smooth_begin_mesh"), bytes);
    EXPECT_FALSE(explanation.refused);
    ASSERT_TRUE(explanation.ignored);
    EXPECT_EQ(command::path_text(*explanation.message, explanation.ignored->failure.path), ".f1");
    EXPECT_EQ(
        command::log_line(*explanation.ignored->log),
        "level 2 code 22 ifit_smooth_mesh_unpack_non_root: [KESTO]:Table offset(2147483663) is out of range(4 - 20)");
}

std::vector<std::string> codes_of(const Explanation& explanation)
{
    std::vector<std::string> codes;
    for (const command::Note& note : explanation.notes)
        codes.push_back(note.code + (" " + std::to_string(note.position)) + " " + note.path);
    return codes;
}

TEST(Notes, tell_what_passes_without_a_word)
{
    const struct {
        const char* message;
        ByteString bytes;
        std::vector<std::string> codes;
    } cases[] = {
        {"ifit_mcp_mesh_delete", one_element(), {}},
        {"ifit_mcp_mesh_delete", damaged(one_element(), 6, "11"), {"table_length 6 ."}},
        // Without slots nothing behind the table's first word is read.
        {"ifit_mcp_mesh_delete",
         damaged(one_element(), 4, "03"),
         {"vtable_short 4 .", "not_read 6 .", "not_read 16 ."}},
        {"ifit_mcp_mesh_delete",
         damaged(one_element(), 28, "05"),
         {"vtable_odd 28 .f1[0]", "slots_missing 28 .f1[0]", "not_read 38 ."}},
        // The field begins within the table's first word.
        {"ifit_mcp_mesh_delete",
         damaged(one_element(), 32, "02"),
         {"field_in_table_head 32 .f1[0].f0", "overlap 36 .f1[0].f0"}},
        {"ifit_dfx_query_glbdata_item_mesh", one_text(), {}},
        {"ifit_dfx_query_glbdata_item_mesh", bytes_from_hex("9e14cd91 04000000 00000000"), {"packet_head 0 ."}},
        {"ifit_dfx_query_glbdata_item_mesh", bytes_from_hex("9e14cd91 05000000 00000000"), {}},
        {"ifit_dfx_query_glbdata_item_mesh",
         damaged(one_text(), 27, "21"),
         {"table_length 6 .", "text_without_nul 22 .f0", "not_read 27 ."}},
        {"ifit_dfx_query_glbdata_item_mesh", damaged(one_text(), 24, "00"), {"text_with_nul 24 .f0"}},
        {"ifit_dfx_query_glbdata_item_mesh", damaged(one_text(), 24, "ff"), {"text_not_utf8 22 .f0"}},
        // Two elements that are one table; f1 as a slot that nobody knows.
        {"ifit_mcp_mesh_delete",
         bytes_from_hex("0c000000 08001400 0000 0400 08000000 04000000 02000000 10000000 0c000000"
                        "0800 0800 0400 0000 08000000 07000000"),
         {"slots_unknown 38 .f1[0]", "shared_table 40 .f1[0]"}},
    };
    for (const auto& each : cases)
        EXPECT_EQ(codes_of(explain(*find_message(each.message), each.bytes)), each.codes) << hex(each.bytes);
}

TEST(Texts, cannot_steer_a_terminal)
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

// X__pack counts 8 bytes for a block of length 0 behind a pointer and does not write them.
TEST(Origins, know_the_bytes_that_are_counted_and_not_written)
{
    Record record = reference::zero_record(*find_message("ifit_dfx_query_comm_param_mesh"));
    record.fields[2].present = true;
    ByteString bytes = reference::compact_form(record);
    bytes.resize(reference::exact_size(record));
    EXPECT_EQ(explain(*record.message, bytes).origin, command::Origin::compact_with_rest);
    const ByteString text = [] {
        ByteString longer = one_text();
        longer.resize(longer.size() + 8);
        return longer;
    }();
    EXPECT_EQ(explain(*find_message("ifit_dfx_query_glbdata_item_mesh"), text).origin, command::Origin::other);
}

// 8000 cells that all lead to one element with three blocks: the decoder copies 240 MB, while the explanation stays as
// short as the byte string is simple.
TEST(Notes, stay_few_where_a_byte_string_asks_for_much)
{
    const reference::Message& message = *find_message("ntvifit_entry_list_mdtlm");
    Record record = reference::zero_record(message);
    record.fields[0].records.assign(8000, reference::zero_record(*message.slots[0].nested));
    record.fields[0].number = 8000;
    record.fields[0].present = true;
    for (std::size_t k = 0; k < message.slots[0].nested->slots.size(); ++k) {
        if (message.slots[0].nested->slots[k].kind != reference::Kind::bytes)
            continue;
        reference::Field& block = record.fields[0].records.back().fields[k];
        block.present = true;
        block.number = 10000;
        block.octets.assign(10000, 'x');
    }
    ByteString bytes = reference::compact_form(record);
    // All cells to the last element, which ends the byte string.
    const std::uint32_t first_cell = 12 + 4 + 4 + 4;
    const std::uint32_t last_cell = first_cell + 4 * 7999;
    const std::uint32_t element = last_cell + reference::get32(&bytes[last_cell]);
    for (std::uint32_t cell = first_cell; cell <= last_cell; cell += 4)
        reference::put(&bytes[cell], element - cell, 4);
    const Explanation explanation = explain(message, bytes);
    EXPECT_FALSE(explanation.refused);
    EXPECT_EQ(explanation.memory, 8000u * (152 + 3 * 10000));   // the size of an element's record, and its blocks
    EXPECT_LT(explanation.ranges.size(), 8200u);
    const auto shared = std::find_if(explanation.notes.begin(), explanation.notes.end(), [](const command::Note& note) {
        return note.code == std::string("shared_table");
    });
    ASSERT_NE(shared, explanation.notes.end());
    EXPECT_EQ(shared->position, element);
}

}   // namespace

}   // namespace kesto::tests
