// What else may carry the packets of a channel. This stand-in has nothing; platform/zeromq brings something, in a library
// that is otherwise built from the same sources.
#ifndef KESTO_PLATFORM_STANDIN_MESH_TRANSPORT_H
#define KESTO_PLATFORM_STANDIN_MESH_TRANSPORT_H

#include "platform/standin/little_endian.h"

struct MeshSendItem;

// Called without a lock held, from any thread. Results are those of mesh_standin.h.
struct MeshTransport {
    bool (*carries)(uint32_t channel);
    // All items or none; each is at most MESH_STANDIN_ITEM_BYTES long.
    int (*send)(uint32_t channel, const MeshSendItem *items, uint32_t count, uint32_t destination);
    // One packet, head and item, which is cut to `capacity`. May come back too early with MESH_STANDIN_TIMEOUT.
    int (*receive)(uint32_t channel, uint32_t timeout_ms, uint8_t *packet, uint32_t capacity, uint32_t &length);
};

// Null when there is none.
const MeshTransport *mesh_transport();

#endif
