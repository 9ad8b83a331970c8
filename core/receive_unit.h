// The receiving half of a module: what a message's line in the catalogue becomes there. See receive_unit.inc.
#pragma once

#include <span>

#include "core/catalogue.h"
#include "core/decode.h"
#include "core/record_check.h"
#include "core/routine_name.h"
#include "platform/mesh.h"

namespace kesto {

// The constants of one message, made from its type in the catalogue and the unit that decodes it.
template <class Message, Unit* unit>
struct Receiving {
    using L = typename Message::Layout;

    static constexpr auto unpack_routine = routine_name(Message::name, "_unpack");
    static constexpr auto nested_routine = routine_name(Message::name, "_unpack_non_root");
    static constexpr auto free_routine = routine_name(Message::name, "_free_unpacked");

    static constexpr auto nested = [] {
        std::array<NestedDecoder, Message::Slots::named> list{};
        u32 next = 0;
        Message::Slots::each_named([&](auto slot) {
            using Named = typename decltype(slot)::Message;
            list[next++] = {&Receiving<Named, unit>::decoder, Receiving<Named, unit>::nested_routine.data(),
                            slot.kind == Kind::vector ? &decode_elements<typename Named::Layout> : nullptr};
        });
        return list;
    }();

    template <class Visit>
    static constexpr void each_heap_field(Visit&& visit)
    {
        each_slot<L>([&](auto k) {
            constexpr u32 K = k;
            using Slot = typename L::template Slot<K>;
            if constexpr (Slot::fixed_bytes == 0)
                visit(
                    HeapField{Slot::kind, static_cast<u8>(L::nested_before(K)), static_cast<u16>(L::record_offset[K])});
            return true;
        });
    }

    static constexpr u32 heap_field_count = [] {
        u32 count = 0;
        each_heap_field([&](HeapField) { ++count; });
        return count;
    }();
    static constexpr auto heap_fields = [] {
        std::array<HeapField, heap_field_count> list{};
        u32 next = 0;
        each_heap_field([&](HeapField field) { list[next++] = field; });
        return list;
    }();

    static constexpr Decoder decoder{
        unit,          unpack_routine.data(), L::has_heap_parts ? free_routine.data() : nullptr,
        nested.data(), heap_fields.data(),    heap_field_count,
        L::record_size};
};

// One message's hooks, as MESH is given them.
struct Registration {
    u32 id;
    MeshUnpack unpack;
    MeshFree free;
};

// Registers one message after the other. Returns the first result that is not 0, after which nothing more is
// registered.
int register_messages(std::span<const Registration> messages);

}   // namespace kesto
