// Compares the library with the model, for one message and one byte string or record at a time.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/decode.h"
#include "model/encode.h"
#include "model/hex.h"
#include "tests/support/figures.h"
#include "tools/operations.h"

namespace kesto::tests {

using tools::operations;
using tools::Operations;

using ByteString = std::vector<std::uint8_t>;

// The compact form, and the fixed form if there is one.
std::vector<ByteString> both_forms(const model::Record& record);

// A buffer that ends at an inaccessible page, so that a read past its end crashes.
class GuardedBuffer {
public:
    explicit GuardedBuffer(std::size_t capacity);
    ~GuardedBuffer();
    GuardedBuffer(const GuardedBuffer&) = delete;
    GuardedBuffer& operator=(const GuardedBuffer&) = delete;

    // The last `size` bytes before the end.
    std::uint8_t* place(std::size_t size) const { return end_ - size; }
    std::size_t capacity() const { return capacity_; }

private:
    std::size_t capacity_;
    std::size_t mapped_;
    std::uint8_t* start_;
    std::uint8_t* end_;
};

// Decodes byte strings with the library and the model, and compares records, logs, allocations and releases of the
// decoder and of the subsequent free. Holds the verdict of libkesto_verify.so against the model's, too.
class DecodeCheck {
public:
    explicit DecodeCheck(std::size_t max_bytes = 1 << 20);

    model::AllocationFaults faults;
    const model::Record* expected = nullptr;   // if set, decoding must succeed with this record
    bool packs_again = false;                  // also packs the decoded record, up to 64 KiB

    // Both return the difference; empty if there is none. `bytes` may be changed in place between calls of the second.
    std::string check(const model::Message& message, const ByteString& bytes);
    std::string check(const model::Message& message, const std::uint8_t* bytes, std::uint32_t length);

    // The model's outcome for the last byte string.
    const model::Outcome& outcome() const { return outcome_; }

    const GuardedBuffer& buffer() const { return buffer_; }

private:
    std::string compare(const Operations& library, std::uint32_t returned);
    std::string pack_again(const Operations& library, const std::uint8_t* record);

    GuardedBuffer buffer_;
    GuardedBuffer packed_;
    GuardedBuffer storage_;
    model::Outcome outcome_;
};

// Packs and sends a record with the library and compares all bytes with the model's. Empty if there is no difference.
std::string check_encoders(const model::Record& record);

}   // namespace kesto::tests
