// A MESH whose operations return what a test says and keep what they were given. A shared library, so that the tap finds
// it as it finds any other.
#pragma once

#include "platform/mesh.h"

namespace kesto::tests {

struct ScriptedMesh {
    // what the operations return, and leave in errno unless that is 0
    int result, error;

    // what the latest call was given
    std::uint32_t channel, count, destination, id;   // destination 0 for MESH_SendMsg
    const MeshSendItem* items;
    MeshUnpack unpack;   // of registrations with result 0
    MeshFree free_record;
};

extern ScriptedMesh scripted_mesh;

}   // namespace kesto::tests
