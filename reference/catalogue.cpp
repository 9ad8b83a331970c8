#include "reference/catalogue.h"

#include <algorithm>
#include <charconv>

namespace kesto::reference
{
namespace
{

u32 round_up(u32 value, u32 step)
{
    return (value + step - 1) / step * step;
}

// What one slot takes in a record's structure.
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
    case Kind::vector: return {2 * pointer_width, pointer_width};   // a structure of its own: u32, then the pointer
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
    if (!message.owns_heap)
        message.compact_full = zero + message.scalar_bytes + nested_growth;
}

void derive(Message& message)
{
    message.vtable_length = static_cast<u32>(4 + 2 * message.slots.size());
    for (const Slot& slot : message.slots) {
        message.owns_heap |= slot.kind == Kind::string || slot.kind == Kind::bytes || slot.kind == Kind::vector;
        if (slot.nested == nullptr)
            continue;
        message.owns_heap |= slot.nested->owns_heap;
        message.depth = std::max(message.depth, slot.nested->depth + 1);
    }
    if (!message.owns_heap)
        measure_fixed_form(message);
    measure_compact_form(message);
    message.narrow = record_layout(message, 4);
    message.wide = record_layout(message, 8);
    message.unpack_name = message.name + "_unpack";
    message.unpack_non_root_name = message.name + "_unpack_non_root";
    message.free_unpacked_name = message.name + "_free_unpacked";
    message.pack_name = message.name + "_pack";
}

std::vector<std::string_view> words_of(std::string_view line)
{
    std::vector<std::string_view> words;
    for (;;) {
        const std::size_t start = line.find_first_not_of(" \t\r");
        if (start == std::string_view::npos)
            return words;
        const std::size_t end = std::min(line.find_first_of(" \t\r", start), line.size());
        words.push_back(line.substr(start, end - start));
        line.remove_prefix(end);
    }
}

bool number_of(std::string_view word, int base, u32& value)
{
    const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), value, base);
    return fault == std::errc() && end == word.data() + word.size();
}

bool nested_slot(const Catalogue& catalogue, const Message& message, std::string_view name, Slot& slot)
{
    slot.nested = catalogue.find(name);
    return slot.nested != nullptr && slot.nested->module == message.module && slot.nested->depth < greatest_depth;
}

bool array_slot(std::string_view word, std::string_view head, u32 width, Slot& slot)
{
    if (!word.starts_with(head) || !word.ends_with("]"))
        return false;
    word.remove_prefix(head.size());
    word.remove_suffix(1);
    slot.kind = Kind::array;
    slot.width = width;
    return number_of(word, 10, slot.count) && slot.count > 0 && slot.count < 0x4000;
}

bool parse_slot(const Catalogue& catalogue, const Message& message, std::string_view word, Slot& slot)
{
    struct Scalar {
        std::string_view name;
        u32 width;
    };
    for (const Scalar scalar : {Scalar{"u8", 1}, Scalar{"u16", 2}, Scalar{"u32", 4}, Scalar{"u64", 8}}) {
        if (word == scalar.name)
            slot.width = scalar.width;
    }
    if (slot.width != 0)
        return true;
    if (word == "string" || word == "bytes") {
        slot.kind = word == "string" ? Kind::string : Kind::bytes;
        return true;
    }
    if (array_slot(word, "u8[", 1, slot) || array_slot(word, "u32[", 4, slot))
        return true;
    if (word.starts_with("vector:")) {
        slot.kind = Kind::vector;
        return nested_slot(catalogue, message, word.substr(7), slot);
    }
    slot.kind = Kind::table;
    if (word.starts_with("table:"))
        return nested_slot(catalogue, message, word.substr(6), slot);
    slot.outcome_ignored = true;
    return word.starts_with("table?:") && nested_slot(catalogue, message, word.substr(7), slot);
}

// NAME ID FORM : SLOT ...
bool add_message(Catalogue& catalogue, const std::vector<std::string_view>& words, std::string& error)
{
    Message message;
    message.name = words[0];
    message.index = static_cast<u32>(catalogue.messages.size());
    if (catalogue.modules.empty())
        return error = "a message before the first module", false;
    message.module = catalogue.modules.back();
    if (catalogue.find(message.name) != nullptr)
        return error = "a second message of this name", false;
    if (words.size() < 3 || !words[1].starts_with("0x") || !number_of(words[1].substr(2), 16, message.id)) {
        return error = "an id is needed, such as 0x2492d87f", false;
    }
    if (catalogue.find(message.id) != nullptr)
        return error = "a second message of this id", false;

    u32 stated_length = 0;
    std::size_t at = 3;
    if (words[2] == "fixed") {
        if (words.size() < 4 || !number_of(words[3], 10, stated_length))
            return error = "a length is needed", false;
        at = 4;
    } else if (words[2] != "compact") {
        return error = "the form is `fixed N` or `compact`", false;
    }
    if (at >= words.size() || words[at] != ":")
        return error = "a colon is needed before the slots", false;
    for (++at; at < words.size(); ++at) {
        Slot slot;
        if (!parse_slot(catalogue, message, words[at], slot))
            return error = "slot " + std::string(words[at]), false;
        message.slots.push_back(slot);
    }
    derive(message);
    if (message.fixed_length != stated_length) {
        return error = "the slots give a fixed length of " + std::to_string(message.fixed_length), false;
    }
    catalogue.messages.push_back(std::move(message));
    return true;
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

u32 member_size(const Slot& slot, u32 pointer_width)
{
    return member_of(slot, pointer_width).size;
}

bool Catalogue::add(std::string_view text, std::string& error)
{
    for (u32 number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::vector<std::string_view> words = words_of(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (words.empty() || words[0].starts_with("#"))
            continue;
        if (words[0] == "module" && words.size() == 2) {
            modules.emplace_back(words[1]);
            continue;
        }
        if (!add_message(*this, words, error)) {
            error = "line " + std::to_string(number) + ": " + error;
            return false;
        }
        note_users(*this);
    }
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

}   // namespace kesto::reference
