// A message for the tests of the MESH stand-ins: arbitrary bytes, of which the record keeps a copy. Decoding fails if
// the first byte is 0xff.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "platform/mesh.h"
#include "platform/standin/mesh_standin.h"

namespace kesto::tests {

using Lines = std::vector<std::string>;

inline Lines seen;   // everything delivered to the consumer, one line per delivery
inline int sizes_asked, notes_freed;

struct Note {
    std::size_t zero;
    char* text;
};

inline std::uint32_t note_unpack(const std::uint8_t* bytes, std::uint32_t length, void* storage)
{
    Note* const note = static_cast<Note*>(storage);
    sizes_asked += note == nullptr ? 1 : 0;
    if (note == nullptr)
        return sizeof(Note);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(note) % alignof(std::max_align_t), 0u);
    EXPECT_TRUE(note->zero == 0 && note->text == nullptr) << "not zeroed";
    note->zero = 1;
    if (length == 0 || bytes[0] != 0xff)
        note->text = strndup(reinterpret_cast<const char*>(bytes), length);
    return sizeof(Note);
}

inline void note_free(void* storage)
{
    ++notes_freed;
    std::free(static_cast<Note*>(storage)->text);
}

inline void keep(void* context, std::uint32_t channel, std::uint32_t id, const void* record, std::uint32_t size,
                 const std::uint8_t*, std::uint32_t)
{
    const char* const text = size == sizeof(Note) ? static_cast<const Note*>(record)->text : "another decoder's";
    seen.push_back((context == nullptr ? "" : static_cast<const char*>(context)) + std::to_string(channel) + ":" +
                   std::to_string(id) + " " + (text == nullptr ? "failed" : text));
}

inline void start_notes()
{
    mesh_standin_reset();
    seen.clear();
    sizes_asked = notes_freed = 0;
    EXPECT_EQ(MESH_RegIDLFuncHook(7, note_unpack, note_free), 0);
    EXPECT_EQ(mesh_standin_set_consumer(MESH_STANDIN_EVERY_CHANNEL, keep, nullptr), 0);
}

inline MeshSendItem item(std::uint32_t id, const std::string& bytes)
{
    return {reinterpret_cast<const std::uint8_t*>(bytes.data()), id, static_cast<std::uint32_t>(bytes.size())};
}

inline int send_text(std::uint32_t channel, std::uint32_t id, const std::string& bytes)
{
    const MeshSendItem one = item(id, bytes);
    return MESH_SendMsg(channel, &one, 1);
}

inline MeshStandinCounters mesh_counters()
{
    MeshStandinCounters now;
    mesh_standin_counters(&now);
    return now;
}

}   // namespace kesto::tests
