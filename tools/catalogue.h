// The catalogue as data at run time: what the printers, the tools and the tests know of the messages.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace kesto::tools {

enum class SlotKind : std::uint8_t { scalar, string, bytes, array, table, vector };

struct MessageInfo;

struct SlotInfo {
    SlotKind kind;
    std::uint32_t width;         // of a scalar or of an array's elements, in bytes; 0 for the other kinds
    std::uint32_t count;         // of an array's elements; 0 for the other kinds
    const MessageInfo* nested;   // of a table or vector; null for the other kinds
    bool fault_ends_read;        // false for a table whose refusal the message around it ignores
    std::string field;           // the record's name for it
};

struct MessageInfo {
    std::string name;
    std::uint32_t id;
    std::string module;
    std::vector<SlotInfo> slots;
    bool has_heap_parts;
    std::uint32_t fixed_length;   // 0 without a fixed form
};

struct ModuleInfo {
    std::string name;
    std::vector<const MessageInfo*> messages;   // in the order of registration
};

// All modules in the order of the library's sources. Lives as long as the process.
std::span<const ModuleInfo> modules();

// Null for a name that no message has.
const MessageInfo* find_message(const std::string& name);

// ---- what follows from the slots ----

// "u32", "u8[50]", "vector of ifit_mcp_mesh": the words of the documents.
std::string slot_text(const SlotInfo& slot);

struct RecordLayout {
    std::uint32_t size;
    std::uint32_t align;
    std::vector<std::uint32_t> offsets;   // by slot
};

// Where the fields stand in the record on a host whose pointers have `pointer_width` bytes, 4 or 8.
RecordLayout record_layout(const MessageInfo& message, std::uint32_t pointer_width);

// The compact form's length for an all-zero record, and for one whose scalars are all not zero and that has neither
// text nor block nor element.
std::uint32_t empty_length(const MessageInfo& message);
std::uint32_t full_scalars_length(const MessageInfo& message);

}   // namespace kesto::tools
