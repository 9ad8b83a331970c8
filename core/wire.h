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

#ifdef __SSE2__
#include <emmintrin.h>
#endif

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
constexpr u32 count_bytes = 4;         // u32, before every text, block, array and vector
constexpr u32 least_length = 4;        // a byte string that can hold a root

// ---- reading foreign bytes ----

// A copy whose size may be known when compiled. In cold code the compiler would make a `rep` instruction of it then,
// which takes longer than the rest of a table.
inline void copy_some(u8* to, const u8* from, std::size_t n)
{
    constexpr std::size_t step = 16;
    if (!__builtin_constant_p(n) || n < step || n % step != 0) {
        std::memcpy(to, from, n);
        return;
    }
#pragma GCC unroll 32
    for (std::size_t i = 0; i < n; i += step)
        std::memcpy(to + i, from + i, step);
}

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

#ifdef __SSE2__
    __m128i load_wide_unchecked(u32 at, u32 behind) const
    {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + at + behind));
    }
#endif

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
            copy_some(to, bytes + at, count * sizeof(T));
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

// Where n bytes start of which `before` stand before the table; false unless all of them lie inside, after the
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

// The same for a table whose vtable has just so many slots and stands right before it, as we write it in compact
// form. False for any other, be it well formed or not.
template <class In>
[[nodiscard]] inline bool open_compact_table(const In& in, typename In::Word table, typename In::Word slots,
                                             TableView<In>& view)
{
    using Word = typename In::Word;
    const Word vtable_bytes = vtable_head_bytes + slot_bytes * slots;
    Word vtable{};
    if (!picture_fits(in, table, vtable_bytes, vtable_bytes + table_head_bytes, vtable))
        return false;
    if (in.template load_unchecked<u32>(table) != vtable_bytes ||   // picture_fits
        in.template load_unchecked<u16>(vtable) != vtable_bytes)    // the same
        return false;
    view = {table, vtable, vtable_bytes, in.length - table};
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

// Whether the n bytes at `offset` after the table's start lie inside. n is 8 at the most and an offset has 16 bits.
template <class In>
[[nodiscard]] inline bool field_fits(const TableView<In>& view, typename In::Word offset, u32 n)
{
    return static_cast<bool>(offset + n <= view.room);
}

// The bounds of many fields at once: the offsets of as many slots as a word has lanes of 16 bits.

#ifdef __SSE2__
// Eight slots. No lane of the result has a bit if and only if offset + width <= room in all of them. The sum stops at
// 0xFFFF, which is more than any room that is told apart.
using WideLanes = __m128i;
constexpr u32 wide_lanes = 8;

inline WideLanes lanes_beyond(const WideLanes& room, const WideLanes& widths, const WideLanes& offsets)
{
    return _mm_subs_epu16(_mm_adds_epu16(offsets, widths), room);
}
#else
constexpr u32 wide_lanes = 0xFFFFFFFF;   // there are none
#endif

// Four slots, or two where a word has 32 bits; the top bit of a lane is left free.
using LaneWord = std::conditional_t<sizeof(void*) == 8, u64, u32>;

constexpr u32 lane_bits = 16;
constexpr u32 lanes = sizeof(LaneWord) * 8 / lane_bits;
constexpr u32 largest_lane = 0x7FFF;

// The greatest room that can be told apart.
constexpr u32 largest_room(std::size_t slots) { return slots >= wide_lanes ? 0xFFFE : largest_lane; }

template <class W>
constexpr W each_lane(W value)
{
    W word = 0;
    for (u32 i = 0; i < sizeof(W) * 8; i += lane_bits)
        word |= value << i;
    return word;
}

// No lane of the result has its top bit if and only if offset + width <= room in all of them. `room` has the room in
// each lane, from the width to largest_lane: with less, a far offset would go round. Only a lane that is beyond borrows
// from its neighbour.
template <class W>
inline W lanes_beyond(const W& room, const W& widths, const W& offsets)
{
    return (room - widths - offsets) | offsets;
}

// Calls look(first) for groups of N slots that together are all of them, the last one looked at twice where it must be.
template <u32 N, class Look>
[[gnu::always_inline]] inline void each_group(u32 slots, Look&& look)
{
#pragma GCC unroll 64
    for (u32 first = 0; first + N <= slots; first += N)
        look(first);
    if (slots % N != 0)
        look(slots - N);
}

// How wide the field of each slot is, 0 where that does not matter, and the widest of them.
template <std::size_t N>
struct Widths {
    std::array<u8, N> of;
    u8 widest;
};

// Whether all fields of a vtable that holds so many slots lie inside, absent ones as if they stood at the table's first
// byte. False also where this way of looking at them cannot tell.
template <std::size_t N>
[[nodiscard, gnu::always_inline]] inline bool scalars_fit(const Input& in, const TableView<Input>& view,
                                                          const Widths<N>& widths)
{
    constexpr u32 slots = N;
    if constexpr (slots < lanes) {   // each is looked at by itself
        bool all = true;
        for (u32 k = 0; k < slots; ++k)
            if (widths.of[k] != 0)
                all = all && field_fits(view, slot_unchecked(in, view, k), widths.of[k]);   // holds_slots
        return all;
    }
    if (view.room < widths.widest)
        return false;
    const u32 told_apart = view.room < largest_room(slots) ? view.room : largest_room(slots);
#ifdef __SSE2__
    if constexpr (slots >= wide_lanes) {
        const WideLanes room = _mm_set1_epi16(static_cast<short>(told_apart));
        WideLanes beyond = _mm_setzero_si128();
        each_group<wide_lanes>(
            slots, [&](u32 first) __attribute__((always_inline)) {
                const auto width = [&](u32 i) { return short{widths.of[first + i]}; };
                const WideLanes fields =
                    _mm_setr_epi16(width(0), width(1), width(2), width(3), width(4), width(5), width(6), width(7));
                const WideLanes offsets = in.load_wide_unchecked(view.vtable, vtable_head_bytes + slot_bytes * first);
                beyond = _mm_or_si128(beyond, lanes_beyond(room, fields, offsets));   // holds_slots
            });
        return _mm_movemask_epi8(_mm_cmpeq_epi8(beyond, _mm_setzero_si128())) == 0xFFFF;
    }
#endif
    const LaneWord room = each_lane<LaneWord>(1) * told_apart;
    LaneWord beyond = 0;
    each_group<lanes>(
        slots, [&](u32 first) __attribute__((always_inline)) {
            LaneWord fields = 0;
            for (u32 i = 0; i < lanes; ++i)
                fields |= LaneWord{widths.of[first + i]} << (lane_bits * i);
            const auto offsets = in.load_unchecked<LaneWord>(view.vtable, vtable_head_bytes + slot_bytes * first);
            beyond |= lanes_beyond<LaneWord>(room, fields, offsets);   // holds_slots
        });
    return (beyond & each_lane<LaneWord>(largest_lane + 1)) == 0;
}

// A scalar that scalars_fit has tested, 0 when it is absent. Both come to a read, of an absent one at the table's first
// byte.
template <class T>
[[gnu::always_inline]] inline void read_tested_scalar(const Input& in, const TableView<Input>& view, u32 offset,
                                                      u8* field)
{
    std::size_t behind = offset;
    asm("" : "+r"(behind));   // one register for the test and the address, where the compiler would copy it
    // `behind` is added last, so that the table's address is formed once for all slots.
    const T value = load<T>(in.bytes_unchecked(view.table, 0, 0) + behind);   // scalars_fit
    const T present = behind != 0 ? value : T{0};
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

// Whether `count` items of `width` bytes lie inside after `payload`, which open_body gave. No product, no wrap.
template <class In>
[[nodiscard]] inline bool payload_fits(const In& in, typename In::Word payload, typename In::Word count, u32 width)
{
    return static_cast<bool>(count <= (in.length - payload) / width);
}

// A picture's own bytes lie inside, and `room` bytes after them are left for its bodies: whether the one whose count
// is at the position `at` finds room there. Takes it from the room.
template <class In>
[[nodiscard]] inline bool take_body(const In& in, typename In::Word at, typename In::Word& room,
                                    typename In::Word& length)
{
    length = in.template load_unchecked<u32>(at);   // one of the picture's own bytes
    if (length > room)
        return false;
    room = room - length;
    return true;
}

// Follows the reference cell at `offset` to an array of so many values, of which there are fewer than 2^16.
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
    if (room < needed || distance > room - needed)   // also refuses a sum that would wrap
        return false;
    const Word body = cell + distance;
    if (in.template load_unchecked<u32>(body) != elements)   // body + needed <= length
        return false;
    in.template copy_values_unchecked<T>(body + count_bytes, elements, field);   // the same
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
    // The distance is unsigned and may carry the sum past 2^32; a target before its own cell has wrapped.
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
