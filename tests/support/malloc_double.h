// Watches the process's malloc and free while armed, and can make a malloc fail. This shows the library's allocations
// that do not use the services.
//
// Not available in sanitized builds, whose run-time has its own malloc: there `malloc_double_works` is false.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kesto::tests {

#if KESTO_SANITIZED
constexpr bool malloc_double_works = false;
#else
constexpr bool malloc_double_works = true;
#endif

struct MallocWatch {
    bool armed = false;
    std::uint32_t fail_at = 0xFFFFFFFF;   // number of the malloc that returns null
    bool all_after = false;               // and all later ones

    std::uint32_t mallocs = 0;
    std::uint32_t frees = 0;     // of non-null pointers
    std::size_t sizes[8] = {};   // sizes of the first requests
};

// Not synchronised: only for single-threaded tests.
extern MallocWatch malloc_watch;

// Watches during its lifetime.
struct WatchMalloc {
    explicit WatchMalloc(std::uint32_t fail_at = 0xFFFFFFFF, bool all_after = false)
    {
        malloc_watch = {};
        malloc_watch.fail_at = fail_at;
        malloc_watch.all_after = all_after;
        malloc_watch.armed = true;
    }
    ~WatchMalloc() { malloc_watch.armed = false; }
    WatchMalloc(const WatchMalloc&) = delete;
    WatchMalloc& operator=(const WatchMalloc&) = delete;
};

}   // namespace kesto::tests
