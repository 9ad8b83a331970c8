// Descriptions of messages, without a byte string.

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>

#include "model/encode.h"
#include "model/json.h"
#include "tools/kesto/commands.h"
#include "tools/kesto/names.h"
#include "tools/kesto/quoting.h"
#include "tools/kesto/terminal.h"

namespace kesto::command {

namespace {

using nlohmann::ordered_json;

std::string id_text(const Message& message) { return fmt::format("{:#010x}", message.id); }

bool is_owned(const Slot& slot)
{
    return slot.kind == Kind::string || slot.kind == Kind::bytes || slot.kind == Kind::vector;
}

std::string lengths_text(const Message& message)
{
    if (message.fixed_length == 0)
        return fmt::format("no fixed form; compact form of {} bytes and more", message.compact_zero);
    return fmt::format("fixed form of {} bytes; compact form of {} to {}", message.fixed_length, message.compact_zero,
                       message.compact_full);
}

// "f0, f2": the fields of the kinds that `belongs` selects.
template <class Belongs>
std::string fields_that(const Message& message, Belongs belongs)
{
    std::vector<std::string> names;
    for (std::size_t k = 0; k < message.slots.size(); ++k)
        if (belongs(message.slots[k]))
            names.push_back(field_name(message, k));
    return fmt::format("{}", fmt::join(names, ", "));
}

void append_line(std::string& out, u32 position, const std::string& text)
{
    fmt::format_to(std::back_inserter(out), "{:>6}  {}\n", position, text);
}

void append_more(std::string& out, const char* head, const std::string& fields)
{
    if (!fields.empty())
        fmt::format_to(std::back_inserter(out), "        {}: {}\n", head, fields);
}

void append_compact_picture(std::string& out, const Message& message)
{
    const u32 table = 4 + message.vtable_length;
    append_line(out, 0, fmt::format("root: table at {}", table));
    append_line(out, 4,
                fmt::format("vtable: length {}, table length, {}", message.vtable_length,
                            counted(message.slots.size(), "slot")));
    append_line(out, table, fmt::format("table: vtable {} back", message.vtable_length));
    append_more(out, "scalars that are not 0",
                fields_that(message, [](const Slot& slot) { return slot.kind == Kind::scalar; }));
    append_more(out, "cells of all others, in slot order",
                fields_that(message, [](const Slot& slot) { return slot.kind != Kind::scalar; }));
    append_more(out, "counts and contents, in slot order",
                fields_that(message, [](const Slot& slot) { return slot.kind == Kind::array || is_owned(slot); }));
    append_more(out, "after the table, each with its vtable before it",
                fields_that(message, [](const Slot& slot) { return slot.nested != nullptr; }));
    append_more(out, "left out with all its parts if null or empty", fields_that(message, is_owned));
}

void append_fixed_picture(std::string& out, const Message& message)
{
    const u32 vtable = 4 + (message.fixed_table_length + 3) / 4 * 4;
    append_line(out, 0, "root: table at 4");
    append_line(out, 4, fmt::format("table: vtable at {}", vtable));
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        const Slot& slot = message.slots[k];
        const char* const head = slot.kind == Kind::array ? "a cell, the count and " : "";
        const std::string type = slot.kind == Kind::table ? fmt::format("the fixed form of {}, {} bytes",
                                                                        slot.nested->name, slot.nested->fixed_length)
                                                          : slot_text(message.slots[k]);
        append_line(out, 4 + message.fixed_offsets[k], fmt::format("{}: {}{}", field_name(message, k), head, type));
    }
    append_line(out, vtable,
                fmt::format("vtable: length {}, table length {}, {}", message.vtable_length, message.fixed_table_length,
                            counted(message.slots.size(), "slot")));
    if (vtable + message.vtable_length < message.fixed_length)
        append_line(out, vtable + message.vtable_length, "zeros");
    append_line(out, message.fixed_length, "end");
}

ordered_json message_json(const Message& message)
{
    ordered_json json = {
        {"message", message.name},
        {"id", id_text(message)},
        {"module", message.module},
        {"sent", message.fixed_length == 0 ? "compact" : "fixed"},
        {"fixed", message.fixed_length == 0 ? ordered_json(nullptr) : ordered_json(message.fixed_length)},
        {"compact_least", message.compact_zero},
        {"compact_greatest", message.compact_full == 0 ? ordered_json(nullptr) : ordered_json(message.compact_full)},
    };
    return json;
}

ordered_json layout_json(const Message& message, std::size_t k, u32 pointer_width)
{
    return {{"offset", message.layout(pointer_width).offsets[k]},
            {"size", model::member_size(message.slots[k], pointer_width)}};
}

std::string show_json(const Message& message)
{
    ordered_json json = message_json(message);
    for (const u32 width : {4U, 8U})
        json[fmt::format("record_{}", 8 * width)] = {{"size", message.layout(width).size},
                                                     {"alignment", message.layout(width).alignment}};
    json["slots"] = ordered_json::array();
    for (std::size_t k = 0; k < message.slots.size(); ++k)
        json["slots"].push_back({{"field", message.slots[k].field},
                                 {"name", field_name(message, k)},
                                 {"type", slot_text(message.slots[k])},
                                 {"record_32", layout_json(message, k, 4)},
                                 {"record_64", layout_json(message, k, 8)}});
    return json_text(json, 2) + "\n";
}

// If the table is wider than the terminal, the names of nested messages stand below the types.
std::string fields_table(const Message& message)
{
    constexpr std::size_t other_columns = 40;
    std::size_t name = 5, type = 4;
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        name = std::max(name, field_name(message, k).size());
        type = std::max(type, slot_text(message.slots[k]).size());
    }
    const std::size_t width = terminal_width();
    const bool is_narrow = width != 0 && other_columns + name + type > width;
    if (is_narrow)
        type = sizeof "vector of" - 1;
    std::string out = fmt::format("slot  {:{}}  {:{}}  at/32  size/32  at/64  size/64\n", "field", name, "type", type);
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        const Slot& slot = message.slots[k];
        const std::string whole = slot_text(slot),
                          nested = is_narrow && slot.nested != nullptr ? slot.nested->name : "";
        fmt::format_to(std::back_inserter(out), "{:>4}  {:{}}  {:{}}  {:>5}  {:>7}  {:>5}  {:>7}\n", k,
                       field_name(message, k), name, whole.substr(0, whole.size() - nested.size()), type,
                       message.narrow.offsets[k], model::member_size(slot, 4), message.wide.offsets[k],
                       model::member_size(slot, 8));
        if (!nested.empty())
            fmt::format_to(std::back_inserter(out), "{:{}}{}\n", "", name + 8, nested);
    }
    return out;
}

// A line for each message: in words, or as a table if the terminal is too narrow for them.
std::string list_text(const std::vector<const Message*>& messages)
{
    std::string out;
    const auto into = std::back_inserter(out);
    std::size_t widest = 0, name = 7;
    for (const Message* message : messages) {
        const std::string line =
            fmt::format("{}  {:48}  {}\n", id_text(*message), message->name, lengths_text(*message));
        widest = std::max(widest, line.size() - 1);
        name = std::max(name, message->name.size());
        out += line;
    }
    const std::size_t width = terminal_width();
    if (width == 0 || widest <= width)
        return out;
    out = fmt::format("{:10}  {:{}}  fixed  compact\n", "id", "message", name);
    for (const Message* message : messages)
        if (message->fixed_length == 0)
            fmt::format_to(into, "{}  {:{}}  {:>5}  {} or more\n", id_text(*message), message->name, name, "-",
                           message->compact_zero);
        else
            fmt::format_to(into, "{}  {:{}}  {:>5}  {} to {}\n", id_text(*message), message->name, name,
                           message->fixed_length, message->compact_zero, message->compact_full);
    return out;
}

}   // namespace

int list_messages(const std::string& pattern, const ListChoices& choices)
{
    std::string out;
    ordered_json json = ordered_json::array();
    std::vector<const Message*> listed;
    for (const Message& message : catalogue().messages) {
        if (message.name.find(pattern) == std::string::npos && id_text(message).find(pattern) == std::string::npos)
            continue;
        if (choices.json)
            json.push_back(message_json(message));
        else if (choices.names)
            out += message.name + "\n";
        else
            listed.push_back(&message);
    }
    if (!listed.empty())
        out = list_text(listed);
    const bool any = !out.empty() || !json.empty();
    print(choices.json ? json_text(json, 2) + "\n" : out);
    return any ? accepted : refused;
}

int show_message(const Message& message, bool json)
{
    if (json) {
        print(show_json(message));
        return accepted;
    }
    std::string out = fmt::format("{} {}, module {}\n", message.name, id_text(message), message.module);
    const auto into = std::back_inserter(out);
    fmt::format_to(into, "sent in {} form: {}\n", message.fixed_length == 0 ? "compact" : "fixed",
                   lengths_text(message));
    for (const u32 width : {4U, 8U})
        fmt::format_to(into, "record with {}-bit pointers: {} bytes, aligned to {}\n", 8 * width,
                       message.layout(width).size, message.layout(width).alignment);
    for (std::size_t k = 0; k < message.slots.size(); ++k)
        if (message.slots[k].lenient)
            fmt::format_to(into, "a refusal of {} is ignored, and the read goes on\n", field_name(message, k));
    std::vector<std::string> users;
    for (const Message* user : message.users)
        users.push_back(user->name);
    if (!users.empty())
        fmt::format_to(into, "nested in {}\n", fmt::join(users, ", "));
    std::string pictures = "\ncompact form:\n";
    append_compact_picture(pictures, message);
    if (message.fixed_length != 0) {
        pictures += "\nfixed form:\n";
        append_fixed_picture(pictures, message);
    }
    print(folded_for_terminal(out, 4) + "\n" + fields_table(message) + folded_for_terminal(pictures, 12));
    return accepted;
}

int show_sizes(const Message& message, bool json)
{
    print(json ? json_text(message_json(message), 2) + "\n"
               : folded_for_terminal(message.name + ": " + lengths_text(message) + "\n", 4));
    return accepted;
}

int show_sizes(const Record& record, bool json)
{
    const u32 fixed = record.message->fixed_length;
    const u64 compact = model::exact_size(record);
    if (json) {
        const ordered_json sizes = {{"message", record.message->name},
                                    {"compact", compact},
                                    {"fixed", fixed == 0 ? ordered_json(nullptr) : ordered_json(fixed)}};
        print(json_text(sizes, 2) + "\n");
        return accepted;
    }
    print(fmt::format("compact form: {}\n{}\n", counted(compact, "byte"),
                      fixed == 0 ? "no fixed form" : "fixed form: " + counted(fixed, "byte")));
    return accepted;
}

}   // namespace kesto::command
