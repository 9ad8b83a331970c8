// An image: a stretch of a message in which every byte is either constant or a byte of the record, at a position known at
// compile time. The fixed form is an image, and so is the compact form of a record without zeros and owned blocks.
//
// Writing an image means copying, without looking at the values; reading one means comparing the constants and copying.
// Copies go front to back in moves as wide as the target has registers for. A move may pass the end of its piece if a
// later piece overwrites the excess, which keeps the number of narrow moves small.
#pragma once

#include <algorithm>
#include <bit>

#include "core/copy.h"
#include "core/layout.h"

namespace kesto {

// A stretch of a record that is contiguous on the wire too; `width` is the size of each of its values.
struct FieldRun {
    u32 record_offset;
    u32 position;
    u32 bytes;
    u32 width;
};

namespace detail {

constexpr void put(u8* at, u32 value, u32 width)
{
    for (u32 i = 0; i < width; ++i)
        at[i] = static_cast<u8>(value >> (8 * i));
}

// Stores constants at their positions, or drops them if `bytes` is null.
struct Constants {
    u8* bytes;

    constexpr void operator()(u32 position, u32 value, u32 width) const
    {
        if (bytes != nullptr)
            put(bytes + position, value, width);
    }
};

// Counts items, and stores them unless `items` is null.
template <class Item>
struct List {
    Item* items;
    u32 count = 0;

    constexpr void operator()(const Item& item)
    {
        if (items != nullptr)
            items[count] = item;
        ++count;
    }
};

// Receives the description of a form. With null pointers it only counts.
struct Description {
    Constants constant;
    List<FieldRun> field;
    u32 length;
};

// Whether two field runs are adjacent both in the record and on the wire. On hosts that must swap bytes, every field
// stays a run of its own.
constexpr bool joins(const FieldRun& run, const FieldRun& next)
{
    return host_has_wire_order && run.record_offset + run.bytes == next.record_offset &&
           run.position + run.bytes == next.position;
}

// A stretch of the target: bytes copied from the source, or constant ones.
struct Piece {
    u32 to;
    u32 from;
    u32 bytes;
    bool constant;
};

struct Move {
    u32 to;
    u32 from;
    u32 bytes;   // a power of two, or the whole of a long piece
    bool constant;
};

// Calls visit(move) for the moves of one piece: the whole of a long one, else moves of `widest` bytes at most. No move
// passes the given ends.
template <class Visit>
constexpr void each_move_of(const Piece& piece, u32 target_end, u32 source_end, u32 widest, Visit&& visit)
{
    if (piece.bytes >= (piece.constant ? long_constants : long_stretch)) {
        visit(Move{piece.to, piece.from, piece.bytes, piece.constant});
        return;
    }
    u32 done = 0;
    while (done < piece.bytes) {
        u32 width = std::min(widest, std::bit_ceil(piece.bytes - done));
        const auto fits = [&] {
            return piece.to + done + width <= target_end && piece.from + done + width <= source_end;
        };
        if (!fits() && piece.bytes >= width)
            done = piece.bytes - width;   // the last move ends with the piece and overlaps the one before
        while (!fits())
            width /= 2;
        visit(Move{piece.to + done, piece.from + done, width, piece.constant});
        done += width;
    }
}

// Whether each move stays inside source and target, and all moves together cover every byte of the target.
template <std::size_t N>
constexpr bool is_whole(const std::array<Move, N>& moves, u32 target_end, u32 source_end, u32 constant_end)
{
    u32 reached = 0;
    for (const Move& move : moves) {
        if (move.to > reached || move.to + move.bytes > target_end)
            return false;
        if (move.from + move.bytes > (move.constant ? constant_end : source_end))
            return false;
        reached = std::max(reached, move.to + move.bytes);
    }
    return reached == target_end;
}

// Calls visit(piece) for the runs and for the constant stretches between them, in the order of the target. `runs` must
// be in that order; `to` and `from` select which member of a run is its target and which its source.
template <std::size_t N, class Visit>
constexpr void each_piece(const std::array<FieldRun, N>& runs, u32 FieldRun::*to, u32 FieldRun::*from, u32 target_end,
                          Visit&& visit)
{
    u32 at = 0;
    for (const FieldRun& run : runs) {
        if (run.*to > at)
            visit(Piece{at, at, run.*to - at, true});
        visit(Piece{run.*to, run.*from, run.bytes, false});
        at = run.*to + run.bytes;
    }
    if (at < target_end)
        visit(Piece{at, at, target_end - at, true});
}

// The items that `walk` visits, as an array: walk(visit) calls visit(item) for each of them.
template <class Item, auto walk>
constexpr auto collected = [] {
    constexpr u32 count = [] {
        List<Item> visit{nullptr};
        walk(visit);
        return visit.count;
    }();
    std::array<Item, count> items{};
    List<Item> visit{items.data()};
    walk(visit);
    return items;
}();

// The difference between bytes, gathered in registers; zero if there is none.
struct Difference {
    using Lanes [[gnu::vector_size(16)]] = u32;
    Lanes wide{};
    u64 narrow = 0;

    template <u32 N>
    [[gnu::always_inline]] void gather(const u8* left, const u8* right)
    {
        if constexpr (N == sizeof(Lanes)) {
            Lanes a, b;
            std::memcpy(&a, left, sizeof a);
            std::memcpy(&b, right, sizeof b);
            wide |= a ^ b;
        } else {
            using Word = Unsigned<N>;
            narrow |= static_cast<u64>(load<Word>(left) ^ load<Word>(right));
        }
    }

    [[gnu::always_inline]] bool is_zero() const
    {
        u64 halves[2];
        std::memcpy(halves, &wide, sizeof halves);
        return (narrow | halves[0] | halves[1]) == 0;
    }
};

template <u32 N>
[[nodiscard, gnu::always_inline]] inline bool equal_here(const u8* left, const u8* right)
{
    using Word = Unsigned<std::min(move_bytes, N)>;
    bool equal = true;
    each_move<N>([&](u32 at) __attribute__((always_inline)) {
        equal = equal && load<Word>(left + at) == load<Word>(right + at);
    });
    return equal;
}

template <u32 N>
[[nodiscard, gnu::noinline]] KESTO_IN_REGISTERS bool equal_long(const u8* left, const u8* right)
{
    return equal_here<N>(left, right);
}

}   // namespace detail

// `L` is the record's layout. Form::describe(description) describes an image: it calls constant(position, value, width)
// and field(run), and sets the length.
template <class L, class Form>
struct Image {
private:
    // The first walk over the form counts, the second one stores.
    static constexpr detail::Description counted = [] {
        detail::Description description{};
        Form::describe(description);
        return description;
    }();

    struct Described {
        std::array<u8, counted.length> constants;
        std::array<FieldRun, counted.field.count> fields;
    };

    static constexpr Described described = [] {
        Described all{};
        detail::Description description{{all.constants.data()}, {all.fields.data()}, counted.length};
        Form::describe(description);
        std::ranges::sort(all.fields.begin(), all.fields.end(), {}, &FieldRun::position);
        return all;
    }();

    static constexpr auto constants = described.constants;   // the image of an all-zero record

    // Adjacent fields joined into field runs, in wire order.
    static constexpr auto runs = detail::collected<FieldRun, [](auto& visit) {
        FieldRun open{};
        for (const FieldRun& field : described.fields) {
            if (open.bytes != 0 && detail::joins(open, field)) {
                open.bytes += field.bytes;
                continue;
            }
            if (open.bytes != 0)
                visit(open);
            open = field;
        }
        if (open.bytes != 0)
            visit(open);
    }>;

    static constexpr auto runs_by_record = [] {
        auto sorted = runs;
        std::ranges::sort(sorted.begin(), sorted.end(), {}, &FieldRun::record_offset);
        return sorted;
    }();

    static constexpr auto writing = detail::collected<detail::Move, [](auto&& visit) {
        detail::each_piece(runs, &FieldRun::position, &FieldRun::record_offset, counted.length,
                           [&](const detail::Piece& piece) {
                               const u32 source_end = piece.constant ? counted.length : L::record_size;
                               detail::each_move_of(piece, counted.length, source_end, detail::move_bytes, visit);
                           });
    }>;

    static constexpr auto comparing = detail::collected<detail::Move, [](auto&& visit) {
        detail::each_piece(
            runs, &FieldRun::position, &FieldRun::record_offset, counted.length, [&](const detail::Piece& piece) {
                if (piece.constant)
                    detail::each_move_of(piece, piece.to + piece.bytes, counted.length, detail::compared_bytes, visit);
            });
    }>;

    static constexpr auto reading = detail::collected<detail::Move, [](auto&& visit) {
        detail::each_piece(runs_by_record, &FieldRun::record_offset, &FieldRun::position, L::record_size,
                           [&](const detail::Piece& piece) {
                               const u32 source_end = piece.constant ? L::record_size : counted.length;
                               detail::each_move_of(piece, L::record_size, source_end, detail::move_bytes, visit);
                           });
    }>;

    template <const auto& moves, class Make>
    [[gnu::always_inline]] static bool make_moves(Make&& make)
    {
        return detail::each_number(make, std::make_integer_sequence<u32, moves.size()>());
    }

    // Swaps the bytes of each value. The same code serves both directions, record to wire and wire to record.
    static void copy_turned(u8* to, const u8* from, const FieldRun& run)
    {
        for (u32 i = 0; i < run.bytes; i += run.width)
            for (u32 j = 0; j < run.width; ++j)
                to[i + j] = from[i + run.width - 1 - j];
    }

    // The constants to compare with, each at a multiple of its width.
    static constexpr auto compared_at = [] {
        std::array<u32, comparing.size() + 1> positions{};
        u32 m = 0, end = 0;
        for (const detail::Move& move : comparing) {
            positions[m] = rounded_up(end, std::min(move.bytes, detail::compared_bytes));
            end = positions[m++] + move.bytes;
        }
        positions[m] = end;
        return positions;
    }();

    alignas(16) static constexpr auto compared = [] {
        std::array<u8, compared_at.back()> all{};
        u32 m = 0;
        for (const detail::Move& move : comparing)
            std::copy_n(constants.begin() + move.from, move.bytes, all.begin() + compared_at[m++]);
        return all;
    }();

    // Constants, where the target loads them from memory.
    [[gnu::always_inline]] static const u8* in_memory(const u8* bytes)
    {
        if constexpr (!detail::constants_as_immediates)
            asm("" : "+r"(bytes));   // or the compiler would make each word from two immediates
        return bytes;
    }

public:
    static constexpr u32 length = counted.length;
    static constexpr u32 record_size = L::record_size;
    static_assert(length <= 0xFFFF);   // image_fits relies on it

    // Writes `length` bytes.
    [[gnu::always_inline]] static void write_here(u8* to, const u8* record)
    {
        static_assert(detail::is_whole(writing, length, L::record_size, length));
        if constexpr (!host_has_wire_order) {
            std::memcpy(to, constants.data(), length);
            for (const FieldRun& run : runs)
                copy_turned(to + run.position, record + run.record_offset, run);
        } else {
            const u8* const memory = in_memory(constants.data());
            make_moves<writing>([&]<u32 m>() __attribute__((always_inline)) {
                constexpr detail::Move move = writing[m];
                copy_bytes<move.bytes>(to + move.to, (move.constant ? memory : record) + move.from);
                return true;
            });
        }
    }

    [[gnu::noinline]] KESTO_IN_REGISTERS static void write(u8* to, const u8* record) { write_here(to, record); }

    // Whether the bytes are the image of some record.
    [[nodiscard, gnu::always_inline]] static bool matches(const u8* bytes)
    {
        const auto* const memory = static_cast<const u8*>(__builtin_assume_aligned(in_memory(compared.data()), 16));
        if constexpr (detail::move_bytes == 16) {
            detail::Difference difference;
            make_moves<comparing>([&]<u32 m>() __attribute__((always_inline)) {
                constexpr detail::Move move = comparing[m];
                difference.gather<move.bytes>(bytes + move.to, memory + compared_at[m]);
                return true;
            });
            return difference.is_zero();
        } else {
            return make_moves<comparing>([&]<u32 m>() __attribute__((always_inline)) {
                constexpr detail::Move move = comparing[m];
                const u8* const left = bytes + move.to;
                const u8* const right = memory + compared_at[m];
                if constexpr (move.bytes > detail::compared_bytes)
                    return detail::equal_long<move.bytes>(left, right);
                else
                    return load<Unsigned<move.bytes>>(left) == load<Unsigned<move.bytes>>(right);
            });
        }
    }

    // Writes the fields of the image into a record, and nothing else.
    [[gnu::always_inline]] static void read_fields(u8* record, const u8* bytes)
    {
        if constexpr (!host_has_wire_order)
            for (const FieldRun& run : runs)
                copy_turned(record + run.record_offset, bytes + run.position, run);
        else
            detail::each_number(
                [&]<u32 r>() __attribute__((always_inline)) {
                    constexpr FieldRun run = runs[r];
                    copy_bytes<run.bytes>(record + run.record_offset, bytes + run.position);
                    return true;
                },
                std::make_integer_sequence<u32, runs.size()>());
    }

    // Writes the whole record; its gaps, which belong to no field, become zero. The image must have all fields.
    [[gnu::always_inline]] static void read(u8* record, const u8* bytes)
    {
        static_assert(detail::is_whole(reading, L::record_size, length, L::record_size));
        if constexpr (!host_has_wire_order) {
            clear_bytes<L::record_size>(record);
            read_fields(record, bytes);
        } else {
            make_moves<reading>([&]<u32 m>() __attribute__((always_inline)) {
                constexpr detail::Move move = reading[m];
                if constexpr (move.constant)
                    clear_bytes<move.bytes>(record + move.to);
                else
                    copy_bytes<move.bytes>(record + move.to, bytes + move.from);
                return true;
            });
        }
    }
};

}   // namespace kesto
