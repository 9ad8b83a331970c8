// Copying and clearing of sizes known at compile time, in 16-byte moves.
//
// By default the compiler turns such copies above 256 bytes, and clears above 80, into `rep` instructions, which take
// longer than everything else that a codec does with a record.
#pragma once

#include <cstdint>
#include <cstring>
#include <utility>

namespace kesto {

using u8 = std::uint8_t;
using u16 = std::uint16_t;
using u32 = std::uint32_t;
using u64 = std::uint64_t;

namespace detail {

// Calls visit<i>() for each number in order. Stops at the first call that returns false, and returns false then.
template <class Visit, u32... I>
[[gnu::always_inline]] constexpr bool each_number(Visit&& visit, std::integer_sequence<u32, I...>)
{
    return (visit.template operator()<I>() && ...);
}

constexpr u32 move_bytes = 16;

// Calls move(at) for the moves that cover N bytes: full ones, then one that ends at byte N and overlaps the previous.
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

// One move of 1, 2, 4, 8 or 16 bytes. On 32-bit machines it is made word by word, because the compiler may otherwise
// use `rep` instructions even for sixteen bytes.
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
inline void copy_bytes(void* to, const void* from)
{
    if constexpr (N < detail::move_bytes)
        std::memcpy(to, from, N);
    else
        detail::each_move<N>([&](u32 at) {
            detail::copy_move<detail::move_bytes>(static_cast<u8*>(to) + at, static_cast<const u8*>(from) + at);
        });
}

template <u32 N>
inline void clear_bytes(void* to)
{
    if constexpr (N < detail::move_bytes)
        std::memset(to, 0, N);
    else
        detail::each_move<N>([&](u32 at) { std::memset(static_cast<u8*>(to) + at, 0, detail::move_bytes); });
}

// A copy whose size may be known at compile time. In cold code the compiler would then use a `rep` instruction, which
// takes longer than the rest of a table.
inline void copy_some(u8* to, const u8* from, std::size_t n)
{
    constexpr std::size_t step = 16;
    if (!__builtin_constant_p(n) || n < step || n % step != 0) {
        std::memcpy(to, from, n);
        return;
    }
#pragma GCC unroll 32
    for (std::size_t i = 0; i < n; i += step)
        std::memcpy(to + i, from + i, step);
}

}   // namespace kesto
