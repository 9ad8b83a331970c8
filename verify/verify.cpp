// The decoder's verdict: a walk over the layouts that asks the primitives of core/wire.h and core/lanes.h about every
// bound, and knows none itself. Which check refused is found out afterwards, by a second walk that keeps the path.

#pragma GCC visibility push(default)
#include "kesto_verify.h"
#pragma GCC visibility pop

#include "verify/layouts.h"

#define KESTO_EACH_MODULE "verify/add_module.inc"
#include "messages/modules.inc"
#undef KESTO_EACH_MODULE

namespace kesto::verify {

namespace {

// The input of a reader that stores nothing.
struct Bytes : Input {
    template <class T>
    void copy_value_unchecked(u32, u32, void*) const
    {
    }
    template <class T>
    void copy_values_unchecked(u32, u32, u8*) const
    {
    }
};

using View = TableView<Bytes>;

// ---- which check refused; only in the second walk ----

struct NoTrail {
    static constexpr bool keeps = false;
    void enter(u32) {}
    void element(u32) {}
    void leave() {}
};

struct Trail {
    static constexpr bool keeps = true;
    kesto_refusal refusal{};

    void enter(u32 slot) { refusal.path[refusal.steps++] = {slot, -1}; }
    void element(u32 i) { refusal.path[refusal.steps - 1].element = static_cast<std::int32_t>(i); }
    void leave() { --refusal.steps; }

    bool refuse(kesto_check check, u32 position)
    {
        refusal.check = check;
        refusal.position = position;
        return false;
    }
};

bool refuse_table(Trail& trail, TableFault fault, const View& view)
{
    switch (fault) {
    case TableFault::table_position: return trail.refuse(KESTO_TABLE_POSITION, view.table);
    case TableFault::vtable_position: return trail.refuse(KESTO_VTABLE_POSITION, view.table);
    default: return trail.refuse(KESTO_VTABLE_LENGTH, view.vtable);
    }
}

constexpr u32 least_refused_count = 0x40000000;

// A reference to a count, or what the count announces, was refused.
bool refuse_body(Trail& trail, const Bytes& in, const View& view, u32 offset, const Slot& slot)
{
    const u32 cell = view.table + offset;
    if (!field_fits(view, offset, cell_bytes))
        return trail.refuse(KESTO_CELL_END, cell);
    const u32 body = cell + in.load_unchecked<u32>(cell);   // field_fits
    u32 payload = 0, count = 0;
    if (!open_body(in, view, offset, payload, count))
        return trail.refuse(body < cell ? KESTO_REFERENCE_WRAP : KESTO_REFERENCE_RANGE, cell);
    const bool counts_words = slot.kind == Kind::vector || (slot.kind == Kind::array && slot.width == 4);
    if (counts_words && count >= least_refused_count)
        return trail.refuse(KESTO_COUNT_RANGE, body);
    if (slot.kind == Kind::array && count != slot.count)
        return trail.refuse(KESTO_ARRAY_COUNT, body);
    return trail.refuse(KESTO_BODY_END, body);
}

bool refuse_nested(Trail& trail, const View& view, u32 offset)
{
    return trail.refuse(field_fits(view, offset, cell_bytes) ? KESTO_NESTED_WRAP : KESTO_CELL_END, view.table + offset);
}

// ---- the walk; every function returns whether the decoder would accept ----

template <class T>
bool accepts_table(const Bytes& in, u32 table, const Message& message, T& trail);

// Whether all fields lie inside, several at a time. False also where that cannot be told so.
[[gnu::always_inline]] inline bool fields_fit(const Bytes& in, const View& view, const Message& message)
{
    if (!holds_slots(view, message.slot_count))
        return false;
#ifdef __SSE2__
    if (message.slot_count >= lanes)
        return kesto::fields_fit(in, view, message.slot_count, message.widths, message.widest);
#endif
    bool all = true;
    for (u32 k = 0; k < message.slot_count; ++k)
        all &= field_fits(view, slot_unchecked(in, view, k), message.widths[k]);   // holds_slots
    return all;
}

// An element of scalars whose vtable has all slots, in the loop over the elements. False also where that cannot be told.
[[gnu::always_inline]] inline bool accepts_scalars(const Bytes& in, u32 table, const Message& element)
{
    View view;
    return element.reference_count == 0 && open_table(in, table, view) == TableFault::none &&
           fields_fit(in, view, element);
}

template <class T>
bool accepts_elements(const Bytes& in, u32 cells, u32 count, const Message& element, T& trail)
{
    const u64 needed = u64{count} * element.record_size;
    const bool wraps = needed != static_cast<u32>(needed);   // then the decoder refuses, whatever the elements are
    if (wraps && !T::keeps)
        return false;
    const u32 whole = wraps ? static_cast<u32>(needed) / element.record_size : count;
    for (u32 i = 0; i < count; ++i) {
        trail.element(i);
        u32 table = 0;
        if (!element_table(in, cells, i, table)) [[unlikely]] {
            if constexpr (T::keeps)
                trail.refuse(KESTO_ELEMENT_WRAP, cells + i * cell_bytes);
            return false;
        }
        if constexpr (T::keeps)
            if (i >= whole)
                return trail.refuse(static_cast<u32>(needed) == 0 ? KESTO_ELEMENT_NULL : KESTO_ELEMENT_BLOCK,
                                    cells + i * cell_bytes);
        if (!T::keeps && accepts_scalars(in, table, element)) [[likely]]
            continue;
        if (!accepts_table(in, table, element, trail)) [[unlikely]]
            return false;
    }
    return true;
}

template <class T>
bool accepts_body(const Bytes& in, const View& view, u32 offset, const Slot& slot, T& trail)
{
    u32 payload = 0, count = 0;
    bool accepted = false;
    if (slot.kind == Kind::array)
        accepted = slot.width == 1 ? read_array<u8>(in, view, offset, slot.count, nullptr)
                                   : read_array<u32>(in, view, offset, slot.count, nullptr);
    else
        accepted = open_body(in, view, offset, payload, count) &&
                   payload_fits(in, payload, count, slot.kind == Kind::vector ? cell_bytes : 1);
    if (!accepted) [[unlikely]] {
        if constexpr (T::keeps)
            refuse_body(trail, in, view, offset, slot);
        return false;
    }
    return slot.kind != Kind::vector || accepts_elements(in, payload, count, *slot.nested, trail);
}

template <class T>
bool accepts_scalar(const View& view, u32 offset, u32 width, T& trail)
{
    if (field_fits(view, offset, width)) [[likely]]
        return true;
    if constexpr (T::keeps)
        trail.refuse(KESTO_SCALAR_END, view.table + offset);
    return false;
}

template <class T>
bool accepts_nested(const Bytes& in, const View& view, u32 offset, const Slot& slot, T& trail)
{
    u32 table = 0;
    if (!nested_table(in, view, offset, table)) [[unlikely]] {
        if constexpr (T::keeps)
            refuse_nested(trail, view, offset);
        return false;
    }
    const T before = trail;
    if (accepts_table(in, table, *slot.nested, trail)) [[likely]]
        return true;
    if (slot.fault_ends_read)
        return false;
    trail = before;
    return true;
}

template <class T>
bool accepts_slot(const Bytes& in, const View& view, const Message& message, u32 k, T& trail)
{
    const u32 offset = slot_offset(in, view, k);
    if (offset == 0)
        return true;
    const Slot& slot = message.slots[k];
    trail.enter(k);
    const bool accepted = slot.kind == Kind::scalar  ? accepts_scalar(view, offset, slot.width, trail)
                          : slot.kind == Kind::table ? accepts_nested(in, view, offset, slot, trail)
                                                     : accepts_body(in, view, offset, slot, trail);
    if (accepted)
        trail.leave();
    return accepted;
}

template <class T>
bool accepts_table(const Bytes& in, u32 table, const Message& message, T& trail)
{
    View view;
    const TableFault fault = open_table(in, table, view);
    if (fault != TableFault::none) [[unlikely]] {
        if constexpr (T::keeps)
            refuse_table(trail, fault, view);
        return false;
    }
    if (!T::keeps && fields_fit(in, view, message)) [[likely]] {
        for (u32 i = 0; i < message.reference_count; ++i)
            if (!accepts_slot(in, view, message, message.references[i], trail)) [[unlikely]]
                return false;
        return true;
    }
    for (u32 k = 0; k < message.slot_count; ++k)
        if (!accepts_slot(in, view, message, k, trail)) [[unlikely]]
            return false;
    return true;
}

// ---- messages by id ----

struct Index {
    static constexpr u32 places = 1024;   // four times the messages, so that a search ends at once
    const Message* at[places]{};

    constexpr void place(const Message* message)
    {
        u32 i = message->id % places;
        while (at[i] != nullptr)
            i = (i + 1) % places;
        at[i] = message;
    }

    constexpr Index()
    {
#define KESTO_EACH_MODULE "verify/add_to_index.inc"
#include "messages/modules.inc"
#undef KESTO_EACH_MODULE
    }

    const Message* find(u32 id) const
    {
        u32 i = id % places;
        while (at[i] != nullptr && at[i]->id != id)
            i = (i + 1) % places;
        return at[i];
    }
};

constexpr Index by_id;

[[gnu::cold]] int refuse(const Message& message, const Bytes* in, const u8* bytes, kesto_refusal* refusal)
{
    if (refusal == nullptr)
        return KESTO_REFUSED;
    Trail trail;
    if (bytes == nullptr)
        trail.refuse(KESTO_BUFFER_NULL, 0);
    else if (in == nullptr)
        trail.refuse(KESTO_LENGTH, 0);
    else
        (void)accepts_table(*in, root_table(*in), message, trail);
    *refusal = trail.refusal;
    return KESTO_REFUSED;
}

}   // namespace

}   // namespace kesto::verify

extern "C" {

int kesto_verify(uint32_t id, const uint8_t* bytes, uint32_t length, kesto_refusal* refusal)
{
    using namespace kesto::verify;
    const Message* const message = by_id.find(id);
    if (message == nullptr)
        return KESTO_UNKNOWN_ID;
    if (bytes == nullptr || static_cast<std::int32_t>(length) < std::int32_t{kesto::least_length})
        return refuse(*message, nullptr, bytes, refusal);
    const Bytes in{{bytes, length}};
    NoTrail trail;
    if (accepts_table(in, root_table(in), *message, trail)) [[likely]]
        return KESTO_ACCEPTED;
    return refuse(*message, &in, bytes, refusal);
}

const char* kesto_name(uint32_t id)
{
    const kesto::verify::Message* const message = kesto::verify::by_id.find(id);
    return message == nullptr ? nullptr : message->name;
}

const char* kesto_check_name(kesto_check check)
{
    static constexpr const char* names[] = {
        "none",       "buffer_null", "length_below_4", "table_position",  "vtable_position", "vtable_length",
        "scalar_end", "cell_end",    "reference_wrap", "reference_range", "array_count",     "count_range",
        "body_end",   "nested_wrap", "element_wrap",   "element_null",    "element_block"};
    return static_cast<unsigned>(check) < sizeof names / sizeof *names ? names[check] : nullptr;
}
}
