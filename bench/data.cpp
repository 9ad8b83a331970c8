#include "bench/data.h"

#include <algorithm>
#include <cstdio>

#include "model/encode.h"
#include "model/generate.h"

namespace kesto::bench {

namespace {

using model::Field;
using model::Kind;
using model::Message;
using model::Random;
using model::Record;
using model::Slot;

[[noreturn]] void fail(const std::string& text)
{
    std::fprintf(stderr, "%s\n", text.c_str());
    std::exit(1);
}

const Message& message_named(const char* name)
{
    const Message* const message = model::catalogue().find(name);
    if (message == nullptr)
        fail(std::string("no message ") + name);
    return *message;
}

// Selects the zero scalars of a uniform row: three of five, rounded, chosen randomly with the message's id as seed.
std::vector<bool> uniform_zeros(const Message& message)
{
    std::vector<std::size_t> scalars;
    for (std::size_t k = 0; k < message.slots.size(); ++k)
        if (message.slots[k].kind == Kind::scalar)
            scalars.push_back(k);
    Random random(message.id);
    for (std::size_t left = scalars.size(); left > 1; --left)
        std::swap(scalars[left - 1], scalars[random.below(static_cast<u32>(left))]);
    std::vector<bool> zeros(message.slots.size());
    for (std::size_t i = 0; i < (scalars.size() * 6 + 5) / 10; ++i)
        zeros[scalars[i]] = true;
    return zeros;
}

u64 nonzero(u32 width, Random& random)
{
    const u64 value = random.next() >> (64 - 8 * width);
    return value == 0 ? 1 : value;
}

void fill_octets(std::vector<u8>& octets, std::size_t count, Random& random)
{
    octets.resize(count);
    for (u8& octet : octets)
        octet = static_cast<u8>(nonzero(1, random));
}

Record make_record(const Message& message, const Shape& shape, Fill fill, Random& random)
{
    Record record = model::zero_record(message);
    const std::vector<bool> zeros = uniform_zeros(message);
    for (std::size_t k = 0; k < record.fields.size(); ++k) {
        const Slot& slot = message.slots[k];
        Field& field = record.fields[k];
        switch (slot.kind) {
        case Kind::scalar: {
            const bool zero = fill == Fill::uniform ? zeros[k] : fill != Fill::full && random.below(10) < 6;
            field.number = zero ? 0 : nonzero(slot.width, random);
            break;
        }
        case Kind::string:
        case Kind::bytes:
            field.present = true;
            fill_octets(field.octets, slot.kind == Kind::string ? shape.text : shape.block, random);
            field.number = slot.kind == Kind::bytes ? field.octets.size() : 0;
            break;
        case Kind::array:
            for (u8& octet : field.octets)
                octet = static_cast<u8>(nonzero(1, random));
            for (u32& word : field.words)
                word = static_cast<u32>(nonzero(4, random));
            break;
        case Kind::table: field.records[0] = make_record(*slot.nested, shape, fill, random); break;
        case Kind::vector:
            field.present = true;
            field.number = shape.rows;
            for (u32 i = 0; i < shape.rows; ++i)
                field.records.push_back(make_record(*slot.nested, shape, fill, random));
            break;
        }
    }
    return record;
}

}   // namespace

const char* name_of(Fill fill)
{
    constexpr const char* names[] = {"full", "sparse", "varied", "uniform"};
    return names[static_cast<u8>(fill)];
}

const std::vector<Shape> shapes = {
    {"ifit_color_intf_mesh", 0, 0, 0, true, false},
    {"ifit_flow_base_mesh", 0, 0, 0, true, false},
    {"ifit_flow_statistics_entry_to_mdtlm", 0, 0, 0, true, false},
    {"ifit_sync_ifit_session_entry", 0, 0, 0, true, false},
    {"ifit_flow_base_mesh_update", 1, 0, 0, false, false},
    {"ifit_flow_base_mesh_update", 16, 0, 0, true, true},
    {"ifit_flow_base_mesh_update", 256, 0, 0, false, true},
    {"ifit_dfx_query_queryhash_rec_mesh", 0, 24, 64, false, false},
    {"ntvifit_stats_info_list", 32, 0, 40, false, false},
};

RecordSet make_records(const Shape& shape, Fill fill)
{
    const Message& message = message_named(shape.message);
    Random random(message.id + shape.rows + static_cast<u32>(fill));
    RecordSet set{shape, fill, {}, {}};
    const std::size_t max_records = fill == Fill::varied ? 16384 : 64;
    const u64 max_bytes = fill == Fill::varied ? 4 << 20 : 256 << 10;
    u64 bytes = 0;
    do {
        set.records.push_back(make_record(message, shape, fill, random));
        bytes += 2 * model::exact_size(set.records.back());   // the record is smaller than its byte string
    } while (set.records.size() < max_records && bytes + bytes / set.records.size() <= max_bytes);
    for (const Record& record : set.records)
        set.memory.push_back(std::make_unique<model::RecordMemory>(record));
    return set;
}

std::vector<RecordSet> make_all_records()
{
    std::vector<RecordSet> sets;
    for (const Shape& shape : shapes)
        for (const Fill fill : {Fill::full, Fill::sparse, Fill::varied, Fill::uniform})
            if ((fill != Fill::varied || shape.varied) && (fill != Fill::uniform || shape.uniform))
                sets.push_back(make_records(shape, fill));
    return sets;
}

}   // namespace kesto::bench
