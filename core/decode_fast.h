// The decoder's fast paths, instantiated per layout. A try_... function decodes well-formed input and may decline any
// other, which the general path (decode.cpp) then decodes. Where both apply, their records, logs and refusals agree.
//
// A try that declines may have written to the record, but has had no other effect: no block is allocated and nothing is
// logged before it is certain to conclude. The general path starts over.
//
// The paths of each layout, in the order in which they are tried; facts are members of Layout (layout.h):
//
//   layout    message                                      element, nested table
//   flat      dense image or fixed image, as the root's    dense image (elements only until one is none); flat table;
//             position tells; flat table                   general path
//   owning    head image or tested scalars, then slots     the same; general path
//
//   fact              target       effect, and the measured reason
//   is_short          64 bits      up to 14 slots an image is written and read inline, and a flat table is read inline
//                                  even in the loop over elements, as a call would cost more than it saves
//   has_vectors       all          such a message is decoded inline in its unpack: it is nested in no other table
//   pointer_bytes     32 bits      scalars are tested and read one by one: registers are too few for lanes.h
//   slots             64 bits      from 8 on, scalars are tested eight at a time (lanes.h)
#pragma once

#include "core/decode.h"
#include "core/image_forms.h"
#include "core/lanes.h"
#include "platform/bounded_memory.h"

namespace kesto {

// ---- images: most output of our own writers is recognised as a whole and copied ----

template <class Form>
[[nodiscard, gnu::always_inline]] inline bool try_image_here(const u8* bytes, u8* record)
{
    if (!Form::matches(bytes))
        return false;
    Form::read(record, bytes);
    return true;
}

// Returns the record's size, or 0.
template <class Form>
[[nodiscard, gnu::noinline]] KESTO_IN_REGISTERS u32 try_long_image(const u8* bytes, u8* record)
{
    if (!Form::matches(bytes)) [[unlikely]]
        return 0;
    Form::read(record, bytes);
    return Form::record_size;
}

// The bytes must hold the image's length. Returns false and writes nothing if they are not the image.
template <class Form, bool is_short>
[[nodiscard, gnu::always_inline]] inline bool try_image(const u8* bytes, u8* record)
{
    return is_short ? try_image_here<Form>(bytes, record) : try_long_image<Form>(bytes, record) != 0;
}

// A table in compact form, with all tables beneath it.
template <class L>
[[nodiscard, gnu::always_inline]] inline bool try_dense_table(Input in, u32 table, u8* record)
{
    using Form = DenseImage<L>;
    u32 at = 0;
    return image_fits(in, table, L::vtable_bytes, Form::length, at) &&
           try_image<Form, L::is_short>(in.bytes_unchecked(at, 0, Form::length), record);   // image_fits
}

// ---- tables whose scalars all lie inside the input ----

template <class L>
constexpr std::array<u16, L::slots> scalar_widths = [] {
    std::array<u16, L::slots> widths{};
    L::each_slot([&]<class Slot>(u32 k) {
        widths[k] = Slot::kind == Kind::scalar ? Slot::record_size : 0;
        return true;
    });
    return widths;
}();

// Opens a table whose vtable has all slots.
template <class L>
[[nodiscard, gnu::always_inline]] inline bool open_whole_table(const Input& in, u32 table, TableView<Input>& view)
{
    if (open_compact_table(in, table, L::slots, view))
        return true;
    view = {table, vtable_of(in, table, L::slots), L::vtable_bytes, in.length - table};
    return view.vtable != 0;
}

// Reads the scalars of a table whose vtable has all slots, absent ones as 0. False if one of them lies outside.
template <class L>
[[nodiscard, gnu::always_inline]] inline bool try_scalars(const Input& in, const TableView<Input>& view, u8* record)
{
    constexpr bool in_lanes = pointer_bytes == 8 && L::slots >= lanes;
    if constexpr (in_lanes) {
        constexpr u32 widest = std::ranges::max(scalar_widths<L>);
        if (!fields_fit(in, view, L::slots, scalar_widths<L>.data(), widest))
            return false;
    }
    return L::each_slot([&]<class Slot>(u32 K) __attribute__((always_inline)) {
        if constexpr (Slot::kind == Kind::scalar) {
            const u32 offset = slot_unchecked(in, view, K);
            if (!in_lanes && !field_fits(view, offset, Slot::record_size)) [[unlikely]]
                return false;
            read_tested_scalar<typename Slot::Value>(in, view, offset, record + L::record_offset[K]);
        }
        return true;
    });
}

template <class L>
[[nodiscard]] KESTO_IN_REGISTERS bool try_flat_table(const u8* bytes, u32 length, u32 table, u8* record);

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

// The same for the nested tables that the head image has, and all beneath them.
template <class L>
[[gnu::always_inline]] inline void clear_gaps_beneath(u8* record)
{
    L::each_slot([&]<class Slot>(u32 K) __attribute__((always_inline)) {
        if constexpr (Slot::kind == Kind::table) {
            if (L::in_head[K]) {
                clear_gaps<typename Slot::Layout>(record + L::record_offset[K]);
                clear_gaps_beneath<typename Slot::Layout>(record + L::record_offset[K]);
            }
        }
        return true;
    });
}

// Reads slot K of a flat layout, other than a scalar.
template <class Slot>
[[nodiscard, gnu::always_inline]] inline bool try_flat_slot(const Input& in, const TableView<Input>& view, u32 K,
                                                            u8* field)
{
    const u32 offset = slot_unchecked(in, view, K);
    if (offset == 0) {
        clear_bytes<Slot::record_size>(field);
        return true;
    }
    if constexpr (Slot::kind == Kind::array) {
        return read_array<typename Slot::Value>(in, view, offset, Slot::count, field);
    } else {
        u32 table = 0;
        return nested_table(in, view, offset, table) &&
               try_flat_table<typename Slot::Layout>(in.bytes, in.length, table, field);
    }
}

template <class L>
[[nodiscard, gnu::always_inline]] inline bool try_flat_table_here(Input in, u32 table, u8* record)
{
    TableView<Input> view;
    if (!open_whole_table<L>(in, table, view) || !try_scalars<L>(in, view, record)) [[unlikely]]
        return false;
    clear_gaps<L>(record);
    return L::each_slot([&]<class Slot>(u32 K) __attribute__((always_inline)) {
        if constexpr (Slot::kind == Kind::scalar)
            return true;
        else
            return try_flat_slot<Slot>(in, view, K, record + L::record_offset[K]);
    });
}

// Any well-formed table of a flat layout.
template <class L>
[[nodiscard, gnu::noinline]] KESTO_IN_REGISTERS bool try_flat_table(const u8* bytes, u32 length, u32 table, u8* record)
{
    return try_flat_table_here<L>({bytes, length}, table, record);
}

// The same for callers whose speed justifies a copy of the code, provided that the code is short.
template <class L>
[[nodiscard, gnu::always_inline]] inline bool try_short_table(Input in, u32 table, u8* record)
{
    return L::is_short ? try_flat_table_here<L>(in, table, record)
                       : try_flat_table<L>(in.bytes, in.length, table, record);
}

// ---- layouts with owned blocks ----

enum class Reading : u8 { none, refused, done };   // none: declined

template <class L>
[[nodiscard]] KESTO_IN_REGISTERS Reading try_owning_table(const u8* bytes, u32 length, u32 table, u8* record,
                                                          const Decoder& decoder, const char* routine);

// The same as clear_and_decode_nested.
template <class L>
[[nodiscard, gnu::always_inline]] inline bool decode_nested(Input in, u32 table, u8* record,
                                                            const NestedDecoder& message)
{
    if constexpr (L::has_owned_blocks) {
        const Reading reading =
            try_owning_table<L>(in.bytes, in.length, table, record, *message.decoder, message.routine);
        if (reading != Reading::none) [[likely]]
            return reading == Reading::done;
    } else if (try_dense_table<L>(in, table, record) || try_flat_table<L>(in.bytes, in.length, table, record)) {
        return true;
    }
    return clear_and_decode_nested(in, table, record, message);
}

// Reads what the head image of our own writers has.
template <class L>
[[nodiscard, gnu::always_inline]] inline bool try_head(const Input& in, u32 table, TableView<Input>& view, u8* record)
{
    using Form = HeadImage<L>;
    u32 at = 0;
    if (!image_fits(in, table, L::vtable_bytes, vtable_head_bytes + Form::length, at))
        return false;
    const u8* const head = in.bytes_unchecked(at, vtable_head_bytes, Form::length);   // image_fits
    if (in.load_unchecked<u16>(at) != L::vtable_bytes || !Form::matches(head))        // the same
        return false;
    view = {table, at, L::vtable_bytes, in.length - table};
    Form::read_fields(record, head);
    clear_gaps_beneath<L>(record);
    return true;
}

// Decodes slot K, other than a scalar, and writes its field in any case.
template <class L, class Slot>
[[nodiscard, gnu::always_inline]] inline bool decode_slot(const Input& in, const TableView<Input>& view, u32 K,
                                                          u8* field, const Decoder& decoder, const char* routine)
{
    const u32 offset = slot_unchecked(in, view, K);
    if constexpr (Slot::kind == Kind::array) {
        return try_flat_slot<Slot>(in, view, K, field);
    } else if constexpr (Slot::kind == Kind::table) {
        if (offset == 0) {
            clear_bytes<Slot::record_size>(field);
            return true;
        }
        u32 table = 0;
        if (!nested_table(in, view, offset, table)) {
            clear_bytes<Slot::record_size>(field);
            return false;
        }
        const NestedDecoder& message = decoder.nested[L::nested_before[K]];
        return decode_nested<typename Slot::Layout>(in, table, field, message) || !Slot::fault_ends_read;
    } else {
        clear_bytes<Slot::record_size>(field);
        if (offset == 0)
            return true;
        if constexpr (Slot::kind == Kind::text)
            return decode_bytes<copy_text>(in, view, offset, field, decoder, routine);
        else if constexpr (Slot::kind == Kind::block)
            return decode_bytes<copy_block>(in, view, offset, field, decoder, routine);
        else
            return decode_vector(in, view, offset, field, decoder, routine, decoder.nested[L::nested_before[K]]);
    }
}

// Fields after the one that failed read as zero. Not marked cold: it would then be compiled for size, as a string
// instruction.
[[gnu::noinline]] inline void clear_after(u8* record, u32 end, u32 record_end)
{
    std::memset(record + end, 0, record_end - end);
}

// A table whose vtable has all slots and whose scalars all lie inside the input. After a fault the record is released.
template <class L>
[[nodiscard, gnu::always_inline]] inline Reading try_owning_table_here(Input in, u32 table, u8* record,
                                                                       const Decoder& decoder, const char* routine)
{
    TableView<Input> view;
    const bool has_head = try_head<L>(in, table, view, record);
    if (!has_head && (!open_whole_table<L>(in, table, view) || !try_scalars<L>(in, view, record))) [[unlikely]]
        return Reading::none;
    clear_gaps<L>(record);
    u32 end = 0;   // of what the record has when a slot fails
    const bool all = L::each_slot([&]<class Slot>(u32 K) __attribute__((always_inline)) {
        if constexpr (Slot::kind == Kind::scalar) {
            return true;
        } else {
            if (has_head && L::in_head[K])
                return true;
            end = L::record_offset[K] + (Slot::kind == Kind::array ? 0 : Slot::record_size);
            return decode_slot<L, Slot>(in, view, K, record + L::record_offset[K], decoder, routine);
        }
    });
    if (all) [[likely]]
        return Reading::done;
    clear_after(record, end, L::record_size);
    release_record(decoder, record);
    return Reading::refused;
}

template <class L>
[[nodiscard, gnu::noinline]] KESTO_IN_REGISTERS Reading try_owning_table(const u8* bytes, u32 length, u32 table,
                                                                         u8* record, const Decoder& decoder,
                                                                         const char* routine)
{
    return try_owning_table_here<L>({bytes, length}, table, record, decoder, routine);
}

// ---- elements ----

// Decodes elements as dense images until one is not, and then the rest as any tables.
template <class L>
KESTO_IN_REGISTERS bool decode_flat_elements(Input in, u32 cells, u32 count, u8* records, const NestedDecoder& element)
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
KESTO_IN_REGISTERS bool decode_owning_elements(Input in, u32 cells, u32 count, u8* records,
                                               const NestedDecoder& element)
{
    u8* record = records;
    for (u32 i = 0, table = 0; i < count; ++i, record += L::record_size) {
        const bool found = element_table(in, cells, i, table);
        if (found && decode_nested<L>(in, table, record, element)) [[likely]]
            continue;
        // All elements are released later. A refused one has released its blocks itself.
        if (found)
            ++i, record += L::record_size;
        if (i != count) {
            const std::size_t left = std::size_t{count - i} * L::record_size;
            memset_s(record, left, 0, left);
        }
        return false;
    }
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

// The images of a flat layout, to be inlined; flat_paths has the same as data. The lengths are those of messages.
template <class L>
struct InlinePaths {
    static constexpr u32 fixed_length = L::fixed_length;
    static constexpr u32 dense_root = root_bytes + L::vtable_bytes;   // position of the root table
    static constexpr u32 dense_length = root_bytes + DenseImage<L>::length;

    [[gnu::always_inline]] static u32 try_fixed(const u8* bytes, u8* record)
    {
        return try_image<FixedImage<L>, !shares_entries>(bytes, record) ? L::record_size : 0;
    }
    [[gnu::always_inline]] static u32 try_dense(const u8* bytes, u8* record)
    {
        return try_image<DenseImage<L>, L::is_short>(bytes, record) ? L::record_size : 0;
    }
};

template <class L>
constexpr FlatPaths flat_paths{
    .try_fixed = try_long_image<FixedImage<L>>,
    .try_dense = try_long_image<DenseImage<L>>,
    .try_table = try_flat_table<L>,
    .fixed_length = L::fixed_length,
    .dense_root = InlinePaths<L>::dense_root,
    .dense_length = InlinePaths<L>::dense_length,
};

template <class L>
constexpr const FlatPaths* paths_as_data()
{
    if constexpr (shares_entries && !L::has_owned_blocks)
        return &flat_paths<L>;
    else
        return nullptr;
}

// Reads a message that is an image. Returns the record's size, or 0. A dense image is only looked for where our own
// writers put it, right after the root word.
template <class Paths>
[[nodiscard, gnu::always_inline]] inline u32 try_images(const Paths& paths, Input in, u8* record)
{
    const u32 table = root_table(in);
    if (table == paths.dense_root) {
        if (holds_bytes(in, paths.dense_length)) [[likely]]
            return paths.try_dense(in.bytes_unchecked(root_bytes, 0, paths.dense_length - root_bytes),   // holds_bytes
                                   record);
    } else if (table == root_bytes) {
        if (holds_bytes(in, paths.fixed_length)) [[likely]]
            return paths.try_fixed(in.bytes_unchecked(0, 0, paths.fixed_length), record);   // the same
    }
    return 0;
}

// The body of X__unpack. required: returns the record's size on every path, but no caller can then detect a failure.
//
// The first decoding takes the general path, which looks the services up after the root's tests and before the first
// store. Fast paths allocate through the unit's hooks without looking them up.
template <class L>
[[gnu::noinline]] KESTO_ENTRY u32 unpack(KESTO_WITH(const Decoder& decoder, const u8* bytes, u32 length, u8* record))
{
    if (may_decode(bytes, length, record) && has_memory_services(*decoder.unit)) [[likely]] {
        const Input in{bytes, length};
        bool done;
        if constexpr (!L::has_owned_blocks)
            done = try_images(InlinePaths<L>{}, in, record) != 0 || try_short_table<L>(in, root_table(in), record);
        else if constexpr (L::has_vectors)   // and so is nested in no other table
            done =
                try_owning_table_here<L>(in, root_table(in), record, decoder, decoder.unpack_routine) != Reading::none;
        else
            done = try_owning_table<L>(bytes, length, root_table(in), record, decoder, decoder.unpack_routine) !=
                   Reading::none;
        if (done) [[likely]]
            return L::record_size;
    }
    return decode_message(KESTO_WITH(decoder, bytes, length, record));
}

// The same for all flat layouts.
[[gnu::noinline]] KESTO_ENTRY inline u32 unpack_flat(KESTO_WITH(const Decoder& decoder, const u8* bytes, u32 length,
                                                                u8* record))
{
    if (may_decode(bytes, length, record) && has_memory_services(*decoder.unit)) [[likely]] {
        const Input in{bytes, length};
        const FlatPaths& paths = *decoder.paths;
        if (const u32 size = try_images(paths, in, record); size != 0) [[likely]]
            return size;
        if (paths.try_table(bytes, length, root_table(in), record)) [[likely]]
            return decoder.record_size;
    }
    return decode_message(KESTO_WITH(decoder, bytes, length, record));
}

template <class L>
constexpr auto unpack_entry()
{
    if constexpr (shares_entries && !L::has_owned_blocks)
        return &unpack_flat;
    else
        return &unpack<L>;
}

}   // namespace kesto
