/* Inline stand-in for the closed bounds-checked memory operations; see platform/bounded_memory.h.
 *
 * With a count above the limit, an operation does nothing and returns ERANGE. The codecs always pass the count as the
 * limit. */
#ifndef KESTO_PLATFORM_STANDIN_BOUNDED_MEMORY_INLINE_H
#define KESTO_PLATFORM_STANDIN_BOUNDED_MEMORY_INLINE_H

#include <errno.h>
#include <stddef.h>
#include <string.h>

/* Defined as empty by platform/standin/bounded_memory.cpp, which builds a library of these functions. */
#ifndef KESTO_BOUNDED_MEMORY_LINKAGE
#define KESTO_BOUNDED_MEMORY_LINKAGE static inline
#endif

KESTO_BOUNDED_MEMORY_LINKAGE int memset_s(void* destination, size_t limit, int value, size_t count)
{
    if (count > limit)
        return ERANGE;
    memset(destination, value, count);
    return 0;
}

KESTO_BOUNDED_MEMORY_LINKAGE int memcpy_s(void* destination, size_t limit, const void* source, size_t count)
{
    if (count > limit)
        return ERANGE;
    memcpy(destination, source, count);
    return 0;
}

/* The closed library's copy for small counts known at compile time. Here memcpy does the same. */
KESTO_BOUNDED_MEMORY_LINKAGE int memcpy_sOptAsm(void* destination, size_t limit, const void* source, size_t count)
{
    return memcpy_s(destination, limit, source, count);
}

#endif
