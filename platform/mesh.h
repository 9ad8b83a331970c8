/* The closed messaging library MESH (libzervamesh.so), as far as message codecs use it: four operations.
 *
 * The codec library leaves these names undefined; the process that loads it provides them. */
#ifndef KESTO_PLATFORM_MESH_H
#define KESTO_PLATFORM_MESH_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* One encoded message on its way out: pointer, message id, length; 12 bytes where a pointer has four.
 * `data` and the item itself are valid only during the call that hands them over. */
typedef struct MeshSendItem {
    const uint8_t* data;
    uint32_t id;
    uint32_t length; /* bytes at `data` */
} MeshSendItem;

/* The registered decoder fills `record` from `length` bytes at `buffer` and returns the record's size in bytes,
 * whether or not it could decode them. */
typedef uint32_t (*MeshUnpack)(const uint8_t* buffer, uint32_t length, void* record);

/* The registered free gives back the variable parts of `record`, never the record itself. */
typedef void (*MeshFree)(void* record);

typedef void (*MeshClean)(void);

/* Both send `count` items on `channel`, the second to one destination (not 0). The result is MESH's own, 0 for success. */
int MESH_SendMsg(uint32_t channel, const MeshSendItem* items, uint32_t count);
int MESH_SendToMsg(uint32_t channel, const MeshSendItem* items, uint32_t count, uint32_t destination);

/* Keeps decoder and free of one message id for the life of the process. 0 means success. */
int MESH_RegIDLFuncHook(uint32_t id, MeshUnpack unpack, MeshFree free_record);

/* Keeps a module's clean function. The name is spelled so. */
int MESH_RegIDLResorceCleanFuncHook(MeshClean clean);

#ifdef __cplusplus
}
#endif

#endif
