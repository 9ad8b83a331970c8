// The layouts of all messages as data.
#pragma once

#include "core/catalogue.h"
#include "core/lanes.h"

namespace kesto::verify {

struct Message;

struct Slot {
    Kind kind;
    u8 width;                // of a scalar, or of one element of an array
    bool fault_ends_read;    // of a table: whether its refusal refuses the message
    u16 count;               // of an array
    const Message* nested;   // of a table or of a vector's elements
};

struct Message {
    const char* name;
    u32 id;
    u32 record_size;
    u32 slot_count;
    u32 reference_count;
    const Slot* slots;
    const u8* references;   // the numbers of the slots that are not scalars
    const u16* widths;      // of each slot's field in its table: a scalar's or a cell's
    u16 widest;
};

template <class M>
struct Described {
    using L = typename M::Layout;

    static constexpr u32 references_in_all = [] {
        u32 count = 0;
        for (const Kind kind : L::kinds)
            count += kind != Kind::scalar;
        return count;
    }();

    static constexpr std::array<u16, L::slots> widths = [] {
        std::array<u16, L::slots> all{};
        L::each_slot([&]<class S>(u32 k) {
            if constexpr (S::kind == Kind::scalar)
                all[k] = sizeof(typename S::Value);
            else
                all[k] = cell_bytes;
            return true;
        });
        return all;
    }();

    static constexpr std::array<u8, references_in_all + 1> references = [] {
        std::array<u8, references_in_all + 1> all{};
        for (u32 k = 0, next = 0; k < L::slots; ++k)
            if (L::kinds[k] != Kind::scalar)
                all[next++] = static_cast<u8>(k);
        return all;
    }();

    static constexpr std::array<Slot, L::slots> slots = [] {
        std::array<const Message*, M::Slots::named + 1> nested{};
        u32 next = 0;
        M::Slots::each_named(
            [&](auto slot) { nested[next++] = &Described<typename decltype(slot)::Message>::message; });
        std::array<Slot, L::slots> all{};
        L::each_slot([&]<class S>(u32 k) {
            all[k] = {S::kind, static_cast<u8>(widths[k]), true, 0, nullptr};
            if constexpr (S::kind == Kind::array) {
                all[k].width = sizeof(typename S::Value);
                all[k].count = S::count;
            } else if constexpr (S::kind == Kind::table) {
                all[k].fault_ends_read = S::fault_ends_read;
            }
            if (S::kind == Kind::table || S::kind == Kind::vector)
                all[k].nested = nested[L::nested_before[k]];
            return true;
        });
        return all;
    }();

    static constexpr u16 widest = [] {
        u16 most = 0;
        for (const u16 width : widths)
            most = width > most ? width : most;
        return most;
    }();

    static constexpr Message message{
        M::name,           M::id,         L::record_size, L::slots, references_in_all, slots.data(),
        references.data(), widths.data(), widest};
};

}   // namespace kesto::verify
