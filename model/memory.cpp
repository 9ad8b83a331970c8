#include "model/memory.h"

#include <cstdlib>
#include <cstring>

#include "model/text.h"
#include "model/view.h"

namespace kesto::model {
namespace {

template <typename Value>
void store(u8* at, Value value)
{
    std::memcpy(at, &value, sizeof value);
}

void store_scalar(u8* at, u64 value, u32 width)
{
    if (width == 1)
        store(at, static_cast<u8>(value));
    if (width == 2)
        store(at, static_cast<u16>(value));
    if (width == 4)
        store(at, static_cast<u32>(value));
    if (width == 8)
        store(at, value);
}

Record tree_of(const MemoryView& view);

void read_owned_block(const MemoryView& view, std::size_t k, Field& field)
{
    const Slot& slot = view.message().slots[k];
    field.present = view.present(k);
    if (slot.kind != Kind::string)
        field.number = view.count(k);
    if (!field.present)
        return;
    const u32 length = slot.kind == Kind::string ? view.text_length(k) : view.count(k);
    if (slot.kind == Kind::vector) {
        for (u32 i = 0; i < length; ++i)
            field.records.push_back(tree_of(view.element(k, i)));
    } else {
        field.octets.assign(view.octets(k), view.octets(k) + length);
    }
}

Record tree_of(const MemoryView& view)
{
    Record record = zero_record(view.message());
    for (std::size_t k = 0; k < record.fields.size(); ++k) {
        const Slot& slot = view.message().slots[k];
        Field& field = record.fields[k];
        if (slot.kind == Kind::scalar) {
            field.number = view.scalar(k);
        } else if (slot.kind == Kind::table) {
            field.records[0] = tree_of(view.nested(k));
        } else if (slot.kind == Kind::array && slot.width == 1) {
            field.octets.assign(view.octets(k), view.octets(k) + slot.count);
        } else if (slot.kind == Kind::array) {
            for (u32 i = 0; i < slot.count; ++i)
                field.words[i] = view.word(k, i);
        } else {
            read_owned_block(view, k, field);
        }
    }
    return record;
}

std::string difference_from(const Record& expected, const MemoryView& view);

std::string difference_in_octets(const std::vector<u8>& expected, const u8* octets)
{
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (expected[i] == octets[i])
            continue;
        return join({"[", std::to_string(i), "]: ", std::to_string(expected[i]), ", ", std::to_string(octets[i])});
    }
    return {};
}

std::string difference_in_owned_block(const Slot& slot, const Field& expected, const MemoryView& view, std::size_t k)
{
    if (expected.present != view.present(k))
        return expected.present ? " is null" : " is not null";
    if (slot.kind != Kind::string && expected.number != view.count(k)) {
        return join({": ", std::to_string(expected.number), ", ", std::to_string(view.count(k))});
    }
    if (!expected.present)
        return {};
    if (slot.kind != Kind::vector) {
        const std::string found = difference_in_octets(expected.octets, view.octets(k));
        if (!found.empty())
            return found;
        if (slot.kind == Kind::string && view.octets(k)[expected.octets.size()] != 0)
            return " has no NUL";
        return {};
    }
    for (u32 i = 0; i < expected.number; ++i) {
        const std::string found = difference_from(expected.records[i], view.element(k, i));
        if (!found.empty())
            return join({"[", std::to_string(i), "].", found});
    }
    return {};
}

std::string difference_in_field(const Slot& slot, const Field& expected, const MemoryView& view, std::size_t k)
{
    if (slot.kind == Kind::scalar) {
        if (expected.number == view.scalar(k))
            return {};
        return join({": ", std::to_string(expected.number), ", ", std::to_string(view.scalar(k))});
    }
    if (slot.kind == Kind::table) {
        const std::string found = difference_from(expected.records[0], view.nested(k));
        return found.empty() ? found : join({".", found});
    }
    if (slot.kind != Kind::array)
        return difference_in_owned_block(slot, expected, view, k);
    if (slot.width == 1)
        return difference_in_octets(expected.octets, view.octets(k));
    for (u32 i = 0; i < slot.count; ++i) {
        if (expected.words[i] == view.word(k, i))
            continue;
        return join(
            {"[", std::to_string(i), "]: ", std::to_string(expected.words[i]), ", ", std::to_string(view.word(k, i))});
    }
    return {};
}

std::string difference_from(const Record& expected, const MemoryView& view)
{
    for (std::size_t k = 0; k < expected.fields.size(); ++k) {
        const std::string found = difference_in_field(view.message().slots[k], expected.fields[k], view, k);
        if (!found.empty())
            return join({"f", std::to_string(k), found});
    }
    return {};
}

}   // namespace

RecordMemory::RecordMemory(const Record* records, std::size_t count)
{
    if (count == 0)
        return;
    const std::size_t stride = records[0].message->layout(host_pointer_width).size;
    u8* const array = block(stride * count);
    data_ = array;
    for (std::size_t i = 0; i < count; ++i)
        fill(records[i], array + stride * i);
}

RecordMemory::~RecordMemory()
{
    for (void* const block : blocks_)
        std::free(block);
}

u8* RecordMemory::block(std::size_t size)
{
    // At least one byte, as a pointer with length 0 must not be null.
    // Padding keeps the content that malloc left, or is filled, so that a leak into a byte string is detected.
    if (size == 0)
        size = 1;
    void* const block = std::malloc(size);
    if (block == nullptr)
        std::abort();
#if !KESTO_MEMORY_SANITIZER
    std::memset(block, 0x5A, size);
#endif
    blocks_.push_back(block);
    return static_cast<u8*>(block);
}

void RecordMemory::fill(const Record& record, u8* at)
{
    const RecordLayout& layout = record.message->layout(host_pointer_width);
    for (std::size_t k = 0; k < record.fields.size(); ++k) {
        const Slot& slot = record.message->slots[k];
        const Field& field = record.fields[k];
        u8* const member = at + layout.offsets[k];
        if (slot.kind == Kind::scalar) {
            store_scalar(member, field.number, slot.width);
        } else if (slot.kind == Kind::table) {
            fill(field.records[0], member);
        } else if (slot.kind == Kind::array) {
            for (std::size_t i = 0; i < field.octets.size(); ++i)
                member[i] = field.octets[i];
            for (std::size_t i = 0; i < field.words.size(); ++i)
                store(member + 4 * i, field.words[i]);
        } else {
            fill_owned_block(slot, field, member);
        }
    }
}

void RecordMemory::fill_owned_block(const Slot& slot, const Field& field, u8* at)
{
    u8* content = nullptr;
    if (field.present && slot.kind == Kind::vector) {
        const std::size_t stride = slot.nested->layout(host_pointer_width).size;
        content = block(stride * field.records.size());
        for (std::size_t i = 0; i < field.records.size(); ++i)
            fill(field.records[i], content + stride * i);
    } else if (field.present) {
        content = block(field.octets.size() + (slot.kind == Kind::string ? 1 : 0));
        for (std::size_t i = 0; i < field.octets.size(); ++i)
            content[i] = field.octets[i];
        if (slot.kind == Kind::string)
            content[field.octets.size()] = 0;
    }
    if (slot.kind == Kind::string) {
        store(at, content);
    } else {
        store(at, static_cast<u32>(field.number));
        store(at + sizeof(void*), content);
    }
}

Record from_memory(const Message& message, const void* memory) { return tree_of(MemoryView(message, memory)); }

std::string difference(const Record& expected, const void* memory)
{
    return difference_from(expected, MemoryView(*expected.message, memory));
}

}   // namespace kesto::model
