#include "tools/kesto/names.h"

#include <arpa/inet.h>
#include <fmt/chrono.h>
#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <ctime>
#include <iterator>
#include <nlohmann/json.hpp>
#include <optional>

#include "model/json.h"
#include "tools/kesto/input.h"

namespace kesto::command {

namespace {

using model::JsonFault;
using nlohmann::ordered_json;

constexpr std::pair<std::string_view, Display> displays[] = {
    {"hex", Display::hex},         {"ipv4", Display::ipv4},       {"ipv6", Display::ipv6},
    {"mac", Display::mac},         {"time", Display::time},       {"time-ms", Display::time_ms},
    {"time-us", Display::time_us}, {"time-ns", Display::time_ns}, {"enum", Display::enumeration},
};

u64 ticks_per_second(Display display)
{
    switch (display) {
    case Display::time_ms: return 1000;
    case Display::time_us: return 1000000;
    case Display::time_ns: return 1000000000;
    default: return 1;
    }
}

bool is_time(Display display) { return display >= Display::time && display <= Display::time_ns; }

// Of a scalar or an array.
std::size_t wire_size(const Slot& slot)
{
    return std::size_t{slot.width} * (slot.kind == Kind::array ? slot.count : 1);
}

bool fits(const Slot& slot, Display display)
{
    const bool is_scalar = slot.kind == Kind::scalar, is_array = slot.kind == Kind::array;
    const std::size_t size = wire_size(slot);
    switch (display) {
    case Display::plain: return true;
    case Display::hex:
    case Display::enumeration: return is_scalar;
    case Display::ipv4: return (is_scalar || slot.width == 1) && size == 4;
    case Display::ipv6: return is_array && size == 16;
    case Display::mac: return (is_scalar && size == 8) || (is_array && slot.width == 1 && size == 6);
    default: return is_scalar && size >= 4;
    }
}

// ---- the file ----

constexpr std::string_view blanks = " \t\r";

// Throws the reason only.
void need_text(std::string_view line)
{
    for (const char character : line)
        if (const u8 byte = static_cast<u8>(character);
            (byte < 0x20 && blanks.find(character) == std::string_view::npos) || byte == 0x7f)
            throw Fault(fmt::format("byte {:#04x}: the file is not text", byte));
}

std::vector<std::string_view> fields_of(std::string_view line)
{
    line = line.substr(0, line.find('#'));
    std::vector<std::string_view> fields;
    for (;;) {
        line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
        if (line.empty())
            return fields;
        fields.push_back(line.substr(0, line.find_first_of(blanks)));
        line.remove_prefix(fields.back().size());
    }
}

bool is_name(std::string_view text)
{
    const auto belongs = [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_'; };
    return !text.empty() && text[0] >= 'a' && text[0] <= 'z' && std::ranges::all_of(text, belongs);
}

std::optional<u64> number_of(std::string_view text)
{
    const bool hex = text.starts_with("0x");
    if (hex)
        text.remove_prefix(2);
    u64 number = 0;
    const auto [stop, fault] = std::from_chars(text.data(), text.data() + text.size(), number, hex ? 16 : 10);
    if (fault != std::errc() || stop != text.data() + text.size())
        return {};
    return number;
}

// One field's line. All functions throw the reason only.
class FieldLine {
public:
    FieldLine(const Message& message, const std::vector<std::string_view>& words) : message_(message), words_(words) {}

    std::size_t slot() const
    {
        const auto found = std::ranges::find(message_.slots, words_[0], &Slot::field);
        if (found == message_.slots.end())
            throw Fault(fmt::format("{} has no field '{}'; its fields are {} to {}", message_.name, words_[0],
                                    message_.slots.front().field, message_.slots.back().field));
        return static_cast<std::size_t>(found - message_.slots.begin());
    }

    FieldView view() const
    {
        if (words_.size() < 2)
            throw Fault(fmt::format("a name is needed after '{}'", words_[0]));
        if (!is_name(words_[1]))
            throw Fault(fmt::format("'{}' is no name: a lower-case letter, then letters, digits and _", words_[1]));
        for (const Slot& slot : message_.slots)
            if (slot.field == words_[1] && slot.field != words_[0])
                throw Fault(fmt::format("'{}' is another field of {}", words_[1], message_.name));
        FieldView view{std::string(words_[1]), Display::plain, {}};
        if (words_.size() > 2)
            view.display = display();
        if (view.display == Display::enumeration)
            view.words = enumeration();
        else if (words_.size() > 3)
            throw Fault(fmt::format("'{}' is too much", words_[3]));
        return view;
    }

private:
    Display display() const
    {
        const auto* const found = std::ranges::find(displays, words_[2], &std::pair<std::string_view, Display>::first);
        if (found == std::end(displays))
            throw Fault(fmt::format("no display '{}'; there are hex, ipv4, ipv6, mac, time, time-ms, time-us, time-ns "
                                    "and enum",
                                    words_[2]));
        const Slot& of_field = message_.slots[slot()];
        if (!fits(of_field, found->second))
            throw Fault(fmt::format("{} is {}, which '{}' cannot show", words_[0], slot_text(of_field), words_[2]));
        return found->second;
    }

    std::map<std::string, u64> enumeration() const
    {
        if (words_.size() == 3)
            throw Fault("an enum needs words, as in tcp=6");
        std::map<std::string, u64> values;
        for (std::size_t i = 3; i < words_.size(); ++i) {
            const std::size_t equals = std::min(words_[i].find('='), words_[i].size());
            const std::string_view word = words_[i].substr(0, equals);
            const std::optional<u64> number = number_of(words_[i].substr(std::min(equals + 1, words_[i].size())));
            if (!is_name(word) || !number)
                throw Fault(fmt::format("'{}' is not as in tcp=6", words_[i]));
            const Slot& of_field = message_.slots[slot()];
            if (*number > ~u64{0} >> (64 - 8 * of_field.width))
                throw Fault(fmt::format("'{}': {} holds no number that large", words_[i], slot_text(of_field)));
            for (const auto& [known, value] : values)
                if (known == word || value == *number)
                    throw Fault(fmt::format("'{}' repeats {}={}", words_[i], known, value));
            values.emplace(word, *number);
        }
        return values;
    }

    const Message& message_;
    const std::vector<std::string_view>& words_;
};

// ---- values ----

std::string time_text(u64 value, Display display)
{
    const u64 ticks = ticks_per_second(display);
    const std::time_t seconds = static_cast<std::time_t>(value / ticks);
    std::tm time{};
    if (gmtime_r(&seconds, &time) == nullptr || time.tm_year > 9999 - 1900)
        return {};
    const std::string whole = fmt::format("{:%Y-%m-%dT%H:%M:%S}", time);
    const int digits = ticks == 1 ? 0 : ticks == 1000 ? 3 : ticks == 1000000 ? 6 : 9;
    return digits == 0 ? whole + "Z" : fmt::format("{}.{:0{}}Z", whole, value % ticks, digits);
}

std::optional<u64> time_from(const std::string& text, Display display)
{
    std::tm time{};
    const char* rest = strptime(text.c_str(), "%Y-%m-%dT%H:%M:%S", &time);
    if (rest == nullptr)
        return {};
    u64 fraction = 0, ticks = ticks_per_second(display);
    if (*rest == '.')
        for (++rest; *rest >= '0' && *rest <= '9' && ticks > 1; ++rest)
            fraction += static_cast<u64>(*rest - '0') * (ticks /= 10);
    const std::time_t seconds = timegm(&time);
    if (std::string_view(rest) != "Z" || seconds < 0)
        return {};
    return static_cast<u64>(seconds) * ticks_per_second(display) + fraction;
}

// An address's octets in the order of reading, from the wire or for it. In a number the first octet is the highest.
void swap_words(const Slot& slot, Bytes& octets)
{
    for (std::size_t at = 0; at + slot.width <= octets.size(); at += slot.width)
        std::reverse(octets.begin() + static_cast<std::ptrdiff_t>(at),
                     octets.begin() + static_cast<std::ptrdiff_t>(at + slot.width));
}

std::string address_text(Display display, const Bytes& octets)
{
    if (display == Display::mac) {
        const bool is_longer = octets.size() == 8 && (octets[0] != 0 || octets[1] != 0);
        return is_longer ? "" : model::to_hex(octets.data() + octets.size() - 6, 6, ":");
    }
    char text[INET6_ADDRSTRLEN];
    return inet_ntop(display == Display::ipv4 ? AF_INET : AF_INET6, octets.data(), text, sizeof text);
}

std::optional<Bytes> address_from(Display display, const std::string& text, std::size_t size)
{
    Bytes octets(size);
    if (display != Display::mac) {
        if (inet_pton(display == Display::ipv4 ? AF_INET : AF_INET6, text.c_str(), octets.data()) != 1)
            return {};
        return octets;
    }
    Bytes given;
    std::string error;
    if (text.size() != 17 || !model::from_hex(text, given, error) || given.size() != 6)
        return {};
    std::ranges::copy(given, octets.end() - 6);
    return octets;
}

std::string number_text(const Slot& slot, const FieldView& view, u64 number)
{
    if (view.display == Display::hex)
        return fmt::format("{:#0{}x}", number, 2 + 2 * slot.width);
    if (is_time(view.display))
        return time_text(number, view.display);
    for (const auto& [word, value] : view.words)
        if (value == number)
            return word;
    return {};
}

std::optional<u64> number_from(const FieldView& view, const std::string& text)
{
    if (view.display == Display::enumeration) {
        const auto found = view.words.find(text);
        return found == view.words.end() ? std::optional<u64>() : found->second;
    }
    return view.display == Display::hex ? number_of(text) : time_from(text, view.display);
}

std::string expected_text(const FieldView& view)
{
    switch (view.display) {
    case Display::hex: return "a number of this width, as in 0x1f";
    case Display::ipv4: return "an IPv4 address";
    case Display::ipv6: return "an IPv6 address";
    case Display::mac: return "a MAC address, as in 02:00:00:00:00:01";
    case Display::enumeration: break;
    default: return "a time of this field's width in UTC, as in 2026-11-23T10:00:00Z";
    }
    std::vector<std::string_view> words;
    for (const auto& [word, value] : view.words)
        words.push_back(word);
    return fmt::format("a word of this field ({}) or a number", fmt::join(words, ", "));
}

bool is_address(Display display) { return display >= Display::ipv4 && display <= Display::mac; }

// ---- JSON ----

// The value's bytes on the wire.
Bytes wire_of(const Slot& slot, const ordered_json& plain)
{
    Bytes wire;
    if (slot.kind == Kind::scalar)
        model::append(wire, plain.is_string() ? std::stoull(plain.get<std::string>()) : plain.get<u64>(), slot.width);
    else if (plain.is_string())
        wire = bytes_from_hex(plain.get<std::string>());
    else
        for (const ordered_json& word : plain)
            model::append(wire, word.get<u64>(), slot.width);
    return wire;
}

ordered_json plain_of(const Slot& slot, const Bytes& wire)
{
    if (slot.kind == Kind::scalar) {
        const u64 number = model::get(wire.data(), slot.width);
        return slot.width == 8 ? ordered_json(std::to_string(number)) : ordered_json(number);
    }
    if (slot.width == 1)
        return model::to_hex(wire.data(), wire.size());
    ordered_json words = ordered_json::array();
    for (std::size_t at = 0; at < wire.size(); at += slot.width)
        words.push_back(model::get(wire.data() + at, slot.width));
    return words;
}

// Null if the text is no value as the field displays it.
ordered_json plain_from(const Slot& slot, const FieldView& view, const std::string& text)
{
    Bytes wire;
    if (is_address(view.display)) {
        std::optional<Bytes> octets = address_from(view.display, text, wire_size(slot));
        if (!octets)
            return nullptr;
        swap_words(slot, *octets);
        wire = *octets;
    } else {
        const std::optional<u64> number = number_from(view, text);
        if (!number || *number > ~u64{0} >> (64 - 8 * slot.width))
            return nullptr;
        model::append(wire, *number, slot.width);
    }
    return plain_of(slot, wire);
}

// Applies `change(nested message, record, path)` to the records within a table or a vector.
template <class Change>
ordered_json changed(const Slot& slot, const ordered_json& value, const std::string& path, Change change)
{
    if (slot.kind == Kind::table)
        return change(*slot.nested, value, path);
    if (!value.is_array())
        return value;
    ordered_json elements = ordered_json::array();
    for (const ordered_json& element : value)
        elements.push_back(change(*slot.nested, element, fmt::format("{}[{}]", path, elements.size())));
    return elements;
}

ordered_json plain_value(const Message& message, std::size_t k, const ordered_json& value, const std::string& path);

ordered_json plain_record(const Message& message, const ordered_json& record, const std::string& path)
{
    if (!record.is_object())
        return record;
    ordered_json plain = ordered_json::object();
    for (const auto& [key, value] : record.items()) {
        std::size_t k = 0;
        while (k < message.slots.size() && message.slots[k].field != key && field_name(message, k) != key)
            ++k;
        const bool is_known = k < message.slots.size();
        const std::string& field = is_known ? message.slots[k].field : key;
        if (plain.contains(field))
            throw JsonFault(fmt::format("{}.{} and {} are one field", path, key, field));
        plain[field] = is_known ? plain_value(message, k, value, fmt::format("{}.{}", path, key)) : value;
    }
    return plain;
}

ordered_json plain_value(const Message& message, std::size_t k, const ordered_json& value, const std::string& path)
{
    const Slot& slot = message.slots[k];
    if (slot.nested != nullptr)
        return changed(slot, value, path, plain_record);
    const FieldView* const view = names().find(message, k);
    if (view == nullptr || view->display == Display::plain || !value.is_string())
        return value;
    const std::string text = value.get<std::string>();
    ordered_json plain = plain_from(slot, *view, text);
    if (!plain.is_null())
        return plain;
    const bool may_be_plain = slot.width == 8 ? number_of(text).has_value() : slot.kind == Kind::array;
    if (!may_be_plain)
        throw JsonFault(fmt::format("{}: '{}' is not {}", path, text, expected_text(*view)));
    return value;
}

ordered_json named_record(const Message& message, const ordered_json& record, const std::string&)
{
    ordered_json named = ordered_json::object();
    std::size_t k = 0;
    for (const auto& [key, value] : record.items()) {   // all fields, in slot order
        const Slot& slot = message.slots[k];
        const FieldView* const view = names().find(message, k);
        ordered_json& to = named[field_name(message, k)];
        if (slot.nested != nullptr)
            to = changed(slot, value, "", named_record);
        else if (view != nullptr && view->display != Display::plain)
            to = displayed(message, k, wire_of(slot, value).data());
        if (to.is_null() || to == "")   // plain, or a value that the display cannot show
            to = value;
        ++k;
    }
    return named;
}

}   // namespace

void Names::read(std::string_view text, const std::string& where)
{
    const Message* message = nullptr;
    std::size_t number = 0;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        ++number;
        const std::vector<std::string_view> words = fields_of(line);
        try {
            need_text(line);
            if (words.empty())
                continue;
            if (line[0] != ' ' && line[0] != '\t') {
                message = catalogue().find(words[0]);
                if (message == nullptr || words.size() > 1)
                    throw Fault(words.size() > 1 ? "a message stands alone in its line; fields are indented"
                                                 : no_message_text(words[0]));
                if (!messages_.try_emplace(message->name).second)
                    throw Fault(fmt::format("{} stands here a second time", message->name));
                continue;
            }
            if (message == nullptr)
                throw Fault("a field stands before any message");
            const FieldLine field(*message, words);
            std::map<std::size_t, FieldView>& known = messages_[message->name];
            const auto [at, is_new] = known.try_emplace(field.slot(), field.view());
            for (const auto& [slot, view] : known)
                if (!is_new || (slot != at->first && view.name == at->second.name))
                    throw Fault(fmt::format("{} '{}' stands here a second time", is_new ? "name" : "field",
                                            words[is_new ? 1 : 0]));
        } catch (const Fault& fault) {
            throw Fault(fmt::format("{}:{}: {}", where, number, fault.what()));
        }
    }
}

const FieldView* Names::find(const Message& message, std::size_t slot) const
{
    const auto fields = messages_.find(message.name);
    if (fields == messages_.end())
        return nullptr;
    const auto found = fields->second.find(slot);
    return found == fields->second.end() ? nullptr : &found->second;
}

Names& names()
{
    static Names of_process;
    return of_process;
}

const std::string& field_name(const Message& message, std::size_t slot)
{
    const FieldView* const view = names().find(message, slot);
    return view == nullptr ? message.slots[slot].field : view->name;
}

std::string field_path(const Message& root, const model::Path& path)
{
    std::string out;
    const Message* message = &root;
    for (u32 i = 0; i < path.length; ++i) {
        const model::Path::Step& step = path.steps[i];
        out += "." + field_name(*message, step.slot);
        if (step.element >= 0)
            out += fmt::format("[{}]", step.element);
        message = message->slots[step.slot].nested;
    }
    return out.empty() ? "." : out;
}

std::string displayed(const Message& message, std::size_t slot, const u8* wire)
{
    const FieldView* const view = names().find(message, slot);
    if (view == nullptr || view->display == Display::plain)
        return {};
    const Slot& of_field = message.slots[slot];
    if (!is_address(view->display))
        return number_text(of_field, *view, model::get(wire, of_field.width));
    Bytes octets(wire, wire + wire_size(of_field));
    swap_words(of_field, octets);
    return address_text(view->display, octets);
}

ordered_json named_json(const Record& record)
{
    const ordered_json json = model::record_json(record);
    return names().empty() ? json : named_record(*record.message, json, "");
}

Record record_from_named_json(const Message& message, const ordered_json& json)
{
    return model::record_from_json(message, names().empty() ? json : plain_record(message, json, ""));
}

}   // namespace kesto::command
