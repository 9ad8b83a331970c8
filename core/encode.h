// From record to compact form: a size routine that says how many bytes are needed, then a packer without bounds tests.
//
// Both walk the slots of a layout by the same rules, except for the two cases in which they are required to differ:
// a block with a pointer and length 0, and a vector with a count and no pointer.
#pragma once

#include "core/layout.h"
#include "core/run.h"
#include "core/unit.h"
#include "platform/bounded_memory.h"

namespace kesto {

struct NestedEncoder;

// The size of `count` tables without their cells; too_large when one of them or all do not fit 32 bits.
using MeasureElements = u64 (*)(const u8* records, u32 count, const NestedEncoder* nested);

// Writes `count` tables from `at` on and fills their cells. Returns the end of what was written.
using WriteElements = u8* (*)(u8* cells, u32 count, u8* at, const u8* records, const NestedEncoder* nested);

// A message inside another one, as far as encoding goes. The two routines are null for a table.
struct NestedEncoder {
    MeasureElements measure_elements;
    WriteElements write_elements;
    const NestedEncoder* nested;   // the messages inside that one
};

constexpr u64 largest_size = 0xFFFFFFFF;
constexpr u64 too_large = largest_size + 1;   // a sum that has passed 32 bits stays there

// ---- record fields ----

template <class T>
inline T field_value(const u8* field)
{
    T value;
    std::memcpy(&value, field, sizeof value);
    return value;
}

inline const u8* field_pointer(const u8* field) { return field_value<const u8*>(field); }

// ---- the size routine ----

// The size of one table and all beneath it, without a root.
template <class L>
u64 measure_table(const u8* record, const NestedEncoder* nested)
{
    u64 size = L::empty_table;
    const bool fits = each_slot<L>([&]<u32 K>() {
        using Slot = typename L::template Slot<K>;
        const u8* const field = record + L::record_offset[K];
        if constexpr (Slot::kind == Kind::scalar) {
            size += field_value<typename Slot::Value>(field) != 0 ? sizeof(typename Slot::Value) : 0;
        } else if constexpr (Slot::kind == Kind::array) {
            size += cell_bytes + count_bytes + Slot::payload;
        } else if constexpr (Slot::kind == Kind::text) {
            const u8* const text = field_pointer(field);
            if (text != nullptr)
                size += u64{cell_bytes + count_bytes} + std::strlen(reinterpret_cast<const char*>(text)) + 1;
        } else if constexpr (Slot::kind == Kind::block) {
            // required: the pointer alone decides, so a block of length 0 counts 8 bytes that nobody writes
            if (field_pointer(field + counted_pointer) != nullptr)
                size += u64{cell_bytes + count_bytes} + field_value<u32>(field);
        } else if constexpr (Slot::kind == Kind::vector) {
            // required: the count alone decides; a count without elements is the caller's fault
            const u32 count = field_value<u32>(field);
            if (count != 0) {
                const NestedEncoder& element = nested[L::nested_before(K)];
                size += cell_bytes + count_bytes + u64{cell_bytes} * count;
                size += element.measure_elements(field_pointer(field + counted_pointer), count, element.nested);
            }
        } else {
            size += cell_bytes;
            size += measure_table<typename Slot::Layout>(field, nested[L::nested_before(K)].nested);
        }
        return size <= largest_size;   // so that no sum ever wraps
    });
    return fits ? size : too_large;
}

template <class L>
u64 measure_elements(const u8* records, u32 count, const NestedEncoder* nested)
{
    u64 size = 0;
    for (u32 i = 0; i < count && size <= largest_size; ++i)
        size += measure_table<L>(records + std::size_t{i} * L::record_size, nested);
    return size;
}

// The size of a whole message, or 0 for a null record and for a size beyond 32 bits.
template <class L>
u32 measure_message(const u8* record, const NestedEncoder* nested)
{
    if (record == nullptr)
        return 0;
    const u64 size = root_bytes + measure_table<L>(record, nested);
    return size <= largest_size ? static_cast<u32>(size) : 0;
}

// ---- the packer ----

inline u32 distance(const u8* from, const u8* to) { return static_cast<u32>(to - from); }

// Writes one table, its vtable in front of it, and all beneath it from `vtable` on. Returns the end of what was written.
template <class L>
u8* write_table(u8* const vtable, const u8* record, const NestedEncoder* nested)
{
    u8* const table = vtable + L::vtable_bytes;
    u8* cursor = table + table_head_bytes;

    const auto present = [&](u32 k, const u8* at) {
        store(vtable + vtable_head_bytes + slot_bytes * k, static_cast<u16>(at - table));
    };
    const auto absent = [&](u32 k) { store(vtable + vtable_head_bytes + slot_bytes * k, u16{0}); };

    // The scalars that are not zero.
    each_slot<L>([&]<u32 K>() {
        using Slot = typename L::template Slot<K>;
        if constexpr (Slot::kind == Kind::scalar) {
            const auto value = field_value<typename Slot::Value>(record + L::record_offset[K]);
            if (value != 0) {
                present(K, cursor);
                store(cursor, value);
                cursor += sizeof value;
            } else {
                absent(K);
            }
        }
        return true;
    });

    // The cells, to be filled when it is known where they lead.
    std::array<u8*, L::slots> cells;   // read only for a slot that is not a scalar; null where nothing is written
    each_slot<L>([&]<u32 K>() {
        using Slot = typename L::template Slot<K>;
        const u8* const field = record + L::record_offset[K];
        if constexpr (Slot::kind != Kind::scalar) {
            bool written = true;
            if constexpr (Slot::kind == Kind::text)
                written = field_pointer(field) != nullptr;
            else if constexpr (Slot::kind == Kind::block || Slot::kind == Kind::vector)
                written = field_pointer(field + counted_pointer) != nullptr && field_value<u32>(field) != 0;
            cells[K] = written ? cursor : nullptr;
            if (written) {
                present(K, cursor);
                cursor += cell_bytes;
            } else {
                absent(K);
            }
        }
        return true;
    });

    // The bodies that belong to the table itself.
    each_slot<L>([&]<u32 K>() {
        using Slot = typename L::template Slot<K>;
        const u8* const field = record + L::record_offset[K];
        if constexpr (Slot::kind == Kind::array) {
            store(cells[K], distance(cells[K], cursor));
            store(cursor, u32{Slot::count});
            cursor += count_bytes;
            if constexpr (host_has_wire_order || sizeof(typename Slot::Value) == 1)
                copy_run<Slot::payload>(cursor, field);
            else
                for (u32 i = 0; i < Slot::payload; i += sizeof(typename Slot::Value))
                    store(cursor + i, field_value<typename Slot::Value>(field + i));
            cursor += Slot::payload;
        } else if constexpr (Slot::kind == Kind::text) {
            if (cells[K] != nullptr) {
                const u8* const text = field_pointer(field);
                const u32 length = static_cast<u32>(std::strlen(reinterpret_cast<const char*>(text)));
                store(cells[K], distance(cells[K], cursor));
                store(cursor, length);
                memcpy_sOptAsm(cursor + count_bytes, length, text, length);
                cursor += count_bytes + std::size_t{length};
                *cursor++ = 0;
            }
        } else if constexpr (Slot::kind == Kind::block) {
            if (cells[K] != nullptr) {
                const u32 length = field_value<u32>(field);
                store(cells[K], distance(cells[K], cursor));
                store(cursor, length);
                memcpy_sOptAsm(cursor + count_bytes, length, field_pointer(field + counted_pointer), length);
                cursor += count_bytes + std::size_t{length};
            }
        } else if constexpr (Slot::kind == Kind::vector) {
            if (cells[K] != nullptr) {
                const u32 count = field_value<u32>(field);
                store(cells[K], distance(cells[K], cursor));
                store(cursor, count);
                cells[K] = cursor + count_bytes;   // from here on the first element's cell
                cursor += count_bytes + std::size_t{cell_bytes} * count;
            }
        }
        return true;
    });

    store(vtable, static_cast<u16>(L::vtable_bytes));
    store(vtable + 2, static_cast<u16>(cursor - table));   // truncated beyond 64 KiB: no reader looks at it
    store(table, u32{L::vtable_bytes});

    // What lies beneath.
    each_slot<L>([&]<u32 K>() {
        using Slot = typename L::template Slot<K>;
        const u8* const field = record + L::record_offset[K];
        if constexpr (Slot::kind == Kind::table) {
            store(cells[K], distance(cells[K], cursor + Slot::Layout::vtable_bytes));
            cursor = write_table<typename Slot::Layout>(cursor, field, nested[L::nested_before(K)].nested);
        } else if constexpr (Slot::kind == Kind::vector) {
            if (cells[K] != nullptr) {
                const NestedEncoder& element = nested[L::nested_before(K)];
                cursor = element.write_elements(cells[K], field_value<u32>(field), cursor,
                                                field_pointer(field + counted_pointer), element.nested);
            }
        }
        return true;
    });
    return cursor;
}

template <class L>
u8* write_elements(u8* cells, u32 count, u8* at, const u8* records, const NestedEncoder* nested)
{
    for (u32 i = 0; i < count; ++i) {
        u8* const cell = cells + std::size_t{cell_bytes} * i;
        store(cell, distance(cell, at + L::vtable_bytes));
        at = write_table<L>(at, records + std::size_t{i} * L::record_size, nested);
    }
    return at;
}

// Writes a whole message into a buffer that has room for it. Returns the end of what was written.
template <class L>
u8* write_message(u8* buffer, const u8* record, const NestedEncoder* nested)
{
    store(buffer, root_bytes + L::vtable_bytes);
    return write_table<L>(buffer + root_bytes, record, nested);
}

}   // namespace kesto
