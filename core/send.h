// Encoding for callers: packing into a caller's buffer, and sending through MESH, one record at a time or in batches.
#pragma once

#include "core/pack.h"

#pragma GCC visibility push(hidden)

namespace kesto {

struct Encoder;

// The encoding routines of one layout, shared by all messages of that layout, for one table without a root word.
struct LayoutEncoder {
    Size(KESTO_IN_REGISTERS* measure)(const u8* record, const NestedEncoder* nested);
    Size(KESTO_IN_REGISTERS* bound)(const u8* record, const NestedEncoder* nested);   // null if it is dense_length
    u8*(KESTO_IN_REGISTERS* write)(u8* vtable, const u8* record, const NestedEncoder* nested);
    void(KESTO_IN_REGISTERS* write_fixed)(u8* buffer,
                                          const u8* record);   // a whole message; null if it has no such form
    int(KESTO_ENTRY* send_single)(KESTO_WITH_UNUSED(const Encoder& encoder, u32 channel, const u8* record, u32 unused,
                                                    u32 destination));
    u32 dense_length;   // of a message that is a dense image
    u32 fixed_length;   // 0 if there is no fixed form
    u32 record_size;
    u32 root;   // position of the root table in compact form
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
inline int hand_over(const Unit& unit, u32 channel, const MeshSendItem* items, u32 count, u32 destination)
{
    return destination != 0 ? unit.send_to_msg(channel, items, count, destination)
                            : unit.send_msg(channel, items, count);
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

// The body of X__pack: `root` is the position of the root table, fits() says whether the largest message that the record
// may give fits the capacity, and write(vtable) writes the table.
template <class Fits, class Write>
[[gnu::always_inline]] inline int pack_by(const Encoder& encoder, const u8* record, u8* buffer, u32* length,
                                          const u32& root, const Fits& fits, const Write& write)
{
    if (record != nullptr) [[likely]] {
        if (buffer != nullptr && has_memory_services(*encoder.unit) && fits()) [[likely]] {
            store(buffer, root);
            *length = static_cast<u32>(write(buffer + root_bytes) - buffer);
            return 0;
        }
    }
    return pack_measured(KESTO_WITH(encoder, record, buffer, length));
}

// Whether a message with a table of this size has a length of 32 bits and fits the capacity.
inline bool table_fits(Size size, u32 capacity) { return capacity >= root_bytes && size <= capacity - root_bytes; }

template <class L>
[[gnu::noinline]] KESTO_ENTRY int pack_inline(KESTO_WITH(const Encoder& encoder, const u8* record, u8* buffer,
                                                         u32* length))
{
    return pack_by(
        encoder, record, buffer, length, root_bytes + L::vtable_bytes,
        [&]() __attribute__((always_inline)) {
            if constexpr (L::has_owned_blocks)
                return table_fits(measure_table<L, Measure::bound>(record, encoder.nested), *length);
            else
                return *length >= root_bytes + DenseImage<L>::length;
        },
        [&](u8 * vtable)
            __attribute__((always_inline)) { return write_short_table<L>(vtable, record, encoder.nested); });
}

// X__sendsingle for a message that has a fixed form. No stack protector: nothing but the image is written to the stack,
// at offsets that are asserted at compile time.
template <class L>
[[gnu::noinline]] __attribute__((no_stack_protector)) KESTO_ENTRY int
send_single_inline(KESTO_WITH_UNUSED(const Encoder& encoder, u32 channel, const u8* record, [[maybe_unused]] u32 unused,
                                     u32 destination))
{
    u8 buffer[L::fixed_length];
    ensure_memory_services(*encoder.unit);
    const MeshSendItem item{buffer, encoder.id, L::fixed_length};
    if constexpr (L::is_short)
        FixedImage<L>::write_here(buffer, record);
    else
        FixedImage<L>::write(buffer, record);
    return hand_over(*encoder.unit, channel, &item, 1, destination);
}

// With shared entries: X__pack for all layouts with owned blocks, X__pack for all flat layouts, and X__sendsingle for all
// flat layouts. Inline, so that only targets that call them compile them.
[[gnu::noinline]] KESTO_ENTRY inline int pack_owning(KESTO_WITH(const Encoder& encoder, const u8* record, u8* buffer,
                                                                u32* length))
{
    const LayoutEncoder& layout = *encoder.layout;
    return pack_by(
        encoder, record, buffer, length, layout.root,
        [&] { return table_fits(layout.bound(record, encoder.nested), *length); },
        [&](u8* vtable) { return layout.write(vtable, record, encoder.nested); });
}

[[gnu::noinline]] KESTO_ENTRY inline int pack_flat(KESTO_WITH(const Encoder& encoder, const u8* record, u8* buffer,
                                                              u32* length))
{
    const LayoutEncoder& layout = *encoder.layout;
    return pack_by(
        encoder, record, buffer, length, layout.root, [&] { return *length >= layout.dense_length; },
        [&](u8* vtable) { return layout.write(vtable, record, encoder.nested); });
}

[[gnu::noinline]] __attribute__((no_stack_protector)) KESTO_ENTRY inline int
send_single_fixed(KESTO_WITH_UNUSED(const Encoder& encoder, u32 channel, const u8* record, [[maybe_unused]] u32 unused,
                                    u32 destination))
{
    u8 buffer[fixed_buffer_bytes];
    ensure_memory_services(*encoder.unit);
    const LayoutEncoder& layout = *encoder.layout;
    const MeshSendItem item{buffer, encoder.id, layout.fixed_length};
    layout.write_fixed(buffer, record);
    return hand_over(*encoder.unit, channel, &item, 1, destination);
}

template <class L>
constexpr auto pack_entry()
{
    if constexpr (shares_entries && L::has_owned_blocks)
        return &pack_owning;
    else if constexpr (shares_entries)
        return &pack_flat;
    else
        return &pack_inline<L>;
}

template <class L>
constexpr auto send_single_entry()
{
    if constexpr (L::has_owned_blocks)
        return &send_single_compact;
    else if constexpr (shares_entries)
        return &send_single_fixed;
    else
        return &send_single_inline<L>;
}

template <class L>
constexpr LayoutEncoder layout_encoder = [] {
    LayoutEncoder made{};
    made.measure = measure_table<L, Measure::exactly>;
    made.write = write_table<L>;
    made.send_single = send_single_entry<L>();
    made.record_size = L::record_size;
    made.root = root_bytes + L::vtable_bytes;
    if constexpr (L::has_owned_blocks) {
        made.bound = measure_table<L, Measure::bound>;
    } else {
        made.dense_length = root_bytes + DenseImage<L>::length;
        made.write_fixed = FixedImage<L>::write;
        made.fixed_length = L::fixed_length;
    }
    return made;
}();

}   // namespace kesto

#pragma GCC visibility pop
