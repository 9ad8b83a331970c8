// The peak memory that kesto uses for byte strings that request a lot of memory.

#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>
#include <nlohmann/json.hpp>

#include "model/encode.h"
#include "tools/kesto/commands.h"

namespace {

std::size_t held = 0, peak = 0;

}   // namespace

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    void* const block = std::malloc(size);
    if (block != nullptr)
        peak = std::max(peak, held += malloc_usable_size(block));
    return block;
}
void* operator new(std::size_t size)
{
    if (void* const block = operator new(size, std::nothrow))
        return block;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* block) noexcept
{
    held -= malloc_usable_size(block);
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

namespace kesto::tests {

namespace {

using command::find_message;
using model::append;
using model::Bytes;
using model::Record;

constexpr std::size_t packet_length = 64 << 10;

// Bytes of a message with a u16 and a vector: cells that lead to tables without slots, `step` apart, as many as the
// packet holds.
Bytes many_elements(std::size_t step)
{
    Bytes bytes = command::bytes_from_hex("0c000000 08000800 0000 0400 08000000 04000000");
    const std::size_t count = (packet_length - 28) / (4 + step);
    append(bytes, count, 4);
    const std::size_t tables = bytes.size() + 4 * count;
    for (std::size_t i = 0; i < count; ++i)
        append(bytes, tables + i * step - bytes.size(), 4);
    bytes.resize(tables + count * step + 4);   // zeros: a table whose vtable is itself, of length 0
    return bytes;
}

Bytes one_text(std::uint8_t octet)
{
    Record record = model::zero_record(*find_message("ifit_dfx_query_glbdata_item_mesh"));
    record.fields[0].present = true;
    record.fields[0].octets.assign(1 << 20, octet);
    return model::compact_form(record);
}

Bytes full_elements()
{
    const model::Message& message = *find_message("ifit_flow_base_mesh_update");
    Record record = model::zero_record(message);
    record.fields[1].present = true;
    record.fields[1].number = 5000;
    Record element = model::zero_record(*message.slots[1].nested);
    for (model::Field& field : element.fields)
        field.number = 0xff;
    record.fields[1].records.assign(record.fields[1].number, element);
    return model::compact_form(record);
}

// The peak memory beyond what was held before. Printed output goes to a file.
template <class Work>
std::size_t memory_of(Work work)
{
    testing::internal::CaptureStdout();
    const std::size_t before = held;
    peak = before;
    work();
    const std::size_t used = peak - before;
    testing::internal::GetCapturedStdout();
    return used;
}

TEST(Memory, decode_stays_within_its_limit)
{
    const struct {
        const char* message;
        Bytes bytes;
    } cases[] = {
        {"ifit_flow_base_mesh_update", many_elements(0)},
        {"ifit_flow_base_mesh_update", many_elements(1)},
        {"ifit_request_app_pid_smooth_mesh", many_elements(0)},
        {"ifit_flow_base_mesh_update", full_elements()},
        {"ifit_dfx_query_glbdata_item_mesh", one_text('a')},
        {"ifit_dfx_query_glbdata_item_mesh", one_text(1)},      // six characters in JSON
        {"ifit_dfx_query_glbdata_item_mesh", one_text(0xff)},   // hex
    };
    constexpr std::size_t overhead = 64 << 10;   // tables and the like, independent of the bytes
    for (const auto& each : cases) {
        const model::Message& message = *find_message(each.message);
        bool refused = false, accepted = false;
        for (std::size_t limit = 1000; !accepted; limit = limit * 5 / 4) {
            ASSERT_LT(limit, 1000000000u);
            const std::size_t used = memory_of([&] {
                try {
                    accepted = command::decode_bytes(message, each.bytes, {.most_memory = limit}) == command::accepted;
                } catch (const command::Fault& fault) {
                    refused = true;
                }
            });
            ASSERT_LE(used, limit + overhead) << each.message << ", " << each.bytes.size() << " bytes";
        }
        EXPECT_TRUE(refused) << each.message;
    }
}

TEST(Memory, explanation_is_bounded_for_hostile_packets)
{
    const model::Message& message = *find_message("ifit_flow_base_mesh_update");
    command::ExplainChoices as_json;
    as_json.json = true;
    for (const unsigned step : {0u, 1u}) {
        const Bytes bytes = many_elements(step);
        EXPECT_LT(memory_of([&] { command::explain_bytes(message, bytes, {}); }), 48u << 20) << step;
        EXPECT_LT(memory_of([&] { command::explain_bytes(message, bytes, as_json); }), 96u << 20) << step;
        EXPECT_LT(memory_of([&] { command::explain_raw(bytes, true); }), 32u << 20) << step;
    }
}

// Bytes produced by a message's own writer are never read twice.
TEST(Tries, stop_when_bytes_are_read_again)
{
    const Bytes bytes = many_elements(0);
    const command::Fitting fitting = command::fitting_messages(bytes, bytes.size());
    EXPECT_GT(fitting.given_up, 0u);
    EXPECT_LE(fitting.bytes_read, (fitting.given_up + fitting.accepted.size()) * bytes.size() + (64u << 10));
    EXPECT_EQ(command::fitting_messages(full_elements(), full_elements().size()).written_so,
              std::vector<std::string>{"ifit_flow_base_mesh_update"});
}

}   // namespace

}   // namespace kesto::tests
