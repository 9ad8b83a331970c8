// Compares every message with the model: the bytes of both forms, and the decoder's results for valid, noncanonical,
// truncated and damaged byte strings, with every log, allocation and release in order.

#include <gtest/gtest.h>

#include <cstring>
#include <tuple>

#include "model/generate.h"
#include "model/noncanonical.h"
#include "tests/support/every_message.h"
#include "tests/support/services_double.h"

namespace kesto::tests {

namespace {

using model::Density;
using model::Random;
using model::Record;

class EveryMessage : public EveryMessageTest {
protected:
    Random random(std::uint64_t salt) const { return Random(salt << 32 | message().id); }

    void expect_decodes_alike(const ByteString& bytes)
    {
        const std::string fault = check_.check(message(), bytes);
        ASSERT_EQ(fault, "") << model::to_hex(bytes);
    }

    void expect_decodes_to(const Record& record, const ByteString& bytes)
    {
        const Record decoded = model::as_decoded(record);
        check_.expected = &decoded;
        expect_decodes_alike(bytes);
        check_.expected = nullptr;
    }

    void expect_both_ways(const Record& record)
    {
        ASSERT_EQ(check_encoders(record), "") << to_text(record);
        for (const ByteString& bytes : both_forms(record))
            ASSERT_NO_FATAL_FAILURE(expect_decodes_to(record, bytes)) << to_text(record);
    }

    DecodeCheck check_;
};

KESTO_FOR_EVERY_MESSAGE(EveryMessage);

TEST_P(EveryMessage, encodes_like_the_model_and_decodes_its_own_output)
{
    Random chance = random(1);
    for (int round = 0; round < 12; ++round)
        for (const Density density : model::densities)
            ASSERT_NO_FATAL_FAILURE(expect_both_ways(model::random_record(message(), density, chance)));
}

// A single missing text, block or vector keeps such a record off the fast paths.
TEST_P(EveryMessage, dense_record_without_one_owned_block_round_trips)
{
    Random chance = random(7);
    for (const Record& record : model::without_each_owned_block(random_record(message(), Density::full, chance)))
        ASSERT_NO_FATAL_FAILURE(expect_both_ways(record));
}

// Elements of every density in every order: each may take a different path from the one before it.
void mix_elements(Record& record, Random& chance)
{
    const model::Message& message = *record.message;
    for (std::size_t k = 0; k < record.fields.size(); ++k) {
        model::Field& field = record.fields[k];
        if (field.records.empty())
            continue;
        if (message.slots[k].kind == model::Kind::vector) {
            const model::Message& element = *field.records[0].message;
            field.records.clear();
            for (std::uint32_t i = chance.below(8) + 1; i != 0; --i)
                field.records.push_back(model::random_record(element, model::densities[chance.below(4)], chance));
            field.number = field.records.size();
        }
        for (Record& inner : field.records)
            mix_elements(inner, chance);
    }
}

TEST_P(EveryMessage, mixed_elements_round_trip)
{
    Random chance = random(6);
    for (int round = 0; round < 40; ++round) {
        Record record = model::random_record(message(), Density::full, chance);
        mix_elements(record, chance);
        ASSERT_EQ(check_encoders(record), "") << to_text(record);
        ASSERT_NO_FATAL_FAILURE(expect_decodes_to(record, model::compact_form(record))) << to_text(record);
    }
}

TEST_P(EveryMessage, decodes_noncanonical_layouts)
{
    Random chance = random(2);
    for (int round = 0; round < 60; ++round) {
        const Record record = model::random_record(message(), model::densities[round % 4], chance);
        ASSERT_NO_FATAL_FAILURE(expect_decodes_to(record, model::noncanonical_layout(record, chance)))
            << to_text(record);
    }
}

TEST_P(EveryMessage, truncation_at_any_byte_releases_every_block)
{
    Random chance = random(3);
    const Record record = model::random_record(message(), Density::full, chance);
    std::vector<ByteString> samples = both_forms(record);
    samples.push_back(model::noncanonical_layout(record, chance));
    for (const ByteString& whole : samples)
        for (std::size_t length = 0; length < whole.size(); ++length)
            ASSERT_NO_FATAL_FAILURE(
                expect_decodes_alike({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)}));
}

// Up to three damaged words, in the record's own forms and in noncanonical ones. Tests of single small faults do not
// cover these combinations.
TEST_P(EveryMessage, damaged_byte_strings_decode_like_the_model)
{
    constexpr std::uint32_t boundaries[] = {0,          1,          3,          4,          5,         0x3FFFFFFF,
                                            0x40000000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFF8, 0xFFFFFFFF};
    Random chance = random(4);
    for (int round = 0; round < 400; ++round) {
        const Record record = model::random_record(message(), round % 2 == 0 ? Density::full : Density::sparse, chance);
        ByteString bytes = round % 3 == 0   ? model::noncanonical_layout(record, chance)
                           : round % 3 == 1 ? both_forms(record).back()
                                            : model::compact_form(record);
        const std::uint32_t length = static_cast<std::uint32_t>(bytes.size());
        for (std::uint32_t changes = 1 + chance.below(3); changes != 0; --changes) {
            const std::uint32_t at = chance.below(length - 3);
            const std::uint32_t inside[] = {chance.below(256), chance.below(length + 2), length - at};
            const std::uint32_t which = chance.below(std::size(boundaries) + std::size(inside));
            model::put(&bytes[at], which < 3 ? inside[which] : boundaries[which - 3], 1 + chance.below(4));
        }
        ASSERT_NO_FATAL_FAILURE(expect_decodes_alike(bytes));
    }
}

// One scalar far from its table's start, around the last position that fits: with the fewest bytes after the table's
// start, and with counts around the limits of 15 and 16 bits.
TEST_P(EveryMessage, far_field_is_read_only_if_it_fits)
{
    const auto slots = static_cast<std::uint32_t>(message().slots.size());
    const std::uint32_t vtable_bytes = 4 + 2 * slots, table = 4 + vtable_bytes;
    for (const std::uint32_t available : {4U, 5U, 8U, 9U, 0x7FFEU, 0x7FFFU, 0x8000U, 0x8001U, 0x8007U, 0xFFFDU, 0xFFFEU,
                                          0xFFFFU, 0x10000U, 0x10001U, 0x10006U, 0x10007U}) {
        std::uint8_t* const bytes = check_.buffer().place(table + available);
        std::memset(bytes, 0, table);
        std::memset(bytes + table, 0x5A, available);
        model::put(bytes, table, 4);
        model::put(bytes + 4, vtable_bytes, 2);
        model::put(bytes + table, vtable_bytes, 4);
        for (std::uint32_t k = 0; k < slots; ++k) {
            const model::Slot& slot = message().slots[k];
            if (slot.kind != model::Kind::scalar)
                continue;
            std::uint8_t* const cell = bytes + 8 + 2 * k;
            for (const std::uint32_t offset : {available - slot.width, available - slot.width + 1, available - 1,
                                               available, 0x7FFFU, 0x8000U, 0xFFFFU}) {
                model::put(cell, offset & 0xFFFF, 2);
                ASSERT_EQ(check_.check(message(), bytes, table + available), "")
                    << available << " " << k << " " << offset;
            }
            model::put(cell, 0, 2);
        }
    }
}

// Null pointers, and lengths that are below 4 as signed numbers: one log line, and no access through the other
// parameters.
TEST_P(EveryMessage, refused_parameters_leave_the_record_untouched)
{
    const std::tuple<bool, std::uint32_t, bool, const char*> cases[] = {
        {false, 40, true, "null, 40, nonNull"},          {false, 3, false, "null, 3, null"},
        {true, 40, false, "nonNull, 40, null"},          {true, 0, true, "nonNull, 0, nonNull"},
        {true, 3, true, "nonNull, 3, nonNull"},          {true, 0x80000000, true, "nonNull, -2147483648, nonNull"},
        {true, 0xFFFFFFFF, true, "nonNull, -1, nonNull"}};
    const ByteString bytes = model::compact_form(model::zero_record(message()));
    std::vector<std::uint8_t> record(library().record_size, 0xC3);
    model::Outcome outcome;
    for (const auto& [has_bytes, length, has_record, logged] : cases) {
        const std::uint8_t* const buffer = has_bytes ? bytes.data() : nullptr;
        model::DecodeOptions options;
        options.record_null = !has_record;
        model::decode(message(), buffer, length, options, outcome);
        ASSERT_TRUE(outcome.untouched);
        services().start();
        EXPECT_EQ(library().unpack(buffer, length, has_record ? record.data() : nullptr), record.size());
        EXPECT_EQ(services().difference(outcome.trace), "");
        EXPECT_EQ(to_text(outcome.trace.at(0)),
                  message().name + "_unpack logs 22 [KESTO]:Param invalid(" + logged + ")");
        EXPECT_EQ(record, std::vector<std::uint8_t>(record.size(), 0xC3));
    }

    services().start();
    library().free_unpacked(nullptr);
    EXPECT_EQ(services().difference({}), "");
}

// Each allocation fails in turn, alone and with all later ones: checks the log line, null pointers, kept counts, and
// that no block is left.
TEST_P(EveryMessage, failed_allocation_leaks_nothing)
{
    Random chance = random(5);
    const ByteString bytes = model::compact_form(model::random_record(message(), Density::full, chance));
    for (const bool all_after : {false, true}) {
        for (std::uint32_t number = 0;; ++number) {
            check_.faults = {number, all_after};
            ASSERT_NO_FATAL_FAILURE(expect_decodes_alike(bytes)) << "allocation " << number;
            if (!check_.outcome().failure)
                break;   // no more allocations
        }
    }
}

}   // namespace

}   // namespace kesto::tests
