#include "fuzz/inputs.h"

#include "tests/support/against_model.h"

namespace kesto::fuzz {

using tests::DecodeCheck;
using tests::expected_catalogue;

std::string run_decode_input(const std::uint8_t* input, std::size_t size)
{
    const Message* const message = message_of(expected_catalogue(), input, size);
    if (message == nullptr || size < before_bytes || size > longest_input)
        return {};
    static DecodeCheck check(1 << 16);
    check.packs_again = true;
    constexpr std::uint32_t largest_allocation = 1 << 14;
    check.faults = {64, true, largest_allocation};
    const std::uint8_t failing = input[id_bytes];
    if (failing != 0)
        check.faults = {(failing & 0x7FU) - 1, failing >= 0x80, largest_allocation};
    return check.check(*message, {input + before_bytes, input + size});
}

std::string run_record_input(const std::uint8_t* input, std::size_t size)
{
    const Message* const message = message_of(expected_catalogue(), input, size);
    if (message == nullptr || size > longest_input)
        return {};
    static DecodeCheck check(1 << 16);
    const Record record = record_from(*message, input, size);
    std::string fault = tests::check_encoders(record);
    const Record decoded = as_decoded(record);
    check.expected = &decoded;
    for (const Bytes& bytes : tests::both_forms(record))
        if (fault.empty())
            fault = check.check(*message, bytes);
    return fault;
}

}   // namespace kesto::fuzz
