#include <algorithm>
#include <errno.h>
#include <inttypes.h>
#include <stdarg.h>
#include <stdio.h>
#include <unistd.h>

#include "platform/standin/essentials.h"

// The declarations set the visibility of the definitions; everything else in this library is hidden.
#pragma GCC visibility push(default)
#include "platform/osal.h"
#include "platform/standin/osal_standin.h"
#pragma GCC visibility pop

namespace {

constexpr size_t block_alignment = 16;

// A live block. All live blocks are listed, so that a release is checked without reading memory that may not be ours.
struct Block {
    void* key;   // its address
    Block* next;
    uint32_t size;
};

constinit pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;   // guards all that follows
constinit Block* blocks[1 << 16]{};
constinit OsalStandinPlan plan{OSAL_STANDIN_NO_LIMIT, 0, 0, 1, 1, 0};   // as with an empty environment
constinit OsalStandinCounters counters{};
constinit uint64_t requests = 0;   // since the plan was set

// Makes one write per line, so that lines of several threads do not mix. A longer text is truncated, and line breaks in
// it become blanks.
[[gnu::format(printf, 1, 2)]] void say(const char* format, ...)
{
    char line[1024];
    va_list arguments;
    va_start(arguments, format);
    const int wanted = vsnprintf(line, sizeof line - 1, format, arguments);
    va_end(arguments);
    if (wanted < 0)
        return;
    char* const end = line + strlen(line);
    std::replace_if(
        line, end, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    *end = '\n';
    [[maybe_unused]] const ssize_t ignored = write(STDERR_FILENO, line, static_cast<size_t>(end + 1 - line));
}

Block** blocks_near(const void* start)
{
    const auto number = static_cast<uint32_t>(reinterpret_cast<uintptr_t>(start) / block_alignment);
    return &blocks[number * UINT32_C(0x9e3779b1) >> 16];
}

bool plan_refuses(uint32_t size)
{
    ++requests;
    return requests == plan.fail_at || (plan.fail_from != 0 && requests >= plan.fail_from) || size > plan.budget ||
           counters.live_bytes > plan.budget - size;
}

// The decimal number in an environment variable; `otherwise` if it is unset, no such number or above `limit`.
uint64_t number_in(const char* name, uint64_t limit, uint64_t otherwise)
{
    const char* const text = getenv(name);
    if (text == nullptr)
        return otherwise;
    char* end;
    errno = 0;
    const unsigned long long number = strtoull(text, &end, 10);
    if (text[0] >= '0' && text[0] <= '9' && *end == '\0' && errno == 0 && number <= limit)
        return number;
    say("osal stand-in: %s=%s ignored: not a number from 0 to %" PRIu64, name, text, limit);
    return otherwise;
}

[[gnu::constructor]] void start() { osal_standin_read_environment(); }

[[gnu::destructor]] void finish()
{
    OsalStandinPlan at_end;
    osal_standin_plan(&at_end);
    if (at_end.report != 0)
        osal_standin_report();
}

}   // namespace

// The optional services -----------------------------------------------------------------------------------------------

uint32_t RVL_OsalMemUseFlagGet(uint32_t module)
{
    const Lock lock(mutex);
    return module == OSAL_MEMORY_MODULE && plan.use_memory != 0 ? 1 : 0;
}

void* RVL_OsalMemCacheAlloc(uint32_t size, uint32_t, const char*)
{
    const Lock lock(mutex);
    void* start = nullptr;
    Block* block = nullptr;
    if (!plan_refuses(size) && posix_memalign(&start, block_alignment, std::max(size, UINT32_C(1))) == 0)
        block = find_or_add(blocks_near(start), start);
    if (block == nullptr) {
        free(start);
        ++counters.failures;
        return nullptr;
    }
    block->size = size;
    ++counters.total_blocks;
    counters.total_bytes += size;
    counters.live_bytes += size;
    counters.peak_blocks = std::max(counters.peak_blocks, ++counters.live_blocks);
    counters.peak_bytes = std::max(counters.peak_bytes, counters.live_bytes);
    return start;
}

void RVL_OsalMemFree(void* start, uint32_t, const char* caller)
{
    const Lock lock(mutex);
    if (start == nullptr) {
        ++counters.null_releases;
        return;
    }
    Block** const link = find_link(blocks_near(start), start);
    Block* const block = *link;
    if (block == nullptr) {
        say("osal stand-in: %s releases %p, which is no live block: released twice, or not from this service",
            caller == nullptr ? "?" : caller, start);
        abort();
    }
    --counters.live_blocks;
    counters.live_bytes -= block->size;
    *link = block->next;
    free(block);
    free(start);
}

uint32_t RVL_OsalLogWrite(const OsalLogDescriptor* descriptor, uint32_t level, uint32_t code, const char*, uint32_t,
                          const char* function, const char* format, ...)
{
    {
        const Lock lock(mutex);
        ++counters.log_records;
        if (plan.write_log == 0)
            return 0;
    }
    char text[768];
    va_list arguments;
    va_start(arguments, format);
    vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    say("%s/%s level %" PRIu32 " code %" PRIu32 " %s: %s", descriptor->tag, descriptor->sub_tag, level, code, function,
        text);
    return 0;
}

// Control -------------------------------------------------------------------------------------------------------------

void osal_standin_counters(OsalStandinCounters* result)
{
    const Lock lock(mutex);
    *result = counters;
}

void osal_standin_plan(OsalStandinPlan* result)
{
    const Lock lock(mutex);
    *result = plan;
}

void osal_standin_set_plan(const OsalStandinPlan* wanted)
{
    const Lock lock(mutex);
    plan = *wanted;
    requests = 0;
    const OsalStandinCounters before = counters;
    counters = OsalStandinCounters{};
    counters.live_blocks = counters.peak_blocks = before.live_blocks;
    counters.live_bytes = counters.peak_bytes = before.live_bytes;
}

void osal_standin_read_environment(void)
{
    const OsalStandinPlan wanted{
        .budget = number_in("OSAL_STANDIN_BUDGET", OSAL_STANDIN_NO_LIMIT, OSAL_STANDIN_NO_LIMIT),
        .fail_at = number_in("OSAL_STANDIN_FAIL_AT", UINT64_MAX, 0),
        .fail_from = number_in("OSAL_STANDIN_FAIL_FROM", UINT64_MAX, 0),
        .use_memory = static_cast<uint32_t>(number_in("OSAL_STANDIN_MEMORY", 1, 1)),
        .write_log = static_cast<uint32_t>(number_in("OSAL_STANDIN_LOG", 1, 1)),
        .report = static_cast<uint32_t>(number_in("OSAL_STANDIN_REPORT", 1, 0)),
    };
    osal_standin_set_plan(&wanted);
}

void osal_standin_report(void)
{
    OsalStandinCounters now;
    osal_standin_counters(&now);
    say("osal stand-in: %" PRIu64 " blocks with %" PRIu64 " bytes given, at most %" PRIu64 " with %" PRIu64
        " at a time; %" PRIu64 " requests failed; %" PRIu64 " null releases; %" PRIu64
        " log records; never released: %" PRIu64 " blocks with %" PRIu64 " bytes",
        now.total_blocks, now.total_bytes, now.peak_blocks, now.peak_bytes, now.failures, now.null_releases,
        now.log_records, now.live_blocks, now.live_bytes);
}
