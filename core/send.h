// Encoding as callers see it: packing into their buffer, and sending through MESH, singly and in batches.
#pragma once

#include "core/encode.h"
#include "core/fixed.h"
#include "platform/mesh.h"

namespace kesto {

// What packing and sending need to know about one message beyond its layout.
struct Encoder {
    u32 id;
    u32 record_size;
    Unit* unit;
    const char* pack_routine;            // the routine name that logs are given
    const NestedEncoder* nested;         // one for each table and vector, in slot order

    // Compact form, of messages with heap parts alone.
    u32 (*measure)(const u8* record, const NestedEncoder* nested);
    u8* (*write)(u8* buffer, const u8* record, const NestedEncoder* nested);   // returns the end

    // Fixed form; 0 and null where there is none.
    u32 fixed_length;
    void (*write_fixed)(u8* buffer, const u8* record);
};

constexpr int failed = -1;

// The body of X__pack.
template <class L>
[[gnu::noinline]] int pack(const u8* record, u8* buffer, u32* length, const Encoder& encoder)
{
    const u32 size = measure_message<L>(record, encoder.nested);
    if (size == 0 || *length < size)
        return failed;
    if (buffer == nullptr) [[unlikely]] {
        // required: a log line, and yet success with the size
        log_pack_parameters(*encoder.unit, encoder.pack_routine, buffer, *length, record);
    } else {
        ensure_memory_services(*encoder.unit);
        write_message<L>(buffer, record, encoder.nested);
    }
    *length = size;
    return 0;
}

// Hands items to MESH; a destination of 0 means none.
inline int hand_over(u32 channel, const MeshSendItem* items, u32 count, u32 destination)
{
    return destination != 0 ? MESH_SendToMsg(channel, items, count, destination) : MESH_SendMsg(channel, items, count);
}

// The bodies of X__sendsingle, X__sendbatch, and of X__sendmsg and X__sendtomsg together. Records lie end to end.

template <HeapFree L>
[[gnu::noinline]] int send_single_fixed(u32 channel, const u8* record, u32 /*unused*/, u32 destination, const Encoder& encoder)
{
    u8 buffer[L::fixed_length];
    ensure_memory_services(*encoder.unit);
    write_fixed<L>(buffer, record);
    const MeshSendItem item{buffer, encoder.id, L::fixed_length};
    return hand_over(channel, &item, 1, destination);
}

int send_single_compact(u32 channel, const u8* record, u32 unused, u32 destination, const Encoder& encoder);
int send_batch_fixed(u32 channel, const u8* records, u32 count, u32 destination, const Encoder& encoder);
int send_batch_compact(u32 channel, const u8* records, u32 count, u32 destination, const Encoder& encoder);

template <HeapFree L>
[[gnu::noinline]] int send_fixed(u32 channel, const u8* records, u32 count, u32 destination, const Encoder& encoder)
{
    if (count == 1)
        return send_single_fixed<L>(channel, records, 0, destination, encoder);
    if (count == 0)
        return failed;
    return send_batch_fixed(channel, records, count, destination, encoder);
}

int send_compact(u32 channel, const u8* records, u32 count, u32 destination, const Encoder& encoder);

}   // namespace kesto
