// What else may carry the packets of a channel. This stand-in has nothing; platform/zeromq brings something, in a
// library that is otherwise built from the same sources.
#ifndef KESTO_PLATFORM_STANDIN_MESH_TRANSPORT_H
#define KESTO_PLATFORM_STANDIN_MESH_TRANSPORT_H

// The declarations carry the visibility; everything else of this library is hidden.
#pragma GCC visibility push(default)
#include "platform/mesh.h"
#include "platform/standin/mesh_standin.h"
#pragma GCC visibility pop
#include "platform/standin/essentials.h"

// Called without a lock held, from any thread. Results are those of mesh_standin.h.
struct MeshTransport {
    bool (*carries)(uint32_t channel);
    // All items or none; each is at most MESH_STANDIN_ITEM_BYTES long, and told to mesh_sent once it has left.
    int (*send)(uint32_t channel, const MeshSendItem* items, uint32_t count, uint32_t destination);
    // One packet, head and item, which is cut to `capacity`.
    int (*receive)(uint32_t channel, uint64_t deadline, uint8_t* packet, uint32_t capacity, uint32_t& length);
};

// Null when there is none.
const MeshTransport* mesh_transport();

// Counts and captures an item.
void mesh_sent(const MeshSendItem& item);

// Milliseconds until a deadline, as poll takes them; for one that is far off, fewer than there are.
int ms_until(uint64_t deadline);

constexpr uint32_t packet_head = 8;

inline void store_head(uint8_t* packet, const MeshSendItem& item)
{
    store_u32(packet, item.id);
    store_u32(packet + 4, item.length);
}

#endif
