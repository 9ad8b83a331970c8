// Tests how much memory a byte string can request, and that a memory service with a budget stops it. The figures are
// those of docs/amplification.md.

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "model/decode.h"
#include "platform/standin/osal_standin.h"
#include "tests/support/figures.h"
#include "tools/operations.h"

namespace kesto::tests {

namespace {

using model::append;
using model::Bytes;
using model::Kind;
using model::Message;
using model::Slot;

constexpr char list[] = "ntvifit_entry_list_mdtlm";
constexpr std::uint32_t blocks_of_element = 3;

// A vtable that ends with the last used slot, and its table. All used slots have offset 4.
void append_table(Bytes& out, const std::vector<std::size_t>& used)
{
    const std::size_t slots = used.back() + 1;
    append(out, 4 + 2 * slots, 2);
    append(out, 0, 2);
    for (std::size_t k = 0; k < slots; ++k)
        append(out, std::count(used.begin(), used.end(), k) != 0 ? 4 : 0, 2);
    append(out, 4 + 2 * slots, 4);
}

// The list. All elements share one table, whose three blocks share one body.
Bytes list_of(std::uint64_t elements, std::uint64_t block)
{
    Bytes out;
    append(out, 10, 4);
    append_table(out, {0});
    append(out, 4, 4);
    append(out, elements, 4);
    const std::uint64_t table = out.size() + 4 * elements + 4 + 2 * 24;
    for (std::uint64_t i = 0; i < elements; ++i)
        append(out, table - out.size(), 4);
    append_table(out, {17, 19, 23});
    append(out, 4, 4);
    append(out, block, 4);
    out.resize(out.size() + static_cast<std::size_t>(block), 0x5A);
    return out;
}

// Decodes with this budget, then frees; the service aborts on a double free. Returns the counters between the two.
OsalStandinCounters decode(const Bytes& bytes, std::uint64_t budget)
{
    OsalStandinPlan plan{};
    plan.budget = budget;
    plan.use_memory = 1;   // logs are counted anyway
    osal_standin_set_plan(&plan);
    const tools::Operations& operations = tools::operations(list);
    std::vector<std::uint64_t> record((operations.record_size + 7) / 8);
    operations.unpack(bytes.data(), static_cast<std::uint32_t>(bytes.size()), record.data());
    OsalStandinCounters decoded, freed;
    osal_standin_counters(&decoded);
    operations.free_unpacked(record.data());
    osal_standin_counters(&freed);
    EXPECT_EQ(freed.live_bytes + freed.live_blocks, 0u);
    return decoded;
}

// Null for a message without a vector.
const Message* element_of(const Message& message)
{
    const auto vector = std::ranges::find(message.slots, Kind::vector, &Slot::kind);
    return vector == message.slots.end() ? nullptr : vector->nested;
}

std::uint64_t element_size()
{
    return element_of(*expected_catalogue().find(list))->layout(model::host_pointer_width).size;
}

std::uint32_t own_blocks(const Message& message)
{
    std::uint32_t count = 0;
    for (const Slot& slot : message.slots)
        count +=
            slot.kind == Kind::table ? own_blocks(*slot.nested) : slot.kind == Kind::bytes || slot.kind == Kind::string;
    return count;
}

std::vector<std::string> lines_of_document()
{
    std::istringstream document(read_file(KESTO_SOURCE_DIR "/docs/amplification.md"));
    std::vector<std::string> lines;
    for (std::string line; std::getline(document, line);)
        lines.push_back(line);
    return lines;
}

TEST(Document, states_the_memory_that_a_list_requests)
{
    int rows = 0;
    for (const std::string& line : lines_of_document()) {
        if (line.starts_with("| `ntvifit_stats_info_list`"))
            break;
        std::string cells = line.substr(std::min(line.size(), line.find('|', 1)));
        std::erase_if(cells, [](char c) { return c == '|' || c == ','; });
        std::istringstream numbers(cells);
        std::uint64_t length, elements, block, memory, blocks;
        if (!(numbers >> length >> elements >> block >> memory >> blocks))
            continue;
        ++rows;
        EXPECT_EQ(memory, elements * (152 + blocks_of_element * block)) << line;
        if (length > 20000)
            continue;   // needs too much memory for a test
        const Bytes bytes = list_of(elements, block);
        EXPECT_EQ(bytes.size(), length) << line;
        const OsalStandinCounters decoded = decode(bytes, OSAL_STANDIN_NO_LIMIT);
        EXPECT_EQ(decoded.live_bytes, memory - elements * (152 - element_size())) << line;
        EXPECT_EQ(decoded.live_blocks, blocks) << line;
    }
    EXPECT_EQ(rows, 4);
}

// A process must set a budget. The decode stops when it is exhausted, logs once and releases everything.
TEST(List, decoding_stops_at_the_budget)
{
    const Bytes bytes = list_of(7000, 30000);
    for (const std::uint64_t budget :
         {std::uint64_t{0}, 7000 * element_size() - 1, 7000 * element_size(), std::uint64_t{16} << 20}) {
        const OsalStandinCounters decoded = decode(bytes, budget);
        EXPECT_EQ(decoded.failures, 1u);
        EXPECT_EQ(decoded.log_records, 1u);
        EXPECT_LE(decoded.peak_bytes, budget);
        EXPECT_EQ(decoded.live_bytes + decoded.live_blocks, 0u);
    }
}

// The table of record sizes, and the assumptions of the formulas: vectors are not nested, and only two have elements
// with owned blocks.
TEST(Document, states_the_record_size_of_every_vector)
{
    const std::vector<std::string> lines = lines_of_document();
    std::vector<std::uint32_t> owning;   // owned blocks per element
    for (const Message& message : expected_catalogue().messages) {
        if (message.module == "synthetic")   // not in any document
            continue;
        const Message* const element = element_of(message);
        if (element == nullptr) {
            EXPECT_LE(own_blocks(message), 3u) << message.name;
            continue;
        }
        const std::string row =
            "| " + std::to_string(element->narrow.size) + " | " + std::to_string(element->wide.size) + " |";
        const auto line = std::ranges::find_if(lines, [&](const std::string& each) {
            return each.find("`" + message.name + "`") != std::string::npos && each.starts_with(row);
        });
        EXPECT_NE(line, lines.end()) << message.name << ", " << row;
        EXPECT_EQ(element_of(*element), nullptr) << element->name;
        EXPECT_TRUE(message.users.empty()) << message.name;
        if (own_blocks(*element) != 0)
            owning.push_back(own_blocks(*element));
    }
    EXPECT_EQ(owning, (std::vector<std::uint32_t>{blocks_of_element, 1}));
}

}   // namespace

}   // namespace kesto::tests
