// Shared by the generated Cap'n Proto adapters.
#pragma once

#include <capnp/message.h>
#include <capnp/serialize.h>

#include "bench/contender.h"

namespace kesto::bench {

// The first segment of every builder. Builders use it one at a time, and each leaves it zeroed for the next.
inline kj::ArrayPtr<capnp::word> scratch()
{
    alignas(capnp::word) static u8 segment[4 << 20];
    return {reinterpret_cast<capnp::word*>(segment), sizeof segment / sizeof(capnp::word)};
}

inline capnp::ReaderOptions options()
{
    capnp::ReaderOptions options;
    options.traversalLimitInWords = ~u64{0};
    return options;
}

// Like writeMessage for one segment, without a stream.
inline int write(capnp::MallocMessageBuilder& message, u8* buffer, u32* length)
{
    const auto segments = message.getSegmentsForOutput();
    const auto bytes = segments[0].asBytes();
    if (segments.size() != 1 || bytes.size() + 8 > *length)
        return -1;
    const u32 head[2] = {0, static_cast<u32>(segments[0].size())};   // number of segments minus 1, words in the first
    std::memcpy(buffer, head, sizeof head);
    std::memcpy(buffer + sizeof head, bytes.begin(), bytes.size());
    *length = static_cast<u32>(sizeof head + bytes.size());
    return 0;
}

inline kj::ArrayPtr<const capnp::word> words_of(const u8* bytes, u32 length)
{
    return {reinterpret_cast<const capnp::word*>(bytes), length / sizeof(capnp::word)};
}

template <std::size_t count>
void fill_words(capnp::List<u32>::Builder out, const u32 (&in)[count])
{
    for (u32 i = 0; i < count; ++i)
        out.set(i, in[i]);
}

inline char* copy_of_text(capnp::Text::Reader text) { return copy_of<char>(text.begin(), text.size() + 1); }
inline u8* copy_of_block(capnp::Data::Reader block) { return copy_of<u8>(block.begin(), block.size()); }

template <std::size_t count>
void read_octets(capnp::Data::Reader in, u8 (&out)[count])
{
    read_array(in.begin(), in.size(), out);
}

template <std::size_t count>
void read_words(capnp::List<u32>::Reader in, u32 (&out)[count])
{
    for (u32 i = 0; i < count; ++i)
        out[i] = i < in.size() ? in[i] : 0;
}

}   // namespace kesto::bench
