#include "model/encode.h"

#include "model/view.h"

namespace kesto::model {
namespace {

// The size of a vector with a count and a null pointer, and of every record that contains one.
constexpr u64 no_size = u64{1} << 32;

// The size of a table with everything below it, without the root word.
template <typename View>
u64 size_of_table(const View& view)
{
    const Message& message = view.message();
    u64 size = message.vtable_length + 4;
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        const Slot& slot = message.slots[k];
        switch (slot.kind) {
        case Kind::scalar:
            if (view.scalar(k) != 0)
                size += slot.width;
            break;
        case Kind::array: size += 8 + slot.count * slot.width; break;
        case Kind::string:
            if (view.present(k))
                size += 8 + u64{view.text_length(k)} + 1;
            break;
        case Kind::bytes:
            if (view.present(k))
                size += 8 + u64{view.count(k)};   // required: a length of 0 counts 8 as well
            break;
        case Kind::table: size += 4 + size_of_table(view.nested(k)); break;
        case Kind::vector:
            if (view.count(k) == 0)
                break;
            if (!view.present(k))
                return no_size;
            size += 8 + 4 * u64{view.count(k)};
            for (u32 i = 0; i < view.count(k); ++i)
                size += size_of_table(view.element(k, i));
            break;
        }
    }
    return size;
}

bool is_written(const TreeView& view, std::size_t k)
{
    switch (view.message().slots[k].kind) {
    case Kind::scalar: return view.scalar(k) != 0;
    case Kind::string: return view.present(k);
    case Kind::bytes: return view.present(k) && view.count(k) != 0;
    case Kind::vector: return view.count(k) != 0;
    case Kind::array:
    case Kind::table: break;
    }
    return true;
}

// The distance from a cell to its target, which always lies after it.
void fill_cell(Bytes& out, u32 cell, u32 target) { put(&out[cell], target - cell, 4); }

void append_array(Bytes& out, const TreeView& view, std::size_t k)
{
    const Slot& slot = view.message().slots[k];
    append(out, slot.count, 4);
    for (u32 i = 0; i < slot.count; ++i)
        append(out, slot.width == 1 ? view.octets(k)[i] : view.word(k, i), slot.width);
}

void append_octets(Bytes& out, const TreeView& view, std::size_t k, u32 length)
{
    append(out, length, 4);
    out.insert(out.end(), view.octets(k), view.octets(k) + length);
}

// Writes the count and the data that follows it; for a vector, reserves its element cells.
void append_body(Bytes& out, const TreeView& view, std::size_t k)
{
    switch (view.message().slots[k].kind) {
    case Kind::string:
        append_octets(out, view, k, view.text_length(k));
        out.push_back(0);
        break;
    case Kind::bytes: append_octets(out, view, k, view.count(k)); break;
    case Kind::array: append_array(out, view, k); break;
    case Kind::vector:
        append(out, view.count(k), 4);
        out.resize(out.size() + std::size_t{4} * view.count(k));
        break;
    case Kind::scalar:
    case Kind::table: break;
    }
}

// The position of slot k of the table at `table`. The vtable is immediately before the table.
u32 slot_position(const Bytes& out, const Message& message, u32 table, std::size_t k)
{
    return table + get16(&out[table - message.vtable_length + 4 + 2 * k]);
}

u32 write_table(Bytes& out, const TreeView& view);

void write_beneath(Bytes& out, const TreeView& view, u32 table)
{
    const Message& message = view.message();
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        const Kind kind = message.slots[k].kind;
        if ((kind != Kind::table && kind != Kind::vector) || !is_written(view, k))
            continue;
        const u32 cell = slot_position(out, message, table, k);
        if (kind == Kind::table) {
            fill_cell(out, cell, write_table(out, view.nested(k)));
            continue;
        }
        const u32 elements = cell + get32(&out[cell]) + 4;
        for (u32 i = 0; i < view.count(k); ++i) {
            fill_cell(out, elements + 4 * i, write_table(out, view.element(k, i)));
        }
    }
}

u32 write_table(Bytes& out, const TreeView& view)
{
    const Message& message = view.message();
    const u32 vtable = position_of_end(out);
    out.resize(out.size() + message.vtable_length);
    const u32 table = position_of_end(out);
    append(out, message.vtable_length, 4);

    const auto begin_slot = [&](std::size_t k) { put(&out[vtable + 4 + 2 * k], out.size() - table, 2); };
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        if (message.slots[k].kind != Kind::scalar || !is_written(view, k))
            continue;
        begin_slot(k);
        append(out, view.scalar(k), message.slots[k].width);
    }
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        if (message.slots[k].kind == Kind::scalar || !is_written(view, k))
            continue;
        begin_slot(k);
        append(out, 0, 4);
    }
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        const Kind kind = message.slots[k].kind;
        if (kind == Kind::scalar || kind == Kind::table || !is_written(view, k))
            continue;
        fill_cell(out, slot_position(out, message, table, k), position_of_end(out));
        append_body(out, view, k);
    }
    put(&out[vtable], message.vtable_length, 2);
    put(&out[vtable + 2], out.size() - table, 2);   // low 16 bits; nested tables and bodies are not counted
    write_beneath(out, view, table);
    return table;
}

Bytes write_compact(const TreeView& view)
{
    Bytes out;
    out.reserve(512);
    append(out, 4 + view.message().vtable_length, 4);
    write_table(out, view);
    return out;
}

// A nested fixed form is embedded whole in its parent, and its root word serves as the cell.
void write_fixed(Bytes& out, const TreeView& view)
{
    const Message& message = view.message();
    const std::size_t start = out.size();
    const u32 vtable_distance = (message.fixed_table_length + 3) / 4 * 4;
    append(out, 4, 4);
    append(out, u64{0} - vtable_distance, 4);
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        const Slot& slot = message.slots[k];
        if (slot.kind == Kind::scalar)
            append(out, view.scalar(k), slot.width);
        if (slot.kind == Kind::table)
            write_fixed(out, view.nested(k));
        if (slot.kind != Kind::array)
            continue;
        append(out, 4, 4);
        append_array(out, view, k);
    }
    out.resize(start + 4 + vtable_distance);
    append(out, message.vtable_length, 2);
    append(out, message.fixed_table_length, 2);
    for (const u32 offset : message.fixed_offsets)
        append(out, offset, 2);
    out.resize(start + message.fixed_length);
}

}   // namespace

u64 exact_size(const Record& record) { return 4 + size_of_table(TreeView(record)); }
u64 exact_size(const Message& message, const void* memory) { return 4 + size_of_table(MemoryView(message, memory)); }

Bytes compact_form(const Record& record) { return write_compact(TreeView(record)); }

Bytes fixed_form(const Record& record)
{
    Bytes out;
    out.reserve(record.message->fixed_length);
    write_fixed(out, TreeView(record));
    return out;
}

}   // namespace kesto::model
