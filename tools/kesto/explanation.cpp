#include "tools/kesto/explanation.h"

#include <fmt/format.h>

#include <algorithm>
#include <unordered_map>

#include "reference/encode.h"
#include "tools/kesto/notes.h"

namespace kesto::command {

namespace {

using reference::Item;
using reference::Piece;

static_assert(static_cast<int>(Part::element_cell) == static_cast<int>(Piece::element_cell));

// A walk turned into ranges. A table that is read again, by another cell, is not followed again: what a few bytes ask
// the decoder to read a million times would be listed as often.
class Collector final : public reference::Walk {
public:
    Collector(Explanation& explanation, Notes& notes, const ExplainOptions& options)
        : explanation_(explanation), notes_(notes), options_(options)
    {
    }

    void read(const Item& item) override;
    void finish();

private:
    struct Table {
        u32 position = 0;
        u32 vtable = 0;
        u32 vtable_length = 0;
        u32 table_length = 0;
        bool has_table_length = false;
        u32 end = 0;   // of what belongs to the table itself
        const Message* message = nullptr;
        reference::Path path;
        u32 reads = 1;
    };

    bool is_inside_known_table(const Item& item);
    Table& enter(const Item& item);
    void note_item(const Item& item, Table& table);
    void note_vtable(Table& table);
    void note_text(const Item& item, Table& table);
    void note_table(const Table& table);
    void add(const Range& range);
    Table& table_of(const Item& item);
    std::string path_text(const reference::Path& path) const { return command::path_text(*explanation_.message, path); }

    Explanation& explanation_;
    Notes& notes_;
    const ExplainOptions& options_;
    std::vector<Table> tables_;
    std::unordered_map<u64, std::size_t> known_;   // by message and position
    std::array<std::size_t, reference::greatest_depth + 2> open_{};
    u32 known_depth_ = 0xffffffffU;   // of the table that is read again
    Range last_;
};

const Slot& slot_of(const Item& item) { return item.message->slots[item.path->steps[item.path->length - 1].slot]; }

bool Collector::is_inside_known_table(const Item& item)
{
    const u32 depth = item.path->length;
    const bool head = item.piece == Piece::vtable_length || item.piece == Piece::table_length;
    if (depth > known_depth_ || (depth == known_depth_ && head))
        return true;
    known_depth_ = 0xffffffffU;
    return false;
}

// The table, which may have been there before.
Collector::Table& Collector::enter(const Item& item)
{
    const u64 key = u64{item.message->index} << 32 | item.position;
    const auto [found, is_new] = known_.emplace(key, tables_.size());
    if (!is_new) {
        known_depth_ = item.path->length;
        ++tables_[found->second].reads;
        return tables_[found->second];
    }
    open_[item.path->length] = tables_.size();
    Table& table = tables_.emplace_back();
    table.position = item.position;
    table.vtable = item.position - static_cast<u32>(item.value);
    table.end = item.position + 4;
    table.message = item.message;
    table.path = *item.path;
    return table;
}

Collector::Table& Collector::table_of(const Item& item)
{
    if (item.piece == Piece::vtable_offset)
        return enter(item);
    const bool head = item.piece == Piece::vtable_length || item.piece == Piece::table_length;
    return tables_[open_[item.path->length - (head ? 0 : 1)]];
}

void Collector::read(const Item& item)
{
    last_ = {static_cast<Part>(item.piece), item.position, item.length, item.value, 0, item.message, *item.path};
    if (is_inside_known_table(item))
        return;
    if (item.piece != Piece::root) {
        Table& table = table_of(item);
        last_.table = table.position;
        note_item(item, table);
    }
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
                       fmt::format("the field begins {} behind the table's first byte, inside its first word",
                                   counted(item.value, "byte")));
        break;
    case Piece::scalar:
    case Piece::cell:
    case Piece::count:
    case Piece::element_cell:
    case Piece::payload: table.end = std::max(table.end, item.position + item.length); break;
    case Piece::root:
    case Piece::vtable_offset: break;
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
        add({Part::vtable_rest, table.vtable + read, length - read, 0, table.position, table.message, table.path});
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
                   "no NUL behind the text; every writer leaves one, no reader looks for it");
    const u32 visible = static_cast<u32>(std::find(text, text + item.length, u8{0}) - text);
    if (visible != item.length)
        notes_.add(
            "text_with_nul", item.position + visible, 1, path_text(*item.path),
            fmt::format("a NUL within the text: C code sees {} of its {}", visible, counted(item.length, "byte")));
    if (!is_utf8(text, item.length))
        notes_.add("text_not_utf8", item.position, item.length, path_text(*item.path), "the text is not UTF-8");
}

// Every writer states the end of what belongs to the table itself; the fixed form counts what is nested, too.
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
            explanation_.ranges.push_back(last_);   // merged with itself, if it is there
        return;
    }
    for (const Table& table : tables_)
        note_table(table);
}

// ---- order in the ranges ----

bool stands_before(const Range& left, const Range& right)
{
    if (left.position != right.position)
        return left.position < right.position;
    if (left.length != right.length)   // an empty text in front of its NUL, else the longer one first
        return left.length == 0 || (right.length != 0 && left.length > right.length);
    return left.part < right.part;
}

void merge_equal(std::vector<Range>& ranges)
{
    std::stable_sort(ranges.begin(), ranges.end(), stands_before);
    std::size_t kept = 0;
    for (const Range& range : ranges) {
        Range* const before = kept == 0 ? nullptr : &ranges[kept - 1];
        if (before != nullptr && !stands_before(*before, range)) {
            // What was read last comes a second time only to be marked.
            before->reads += range.read_last ? 0 : 1;
            before->read_last |= range.read_last;
        } else {
            ranges[kept++] = range;
        }
    }
    ranges.resize(kept);
}

void note_sharing(const Explanation& explanation, Notes& notes)
{
    u64 end = 0;
    const Range* reaching = nullptr;
    for (const Range& range : explanation.ranges) {
        if (range.reads > 1 && range.part == Part::payload)
            notes.add("shared_body", range.position, range.length, path_text(explanation, range),
                      fmt::format("read {} times, and copied as often", range.reads));
        if (range.length == 0)
            continue;
        if (range.position < end)
            notes.add("overlap", range.position, static_cast<u32>(std::min<u64>(range.length, end - range.position)),
                      path_text(explanation, range),
                      fmt::format("{} of {} overlaps {} of {} at {}", kind_text(range), path_text(explanation, range),
                                  kind_text(*reaching), path_text(explanation, *reaching), reaching->position));
        if (range.position + u64{range.length} > end) {
            end = range.position + u64{range.length};
            reaching = &range;
        }
    }
}

// What stands behind a text, between two ranges or behind the last.
class Gaps {
public:
    Gaps(Explanation& explanation, Notes& notes) : explanation_(explanation), notes_(notes) {}

    void fill()
    {
        const std::vector<Range> known = explanation_.ranges;
        u32 end = 0;
        for (const Range& range : known) {
            fill_up_to(range.position, end);
            end = std::max(end, range.position + range.length);
            if (range.part == Part::payload && slot_kind(range) == Kind::string)
                text_ = range;
        }
        fill_up_to(static_cast<u32>(explanation_.bytes.size()), end);
        std::stable_sort(explanation_.ranges.begin(), explanation_.ranges.end(), stands_before);
    }

private:
    static Kind slot_kind(const Range& range)
    {
        return range.message->slots[range.path.steps[range.path.length - 1].slot].kind;
    }

    void fill_up_to(u32 next, u32 at)
    {
        const std::span<const u8> bytes = explanation_.bytes;
        if (at < next && bytes[at] == 0 && text_.message != nullptr && text_.position + text_.length == at) {
            add(Part::text_end, at, 1, text_);
            ++at;
        }
        if (at >= next)
            return;
        const bool zero = std::all_of(bytes.begin() + at, bytes.begin() + next, [](u8 byte) { return byte == 0; });
        // The fixed form rounds up to 8, and right behind that a table around it to 4.
        const bool padding = zero && next - at <= 7 + 3;
        add(padding ? Part::padding : Part::unread, at, next - at, {});
        if (!padding && !explanation_.refused && explanation_.left_out == 0)
            notes_.add("not_read", at, next - at, ".", counted(next - at, "byte") + " that no decoder reads");
    }

    void add(Part part, u32 position, u32 length, const Range& owner)
    {
        explanation_.ranges.push_back({part, position, length, 0, owner.table, owner.message, owner.path});
    }

    Explanation& explanation_;
    Notes& notes_;
    Range text_;   // the last one
};

// ---- which writer ----

Origin origin_of(const Message& message, std::span<const u8> bytes)
{
    reference::Outcome outcome;
    reference::decode(message, bytes.data(), static_cast<u32>(bytes.size()), {}, outcome);
    if (!is_encodable(outcome.record))
        return Origin::other;
    const Bytes compact = reference::compact_form(outcome.record);
    if (std::ranges::equal(bytes, compact))
        return Origin::compact;
    if (message.fixed_length != 0 && std::ranges::equal(bytes, reference::fixed_form(outcome.record)))
        return Origin::fixed;
    const bool begins_alike =
        bytes.size() > compact.size() && std::equal(compact.begin(), compact.end(), bytes.begin());
    return begins_alike && (bytes.size() - compact.size()) % 8 == 0 ? Origin::compact_with_rest : Origin::other;
}

std::optional<Refused> refused_with_log(const reference::Failure& failure, const reference::Trace& trace)
{
    if (!failure)
        return {};
    Refused refused{failure, {}};
    if (failure.log >= 0)
        refused.log = trace[static_cast<std::size_t>(failure.log)];
    return refused;
}

}   // namespace

Explanation explain(const Message& message, std::span<const u8> bytes, const ExplainOptions& options)
{
    Explanation explanation;
    explanation.message = &message;
    explanation.bytes = bytes;
    Notes notes;
    Collector collector(explanation, notes, options);
    reference::DecodeOptions decoding;
    decoding.pointer_width = options.pointer_width;
    decoding.contents = false;
    decoding.walk = &collector;
    reference::Outcome outcome;
    static constexpr u8 nothing = 0;   // an empty byte string is too short, not a null pointer
    reference::decode(message, bytes.empty() ? &nothing : bytes.data(), static_cast<u32>(bytes.size()), decoding,
                      outcome);

    explanation.refused = refused_with_log(outcome.failure, outcome.trace);
    explanation.ignored = refused_with_log(outcome.ignored, outcome.trace);
    explanation.allocations = outcome.allocations;
    for (const reference::Event& event : outcome.trace)
        explanation.memory += event.act == reference::Act::allocate ? event.size : 0;
    collector.finish();
    merge_equal(explanation.ranges);
    note_sharing(explanation, notes);
    Gaps(explanation, notes).fill();
    if (!explanation.refused && explanation.memory <= options.most_memory)
        explanation.origin = origin_of(message, bytes);
    explanation.notes = notes.all();
    return explanation;
}

}   // namespace kesto::command
