// A MESH whose operations return `result` and keep what they were given. A shared library, so that the tap finds it as
// it finds any other.
#pragma once

#include "platform/mesh.h"

struct ScriptedMesh {
    int result, error;                               // `error` goes to errno unless it is 0
    std::uint32_t channel, count, destination, id;   // of the latest call; destination 0 for MESH_SendMsg
    const MeshSendItem* items;
    MeshUnpack unpack;   // of the latest registration with result 0
    MeshFree free_record;
};

extern ScriptedMesh scripted_mesh;
