#include "model/record.h"

#include <algorithm>

#include "model/text.h"

namespace kesto::model {
namespace {

void clear(Field& field, const Slot& slot)
{
    field.number = 0;
    field.present = false;
    field.block = -1;
    field.octets.assign(slot.kind == Kind::array && slot.width == 1 ? slot.count : 0, 0);
    field.words.assign(slot.kind == Kind::array && slot.width == 4 ? slot.count : 0, 0);
    field.records.resize(slot.kind == Kind::table ? 1 : 0);
    if (slot.kind == Kind::table)
        clear(field.records[0], *slot.nested);
}

template <typename Left, typename Right>
std::string differ(const char* what, Left left, Right right)
{
    return join({what, ": ", std::to_string(left), ", ", std::to_string(right)});
}

template <typename Element>
std::string difference_of(const std::vector<Element>& left, const std::vector<Element>& right)
{
    if (left == right)
        return {};
    if (left.size() != right.size())
        return differ(" size", left.size(), right.size());
    const auto at = std::mismatch(left.begin(), left.end(), right.begin());
    return join({"[", std::to_string(at.first - left.begin()), differ("]", *at.first, *at.second)});
}

std::string difference_of_field(const Slot& slot, const Field& left, const Field& right)
{
    if (slot.kind != Kind::string && left.number != right.number)
        return differ("", left.number, right.number);
    if (left.present != right.present)
        return differ(" pointer", left.present, right.present);
    std::string found = difference_of(left.octets, right.octets);
    if (found.empty())
        found = difference_of(left.words, right.words);
    if (!found.empty())
        return found;
    if (left.records.size() != right.records.size())
        return differ(" size", left.records.size(), right.records.size());
    for (std::size_t i = 0; i < left.records.size(); ++i) {
        found = difference(left.records[i], right.records[i]);
        if (found.empty())
            continue;
        return slot.kind == Kind::vector ? join({"[", std::to_string(i), "].", found}) : join({".", found});
    }
    return {};
}

bool all_zero(const Field& field)
{
    return std::all_of(field.octets.begin(), field.octets.end(), [](u8 octet) { return octet == 0; }) &&
           std::all_of(field.words.begin(), field.words.end(), [](u32 word) { return word == 0; });
}

}   // namespace

void clear(Record& record, const Message& message)
{
    record.message = &message;
    record.fields.resize(message.slots.size());
    for (std::size_t k = 0; k < message.slots.size(); ++k)
        clear(record.fields[k], message.slots[k]);
}

Record zero_record(const Message& message)
{
    Record record;
    clear(record, message);
    return record;
}

std::string difference(const Record& left, const Record& right)
{
    if (left.message != right.message)
        return "messages";
    for (std::size_t k = 0; k < left.fields.size(); ++k) {
        const std::string found = difference_of_field(left.message->slots[k], left.fields[k], right.fields[k]);
        if (!found.empty())
            return join({"f", std::to_string(k), found});
    }
    return {};
}

u32 text_length(const std::vector<u8>& octets)
{
    return static_cast<u32>(std::find(octets.begin(), octets.end(), u8{0}) - octets.begin());
}

Record as_decoded(const Record& record)
{
    Record result = record;
    for (std::size_t k = 0; k < result.fields.size(); ++k) {
        Field& field = result.fields[k];
        const Kind kind = record.message->slots[k].kind;
        field.block = -1;
        if (kind == Kind::string)
            field.octets.resize(text_length(field.octets));
        if (kind == Kind::bytes || kind == Kind::vector) {
            if (!field.present)
                field.number = 0;
            if (field.number == 0)
                field.present = false;
        }
        for (Record& nested : field.records)
            nested = as_decoded(nested);
    }
    return result;
}

bool is_default(const Slot& slot, const Field& field)
{
    switch (slot.kind) {
    case Kind::scalar: return field.number == 0;
    case Kind::string:
    case Kind::bytes:
    case Kind::vector: return field.number == 0 && !field.present;
    case Kind::array: return all_zero(field);
    case Kind::table: break;
    }
    return is_default(field.records[0]);
}

bool is_default(const Record& record)
{
    for (std::size_t k = 0; k < record.fields.size(); ++k) {
        if (!is_default(record.message->slots[k], record.fields[k]))
            return false;
    }
    return true;
}

bool is_encodable(const Record& record)
{
    for (std::size_t k = 0; k < record.fields.size(); ++k) {
        const Field& field = record.fields[k];
        if (record.message->slots[k].kind == Kind::vector && field.number != 0 && !field.present)
            return false;
        if (!std::all_of(field.records.begin(), field.records.end(), is_encodable))
            return false;
    }
    return true;
}

}   // namespace kesto::model
