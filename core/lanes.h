// Bounds tests of several fields at once: as many slots as a word has 16-bit lanes. Only for tables whose vtable has
// all slots. Proved, as wire.h is.
#pragma once

#include "core/wire.h"

namespace kesto {

#ifdef __SSE2__
// Eight slots. The result is zero if and only if offset + width <= room in every lane. The sum saturates at 0xFFFF and
// cannot wrap; `room` must be at most 0xFFFE, so that a saturated sum exceeds it.
using WideLanes = __m128i;
constexpr u32 wide_lanes = 8;

inline WideLanes lanes_beyond(const WideLanes& room, const WideLanes& widths, const WideLanes& offsets)
{
    return _mm_subs_epu16(_mm_adds_epu16(offsets, widths), room);
}
#else
constexpr u32 wide_lanes = 0xFFFFFFFF;   // no layout has as many slots
#endif

// Four slots. The top bit of each lane must stay free.
using LaneWord = u64;

constexpr u32 lane_bits = 16;
constexpr u32 lanes = sizeof(LaneWord) * 8 / lane_bits;
constexpr u32 largest_lane = 0x7FFF;

// The largest room that the lanes can represent. A larger one is treated as this one.
constexpr u32 most_told_apart(std::size_t slots) { return slots >= wide_lanes ? 0xFFFE : largest_lane; }

template <class W>
constexpr W each_lane(W value)
{
    W word = 0;
    for (u32 i = 0; i < sizeof(W) * 8; i += lane_bits)
        word |= value << i;
    return word;
}

// The top bits of all lanes of the result are clear if and only if offset + width <= room in every lane. Each lane of
// `room` must be at least the lane's width and at most largest_lane: a smaller value lets large offsets wrap past zero.
// Only a lane whose field lies outside borrows from its neighbour, and the result is nonzero then anyway.
template <class W>
inline W lanes_beyond(const W& room, const W& widths, const W& offsets)
{
    return (room - widths - offsets) | offsets;
}

// Calls look(first) for groups of N slots that together cover all slots; there must be at least N. The last group
// overlaps the one before it if N does not divide the number of slots.
template <u32 N, class Look>
[[gnu::always_inline]] inline void each_group(u32 slots, Look&& look)
{
#pragma GCC unroll 64
    for (u32 first = 0; first + N <= slots; first += N)
        look(first);
    if (slots % N != 0)
        look(slots - N);
}

// The width of each slot's field, 0 for a slot whose field need not be tested, and the largest of the widths.
template <std::size_t N>
struct Widths {
    std::array<u8, N> of;
    u8 widest;
};

// Whether the fields of all N slots lie inside the input; an absent field counts as one at the table's first byte. The
// vtable must hold N slots. Also false if an offset is too large for the lanes, and possibly if the offset of a slot of
// width 0 leads outside.
template <std::size_t N>
[[nodiscard, gnu::always_inline]] inline bool scalars_fit(const Input& in, const TableView<Input>& view,
                                                          const Widths<N>& widths)
{
    constexpr u32 slots = N;
    if constexpr (slots < lanes) {   // each slot is tested by itself
        bool all = true;
        for (u32 k = 0; k < slots; ++k)
            if (widths.of[k] != 0)
                all = all && field_fits(view, slot_unchecked(in, view, k), widths.of[k]);   // holds_slots
        return all;
    }
    if (view.bytes_after_table < widths.widest)
        return false;
    const u32 told_apart =
        view.bytes_after_table < most_told_apart(slots) ? view.bytes_after_table : most_told_apart(slots);
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

// Reads a scalar that scalars_fit has tested, as 0 if it is absent. There is no branch: the code loads a value in both
// cases, for an absent scalar from the table's first byte.
template <class T>
[[gnu::always_inline]] inline void read_tested_scalar(const Input& in, const TableView<Input>& view, u32 offset,
                                                      u8* field)
{
    std::size_t distance = offset;
    asm("" : "+r"(distance));   // one register for the test and the address; the compiler would copy it
    // `distance` is added last, so that the table's address is formed once for all slots.
    const T value = load<T>(in.bytes_unchecked(view.table, 0, 0) + distance);   // scalars_fit
    const T present = distance != 0 ? value : T{0};
    std::memcpy(field, &present, sizeof present);
}

}   // namespace kesto
