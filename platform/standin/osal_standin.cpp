#include <inttypes.h>
#include <pthread.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

// The declarations carry the visibility; everything else of this library is hidden.
#pragma GCC visibility push(default)
#include "platform/osal.h"
#include "platform/standin/osal_standin.h"
#pragma GCC visibility pop

namespace {

constexpr size_t block_alignment = 16;
constexpr OsalStandinPlan default_plan{OSAL_STANDIN_NO_LIMIT, 0, 0, 1, 1, 0};

struct Block {
    void *start; // null in an empty place
    uint32_t size;
};

// All live blocks, so that a release is judged without reading memory that may not be ours any more.
struct BlockTable {
    Block *places;
    size_t capacity; // 0 or a power of two, at least twice the number of live blocks
};

constinit pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER; // guards all that follows
constinit BlockTable table{};
constinit OsalStandinPlan plan = default_plan;
constinit OsalStandinCounters counters{};
constinit uint64_t requests = 0; // since the plan was set

struct Lock {
    Lock() { pthread_mutex_lock(&mutex); }
    ~Lock() { pthread_mutex_unlock(&mutex); }
    Lock(const Lock &) = delete;
    Lock &operator=(const Lock &) = delete;
};

// One write per line, so that lines of several threads do not mix. What does not fit is cut off; a line is a line whatever
// its text holds.
[[gnu::format(printf, 1, 0)]] void write_line(const char *format, va_list arguments)
{
    char line[1024];
    const int wanted = vsnprintf(line, sizeof line - 1, format, arguments);
    if (wanted < 0)
        return;
    const size_t length = strlen(line);
    for (size_t i = 0; i < length; ++i)
        if (line[i] == '\n' || line[i] == '\r')
            line[i] = ' ';
    line[length] = '\n';
    [[maybe_unused]] const ssize_t ignored = write(STDERR_FILENO, line, length + 1);
}

[[gnu::format(printf, 1, 2)]] void say(const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    write_line(format, arguments);
    va_end(arguments);
}

// Blocks --------------------------------------------------------------------------------------------------------------

size_t home_of(const BlockTable &in, const void *start)
{
    return reinterpret_cast<uintptr_t>(start) / block_alignment * UINT32_C(0x9e3779b1) & (in.capacity - 1);
}

size_t place_of(const BlockTable &in, const void *start)
{
    size_t at = home_of(in, start);
    while (in.places[at].start != nullptr && in.places[at].start != start)
        at = (at + 1) & (in.capacity - 1);
    return at;
}

[[nodiscard]] bool make_room()
{
    if (2 * (counters.live_blocks + 1) <= table.capacity)
        return true;
    BlockTable larger{nullptr, table.capacity == 0 ? 64 : 2 * table.capacity};
    larger.places = static_cast<Block *>(calloc(larger.capacity, sizeof(Block)));
    if (larger.places == nullptr)
        return false;
    for (size_t i = 0; i < table.capacity; ++i)
        if (table.places[i].start != nullptr)
            larger.places[place_of(larger, table.places[i].start)] = table.places[i];
    free(table.places);
    table = larger;
    return true;
}

// Empties a place and moves up what its search paths had pushed behind it.
void erase(size_t hole)
{
    const size_t mask = table.capacity - 1;
    for (size_t at = (hole + 1) & mask; table.places[at].start != nullptr; at = (at + 1) & mask) {
        const size_t distance = (at - home_of(table, table.places[at].start)) & mask;
        if (distance >= ((at - hole) & mask)) {
            table.places[hole] = table.places[at];
            hole = at;
        }
    }
    table.places[hole] = Block{};
}

uint64_t larger_of(uint64_t a, uint64_t b)
{
    return a > b ? a : b;
}

bool plan_refuses(uint32_t size)
{
    ++requests;
    return requests == plan.fail_at || (plan.fail_from != 0 && requests >= plan.fail_from) || size > plan.budget ||
           counters.live_bytes > plan.budget - size;
}

void *allocate(uint32_t size)
{
    const Lock lock;
    void *start = nullptr;
    if (plan_refuses(size) || !make_room() || posix_memalign(&start, block_alignment, size == 0 ? 1 : size) != 0) {
        ++counters.failures;
        return nullptr;
    }
    table.places[place_of(table, start)] = Block{start, size};
    ++counters.total_blocks;
    counters.total_bytes += size;
    counters.live_bytes += size;
    counters.peak_blocks = larger_of(counters.peak_blocks, ++counters.live_blocks);
    counters.peak_bytes = larger_of(counters.peak_bytes, counters.live_bytes);
    return start;
}

void release(void *start, const char *caller)
{
    const Lock lock;
    if (start == nullptr) {
        ++counters.null_releases;
        return;
    }
    const size_t at = table.capacity == 0 ? 0 : place_of(table, start);
    if (table.capacity == 0 || table.places[at].start == nullptr) {
        say("osal stand-in: %s releases %p, which is no live block: released twice, or not from this service",
            caller == nullptr ? "?" : caller, start);
        abort();
    }
    --counters.live_blocks;
    counters.live_bytes -= table.places[at].size;
    erase(at);
    free(start);
}

// Environment ---------------------------------------------------------------------------------------------------------

// Decimal digits only; `value` stays as it is when the text is anything else, or above `limit`.
void read_number(const char *name, uint64_t limit, uint64_t &value)
{
    const char *const text = getenv(name);
    if (text == nullptr)
        return;
    uint64_t number = 0;
    const char *at = text;
    for (; *at >= '0' && *at <= '9'; ++at) {
        const auto digit = static_cast<uint64_t>(*at - '0');
        if (digit > limit || number > (limit - digit) / 10)
            break;
        number = 10 * number + digit;
    }
    if (at == text || *at != '\0')
        say("osal stand-in: %s=%s ignored: not a number from 0 to %" PRIu64, name, text, limit);
    else
        value = number;
}

void read_switch(const char *name, uint32_t &value)
{
    uint64_t number = value;
    read_number(name, 1, number);
    value = static_cast<uint32_t>(number);
}

[[gnu::constructor]] void start()
{
    osal_standin_read_environment();
}

[[gnu::destructor]] void finish()
{
    OsalStandinPlan at_end;
    osal_standin_plan(&at_end);
    if (at_end.report != 0)
        osal_standin_report();
}

} // namespace

// The optional services -----------------------------------------------------------------------------------------------

uint32_t RVL_OsalMemUseFlagGet(uint32_t module)
{
    const Lock lock;
    return module == OSAL_MEMORY_MODULE && plan.use_memory != 0 ? 1 : 0;
}

void *RVL_OsalMemCacheAlloc(uint32_t size, uint32_t, const char *)
{
    return allocate(size);
}

void RVL_OsalMemFree(void *pointer, uint32_t, const char *caller)
{
    release(pointer, caller);
}

uint32_t RVL_OsalLogWrite(const OsalLogDescriptor *descriptor, uint32_t level, uint32_t code, const char *,
                          uint32_t, const char *function, const char *format, ...)
{
    {
        const Lock lock;
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

void osal_standin_counters(OsalStandinCounters *result)
{
    const Lock lock;
    *result = counters;
}

void osal_standin_plan(OsalStandinPlan *result)
{
    const Lock lock;
    *result = plan;
}

void osal_standin_set_plan(const OsalStandinPlan *wanted)
{
    const Lock lock;
    plan = *wanted;
    requests = 0;
    const OsalStandinCounters before = counters;
    counters = OsalStandinCounters{};
    counters.live_blocks = counters.peak_blocks = before.live_blocks;
    counters.live_bytes = counters.peak_bytes = before.live_bytes;
}

void osal_standin_read_environment(void)
{
    OsalStandinPlan wanted = default_plan;
    read_switch("OSAL_STANDIN_MEMORY", wanted.use_memory);
    read_switch("OSAL_STANDIN_LOG", wanted.write_log);
    read_switch("OSAL_STANDIN_REPORT", wanted.report);
    read_number("OSAL_STANDIN_BUDGET", OSAL_STANDIN_NO_LIMIT, wanted.budget);
    read_number("OSAL_STANDIN_FAIL_AT", UINT64_MAX, wanted.fail_at);
    read_number("OSAL_STANDIN_FAIL_FROM", UINT64_MAX, wanted.fail_from);
    osal_standin_set_plan(&wanted);
}

void osal_standin_report(void)
{
    OsalStandinCounters now;
    osal_standin_counters(&now);
    say("osal stand-in: %" PRIu64 " blocks with %" PRIu64 " bytes given, at most %" PRIu64 " with %" PRIu64
        " at a time; %" PRIu64 " requests failed; %" PRIu64 " null releases; %" PRIu64 " log records; never released: %"
        PRIu64 " blocks with %" PRIu64 " bytes",
        now.total_blocks, now.total_bytes, now.peak_blocks, now.peak_bytes, now.failures, now.null_releases,
        now.log_records, now.live_blocks, now.live_bytes);
}
