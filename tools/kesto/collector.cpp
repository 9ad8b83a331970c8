#include "tools/kesto/collector.h"

#include <fmt/format.h>

#include <algorithm>

#include "model/utf8.h"
#include "tools/kesto/quoting.h"

namespace kesto::command {

namespace {

using model::Item;

bool is_head(const Item& item)
{
    return item.piece == Piece::vtable_offset || item.piece == Piece::vtable_length ||
           item.piece == Piece::table_length;
}

// True for a separate record, as opposed to a part of the enclosing one.
bool begins_record(const Item& item)
{
    const u32 depth = item.path->length;
    return item.piece == Piece::vtable_offset && (depth == 0 || item.path->steps[depth - 1].element >= 0);
}

// Size of a record in the model, including the fields and nested records that it always has.
u64 record_size(const Message& message)
{
    u64 size = sizeof(Record);
    for (const Slot& slot : message.slots) {
        size += sizeof(model::Field) + u64{slot.width} * slot.count;
        if (slot.kind == Kind::table)
            size += record_size(*slot.nested);
    }
    return size;
}

const Slot& slot_of(const Item& item) { return item.message->slots[item.path->steps[item.path->length - 1].slot]; }

}   // namespace

bool Collector::is_inside_known_table(const Item& item)
{
    const u32 depth = item.path->length;
    if (depth > known_depth_ || (depth == known_depth_ && is_head(item) && item.piece != Piece::vtable_offset))
        return true;
    known_depth_ = 0xffffffffU;
    return false;
}

// False for a table beyond the limit. A table that was read before is shown up to its first word.
bool Collector::enter(const Item& item)
{
    const u64 key = u64{item.message->index} << 32 | item.position;
    const auto found = known_.find(key);
    is_left_out_ = found == known_.end() && tables_.size() >= options_.most_ranges;
    if (is_left_out_ || found != known_.end())
        known_depth_ = item.path->length;
    if (is_left_out_)
        return false;
    if (found != known_.end()) {
        ++tables_[found->second].reads;
        return true;
    }
    known_.emplace(key, tables_.size());
    open_[item.path->length] = tables_.size();
    Table& table = tables_.emplace_back();
    table.position = item.position;
    table.vtable = item.position - static_cast<u32>(item.value);
    table.end = item.position + 4;
    table.message = item.message;
    table.path = *item.path;
    return true;
}

void Collector::count(const Item& item)
{
    explanation_.bytes_read += item.length;
    if (item.piece == Piece::payload)
        explanation_.record_memory += u64{4} * item.length;   // printing octets takes more memory than printing a field
    if (begins_record(item)) {
        if (sized_ != item.message)
            size_ = record_size(*item.message);
        sized_ = item.message;
        explanation_.record_memory += size_;
    }
    if (explanation_.bytes_read > options_.most_read || explanation_.record_memory > options_.most_record)
        throw GivenUp();
}

void Collector::read(const Item& item)
{
    const bool is_root = item.piece == Piece::root;
    const u32 depth = item.path->length - (is_root || is_head(item) ? 0 : 1);
    if (item.piece == Piece::vtable_offset)
        positions_[depth] = item.position;
    const u32 table = is_root ? 0 : positions_[depth];
    last_ = {item.piece, item.position, item.length, item.value, table, item.message, *item.path};
    count(item);
    if (is_inside_known_table(item)) {
        explanation_.left_out += is_left_out_ ? 1 : 0;
        return;
    }
    if (item.piece == Piece::vtable_offset && !enter(item)) {
        ++explanation_.left_out;
        return;
    }
    if (!is_root && item.piece != Piece::vtable_offset)
        note_item(item, tables_[open_[depth]]);
    add(last_);
}

void Collector::add(const Range& range)
{
    if (explanation_.ranges.size() < options_.most_ranges)
        explanation_.ranges.push_back(range);
    else
        ++explanation_.left_out;
}

void Collector::note_item(const Item& item, Table& table)
{
    switch (item.piece) {
    case Piece::vtable_length:
        table.vtable_length = static_cast<u32>(item.value);
        if (table.vtable_length < 4)
            notes_.add("vtable_short", item.position, 2, path_text(table.path),
                       fmt::format("a vtable of {} is too short for its own head; it is read as one without slots",
                                   counted(table.vtable_length, "byte")));
        break;
    case Piece::table_length:
        table.table_length = static_cast<u32>(item.value);
        table.has_table_length = true;
        note_vtable(table);
        break;
    case Piece::slot:
        if (item.value != 0 && item.value < 4)
            notes_.add("field_in_table_head", item.position, 2, path_text(*item.path),
                       fmt::format("the field begins {} after the table's first byte, inside its first word",
                                   counted(item.value, "byte")));
        break;
    case Piece::scalar:
    case Piece::cell:
    case Piece::count:
    case Piece::element_cell:
    case Piece::payload: table.end = std::max(table.end, item.position + item.length); break;
    default: break;
    }
    if (item.piece == Piece::payload && slot_of(item).kind == Kind::string)
        note_text(item, table);
}

void Collector::note_vtable(Table& table)
{
    const u32 known = table.message->vtable_length;
    const u32 length = table.vtable_length;
    const std::string path = path_text(table.path);
    const u32 read = std::min(known, length - length % 2);
    if (length % 2 != 0)
        notes_.add("vtable_odd", table.vtable, 2, path, fmt::format("the vtable's length, {}, is odd", length));
    if (length > known + 1)
        notes_.add("slots_unknown", table.vtable + known, length - known, path,
                   fmt::format("{} more than {} has; they are not read. A newer writer?",
                               counted((length - known) / 2, "slot"), table.message->name));
    if (length < known)
        notes_.add("slots_missing", table.vtable, 2, path,
                   fmt::format("the vtable has {} of {} slots; the others count as absent. An older writer?",
                               (read - 4) / 2, table.message->slots.size()));
    if (length > read)
        add({Piece::vtable_rest, table.vtable + read, length - read, 0, table.position, table.message, table.path});
}

void Collector::note_text(const Item& item, Table& table)
{
    const std::span<const u8> bytes = explanation_.bytes;
    const u8* const text = bytes.data() + item.position;
    const u32 end = item.position + item.length;
    if (end < bytes.size() && bytes[end] == 0)
        table.end = std::max(table.end, end + 1);
    else
        notes_.add("text_without_nul", item.position, item.length, path_text(*item.path),
                   "no NUL after the text; every writer leaves one, no reader looks for it");
    const u32 visible = static_cast<u32>(std::find(text, text + item.length, u8{0}) - text);
    if (visible != item.length)
        notes_.add(
            "text_with_nul", item.position + visible, 1, path_text(*item.path),
            fmt::format("a NUL within the text: C code sees {} of its {}", visible, counted(item.length, "byte")));
    if (!model::is_utf8(text, item.length))
        notes_.add("text_not_utf8", item.position, item.length, path_text(*item.path), "the text is not UTF-8");
}

// All writers state the end of the table's own bytes; in the fixed form the length includes nested tables.
void Collector::note_table(const Table& table)
{
    const u32 own = (table.end - table.position) & 0xffff;
    if (table.has_table_length && table.table_length != own && table.table_length != table.message->fixed_table_length)
        notes_.add("table_length", table.vtable + 2, 2, path_text(table.path),
                   fmt::format("the table length says {}, the table has {}; nobody reads it", table.table_length, own));
    if (table.reads > 1)
        notes_.add("shared_table", table.position, 4, path_text(table.path),
                   fmt::format("{} lead to this table: as many records of {}", counted(table.reads, "cell"),
                               counted(table.message->layout(options_.pointer_width).size, "byte")));
}

void Collector::finish()
{
    if (explanation_.refused) {
        last_.read_last = last_.length != 0;
        if (last_.read_last)
            explanation_.ranges.push_back(last_);   // merged with the existing range, if there is one
        return;
    }
    for (const Table& table : tables_)
        note_table(table);
}

}   // namespace kesto::command
