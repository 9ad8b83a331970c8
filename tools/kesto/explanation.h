// An explanation of a byte string, as data: the meaning of every byte, the verdict, and oddities that are accepted
// silently.
#pragma once

#include <limits>
#include <optional>
#include <span>

#include "tools/kesto/messages.h"

namespace kesto::command {

using model::Piece;

struct Range {
    Piece piece = Piece::unread;
    u32 position = 0;
    u32 length = 0;
    u64 value = 0;
    u32 table = 0;                      // position of the table it belongs to
    const Message* message = nullptr;   // of that table
    model::Path path{};
    u32 reads = 1;            // how often these bytes are read as the same piece
    bool read_last = false;   // the last read before the refusal
};

// An oddity that the decoder accepts silently.
struct Note {
    const char* code;
    u32 position;
    u32 length;
    std::string path;   // empty in a note that only summarises other notes
    std::string text;
};

struct Refused {
    model::Failure failure;
    std::optional<model::Event> log;   // the line that the library writes
};

// The writer that produces exactly these bytes from the record that they decode to.
enum class Origin : u8 {
    unknown,   // refused, or finding out takes too much memory
    compact,
    compact_with_rest,
    fixed,
    other,
};

struct Explanation {
    const Message* message = nullptr;
    std::span<const u8> bytes;
    std::vector<Range> ranges;   // by position; they cover every byte
    u64 left_out = 0;            // reads beyond the limit of ranges
    std::optional<Refused> refused;
    std::optional<Refused> ignored;   // a nested table whose refusal does not refuse the message
    std::vector<Note> notes;
    u64 memory = 0;   // total requested by the decoder
    u32 allocations = 0;
    u64 bytes_read = 0;      // repeated reads count again
    u64 record_memory = 0;   // of the model's record in this program; texts and blocks counted four times
    bool given_up = false;   // due to the limits in the options; there is no verdict then
    Origin origin = Origin::unknown;
    std::vector<std::string> written_for;   // other messages whose writers produce exactly these bytes, if searched
};

struct ExplainOptions {
    u32 pointer_width = model::host_pointer_width;
    std::size_t most_ranges = 50000;   // and as many tables
    u64 most_memory = 64 << 20;        // of a record that is compared with the writers' output
    u64 most_read = unlimited;         // bytes; repeated reads count again
    u64 most_record = unlimited;       // memory of any record, compared or not

    static constexpr u64 unlimited = std::numeric_limits<u64>::max();
};

// `bytes` must outlive the explanation.
Explanation explain(const Message& message, std::span<const u8> bytes, const ExplainOptions& options = {});

// ---- in words ----

std::string path_text(const Explanation& explanation, const Range& range);
std::string kind_text(const Range& range);
std::string value_text(const Explanation& explanation, const Range& range);

std::string rule_text(const model::Failure& failure);         // the requirement that the check tests
std::string comparison_text(const model::Failure& failure);   // the numbers, empty if there are none
std::string origin_text(Origin origin);
std::string place_text(const Note& note);   // " at 18, .f0", or empty

// "1 byte", "2 bytes".
std::string counted(u64 count, const char* thing);

}   // namespace kesto::command
