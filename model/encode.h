#pragma once
// Both forms of a record, from its tree.

#include "model/record.h"

namespace kesto::model {

// The sum of the size routine, without its limit of 32 bits. It counts 8 bytes for octets of length 0 after a
// pointer that is not null, which the writer then leaves out. Beyond 32 bits for a vector with a count and no pointer.
u64 exact_size(const Record& record);
u64 exact_size(const Message& message, const void* memory);

// The result of the size routine: the same, or 0 if it does not fit 32 bits.
inline u32 reported_size(u64 exact) { return exact > 0xffffffffU ? 0 : static_cast<u32>(exact); }

// The bytes that the compact writer writes; the reported size may be greater. The record must be encodable.
Bytes compact_form(const Record& record);

// The bytes of the fixed form, gaps zero. The message must have one.
Bytes fixed_form(const Record& record);

}   // namespace kesto::model
