#include "tools/kesto/explanation.h"

#include <fmt/format.h>

#include <algorithm>

#include "model/encode.h"
#include "tools/kesto/collector.h"
#include "tools/kesto/extent.h"
#include "tools/kesto/packet_head.h"

namespace kesto::command {

namespace {

// ---- order of ranges ----

bool stands_before(const Range& left, const Range& right)
{
    if (left.position != right.position)
        return left.position < right.position;
    if (left.length != right.length)   // an empty text before its NUL, otherwise the longer one first
        return left.length == 0 || (right.length != 0 && left.length > right.length);
    return left.piece < right.piece;
}

void merge_equal(std::vector<Range>& ranges)
{
    std::stable_sort(ranges.begin(), ranges.end(), stands_before);
    std::size_t kept = 0;
    for (const Range& range : ranges) {
        Range* const before = kept == 0 ? nullptr : &ranges[kept - 1];
        if (before != nullptr && !stands_before(*before, range)) {
            // The range read last is added a second time only to be marked.
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
        if (range.reads > 1 && range.piece == Piece::payload)
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

void note_packet_head(const Explanation& explanation, Notes& notes)
{
    if (const std::optional<PacketHead> head = packet_head_of(explanation.bytes))
        notes.add("packet_head", 0, PacketHead::length, ".", packet_head_text(*head));
}

// Fills the gaps with ranges: NULs after texts, bytes between two ranges and bytes after the last.
class Gaps {
public:
    explicit Gaps(Explanation& explanation) : explanation_(explanation) {}

    void fill()
    {
        const std::vector<Range> known = explanation_.ranges;
        u32 end = 0;
        for (const Range& range : known) {
            fill_up_to(range.position, end);
            end = std::max(end, range.position + range.length);
            if (range.piece == Piece::payload && slot_kind(range) == Kind::string)
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
            add(Piece::text_end, at, 1, text_);
            ++at;
        }
        if (at >= next)
            return;
        const bool zero = std::all_of(bytes.begin() + at, bytes.begin() + next, [](u8 byte) { return byte == 0; });
        // The fixed form rounds up to 8; an enclosing table may then round up to 4.
        const bool padding = zero && next - at <= 7 + 3;
        add(padding ? Piece::padding : Piece::unread, at, next - at, {});
    }

    void add(Piece piece, u32 position, u32 length, const Range& owner)
    {
        explanation_.ranges.push_back({piece, position, length, 0, owner.table, owner.message, owner.path});
    }

    Explanation& explanation_;
    Range text_;   // the last text
};

// Up to `end`, where another note begins.
void note_unread(const Explanation& explanation, u64 end, Notes& notes)
{
    if (explanation.refused || explanation.left_out != 0)
        return;
    for (const Range& range : explanation.ranges)
        if (range.piece == Piece::unread && range.position < end)
            notes.add("not_read", range.position, range.length, ".",
                      counted(range.length, "byte") + " that no decoder reads");
}

// ---- which writer ----

// Memory of the largest record that a writer encodes in the given number of bytes: each field has two bytes in its own
// vtable, and each table has eight more.
u64 most_of_written(std::size_t length)
{
    static_assert(sizeof(model::Field) / 2 + sizeof(Record) / 8 <= 64);
    return u64{64} * length;
}

bool holds_block(const Message& message)
{
    return std::any_of(message.slots.begin(), message.slots.end(), [](const Slot& slot) {
        return slot.kind == Kind::bytes || (slot.nested != nullptr && holds_block(*slot.nested));
    });
}

Origin origin_of(const Message& message, std::span<const u8> bytes)
{
    model::Outcome outcome;
    model::decode(message, bytes.data(), static_cast<u32>(bytes.size()), {}, outcome);
    if (!is_encodable(outcome.record))
        return Origin::other;
    const Bytes compact = model::compact_form(outcome.record);
    if (std::ranges::equal(bytes, compact))
        return Origin::compact;
    if (message.fixed_length != 0 && std::ranges::equal(bytes, model::fixed_form(outcome.record)))
        return Origin::fixed;
    const bool begins_alike = bytes.size() > compact.size() && holds_block(message) &&
                              std::equal(compact.begin(), compact.end(), bytes.begin());
    return begins_alike && (bytes.size() - compact.size()) % 8 == 0 ? Origin::compact_with_rest : Origin::other;
}

std::optional<Refused> refused_with_log(const model::Failure& failure, const model::Trace& trace)
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
    model::DecodeOptions decoding;
    decoding.pointer_width = options.pointer_width;
    decoding.contents = false;
    decoding.walk = &collector;
    model::Outcome outcome;
    static constexpr u8 nothing = 0;   // an empty byte string is too short, not a null pointer
    try {
        model::decode(message, bytes.empty() ? &nothing : bytes.data(), static_cast<u32>(bytes.size()), decoding,
                      outcome);
    } catch (const GivenUp&) {
        explanation.given_up = true;
        return explanation;
    }
    explanation.refused = refused_with_log(outcome.failure, outcome.trace);
    explanation.ignored = refused_with_log(outcome.ignored, outcome.trace);
    explanation.allocations = outcome.allocations;
    explanation.memory = outcome.memory;
    collector.finish();
    merge_equal(explanation.ranges);
    note_sharing(explanation, notes);
    Gaps(explanation).fill();
    if (explanation.refused)
        note_packet_head(explanation, notes);
    if (!explanation.refused && explanation.record_memory > most_of_written(bytes.size()))
        explanation.origin = Origin::other;
    else if (!explanation.refused && explanation.record_memory <= options.most_memory)
        explanation.origin = origin_of(message, bytes);
    note_unread(explanation, note_extent(explanation, notes), notes);
    explanation.notes = notes.all();
    return explanation;
}

}   // namespace kesto::command
