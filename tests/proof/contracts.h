// What each primitive of core/wire.h relies on and what it promises, as programs that run on symbolic and on real
// words.
//
// What one promises and the next relies on is one function, with the role as its argument: so the contracts chain.
// Expected results are formed as the wire format says them, in 64 bits, where nothing wraps. Each program returns a
// number for what it came to, so that a proof that has lost its subject shows.
#pragma once

#include "tests/proof/symbolic.h"

namespace kesto::proof {

// ---- what is known between two primitives ----

template <class World>
using View = TableView<typename World::In>;

template <class World>
void opened_view(World& world, Role role, const View<World>& view)
{
    const auto length = wide(world.input().length);
    world.state(role, view.table >= root_bytes, "the table is not in the root");
    world.state(role, wide(view.table) + table_head_bytes <= length, "the table's head lies inside");
    world.state(role, view.vtable >= root_bytes, "the vtable is not in the root");
    world.state(role, wide(view.vtable) + vtable_head_bytes <= length, "the vtable's head lies inside");
    world.state(role, view.vtable_length <= 0xffff, "a vtable length has 16 bits");
    world.state(role, wide(view.vtable) + wide(view.vtable_length) <= length, "the vtable lies inside");
    world.state(role, wide(view.table) + wide(view.room) == length, "the room is what is behind the table's start");
}

template <class World>
View<World> any_opened_view(World& world)
{
    View<World> view{world.any(), world.any(), world.any(), world.any()};
    opened_view(world, Role::relied_on, view);
    return view;
}

template <class World, class Word>
void slot_value(World& world, Role role, const Word& offset)
{
    world.state(role, offset <= 0xffff, "a slot has 16 bits");
}

template <class World>
auto any_slot_value(World& world)
{
    const auto offset = world.any();
    slot_value(world, Role::relied_on, offset);
    return offset;
}

// A vtable's length has 16 bits, and so has no place for more slots.
template <class World>
auto any_slot_number(World& world)
{
    const auto k = world.any();
    world.state(Role::relied_on, k < 0x8000, "a vtable has fewer than 2^15 slots");
    return k;
}

template <class World, class Word>
void opened_body(World& world, Role role, const Word& payload)
{
    world.state(role, payload >= root_bytes + count_bytes, "the payload is behind the root and its count");
    world.state(role, wide(payload) <= wide(world.input().length), "the payload starts inside or at the end");
}

template <class World, class Word>
void fitting_payload(World& world, Role role, const Word& payload, const Word& count, u32 width)
{
    world.state(role, wide(payload) + wide(count) * width <= wide(world.input().length), "the payload lies inside");
}

template <class World, class Word>
auto cell_lies_inside(World& world, const View<World>& view, const Word& offset)
{
    return wide(view.table) + wide(offset) + cell_bytes <= wide(world.input().length);
}

// Where a cell leads to, without a wrap.
template <class World, class Number>
auto target_of(World& world, const Number& cell)
{
    return cell + wide(world.input().template content<u32>(cell));
}

// ---- the contracts ----

template <class Reader>
struct RootTable {
    template <class World>
    int operator()(World& world) const
    {
        const auto in = world.input();
        const auto table = Reader::root_table(in);
        world.state(Role::promised, table == in.template content<u32>(0), "the root is the first word");
        return 0;
    }
};

// For any table position at all.
template <class Reader>
struct OpenTable {
    template <class World>
    int operator()(World& world) const
    {
        const auto in = world.input();
        const auto table = world.any();
        View<World> view{};
        const TableFault fault = Reader::open_table(in, table, view);

        const auto length = wide(in.length);
        const auto vtable = table - in.template content<u32>(wide(table));   // modulo 2^32, as the format says
        const auto vtable_length = in.template content<u16>(wide(vtable));
        const auto table_legal = (wide(table) >= 4) & (wide(table) + 4 <= length);
        const auto vtable_legal = (wide(vtable) >= 4) & (wide(vtable) + 4 <= length);
        const auto vtable_whole = wide(vtable) + wide(vtable_length) <= length;
        world.state(Role::promised, (fault == TableFault::table_position) == !table_legal, "table position");
        world.state(Role::promised, (fault == TableFault::vtable_position) == (table_legal & !vtable_legal),
                    "vtable position");
        world.state(Role::promised,
                    (fault == TableFault::vtable_length) == (table_legal & vtable_legal & !vtable_whole),
                    "vtable length");

        // The log of a fault prints these.
        world.state(Role::promised, view.table == table, "the view has the table");
        if (fault == TableFault::vtable_length || fault == TableFault::none) {
            world.state(Role::promised, view.vtable == vtable, "the view has the vtable");
            world.state(Role::promised, view.vtable_length == vtable_length, "the view has the vtable's length");
        }
        if (fault == TableFault::none)
            opened_view(world, Role::promised, view);
        return static_cast<int>(fault);
    }
};

template <class Reader>
struct HeldSlots {
    template <class World>
    int operator()(World& world) const
    {
        const View<World> view = any_opened_view(world);
        const auto slots = any_slot_number(world);
        const bool held = Reader::holds_slots(view, slots);
        world.state(Role::promised, held == (wide(view.vtable_length) >= wide(slots) * 2 + 4),
                    "slots are held if and only if the vtable is long enough");
        if (held) {
            const auto k = world.any();
            world.state(Role::relied_on, k < slots, "one of them");
            slot_value(world, Role::promised, Reader::slot_unchecked(world.input(), view, k));
        }
        return held;
    }
};

template <class Reader>
struct HoldsBytes {
    template <class World>
    int operator()(World& world) const
    {
        const auto in = world.input();
        const auto n = world.any();
        const bool held = Reader::holds_bytes(in, n);
        world.state(Role::promised, held == (wide(n) <= wide(in.length)), "so many bytes are there or not");
        if (held)
            in.touch(0, wide(n));
        return held;
    }
};

// For any picture of up to 64 KiB, and any part of it in front of the table.
template <class Reader>
struct PictureFits {
    template <class World>
    int operator()(World& world) const
    {
        const auto in = world.input();
        const auto table = world.any(), before = world.any(), n = world.any();
        world.state(Role::relied_on, n <= 0xffff, "a picture is small");
        world.state(Role::relied_on, before <= n, "the table is in the picture");
        const auto at_before = world.any();
        auto at = at_before;
        const bool accepted = Reader::picture_fits(in, table, before, n, at);
        const auto fits =
            (wide(table) >= wide(before) + root_bytes) & (wide(table) + wide(n) <= wide(in.length) + wide(before));
        world.state(Role::promised, accepted == fits, "a picture is looked at if and only if it lies inside");
        if (!accepted) {
            world.state(Role::promised, at == at_before, "a refusal writes nothing");
            return 0;
        }
        world.state(Role::promised, wide(at) + wide(before) == wide(table), "the table is where it was said to be");
        in.touch(wide(at), wide(n));
        return 1;
    }
};

// For any picture whose own bytes lie inside: what they leave for its bodies is `room`.
template <class World, class Word>
void room_is_left(World& world, Role role, const Word& at, const Word& n, const Word& room)
{
    world.state(role, wide(at) + wide(n) + wide(room) <= wide(world.input().length), "all that is left lies inside");
}

template <class Reader>
struct TakeBody {
    template <class World>
    int operator()(World& world) const
    {
        const auto in = world.input();
        const auto at = world.any(), n = world.any(), position = world.any(), room_before = world.any();
        room_is_left(world, Role::relied_on, at, n, room_before);
        world.state(Role::relied_on, wide(position) + count_bytes <= wide(n), "the count is in the picture");
        auto room = room_before, length = world.any();
        const bool accepted = Reader::take_body(in, at + position, room, length);
        const auto count = in.template content<u32>(wide(at) + wide(position));
        world.state(Role::promised, accepted == (wide(count) <= wide(room_before)),
                    "a body is taken if and only if there is room for it");
        if (!accepted)
            return 0;
        world.state(Role::promised, length == count, "it is as long as its count says");
        in.touch(wide(at) + wide(position) + count_bytes, wide(length));
        room_is_left(world, Role::promised, at + length, n, room);
        return 1;
    }
};

template <class Reader>
struct OpenCompactTable {
    template <class World>
    int operator()(World& world) const
    {
        const auto in = world.input();
        const auto table = world.any();
        const auto slots = any_slot_number(world);
        View<World> view{};
        if (!Reader::open_compact_table(in, table, slots, view))
            return 0;
        opened_view(world, Role::promised, view);
        const auto vtable = table - in.template content<u32>(wide(table));
        world.state(Role::promised, view.table == table, "the view has the table");
        world.state(Role::promised, view.vtable == vtable, "the view has the vtable");
        world.state(Role::promised, view.vtable_length == in.template content<u16>(wide(vtable)),
                    "the view has the vtable's length");
        world.state(Role::promised, wide(view.vtable_length) == wide(slots) * 2 + 4, "it has all slots");
        return 1;
    }
};

template <class Reader>
struct SlotOffset {
    template <class World>
    int operator()(World& world) const
    {
        const auto in = world.input();
        const View<World> view = any_opened_view(world);
        const auto k = any_slot_number(world);
        const auto offset = Reader::slot_offset(in, view, k);
        slot_value(world, Role::promised, offset);
        if (wide(view.vtable_length) > wide(k) * 2 + 5) {
            const auto written = in.template content<u16>(wide(view.vtable) + wide(k) * 2 + 4);
            world.state(Role::promised, offset == written, "a slot inside the vtable is what stands there");
            return 1;
        }
        world.state(Role::promised, offset == 0, "a slot behind the vtable is absent");
        return 0;
    }
};

template <class T>
struct ScalarOf {
    template <class Reader>
    struct Read {
        template <class World>
        int operator()(World& world) const
        {
            const auto in = world.input();
            const View<World> view = any_opened_view(world);
            const auto offset = any_slot_value(world);
            const bool accepted = Reader::template read_scalar<T>(in, view, offset, nullptr);
            const auto fits = wide(view.table) + wide(offset) + sizeof(T) <= wide(in.length);
            world.state(Role::promised, accepted == fits, "a scalar is read if and only if it lies inside");
            return accepted;
        }
    };
};

template <class Reader>
struct OpenBody {
    template <class World>
    int operator()(World& world) const
    {
        const auto in = world.input();
        const View<World> view = any_opened_view(world);
        const auto offset = any_slot_value(world);
        const auto payload_before = world.any(), count_before = world.any();
        auto payload = payload_before, count = count_before;
        const bool accepted = Reader::open_body(in, view, offset, payload, count);

        const auto cell_fits = cell_lies_inside(world, view, offset);
        const auto body = target_of(world, wide(view.table) + wide(offset));
        world.state(Role::promised, accepted == (cell_fits & (body + count_bytes <= wide(in.length))),
                    "a body is opened if and only if its cell and its count lie inside");
        if (!accepted) {
            world.state(Role::promised, (payload == payload_before) & (count == count_before),
                        "a refusal writes nothing");
            return 0;
        }
        world.state(Role::promised, wide(payload) == body + count_bytes, "the payload is behind the count");
        world.state(Role::promised, count == in.template content<u32>(body), "the count is what stands there");
        opened_body(world, Role::promised, payload);
        return 1;
    }
};

template <u32 width>
struct ItemsOf {
    template <class Reader>
    struct Fit {
        template <class World>
        int operator()(World& world) const
        {
            const auto in = world.input();
            const auto payload = world.any(), count = world.any();
            opened_body(world, Role::relied_on, payload);
            const bool accepted = Reader::payload_fits(in, payload, count, width);
            const auto fits = wide(payload) + wide(count) * width <= wide(in.length);
            world.state(Role::promised, accepted == fits, "a payload is accepted if and only if it lies inside");
            if (!accepted)
                return 0;
            fitting_payload(world, Role::promised, payload, count, width);
            in.touch(wide(payload), wide(count) * width);   // what the decoder copies of a text or a block
            world.state(Role::promised, wide(count) * width < 0xffffffff, "a NUL more does not wrap");
            return 1;
        }
    };
};

// For any number of elements that the record has.
template <class T>
struct ArrayOf {
    template <class Reader>
    struct Read {
        template <class World>
        int operator()(World& world) const
        {
            const auto in = world.input();
            const View<World> view = any_opened_view(world);
            const auto offset = any_slot_value(world);
            const auto elements = world.any();
            world.state(Role::relied_on, elements <= 0xffff, "a message's array is small");
            const bool accepted = Reader::template read_array<T>(in, view, offset, elements, nullptr);

            const auto cell_fits = cell_lies_inside(world, view, offset);
            const auto body = target_of(world, wide(view.table) + wide(offset));
            const auto count = in.template content<u32>(body);
            const auto fits = body + count_bytes + wide(elements) * sizeof(T) <= wide(in.length);
            world.state(Role::promised, accepted == (cell_fits & fits & (count == elements)),
                        "an array is read if and only if its count is exact and it lies inside");
            return accepted;
        }
    };
};

template <class World, class Word>
int follow(World& world, bool accepted, const decltype(wide(Word()))& cell, const Word& before, const Word& table)
{
    if (!accepted) {
        world.state(Role::promised, table == before, "a refusal writes nothing");
        return 0;
    }
    world.state(Role::promised, wide(table) == target_of(world, cell), "the table is where the cell leads to");
    world.state(Role::promised, wide(table) >= cell, "the table is not in front of its cell");
    return 1;
}

template <class Reader>
struct NestedTable {
    template <class World>
    int operator()(World& world) const
    {
        const auto in = world.input();
        const View<World> view = any_opened_view(world);
        const auto offset = any_slot_value(world);
        const auto before = world.any();
        auto table = before;
        const bool accepted = Reader::nested_table(in, view, offset, table);
        const auto cell = wide(view.table) + wide(offset);
        world.state(Role::promised,
                    accepted == (cell_lies_inside(world, view, offset) & (target_of(world, cell) <= 0xffffffff)),
                    "a nested table is found if and only if its cell lies inside and leads to a position");
        return follow(world, accepted, cell, before, table);
    }
};

template <class Reader>
struct ElementTable {
    template <class World>
    int operator()(World& world) const
    {
        const auto in = world.input();
        const auto cells = world.any(), count = world.any(), i = world.any();
        fitting_payload(world, Role::relied_on, cells, count, cell_bytes);
        world.state(Role::relied_on, i < count, "an element of the vector");
        const auto before = world.any();
        auto table = before;
        const bool accepted = Reader::element_table(in, cells, i, table);
        const auto cell = wide(cells) + wide(i) * 4;
        world.state(Role::promised, accepted == (target_of(world, cell) <= 0xffffffff),
                    "an element is found if and only if its cell leads to a position");
        return follow(world, accepted, cell, before, table);
    }
};

// ---- all of them, as the decoder calls them ----

// From the root to a field of each kind, through a nested table or an element if there is one. Relies on nothing but
// the length: a counterexample is a byte string that somebody could send.
template <class Reader>
struct Message {
    static constexpr std::size_t outcomes = 3 * 13 + 3;   // directly, in a nested table, in an element; and pictures

    template <class World>
    int operator()(World& world) const
    {
        const auto in = world.input();
        const auto root = Reader::root_table(in);
        return world.any() == 0 ? picture(world, root) : table(world, root, 1);
    }

private:
    // A message that is looked at as a whole: in fixed form, or around its root table.
    template <class World, class Word>
    static int picture(World& world, const Word& root)
    {
        const auto in = world.input();
        const auto before = world.any(), n = world.any();
        world.state(Role::relied_on, n <= 0xffff, "a picture is small");
        world.state(Role::relied_on, n != 0, "a picture has bytes");
        world.state(Role::relied_on, before <= n, "the table is in the picture");
        Word at{};
        if (root == root_bytes ? !Reader::holds_bytes(in, n) : !Reader::picture_fits(in, root, before, n, at))
            return 39;
        in.touch(wide(at), wide(n));
        Word room = in.length - at - n;
        for (int bodies = 0; bodies < 2; ++bodies) {
            const auto position = world.any();
            Word length{};
            world.state(Role::relied_on, wide(position) + count_bytes <= wide(n), "the count is in the picture");
            if (!Reader::take_body(in, at + position, room, length))
                return 40;
            in.touch(wide(at) + wide(position) + count_bytes, wide(length));
            at = at + length;
            in.touch(wide(at), wide(n));
        }
        return 41;
    }

    template <class World, class Word>
    static int table(World& world, const Word& position, int levels_below)
    {
        const auto in = world.input();
        View<World> view{};
        if (world.any() == 0 ? !Reader::open_compact_table(in, position, any_slot_number(world), view)
                             : Reader::open_table(in, position, view) != TableFault::none)
            return 0;
        const auto offset = Reader::slot_offset(in, view, any_slot_number(world));
        if (offset == 0)
            return 1;
        const auto kind = world.any();
        if (kind == 0)
            return Reader::template read_scalar<u64>(in, view, offset, nullptr) ? 2 : 3;
        if (kind == 1) {
            const auto elements = world.any();
            world.state(Role::relied_on, elements <= 0xffff, "a message's array is small");
            return Reader::template read_array<u32>(in, view, offset, elements, nullptr) ? 4 : 5;
        }
        if (kind == 2) {
            Word nested{};
            if (!Reader::nested_table(in, view, offset, nested) || levels_below == 0)
                return 6;
            return 13 + table(world, nested, levels_below - 1);
        }
        Word payload{}, count{};
        if (!Reader::open_body(in, view, offset, payload, count))
            return 7;
        if (kind == 3) {
            if (!Reader::payload_fits(in, payload, count, 1))
                return 8;
            in.touch(wide(payload), wide(count));
            return 9;
        }
        if (!Reader::payload_fits(in, payload, count, cell_bytes))
            return 10;
        const auto i = world.any();
        if (i >= count)
            return 11;
        Word element{};
        if (!Reader::element_table(in, payload, i, element) || levels_below == 0)
            return 12;
        return 26 + table(world, element, levels_below - 1);
    }
};

}   // namespace kesto::proof
