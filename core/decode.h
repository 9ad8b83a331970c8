// From byte string to record.
//
// A template over the layout walks the slots; everything that does not depend on the layout is an ordinary function in
// decode.cpp. Whatever goes wrong, the record stays safe to release: counts are stored first, pointers are null or own
// a block.
#pragma once

#include "core/forms.h"
#include "core/unit.h"

namespace kesto {

struct NestedDecoder;

// A field that owns memory, or a nested record that does.
struct HeapField {
    Kind kind;
    u8 nested;   // tables and vectors: index into the decoder's list of nested messages
    u16 record_offset;
};

// What decoding and releasing need to know about one message beyond its layout.
struct Decoder {
    Unit* unit;
    const char* unpack_routine;   // the routine names that logs and memory services are given
    const char* free_routine;
    const NestedDecoder* nested;    // one for each table and vector, in slot order
    const HeapField* heap_fields;   // in slot order
    u32 heap_field_count;           // 0 for a message without heap parts
    u32 record_size;
};

using DecodeElements = bool (*)(const Input& in, u32 cells, u32 count, u8* records, const NestedDecoder& element);

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

// Each of these decodes one field whose slot is present, and refuses in silence unless it says otherwise.
[[nodiscard]] bool decode_text(const Frame& frame, u32 offset, u8* field);               // logs a failed allocation
[[nodiscard]] bool decode_block(const Frame& frame, u32 offset, u8* field);              // logs a failed allocation
[[nodiscard]] bool decode_vector(const Frame& frame, u32 offset, u8* field, const NestedDecoder& element);   // logs too

template <class T, u32 N>
[[nodiscard, gnu::noinline]] bool decode_array(const Frame& frame, u32 offset, u8* field)
{
    return read_array<T>(frame.in, frame.view, offset, N, field);
}

// Gives back what the record's pointers reach, nulls them and leaves counts and lengths as they are.
void release_record(const Decoder& decoder, u8* record);

// The body of X_free__unpacked for a message with heap parts.
void free_unpacked(void* record, const Decoder& decoder);

// Whether a decoder may look at the bytes at all. As a signed number, so that a length of 2^31 and more is refused too.
inline bool may_decode(const u8* bytes, u32 length, const void* record)
{
    return bytes != nullptr && record != nullptr && static_cast<std::int32_t>(length) >= std::int32_t{least_length};
}

// The tests that come before a record is touched, each with its log line. False when one of them failed; else `frame`
// holds the root table and the memory services are there.
[[nodiscard]] bool open_message(Frame& frame, const u8* bytes, u32 length, const void* record, const Decoder& decoder);

// Reports a table that was refused.
[[gnu::cold]] void refuse_table(const Frame& frame, TableFault fault);

// Decodes all slots of the frame's table; `slots` are its vtable's, none missing.
using DecodeSlots = bool (*)(const Frame& frame, const u8* slots, u8* record);

constexpr u32 most_slots = 64;

// The same for a vtable that holds fewer slots than the message.
[[nodiscard, gnu::cold]] bool decode_short_vtable(const Frame& frame, u32 slots, u8* record, DecodeSlots decode);

template <class L>
bool decode_slots(const Frame& frame, const u8* slots, u8* record);

// ---- the fast ways: what our own writers make of most records is recognised as a whole and copied ----

// A table in compact form, with all beneath it. False, and nothing is done, when it is not such a picture.
template <class L>
[[nodiscard, gnu::always_inline]] inline bool read_full_table(const Input& in, u32 table, u8* record)
{
    using Form = FullForm<L>;
    u32 at = 0;
    if (!picture_fits(in, table, L::vtable_bytes, Form::length, at))
        return false;
    const u8* const bytes = in.bytes_unchecked(at, 0, Form::length);   // picture_fits
    if (!Form::matches(bytes))
        return false;
    Form::read(record, bytes);
    return true;
}

// A message in fixed form.
template <class L>
[[nodiscard, gnu::always_inline]] inline bool read_fixed_message(const Input& in, u8* record)
{
    using Form = FixedForm<L>;
    if (in.length < Form::length)
        return false;
    const u8* const bytes = in.bytes_unchecked(0, 0, Form::length);
    if (!Form::matches(bytes))
        return false;
    Form::read(record, bytes);
    return true;
}

// ---- any table ----

template <class L>
[[nodiscard, gnu::always_inline]] inline bool decode_table(const Frame& frame, u8* record)
{
    static_assert(L::slots <= most_slots);
    if (!holds_slots(frame.view, L::slots)) [[unlikely]]
        return decode_short_vtable(frame, L::slots, record, decode_slots<L>);
    return decode_slots<L>(frame, slots_unchecked(frame.in, frame.view, L::slots), record);
}

template <class L>
[[nodiscard]] bool decode_any_nested(const Input& in, u32 table, u8* record, const NestedDecoder& message)
{
    Frame frame{in, {}, message.decoder, message.routine};
    const TableFault fault = open_table(in, table, frame.view);
    if (fault != TableFault::none) [[unlikely]] {
        refuse_table(frame, fault);
        return false;
    }
    if (decode_table<L>(frame, record)) [[likely]]
        return true;
    if constexpr (L::has_heap_parts)
        release_record(*message.decoder, record);
    return false;
}

template <class L>
[[nodiscard]] bool decode_nested(const Input& in, u32 table, u8* record, const NestedDecoder& message)
{
    if constexpr (!L::has_heap_parts)
        if (read_full_table<L>(in, table, record))
            return true;
    return decode_any_nested<L>(in, table, record, message);
}

template <class L>
bool decode_elements(const Input& in, u32 cells, u32 count, u8* records, const NestedDecoder& element)
{
    bool full = !L::has_heap_parts;   // as long as all before were
    for (u32 i = 0; i < count; ++i) {
        u8* const record = records + std::size_t{i} * L::record_size;
        u32 table = 0;
        if (!element_table(in, cells, i, table))
            return false;
        if constexpr (!L::has_heap_parts) {
            full = full && read_full_table<L>(in, table, record);
            if (full)
                continue;
        }
        if (!decode_any_nested<L>(in, table, record, element))
            return false;
    }
    return true;
}

template <class L, u32 K>
[[nodiscard, gnu::always_inline]] inline bool decode_slot(const Frame& frame, const u8* slots, u8* record)
{
    using Slot = typename L::template Slot<K>;
    const u32 offset = load<u16>(slots + std::size_t{slot_bytes} * K);
    if (offset == 0) [[unlikely]]
        return true;   // absent: the record is clear already
    u8* const field = record + L::record_offset[K];
    if constexpr (Slot::kind == Kind::scalar) {
        return read_scalar<typename Slot::Value>(frame.in, frame.view, offset, field);
    } else if constexpr (Slot::kind == Kind::array) {
        return decode_array<typename Slot::Value, Slot::count>(frame, offset, field);
    } else if constexpr (Slot::kind == Kind::text) {
        return decode_text(frame, offset, field);
    } else if constexpr (Slot::kind == Kind::block) {
        return decode_block(frame, offset, field);
    } else if constexpr (Slot::kind == Kind::vector) {
        return decode_vector(frame, offset, field, frame.decoder->nested[L::nested_before(K)]);
    } else {
        u32 table = 0;
        if (!nested_table(frame.in, frame.view, offset, table))
            return false;
        const bool whole =
            decode_nested<typename Slot::Layout>(frame.in, table, field, frame.decoder->nested[L::nested_before(K)]);
        return whole || !Slot::fault_ends_read;
    }
}

// Shared by every message of one layout, as are the other templates that are not inlined.
template <class L>
bool decode_slots(const Frame& shared_frame, const u8* slots, u8* record)
{
    const Frame frame = shared_frame;   // held in registers: nobody else's stores can change a copy
    return each_slot<L>([&](auto k) __attribute__((always_inline)) { return decode_slot<L, k>(frame, slots, record); });
}

template <class L>
[[nodiscard, gnu::always_inline]] inline bool read_picture(const Input& in, u8* record)
{
    const u32 table = root_table(in);
    return table == root_bytes ? read_fixed_message<L>(in, record) : read_full_table<L>(in, table, record);
}

template <class L>
[[gnu::noinline]] void decode_message(const u8* bytes, u32 length, u8* record, const Decoder& decoder)
{
    Frame frame;
    if (!open_message(frame, bytes, length, record, decoder)) [[unlikely]]
        return;
    clear_run<L::record_size>(record);
    if (!decode_table<L>(frame, record)) {
        if constexpr (L::has_heap_parts)
            release_record(decoder, record);
    }
}

// The body of X__unpack. Returns the record's size on every path: required, though no caller can see a failure so.
template <class L>
[[gnu::noinline]] u32 unpack(const u8* bytes, u32 length, u8* record, const Decoder& decoder)
{
    if constexpr (!L::has_heap_parts) {
        if (may_decode(bytes, length, record) && read_picture<L>({bytes, length}, record)) {
            ensure_memory_services(*decoder.unit);
            return L::record_size;
        }
    }
    decode_message<L>(bytes, length, record, decoder);
    return L::record_size;
}

}   // namespace kesto
