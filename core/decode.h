// From byte string to record: the general path for any message and any byte string, as ordinary functions that take a
// message's constants. decode_fast.h has the fast paths for well-formed input.
//
// The record is safe to release after any failure: counts are stored first, and every pointer is null or owns a block.
#pragma once

#include "core/layout.h"
#include "core/unit.h"

#pragma GCC visibility push(hidden)

namespace kesto {

struct NestedDecoder;

// The properties of a slot that decoding needs.
struct SlotInfo {
    Kind kind;
    u8 width;               // scalars and arrays: bytes of one value
    u8 nested;              // tables and vectors: index into the decoder's list of nested messages
    bool fault_ends_read;   // tables: a refused one ends the decoding of the enclosing message
    u16 count;              // arrays: number of values
    u16 record_offset;
};

// The fast paths of a flat layout as data; see InlinePaths in decode_fast.h.
struct FlatPaths {
    u32(KESTO_IN_REGISTERS* try_fixed)(const u8* bytes, u8* record);   // this and the next: the record's size, or 0
    u32(KESTO_IN_REGISTERS* try_dense)(const u8* bytes, u8* record);
    bool(KESTO_IN_REGISTERS* try_table)(const u8* bytes, u32 length, u32 table, u8* record);
    u32 fixed_length;
    u32 dense_root;
    u32 dense_length;
};

struct Decoder;

// An owned block of a record, or of a table nested in it.
struct OwnedBlock {
    const char* free_routine;   // of the message that the field belongs to
    const Decoder* element;     // vectors: the element's decoder; null for texts and blocks
    u32 pointer;                // offset of the pointer from the record's start
};

// The constants of a message that decoding and releasing need.
struct Decoder {
    Unit* unit;
    const char* unpack_routine;   // routine names, for the log and the memory services
    const char* free_routine;
    const NestedDecoder* nested;   // one for each table and vector, in slot order
    const SlotInfo* slots;
    u32 slot_count;
    u32 owned_block_count;
    const OwnedBlock* owned_blocks;   // in slot order
    u32 record_size;
    const FlatPaths* paths;   // null if they are inlined
};

// Decodes `count` elements into `records`, which need not be initialized. After a failure all of them are safe to
// release.
using DecodeElements = bool(KESTO_IN_REGISTERS*)(Input in, u32 cells, u32 count, u8* records,
                                                 const NestedDecoder& element);

// A message inside another one.
struct NestedDecoder {
    const Decoder* decoder;
    const char* routine;              // routine name of the message as a nested one
    DecodeElements decode_elements;   // null for a table
};

// Whether the parameters permit decoding. The length is compared as a signed number, so 2^31 and more is refused too.
inline bool may_decode(const u8* bytes, u32 length, const void* record)
{
    return bytes != nullptr && record != nullptr && static_cast<std::int32_t>(length) >= std::int32_t{least_length};
}

// X__unpack by the general path. The record is cleared after the root table has passed its tests.
KESTO_ENTRY u32 decode_message(KESTO_WITH(const Decoder& decoder, const u8* bytes, u32 length, u8* record));

// Decodes a nested table into a record that must be clear. If the table cannot be opened, the fault is logged; if one
// of its fields is refused, what the record owns is released.
[[nodiscard]] bool decode_any_nested(Input in, u32 table, u8* record, const NestedDecoder& message);

// The same for a record that need not be clear.
[[nodiscard]] KESTO_IN_REGISTERS bool clear_and_decode_nested(Input in, u32 table, u8* record,
                                                              const NestedDecoder& message);

// The vtable of a table, which must hold at least `slots` slots; 0, a position that no vtable can have, if it is refused.
[[nodiscard]] KESTO_IN_REGISTERS u32 vtable_of(Input in, u32 table, u32 slots);

// Allocates an owned block. Logs and returns null if there is no memory.
inline u8* allocate(const Decoder& decoder, const char* routine, u32 size)
{
    void* const block = decoder.unit->allocate(size, OSAL_MEMORY_MODULE, routine);
    if (block == nullptr) [[unlikely]]
        log_allocation(*decoder.unit, routine, size);
    return static_cast<u8*>(block);
}

// Each of these stores a copy of a body in a field: a text with a NUL added, or a block. If there is no memory, they log
// and return false.
[[nodiscard]] KESTO_IN_REGISTERS bool copy_text(const u8* text, u32 length, u8* field, const Decoder& decoder,
                                                const char* routine);
[[nodiscard]] KESTO_IN_REGISTERS bool copy_block(const u8* block, u32 length, u8* field, const Decoder& decoder,
                                                 const char* routine);

// Decodes a text or a block that is present; `copy` is the function for it. Refuses one that lies outside without a log
// line.
template <auto copy>
[[nodiscard, gnu::always_inline]] inline bool decode_bytes(const Input& in, const TableView<Input>& view, u32 offset,
                                                           u8* field, const Decoder& decoder, const char* routine)
{
    u32 payload = 0, length = 0;
    return open_body(in, view, offset, payload, length) && payload_fits(in, payload, length, 1) &&
           copy(in.bytes_unchecked(payload, 0, length), length, field, decoder, routine);   // payload_fits
}

// A vector whose elements take 2^32 bytes or more: the allocated block is too small for them. Always false.
[[nodiscard, gnu::cold]] bool decode_wrapped_vector(Input in, u32 cells, u32 count, u8* field, const Decoder& decoder,
                                                    const char* routine, const NestedDecoder& element);

// Decodes a vector that is present. Logs a failed allocation. Inline because most messages with owned blocks consist of
// little more than a vector.
[[nodiscard, gnu::always_inline]] inline bool decode_vector(const Input& in, const TableView<Input>& view, u32 offset,
                                                            u8* field, const Decoder& decoder, const char* routine,
                                                            const NestedDecoder& element)
{
    u32 cells = 0, count = 0;
    if (!open_body(in, view, offset, cells, count) || !payload_fits(in, cells, count, cell_bytes))
        return false;
    set_field<u32>(field, count);   // stays set even if the next lines fail
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

// Releases all blocks that the record owns and sets its pointers to null. Counts and lengths stay as they are.
KESTO_IN_REGISTERS void release_record(const Decoder& decoder, u8* record);

// The body of X_free__unpacked for a message with owned blocks.
KESTO_ENTRY void free_unpacked(KESTO_WITH(const Decoder& decoder, void* record));

}   // namespace kesto

#pragma GCC visibility pop
