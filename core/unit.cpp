#include "core/unit.h"

#include <dlfcn.h>

#include <cstdlib>

namespace kesto {

namespace {

constexpr u32 bad_input = 22;          // the value of EINVAL on every target
constexpr u32 memory_exhausted = 12;   // the value of ENOMEM

template <class Function>
Function find_service(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_DEFAULT, name));
}

void find_log_service(Unit& unit)
{
    pthread_mutex_lock(&unit.log_mutex);
    if (unit.log_ready.load(std::memory_order_relaxed) == 0) {
        unit.log_write = find_service<LogWrite>("RVL_OsalLogWrite");
        unit.log_ready.store(1, std::memory_order_release);   // last: a thread that reads 1 also sees log_write
    }
    pthread_mutex_unlock(&unit.log_mutex);
}

const char* null_text(const void* pointer) { return pointer == nullptr ? "null" : "nonNull"; }

template <class... Arguments>
void write_log(Unit& unit, u32 code, LogSite site, const char* routine, const char* format, Arguments... arguments)
{
    if (unit.log_ready.load(std::memory_order_acquire) == 0)
        find_log_service(unit);
    if (unit.log_write != nullptr)
        unit.log_write(&unit.log, OSAL_LOG_LEVEL, code, "", static_cast<u32>(site), routine, format, arguments...);
}

}   // namespace

void* plain_allocate(u32 size, u32, const char*) { return std::malloc(size); }

void plain_release(void* pointer, u32, const char*) { std::free(pointer); }

void find_memory_services(Unit& unit)
{
    pthread_mutex_lock(&unit.memory_mutex);
    if (unit.memory_ready.load(std::memory_order_relaxed) == 0) {
        start(unit);
        const auto use_flag = find_service<decltype(&RVL_OsalMemUseFlagGet)>("RVL_OsalMemUseFlagGet");
        if (use_flag != nullptr && use_flag(OSAL_MEMORY_MODULE) == 1) {
            const auto allocate = find_service<Allocate>("RVL_OsalMemCacheAlloc");
            const auto release = find_service<Release>("RVL_OsalMemFree");
            if (allocate != nullptr && release != nullptr) {   // never a mixed pair
                unit.allocate = allocate;
                unit.release = release;
            }
        }
        unit.memory_ready.store(1, std::memory_order_release);   // last: a thread that reads 1 also sees the pair
    }
    pthread_mutex_unlock(&unit.memory_mutex);
}

void log_decode_parameters(Unit& unit, const char* routine, const void* bytes, u32 length, const void* record)
{
    write_log(unit, bad_input, LogSite::decode_parameters, routine, "[KESTO]:Param invalid(%s, %d, %s)",
              null_text(bytes), static_cast<int>(length), null_text(record));
}

void log_table_fault(Unit& unit, const char* routine, TableFault fault, const Input& in, const TableView<Input>& view)
{
    switch (fault) {
    case TableFault::table_position:
        // required: the upper number is the length, although the bound is length - 4
        write_log(unit, bad_input, LogSite::table_position, routine, "[KESTO]:Table offset(%u) is out of range(4 - %u)",
                  view.table, in.length);
        break;
    case TableFault::vtable_position:
        // required: the number shown is the table's position, not the vtable's
        write_log(unit, bad_input, LogSite::vtable_position, routine,
                  "[KESTO]:Vtable offset(%u) is out of range(4 - %u)", view.table, in.length - 4);
        break;
    case TableFault::vtable_length:
        write_log(unit, bad_input, LogSite::vtable_length, routine, "[KESTO]:Vtable Len(%u) is out of range(0 - %u)",
                  view.vtable_length, in.length - view.vtable);
        break;
    case TableFault::none: break;
    }
}

void log_allocation(Unit& unit, const char* routine, u32 size)
{
    write_log(unit, memory_exhausted, LogSite::allocation, routine, "[KESTO]:Malloc unpack data failed, size(%u)",
              size);
}

void log_pack_parameters(Unit& unit, const char* routine, const void* buffer, u32 capacity, const void* record)
{
    write_log(unit, bad_input, LogSite::pack_parameters, routine, "[KESTO]:Param invalid(%s, %u, %s)",
              null_text(buffer), capacity, null_text(record));
}

}   // namespace kesto
