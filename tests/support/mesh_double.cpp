#include "tests/support/mesh_double.h"

namespace kesto::test {

MeshDouble& mesh()
{
    static MeshDouble instance;
    return instance;
}

namespace {

int send(bool to_destination, std::uint32_t channel, const MeshSendItem* items, std::uint32_t count,
         std::uint32_t destination)
{
    SendCall call{to_destination, channel, destination, items, {}};
    for (std::uint32_t i = 0; i < count; ++i)
        call.sent.push_back({items[i].data, items[i].id, {items[i].data, items[i].data + items[i].length}});
    mesh().sends.push_back(call);
    return mesh().send_result;
}

}   // namespace

}   // namespace kesto::test

using kesto::test::mesh;

int MESH_SendMsg(std::uint32_t channel, const MeshSendItem* items, std::uint32_t count)
{
    return kesto::test::send(false, channel, items, count, 0);
}

int MESH_SendToMsg(std::uint32_t channel, const MeshSendItem* items, std::uint32_t count, std::uint32_t destination)
{
    return kesto::test::send(true, channel, items, count, destination);
}

int MESH_RegIDLFuncHook(std::uint32_t id, MeshUnpack unpack, MeshFree free_record)
{
    const bool fails = mesh().registrations.size() == mesh().register_fails_at;
    mesh().registrations.push_back({id, unpack, free_record});
    return fails ? mesh().register_result : 0;
}

int MESH_RegIDLResorceCleanFuncHook(MeshClean clean)
{
    mesh().clean_hooks.push_back(clean);
    return mesh().clean_result;
}
