#include "tools/kesto/commands.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>
#include <nlohmann/json.hpp>

#include "model/encode.h"
#include "model/json.h"
#include "tools/kesto/names.h"
#include "tools/kesto/quoting.h"

namespace kesto::command {

namespace {

// Writers stop at the NUL.
void warn_of_cut_text(const Record& record)
{
    for (std::size_t k = 0; k < record.fields.size(); ++k) {
        const model::Field& field = record.fields[k];
        const bool is_text = record.message->slots[k].kind == Kind::string;
        if (is_text && model::text_length(field.octets) != field.octets.size())
            complain(fmt::format("{} of {} holds a NUL; text ends there", field_name(*record.message, k),
                                 record.message->name));
        std::for_each(field.records.begin(), field.records.end(), warn_of_cut_text);
    }
}

}   // namespace

const Message& message_named(const std::string& name)
{
    const std::vector<const Message*> found = messages_named(name);
    if (found.size() == 1)
        return *found.front();
    if (!found.empty()) {
        std::vector<std::string> names;
        for (const Message* message : found)
            names.push_back(message->name);
        throw Fault(fmt::format("'{}' names {} messages: {}", name, names.size(), fmt::join(names, ", ")));
    }
    const std::string text = no_message_text(name);
    throw Fault(fmt::format("{}{} `kesto list` shows all, `kesto list PART` those whose name holds PART", text,
                            text.ends_with('?') ? "" : ";"));
}

const Message& message_for_bytes(const std::string& name, std::span<const u8> bytes)
{
    const Message& named = message_named(name);
    if (named.users.empty() || !names_nested_routine(name))
        return named;
    std::vector<const Message*> outer = named.users;
    for (std::size_t i = 0; i < outer.size(); ++i)
        for (const Message* user : outer[i]->users)
            if (std::ranges::find(outer, user) == outer.end())
                outer.push_back(user);
    const auto logs_it = [&](const Message* message) {
        const Explanation verdict = explain(*message, bytes, {.most_ranges = 0, .most_memory = 0});
        const model::Routine routine{&named, model::RoutineKind::unpack_non_root};
        return std::ranges::any_of(std::array{&verdict.refused, &verdict.ignored}, [&](const auto* refused) {
            return *refused && (*refused)->log && (*refused)->log->routine == routine;
        });
    };
    std::vector<const Message*> likely;
    std::ranges::copy_if(outer, std::back_inserter(likely), logs_it);
    if (likely.empty())
        likely = outer;
    std::vector<std::string> names;
    names.reserve(likely.size());
    for (const Message* message : likely)
        names.push_back(message->name);
    const std::string& routine = named.unpack_non_root_name;
    if (likely.size() > 1)
        throw Fault(
            fmt::format("{} decodes a part of a message; name the message: {}", routine, fmt::join(names, ", ")));
    complain(fmt::format("{} decodes a part of a message, here of {}", routine, names.front()));
    return *likely.front();
}

Explanation explain_fully(const Message& message, std::span<const u8> bytes, const ExplainOptions& options)
{
    Explanation explanation = explain(message, bytes, options);
    if (explanation.refused || explanation.origin == Origin::other)
        explanation.written_for = fitting_messages(bytes, bytes.size()).written_so;   // no writer produces shared bytes
    return explanation;
}

int explain_bytes(const Message& message, std::span<const u8> bytes, const ExplainChoices& choices)
{
    const Explanation explanation = explain_fully(message, bytes, choices.options);
    if (!choices.html.empty())
        write_page(explanation, choices.html);
    if (choices.json)
        print(json_text(explanation_json(explanation), 2) + "\n");
    else if (choices.html.empty())
        print(explanation_text(explanation, {colours_for(choices.colour), choices.whole, terminal_width()}));
    return explanation.refused ? refused : accepted;
}

Explanation explain_verdict(const Message& message, std::span<const u8> bytes, u64 most_memory)
{
    constexpr u64 json_factor = 4;   // record, JSON and its text, as a multiple of the record
    return explain(message, bytes, {.most_ranges = 0, .most_memory = 0, .most_record = most_memory / json_factor});
}

std::string given_up_text(u64 most_memory)
{
    return fmt::format("decoding takes more than {} of memory; --memory allows more", counted(most_memory, "byte"));
}

Record record_of(const Explanation& accepted)
{
    model::Outcome outcome;
    model::decode(*accepted.message, accepted.bytes.data(), static_cast<u32>(accepted.bytes.size()), {}, outcome);
    return outcome.record;
}

std::optional<Record> decoded(const Message& message, std::span<const u8> bytes, u64 most_memory,
                              const std::string& where)
{
    const Explanation explanation = explain_verdict(message, bytes, most_memory);
    const std::string before = where.empty() ? "" : where + ": ";
    if (explanation.given_up)
        throw Fault(before + given_up_text(most_memory));
    if (explanation.refused) {
        fmt::print(stderr, "{}{}", visible(before), refused_text(explanation, {}));
        return {};
    }
    return record_of(explanation);
}

int decode_bytes(const Message& message, std::span<const u8> bytes, const DecodeChoices& choices)
{
    const std::optional<Record> record = decoded(message, bytes, choices.most_memory, "");
    if (!record)
        return refused;
    print(json_text(named_json(*record), choices.compact_json ? -1 : 2) + "\n");
    return accepted;
}

Bytes encoded(const Record& record, Form form)
{
    const Message& message = *record.message;
    const bool has_fixed = message.fixed_length != 0;
    if (form == Form::fixed && !has_fixed)
        throw Fault(message.name + " has no fixed form: it holds a string, bytes or a vector");
    const bool fixed = form == Form::fixed || (form == Form::as_sent && has_fixed);
    return fixed ? model::fixed_form(record) : model::compact_form(record);
}

int encode_json(const Message& message, const std::string& text, const std::string& where, const EncodeChoices& choices)
{
    const Record record = record_from_named_json(message, model::parse_json(text, where));
    warn_of_cut_text(record);
    const Bytes bytes = encoded(record, choices.form);
    const bool to_terminal = choices.output == "-" && is_terminal_output();
    if (choices.hex || to_terminal) {
        const std::string line = to_hex(bytes.data(), bytes.size(), " ") + "\n";
        write_bytes(choices.output, line.data(), line.size());
    } else {
        write_bytes(choices.output, bytes.data(), bytes.size());
    }
    return accepted;
}

}   // namespace kesto::command
