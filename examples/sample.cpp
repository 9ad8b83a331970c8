#include "examples/sample.h"

#include <bit>
#include <cstring>

namespace
{

using kesto::tools::MessageInfo;
using kesto::tools::record_layout;
using kesto::tools::RecordLayout;
using kesto::tools::SlotInfo;
using kesto::tools::SlotKind;

RecordLayout layout_of(const MessageInfo& message)
{
    return record_layout(message, sizeof(void*));
}

// The count of a block or vector stands at the field, the pointer behind it at the next place for one.
std::uint32_t count_at(const std::uint8_t* field)
{
    std::uint32_t count;
    std::memcpy(&count, field, sizeof count);
    return count;
}

const std::uint8_t* pointer_at(const std::uint8_t* field)
{
    const std::uint8_t* pointer;
    std::memcpy(&pointer, field, sizeof pointer);
    return pointer;
}

void set_pointer(std::uint8_t* field, const std::uint8_t* pointer)
{
    std::memcpy(field, &pointer, sizeof pointer);
}

void set_counted(std::uint8_t* field, std::uint32_t count, const std::uint8_t* pointer)
{
    std::memcpy(field, &count, sizeof count);
    set_pointer(field + sizeof(void*), pointer);
}

bool same_bytes(const std::uint8_t* is, const std::uint8_t* expected, std::size_t count)
{
    return is != nullptr && std::memcmp(is, expected, count) == 0;
}

bool same_text(const std::uint8_t* is, const std::uint8_t* expected)
{
    return is != nullptr &&
           std::strcmp(reinterpret_cast<const char*>(is), reinterpret_cast<const char*>(expected)) == 0;
}

std::string difference_in_elements(const SlotInfo& slot, const std::uint8_t* is, const std::uint8_t* expected)
{
    const std::uint8_t* const items = pointer_at(is + sizeof(void*));
    const std::uint8_t* const expected_items = pointer_at(expected + sizeof(void*));
    const std::uint32_t count = count_at(expected), size = layout_of(*slot.nested).size;
    if (count_at(is) != count || items == nullptr)
        return slot.field;
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::size_t at = std::size_t{i} * size;
        const std::string inside = first_difference(*slot.nested, items + at, expected_items + at);
        if (!inside.empty())
            return slot.field + ".items[" + std::to_string(i) + "]." + inside;
    }
    return {};
}

std::string difference_in_slot(const SlotInfo& slot, const std::uint8_t* is, const std::uint8_t* expected)
{
    bool same = false;
    switch (slot.kind) {
    case SlotKind::scalar: same = same_bytes(is, expected, slot.width); break;
    case SlotKind::array: same = same_bytes(is, expected, std::size_t{slot.width} * slot.count); break;
    case SlotKind::string: same = same_text(pointer_at(is), pointer_at(expected)); break;
    case SlotKind::bytes:
        same = count_at(is) == count_at(expected) &&
               same_bytes(pointer_at(is + sizeof(void*)), pointer_at(expected + sizeof(void*)), count_at(expected));
        break;
    case SlotKind::vector: return difference_in_elements(slot, is, expected);
    case SlotKind::table: {
        const std::string inside = first_difference(*slot.nested, is, expected);
        return inside.empty() ? inside : slot.field + "." + inside;
    }
    }
    return same ? std::string() : slot.field;
}

}   // namespace

std::string first_difference(const MessageInfo& message, const std::uint8_t* is, const std::uint8_t* expected)
{
    const RecordLayout layout = layout_of(message);
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        const std::uint32_t offset = layout.offsets[k];
        const std::string difference = difference_in_slot(message.slots[k], is + offset, expected + offset);
        if (!difference.empty())
            return difference;
    }
    return {};
}

Sample::Sample(const MessageInfo& message, std::uint32_t count)
    : record_size_(layout_of(message).size), records_(allocate(std::size_t{count} * record_size_)), state_(message.id)
{
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::size_t before = memory_.size();
        fill(message, records_ + std::size_t{i} * record_size_);
        marks_.push_back({static_cast<std::uint32_t>(memory_.size() - before), last_byte_});
    }
}

void Sample::damage()
{
    for (const Mark& mark : marks_)
        *mark.last_byte ^= 1;
}

void Sample::fill(const MessageInfo& message, std::uint8_t* record)
{
    const RecordLayout layout = layout_of(message);
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        const SlotInfo& slot = message.slots[k];
        std::uint8_t* const field = record + layout.offsets[k];
        switch (slot.kind) {
        case SlotKind::scalar: fill_number(field, slot.width); break;
        case SlotKind::array:
            for (std::uint32_t i = 0; i < slot.count; ++i)
                fill_number(field + std::size_t{i} * slot.width, slot.width);
            break;
        case SlotKind::string: set_pointer(field, fill_letters(1 + next() % 20)); break;
        case SlotKind::bytes: {
            const std::uint32_t length = 1 + next() % 20;
            set_counted(field, length, fill_letters(length));
            break;
        }
        case SlotKind::table: fill(*slot.nested, field); break;
        case SlotKind::vector: {
            const std::uint32_t count = 2 + next() % 2, size = layout_of(*slot.nested).size;
            std::uint8_t* const items = allocate(std::size_t{count} * size);
            for (std::uint32_t i = 0; i < count; ++i)
                fill(*slot.nested, items + std::size_t{i} * size);
            set_counted(field, count, items);
            break;
        }
        }
    }
}

// Made as a number and stored as the machine does, so that hosts of either byte order have the same sample.
void Sample::fill_number(std::uint8_t* field, std::uint32_t width)
{
    std::uint64_t number = 0;
    for (std::uint32_t i = 0; i < width; ++i)
        number = number << 8 | next();
    const std::size_t low_end = std::endian::native == std::endian::big ? sizeof number - width : 0;
    std::memcpy(field, reinterpret_cast<const std::uint8_t*>(&number) + low_end, width);
    last_byte_ = field + width - 1;
}

// Letters with a NUL behind them, so that they serve as a text as well as for a block.
std::uint8_t* Sample::fill_letters(std::uint32_t count)
{
    std::uint8_t* const letters = allocate(count + 1);
    for (std::uint32_t i = 0; i < count; ++i)
        letters[i] = static_cast<std::uint8_t>('a' + next() % 26);
    last_byte_ = letters + count - 1;
    return letters;
}

std::uint8_t* Sample::allocate(std::size_t bytes)
{
    memory_.emplace_back((bytes + 7) / 8);   // zeroed
    return reinterpret_cast<std::uint8_t*>(memory_.back().data());
}

// Runs through 1 to 255, so that fields near each other differ in every byte.
std::uint32_t Sample::next()
{
    state_ = state_ % 255 + 1;
    return state_;
}
