#include "model/catalogue.h"

#include <algorithm>

#include "model/text.h"

namespace kesto::model {
namespace {

u32 round_up(u32 value, u32 step) { return (value + step - 1) / step * step; }

// The size and alignment of one slot's member in the record structure.
struct Member {
    u32 size;
    u32 alignment;
};

Member member_of(const Slot& slot, u32 pointer_width)
{
    switch (slot.kind) {
    case Kind::scalar: return {slot.width, slot.width};
    case Kind::array: return {slot.width * slot.count, slot.width};
    case Kind::string: return {pointer_width, pointer_width};
    case Kind::bytes:
    case Kind::vector: return {2 * pointer_width, pointer_width};   // a nested structure: u32, then the pointer
    case Kind::table: break;
    }
    const RecordLayout& nested = slot.nested->layout(pointer_width);
    return {nested.size, nested.alignment};
}

RecordLayout record_layout(const Message& message, u32 pointer_width)
{
    RecordLayout layout;
    for (const Slot& slot : message.slots) {
        const Member member = member_of(slot, pointer_width);
        const u32 offset = round_up(layout.size, member.alignment);
        layout.offsets.push_back(offset);
        layout.size = offset + member.size;
        layout.alignment = std::max(layout.alignment, member.alignment);
    }
    layout.size = round_up(layout.size, layout.alignment);
    return layout;
}

void measure_fixed_form(Message& message)
{
    u32 length = 4;
    for (const Slot& slot : message.slots) {
        message.fixed_offsets.push_back(length);
        if (slot.kind == Kind::scalar)
            length += slot.width;
        if (slot.kind == Kind::array)
            length += 8 + slot.count * slot.width;
        if (slot.kind == Kind::table)
            length += slot.nested->fixed_length;
    }
    message.fixed_table_length = length;
    message.fixed_length = round_up(4 + round_up(length, 4) + message.vtable_length, 8);
}

void measure_compact_form(Message& message)
{
    u32 zero = 4 + message.vtable_length + 4;
    u32 nested_growth = 0;
    for (const Slot& slot : message.slots) {
        if (slot.kind == Kind::scalar)
            message.scalar_bytes += slot.width;
        if (slot.kind == Kind::array)
            zero += 8 + slot.count * slot.width;
        if (slot.kind == Kind::table) {
            zero += 4 + slot.nested->compact_zero - 4;   // the cell, and the nested message without its root word
            nested_growth += slot.nested->compact_full - slot.nested->compact_zero;
        }
    }
    message.compact_zero = zero;
    if (!message.owns_blocks)
        message.compact_full = zero + message.scalar_bytes + nested_growth;
}

void derive(Message& message)
{
    message.vtable_length = static_cast<u32>(4 + 2 * message.slots.size());
    for (const Slot& slot : message.slots) {
        message.owns_blocks |= slot.kind == Kind::string || slot.kind == Kind::bytes || slot.kind == Kind::vector;
        if (slot.nested == nullptr)
            continue;
        message.owns_blocks |= slot.nested->owns_blocks;
        message.depth = std::max(message.depth, slot.nested->depth + 1);
    }
    if (!message.owns_blocks)
        measure_fixed_form(message);
    measure_compact_form(message);
    message.narrow = record_layout(message, 4);
    message.wide = record_layout(message, 8);
    message.unpack_name = message.name + "_unpack";
    message.unpack_non_root_name = message.name + "_unpack_non_root";
    message.free_unpacked_name = message.name + "_free_unpacked";
    message.pack_name = message.name + "_pack";
}

void note_users(Catalogue& catalogue)
{
    const Message& user = catalogue.messages.back();
    for (const Slot& slot : user.slots) {
        if (slot.nested == nullptr)
            continue;
        std::vector<const Message*>& users = catalogue.messages[slot.nested->index].users;
        if (users.empty() || users.back() != &user)
            users.push_back(&user);
    }
}

}   // namespace

u32 member_size(const Slot& slot, u32 pointer_width) { return member_of(slot, pointer_width).size; }

std::string slot_text(const Slot& slot)
{
    const std::string type = "u" + std::to_string(8 * slot.width);
    switch (slot.kind) {
    case Kind::scalar: return type;
    case Kind::string: return "string";
    case Kind::bytes: return "bytes";
    case Kind::array: return join({type, "[", std::to_string(slot.count), "]"});
    case Kind::table: return "table " + slot.nested->name;
    case Kind::vector: return "vector of " + slot.nested->name;
    }
    return {};
}

bool Catalogue::add(Message message, std::string& error)
{
    if (modules.empty())
        return error = "a message before the first module", false;
    if (find(message.name) != nullptr)
        return error = "duplicate name", false;
    if (find(message.id) != nullptr)
        return error = "duplicate id", false;
    message.module = modules.back().name;
    message.index = static_cast<u32>(messages.size());
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        Slot& slot = message.slots[k];
        if (slot.nested != nullptr && (slot.nested->module != message.module || slot.nested->depth >= greatest_depth))
            return error = "slot " + std::to_string(k) + ": message of another module, or nested too deeply", false;
        if (slot.field.empty())
            slot.field = "f" + std::to_string(k);
    }
    derive(message);
    messages.push_back(std::move(message));
    modules.back().messages.push_back(&messages.back());
    note_users(*this);
    return true;
}

const Message* Catalogue::find(std::string_view name) const
{
    for (const Message& message : messages) {
        if (message.name == name)
            return &message;
    }
    return nullptr;
}

const Message* Catalogue::find(u32 id) const
{
    for (const Message& message : messages) {
        if (message.id == id)
            return &message;
    }
    return nullptr;
}

}   // namespace kesto::model
