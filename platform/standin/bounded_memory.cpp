// The closed bounds-checked memory operations as a library of their own, for builds with KESTO_CLOSED_BOUNDED_MEMORY:
// to test that the codecs do the same with them, and to measure what calls cost beside the inline layer.

// The declarations carry the visibility.
#pragma GCC visibility push(default)
#include "platform/bounded_memory.h"
#pragma GCC visibility pop
#define KESTO_BOUNDED_MEMORY_LINKAGE
#include "platform/standin/bounded_memory_inline.h"
