#pragma once
// Messages as data: their names, ids and slots, and everything computed from these.

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "model/little_endian.h"

namespace kesto::model {

struct Message;

enum class Kind : u8 { scalar, string, bytes, array, table, vector };

struct Slot {
    Kind kind = Kind::scalar;
    u32 width = 0;                     // bytes of a scalar, or of one element of an array
    u32 count = 0;                     // elements of an array
    bool lenient = false;              // a table whose failure does not fail the enclosing message
    const Message* nested = nullptr;   // message of a table or of a vector's elements
    std::string field;                 // the name of its field in the record
};

// "u32", "u8[50]", "vector of ifit_mcp_mesh": the terms used in the documents.
std::string slot_text(const Slot& slot);

// The C structure of a record: one member per slot in slot order, at natural alignment; a u64 is always 8-aligned.
struct RecordLayout {
    u32 size = 0;
    u32 alignment = 1;
    std::vector<u32> offsets;
};

struct Message {
    std::string name;
    std::string module;
    u32 id = 0;
    u32 index = 0;   // in the catalogue
    std::vector<Slot> slots;

    bool owns_blocks = false;   // holds a string, bytes or a vector at some depth, so it has no fixed form
    u32 depth = 1;              // longest chain of nested tables, including this one

    u32 vtable_length = 0;            // as all writers write it
    u32 fixed_length = 0;             // 0 if there is no fixed form, as for the next two
    u32 fixed_table_length = 0;       // not rounded
    std::vector<u32> fixed_offsets;   // of each slot, relative to the table
    u32 compact_zero = 0;             // size of an all-zero record as root
    u32 compact_full = 0;             // size of a record without zero scalars; 0 if the message owns blocks
    u32 scalar_bytes = 0;             // total width of the table's own scalars

    RecordLayout narrow;   // 4-byte pointers
    RecordLayout wide;     // 8-byte pointers

    std::vector<const Message*> users;   // messages that contain this one, as a table or in a vector

    std::string unpack_name;   // routine names in logs and in allocation calls
    std::string unpack_non_root_name;
    std::string free_unpacked_name;
    std::string pack_name;

    const RecordLayout& layout(u32 pointer_width) const { return pointer_width == 4 ? narrow : wide; }
};

// Size of the slot's member in the structure.
u32 member_size(const Slot& slot, u32 pointer_width);

inline constexpr u32 host_pointer_width = sizeof(void*);
inline constexpr u32 greatest_depth = 8;

struct Module {
    std::string name;
    std::vector<const Message*> messages;   // in registration order
};

struct Catalogue {
    std::deque<Message> messages;
    std::deque<Module> modules;

    // Adds a message with the given name, id and slots to the last module; the rest is derived. A field without a name
    // is called f0, f1, ... after its slot. Returns false on an error, with the reason in `error`.
    [[nodiscard]] bool add(Message message, std::string& error);

    const Message* find(std::string_view name) const;
    const Message* find(u32 id) const;
};

// The modules of messages/, in order. Lives as long as the process.
const Catalogue& catalogue();

}   // namespace kesto::model
