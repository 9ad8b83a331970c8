// Encoding as callers see it: packing into their buffer, and sending through MESH, singly and in batches.
#pragma once

#include "core/pack.h"
#include "platform/mesh.h"

namespace kesto {

struct Encoder;

// Encoding of one layout, shared by its messages.
struct LayoutEncoder {
    u32 (*measure)(const u8* record, const NestedEncoder* nested);             // the compact form's size, 0 for none
    u8* (*write)(u8* buffer, const u8* record, const NestedEncoder* nested);   // the compact form; returns its end
    u64 (*bound)(const u8* record, const NestedEncoder* nested);               // of the compact form's size
    void (*write_fixed)(u8* buffer, const u8* record);                         // null where there is no fixed form
    int (*send_single)(u32 channel, const u8* record, u32 destination, const Encoder& encoder);
    u32 fixed_length;   // 0 where there is none
    u32 record_size;
};

// One message, as far as packing and sending go beyond its layout.
struct Encoder {
    const LayoutEncoder* layout;
    const NestedEncoder* nested;   // one for each table and vector, in slot order
    Unit* unit;
    const char* pack_routine;   // the routine name that logs are given
    u32 id;
};

// Hands items to MESH; a destination of 0 means none.
inline int hand_over(u32 channel, const MeshSendItem* items, u32 count, u32 destination)
{
    return destination != 0 ? MESH_SendToMsg(channel, items, count, destination) : MESH_SendMsg(channel, items, count);
}

// The bodies of X__pack, X__sendsingle, X__sendbatch, and of X__sendmsg and X__sendtomsg together. Records lie end to
// end.
int pack_measured(const u8* record, u8* buffer, u32* length, const Encoder& encoder);
int send_single_compact(u32 channel, const u8* record, u32 destination, const Encoder& encoder);
int send_batch(u32 channel, const u8* records, u32 count, u32 destination, const Encoder& encoder);
int send(u32 channel, const u8* records, u32 count, u32 destination, const Encoder& encoder);

template <class L>
[[gnu::noinline]] int pack(const u8* record, u8* buffer, u32* length, const Encoder& encoder)
{
    if (record == nullptr || buffer == nullptr || *length < bound_message<L>(record, encoder.nested)) [[unlikely]]
        return pack_measured(record, buffer, length, encoder);
    ensure_memory_services(*encoder.unit);
    *length = static_cast<u32>(write_message<L>(buffer, record, encoder.nested) - buffer);
    return 0;
}

template <class L>
[[gnu::noinline]] int send_single(u32 channel, const u8* record, u32 destination, const Encoder& encoder)
{
    if constexpr (L::has_owned_blocks) {
        return send_single_compact(channel, record, destination, encoder);
    } else {
        u8 buffer[L::fixed_length];
        ensure_memory_services(*encoder.unit);
        if constexpr (L::is_small)
            FixedImage<L>::write_here({buffer}, record);
        else
            FixedImage<L>::write(buffer, record);
        const MeshSendItem item{buffer, encoder.id, L::fixed_length};
        return hand_over(channel, &item, 1, destination);
    }
}

template <class L>
constexpr LayoutEncoder layout_encoder = [] {
    LayoutEncoder made{measure_message<L>, write_message<L>, bound_message<L>, nullptr, send_single<L>, 0,
                       L::record_size};
    if constexpr (!L::has_owned_blocks) {
        made.write_fixed = FixedImage<L>::write;
        made.fixed_length = L::fixed_length;
    }
    return made;
}();

}   // namespace kesto
