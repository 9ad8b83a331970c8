// From byte string to record: the decoder for any message and any byte string, as ordinary functions over a message's
// constants. decode_fast.h has the fast paths for what is well formed.
//
// Whatever goes wrong, the record stays safe to release: counts are stored first, pointers are null or own a block.
#pragma once

#include "core/layout.h"
#include "core/unit.h"

namespace kesto {

struct Frame;
struct NestedDecoder;

// One slot, as far as decoding goes.
struct SlotInfo {
    Kind kind;
    u8 width;               // scalars and arrays: of a value
    u8 nested;              // tables and vectors: index into the decoder's list of nested messages
    bool fault_ends_read;   // tables: a refused one ends the read of the message around it
    u16 count;              // arrays: of values
    u16 record_offset;
};

struct Decoder;

// A block that a record owns: its own, or one of a table within it.
struct OwnedBlock {
    const char* free_routine;   // of the message whose field it is
    const Decoder* element;     // vectors: of what; null for texts and blocks
    u32 pointer;                // its offset from the record's start
};

// One message, as far as decoding and releasing go.
struct Decoder {
    Unit* unit;
    const char* unpack_routine;   // the routine names that logs and memory services are given
    const char* free_routine;
    const NestedDecoder* nested;   // one for each table and vector, in slot order
    const SlotInfo* slots;
    u32 slot_count;
    u32 owned_block_count;
    const OwnedBlock* owned_blocks;   // in slot order
    u32 record_size;
};

// Records come uninitialized. When one is refused, all are safe to release.
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
[[nodiscard]] bool clear_and_decode_nested(Input in, u32 table, u8* record, const NestedDecoder& message);

// The view of a table that has at least so many slots; its vtable is at 0, where none can be, when it has not.
[[nodiscard, gnu::cold]] TableView<Input> open_table_of(Input in, u32 table, u32 slots);

// Memory for a part of a record; null, after a log line, when there is none.
inline u8* allocate(const Decoder& decoder, const char* routine, u32 size)
{
    void* const block = decoder.unit->allocate(size, OSAL_MEMORY_MODULE, routine);
    if (block == nullptr) [[unlikely]]
        log_allocation(*decoder.unit, routine, size);
    return static_cast<u8*>(block);
}

// Each of these makes a field own a copy of what has been found for it: of a text with a NUL added, of a block that is
// not empty. False, after a log line, when there is no memory.
[[nodiscard]] bool copy_text(const Decoder& owner, const char* routine, const u8* text, u32 length, u8* field);
[[nodiscard]] bool copy_block(const Decoder& owner, const char* routine, const u8* block, u32 length, u8* field);

// Each of these decodes one field whose slot is present, and refuses in silence unless it says otherwise.
[[nodiscard]] bool decode_text(const Frame& frame, u32 offset, u8* field);    // logs a failed allocation
[[nodiscard]] bool decode_block(const Frame& frame, u32 offset, u8* field);   // logs a failed allocation

// A vector whose elements take more than 32 bits can count, and so do not find room in the block that is allocated.
[[nodiscard, gnu::cold]] bool decode_wrapped_vector(Input in, u32 cells, u32 count, u8* field, const Decoder& decoder,
                                                    const char* routine, const NestedDecoder& element);

// Logs a failed allocation too. Inline, as most messages with owned blocks are little more than a vector.
[[nodiscard, gnu::always_inline]] inline bool decode_vector(const Input& in, const TableView<Input>& view, u32 offset,
                                                            u8* field, const Decoder& decoder, const char* routine,
                                                            const NestedDecoder& element)
{
    u32 cells = 0, count = 0;
    if (!open_body(in, view, offset, cells, count) || !payload_fits(in, cells, count, cell_bytes))
        return false;
    set_field<u32>(field, count);   // stays even if the next lines fail
    if (count == 0)
        return true;

    const u64 needed = u64{count} * element.decoder->record_size;
    const u32 size = static_cast<u32>(needed);
    if (size != needed) [[unlikely]]
        return decode_wrapped_vector(in, cells, count, field, decoder, routine, element);
    u8* const records = allocate(decoder, routine, size);
    set_field<u8*>(field + counted_pointer, records);
    if (records == nullptr) [[unlikely]]
        return false;
    return element.decode_elements(in, cells, count, records, element);
}

// Gives back what the record's pointers reach, nulls them and leaves counts and lengths as they are.
void release_record(const Decoder& decoder, u8* record);

// The body of X_free__unpacked for a message with owned blocks.
void free_unpacked(void* record, const Decoder& decoder);

}   // namespace kesto
