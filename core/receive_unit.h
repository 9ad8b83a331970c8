// The receiving half of a module: the constants that are made from a message's line in the catalogue. See
// receive_unit.inc.
#pragma once

#include <span>

#include "core/catalogue.h"
#include "core/decode_fast.h"
#include "core/record_check.h"
#include "core/routine_name.h"
#include "platform/mesh.h"

#pragma GCC visibility push(hidden)

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
                            slot.kind == Kind::vector ? elements_decoder<typename Named::Layout>() : nullptr};
        });
        return list;
    }();

    // In slot order; the blocks of a nested table come in place of the table's slot.
    static constexpr auto owned_blocks = [] {
        std::array<OwnedBlock, owned_block_count<L>> parts{};
        u32 next = 0;
        L::each_slot([&]<class Slot>(u32 k) {
            constexpr Kind kind = Slot::kind;
            const u32 offset = L::record_offset[k];
            if constexpr (kind == Kind::text) {
                parts[next++] = {free_routine.data(), nullptr, offset};
            } else if constexpr (kind == Kind::block) {
                parts[next++] = {free_routine.data(), nullptr, offset + counted_pointer};
            } else if constexpr (kind == Kind::vector) {
                parts[next++] = {free_routine.data(), nested[L::nested_before[k]].decoder, offset + counted_pointer};
            } else if constexpr (kind == Kind::table) {
                const Decoder& inner = *nested[L::nested_before[k]].decoder;
                for (u32 i = 0; i < inner.owned_block_count; ++i, ++next) {
                    parts[next] = inner.owned_blocks[i];
                    parts[next].pointer += offset;
                }
            }
            return true;
        });
        return parts;
    }();

    static constexpr Decoder decoder{
        .unit = unit,
        .unpack_routine = unpack_routine.data(),
        .free_routine = L::has_owned_blocks ? free_routine.data() : nullptr,
        .nested = nested.data(),
        .slots = slot_infos<L>.data(),
        .slot_count = L::slots,
        .owned_block_count = owned_block_count<L>,
        .owned_blocks = owned_blocks.data(),
        .record_size = L::record_size,
        .paths = paths_as_data<L>(),
    };
};

// The functions of one message that are registered with MESH.
struct Registration {
    u32 id;
    MeshUnpack unpack;
    MeshFree free;
};

// Registers the messages in order. Stops at the first result that is not 0 and returns it; returns 0 otherwise.
int register_messages(std::span<const Registration> messages);

}   // namespace kesto

#pragma GCC visibility pop
