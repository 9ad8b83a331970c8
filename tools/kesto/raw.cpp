// Analyses a byte string without a message: the structure of its root, tables and vtables, and the likely contents of
// the slots.

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>

#include "model/utf8.h"
#include "tools/kesto/quoting.h"
#include "tools/kesto/raw.h"
#include "tools/kesto/terminal.h"

namespace kesto::command {

namespace {

constexpr u32 most_tables = 200;
constexpr u32 most_depth = 8;
constexpr u32 most_elements = 4;   // shown per vector; more are tested
constexpr u32 most_elements_tested = 16;
constexpr u32 most_slots = 256;
constexpr std::size_t most_bytes_tried = 1 << 20;
constexpr u64 most_read_by_all = 96 << 20;
constexpr u32 most_text_tested = 1024;

struct Table {
    u32 position = 0;
    u32 vtable = 0;
    u32 length = 0;             // as stated in the vtable
    std::vector<u32> offsets;   // by slot, 0 if absent
};

class Guesser {
public:
    Guesser(std::span<const u8> bytes, std::vector<RawLine>& out) : bytes_(bytes), out_(out) {}

    bool root();

private:
    bool fits(u64 at, u64 count) const { return at + count <= bytes_.size(); }
    u32 number(u32 at, u32 width) const { return static_cast<u32>(model::get(bytes_.data() + at, width)); }
    bool open(u32 position, Table& table) const;
    bool is_written_alike(const Table& table) const;
    bool may_be_table(u64 position) const;
    bool may_be_vector(u64 body) const;
    bool may_be_text(u64 body) const;
    bool may_be_target(u64 target) const;
    void show_table(const Table& table, u32 depth);
    void show_slot(const Table& table, std::size_t slot, u32 room, u32 depth);
    void show_target(u32 target, u32 depth);
    void line(u32 depth, u64 position, std::string text) { out_.push_back({depth, position, std::move(text)}); }

    std::span<const u8> bytes_;
    std::vector<RawLine>& out_;
    u32 tables_ = 0;
};

// Rules that every reader applies to a table.
bool Guesser::open(u32 position, Table& table) const
{
    if (position < 4 || !fits(position, 4))
        return false;
    table.position = position;
    table.vtable = position - number(position, 4);
    if (table.vtable < 4 || !fits(table.vtable, 4))
        return false;
    const u32 length = number(table.vtable, 2);
    table.length = number(table.vtable + 2, 2);
    if (!fits(table.vtable, length))
        return false;
    for (u32 at = 4; at + 2 <= length && table.offsets.size() < most_slots; at += 2)
        table.offsets.push_back(number(table.vtable + at, 2));
    return true;
}

// Conventions of all writers. Without them almost any bytes would pass as a table.
bool Guesser::is_written_alike(const Table& table) const
{
    const bool inside = std::all_of(table.offsets.begin(), table.offsets.end(),
                                    [&](u32 offset) { return offset == 0 || (offset >= 4 && offset < table.length); });
    const u32 vtable_length = number(table.vtable, 2);
    return inside && table.length >= 4 && vtable_length >= 4 && vtable_length % 2 == 0 &&
           fits(table.position, table.length);
}

bool Guesser::may_be_table(u64 position) const
{
    Table table;
    return position <= bytes_.size() && open(static_cast<u32>(position), table) && is_written_alike(table);
}

bool Guesser::may_be_vector(u64 body) const
{
    if (!fits(body, 8))
        return false;
    const u32 count = number(static_cast<u32>(body), 4);
    if (count == 0 || count > (bytes_.size() - body - 4) / 4)
        return false;
    for (u32 i = 0; i < std::min(count, most_elements_tested); ++i) {
        const u32 cell = static_cast<u32>(body) + 4 + 4 * i;
        if (!may_be_table(u64{cell} + number(cell, 4)))
            return false;
    }
    return true;
}

bool Guesser::may_be_text(u64 body) const
{
    const u32 length = number(static_cast<u32>(body), 4);
    const u8* const text = bytes_.data() + body + 4;
    if (length == 0 || !fits(body + 4, u64{length} + 1) || text[length] != 0)
        return false;
    u32 tested = std::min(length, most_text_tested);   // as many slots may lead to one long text
    while (tested < length && tested != 0 && text[tested] >> 6 == 2)
        --tested;   // do not cut a character
    return model::is_utf8(text, tested) &&
           std::none_of(text, text + tested, [](u8 byte) { return byte < ' ' && byte != '\n' && byte != '\t'; });
}

bool Guesser::may_be_target(u64 target) const
{
    if (!fits(target, 4))
        return false;
    const u32 count = number(static_cast<u32>(target), 4);
    return may_be_table(target) || may_be_vector(target) || (count != 0 && fits(target + 4, count));
}

void Guesser::show_target(u32 target, u32 depth)
{
    const u32 count = number(target, 4);
    if (may_be_vector(target)) {
        line(depth, target, fmt::format("a vector of {}?", counted(count, "table")));
        for (u32 i = 0; i < std::min(count, most_elements); ++i) {
            const u32 cell = target + 4 + 4 * i;
            Table element;
            if (open(cell + number(cell, 4), element))
                show_table(element, depth + 1);
        }
        if (count > most_elements)
            line(depth + 1, target + 4 + 4 * most_elements, fmt::format("and {} more", count - most_elements));
    } else if (may_be_table(target)) {
        Table table;
        if (open(target, table))
            show_table(table, depth);
    } else if (may_be_text(target)) {
        const std::size_t shown = std::min<std::size_t>(count, 60);
        line(depth, target,
             fmt::format("text of {}? {}{}", counted(count, "byte"), quoted(bytes_.data() + target + 4, shown),
                         shown < count ? "..." : ""));
    } else {
        const std::size_t shown = std::min<std::size_t>(count, 16);
        line(depth, target,
             fmt::format("bytes or an array, count {}? {}{}", count, to_hex(bytes_.data() + target + 4, shown, " "),
                         shown < count ? " ..." : ""));
    }
}

// `room`: number of bytes up to the next field.
void Guesser::show_slot(const Table& table, std::size_t slot, u32 room, u32 depth)
{
    const u32 position = table.position + table.offsets[slot];
    const u32 width = room >= 4 ? 4 : room >= 2 ? 2 : 1;
    if (!fits(position, width))
        return line(depth, position, fmt::format("slot {}: past the end", slot));
    std::string text = fmt::format("slot {}: u{} {}", slot, 8 * width, number(position, width));
    if (room == 8 && fits(position, 8))
        text += fmt::format(", u64 {}", model::get(bytes_.data() + position, 8));
    const u64 target = width < 4 ? 0 : u64{position} + number(position, 4);
    const bool leads = target >= position + u64{4} && may_be_target(target);
    line(depth, position, leads ? text + fmt::format("; or a cell to {}", target) : text);
    if (leads)
        show_target(static_cast<u32>(target), depth + 1);
}

void Guesser::show_table(const Table& table, u32 depth)
{
    if (++tables_ > most_tables || depth > most_depth) {
        if (tables_ == most_tables + 1)
            line(depth, table.position, "and more tables, which are not shown");
        return;
    }
    line(depth, table.position,
         fmt::format("table: vtable at {}, {}, table length {}", table.vtable, counted(table.offsets.size(), "slot"),
                     table.length));
    std::vector<u32> ends = table.offsets;
    ends.push_back(table.length);
    std::sort(ends.begin(), ends.end());
    for (std::size_t k = 0; k < table.offsets.size(); ++k) {
        const u32 offset = table.offsets[k];
        if (offset == 0)
            continue;
        const auto end = std::upper_bound(ends.begin(), ends.end(), offset);
        show_slot(table, k, end == ends.end() ? 4 : *end - offset, depth + 1);
    }
}

bool Guesser::root()
{
    Table table;
    if (!fits(0, 4)) {
        line(0, 0, "less than the 4 bytes of a root");
        return false;
    }
    const u32 position = number(0, 4);
    line(0, 0, fmt::format("root: table at {}", position));
    if (!open(position, table)) {
        line(0, position, "no table: it or its vtable would leave the byte string");
        return false;
    }
    show_table(table, 0);
    return true;
}

std::string fitting_text(const Fitting& fitting)
{
    constexpr std::size_t most = 10;
    const std::string given_up =
        fitting.given_up == 0
            ? ""
            : fmt::format("{} not tried to the end: too much is read again\n", counted(fitting.given_up, "message"));
    if (!fitting.written_so.empty())
        return fmt::format("written just so for: {}\n{}", fmt::join(fitting.written_so, ", "), given_up);
    if (fitting.accepted.empty())
        return fitting.given_up == 0 ? "no message accepts it\n" : given_up;
    const auto end = fitting.accepted.begin() + static_cast<std::ptrdiff_t>(std::min(fitting.accepted.size(), most));
    return fmt::format("written just so for no message; {} accept it: {}{}\n{}", fitting.accepted.size(),
                       fmt::join(fitting.accepted.begin(), end, ", "), end == fitting.accepted.end() ? "" : ", ...",
                       given_up);
}

}   // namespace

Fitting fitting_messages(std::span<const u8> bytes, u64 most_read_by_each)
{
    Fitting fitting;
    for (const Message& message : catalogue().messages) {
        if (bytes.size() > most_bytes_tried)
            break;
        const u64 most_read = std::min(most_read_by_each, most_read_by_all - fitting.bytes_read);
        const Explanation explanation = explain(message, bytes, {.most_ranges = 0, .most_read = most_read});
        fitting.bytes_read += std::min(explanation.bytes_read, most_read);
        if (explanation.given_up) {
            ++fitting.given_up;
            continue;
        }
        const Origin origin = explanation.origin;
        if (origin == Origin::compact || origin == Origin::fixed)
            fitting.written_so.push_back(message.name);
        if (!explanation.refused)
            fitting.accepted.push_back(message.name);
    }
    return fitting;
}

RawView look_at(std::span<const u8> bytes)
{
    RawView view;
    view.length = bytes.size();
    view.packet_head = packet_head_of(bytes);
    if (view.packet_head)
        bytes = bytes.subspan(PacketHead::length);
    view.has_root_table = Guesser(bytes, view.lines).root();
    if (bytes.size() <= most_bytes_tried)
        view.fitting = fitting_messages(bytes, most_read_by_all);
    return view;
}

std::string raw_text(const RawView& view, std::size_t width)
{
    std::string out = fmt::format("{}\n\n", counted(view.length, "byte"));
    if (view.packet_head)
        out += folded(packet_head_text(*view.packet_head) + ", and positions count from there\n\n", width, 4);
    for (const RawLine& line : view.lines)
        out += folded(fmt::format("{:>6}  {:{}}{}\n", line.position, "", 2 * line.depth, line.text), width,
                      8 + 2 * line.depth + 4);
    out += "\n";
    if (view.fitting)
        out += folded(fitting_text(*view.fitting), width, 4);
    return out;
}

nlohmann::ordered_json raw_json(const RawView& view)
{
    nlohmann::ordered_json json;
    json["length"] = view.length;
    json["packet_head"] = view.packet_head ? nlohmann::ordered_json{{"message", view.packet_head->message->name},
                                                                    {"stated", view.packet_head->stated},
                                                                    {"present", view.packet_head->present}}
                                           : nlohmann::ordered_json();
    json["root_table"] = view.has_root_table;
    json["lines"] = nlohmann::ordered_json::array();
    for (const RawLine& line : view.lines)
        json["lines"].push_back({{"position", line.position}, {"depth", line.depth}, {"text", line.text}});
    if (view.fitting) {
        json["written_for"] = view.fitting->written_so;
        json["accepted_by"] = view.fitting->accepted;
        json["given_up"] = view.fitting->given_up;
    }
    return json;
}

int explain_raw(std::span<const u8> bytes, bool json)
{
    const RawView view = look_at(bytes);
    print(json ? json_text(raw_json(view), 2) + "\n" : raw_text(view, terminal_width()));
    return view.has_root_table ? accepted : refused;
}

}   // namespace kesto::command
