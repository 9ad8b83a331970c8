// Encoding as callers see it: packing into their buffer, and sending through MESH, singly and in batches.
#pragma once

#include "core/encode.h"
#include "core/fixed.h"
#include "platform/mesh.h"

namespace kesto {

// What all messages of one layout encode with.
struct LayoutEncoder {
    u32 (*measure)(const u8* record, const NestedEncoder* nested);             // the compact form's size, 0 for none
    u8* (*write)(u8* buffer, const u8* record, const NestedEncoder* nested);   // the compact form; returns its end
    void (*write_fixed)(u8* buffer, const u8* record);                         // null where there is no fixed form
    u32 fixed_length;                                                          // 0 where there is none
    u32 record_size;
};

template <class L>
constexpr LayoutEncoder layout_encoder = [] {
    LayoutEncoder made{measure_message<L>, write_message<L>, nullptr, 0, L::record_size};
    if constexpr (!L::has_heap_parts) {
        made.write_fixed = write_fixed<L>;
        made.fixed_length = L::fixed_length;
    }
    return made;
}();

// What packing and sending need to know about one message beyond its layout.
struct Encoder {
    const LayoutEncoder* layout;
    const NestedEncoder* nested;   // one for each table and vector, in slot order
    Unit* unit;
    const char* pack_routine;   // the routine name that logs are given
    u32 id;
};

// The bodies of X__pack, X__sendsingle, X__sendbatch, and of X__sendmsg and X__sendtomsg together. Records lie end to
// end.
int pack(const u8* record, u8* buffer, u32* length, const Encoder& encoder);
int send_single(u32 channel, const u8* record, u32 unused, u32 destination, const Encoder& encoder);
int send_batch(u32 channel, const u8* records, u32 count, u32 destination, const Encoder& encoder);
int send(u32 channel, const u8* records, u32 count, u32 destination, const Encoder& encoder);

}   // namespace kesto
