// Proves the reader that ships over every length and every byte string, and refuses readers with one fault.

#include <gtest/gtest.h>

#include <csignal>

#include "tests/proof/contracts.h"
#include "tests/proof/readers.h"
#include "tests/proof/replay.h"

namespace kesto::proof {
namespace {

// A contract of one reader, to be proved or run on real bytes.
struct Subject {
    const char* name;
    std::size_t outcomes;   // how many different ones the program can come to
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
    static constexpr Subject slot_offset = subject<SlotOffset<Reader>>("slot_offset", 2);
    static constexpr Subject scalar_1 = subject<typename ScalarOf<u8>::Read<Reader>>("read_scalar<u8>", 2);
    static constexpr Subject scalar_2 = subject<typename ScalarOf<u16>::Read<Reader>>("read_scalar<u16>", 2);
    static constexpr Subject scalar_4 = subject<typename ScalarOf<u32>::Read<Reader>>("read_scalar<u32>", 2);
    static constexpr Subject scalar_8 = subject<typename ScalarOf<u64>::Read<Reader>>("read_scalar<u64>", 2);
    static constexpr Subject open_body = subject<OpenBody<Reader>>("open_body", 2);
    static constexpr Subject bytes_fit = subject<typename ItemsOf<1>::Fit<Reader>>("payload_fits, bytes", 2);
    static constexpr Subject cells_fit = subject<typename ItemsOf<4>::Fit<Reader>>("payload_fits, cells", 2);
    static constexpr Subject array_1 = subject<typename ArrayOf<u8>::Read<Reader>>("read_array<u8>", 2);
    static constexpr Subject array_4 = subject<typename ArrayOf<u32>::Read<Reader>>("read_array<u32>", 2);
    static constexpr Subject nested_table = subject<NestedTable<Reader>>("nested_table", 2);
    static constexpr Subject element_table = subject<ElementTable<Reader>>("element_table", 2);
    static constexpr Subject message = subject<Message<Reader>>("message", 0);

    static constexpr Subject all[] = {root_table, open_table, slot_offset,  scalar_1,     scalar_2,
                                      scalar_4,   scalar_8,   open_body,    bytes_fit,    cells_fit,
                                      array_1,    array_4,    nested_table, element_table, message};
};

std::string text(const Counterexample& example)
{
    std::string line = example.broken + ": length " + std::to_string(example.length) + ", words";
    for (const u32 word : example.words)
        line += " " + std::to_string(word);
    line += ", bytes";
    for (const auto& [at, byte] : example.bytes)
        line += " " + std::to_string(at) + ":" + std::to_string(byte);
    return line;
}

void expect_proved(const Subject& contract, Lengths lengths)
{
    const Verdict verdict = contract.prove(lengths);
    std::printf("%-20s paths %u outcomes %zu queries %u\n", contract.name, verdict.paths, verdict.outcomes.size(),verdict.queries);
    EXPECT_TRUE(verdict.proved) << contract.name << ": " << text(verdict.counterexample);
    EXPECT_EQ(verdict.outcomes.size(), contract.outcomes) << contract.name;
}

TEST(Reader, keeps_its_contracts_for_every_length_and_every_byte_string)
{
    for (const Subject& contract : Contracts<Shipping>::all)
        expect_proved(contract, tested_lengths);
}

TEST(Reader, needs_no_upper_bound)
{
    for (const Subject& contract : Contracts<Shipping>::all)
        expect_proved(contract, {least_length, 0xffffffff});
}

TEST(Control, copy)
{
    for (const Subject& contract : Contracts<Weakened<Weakness::none>>::all)
        expect_proved(contract, tested_lengths);
}

#define W(x, c) { #x, Contracts<Weakened<Weakness::x>>::c, Contracts<Weakened<Weakness::x>>::message },
struct Row { const char* name; Subject contract, message; };
const Row rows[] = {
    W(root_of_eight_bytes, root_table)
    W(table_in_the_root, open_table)
    W(table_one_too_far, open_table)
    W(vtable_in_the_root, open_table)
    W(vtable_one_too_far, open_table)
    W(vtable_anywhere, open_table)
    W(vtable_length_of_anything, open_table)
    W(vtable_length_against_the_table, open_table)
    W(vtable_length_one_too_strict, open_table)
    W(slot_of_any_vtable, slot_offset)
    W(slot_with_one_byte, slot_offset)
    W(slot_of_four_bytes, slot_offset)
    W(field_without_width, scalar_2)
    W(field_by_a_sum, scalar_2)
    W(body_without_cell, open_body)
    W(body_without_count, open_body)
    W(body_by_a_sum, open_body)
    W(payload_by_a_product, cells_fit)
    W(payload_by_a_sum, cells_fit)
    W(payload_from_the_start, cells_fit)
    W(payload_of_bytes, cells_fit)
    W(array_of_any_count, array_4)
    W(array_without_payload, array_4)
    W(nested_may_wrap, nested_table)
    W(nested_without_cell, nested_table)
    W(element_may_wrap, element_table)
    W(element_one_further, element_table)
};
TEST(Weak, rows)
{
    for (const Row& row : rows)
        for (const Subject& s : {row.contract, row.message})
        for (u32 most : {0x7fffffffu, 0xffffffffu}) {
            const Verdict v = s.prove({4, most});
            std::printf("%-32s %-20s %s\n", row.name, s.name, v.proved ? "proved" : text(v.counterexample).c_str());
            if (!v.proved) {
                if (v.counterexample.outside)
                    EXPECT_EXIT(s.replay(v.counterexample), testing::KilledBySignal(SIGSEGV), "");
                else
                    EXPECT_EXIT(s.replay(v.counterexample), testing::ExitedWithCode(exit_broken_promise), v.counterexample.broken);
            }
        }
}

}   // namespace
}   // namespace kesto::proof
