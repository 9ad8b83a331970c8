// Proves the reader that ships, for every length and every byte string, and refuses copies of it with one fault each: a
// proof that accepts a weak reader says nothing about the strong one.

#include <gtest/gtest.h>

#include <csignal>
#include <random>

#include "tests/proof/contracts.h"
#include "tests/proof/readers.h"
#include "tests/proof/replay.h"

namespace kesto::proof {
namespace {

// A contract of one reader, to be proved or to be run on real bytes.
struct Subject {
    const char* name;
    std::size_t outcomes;   // how many the program can come to; fewer, and the proof has lost a part of its subject
    Verdict (*prove)(Lengths);
    int (*replay)(const Counterexample&);
};

template <class Program>
constexpr Subject subject(const char* name, std::size_t outcomes)
{
    return {name, outcomes, [](Lengths lengths) { return SymbolicWorld(lengths).explore(Program{}); },
            [](const Counterexample& example) {
                RealWorld world(example);
                return Program{}(world);
            }};
}

template <class Reader>
struct Contracts {
    static constexpr Subject root_table = subject<RootTable<Reader>>("root_table", 1);
    static constexpr Subject open_table = subject<OpenTable<Reader>>("open_table", 4);
    static constexpr Subject held_slots = subject<HeldSlots<Reader>>("holds_slots, slot_unchecked", 2);
    static constexpr Subject holds_bytes = subject<HoldsBytes<Reader>>("holds_bytes", 2);
    static constexpr Subject picture_fits = subject<PictureFits<Reader>>("picture_fits", 2);
    static constexpr Subject take_body = subject<TakeBody<Reader>>("take_body", 2);
    static constexpr Subject open_compact = subject<OpenCompactTable<Reader>>("open_compact_table", 2);
    static constexpr Subject slot_offset = subject<SlotOffset<Reader>>("slot_offset", 2);
    static constexpr Subject scalar_u8 = subject<typename ScalarOf<u8>::template Read<Reader>>("read_scalar<u8>", 2);
    static constexpr Subject scalar_u16 = subject<typename ScalarOf<u16>::template Read<Reader>>("read_scalar<u16>", 2);
    static constexpr Subject scalar_u32 = subject<typename ScalarOf<u32>::template Read<Reader>>("read_scalar<u32>", 2);
    static constexpr Subject scalar_u64 = subject<typename ScalarOf<u64>::template Read<Reader>>("read_scalar<u64>", 2);
    static constexpr Subject open_body = subject<OpenBody<Reader>>("open_body", 2);
    static constexpr Subject bytes_fit = subject<typename ItemsOf<1>::template Fit<Reader>>("payload_fits, bytes", 2);
    static constexpr Subject cells_fit =
        subject<typename ItemsOf<cell_bytes>::template Fit<Reader>>("payload_fits, cells", 2);
    static constexpr Subject array_u8 = subject<typename ArrayOf<u8>::template Read<Reader>>("read_array<u8>", 2);
    static constexpr Subject array_u32 = subject<typename ArrayOf<u32>::template Read<Reader>>("read_array<u32>", 2);
    static constexpr Subject nested_table = subject<NestedTable<Reader>>("nested_table", 2);
    static constexpr Subject element_table = subject<ElementTable<Reader>>("element_table", 2);
    static constexpr Subject message = subject<Message<Reader>>("message", Message<Reader>::outcomes);

    static constexpr Subject all[] = {root_table, open_table,   held_slots,   holds_bytes,   picture_fits,
                                      take_body,  open_compact, slot_offset,  scalar_u8,     scalar_u16,
                                      scalar_u32, scalar_u64,   open_body,    bytes_fit,     cells_fit,
                                      array_u8,   array_u32,    nested_table, element_table, message};
};

template <Weakness weakness>
using Weak = Contracts<Weakened<weakness>>;

std::string text(const Verdict& verdict)
{
    const Counterexample& example = verdict.counterexample;
    std::string line = example.broken + ", length " + std::to_string(example.length) + ", words";
    for (const u32 word : example.words)
        line += ' ' + std::to_string(word);
    line += ", bytes";
    for (const auto& [at, byte] : example.bytes)
        line += ' ' + std::to_string(at) + ':' + std::to_string(byte);
    return line;
}

void expect_proved(const Subject& contract, Lengths lengths)
{
    const Verdict verdict = contract.prove(lengths);
    EXPECT_TRUE(verdict.proved) << contract.name << ": " << text(verdict);
    EXPECT_EQ(verdict.outcomes.size(), contract.outcomes) << contract.name;
    testing::Test::RecordProperty(contract.name, static_cast<int>(verdict.paths));
}

enum class Harm { none, broken_promise, read_outside };

// Refused, and on real bytes the harm is done.
void expect_refused(const Subject& contract, Lengths lengths, Harm harm)
{
    const Verdict verdict = contract.prove(lengths);
    const Counterexample& example = verdict.counterexample;
    ASSERT_FALSE(verdict.proved) << contract.name;
    EXPECT_EQ(example.outside, harm == Harm::read_outside) << contract.name << ": " << text(verdict);
    if (example.outside) {
        EXPECT_EXIT(contract.replay(example), testing::KilledBySignal(SIGSEGV), "")
            << contract.name << ": " << text(verdict);
    } else {
        EXPECT_EXIT(contract.replay(example), testing::ExitedWithCode(exit_broken_promise), example.broken)
            << contract.name << ": " << text(verdict);
    }
}

// ---- the reader that ships ----

TEST(Reader, keeps_its_contracts_for_every_length_and_every_byte_string)
{
    for (const Subject& contract : Contracts<Shipping>::all)
        expect_proved(contract, every_length);
}

TEST(Reader, relies_on_the_least_length)
{
    expect_refused(Contracts<Shipping>::root_table, {least_length - 1, 0x7fffffff}, Harm::read_outside);
    expect_refused(Contracts<Shipping>::open_table, {least_length - 1, 0x7fffffff}, Harm::read_outside);
}

// What the proof takes for granted: the accessors of Input read their values and no byte behind them.
template <class T>
void expect_last_place_and_no_further()
{
    constexpr u32 length = 16;
    const GuardedBytes guarded(length);
    const GuardedInput in{{guarded.bytes(), length}, length};
    constexpr u32 last = length - sizeof(T);
    for (u32 at = 0; at <= last; ++at) {
        if constexpr (sizeof(T) <= sizeof(u32))
            in.load_unchecked<T>(at, last - at);
        in.copy_value_unchecked<T>(at, last - at, nullptr);
    }
    in.copy_values_unchecked<T>(0, length / sizeof(T), nullptr);
    if constexpr (sizeof(T) <= sizeof(u32)) {
        EXPECT_EXIT(in.load_unchecked<T>(0, last + 1), testing::KilledBySignal(SIGSEGV), "");
    }
    EXPECT_EXIT(in.copy_value_unchecked<T>(last + 1, 0, nullptr), testing::KilledBySignal(SIGSEGV), "");
    EXPECT_EXIT(in.copy_values_unchecked<T>(1, length / sizeof(T), nullptr), testing::KilledBySignal(SIGSEGV), "");
}

TEST(Reader, input_reads_its_values_and_no_byte_behind_them)
{
    expect_last_place_and_no_further<u8>();
    expect_last_place_and_no_further<u16>();
    expect_last_place_and_no_further<u32>();
    expect_last_place_and_no_further<u64>();
}

// ---- readers with one fault ----

TEST(WeakReader, without_its_fault_is_proved)
{
    for (const Subject& contract : Weak<Weakness::none>::all)
        expect_proved(contract, accepted_lengths);
}

// Right only because the decoder refuses 2^31 and more.
TEST(WeakReader, that_adds_up_a_field_relies_on_the_greatest_length)
{
    using Sum = Weak<Weakness::field_by_a_sum>;
    expect_proved(Sum::scalar_u16, accepted_lengths);
    expect_refused(Sum::scalar_u16, every_length, Harm::read_outside);
}

struct Fault {
    const char* name;
    Subject contract;
    Harm to_contract;
    Subject message;
    Harm to_message;   // what a byte string can do
};

class EveryFault : public testing::TestWithParam<Fault> {};

TEST_P(EveryFault, is_refused)
{
    expect_refused(GetParam().contract, accepted_lengths, GetParam().to_contract);
    if (GetParam().to_message == Harm::none)
        EXPECT_TRUE(GetParam().message.prove(accepted_lengths).proved);
    else
        expect_refused(GetParam().message, accepted_lengths, GetParam().to_message);
}

#define FAULT(weakness, contract, to_contract, to_message)                                                         \
    Fault                                                                                                          \
    {                                                                                                              \
#weakness, Weak < Weakness::weakness> ::contract, Harm::to_contract, Weak < Weakness::weakness> ::message, \
            Harm::to_message                                                                                       \
    }

INSTANTIATE_TEST_SUITE_P(WeakReader, EveryFault,
                         testing::Values(FAULT(root_of_eight_bytes, root_table, read_outside, read_outside),
                                         FAULT(table_in_the_root, open_table, broken_promise, none),
                                         FAULT(table_one_too_far, open_table, read_outside, read_outside),
                                         FAULT(vtable_in_the_root, open_table, broken_promise, none),
                                         FAULT(vtable_three_too_far, open_table, read_outside, read_outside),
                                         FAULT(vtable_anywhere, open_table, read_outside, read_outside),
                                         FAULT(vtable_length_of_anything, open_table, broken_promise, read_outside),
                                         FAULT(vtable_length_against_the_table, open_table, broken_promise,
                                               read_outside),
                                         FAULT(vtable_length_one_too_strict, open_table, broken_promise, none),
                                         FAULT(slots_of_any_vtable, held_slots, broken_promise, read_outside),
                                         FAULT(slots_with_a_byte_missing, held_slots, broken_promise, read_outside),
                                         FAULT(slots_without_head, held_slots, broken_promise, read_outside),
                                         FAULT(slot_one_further, slot_offset, read_outside, read_outside),
                                         FAULT(message_one_short, holds_bytes, broken_promise, read_outside),
                                         FAULT(picture_in_the_root, picture_fits, broken_promise, none),
                                         FAULT(picture_of_any_length, picture_fits, broken_promise, read_outside),
                                         FAULT(picture_by_its_end, picture_fits, broken_promise, read_outside),
                                         FAULT(picture_one_too_far, picture_fits, broken_promise, read_outside),
                                         FAULT(body_in_any_room, take_body, broken_promise, read_outside),
                                         FAULT(body_one_too_long, take_body, broken_promise, read_outside),
                                         FAULT(body_that_leaves_the_room, take_body, broken_promise, read_outside),
                                         FAULT(compact_anywhere, open_compact, read_outside, read_outside),
                                         FAULT(compact_of_any_vtable, open_compact, broken_promise, none),
                                         FAULT(compact_of_any_distance, open_compact, broken_promise, none),
                                         FAULT(field_without_width, scalar_u16, read_outside, read_outside),
                                         FAULT(body_without_cell, open_body, read_outside, read_outside),
                                         FAULT(body_without_count, open_body, read_outside, read_outside),
                                         FAULT(body_by_a_sum, open_body, broken_promise, none),
                                         FAULT(payload_by_a_product, cells_fit, broken_promise, read_outside),
                                         FAULT(payload_by_a_sum, bytes_fit, broken_promise, read_outside),
                                         FAULT(payload_from_the_start, cells_fit, broken_promise, read_outside),
                                         FAULT(payload_of_bytes, cells_fit, broken_promise, read_outside),
                                         FAULT(array_of_any_count, array_u32, broken_promise, none),
                                         FAULT(array_without_payload, array_u8, read_outside, read_outside),
                                         FAULT(array_longer_than_all, array_u32, read_outside, read_outside),
                                         FAULT(nested_without_cell, nested_table, read_outside, read_outside),
                                         FAULT(nested_may_wrap, nested_table, broken_promise, none),
                                         FAULT(element_may_wrap, element_table, broken_promise, none),
                                         FAULT(element_one_further, element_table, read_outside, read_outside)),
                         [](const auto& fault) { return std::string(fault.param.name); });

// ---- many fields at once ----

// What a lane of a word tells apart, and a wide one. Not the names in wire.h: those are what is looked at here.
constexpr unsigned word_room = 0x7FFF, wide_room = 0xFFFE;

// No lane is said to be beyond if and only if every field is inside.
template <class Lanes>
bool lanes_are_proved(unsigned bits, Lanes lanes, unsigned greatest_room = word_room)
{
    constexpr unsigned widest = 8;
    z3::context& context = solver_context();
    z3::solver solver(context);
    const z3::expr offsets = context.bv_const("offsets", bits), widths = context.bv_const("widths", bits),
                   rooms = context.bv_const("rooms", bits), beyond = lanes(rooms, widths, offsets);
    z3::expr said = context.bool_val(true), true_of_all = said;
    for (unsigned i = 0; i < bits / 16; ++i) {
        const auto lane = [&](const z3::expr& word) { return z3::zext(word.extract(16 * i + 15, 16 * i), 16); };
        const auto number = [&](unsigned value) { return context.bv_val(value, 32); };
        solver.add(z3::ule(lane(widths), number(widest)));
        solver.add(z3::uge(lane(rooms), lane(widths)) && z3::ule(lane(rooms), number(greatest_room)));
        said = said && z3::ule(lane(beyond), number(word_room));
        true_of_all = true_of_all && z3::ule(lane(offsets) + lane(widths), lane(rooms));
    }
    solver.add(said != true_of_all);
    return solver.check() == z3::unsat;
}

TEST(Lanes, pass_if_and_only_if_every_field_is_inside)
{
    using Word = z3::expr;
    for (const unsigned bits : {32U, 64U}) {
        EXPECT_TRUE(lanes_are_proved(bits, lanes_beyond<Word>));
        EXPECT_FALSE(lanes_are_proved(bits, lanes_beyond<Word>, word_room + 1));
        EXPECT_FALSE(lanes_are_proved(bits, [](const Word& room, const Word& widths, const Word& offsets) {
            return room - widths - offsets;   // an offset that goes round
        }));
        EXPECT_FALSE(lanes_are_proved(bits, [](const Word& room, const Word&, const Word& offsets) {
            return (room - offsets) | offsets;   // a field that starts inside
        }));
    }
}

template <std::size_t N>
constexpr u32 greatest_room = N < 4   ? 0xFFFFFFFF
                              : N < 8 ? word_room
                                      : wide_room;

// The words that scalars_fit makes of a vtable: it says what a test of each field says.
template <std::size_t N>
void expect_fits_like_one_by_one(std::mt19937& chance)
{
    std::array<u8, 4 + 2 * N> bytes{};
    const auto below = [&](u32 bound) { return static_cast<u32>(chance() % bound); };
    for (int round = 0; round < 3000; ++round) {
        const u32 rooms[] = {below(40), below(0x9000), greatest_room<N> - 0x10 + below(0x20)};
        const u32 room = rooms[round % 3];
        Widths<N> widths{};
        for (u8& width : widths.of) {
            constexpr u8 all_widths[] = {0, 1, 2, 4, 8};
            width = all_widths[below(5)];
            widths.widest = std::max(widths.widest, width);
        }
        bool all = room >= widths.widest;
        for (u32 k = 0; k < N; ++k) {
            // Mostly close to the last place that fits, or absent.
            const u32 limit = std::min(room, greatest_room<N>) - std::min<u32>(room, widths.of[k]);
            const u32 far[] = {below(0x10000), word_room - below(8)};   // the latter go round in a small room
            const u32 offset = below(2 * N) == 0 ? far[below(2)] : limit - below(std::min(limit, 3U) + 1);
            store(bytes.data() + 4 + 2 * k, static_cast<u16>(below(2) == 0 ? 0 : offset));
            const u32 written = load<u16>(bytes.data() + 4 + 2 * k);
            const bool matters = N >= 4 || widths.of[k] != 0;   // in lanes all offsets are looked at
            all = all && (!matters || written + widths.of[k] <= std::min(room, greatest_room<N>));
        }
        const Input in{bytes.data(), static_cast<u32>(bytes.size())};
        const TableView<Input> view{0, 0, static_cast<u32>(bytes.size()), room};
        ASSERT_EQ(scalars_fit(in, view, widths), all) << N << " slots, room " << room;
    }
}

// The same for every offset of one field.
template <std::size_t N>
void expect_every_offset_to_be_bounded()
{
    std::array<u8, 4 + 2 * N> bytes{};
    const Input in{bytes.data(), static_cast<u32>(bytes.size())};
    for (const u32 k : {u32{0}, u32{N - 1}})
        for (const u8 width : {u8{1}, u8{2}, u8{4}, u8{8}}) {
            Widths<N> widths{{}, width};
            widths.of[k] = width;
            for (const u32 room : {4U, 5U, 8U, 9U, 0x7FFEU, 0x7FFFU, 0x8000U, 0x8007U, 0xFFFDU, 0xFFFEU, 0xFFFFU,
                                   0x10000U, 0x10006U, 0x10007U})
                for (u32 offset = 0; offset <= 0xFFFF; ++offset) {
                    store(bytes.data() + 4 + 2 * k, static_cast<u16>(offset));
                    const TableView<Input> view{0, 0, static_cast<u32>(bytes.size()), room};
                    const bool fits = room >= width && offset + width <= std::min(room, greatest_room<N>);
                    ASSERT_EQ(scalars_fit(in, view, widths), fits) << N << " slots, room " << room << ", " << offset;
                }
            store(bytes.data() + 4 + 2 * k, u16{0});
        }
}

TEST(Lanes, bound_every_offset)
{
    expect_every_offset_to_be_bounded<3>();
    expect_every_offset_to_be_bounded<4>();
    expect_every_offset_to_be_bounded<7>();
    expect_every_offset_to_be_bounded<8>();
    expect_every_offset_to_be_bounded<13>();
}

TEST(Lanes, say_of_a_vtable_what_each_of_its_slots_says)
{
    std::mt19937 chance(5);
    [&]<std::size_t... N>(std::index_sequence<N...>) { (expect_fits_like_one_by_one<N + 1>(chance), ...); }
    (std::make_index_sequence<13>());
    expect_fits_like_one_by_one<46>(chance);
    expect_fits_like_one_by_one<64>(chance);
}

}   // namespace
}   // namespace kesto::proof
