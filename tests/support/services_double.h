// The test process's own optional services: a memory service and a log that record their calls in order.
//
// The test program exports them, so that the library finds them as it would find a host's.
#pragma once

#include <cstdarg>
#include <cstdint>
#include <string>
#include <vector>

#include "model/decode.h"

namespace kesto::tests {

class ServicesDouble {
public:
    std::uint32_t use_flag = 1;                  // result of RVL_OsalMemUseFlagGet
    model::AllocationFaults faults;              // which allocations return null
    std::vector<std::string>* lines = nullptr;   // if set, receives every log line as a process would print it

    // Forgets events and allocations. Live blocks stay allocated but are forgotten, too.
    void start();

    std::uint32_t allocations() const { return allocations_; }
    std::uint32_t live_blocks() const;

    // The difference between the events since start() and the expected ones; empty if there is none.
    std::string difference(const model::Trace& expected) const;

    void* allocate(std::uint32_t size, std::uint32_t module, const char* caller);
    void release(void* pointer, std::uint32_t module, const char* caller);
    void log(const void* descriptor, std::uint32_t level, std::uint32_t code, const char* file, std::uint32_t line,
             const char* function, const char* format, std::va_list arguments);

private:
    struct RecordedEvent {
        model::Act act;
        const char* routine;
        const char* format = nullptr;   // of a log
        std::uint32_t code = 0;
        std::uint32_t line = 0;
        std::uint32_t arguments[3] = {};
        std::uint32_t size = 0;
        std::int32_t block = -1;   // -1 for null
        bool failed = false;
        const char* fault = nullptr;   // fault in the call itself
    };

    std::string difference(std::size_t i, const model::Event& expected) const;

    std::vector<RecordedEvent> events_;
    std::vector<void*> blocks_;   // by number; null when failed or released
    std::uint32_t allocations_ = 0;
};

ServicesDouble& services();

}   // namespace kesto::tests
