#include "tests/support/against_reference.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "reference/memory.h"
#include "reference/view.h"
#include "tests/support/mesh_double.h"
#include "tests/support/services_double.h"

namespace kesto::tests {

namespace {

constexpr std::uint8_t untouched = 0xC3;
constexpr std::size_t largest_record = 4096;

std::string first_difference(const ByteString& is, const ByteString& expected)
{
    if (is == expected)
        return {};
    const std::size_t at = static_cast<std::size_t>(
        std::mismatch(is.begin(), is.begin() + static_cast<std::ptrdiff_t>(std::min(is.size(), expected.size())),
                      expected.begin())
            .first -
        is.begin());
    return "first difference at position " + std::to_string(at) + "\n  is       " + hex(is) + "\n  expected " +
           hex(expected);
}

// Whether all bytes between fields are zero, as the record is cleared before it is filled.
bool gaps_are_zero(const reference::Message& message, const std::uint8_t* record)
{
    const reference::MemoryView view(message, record);
    const reference::RecordLayout& layout = message.layout(reference::host_pointer_width);
    std::uint32_t at = 0;
    const auto zero_up_to = [&](std::uint32_t end) {
        return std::all_of(record + at, record + end, [](std::uint8_t byte) { return byte == 0; });
    };
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        const reference::Slot& slot = message.slots[k];
        if (!zero_up_to(layout.offsets[k]))
            return false;
        at = layout.offsets[k];
        switch (slot.kind) {
        case reference::Kind::scalar: at += slot.width; break;
        case reference::Kind::array: at += slot.width * slot.count; break;
        case reference::Kind::string: at += sizeof(void*); break;
        case reference::Kind::table:
            if (!gaps_are_zero(*slot.nested, record + at))
                return false;
            at += slot.nested->layout(reference::host_pointer_width).size;
            break;
        case reference::Kind::vector:
            for (std::uint32_t i = 0; view.present(k) && i < view.count(k); ++i)
                if (!gaps_are_zero(*slot.nested,
                                   view.pointer(k) +
                                       std::size_t{slot.nested->layout(reference::host_pointer_width).size} * i))
                    return false;
            [[fallthrough]];
        case reference::Kind::bytes:
            at += 4;
            if (!zero_up_to(layout.offsets[k] + sizeof(void*)))
                return false;
            at = layout.offsets[k] + 2 * sizeof(void*);
            break;
        }
    }
    return zero_up_to(layout.size);
}

// Without a search by name, which would take longer than a decode.
const Operations& operations_of(const reference::Message& message)
{
    static const std::vector<const Operations*> by_number = [] {
        std::vector<const Operations*> all;
        for (const reference::Message& each : transcribed().messages)
            all.push_back(&operations(each.name));
        return all;
    }();
    return *by_number[message.index];
}

}   // namespace

std::string hex(const ByteString& bytes)
{
    std::string text;
    char two[3];
    for (const std::uint8_t byte : bytes) {
        std::snprintf(two, sizeof two, "%02x", byte);
        text += two;
    }
    return text;
}

GuardedBuffer::GuardedBuffer(std::size_t most) : most_(most)
{
    constexpr std::size_t guard = 0x20000;   // whole pages, and more than an offset of 16 bits leads over
    mapped_ = (most + guard - 1) / guard * guard + guard;
    void* const memory =
        mmap(nullptr, mapped_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED || mprotect(static_cast<std::uint8_t*>(memory) + mapped_ - guard, guard, PROT_NONE) != 0) {
        std::perror("guarded buffer");
        std::exit(1);
    }
    start_ = static_cast<std::uint8_t*>(memory);
    end_ = start_ + mapped_ - guard;
}

GuardedBuffer::~GuardedBuffer() { munmap(start_, mapped_); }

DecodeCheck::DecodeCheck(std::size_t most_bytes) : buffer_(most_bytes), packed_(1 << 16), storage_(largest_record) {}

std::string DecodeCheck::check(const reference::Message& message, const ByteString& bytes)
{
    std::uint8_t* const placed = buffer_.place(bytes.size());
    std::copy(bytes.begin(), bytes.end(), placed);
    return check(message, placed, static_cast<std::uint32_t>(bytes.size()));
}

std::string DecodeCheck::check(const reference::Message& message, const std::uint8_t* bytes, std::uint32_t length)
{
    ++decodes_;
    const Operations& library = operations_of(message);
    reference::DecodeOptions options;
    options.faults = faults;
    reference::decode(message, bytes, length, options, outcome_);

    services().start();
    services().faults = faults;
    std::uint8_t* const record = storage_.place(library.record_size);
    std::memset(record - 8, untouched, library.record_size + 8);
    const std::uint32_t returned = library.unpack(bytes, length, record);
    std::string fault = compare(library, returned);
    if (!fault.empty())
        fault = message.name + ": " + fault + "\n  reference: " + to_text(outcome_.failure);
    return fault;
}

std::string DecodeCheck::compare(const Operations& library, std::uint32_t returned)
{
    std::uint8_t* const record = storage_.place(library.record_size);
    if (returned != library.record_size || returned != outcome_.record_size)
        return "returned " + std::to_string(returned);
    if (std::any_of(record - 8, record, [](std::uint8_t byte) { return byte != untouched; }))
        return "wrote in front of the record";
    std::string fault = services().difference(outcome_.trace);
    if (!fault.empty())
        return "decoding: " + fault;
    if (outcome_.untouched) {
        const bool touched =
            std::any_of(record, record + returned, [](std::uint8_t byte) { return byte != untouched; });
        return touched ? "the record was touched" : "";
    }
    fault = reference::difference(outcome_.record, record);
    if (!fault.empty())
        return "record: " + fault;
    if (!gaps_are_zero(*outcome_.record.message, record))
        return "bytes between the fields are not zero";

    if (expected != nullptr)
        fault = outcome_.failure ? "refused" : reference::difference(*expected, record);
    if (!fault.empty())
        return "expected record: " + fault;
    if (packs_again && !outcome_.failure)
        fault = pack_again(library, record);
    if (!fault.empty())
        return "packed again: " + fault;

    const std::uint32_t live = services().live_blocks();
    if (outcome_.failure && live != 0)
        return std::to_string(live) + " blocks left after a failure";
    reference::free_unpacked(outcome_.record, outcome_.trace);
    library.free_unpacked(record);
    fault = services().difference(outcome_.trace);
    if (!fault.empty())
        return "freeing: " + fault;
    fault = reference::difference(outcome_.record, record);
    if (!fault.empty())
        return "freed record: " + fault;
    return services().live_blocks() == 0 ? "" : "blocks left after the free";
}

std::string DecodeCheck::pack_again(const Operations& library, const std::uint8_t* record)
{
    const std::uint64_t size = reference::exact_size(outcome_.record);
    if (reference::reported_size(size) == 0) {   // a table whose refusal is ignored may leave such a record
        auto length = static_cast<std::uint32_t>(packed_.most());
        return library.pack(record, packed_.place(length), &length) == -1 ? "" : "packed a vector without elements";
    }
    if (size > packed_.most())
        return {};
    std::uint32_t length = static_cast<std::uint32_t>(size);
    std::uint8_t* const packed = packed_.place(length);
    if (library.pack(record, packed, &length) != 0 || length != size)
        return "length " + std::to_string(length) + ", expected " + std::to_string(size);
    return first_difference({packed, packed + size}, reference::compact_form(outcome_.record));
}

std::string check_encoders(const reference::Record& record)
{
    const reference::Message& message = *record.message;
    const Operations& library = operations_of(message);
    const reference::RecordMemory memory(record);
    const ByteString compact = reference::compact_form(record);
    const std::uint32_t size = reference::reported_size(reference::exact_size(record));
    services().start();

    // Packed into a buffer of just the size: what the size counts and the packer does not write is left alone.
    static const GuardedBuffer buffer(1 << 20);
    std::uint8_t* const packed = buffer.place(size);
    std::memset(packed, untouched, size);
    std::uint32_t length = size;
    if (library.pack(memory.data(), packed, &length) != 0 || length != size)
        return message.name + ": packed " + std::to_string(length) + " bytes, expected " + std::to_string(size);
    ByteString expected = compact;
    expected.resize(size, untouched);
    std::string fault = first_difference({packed, packed + size}, expected);
    if (!fault.empty())
        return message.name + ", packed: " + fault;

    // With room for more, where the packer need not measure first: the same, and nothing behind it.
    const std::uint32_t margin = 64;
    std::uint8_t* const roomy = buffer.place(static_cast<std::uint32_t>(buffer.most()));
    std::memset(roomy, untouched, size + margin);
    length = static_cast<std::uint32_t>(buffer.most());
    if (library.pack(memory.data(), roomy, &length) != 0 || length != size)
        return message.name + ": packed " + std::to_string(length) + " bytes with room for more, expected " +
               std::to_string(size);
    ByteString behind = expected;
    behind.resize(size + margin, untouched);
    fault = first_difference({roomy, roomy + size + margin}, behind);
    if (!fault.empty())
        return message.name + ", packed with room for more: " + fault;

    length = size - 1;
    if (library.pack(memory.data(), packed, &length) != -1 || length != size - 1)
        return message.name + ": packed with a byte too few";

    // Sent: in fixed form where there is one, else compact with zeros for those bytes.
    if (message.fixed_length != 0) {
        expected = reference::fixed_form(record);
    } else {
        expected = compact;
        expected.resize(size, 0);
    }
    mesh().reset();
    mesh().send_result = 7;
    if (library.sendsingle(3, memory.data(), 0, 0) != 7 || mesh().sends.size() != 1 || mesh().sends[0].sent.size() != 1)
        return message.name + ": not sent once";
    const SendCall& call = mesh().sends[0];
    if (call.to_destination || call.channel != 3 || call.sent[0].id != message.id)
        return message.name + ": sent with other arguments";
    fault = first_difference(call.sent[0].bytes, expected);
    if (!fault.empty())
        return message.name + ", sent: " + fault;
    fault = services().difference({});
    return fault.empty() ? "" : message.name + ", encoding: " + fault;
}

}   // namespace kesto::tests
