/* A process's own MESH: decodes messages sent on any channel immediately and passes them to `on_message`. */
#include <stdlib.h>

#include "platform/mesh.h"

void on_message(uint32_t id, uint32_t length, const void* record);

enum { MAX_HOOKS = 256 };

static struct {
    uint32_t id;
    MeshUnpack unpack;
    MeshFree free_record;
} hooks[MAX_HOOKS];
static uint32_t hook_count;

int MESH_RegIDLFuncHook(uint32_t id, MeshUnpack unpack, MeshFree free_record)
{
    if (hook_count == MAX_HOOKS)
        return 1;
    hooks[hook_count].id = id;
    hooks[hook_count].unpack = unpack;
    hooks[hook_count++].free_record = free_record;
    return 0;
}

int MESH_RegIDLResorceCleanFuncHook(MeshClean clean)
{
    (void)clean;
    return 0;
}

static int deliver(const MeshSendItem* item)
{
    for (uint32_t i = 0; i < hook_count; ++i)
        if (hooks[i].id == item->id) {
            void* record = calloc(1, hooks[i].unpack(NULL, 0, NULL)); /* a refused call returns the size */
            if (record == NULL)
                return 1;
            hooks[i].unpack(item->data, item->length, record);
            on_message(item->id, item->length, record);
            hooks[i].free_record(record);
            free(record);
            return 0;
        }
    return 1;
}

int MESH_SendMsg(uint32_t channel, const MeshSendItem* items, uint32_t count)
{
    int result = 0;
    (void)channel;
    for (uint32_t i = 0; i < count && result == 0; ++i)
        result = deliver(&items[i]);
    return result;
}

int MESH_SendToMsg(uint32_t channel, const MeshSendItem* items, uint32_t count, uint32_t destination)
{
    (void)destination;
    return MESH_SendMsg(channel, items, count);
}
