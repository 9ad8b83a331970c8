#pragma once
// The decoder as a plain walk over the slots: the record it makes of any byte string, its logs and allocations on the
// way, and why it stops.

#include "model/record.h"
#include "model/trace.h"

namespace kesto::model {

// The path from the root record to a field: the slots, and the element within a vector.
struct Path {
    struct Step {
        u32 slot = 0;
        i32 element = -1;   // -1 if there is none, or none yet
    };
    std::array<Step, greatest_depth + 1> steps{};
    u32 length = 0;
};

std::string to_text(const Path& path);   // such as f1[0].f3

// With field names: ".f1[0].year"; "." for the root record.
std::string path_text(const Message& root, const Path& path);

// *_end: a read at the position would extend past the length. *_wrap, *_range: the position that a cell leads to has
// passed 2^32 or the length.
enum class Refusal : u8 {
    none,
    buffer_null,
    record_null,
    length_below_4,
    table_position,
    vtable_position,
    vtable_length,
    scalar_end,
    cell_end,
    reference_wrap,
    reference_range,
    array_count,
    count_range,     // the count of a vector or a u32 array is 0x40000000 or more
    body_end,        // the payload, or a vector's element cells
    nested_wrap,     // a nested table's position
    element_wrap,    // an element's position
    element_null,    // an element of an array whose size has wrapped to 0
    element_block,   // an element beyond the end of its array, whose size has wrapped
    allocation,
};

const char* name_of(Refusal refusal);

struct Failure {
    Refusal refusal = Refusal::none;
    Routine routine;    // the one that found it
    Path path;          // empty for the root table
    u32 position = 0;   // of the refused number, 0 for a parameter
    u64 value = 0;      // the number that was compared
    u64 limit = 0;      // and the bound it was compared with
    i32 log = -1;       // index of the trace event that reports it; -1 for none

    explicit operator bool() const { return refusal != Refusal::none; }
};

std::string to_text(const Failure& failure);

// Which allocations return null. A test's allocator can use the same numbers.
struct AllocationFaults {
    static constexpr u32 never = 0xffffffffU;

    u32 at = never;              // the allocation with this number, counted from 0
    bool all_after = false;      // and every later one
    u32 largest = 0xffffffffU;   // and any larger than this

    bool refuses(u32 number, u32 size) const { return number == at || (all_after && number > at) || size > largest; }
};

// The pieces of a byte string: those that a decoder reads, in reading order, then those that only an explanation names.
enum class Piece : u8 {
    root,
    vtable_offset,
    vtable_length,
    table_length,   // not used by any reader; shown if the vtable holds it
    slot,
    scalar,
    cell,
    count,
    payload,
    element_cell,
    vtable_rest,   // after the message's slots, including an odd byte
    text_end,
    padding,
    unread,
};

const char* name_of(Piece piece);

struct Item {
    Piece piece = Piece::root;
    u32 position = 0;
    u32 length = 0;
    u64 value = 0;                      // unset for a payload
    const Message* message = nullptr;   // of the table
    const Path* path = nullptr;         // to the field, or to the table
};

struct Walk {
    virtual void read(const Item& item) = 0;

protected:
    ~Walk() = default;
};

struct DecodeOptions {
    u32 pointer_width = host_pointer_width;   // determines the record size of elements
    AllocationFaults faults;
    bool record_null = false;
    bool contents = true;   // false: no usable record, and a trace of logs only, so memory stays bounded
    Walk* walk = nullptr;
};

struct Outcome {
    Record record;            // meaningless if untouched
    bool untouched = false;   // the caller's record is unchanged
    Failure failure;          // why the decode failed; none if it succeeded
    Failure ignored;          // the last ignored failure of a nested record
    Trace trace;
    u32 allocations = 0;   // number requested
    u64 memory = 0;        // total bytes requested
    u32 record_size = 0;   // always returned
};

// `outcome` can be reused; it keeps its storage. `bytes` may be null, which is refused like any other fault.
void decode(const Message& message, const u8* bytes, u32 length, const DecodeOptions& options, Outcome& outcome);

// Models the exported free on a decoded `record`: appends to `trace` and leaves the record as the free would.
void free_unpacked(Record& record, Trace& trace);

}   // namespace kesto::model
