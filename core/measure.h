// The size of a record's compact form: exactly, or an upper bound. If a buffer's capacity covers the bound, the packer
// (pack.h) runs without measuring first, and the end of its output gives the size.
#pragma once

#include "core/image_forms.h"

namespace kesto {

struct NestedEncoder;

enum class Measure : bool { exactly, bound };

// The size of tables. Each of 2^32 - 1 or more is too_large: no message of 32 bits can hold them.
using Size = std::size_t;
constexpr Size too_large = 0xFFFFFFFF;

// Sums and products of 64 bits stay far from wrapping, as the loop over elements ends at the first size that is
// too_large. Those of 32 bits stop at too_large itself.
inline Size sum(Size left, Size right)
{
    Size both;
    return __builtin_add_overflow(left, right, &both) && pointer_bytes == 4 ? too_large : both;
}

inline Size product(Size count, Size each)
{
    Size all;
    return __builtin_mul_overflow(count, each, &all) && pointer_bytes == 4 ? too_large : all;
}

// The size of `count` tables without their cells, or a bound of it; may be too_large.
using MeasureElements = Size(KESTO_IN_REGISTERS*)(const u8* records, u32 count, const NestedEncoder* nested);

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
[[gnu::noinline]] KESTO_IN_REGISTERS Size measure_table(const u8* record, const NestedEncoder* nested)
{
    constexpr bool exactly = how == Measure::exactly;
    Size size = constant_size<L, how>;
    if constexpr (exactly)
        size += bytes_of_scalars<L>(record);
    L::each_slot([&]<class Slot>(u32 K) __attribute__((always_inline)) {
        const u8* const field = record + L::record_offset[K];
        if constexpr (Slot::kind == Kind::scalar || Slot::kind == Kind::array || (!exactly && Slot::fixed_bytes != 0)) {
            // counted above
        } else if constexpr (Slot::kind == Kind::text) {
            const u8* const text = field_pointer(field);
            if (text != nullptr)
                size = sum(size, cell_bytes + count_bytes + std::strlen(reinterpret_cast<const char*>(text)) + 1);
        } else if constexpr (Slot::kind == Kind::block) {
            // required: the pointer alone decides, so a block of length 0 adds 8 bytes that are never written
            if (field_pointer(field + counted_pointer) != nullptr) {
                const u32 length = field_value<u32>(field);
                size = !exactly && length == 0 ? too_large : sum(sum(size, cell_bytes + count_bytes), length);
            }
        } else if constexpr (Slot::kind == Kind::vector) {
            const u32 count = field_value<u32>(field);
            if (count != 0) {
                const u8* const records = field_pointer(field + counted_pointer);
                const NestedEncoder& element = nested[L::nested_before[K]];
                const MeasureElements measure = exactly ? element.measure_elements : element.bound_elements;
                size = sum(sum(size, cell_bytes + count_bytes), product(count, cell_bytes));
                // Without a pointer, as a failed decode leaves it, no operation accepts the record.
                size = records != nullptr ? sum(size, measure(records, count, element.nested)) : too_large;
            }
        } else {
            size = sum(size, measure_table<typename Slot::Layout, how>(field, nested[L::nested_before[K]].nested));
        }
        return true;
    });
    return size;
}

template <class L, Measure how>
KESTO_IN_REGISTERS Size measure_elements(const u8* records, u32 count, const NestedEncoder* nested)
{
    if constexpr (how == Measure::bound && !L::has_owned_blocks) {
        return product(count, DenseImage<L>::length);
    } else {
        const u8* record = records;
        const u8* const end = records + std::size_t{count} * L::record_size;
        Size size = 0;
        if constexpr (!L::has_owned_blocks) {   // leading rows without zeros have a known size
            while (record != end && is_dense<L>(record))
                record += L::record_size;
            size = product(static_cast<Size>(record - records) / L::record_size, DenseImage<L>::length);
        }
        for (; record != end && size < too_large; record += L::record_size)
            size = sum(size, measure_table<L, how>(record, nested));
        return size;
    }
}

}   // namespace kesto
