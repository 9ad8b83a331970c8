#pragma once
// The content of a record as a tree, whatever the host's structures look like.

#include <string>

#include "model/catalogue.h"

namespace kesto::model {

struct Record;

struct Field {
    u64 number = 0;                // a scalar's value, the length member of bytes, the count member of a vector
    bool present = false;          // the pointer of a string, of bytes or of a vector is not null
    i32 block = -1;                // which allocation of a decode it points to; -1 if it does not come from a decode
    std::vector<u8> octets;        // u8 array, text without its NUL, content of bytes
    std::vector<u32> words;        // u32 array
    std::vector<Record> records;   // the one record of a table; the elements of a vector
};

// A length or count beside a null pointer (number 5, not present) is a state of its own: a failed decode and a free
// leave it behind. So is a pointer beside a length or count of 0, which a sender may hold.
struct Record {
    const Message* message = nullptr;
    std::vector<Field> fields;
};

void clear(Record& record, const Message& message);   // all zero; keeps the storage it has
Record zero_record(const Message& message);

// Where two records of one message differ, such as "f1[0].f3: 5, 7"; empty if nowhere. Allocations are not compared.
std::string difference(const Record& left, const Record& right);
inline bool same(const Record& left, const Record& right) { return difference(left, right).empty(); }

// The record that a reader has after a writer's work on `record`: no pointers beside 0, no lengths beside null, text up to
// its NUL.
Record as_decoded(const Record& record);

// True if a reader that finds nothing of the record would make the same of it.
bool is_default(const Slot& slot, const Field& field);
bool is_default(const Record& record);

// False for a count beside a null vector, which the size routine would walk through the null pointer.
bool is_encodable(const Record& record);

// Number of text bytes before the first NUL, which is what a writer sees.
u32 text_length(const std::vector<u8>& octets);

// Text form: {FIELD ...} with a number, "text", h'octets', <element ...>, [{...} ...]; `null` for a null pointer and
// `null*5` for one beside the length or count 5; `zero` for an all-zero field. Text may hold \xNN. Returns false with
// the reason in `error`; takes what it has read off the front of `text`.
[[nodiscard]] bool parse_record(const Message& message, std::string_view& text, Record& record, std::string& error);
std::string to_text(const Record& record);

}   // namespace kesto::model
