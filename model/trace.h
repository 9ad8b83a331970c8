#pragma once
// The externally visible calls of a decoder and a free: logs, allocations and releases, in order.

#include <array>
#include <string>
#include <vector>

#include "model/catalogue.h"

namespace kesto::model {

enum class Act : u8 { log, allocate, release };
enum class RoutineKind : u8 { unpack, unpack_non_root, free_unpacked, pack };
enum class Format : u8 { unpack_parameters, table_offset, vtable_offset, vtable_length, allocation, pack_parameters };

inline constexpr u32 log_level = 2;

struct Routine {
    const Message* message = nullptr;
    RoutineKind kind = RoutineKind::unpack;
};

inline bool operator==(const Routine& left, const Routine& right)
{
    return left.message == right.message && left.kind == right.kind;
}

const std::string& name_of(const Routine& routine);

struct Event {
    Act act = Act::log;
    Routine routine;
    Format format = Format::unpack_parameters;   // of a log
    std::array<u32, 3> arguments{};              // of a log; for a pointer 0 says "null" and 1 "nonNull"
    u32 size = 0;                                // of an allocation
    bool failed = false;                         // an allocation that returned null
    // The number of the allocation, counting failed ones; for a release, the number of the block, -1 for null.
    i32 block = -1;
};

using Trace = std::vector<Event>;

u32 code_of(Format format);
const char* text_of(Format format);
u32 argument_count(Format format);

// The line that the log call would print, and a description of any event.
std::string log_text(const Event& event);
std::string to_text(const Event& event);

}   // namespace kesto::model
