// The two pictures of a layout without heap parts: its fixed form, and its compact form when no scalar is zero.
#pragma once

#include "core/picture.h"

namespace kesto {

constexpr u32 fixed_buffer_bytes = 1024;   // no fixed form may be longer

namespace detail {

// A table's vtable. `offset` gives the offset of each slot, and `table_bytes` is what stands in its second half.
template <class L, class Constant>
constexpr void describe_vtable(Constant& constant, u32 vtable, u32 table_bytes, const std::array<u32, L::slots>& offset)
{
    constant(vtable, L::vtable_bytes, 2);
    constant(vtable + 2, table_bytes, 2);
    for (u32 k = 0; k < L::slots; ++k)
        constant(vtable + vtable_head_bytes + slot_bytes * k, offset[k], slot_bytes);
}

// The fixed form of a record that stands at `record` in the whole one, from `root` on. Of a nested form the root word
// is its slot's cell, and leads just as far.
template <class L, class Constant, class Field>
constexpr void describe_fixed(Constant& constant, Field& field, u32 record = 0, u32 root = 0)
{
    const u32 table = root + root_bytes;
    constant(root, root_bytes, 4);
    constant(table, root_bytes - L::fixed_vtable, 4);
    describe_vtable<L>(constant, root + L::fixed_vtable, L::fixed_table_bytes, L::fixed_offset);
    each_slot<L>([&](auto k) {
        constexpr u32 K = k;
        using Slot = typename L::template Slot<K>;
        const u32 from = record + L::record_offset[K];
        const u32 at = table + L::fixed_offset[K];
        if constexpr (Slot::kind == Kind::table) {
            describe_fixed<typename Slot::Layout>(constant, field, from, at);
        } else if constexpr (Slot::kind == Kind::array) {
            constant(at, cell_bytes, cell_bytes);
            constant(at + cell_bytes, Slot::count, count_bytes);
            field(Run{from, at + cell_bytes + count_bytes, Slot::payload, sizeof(typename Slot::Value)});
        } else {
            field(Run{from, at, Slot::record_size, Slot::record_size});
        }
        return true;
    });
}

// The compact form, without the root, of a record without a zero scalar: what write_table makes of it. Returns its end.
template <class L, class Constant, class Field>
constexpr u32 describe_full(Constant& constant, Field& field, u32 record = 0, u32 vtable = 0)
{
    const u32 table = vtable + L::vtable_bytes;
    constant(table, L::vtable_bytes, 4);
    u32 at = table + table_head_bytes;
    std::array<u32, L::slots> offset{};
    each_slot<L>([&](auto k) {
        constexpr u32 K = k;
        using Slot = typename L::template Slot<K>;
        if constexpr (Slot::kind == Kind::scalar) {
            offset[K] = at - table;
            field(Run{record + L::record_offset[K], at, Slot::record_size, Slot::record_size});
            at += Slot::record_size;
        }
        return true;
    });
    for (u32 k = 0; k < L::slots; ++k) {
        if (L::kinds[k] != Kind::scalar) {
            offset[k] = at - table;
            at += cell_bytes;
        }
    }
    each_slot<L>([&](auto k) {
        constexpr u32 K = k;
        using Slot = typename L::template Slot<K>;
        if constexpr (Slot::kind == Kind::array) {
            const u32 cell = table + offset[K];
            constant(cell, at - cell, cell_bytes);
            constant(at, Slot::count, count_bytes);
            at += count_bytes;
            field(Run{record + L::record_offset[K], at, Slot::payload, sizeof(typename Slot::Value)});
            at += Slot::payload;
        }
        return true;
    });
    describe_vtable<L>(constant, vtable, at - table, offset);
    each_slot<L>([&](auto k) {
        constexpr u32 K = k;
        using Slot = typename L::template Slot<K>;
        if constexpr (Slot::kind == Kind::table) {
            const u32 cell = table + offset[K];
            constant(cell, at + Slot::Layout::vtable_bytes - cell, cell_bytes);
            at = describe_full<typename Slot::Layout>(constant, field, record + L::record_offset[K], at);
        }
        return true;
    });
    return at;
}

template <class L>
struct FixedDescription {
    static constexpr u32 length = L::fixed_length;
    static_assert(length <= fixed_buffer_bytes);

    template <class Constant, class Field>
    static constexpr void walk(Constant&& constant, Field&& field)
    {
        describe_fixed<L>(constant, field);
    }
};

template <class L>
struct FullDescription {
    template <class Constant, class Field>
    static constexpr u32 walk(Constant&& constant, Field&& field)
    {
        return describe_full<L>(constant, field);
    }

    static constexpr u32 length = walk([](u32, u32, u32) {}, [](const Run&) {});
};

}   // namespace detail

template <class L>
using FixedForm = Picture<L, detail::FixedDescription<L>>;

template <class L>
using FullForm = Picture<L, detail::FullDescription<L>>;

// Whether FullForm is the compact form of this record, whose layout has no heap parts.
template <class L>
[[gnu::always_inline]] inline bool has_full_form(const u8* record)
{
    return each_slot<L>([&](auto k) __attribute__((always_inline)) {
        constexpr u32 K = k;
        using Slot = typename L::template Slot<K>;
        const u8* const field = record + L::record_offset[K];
        if constexpr (Slot::kind == Kind::scalar)
            return field_value<typename Slot::Value>(field) != 0;
        else if constexpr (Slot::kind == Kind::table)
            return has_full_form<typename Slot::Layout>(field);
        else
            return true;
    });
}

}   // namespace kesto
