#include "model/generate.h"

namespace kesto::model {
namespace {

u64 mask_of(u32 width) { return width == 8 ? ~u64{0} : (u64{1} << (8 * width)) - 1; }

// 0, all ones, a power of two, or a neighbour of one.
u64 edge_value(u32 width, Random& random)
{
    const u64 bit = u64{1} << random.below(8 * width);
    const u64 values[] = {0, mask_of(width), bit, bit - 1, bit + 1, mask_of(width) - bit};
    return values[random.below(6)] & mask_of(width);
}

u64 random_value(u32 width, Density density, Random& random)
{
    switch (density) {
    case Density::zero: return 0;
    case Density::sparse: return random.one_in(4) ? random.next() & mask_of(width) : 0;
    case Density::edge: return edge_value(width, random);
    case Density::full: break;
    }
    const u64 value = random.next() & mask_of(width);
    return value == 0 ? 1 : value;
}

u32 random_length(Density density, Random& random)
{
    constexpr u32 edges[] = {0, 1, 3, 4, 5, 7, 8, 9, 255, 256, 257, 700};
    switch (density) {
    case Density::zero: return 0;
    case Density::sparse: return random.below(6);
    case Density::edge: return edges[random.below(12)];
    case Density::full: break;
    }
    return 1 + random.below(40);
}

u32 random_element_count(Density density, Random& random)
{
    if (density == Density::full)
        return 1 + random.below(3);
    return density == Density::zero ? 0 : random.below(density == Density::edge ? 6 : 4);
}

void fill_octets(Kind kind, u32 length, Field& field, Random& random)
{
    field.octets.resize(length);
    for (u8& octet : field.octets) {
        octet = random.octet();
        if (kind == Kind::string && octet == 0)
            octet = ' ';
    }
}

void fill_array(const Slot& slot, Density density, Field& field, Random& random)
{
    if (density == Density::sparse && !random.one_in(3))
        return;
    for (u8& octet : field.octets)
        octet = static_cast<u8>(random_value(slot.width, density, random));
    for (u32& word : field.words)
        word = static_cast<u32>(random_value(slot.width, density, random));
}

void fill_owned_block(const Slot& slot, Density density, Field& field, Random& random)
{
    if (density == Density::zero)
        return;
    if (density != Density::full && random.one_in(3)) {
        // A writer omits a null block with a length. A null vector with a count is the only state that it must not see.
        if (slot.kind == Kind::bytes && random.one_in(3))
            field.number = 1 + random.below(9);
        return;
    }
    field.present = true;
    if (slot.kind == Kind::vector) {
        field.records.resize(random_element_count(density, random));
        for (Record& element : field.records)
            element = random_record(*slot.nested, density, random);
        // Equal elements are a separate case: a reader cannot tell whether they are stored once or twice.
        if (field.records.size() > 1 && random.one_in(3))
            field.records[1] = field.records[0];
        field.number = field.records.size();
        return;
    }
    fill_octets(slot.kind, random_length(density, random), field, random);
    if (slot.kind == Kind::bytes)
        field.number = field.octets.size();
}

// `part` belongs to `whole`.
void without_each_owned_block(Record& whole, Record& part, std::vector<Record>& variants)
{
    for (std::size_t k = 0; k < part.fields.size(); ++k) {
        const Kind kind = part.message->slots[k].kind;
        Field& field = part.fields[k];
        if (kind == Kind::string || kind == Kind::bytes || kind == Kind::vector) {
            const Field kept = std::move(field);
            field = {};
            variants.push_back(whole);
            field.present = true;
            variants.push_back(whole);
            if (kind == Kind::bytes) {   // a null pointer with a length
                field.present = false;
                field.number = 5;
                variants.push_back(whole);
            }
            field = kept;
        }
        for (Record& inner : field.records)
            without_each_owned_block(whole, inner, variants);
    }
}

}   // namespace

std::vector<Record> without_each_owned_block(Record record)
{
    std::vector<Record> variants;
    without_each_owned_block(record, record, variants);
    return variants;
}

Record random_record(const Message& message, Density density, Random& random)
{
    Record record = zero_record(message);
    for (std::size_t k = 0; k < record.fields.size(); ++k) {
        const Slot& slot = message.slots[k];
        Field& field = record.fields[k];
        if (slot.kind == Kind::scalar) {
            field.number = random_value(slot.width, density, random);
        } else if (slot.kind == Kind::table) {
            field.records[0] = random_record(*slot.nested, density, random);
        } else if (slot.kind == Kind::array) {
            fill_array(slot, density, field, random);
        } else {
            fill_owned_block(slot, density, field, random);
        }
    }
    return record;
}

}   // namespace kesto::model
