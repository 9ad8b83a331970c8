#include "tools/catalogue.h"

#include <algorithm>
#include <deque>
#include <map>

#include "core/catalogue.h"

namespace kesto::tools {

namespace {

// A catalogue slot as data; `Named` is the message it names.
template <class S>
SlotInfo slot_info(const std::map<std::string, MessageInfo*>& known)
{
    using Slot = typename catalogue::Meaning<S>::Slot;
    using Named = typename catalogue::Meaning<S>::Named;
    SlotInfo info{SlotKind::scalar, 0, 0, nullptr, true, {}};
    if constexpr (Slot::kind == Kind::scalar) {
        info.width = Slot::record_size;
    } else if constexpr (Slot::kind == Kind::text) {
        info.kind = SlotKind::string;
    } else if constexpr (Slot::kind == Kind::block) {
        info.kind = SlotKind::bytes;
    } else if constexpr (Slot::kind == Kind::array) {
        info.kind = SlotKind::array;
        info.width = sizeof(typename Slot::Value);
        info.count = Slot::count;
    } else {
        info.nested = known.at(Named::name);
        info.kind = SlotKind::vector;
        if constexpr (Slot::kind == Kind::table) {
            info.kind = SlotKind::table;
            info.fault_ends_read = Slot::fault_ends_read;
        }
    }
    return info;
}

class Builder {
public:
    void begin_module(const char* name) { modules_.push_back({name, {}}); }

    template <class Message>
    void add_message()
    {
        MessageInfo& message = messages_.emplace_back();
        message.name = Message::name;
        message.id = Message::id;
        message.module = modules_.back().name;
        add_slots(message, static_cast<typename Message::Slots*>(nullptr));
        message.has_heap_parts = Message::Layout::has_heap_parts;
        message.fixed_length = Message::Layout::fixed_length;
        known_[message.name] = &message;
        modules_.back().messages.push_back(&message);
    }

    // The fields of the message added last, as "year, month, ...".
    void name_fields(const std::string& names)
    {
        std::size_t at = 0;
        for (SlotInfo& slot : messages_.back().slots) {
            const std::size_t end = std::min(names.find(',', at), names.size());
            slot.field = names.substr(at, end - at);
            at = names.find_first_not_of(", ", end);
        }
    }

    std::span<const ModuleInfo> modules() const { return modules_; }
    const std::map<std::string, MessageInfo*>& known() const { return known_; }

private:
    template <class... Slots>
    void add_slots(MessageInfo& message, catalogue::SlotList<Slots...>*)
    {
        (message.slots.push_back(slot_info<Slots>(known_)), ...);
        for (std::size_t k = 0; k < message.slots.size(); ++k)
            message.slots[k].field = "f" + std::to_string(k);
    }

    std::vector<ModuleInfo> modules_;
    std::deque<MessageInfo> messages_;   // grows without moving what others point to
    std::map<std::string, MessageInfo*> known_;
};

#define KESTO_QUOTED(text) KESTO_QUOTED_EXPANDED(text)
#define KESTO_QUOTED_EXPANDED(text) #text

#define KESTO_EACH_MODULE "tools/catalogue_module.inc"
#include "messages/modules.inc"
#undef KESTO_EACH_MODULE

const Builder& whole_catalogue()
{
    static const Builder built = [] {
        Builder builder;
#define KESTO_EACH_MODULE "tools/add_module.inc"
#include "messages/modules.inc"
#undef KESTO_EACH_MODULE
        return builder;
    }();
    return built;
}

std::uint32_t table_length(const MessageInfo& message, bool with_scalars)
{
    std::uint32_t length =
        vtable_head_bytes + slot_bytes * static_cast<std::uint32_t>(message.slots.size()) + table_head_bytes;
    for (const SlotInfo& slot : message.slots) {
        if (slot.kind == SlotKind::scalar)
            length += with_scalars ? slot.width : 0;
        else if (slot.kind == SlotKind::array)
            length += cell_bytes + count_bytes + slot.count * slot.width;
        else if (slot.kind == SlotKind::table)
            length += cell_bytes + table_length(*slot.nested, with_scalars);
    }
    return length;
}

}   // namespace

std::span<const ModuleInfo> modules() { return whole_catalogue().modules(); }

const MessageInfo* find_message(const std::string& name)
{
    const auto found = whole_catalogue().known().find(name);
    return found == whole_catalogue().known().end() ? nullptr : found->second;
}

std::string slot_text(const SlotInfo& slot)
{
    const std::string unsigned_type = "u" + std::to_string(8 * slot.width);
    switch (slot.kind) {
    case SlotKind::scalar: return unsigned_type;
    case SlotKind::string: return "string";
    case SlotKind::bytes: return "bytes";
    case SlotKind::array: return unsigned_type + "[" + std::to_string(slot.count) + "]";
    case SlotKind::table: return "table " + slot.nested->name;
    case SlotKind::vector: return "vector of " + slot.nested->name;
    }
    return {};
}

RecordLayout record_layout(const MessageInfo& message, std::uint32_t pointer_width)
{
    RecordLayout layout{0, 1, {}};
    for (const SlotInfo& slot : message.slots) {
        std::uint32_t size = pointer_width, align = pointer_width;
        if (slot.kind == SlotKind::scalar || slot.kind == SlotKind::array) {
            align = slot.width;
            size = slot.kind == SlotKind::scalar ? slot.width : slot.width * slot.count;
        } else if (slot.kind == SlotKind::table) {
            const RecordLayout nested = record_layout(*slot.nested, pointer_width);
            size = nested.size;
            align = nested.align;
        } else if (slot.kind != SlotKind::string) {
            size = 2 * pointer_width;
        }
        layout.offsets.push_back(rounded_up(layout.size, align));
        layout.size = layout.offsets.back() + size;
        layout.align = std::max(layout.align, align);
    }
    layout.size = rounded_up(layout.size, layout.align);
    return layout;
}

std::uint32_t empty_length(const MessageInfo& message) { return root_bytes + table_length(message, false); }

std::uint32_t full_scalars_length(const MessageInfo& message) { return root_bytes + table_length(message, true); }

}   // namespace kesto::tools
