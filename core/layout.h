// Everything that a list of slots determines at compile time: the offsets of each field in the record and in the fixed
// form, and the lengths of tables and forms.
//
// Messages of equal layout share their code: a Layout contains no names and ids, and the element of a vector is data
// (NestedDecoder in decode.h, NestedEncoder in measure.h).
#pragma once

#include <array>
#include <cstddef>
#include <tuple>

#include "core/wire.h"

namespace kesto {

enum class Kind : u8 { scalar, text, block, array, table, vector };

constexpr u32 rounded_up(u32 value, u32 multiple) { return (value + multiple - 1) / multiple * multiple; }

constexpr u32 pointer_bytes = sizeof(void*);

// Whether the routines of all layouts are called by one function through pointers, rather than each inlined in a function
// of its own: some two instructions a call for a seventh of the library, on 32-bit machines.
constexpr bool shares_entries = pointer_bytes == 4;

// ---- record fields, accessed as bytes: a caller's record may have any alignment ----

template <class T>
inline T field_value(const u8* field)
{
    T value;
    std::memcpy(&value, field, sizeof value);
    return value;
}

inline u8* field_pointer(const u8* field) { return field_value<u8*>(field); }

template <class T>
inline void set_field(u8* field, T value)
{
    std::memcpy(field, &value, sizeof value);
}

// ---- the slots of a layout ----

template <class T>
struct Scalar {
    using Value = T;
    static constexpr Kind kind = Kind::scalar;
    static constexpr u32 record_size = sizeof(T);
    static constexpr u32 record_align = sizeof(T);   // a u64 at a multiple of 8 on every target
    static constexpr u32 fixed_bytes = sizeof(T);
};

struct Text {
    static constexpr Kind kind = Kind::text;
    static constexpr u32 record_size = pointer_bytes;
    static constexpr u32 record_align = pointer_bytes;
    static constexpr u32 fixed_bytes = 0;
};

// A block or a vector is a u32 length or count, then a pointer at offset `counted_pointer`.
constexpr u32 counted_pointer = pointer_bytes;

struct Block {
    static constexpr Kind kind = Kind::block;
    static constexpr u32 record_size = 2 * pointer_bytes;
    static constexpr u32 record_align = pointer_bytes;
    static constexpr u32 fixed_bytes = 0;
};

struct Elements {
    static constexpr Kind kind = Kind::vector;
    static constexpr u32 record_size = 2 * pointer_bytes;
    static constexpr u32 record_align = pointer_bytes;
    static constexpr u32 fixed_bytes = 0;
};

template <class T, u32 N>
struct Array {
    static_assert(sizeof(T) == 1 || sizeof(T) == 4);   // decode_array in decode.cpp knows no other width
    using Value = T;
    static constexpr Kind kind = Kind::array;
    static constexpr u32 count = N;
    static constexpr u32 payload = N * sizeof(T);
    static constexpr u32 record_size = payload;
    static constexpr u32 record_align = sizeof(T);
    static constexpr u32 fixed_bytes = cell_bytes + count_bytes + payload;
};

// `fault_ends_read` is false in messages whose decoding continues when this nested table is refused.
template <class L, bool FaultEndsRead>
struct Nested {
    using Layout = L;
    static constexpr Kind kind = Kind::table;
    static constexpr bool fault_ends_read = FaultEndsRead;
    static constexpr u32 record_size = L::record_size;
    static constexpr u32 record_align = L::record_align;
    static constexpr u32 fixed_bytes = L::fixed_length;
};

template <class Slot>
constexpr bool holds_vectors()
{
    if constexpr (Slot::kind == Kind::table)
        return Slot::Layout::has_vectors;
    else
        return Slot::kind == Kind::vector;
}

// ---- the layout ----

template <class... Slots>
struct Layout {
    static constexpr u32 slots = sizeof...(Slots);
    template <u32 K>
    using Slot = std::tuple_element_t<K, std::tuple<Slots...>>;

    static constexpr std::array<Kind, slots> kinds{Slots::kind...};

    static constexpr u32 record_align = [] {
        u32 most = 1;
        ((most = Slots::record_align > most ? Slots::record_align : most), ...);
        return most;
    }();

    static constexpr std::array<u32, slots> record_offset = [] {
        std::array<u32, slots> offsets{};
        u32 k = 0, at = 0;
        ((offsets[k++] = at = rounded_up(at, Slots::record_align), at += Slots::record_size), ...);
        return offsets;
    }();

    static constexpr u32 record_size =
        rounded_up(record_offset[slots - 1] + Slot<slots - 1>::record_size, record_align);

    static constexpr bool has_owned_blocks = [] {
        bool any = false;
        ((any = any || Slots::fixed_bytes == 0), ...);
        return any;
    }();

    // Helpers shared by several routines are inline only up to this number of slots, where a call would cost more than
    // it saves; never on 32-bit machines, where code size matters more.
    static constexpr bool is_short = slots <= 14 && pointer_bytes == 8;

    // Whether every table, in any form, has at least 8 bytes after its scalars: a cell, and a body or a nested table.
    static constexpr bool has_tail = [] {
        bool any = false;
        ((any = any || Slots::kind == Kind::array || Slots::kind == Kind::table), ...);
        return any;
    }();

    static constexpr bool has_vectors = (holds_vectors<Slots>() || ...);

    static constexpr u32 vtable_bytes = vtable_head_bytes + slot_bytes * slots;

    // The number of tables and vectors before slot k, which is slot k's index in a message's list of them.
    static constexpr std::array<u32, slots + 1> nested_before = [] {
        std::array<u32, slots + 1> before{};
        for (u32 i = 0; i < slots; ++i)
            before[i + 1] = before[i] + (kinds[i] == Kind::table || kinds[i] == Kind::vector);
        return before;
    }();

    // ---- compact form ----

    static constexpr u32 empty_table = vtable_bytes + table_head_bytes;   // bytes of a table without fields

    // Offsets from the table if no field is absent: scalars first, then the cells of all others from `dense_cells` up to
    // `dense_head`.
    static constexpr u32 dense_cells =
        (table_head_bytes + ... + (Slots::kind == Kind::scalar ? Slots::record_size : 0));
    static constexpr u32 dense_head = (dense_cells + ... + (Slots::kind == Kind::scalar ? 0 : cell_bytes));
    static constexpr std::array<u32, slots> dense_offset = [] {
        std::array<u32, slots> offsets{};
        u32 k = 0, scalar = table_head_bytes, cell = dense_cells;
        ((offsets[k++] = Slots::kind == Kind::scalar ? std::exchange(scalar, scalar + Slots::record_size)
                                                     : std::exchange(cell, cell + cell_bytes)),
         ...);
        return offsets;
    }();

    // Whether the head image has slot k: every scalar; and every array and nested table, if a single slot has owned blocks
    // and comes last on the wire, where bodies precede nested tables. Otherwise, cells would be holes in the image.
    static constexpr std::array<bool, slots> in_head = [] {
        std::array<bool, slots> in{(Slots::kind == Kind::scalar)...};
        const std::array<bool, slots> owning{(Slots::fixed_bytes == 0)...};
        u32 left = 0;
        bool is_open = true;
        for (const bool tables : {false, true}) {
            for (u32 i = 0; i < slots; ++i) {
                if (in[i] || tables != (kinds[i] == Kind::table))
                    continue;
                is_open = is_open && !owning[i];
                in[i] = is_open;
                left += !is_open;
            }
        }
        if (left > 1)
            in = {(Slots::kind == Kind::scalar)...};
        return in;
    }();

    // Whether the head image goes on after the scalars. So does the dense image of a layout without owned blocks.
    static constexpr bool head_has_cells = [] {
        u32 left = 0;
        for (u32 i = 0; i < slots; ++i)
            left += !in_head[i];
        return left <= 1;
    }();

    // From the table to the end of its own bodies in the head image, and whether that has nested tables.
    static constexpr u32 head_table = [] {
        u32 k = 0, at = dense_head;
        ((at += Slots::kind == Kind::array && in_head[k] ? Slots::fixed_bytes - cell_bytes : 0, ++k), ...);
        return at;
    }();
    static constexpr bool head_has_tables = [] {
        u32 k = 0;
        bool any = false;
        ((any = any || (Slots::kind == Kind::table && in_head[k]), ++k), ...);
        return any;
    }();

    // ---- fixed form; offsets from the table ----

    static constexpr std::array<u32, slots> fixed_offset = [] {
        std::array<u32, slots> offsets{};
        u32 k = 0, at = table_head_bytes;
        ((offsets[k++] = at, at += Slots::fixed_bytes), ...);
        return offsets;
    }();

    static constexpr u32 fixed_table_bytes = (table_head_bytes + ... + Slots::fixed_bytes);
    static constexpr u32 fixed_vtable = root_bytes + rounded_up(fixed_table_bytes, 4);   // its position
    static constexpr u32 fixed_length = has_owned_blocks ? 0 : rounded_up(fixed_vtable + vtable_bytes, 8);

    // Calls visit<Slot>(k) for every slot, in order. Stops at the first call that returns false, and returns false.
    template <class Visit>
    [[gnu::always_inline]] static constexpr bool each_slot(Visit&& visit)
    {
        u32 k = 0;
        return (visit.template operator()<Slots>(k++) && ...);
    }
};

// The same with visit<k>(), for code that needs the slot number as a constant. It takes longer to compile.
template <class L, class Visit>
[[gnu::always_inline]] constexpr bool each_slot_number(Visit&& visit)
{
    return detail::each_number(visit, std::make_integer_sequence<u32, L::slots>());
}

}   // namespace kesto
