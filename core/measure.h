// The size of a record's compact form: exactly, or an upper bound. If a buffer's capacity covers the bound, the packer
// (pack.h) runs without measuring first, and the end of its output gives the size.
#pragma once

#include "core/image_forms.h"

namespace kesto {

struct NestedEncoder;

enum class Measure : bool { exactly, bound };

// The size of `count` tables without their cells, or a bound of it. Any value above largest_size means that the tables
// do not fit in 32 bits.
using MeasureElements = u64(KESTO_IN_REGISTERS*)(const u8* records, u32 count, const NestedEncoder* nested);

// Writes `count` tables from `at` on and fills their cells. Returns the end of the output.
using WriteElements = u8*(KESTO_IN_REGISTERS*)(u8* cells, u32 count, u8* at, const u8* records,
                                               const NestedEncoder* nested);

// The constants of a nested message that encoding needs. The routines are null for a table.
struct NestedEncoder {
    MeasureElements measure_elements;
    MeasureElements bound_elements;
    WriteElements write_elements;
    const NestedEncoder* nested;   // the messages nested in that one
};

constexpr u64 largest_size = 0xFFFFFFFF;
constexpr u64 too_large = largest_size + 1;   // makes every sum that contains it exceed 32 bits

// What a table takes whatever its record holds. In a bound, that includes every scalar and the nested tables without
// owned blocks.
template <class L, Measure how>
constexpr u32 constant_size = [] {
    u32 size = L::empty_table;
    L::each_slot([&]<class Slot>(u32) {
        if constexpr (Slot::kind == Kind::scalar)
            size += how == Measure::bound ? Slot::record_size : 0;
        else if constexpr (Slot::kind == Kind::array)
            size += cell_bytes + count_bytes + Slot::payload;
        else if constexpr (Slot::kind == Kind::table)
            size += cell_bytes;
        if constexpr (Slot::kind == Kind::table && how == Measure::bound)
            if constexpr (!Slot::Layout::has_owned_blocks)
                size += DenseImage<typename Slot::Layout>::length;
        return true;
    });
    return size;
}();

// What the scalars take that are not zero. Those of one width are counted together, which takes two instructions each.
template <class L>
[[gnu::always_inline]] inline u32 bytes_of_scalars(const u8* record)
{
    u32 size = 0;
    detail::each_number(
        [&]<u32 log>() __attribute__((always_inline)) {
            u32 present = 0;
            L::each_slot([&]<class Slot>(u32 K) __attribute__((always_inline)) {
                if constexpr (Slot::kind == Kind::scalar && Slot::record_size == 1U << log)
                    present += field_value<typename Slot::Value>(record + L::record_offset[K]) != 0;
                return true;
            });
            size += present << log;
            return true;
        },
        std::make_integer_sequence<u32, 4>());
    return size;
}

// The size of one table and all tables beneath it, without a root word; too_large if it does not fit in 32 bits, and
// for a vector with a count but no pointer. A bound counts every scalar. It is too_large for a block with a pointer and
// length 0 too, because the end of the packer's output is not the size in that case.
template <class L, Measure how>
[[gnu::noinline]] KESTO_IN_REGISTERS u64 measure_table(const u8* record, const NestedEncoder* nested)
{
    constexpr bool exactly = how == Measure::exactly;
    u64 size = constant_size<L, how>;
    if constexpr (exactly)
        size += bytes_of_scalars<L>(record);
    const bool fits = L::each_slot([&]<class Slot>(u32 K) __attribute__((always_inline)) {
        const u8* const field = record + L::record_offset[K];
        if constexpr (Slot::kind == Kind::scalar || Slot::kind == Kind::array || (!exactly && Slot::fixed_bytes != 0)) {
            return true;   // counted above
        } else if constexpr (Slot::kind == Kind::text) {
            const u8* const text = field_pointer(field);
            if (text != nullptr)
                size += u64{cell_bytes + count_bytes} + std::strlen(reinterpret_cast<const char*>(text)) + 1;
        } else if constexpr (Slot::kind == Kind::block) {
            // required: the pointer alone decides, so a block of length 0 adds 8 bytes that are never written
            if (field_pointer(field + counted_pointer) != nullptr) {
                const u32 length = field_value<u32>(field);
                size += u64{cell_bytes + count_bytes} + length;
                if (!exactly && length == 0)
                    size = too_large;
            }
        } else if constexpr (Slot::kind == Kind::vector) {
            const u32 count = field_value<u32>(field);
            if (count != 0) {
                const u8* const records = field_pointer(field + counted_pointer);
                if (records == nullptr)   // as a failed decode leaves it: no operation accepts the record
                    return false;
                const NestedEncoder& element = nested[L::nested_before[K]];
                const MeasureElements measure = exactly ? element.measure_elements : element.bound_elements;
                size += cell_bytes + count_bytes + u64{cell_bytes} * count;
                size += measure(records, count, element.nested);
            }
        } else {
            size += measure_table<typename Slot::Layout, how>(field, nested[L::nested_before[K]].nested);
        }
        return size <= largest_size;   // leaving here keeps the u64 sum far from wrapping
    });
    return fits ? size : too_large;
}

template <class L, Measure how>
KESTO_IN_REGISTERS u64 measure_elements(const u8* records, u32 count, const NestedEncoder* nested)
{
    if constexpr (how == Measure::bound && !L::has_owned_blocks) {
        return u64{count} * DenseImage<L>::length;
    } else {
        const u8* record = records;
        const u8* const end = records + std::size_t{count} * L::record_size;
        u64 size = 0;
        if constexpr (!L::has_owned_blocks) {   // leading rows without zeros have a known size
            while (record != end && is_dense<L>(record))
                record += L::record_size;
            size = u64{DenseImage<L>::length} * (static_cast<std::size_t>(record - records) / L::record_size);
        }
        for (; record != end && size <= largest_size; record += L::record_size)
            size += measure_table<L, how>(record, nested);
        return size;
    }
}

}   // namespace kesto
