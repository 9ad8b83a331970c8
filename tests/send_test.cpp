// Encoding as callers see it, apart from the bytes: refusals by X__pack, the four send operations, registration.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "ifit_dfx.h"
#include "model/generate.h"
#include "model/memory.h"
#include "ntvifit.h"
#include "tests/support/every_message.h"
#include "tests/support/malloc_double.h"
#include "tests/support/mesh_double.h"
#include "tests/support/services_double.h"

namespace kesto::tests {

namespace {

using model::Density;
using model::Message;
using model::Record;
using model::RecordMemory;

constexpr std::uint32_t pool = 65536;

class EverySend : public EveryMessageTest {
protected:
    void SetUp() override
    {
        mesh().reset();
        services().start();
    }

    std::vector<Record> records(std::uint32_t count) const
    {
        model::Random random(message().id);
        std::vector<Record> made;
        for (std::uint32_t i = 0; i < count; ++i)
            made.push_back(model::random_record(message(), i % 2 == 0 ? Density::full : Density::sparse, random));
        return made;
    }
};

KESTO_FOR_EVERY_MESSAGE(EverySend);

// sendmsg and sendtomsg refuse a count of 0, send one record as a single message and more as a batch. sendbatch itself
// passes an empty batch to MESH.
TEST_P(EverySend, record_count_selects_single_send_or_batch)
{
    const std::vector<Record> made = records(3);
    const RecordMemory memory(made);
    mesh().send_result = 42;
    EXPECT_EQ(library().sendmsg(1, memory.data(), 0), -1);
    EXPECT_EQ(library().sendtomsg(1, memory.data(), 0, 9), -1);
    EXPECT_TRUE(mesh().sends.empty());
    EXPECT_EQ(library().sendmsg(1, memory.data(), 1), 42);
    EXPECT_EQ(library().sendtomsg(2, memory.data(), 3, 9), 42);
    EXPECT_EQ(library().sendtomsg(3, memory.data(), 2, 0), 42);
    EXPECT_EQ(library().sendsingle(4, memory.data(), 1234, 8), 42);
    EXPECT_EQ(library().sendbatch(5, memory.data(), 3, 0), 42);
    EXPECT_EQ(library().sendbatch(6, nullptr, 0, 0), 42);
    ASSERT_EQ(mesh().sends.size(), 6u);
    const struct {
        bool to;
        std::uint32_t channel, destination;
        std::size_t count;
    } expected[] = {{false, 1, 0, 1}, {true, 2, 9, 3},  {false, 3, 0, 2},
                    {true, 4, 8, 1},  {false, 5, 0, 3}, {false, 6, 0, 0}};
    for (std::size_t i = 0; i < 6; ++i) {
        const SendCall& call = mesh().sends[i];
        EXPECT_EQ(call.to_destination, expected[i].to);
        EXPECT_EQ(call.channel, expected[i].channel);
        EXPECT_EQ(call.destination, expected[i].destination);
        ASSERT_EQ(call.sent.size(), expected[i].count);
        for (std::size_t k = 0; k < call.sent.size(); ++k) {
            ByteString bytes = both_forms(made[k]).back();
            if (!fixed())
                bytes.resize(model::reported_size(model::exact_size(made[k])), 0);
            EXPECT_EQ(model::to_hex(call.sent[k].bytes), model::to_hex(bytes));
            EXPECT_EQ(call.sent[k].id, message().id);
        }
    }
    EXPECT_EQ(services().difference({}), "");   // send buffers never come from the services
}

TEST_P(EverySend, allocates_the_documented_size_and_frees_it_before_returning)
{
    if (!malloc_double_works)
        GTEST_SKIP() << "malloc belongs to the sanitizer";
    const std::vector<Record> made = records(3);
    const RecordMemory memory(made);
    const std::size_t item = sizeof(MeshSendItem);
    mesh().keeps_sends = false;
    mesh().send_result = -3;   // a refusal by MESH changes nothing
    for (const std::uint32_t n : {1u, 3u}) {
        std::size_t size = n == 1 ? model::reported_size(model::exact_size(made[0])) : pool + n * item;
        if (fixed())
            size = n == 1 ? 0 : n * (message().fixed_length + item);
        const std::uint32_t blocks = size == 0 ? 0 : 1;
        {
            const WatchMalloc watch;
            EXPECT_EQ(library().sendmsg(1, memory.data(), n), -3);
        }
        EXPECT_EQ(malloc_watch.mallocs, blocks) << n;
        EXPECT_EQ(malloc_watch.frees, blocks) << n;
        EXPECT_EQ(malloc_watch.sizes[0], size) << n;
        mesh().send_calls = 0;
        {
            const WatchMalloc watch(0, true);
            EXPECT_EQ(library().sendmsg(1, memory.data(), n), blocks == 0 ? -3 : -1);
        }
        EXPECT_EQ(malloc_watch.frees, 0u);
        EXPECT_EQ(mesh().send_calls, 1 - blocks);
    }
}

TEST_P(EverySend, pack_refuses_a_null_record_and_allows_a_null_buffer)
{
    const RecordMemory memory(records(1));
    std::uint32_t length = 1000;
    std::uint8_t byte = 0;
    EXPECT_EQ(library().pack(nullptr, &byte, &length), -1);
    EXPECT_EQ(length, 1000u);
    length = 13;
    EXPECT_EQ(library().pack(memory.data(), nullptr, &length), -1);   // too small: no log line either
    EXPECT_EQ(length, 13u);
    EXPECT_EQ(services().difference({}), "");

    length = pool;
    EXPECT_EQ(library().pack(memory.data(), nullptr, &length), 0);
    EXPECT_EQ(length, model::reported_size(model::exact_size(records(1)[0])));
    model::Event log;
    log.routine = {&message(), model::RoutineKind::pack};
    log.format = model::Format::pack_parameters;
    log.arguments = {0, pool, 1};
    EXPECT_EQ(services().difference({log}), "");
}

// A null record is refused if the form is not fixed. A count whose block would exceed 32 bits is refused before the
// allocation.
TEST_P(EverySend, refused_calls_send_nothing)
{
    if (!fixed()) {
        const WatchMalloc watch;
        EXPECT_EQ(library().sendsingle(1, nullptr, 0, 0), -1);
        for (const std::uint32_t n : {1U, 2U, 3U}) {
            EXPECT_EQ(library().sendmsg(1, nullptr, n), -1);
            EXPECT_EQ(library().sendtomsg(1, nullptr, n, 2), -1);
            EXPECT_EQ(library().sendbatch(1, nullptr, n, 0), -1);
        }
        EXPECT_EQ(malloc_watch.frees, malloc_watch.mallocs);
    }
    const RecordMemory memory(records(1));
    const std::uint32_t wraps = static_cast<std::uint32_t>((std::uint64_t{1} << 32) / sizeof(MeshSendItem)) + 1;
    for (const std::uint32_t count : {0xFFFFFFFFU, wraps}) {
        {
            const WatchMalloc watch(0, true);   // a wrapped size would be too small
            EXPECT_EQ(library().sendmsg(1, memory.data(), count), -1);
            EXPECT_EQ(library().sendbatch(1, memory.data(), count, 2), -1);
        }
        EXPECT_EQ(malloc_watch.mallocs, 0u) << count;
    }
    EXPECT_TRUE(mesh().sends.empty());
}

// A failed decode leaves such a record. Every routine must refuse it, with any capacity.
TEST_P(EverySend, every_operation_refuses_a_vector_with_a_count_and_a_null_pointer)
{
    for (std::size_t k = 0; k < message().slots.size(); ++k) {
        if (message().slots[k].kind != model::Kind::vector)
            continue;
        const RecordMemory memory(records(2));
        auto* const field =
            static_cast<std::uint8_t*>(memory.data()) + message().layout(model::host_pointer_width).offsets[k];
        const std::uint32_t count = 2;
        std::memcpy(field, &count, sizeof count);
        std::memset(field + sizeof(void*), 0, sizeof(void*));
        std::vector<std::uint8_t> buffer(pool);
        for (const std::uint32_t capacity : {4U, message().compact_zero, message().compact_zero + 16, pool}) {
            std::uint32_t length = capacity;
            EXPECT_EQ(library().pack(memory.data(), buffer.data(), &length), -1);
            EXPECT_EQ(length, capacity);
        }
        EXPECT_EQ(library().sendsingle(1, memory.data(), 0, 0), -1);
        EXPECT_EQ(library().sendbatch(1, memory.data(), 1, 0), -1);
        EXPECT_EQ(library().sendmsg(1, memory.data(), 2), -1);
        EXPECT_EQ(model::exact_size(message(), memory.data()) >> 32, 1U);
    }
    EXPECT_TRUE(mesh().sends.empty());
}

// Two records that fill the 64 KiB exactly, and then one byte more. The first has an odd size and leaves no gap.
TEST(BatchPool, can_be_filled_exactly_but_not_exceeded)
{
    const std::uint32_t overhead = 18 + 8;   // bytes of a frame besides its block, if all its numbers are zero
    std::vector<std::uint8_t> block(pool);
    ifit_dfx_query_comm_param_mesh frames[2] = {};
    for (const std::uint32_t more : {0u, 1u}) {
        mesh().reset();
        frames[0].f2 = {pool / 2 - overhead - 1, block.data()};
        frames[1].f2 = {pool / 2 - overhead + 1 + more, block.data()};
        const int result = ifit_dfx_query_comm_param_mesh__sendmsg(1, frames, 2);
        EXPECT_EQ(result, more == 0 ? 0 : -1);
        EXPECT_EQ(mesh().sends.size(), more == 0 ? 1u : 0u);   // not even the record that fitted
    }

    mesh().reset();
    ifit_dfx_query_comm_param_mesh three[3] = {frames[0], frames[1], {}};   // the third would fit in the second's place
    EXPECT_EQ(ifit_dfx_query_comm_param_mesh__sendmsg(1, three, 3), -1);

    three[1].f2.length -= 1;   // the pool is full before the third
    EXPECT_EQ(ifit_dfx_query_comm_param_mesh__sendmsg(1, three, 3), -1);
    EXPECT_TRUE(mesh().sends.empty());

    frames[0].f2.length = pool;   // a single message has no such limit
    EXPECT_EQ(ifit_dfx_query_comm_param_mesh__sendmsg(1, frames, 1), 0);
    ASSERT_EQ(mesh().sends.size(), 1u);
    EXPECT_EQ(mesh().sends[0].sent[0].bytes.size(), pool + overhead);
}

TEST(BatchPool, fixed_batches_are_contiguous_and_may_be_larger)
{
    mesh().reset();
    const std::uint32_t count = 3000;
    const std::vector<ifit_dfx_query_stat_cond_mesh> rows(count);
    EXPECT_EQ(ifit_dfx_query_stat_cond_mesh__sendmsg(1, rows.data(), count), 0);
    const SendCall& call = mesh().sends.at(0);
    ASSERT_EQ(call.sent.size(), count);
    for (std::uint32_t i = 0; i < count; ++i)
        EXPECT_EQ(call.sent[i].data, call.sent[0].data + std::size_t{i} * 32);
    EXPECT_EQ(static_cast<const void*>(call.items), call.sent[0].data + std::size_t{count} * 32);
}

// Sums of sizes beyond 32 bits: the same texts and blocks are counted repeatedly. Needs memory only for the pointers.
TEST(Sizes, beyond_32_bits_are_refused)
{
    std::vector<ntvifit_entry_to_mdtlm> entries(3);
    std::uint8_t byte = 0;
    for (ntvifit_entry_to_mdtlm& entry : entries)
        entry.f17 = {0x7FFFFFFF, &byte};
    ntvifit_entry_list_mdtlm list = {};
    list.f0.items = entries.data();
    for (const std::uint32_t count : {2u, 3u}) {   // just beyond 32 bits, and a sum that would wrap to a small size
        list.f0.count = count;
        std::uint32_t length = 0xFFFFFFFF;
        EXPECT_EQ(ntvifit_entry_list_mdtlm__pack(&list, nullptr, &length), -1);
        EXPECT_EQ(length, 0xFFFFFFFF);
        EXPECT_EQ(ntvifit_entry_list_mdtlm__sendmsg(1, &list, 1), -1);
        EXPECT_EQ(ntvifit_entry_list_mdtlm__sendbatch(1, &list, 1, 0), -1);
    }
    const std::uint32_t around = 4 + 60 + 8;   // an element's cell, table and count
    list.f0.count = 1;
    std::uint32_t length = 0xFFFFFFFF;
    EXPECT_EQ(ntvifit_entry_list_mdtlm__pack(&list, nullptr, &length), 0);   // null buffer: nothing is written
    EXPECT_EQ(length, 24 + around + 0x7FFFFFFF);

    list.f0.count = 2;   // the largest possible size, and one more
    entries[1].f17.length = 0xFFFFFFFF - 24 - 2 * around - 0x7FFFFFFF;
    EXPECT_EQ(ntvifit_entry_list_mdtlm__pack(&list, nullptr, &length), -1);
    length = 0xFFFFFFFF;
    EXPECT_EQ(ntvifit_entry_list_mdtlm__pack(&list, nullptr, &length), 0);
    EXPECT_EQ(length, 0xFFFFFFFF);
    ++entries[1].f17.length;
    EXPECT_EQ(ntvifit_entry_list_mdtlm__pack(&list, nullptr, &length), -1);
}

TEST(Registration, registers_hooks_in_order_and_stops_at_the_first_failure)
{
    for (const tools::ModuleOperations& module : tools::module_operations()) {
        mesh().reset();
        EXPECT_EQ(module.recv_init(), 0);
        std::vector<const Message*> expected;
        for (const Message& message : expected_catalogue().messages)
            if (message.module == module.name)
                expected.push_back(&message);
        ASSERT_EQ(mesh().registrations.size(), expected.size()) << module.name;
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const Operations& library = operations(expected[i]->name);
            const Registered& registered = mesh().registrations[i];
            EXPECT_EQ(registered.id, expected[i]->id) << expected[i]->name;
            EXPECT_EQ(reinterpret_cast<void*>(registered.unpack), reinterpret_cast<void*>(library.unpack));
            EXPECT_EQ(reinterpret_cast<void*>(registered.free), reinterpret_cast<void*>(library.free_unpacked));
        }
        for (std::uint32_t k = 0; k < expected.size(); ++k) {
            mesh().reset();
            mesh().register_fails_at = k;
            mesh().register_result = -17;
            EXPECT_EQ(module.recv_init(), -17) << module.name;
            EXPECT_EQ(mesh().registrations.size(), k + 1) << module.name;
        }
        mesh().reset();
        mesh().clean_result = 3;
        EXPECT_EQ(module.send_init(), 3);
        ASSERT_EQ(mesh().clean_hooks.size(), 1u);
        EXPECT_EQ(mesh().clean_hooks[0], module.send_resource_clean);
        module.send_resource_clean();
    }
}

}   // namespace

}   // namespace kesto::tests
