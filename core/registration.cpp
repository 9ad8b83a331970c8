#include "core/receive_unit.h"

namespace kesto {

int register_messages(std::span<const Registration> messages)
{
    for (const Registration& message : messages) {
        const int result = MESH_RegIDLFuncHook(message.id, message.unpack, message.free);
        if (result != 0)
            return result;
    }
    return 0;
}

}   // namespace kesto
