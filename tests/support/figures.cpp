#include "tests/support/figures.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "model/generate.h"

namespace kesto::tests {
namespace {

using namespace model;

u32 number(const std::string& text) { return static_cast<u32>(std::strtoul(text.c_str(), nullptr, 0)); }

// The bytes that are compared with a figure, and the fault found in them.
struct Subject {
    const Record& record;
    const Bytes& bytes;
    std::string faults;

    void expect(const std::string& what, u64 wanted, u64 found)
    {
        if (wanted != found)
            faults += what + ": expected " + std::to_string(wanted) + ", found " + std::to_string(found) + "\n";
    }

    bool contains(const std::string& what, std::size_t position, std::size_t length)
    {
        if (position + length <= bytes.size())
            return true;
        faults += what + ": beyond the end\n";
        return false;
    }

    u32 table() const { return get32(&bytes[0]); }
    const u8* vtable() const { return &bytes[table() - get32(&bytes[table()])]; }
    u32 offset(u32 slot) const { return get16(vtable() + 4 + 2 * slot); }
};

void check_hex(const Figure& figure, Subject& subject)
{
    std::string hex;
    for (const std::string& group : figure.arguments)
        hex += group;
    subject.expect("length", hex.size() / 2, subject.bytes.size());
    for (std::size_t i = 0; i < std::min(hex.size() / 2, subject.bytes.size()); ++i) {
        const std::string pair = hex.substr(2 * i, 2);
        if (pair != "__")
            subject.expect("byte " + std::to_string(i), std::strtoul(pair.c_str(), nullptr, 16), subject.bytes[i]);
    }
}

void check_number(const std::string& argument, Subject& subject)
{
    unsigned position = 0, width = 0;
    long long value = 0;
    if (std::sscanf(argument.c_str(), "%u/%u=%lli", &position, &width, &value) != 3)
        subject.faults += argument + ": not a number at a position\n";
    else if (subject.contains(argument, position, width))
        subject.expect(argument, static_cast<u64>(value) & ((u64{1} << (8 * width)) - 1),
                       get(&subject.bytes[position], width));
}

// The content as stored on the wire.
Bytes content_of(const Slot& slot, const Field& field)
{
    Bytes content = field.octets;
    if (slot.kind == Kind::scalar)
        append(content, field.number, slot.width);
    for (const u32 word : field.words)
        append(content, word, 4);
    return content;
}

void check_field(const std::string& argument, Subject& subject)
{
    const Record* holder = &subject.record;
    char* rest = nullptr;
    unsigned long k = std::strtoul(argument.c_str(), &rest, 10);
    for (; *rest == '.'; k = std::strtoul(rest + 1, &rest, 10))
        holder = &holder->fields[k].records[0];
    const u32 position = number(rest + 1);   // after the @
    const Bytes content = content_of(holder->message->slots[k], holder->fields[k]);
    if (subject.contains(argument, position, content.size()))
        subject.expect(argument, 1, std::equal(content.begin(), content.end(), &subject.bytes[position]));
}

void check_order(const Figure& figure, Subject& subject)
{
    u32 last = 0;
    for (const std::string& argument : figure.arguments) {
        const u32 cell = subject.table() + subject.offset(number(argument));
        const u32 target = cell + get32(&subject.bytes[cell]);
        subject.expect("slot " + argument + " after the one before it", 1, target > last);
        last = target;
    }
}

// ---- lines

std::string next_word(std::string_view& rest)
{
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    const std::string word(rest.substr(0, rest.find(' ')));
    rest.remove_prefix(word.size());
    return word;
}

bool parse_fill(std::string_view& rest, Figure& figure, std::string& error)
{
    if (rest.starts_with(" {")) {
        rest.remove_prefix(1);
        return parse_record(*figure.message, rest, figure.records.emplace_back(), error);
    }
    const std::string fill = next_word(rest);
    if (fill == "zero" || fill == "any")
        figure.records.push_back(zero_record(*figure.message));
    Random random(figure.line);
    for (int i = 0; i < 3 && (fill == "full" || fill == "any"); ++i)
        figure.records.push_back(random_record(*figure.message, Density::full, random));
    return !figure.records.empty() || (error = "expected a fill", false);
}

bool parse_figure(std::string_view rest, Figure& figure, std::string& error)
{
    figure.kind = next_word(rest);
    const std::string name = next_word(rest);
    figure.message = expected_catalogue().find(name);
    if (figure.message == nullptr)
        return error = "no message " + name, false;
    const std::string form = next_word(rest);
    if (form != "compact" && form != "fixed")
        return error = "expected a form", false;
    figure.fixed_form = form == "fixed";
    if (!parse_fill(rest, figure, error))
        return false;
    for (std::string word = next_word(rest); !word.empty(); word = next_word(rest))
        figure.arguments.push_back(word);
    return !figure.arguments.empty() || (error = "expected arguments", false);
}

}   // namespace

bool load_figures(std::vector<Figure>& figures, std::string& error)
{
    std::istringstream lines(read_file(KESTO_TEST_DATA "/figures.txt"));
    std::string line;
    for (unsigned count = 1; std::getline(lines, line); ++count) {
        if (line.empty() || line[0] == '#')
            continue;
        Figure& figure = figures.emplace_back();
        figure.line = count;
        if (!parse_figure(line, figure, error)) {
            if (figure.message == nullptr && !all_modules_built) {
                figures.pop_back();
                continue;
            }
            return error = figure.where() + ": " + error, false;
        }
    }
    return !figures.empty();
}

std::string fault_in_bytes(const Figure& figure, const Record& record, const Bytes& written, u64 reported)
{
    Subject subject{record, written, {}};
    if (figure.kind == "size") {
        subject.expect("size", number(figure.arguments[0]), written.size());
        subject.expect("reported size", number(figure.arguments.back()), reported);
    } else if (figure.kind == "bytes") {
        check_hex(figure, subject);
    } else if (figure.kind == "order") {
        check_order(figure, subject);
    } else if (figure.kind == "offsets") {
        subject.expect("vtable", 4 + 2 * figure.arguments.size(), get16(subject.vtable()));
        for (u32 k = 0; k < figure.arguments.size(); ++k)
            subject.expect("slot " + std::to_string(k), number(figure.arguments[k]), subject.offset(k));
    } else {
        for (const std::string& argument : figure.arguments) {
            if (figure.kind == "at")
                check_number(argument, subject);
            else if (figure.kind == "field")
                check_field(argument, subject);
            else if (figure.kind == "offset")
                subject.expect(argument, number(argument.substr(argument.find('@') + 1)),
                               subject.offset(number(argument)));
            else
                subject.faults = "unknown kind " + figure.kind;
        }
    }
    return subject.faults;
}

std::string read_file(const std::string& path)
{
    // Does not use a stream, as the memory sanitizer does not track writes by streams.
    std::string content;
    if (std::FILE* const file = std::fopen(path.c_str(), "rb")) {
        for (int c; (c = std::fgetc(file)) != EOF;)
            content += static_cast<char>(c);
        std::fclose(file);
    }
    return content;
}

}   // namespace kesto::tests
