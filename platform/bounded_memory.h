/* The bounds-checked memory operations: fill and copy with a destination limit, passed before the value or source.
 *
 * By default they are our own inline layer, platform/standin/bounded_memory_inline.h, because a call across a library
 * boundary costs about as much as packing a small table. With KESTO_CLOSED_BOUNDED_MEMORY defined (CMake option of the
 * same name) the functions of the closed library are declared instead, and the process provides them. */
#ifndef KESTO_PLATFORM_BOUNDED_MEMORY_H
#define KESTO_PLATFORM_BOUNDED_MEMORY_H

#include <stddef.h>

#ifdef KESTO_CLOSED_BOUNDED_MEMORY

#ifdef __cplusplus
extern "C" {
#endif

/* Each fills or copies `count` bytes and returns 0. If `count` exceeds `limit`, it returns another value and at most
 * clears the destination. The codecs ignore the result. */
int memset_s(void* destination, size_t limit, int value, size_t count);
int memcpy_s(void* destination, size_t limit, const void* source, size_t count);
int memcpy_sOptAsm(void* destination, size_t limit, const void* source, size_t count);

#ifdef __cplusplus
}
#endif

#else
#include "standin/bounded_memory_inline.h"
#endif

#endif
