// Holds the library against the model, one message and one byte string or record at a time.
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

// The compact form, and the fixed one where there is one.
std::vector<ByteString> both_forms(const model::Record& record);

// A buffer that ends where memory does, so that a read after it ends the process.
class GuardedBuffer {
public:
    explicit GuardedBuffer(std::size_t most);
    ~GuardedBuffer();
    GuardedBuffer(const GuardedBuffer&) = delete;
    GuardedBuffer& operator=(const GuardedBuffer&) = delete;

    // The last `size` bytes before the end.
    std::uint8_t* place(std::size_t size) const { return end_ - size; }
    std::size_t most() const { return most_; }

private:
    std::size_t most_;
    std::size_t mapped_;
    std::uint8_t* start_;
    std::uint8_t* end_;
};

// Decodes byte strings with the library and with the model and compares records, logs, allocations and releases, of
// the decoder and of the free after it.
class DecodeCheck {
public:
    explicit DecodeCheck(std::size_t most_bytes = 1 << 20);

    model::AllocationFaults faults;
    const model::Record* expected = nullptr;   // when set, what a decode must succeed with
    bool packs_again = false;                  // also packs what was decoded, up to 64 KiB

    // Both give what differs, empty where nothing does. `bytes` may be changed in place between calls of the second.
    std::string check(const model::Message& message, const ByteString& bytes);
    std::string check(const model::Message& message, const std::uint8_t* bytes, std::uint32_t length);

    // The outcome of the model for the last one.
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

// Packs and sends a record with the library and compares all bytes with the model's. Empty where nothing differs.
std::string check_encoders(const model::Record& record);

}   // namespace kesto::tests
