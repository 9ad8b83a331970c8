// The test process's own MESH: records its calls in order and returns the configured results.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/mesh.h"

namespace kesto::tests {

struct SentItem {
    const std::uint8_t* data;   // the address that was sent; the bytes there are no longer valid
    std::uint32_t id;
    std::vector<std::uint8_t> bytes;
};

struct SendCall {
    bool to_destination;   // MESH_SendToMsg
    std::uint32_t channel;
    std::uint32_t destination;   // 0 for MESH_SendMsg
    const MeshSendItem* items;   // the address of the array
    std::vector<SentItem> sent;
};

struct Registered {
    std::uint32_t id;
    MeshUnpack unpack;
    MeshFree free;
};

struct MeshDouble {
    bool keeps_sends = true;   // false: counts them and allocates nothing
    void (*at_send)() = [] {};
    std::uint32_t send_calls = 0;
    std::vector<SendCall> sends;
    std::vector<Registered> registrations;
    std::vector<MeshClean> clean_hooks;
    int send_result = 0;
    int register_result = 0;   // result of the registration with number `register_fails_at`
    std::uint32_t register_fails_at = 0xFFFFFFFF;
    int clean_result = 0;

    void reset() { *this = {}; }
};

MeshDouble& mesh();

}   // namespace kesto::tests
