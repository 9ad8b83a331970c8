#pragma once
// Two views of a record: as a tree and as a C structure in memory. The encoders are templates over both.

#include <cstring>

#include "model/record.h"

namespace kesto::model {

class TreeView {
public:
    explicit TreeView(const Record& record) : record_(&record) {}

    const Message& message() const { return *record_->message; }
    u64 scalar(std::size_t k) const { return field(k).number; }
    bool present(std::size_t k) const { return field(k).present; }
    u32 count(std::size_t k) const { return static_cast<u32>(field(k).number); }
    u32 text_length(std::size_t k) const { return model::text_length(field(k).octets); }
    const u8* octets(std::size_t k) const { return field(k).octets.data(); }
    u32 word(std::size_t k, u32 i) const { return field(k).words[i]; }
    TreeView nested(std::size_t k) const { return TreeView(field(k).records[0]); }
    TreeView element(std::size_t k, u32 i) const { return TreeView(field(k).records[i]); }

private:
    const Field& field(std::size_t k) const { return record_->fields[k]; }

    const Record* record_;
};

class MemoryView {
public:
    MemoryView(const Message& message, const void* record) : message_(&message), base_(static_cast<const u8*>(record))
    {
    }

    const Message& message() const { return *message_; }

    u64 scalar(std::size_t k) const
    {
        switch (message_->slots[k].width) {
        case 1: return *at(k);
        case 2: return load<u16>(at(k));
        case 4: return load<u32>(at(k));
        default: return load<u64>(at(k));
        }
    }

    // A string is a bare pointer; bytes and vectors are a u32 and then, at its own alignment, the pointer.
    const u8* pointer(std::size_t k) const
    {
        const bool bare = message_->slots[k].kind == Kind::string;
        return static_cast<const u8*>(load<const void*>(bare ? at(k) : at(k) + sizeof(void*)));
    }

    bool present(std::size_t k) const { return pointer(k) != nullptr; }
    u32 count(std::size_t k) const { return load<u32>(at(k)); }
    u32 text_length(std::size_t k) const
    {
        return static_cast<u32>(std::strlen(reinterpret_cast<const char*>(pointer(k))));
    }
    const u8* octets(std::size_t k) const { return message_->slots[k].kind == Kind::array ? at(k) : pointer(k); }
    u32 word(std::size_t k, u32 i) const { return load<u32>(at(k) + std::size_t{4} * i); }
    MemoryView nested(std::size_t k) const { return {*message_->slots[k].nested, at(k)}; }
    MemoryView element(std::size_t k, u32 i) const
    {
        const Message& element = *message_->slots[k].nested;
        return {element, pointer(k) + std::size_t{element.layout(host_pointer_width).size} * i};
    }

private:
    template <typename Value>
    static Value load(const u8* from)
    {
        Value value;
        std::memcpy(&value, from, sizeof value);
        return value;
    }

    const u8* at(std::size_t k) const { return base_ + message_->layout(host_pointer_width).offsets[k]; }

    const Message* message_;
    const u8* base_;
};

}   // namespace kesto::model
