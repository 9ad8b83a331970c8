// Records of any message, filled and compared by what the catalogue says of them.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "tools/catalogue.h"

// `count` records end to end, the same in every process: no byte of a number is zero, fields near each other differ,
// every text and block is there, and vectors have two or three elements.
class Sample
{
public:
    Sample(const kesto::tools::MessageInfo& message, std::uint32_t count);
    Sample(const Sample&) = delete;   // records point into their own memory
    Sample& operator=(const Sample&) = delete;

    const std::uint8_t* record(std::uint32_t i) const { return records_ + std::size_t{i} * record_size_; }

    // Texts, blocks and vectors of one record, at all depths.
    std::uint32_t blocks(std::uint32_t i) const { return marks_[i].blocks; }

    // Changes one byte in each record's content.
    void damage();

private:
    struct Mark {
        std::uint32_t blocks;
        std::uint8_t* last_byte;   // of the content, wherever it is stored
    };

    void fill(const kesto::tools::MessageInfo& message, std::uint8_t* record);
    void fill_number(std::uint8_t* field, std::uint32_t width);
    std::uint8_t* fill_letters(std::uint32_t count);
    std::uint8_t* allocate(std::size_t bytes);
    std::uint32_t next();

    std::deque<std::vector<std::uint64_t>> memory_;   // 64-bit items for their alignment; grows without moving them
    std::vector<Mark> marks_;
    std::uint32_t record_size_;
    std::uint8_t* records_;
    std::uint8_t* last_byte_ = nullptr;
    std::uint32_t state_;
};

// The path of the first field in which `is` is not `expected`, as "f1.items[0].f3"; empty when all are alike. Pointers
// in `is` may be null, as a failed decode leaves them; those in `expected` are not.
std::string first_difference(const kesto::tools::MessageInfo& message, const std::uint8_t* is,
                             const std::uint8_t* expected);
