// Writes the compact form of a record, without bounds tests: the size was computed before, see measure.h.
//
// Measuring and packing walk the slots of a layout by the same rules. They differ in one case, which is required: a
// block with a pointer and length 0.
#pragma once

#include "core/measure.h"
#include "core/unit.h"
#include "platform/bounded_memory.h"

namespace kesto {

// Several slots of a vtable in one register.
template <class Word>
struct SlotWord {
    static constexpr u32 slots = sizeof(Word) / slot_bytes;
    Word word = 0;

    template <u32 I>
    [[gnu::always_inline]] void set(u32 offset)
    {
        word |= Word{offset} << (8 * slot_bytes * I);
    }

    [[gnu::always_inline]] Word value() const { return word; }
};

#ifdef __x86_64__
// The same in a vector register, into which one instruction inserts a slot.
struct SlotLanes {
    static constexpr u32 slots = sizeof(u64) / slot_bytes;
    u16 lanes [[gnu::vector_size(16)]] = {};

    template <u32 I>
    [[gnu::always_inline]] void set(u32 offset)
    {
        lanes[I] = static_cast<u16>(offset);
    }

    [[gnu::always_inline]] u64 value() const
    {
        using Halves = u64 __attribute__((vector_size(16)));
        return Halves(lanes)[0];
    }
};
using BranchlessWord = SlotLanes;
#else
using BranchlessWord = SlotWord<std::size_t>;
#endif

// The slots of a vtable, collected in registers. Each register is stored as soon as its last slot is known. Alternating
// stores of fields and single slots would be the most expensive part of packing, because a processor merges only
// adjacent stores.
template <class L, class Word>
struct SlotWords {
    static constexpr u32 in_word = Word::slots;

    u8* at;
    std::array<Word, (L::slots + in_word - 1) / in_word> words;

    // The slot of a word that is known last. Scalars are known before all other slots.
    static constexpr u32 last_known(u32 word)
    {
        u32 last = word * in_word;
        for (u32 k = last; k < (word + 1) * in_word && k < L::slots; ++k)
            if (L::kinds[k] != Kind::scalar || L::kinds[last] == Kind::scalar)
                last = k;
        return last;
    }

    template <u32 K>
    [[gnu::always_inline]] void set(u32 offset)
    {
        words[K / in_word].template set<K % in_word>(offset);
    }

    // Slot K is final. The store of the last word may overwrite the table's head, which is written later.
    template <u32 K>
    [[gnu::always_inline]] void known() const
    {
        constexpr u32 word = K / in_word, first = word * in_word;
        static_assert((in_word - 2) * slot_bytes <= table_head_bytes);
        if constexpr (K == last_known(word)) {
            const auto slots = words[word].value();
            if constexpr (first + 1 == L::slots)
                store(at + std::size_t{slot_bytes} * first, static_cast<u16>(slots));
            else
                store(at + std::size_t{slot_bytes} * first, slots);
        }
    }

    // Does both, for a slot that is final at once.
    template <u32 K>
    [[gnu::always_inline]] void put(u32 offset)
    {
        set<K>(offset);
        known<K>();
    }
};

// Writes one table from `vtable` on: its vtable, the table itself and all tables beneath it. Returns the end of the
// output.
template <class L>
[[gnu::noinline]] KESTO_IN_REGISTERS u8* write_table(u8* vtable, const u8* record, const NestedEncoder* nested);

// The same, slot by slot. With Tail::follows, at least 8 bytes that come after the table's scalars are written later,
// so scalars are stored without a branch. With Tail::none, only bytes of the table itself are written.
enum class Tail : bool { none, follows };

template <class L, Tail tail>
[[gnu::noinline]] KESTO_IN_REGISTERS u8* write_any_table(u8* vtable, const u8* record, const NestedEncoder* nested);

// Whether rows are written branch-free until two alike have been seen. On ARM that takes half as many instructions again
// and a twentieth of the library; chosen by count, for cores of short pipelines.
#ifdef __arm__
constexpr bool branchless_rows = false;
#else
constexpr bool branchless_rows = true;
#endif

template <class L>
constexpr Tail own_tail = L::has_tail ? Tail::follows : Tail::none;

// A table while it is written. `at` is the offset of the next byte to write, from the table. It cannot wrap: either the
// size of the whole message was computed before and fits in 32 bits, or the buffer's capacity covers the bound.
//
// A table is written in two halves. The first, write_scalar and reserve_cell, fills the slots and stores the offset of
// slot k's cell in cells[k], or 0 for an absent field. The second, write_body and write_beneath, uses these offsets.
// write_body replaces the entry of a vector by the offset of its first element's cell.
template <class L, Tail tail>
struct TableWriter {
    u8* table;
    const u8* record;
    u32 at = table_head_bytes;
    // A vector register does not pay in the branching code, which sets few slots.
    SlotWords<L, std::conditional_t<tail == Tail::follows, BranchlessWord, SlotWord<std::size_t>>> slots;
    std::array<u32, L::slots> cells;   // for all slots but scalars

    [[gnu::always_inline]] TableWriter(u8* table_, const u8* record_)
        : table(table_), record(record_), slots{table_ - slot_bytes * L::slots, {}}
    {
    }

    template <u32 K>
    using Slot = typename L::template Slot<K>;

    template <u32 K>
    [[gnu::always_inline]] const u8* field() const
    {
        return record + L::record_offset[K];
    }

    // Writes the head image, if the record has it, instead of the first half. Returns its end; null if it is not written.
    [[nodiscard, gnu::always_inline]] u8* try_head()
    {
        if constexpr (L::has_owned_blocks) {
            if (is_dense<L>(record)) {
                HeadImage<L>::write_here(slots.at, record);
                cells = L::dense_offset;
                at = L::head_table;
                return slots.at + HeadImage<L>::length;
            }
        }
        return nullptr;
    }

    template <u32 K>
    [[gnu::always_inline]] void write_scalar()
    {
        if constexpr (Slot<K>::kind == Kind::scalar) {
            const auto value = field_value<typename Slot<K>::Value>(field<K>());
            if constexpr (tail == Tail::follows) {
                store(table + at, value);   // the next field or the tail overwrites a zero
                const u32 mask = 0U - u32{value != 0};
                slots.template put<K>(at & mask);
                at += sizeof value & mask;
            } else {
                if (value != 0) [[likely]] {
                    store(table + at, value);
                    slots.template set<K>(at);
                    at += sizeof value;
                }
                slots.template known<K>();
            }
        }
    }

    // Reserves a cell, which is filled when its target is known.
    template <u32 K>
    [[gnu::always_inline]] void reserve_cell()
    {
        if constexpr (Slot<K>::kind != Kind::scalar) {
            bool written = true;
            if constexpr (Slot<K>::kind == Kind::text)
                written = field_pointer(field<K>()) != nullptr;
            else if constexpr (Slot<K>::kind == Kind::vector)
                written = field_value<u32>(field<K>()) != 0;   // it has a pointer then: else there is no size
            else if constexpr (Slot<K>::kind == Kind::block)
                written = field_pointer(field<K>() + counted_pointer) != nullptr && field_value<u32>(field<K>()) != 0;
            cells[K] = written ? at : 0;
            slots.template put<K>(cells[K]);
            at += written ? cell_bytes : 0;
        }
    }

    // Links slot K's cell to the count, which it writes next.
    template <u32 K>
    [[gnu::always_inline]] void open_body(u32 count)
    {
        store(table + cells[K], at - cells[K]);
        store(table + at, count);
        at += count_bytes;
    }

    [[gnu::always_inline]] void write_bytes(const u8* bytes, u32 length)
    {
        memcpy_sOptAsm(table + at, length, bytes, length);
        at += length;
    }

    // Writes the body of slot K, if it has one: an array, a text, a block, or the count and cells of a vector.
    template <u32 K>
    [[gnu::always_inline]] void write_body()
    {
        if constexpr (Slot<K>::kind == Kind::array) {
            using Value = typename Slot<K>::Value;
            open_body<K>(Slot<K>::count);
            if constexpr (host_has_wire_order || sizeof(Value) == 1)
                copy_bytes<Slot<K>::payload>(table + at, field<K>());
            else
                for (u32 i = 0; i < Slot<K>::payload; i += sizeof(Value))
                    store(table + at + i, field_value<Value>(field<K>() + i));
            at += Slot<K>::payload;
        } else if constexpr (Slot<K>::kind == Kind::text) {
            if (cells[K] != 0) {
                const u8* const text = field_pointer(field<K>());
                const u32 length = static_cast<u32>(std::strlen(reinterpret_cast<const char*>(text)));
                open_body<K>(length);
                write_bytes(text, length);
                table[at++] = 0;
            }
        } else if constexpr (Slot<K>::kind == Kind::block) {
            if (cells[K] != 0) {
                const u32 length = field_value<u32>(field<K>());
                open_body<K>(length);
                write_bytes(field_pointer(field<K>() + counted_pointer), length);
            }
        } else if constexpr (Slot<K>::kind == Kind::vector) {
            if (cells[K] != 0) {
                const u32 count = field_value<u32>(field<K>());
                open_body<K>(count);
                cells[K] = at;   // from now on the offset of the first element's cell
                at += cell_bytes * count;
            }
        }
    }

    // Writes the tables beneath this one from `end` on. Returns the new end.
    template <u32 K>
    [[gnu::always_inline]] u8* write_beneath(u8* end, const NestedEncoder* nested)
    {
        if constexpr (Slot<K>::kind == Kind::table) {
            using Inner = typename Slot<K>::Layout;
            u8* const cell = table + cells[K];
            store(cell, static_cast<u32>(end + Inner::vtable_bytes - cell));
            return write_table<Inner>(end, field<K>(), nested[L::nested_before[K]].nested);
        } else if constexpr (Slot<K>::kind == Kind::vector) {
            if (cells[K] == 0)
                return end;
            const NestedEncoder& element = nested[L::nested_before[K]];
            return element.write_elements(table + cells[K], field_value<u32>(field<K>()), end,
                                          field_pointer(field<K>() + counted_pointer), element.nested);
        } else {
            return end;
        }
    }
};

template <class L, Tail tail, u32... K>
[[gnu::always_inline]] inline u8* write_any_table_here(u8* vtable, const u8* record, const NestedEncoder* nested,
                                                       std::integer_sequence<u32, K...>)
{
    TableWriter<L, tail> writer(vtable + L::vtable_bytes, record);
    u8* const head_end = writer.try_head();
    const bool has_head = head_end != nullptr;
    if (!has_head) {
        (writer.template write_scalar<K>(), ...);
        (writer.template reserve_cell<K>(), ...);
        store(writer.table, u32{L::vtable_bytes});
    }
    ((has_head && L::in_head[K] ? void() : writer.template write_body<K>()), ...);

    // The upper half is the table length. It is truncated above 64 KiB, which is harmless: no reader looks at it.
    store(vtable, L::vtable_bytes | writer.at << 16);

    u8* end = has_head && L::head_has_tables ? head_end : writer.table + writer.at;
    ((has_head && L::in_head[K] ? end : end = writer.template write_beneath<K>(end, nested)), ...);
    return end;
}

template <class L, Tail tail>
KESTO_IN_REGISTERS u8* write_any_table(u8* vtable, const u8* record, const NestedEncoder* nested)
{
    return write_any_table_here<L, tail>(vtable, record, nested, std::make_integer_sequence<u32, L::slots>());
}

template <class L>
[[gnu::always_inline]] inline u8* write_table_here(u8* vtable, const u8* record, const NestedEncoder* nested)
{
    if constexpr (L::has_owned_blocks) {
        return write_any_table_here<L, own_tail<L>>(vtable, record, nested,
                                                    std::make_integer_sequence<u32, L::slots>());
    } else {
        if (is_dense<L>(record)) {
            DenseImage<L>::write_here(vtable, record);
            return vtable + DenseImage<L>::length;
        }
        return write_any_table<L, own_tail<L>>(vtable, record, nested);
    }
}

template <class L>
KESTO_IN_REGISTERS u8* write_table(u8* vtable, const u8* record, const NestedEncoder* nested)
{
    return write_table_here<L>(vtable, record, nested);
}

// The same for callers whose speed justifies a copy of the code, provided that the code is short.
template <class L>
[[gnu::always_inline]] inline u8* write_short_table(u8* vtable, const u8* record, const NestedEncoder* nested)
{
    return L::is_short && !L::has_owned_blocks ? write_table_here<L>(vtable, record, nested)
                                               : write_table<L>(vtable, record, nested);
}

// Writes elements as dense images until one is not dense, and then the rest slot by slot. Branching per scalar is fast
// while consecutive records have zeros in the same slots; two records of the same size in succession are taken as a
// sign of this.
template <class L>
KESTO_IN_REGISTERS u8* write_elements(u8* cells, u32 count, u8* at, const u8* records, const NestedEncoder* nested)
{
    const u8* record = records;
    u8* cell = cells;
    const u8* const end = records + std::size_t{count} * L::record_size;
    const auto link_cell = [&] { store(cell, static_cast<u32>(at + L::vtable_bytes - cell)); };
    if constexpr (L::is_short && !L::has_owned_blocks) {
        for (; record != end && is_dense<L>(record); record += L::record_size, cell += cell_bytes) {
            link_cell();
            DenseImage<L>::write_here(at, record);
            at += DenseImage<L>::length;
        }
    } else if constexpr (!L::has_owned_blocks) {
        for (bool dense = true; dense && record != end; record += L::record_size, cell += cell_bytes) {
            link_cell();
            u8* const table_end = write_table<L>(at, record, nested);
            dense = table_end - at == DenseImage<L>::length;   // any other table is shorter
            at = table_end;
        }
    }
    [[maybe_unused]] std::ptrdiff_t size = 0;
    [[maybe_unused]] bool alike = false;
    for (; record != end; record += L::record_size, cell += cell_bytes) {
        link_cell();
        if constexpr (L::has_owned_blocks) {
            at = write_table<L>(at, record, nested);
        } else if constexpr (own_tail<L> == Tail::follows || !branchless_rows) {
            at = write_any_table<L, own_tail<L>>(at, record, nested);
        } else {
            u8* const table_end = alike || record + L::record_size == end
                                      ? write_any_table<L, Tail::none>(at, record, nested)
                                      : write_any_table<L, Tail::follows>(at, record, nested);
            alike = table_end - at == size;
            size = table_end - at;
            at = table_end;
        }
    }
    return at;
}

}   // namespace kesto
