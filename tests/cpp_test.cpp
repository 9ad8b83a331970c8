// The C++ view of the messages: its traits belong to their records, its outcome never contradicts the decoder, and
// records own what they point to, exactly once.

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>

#include "model/generate.h"
#include "model/memory.h"
#include "tests/support/every_message.h"
#include "tests/support/mesh_double.h"
#include "tests/support/services_double.h"

#ifndef KESTO_WITHOUT_ifit
#include "ifit.hpp"
#endif
#ifndef KESTO_WITHOUT_ifit_sync
#include "ifit_sync.hpp"
#endif
#ifdef KESTO_WITH_synthetic
#include "tests/module/synthetic.hpp"
#endif
#include "ifit_dfx.hpp"
#include "ntvifit.hpp"

namespace kesto::tests {

namespace {

using ifit_codec::outcome;

// The view of one message with the record's type erased.
struct CppView {
    std::uint32_t id, fixed_length, compact_least, compact_most;
    bool owns_blocks;
    std::optional<std::span<std::uint8_t>> (*pack)(const void* record, std::span<std::uint8_t> buffer);
    std::optional<std::uint32_t> (*packed_size)(const void* record);
    // Decodes, moves the record about, shows it, and frees it.
    outcome (*unpack)(std::span<const std::uint8_t> bytes, const std::function<void(const void*)>& see);
    int (*send_to)(const void* record);
    int (*send_three)(const void* records);
};

template <class R>
CppView view_of()
{
    using traits = ifit_codec::message_traits<R>;
    return {traits::id,
            traits::fixed_length,
            traits::compact_least,
            traits::compact_most,
            traits::owns_blocks,
            [](const void* record, std::span<std::uint8_t> buffer) {
                return ifit_codec::pack(*static_cast<const R*>(record), buffer);
            },
            [](const void* record) { return ifit_codec::packed_size(*static_cast<const R*>(record)); },
            [](std::span<const std::uint8_t> bytes, const std::function<void(const void*)>& see) {
                auto [record, result] = ifit_codec::unpack<R>(bytes);
                ifit_codec::owned<R> moved = std::move(record), target;
                (void)target.unpack(bytes);   // the assignment below has something to free
                target = std::move(moved);
                see(&*target);
                return result;
            },
            [](const void* record) { return ifit_codec::send(7, *static_cast<const R*>(record), 9); },
            [](const void* records) { return ifit_codec::send_batch(7, *static_cast<const R(*)[3]>(records)); }};
}

const std::map<std::string_view, CppView>& views()
{
    static const std::map<std::string_view, CppView> all{
#define NAMED_FIELDS(...)
#define MESSAGE(message, ...) {ifit_codec::message_name<::message>, view_of<::message>()},
#define KESTO_EACH_MODULE "tests/each_catalogue.inc"
#include "messages/modules.inc"
#undef KESTO_EACH_MODULE
#undef MESSAGE
    };
    return all;
}

class CppMessage : public EveryMessageTest {
protected:
    const CppView& view() const { return views().at(message().name); }
};

KESTO_FOR_EVERY_MESSAGE(CppMessage);

TEST_P(CppMessage, traits_are_those_of_the_record)
{
    EXPECT_EQ(view().id, message().id);
    EXPECT_EQ(view().fixed_length, message().fixed_length);
    EXPECT_EQ(view().compact_least, message().compact_zero);
    EXPECT_EQ(view().compact_most, message().compact_full);
    EXPECT_EQ(view().owns_blocks, message().owns_blocks);

    model::Random chance(message().id);
    const std::vector<model::Record> records(3, model::random_record(message(), model::Density::full, chance));
    const model::RecordMemory memory(records);
    std::vector<std::uint8_t> buffer(1 << 16);
    const auto packed = view().pack(memory.data(), buffer);
    ASSERT_TRUE(packed.has_value());
    const ByteString expected = model::compact_form(records[0]);
    EXPECT_EQ(ByteString(packed->begin(), packed->end()), expected);
    EXPECT_EQ(view().packed_size(memory.data()), expected.size());
    EXPECT_FALSE(view().pack(memory.data(), std::span(buffer).first(expected.size() - 1)).has_value());

    mesh().reset();
    mesh().send_result = 5;
    EXPECT_EQ(view().send_to(memory.data()), 5);
    EXPECT_EQ(view().send_three(memory.data()), 5);
    ASSERT_EQ(mesh().sends.size(), 2u);
    EXPECT_EQ(mesh().sends[0].channel, 7u);
    EXPECT_EQ(mesh().sends[0].destination, 9u);
    EXPECT_EQ(mesh().sends[1].sent.size(), 3u);
    EXPECT_EQ(mesh().sends[1].sent[2].id, message().id);
}

// Whether `record` has a pointer at some depth outside of vectors.
bool points(const model::Record& record)
{
    for (const model::Field& field : record.fields)
        if (field.present || (!field.records.empty() && points(field.records[0])))
            return true;
    return false;
}

// Every byte of a byte string is missing or damaged once.
TEST_P(CppMessage, outcome_agrees_with_the_decoder_and_every_block_is_freed_once)
{
    model::Random chance(message().id);
    std::map<outcome, int> seen;
    const auto check = [&](const ByteString& bytes) {
        model::Outcome decoded;
        model::decode(message(), bytes.data(), static_cast<std::uint32_t>(bytes.size()), {}, decoded);
        services().start();
        const outcome result = view().unpack(bytes, [&](const void* record) {
            EXPECT_EQ(decoded.untouched ? "" : model::difference(decoded.record, record), "") << model::to_hex(bytes);
        });
        EXPECT_EQ(services().live_blocks(), 0u) << model::to_hex(bytes);
        const bool refused = static_cast<bool>(decoded.failure);
        EXPECT_FALSE(result == outcome::decoded && refused) << model::to_hex(bytes);
        EXPECT_FALSE(result == outcome::refused && !refused) << model::to_hex(bytes);
        EXPECT_FALSE(result == outcome::unknown && view().owns_blocks && (points(decoded.record) || decoded.untouched))
            << model::to_hex(bytes);
        ++seen[result];
    };
    for (const model::Density density : {model::Density::zero, model::Density::sparse, model::Density::full}) {
        const ByteString whole = model::compact_form(model::random_record(message(), density, chance));
        check(whole);
        for (std::size_t at = 0; at < whole.size(); at += whole.size() / 64 + 1) {
            check(ByteString(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(at)));
            ByteString damaged = whole;
            damaged[at] ^= 0x80;
            check(damaged);
        }
    }
    EXPECT_EQ(seen[outcome::decoded] != 0, view().owns_blocks);
    EXPECT_EQ(seen[outcome::refused] != 0, view().owns_blocks);
}

TEST(CppFields, spans_and_texts_survive_null_pointers_and_reach_their_ends)
{
    ntvifit_stats_info_list list{};
    list.f0.count = 2;   // as a refused record may have it
    EXPECT_TRUE(ifit_codec::view(list.f0).empty());
    const std::array<ntvifit_stats_info, 2> items{};
    EXPECT_TRUE(ifit_codec::point_to(list.f0, items));
    EXPECT_EQ(ifit_codec::view(std::as_const(list).f0).data() + 1, &items[1]);

    const std::uint8_t unterminated[3] = {'a', 'b', 'c'}, padded[3] = {'a', 0, 'c'};
    EXPECT_EQ(ifit_codec::text_in(unterminated), "abc");
    EXPECT_EQ(ifit_codec::text_in(padded), "a");
    EXPECT_EQ(ifit_codec::view(static_cast<const char*>(nullptr)).data(), nullptr);
    EXPECT_NE(ifit_codec::view("").data(), nullptr);
}

}   // namespace

}   // namespace kesto::tests
