// Encoding for callers: packing into a caller's buffer, and sending through MESH, one record at a time or in batches.
#pragma once

#include "core/pack.h"
#include "platform/mesh.h"

namespace [[gnu::visibility("hidden")]] kesto {

struct Encoder;

// The encoding routines of one layout, shared by all messages of that layout.
struct LayoutEncoder {
    u32(KESTO_IN_REGISTERS* measure)(const u8* record,
                                     const NestedEncoder* nested);   // the compact form's size; 0 if none
    u8*(KESTO_IN_REGISTERS* write)(u8* buffer, const u8* record,
                                   const NestedEncoder* nested);   // the compact form; returns its end
    u64(KESTO_IN_REGISTERS* bound)(const u8* record, const NestedEncoder* nested);   // upper bound of that size
    void(KESTO_IN_REGISTERS* write_fixed)(u8* buffer, const u8* record);             // null if there is no fixed form
    int(KESTO_ENTRY* send_single)(KESTO_WITH_UNUSED(const Encoder& encoder, u32 channel, const u8* record, u32 unused,
                                                    u32 destination));
    u32 fixed_length;   // 0 if there is no fixed form
    u32 record_size;
};

// The constants of a message that packing and sending need besides its layout.
struct Encoder {
    const LayoutEncoder* layout;
    const NestedEncoder* nested;   // one for each table and vector, in slot order
    Unit* unit;
    const char* pack_routine;   // routine name for the log
    u32 id;
};

// Hands items to MESH. Destination 0 means no destination.
inline int hand_over(u32 channel, const MeshSendItem* items, u32 count, u32 destination)
{
    return destination != 0 ? MESH_SendToMsg(channel, items, count, destination) : MESH_SendMsg(channel, items, count);
}

// pack_measured is X__pack without its fast path, send_single_compact is X__sendsingle for layouts with owned blocks,
// send_batch is X__sendbatch, send_to is X__sendtomsg, and send is X__sendmsg. Records are contiguous.
KESTO_ENTRY int pack_measured(KESTO_WITH(const Encoder& encoder, const u8* record, u8* buffer, u32* length));
KESTO_ENTRY int send_single_compact(KESTO_WITH_UNUSED(const Encoder& encoder, u32 channel, const u8* record, u32 unused,
                                                      u32 destination));
KESTO_ENTRY int send_batch(KESTO_WITH(const Encoder& encoder, u32 channel, const u8* records, u32 count,
                                      u32 destination));
KESTO_ENTRY int send_to(KESTO_WITH(const Encoder& encoder, u32 channel, const u8* records, u32 count, u32 destination));
KESTO_ENTRY int send(KESTO_WITH(const Encoder& encoder, u32 channel, const u8* records, u32 count));

template <class L>
[[gnu::noinline]] KESTO_ENTRY int pack(KESTO_WITH(const Encoder& encoder, const u8* record, u8* buffer, u32* length))
{
    if (record == nullptr || buffer == nullptr || *length < bound_message<L>(record, encoder.nested)) [[unlikely]]
        return pack_measured(KESTO_WITH(encoder, record, buffer, length));
    ensure_memory_services(*encoder.unit);
    *length = static_cast<u32>(write_message<L>(buffer, record, encoder.nested) - buffer);
    return 0;
}

template <class L>
[[gnu::noinline]] KESTO_ENTRY int send_single(KESTO_WITH_UNUSED(const Encoder& encoder, u32 channel, const u8* record,
                                                                [[maybe_unused]] u32 unused, u32 destination))
{
    if constexpr (L::has_owned_blocks) {
        return send_single_compact(KESTO_WITH_UNUSED(encoder, channel, record, unused, destination));
    } else {
        u8 buffer[L::fixed_length];
        ensure_memory_services(*encoder.unit);
        if constexpr (L::is_short)
            FixedImage<L>::write_here(buffer, record);
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

}   // namespace gnu::visibility("hidden")]]kesto
