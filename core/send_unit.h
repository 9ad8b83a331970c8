// The sending half of a module: the constants that are made from a message's line in the catalogue. See send_unit.inc.
#pragma once

#include "core/catalogue.h"
#include "core/routine_name.h"
#include "core/send.h"

namespace kesto {

// The constants of one message, made from its type in the catalogue and the unit that encodes it.
template <class Message, Unit* unit>
struct Sending {
    using L = typename Message::Layout;
    using Slots = typename Message::Slots;

    static constexpr auto pack_routine = routine_name(Message::name, "_pack");

    static constexpr auto nested = [] {
        std::array<NestedEncoder, Slots::named> list{};
        u32 next = 0;
        Slots::each_named([&](auto slot) {
            using Named = typename decltype(slot)::Message;
            NestedEncoder& entry = list[next++];
            if constexpr (slot.kind == Kind::vector)
                entry = {measure_elements<typename Named::Layout, Measure::exactly>,
                         measure_elements<typename Named::Layout, Measure::bound>,
                         write_elements<typename Named::Layout>, nullptr};
            entry.nested = Sending<Named, unit>::nested.data();
        });
        return list;
    }();

    static constexpr Encoder encoder{&layout_encoder<L>, nested.data(), unit, pack_routine.data(), Message::id};
};

}   // namespace kesto
