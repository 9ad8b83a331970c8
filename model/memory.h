#pragma once
// Records as the library's callers hold them: C structures of the host, with owned blocks from malloc.

#include <vector>

#include "model/record.h"

namespace kesto::model {

// An array of structures of one message. Every block, including the array, has exactly the size it needs, so that an
// address checker detects every access beyond it.
class RecordMemory {
public:
    explicit RecordMemory(const Record& record) : RecordMemory(&record, 1) {}
    explicit RecordMemory(const std::vector<Record>& records) : RecordMemory(records.data(), records.size()) {}
    RecordMemory(const RecordMemory&) = delete;
    RecordMemory& operator=(const RecordMemory&) = delete;
    ~RecordMemory();

    void* data() const { return data_; }

private:
    RecordMemory(const Record* records, std::size_t count);
    u8* block(std::size_t size);
    void fill(const Record& record, u8* at);
    void fill_owned_block(const Slot& slot, const Field& field, u8* at);

    void* data_ = nullptr;
    std::vector<void*> blocks_;
};

// Reads the structure at `memory` into a tree. Text ends at its NUL.
Record from_memory(const Message& message, const void* memory);

// The first difference between the structure at `memory` and `expected`; empty if there is none. Text is compared over
// its whole expected length and must be followed by a NUL.
std::string difference(const Record& expected, const void* memory);

}   // namespace kesto::model
