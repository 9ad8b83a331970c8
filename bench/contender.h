// Contenders turn plain records into bytes and back. All have the signatures of the library's operations and are called
// in the same way: through a pointer, with untyped records.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <span>

namespace kesto::bench {

using u8 = std::uint8_t;
using u16 = std::uint16_t;
using u32 = std::uint32_t;
using u64 = std::uint64_t;

struct Codec {
    const char* message;
    int (*encode)(const void* record, u8* buffer, u32* length);   // 0 on success; length: capacity, then bytes written
    u32 (*decode)(const u8* bytes, u32 length, void* record);     // 0 for failure; texts, blocks, elements from malloc
    void (*release)(void* record);                                // frees those
};

// Generated for each peer. The limit is a straight copy of the whole record, in two variants.
extern const std::span<const Codec> limit_memcpy;
extern const std::span<const Codec> limit_moves;
extern const std::span<const Codec> protobuf;
extern const std::span<const Codec> capnproto;
extern const std::span<const Codec> nanopb;

// Allocates a part of a decoded record.
inline void* allocate(std::size_t bytes)
{
    void* const memory = std::malloc(bytes);
    if (memory == nullptr)
        std::abort();
    return memory;
}

// Copies a text with its NUL, or a block.
template <class T>
T* copy_of(const void* data, std::size_t bytes)
{
    return static_cast<T*>(std::memcpy(allocate(bytes), data, bytes));
}

// An array that arrives with another length is padded with zeros or truncated.
template <class T, std::size_t count>
void read_array(const T* data, std::size_t size, T (&out)[count])
{
    if (size == count) {
        std::memcpy(out, data, sizeof out);   // of constant size
    } else {
        std::memset(out, 0, sizeof out);
        if (size != 0)
            std::memcpy(out, data, (size < count ? size : count) * sizeof(T));
    }
}

template <class Element>
Element* elements(u32 count)
{
    return count == 0 ? nullptr : static_cast<Element*>(allocate(count * sizeof(Element)));
}

}   // namespace kesto::bench
