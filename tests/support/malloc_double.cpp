#include "tests/support/malloc_double.h"

#include <iterator>

namespace kesto::tests {

MallocWatch malloc_watch;

}   // namespace kesto::tests

#if !KESTO_SANITIZED

using kesto::tests::malloc_watch;

extern "C" {

void* __libc_malloc(std::size_t size);
void __libc_free(void* pointer);

void* malloc(std::size_t size)
{
    if (!malloc_watch.armed)
        return __libc_malloc(size);
    const std::uint32_t number = malloc_watch.mallocs++;
    if (number < std::size(malloc_watch.sizes))
        malloc_watch.sizes[number] = size;
    if (number == malloc_watch.fail_at || (malloc_watch.all_after && number > malloc_watch.fail_at))
        return nullptr;
    return __libc_malloc(size);
}

void free(void* pointer)
{
    if (malloc_watch.armed && pointer != nullptr)
        ++malloc_watch.frees;
    __libc_free(pointer);
}

}   // extern "C"

#endif
