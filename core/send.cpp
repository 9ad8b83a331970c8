#include "core/send.h"

#include <cstdlib>

namespace kesto {

namespace {

constexpr int failed = -1;
constexpr u32 stack_bytes = 1024;
constexpr u32 pool_bytes = 0x10000;   // for all byte strings of a compact batch together

// The size of a whole message. 0 for a null record and for a size that does not fit in 32 bits.
u32 measure_message(const u8* record, const Encoder& encoder)
{
    if (record == nullptr)
        return 0;
    const Size size = encoder.layout->measure(record, encoder.nested);
    return size <= too_large - root_bytes ? static_cast<u32>(root_bytes + size) : 0;
}

// Writes a whole message into a buffer, whose capacity must suffice. Returns the end of the output.
u8* write_message(u8* buffer, const u8* record, const Encoder& encoder)
{
    store(buffer, encoder.layout->root);
    return encoder.layout->write(buffer + root_bytes, record, encoder.nested);
}

// Packs one record for sending. For a block with a pointer and length 0 the packer writes fewer bytes than `size`. The
// rest is sent too, as zeros, so that no earlier content of malloc's memory leaves the process.
void write_sent(u8* buffer, u32 size, const u8* record, const Encoder& encoder)
{
    u8* const end = write_message(buffer, record, encoder);
    std::memset(end, 0, static_cast<std::size_t>(buffer + size - end));
}

// The size of a batch's only allocation: `data` bytes, then the items. 0 if it does not fit in 32 bits, because writing
// would overrun an allocation of the wrapped sum. This needs more records than a 32-bit process has room for.
u32 batch_bytes(u64 data, u32 count)
{
    const u64 bytes = data + u64{count} * sizeof(MeshSendItem);
    return bytes == static_cast<u32>(bytes) ? static_cast<u32>(bytes) : 0;
}

struct Batch {
    u8* data;   // also the whole allocation
    MeshSendItem* items;
};

// Allocates a batch of `data` bytes and `count` items. `data` must be a multiple of 8, so that the items are aligned.
[[nodiscard]] bool open_batch(u64 data, u32 count, Batch& batch)
{
    const u32 bytes = batch_bytes(data, count);
    if (bytes == 0 && count != 0)
        return false;
    u8* const memory = static_cast<u8*>(std::malloc(bytes));
    if (memory == nullptr)
        return false;
    batch = {memory, reinterpret_cast<MeshSendItem*>(memory + data)};
    return true;
}

// Packs one record into the pool after its first `used` bytes; `used` must be at most pool_bytes, so that
// pool_bytes - used does not wrap. The services are looked up only when the record is known to fit.
[[nodiscard]] bool add_to_pool(const Batch& batch, u32 i, u32& used, const u8* record, const Encoder& encoder)
{
    if (record == nullptr || used == pool_bytes)
        return false;
    u8* const at = batch.data + used;
    u32 size;
    if (sum(root_bytes, encoder.layout->bound(record, encoder.nested)) <= pool_bytes - used) {
        ensure_memory_services(*encoder.unit);
        size = static_cast<u32>(write_message(at, record, encoder) - at);
    } else {
        size = measure_message(record, encoder);
        if (size == 0 || size > pool_bytes - used)
            return false;
        ensure_memory_services(*encoder.unit);
        write_sent(at, size, record, encoder);
    }
    batch.items[i] = {at, encoder.id, size};
    used += size;
    return true;
}

int send_batch_fixed(u32 channel, const u8* records, u32 count, u32 destination, const Encoder& encoder)
{
    Batch batch;
    if (!open_batch(u64{count} * encoder.layout->fixed_length, count, batch))
        return failed;
    if (count != 0)
        ensure_memory_services(*encoder.unit);
    for (u32 i = 0; i < count; ++i) {
        u8* const at = batch.data + std::size_t{i} * encoder.layout->fixed_length;
        encoder.layout->write_fixed(at, records + std::size_t{i} * encoder.layout->record_size);
        batch.items[i] = {at, encoder.id, encoder.layout->fixed_length};
    }
    const int result = hand_over(*encoder.unit, channel, batch.items, count, destination);
    std::free(batch.data);
    return result;
}

int send_batch_compact(u32 channel, const u8* records, u32 count, u32 destination, const Encoder& encoder)
{
    Batch batch;
    if (!open_batch(pool_bytes, count, batch))
        return failed;
    bool all = true;
    u32 used = 0;
    for (u32 i = 0; i < count && all; ++i)
        all = add_to_pool(batch, i, used, records + std::size_t{i} * encoder.layout->record_size, encoder);
    const int result = all ? hand_over(*encoder.unit, channel, batch.items, count, destination) : failed;
    std::free(batch.data);
    return result;
}

}   // namespace

KESTO_ENTRY int pack_measured(KESTO_WITH(const Encoder& encoder, const u8* record, u8* buffer, u32* length))
{
    const u32 size = measure_message(record, encoder);
    if (size == 0 || *length < size)
        return failed;
    if (buffer == nullptr) [[unlikely]] {
        // required: a log line, although the call succeeds and returns the size
        log_pack_parameters(*encoder.unit, encoder.pack_routine, buffer, *length, record);
    } else {
        ensure_memory_services(*encoder.unit);
        write_message(buffer, record, encoder);
    }
    *length = size;
    return 0;
}

KESTO_ENTRY int send_single_compact(KESTO_WITH_UNUSED(const Encoder& encoder, u32 channel, const u8* record,
                                                      [[maybe_unused]] u32 unused, u32 destination))
{
    // A short message is packed on the stack, which takes less time than measuring it; its bound takes next to none.
    u8 packed[stack_bytes];
    const bool is_short = record != nullptr && has_memory_services(*encoder.unit) &&
                          sum(root_bytes, encoder.layout->bound(record, encoder.nested)) <= stack_bytes;
    const u32 size =
        is_short ? static_cast<u32>(write_message(packed, record, encoder) - packed) : measure_message(record, encoder);
    if (size == 0)
        return failed;
    u8* const buffer = static_cast<u8*>(std::malloc(size));
    if (buffer == nullptr)
        return failed;
    if (is_short) {
        std::memcpy(buffer, packed, size);
    } else {
        ensure_memory_services(*encoder.unit);
        write_sent(buffer, size, record, encoder);
    }
    const MeshSendItem item{buffer, encoder.id, size};
    const int result = hand_over(*encoder.unit, channel, &item, 1, destination);
    std::free(buffer);
    return result;
}

KESTO_ENTRY int send_batch(KESTO_WITH(const Encoder& encoder, u32 channel, const u8* records, u32 count,
                                      u32 destination))
{
    if (encoder.layout->write_fixed != nullptr)
        return send_batch_fixed(channel, records, count, destination, encoder);
    return send_batch_compact(channel, records, count, destination, encoder);
}

KESTO_ENTRY int send_to(KESTO_WITH(const Encoder& encoder, u32 channel, const u8* records, u32 count, u32 destination))
{
    if (count == 1)
        return encoder.layout->send_single(KESTO_WITH_UNUSED(encoder, channel, records, count, destination));
    if (count == 0)
        return failed;
    return send_batch(KESTO_WITH(encoder, channel, records, count, destination));
}

KESTO_ENTRY int send(KESTO_WITH(const Encoder& encoder, u32 channel, const u8* records, u32 count))
{
    return send_to(KESTO_WITH(encoder, channel, records, count, 0));
}

}   // namespace kesto
