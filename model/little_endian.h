#pragma once
// Little-endian numbers in byte strings, accessed byte by byte and therefore independent of the host's byte order.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kesto::model {

using u8 = std::uint8_t;
using u16 = std::uint16_t;
using u32 = std::uint32_t;
using u64 = std::uint64_t;
using i32 = std::int32_t;
using Bytes = std::vector<u8>;

inline u64 get(const u8* at, u32 width)
{
    u64 value = 0;
    for (u32 i = 0; i < width; ++i)
        value |= static_cast<u64>(at[i]) << (8 * i);
    return value;
}

inline u32 get16(const u8* at) { return static_cast<u32>(get(at, 2)); }
inline u32 get32(const u8* at) { return static_cast<u32>(get(at, 4)); }

inline void put(u8* at, u64 value, u32 width)
{
    for (u32 i = 0; i < width; ++i)
        at[i] = static_cast<u8>(value >> (8 * i));
}

inline void append(Bytes& out, u64 value, u32 width)
{
    for (u32 i = 0; i < width; ++i)
        out.push_back(static_cast<u8>(value >> (8 * i)));
}

inline u32 position_of_end(const Bytes& out) { return static_cast<u32>(out.size()); }

}   // namespace kesto::model
