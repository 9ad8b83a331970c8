// The closed bounds-checked memory operations as a library of their own, for builds with KESTO_CLOSED_BOUNDED_MEMORY: to
// test that the codecs do the same with them, and to measure what calls cost beside the inline layer.
#include <errno.h>
#include <string.h>

// The declarations carry the visibility.
#pragma GCC visibility push(default)
#include "platform/bounded_memory.h"
#pragma GCC visibility pop

int memset_s(void *destination, size_t limit, int value, size_t count)
{
    if (count > limit)
        return ERANGE;
    memset(destination, value, count);
    return 0;
}

int memcpy_s(void *destination, size_t limit, const void *source, size_t count)
{
    if (count > limit)
        return ERANGE;
    memcpy(destination, source, count);
    return 0;
}

int memcpy_sOptAsm(void *destination, size_t limit, const void *source, size_t count)
{
    return memcpy_s(destination, limit, source, count);
}
