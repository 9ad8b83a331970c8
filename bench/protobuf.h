// Shared by the generated protobuf adapters.
//
// Message objects are reused: their strings, rows and arrays keep their storage, which is in an arena. Filling sets
// every field, so objects are not cleared first. This is faster, as Clear would visit each field once more.
#pragma once

#include <google/protobuf/arena.h>
#include <google/protobuf/repeated_field.h>

#include <string>

#include "bench/contender.h"

namespace kesto::bench {

template <class Message>
struct Reused {
    google::protobuf::Arena arena;
    Message& message = *google::protobuf::Arena::CreateMessage<Message>(&arena);
};

// Existing rows are kept and refilled. Clearing all and adding them again would clear each row.
template <class Row>
void resize(google::protobuf::RepeatedPtrField<Row>& rows, u32 count)
{
    const int wanted = static_cast<int>(count);
    while (rows.size() > wanted)
        rows.RemoveLast();
    rows.Reserve(wanted);
    while (rows.size() < wanted)
        rows.Add();
}

template <std::size_t count>
void fill_words(google::protobuf::RepeatedField<u32>& out, const u32 (&in)[count])
{
    out.Resize(static_cast<int>(count), 0);
    std::memcpy(out.mutable_data(), in, sizeof in);
}

template <class Message>
int write(const Message& message, u8* buffer, u32* length)
{
    if (!message.SerializeToArray(buffer, static_cast<int>(*length)))
        return -1;
    *length = static_cast<u32>(message.GetCachedSize());
    return 0;
}

inline char* copy_of_text(const std::string& text) { return copy_of<char>(text.c_str(), text.size() + 1); }
inline u8* copy_of_block(const std::string& block) { return copy_of<u8>(block.data(), block.size()); }

template <std::size_t count>
void read_array(const std::string& in, u8 (&out)[count])
{
    read_array(reinterpret_cast<const u8*>(in.data()), in.size(), out);
}

template <std::size_t count>
void read_array(const google::protobuf::RepeatedField<u32>& in, u32 (&out)[count])
{
    read_array(in.data(), static_cast<std::size_t>(in.size()), out);
}

}   // namespace kesto::bench
