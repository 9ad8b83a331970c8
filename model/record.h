#pragma once
// The content of a record as a tree, independent of the host's structures.

#include <string>

#include "model/catalogue.h"

namespace kesto::model {

struct Record;

struct Field {
    u64 number = 0;                // a scalar's value, the length member of bytes, the count member of a vector
    bool present = false;          // the pointer of a string, bytes or vector is not null
    i32 block = -1;                // number of the decoder's allocation that it points to; -1 if not from a decode
    std::vector<u8> octets;        // u8 array, text without its NUL, content of bytes
    std::vector<u32> words;        // u32 array
    std::vector<Record> records;   // the record of a table; the elements of a vector
};

// A null pointer with a length or count (number 5, not present) is a separate state, which a failed decode or a free
// leaves. So is a pointer with a length or count of 0, which a sender may have.
struct Record {
    const Message* message = nullptr;
    std::vector<Field> fields;
};

void clear(Record& record, const Message& message);   // sets all to zero; keeps the storage
Record zero_record(const Message& message);

// The first difference between two records of one message, such as "f1[0].f3: 5, 7"; empty if there is none.
// Allocations are not compared.
std::string difference(const Record& left, const Record& right);
inline bool same(const Record& left, const Record& right) { return difference(left, right).empty(); }

// The record that a reader gets after a writer has encoded `record`: no pointers with length or count 0, no null
// pointers with a length, text up to its NUL.
Record as_decoded(const Record& record);

// True if a reader would produce the same record from an absent one.
bool is_default(const Slot& slot, const Field& field);
bool is_default(const Record& record);

// False for a null vector with a count, where the size routine would follow the null pointer.
bool is_encodable(const Record& record);

// Number of text bytes before the first NUL, which are the ones that a writer sees.
u32 text_length(const std::vector<u8>& octets);

// Text form: {FIELD ...} with a number, "text", h'octets', <element ...>, [{...} ...]; `null` for a null pointer and
// `null*5` for one with length or count 5; `zero` for an all-zero field. Text may contain \xNN. Removes the parsed part
// from the front of `text`. Returns false on an error, with the reason in `error`.
[[nodiscard]] bool parse_record(const Message& message, std::string_view& text, Record& record, std::string& error);
std::string to_text(const Record& record);

}   // namespace kesto::model
