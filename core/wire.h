// The wire format: the encoding of values in a byte string, and the reader's primitives, which together with lanes.h
// decide every bound on untrusted bytes.
//
// A position is a u32 index from the first byte of the byte string. The primitives are templates over the input, so
// that the shipped code can also be run on symbolic words and proved; `Input` is the shipped one.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include "core/copy.h"

namespace kesto {

// ---- values on the wire: little-endian on every host, at any alignment ----

constexpr bool host_has_wire_order = std::endian::native == std::endian::little;

constexpr u8 wire_order(u8 value) { return value; }
constexpr u16 wire_order(u16 value) { return host_has_wire_order ? value : __builtin_bswap16(value); }
constexpr u32 wire_order(u32 value) { return host_has_wire_order ? value : __builtin_bswap32(value); }
constexpr u64 wire_order(u64 value) { return host_has_wire_order ? value : __builtin_bswap64(value); }

template <class T>
inline T load(const u8* at)
{
    T value;
    std::memcpy(&value, at, sizeof value);
    return wire_order(value);
}

template <class T>
inline void store(u8* at, T value)
{
    value = wire_order(value);
    std::memcpy(at, &value, sizeof value);
}

// ---- the table format ----

constexpr u32 root_bytes = 4;          // u32, position of the root table
constexpr u32 table_head_bytes = 4;    // u32, table position minus vtable position
constexpr u32 vtable_head_bytes = 4;   // u16 vtable length, u16 table length
constexpr u32 slot_bytes = 2;          // u16, field position minus table position; 0 for an absent field
constexpr u32 cell_bytes = 4;          // u32, distance from the cell to its target
constexpr u32 count_bytes = 4;         // u32, before every text, block, array and vector
constexpr u32 least_length = 4;        // of a byte string, which must hold a root

// ---- reading foreign bytes ----

// The received bytes of one message. Everything below relies on length >= least_length, which the decoder's parameter
// test guarantees, and on no upper bound.
struct Input {
    using Word = u32;

    const u8* bytes;
    u32 length;

    // The caller must have tested that the value at `at` + `offset` lies inside. The two are added as addresses, so
    // that the compiler can keep the first in a register and fold the second into the instruction.
    template <class T>
    std::conditional_t<(sizeof(T) > sizeof(u32)), T, u32> load_unchecked(u32 at, u32 offset = 0) const
    {
        return load<T>(bytes + at + offset);
    }

#ifdef __SSE2__
    __m128i load_wide_unchecked(u32 at, u32 offset) const
    {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + at + offset));
    }
#endif

    // The same for n bytes.
    const u8* bytes_unchecked(u32 at, u32 offset, u32 /*n*/) const { return bytes + at + offset; }

    template <class T>
    void copy_value_unchecked(u32 at, u32 offset, void* to) const
    {
        const T value = load<T>(bytes + at + offset);
        std::memcpy(to, &value, sizeof value);
    }

    template <class T>
    void copy_values_unchecked(u32 at, u32 count, u8* to) const
    {
        if constexpr (host_has_wire_order || sizeof(T) == 1)
            copy_some(to, bytes + at, count * sizeof(T));
        else
            for (u32 i = 0; i < count; ++i)
                copy_value_unchecked<T>(at, i * u32{sizeof(T)}, to + i * sizeof(T));
    }
};

// A table that has been tested together with its vtable.
template <class In>
struct TableView {
    typename In::Word table;
    typename In::Word vtable;
    typename In::Word vtable_length;
    typename In::Word bytes_after_table;   // from the table's first byte to the end of the input
};

enum class TableFault : u8 { none, table_position, vtable_position, vtable_length };

template <class In>
inline typename In::Word root_table(const In& in)
{
    return in.template load_unchecked<u32>(typename In::Word(0));   // every input has least_length bytes
}

// Tests the table at `table` and its vtable. After a fault `view` is filled as far as the tests got, for the log.
template <class In>
[[nodiscard]] inline TableFault open_table(const In& in, typename In::Word table, TableView<In>& view)
{
    using Word = typename In::Word;
    const Word last = in.length - least_length;
    view.table = table;
    view.bytes_after_table = in.length - table;
    if (table < root_bytes || table > last)
        return TableFault::table_position;
    // Subtracts modulo 2^32, so that a vtable after its table passes the same test.
    view.vtable = table - in.template load_unchecked<u32>(table);   // table <= length - 4
    if (view.vtable < root_bytes || view.vtable > last)
        return TableFault::vtable_position;
    view.vtable_length = in.template load_unchecked<u16>(view.vtable);   // vtable <= length - 4
    if (view.vtable_length > in.length - view.vtable)
        return TableFault::vtable_length;
    return TableFault::none;
}

// Whether the byte string has n bytes.
template <class In>
[[nodiscard]] inline bool holds_bytes(const In& in, typename In::Word n)
{
    return static_cast<bool>(in.length >= n);
}

// Finds the start of n bytes, `before` of which come before the table. False unless all of them lie inside, after the
// root. n must be at least `before`, so that a wrapped `behind_first` exceeds the bound, and at most 0xFFFF, so that
// root_bytes + n does not wrap.
template <class In>
[[nodiscard]] inline bool image_fits(const In& in, typename In::Word table, typename In::Word before,
                                     typename In::Word n, typename In::Word& at)
{
    using Word = typename In::Word;
    if (in.length < root_bytes + n)
        return false;
    const Word behind_first = table - (root_bytes + before);   // a table too close to the start wraps and is refused
    if (behind_first > in.length - (root_bytes + n))
        return false;
    at = table - before;
    return true;
}

// Opens a table whose vtable has exactly `slots` slots and comes right before it, as in the compact form that our
// writers produce. False for any other table, whether well formed or not.
template <class In>
[[nodiscard]] inline bool open_compact_table(const In& in, typename In::Word table, typename In::Word slots,
                                             TableView<In>& view)
{
    using Word = typename In::Word;
    const Word vtable_bytes = vtable_head_bytes + slot_bytes * slots;
    Word vtable{};
    if (!image_fits(in, table, vtable_bytes, vtable_bytes + table_head_bytes, vtable))
        return false;
    if (in.template load_unchecked<u32>(table) != vtable_bytes ||   // image_fits
        in.template load_unchecked<u16>(vtable) != vtable_bytes)    // the same
        return false;
    view = {table, vtable, vtable_bytes, in.length - table};
    return true;
}

// Whether the vtable has at least `slots` slots. An odd vtable length is legal.
template <class In>
inline bool holds_slots(const TableView<In>& view, typename In::Word slots)
{
    return static_cast<bool>(view.vtable_length >= vtable_head_bytes + slot_bytes * slots);
}

// Slot `k`, which the vtable must hold: the field's offset from the table, 0 if the field is absent.
template <class In>
inline typename In::Word slot_unchecked(const In& in, const TableView<In>& view, typename In::Word k)
{
    return in.template load_unchecked<u16>(view.vtable, vtable_head_bytes + slot_bytes * k);   // holds_slots
}

// Slot `k` of a vtable of any length; 0 if the vtable does not hold it.
template <class In>
inline typename In::Word slot_offset(const In& in, const TableView<In>& view, typename In::Word k)
{
    using Word = typename In::Word;
    if (!holds_slots(view, k + 1))
        return Word(0);
    return slot_unchecked(in, view, k);
}

// Whether the n bytes at `offset` from the table lie inside. The sum cannot wrap: n must be at most 8, and an offset
// has 16 bits.
template <class In>
[[nodiscard]] inline bool field_fits(const TableView<In>& view, typename In::Word offset, u32 n)
{
    return static_cast<bool>(offset + n <= view.bytes_after_table);
}

template <class T, class In>
[[nodiscard]] inline bool read_scalar(const In& in, const TableView<In>& view, typename In::Word offset, void* field)
{
    if (!field_fits(view, offset, sizeof(T)))
        return false;
    in.template copy_value_unchecked<T>(view.table, offset, field);   // field_fits
    return true;
}

// Follows the cell at `offset` to a count and the payload after it. The count itself is not tested.
template <class In>
[[nodiscard]] inline bool open_body(const In& in, const TableView<In>& view, typename In::Word offset,
                                    typename In::Word& payload, typename In::Word& count)
{
    using Word = typename In::Word;
    if (!field_fits(view, offset, cell_bytes))
        return false;
    const Word cell = view.table + offset;
    const Word distance = in.template load_unchecked<u32>(cell);   // field_fits
    if (distance > in.length - cell - count_bytes)   // cell + 4 <= length, so nothing wraps here, nor in `body` below
        return false;
    const Word body = cell + distance;
    count = in.template load_unchecked<u32>(body);   // body + 4 <= length
    payload = body + count_bytes;
    return true;
}

// Whether `count` items of `width` bytes from `payload` on lie inside. open_body must have found `payload`, so it is at
// most the length and the difference does not wrap; dividing avoids a product that could.
template <class In>
[[nodiscard]] inline bool payload_fits(const In& in, typename In::Word payload, typename In::Word count, u32 width)
{
    return static_cast<bool>(count <= (in.length - payload) / width);
}

// Follows the cell at `offset` to an array, which must have `elements` values. `elements` must be below 2^16, so that
// `needed` does not wrap.
template <class T, class In>
[[nodiscard]] inline bool read_array(const In& in, const TableView<In>& view, typename In::Word offset,
                                     typename In::Word elements, u8* field)
{
    using Word = typename In::Word;
    if (!field_fits(view, offset, cell_bytes))
        return false;
    const Word cell = view.table + offset;
    const Word distance = in.template load_unchecked<u32>(cell);   // field_fits
    const Word needed = count_bytes + u32{sizeof(T)} * elements;
    const Word room = in.length - cell;
    if (room < needed || distance > room - needed)   // then cell + distance cannot wrap
        return false;
    const Word body = cell + distance;
    if (in.template load_unchecked<u32>(body) != elements)   // body + needed <= length
        return false;
    in.template copy_values_unchecked<T>(body + count_bytes, elements, field);   // the same
    return true;
}

// Follows the cell at `offset` to a nested table. Its position is tested when the table is opened.
template <class In>
[[nodiscard]] inline bool nested_table(const In& in, const TableView<In>& view, typename In::Word offset,
                                       typename In::Word& table)
{
    using Word = typename In::Word;
    if (!field_fits(view, offset, cell_bytes))
        return false;
    const Word cell = view.table + offset;
    const Word target = cell + in.template load_unchecked<u32>(cell);   // field_fits
    // The distance is unsigned and may carry the sum past 2^32; a target before its own cell has wrapped.
    if (target < cell)
        return false;
    table = target;
    return true;
}

// The same for element `i` of a vector. payload_fits must have accepted all its cells, and `i` must be below their
// number.
template <class In>
[[nodiscard]] inline bool element_table(const In& in, typename In::Word cells, typename In::Word i,
                                        typename In::Word& table)
{
    using Word = typename In::Word;
    const Word cell = cells + i * cell_bytes;
    const Word target = cell + in.template load_unchecked<u32>(cell);   // i < count, and the cells fit
    if (target < cell)
        return false;
    table = target;
    return true;
}

}   // namespace kesto
