#pragma once
// Messages as data: what the text form of a catalogue says, and everything that follows from it by arithmetic.

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "reference/little_endian.h"

namespace kesto::reference
{

struct Message;

enum class Kind : u8 { scalar, string, bytes, array, table, vector };

struct Slot {
    Kind kind = Kind::scalar;
    u32 width = 0;                     // bytes of a scalar, or of one element of an array
    u32 count = 0;                     // elements of an array
    bool outcome_ignored = false;      // a nested record whose failure is not a failure of its parent
    const Message* nested = nullptr;   // of a table or of a vector's elements
};

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

    bool owns_heap = false;   // holds a string, bytes or a vector at some depth, and so has no fixed form
    u32 depth = 1;            // tables on the longest way down, this one included

    u32 vtable_length = 0;            // as every writer writes it
    u32 fixed_length = 0;             // 0 without a fixed form, like the next two
    u32 fixed_table_length = 0;       // not rounded
    std::vector<u32> fixed_offsets;   // of each slot from the table
    u32 compact_zero = 0;             // bytes of an all-zero record as root
    u32 compact_full = 0;             // bytes of a record without a zero scalar; 0 if the message owns heap parts
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

struct Catalogue {
    std::deque<Message> messages;
    std::vector<std::string> modules;

    // Adds the messages of `text` (the form is explained at the head of tests/data/messages.txt). On a fault returns
    // false with the line and the reason in `error`; the messages of the lines above it are then in the catalogue.
    [[nodiscard]] bool add(std::string_view text, std::string& error);

    const Message* find(std::string_view name) const;
    const Message* find(u32 id) const;
};

}   // namespace kesto::reference
