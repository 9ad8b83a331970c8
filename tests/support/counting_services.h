// The test program's own memory and log services. They count their calls, from any number of threads. They are defined
// in this header, so only one source of a program may include it.
#pragma once

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <functional>

#include "platform/osal.h"

namespace kesto::tests {

inline std::atomic<std::uint32_t> flag_reads, allocated, released, logged;
inline std::uint32_t use_flag = 1;   // result of RVL_OsalMemUseFlagGet
inline std::function<void()> at_flag_read = [] {}, at_memory_call = [] {};

}   // namespace kesto::tests

extern "C" {

std::uint32_t RVL_OsalMemUseFlagGet(std::uint32_t module)
{
    ++kesto::tests::flag_reads;
    kesto::tests::at_flag_read();
    return module == 12 ? kesto::tests::use_flag : 0;
}

void* RVL_OsalMemCacheAlloc(std::uint32_t size, std::uint32_t, const char*)
{
    ++kesto::tests::allocated;
    kesto::tests::at_memory_call();
    return std::malloc(size);
}

void RVL_OsalMemFree(void* pointer, std::uint32_t, const char*)
{
    ++kesto::tests::released;
    kesto::tests::at_memory_call();
    std::free(pointer);
}

std::uint32_t RVL_OsalLogWrite(const OsalLogDescriptor*, std::uint32_t, std::uint32_t, const char*, std::uint32_t,
                               const char*, const char*, ...)
{
    ++kesto::tests::logged;
    return 0;
}

}   // extern "C"
