// Copying and clearing of sizes known at compile time, in moves as wide as the target's registers.
//
// By default the compiler turns such copies above 256 bytes, and clears above 80, into `rep` instructions, which take
// longer than everything else that a codec does with a record.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <tuple>
#include <utility>

#include "core/calls.h"

namespace kesto {

using u8 = std::uint8_t;
using u16 = std::uint16_t;
using u32 = std::uint32_t;
using u64 = std::uint64_t;

template <u32 bytes>
using Unsigned = std::tuple_element_t<std::bit_width(bytes) - 1, std::tuple<u8, u16, u32, u64>>;

namespace detail {

// Calls visit<i>() for each number in order. Stops at the first call that returns false, and returns false then.
template <class Visit, u32... I>
[[gnu::always_inline]] constexpr bool each_number(Visit&& visit, std::integer_sequence<u32, I...>)
{
    return (visit.template operator()<I>() && ...);
}

// Sixteen bytes on 64-bit machines, else a word, also where SSE2 or NEON has wider moves: they take as many instructions
// or more, as constants must then come from memory, and i686 with SSE2 takes a fifth more for a row.
constexpr u32 move_bytes = UINTPTR_MAX > 0xFFFFFFFF ? 16 : sizeof(void*);

// Where moves are words, a stretch of this length or more is moved by a function that all layouts share, which takes some
// six instructions more and a fraction of the code.
//
// Constants are cheaper inside the instructions of 32-bit x86 than in memory, and cheaper in memory on ARM, where a word
// takes two instructions to make. Sixteen bytes always come from memory.
constexpr u32 never = 0xFFFFFFFF;
#ifdef __i386__
constexpr u32 long_stretch = 129;
constexpr bool constants_as_immediates = true;
#else
constexpr u32 long_stretch = move_bytes == 16 ? never : 64;
constexpr bool constants_as_immediates = move_bytes == 16;
#endif
constexpr u32 long_constants = constants_as_immediates ? never : long_stretch;

// The width of a comparison with constants: ARM loads two words at once where they are aligned.
constexpr u32 compared_bytes = constants_as_immediates ? move_bytes : 8;

// Calls move(at) for the moves that cover N bytes: full ones, then one that ends at byte N and overlaps the previous.
template <u32 N, class Move>
[[gnu::always_inline]] inline void each_move(Move&& move)
{
    static_assert(N >= move_bytes);
    each_number(
        [&]<u32 i>() __attribute__((always_inline)) {
            move(i * move_bytes);
            return true;
        },
        std::make_integer_sequence<u32, N / move_bytes>());
    if constexpr (N % move_bytes != 0)
        move(N - move_bytes);
}

template <u32 N>
[[gnu::always_inline]] inline void copy_here(u8* to, const u8* from)
{
    if constexpr (N < move_bytes)
        std::memcpy(to, from, N);
    else
        each_move<N>([&](u32 at) __attribute__((always_inline)) { std::memcpy(to + at, from + at, move_bytes); });
}

template <u32 N>
[[gnu::always_inline]] inline void clear_here(u8* to)
{
    if constexpr (N < move_bytes)
        std::memset(to, 0, N);
    else
        each_move<N>([&](u32 at) __attribute__((always_inline)) { std::memset(to + at, 0, move_bytes); });
}

template <u32 N>
[[gnu::noinline]] KESTO_IN_REGISTERS void copy_long(u8* to, const u8* from)
{
    copy_here<N>(to, from);
}

template <u32 N>
[[gnu::noinline]] KESTO_IN_REGISTERS void clear_long(u8* to)
{
    clear_here<N>(to);
}

}   // namespace detail

template <u32 N>
[[gnu::always_inline]] inline void copy_bytes(void* to, const void* from)
{
    if constexpr (N >= detail::long_stretch)
        detail::copy_long<N>(static_cast<u8*>(to), static_cast<const u8*>(from));
    else
        detail::copy_here<N>(static_cast<u8*>(to), static_cast<const u8*>(from));
}

template <u32 N>
[[gnu::always_inline]] inline void clear_bytes(void* to)
{
    if constexpr (N >= detail::long_stretch)
        detail::clear_long<N>(static_cast<u8*>(to));
    else
        detail::clear_here<N>(static_cast<u8*>(to));
}

// A copy whose size may be known at compile time. In cold code the compiler would then use a `rep` instruction, which
// takes longer than the rest of a table.
inline void copy_some(u8* to, const u8* from, std::size_t n)
{
    constexpr std::size_t step = detail::move_bytes;
    if (!__builtin_constant_p(n) || n % step != 0 || n >= detail::long_stretch) {
        std::memcpy(to, from, n);
        return;
    }
#pragma GCC unroll 32
    for (std::size_t i = 0; i < n; i += step)
        std::memcpy(to + i, from + i, step);
}

}   // namespace kesto
