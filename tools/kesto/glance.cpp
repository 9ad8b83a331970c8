#include "tools/kesto/glance.h"

#include <fmt/format.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <unordered_map>

#include "tools/kesto/difference.h"
#include "tools/kesto/input.h"
#include "tools/kesto/names.h"
#include "tools/kesto/quoting.h"

namespace kesto::command {

namespace {

using nlohmann::ordered_json;

constexpr u64 most_read_of_a_packet = 16 << 20;   // repeated reads count again

std::string hex_id(u32 id) { return fmt::format("{:#010x}", id); }

std::string message_title(u32 id, const Message* message)
{
    return fmt::format("{} {}", hex_id(id), message == nullptr ? "(no message has this id)" : message->name);
}

ordered_json message_name(const Message* message)
{
    return message == nullptr ? ordered_json() : ordered_json(message->name);
}

// ---- summary ----

using Reason = std::pair<std::string, std::string>;   // code, and path without element numbers

struct Refusals {
    u64 packets = 0;
    u64 first = 0;   // number of a packet

    void add(u64 packet)
    {
        if (packets++ == 0)
            first = packet;
    }
};

struct MessageTotal {
    const Message* message = nullptr;
    u64 packets = 0;
    u64 bytes = 0;
    std::string first, last;   // times
    std::map<Reason, Refusals> refused;
    std::map<std::int32_t, Refusals> refused_by_mesh;   // by the result of the send operation
};

struct Summary {
    u64 packets = 0;
    u64 bytes = 0;
    u64 refused = 0;
    u64 refused_by_mesh = 0;
    std::map<u32, MessageTotal> by_id;

    // The most frequent first.
    std::vector<const std::pair<const u32, MessageTotal>*> sorted() const
    {
        std::vector<const std::pair<const u32, MessageTotal>*> all;
        for (const auto& each : by_id)
            all.push_back(&each);
        std::ranges::stable_sort(all, std::greater(), [](const auto* each) { return each->second.packets; });
        return all;
    }
};

// The most frequent first.
template <class Key>
std::vector<std::pair<Key, Refusals>> sorted(const std::map<Key, Refusals>& refused)
{
    std::vector<std::pair<Key, Refusals>> all(refused.begin(), refused.end());
    std::ranges::stable_sort(all, std::greater(), [](const auto& each) { return each.second.packets; });
    return all;
}

std::optional<Reason> reason_of(const PacketView& packet)
{
    if (packet.fault != nullptr)
        return Reason{packet.fault, ""};
    const Explanation verdict = explain(*packet.message, packet.bytes,
                                        {.most_ranges = 0, .most_memory = 0, .most_read = most_read_of_a_packet});
    if (verdict.given_up)
        return Reason{"not_tested", ""};
    if (!verdict.refused)
        return {};
    model::Path path = verdict.refused->failure.path;
    for (model::Path::Step& step : path.steps)
        step.element = -1;
    return Reason{name_of(verdict.refused->failure.refusal), field_path(*packet.message, path)};
}

Summary summary_of(const std::string& file)
{
    Summary summary;
    for_every_packet(file, 0, [&](const PacketView& packet) {
        MessageTotal& total = summary.by_id[packet.id];
        if (total.packets++ == 0)
            total.first = packet.time;
        total.last = packet.time;
        total.message = packet.message;
        total.bytes += packet.bytes.size();
        ++summary.packets;
        summary.bytes += packet.bytes.size();
        if (const std::optional<Reason> reason = reason_of(packet)) {
            ++summary.refused;
            total.refused[*reason].add(packet.number);
        }
        if (packet.result.value_or(0) != 0) {
            ++summary.refused_by_mesh;
            total.refused_by_mesh[*packet.result].add(packet.number);
        }
    });
    return summary;
}

ordered_json summary_json(const std::string& file, const Summary& summary)
{
    ordered_json json = {{"capture", file},
                         {"packets", summary.packets},
                         {"bytes", summary.bytes},
                         {"refused", summary.refused},
                         {"refused_by_mesh", summary.refused_by_mesh},
                         {"messages", ordered_json::array()}};
    for (const auto* each : summary.sorted()) {
        const auto& [id, total] = *each;
        ordered_json refused = ordered_json::array(), refused_by_mesh = ordered_json::array();
        for (const auto& [reason, refusals] : sorted(total.refused))
            refused.push_back({{"code", reason.first},
                               {"path", reason.second},
                               {"packets", refusals.packets},
                               {"first_packet", refusals.first}});
        for (const auto& [result, refusals] : sorted(total.refused_by_mesh))
            refused_by_mesh.push_back(
                {{"result", result}, {"packets", refusals.packets}, {"first_packet", refusals.first}});
        json["messages"].push_back({{"id", hex_id(id)},
                                    {"message", message_name(total.message)},
                                    {"packets", total.packets},
                                    {"bytes", total.bytes},
                                    {"first", total.first},
                                    {"last", total.last},
                                    {"refused", refused},
                                    {"refused_by_mesh", refused_by_mesh}});
    }
    return json;
}

std::string summary_text(const std::string& file, const Summary& summary, const Colours& colours)
{
    std::string out = fmt::format(
        "{}: {}, {}, {}{}\n", visible(file), counted(summary.packets, "packet"), counted(summary.bytes, "byte"),
        summary.refused == 0 ? colours.good("none refused") : colours.bad(fmt::format("{} refused", summary.refused)),
        summary.refused_by_mesh == 0
            ? ""
            : ", " + colours.odd(fmt::format("{} {}", summary.refused_by_mesh, refused_by_mesh_text)));
    const auto into = std::back_inserter(out);
    for (const auto* each : summary.sorted()) {
        const auto& [id, total] = *each;
        fmt::format_to(into, "\n{:>7}  {}\n         {}, {}{}\n", total.packets,
                       colours.bold(message_title(id, total.message)), counted(total.bytes, "byte"), total.first,
                       total.packets == 1 ? "" : " to " + total.last);
        for (const auto& [reason, refusals] : sorted(total.refused))
            fmt::format_to(into, "{:>7}  {}{}, first in packet {}\n", refusals.packets,
                           colours.bad("refused: " + reason.first),
                           reason.second.empty() ? "" : " at " + colours.name(reason.second), refusals.first);
        for (const auto& [result, refusals] : sorted(total.refused_by_mesh))
            fmt::format_to(into, "{:>7}  {}, first in packet {}\n", refusals.packets,
                           colours.odd(fmt::format("{}: result {}", refused_by_mesh_text, result)), refusals.first);
    }
    return out;
}

// ---- comparison ----

struct CapturedSide {
    std::string file;
    std::vector<PacketCopy> packets;
    u64 bytes = 0;
    u64 left_out = 0;
};

CapturedSide side_of(const std::string& file)
{
    CapturedSide side{file, {}, 0, 0};
    for_every_packet(file, 0, [&](const PacketView& packet) {
        side.packets.push_back({packet.number,
                                packet.time,
                                packet.id,
                                packet.message,
                                packet.fault,
                                {packet.bytes.begin(), packet.bytes.end()},
                                packet.is_sent,
                                packet.result});
        side.bytes += packet.bytes.size();
    });
    return side;
}

bool has_any(const CapturedSide& side, bool is_sent)
{
    return std::ranges::any_of(side.packets, [&](const PacketCopy& packet) { return packet.is_sent == is_sent; });
}

void leave_out(CapturedSide& side, bool is_sent)
{
    side.left_out = std::erase_if(side.packets, [&](const PacketCopy& packet) {
        if (packet.is_sent != is_sent)
            return false;
        side.bytes -= packet.bytes.size();
        return true;
    });
}

// Id and bytes.
std::string content_of(const PacketCopy& packet)
{
    std::string content(packet.bytes.begin(), packet.bytes.end());
    for (u32 i = 0; i < 4; ++i)
        content += static_cast<char>(packet.id >> 8 * i);
    return content;
}

using Pair = std::pair<const PacketCopy*, const PacketCopy*>;   // sent, received; one of them may be null

struct Comparison {
    u64 as_sent = 0;
    std::vector<Pair> refused_by_mesh;   // and did not arrive
    std::vector<Pair> missing, twice, changed, unexpected;

    // What MESH refused never left, so it is no difference.
    bool is_same() const { return missing.empty() && twice.empty() && changed.empty() && unexpected.empty(); }
};

struct Copies {
    std::vector<const PacketCopy*> sent, received;
};

// Pairs packets in order. Returns those that are left.
Copies add_changed(const Copies& copies, std::vector<Pair>& changed)
{
    const std::size_t both = std::min(copies.sent.size(), copies.received.size());
    for (std::size_t i = 0; i < both; ++i)
        changed.emplace_back(copies.sent[i], copies.received[i]);
    const auto from = static_cast<std::ptrdiff_t>(both);
    return {{copies.sent.begin() + from, copies.sent.end()}, {copies.received.begin() + from, copies.received.end()}};
}

Comparison comparison_of(const CapturedSide& sent, const CapturedSide& received)
{
    std::unordered_map<std::string, Copies> by_content;
    for (const PacketCopy& packet : sent.packets)
        by_content[content_of(packet)].sent.push_back(&packet);
    for (const PacketCopy& packet : received.packets)
        by_content[content_of(packet)].received.push_back(&packet);

    Comparison comparison;
    std::unordered_map<const PacketCopy*, u64> paired;   // to the number of the sent packet; 0: arrived once too often
    for (auto& [content, copies] : by_content) {
        std::stable_partition(copies.sent.begin(), copies.sent.end(), std::not_fn(&PacketCopy::is_refused_by_mesh));
        const std::size_t both = std::min(copies.sent.size(), copies.received.size());
        comparison.as_sent += both;
        for (std::size_t i = 0; i < both; ++i)
            paired[copies.sent[i]] = paired[copies.received[i]] = copies.sent[i]->number;
        for (std::size_t i = both; both != 0 && i < copies.received.size(); ++i) {
            comparison.twice.emplace_back(copies.sent.front(), copies.received[i]);
            paired[copies.received[i]] = 0;
        }
    }
    // The others by id and by the last pair of this id before them: a changed packet keeps its place.
    std::map<std::pair<u32, u64>, Copies> left;
    for (const CapturedSide* side : {&sent, &received}) {
        std::unordered_map<u32, u64> last;   // by id
        for (const PacketCopy& packet : side->packets) {
            const auto found = paired.find(&packet);
            if (found == paired.end() && side == &sent && packet.is_refused_by_mesh()) {
                comparison.refused_by_mesh.emplace_back(&packet, nullptr);
            } else if (found == paired.end()) {
                Copies& copies = left[{packet.id, last[packet.id]}];
                (side == &sent ? copies.sent : copies.received).push_back(&packet);
            } else if (found->second != 0) {
                last[packet.id] = found->second;
            }
        }
    }
    std::map<u32, Copies> out_of_place;   // by id
    for (const auto& [place, copies] : left) {
        const auto [only_sent, only_received] = add_changed(copies, comparison.changed);
        Copies& more = out_of_place[place.first];
        more.sent.insert(more.sent.end(), only_sent.begin(), only_sent.end());
        more.received.insert(more.received.end(), only_received.begin(), only_received.end());
    }
    for (auto& [id, copies] : out_of_place) {
        std::ranges::sort(copies.sent, {}, &PacketCopy::number);
        std::ranges::sort(copies.received, {}, &PacketCopy::number);
        const auto [only_sent, only_received] = add_changed(copies, comparison.changed);
        for (const PacketCopy* packet : only_sent)
            comparison.missing.emplace_back(packet, nullptr);
        for (const PacketCopy* packet : only_received)
            comparison.unexpected.emplace_back(nullptr, packet);
    }
    const auto number_of = [](const Pair& pair) { return (pair.first == nullptr ? pair.second : pair.first)->number; };
    for (std::vector<Pair>* pairs :
         {&comparison.missing, &comparison.twice, &comparison.changed, &comparison.unexpected})
        std::ranges::stable_sort(*pairs, {}, number_of);
    return comparison;
}

// Of a changed packet: the records' differences, or why there are no records.
struct Change {
    std::vector<Difference> fields;
    std::string text;   // instead of fields
};

Change change_of(const Pair& pair)
{
    std::vector<Record> records;
    for (const auto& [side, packet] : {std::pair("sent", pair.first), std::pair("received", pair.second)}) {
        if (packet->fault != nullptr)
            return {{}, fmt::format("{}: no message: {}", side, packet->fault)};
        const Explanation verdict = explain_verdict(*packet->message, packet->bytes, DecodeChoices{}.most_memory);
        if (verdict.given_up)
            return {{}, fmt::format("{}: {}", side, given_up_text(DecodeChoices{}.most_memory))};
        if (verdict.refused)
            return {{},
                    fmt::format("{}: refused: {} at {}, position {}", side, name_of(verdict.refused->failure.refusal),
                                field_path(*packet->message, verdict.refused->failure.path),
                                verdict.refused->failure.position)};
        records.push_back(record_of(verdict));
    }
    std::vector<Difference> fields = differences(records[0], records[1]);
    return {fields, fields.empty() ? "the same record in other bytes" : ""};
}

ordered_json packet_json(const PacketCopy* packet)
{
    if (packet == nullptr)
        return nullptr;
    ordered_json json = {{"packet", packet->number}, {"time", packet->time}, {"length", packet->bytes.size()}};
    if (packet->result)
        json["result"] = *packet->result;
    return json;
}

ordered_json pairs_json(const std::vector<Pair>& pairs, bool with_change)
{
    ordered_json json = ordered_json::array();
    for (const Pair& pair : pairs) {
        const PacketCopy& packet = pair.first == nullptr ? *pair.second : *pair.first;
        ordered_json& each = json.emplace_back(ordered_json{{"id", hex_id(packet.id)},
                                                            {"message", message_name(packet.message)},
                                                            {"sent", packet_json(pair.first)},
                                                            {"received", packet_json(pair.second)}});
        if (!with_change)
            continue;
        const Change change = change_of(pair);
        each["fields"] = differences_json(change.fields);
        each["reason"] = change.text;
    }
    return json;
}

ordered_json side_json(const CapturedSide& side)
{
    return {
        {"capture", side.file}, {"packets", side.packets.size()}, {"bytes", side.bytes}, {"left_out", side.left_out}};
}

ordered_json comparison_json(const CapturedSide& sent, const CapturedSide& received, const Comparison& comparison)
{
    return {{"sent", side_json(sent)},
            {"received", side_json(received)},
            {"as_sent", comparison.as_sent},
            {"refused_by_mesh", pairs_json(comparison.refused_by_mesh, false)},
            {"missing", pairs_json(comparison.missing, false)},
            {"twice", pairs_json(comparison.twice, false)},
            {"changed", pairs_json(comparison.changed, true)},
            {"unexpected", pairs_json(comparison.unexpected, false)}};
}

void write_text(const std::string& file, const std::string& text) { write_bytes(file, text.data(), text.size()); }

class ComparisonText {
public:
    explicit ComparisonText(const GlanceChoices& choices) : choices_(choices), colours_(colours_for(choices.colour)) {}

    std::string of(const CapturedSide& sent, const CapturedSide& received, const Comparison& comparison)
    {
        for (const CapturedSide* side : {&sent, &received})
            line("{} {}: {}, {}{}\n", side == &sent ? "sent    " : "received", visible(side->file),
                 counted(side->packets.size(), "packet"), counted(side->bytes, "byte"),
                 side->left_out == 0
                     ? ""
                     : fmt::format("; {} {} left out", side->left_out, side == &sent ? "received" : "sent"));
        line("{}\n", colours_.good(fmt::format("{} arrived as sent", counted(comparison.as_sent, "packet"))));
        add_section(&Colours::odd, refused_by_mesh_text, comparison.refused_by_mesh);
        add_section(&Colours::bad, "did not arrive", comparison.missing);
        add_section(&Colours::bad, "arrived more often than sent", comparison.twice);
        add_section(&Colours::bad, "arrived changed", comparison.changed, pairing_remark);
        add_section(&Colours::bad, "arrived without having been sent", comparison.unexpected);
        return out_;
    }

private:
    template <class... Values>
    void line(fmt::format_string<Values...> format, Values&&... values)
    {
        fmt::format_to(std::back_inserter(out_), format, std::forward<Values>(values)...);
    }

    using Colour = std::string (Colours::*)(std::string_view) const;

    void add_section(Colour colour, const char* head, const std::vector<Pair>& pairs, const char* remark = "")
    {
        if (pairs.empty())
            return;
        line("\n{}\n{}{}", (colours_.*colour)(fmt::format("{} {}", counted(pairs.size(), "packet"), head)), remark,
             *remark == 0 ? "" : "\n");
        const std::size_t shown = choices_.whole ? pairs.size() : std::min(pairs.size(), most_pairs);
        for (std::size_t i = 0; i < shown; ++i)
            add_pair(pairs[i], *remark != 0);
        if (shown < pairs.size())
            line("    and {} more; --all lists them\n", pairs.size() - shown);
    }

    void add_pair(const Pair& pair, bool with_change)
    {
        const PacketCopy& packet = pair.first == nullptr ? *pair.second : *pair.first;
        line("    {}\n", colours_.bold(message_title(packet.id, packet.message)));
        for (const auto& [side, each] : {std::pair("sent    ", pair.first), std::pair("received", pair.second)})
            if (each != nullptr)
                line("        {} {:>6}, {}, {}{}\n", side, each->number, each->time,
                     counted(each->bytes.size(), "byte"),
                     each->is_refused_by_mesh() ? fmt::format(", result {}", *each->result) : "");
        if (!with_change)
            return;
        const Change change = change_of(pair);
        if (!change.text.empty())
            line("        {}\n", change.text);
        const std::size_t shown = choices_.whole ? change.fields.size() : std::min(change.fields.size(), most_fields);
        for (std::size_t i = 0; i < shown; ++i)
            line("        {}", difference_line(change.fields[i], colours_));
        if (shown < change.fields.size())
            line("        and {} more\n", counted(change.fields.size() - shown, "field"));
    }

    static constexpr std::size_t most_pairs = 10, most_fields = 5;

    const GlanceChoices& choices_;
    Colours colours_;
    std::string out_;
};

}   // namespace

int summarise_capture(const std::string& file, const GlanceChoices& choices)
{
    const Summary summary = summary_of(file);
    if (choices.json)
        print(json_text(summary_json(file, summary), 2) + "\n");
    else if (choices.html.empty())
        print(folded_for_terminal(summary_text(file, summary, colours_for(choices.colour)), 11));
    if (!choices.html.empty())
        write_text(choices.html, summary_html(summary_json(file, summary)));
    return summary.refused == 0 ? accepted : refused;
}

int compare_captures(const std::string& sent, const std::string& received, const GlanceChoices& choices)
{
    CapturedSide left = side_of(sent), right = side_of(received);
    if (has_any(left, true) && has_any(right, false)) {   // two processes that both send and receive
        leave_out(left, false);
        leave_out(right, true);
    }
    const Comparison comparison = comparison_of(left, right);
    if (choices.json || !choices.html.empty()) {
        const ordered_json json = comparison_json(left, right, comparison);
        if (choices.json)
            print(json_text(json, 2) + "\n");
        if (!choices.html.empty())
            write_text(choices.html, comparison_html(json));
    } else {
        print(folded_for_terminal(ComparisonText(choices).of(left, right, comparison), 12));
    }
    return comparison.is_same() ? accepted : refused;
}

PacketCopy message_packet(const std::string& file, u64 number)
{
    PacketCopy found;
    for_every_packet(file, number, [&](const PacketView& packet) {
        found = {packet.number,  packet.time,  packet.id,
                 packet.message, packet.fault, {packet.bytes.begin(), packet.bytes.end()},
                 packet.is_sent, packet.result};
    });
    if (found.number == 0)
        throw Fault(fmt::format("{} has no packet {}", file, number));
    if (found.fault != nullptr)
        throw Fault(fmt::format("{}: packet {} is no message: {}", file, number, found.fault));
    return found;
}

}   // namespace kesto::command
