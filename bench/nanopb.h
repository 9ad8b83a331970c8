// Shared by the generated nanopb adapters.
//
// Texts, blocks and vectors use callbacks that read and write the record directly. Pointer fields would need another
// copy, and a realloc for every decoded row.
#pragma once

#include <pb_decode.h>
#include <pb_encode.h>

#include "bench/contender.h"

namespace kesto::bench {

using Encode = bool (*)(pb_ostream_t* stream, const pb_field_t* field, void* const* argument);
using Decode = bool (*)(pb_istream_t* stream, const pb_field_t* field, void** argument);

// A `Peer` is generated for each message: its structure and description, and fill, prepare and read for a single record.

inline pb_callback_t encoding(Encode function, const void* argument)
{
    pb_callback_t callback;
    callback.funcs.encode = function;
    callback.arg = const_cast<void*>(argument);   // the callback does not write to it
    return callback;
}

inline pb_callback_t decoding(Decode function, void* argument)
{
    pb_callback_t callback;
    callback.funcs.decode = function;
    callback.arg = argument;
    return callback;
}

inline bool put_text(pb_ostream_t* stream, const pb_field_t* field, void* const* argument)
{
    const char* const text = static_cast<const char*>(*argument);
    return text == nullptr || (pb_encode_tag_for_field(stream, field) &&
                               pb_encode_string(stream, reinterpret_cast<const pb_byte_t*>(text), std::strlen(text)));
}

template <class Block>
bool put_block(pb_ostream_t* stream, const pb_field_t* field, void* const* argument)
{
    const Block& block = *static_cast<const Block*>(*argument);
    return block.data == nullptr ||
           (pb_encode_tag_for_field(stream, field) && pb_encode_string(stream, block.data, block.length));
}

template <class Vector, class Peer>
bool put_vector(pb_ostream_t* stream, const pb_field_t* field, void* const* argument)
{
    const Vector& vector = *static_cast<const Vector*>(*argument);
    for (u32 i = 0; i < vector.count; ++i) {
        typename Peer::Message element;
        Peer::fill(vector.items[i], element);
        if (!pb_encode_tag_for_field(stream, field) || !pb_encode_submessage(stream, &Peer::fields, &element))
            return false;
    }
    return true;
}

// Reads the rest of the stream and adds a NUL. A second occurrence would replace the first.
inline bool get_text(pb_istream_t* stream, const pb_field_t*, void** argument)
{
    char*& text = *static_cast<char**>(*argument);
    const std::size_t length = stream->bytes_left;
    std::free(text);
    text = static_cast<char*>(allocate(length + 1));
    text[length] = 0;
    return pb_read(stream, reinterpret_cast<pb_byte_t*>(text), length);
}

template <class Block>
bool get_block(pb_istream_t* stream, const pb_field_t*, void** argument)
{
    Block& block = *static_cast<Block*>(*argument);
    std::free(block.data);
    block.length = static_cast<u32>(stream->bytes_left);
    block.data = static_cast<u8*>(allocate(block.length));
    return pb_read(stream, block.data, block.length);
}

// Called for each element. The total number is not known, so the capacity doubles when needed.
template <class Vector, class Peer>
bool get_element(pb_istream_t* stream, const pb_field_t*, void** argument)
{
    Vector& vector = *static_cast<Vector*>(*argument);
    constexpr u32 first_capacity = 4;
    if (vector.count == 0 || (vector.count >= first_capacity && (vector.count & (vector.count - 1)) == 0)) {
        const std::size_t capacity = vector.count == 0 ? first_capacity : 2 * std::size_t{vector.count};
        void* const grown = std::realloc(vector.items, capacity * sizeof *vector.items);
        if (grown == nullptr)
            std::abort();
        vector.items = static_cast<decltype(vector.items)>(grown);
    }
    typename Peer::Message element;
    auto& out = vector.items[vector.count++];
    Peer::prepare(element, out);
    if (!pb_decode(stream, &Peer::fields, &element))
        return false;
    Peer::read(element, out);
    return true;
}

template <class Peer, class Record>
int encode(const Record& record, u8* buffer, u32* length)
{
    typename Peer::Message message;
    Peer::fill(record, message);
    pb_ostream_t stream = pb_ostream_from_buffer(buffer, *length);
    if (!pb_encode(&stream, &Peer::fields, &message))
        return -1;
    *length = static_cast<u32>(stream.bytes_written);
    return 0;
}

template <class Peer, class Record>
u32 decode(const u8* bytes, u32 length, Record& record)
{
    typename Peer::Message message;
    Peer::prepare(message, record);
    pb_istream_t stream = pb_istream_from_buffer(bytes, length);
    if (!pb_decode(&stream, &Peer::fields, &message))
        return 0;
    Peer::read(message, record);
    return sizeof record;
}

}   // namespace kesto::bench
