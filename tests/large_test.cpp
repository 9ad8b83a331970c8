// Vectors with so many elements that the size of their array wraps 32 bits. The truncated array must hold everything
// that is written, and must be released afterwards. The cells alone take 64 MiB to 1.4 GB, so most of them stay zero in
// untouched memory, where a reader may interpret them as tables without fields.

#include <gtest/gtest.h>

#include <sys/mman.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <numeric>

#include "model/generate.h"
#include "ntvifit.h"
#include "tests/support/every_message.h"

namespace kesto::tests {

namespace {

using model::Item;
using model::Piece;
using model::put;

constexpr std::uint64_t wrap = std::uint64_t{1} << 32;
constexpr std::uint64_t max_input_bytes = 0x7FFFFFFF;   // the longest input that a decoder accepts

struct VectorMessage {
    const model::Message* message;
    const model::Message* element;

    std::uint64_t record_size() const { return element->layout(model::host_pointer_width).size; }
    // The smallest count whose elements take at least 2^32 + `rest` bytes.
    std::uint32_t count(std::uint64_t rest) const
    {
        return static_cast<std::uint32_t>((wrap + rest + record_size() - 1) / record_size());
    }
};

std::ptrdiff_t vectors_in(const model::Message& message)
{
    return std::accumulate(
        message.slots.begin(), message.slots.end(), std::ptrdiff_t{0}, [](auto sum, const auto& slot) {
            return sum + (slot.kind == model::Kind::vector) + (slot.nested == nullptr ? 0 : vectors_in(*slot.nested));
        });
}

// Messages with exactly one vector, as a stem (see below) is split at one position.
std::vector<VectorMessage> vector_messages()
{
    std::vector<VectorMessage> found;
    for (const model::Message& message : expected_catalogue().messages)
        for (const model::Slot& slot : message.slots)
            if (slot.kind == model::Kind::vector && vectors_in(message) == 1)
                found.push_back({&message, slot.nested});
    return found;
}

// A full record whose vector has one element.
model::Record with_one_element(const VectorMessage& vector)
{
    model::Random random(vector.message->id);
    model::Record record = model::random_record(*vector.message, model::Density::full, random);
    for (std::size_t k = 0; k < record.fields.size(); ++k)
        if (vector.message->slots[k].kind == model::Kind::vector) {
            record.fields[k].records.resize(1);
            record.fields[k].number = 1;
        }
    return record;
}

// Whether this much memory can be reserved. It costs nothing until it is touched.
bool has_address_space(std::size_t bytes)
{
    void* const memory = mmap(nullptr, bytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED)
        return false;
    munmap(memory, bytes);
    return true;
}

// The compact form of a record with one element, to be split after the vector's only cell.
struct Stem : model::Walk {
    explicit Stem(const model::Record& record) : bytes(model::compact_form(record))
    {
        model::DecodeOptions options;
        options.walk = this;
        model::Outcome outcome;
        model::decode(*record.message, bytes.data(), static_cast<std::uint32_t>(bytes.size()), options, outcome);
    }

    void read(const Item& item) override
    {
        if (item.piece == Piece::element_cell)
            cell = item.position;
        if (item.piece == Piece::element_cell || item.piece == Piece::cell)
            references.push_back(item.position);
    }

    ByteString bytes;
    std::uint32_t cell = 0;
    std::vector<std::uint32_t> references;   // positions of all cells
};

// Writes the stem with `count` cells at the end of the buffer. The first `filled` cells lead to the only element.
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
        const std::uint32_t distance = model::get32(&stem.bytes[reference]);
        if (reference < stem.cell && reference + distance > stem.cell)
            put(at + reference, distance + more, 4);
    }
    put(at + stem.cell - 4, count, 4);
    const std::uint32_t element = stem.cell + model::get32(&stem.bytes[stem.cell]) + more;
    for (std::uint32_t i = 0; i < filled; ++i)
        put(at + stem.cell + 4 * i, element - (stem.cell + 4 * i), 4);
    return at;
}

// Library and model must agree. The filled cells are as many as fit in the array, up to 2^14, plus two.
void expect_alike(const VectorMessage& vector, std::uint32_t count)
{
    const Stem stem(with_one_element(vector));
    const auto inside = static_cast<std::uint32_t>(count * vector.record_size() % wrap / vector.record_size());
    std::uint32_t length = 0;
    // A fresh buffer each time, so that touched memory is returned.
    DecodeCheck check(stem.bytes.size() + std::size_t{4} * count);
    const std::uint8_t* const bytes = place(check.buffer(), stem, count, std::min(inside, 1U << 14) + 2, length);
    for (const std::uint32_t failing : {model::AllocationFaults::never, 0U, 1U, 2U, 5U}) {
        check.faults = {failing, false, 1 << 20};
        ASSERT_EQ(check.check(*vector.message, bytes, length), "") << count << ", failing allocation " << failing;
        ASSERT_TRUE(check.outcome().failure);
    }
}

TEST(WrappedBlock, is_never_overrun_and_is_released)
{
    std::uint32_t tried = 0;
    for (const VectorMessage& vector : vector_messages()) {
        // One element below the wrap, where the array is too large for any memory; at the wrap; some elements above it;
        // and a count for which the size wraps to zero.
        const std::uint64_t size = vector.record_size();
        for (const std::uint32_t count :
             {vector.count(0) - 1, vector.count(0), vector.count(size), vector.count(3 * size), vector.count(1 << 16),
              static_cast<std::uint32_t>(wrap / std::gcd(wrap, size))}) {
            const std::uint64_t bytes = std::uint64_t{4} * count + 4096;
            // Its array cannot wrap, as that needs a longer byte string than is accepted; or the process lacks address
            // space.
            if (bytes > max_input_bytes || !has_address_space(static_cast<std::size_t>(bytes)))
                continue;
            ++tried;
            ASSERT_NO_FATAL_FAILURE(expect_alike(vector, count)) << vector.message->name;
        }
    }
    std::printf("%u vectors tried\n", tried);
    EXPECT_GT(tried, all_modules_built ? 100U : 10U);
}

// The same with literal numbers: elements of 256 and of 16 bytes, of which 2^24 and 2^28 take 2^32 bytes, and elements
// with owned blocks in an array that holds one but not two.
TEST(WrappedBlock, zero_size_is_logged_by_the_vector_and_elements_that_fit_are_released)
{
    const struct {
        const char* message;
        std::size_t slot;   // of the vector
        const char* record;
        std::uint64_t rest;   // minimum size of the array in bytes
        std::uint32_t first_cell;
        const char* events;
        const char* left;
    } cases[] = {
        {"ifit_sync_ifit_session_entry_update", 1, "{7 [zero]}", 0, 0xFFFFFFFF, "", "{7 null*COUNT}"},
        {"ifit_sync_ifit_session_entry_update", 1, "{7 [zero]}", 0, 0,
         "ifit_sync_ifit_session_entry_update_unpack logs 22 [KESTO]:Param invalid(nonNull, LENGTH, null)\n",
         "{7 null*COUNT}"},
        {"synthetic_rows", 1, "{7 [zero] 9}", 0, 0,
         "synthetic_rows_unpack logs 22 [KESTO]:Param invalid(nonNull, LENGTH, null)\n", "{7 null*COUNT 0}"},
        {"ntvifit_entry_list_mdtlm", 0, "{[{0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 h'07' 0 null 0 0 0 null 0 0}] 9}",
         sizeof(ntvifit_entry_to_mdtlm), 0,
         "ntvifit_entry_list_mdtlm_unpack allocates block 0, size SIZE\n"
         "ntvifit_entry_to_mdtlm_unpack_non_root allocates block 1, size 1\n"
         "ntvifit_entry_to_mdtlm_free_unpacked releases block 1\n"
         "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
         "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
         "ntvifit_entry_list_mdtlm_free_unpacked releases block 0\n",
         "{null*COUNT 0}"},
    };
    for (const auto& each : cases) {
        if (is_left_out(each.message))
            continue;
        const model::Message& message = *expected_catalogue().find(each.message);
        const VectorMessage vector{&message, message.slots[each.slot].nested};
        const std::uint32_t count = vector.count(each.rest);
        model::Record record;
        std::string error;
        std::string_view text = each.record;
        ASSERT_TRUE(parse_record(message, text, record, error)) << error;
        const Stem stem(record);
        if (!has_address_space(stem.bytes.size() + std::size_t{4} * count))   // a 32-bit process
            continue;
        DecodeCheck check(stem.bytes.size() + std::size_t{4} * count);
        std::uint32_t length = 0;
        std::uint8_t* const bytes = place(check.buffer(), stem, count, 2, length);
        if (each.first_cell != 0)
            put(bytes + stem.cell, each.first_cell, 4);
        ASSERT_EQ(check.check(message, bytes, length), "");

        std::string events, expected = each.events + std::string(each.left);
        for (const model::Event& event : check.outcome().trace)
            events += to_text(event) + "\n";
        const auto size = static_cast<std::uint32_t>(count * vector.record_size());
        for (const auto& [word, value] : {std::pair{"LENGTH", length}, {"SIZE", size}, {"COUNT", count}})
            if (const std::size_t at = expected.find(word); at != std::string::npos)
                expected.replace(at, std::strlen(word), std::to_string(value));
        EXPECT_EQ(events + to_text(check.outcome().record), expected);
    }
}

}   // namespace

}   // namespace kesto::tests
