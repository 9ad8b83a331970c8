#include "tests/support/against_model.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "kesto_verify.h"
#include "model/memory.h"
#include "model/view.h"
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
    const auto at = std::mismatch(is.begin(), is.end(), expected.begin(), expected.end()).first - is.begin();
    return "first difference at position " + std::to_string(at) + "\n  is       " + model::to_hex(is) +
           "\n  expected " + model::to_hex(expected);
}

// True if all bytes between fields are zero, as the record is cleared before it is filled.
bool gaps_are_zero(const model::Message& message, const std::uint8_t* record)
{
    const model::MemoryView view(message, record);
    const model::RecordLayout& layout = message.layout(model::host_pointer_width);
    const auto zero = [&](std::uint32_t from, std::uint32_t to) {
        return std::all_of(record + from, record + to, [](std::uint8_t byte) { return byte == 0; });
    };
    std::uint32_t end = 0;
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        const model::Slot& slot = message.slots[k];
        const std::uint32_t at = layout.offsets[k];
        const bool counted = slot.kind == model::Kind::bytes || slot.kind == model::Kind::vector;
        if (!zero(end, at) || (counted && !zero(at + 4, at + sizeof(void*))))
            return false;
        end = at + member_size(slot, model::host_pointer_width);
        if (slot.kind == model::Kind::table && !gaps_are_zero(*slot.nested, record + at))
            return false;
        const bool elements = slot.kind == model::Kind::vector && view.present(k);
        for (std::uint32_t i = 0; elements && i < view.count(k); ++i)
            if (!gaps_are_zero(*slot.nested,
                               view.pointer(k) + std::size_t{slot.nested->layout(sizeof(void*)).size} * i))
                return false;
    }
    return zero(end, layout.size);
}

// Avoids a search by name, which would take longer than a decode.
const Operations& operations_of(const model::Message& message)
{
    static const std::vector<const Operations*> by_number = [] {
        std::vector<const Operations*> all;
        for (const model::Message& each : expected_catalogue().messages)
            all.push_back(&operations(each.name));
        return all;
    }();
    return *by_number[message.index];
}

std::string fault_of_encoders(const Operations& library, const model::Record& record)
{
    const model::Message& message = *record.message;
    const model::RecordMemory memory(record);
    ByteString expected = model::compact_form(record);
    const std::uint32_t size = model::reported_size(model::exact_size(record));
    services().start();

    // Packs into a buffer of exactly the size, and into a larger one, where the packer need not measure first. Bytes
    // that the size counts but the packer does not write stay untouched, and so do the bytes after them.
    static const GuardedBuffer buffer(1 << 20);
    for (const std::uint32_t capacity : {size, static_cast<std::uint32_t>(buffer.capacity())}) {
        std::uint8_t* const packed = buffer.place(capacity);
        expected.resize(std::min(capacity, size + 64), untouched);
        std::memset(packed, untouched, expected.size());
        std::uint32_t length = capacity;
        if (library.pack(memory.data(), packed, &length) != 0 || length != size)
            return "packed " + std::to_string(length) + " bytes, expected " + std::to_string(size);
        const std::string fault = first_difference({packed, packed + expected.size()}, expected);
        if (!fault.empty())
            return "packed into " + std::to_string(capacity) + " bytes: " + fault;
    }
    std::uint32_t length = size - 1;
    if (library.pack(memory.data(), buffer.place(length), &length) != -1 || length != size - 1)
        return "packed into a buffer one byte too small";

    // Sends: in fixed form if there is one, otherwise in compact form with zeros for those bytes.
    expected = both_forms(record).back();
    if (message.fixed_length == 0)
        expected.resize(size, 0);
    mesh().reset();
    mesh().send_result = 7;
    if (library.sendsingle(3, memory.data(), 0, 0) != 7 || mesh().sends.size() != 1 || mesh().sends[0].sent.size() != 1)
        return "not sent exactly once";
    const SendCall& call = mesh().sends[0];
    if (call.to_destination || call.channel != 3 || call.sent[0].id != message.id)
        return "sent with wrong arguments";
    const std::string fault = first_difference(call.sent[0].bytes, expected);
    return fault.empty() ? services().difference({}) : "sent: " + fault;
}

// libkesto_verify.so about the same bytes. It does not foresee that memory is refused.
std::string difference_of_verdict(const model::Message& message, const std::uint8_t* bytes, std::uint32_t length,
                                  const model::Failure& failure)
{
    if (failure.refusal == model::Refusal::allocation)
        return {};
    kesto_refusal refusal;
    const int verdict = kesto_verify(message.id, bytes, length, &refusal);
    if (verdict != (failure ? KESTO_REFUSED : KESTO_ACCEPTED) ||
        kesto_verify(message.id, bytes, length, nullptr) != verdict)
        return "verdict: " + std::to_string(verdict);
    if (verdict == KESTO_ACCEPTED)
        return {};
    model::Path path;
    path.length = refusal.steps;
    for (std::uint32_t i = 0; i < refusal.steps; ++i)
        path.steps[i] = {refusal.path[i].slot, refusal.path[i].element};
    const std::string found = kesto_check_name(refusal.check), at = to_text(path);
    if (found == name_of(failure.refusal) && at == to_text(failure.path) && refusal.position == failure.position)
        return {};
    return "verdict: " + found + " at " + at + ", position " + std::to_string(refusal.position);
}

}   // namespace

std::vector<ByteString> both_forms(const model::Record& record)
{
    std::vector<ByteString> forms{model::compact_form(record)};
    if (record.message->fixed_length != 0)
        forms.push_back(model::fixed_form(record));
    return forms;
}

GuardedBuffer::GuardedBuffer(std::size_t capacity) : capacity_(capacity)
{
    constexpr std::size_t guard = 0x20000;   // whole pages, and larger than any 16-bit offset
    mapped_ = (capacity + guard - 1) / guard * guard + guard;
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

DecodeCheck::DecodeCheck(std::size_t max_bytes) : buffer_(max_bytes), packed_(1 << 16), storage_(largest_record) {}

std::string DecodeCheck::check(const model::Message& message, const ByteString& bytes)
{
    std::uint8_t* const placed = buffer_.place(bytes.size());
    std::copy(bytes.begin(), bytes.end(), placed);
    return check(message, placed, static_cast<std::uint32_t>(bytes.size()));
}

std::string DecodeCheck::check(const model::Message& message, const std::uint8_t* bytes, std::uint32_t length)
{
    const Operations& library = operations_of(message);
    model::DecodeOptions options;
    options.faults = faults;
    model::decode(message, bytes, length, options, outcome_);

    services().start();
    services().faults = faults;
    std::uint8_t* const record = storage_.place(library.record_size);
    std::memset(record - 8, untouched, library.record_size + 8);
    const std::uint32_t returned = library.unpack(bytes, length, record);
    std::string fault = compare(library, returned);
    if (fault.empty())
        fault = difference_of_verdict(message, bytes, length, outcome_.failure);
    if (!fault.empty())
        fault = message.name + ": " + fault + "\n  model: " + to_text(outcome_.failure);
    return fault;
}

std::string DecodeCheck::compare(const Operations& library, std::uint32_t returned)
{
    std::uint8_t* const record = storage_.place(library.record_size);
    if (returned != library.record_size || returned != outcome_.record_size)
        return "returned " + std::to_string(returned);
    if (std::any_of(record - 8, record, [](std::uint8_t byte) { return byte != untouched; }))
        return "wrote before the record";
    std::string fault = services().difference(outcome_.trace);
    if (!fault.empty())
        return "decoding: " + fault;
    if (outcome_.untouched) {
        const bool touched =
            std::any_of(record, record + returned, [](std::uint8_t byte) { return byte != untouched; });
        return touched ? "the record was touched" : "";
    }
    fault = model::difference(outcome_.record, record);
    if (!fault.empty())
        return "record: " + fault;
    if (!gaps_are_zero(*outcome_.record.message, record))
        return "bytes between the fields are not zero";

    if (expected != nullptr)
        fault = outcome_.failure ? "refused" : model::difference(*expected, record);
    if (!fault.empty())
        return "expected record: " + fault;
    if (packs_again && !outcome_.failure)
        fault = pack_again(library, record);
    if (!fault.empty())
        return "packed again: " + fault;

    const std::uint32_t live = services().live_blocks();
    if (outcome_.failure && live != 0)
        return std::to_string(live) + " blocks left after a failure";
    model::free_unpacked(outcome_.record, outcome_.trace);
    library.free_unpacked(record);
    fault = services().difference(outcome_.trace);
    if (!fault.empty())
        return "freeing: " + fault;
    fault = model::difference(outcome_.record, record);
    if (!fault.empty())
        return "freed record: " + fault;
    return services().live_blocks() == 0 ? "" : "blocks left after the free";
}

std::string DecodeCheck::pack_again(const Operations& library, const std::uint8_t* record)
{
    const std::uint64_t size = model::exact_size(outcome_.record);
    if (model::reported_size(size) == 0) {   // an ignored refusal of a nested table may leave such a record
        auto length = static_cast<std::uint32_t>(packed_.capacity());
        return library.pack(record, packed_.place(length), &length) == -1 ? "" : "packed a vector with a null pointer";
    }
    if (size > packed_.capacity())
        return {};
    std::uint32_t length = static_cast<std::uint32_t>(size);
    std::uint8_t* const packed = packed_.place(length);
    if (library.pack(record, packed, &length) != 0 || length != size)
        return "length " + std::to_string(length) + ", expected " + std::to_string(size);
    return first_difference({packed, packed + size}, model::compact_form(outcome_.record));
}

std::string check_encoders(const model::Record& record)
{
    const std::string fault = fault_of_encoders(operations_of(*record.message), record);
    return fault.empty() ? "" : record.message->name + ", " + fault;
}

}   // namespace kesto::tests
