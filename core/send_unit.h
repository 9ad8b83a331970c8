// The sending half of a module: what a message's line in the catalogue becomes there. See send_unit.inc.
#pragma once

#include "core/catalogue.h"
#include "core/routine_name.h"
#include "core/send.h"

namespace kesto {

// The constants and operations of one message, made from its type in the catalogue and the unit that encodes it.
template <class Message, Unit* unit>
struct Sending {
    using L = typename Message::Layout;
    using Slots = typename Message::Slots;

    static constexpr auto pack_routine = routine_name(Message::name, "_pack");

    static constexpr auto nested = [] {
        std::array<NestedEncoder, Slots::named> list{};
        u32 next = 0;
        Slots::each_named([&]<class Named, Kind kind>() {
            NestedEncoder& entry = list[next++];
            if constexpr (kind == Kind::vector)
                entry = {measure_elements<typename Named::Layout>, write_elements<typename Named::Layout>, nullptr};
            entry.nested = Sending<Named, unit>::nested.data();
        });
        return list;
    }();

    static constexpr Encoder encoder = [] {
        Encoder made{Message::id, L::record_size, unit, pack_routine.data(), nested.data(), nullptr, nullptr, 0, nullptr};
        if constexpr (L::has_heap_parts) {
            made.measure = measure_message<L>;
            made.write = write_message<L>;
        } else {
            made.fixed_length = L::fixed_length;
            made.write_fixed = write_fixed<L>;
        }
        return made;
    }();

    static int send_single(u32 channel, const u8* record, u32 unused, u32 destination)
    {
        if constexpr (L::has_heap_parts)
            return send_single_compact(channel, record, unused, destination, encoder);
        else
            return send_single_fixed<L>(channel, record, unused, destination, encoder);
    }

    static int send_batch(u32 channel, const u8* records, u32 count, u32 destination)
    {
        if constexpr (L::has_heap_parts)
            return send_batch_compact(channel, records, count, destination, encoder);
        else
            return send_batch_fixed(channel, records, count, destination, encoder);
    }

    static int send(u32 channel, const u8* records, u32 count, u32 destination)
    {
        if constexpr (L::has_heap_parts)
            return send_compact(channel, records, count, destination, encoder);
        else
            return send_fixed<L>(channel, records, count, destination, encoder);
    }
};

}   // namespace kesto
