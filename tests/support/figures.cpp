#include "tests/support/figures.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "reference/encode.h"
#include "reference/generate.h"

namespace kesto::tests
{
namespace
{

using namespace reference;

using Arguments = std::vector<std::string>;

std::string expected(const std::string& what, u64 wanted, u64 found)
{
    if (wanted == found)
        return {};
    return what + ": " + std::to_string(wanted) + " expected, " + std::to_string(found) + " found";
}

u64 number(const std::string& text)
{
    return std::strtoull(text.c_str(), nullptr, 0);
}
u32 index(const std::string& text)
{
    return static_cast<u32>(number(text));
}

// "12/4=-5" cut at any of the marks.
std::vector<std::string> cut(const std::string& text, const char* marks)
{
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t end = 0; end != std::string::npos; start = end + 1) {
        end = text.find_first_of(marks, start);
        parts.push_back(text.substr(start, end == std::string::npos ? end : end - start));
        if (end == std::string::npos)
            break;
    }
    return parts;
}

std::string kind_text(const Slot& slot)
{
    if (slot.kind == Kind::scalar)
        return "u" + std::to_string(8 * slot.width);
    if (slot.kind == Kind::array)
        return "u" + std::to_string(8 * slot.width) + "[" + std::to_string(slot.count) + "]";
    if (slot.kind == Kind::string)
        return "string";
    if (slot.kind == Kind::bytes)
        return "bytes";
    return (slot.kind == Kind::table ? "table:" : "vector:") + slot.nested->name;
}

// ---- byte strings

u32 table_at(const Bytes& bytes)
{
    return get32(&bytes[0]);
}
u32 vtable_of(const Bytes& bytes, u32 table)
{
    return table - get32(&bytes[table]);
}
u32 offset_of(const Bytes& bytes, u32 table, u32 slot)
{
    return get16(&bytes[vtable_of(bytes, table) + 4 + 2 * slot]);
}

std::string check_hex(const Figure& figure, const Bytes& bytes)
{
    std::string hex;
    for (const std::string& group : figure.arguments)
        hex += group;
    std::string wrong = expected("length", hex.size() / 2, bytes.size());
    for (std::size_t i = 0; wrong.empty() && i < bytes.size(); ++i) {
        const std::string pair = hex.substr(2 * i, 2);
        if (pair == "__")
            continue;
        wrong = expected("byte " + std::to_string(i), std::strtoul(pair.c_str(), nullptr, 16), bytes[i]);
    }
    return wrong;
}

std::string check_numbers(const Figure& figure, const Bytes& bytes)
{
    for (const std::string& argument : figure.arguments) {
        const std::vector<std::string> parts = cut(argument, "/=");
        const u32 position = index(parts[0]);
        const u32 width = index(parts[1]);
        const u64 wanted = number(parts[2]) & ((u64{1} << (8 * width)) - 1);
        if (position + width > bytes.size())
            return argument + ": beyond the end";
        const std::string wrong = expected(argument, wanted, get(&bytes[position], width));
        if (!wrong.empty())
            return wrong;
    }
    return {};
}

std::string check_offsets(const Figure& figure, const Bytes& bytes)
{
    const u32 table = table_at(bytes);
    std::string wrong = expected("slots", figure.message->slots.size(), figure.arguments.size());
    if (wrong.empty())
        wrong = expected("vtable", 4 + 2 * figure.arguments.size(), get16(&bytes[vtable_of(bytes, table)]));
    for (u32 k = 0; wrong.empty() && k < figure.arguments.size(); ++k) {
        wrong = expected("slot " + std::to_string(k), number(figure.arguments[k]), offset_of(bytes, table, k));
    }
    return wrong;
}

std::string check_some_offsets(const Figure& figure, const Bytes& bytes)
{
    for (const std::string& argument : figure.arguments) {
        const std::vector<std::string> parts = cut(argument, "@");
        const std::string wrong =
            expected(argument, number(parts[1]), offset_of(bytes, table_at(bytes), index(parts[0])));
        if (!wrong.empty())
            return wrong;
    }
    return {};
}

// The content as it stands on the wire.
Bytes content_of(const Slot& slot, const Field& field)
{
    Bytes content = field.octets;
    if (slot.kind == Kind::scalar)
        append(content, field.number, slot.width);
    for (const u32 word : field.words)
        append(content, word, 4);
    return content;
}

std::string check_fields(const Figure& figure, const Record& record, const Bytes& bytes)
{
    for (const std::string& argument : figure.arguments) {
        const std::vector<std::string> parts = cut(argument, "@");
        const Record* holder = &record;
        const std::vector<std::string> path = cut(parts[0], ".");
        for (std::size_t i = 0; i + 1 < path.size(); ++i)
            holder = &holder->fields[index(path[i])].records[0];
        const u32 k = index(path.back());
        const Bytes content = content_of(holder->message->slots[k], holder->fields[k]);
        const u32 position = index(parts[1]);
        if (position + content.size() > bytes.size())
            return argument + ": beyond the end";
        if (!std::equal(content.begin(), content.end(), bytes.begin() + static_cast<std::ptrdiff_t>(position))) {
            return argument + ": other content";
        }
    }
    return {};
}

std::string check_order(const Figure& figure, const Bytes& bytes)
{
    u32 last = 0;
    for (const std::string& argument : figure.arguments) {
        const u32 cell = table_at(bytes) + offset_of(bytes, table_at(bytes), index(argument));
        const u32 target = cell + get32(&bytes[cell]);
        if (target <= last)
            return "slot " + argument + " leads too far forward";
        last = target;
    }
    return {};
}

std::string check_size(const Figure& figure, const Bytes& bytes, u64 reported)
{
    const std::string wrong = expected("size", number(figure.arguments[0]), bytes.size());
    return wrong.empty() ? expected("reported size", number(figure.arguments.back()), reported) : wrong;
}

// ---- messages

std::string check_element(const Figure& figure)
{
    Record record = zero_record(*figure.message);
    if (figure.fill == Figure::Fill::given)
        record = figure.given;
    return expected("element", number(figure.arguments[0]), exact_size(record) - 4);
}

std::string check_run(const Figure& figure)
{
    const std::vector<Slot>& slots = figure.message->slots;
    std::size_t k = index(figure.arguments[0]);
    for (std::size_t i = 1; i < figure.arguments.size(); ++i, ++k) {
        if (figure.arguments[i] == "...")
            return k < slots.size() ? "" : "no slot follows";
        if (k >= slots.size() || kind_text(slots[k]) != figure.arguments[i])
            return "slot " + std::to_string(k);
    }
    return k == slots.size() ? "" : "more slots follow";
}

std::string check_alike(const Figure& figure, const Catalogue& catalogue)
{
    const Message* const other = catalogue.find(figure.arguments[2]);
    if (other == nullptr)
        return "no such message";
    const u32 first = index(figure.arguments[0]);
    const u32 at = index(figure.arguments[3]);
    for (u32 k = first; k <= index(figure.arguments[1]); ++k) {
        if (k >= figure.message->slots.size() || at + k - first >= other->slots.size())
            return "too few slots";
        if (kind_text(figure.message->slots[k]) != kind_text(other->slots[at + k - first])) {
            return "slot " + std::to_string(k);
        }
    }
    return {};
}

std::string check_same_slots(const Figure& figure, const Catalogue& catalogue)
{
    for (const std::string& name : figure.arguments) {
        const Message* const other = catalogue.find(name);
        if (other == nullptr || other->slots.size() != figure.message->slots.size())
            return name;
        for (std::size_t k = 0; k < other->slots.size(); ++k) {
            if (kind_text(other->slots[k]) != kind_text(figure.message->slots[k]))
                return name;
        }
    }
    return {};
}

bool is_u16_and(const Message& message, const std::string& second)
{
    return message.slots.size() == 2 && kind_text(message.slots[0]) == "u16" && kind_text(message.slots[1]) == second;
}

std::string check_single_table(const Figure& figure, const Catalogue& catalogue)
{
    const Message* const base = catalogue.find(figure.arguments[0]);
    if (base == nullptr || !is_u16_and(*figure.message, "table:" + base->name))
        return "slots";
    std::string wrong = expected("length", base->fixed_length + 24, figure.message->fixed_length);
    Random random(1);
    const Record record = random_record(*figure.message, Density::full, random);
    const Bytes form = fixed_form(record);
    const u32 length = position_of_end(form);
    const Bytes nested = fixed_form(record.fields[1].records[0]);
    if (wrong.empty())
        wrong = expected("root", 4, get32(&form[0]));
    if (wrong.empty())
        wrong = expected("vtable offset", 0U - (length - 16), get32(&form[4]));
    if (wrong.empty())
        wrong = expected("f0", record.fields[0].number, get16(&form[8]));
    if (wrong.empty() && !std::equal(nested.begin(), nested.end(), form.begin() + 10))
        wrong = "nested form";
    constexpr u32 words = 4;
    const u32 vtable[words] = {8, length - 18, 4, 6};
    for (u32 i = 0; wrong.empty() && i < words; ++i) {
        wrong = expected("vtable word " + std::to_string(i), vtable[i], get16(&form[length - 12 + 2 * i]));
    }
    return wrong;
}

// A gap byte is one that may be anything; every other byte of a form is used by some field, cell or word.
void mark_used(const Message& message, u32 start, std::vector<bool>& used)
{
    const u32 table = start + 4;
    const auto mark = [&used](u32 from, u32 length) {
        std::fill_n(used.begin() + static_cast<std::ptrdiff_t>(from), length, true);
    };
    mark(start, 8);
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        const Slot& slot = message.slots[k];
        const u32 at = table + message.fixed_offsets[k];
        if (slot.kind == Kind::scalar)
            mark(at, slot.width);
        if (slot.kind == Kind::array)
            mark(at, 8 + slot.width * slot.count);
        if (slot.kind == Kind::table)
            mark_used(*slot.nested, at, used);
    }
    mark(table + (message.fixed_table_length + 3) / 4 * 4, message.vtable_length);
}

std::vector<bool> used_bytes(const Message& message)
{
    std::vector<bool> used(message.fixed_length, false);
    mark_used(message, 0, used);
    return used;
}

std::string check_gaps(const Figure& figure)
{
    std::vector<bool> used = used_bytes(*figure.message);
    for (const std::string& argument : figure.arguments) {
        if (argument == "none")
            continue;
        const std::vector<std::string> parts = cut(argument, "+");
        const u32 end = index(parts[0]) + index(parts[1]);
        for (u32 at = index(parts[0]); at < end; ++at) {
            if (at >= used.size() || used[at])
                return argument + ": not a gap";
            used[at] = true;
        }
    }
    return expected("further gap bytes", 0, static_cast<u64>(std::count(used.begin(), used.end(), false)));
}

// ---- lines

bool parse_fill(std::string_view& rest, Figure& figure, std::string& error)
{
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    if (rest.starts_with("{")) {
        figure.fill = Figure::Fill::given;
        return parse_record(*figure.message, rest, figure.given, error);
    }
    const std::string word(rest.substr(0, rest.find(' ')));
    rest.remove_prefix(word.size());
    if (word == "full")
        figure.fill = Figure::Fill::full;
    if (word == "any")
        figure.fill = Figure::Fill::any;
    return word == "zero" || word == "full" || word == "any" || (error = "a fill is needed", false);
}

std::string take_word(std::string_view& rest)
{
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    const std::string word(rest.substr(0, rest.find(' ')));
    rest.remove_prefix(word.size());
    return word;
}

bool parse_figure(const Catalogue& catalogue, std::string_view rest, Figure& figure, std::string& error)
{
    figure.kind = take_word(rest);
    const std::string name = take_word(rest);
    figure.message = catalogue.find(name);
    if (figure.message == nullptr)
        return error = "no message " + name, false;
    if (figure.about_bytes()) {
        const std::string form = take_word(rest);
        if (form != "compact" && form != "fixed")
            return error = "a form is needed", false;
        figure.fixed_form = form == "fixed";
    }
    if ((figure.about_bytes() || figure.kind == "element") && !parse_fill(rest, figure, error))
        return false;
    for (std::string word = take_word(rest); !word.empty(); word = take_word(rest))
        figure.arguments.push_back(word);
    return !figure.arguments.empty() || (error = "arguments are needed", false);
}

}   // namespace

bool Figure::about_bytes() const
{
    const char* const kinds[] = {"size", "bytes", "at", "offsets", "offset", "field", "order"};
    return std::find(std::begin(kinds), std::end(kinds), kind) != std::end(kinds);
}

std::vector<Record> Figure::records() const
{
    std::vector<Record> records;
    if (fill == Fill::given)
        records.push_back(given);
    if (fill == Fill::zero || fill == Fill::any)
        records.push_back(zero_record(*message));
    if (fill == Fill::full || fill == Fill::any) {
        Random random(line);
        for (int i = 0; i < 3; ++i)
            records.push_back(random_record(*message, Density::full, random));
    }
    return records;
}

std::string read_file(const std::string& path)
{
    // Not a stream: the memory sanitizer does not know what those have written.
    std::string content;
    if (std::FILE* const file = std::fopen(path.c_str(), "rb")) {
        for (int c; (c = std::fgetc(file)) != EOF;)
            content += static_cast<char>(c);
        std::fclose(file);
    }
    return content;
}

bool load_catalogue(Catalogue& catalogue, std::string& error)
{
    return catalogue.add(read_file(KESTO_TEST_DATA "/messages.txt"), error);
}

bool load_figures(const Catalogue& catalogue, std::vector<Figure>& figures, std::string& error)
{
    std::istringstream lines(read_file(KESTO_TEST_DATA "/figures.txt"));
    std::string line;
    for (unsigned count = 1; std::getline(lines, line); ++count) {
        if (line.empty() || line[0] == '#')
            continue;
        Figure& figure = figures.emplace_back();
        figure.line = count;
        if (!parse_figure(catalogue, line, figure, error))
            return error = figure.where() + ": " + error, false;
    }
    return !figures.empty();
}

const Catalogue& transcribed()
{
    static const Catalogue catalogue = [] {
        Catalogue read;
        std::string error;
        if (!load_catalogue(read, error)) {
            std::fprintf(stderr, "%s\n", error.c_str());
            std::exit(1);
        }
        return read;
    }();
    return catalogue;
}

std::string fault_in_bytes(const Figure& figure, const Record& record, const Bytes& written, u64 reported)
{
    if (figure.kind == "size")
        return check_size(figure, written, reported);
    if (figure.kind == "bytes")
        return check_hex(figure, written);
    if (figure.kind == "at")
        return check_numbers(figure, written);
    if (figure.kind == "offsets")
        return check_offsets(figure, written);
    if (figure.kind == "offset")
        return check_some_offsets(figure, written);
    if (figure.kind == "field")
        return check_fields(figure, record, written);
    if (figure.kind == "order")
        return check_order(figure, written);
    return "unknown kind " + figure.kind;
}

std::string fault_in_catalogue(const Figure& figure, const Catalogue& catalogue)
{
    const u64 first = number(figure.arguments[0]);
    constexpr u32 send_item = 12;
    constexpr u32 pool = 65536;
    const Message& message = *figure.message;
    if (figure.kind == "batch")
        return expected("batch", first, message.fixed_length + send_item);
    if (figure.kind == "scalars")
        return expected("scalars", first, message.scalar_bytes);
    if (figure.kind == "slot_count")
        return expected("slots", first, message.slots.size());
    if (figure.kind == "pool")
        return expected("pool", first, pool / message.compact_zero);
    if (figure.kind == "gaps") {
        const std::vector<bool> used = used_bytes(message);
        return expected("gap bytes", first, static_cast<u64>(std::count(used.begin(), used.end(), false)));
    }
    if (figure.kind == "gap")
        return check_gaps(figure);
    if (figure.kind == "element")
        return check_element(figure);
    if (figure.kind == "run")
        return check_run(figure);
    if (figure.kind == "alike")
        return check_alike(figure, catalogue);
    if (figure.kind == "same_slots")
        return check_same_slots(figure, catalogue);
    if (figure.kind == "rows")
        return is_u16_and(message, "vector:" + figure.arguments[0]) ? "" : "slots";
    if (figure.kind == "single_table")
        return check_single_table(figure, catalogue);
    return "unknown kind " + figure.kind;
}

}   // namespace kesto::tests
