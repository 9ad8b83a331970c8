/* The four operations of the closed messaging library MESH (libzervamesh.so) that message codecs use.
 *
 * The codec library leaves these names undefined; the process that loads it provides them. */
#ifndef KESTO_PLATFORM_MESH_H
#define KESTO_PLATFORM_MESH_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* One encoded message to be sent: pointer, message id, length; 12 bytes on 32-bit machines.
 * `data` and the item itself are valid only during the call that passes them. */
typedef struct MeshSendItem {
    const uint8_t* data;
    uint32_t id;
    uint32_t length; /* bytes at `data` */
} MeshSendItem;

/* The registered decoder fills `record` from `length` bytes at `buffer` and returns the record's size in bytes,
 * whether or not decoding succeeded. */
typedef uint32_t (*MeshUnpack)(const uint8_t* buffer, uint32_t length, void* record);

/* The registered free releases the variable parts of `record`, never the record itself. */
typedef void (*MeshFree)(void* record);

typedef void (*MeshClean)(void);

/* Both send `count` items on `channel`, the second one to a single destination (not 0). The result is MESH's own, 0 for
 * success. */
int MESH_SendMsg(uint32_t channel, const MeshSendItem* items, uint32_t count);
int MESH_SendToMsg(uint32_t channel, const MeshSendItem* items, uint32_t count, uint32_t destination);

/* Registers decoder and free of one message id for the lifetime of the process. Returns 0 on success. */
int MESH_RegIDLFuncHook(uint32_t id, MeshUnpack unpack, MeshFree free_record);

/* Registers a module's clean function. The spelling of the name is fixed. */
int MESH_RegIDLResorceCleanFuncHook(MeshClean clean);

#ifdef __cplusplus
}
#endif

#endif
