#include <cerrno>
#include <cstdint>

#include "tests/support/scripted_mesh.h"

ScriptedMesh scripted_mesh{};

static int send(uint32_t channel, const MeshSendItem* items, uint32_t count, uint32_t destination)
{
    scripted_mesh.channel = channel;
    scripted_mesh.items = items;
    scripted_mesh.count = count;
    scripted_mesh.destination = destination;
    errno = scripted_mesh.error != 0 ? scripted_mesh.error : errno;
    return scripted_mesh.result;
}

int MESH_SendToMsg(uint32_t channel, const MeshSendItem* items, uint32_t count, uint32_t destination)
{
    return send(channel, items, count, destination);
}

int MESH_SendMsg(uint32_t channel, const MeshSendItem* items, uint32_t count) { return send(channel, items, count, 0); }

int MESH_RegIDLFuncHook(uint32_t id, MeshUnpack unpack, MeshFree free_record)
{
    if (scripted_mesh.result == 0) {
        scripted_mesh.id = id;
        scripted_mesh.unpack = unpack;
        scripted_mesh.free_record = free_record;
    }
    return scripted_mesh.result;
}
