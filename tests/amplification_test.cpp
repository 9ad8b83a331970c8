// How much memory a byte string can ask for, and that a memory service with a budget ends it. The figures are those of
// docs/amplification.md.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

#include "platform/standin/osal_standin.h"
#include "reference/decode.h"
#include "tests/support/figures.h"
#include "tools/operations.h"

namespace kesto::tests {

namespace {

using reference::append;
using reference::Bytes;
using reference::Kind;
using reference::Message;
using reference::Slot;

const Message& message_of(const char* name) { return *transcribed().find(name); }

std::size_t first_slot(const Message& message, Kind kind)
{
    const auto found =
        std::find_if(message.slots.begin(), message.slots.end(), [&](const Slot& slot) { return slot.kind == kind; });
    return static_cast<std::size_t>(found - message.slots.begin());
}

// A vtable that ends with the last of the slots in use; all of them stand at offset 4 of the table behind it.
void append_table(Bytes& out, std::size_t slots, const std::vector<std::size_t>& used)
{
    append(out, 4 + 2 * slots, 2);
    append(out, 0, 2);
    for (std::size_t k = 0; k < slots; ++k)
        append(out, std::count(used.begin(), used.end(), k) != 0 ? 4 : 0, 2);
    append(out, 4 + 2 * slots, 4);
}

// A list whose elements are all one table. The slots of it that are `used` share one cell, with which `rest` begins.
Bytes list_of_one_table(std::uint32_t elements, const std::vector<std::size_t>& used, const Bytes& rest)
{
    Bytes out;
    append(out, 10, 4);
    append_table(out, 1, {0});
    append(out, 4, 4);
    append(out, elements, 4);
    const std::size_t slots = used.back() + 1;
    const std::size_t table = out.size() + 4 * std::size_t{elements} + 4 + 2 * slots;
    for (std::uint32_t i = 0; i < elements; ++i)
        append(out, table - out.size(), 4);
    append_table(out, slots, used);
    out.insert(out.end(), rest.begin(), rest.end());
    return out;
}

// A cell and the block that it leads to.
Bytes block_of(std::uint32_t length)
{
    Bytes out;
    append(out, 4, 4);
    append(out, length, 4);
    out.resize(8 + std::size_t{length}, 0x5A);
    return out;
}

// Entries with three blocks each.
Bytes entries(std::uint32_t elements, std::uint32_t block)
{
    return list_of_one_table(elements, {17, 19, 23}, block_of(block));
}

// Statistics whose fifth table, the application's data, has a block in its second slot.
Bytes statistics(std::uint32_t elements, std::uint32_t block)
{
    Bytes rest;
    append(rest, 4 + 8, 4);   // behind the vtable
    append_table(rest, 2, {1});
    const Bytes shared = block_of(block);
    rest.insert(rest.end(), shared.begin(), shared.end());
    return list_of_one_table(elements, {4}, rest);
}

// A record of either list, zeroed as callers do.
struct List {
    explicit List(const Message& list)
        : operations(tools::operations(list.name)), words((operations.record_size + 7) / 8)
    {
    }

    void decode(const Bytes& bytes)
    {
        operations.unpack(bytes.data(), static_cast<std::uint32_t>(bytes.size()), words.data());
    }
    void release() { operations.free_unpacked(words.data()); }

    const tools::Operations& operations;
    std::vector<std::uint64_t> words;
};

OsalStandinCounters counters()
{
    OsalStandinCounters now;
    osal_standin_counters(&now);
    return now;
}

void set_budget(std::uint64_t bytes)
{
    OsalStandinPlan plan;
    osal_standin_plan(&plan);
    plan.budget = bytes;
    plan.fail_at = plan.fail_from = 0;
    plan.use_memory = 1;
    plan.write_log = 0;   // counted all the same
    osal_standin_set_plan(&plan);
}

struct Shape {
    const char* list;
    std::uint32_t blocks;     // that each element owns
    std::uint32_t overhead;   // bytes beside the cells and the block
    Bytes (*bytes)(std::uint32_t elements, std::uint32_t block);
};

const Shape shapes[] = {
    {"ntvifit_entry_list_mdtlm", 3, 86, entries},
    {"ntvifit_stats_info_list", 1, 64, statistics},
};

class Owning : public testing::TestWithParam<Shape> {
protected:
    const Message& list() const { return message_of(GetParam().list); }
    std::uint64_t element_size() const
    {
        return list().slots[first_slot(list(), Kind::vector)].nested->layout(reference::host_pointer_width).size;
    }
};

INSTANTIATE_TEST_SUITE_P(All, Owning, testing::ValuesIn(shapes),
                         [](const auto& each) { return std::string(each.param.list); });

TEST_P(Owning, elements_cost_four_bytes_each_and_copy_the_same_block)
{
    for (const std::uint32_t length : {256U, 1024U, 4096U, 16384U}) {
        const std::uint32_t elements = (length - GetParam().overhead) / 8;
        const std::uint32_t block = length - GetParam().overhead - 4 * elements;
        const Bytes bytes = GetParam().bytes(elements, block);
        ASSERT_EQ(bytes.size(), length);
        set_budget(OSAL_STANDIN_NO_LIMIT);
        List record(list());
        record.decode(bytes);
        EXPECT_EQ(counters().live_blocks, 1 + std::uint64_t{GetParam().blocks} * elements);
        EXPECT_EQ(counters().live_bytes, elements * (element_size() + std::uint64_t{GetParam().blocks} * block));
        record.release();
        EXPECT_EQ(counters().live_blocks, 0U);
    }
}

// What a process has to set: the decode ends where the budget does, says so once and gives everything back.
TEST_P(Owning, elements_are_stopped_by_a_budget)
{
    const Bytes bytes = GetParam().bytes(7000, 30000);
    for (const std::uint64_t budget : {std::uint64_t{0}, 7000 * element_size() - 1, 7000 * element_size(),
                                       std::uint64_t{2} << 20, std::uint64_t{16} << 20}) {
        set_budget(budget);
        List record(list());
        record.decode(bytes);
        EXPECT_EQ(counters().failures, 1U);
        EXPECT_EQ(counters().log_records, 1U);
        EXPECT_LE(counters().peak_bytes, budget);
        EXPECT_EQ(counters().live_blocks, 0U);
        EXPECT_EQ(counters().live_bytes, 0U);
        record.release();   // aborts in the service if anything is given back twice
    }
}

// A cell of 0 leads to itself, a table whose vtable is that 0 again: a whole element without fields.
TEST(Plain, elements_take_four_bytes_each_and_nothing_else)
{
    const Message& list = message_of("ifit_sync_ifit_session_entry_update");
    const std::size_t vector = first_slot(list, Kind::vector);
    const std::uint32_t overhead = static_cast<std::uint32_t>(4 + 4 + 2 * (vector + 1) + 4 + 4 + 4);
    const std::uint32_t elements = (65536 - overhead) / 4;
    Bytes bytes;
    append(bytes, 4 + 4 + 2 * (vector + 1), 4);
    append_table(bytes, vector + 1, {vector});
    append(bytes, 4, 4);
    append(bytes, elements, 4);
    bytes.resize(bytes.size() + 4 * std::size_t{elements}, 0);
    set_budget(OSAL_STANDIN_NO_LIMIT);
    List record(list);
    record.decode(bytes);
    EXPECT_EQ(counters().live_blocks, 1U);
    EXPECT_EQ(counters().live_bytes, std::uint64_t{256} * elements);
    EXPECT_EQ(elements, 16378U);
    record.release();
    EXPECT_EQ(counters().live_blocks, 0U);
}

std::uint32_t own_blocks(const Message& message)
{
    std::uint32_t count = 0;
    for (const Slot& slot : message.slots)
        count +=
            slot.kind == Kind::table ? own_blocks(*slot.nested) : slot.kind == Kind::bytes || slot.kind == Kind::string;
    return count;
}

// The document's table, and what its formulas rest on: a vector stands in no other, and only two have owning elements.
TEST(Document, states_the_record_size_of_every_vector)
{
    std::istringstream document(read_file(KESTO_SOURCE_DIR "/docs/amplification.md"));
    std::vector<std::string> lines;
    for (std::string line; std::getline(document, line);)
        lines.push_back(line);
    for (const Message& message : transcribed().messages) {
        if (first_slot(message, Kind::vector) == message.slots.size()) {
            EXPECT_LE(own_blocks(message), 3U) << message.name;
            continue;
        }
        const Message& element = *message.slots[first_slot(message, Kind::vector)].nested;
        const std::string row =
            "| " + std::to_string(element.narrow.size) + " | " + std::to_string(element.wide.size) + " |";
        EXPECT_TRUE(std::any_of(lines.begin(), lines.end(),
                                [&](const std::string& line) {
                                    return line.starts_with(row) &&
                                           line.find("`" + message.name + "`") != std::string::npos;
                                }))
            << message.name << ", " << row;
        EXPECT_EQ(first_slot(element, Kind::vector), element.slots.size()) << element.name;
        EXPECT_TRUE(message.users.empty()) << message.name;
        const auto shape =
            std::find_if(std::begin(shapes), std::end(shapes), [&](auto& each) { return each.list == message.name; });
        EXPECT_EQ(own_blocks(element), shape == std::end(shapes) ? 0U : shape->blocks) << element.name;
    }
}

}   // namespace

}   // namespace kesto::tests
