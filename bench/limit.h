// Two copy functions.
#pragma once

#include "bench/contender.h"

namespace kesto::bench {

// Leaves the choice to the compiler: inline for a small constant size.
struct Memcpy {
    [[gnu::always_inline]] static void copy(void* to, const void* from, std::size_t bytes)
    {
        std::memcpy(to, from, bytes);
    }
};

// A loop of 16-byte moves; one overlapping move copies the rest.
struct Moves {
    [[gnu::always_inline]] static void copy(void* to_, const void* from_, std::size_t bytes)
    {
        u8* const to = static_cast<u8*>(to_);
        const u8* const from = static_cast<const u8*>(from_);
        if (bytes >= 16) {
            for (std::size_t i = 0; i + 16 <= bytes; i += 16)
                std::memcpy(to + i, from + i, 16);   // of constant size: a load and a store
            if (bytes % 16 != 0)
                std::memcpy(to + bytes - 16, from + bytes - 16, 16);
        } else if (bytes >= 8) {
            std::memcpy(to, from, 8);
            std::memcpy(to + bytes - 8, from + bytes - 8, 8);
        } else {
            for (std::size_t i = 0; i < bytes; ++i)
                to[i] = from[i];
        }
    }
};

// Both return the position after the bytes written or read.
template <class Copy>
[[gnu::always_inline]] inline u8* put(u8* to, const void* from, std::size_t bytes)
{
    Copy::copy(to, from, bytes);
    return to + bytes;
}

template <class Copy, class T>
[[gnu::always_inline]] inline const u8* get(T*& part, const u8* from, std::size_t bytes)
{
    part = static_cast<T*>(allocate(bytes));
    Copy::copy(part, from, bytes);
    return from + bytes;
}

}   // namespace kesto::bench
