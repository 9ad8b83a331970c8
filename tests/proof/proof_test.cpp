// The preconditions and guarantees of each primitive of core/wire.h, proved for every length and every byte string.
//
// A guarantee of one primitive and the precondition of the next are one function with the role as its argument, so that
// the contracts chain. Expected results follow the definitions of the wire format, in numbers that do not wrap. Each
// contract is a program that returns a number for its outcome, so that a proof that has become vacuous is detected.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "core/lanes.h"
#include "core/wire.h"
#include "tests/proof/symbolic.h"

namespace kesto::proof {
namespace {

// ---- facts that hold between two primitives ----

using View = TableView<SymbolicInput>;

void opened_view(SymbolicWorld& world, Role role, const View& view)
{
    const Exact length = wide(world.input().length);
    world.state(role, view.table >= root_bytes, "the table is not in the root");
    world.state(role, wide(view.table) + table_head_bytes <= length, "the table's head lies inside");
    world.state(role, view.vtable >= root_bytes, "the vtable is not in the root");
    world.state(role, wide(view.vtable) + vtable_head_bytes <= length, "the vtable's head lies inside");
    world.state(role, view.vtable_length <= 0xffff, "a vtable length has 16 bits");
    world.state(role, wide(view.vtable) + wide(view.vtable_length) <= length, "the vtable lies inside");
    world.state(role, wide(view.table) + wide(view.bytes_after_table) == length,
                "the view counts the bytes after the table");
}

View any_opened_view(SymbolicWorld& world)
{
    const View view{world.any(), world.any(), world.any(), world.any()};
    opened_view(world, Role::relied_on, view);
    return view;
}

void slot_value(SymbolicWorld& world, Role role, const Word& offset)
{
    world.state(role, offset <= 0xffff, "a slot has 16 bits");
}

Word any_slot_value(SymbolicWorld& world)
{
    const Word offset = world.any();
    slot_value(world, Role::relied_on, offset);
    return offset;
}

Word any_slot_number(SymbolicWorld& world)
{
    const Word k = world.any();
    world.rely(k < 0x8000, "a vtable, whose length has 16 bits, has fewer than 2^15 slots");
    return k;
}

void opened_body(SymbolicWorld& world, Role role, const Word& payload)
{
    world.state(role, payload >= root_bytes + count_bytes, "the payload is after the root and its count");
    world.state(role, payload <= world.input().length, "the payload starts inside or at the end");
}

void fitting_payload(SymbolicWorld& world, Role role, const Word& payload, const Word& count, u32 width)
{
    world.state(role, wide(payload) + wide(count) * width <= wide(world.input().length), "the payload lies inside");
}

Truth cell_lies_inside(SymbolicWorld& world, const View& view, const Word& offset)
{
    return wide(view.table) + wide(offset) + cell_bytes <= wide(world.input().length);
}

// The position that a cell leads to, without wrapping.
Exact target_of(SymbolicWorld& world, const Exact& cell) { return cell + wide(world.input().content<u32>(cell)); }

// ---- the contracts ----

int root_is_the_first_word(SymbolicWorld& world)
{
    const SymbolicInput in = world.input();
    world.promise(root_table(in) == in.content<u32>(0), "the root is the first word");
    return 0;
}

// For every table position.
int table_is_opened(SymbolicWorld& world)
{
    const SymbolicInput in = world.input();
    const Word table = world.any();
    View view{};
    const TableFault fault = open_table(in, table, view);

    const Exact length = wide(in.length);
    const Word vtable = table - in.content<u32>(wide(table));   // modulo 2^32, as the format defines
    const Word vtable_length = in.content<u16>(wide(vtable));
    const Truth table_legal = (table >= 4) & (wide(table) + 4 <= length);
    const Truth vtable_legal = (vtable >= 4) & (wide(vtable) + 4 <= length);
    const Truth vtable_whole = wide(vtable) + wide(vtable_length) <= length;
    world.promise((fault == TableFault::table_position) == !table_legal, "table position");
    world.promise((fault == TableFault::vtable_position) == (table_legal & !vtable_legal), "vtable position");
    world.promise((fault == TableFault::vtable_length) == (table_legal & vtable_legal & !vtable_whole),
                  "vtable length");

    // The log of a fault prints these values.
    world.promise(view.table == table, "the view has the table");
    if (fault == TableFault::vtable_length || fault == TableFault::none) {
        world.promise(view.vtable == vtable, "the view has the vtable");
        world.promise(view.vtable_length == vtable_length, "the view has the vtable's length");
    }
    if (fault == TableFault::none)
        opened_view(world, Role::promised, view);
    return static_cast<int>(fault);
}

int compact_table_is_opened(SymbolicWorld& world)
{
    const SymbolicInput in = world.input();
    const Word table = world.any(), slots = any_slot_number(world);
    View view{};
    if (!open_compact_table(in, table, slots, view))
        return 0;
    opened_view(world, Role::promised, view);
    const Word vtable = table - in.content<u32>(wide(table));
    world.promise(view.table == table, "the view has the table");
    world.promise(view.vtable == vtable, "the view has the vtable");
    world.promise(view.vtable_length == in.content<u16>(wide(vtable)), "the view has the vtable's length");
    world.promise(wide(view.vtable_length) == wide(slots) * 2 + 4, "it has all slots");
    return 1;
}

int slots_are_held(SymbolicWorld& world)
{
    const View view = any_opened_view(world);
    const Word slots = any_slot_number(world);
    const bool held = holds_slots(view, slots);
    world.promise(held == (wide(view.vtable_length) >= wide(slots) * 2 + 4),
                  "slots are held if and only if the vtable is long enough");
    if (held) {
        const Word k = world.any();
        world.rely(k < slots, "k is one of them");
        slot_value(world, Role::promised, slot_unchecked(world.input(), view, k));
    }
    return held;
}

int slot_has_an_offset(SymbolicWorld& world)
{
    const SymbolicInput in = world.input();
    const View view = any_opened_view(world);
    const Word k = any_slot_number(world);
    const Word offset = slot_offset(in, view, k);
    slot_value(world, Role::promised, offset);
    if (wide(view.vtable_length) > wide(k) * 2 + 5) {
        world.promise(offset == in.content<u16>(wide(view.vtable) + wide(k) * 2 + 4),
                      "a slot inside the vtable has the value written there");
        return 1;
    }
    world.promise(offset == 0, "a slot after the vtable is absent");
    return 0;
}

int bytes_are_held(SymbolicWorld& world)
{
    const SymbolicInput in = world.input();
    const Word n = world.any();
    const bool held = holds_bytes(in, n);
    world.promise(held == (n <= in.length), "accepted if and only if the input has n bytes");
    return held;
}

// For every image of up to 64 KiB, and every size of the part before the table.
int image_lies_inside(SymbolicWorld& world)
{
    const SymbolicInput in = world.input();
    const Word table = world.any(), before = world.any(), n = world.any(), at_before = world.any();
    world.rely(n <= 0xffff, "an image is small");
    world.rely(before <= n, "the table is in the image");
    Word at = at_before;
    const bool accepted = image_fits(in, table, before, n, at);
    const Truth fits =
        (wide(table) >= wide(before) + root_bytes) & (wide(table) + wide(n) <= wide(in.length) + wide(before));
    world.promise(accepted == fits, "an image is accepted if and only if it lies inside");
    if (!accepted) {
        world.promise(at == at_before, "a refusal writes nothing");
        return 0;
    }
    world.promise(wide(at) + wide(before) == wide(table), "the table has its position within the image");
    in.touch(wide(at), wide(n));
    return 1;
}

template <class T>
int scalar_is_read(SymbolicWorld& world)
{
    const SymbolicInput in = world.input();
    const View view = any_opened_view(world);
    const Word offset = any_slot_value(world);
    const bool accepted = read_scalar<T>(in, view, offset, nullptr);
    world.promise(accepted == (wide(view.table) + wide(offset) + sizeof(T) <= wide(in.length)),
                  "a scalar is read if and only if it lies inside");
    return accepted;
}

int body_is_opened(SymbolicWorld& world)
{
    const SymbolicInput in = world.input();
    const View view = any_opened_view(world);
    const Word offset = any_slot_value(world), payload_before = world.any(), count_before = world.any();
    Word payload = payload_before, count = count_before;
    const bool accepted = open_body(in, view, offset, payload, count);

    const Exact body = target_of(world, wide(view.table) + wide(offset));
    world.promise(accepted == (cell_lies_inside(world, view, offset) & (body + count_bytes <= wide(in.length))),
                  "a body is opened if and only if its cell and its count lie inside");
    if (!accepted) {
        world.promise((payload == payload_before) & (count == count_before), "a refusal writes nothing");
        return 0;
    }
    world.promise(wide(payload) == body + count_bytes, "the payload is after the count");
    world.promise(count == in.content<u32>(body), "the count is the one written there");
    opened_body(world, Role::promised, payload);
    return 1;
}

template <u32 width>
int payload_lies_inside(SymbolicWorld& world)
{
    const SymbolicInput in = world.input();
    const Word payload = world.any(), count = world.any();
    opened_body(world, Role::relied_on, payload);
    const bool accepted = payload_fits(in, payload, count, width);
    world.promise(accepted == (wide(payload) + wide(count) * width <= wide(in.length)),
                  "a payload is accepted if and only if it lies inside");
    if (!accepted)
        return 0;
    fitting_payload(world, Role::promised, payload, count, width);
    world.promise(wide(count) * width < 0xffffffff, "adding a NUL does not wrap");
    return 1;
}

// For every number of elements in the record.
template <class T>
int array_is_read(SymbolicWorld& world)
{
    const SymbolicInput in = world.input();
    const View view = any_opened_view(world);
    const Word offset = any_slot_value(world), elements = world.any();
    world.rely(elements <= 0xffff, "a message's array is small");
    const bool accepted = read_array<T>(in, view, offset, elements, nullptr);

    const Exact body = target_of(world, wide(view.table) + wide(offset));
    const Truth fits = body + count_bytes + wide(elements) * sizeof(T) <= wide(in.length);
    world.promise(accepted == (cell_lies_inside(world, view, offset) & fits & (in.content<u32>(body) == elements)),
                  "an array is read if and only if its count is exact and it lies inside");
    return accepted;
}

int follow(SymbolicWorld& world, bool accepted, const Exact& cell, const Word& before, const Word& table)
{
    if (!accepted) {
        world.promise(table == before, "a refusal writes nothing");
        return 0;
    }
    world.promise(wide(table) == target_of(world, cell), "the table is where the cell leads to");
    world.promise(wide(table) >= cell, "the table is not before its cell");
    return 1;
}

int nested_table_is_found(SymbolicWorld& world)
{
    const View view = any_opened_view(world);
    const Word offset = any_slot_value(world), before = world.any();
    Word table = before;
    const bool accepted = nested_table(world.input(), view, offset, table);
    const Exact cell = wide(view.table) + wide(offset);
    world.promise(accepted == (cell_lies_inside(world, view, offset) & (target_of(world, cell) <= 0xffffffff)),
                  "a nested table is found if and only if its cell lies inside and leads to a position");
    return follow(world, accepted, cell, before, table);
}

int element_table_is_found(SymbolicWorld& world)
{
    const Word cells = world.any(), count = world.any(), i = world.any(), before = world.any();
    fitting_payload(world, Role::relied_on, cells, count, cell_bytes);
    world.rely(i < count, "an element of the vector");
    Word table = before;
    const bool accepted = element_table(world.input(), cells, i, table);
    const Exact cell = wide(cells) + wide(i) * 4;
    world.promise(accepted == (target_of(world, cell) <= 0xffffffff),
                  "an element is found if and only if its cell leads to a position");
    return follow(world, accepted, cell, before, table);
}

struct Contract {
    const char* name;
    int (*program)(SymbolicWorld&);
    std::size_t outcomes;   // number of possible outcomes; with fewer, part of the proof is vacuous
};

const Contract contracts[] = {
    {"root_table", root_is_the_first_word, 1},
    {"open_table", table_is_opened, 4},
    {"open_compact_table", compact_table_is_opened, 2},
    {"holds_slots, slot_unchecked", slots_are_held, 2},
    {"slot_offset", slot_has_an_offset, 2},
    {"holds_bytes", bytes_are_held, 2},
    {"image_fits", image_lies_inside, 2},
    {"read_scalar<u8>", scalar_is_read<u8>, 2},
    {"read_scalar<u16>", scalar_is_read<u16>, 2},
    {"read_scalar<u32>", scalar_is_read<u32>, 2},
    {"read_scalar<u64>", scalar_is_read<u64>, 2},
    {"open_body", body_is_opened, 2},
    {"payload_fits, bytes", payload_lies_inside<1>, 2},
    {"payload_fits, cells", payload_lies_inside<cell_bytes>, 2},
    {"read_array<u8>", array_is_read<u8>, 2},
    {"read_array<u32>", array_is_read<u32>, 2},
    {"nested_table", nested_table_is_found, 2},
    {"element_table", element_table_is_found, 2},
};

TEST(Reader, contracts_hold_for_every_length_and_content)
{
    for (const Contract& contract : contracts) {
        const Verdict verdict = SymbolicWorld(least_length).explore(contract.program);
        EXPECT_EQ(verdict.counterexample, "") << contract.name;
        EXPECT_TRUE(!verdict.counterexample.empty() || verdict.outcomes.size() == contract.outcomes) << contract.name;
    }
}

// Also tests that a proof can fail.
TEST(Reader, contracts_need_the_minimum_length)
{
    EXPECT_NE(SymbolicWorld(least_length - 1).explore(root_is_the_first_word).counterexample, "");
}

// ---- many fields at once ----

#ifdef __SSE2__
// Every slot of a vtable of N slots, with every offset, at the limits of what a lane can represent.
template <u32 N>
void expect_every_slot_to_be_bounded()
{
    std::array<u8, 4 + 2 * N> bytes{};
    const Input in{bytes.data(), static_cast<u32>(bytes.size())};
    for (u32 k = 0; k < N; ++k) {
        for (const u32 width : {0U, 1U, 2U, 4U, 8U}) {
            std::array<u16, N> widths{};
            widths[k] = static_cast<u16>(width);
            for (const u32 available : {4U, 8U, 9U, 0x7FFFU, 0xFFFDU, 0xFFFEU, 0xFFFFU, 0x10000U, 0x10007U}) {
                const TableView<Input> view{0, 0, static_cast<u32>(bytes.size()), available};
                for (u32 offset = 0; offset <= 0xFFFF; offset += N > 9 && offset + 20 < available ? 7 : 1) {
                    store(bytes.data() + 4 + 2 * k, static_cast<u16>(offset));
                    const bool fits = available >= width && offset + width <= std::min(available, 0xFFFEU);
                    ASSERT_EQ(fields_fit(in, view, N, widths.data(), width), fits)
                        << N << " slots, " << k << " of " << width << " bytes at " << offset << ", available "
                        << available;
                }
            }
        }
        store(bytes.data() + 4 + 2 * k, u16{0});
    }
}

TEST(Lanes, check_the_bounds_of_every_slot)
{
    [&]<u32... N>(std::integer_sequence<u32, N...>) { (expect_every_slot_to_be_bounded<8 + N>(), ...); }
    (std::make_integer_sequence<u32, 9>());
    expect_every_slot_to_be_bounded<46>();
    expect_every_slot_to_be_bounded<64>();
}
#endif

}   // namespace
}   // namespace kesto::proof
