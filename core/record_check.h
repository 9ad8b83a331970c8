// Checks that a record of the public headers matches its layout: field offsets, number of fields, size and alignment.
#pragma once

#include <cstddef>

#include "core/layout.h"

namespace kesto::detail {

constexpr u32 no_field = 0xFFFFFFFF;

// The offset of field K of a record, whichever name the field has; no_field if the record has no such field.
template <class Record, u32 K>
struct FieldOffset {
    static constexpr u32 value = no_field;
};

#define KESTO_FIELD_NAME(k, field)                                              \
    template <class Record>                                                     \
    requires requires(Record record) { record.field; }                          \
    struct FieldOffset<Record, k> {                                             \
        static constexpr u32 value = static_cast<u32>(offsetof(Record, field)); \
    };

// clang-format off
#define KESTO_TEN_FIELD_NAMES(tens) \
    KESTO_FIELD_NAME(tens##0, f##tens##0) KESTO_FIELD_NAME(tens##1, f##tens##1) \
    KESTO_FIELD_NAME(tens##2, f##tens##2) KESTO_FIELD_NAME(tens##3, f##tens##3) \
    KESTO_FIELD_NAME(tens##4, f##tens##4) KESTO_FIELD_NAME(tens##5, f##tens##5) \
    KESTO_FIELD_NAME(tens##6, f##tens##6) KESTO_FIELD_NAME(tens##7, f##tens##7) \
    KESTO_FIELD_NAME(tens##8, f##tens##8) KESTO_FIELD_NAME(tens##9, f##tens##9)
// clang-format on

KESTO_FIELD_NAME(0, f0)
KESTO_FIELD_NAME(1, f1)
KESTO_FIELD_NAME(2, f2)
KESTO_FIELD_NAME(3, f3)
KESTO_FIELD_NAME(4, f4)
KESTO_FIELD_NAME(5, f5)
KESTO_FIELD_NAME(6, f6)
KESTO_FIELD_NAME(7, f7)
KESTO_FIELD_NAME(8, f8)
KESTO_FIELD_NAME(9, f9)
KESTO_TEN_FIELD_NAMES(1)
KESTO_TEN_FIELD_NAMES(2)
KESTO_TEN_FIELD_NAMES(3)
KESTO_TEN_FIELD_NAMES(4)

KESTO_FIELD_NAME(0, year)
KESTO_FIELD_NAME(1, month)
KESTO_FIELD_NAME(2, day)
KESTO_FIELD_NAME(3, hour)
KESTO_FIELD_NAME(4, minute)
KESTO_FIELD_NAME(5, second)

#undef KESTO_TEN_FIELD_NAMES
#undef KESTO_FIELD_NAME

template <class Record, class L>
constexpr bool record_matches()
{
    return sizeof(Record) == L::record_size && alignof(Record) == L::record_align &&
           FieldOffset<Record, L::slots>::value == no_field &&
           each_slot_number<L>([]<u32 k>() { return FieldOffset<Record, k>::value == L::record_offset[k]; });
}

}   // namespace kesto::detail
