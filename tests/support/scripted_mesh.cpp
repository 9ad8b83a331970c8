#include <cerrno>
#include <cstdint>

#include "tests/support/scripted_mesh.h"

namespace kesto::tests {

ScriptedMesh scripted_mesh{};

namespace {

int finish()
{
    if (scripted_mesh.error != 0)
        errno = scripted_mesh.error;
    return scripted_mesh.result;
}

}   // namespace

}   // namespace kesto::tests

using kesto::tests::scripted_mesh;

int MESH_SendToMsg(uint32_t channel, const MeshSendItem* items, uint32_t count, uint32_t destination)
{
    scripted_mesh.channel = channel;
    scripted_mesh.items = items;
    scripted_mesh.count = count;
    scripted_mesh.destination = destination;
    return kesto::tests::finish();
}

int MESH_SendMsg(uint32_t channel, const MeshSendItem* items, uint32_t count)
{
    scripted_mesh.channel = channel;
    scripted_mesh.items = items;
    scripted_mesh.count = count;
    scripted_mesh.destination = 0;
    return kesto::tests::finish();
}

int MESH_RegIDLFuncHook(uint32_t id, MeshUnpack unpack, MeshFree free_record)
{
    if (scripted_mesh.result == 0) {
        scripted_mesh.id = id;
        scripted_mesh.unpack = unpack;
        scripted_mesh.free_record = free_record;
    }
    return kesto::tests::finish();
}
