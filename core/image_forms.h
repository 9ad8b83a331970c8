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

// A position in an image, and the number of bodies before it.
struct Place {
    u32 position = 0;
    u32 bodies = 0;
};

// The number at `position` that holds the distance between two places.
constexpr void describe_distance(const Constants& constant, List<Sum>& sum, u32 position, u32 width, const Place& from,
                                 const Place& to, bool must_be)
{
    const u32 value = to.position - from.position;
    if (from.bodies == to.bodies)
        constant(position, value, width);
    else
        sum(Sum{position, width, value, from.bodies, to.bodies, must_be});
}

// The compact form, without the root word, of a record in which no scalar is zero, no text or block is absent and no
// block is empty. It equals the output of write_table. Returns its end.
template <class L>
constexpr Place describe_dense(Constants& constant, List<FieldRun>& field, List<Body>& body, List<Sum>& sum,
                               u32 record = 0, const Place& vtable = {})
{
    static_assert(!L::has_vectors);
    const Place table{vtable.position + L::vtable_bytes, vtable.bodies};
    constant(table.position, L::vtable_bytes, 4);
    Place at{table.position + table_head_bytes, table.bodies};
    std::array<u32, L::slots> offset{};
    L::each_slot([&]<class Slot>(u32 K) {
        if constexpr (Slot::kind == Kind::scalar) {
            offset[K] = at.position - table.position;
            field(FieldRun{record + L::record_offset[K], at.position, Slot::record_size, Slot::record_size});
            at.position += Slot::record_size;
        }
        return true;
    });
    for (u32 k = 0; k < L::slots; ++k) {
        if (L::kinds[k] != Kind::scalar) {
            offset[k] = at.position - table.position;
            at.position += cell_bytes;
        }
    }
    const auto link_cell = [&](u32 k, const Place& to) {
        const Place cell{table.position + offset[k], table.bodies};
        describe_distance(constant, sum, cell.position, cell_bytes, cell, to, true);
    };
    L::each_slot([&]<class Slot>(u32 K) {
        constexpr Kind kind = Slot::kind;
        const u32 from = record + L::record_offset[K];
        if constexpr (kind == Kind::array) {
            link_cell(K, at);
            constant(at.position, Slot::count, count_bytes);
            at.position += count_bytes;
            field(FieldRun{from, at.position, Slot::payload, sizeof(typename Slot::Value)});
            at.position += Slot::payload;
        } else if constexpr (kind == Kind::text || kind == Kind::block) {
            link_cell(K, at);
            if (kind == Kind::text)
                sum(Sum{at.position, count_bytes, 0, at.bodies, at.bodies + 1, false});
            else
                field(FieldRun{from, at.position, count_bytes, count_bytes});
            at.position += count_bytes;
            body(Body{kind, from, at.position});
            ++at.bodies;
            if (kind == Kind::text) {
                sum(Sum{at.position, 1, 0, at.bodies, at.bodies, false});   // its NUL
                ++at.position;
            }
        }
        return true;
    });
    describe_vtable<L>(constant, vtable.position, offset);
    describe_distance(constant, sum, vtable.position + table_length_at, 2, table, at, false);
    L::each_slot([&]<class Slot>(u32 K) {
        if constexpr (Slot::kind == Kind::table) {
            using Inner = typename Slot::Layout;
            link_cell(K, {at.position + Inner::vtable_bytes, at.bodies});
            at = describe_dense<Inner>(constant, field, body, sum, record + L::record_offset[K], at);
        }
        return true;
    });
    return at;
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
        form.length = describe_dense<L>(form.constant, form.field, form.body, form.sum).position;
    }
};

}   // namespace detail

template <class L>
using FixedImage = Image<L, detail::FixedDescription<L>>;

template <class L>
using DenseImage = Image<L, detail::DenseDescription<L>>;

// Calls visit<b>() for each body of an image by its number. Stops at the first call that returns false, and returns
// false then.
template <class Form, class Visit>
[[gnu::always_inline]] inline bool each_body(Visit&& visit)
{
    return detail::each_number(visit, std::make_integer_sequence<u32, Form::bodies.size()>());
}

// Whether the compact form of this record is the dense image.
template <class L>
[[gnu::always_inline]] inline bool is_dense(const u8* record)
{
    return L::each_slot([&]<class Slot>(u32 K) __attribute__((always_inline)) {
        const u8* const field = record + L::record_offset[K];
        if constexpr (Slot::kind == Kind::scalar)
            return field_value<typename Slot::Value>(field) != 0;
        else if constexpr (Slot::kind == Kind::table)
            return is_dense<typename Slot::Layout>(field);
        else if constexpr (Slot::kind == Kind::text)
            return field_pointer(field) != nullptr;
        else if constexpr (Slot::kind == Kind::block)
            return field_value<u32>(field) != 0 && field_pointer(field + counted_pointer) != nullptr;
        else
            return true;
    });
}

}   // namespace kesto
