#pragma once
// Encodes both forms of a record from its tree.

#include "model/record.h"

namespace kesto::model {

// The sum computed by the size routine, without the 32-bit limit. It counts 8 bytes for a zero-length block whose
// pointer is not null, although the writer omits the block. It exceeds 32 bits for a vector with a count and a null
// pointer.
u64 exact_size(const Record& record);
u64 exact_size(const Message& message, const void* memory);

// The result of the size routine: the exact size, or 0 if that does not fit in 32 bits.
inline u32 reported_size(u64 exact) { return exact > 0xffffffffU ? 0 : static_cast<u32>(exact); }

// The bytes that the compact writer writes; the reported size may be larger. The record must be encodable.
Bytes compact_form(const Record& record);

// The bytes of the fixed form, with zero gaps. The message must have one.
Bytes fixed_form(const Record& record);

}   // namespace kesto::model
