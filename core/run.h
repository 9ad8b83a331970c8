// Copies and clears of a size known when compiled, in 16-byte moves.
//
// Left to itself the compiler turns such copies above 256 bytes, and clears above 80, into `rep` instructions, which
// take longer than everything else that a codec does to a record.
#pragma once

#include <utility>

#include "core/wire.h"

namespace kesto {

namespace detail {

// Calls visit<i>() for each number; stops and gives false when one of the calls does.
template <class Visit, u32... I>
[[gnu::always_inline]] constexpr bool each_number(Visit&& visit, std::integer_sequence<u32, I...>)
{
    return (visit.template operator()<I>() && ...);
}

constexpr u32 move_bytes = 16;

// The moves of a run of N bytes: whole ones, then one that ends with the run and overlaps the one before it.
template <u32 N, class Move>
inline void each_move(Move&& move)
{
    static_assert(N >= move_bytes);
    each_number(
        [&]<u32 i>() {
            move(i * move_bytes);
            return true;
        },
        std::make_integer_sequence<u32, N / move_bytes>());
    if constexpr (N % move_bytes != 0)
        move(N - move_bytes);
}

// One move of 1, 2, 4, 8 or 16 bytes. As words where that is what the machine has: left to itself the compiler may make
// `rep` instructions even of sixteen bytes.
template <u32 N>
[[gnu::always_inline]] inline void copy_move(u8* to, const u8* from)
{
    constexpr std::size_t word = sizeof(void*);
    if constexpr (N <= word || word == 8)
        std::memcpy(to, from, N);
    else
        each_number(
            [&]<u32 i>() __attribute__((always_inline)) {
                std::memcpy(to + i * word, from + i * word, word);
                return true;
            },
            std::make_integer_sequence<u32, N / word>());
}

}   // namespace detail

template <u32 N>
inline void copy_run(void* to, const void* from)
{
    if constexpr (N < detail::move_bytes)
        std::memcpy(to, from, N);
    else
        detail::each_move<N>([&](u32 at) {
            detail::copy_move<detail::move_bytes>(static_cast<u8*>(to) + at, static_cast<const u8*>(from) + at);
        });
}

template <u32 N>
inline void clear_run(void* to)
{
    if constexpr (N < detail::move_bytes)
        std::memset(to, 0, N);
    else
        detail::each_move<N>([&](u32 at) { std::memset(static_cast<u8*>(to) + at, 0, detail::move_bytes); });
}

}   // namespace kesto
