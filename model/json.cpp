#include "model/json.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <limits>
#include <nlohmann/json.hpp>
#include <set>

#include "model/hex.h"
#include "model/utf8.h"

namespace kesto::model {

namespace {

using nlohmann::ordered_json;

constexpr int max_depth = 2 * greatest_depth + 2;   // a vector is an array of objects; {"hex": ...} is innermost

// ---- to JSON ----

ordered_json text_json(const Field& field)
{
    if (!field.present)
        return nullptr;
    const u8* const text = field.octets.data();
    const std::size_t length = field.octets.size();
    if (is_utf8(text, length) && text_length(field.octets) == length)
        return std::string(field.octets.begin(), field.octets.end());
    return {{"hex", to_hex(text, length)}};
}

ordered_json field_json(const Slot& slot, const Field& field)
{
    switch (slot.kind) {
    case Kind::scalar: break;
    case Kind::string: return text_json(field);
    case Kind::bytes:
        return field.present ? ordered_json(to_hex(field.octets.data(), field.octets.size())) : ordered_json(nullptr);
    case Kind::array:
        return slot.width == 1 ? ordered_json(to_hex(field.octets.data(), field.octets.size()))
                               : ordered_json(field.words);
    case Kind::table: return record_json(field.records[0]);
    case Kind::vector: {
        ordered_json elements = ordered_json::array();
        for (const Record& element : field.records)
            elements.push_back(record_json(element));
        return elements;
    }
    }
    return slot.width == 8 ? ordered_json(std::to_string(field.number)) : ordered_json(field.number);
}

// ---- from JSON ----

[[noreturn]] void refuse(const std::string& path, const std::string& what)
{
    throw JsonFault(fmt::format("{}: {}", path.empty() ? "." : path, what));
}

u64 number_from(const ordered_json& json, u32 width, const std::string& path)
{
    const u64 max = std::numeric_limits<u64>::max() >> (64 - 8 * width);
    u64 number = 0;
    if (json.is_number_unsigned()) {
        number = json.get<u64>();
    } else if (json.is_string() && width == 8) {
        const std::string& digits = json.get_ref<const std::string&>();
        const char* const end = digits.data() + digits.size();
        const auto [stop, fault] = std::from_chars(digits.data(), end, number);
        if (fault != std::errc() || stop != end)
            refuse(path, fmt::format("\"{}\" is not a number from 0 to {}", digits, max));
    } else {
        refuse(path,
               fmt::format("expected a number from 0 to {}, got {}", max,
                           json.is_structured() ? json.type_name()
                                                : json.dump(-1, ' ', false, ordered_json::error_handler_t::replace)));
    }
    if (number > max)
        refuse(path, fmt::format("{} exceeds the maximum of a u{}, {}", number, 8 * width, max));
    return number;
}

Bytes octets_from(const ordered_json& json, const std::string& path)
{
    if (!json.is_string())
        refuse(path, "expected a string of hex digits, as in \"0a1b\"");
    Bytes octets;
    std::string error;
    if (!from_hex(json.get_ref<const std::string&>(), octets, error))
        refuse(path, error);
    return octets;
}

void read_text(const ordered_json& json, Field& field, const std::string& path)
{
    field.present = true;
    if (json.is_object() && json.size() == 1 && json.contains("hex")) {
        field.octets = octets_from(json.at("hex"), path + ".hex");
        return;
    }
    if (!json.is_string())
        refuse(path, "expected a string, null or {\"hex\": \"...\"}");
    const std::string& text = json.get_ref<const std::string&>();
    field.octets.assign(text.begin(), text.end());
}

void read_array(const Slot& slot, const ordered_json& json, Field& field, const std::string& path)
{
    const auto check_count = [&](std::size_t count) {
        if (count != slot.count)
            refuse(path, fmt::format("{} {} instead of {}", count, count == 1 ? "element" : "elements", slot.count));
    };
    if (slot.width == 1) {
        field.octets = octets_from(json, path);
        return check_count(field.octets.size());
    }
    if (!json.is_array())
        refuse(path, fmt::format("expected an array of {} numbers", slot.count));
    check_count(json.size());
    for (std::size_t i = 0; i < slot.count; ++i)
        field.words[i] = static_cast<u32>(number_from(json[i], 4, fmt::format("{}[{}]", path, i)));
}

void read_record(const ordered_json& json, Record& record, const std::string& path);

void read_vector(const Slot& slot, const ordered_json& json, Field& field, const std::string& path)
{
    if (!json.is_array())
        refuse(path, fmt::format("expected an array of {}", slot.nested->name));
    for (const ordered_json& element : json) {
        field.records.push_back(zero_record(*slot.nested));
        read_record(element, field.records.back(), fmt::format("{}[{}]", path, field.records.size() - 1));
    }
    field.number = field.records.size();
    field.present = field.number != 0;
}

void read_field(const Slot& slot, const ordered_json& json, Field& field, const std::string& path)
{
    const bool may_be_null = slot.kind == Kind::string || slot.kind == Kind::bytes || slot.kind == Kind::vector;
    if (json.is_null() && may_be_null)
        return;
    switch (slot.kind) {
    case Kind::scalar: field.number = number_from(json, slot.width, path); break;
    case Kind::string: read_text(json, field, path); break;
    case Kind::bytes:
        field.octets = octets_from(json, path);
        field.number = field.octets.size();
        field.present = field.number != 0;
        break;
    case Kind::array: read_array(slot, json, field, path); break;
    case Kind::table: read_record(json, field.records[0], path); break;
    case Kind::vector: read_vector(slot, json, field, path); break;
    }
}

void read_record(const ordered_json& json, Record& record, const std::string& path)
{
    const Message& message = *record.message;
    if (!json.is_object())
        refuse(path, fmt::format("expected an object with the fields of {}", message.name));
    for (const auto& [name, value] : json.items()) {
        std::size_t k = 0;
        while (k < message.slots.size() && message.slots[k].field != name)
            ++k;
        if (k == message.slots.size())
            refuse(path + "." + name, fmt::format("{} has no such field; its fields are {} to {}", message.name,
                                                  message.slots.front().field, message.slots.back().field));
        read_field(message.slots[k], value, record.fields[k], path + "." + name);
    }
}

}   // namespace

ordered_json record_json(const Record& record)
{
    ordered_json json = ordered_json::object();
    for (std::size_t k = 0; k < record.fields.size(); ++k)
        json[record.message->slots[k].field] = field_json(record.message->slots[k], record.fields[k]);
    return json;
}

Record record_from_json(const Message& message, const ordered_json& json)
{
    Record record = zero_record(message);
    read_record(json, record, "");
    return record;
}

ordered_json parse_json(const std::string& text, const std::string& where)
{
    const auto slot_count = [](const Message& message) { return message.slots.size(); };
    static const std::size_t max_names = slot_count(*std::ranges::max_element(catalogue().messages, {}, slot_count));
    std::set<std::string> names[max_depth + 1];   // of the open object at each depth
    const auto watch = [&](int depth, ordered_json::parse_event_t event, const ordered_json& parsed) {
        if (depth > max_depth)
            throw JsonFault(fmt::format("{}: nested deeper than any record", where));
        if (event == ordered_json::parse_event_t::object_start)
            names[depth].clear();
        if (event != ordered_json::parse_event_t::key)
            return false;
        std::set<std::string>& known = names[depth - 1];
        if (!known.insert(parsed.get<std::string>()).second)
            throw JsonFault(fmt::format("{}: duplicate name \"{}\" in an object", where, parsed.get<std::string>()));
        if (known.size() > max_names)
            throw JsonFault(fmt::format("{}: an object has more names than any message has fields", where));
        return false;
    };
    try {
        // Two passes: a parser with a callback scans the parent at the end of each object that it keeps, so the first
        // pass keeps nothing. The second searches names linearly, which is fast enough for the few that the first one
        // allows.
        ordered_json parsed = ordered_json::parse(text, watch);
        parsed = ordered_json::parse(text);
        return parsed;
    } catch (const ordered_json::parse_error& error) {
        throw JsonFault(fmt::format("{}: invalid JSON at byte {}", where, error.byte));
    } catch (const ordered_json::out_of_range&) {
        throw JsonFault(fmt::format("{}: a number is out of range", where));
    }
}

}   // namespace kesto::model
