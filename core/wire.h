// The wire: how values stand in a byte string, and the only code that reads bytes from outside the process's trust.
//
// A position is a u32 index from the first byte of the byte string. The reader's primitives are templates over the
// input, so that the code that ships can also be run on symbolic words and proved; `Input` is the one that ships.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace kesto {

using u8 = std::uint8_t;
using u16 = std::uint16_t;
using u32 = std::uint32_t;
using u64 = std::uint64_t;

// ---- values on the wire: little-endian at any position, whatever the host ----

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
constexpr u32 cell_bytes = 4;          // u32, distance from the cell to what it leads to
constexpr u32 count_bytes = 4;         // u32, in front of every text, block, array and vector
constexpr u32 least_length = 4;        // a byte string that can hold a root

// ---- reading foreign bytes ----

// The bytes of one message as they came. Everything below relies on length >= least_length, which the parameter test of
// the decoder guarantees, and on no upper bound.
struct Input {
    using Word = u32;

    const u8* bytes;
    u32 length;

    // Whoever calls these has tested that the value, `behind` bytes behind the position `at`, lies inside. The two are
    // added as addresses, so that the compiler may hold the first and fold the second.
    template <class T>
    std::conditional_t<(sizeof(T) > sizeof(u32)), T, u32> load_unchecked(u32 at, u32 behind = 0) const
    {
        return load<T>(bytes + at + behind);
    }

    // All n bytes lie inside.
    const u8* bytes_unchecked(u32 at, u32 behind, u32 /*n*/) const { return bytes + at + behind; }

    template <class T>
    void copy_value_unchecked(u32 at, u32 behind, void* to) const
    {
        const T value = load<T>(bytes + at + behind);
        std::memcpy(to, &value, sizeof value);
    }

    template <class T>
    void copy_values_unchecked(u32 at, u32 count, u8* to) const
    {
        if constexpr (host_has_wire_order || sizeof(T) == 1)
            std::memcpy(to, bytes + at, count * sizeof(T));
        else
            for (u32 i = 0; i < count; ++i)
                copy_value_unchecked<T>(at, i * u32{sizeof(T)}, to + i * sizeof(T));
    }
};

// A table whose vtable has been tested.
template <class In>
struct TableView {
    typename In::Word table;
    typename In::Word vtable;
    typename In::Word vtable_length;
    typename In::Word room;   // bytes from the table to the end of the input
};

enum class TableFault : u8 { none, table_position, vtable_position, vtable_length };

template <class In>
inline typename In::Word root_table(const In& in)
{
    return in.template load_unchecked<u32>(typename In::Word(0));   // every input has least_length bytes
}

// Tests the table at `table` and its vtable. `view` is filled as far as the tests got, for whoever reports a fault.
template <class In>
[[nodiscard]] inline TableFault open_table(const In& in, typename In::Word table, TableView<In>& view)
{
    using Word = typename In::Word;
    const Word last = in.length - least_length;
    view.table = table;
    view.room = in.length - table;
    if (table < root_bytes || table > last)
        return TableFault::table_position;
    // Subtracts modulo 2^32, so that a vtable behind its table passes the same test.
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

// Where n bytes start of which `before` stand in front of the table; false unless all of them lie inside, behind the
// root. n is at least `before`, and small.
template <class In>
[[nodiscard]] inline bool picture_fits(const In& in, typename In::Word table, typename In::Word before,
                                       typename In::Word n, typename In::Word& at)
{
    using Word = typename In::Word;
    if (in.length < root_bytes + n)
        return false;
    const Word behind_first = table - (root_bytes + before);   // of a table too far in front: more than any length
    if (behind_first > in.length - (root_bytes + n))
        return false;
    at = table - before;
    return true;
}

// Whether the vtable has as many slots. An odd length is legal.
template <class In>
inline bool holds_slots(const TableView<In>& view, typename In::Word slots)
{
    return static_cast<bool>(view.vtable_length >= vtable_head_bytes + slot_bytes * slots);
}

// Slot `k`, of a vtable that holds it: the field's offset from the table, 0 when it is absent.
template <class In>
inline typename In::Word slot_unchecked(const In& in, const TableView<In>& view, typename In::Word k)
{
    return in.template load_unchecked<u16>(view.vtable, vtable_head_bytes + slot_bytes * k);   // holds_slots
}

// Slot `k` of a vtable of any length.
template <class In>
inline typename In::Word slot_offset(const In& in, const TableView<In>& view, typename In::Word k)
{
    using Word = typename In::Word;
    if (!holds_slots(view, k + 1))
        return Word(0);
    return slot_unchecked(in, view, k);
}

// Whether the n bytes at `offset` behind the table's start lie inside. n is 8 at the most and an offset has 16 bits.
template <class In>
[[nodiscard]] inline bool field_fits(const TableView<In>& view, typename In::Word offset, u32 n)
{
    return static_cast<bool>(offset + n <= view.room);
}

// The bounds of many fields at once: the offsets of four slots, or of two where a word has 32 bits, lie in lanes of one
// word, whose top bit is left free.
using LaneWord = std::conditional_t<sizeof(void*) == 8, u64, u32>;

constexpr u32 lane_bits = 16;
constexpr u32 lanes = sizeof(LaneWord) * 8 / lane_bits;
constexpr u32 largest_lane = 0x7FFF;
constexpr u32 widest_scalar = 8;

template <class W>
constexpr W each_lane(W value)
{
    W word = 0;
    for (u32 i = 0; i < sizeof(W) * 8; i += lane_bits)
        word |= value << i;
    return word;
}

// No lane of the result has its top bit if and only if offset + width <= room in all of them. `room` has the room in
// each lane, from widest_scalar to largest_lane. Only a lane that is beyond borrows from its neighbour.
template <class W>
inline W lanes_beyond(const W& room, const W& widths, const W& offsets)
{
    return (room - widths - offsets) | offsets;
}

// Whether all fields of a vtable that holds so many slots lie inside; `widths` are 0 where that does not matter. False
// also where this way of looking at them cannot tell.
template <std::size_t N>
[[nodiscard, gnu::always_inline]] inline bool scalars_fit(const Input& in, const TableView<Input>& view,
                                                          const std::array<u8, N>& widths)
{
    if (view.room < widest_scalar)
        return false;
    const LaneWord room = each_lane<LaneWord>(1) * (view.room < largest_lane ? view.room : largest_lane);
    LaneWord beyond = 0;
    const auto look = [&](u32 first, u32 count) __attribute__((always_inline))
    {
        LaneWord offsets = 0, fields = 0;
        for (u32 i = 0; i < count; ++i)
            fields |= LaneWord{widths[first + i]} << (lane_bits * i);
        if (count == lanes)
            offsets = in.load_unchecked<LaneWord>(view.vtable, vtable_head_bytes + slot_bytes * first);   // holds_slots
        else
            for (u32 i = 0; i < count; ++i)
                offsets |= LaneWord{slot_unchecked(in, view, first + i)} << (lane_bits * i);
        beyond |= lanes_beyond<LaneWord>(room, fields, offsets);
    };
    constexpr u32 slots = N;
#pragma GCC unroll 64
    for (u32 first = 0; first + lanes <= slots; first += lanes)
        look(first, lanes);
    if constexpr (slots % lanes != 0) {
        if constexpr (slots >= lanes)
            look(slots - lanes, lanes);   // some of them once more
        else
            look(0, slots);
    }
    return (beyond & each_lane<LaneWord>(largest_lane + 1)) == 0;
}

// A scalar that scalars_fit has tested, 0 when it is absent. Both come to a read: at offset 0 the table's head stands,
// and behind it the room that scalars_fit asks for.
template <class T>
[[gnu::always_inline]] inline void read_tested_scalar(const Input& in, const TableView<Input>& view, u32 offset,
                                                      u8* field)
{
    const T value = load<T>(in.bytes_unchecked(view.table, offset, sizeof(T)));   // scalars_fit
    const T present = offset != 0 ? value : T{0};
    std::memcpy(field, &present, sizeof present);
}

template <class T, class In>
[[nodiscard]] inline bool read_scalar(const In& in, const TableView<In>& view, typename In::Word offset, void* field)
{
    if (!field_fits(view, offset, sizeof(T)))
        return false;
    in.template copy_value_unchecked<T>(view.table, offset, field);   // field_fits
    return true;
}

// Follows the reference cell at `offset` to a count and what it counts, without a test of the count itself.
template <class In>
[[nodiscard]] inline bool open_body(const In& in, const TableView<In>& view, typename In::Word offset,
                                    typename In::Word& payload, typename In::Word& count)
{
    using Word = typename In::Word;
    if (!field_fits(view, offset, cell_bytes))
        return false;
    const Word cell = view.table + offset;
    const Word distance = in.template load_unchecked<u32>(cell);   // field_fits
    if (distance > in.length - cell - count_bytes)   // cell + 4 <= length; also refuses a sum that would wrap
        return false;
    const Word body = cell + distance;
    count = in.template load_unchecked<u32>(body);   // body + 4 <= length
    payload = body + count_bytes;
    return true;
}

// Whether `count` items of `width` bytes lie inside behind `payload`, which open_body gave. No product, no wrap.
template <class In>
[[nodiscard]] inline bool payload_fits(const In& in, typename In::Word payload, typename In::Word count, u32 width)
{
    return static_cast<bool>(count <= (in.length - payload) / width);
}

template <class T, class In>
[[nodiscard]] inline bool read_array(const In& in, const TableView<In>& view, typename In::Word offset,
                                     typename In::Word elements, u8* field)
{
    typename In::Word payload{}, count{};
    if (!open_body(in, view, offset, payload, count))
        return false;
    if (count != elements || !payload_fits(in, payload, count, sizeof(T)))
        return false;
    in.template copy_values_unchecked<T>(payload, elements, field);   // payload_fits
    return true;
}

// Follows the reference cell at `offset` to a nested table. The position is tested when that table is opened.
template <class In>
[[nodiscard]] inline bool nested_table(const In& in, const TableView<In>& view, typename In::Word offset,
                                       typename In::Word& table)
{
    using Word = typename In::Word;
    if (!field_fits(view, offset, cell_bytes))
        return false;
    const Word cell = view.table + offset;
    const Word target = cell + in.template load_unchecked<u32>(cell);   // field_fits
    // The distance is unsigned and may carry the sum past 2^32; a target in front of its own cell has wrapped.
    if (target < cell)
        return false;
    table = target;
    return true;
}

// The same for element `i` of a vector whose cells payload_fits has tested as a whole.
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
