// The interface to another transport for the packets of a channel. This stand-in has none; platform/zeromq provides
// one, in a library that is otherwise built from the same sources.
#ifndef KESTO_PLATFORM_STANDIN_MESH_TRANSPORT_H
#define KESTO_PLATFORM_STANDIN_MESH_TRANSPORT_H

// The declarations set the visibility of the definitions; everything else in this library is hidden.
#pragma GCC visibility push(default)
#include "platform/mesh.h"
#include "platform/standin/mesh_standin.h"
#pragma GCC visibility pop
#include "platform/standin/capture.h"
#include "platform/standin/essentials.h"

// The functions are called from any thread, without a lock held. Results are those of mesh_standin.h.
struct MeshTransport {
    bool (*carries)(uint32_t channel);
    // Sends all items or none, to `call.destination` unless that is 0. None may exceed MESH_STANDIN_ITEM_BYTES; each is
    // passed to mesh_sent after it was sent.
    int (*send)(const CapturedCall& call, const MeshSendItem* items, uint32_t count);
    // Receives one packet, head and item, truncated to `capacity` bytes.
    int (*receive)(uint32_t channel, uint64_t deadline, uint8_t* packet, uint32_t capacity, uint32_t& length);
};

// Null if there is no other transport.
const MeshTransport* mesh_transport();

// Counts and captures an item that was sent.
void mesh_sent(const CapturedCall& call, const MeshSendItem& item);

// Milliseconds until a deadline, as poll expects them: 0 after it, and INT_MAX if it is further away.
int ms_until(uint64_t deadline);

constexpr uint32_t packet_head = 8;

inline void store_head(uint8_t* packet, const MeshSendItem& item)
{
    store_u32(packet, item.id);
    store_u32(packet + 4, item.length);
}

#endif
