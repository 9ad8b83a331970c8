// A picture: a form of a message in which every byte is either constant or a byte of the record, at a place known when
// compiled. The fixed form is one, and the compact form of a record with neither zero scalars nor heap parts another.
//
// To write a picture is to copy, without a look at the values; to read one is to compare the constants and to copy.
// Copies go front to back in moves of up to 16 bytes. A move may pass the end of its piece where a later piece is
// written over it, so that few moves are narrow ones.
#pragma once

#include <algorithm>
#include <bit>

#include "core/layout.h"
#include "core/run.h"

namespace kesto {

// A stretch of a record that stands on the wire just so; `width` is that of its values.
struct Run {
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

// Neighbours both in the record and on the wire. Where values must be turned, every field stays a run of its own.
constexpr bool joins(const Run& run, const Run& next)
{
    return host_has_wire_order && run.record_offset + run.bytes == next.record_offset &&
           run.position + run.bytes == next.position;
}

// A part of what is written: bytes of the source, or constant ones.
struct Piece {
    u32 to;
    u32 from;
    u32 bytes;
    bool constant;
};

struct Move {
    u32 to;
    u32 from;
    u32 bytes;   // a power of two, or those of a long piece
    bool constant;
};

// Where a move of 16 bytes takes four registers, a piece as long as this one goes by a call.
constexpr u32 long_piece = sizeof(void*) == 8 ? 0xFFFFFFFF : move_bytes + 1;

[[gnu::noinline]] inline void copy_long(u8* to, const u8* from, u32 bytes) { std::memcpy(to, from, bytes); }
[[gnu::noinline]] inline void clear_long(u8* to, u32 bytes) { std::memset(to, 0, bytes); }
[[gnu::noinline]] inline bool differ_long(const u8* left, const u8* right, u32 bytes)
{
    return std::memcmp(left, right, bytes) != 0;
}

// Calls visit(move) for the moves of one piece, none of which passes the given ends.
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

// Whether each move of a plan stays inside both sides, and together they reach every byte of the target.
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

// Calls visit(piece) for the runs and for what lies between them, which is constant, in the order of the target. `runs`
// are in that order too; `to` and `from` say which side of a run is which.
template <std::size_t N, class Visit>
constexpr void each_piece(const std::array<Run, N>& runs, u32 Run::*to, u32 Run::*from, u32 target_end, Visit&& visit)
{
    u32 at = 0;
    for (const Run& run : runs) {
        if (run.*to > at)
            visit(Piece{at, at, run.*to - at, true});
        visit(Piece{run.*to, run.*from, run.bytes, false});
        at = run.*to + run.bytes;
    }
    if (at < target_end)
        visit(Piece{at, at, target_end - at, true});
}

// What `walk` visits, as an array: walk(visit) calls visit(item) for each.
template <class Item, auto walk>
constexpr auto collected = [] {
    constexpr u32 count = [] {
        u32 items = 0;
        walk([&](const Item&) { ++items; });
        return items;
    }();
    std::array<Item, count> items{};
    u32 next = 0;
    walk([&](const Item& item) { items[next++] = item; });
    return items;
}();

// Sixteen bytes that are compared in one go where the machine can.
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

// `L` is the record's layout. Form has the picture's `length` and walk(constant, field), which describes all of it by
// calls of constant(position, value, width) and field(run).
template <class L, class Form>
struct Picture {
    static constexpr u32 length = Form::length;

    // The picture of an all-zero record.
    static constexpr std::array<u8, length> image = [] {
        std::array<u8, length> bytes{};
        Form::walk([&](u32 position, u32 value, u32 width) { detail::put(bytes.data() + position, value, width); },
                   [](const Run&) {});
        return bytes;
    }();

    // Joined, in the order of the wire.
    static constexpr auto runs = detail::collected<Run, [](auto&& visit) {
        Run open{};
        Form::walk([](u32, u32, u32) {},
                   [&](const Run& field) {
                       if (open.bytes != 0 && detail::joins(open, field)) {
                           open.bytes += field.bytes;
                           return;
                       }
                       if (open.bytes != 0)
                           visit(open);
                       open = field;
                   });
        visit(open);
    }>;

    // Writes `length` bytes.
    [[gnu::always_inline]] static void write_here(u8* to, const u8* record)
    {
        if constexpr (!host_has_wire_order) {
            copy_run<length>(to, image.data());
            for (const Run& run : runs)
                copy_turned(to + run.position, record + run.record_offset, run);
        } else {
            make_moves<writing>([&](auto m) __attribute__((always_inline)) {
                constexpr detail::Move move = writing[m];
                const u8* const from = (move.constant ? image.data() : record) + move.from;
                if constexpr (move.bytes > detail::move_bytes)
                    detail::copy_long(to + move.to, from, move.bytes);
                else
                    detail::copy_move<move.bytes>(to + move.to, from);
            });
        }
    }

    [[gnu::noinline]] static void write(u8* to, const u8* record) { write_here(to, record); }

    // Whether `length` bytes are a picture of some record.
    static bool matches(const u8* bytes)
    {
        detail::Lanes wide{};
        u64 narrow = 0;
        make_moves<comparing>([&](auto m) __attribute__((always_inline)) {
            constexpr detail::Move move = comparing[m];
            const u8* const left = bytes + move.to;
            const u8* const right = image.data() + move.to;
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
        });
        u64 halves[2];
        std::memcpy(halves, &wide, sizeof halves);
        return (narrow | halves[0] | halves[1]) == 0;
    }

    // Writes the whole record, gaps between its fields as zeros, from a picture that matches.
    static void read(u8* record, const u8* bytes)
    {
        if constexpr (!host_has_wire_order) {
            clear_run<L::record_size>(record);
            for (const Run& run : runs)
                copy_turned(record + run.record_offset, bytes + run.position, run);
        } else {
            make_moves<reading>([&](auto m) __attribute__((always_inline)) {
                constexpr detail::Move move = reading[m];
                if constexpr (move.constant && move.bytes > detail::move_bytes)
                    detail::clear_long(record + move.to, move.bytes);
                else if constexpr (move.constant)
                    std::memset(record + move.to, 0, move.bytes);
                else if constexpr (move.bytes > detail::move_bytes)
                    detail::copy_long(record + move.to, bytes + move.from, move.bytes);
                else
                    detail::copy_move<move.bytes>(record + move.to, bytes + move.from);
            });
        }
    }

private:
    static constexpr auto runs_by_record = [] {
        auto sorted = runs;
        std::sort(sorted.begin(), sorted.end(),
                  [](const Run& left, const Run& right) { return left.record_offset < right.record_offset; });
        return sorted;
    }();

    static constexpr auto writing = detail::collected<detail::Move, [](auto&& visit) {
        detail::each_piece(runs, &Run::position, &Run::record_offset, length, [&](const detail::Piece& piece) {
            detail::each_move_of(piece, length, piece.constant ? length : L::record_size, visit);
        });
    }>;

    static constexpr auto comparing = detail::collected<detail::Move, [](auto&& visit) {
        detail::each_piece(runs, &Run::position, &Run::record_offset, length, [&](const detail::Piece& piece) {
            if (piece.constant)
                detail::each_move_of(piece, piece.to + piece.bytes, length, visit);
        });
    }>;

    static constexpr auto reading = detail::collected<detail::Move, [](auto&& visit) {
        detail::each_piece(
            runs_by_record, &Run::record_offset, &Run::position, L::record_size, [&](const detail::Piece& piece) {
                detail::each_move_of(piece, L::record_size, piece.constant ? L::record_size : length, visit);
            });
    }>;

    static_assert(detail::is_whole(writing, length, L::record_size, length));
    static_assert(detail::is_whole(reading, L::record_size, length, L::record_size));
    static_assert(std::all_of(comparing.begin(), comparing.end(), [](const detail::Move& move) {
        return move.to == move.from && move.to + move.bytes <= length;
    }));

    template <const auto& moves, class Make>
    [[gnu::always_inline]] static void make_moves(Make&& make)
    {
        detail::each_number(
            [&](auto m) __attribute__((always_inline)) {
                make(m);
                return true;
            },
            std::make_integer_sequence<u32, moves.size()>());
    }

    // From the record to the wire and back are the same here.
    static void copy_turned(u8* to, const u8* from, const Run& run)
    {
        for (u32 i = 0; i < run.bytes; i += run.width)
            for (u32 j = 0; j < run.width; ++j)
                to[i + j] = from[i + run.width - 1 - j];
    }
};

}   // namespace kesto
