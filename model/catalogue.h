#pragma once
// Messages as data: their names, ids and slots, and all that follows from these by arithmetic.

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
    bool lenient = false;              // a table whose failure is not a failure of the message around it
    const Message* nested = nullptr;   // of a table or of a vector's elements
    std::string field;                 // the name of its field in the record
};

// "u32", "u8[50]", "vector of ifit_mcp_mesh": the words of the documents.
std::string slot_text(const Slot& slot);

// The C structure of a record: one member per slot in slot order, each at its natural alignment, a u64 at 8 everywhere.
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

    bool owns_blocks = false;   // holds a string, bytes or a vector at some depth, and so has no fixed form
    u32 depth = 1;              // tables on the longest way down, this one included

    u32 vtable_length = 0;            // as every writer writes it
    u32 fixed_length = 0;             // 0 without a fixed form, like the next two
    u32 fixed_table_length = 0;       // not rounded
    std::vector<u32> fixed_offsets;   // of each slot from the table
    u32 compact_zero = 0;             // bytes of an all-zero record as root
    u32 compact_full = 0;             // bytes of a record without a zero scalar; 0 if the message owns blocks
    u32 scalar_bytes = 0;             // widths of the table's own scalars together

    RecordLayout narrow;   // 4-byte pointers
    RecordLayout wide;     // 8-byte pointers

    std::vector<const Message*> users;   // messages that nest this one, as a table or in a vector

    std::string unpack_name;   // names of the routines in logs and in calls for memory
    std::string unpack_non_root_name;
    std::string free_unpacked_name;
    std::string pack_name;

    const RecordLayout& layout(u32 pointer_width) const { return pointer_width == 4 ? narrow : wide; }
};

// Bytes that the slot's member takes in the structure.
u32 member_size(const Slot& slot, u32 pointer_width);

inline constexpr u32 host_pointer_width = sizeof(void*);
inline constexpr u32 greatest_depth = 8;

struct Module {
    std::string name;
    std::vector<const Message*> messages;   // in the order of registration
};

struct Catalogue {
    std::deque<Message> messages;
    std::deque<Module> modules;

    // Adds to the last module a message of which name, id and slots are given; the rest is derived. A field without a
    // name becomes f0, f1, ... by its slot. On a fault returns false with the reason in `error`.
    [[nodiscard]] bool add(Message message, std::string& error);

    const Message* find(std::string_view name) const;
    const Message* find(u32 id) const;
};

// The modules of messages/, in their order. Lives as long as the process.
const Catalogue& catalogue();

}   // namespace kesto::model
