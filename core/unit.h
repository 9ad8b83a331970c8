// The state of a codec unit, with the services of the process that it looks up on first use: memory and log.
//
// Each module has two units, one that receives and one that sends. Units share nothing.
#pragma once

#include <pthread.h>

#include <atomic>

#include "core/wire.h"
#include "platform/mesh.h"
#include "platform/osal.h"

// Hidden declarations are called without a table of addresses, which costs a register on 32-bit x86.
#pragma GCC visibility push(hidden)

namespace kesto {

using Allocate = void* (*)(u32 size, u32 module, const char* caller);
using Release = void (*)(void* pointer, u32 module, const char* caller);
using LogWrite = decltype(&RVL_OsalLogWrite);

void* plain_allocate(u32 size, u32 module, const char* caller);
void plain_release(void* pointer, u32 module, const char* caller);

struct Unit {
    pthread_mutex_t memory_mutex = PTHREAD_MUTEX_INITIALIZER;
    std::atomic<u32> memory_ready{0};
    Allocate allocate = plain_allocate;
    Release release = plain_release;
    // MESH's, resolved when the library is loaded. For a call by name, code for 32-bit machines would first have to find
    // its table of addresses.
    decltype(&MESH_SendMsg) send_msg = MESH_SendMsg;
    decltype(&MESH_SendToMsg) send_to_msg = MESH_SendToMsg;
    OsalLogDescriptor log{"KESTO", "KESTO_MARLOCK_SERIAL", 0x6200, 0};
    pthread_mutex_t log_mutex = PTHREAD_MUTEX_INITIALIZER;
    LogWrite log_write = nullptr;
    std::atomic<u32> log_ready{0};
    // Nonzero on a big-endian host. It records what load and store decided at compile time.
    u32 byte_order = 0;
};

// Runs once per unit when the library is loaded.
inline void start(Unit& unit) { unit.byte_order = host_has_wire_order ? 0 : 1; }

void find_memory_services(Unit& unit);

// Whether the memory services have been looked up. A single load; its acquire order ensures that a thread that sees the
// flag also sees the hooks.
inline bool has_memory_services(const Unit& unit) { return unit.memory_ready.load(std::memory_order_acquire) != 0; }

inline void ensure_memory_services(Unit& unit)
{
    if (!has_memory_services(unit)) [[unlikely]]
        find_memory_services(unit);
}

// ---- the log ----

// The number by which a log record identifies its place in the code.
enum class LogSite : u32 {
    decode_parameters = 1,
    table_position,
    vtable_position,
    vtable_length,
    allocation,
    pack_parameters
};

void log_decode_parameters(Unit& unit, const char* routine, const void* bytes, u32 length, const void* record);
void log_table_fault(Unit& unit, const char* routine, TableFault fault, const Input& in, const TableView<Input>& view);
void log_allocation(Unit& unit, const char* routine, u32 size);
void log_pack_parameters(Unit& unit, const char* routine, const void* buffer, u32 capacity, const void* record);

}   // namespace kesto

#pragma GCC visibility pop
