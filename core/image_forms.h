// The two images of a layout: its fixed form, if it has one, and the compact form of a record without zeros.
#pragma once

#include "core/image.h"

namespace kesto {

constexpr u32 fixed_buffer_bytes = 1024;   // no fixed form may be longer

namespace detail {

constexpr u32 table_length_at = 2;   // in a vtable

// A vtable without the table length in it. `offset` holds the field offset of each slot.
template <class L>
constexpr void describe_vtable(const Constants& constant, u32 vtable, const std::array<u32, L::slots>& offset)
{
    constant(vtable, L::vtable_bytes, 2);
    for (u32 k = 0; k < L::slots; ++k)
        constant(vtable + vtable_head_bytes + slot_bytes * k, offset[k], slot_bytes);
}

// The fixed form of the record at offset `record` of the whole one, from position `root` on. In a nested form the
// slot's cell takes the place of the root word and has the same value.
template <class L>
constexpr void describe_fixed(Constants& constant, List<FieldRun>& field, u32 record = 0, u32 root = 0)
{
    const u32 table = root + root_bytes;
    constant(root, root_bytes, 4);
    constant(table, root_bytes - L::fixed_vtable, 4);
    describe_vtable<L>(constant, root + L::fixed_vtable, L::fixed_offset);
    constant(root + L::fixed_vtable + table_length_at, L::fixed_table_bytes, 2);
    L::each_slot([&]<class Slot>(u32 K) {
        const u32 from = record + L::record_offset[K];
        const u32 at = table + L::fixed_offset[K];
        if constexpr (Slot::kind == Kind::table) {
            describe_fixed<typename Slot::Layout>(constant, field, from, at);
        } else if constexpr (Slot::kind == Kind::array) {
            constant(at, cell_bytes, cell_bytes);
            constant(at + cell_bytes, Slot::count, count_bytes);
            field(FieldRun{from, at + cell_bytes + count_bytes, Slot::payload, sizeof(typename Slot::Value)});
        } else {
            field(FieldRun{from, at, Slot::record_size, Slot::record_size});
        }
        return true;
    });
}

// The compact form of a record in which no scalar is zero and nothing is absent, from the first slot of the vtable on, up
// to the first thing whose length is not constant. It equals the output of write_table. Returns its end.
template <class L>
constexpr u32 describe_compact(Constants& constant, List<FieldRun>& field, u32 record, u32 first_slot)
{
    const u32 table = first_slot + slot_bytes * L::slots;
    u32 at = table + L::dense_head;
    constant(table, L::vtable_bytes, 4);
    L::each_slot([&]<class Slot>(u32 K) {
        constexpr bool has_body = Slot::kind != Kind::scalar && Slot::kind != Kind::table;
        const u32 place = table + L::dense_offset[K];
        const u32 from = record + L::record_offset[K];
        constant(first_slot + slot_bytes * K, L::dense_offset[K], slot_bytes);
        if (has_body && L::head_has_cells)
            constant(place, at - place, cell_bytes);
        if constexpr (Slot::kind == Kind::scalar) {
            field(FieldRun{from, place, Slot::record_size, Slot::record_size});
        } else if constexpr (Slot::kind == Kind::array) {
            if (L::in_head[K]) {
                constant(at, Slot::count, count_bytes);
                field(FieldRun{from, at + count_bytes, Slot::payload, sizeof(typename Slot::Value)});
                at += count_bytes + Slot::payload;
            }
        }
        return true;
    });
    if (!L::has_owned_blocks) {
        constant(first_slot - vtable_head_bytes, L::vtable_bytes, 2);
        constant(first_slot - vtable_head_bytes + table_length_at, at - table, 2);
    }
    L::each_slot([&]<class Slot>(u32 K) {
        if constexpr (Slot::kind == Kind::table) {
            const u32 place = table + L::dense_offset[K];
            if (L::head_has_cells)
                constant(place, at + Slot::Layout::vtable_bytes - place, cell_bytes);
            if constexpr (!Slot::Layout::has_owned_blocks)
                if (L::in_head[K])
                    at = describe_compact<typename Slot::Layout>(constant, field, record + L::record_offset[K],
                                                                 at + vtable_head_bytes);
        }
        return true;
    });
    return L::head_has_cells ? at : table + L::dense_cells;
}

template <class L>
struct FixedDescription {
    static_assert(L::fixed_length <= fixed_buffer_bytes);

    static constexpr void describe(Description& form)
    {
        describe_fixed<L>(form.constant, form.field);
        form.length = L::fixed_length;
    }
};

template <class L>
struct DenseDescription {
    static constexpr void describe(Description& form)
    {
        form.length = describe_compact<L>(form.constant, form.field, 0, vtable_head_bytes);
    }
};

template <class L>
struct HeadDescription {
    static constexpr void describe(Description& form)
    {
        form.length = describe_compact<L>(form.constant, form.field, 0, 0);
    }
};

}   // namespace detail

template <class L>
using FixedImage = Image<L, detail::FixedDescription<L>>;

// The two compact images, of a record in which no scalar is zero and nothing is absent: a layout without owned blocks has
// one as a whole, any other one of its head, from the first slot of the vtable on.
template <class L>
using DenseImage = Image<L, detail::DenseDescription<L>>;

template <class L>
using HeadImage = Image<L, detail::HeadDescription<L>>;

// Whether the compact form of this record has the dense image, or the head image.
template <class L>
[[gnu::always_inline]] inline bool is_dense(const u8* record)
{
    return L::each_slot([&]<class Slot>(u32 K) __attribute__((always_inline)) {
        const u8* const field = record + L::record_offset[K];
        if constexpr (Slot::kind == Kind::scalar)
            return field_value<typename Slot::Value>(field) != 0;
        else if constexpr (Slot::kind == Kind::table)
            return !L::in_head[K] || is_dense<typename Slot::Layout>(field);
        else if constexpr (Slot::kind == Kind::text)
            return field_pointer(field) != nullptr;
        else if constexpr (Slot::kind == Kind::block)
            return field_value<u32>(field) != 0 && field_pointer(field + counted_pointer) != nullptr;
        else if constexpr (Slot::kind == Kind::vector)
            return field_value<u32>(field) != 0;   // it has a pointer then: else there is no size
        else
            return true;
    });
}

}   // namespace kesto
