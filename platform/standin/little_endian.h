// Numbers of packets and capture files, the same on every host.
#ifndef KESTO_PLATFORM_STANDIN_LITTLE_ENDIAN_H
#define KESTO_PLATFORM_STANDIN_LITTLE_ENDIAN_H

#include <stdint.h>

inline void store_u32(uint8_t* at, uint32_t value)
{
    for (int i = 0; i < 4; ++i)
        at[i] = static_cast<uint8_t>(value >> (8 * i));
}

inline uint32_t load_u32(const uint8_t* at)
{
    uint32_t value = 0;
    for (int i = 3; i >= 0; --i)
        value = value << 8 | at[i];
    return value;
}

#endif
