#include "model/noncanonical.h"

#include <algorithm>

namespace kesto::model {
namespace {

constexpr u32 not_found = 0xffffffffU;

// Bytes under construction. Settled bytes no longer change, so other parts may overlap them.
struct Canvas {
    Bytes bytes;
    std::vector<u8> settled;

    u32 end() const { return position_of_end(bytes); }

    void add(u64 value, u32 width)
    {
        append(bytes, value, width);
        settled.resize(bytes.size(), 1);
    }

    void add(const Canvas& other)
    {
        bytes.insert(bytes.end(), other.bytes.begin(), other.bytes.end());
        settled.insert(settled.end(), other.settled.begin(), other.settled.end());
    }

    u32 add_open_cell()
    {
        add(0, 4);
        std::fill(settled.end() - 4, settled.end(), u8{0});
        return end() - 4;
    }

    void fill_cell(u32 cell, u32 value)
    {
        put(&bytes[cell], value, 4);
        std::fill_n(&settled[cell], 4, u8{1});
    }

    void add_garbage(u32 length, Random& random)
    {
        for (u32 i = 0; i < length; ++i)
            add(random.one_in(3) ? 0xff : random.octet(), 1);
    }

    // The first position at or after `from` where settled bytes happen to equal `wanted`.
    u32 find(const Bytes& wanted, u32 from) const
    {
        for (std::size_t at = from; at + wanted.size() <= bytes.size(); ++at) {
            const auto found = bytes.begin() + static_cast<std::ptrdiff_t>(at);
            if (!std::equal(wanted.begin(), wanted.end(), found))
                continue;
            const auto first = settled.begin() + static_cast<std::ptrdiff_t>(at);
            if (std::count(first, first + static_cast<std::ptrdiff_t>(wanted.size()), u8{0}) == 0) {
                return static_cast<u32>(at);
            }
        }
        return not_found;
    }
};

// A part that is not written yet, and the existing word that must lead to it.
struct Pending {
    enum class Part : u8 { table, vector, body, vtable } part;
    u32 word;               // a cell, the root word, or a table's vtable offset
    const Record* record;   // of a table
    const Field* field;     // of a vector
    Bytes bytes;            // of a body or a vtable
};

class NoncanonicalWriter {
public:
    explicit NoncanonicalWriter(Random& random) : random_(random) {}

    Bytes write(const Record& record)
    {
        canvas_.add_open_cell();
        pending_.push_back({Pending::Part::table, 0, &record, nullptr, {}});
        while (!pending_.empty()) {
            std::swap(pending_[random_.below(static_cast<u32>(pending_.size()))], pending_.back());
            const Pending next = std::move(pending_.back());
            pending_.pop_back();
            leave_gap();
            place(next);
        }
        if (random_.one_in(3))
            canvas_.add_garbage(1 + random_.below(9), random_);
        return std::move(canvas_.bytes);
    }

private:
    // A table's own bytes. Offsets are relative to its start.
    struct Draft {
        Canvas fields;
        std::vector<u32> offsets;       // per slot, 0 if absent
        std::vector<Pending> pending;   // their words are relative to the table, too
    };

    void leave_gap()
    {
        if (random_.one_in(4))
            canvas_.add_garbage(random_.below(12), random_);
        if (random_.one_in(400))
            canvas_.add_garbage(66000 + random_.below(3000), random_);
    }

    void place(const Pending& next);
    void place_table(const Pending& next);
    void place_vector(const Pending& next);
    void place_vtable(u32 table, const Bytes& vtable);
    bool share_table(const Pending& next);
    void link(u32 word, u32 target) { canvas_.fill_cell(word, target - word); }   // the root word is at 0

    Draft draft_of(const Record& record);
    void draft_field(const Slot& slot, const Field& field, std::size_t k, Draft& draft);
    void draft_scalar(const Slot& slot, const Field& field, std::size_t k, Draft& draft);
    Bytes vtable_of(const Draft& draft);

    Random& random_;
    Canvas canvas_;
    std::vector<Pending> pending_;
    struct Placed {
        const Record* record;
        u32 position;
    };
    std::vector<Placed> tables_;
};

Bytes body_of(const Slot& slot, const Field& field)
{
    Bytes body;
    append(body, slot.kind == Kind::array ? slot.count : field.octets.size(), 4);
    for (const u8 octet : field.octets)
        body.push_back(octet);
    for (const u32 word : field.words)
        append(body, word, 4);
    return body;
}

// A null or empty block and an empty vector may be written as a count of 0.
bool is_absent(const Slot& slot, const Field& field)
{
    return !field.present || (slot.kind != Kind::string && field.number == 0);
}

void NoncanonicalWriter::draft_scalar(const Slot& slot, const Field& field, std::size_t k, Draft& draft)
{
    Bytes value;
    append(value, field.number, slot.width);
    if (random_.one_in(3)) {
        const u32 found = draft.fields.find(value, 4);
        if (found != not_found) {
            draft.offsets[k] = found;
            return;
        }
    }
    draft.offsets[k] = draft.fields.end();
    draft.fields.add(field.number, slot.width);
}

void NoncanonicalWriter::draft_field(const Slot& slot, const Field& field, std::size_t k, Draft& draft)
{
    if (slot.kind == Kind::scalar)
        return draft_scalar(slot, field, k, draft);
    Pending pending{Pending::Part::body, 0, nullptr, nullptr, {}};
    if (slot.kind == Kind::table) {
        pending.part = Pending::Part::table;
        pending.record = &field.records[0];
    } else if (slot.kind == Kind::array || (slot.kind == Kind::string && field.present)) {
        pending.bytes = body_of(slot, field);
        if (slot.kind == Kind::string && random_.one_in(2))
            pending.bytes.push_back(0);   // no reader reads the NUL
    } else if (is_absent(slot, field)) {
        append(pending.bytes, 0, 4);
    } else if (slot.kind == Kind::bytes) {
        pending.bytes = body_of(slot, field);
    } else {
        pending.part = Pending::Part::vector;
        pending.field = &field;
    }
    // Two slots with equal bodies may share one cell.
    for (std::size_t other = 0; other < draft.pending.size() && random_.one_in(2); ++other) {
        const Pending& candidate = draft.pending[other];
        if (pending.part != Pending::Part::body || candidate.part != pending.part)
            continue;
        if (candidate.bytes != pending.bytes)
            continue;
        draft.offsets[k] = candidate.word;
        return;
    }
    pending.word = draft.fields.add_open_cell();
    draft.offsets[k] = pending.word;
    draft.pending.push_back(std::move(pending));
}

NoncanonicalWriter::Draft NoncanonicalWriter::draft_of(const Record& record)
{
    Draft draft;
    draft.fields.add_open_cell();
    draft.offsets.assign(record.fields.size(), 0);
    std::vector<std::size_t> order(record.fields.size());
    for (std::size_t k = 0; k < order.size(); ++k)
        order[k] = k;
    for (std::size_t k = order.size(); k > 1; --k)
        std::swap(order[k - 1], order[random_.below(static_cast<u32>(k))]);

    const bool writes_defaults = random_.one_in(2);
    for (const std::size_t k : order) {
        const Slot& slot = record.message->slots[k];
        const Field& field = record.fields[k];
        const bool needed =
            slot.kind == Kind::bytes || slot.kind == Kind::vector ? !is_absent(slot, field) : !is_default(slot, field);
        const bool possible = slot.kind != Kind::string || field.present;
        if (!needed && !(possible && writes_defaults && random_.one_in(2)))
            continue;
        if (random_.one_in(5))
            draft.fields.add_garbage(1 + random_.below(5), random_);
        if (random_.one_in(1000))
            draft.fields.add_garbage(40000 / static_cast<u32>(order.size()), random_);
        draft_field(slot, field, k, draft);
    }
    return draft;
}

Bytes NoncanonicalWriter::vtable_of(const Draft& draft)
{
    u32 slots = static_cast<u32>(draft.offsets.size());
    while (slots > 0 && draft.offsets[slots - 1] == 0)
        --slots;
    const u32 absent = static_cast<u32>(draft.offsets.size()) - slots;
    if (random_.one_in(2))
        slots += absent;   // otherwise some or all trailing ones are dropped
    else
        slots += random_.below(absent + 1);
    const u32 unknown = slots == draft.offsets.size() && random_.one_in(4) ? 1 + random_.below(5) : 0;

    // A vtable without slots may have any length up to 5, even one too short for its own two words.
    const u32 odd = random_.one_in(4) ? 1 : 0;
    const u32 length = slots + unknown == 0 && random_.one_in(2) ? random_.below(6) : 4 + 2 * (slots + unknown) + odd;
    Bytes vtable;
    append(vtable, length, 2);
    append(vtable, random_.next(), 2);   // the table's length, which no reader reads
    for (u32 k = 0; k < slots; ++k)
        append(vtable, draft.offsets[k], 2);
    while (vtable.size() < length)
        vtable.push_back(random_.octet());
    return vtable;
}

void NoncanonicalWriter::place_vtable(u32 table, const Bytes& vtable)
{
    const u32 found = random_.one_in(3) ? canvas_.find(vtable, 4) : not_found;
    const u32 position = found == not_found ? canvas_.end() : found;
    if (found == not_found) {
        for (const u8 octet : vtable)
            canvas_.add(octet, 1);
    }
    canvas_.fill_cell(table, table - position);
}

bool NoncanonicalWriter::share_table(const Pending& next)
{
    for (const Placed& placed : tables_) {
        if (placed.position < next.word || !random_.one_in(2))
            continue;
        if (!same(as_decoded(*placed.record), as_decoded(*next.record)))
            continue;
        link(next.word, placed.position);
        return true;
    }
    return false;
}

void NoncanonicalWriter::place_table(const Pending& next)
{
    if (share_table(next))
        return;
    Draft draft = draft_of(*next.record);
    const Bytes vtable = vtable_of(draft);
    u32 position_of_vtable = not_found;
    if (random_.one_in(3)) {
        position_of_vtable = canvas_.end();
        for (const u8 octet : vtable)
            canvas_.add(octet, 1);
        if (random_.one_in(3))
            leave_gap();
    }
    const u32 table = canvas_.end();
    canvas_.add(draft.fields);
    link(next.word, table);
    tables_.push_back({next.record, table});
    for (Pending& pending : draft.pending) {
        pending.word += table;
        pending_.push_back(std::move(pending));
    }
    if (position_of_vtable != not_found) {
        canvas_.fill_cell(table, table - position_of_vtable);
    } else if (random_.one_in(2)) {
        place_vtable(table, vtable);
    } else {
        pending_.push_back({Pending::Part::vtable, table, nullptr, nullptr, vtable});
    }
}

void NoncanonicalWriter::place_vector(const Pending& next)
{
    link(next.word, canvas_.end());
    canvas_.add(next.field->number, 4);
    for (const Record& element : next.field->records) {
        pending_.push_back({Pending::Part::table, canvas_.add_open_cell(), &element, nullptr, {}});
    }
}

void NoncanonicalWriter::place(const Pending& next)
{
    switch (next.part) {
    case Pending::Part::table: return place_table(next);
    case Pending::Part::vector: return place_vector(next);
    case Pending::Part::vtable: return place_vtable(next.word, next.bytes);
    case Pending::Part::body: break;
    }
    // Any matching settled bytes after the cell will do.
    const u32 found = random_.one_in(3) ? canvas_.find(next.bytes, next.word) : not_found;
    link(next.word, found == not_found ? canvas_.end() : found);
    for (std::size_t i = 0; found == not_found && i < next.bytes.size(); ++i)
        canvas_.add(next.bytes[i], 1);
}

}   // namespace

Bytes noncanonical_layout(const Record& record, Random& random) { return NoncanonicalWriter(random).write(record); }

}   // namespace kesto::model
