// The closed bounds-checked memory operations as a library of their own, for builds with KESTO_CLOSED_BOUNDED_MEMORY.
// It serves to test that the codecs behave the same with them, and to compare the cost of calls with the inline layer.

// The declarations set the visibility of the definitions.
#pragma GCC visibility push(default)
#include "platform/bounded_memory.h"
#pragma GCC visibility pop
#define KESTO_BOUNDED_MEMORY_LINKAGE
#include "platform/standin/bounded_memory_inline.h"
