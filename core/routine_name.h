// Routine names for the log and the memory services, composed at compile time: "<message>_unpack" and the like.
#pragma once

#include <array>
#include <cstddef>

namespace kesto {

template <std::size_t A, std::size_t B>
constexpr std::array<char, A + B - 1> routine_name(const char (&message)[A], const char (&suffix)[B])
{
    std::array<char, A + B - 1> name{};
    for (std::size_t i = 0; i + 1 < A; ++i)
        name[i] = message[i];
    for (std::size_t i = 0; i < B; ++i)
        name[A - 1 + i] = suffix[i];
    return name;
}

}   // namespace kesto
