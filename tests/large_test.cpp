// Vectors of so many elements that the size of their block wraps 32 bits: what is left of it must hold all that is
// written, and be gone afterwards. The cells alone take from 64 MiB to 1.4 GB, so most of them are left as the zeros of
// memory that was never touched, which a reader may take for tables without fields.

#include <gtest/gtest.h>

#include <sys/mman.h>

#include <algorithm>
#include <cstdio>
#include <numeric>

#include "reference/generate.h"
#include "tests/support/every_message.h"

namespace kesto::tests {

namespace {

using reference::Item;
using reference::Piece;
using reference::put;

constexpr std::uint64_t wrap = std::uint64_t{1} << 32;
constexpr std::uint64_t most_bytes = 0x7FFFFFFF;   // that a decoder takes

struct VectorMessage {
    const reference::Message* message;
    const reference::Message* element;

    std::uint64_t record_size() const { return element->layout(reference::host_pointer_width).size; }
    // The least count whose elements take up 2^32 bytes and `rest` more.
    std::uint32_t count(std::uint64_t rest) const
    {
        return static_cast<std::uint32_t>((wrap + rest + record_size() - 1) / record_size());
    }
};

std::vector<VectorMessage> vector_messages()
{
    std::vector<VectorMessage> found;
    for (const reference::Message& message : transcribed().messages)
        for (const reference::Slot& slot : message.slots)
            if (slot.kind == reference::Kind::vector)
                found.push_back({&message, slot.nested});
    return found;
}

// Memory that costs nothing until it is touched.
bool has_address_space(std::size_t bytes)
{
    void* const memory = mmap(nullptr, bytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED)
        return false;
    munmap(memory, bytes);
    return true;
}

// The compact form of a record with one element, to be pulled apart behind the vector's only cell.
struct Stem : reference::Walk {
    explicit Stem(const VectorMessage& vector)
    {
        reference::Random random(vector.message->id);
        do {
            bytes =
                reference::compact_form(reference::random_record(*vector.message, reference::Density::full, random));
            count = cell = 0;
            references.clear();
            reference::DecodeOptions options;
            options.walk = this;
            reference::Outcome outcome;
            reference::decode(*vector.message, bytes.data(), static_cast<std::uint32_t>(bytes.size()), options,
                              outcome);
        } while (reference::get32(&bytes[count]) != 1);
    }

    void read(const Item& item) override
    {
        if (item.piece == Piece::element_cell) {
            cell = item.position;
            count = cell - 4;
        }
        if (item.piece == Piece::element_cell || item.piece == Piece::cell)
            references.push_back(item.position);
    }

    ByteString bytes;
    std::uint32_t count = 0;
    std::uint32_t cell = 0;
    std::vector<std::uint32_t> references;   // positions of all cells
};

// Writes the stem with `count` cells to where it ends with the buffer. All cells that are `filled` lead to the one
// element.
std::uint8_t* place(const GuardedBuffer& buffer, const Stem& stem, std::uint32_t count, std::uint32_t filled,
                    std::uint32_t& length)
{
    const std::uint32_t more = 4 * (count - 1);
    length = static_cast<std::uint32_t>(stem.bytes.size()) + more;
    std::uint8_t* const at = buffer.place(length);
    const auto split = stem.bytes.begin() + static_cast<std::ptrdiff_t>(stem.cell) + 4;
    std::copy(stem.bytes.begin(), split, at);
    std::copy(split, stem.bytes.end(), at + stem.cell + 4 + more);
    for (const std::uint32_t reference : stem.references) {
        const std::uint32_t distance = reference::get32(&stem.bytes[reference]);
        if (reference < stem.cell && reference + distance > stem.cell)
            put(at + reference, distance + more, 4);
    }
    put(at + stem.count, count, 4);
    const std::uint32_t element = stem.cell + reference::get32(&stem.bytes[stem.cell]) + more;
    for (std::uint32_t i = 0; i < filled; ++i)
        put(at + stem.cell + 4 * i, element - (stem.cell + 4 * i), 4);
    return at;
}

class WrappedBlock : public testing::Test {
protected:
    // False, after a report, where library and reference differ.
    [[nodiscard]] bool decodes_alike(const VectorMessage& vector, std::uint32_t count, bool all_filled)
    {
        const Stem stem(vector);
        const std::uint32_t inside =
            static_cast<std::uint32_t>(count * vector.record_size()) / static_cast<std::uint32_t>(vector.record_size());
        std::uint32_t length = 0;
        // A fresh buffer each time: what was touched is given back.
        DecodeCheck check(stem.bytes.size() + std::size_t{4} * count);
        const std::uint32_t filled = all_filled ? count : std::min(inside, 1U << 14) + 2;
        const std::uint8_t* const bytes = place(check.buffer(), stem, count, filled, length);
        for (const std::uint32_t failing : {reference::AllocationFaults::never, 0U, 1U, 2U, 5U}) {
            check.faults = {failing, false, 1 << 20};
            const std::string fault = check.check(*vector.message, bytes, length);
            EXPECT_EQ(fault, "") << count << " elements, failing allocation " << failing;
            EXPECT_TRUE(check.outcome().failure);
            if (!fault.empty())
                return false;
        }
        return true;
    }
};

TEST_F(WrappedBlock, is_never_overrun_and_is_released)
{
    std::uint32_t tried = 0, too_small = 0, no_room = 0;
    for (const VectorMessage& vector : vector_messages()) {
        // One element below the wrap, where the block is too large for any memory; the wrap; some elements above it;
        // and where nothing at all is left.
        const std::uint64_t size = vector.record_size();
        for (const std::uint32_t count :
             {vector.count(0) - 1, vector.count(0), vector.count(size), vector.count(3 * size), vector.count(1 << 16),
              static_cast<std::uint32_t>(wrap / std::gcd(wrap, size))}) {
            const std::uint64_t bytes = std::uint64_t{4} * count + 4096;
            if (bytes > most_bytes) {
                ++too_small;   // its block cannot wrap: it would take a longer byte string than is accepted
                continue;
            }
            if (!has_address_space(static_cast<std::size_t>(bytes))) {
                ++no_room;
                continue;
            }
            ++tried;
            ASSERT_TRUE(decodes_alike(vector, count, false)) << vector.message->name;
        }
    }
    std::printf("%u vectors tried, %u whose blocks cannot wrap, %u for which this process has no room\n", tried,
                too_small, no_room);
    EXPECT_GT(tried, 100U);
}

// As above, but an overrun would find elements with fields wherever it came to.
TEST_F(WrappedBlock, is_not_overrun_where_every_cell_leads_to_a_table)
{
    for (const char* const name :
         {"ifit_sync_ifit_session_entry_update", "ntvifit_entry_list_mdtlm", "ntvifit_stats_info_list"}) {
        const auto vectors = vector_messages();
        const auto vector =
            std::find_if(vectors.begin(), vectors.end(), [&](auto& each) { return each.message->name == name; });
        ASSERT_NE(vector, vectors.end());
        for (const std::uint64_t rest : {std::uint64_t{0}, 2 * vector->record_size()})
            ASSERT_TRUE(decodes_alike(*vector, vector->count(rest), true)) << name;
    }
}

// The same written out, for elements of 256 bytes: 2^24 of them are 2^32 bytes.
TEST_F(WrappedBlock, of_no_byte_is_reported_by_the_vector_and_of_two_elements_holds_two)
{
    const auto vectors = vector_messages();
    const auto vector = std::find_if(vectors.begin(), vectors.end(), [](auto& each) {
        return each.message->name == "ifit_sync_ifit_session_entry_update";
    });
    ASSERT_EQ(vector->record_size(), 256U);
    const Stem stem(*vector);

    struct Case {
        std::uint32_t count;
        bool first_wraps;   // the first cell leads past 2^32
        std::vector<std::string> events;
    };
    const Case cases[] = {
        {0x01000000, true, {}},
        {0x01000000,
         false,
         {"ifit_sync_ifit_session_entry_update_unpack logs 22 [KESTO]:Param invalid(nonNull, LENGTH, null)"}},
        {0x01000002,
         false,
         {"ifit_sync_ifit_session_entry_update_unpack allocates block 0, size 512",
          "ifit_sync_ifit_session_entry_update_free_unpacked releases block 0"}},
    };
    for (const Case& each : cases) {
        DecodeCheck check(stem.bytes.size() + std::size_t{4} * each.count);
        std::uint32_t length = 0;
        std::uint8_t* const bytes = place(check.buffer(), stem, each.count, 8, length);
        if (each.first_wraps)
            put(bytes + stem.cell, 0xFFFFFFFF, 4);
        ASSERT_EQ(check.check(*vector->message, bytes, length), "");
        const reference::Trace& trace = check.outcome().trace;
        ASSERT_EQ(trace.size(), each.events.size());
        for (std::size_t i = 0; i < trace.size(); ++i) {
            std::string expected = each.events[i];
            if (const std::size_t at = expected.find("LENGTH"); at != std::string::npos)
                expected.replace(at, 6, std::to_string(length));
            EXPECT_EQ(reference::to_text(trace[i]), expected);
        }
        const auto& fields = check.outcome().record.fields;
        const auto field =
            std::find_if(fields.begin(), fields.end(), [&](auto& one) { return one.number == each.count; });
        ASSERT_NE(field, fields.end()) << "the count stays";
        EXPECT_FALSE(field->present);
    }
}

}   // namespace

}   // namespace kesto::tests
