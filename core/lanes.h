// Bounds tests of eight fields at once, on x86 with SSE2. Only for tables whose vtable has all slots.
#pragma once

#include "core/wire.h"

namespace kesto {

#ifdef __SSE2__
constexpr u32 lanes = 8;

// Whether the fields of all slots lie inside the input; an absent field counts as one at the table's first byte. The
// vtable must hold these slots, at least eight. `widths` are the sizes of their fields, 0 for a field that need not be
// tested, and `widest` is the largest of them. Also false where this cannot be told: for an offset near 2^16, and
// possibly if the offset of a slot of width 0 leads outside.
template <class In>
[[nodiscard, gnu::always_inline]] inline bool fields_fit(const In& in, const TableView<In>& view, u32 slots,
                                                         const u16* widths, u32 widest)
{
    if (view.bytes_after_table < widest)
        return false;
    constexpr u32 largest_room = 0xFFFE;   // a saturated sum exceeds it
    const u32 told_apart = view.bytes_after_table < largest_room ? view.bytes_after_table : largest_room;
    const __m128i room = _mm_set1_epi16(static_cast<short>(told_apart));
    __m128i beyond = _mm_setzero_si128();
    const auto test = [&](u32 first) __attribute__((always_inline))
    {
        const __m128i fields = _mm_loadu_si128(reinterpret_cast<const __m128i*>(widths + first));
        const u32 slot = vtable_head_bytes + slot_bytes * first;
        const __m128i ends = _mm_adds_epu16(in.load_wide_unchecked(view.vtable, slot), fields);   // holds_slots
        beyond = _mm_or_si128(beyond, _mm_subs_epu16(ends, room));   // not zero for a field that ends beyond the room
    };
#pragma GCC unroll 64
    for (u32 first = 0; first + lanes <= slots; first += lanes)
        test(first);
    if (slots % lanes != 0)
        test(slots - lanes);
    return _mm_movemask_epi8(_mm_cmpeq_epi8(beyond, _mm_setzero_si128())) == 0xFFFF;
}
#else
constexpr u32 lanes = 0xFFFFFFFF;   // no layout has as many slots
#endif

// Reads a scalar whose bounds have been tested, as 0 if it is absent. There is no branch: the code loads a value in both
// cases, for an absent scalar from the table's first byte.
template <class T>
[[gnu::always_inline]] inline void read_tested_scalar(const Input& in, const TableView<Input>& view, u32 offset,
                                                      u8* field)
{
    std::size_t distance = offset;
    asm("" : "+r"(distance));   // one register for the test and the address; the compiler would copy it
    // `distance` is added last, so that the table's address is formed once for all slots.
    const T value = load<T>(in.bytes_unchecked(view.table, 0, 0) + distance);   // tested before
    const T present = distance != 0 ? value : T{0};
    std::memcpy(field, &present, sizeof present);
}

}   // namespace kesto
