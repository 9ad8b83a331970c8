#include "bench/ours.h"

#include "platform/mesh.h"

namespace {

// Every send writes to it, so that the compiler cannot optimise anything away.
volatile const std::uint8_t* last_data;
volatile std::uint32_t last_length;

std::vector<std::uint8_t> kept;

}   // namespace

extern "C" {

int MESH_SendMsg(uint32_t, const MeshSendItem* items, uint32_t)
{
    last_data = items->data;
    last_length = items->length;
    return 0;
}

// Never timed, as it keeps the bytes.
int MESH_SendToMsg(uint32_t, const MeshSendItem* items, uint32_t, uint32_t)
{
    kept.assign(items->data, items->data + items->length);
    return 0;
}

int MESH_RegIDLFuncHook(uint32_t, MeshUnpack, MeshFree) { return 0; }
int MESH_RegIDLResorceCleanFuncHook(MeshClean) { return 0; }

}   // extern "C"

namespace kesto::bench {

ByteStrings pack_all(const Operations& library, const RecordSet& set)
{
    ByteStrings strings;
    std::vector<u8> buffer(1 << 20);
    for (const auto& memory : set.memory) {
        u32 length = static_cast<u32>(buffer.size());
        if (library.pack(memory->data(), buffer.data(), &length) != 0)
            std::abort();
        strings.emplace_back(buffer.data(), buffer.data() + length);
    }
    return strings;
}

ByteStrings send_all(const Operations& library, const RecordSet& set)
{
    ByteStrings strings;
    for (const auto& memory : set.memory) {
        if (library.sendsingle(0, memory->data(), 0, 1) != 0)
            std::abort();
        strings.push_back(kept);
    }
    return strings;
}

}   // namespace kesto::bench
