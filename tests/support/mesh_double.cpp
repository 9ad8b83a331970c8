#include "tests/support/mesh_double.h"

namespace kesto::tests {

MeshDouble& mesh()
{
    static MeshDouble instance;
    return instance;
}

namespace {

int send(bool to_destination, std::uint32_t channel, const MeshSendItem* items, std::uint32_t count,
         std::uint32_t destination)
{
    ++mesh().send_calls;
    mesh().at_send();
    if (!mesh().keeps_sends)
        return mesh().send_result;
    SendCall call{to_destination, channel, destination, items, {}};
    for (std::uint32_t i = 0; i < count; ++i)
        call.sent.push_back({items[i].data, items[i].id, {items[i].data, items[i].data + items[i].length}});
    mesh().sends.push_back(call);
    return mesh().send_result;
}

}   // namespace

}   // namespace kesto::tests

using kesto::tests::mesh;

int MESH_SendMsg(std::uint32_t channel, const MeshSendItem* items, std::uint32_t count)
{
    return kesto::tests::send(false, channel, items, count, 0);
}

int MESH_SendToMsg(std::uint32_t channel, const MeshSendItem* items, std::uint32_t count, std::uint32_t destination)
{
    return kesto::tests::send(true, channel, items, count, destination);
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
