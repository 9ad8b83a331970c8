#include "fuzz/inputs.h"

#include <fstream>
#include <iterator>

namespace kesto::fuzz {

namespace {

using model::Field;
using model::Kind;
using model::Slot;

// ---- records as inputs ----
//
// scalar   1 byte: 0 for 0, 1 for all bits set, otherwise the value follows in its width
// array    1 byte: 0 for all zero, otherwise the elements follow
// text     1 byte n: 0 for null, otherwise n - 1 bytes of text follow
// block    1 byte n: 0 for null, 1 for null with a length, otherwise n - 2 bytes follow
// vector   1 byte n, only the low three bits are used: 0 for null, otherwise n - 1 elements follow
// table    its slots

class Source {
public:
    Source(const std::uint8_t* at, std::size_t size) : at_(at), left_(size) {}

    std::uint8_t octet()
    {
        if (left_ == 0)
            return 0;
        --left_;
        return *at_++;
    }

    std::uint64_t number(std::uint32_t width)
    {
        std::uint64_t value = 0;
        for (std::uint32_t i = 0; i < width; ++i)
            value |= std::uint64_t{octet()} << (8 * i);
        return value;
    }

    void octets(std::vector<std::uint8_t>& into, std::size_t count)
    {
        into.resize(count);
        for (std::uint8_t& each : into)
            each = octet();
    }

private:
    const std::uint8_t* at_;
    std::size_t left_;
};

void read_record(Source& source, Record& record);

void read_field(Source& source, const Slot& slot, Field& field)
{
    if (slot.kind == Kind::table)
        return read_record(source, field.records[0]);
    const std::uint8_t lead = source.octet();
    if (lead == 0)
        return;
    switch (slot.kind) {
    case Kind::scalar:
        field.number = lead == 1 ? ~std::uint64_t{0} >> (64 - 8 * slot.width) : source.number(slot.width);
        break;
    case Kind::array:
        for (std::uint8_t& octet : field.octets)
            octet = source.octet();
        for (std::uint32_t& word : field.words)
            word = static_cast<std::uint32_t>(source.number(4));
        break;
    case Kind::string:
        field.present = true;
        source.octets(field.octets, lead - 1U);
        break;
    case Kind::bytes:
        field.present = lead != 1;
        if (field.present)
            source.octets(field.octets, lead - 2U);
        field.number = field.present ? field.octets.size() : 1;
        break;
    case Kind::vector:
        field.present = (lead & 7) != 0;
        field.records.resize(field.present ? (lead & 7) - 1U : 0);
        for (Record& element : field.records) {
            clear(element, *slot.nested);
            read_record(source, element);
        }
        field.number = field.records.size();
        break;
    case Kind::table: break;
    }
}

void read_record(Source& source, Record& record)
{
    for (std::size_t k = 0; k < record.fields.size(); ++k)
        read_field(source, record.message->slots[k], record.fields[k]);
}

}   // namespace

const Message* message_of(const Catalogue& catalogue, const std::uint8_t* input, std::size_t size)
{
    return size < id_bytes ? nullptr : catalogue.find(model::get32(input));
}

Record record_from(const Message& message, const std::uint8_t* input, std::size_t size)
{
    Source source(input + id_bytes, size - id_bytes);
    Record record = zero_record(message);
    read_record(source, record);
    return record;
}

bool read_packed(const std::string& path, std::vector<Bytes>& inputs, std::string& error)
{
    std::ifstream file(path, std::ios::binary);
    const Bytes all{std::istreambuf_iterator<char>(file), {}};
    if (!file) {
        error = path + ": cannot be read";
        return false;
    }
    for (std::size_t at = 0; at < all.size();) {
        const std::size_t left = all.size() - at;
        const std::size_t length = left < 4 ? 0 : model::get32(&all[at]);
        if (left < 4 || length > left - 4) {
            error = path + ": ends within the input at byte " + std::to_string(at);
            return false;
        }
        const auto first = all.begin() + static_cast<std::ptrdiff_t>(at + 4);
        inputs.emplace_back(first, first + static_cast<std::ptrdiff_t>(length));
        at += 4 + length;
    }
    return true;
}

bool write_packed(const std::string& path, const std::vector<Bytes>& inputs, std::string& error)
{
    Bytes all;
    for (const Bytes& input : inputs) {
        model::append(all, input.size(), 4);
        all.insert(all.end(), input.begin(), input.end());
    }
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(all.data()), static_cast<std::streamsize>(all.size()));
    if (!file.flush()) {
        error = path + ": cannot be written";
        return false;
    }
    return true;
}

}   // namespace kesto::fuzz
