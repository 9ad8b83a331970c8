#include "fuzz/one_input.h"

#include <algorithm>

#include "fuzz/inputs.h"
#include "tests/support/against_reference.h"

namespace kesto::fuzz {

using tests::DecodeCheck;
using tests::transcribed;

namespace {

constexpr std::uint32_t most_allocations = 64;
constexpr std::uint32_t largest_allocation = 1 << 14;

}   // namespace

std::string run_decode_input(const std::uint8_t* input, std::size_t size)
{
    const Message* const message = message_of(transcribed(), input, size);
    if (message == nullptr || size < before_bytes || size > longest_input)
        return {};
    static DecodeCheck check(1 << 16);
    check.packs_again = true;
    check.faults = {most_allocations, true, largest_allocation};
    const std::uint8_t failing = input[id_bytes];
    if (failing != 0)
        check.faults = {(failing & 0x7FU) - 1, failing >= 0x80, largest_allocation};
    const std::uint32_t length = static_cast<std::uint32_t>(size - before_bytes);
    std::uint8_t* const placed = check.buffer().place(length);
    std::copy_n(input + before_bytes, length, placed);
    return check.check(*message, placed, length);
}

std::string run_record_input(const std::uint8_t* input, std::size_t size)
{
    const Message* const message = message_of(transcribed(), input, size);
    if (message == nullptr || size > longest_input)
        return {};
    static DecodeCheck check(1 << 16);
    const Record record = record_from(*message, input, size);
    std::string fault = tests::check_encoders(record);
    const Record decoded = as_decoded(record);
    check.expected = &decoded;
    if (fault.empty())
        fault = check.check(*record.message, reference::compact_form(record));
    if (fault.empty() && record.message->fixed_length != 0)
        fault = check.check(*record.message, reference::fixed_form(record));
    return fault;
}

}   // namespace kesto::fuzz
