#include <fmt/format.h>

#include "tools/kesto/explanation.h"
#include "tools/kesto/names.h"
#include "tools/kesto/quoting.h"

namespace kesto::command {

namespace {

using model::Failure;
using model::Refusal;

struct Rule {
    const char* demand;
    const char* comparison;   // {0} the value, {1} the limit
};

Rule rule_of(Refusal refusal)
{
    constexpr const char* ends = "it ends at {0}, the byte string at {1}";
    constexpr const char* leads = "the cell at {1} leads to {0}, reckoned modulo 2^32";
    switch (refusal) {
    case Refusal::none: break;
    case Refusal::buffer_null: return {"there is a byte string", ""};
    case Refusal::record_null: return {"there is a record", ""};
    case Refusal::length_below_4: return {"a byte string has 4 bytes or more, and less than 2^31", "it has {0}"};
    case Refusal::table_position:
        return {"a table begins after the root and 4 bytes before the end or earlier",
                "it begins at {0}, which has to be from 4 to {1}"};
    case Refusal::vtable_position:
        return {"a vtable begins after the root and 4 bytes before the end or earlier",
                "it begins at {0}, which has to be from 4 to {1}"};
    case Refusal::vtable_length:
        return {"a vtable ends within the byte string", "its length is {0}, the byte string has {1} from there"};
    case Refusal::scalar_end: return {"a scalar ends within the byte string", ends};
    case Refusal::cell_end: return {"a cell ends within the byte string", ends};
    case Refusal::reference_wrap:
    case Refusal::nested_wrap:
    case Refusal::element_wrap: return {"a cell leads to a position after it and below 2^32", leads};
    case Refusal::reference_range:
        return {"the length or count that a cell leads to ends within the byte string", ends};
    case Refusal::array_count:
        return {"an array has exactly as many elements as its message says", "it has {0}, the message says {1}"};
    case Refusal::count_range: return {"a count is less than 2^30", "it is {0}, the limit {1}"};
    case Refusal::body_end: return {"what a length or count announces ends within the byte string", ends};
    case Refusal::element_null: return {"the size of all elements, modulo 2^32, is not 0", ""};
    case Refusal::element_block:
        return {"all elements fit the block whose size was reckoned modulo 2^32",
                "this is element number {0}, there is room for {1}"};
    case Refusal::allocation: return {"the memory is there", "{0} bytes were asked for"};
    }
    return {"", ""};
}

std::string slot_range_text(const Message& message)
{
    const std::size_t count = message.slots.size();
    return count == 1 ? "slot 0" : fmt::format("slots 0 to {}", count - 1);
}

std::string vtable_text(const Range& range)
{
    const u64 held = range.value < 6 ? 0 : range.value / 2 - 2;
    if (held == range.message->slots.size())
        return fmt::format("{}: {}", range.value, slot_range_text(*range.message));
    return fmt::format("{}: {} of {}", range.value, held, counted(range.message->slots.size(), "slot"));
}

const Slot& slot_of(const Range& range) { return range.message->slots[range.path.steps[range.path.length - 1].slot]; }

std::size_t slot_number(const Range& range) { return range.path.steps[range.path.length - 1].slot; }

// Positions are computed in 32 bits.
const char* wrap_text(bool wraps) { return wraps ? ", modulo 2^32" : ""; }

std::string distance_text(u32 table, u32 distance)
{
    const bool is_behind = distance > 0x7fffffff;
    return fmt::format("vtable at {} {} {} = {}{}", table, is_behind ? '+' : '-', is_behind ? 0 - distance : distance,
                       table - distance, wrap_text(!is_behind && distance > table));
}

// With the number of a word or a time; an address and a hex number are numbers themselves.
std::string displayed_scalar(const Explanation& explanation, const Range& range)
{
    const std::string text = displayed(*range.message, slot_number(range), explanation.bytes.data() + range.position);
    const FieldView* const view = names().find(*range.message, slot_number(range));
    const bool with_number = view != nullptr && view->display >= Display::time;
    return text.empty() || !with_number ? text : fmt::format("{} = {}", text, range.value);
}

constexpr std::size_t most_in_a_value = 100;

std::string payload_text(const Explanation& explanation, const Range& range)
{
    const u8* const bytes = explanation.bytes.data() + range.position;
    const Slot& slot = slot_of(range);
    std::string text = slot.kind == Kind::array ? displayed(*range.message, slot_number(range), bytes) : "";
    if (!text.empty())
        return text;
    if (slot.kind == Kind::string) {
        text = quoted(bytes, std::min<std::size_t>(range.length, most_in_a_value));
        return range.length > most_in_a_value ? text + "..." : text;
    }
    if (slot.width != 4)
        return counted(range.length, "byte");
    for (u32 i = 0; i < range.length; i += 4) {
        if (text.size() > most_in_a_value)
            return text + ", ...";
        text += fmt::format("{}{}", i == 0 ? "" : ", ", model::get32(bytes + i));
    }
    return text;
}

}   // namespace

std::string counted(u64 count, const char* thing)
{
    return fmt::format("{} {}{}", count, thing, count == 1 ? "" : "s");
}

std::string path_text(const Explanation& explanation, const Range& range)
{
    return field_path(*explanation.message, range.path);
}

std::string kind_text(const Range& range)
{
    switch (range.piece) {
    case Piece::root: return "root";
    case Piece::vtable_offset: return "table";
    case Piece::vtable_length: return "vtable length";
    case Piece::table_length: return "table length";
    case Piece::slot: return "slot";
    case Piece::scalar:
    case Piece::payload: return slot_text(range.message->slots[slot_number(range)]);
    case Piece::cell:
    case Piece::element_cell: return "cell";
    case Piece::count: {
        const Kind kind = slot_of(range).kind;
        return kind == Kind::string || kind == Kind::bytes ? "length" : "count";
    }
    case Piece::vtable_rest: return "vtable";
    case Piece::text_end: return "NUL";
    case Piece::padding: return "padding";
    case Piece::unread: break;
    }
    return "-";
}

std::string value_text(const Explanation& explanation, const Range& range)
{
    const u32 value = static_cast<u32>(range.value);
    switch (range.piece) {
    case Piece::root: return fmt::format("table at {}", value);
    case Piece::vtable_offset: return distance_text(range.position, value);
    case Piece::vtable_length: return vtable_text(range);
    case Piece::table_length: return fmt::format("{}", value);
    case Piece::slot:
        return value == 0 ? "absent" : fmt::format("at {} + {} = {}", range.table, value, range.table + value);
    case Piece::scalar:
        if (const std::string text = displayed_scalar(explanation, range); !text.empty())
            return text;
        return range.value < 10 ? fmt::format("{}", range.value) : fmt::format("{0} = {0:#x}", range.value);
    case Piece::cell:
    case Piece::element_cell: {
        const u32 target = range.position + value;
        return fmt::format("to {} + {} = {}{}", range.position, value, target, wrap_text(target < value));
    }
    case Piece::count: return value < 0x10000 ? fmt::format("{}", value) : fmt::format("{0} = {0:#010x}", value);
    case Piece::payload: return payload_text(explanation, range);
    case Piece::vtable_rest: return "not read: the message has no such slot";
    case Piece::text_end: return "after the text, not counted";
    case Piece::padding: return "not read";
    case Piece::unread: break;
    }
    if (explanation.refused)
        return "not reached";
    return explanation.left_out == 0 ? "not read" : "not read, or read and not listed";
}

std::string rule_text(const Failure& failure) { return rule_of(failure.refusal).demand; }

std::string comparison_text(const Failure& failure)
{
    return fmt::format(fmt::runtime(rule_of(failure.refusal).comparison), failure.value, failure.limit);
}

std::string place_text(const Note& note)
{
    if (note.path.empty())
        return "";
    return note.path == "." ? fmt::format(" at {}", note.position)
                            : fmt::format(" at {}, {}", note.position, note.path);
}

std::string origin_text(Origin origin)
{
    switch (origin) {
    case Origin::unknown: break;
    case Origin::compact: return "compact form, just as it is written";
    case Origin::compact_with_rest: return "compact form, with 8 bytes more for each empty block after a pointer";
    case Origin::fixed: return "fixed form, just as it is sent";
    case Origin::other: return "neither form as this library writes it";
    }
    return "not compared with what the library writes";
}

}   // namespace kesto::command
