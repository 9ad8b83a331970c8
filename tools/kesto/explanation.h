// An explanation of a byte string, as data: every byte's meaning, the verdict, and what passes without a word.
#pragma once

#include <limits>
#include <optional>
#include <span>

#include "tools/kesto/messages.h"

namespace kesto::command {

// The model's pieces in their order, then what no decoder reads.
enum class Part : u8 {
    root,
    table,   // its first word, the distance to the vtable
    vtable_length,
    table_length,
    slot,
    scalar,
    cell,
    count,
    payload,
    element_cell,
    vtable_rest,   // after the slots that the message has, and an odd byte
    text_end,
    padding,
    unread,
};

struct Range {
    Part part = Part::unread;
    u32 position = 0;
    u32 length = 0;
    u64 value = 0;
    u32 table = 0;                      // position of the table it belongs to
    const Message* message = nullptr;   // of that table
    model::Path path{};
    u32 reads = 1;            // how often the same bytes are read as the same
    bool read_last = false;   // before the refusal
};

// Something that the decoder accepts without a word.
struct Note {
    const char* code;
    u32 position;
    u32 length;
    std::string path;   // empty in a note that tells of other notes only
    std::string text;
};

struct Refused {
    model::Failure failure;
    std::optional<model::Event> log;   // the line that the library writes
};

// Which writer leaves just these bytes of the record that they decode to.
enum class Origin : u8 {
    unknown,   // refused, or too much memory to find out
    compact,
    compact_with_rest,
    fixed,
    other,
};

struct Explanation {
    const Message* message = nullptr;
    std::span<const u8> bytes;
    std::vector<Range> ranges;   // by position; they cover every byte
    u64 left_out = 0;            // reads beyond the most ranges that are kept
    std::optional<Refused> refused;
    std::optional<Refused> ignored;   // a nested table whose refusal is no refusal of the message
    std::vector<Note> notes;
    u64 memory = 0;   // what the decoder asks for, in all
    u32 allocations = 0;
    u64 bytes_read = 0;      // those that are read again counted again
    u64 record_memory = 0;   // what the model's record takes here; texts and blocks counted four times
    bool given_up = false;   // for the limits of the options; there is no verdict then
    Origin origin = Origin::unknown;
    std::vector<std::string> written_for;   // other messages whose writers leave just these bytes, if somebody looked
};

struct ExplainOptions {
    u32 pointer_width = model::host_pointer_width;
    std::size_t most_ranges = 50000;   // and as many tables
    u64 most_memory = 64 << 20;        // of a record that is compared with what the writers write
    u64 most_read = unlimited;         // bytes, those that are read again counted again
    u64 most_record = unlimited;       // memory of a record, compared or not

    static constexpr u64 unlimited = std::numeric_limits<u64>::max();
};

// `bytes` has to outlive the explanation.
Explanation explain(const Message& message, std::span<const u8> bytes, const ExplainOptions& options = {});

// ---- in words ----

std::string path_text(const Explanation& explanation, const Range& range);
std::string kind_text(const Range& range);
std::string value_text(const Explanation& explanation, const Range& range);

std::string rule_text(const model::Failure& failure);         // what the check demands
std::string comparison_text(const model::Failure& failure);   // the numbers, empty if there are none
std::string origin_text(Origin origin);
std::string place_text(const Note& note);   // " at 18, .f0", or empty

// "1 byte", "2 bytes".
std::string counted(u64 count, const char* thing);

}   // namespace kesto::command
