// From byte string to record: the decoder for any message and any byte string, as ordinary functions over a message's
// constants. layout_decoder.h has the fast ways for what is well formed.
//
// Whatever goes wrong, the record stays safe to release: counts are stored first, pointers are null or own a block.
#pragma once

#include "core/layout.h"
#include "core/unit.h"

namespace kesto {

struct Frame;
struct NestedDecoder;

// What decoding and releasing need to know about one slot.
struct SlotInfo {
    Kind kind;
    u8 width;               // scalars and arrays: of a value
    u8 nested;              // tables and vectors: index into the decoder's list of nested messages
    bool fault_ends_read;   // tables: a refused one ends the read of the message around it
    u16 count;              // arrays: of values
    u16 record_offset;
};

// What decoding and releasing need to know about one message.
struct Decoder {
    Unit* unit;
    const char* unpack_routine;   // the routine names that logs and memory services are given
    const char* free_routine;
    const NestedDecoder* nested;   // one for each table and vector, in slot order
    const SlotInfo* slots;
    u32 slot_count;
    u32 heap_field_count;          // 0 for a message without heap parts
    const SlotInfo* heap_fields;   // the slots that own memory, or whose nested record does
    u32 record_size;
};

using DecodeElements = bool (*)(Input in, u32 cells, u32 count, u8* records, const NestedDecoder& element);

// A message inside another one.
struct NestedDecoder {
    const Decoder* decoder;
    const char* routine;              // its name as a nested decoder
    DecodeElements decode_elements;   // null for a table
};

// The table that is being decoded.
struct Frame {
    Input in;
    TableView<Input> view;
    const Decoder* decoder;
    const char* routine;
};

// Whether a decoder may look at the bytes at all. As a signed number, so that a length of 2^31 and more is refused too.
inline bool may_decode(const u8* bytes, u32 length, const void* record)
{
    return bytes != nullptr && record != nullptr && static_cast<std::int32_t>(length) >= std::int32_t{least_length};
}

// The body of X__unpack, all but its result. The record is cleared once the root table has passed its tests.
void decode_message(const u8* bytes, u32 length, u8* record, const Decoder& decoder);

// A table inside a message, into a record that is clear. One that is refused is reported, and its record released.
[[nodiscard]] bool decode_any_nested(Input in, u32 table, u8* record, const NestedDecoder& message);

// Into a record that need not be clear.
[[nodiscard]] bool decode_nested_anew(Input in, u32 table, u8* record, const NestedDecoder& message);

// The view of a table that has at least so many slots; its vtable is at 0, where none can be, when it has not.
[[nodiscard, gnu::cold]] TableView<Input> open_table_of(Input in, u32 table, u32 slots);

// Each of these makes a field own a copy of what has been found for it: of a text with a NUL added, of a block that is
// not empty. False, after a log line, when there is no memory.
[[nodiscard]] bool take_text(const Decoder& owner, const char* routine, const u8* text, u32 length, u8* field);
[[nodiscard]] bool take_block(const Decoder& owner, const char* routine, const u8* block, u32 length, u8* field);

// Each of these decodes one field whose slot is present, and refuses in silence unless it says otherwise.
[[nodiscard]] bool decode_text(const Frame& frame, u32 offset, u8* field);    // logs a failed allocation
[[nodiscard]] bool decode_block(const Frame& frame, u32 offset, u8* field);   // logs a failed allocation
[[nodiscard]] bool decode_vector(const Frame& frame, u32 offset, u8* field, const NestedDecoder& element);   // logs too

// Gives back what the record's pointers reach, nulls them and leaves counts and lengths as they are.
void release_record(const Decoder& decoder, u8* record);

// The body of X_free__unpacked for a message with heap parts.
void free_unpacked(void* record, const Decoder& decoder);

}   // namespace kesto
