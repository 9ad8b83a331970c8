#include "model/decode.h"

#include <algorithm>

namespace kesto::model {
namespace {

// Releases the owned blocks of a record. A null `record` means an all-zero one, such as an element never reached.
void release_parts(const Message& message, Record* record, Trace& trace);

void add_release(const Message& message, i32 block, Trace& trace)
{
    Event event;
    event.act = Act::release;
    event.routine = {&message, RoutineKind::free_unpacked};
    event.block = block;
    trace.push_back(event);
}

void drop(Field& field)
{
    field.present = false;   // the length or count is kept
    field.block = -1;
    field.octets.clear();
    field.records.clear();
}

// Releases the elements from 0 to `count`, then their array, whose pointer is not null.
void release_vector(const Message& message, const Slot& slot, Field& field, u32 count, Trace& trace)
{
    for (u32 i = 0; slot.nested->owns_blocks && i < count; ++i) {
        release_parts(*slot.nested, i < field.records.size() ? &field.records[i] : nullptr, trace);
    }
    add_release(message, field.block, trace);
    drop(field);
}

void release_parts(const Message& message, Record* record, Trace& trace)
{
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        const Slot& slot = message.slots[k];
        Field* const field = record == nullptr ? nullptr : &record->fields[k];
        if (slot.kind == Kind::string || slot.kind == Kind::bytes) {
            add_release(message, field == nullptr ? -1 : field->block, trace);   // also if null
            if (field != nullptr)
                drop(*field);
        } else if (slot.kind == Kind::table && slot.nested->owns_blocks) {
            release_parts(*slot.nested, field == nullptr ? nullptr : &field->records[0], trace);
        } else if (slot.kind == Kind::vector && field != nullptr && field->present) {
            release_vector(message, slot, *field, static_cast<u32>(field->number), trace);
        }
    }
}

class Decoder {
public:
    Decoder(const u8* bytes, u32 length, const DecodeOptions& options, Outcome& outcome)
        : bytes_(bytes), length_(length), options_(options), outcome_(outcome)
    {
    }

    void run(const Message& message);

private:
    struct Table {
        Routine routine;
        u32 position = 0;
        u32 vtable = 0;
        u32 vtable_length = 0;
    };

    // The array of elements that results from a size truncated to 32 bits.
    struct Block {
        u32 elements_inside = 0;
        bool is_null = false;
        bool is_short = false;
    };

    bool parameters(const Routine& routine);
    bool open_table(Table& table);
    bool read_slots(const Table& table, Record& record);
    bool read_field(const Table& table, const Slot& slot, u32 offset, Field& field);
    bool read_scalar(const Table& table, const Slot& slot, u32 offset, Field& field);
    bool read_octets(const Table& table, const Slot& slot, u32 offset, Field& field);
    bool read_array(const Table& table, const Slot& slot, u32 offset, Field& field);
    bool read_nested(const Table& table, const Slot& slot, u32 offset, Field& field);
    bool read_vector(const Table& table, const Slot& slot, u32 offset, Field& field);
    bool read_elements(const Table& table, const Slot& slot, u32 first_cell, const Block& block, Field& field);
    bool read_element(const Table& table, const Slot& slot, u32 cell, const Block& block, Field& field);
    bool read_non_root(const Message& message, u32 position, Record& record);

    bool read_cell(const Table& table, u32 offset, u32& cell, u32& target);
    bool read_body_count(const Table& table, u32 offset, u32& body, u32& count);
    bool body_fits(const Table& table, u32 body, u64 payload);
    bool allocate(const Routine& routine, u32 size, i32& block);
    void release(const Message& message, Record& record);

    bool refuse(const Routine& routine, Refusal refusal, u32 position, u64 value, u64 limit);
    void log(const Routine& routine, Format format, u32 first, u32 second, u32 third = 0);
    u32 number_at(Piece piece, u32 position, u32 width, const Table& table);
    void show(Piece piece, u32 position, u32 length, u64 value, const Table& table);
    Path::Step& step() { return path_.steps[path_.length - 1]; }

    const u8* bytes_;
    u32 length_;
    const DecodeOptions& options_;
    Outcome& outcome_;
    Path path_;
    i32 pending_log_ = -1;   // the log that the next refusal belongs to
};

void Decoder::show(Piece piece, u32 position, u32 length, u64 value, const Table& table)
{
    if (options_.walk == nullptr)
        return;
    options_.walk->read({piece, position, length, value, table.routine.message, &path_});
}

u32 Decoder::number_at(Piece piece, u32 position, u32 width, const Table& table)
{
    const u32 value = static_cast<u32>(get(bytes_ + position, width));
    show(piece, position, width, value, table);
    return value;
}

bool Decoder::refuse(const Routine& routine, Refusal refusal, u32 position, u64 value, u64 limit)
{
    outcome_.failure = {refusal, routine, path_, position, value, limit, pending_log_};
    pending_log_ = -1;
    return false;
}

void Decoder::log(const Routine& routine, Format format, u32 first, u32 second, u32 third)
{
    Event event;
    event.act = Act::log;
    event.routine = routine;
    event.format = format;
    event.arguments = {first, second, third};
    pending_log_ = static_cast<i32>(outcome_.trace.size());
    outcome_.trace.push_back(event);
}

bool Decoder::allocate(const Routine& routine, u32 size, i32& block)
{
    const u32 number = outcome_.allocations++;
    outcome_.memory += size;
    Event event;
    event.act = Act::allocate;
    event.routine = routine;
    event.size = size;
    event.block = static_cast<i32>(number);
    event.failed = options_.faults.refuses(number, size);
    if (options_.contents)
        outcome_.trace.push_back(event);
    if (event.failed) {
        log(routine, Format::allocation, size, 0);
        return refuse(routine, Refusal::allocation, 0, size, 0);
    }
    block = event.block;
    return true;
}

void Decoder::release(const Message& message, Record& record)
{
    if (message.owns_blocks && options_.contents)
        release_parts(message, &record, outcome_.trace);
}

bool Decoder::parameters(const Routine& routine)
{
    const bool record_null = options_.record_null;
    const bool too_short = length_ < 4 || length_ > 0x7fffffffU;   // below 4 as a signed number
    if (bytes_ != nullptr && !record_null && !too_short)
        return true;
    log(routine, Format::unpack_parameters, bytes_ != nullptr, length_, !record_null);
    const Refusal refusal = bytes_ == nullptr ? Refusal::buffer_null
                            : record_null     ? Refusal::record_null
                                              : Refusal::length_below_4;
    return refuse(routine, refusal, 0, refusal == Refusal::length_below_4 ? length_ : 0, 4);
}

// Validates a table whose position is known. Afterwards every slot word in the vtable can be read.
bool Decoder::open_table(Table& table)
{
    const Routine& routine = table.routine;
    const u32 last = length_ - 4;
    if (table.position < 4 || table.position > last) {
        log(routine, Format::table_offset, table.position, length_);   // required: the length, not the bound
        return refuse(routine, Refusal::table_position, table.position, table.position, last);
    }
    table.vtable = table.position - number_at(Piece::vtable_offset, table.position, 4, table);   // modulo 2^32
    if (table.vtable < 4 || table.vtable > last) {
        log(routine, Format::vtable_offset, table.position, last);   // required: the table's position
        return refuse(routine, Refusal::vtable_position, table.position, table.vtable, last);
    }
    table.vtable_length = number_at(Piece::vtable_length, table.vtable, 2, table);
    if (table.vtable_length > length_ - table.vtable) {
        log(routine, Format::vtable_length, table.vtable_length, length_ - table.vtable);
        return refuse(routine, Refusal::vtable_length, table.vtable, table.vtable_length, length_ - table.vtable);
    }
    if (table.vtable_length >= 4 && options_.walk != nullptr)
        number_at(Piece::table_length, table.vtable + 2, 2, table);
    return true;
}

void Decoder::run(const Message& message)
{
    outcome_.untouched = true;
    outcome_.failure = {};
    outcome_.ignored = {};
    outcome_.trace.clear();
    outcome_.allocations = 0;
    outcome_.memory = 0;
    outcome_.record_size = message.layout(options_.pointer_width).size;

    Table table;
    table.routine = {&message, RoutineKind::unpack};
    if (!parameters(table.routine))
        return;
    table.position = number_at(Piece::root, 0, 4, table);
    if (!open_table(table))
        return;

    outcome_.untouched = false;
    clear(outcome_.record, message);
    if (!read_slots(table, outcome_.record))
        release(message, outcome_.record);
}

// Decodes a nested record. If the table is refused, nothing is released; only a failure in the slots releases.
bool Decoder::read_non_root(const Message& message, u32 position, Record& record)
{
    Table table;
    table.routine = {&message, RoutineKind::unpack_non_root};
    table.position = position;
    if (!open_table(table))
        return false;
    if (read_slots(table, record))
        return true;
    release(message, record);
    return false;
}

bool Decoder::read_slots(const Table& table, Record& record)
{
    const std::vector<Slot>& slots = table.routine.message->slots;
    ++path_.length;
    for (u32 k = 0; k < slots.size(); ++k) {
        step() = {k, -1};
        if (table.vtable_length <= 5 + 2 * k)
            break;   // this slot and all later ones are absent
        const u32 offset = number_at(Piece::slot, table.vtable + 4 + 2 * k, 2, table);
        if (offset == 0)
            continue;
        if (!read_field(table, slots[k], offset, record.fields[k]))
            return --path_.length, false;
    }
    --path_.length;
    return true;
}

bool Decoder::read_field(const Table& table, const Slot& slot, u32 offset, Field& field)
{
    switch (slot.kind) {
    case Kind::scalar: return read_scalar(table, slot, offset, field);
    case Kind::string:
    case Kind::bytes: return read_octets(table, slot, offset, field);
    case Kind::array: return read_array(table, slot, offset, field);
    case Kind::table: return read_nested(table, slot, offset, field);
    case Kind::vector: break;
    }
    return read_vector(table, slot, offset, field);
}

bool Decoder::read_scalar(const Table& table, const Slot& slot, u32 offset, Field& field)
{
    const u32 position = table.position + offset;
    if (position + slot.width > length_) {
        return refuse(table.routine, Refusal::scalar_end, position, position + slot.width, length_);
    }
    field.number = get(bytes_ + position, slot.width);
    show(Piece::scalar, position, slot.width, field.number, table);
    return true;
}

// Tests the cell's own position. The target is not tested, except that the sum must not wrap.
bool Decoder::read_cell(const Table& table, u32 offset, u32& cell, u32& target)
{
    cell = table.position + offset;
    if (cell + 4 > length_)
        return refuse(table.routine, Refusal::cell_end, cell, cell + 4, length_);
    target = cell + number_at(Piece::cell, cell, 4, table);
    return true;
}

bool Decoder::read_body_count(const Table& table, u32 offset, u32& body, u32& count)
{
    u32 cell = 0;
    if (!read_cell(table, offset, cell, body))
        return false;
    if (body < cell)
        return refuse(table.routine, Refusal::reference_wrap, cell, body, cell);
    if (body > length_ || body + 4 > length_) {
        return refuse(table.routine, Refusal::reference_range, cell, u64{body} + 4, length_);
    }
    count = number_at(Piece::count, body, 4, table);
    return true;
}

bool Decoder::body_fits(const Table& table, u32 body, u64 payload)
{
    const u64 end = u64{body} + 4 + payload;
    return end <= length_ || refuse(table.routine, Refusal::body_end, body, end, length_);
}

bool Decoder::read_octets(const Table& table, const Slot& slot, u32 offset, Field& field)
{
    u32 body = 0;
    u32 count = 0;
    if (!read_body_count(table, offset, body, count) || !body_fits(table, body, count))
        return false;
    const bool is_text = slot.kind == Kind::string;
    if (!is_text) {
        field.number = count;
        if (count == 0)
            return true;   // no allocation for an empty block, unlike for text
    }
    if (!allocate(table.routine, is_text ? count + 1 : count, field.block))
        return false;
    field.present = true;
    if (options_.contents)
        field.octets.assign(bytes_ + body + 4, bytes_ + body + 4 + count);
    show(Piece::payload, body + 4, count, 0, table);
    return true;
}

bool Decoder::read_array(const Table& table, const Slot& slot, u32 offset, Field& field)
{
    u32 body = 0;
    u32 count = 0;
    if (!read_body_count(table, offset, body, count))
        return false;
    if (slot.width == 4 && count >= 0x40000000U) {
        return refuse(table.routine, Refusal::count_range, body, count, 0x40000000U);
    }
    if (count != slot.count)
        return refuse(table.routine, Refusal::array_count, body, count, slot.count);
    if (!body_fits(table, body, u64{count} * slot.width))
        return false;
    const u8* const payload = bytes_ + body + 4;
    if (slot.width == 1)
        field.octets.assign(payload, payload + count);
    for (u32 i = 0; slot.width == 4 && i < count; ++i)
        field.words[i] = get32(payload + 4 * i);
    show(Piece::payload, body + 4, count * slot.width, 0, table);
    return true;
}

bool Decoder::read_nested(const Table& table, const Slot& slot, u32 offset, Field& field)
{
    u32 cell = 0;
    u32 target = 0;
    if (!read_cell(table, offset, cell, target))
        return false;
    if (target < cell)
        return refuse(table.routine, Refusal::nested_wrap, cell, target, cell);
    if (read_non_root(*slot.nested, target, field.records[0]))
        return true;
    if (!slot.lenient)
        return false;
    outcome_.ignored = outcome_.failure;
    outcome_.failure = {};
    return true;
}

bool Decoder::read_vector(const Table& table, const Slot& slot, u32 offset, Field& field)
{
    u32 body = 0;
    u32 count = 0;
    if (!read_body_count(table, offset, body, count))
        return false;
    if (count >= 0x40000000U)
        return refuse(table.routine, Refusal::count_range, body, count, 0x40000000U);
    if (!body_fits(table, body, u64{count} * 4))
        return false;
    field.number = count;

    const u32 element_size = slot.nested->layout(options_.pointer_width).size;
    const u64 needed = u64{count} * element_size;
    const u32 size = static_cast<u32>(needed);   // required: truncation is not detected
    Block block;
    block.is_null = size == 0;
    block.is_short = size != needed;
    block.elements_inside = element_size == 0 ? count : size / element_size;
    if (!block.is_null) {
        if (!allocate(table.routine, size, field.block))
            return false;
        field.present = true;
    }
    if (read_elements(table, slot, body + 4, block, field))
        return true;
    // The count exceeds what a short array holds, so the record's own free must not see the array.
    if (block.is_short && !block.is_null && options_.contents) {
        release_vector(*table.routine.message, slot, field, block.elements_inside, outcome_.trace);
    }
    return false;
}

bool Decoder::read_elements(const Table& table, const Slot& slot, u32 first_cell, const Block& block, Field& field)
{
    field.records.reserve(options_.contents ? std::min(block.elements_inside, 1024U) : 1);
    for (u32 i = 0; i < field.number; ++i) {
        step().element = static_cast<i32>(i);
        if (!read_element(table, slot, first_cell + 4 * i, block, field))
            return false;
    }
    return true;
}

bool Decoder::read_element(const Table& table, const Slot& slot, u32 cell, const Block& block, Field& field)
{
    const u32 target = cell + number_at(Piece::element_cell, cell, 4, table);   // body_fits has tested all the cells
    if (target < cell)
        return refuse(table.routine, Refusal::element_wrap, cell, target, cell);
    if (block.is_null) {
        log(table.routine, Format::unpack_parameters, 1, length_, 0);
        return refuse(table.routine, Refusal::element_null, cell, target, 0);
    }
    const u32 number = static_cast<u32>(step().element);
    if (number >= block.elements_inside) {
        return refuse(table.routine, Refusal::element_block, cell, u64{number} + 1, block.elements_inside);
    }
    if (options_.contents || field.records.empty())
        field.records.emplace_back();
    clear(field.records.back(), *slot.nested);
    return read_non_root(*slot.nested, target, field.records.back());
}

}   // namespace

void decode(const Message& message, const u8* bytes, u32 length, const DecodeOptions& options, Outcome& outcome)
{
    Decoder(bytes, length, options, outcome).run(message);
}

void free_unpacked(Record& record, Trace& trace)
{
    if (record.message->owns_blocks)
        release_parts(*record.message, &record, trace);
}

}   // namespace kesto::model
