#include "tests/support/services_double.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "platform/osal.h"

namespace kesto::tests {

ServicesDouble& services()
{
    static ServicesDouble instance;
    return instance;
}

void ServicesDouble::start()
{
    events_.clear();
    blocks_.clear();
    allocations_ = 0;
}

std::uint32_t ServicesDouble::live_blocks() const
{
    return static_cast<std::uint32_t>(
        std::count_if(blocks_.begin(), blocks_.end(), [](void* block) { return block != nullptr; }));
}

void* ServicesDouble::allocate(std::uint32_t size, std::uint32_t module, const char* caller)
{
    const std::uint32_t number = allocations_++;
    const bool failed = faults.refuses(number, size);
    void* const block = failed ? nullptr : std::malloc(size);
    blocks_.push_back(block);
    events_.push_back({.act = model::Act::allocate,
                       .routine = caller,
                       .size = size,
                       .block = static_cast<std::int32_t>(number),
                       .failed = failed,
                       .fault = module == OSAL_MEMORY_MODULE ? nullptr : "module"});
    return block;
}

void ServicesDouble::release(void* pointer, std::uint32_t module, const char* caller)
{
    RecordedEvent event{
        .act = model::Act::release, .routine = caller, .fault = module == OSAL_MEMORY_MODULE ? nullptr : "module"};
    if (pointer != nullptr) {
        const auto found = std::find(blocks_.begin(), blocks_.end(), pointer);
        if (found == blocks_.end()) {
            event.fault = "released a block that is not allocated";
        } else {
            event.block = static_cast<std::int32_t>(found - blocks_.begin());
            *found = nullptr;
            std::free(pointer);
        }
    }
    events_.push_back(event);
}

void ServicesDouble::log(const void* descriptor, std::uint32_t level, std::uint32_t code, const char* file,
                         std::uint32_t line, const char* function, const char* format, std::va_list arguments)
{
    RecordedEvent event{.act = model::Act::log, .routine = function, .format = format, .code = code, .line = line};
    if (lines != nullptr) {
        std::va_list copy;
        va_copy(copy, arguments);
        char text[256];
        std::vsnprintf(text, sizeof text, format, copy);
        va_end(copy);
        lines->push_back("level " + std::to_string(level) + " code " + std::to_string(code) + " " + function + ": " +
                         text);
    }
    const auto* words = static_cast<const OsalLogDescriptor*>(descriptor);
    if (std::strcmp(words->tag, "KESTO") != 0 || std::strcmp(words->sub_tag, "KESTO_MARLOCK_SERIAL") != 0 ||
        words->value != 25088 || words->spare != 0)
        event.fault = "descriptor";
    else if (level != 2 || std::strcmp(file, "") != 0)
        event.fault = "level or file";
    std::size_t next = 0;
    for (const char* at = std::strchr(format, '%'); at != nullptr && next < 3; at = std::strchr(at + 1, '%')) {
        if (at[1] == 's')
            event.arguments[next++] = std::strcmp(va_arg(arguments, const char*), "null") != 0;
        else
            event.arguments[next++] = va_arg(arguments, std::uint32_t);
    }
    events_.push_back(event);
}

std::string ServicesDouble::difference(std::size_t i, const model::Event& expected) const
{
    const RecordedEvent& event = events_[i];
    if (event.fault != nullptr)
        return event.fault;
    if (event.act != expected.act)
        return "kind of event";
    if (event.routine != model::name_of(expected.routine))
        return std::string("routine ") + event.routine;
    if (event.act == model::Act::log) {
        if (std::strcmp(event.format, model::text_of(expected.format)) != 0 ||
            event.code != model::code_of(expected.format))
            return "format or code";
        // The line argument is the format's number. It must never change, as it identifies the place across releases.
        if (event.line != 1 + static_cast<std::uint32_t>(expected.format))
            return "line " + std::to_string(event.line);
        for (std::uint32_t a = 0; a < model::argument_count(expected.format); ++a)
            if (event.arguments[a] != expected.arguments[a])
                return "argument " + std::to_string(a) + " is " + std::to_string(event.arguments[a]);
        return {};
    }
    if (event.act == model::Act::allocate && (event.size != expected.size || event.failed != expected.failed))
        return "size " + std::to_string(event.size);
    if (event.block != expected.block)
        return "block " + std::to_string(event.block);
    return {};
}

std::string ServicesDouble::difference(const model::Trace& expected) const
{
    for (std::size_t i = 0; i < std::min(events_.size(), expected.size()); ++i) {
        const std::string fault = difference(i, expected[i]);
        if (!fault.empty())
            return "event " + std::to_string(i) + ": " + fault + ", expected " + model::to_text(expected[i]);
    }
    if (events_.size() != expected.size())
        return std::to_string(events_.size()) + " events, expected " + std::to_string(expected.size());
    return {};
}

}   // namespace kesto::tests

using kesto::tests::services;

extern "C" {

std::uint32_t RVL_OsalMemUseFlagGet(std::uint32_t) { return services().use_flag; }

void* RVL_OsalMemCacheAlloc(std::uint32_t size, std::uint32_t module, const char* caller)
{
    return services().allocate(size, module, caller);
}

void RVL_OsalMemFree(void* pointer, std::uint32_t module, const char* caller)
{
    services().release(pointer, module, caller);
}

std::uint32_t RVL_OsalLogWrite(const OsalLogDescriptor* descriptor, std::uint32_t level, std::uint32_t code,
                               const char* file, std::uint32_t line, const char* function, const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    services().log(descriptor, level, code, file, line, function, format, arguments);
    va_end(arguments);
    return 0;
}

}   // extern "C"
