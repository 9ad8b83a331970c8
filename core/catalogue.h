// The vocabulary of the catalogues, messages/<module>/<module>.def, which have one line per message:
//
//   MESSAGE(name, id, slot, slot, ...)
//   NAMED_FIELDS(name, field, field, ...)      for the rare message whose fields are not named f0, f1, ...
//
// A slot is U8, U16, U32, U64, String, Bytes, U8Array<N>, U32Array<N>, Table<message>, LenientTable<message> or
// Vector<message>, where <message> must be defined by an earlier line. The includer of a catalogue defines the macro
// MESSAGE first; NAMED_FIELDS expands to nothing unless it is redefined. KESTO_TAG below is the MESSAGE that turns each
// line into a type with the message's name, so that the slots of later lines can refer to it.
#pragma once

#include "core/layout.h"

namespace kesto::catalogue {

using U8 = Scalar<u8>;
using U16 = Scalar<u16>;
using U32 = Scalar<u32>;
using U64 = Scalar<u64>;
using String = Text;
using Bytes = Block;

template <u32 N>
using U8Array = Array<u8, N>;

template <u32 N>
using U32Array = Array<u32, N>;

template <class Message>
struct Table {
};

// A table that may be refused without ending the decoding of the enclosing message.
template <class Message>
struct LenientTable {
};

template <class Message>
struct Vector {
};

// Maps a slot of the catalogue to the slot of a layout, and to the message that it names, if any.
template <class S>
struct Meaning {
    using Slot = S;
    using Named = void;
};

template <class Message>
struct Meaning<Table<Message>> {
    using Slot = Nested<typename Message::Layout, true>;
    using Named = Message;
};

template <class Message>
struct Meaning<LenientTable<Message>> {
    using Slot = Nested<typename Message::Layout, false>;
    using Named = Message;
};

template <class Message>
struct Meaning<Vector<Message>> {
    using Slot = Elements;
    using Named = Message;
};

// A message inside another one: `kind` says whether as a table or as a vector.
template <class NamedMessage, Kind slot_kind>
struct NamedSlot {
    using Message = NamedMessage;
    static constexpr Kind kind = slot_kind;
};

template <class... Slots>
struct SlotList {
    using Layout = kesto::Layout<typename Meaning<Slots>::Slot...>;

    // Calls visit(NamedSlot) for each slot that names a message, in slot order.
    template <class Visit>
    static constexpr void each_named(Visit&& visit)
    {
        (
            [&] {
                if constexpr (Meaning<Slots>::Slot::kind == Kind::table || Meaning<Slots>::Slot::kind == Kind::vector)
                    visit(NamedSlot<typename Meaning<Slots>::Named, Meaning<Slots>::Slot::kind>());
            }(),
            ...);
    }

    static constexpr u32 named = Layout::nested_before[Layout::slots];
};

}   // namespace kesto::catalogue

// Only the header printer uses the names of fields.
#define NAMED_FIELDS(...)

// The MESSAGE that makes the types.
#define KESTO_TAG(message_name, message_id, ...)                 \
    struct message_name {                                        \
        static constexpr char name[] = #message_name;            \
        static constexpr ::kesto::u32 id = message_id;           \
        using Slots = ::kesto::catalogue::SlotList<__VA_ARGS__>; \
        using Layout = Slots::Layout;                            \
    };
