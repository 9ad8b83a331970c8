// From record to fixed form: every byte at a place known when compiled.
//
// A constant image holds what no field touches: root words, vtables, cells and counts, and zeros in the gaps, so that
// nothing but the record's own content leaves the process.
#pragma once

#include "core/layout.h"
#include "core/run.h"

namespace kesto {

constexpr u32 fixed_buffer_bytes = 1024;   // no fixed form may be longer

// A stretch of a record that stands on the wire just so; `width` is that of its values.
struct Run {
    u32 record_offset;
    u32 position;
    u32 bytes;
    u32 width;
};

namespace detail {

constexpr void put(u8* at, u32 value, u32 width)
{
    for (u32 i = 0; i < width; ++i)
        at[i] = static_cast<u8>(value >> (8 * i));
}

// Lays out the fixed form of an all-zero record in `bytes`, which are zero.
template <class L>
constexpr void place_fixed(u8* bytes)
{
    u8* const table = bytes + root_bytes;
    u8* const vtable = bytes + L::fixed_vtable;
    put(bytes, root_bytes, 4);   // of a nested form the root word is its slot's cell, and leads just as far
    put(table, root_bytes - L::fixed_vtable, 4);
    put(vtable, L::vtable_bytes, 2);
    put(vtable + 2, L::fixed_table_bytes, 2);
    each_slot<L>([&](auto k) {
        constexpr u32 K = k;
        using Slot = typename L::template Slot<K>;
        u8* const field = table + L::fixed_offset[K];
        put(vtable + vtable_head_bytes + std::size_t{slot_bytes} * K, L::fixed_offset[K], 2);
        if constexpr (Slot::kind == Kind::array) {
            put(field, cell_bytes, 4);
            put(field + cell_bytes, Slot::count, 4);
        } else if constexpr (Slot::kind == Kind::table) {
            place_fixed<typename Slot::Layout>(field);
        }
        return true;
    });
}

// Calls visit(run) for each field, those of nested records included, in the order of the wire.
template <class L, class Visit>
constexpr void each_fixed_field(Visit&& visit, u32 record = 0, u32 root = 0)
{
    each_slot<L>([&](auto k) {
        constexpr u32 K = k;
        using Slot = typename L::template Slot<K>;
        const u32 from = record + L::record_offset[K];
        const u32 at = root + root_bytes + L::fixed_offset[K];
        if constexpr (Slot::kind == Kind::table)
            each_fixed_field<typename Slot::Layout>(visit, from, at);
        else if constexpr (Slot::kind == Kind::array)
            visit(Run{from, at + cell_bytes + count_bytes, Slot::payload, sizeof(typename Slot::Value)});
        else
            visit(Run{from, at, Slot::record_size, Slot::record_size});
        return true;
    });
}

// Neighbours both in the record and on the wire. Where values must be turned, every field stays a run of its own.
constexpr bool joins(const Run& run, const Run& next)
{
    return host_has_wire_order && run.record_offset + run.bytes == next.record_offset &&
           run.position + run.bytes == next.position;
}

// Calls visit(run) for each joined run.
template <class L, class Visit>
constexpr void each_fixed_run(Visit&& visit)
{
    Run open{};
    each_fixed_field<L>([&](const Run& field) {
        if (open.bytes != 0 && joins(open, field)) {
            open.bytes += field.bytes;
            return;
        }
        if (open.bytes != 0)
            visit(open);
        open = field;
    });
    visit(open);
}

}   // namespace detail

template <class L>
struct FixedForm {
    static constexpr u32 length = L::fixed_length;
    static_assert(length <= fixed_buffer_bytes);

    // The fixed form of an all-zero record.
    static constexpr std::array<u8, length> image = [] {
        std::array<u8, length> bytes{};
        detail::place_fixed<L>(bytes.data());
        return bytes;
    }();

    static constexpr u32 run_count = [] {
        u32 count = 0;
        detail::each_fixed_run<L>([&](const Run&) { ++count; });
        return count;
    }();
    static constexpr std::array<Run, run_count> runs = [] {
        std::array<Run, run_count> found{};
        u32 next = 0;
        detail::each_fixed_run<L>([&](const Run& run) { found[next++] = run; });
        return found;
    }();
};

// Writes all L::fixed_length bytes.
template <class L>
void write_fixed(u8* buffer, const u8* record)
{
    using Form = FixedForm<L>;
    copy_run<Form::length>(buffer, Form::image.data());
    const auto copy = [&](auto r) {
        constexpr Run run = Form::runs[r];
        u8* const to = buffer + run.position;
        const u8* const from = record + run.record_offset;
        if constexpr (host_has_wire_order || run.width == 1)
            copy_run<run.bytes>(to, from);
        else
            for (u32 i = 0; i < run.bytes; i += run.width)
                for (u32 j = 0; j < run.width; ++j)
                    to[i + j] = from[i + run.width - 1 - j];
        return true;
    };
    detail::each_number(copy, std::make_integer_sequence<u32, Form::run_count>());
}

}   // namespace kesto
