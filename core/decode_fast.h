// The decoder's fast paths, instantiated per layout. A try_... function decodes well-formed input and may decline any
// other, which the general path (decode.cpp) then decodes. Where both apply, their records, logs and refusals agree.
//
// Decoding a flat layout, one without owned blocks, affects only its record. A try on it may therefore decline at any
// point, and the general path starts over. A try on an owning layout declines before it has any effect, or not at all.
//
// The paths of each layout, in the order in which they are tried; facts are members of Layout (layout.h):
//
//   layout                         message                           element, nested table
//   flat                           fixed image if the root is at 4,  dense image (elements only, until one is none),
//                                  else dense image; flat table      flat table; general path
//   owning, has_image              dense image; owning table         dense image (elements only); owning table; general
//   owning, else                   owning table                      owning table; general path
//
//   fact              target       effect, and the measured reason
//   has_image         all          if texts and blocks divide it, a dense image pays from 17 slots on. With a vector it
//                                  does not pay: the elements take the time
//   is_small          all          up to 14 slots an image is written and read inline, as a call would cost more than
//                                  it saves; a limit of 16 would add 3 KB of code
//   is_tiny           64 bits      up to 12 slots a flat table is read inline even in the loop over elements
//   has_vectors       64 bits      the fast path opens such a table in compact form only: its elements take the time
//   pointer_bytes     64 bits      open_compact_table is instantiated per layout, which is too much code for 32-bit
//                                  machines; there open_table_of, one function for all layouts, opens every table
#pragma once

#include "core/decode.h"
#include "core/image_forms.h"
#include "core/lanes.h"
#include "platform/bounded_memory.h"

namespace kesto {

// ---- images: most output of our own writers is recognised as a whole and copied ----

template <class L>
[[nodiscard, gnu::always_inline]] inline bool try_dense_table_here(Input in, u32 table, u8* record)
{
    using Form = DenseImage<L>;
    u32 at = 0;
    if (!image_fits(in, table, L::vtable_bytes, Form::length, at))
        return false;
    const u8* const bytes = in.bytes_unchecked(at, 0, Form::length);   // image_fits
    if (!Form::matches({bytes}))
        return false;
    Form::read(record, {bytes});
    return true;
}

template <class L>
[[nodiscard, gnu::noinline]] bool try_large_dense_table(Input in, u32 table, u8* record)
{
    return try_dense_table_here<L>(in, table, record);
}

// A table in compact form, with all tables beneath it. Returns false and writes nothing if it is not a dense image.
template <class L>
[[nodiscard, gnu::always_inline]] inline bool try_dense_table(Input in, u32 table, u8* record)
{
    if constexpr (L::is_small)
        return try_dense_table_here<L>(in, table, record);
    else   // the length is tested first: no call for a message that is too short
        return holds_bytes(in, DenseImage<L>::length) && try_large_dense_table<L>(in, table, record);
}

// A message in fixed form. Returns false and writes nothing if it is not the fixed image.
template <class L>
[[nodiscard, gnu::always_inline]] inline bool try_fixed_message(Input in, u8* record)
{
    using Form = FixedImage<L>;
    if (!holds_bytes(in, Form::length))
        return false;
    const u8* const bytes = in.bytes_unchecked(0, 0, Form::length);   // holds_bytes
    if (!Form::matches({bytes}))
        return false;
    Form::read(record, {bytes});
    return true;
}

// ---- tables whose scalars all lie inside the input ----

template <class L>
constexpr Widths<L::slots> scalar_widths = [] {
    Widths<L::slots> widths{};
    L::each_slot([&]<class Slot>(u32 k) {
        if constexpr (Slot::kind == Kind::scalar) {
            widths.of[k] = Slot::record_size;
            widths.widest = std::max(widths.widest, widths.of[k]);
        }
        return true;
    });
    return widths;
}();

// Opens a table whose vtable has all slots and whose scalars all lie inside the input; see the list of facts above.
template <class L>
[[nodiscard, gnu::always_inline]] inline bool open_tested_table(const Input& in, u32 table, TableView<Input>& view)
{
    constexpr bool has_compact_path = pointer_bytes == 8;
    if (!has_compact_path || !open_compact_table(in, table, L::slots, view)) {
        if (has_compact_path && L::has_vectors)
            return false;
        view = open_table_of(in, table, L::slots);
        if (view.vtable == 0)
            return false;
    }
    return scalars_fit(in, view, scalar_widths<L>);
}

template <class L>
[[nodiscard]] bool try_flat_table(Input in, u32 table, u8* record);

// Clears the bytes of a record that belong to no field.
template <class L>
[[gnu::always_inline]] inline void clear_gaps(u8* record)
{
    each_slot_number<L>([&]<u32 K>() __attribute__((always_inline)) {
        constexpr u32 end = L::record_offset[K] + L::template Slot<K>::record_size;
        constexpr u32 next = K + 1 < L::slots ? L::record_offset[K + 1] : L::record_size;
        clear_bytes<next - end>(record + end);
        return true;
    });
}

template <class Slot>
[[nodiscard, gnu::always_inline]] inline bool try_flat_slot(const Input& in, const TableView<Input>& view, u32 K,
                                                            u8* field)
{
    const u32 offset = slot_unchecked(in, view, K);
    if constexpr (Slot::kind == Kind::scalar) {
        read_tested_scalar<typename Slot::Value>(in, view, offset, field);
        return true;
    } else if (offset == 0) {
        clear_bytes<Slot::record_size>(field);
        return true;
    } else if constexpr (Slot::kind == Kind::array) {
        return read_array<typename Slot::Value>(in, view, offset, Slot::count, field);
    } else {
        u32 table = 0;
        return nested_table(in, view, offset, table) && try_flat_table<typename Slot::Layout>(in, table, field);
    }
}

template <class L>
[[nodiscard, gnu::always_inline]] inline bool try_flat_table_here(Input in, u32 table, u8* record)
{
    TableView<Input> view;
    if (!open_tested_table<L>(in, table, view)) [[unlikely]]
        return false;
    clear_gaps<L>(record);
    return L::each_slot([&]<class Slot>(u32 K) __attribute__((always_inline)) {
        return try_flat_slot<Slot>(in, view, K, record + L::record_offset[K]);
    });
}

// Any well-formed table of a flat layout. When it returns false, the record may hold a part of the table; it is
// untouched if the tests of the table itself failed.
template <class L>
[[nodiscard, gnu::noinline]] bool try_flat_table(Input in, u32 table, u8* record)
{
    return try_flat_table_here<L>(in, table, record);
}

// The same for callers whose speed justifies a copy of the code, provided that the code is short.
template <class L>
[[nodiscard, gnu::always_inline]] inline bool try_short_table(Input in, u32 table, u8* record)
{
    return L::is_tiny ? try_flat_table_here<L>(in, table, record) : try_flat_table<L>(in, table, record);
}

// ---- nested tables ----

template <class L>
[[nodiscard]] bool decode_owning_table(Input in, u32 table, u8* record, const NestedDecoder& message);

template <class L>
[[nodiscard]] bool decode_nested(Input in, u32 table, u8* record, const NestedDecoder& message)
{
    if constexpr (L::has_owned_blocks)
        return decode_owning_table<L>(in, table, record, message);
    else
        return try_flat_table<L>(in, table, record) || clear_and_decode_nested(in, table, record, message);
}

// ---- layouts with owned blocks ----

// `in` and `view` are copies of the frame's, so that the compiler knows that no store to a record can change them.
template <class L, class Slot>
[[nodiscard, gnu::always_inline]] inline bool decode_slot(const Frame& frame, const Input& in,
                                                          const TableView<Input>& view, u32 K, u8* record)
{
    u8* const field = record + L::record_offset[K];
    if constexpr (Slot::kind == Kind::scalar || Slot::kind == Kind::array) {
        return try_flat_slot<Slot>(in, view, K, field);
    } else {
        const u32 offset = slot_unchecked(in, view, K);
        if (offset == 0)
            return true;   // the record is clear already
        if constexpr (Slot::kind == Kind::text) {
            return decode_text(frame, offset, field);
        } else if constexpr (Slot::kind == Kind::block) {
            return decode_block(frame, offset, field);
        } else if constexpr (Slot::kind == Kind::vector) {
            return decode_vector(in, view, offset, field, *frame.decoder, frame.routine,
                                 frame.decoder->nested[L::nested_before[K]]);
        } else {
            u32 table = 0;
            if (!nested_table(in, view, offset, table))
                return false;
            const NestedDecoder& message = frame.decoder->nested[L::nested_before[K]];
            return decode_nested<typename Slot::Layout>(in, table, field, message) || !Slot::fault_ends_read;
        }
    }
}

enum class Reading : u8 { none, refused, done };   // none: declined, without any effect

// A table whose scalars all lie inside the input. The record must be clear, unless `clear` asks for it to be cleared
// first. After a fault it is released. Slots are decoded in order, because the fields after a fault must stay unset.
template <class L>
[[nodiscard, gnu::always_inline]] inline Reading
try_owning_table_here(Input in, u32 table, u8* record, const Decoder& decoder, const char* routine, bool clear)
{
    TableView<Input> view;
    if (!open_tested_table<L>(in, table, view)) [[unlikely]]
        return Reading::none;
    if (clear)
        clear_bytes<L::record_size>(record);
    const Frame frame{in, view, &decoder, routine};
    const bool all = L::each_slot([&]<class Slot>(u32 K) __attribute__((always_inline)) {
        return decode_slot<L, Slot>(frame, in, view, K, record);
    });
    if (all) [[likely]]
        return Reading::done;
    release_record(decoder, record);
    return Reading::refused;
}

template <class L>
[[nodiscard, gnu::noinline]] Reading try_owning_table(Input in, u32 table, u8* record, const Decoder& decoder,
                                                      const char* routine, bool clear)
{
    return try_owning_table_here<L>(in, table, record, decoder, routine, clear);
}

// The same as decode_any_nested.
template <class L>
[[nodiscard, gnu::always_inline]] inline bool decode_owning_table(Input in, u32 table, u8* record,
                                                                  const NestedDecoder& message)
{
    const Reading reading = try_owning_table<L>(in, table, record, *message.decoder, message.routine, false);
    if (reading == Reading::none) [[unlikely]]
        return decode_any_nested(in, table, record, message);
    return reading == Reading::done;
}

// ---- images with owned blocks ----

// Fields after the one that failed read as zero. Not marked cold: it would then be compiled for size, as a string
// instruction.
[[gnu::noinline]] inline void clear_after(u8* record, u32 end, u32 record_end)
{
    std::memset(record + end, 0, record_end - end);
}

// Allocates and copies the owned blocks of an image's record, in slot order. The fields of `L` begin at offset `base`
// of the record.
template <class Form, class L, u32 base>
[[nodiscard, gnu::always_inline]] inline bool copy_owned_blocks(const typename Form::template Places<const u8>& bytes,
                                                                u8* record, const Decoder& decoder, const char* routine)
{
    const bool all = each_slot_number<L>([&]<u32 K>() __attribute__((always_inline)) {
        using Slot = typename L::template Slot<K>;
        if constexpr (Slot::fixed_bytes == 0) {
            constexpr u32 offset = base + L::record_offset[K];
            u8* const field = record + offset;
            bool taken;
            if constexpr (Slot::kind == Kind::table) {
                const NestedDecoder& message = decoder.nested[L::nested_before[K]];
                taken = copy_owned_blocks<Form, typename Slot::Layout, offset>(bytes, record, *message.decoder,
                                                                               message.routine) ||
                        !Slot::fault_ends_read;
            } else {
                constexpr u32 b = Form::body_of(offset);
                const u8* const from = bytes[b] + Form::bodies[b].position;
                const auto length = static_cast<u32>(bytes[b + 1] - bytes[b]);
                if constexpr (Slot::kind == Kind::text)
                    taken = copy_text(decoder, routine, from, length, field);
                else
                    taken = copy_block(decoder, routine, from, length, field);
            }
            if (!taken) [[unlikely]]
                clear_after(record, offset + Slot::record_size, base + L::record_size);
            return taken;
        }
        return true;
    });
    if (!all) [[unlikely]]
        release_record(decoder, record + base);
    return all;
}

enum class After : u8 { nothing, anything };

// A dense image with owned blocks, with all tables beneath it. If nothing may come after it, as in a whole message, the
// length alone rules out most other input.
template <class L>
[[nodiscard, gnu::noinline]] Reading try_dense_owning_table(Input in, u32 table, u8* record, const Decoder& decoder,
                                                            const char* routine, After after)
{
    using Form = DenseImage<L>;
    u32 at = 0;
    if (!image_fits(in, table, L::vtable_bytes, Form::length, at))
        return Reading::none;
    u32 room = in.length - at - Form::length;
    typename Form::template Places<const u8> bytes{in.bytes_unchecked(at, 0, Form::length)};   // image_fits
    const bool fit = each_body<Form>([&]<u32 b>() __attribute__((always_inline)) {
        constexpr Body body = Form::bodies[b];
        u32 length = 0;
        if (!consume_body(in, at + body.position - count_bytes, room, length))
            return false;
        at += length;
        bytes[b + 1] = in.bytes_unchecked(at, 0, Form::length);   // consume_body
        return length != 0 || body.kind == Kind::text;
    });
    if (!fit || (after == After::nothing && room != 0) || !Form::matches(bytes))
        return Reading::none;
    Form::read(record, bytes);
    return copy_owned_blocks<Form, L, 0>(bytes, record, decoder, routine) ? Reading::done : Reading::refused;
}

// ---- elements ----

// Decodes elements as dense images until one is not, and then the rest as any tables.
template <class L>
bool decode_flat_elements(Input in, u32 cells, u32 count, u8* records, const NestedDecoder& element)
{
    u32 i = 0, table = 0;
    u8* record = records;
    for (; i < count; ++i, record += L::record_size) {
        if (!element_table(in, cells, i, table))
            return false;
        if (!try_dense_table<L>(in, table, record))
            break;
    }
    for (; i < count; ++i, record += L::record_size) {
        if (!element_table(in, cells, i, table))
            return false;
        if (!try_short_table<L>(in, table, record) && !clear_and_decode_nested(in, table, record, element))
            return false;
    }
    return true;
}

template <class L>
bool decode_owning_elements(Input in, u32 cells, u32 count, u8* records, const NestedDecoder& element)
{
    u32 i = 0, table = 0;
    u8* record = records;
    Reading reading = Reading::none;
    if constexpr (L::has_image) {
        for (; i < count && element_table(in, cells, i, table); ++i, record += L::record_size) {
            reading = try_dense_owning_table<L>(in, table, record, *element.decoder, element.routine, After::anything);
            if (reading != Reading::done)
                break;
        }
    }
    if (i != count) {   // a refused element has released its blocks already
        const std::size_t left = std::size_t{count - i} * L::record_size;
        memset_s(record, left, 0, left);
    }
    if (reading == Reading::refused)
        return false;
    for (; i < count; ++i, record += L::record_size)
        if (!element_table(in, cells, i, table) || !decode_owning_table<L>(in, table, record, element))
            return false;
    return true;
}

// ---- a layout as data, and the fastest routines for it ----

template <class L>
constexpr std::array<SlotInfo, L::slots> slot_infos = [] {
    std::array<SlotInfo, L::slots> infos{};
    L::each_slot([&]<class Slot>(u32 K) {
        SlotInfo& info = infos[K];
        info.kind = Slot::kind;
        info.nested = static_cast<u8>(L::nested_before[K]);
        info.record_offset = static_cast<u16>(L::record_offset[K]);
        if constexpr (Slot::kind == Kind::scalar || Slot::kind == Kind::array)
            info.width = sizeof(typename Slot::Value);
        if constexpr (Slot::kind == Kind::array)
            info.count = Slot::count;
        if constexpr (Slot::kind == Kind::table)
            info.fault_ends_read = Slot::fault_ends_read;
        return true;
    });
    return infos;
}();

template <class L>
constexpr u32 owned_block_count = [] {
    u32 count = 0;
    L::each_slot([&]<class Slot>(u32) {
        if constexpr (Slot::kind == Kind::table)
            count += owned_block_count<typename Slot::Layout>;
        else
            count += Slot::fixed_bytes == 0;
        return true;
    });
    return count;
}();

template <class L>
constexpr DecodeElements elements_decoder()
{
    if constexpr (L::has_owned_blocks)
        return decode_owning_elements<L>;
    else
        return decode_flat_elements<L>;
}

// ---- messages ----

// Returns false if no fast path applies; decode_message then starts over. The memory services must have been looked up
// before, because fast paths allocate through the unit's hooks without looking them up.
template <class L>
[[nodiscard, gnu::always_inline]] inline bool try_message(Input in, u8* record, const Decoder& decoder)
{
    const u32 table = root_table(in);
    if constexpr (L::has_owned_blocks) {
        if constexpr (L::has_image)
            if (try_dense_owning_table<L>(in, table, record, decoder, decoder.unpack_routine, After::nothing) !=
                Reading::none)
                return true;
        if constexpr (L::has_vectors)   // and so is nested in no other table
            return try_owning_table_here<L>(in, table, record, decoder, decoder.unpack_routine, true) != Reading::none;
        else
            return try_owning_table<L>(in, table, record, decoder, decoder.unpack_routine, true) != Reading::none;
    } else {
        return (table == root_bytes ? try_fixed_message<L>(in, record) : try_dense_table<L>(in, table, record)) ||
               try_short_table<L>(in, table, record);
    }
}

// The body of X__unpack. required: returns the record's size on every path, but no caller can then detect a failure.
template <class L>
[[gnu::noinline]] u32 unpack(const u8* bytes, u32 length, u8* record, const Decoder& decoder)
{
    // The first decoding takes the general path, which looks the services up after the root's tests and before the
    // first store.
    const bool done = may_decode(bytes, length, record) && has_memory_services(*decoder.unit) &&
                      try_message<L>({bytes, length}, record, decoder);
    if (!done) [[unlikely]]
        decode_message(bytes, length, record, decoder);
    return L::record_size;
}

}   // namespace kesto
