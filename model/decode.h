#pragma once
// The decoder as a plain walk over the slots: what it makes of any byte string, what it says and asks for on the way,
// and why it stops.

#include "model/record.h"
#include "model/trace.h"

namespace kesto::model {

// From the root record down to a field: the slots taken, and in a vector the element.
struct Path {
    struct Step {
        u32 slot = 0;
        i32 element = -1;   // -1 where there is none, or none yet
    };
    std::array<Step, greatest_depth + 1> steps{};
    u32 length = 0;
};

std::string to_text(const Path& path);   // such as f1[0].f3

// With the names of fields: ".f1[0].year"; "." for the root record.
std::string path_text(const Message& root, const Path& path);

// A read of `width` bytes at `position` would have to end at or before the length: *_end. A position that a cell
// leads to has passed 2^32 (*_wrap) or the length (*_range).
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
    count_range,     // a vector's count, or a u32 array's, of 0x40000000 or more
    body_end,        // the payload, or a vector's element cells
    nested_wrap,     // a nested table's position
    element_wrap,    // an element's position
    element_null,    // an element of an array whose size has come to 0
    element_block,   // an element that would pass the end of its array, whose size has wrapped
    allocation,
};

const char* name_of(Refusal refusal);

struct Failure {
    Refusal refusal = Refusal::none;
    Routine routine;    // in which it was found
    Path path;          // empty for the root table
    u32 position = 0;   // of the number that is refused, 0 for a parameter
    u64 value = 0;      // the number compared
    u64 limit = 0;      // and what it was compared with
    i32 log = -1;       // which event of the trace tells of it; -1 for none

    explicit operator bool() const { return refusal != Refusal::none; }
};

std::string to_text(const Failure& failure);

// Which allocations give null. The allocator of a test can be driven by the same numbers.
struct AllocationFaults {
    static constexpr u32 never = 0xffffffffU;

    u32 at = never;              // the one of this number, the first being 0
    bool all_after = false;      // and every later one
    u32 largest = 0xffffffffU;   // and any greater than this

    bool refuses(u32 number, u32 size) const { return number == at || (all_after && number > at) || size > largest; }
};

// The pieces of a byte string, in the order in which they are read.
enum class Piece : u8 {
    root,
    vtable_offset,
    vtable_length,
    table_length,   // looked at by no reader; shown where the vtable holds it
    slot,
    scalar,
    cell,
    count,
    payload,
    element_cell,
};

const char* name_of(Piece piece);

struct Item {
    Piece piece = Piece::root;
    u32 position = 0;
    u32 length = 0;
    u64 value = 0;                      // not of a payload
    const Message* message = nullptr;   // of the table
    const Path* path = nullptr;         // to the field, or to the table
};

struct Walk {
    virtual void read(const Item& item) = 0;

protected:
    ~Walk() = default;
};

struct DecodeOptions {
    u32 pointer_width = host_pointer_width;   // gives the size of an element's record
    AllocationFaults faults;
    bool record_null = false;
    bool contents = true;   // false: no record of use, and a trace of logs only, which stay small whatever is asked for
    Walk* walk = nullptr;
};

struct Outcome {
    Record record;            // holds nothing of value if untouched
    bool untouched = false;   // the caller's record is as it was
    Failure failure;          // why the decode failed; none if it succeeded
    Failure ignored;          // the last failure of a nested record whose outcome is ignored
    Trace trace;
    u32 allocations = 0;   // asked for
    u64 memory = 0;        // in all of them
    u32 record_size = 0;   // returned in every case
};

// `outcome` may be used again and again; it keeps its storage. A null `bytes` is a case like any other.
void decode(const Message& message, const u8* bytes, u32 length, const DecodeOptions& options, Outcome& outcome);

// The exported free on a decoded `record`: appends to `trace` and leaves the record as the free does.
void free_unpacked(Record& record, Trace& trace);

}   // namespace kesto::model
