// The readers that the contracts are held against: the one that ships, and copies of it with one fault each.
#pragma once

#include "core/wire.h"

namespace kesto::proof {

struct Shipping {
    template <class In>
    static auto root_table(const In& in)
    {
        return kesto::root_table(in);
    }
    template <class In, class Word>
    static TableFault open_table(const In& in, const Word& table, TableView<In>& view)
    {
        return kesto::open_table(in, table, view);
    }
    template <class In, class Word>
    static bool holds_slots(const TableView<In>& view, const Word& slots)
    {
        return kesto::holds_slots(view, slots);
    }
    template <class In, class Word>
    static auto slot_unchecked(const In& in, const TableView<In>& view, const Word& k)
    {
        return kesto::slot_unchecked(in, view, k);
    }
    template <class In, class Word>
    static bool holds_bytes(const In& in, const Word& n)
    {
        return kesto::holds_bytes(in, n);
    }
    template <class In, class Word>
    static bool picture_fits(const In& in, const Word& table, const Word& before, const Word& n, Word& at)
    {
        return kesto::picture_fits(in, table, before, n, at);
    }
    template <class In, class Word>
    static bool take_body(const In& in, const Word& at, Word& room, Word& length)
    {
        return kesto::take_body(in, at, room, length);
    }
    template <class In, class Word>
    static bool open_compact_table(const In& in, const Word& table, const Word& slots, TableView<In>& view)
    {
        return kesto::open_compact_table(in, table, slots, view);
    }
    template <class In, class Word>
    static auto slot_offset(const In& in, const TableView<In>& view, const Word& k)
    {
        return kesto::slot_offset(in, view, k);
    }
    template <class T, class In, class Word>
    static bool read_scalar(const In& in, const TableView<In>& view, const Word& offset, void* field)
    {
        return kesto::read_scalar<T>(in, view, offset, field);
    }
    template <class In, class Word>
    static bool open_body(const In& in, const TableView<In>& view, const Word& offset, Word& payload, Word& count)
    {
        return kesto::open_body(in, view, offset, payload, count);
    }
    template <class In, class Word>
    static bool payload_fits(const In& in, const Word& payload, const Word& count, u32 width)
    {
        return kesto::payload_fits(in, payload, count, width);
    }
    template <class T, class In, class Word>
    static bool read_array(const In& in, const TableView<In>& view, const Word& offset, const Word& elements, u8* field)
    {
        return kesto::read_array<T>(in, view, offset, elements, field);
    }
    template <class In, class Word>
    static bool nested_table(const In& in, const TableView<In>& view, const Word& offset, Word& table)
    {
        return kesto::nested_table(in, view, offset, table);
    }
    template <class In, class Word>
    static bool element_table(const In& in, const Word& cells, const Word& i, Word& table)
    {
        return kesto::element_table(in, cells, i, table);
    }
};

enum class Weakness {
    none,   // the copy itself, which must pass
    root_of_eight_bytes,
    table_in_the_root,
    table_one_too_far,
    vtable_in_the_root,
    vtable_three_too_far,
    vtable_anywhere,
    vtable_length_of_anything,
    vtable_length_against_the_table,
    vtable_length_one_too_strict,
    slots_of_any_vtable,
    slots_with_a_byte_missing,
    slots_without_head,
    slot_one_further,
    message_one_short,
    picture_in_the_root,
    picture_of_any_length,
    picture_by_its_end,
    picture_one_too_far,
    body_in_any_room,
    body_one_too_long,
    body_that_leaves_the_room,
    compact_anywhere,
    compact_of_any_vtable,
    compact_of_any_distance,
    field_without_width,
    field_by_a_sum,
    body_without_cell,
    body_without_count,
    body_by_a_sum,
    payload_by_a_product,
    payload_by_a_sum,
    payload_from_the_start,
    payload_of_bytes,
    array_of_any_count,
    array_without_payload,
    array_longer_than_all,
    nested_may_wrap,
    nested_without_cell,
    element_may_wrap,
    element_one_further,
};

template <Weakness weakness>
struct Weakened {
    static constexpr bool is(Weakness w) { return weakness == w; }

    template <class In>
    static auto root_table(const In& in)
    {
        return in.template load_unchecked<u32>(is(Weakness::root_of_eight_bytes) ? 4 : 0);
    }

    template <class In, class Word>
    static TableFault open_table(const In& in, const Word& table, TableView<In>& view)
    {
        const Word last = in.length - least_length;
        view.table = table;
        view.room = in.length - table;
        if ((!is(Weakness::table_in_the_root) && table < root_bytes) ||
            table > last + (is(Weakness::table_one_too_far) ? 1 : 0))
            return TableFault::table_position;
        view.vtable = table - in.template load_unchecked<u32>(table);
        if ((!is(Weakness::vtable_in_the_root) && view.vtable < root_bytes) ||
            (!is(Weakness::vtable_anywhere) && view.vtable > last + (is(Weakness::vtable_three_too_far) ? 3 : 0)))
            return TableFault::vtable_position;
        view.vtable_length = in.template load_unchecked<u16>(view.vtable);
        if (is(Weakness::vtable_length_of_anything))
            return TableFault::none;
        if (is(Weakness::vtable_length_one_too_strict) && view.vtable_length == in.length - view.vtable)
            return TableFault::vtable_length;
        if (view.vtable_length > in.length - (is(Weakness::vtable_length_against_the_table) ? table : view.vtable))
            return TableFault::vtable_length;
        return TableFault::none;
    }

    template <class In, class Word>
    static bool holds_slots(const TableView<In>& view, const Word& slots)
    {
        const u32 missing = is(Weakness::slots_with_a_byte_missing) ? 1 : 0;
        const u32 head = is(Weakness::slots_without_head) ? 0 : vtable_head_bytes;
        return is(Weakness::slots_of_any_vtable) || view.vtable_length >= head + slot_bytes * slots - missing;
    }

    template <class In, class Word>
    static Word slot_unchecked(const In& in, const TableView<In>& view, const Word& k)
    {
        return in.template load_unchecked<u16>(view.vtable, vtable_head_bytes + slot_bytes * k);
    }

    template <class In, class Word>
    static bool holds_bytes(const In& in, const Word& n)
    {
        return static_cast<bool>(in.length + (is(Weakness::message_one_short) ? 1 : 0) >= n);
    }

    template <class In, class Word>
    static bool picture_fits(const In& in, const Word& table, const Word& before, const Word& n, Word& at)
    {
        const u32 root = is(Weakness::picture_in_the_root) ? 0 : root_bytes;
        if (!is(Weakness::picture_of_any_length) && in.length < n + root)
            return false;
        if (is(Weakness::picture_by_its_end)) {
            if (table - before + n > in.length)
                return false;
        } else if (table - (before + root) > in.length - (n + root) + (is(Weakness::picture_one_too_far) ? 1 : 0)) {
            return false;
        }
        at = table - before;
        return true;
    }

    template <class In, class Word>
    static bool take_body(const In& in, const Word& at, Word& room, Word& length)
    {
        length = in.template load_unchecked<u32>(at);
        if (!is(Weakness::body_in_any_room) && length > room + (is(Weakness::body_one_too_long) ? 1 : 0))
            return false;
        if (!is(Weakness::body_that_leaves_the_room))
            room = room - length;
        return true;
    }

    template <class In, class Word>
    static bool open_compact_table(const In& in, const Word& table, const Word& slots, TableView<In>& view)
    {
        const Word vtable_bytes = vtable_head_bytes + slot_bytes * slots;
        Word vtable = table - vtable_bytes;
        if (!is(Weakness::compact_anywhere) &&
            !picture_fits(in, table, vtable_bytes, vtable_bytes + table_head_bytes, vtable))
            return false;
        if (!is(Weakness::compact_of_any_distance) && in.template load_unchecked<u32>(table) != vtable_bytes)
            return false;
        if (!is(Weakness::compact_of_any_vtable) && in.template load_unchecked<u16>(vtable) != vtable_bytes)
            return false;
        view = {table, vtable, vtable_bytes, in.length - table};
        return true;
    }

    template <class In, class Word>
    static Word slot_offset(const In& in, const TableView<In>& view, const Word& k)
    {
        if (!holds_slots(view, k + (is(Weakness::slot_one_further) ? 0 : 1)))
            return 0;
        return in.template load_unchecked<u16>(view.vtable, vtable_head_bytes + slot_bytes * k);
    }

    template <class In, class Word>
    static bool field_fits(const In& in, const TableView<In>& view, const Word& offset, u32 n)
    {
        if (is(Weakness::field_by_a_sum))
            return static_cast<bool>(view.table + offset + n <= in.length);
        return static_cast<bool>(offset + (is(Weakness::field_without_width) ? 1 : n) <= view.room);
    }

    template <class T, class In, class Word>
    static bool read_scalar(const In& in, const TableView<In>& view, const Word& offset, void* field)
    {
        if (!field_fits(in, view, offset, sizeof(T)))
            return false;
        in.template copy_value_unchecked<T>(view.table, offset, field);
        return true;
    }

    template <class In, class Word>
    static bool open_body(const In& in, const TableView<In>& view, const Word& offset, Word& payload, Word& count)
    {
        if (!is(Weakness::body_without_cell) && !field_fits(in, view, offset, cell_bytes))
            return false;
        const Word cell = view.table + offset;
        const Word distance = in.template load_unchecked<u32>(cell);
        if (is(Weakness::body_by_a_sum)) {
            if (cell + distance > in.length - count_bytes)
                return false;
        } else if (distance > in.length - cell - (is(Weakness::body_without_count) ? 0 : count_bytes)) {
            return false;
        }
        const Word body = cell + distance;
        count = in.template load_unchecked<u32>(body);
        payload = body + count_bytes;
        return true;
    }

    template <class In, class Word>
    static bool payload_fits(const In& in, const Word& payload, const Word& count, u32 width)
    {
        if (is(Weakness::payload_by_a_product))
            return static_cast<bool>(count * width <= in.length - payload);
        if (is(Weakness::payload_by_a_sum))
            return static_cast<bool>(payload + count * width <= in.length);
        if (is(Weakness::payload_from_the_start))
            return static_cast<bool>(count <= in.length / width);
        return static_cast<bool>(count <= (in.length - payload) / (is(Weakness::payload_of_bytes) ? 1 : width));
    }

    template <class T, class In, class Word>
    static bool read_array(const In& in, const TableView<In>& view, const Word& offset, const Word& elements, u8* field)
    {
        if (!field_fits(in, view, offset, cell_bytes))
            return false;
        const Word cell = view.table + offset;
        const Word distance = in.template load_unchecked<u32>(cell);
        const Word needed = count_bytes + (is(Weakness::array_without_payload) ? 0 : u32{sizeof(T)}) * elements;
        const Word room = in.length - cell;
        if (!is(Weakness::array_longer_than_all) && room < needed)
            return false;
        if (distance > room - needed)
            return false;
        const Word body = cell + distance;
        if (!is(Weakness::array_of_any_count) && in.template load_unchecked<u32>(body) != elements)
            return false;
        in.template copy_values_unchecked<T>(body + count_bytes, elements, field);
        return true;
    }

    template <class In, class Word>
    static bool nested_table(const In& in, const TableView<In>& view, const Word& offset, Word& table)
    {
        if (!is(Weakness::nested_without_cell) && !field_fits(in, view, offset, cell_bytes))
            return false;
        return follow<Weakness::nested_may_wrap>(in, view.table + offset, table);
    }

    template <class In, class Word>
    static bool element_table(const In& in, const Word& cells, const Word& i, Word& table)
    {
        return follow<Weakness::element_may_wrap>(
            in, cells + (i + (is(Weakness::element_one_further) ? 1 : 0)) * cell_bytes, table);
    }

private:
    template <Weakness may_wrap, class In, class Word>
    static bool follow(const In& in, const Word& cell, Word& table)
    {
        const Word target = cell + in.template load_unchecked<u32>(cell);
        if (!is(may_wrap) && target < cell)
            return false;
        table = target;
        return true;
    }
};

}   // namespace kesto::proof
