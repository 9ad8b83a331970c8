// The records that are measured: by message, number of rows and fill, the same on every run.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "bench/contender.h"
#include "model/memory.h"

namespace kesto::bench {

enum class Fill : u8 {
    full,      // no zero scalar
    sparse,    // three of five scalars zero, in a pattern of its own for each record and row
    varied,    // like sparse, in so many records that no processor learns their patterns
    uniform,   // three of five scalars zero, the same ones in all rows of all records
};

const char* name_of(Fill fill);

struct Shape {
    const char* message;
    u32 rows;          // 0 for a message without rows
    u32 text, block;   // bytes of each
    bool varied;       // is measured with these fills as well
    bool uniform;

    std::string name() const { return rows == 0 ? message : message + (":" + std::to_string(rows)); }
};

extern const std::vector<Shape> shapes;

// Records that are used in turn: 64, or as many as stay within 256 KiB together with their bytes; varied ones are
// 16384, or as many as stay within 4 MiB.
struct RecordSet {
    Shape shape;
    Fill fill;
    std::vector<model::Record> records;
    std::vector<std::unique_ptr<model::RecordMemory>> memory;   // of the same

    std::string name() const { return shape.name() + "/" + name_of(fill); }
};

RecordSet make_records(const Shape& shape, Fill fill);
std::vector<RecordSet> make_all_records();   // of all shapes, in each fill

constexpr u32 record_bytes = 1024;   // room for any decoded record, without what it owns

// A byte string for each record of a set.
using ByteStrings = std::vector<std::vector<u8>>;

}   // namespace kesto::bench
