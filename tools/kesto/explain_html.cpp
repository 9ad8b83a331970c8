#include <fmt/format.h>

#include <algorithm>
#include <iterator>

#include "tools/kesto/explain.h"
#include "tools/kesto/input.h"
#include "tools/kesto/names.h"
#include "tools/kesto/page.h"

namespace kesto::command {

namespace {

constexpr u32 bytes_in_a_row = 8;
constexpr std::size_t most_bytes = 64 << 10;   // in the grid, as nobody looks at more
constexpr std::size_t most_rows = 20000;       // in the list
constexpr u32 most_hex = 16;                   // bytes of a range in the list

const char* class_of(Piece piece)
{
    switch (piece) {
    case Piece::root:
    case Piece::vtable_offset: return "structure";
    case Piece::vtable_length:
    case Piece::table_length:
    case Piece::slot: return "vtable";
    case Piece::cell:
    case Piece::element_cell: return "cell";
    case Piece::scalar: return "scalar";
    case Piece::count: return "count";
    case Piece::payload: return "payload";
    case Piece::text_end:
    case Piece::padding: return "quiet";
    case Piece::vtable_rest:
    case Piece::unread: break;
    }
    return "unread";
}

std::string classes_of(const Range& range)
{
    return fmt::format("{}{}", class_of(range.piece), range.read_last ? " read-last" : "");
}

std::string path_shown(const Explanation& explanation, const Range& range)
{
    return range.message == nullptr ? "" : path_text(explanation, range);
}

// The range that each byte belongs to; of overlapping ranges, the one that begins last.
std::vector<std::size_t> owners(const Explanation& explanation, std::size_t count)
{
    std::vector<std::size_t> owner(count);
    std::vector<std::size_t> open;
    std::size_t next = 0;
    const std::vector<Range>& ranges = explanation.ranges;
    for (std::size_t at = 0; at < count; ++at) {
        for (; next < ranges.size() && ranges[next].position <= at; ++next)
            open.push_back(next);
        while (ranges[open.back()].position + ranges[open.back()].length <= at)
            open.pop_back();
        owner[at] = open.back();
    }
    return owner;
}

void append_grid(std::string& out, const Explanation& explanation)
{
    const auto into = std::back_inserter(out);
    const std::size_t count = std::min(explanation.bytes.size(), most_bytes);
    const std::vector<std::size_t> owner = owners(explanation, count);
    out += "<div class=grid>\n";
    for (std::size_t row = 0; row < count; row += bytes_in_a_row) {
        const std::size_t end = std::min(row + bytes_in_a_row, count);
        fmt::format_to(into, "<div><i>{:>6}</i>  ", row);
        for (std::size_t at = row; at < end;) {
            std::size_t last = at + 1;
            while (last < end && owner[last] == owner[at])
                ++last;
            const Range& range = explanation.ranges[owner[at]];
            fmt::format_to(into, "<span class=\"{}\" data-r={} title=\"{}\">{}</span>{}", classes_of(range), owner[at],
                           escaped(fmt::format("{} {}: {}", path_shown(explanation, range), kind_text(range),
                                               value_text(explanation, range))),
                           to_hex(explanation.bytes.data() + at, last - at, " "), last < end ? " " : "");
            at = last;
        }
        fmt::format_to(into, "{:{}}  <i>", "", 3 * (row + bytes_in_a_row - end));
        for (std::size_t at = row; at < end; ++at) {
            const char character = static_cast<char>(explanation.bytes[at]);
            out += escaped(character < ' ' || character > '~' ? "." : std::string(1, character));
        }
        out += "</i></div>\n";
    }
    if (count < explanation.bytes.size())
        fmt::format_to(into, "<div>and {} more</div>\n", counted(explanation.bytes.size() - count, "byte"));
    out += "</div>\n";
}

void append_list(std::string& out, const Explanation& explanation)
{
    const auto into = std::back_inserter(out);
    out += "<div class=list><table>\n<tr><th>at<th>bytes<th>path<th>kind<th>value</tr>\n";
    const std::size_t rows = std::min(explanation.ranges.size(), most_rows);
    for (std::size_t i = 0; i < rows; ++i) {
        const Range& range = explanation.ranges[i];
        const u32 shown = std::min(range.length, most_hex);
        std::string hex = to_hex(explanation.bytes.data() + range.position, shown, " ");
        for (std::size_t at = 3 * bytes_in_a_row - 1; at < hex.size(); at += 3 * bytes_in_a_row)
            hex[at] = '\n';
        fmt::format_to(into, "<tr data-r={}{}><td>{}<td><span class=\"{}\">{}{}</span>", i,
                       range.read_last ? " class=read-last" : "", range.position, class_of(range.piece), hex,
                       shown < range.length ? "\n..." : "");
        fmt::format_to(into, "<td>{}<td>{}<td>{}{}</tr>\n", escaped(path_shown(explanation, range)),
                       escaped(kind_text(range)), escaped(value_text(explanation, range)),
                       range.reads > 1 ? fmt::format(" (read {} times)", range.reads) : "");
    }
    const u64 more = explanation.ranges.size() - rows + explanation.left_out;
    if (more != 0)
        fmt::format_to(into, "<tr><td colspan=5>and {} more</tr>\n", more);
    out += "</table></div>\n";
}

void append_refused(std::string& out, const Explanation& explanation, const Refused& refused, const char* word)
{
    const model::Failure& failure = refused.failure;
    const std::string comparison = comparison_text(failure);
    fmt::format_to(std::back_inserter(out),
                   "<div class=\"verdict {0}\"><p><b>{0}: {1}</b> at <code>{2}</code>, position {3}</p><p>{4}{5}{6}</p>"
                   "<p>The library logs {7}</p></div>\n",
                   word, name_of(failure.refusal), escaped(field_path(*explanation.message, failure.path)),
                   failure.position, rule_text(failure), comparison.empty() ? "" : ": ", comparison,
                   refused.log ? "<code>" + escaped(log_line(*refused.log)) + "</code>" : "nothing.");
}

void append_head(std::string& out, const Explanation& explanation)
{
    const auto into = std::back_inserter(out);
    fmt::format_to(into, "<h1>{} <small>{:#010x}, {}</small></h1>\n", explanation.message->name,
                   explanation.message->id, counted(explanation.bytes.size(), "byte"));
    const std::string memory = explanation.allocations == 0
                                   ? ""
                                   : fmt::format("<p>Memory: {} in {}</p>", counted(explanation.memory, "byte"),
                                                 counted(explanation.allocations, "block"));
    if (explanation.refused)
        append_refused(out, explanation, *explanation.refused, "refused");
    else
        fmt::format_to(into, "<div class=verdict><p><b>accepted</b>: {}</p>{}</div>\n", origin_text(explanation.origin),
                       memory);
    if (explanation.ignored)
        append_refused(out, explanation, *explanation.ignored, "ignored");
    if (!explanation.written_for.empty())
        fmt::format_to(into,
                       "<div class=\"verdict ignored\"><p><b>another message?</b> Just these bytes are written for "
                       "{}</p></div>\n",
                       fmt::join(explanation.written_for, ", "));
    if (!explanation.notes.empty())
        out += "<ul>\n";
    for (const Note& note : explanation.notes)
        fmt::format_to(into, "<li><b>{}</b>{}: {}</li>\n", note.code, escaped(place_text(note)), escaped(note.text));
    if (!explanation.notes.empty())
        out += "</ul>\n";
    out += "<div class=key><span class=structure>root, table</span><span class=vtable>vtable</span>"
           "<span class=cell>cell</span><span class=count>length, count</span><span class=scalar>scalar</span>"
           "<span class=payload>text, bytes, array</span><span class=unread>not read</span></div>\n";
}

}   // namespace

std::string explanation_html(const Explanation& explanation)
{
    std::string out;
    append_head(out, explanation);
    out += "<main>\n";
    append_grid(out, explanation);
    append_list(out, explanation);
    fmt::format_to(std::back_inserter(out), "</main>\n<div id=hint hidden></div>\n<script>{}</script>\n", page_script);
    return page_of(fmt::format("{}, {}", explanation.message->name, counted(explanation.bytes.size(), "byte")), out);
}

void write_page(const Explanation& explanation, const std::string& file)
{
    const std::string page = explanation_html(explanation);
    write_bytes(file, page.data(), page.size());
}

}   // namespace kesto::command
