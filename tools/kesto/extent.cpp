#include "tools/kesto/extent.h"

#include <fmt/format.h>

#include <algorithm>

namespace kesto::command {

namespace {

using model::Refusal;

// All writers of the fixed form put the table at 4 and its vtable after it.
bool has_fixed_shape(const Message& message, std::span<const u8> bytes)
{
    const u32 to_vtable = (message.fixed_table_length + 3) / 4 * 4;
    return message.fixed_length != 0 && bytes.size() >= 4 && model::get32(bytes.data()) == 4 &&
           (bytes.size() < 8 || model::get32(bytes.data() + 4) == 0 - to_vtable);
}

bool holds_tables(const Message& message)
{
    return std::ranges::any_of(message.slots, [](const Slot& slot) { return slot.nested != nullptr; });
}

class Extent {
public:
    explicit Extent(const Explanation& explanation) : explanation_(explanation)
    {
        for (const Range& range : explanation.ranges) {
            if (is_read(range.piece))
                covered_ = std::max(covered_, end_of(range));
            if (range.piece == Piece::table_length)
                tables_ = std::max(tables_, u64{range.table} + range.value);
        }
    }

    // The end of everything that is read or announced; 0 if a table does not state its length.
    u64 announced() const
    {
        const auto count = [&](Piece piece) { return std::ranges::count(explanation_.ranges, piece, &Range::piece); };
        return count(Piece::vtable_offset) == count(Piece::table_length) ? std::max(covered_, tables_) : 0;
    }

    // The least length of the whole byte string if this seems to be the beginning of one, otherwise 0. One wrong number
    // also leads past the end, but then the table's length or the bytes around it contradict.
    u64 whole() const
    {
        if (!explanation_.refused)
            return lacks_nul() ? length() + 1 : 0;
        const auto last = std::ranges::find_if(explanation_.ranges, &Range::read_last);
        if (last == explanation_.ranges.end())
            return 0;
        const model::Failure& failure = explanation_.refused->failure;
        switch (failure.refusal) {
        case Refusal::scalar_end:
        case Refusal::cell_end:
        case Refusal::reference_range:
        case Refusal::body_end: return whole_by_table(last->table, failure.value);
        case Refusal::table_position: return failure.value > failure.limit ? whole_by_cell(*last, failure.value) : 0;
        case Refusal::vtable_length: return failure.value == last->message->vtable_length ? tables_ : 0;
        default: return 0;
        }
    }

private:
    static bool is_read(Piece piece) { return piece != Piece::padding && piece != Piece::unread; }
    static u64 end_of(const Range& range) { return u64{range.position} + range.length; }
    u64 length() const { return explanation_.bytes.size(); }

    // The text that ends the byte string has lost its NUL.
    bool lacks_nul() const
    {
        const auto is_text = [&](const Range& range) {
            return range.piece == Piece::payload && end_of(range) == length() &&
                   range.message->slots[range.path.steps[range.path.length - 1].slot].kind == Kind::string;
        };
        return tables_ == length() + 1 && std::ranges::any_of(explanation_.ranges, is_text);
    }

    // A number of the table at `position` claims an end. The low 16 bits of the table's length have to allow it.
    u64 whole_by_table(u32 position, u64 claimed) const
    {
        const auto is_its_length = [&](const Range& range) {
            return range.piece == Piece::table_length && range.table == position;
        };
        const auto stated = std::ranges::find_if(explanation_.ranges, is_its_length);
        if (stated == explanation_.ranges.end())
            return 0;
        const u64 end = position + stated->value;
        if (claimed <= end)
            return tables_;
        if (end <= length() && length() - position < 0x10000)
            return 0;                                 // complete without that number
        const u64 over = (claimed - end) % 0x10000;   // a text's NUL is not claimed
        return claimed - end >= 0xffff && (over == 0 || over == 0xffff) ? claimed + over % 2 : 0;
    }

    // A table would begin past the end. Just before it are its vtable or the end of the other tables.
    u64 whole_by_cell(const Range& last, u64 target) const
    {
        const Message& nested = nested_of(last);
        const u64 vtable = std::max(covered_, tables_);
        if (target < vtable || target - vtable > nested.vtable_length)
            return 0;
        const bool states_length = vtable + 4 <= length() && target - vtable == nested.vtable_length;
        const u64 end = target + (states_length ? model::get(explanation_.bytes.data() + vtable + 2, 2) : 4);
        return last.piece == Piece::element_cell ? whole_by_elements(last, end) : end;
    }

    // The cells of a vector's later elements lead further still.
    u64 whole_by_elements(const Range& last, u64 end) const
    {
        u64 whole = end;
        const Range* count = nullptr;
        for (const Range& range : explanation_.ranges)
            if (range.piece == Piece::count && range.position < last.position)
                count = &range;
        for (u64 at = last.position + u64{4}; at < count->position + 4 + 4 * count->value; at += 4) {
            const u64 target = at + model::get32(explanation_.bytes.data() + at);
            if (target < end)
                return 0;
            whole = std::max(whole, target + 4);
        }
        return whole;
    }

    const Message& nested_of(const Range& last) const
    {
        return last.piece == Piece::root ? *explanation_.message
                                         : *last.message->slots[last.path.steps[last.path.length - 1].slot].nested;
    }

    const Explanation& explanation_;
    u64 covered_ = 0;   // end of what was read
    u64 tables_ = 0;    // greatest end that a table states
};

std::string cut_text(const Explanation& explanation, u64 whole, bool is_fixed)
{
    const std::size_t length = explanation.bytes.size();
    const char* const are = length == 1 ? "is" : "are";
    if (is_fixed)
        return fmt::format("cut? The fixed form has {}, {} {} here", counted(whole, "byte"), length, are);
    return fmt::format("cut? Its tables announce {}{}, {} {} here",
                       holds_tables(*explanation.message) ? "at least " : "", counted(whole, "byte"), length, are);
}

}   // namespace

u64 note_extent(const Explanation& explanation, Notes& notes)
{
    const u64 length = explanation.bytes.size();
    const bool is_fixed = has_fixed_shape(*explanation.message, explanation.bytes);
    const u64 fixed_length = explanation.message->fixed_length;
    if (!is_fixed && explanation.left_out != 0)
        return length;
    const Extent extent(explanation);
    const u64 whole = is_fixed ? fixed_length : extent.whole();
    if (whole > length)
        notes.add("truncated", static_cast<u32>(length), 0, ".", cut_text(explanation, whole, is_fixed));
    const bool is_as_written = explanation.origin != Origin::other && explanation.origin != Origin::unknown;
    const u64 end = is_fixed ? fixed_length : explanation.refused || is_as_written ? 0 : extent.announced();
    if (end == 0 || end >= length)
        return length;
    notes.add("surplus", static_cast<u32>(end), static_cast<u32>(length - end), ".",
              fmt::format("{} left over: {} {}", counted(length - end, "byte"),
                          is_fixed ? "the fixed form ends at" : "what its tables announce ends at", end));
    return end;
}

}   // namespace kesto::command
