// The measured records, by message, number of rows and fill. They are the same in every run.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "bench/contender.h"
#include "model/memory.h"

namespace kesto::bench {

enum class Fill : u8 {
    full,      // no zero scalar
    sparse,    // three of five scalars zero, in a different pattern for each record and row
    varied,    // like sparse, but too many records for branch prediction to learn the patterns
    uniform,   // three of five scalars zero, the same ones in all rows of all records
};

const char* name_of(Fill fill);

struct Shape {
    const char* message;
    u32 rows;          // 0 for a message without rows
    u32 text, block;   // length of each in bytes
    bool varied;       // whether it is measured with these fills, too
    bool uniform;

    std::string name() const { return rows == 0 ? message : message + (":" + std::to_string(rows)); }
};

extern const std::vector<Shape> shapes;

// Records that are used in turn: 64, or as many as fit in 256 KiB together with their byte strings; for varied ones
// 16384, or as many as fit in 4 MiB.
struct RecordSet {
    Shape shape;
    Fill fill;
    std::vector<model::Record> records;
    std::vector<std::unique_ptr<model::RecordMemory>> memory;   // of the same records

    std::string name() const { return shape.name() + "/" + name_of(fill); }
};

RecordSet make_records(const Shape& shape, Fill fill);
std::vector<RecordSet> make_all_records();   // all shapes with each fill

constexpr u32 record_bytes = 1024;   // enough for any decoded record, without its owned blocks

// A byte string for each record of a set.
using ByteStrings = std::vector<std::vector<u8>>;

}   // namespace kesto::bench
