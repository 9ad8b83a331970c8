// Prints the message reference, docs/messages/<module>.md, from the catalogue. It is readable as plain text, and code
// hosts render its tables and links.
//
//   print_messages FOLDER    writes FOLDER/<module>.md for every module, FOLDER/README.md and FOLDER/overview.svg

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "tools/families.h"
#include "tools/overview.h"
#include "tools/print_files.h"

using namespace kesto::model;
using namespace kesto::tools;

namespace {

constexpr std::size_t page_width = 120;

// ---- tables with aligned source text ----

struct Column {
    std::string title;
    bool numbers = false;   // right-aligned
};

using Row = std::vector<std::string>;

void print_row(std::FILE* file, const std::vector<Column>& columns, const std::vector<std::size_t>& widths,
               const Row& row)
{
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const int width = static_cast<int>(widths[i]);
        std::fprintf(file, columns[i].numbers ? "| %*s " : "| %-*s ", width, row[i].c_str());
    }
    std::fputs("|\n", file);
}

void print_table(std::FILE* file, const std::vector<Column>& columns, const std::vector<Row>& rows)
{
    std::vector<std::size_t> widths;
    Row titles, rules;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        std::size_t width = columns[i].title.size();
        for (const Row& row : rows)
            width = std::max(width, row[i].size());
        width = std::max<std::size_t>(width, 2);
        widths.push_back(width);
        titles.push_back(columns[i].title);
        rules.push_back(columns[i].numbers ? std::string(width - 1, '-') + ":" : std::string(width, '-'));
    }
    print_row(file, columns, widths, titles);
    print_row(file, columns, widths, rules);
    for (const Row& row : rows)
        print_row(file, columns, widths, row);
}

// ---- facts about a message ----

// Equal for messages whose records and byte strings have the same structure, including all nested messages.
std::string shape(const Message& message)
{
    std::string text;
    for (const Slot& slot : message.slots) {
        if (slot.nested == nullptr)
            text += slot_text(slot) + " ";
        else
            text += (slot.kind == Kind::vector ? "vector"
                     : slot.lenient            ? "lenient table"
                                               : "table") +
                    std::string("(") + shape(*slot.nested) + ") ";
    }
    return text;
}

struct Relations {
    std::map<std::string, std::vector<const Message*>> by_shape;
    std::map<const Message*, std::vector<const Message*>> users;   // the messages that contain this one
};

const Relations& relations()
{
    static const Relations found = [] {
        Relations all;
        for (const Module& module : catalogue().modules)
            for (const Message* message : module.messages) {
                all.by_shape[shape(*message)].push_back(message);
                std::set<const Message*> nested;
                for (const Slot& slot : message->slots)
                    if (slot.nested != nullptr && nested.insert(slot.nested).second)
                        all.users[slot.nested].push_back(message);
            }
        return all;
    }();
    return found;
}

std::string id_text(const Message& message)
{
    char text[11];
    std::snprintf(text, sizeof text, "0x%08" PRIx32, message.id);
    return text;
}

std::string form_text(const Message& message)
{
    return message.owns_blocks ? "compact" : "fixed " + std::to_string(message.fixed_length);
}

// A name that links to its message on a code host; the link targets are at the end of the page.
std::string link(const Message& message) { return "[" + message.name + "]"; }

void print_links(std::FILE* file, const char* what, const std::vector<const Message*>& messages, const Message& self)
{
    std::string line = std::string("- ") + what;
    bool any = false;
    for (const Message* message : messages) {
        if (message == &self)
            continue;
        const std::string item = (any ? ", " : " ") + link(*message);
        if (line.size() + item.size() + 1 > page_width) {
            std::fprintf(file, "%s,\n", line.c_str());
            line = "  " + link(*message);
        } else {
            line += item;
        }
        any = true;
    }
    if (any)
        std::fprintf(file, "%s.\n", line.c_str());
}

// The fields, in as many side-by-side columns as fit and are worthwhile.
void print_fields(std::FILE* file, const Message& message)
{
    const RecordLayout on_32 = message.layout(4), on_64 = message.layout(8);
    const bool same = on_32.offsets == on_64.offsets;

    std::vector<Column> group{{"Field"}, {"Slot"}, {same ? "At" : "At/32", true}};
    if (!same)
        group.push_back({"At/64", true});
    std::vector<Row> fields;
    std::vector<std::size_t> widths(group.size());
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        const Slot& slot = message.slots[k];
        Row row{slot.field, slot_text(slot), std::to_string(on_32.offsets[k])};
        if (!same)
            row.push_back(std::to_string(on_64.offsets[k]));
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max({widths[i], row[i].size(), group[i].title.size()});
        fields.push_back(row);
    }

    std::size_t group_width = 0;
    for (const std::size_t width : widths)
        group_width += width + 3;
    constexpr std::size_t rows_worth_it = 8;
    const std::size_t groups =
        std::clamp<std::size_t>((page_width - 1) / group_width, 1, (fields.size() - 1) / rows_worth_it + 1);
    const std::size_t height = (fields.size() + groups - 1) / groups;

    std::vector<Column> columns;
    std::vector<Row> rows(height);
    for (std::size_t g = 0; g * height < fields.size(); ++g) {
        columns.insert(columns.end(), group.begin(), group.end());
        for (std::size_t i = 0; i < height; ++i) {
            const Row row = g * height + i < fields.size() ? fields[g * height + i] : Row(group.size());
            rows[i].insert(rows[i].end(), row.begin(), row.end());
        }
    }
    print_table(file, columns, rows);
}

void print_message(std::FILE* file, const Message& message)
{
    std::fprintf(file, "\n## %s\n\n", message.name.c_str());
    std::fprintf(file, "- Id %s. ", id_text(message).c_str());
    if (message.owns_blocks)
        std::fprintf(file, "Compact form of %u bytes and more. ", message.compact_zero);
    else
        std::fprintf(file, "Fixed form of %u bytes, compact form of %u to %u. ", message.fixed_length,
                     message.compact_zero, message.compact_full);
    const std::uint32_t on_32 = message.layout(4).size, on_64 = message.layout(8).size;
    if (on_32 == on_64)
        std::fprintf(file, "Record of %u bytes.\n", on_32);
    else
        std::fprintf(file, "Record of %u bytes, %u with 64-bit pointers.\n", on_32, on_64);
    std::string mark = "- ";
    for (const std::string& line : wrapped(role_text(message, link), page_width - 2)) {
        if (!line.empty())
            std::fprintf(file, "%s%s\n", mark.c_str(), line.c_str());
        mark = "  ";
    }
    for (const Slot& slot : message.slots)
        if (slot.lenient)
            std::fprintf(file, "- When the table %s is refused, the message is not: the read goes on after it.\n",
                         slot.field.c_str());
    print_links(file, "Same layout:", relations().by_shape.at(shape(message)), message);
    if (const auto users = relations().users.find(&message); users != relations().users.end())
        print_links(file, "Nested in:", users->second, message);
    std::fputs("\n", file);
    print_fields(file, message);
}

// ---- families ----

void print_paragraph(std::FILE* file, const std::string& text)
{
    for (const std::string& line : wrapped(text, page_width))
        std::fprintf(file, "%s\n", line.c_str());
}

std::string member_text(const Message* message) { return message == nullptr ? "" : link(*message); }

// The purpose, and a line for each root, in columns if there are keys or lists.
void print_family(std::FILE* file, const Family& family)
{
    std::fprintf(file, "\n### %s\n\n", family.title);
    print_paragraph(file, family.purpose);
    std::vector<Row> rows;
    bool alone = true;
    for (const char* root : family.roots) {
        const Members members = members_of(root);
        rows.push_back({member_text(members.row), member_text(members.key), member_text(members.update),
                        member_text(members.remove)});
        alone = alone && members.key == nullptr && members.update == nullptr && members.remove == nullptr;
    }
    std::fputs("\n", file);
    if (!alone)
        print_table(file, {{"Row"}, {"Key"}, {"Update"}, {"Delete"}}, rows);
    for (std::size_t i = 0; alone && i < rows.size(); ++i)
        std::fprintf(file, "- %s\n", rows[i][0].c_str());
}

// ---- the page ----

// `@` is replaced by the module name.
constexpr const char head[] = R"(# Messages of @

Printed from `messages/@/@.def` by `./run headers`; do not edit. C declarations: `include/@.h`.
The format of the bytes: [wire-format.md](../wire-format.md).

- **Fixed form**: its length, the same for every record. A message that has one is sent in it.
- **Compact form**: what `X__pack` writes, and what is sent where there is no fixed form. The first length is that of an
  all-zero record, the second that of a record without a zero scalar. Texts, blocks and vectors add to the first.
- **At**: where the field stands in the record; **At/32** and **At/64** where the width of pointers makes a difference.
- **Same layout**: messages whose records and byte strings look alike all the way down. Only the id tells them apart.
- **Nested in**: messages that have this one as a table or as the elements of a vector.

## What they are for

A row, its key, its update and its delete are the messages X, X_key, X_update and X_delete.
)";

void print_page(std::FILE* file, const Module& module)
{
    for (const char* at = head; *at != '\0'; ++at) {
        if (*at == '@')
            std::fputs(module.name.c_str(), file);
        else
            std::fputc(*at, file);
    }
    for (const Family& family : families())
        if (module.name == family.module)
            print_family(file, family);
    std::fputs(
        "\n## Contents\n\nIn the order of registration. Zero: length of an all-zero record's compact form. Rec/32, "
        "Rec/64: size of the record.\n\n",
        file);
    std::vector<Row> contents;
    std::set<const Message*> elsewhere;
    for (const Message* message : module.messages) {
        contents.push_back({link(*message), id_text(*message), form_text(*message),
                            std::to_string(message->compact_zero), std::to_string(message->slots.size()),
                            std::to_string(message->layout(4).size), std::to_string(message->layout(8).size)});
        for (const Message* other : relations().by_shape.at(shape(*message)))
            if (other->module != module.name)
                elsewhere.insert(other);
        if (const Message* const table = mirrored(*message))
            elsewhere.insert(table);
    }
    print_table(file,
                {{"Message"}, {"Id"}, {"Form"}, {"Zero", true}, {"Slots", true}, {"Rec/32", true}, {"Rec/64", true}},
                contents);

    for (const Message* message : module.messages)
        print_message(file, *message);

    std::fputs("\n", file);
    for (const Message* message : module.messages)
        std::fprintf(file, "%s: #%s\n", link(*message).c_str(), message->name.c_str());
    for (const Module& other : catalogue().modules)
        for (const Message* message : other.messages)
            if (elsewhere.contains(message))
                std::fprintf(file, "%s: %s.md#%s\n", link(*message).c_str(), other.name.c_str(), message->name.c_str());
}

// ---- the overview ----

constexpr const char overview_head[] = R"(# The messages

Printed by `./run headers`; do not edit. The modules, and in each the families of messages. Opened on its own,
[the picture](overview.svg) leads from every name to its place in the reference. K, U and D are a message's key, update
and delete.

)";

bool print_overview(const std::string& folder)
{
    std::string page = overview_head;
    for (const Module& module : catalogue().modules) {
        std::string text = "[" + module.name + "](" + module.name + ".md): ";
        bool first = true;
        for (const Family& family : families())
            if (module.name == family.module)
                text += std::string(std::exchange(first, false) ? "" : ", ") + family.title;
        const char* before = "- ";
        for (const std::string& line : wrapped(text + ".", page_width - 2))
            page += std::exchange(before, "  ") + line + "\n";
    }
    page += "\n[![Modules and families](overview.svg)](overview.svg)\n";
    return write_changed(folder + "/README.md", page) && write_changed(folder + "/overview.svg", overview_svg());
}

}   // namespace

int main(int argc, char** argv)
{
    const int result = print_files(argc, argv, ".md", print_page);
    return result != 0 ? result : print_overview(argv[1]) ? 0 : 1;
}
