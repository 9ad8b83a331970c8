// An image: a form of a message in which every byte is either constant or a byte of the record, at a position known at
// compile time. The fixed form is an image, and so is the compact form of a record without zeros.
//
// Writing an image means copying, without looking at the values; reading one means comparing the constants and copying.
// Copies go front to back in moves of up to 16 bytes. A move may pass the end of its piece if a later piece overwrites
// the excess, which keeps the number of narrow moves small.
//
// Texts and blocks, the bodies, have any length. They stand between the parts of an image and are not counted in it: a
// position counts only the image's own bytes. A distance that spans a body, or the length of one, is therefore not
// constant but a sum.
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

// A body stands right after its count, before the image's byte at `position`.
struct Body {
    Kind kind;
    u32 record_offset;   // of the body's field
    u32 position;
};

// A number of `width` bytes: `value` plus the lengths of the bodies from `first` up to, not including, `last`. A reader
// checks it only where `must_be` is set; the other sums are the lengths themselves, or bytes that no reader looks at.
struct Sum {
    u32 position;
    u32 width;
    u32 value;
    u32 first;
    u32 last;
    bool must_be;
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
    List<Body> body;
    List<Sum> sum;
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
    u32 bytes;   // a power of two up to 16, or the whole of a long piece
    bool constant;
};

// On 32-bit machines, where a move of 16 bytes takes four registers, a piece of this length or more is moved by a call.
constexpr u32 long_piece = sizeof(void*) == 8 ? 0xFFFFFFFF : move_bytes + 1;

[[gnu::noinline]] inline void copy_long(u8* to, const u8* from, u32 bytes) { std::memcpy(to, from, bytes); }
[[gnu::noinline]] inline void clear_long(u8* to, u32 bytes) { std::memset(to, 0, bytes); }
[[gnu::noinline]] inline bool differ_long(const u8* left, const u8* right, u32 bytes)
{
    return std::memcmp(left, right, bytes) != 0;
}

// Calls visit(move) for the moves of one piece. No move passes the given ends.
template <class Visit>
constexpr void each_move_of(const Piece& piece, u32 target_end, u32 source_end, Visit&& visit)
{
    if (piece.bytes >= long_piece) {
        visit(Move{piece.to, piece.from, piece.bytes, piece.constant});
        return;
    }
    u32 done = 0;
    while (done < piece.bytes) {
        u32 width = std::min(move_bytes, std::bit_ceil(piece.bytes - done));
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

// Sixteen bytes, compared in one instruction where the machine has one.
using Lanes [[gnu::vector_size(move_bytes)]] = u32;

inline void gather_difference(Lanes& difference, const u8* left, const u8* right)
{
    Lanes a, b;
    std::memcpy(&a, left, sizeof a);
    std::memcpy(&b, right, sizeof b);
    difference |= a ^ b;
}

template <class T>
inline void gather_difference(u64& difference, const u8* left, const u8* right)
{
    difference |= static_cast<u64>(load<T>(left) ^ load<T>(right));
}

}   // namespace detail

// `L` is the record's layout. Form::describe(description) describes an image: it calls constant(position, value,
// width), field(run), body(body) and sum(sum), and sets the length. Runs and bodies must come in wire order.
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
        std::array<Body, counted.body.count> bodies;
        std::array<Sum, counted.sum.count> sums;
    };

    static constexpr Described described = [] {
        Described all{};
        detail::Description description{
            {all.constants.data()}, {all.fields.data()}, {all.bodies.data()}, {all.sums.data()}, counted.length};
        Form::describe(description);
        return all;
    }();

public:
    static constexpr u32 length = counted.length;
    static_assert(length <= 0xFFFF);   // image_fits relies on it

    static constexpr auto constants = described.constants;   // the image of an all-zero record
    static constexpr auto bodies = described.bodies;
    static constexpr auto sums = described.sums;

    // The bodies divide an image into parts. Places holds an address for each part, chosen so that the byte at a
    // position in that part is at this address plus the position.
    static constexpr u32 parts = bodies.size() + 1;
    template <class Byte>
    using Places = std::array<Byte*, parts>;

    static constexpr u32 part_of(u32 position)
    {
        u32 part = 0;
        while (part < bodies.size() && bodies[part].position <= position)
            ++part;
        return part;
    }

    // The number of the body whose field is at `record_offset`; there must be one.
    static constexpr u32 body_of(u32 record_offset)
    {
        u32 b = 0;
        while (bodies[b].record_offset != record_offset)
            ++b;
        return b;
    }

    static constexpr u32 part_end(u32 position)
    {
        const u32 part = part_of(position);
        return part < bodies.size() ? bodies[part].position : length;
    }

    // Adjacent fields of a part joined into field runs, in wire order.
    static constexpr auto runs = detail::collected<FieldRun, [](auto& visit) {
        FieldRun open{};
        for (const FieldRun& field : described.fields) {
            if (open.bytes != 0 && detail::joins(open, field) && part_of(open.position) == part_of(field.position)) {
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

    // Writes the `length` bytes of the image itself, without the bodies.
    [[gnu::always_inline]] static void write_here(const Places<u8>& to, const u8* record)
    {
        static_assert(detail::is_whole(writing, length, L::record_size, length));
        static_assert(std::all_of(writing.begin(), writing.end(),
                                  [](const detail::Move& move) { return move.to + move.bytes <= part_end(move.to); }));
        if constexpr (!host_has_wire_order) {
            for (u32 at = 0; at < length; at = part_end(at))
                std::memcpy(to[part_of(at)] + at, constants.data() + at, part_end(at) - at);
            for (const FieldRun& run : runs)
                copy_turned(to[part_of(run.position)] + run.position, record + run.record_offset, run);
        } else {
            make_moves<writing>([&]<u32 m>() __attribute__((always_inline)) {
                constexpr detail::Move move = writing[m];
                const u8* const from = (move.constant ? constants.data() : record) + move.from;
                u8* const at = to[part_of(move.to)] + move.to;
                if constexpr (move.bytes > detail::move_bytes)
                    detail::copy_long(at, from, move.bytes);
                else
                    detail::copy_move<move.bytes>(at, from);
                return true;
            });
        }
        each_sum([&]<u32 i>() __attribute__((always_inline)) {
            constexpr Sum sum = sums[i];
            u8* const at = to[part_of(sum.position)] + sum.position;
            if constexpr (sum.width == sizeof(u32))
                store(at, value_of<i>(to));
            else if constexpr (sum.first != sum.last)
                store(at, static_cast<u16>(value_of<i>(to)));
            return true;
        });
    }

    [[gnu::noinline]] static void write(u8* to, const u8* record) { write_here({to}, record); }

    // Whether the bytes are the image of some record. The content of the bodies does not matter.
    [[nodiscard, gnu::always_inline]] static bool matches(const Places<const u8>& bytes)
    {
        static_assert(std::all_of(comparing.begin(), comparing.end(), [](const detail::Move& move) {
            return move.to == move.from && move.to + move.bytes <= part_end(move.to);
        }));
        detail::Lanes wide{};
        u64 narrow = 0;
        each_sum([&]<u32 i>() __attribute__((always_inline)) {
            constexpr Sum sum = sums[i];
            if constexpr (sum.must_be)
                narrow |= load<u32>(bytes[part_of(sum.position)] + sum.position) ^ value_of<i>(bytes);
            return true;
        });
        make_moves<comparing>([&]<u32 m>() __attribute__((always_inline)) {
            constexpr detail::Move move = comparing[m];
            const u8* const left = bytes[part_of(move.to)] + move.to;
            const u8* const right = constants.data() + move.to;
            if constexpr (move.bytes > detail::move_bytes)
                narrow |= detail::differ_long(left, right, move.bytes);
            else if constexpr (move.bytes == detail::move_bytes)
                detail::gather_difference(wide, left, right);
            else if constexpr (move.bytes == 8)
                detail::gather_difference<u64>(narrow, left, right);
            else if constexpr (move.bytes == 4)
                detail::gather_difference<u32>(narrow, left, right);
            else if constexpr (move.bytes == 2)
                detail::gather_difference<u16>(narrow, left, right);
            else
                detail::gather_difference<u8>(narrow, left, right);
            return true;
        });
        u64 halves[2];
        std::memcpy(halves, &wide, sizeof halves);
        return (narrow | halves[0] | halves[1]) == 0;
    }

    // Writes the whole record from an image that matches. Pointers and gaps between fields become zero.
    [[gnu::always_inline]] static void read(u8* record, const Places<const u8>& bytes)
    {
        static_assert(detail::is_whole(reading, L::record_size, length, L::record_size));
        static_assert(std::all_of(reading.begin(), reading.end(), [](const detail::Move& move) {
            return move.constant || move.from + move.bytes <= part_end(move.from);
        }));
        if constexpr (!host_has_wire_order) {
            clear_bytes<L::record_size>(record);
            for (const FieldRun& run : runs)
                copy_turned(record + run.record_offset, bytes[part_of(run.position)] + run.position, run);
        } else {
            make_moves<reading>([&]<u32 m>() __attribute__((always_inline)) {
                constexpr detail::Move move = reading[m];
                const u8* const from = move.constant ? nullptr : bytes[part_of(move.from)] + move.from;
                if constexpr (move.constant && move.bytes > detail::move_bytes)
                    detail::clear_long(record + move.to, move.bytes);
                else if constexpr (move.constant)
                    std::memset(record + move.to, 0, move.bytes);
                else if constexpr (move.bytes > detail::move_bytes)
                    detail::copy_long(record + move.to, from, move.bytes);
                else
                    detail::copy_move<move.bytes>(record + move.to, from);
                return true;
            });
        }
    }

private:
    static constexpr auto runs_by_record = [] {
        auto sorted = runs;
        std::ranges::sort(sorted.begin(), sorted.end(), {}, &FieldRun::record_offset);
        return sorted;
    }();

    // The bytes that are not compared with constants: those of the record and those of sums.
    static constexpr auto not_constant = [] {
        std::array<FieldRun, runs.size() + sums.size()> all{};
        std::copy(runs.begin(), runs.end(), all.begin());
        std::transform(sums.begin(), sums.end(), all.begin() + runs.size(), [](const Sum& sum) {
            return FieldRun{0, sum.position, sum.width, sum.width};
        });
        std::ranges::sort(all.begin(), all.end(), {}, &FieldRun::position);
        return all;
    }();

    // Calls visit(piece) for the pieces of each part, in wire order.
    template <std::size_t N, class Visit>
    static constexpr void each_wire_piece(const std::array<FieldRun, N>& from_record, Visit&& visit)
    {
        detail::each_piece(from_record, &FieldRun::position, &FieldRun::record_offset, length,
                           [&](detail::Piece piece) {
                               for (u32 end = piece.to + piece.bytes; piece.to < end; piece.to += piece.bytes) {
                                   piece.bytes = std::min(end, part_end(piece.to)) - piece.to;
                                   if (piece.constant)
                                       piece.from = piece.to;
                                   visit(piece);
                               }
                           });
    }

    static constexpr auto writing = detail::collected<detail::Move, [](auto&& visit) {
        each_wire_piece(runs, [&](const detail::Piece& piece) {
            detail::each_move_of(piece, part_end(piece.to), piece.constant ? length : L::record_size, visit);
        });
    }>;

    static constexpr auto comparing = detail::collected<detail::Move, [](auto&& visit) {
        each_wire_piece(not_constant, [&](const detail::Piece& piece) {
            if (piece.constant)
                detail::each_move_of(piece, piece.to + piece.bytes, length, visit);
        });
    }>;

    static constexpr auto reading = detail::collected<detail::Move, [](auto&& visit) {
        detail::each_piece(runs_by_record, &FieldRun::record_offset, &FieldRun::position, L::record_size,
                           [&](const detail::Piece& piece) {
                               detail::each_move_of(piece, L::record_size,
                                                    piece.constant ? L::record_size : part_end(piece.from), visit);
                           });
    }>;

    template <class Visit>
    [[gnu::always_inline]] static void each_sum(Visit&& visit)
    {
        detail::each_number(visit, std::make_integer_sequence<u32, sums.size()>());
    }

    template <u32 I, class Byte>
    [[gnu::always_inline]] static u32 value_of(const Places<Byte>& places)
    {
        constexpr Sum sum = sums[I];
        return sum.value + static_cast<u32>(places[sum.last] - places[sum.first]);
    }

    template <const auto& moves, class Make>
    [[gnu::always_inline]] static void make_moves(Make&& make)
    {
        detail::each_number(make, std::make_integer_sequence<u32, moves.size()>());
    }

    // Swaps the bytes of each value. The same code serves both directions, record to wire and wire to record.
    static void copy_turned(u8* to, const u8* from, const FieldRun& run)
    {
        for (u32 i = 0; i < run.bytes; i += run.width)
            for (u32 j = 0; j < run.width; ++j)
                to[i + j] = from[i + run.width - 1 - j];
    }
};

}   // namespace kesto
