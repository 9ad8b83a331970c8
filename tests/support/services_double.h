// The test process's own optional services: a memory service and a log that keep what they were asked, in order.
//
// They are exported from the test program, so that the library finds them as it would find a host's.
#pragma once

#include <cstdarg>
#include <cstdint>
#include <string>
#include <vector>

#include "model/decode.h"

namespace kesto::tests {

class ServicesDouble {
public:
    std::uint32_t use_flag = 1;                  // what RVL_OsalMemUseFlagGet answers
    model::AllocationFaults faults;              // which allocations give null
    std::vector<std::string>* lines = nullptr;   // when set, gets every log line as a process would print it

    // Forgets events and allocations; what is still allocated stays so and is forgotten too.
    void start();

    std::uint32_t allocations() const { return allocations_; }
    std::uint32_t live_blocks() const;

    // How the events since start() differ from what is expected; empty where they do not.
    std::string difference(const model::Trace& expected) const;

    void* allocate(std::uint32_t size, std::uint32_t module, const char* caller);
    void release(void* pointer, std::uint32_t module, const char* caller);
    void log(const void* descriptor, std::uint32_t level, std::uint32_t code, const char* file, std::uint32_t line,
             const char* function, const char* format, std::va_list arguments);

private:
    struct Happened {
        model::Act act;
        const char* routine;
        const char* format = nullptr;   // of a log
        std::uint32_t code = 0;
        std::uint32_t line = 0;
        std::uint32_t arguments[3] = {};
        std::uint32_t size = 0;
        std::int32_t block = -1;   // -1 for null
        bool failed = false;
        const char* fault = nullptr;   // what is wrong with the call in itself
    };

    std::string difference(std::size_t i, const model::Event& expected) const;

    std::vector<Happened> events_;
    std::vector<void*> blocks_;   // by number; null when failed or released
    std::uint32_t allocations_ = 0;
};

ServicesDouble& services();

}   // namespace kesto::tests
