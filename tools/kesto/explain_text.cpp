#include <fmt/format.h>

#include <algorithm>
#include <iterator>

#include "tools/kesto/explain.h"
#include "tools/kesto/input.h"
#include "tools/kesto/names.h"

namespace kesto::command {

namespace {

constexpr u32 bytes_in_a_row = 8;
constexpr u32 most_rows = 4;

struct Columns {
    std::size_t position;
    std::size_t path;
    std::size_t kind;
};

std::string path_shown(const Explanation& explanation, const Range& range)
{
    return range.message == nullptr ? "" : path_text(explanation, range);
}

Columns columns_of(const Explanation& explanation)
{
    Columns columns{std::max<std::size_t>(4, fmt::formatted_size("{}", explanation.bytes.size())), 4, 4};
    for (const Range& range : explanation.ranges) {
        columns.path = std::max(columns.path, path_shown(explanation, range).size());
        columns.kind = std::max(columns.kind, kind_text(range).size());
    }
    columns.path = std::min<std::size_t>(columns.path, 40);
    columns.kind = std::min<std::size_t>(columns.kind, 40);
    return columns;
}

bool is_structure(Piece piece)
{
    return piece == Piece::vtable_length || piece == Piece::table_length || piece == Piece::slot ||
           piece == Piece::padding || piece == Piece::text_end;
}

std::string meaning(const Explanation& explanation, const Range& range, const Columns& columns, const Colours& colours)
{
    std::string value = value_text(explanation, range);
    if (range.reads > 1)
        value += fmt::format("  (read {} times)", range.reads);
    const std::string path = fmt::format("{:{}}", path_shown(explanation, range), columns.path);
    const std::string kind = fmt::format("{:{}}", kind_text(range), columns.kind);
    if (range.read_last)
        return colours.bad(path + "  " + kind + "  " + value + "  <- read last");
    if (is_structure(range.piece))
        return colours.faint(path + "  " + kind + "  " + value);
    if (range.piece == Piece::unread || range.piece == Piece::vtable_rest)
        return colours.odd(path + "  " + kind + "  " + value);
    return colours.name(path) + "  " + kind + "  " + colours.bold(value);
}

void append_range(std::string& out, const Explanation& explanation, const Range& range, const Columns& columns,
                  const TextOptions& options)
{
    const auto into = std::back_inserter(out);
    const u8* const bytes = explanation.bytes.data() + range.position;
    u32 done = 0;
    do {
        const u32 count = std::min(bytes_in_a_row, range.length - done);
        std::string line = fmt::format("{:>{}}  {:{}}", range.position + done, columns.position,
                                       to_hex(bytes + done, count, " "), 3 * bytes_in_a_row - 1);
        if (done == 0)
            line += "  " + meaning(explanation, range, columns, options.colours);
        out += folded(line.substr(0, line.find_last_not_of(' ') + 1) + "\n", options.width,
                      columns.position + 3 * bytes_in_a_row + 3);
        done += count;
        if (done == bytes_in_a_row * most_rows && range.length > done + bytes_in_a_row && !options.whole) {
            fmt::format_to(into, "{:>{}}  and {} more\n", "...", columns.position,
                           counted(range.length - done, "byte"));
            return;
        }
    } while (done < range.length);
}

// The origin of the refused position, if it is stored elsewhere.
std::string origin_of_position(const Explanation& explanation, const model::Failure& failure)
{
    const auto last = std::ranges::find_if(explanation.ranges, &Range::read_last);
    if (last == explanation.ranges.end() || failure.position - last->position < last->length)
        return "";
    const std::string path = last->piece == Piece::root ? "" : " of " + path_text(explanation, *last);
    return fmt::format("    the {}{} at position {} leads there: {}\n", kind_text(*last), path, last->position,
                       value_text(explanation, *last));
}

void append_refused(std::string& out, const Explanation& explanation, const Refused& refused, bool ignored,
                    const TextOptions& options)
{
    const Colours& colours = options.colours;
    const auto into = std::back_inserter(out);
    const model::Failure& failure = refused.failure;
    const std::string head =
        fmt::format("{}: {} at {}, position {}", ignored ? "ignored" : "refused", name_of(failure.refusal),
                    field_path(*explanation.message, failure.path), failure.position);
    const std::string comparison = comparison_text(failure);
    fmt::format_to(into, "{}\n", ignored ? colours.odd(head) : colours.bad(head));
    out += folded(fmt::format("    {}{}{}\n", rule_text(failure), comparison.empty() ? "" : ": ", comparison),
                  options.width, 6);
    if (!ignored)
        out += folded(origin_of_position(explanation, failure), options.width, 6);
    // Not folded, so that a log can be searched for it.
    fmt::format_to(into, "    {}\n",
                   refused.log ? "the library logs " + log_line(*refused.log)
                               : std::string("the library logs nothing"));
    if (ignored)
        fmt::format_to(into, "    the read goes on after this table, whose fields keep what was read so far\n");
}

}   // namespace

std::string log_line(const model::Event& log)
{
    return fmt::format("level {} code {} {}: {}", model::log_level, code_of(log.format), name_of(log.routine),
                       log_text(log));
}

std::string refused_text(const Explanation& explanation, const Colours& colours)
{
    std::string out;
    append_refused(out, explanation, *explanation.refused, false, {colours});
    return out;
}

std::string explanation_text(const Explanation& explanation, const TextOptions& options)
{
    const Colours& colours = options.colours;
    const Columns columns = columns_of(explanation);
    std::string out = fmt::format("{} {:#010x}, {}\n\n", colours.bold(explanation.message->name),
                                  explanation.message->id, counted(explanation.bytes.size(), "byte"));
    const auto into = std::back_inserter(out);
    if (!explanation.ranges.empty())
        fmt::format_to(into, "{:>{}}  {:{}}  {:{}}  {:{}}  value\n", "at", columns.position, "bytes",
                       3 * bytes_in_a_row - 1, "path", columns.path, "kind", columns.kind);
    for (const Range& range : explanation.ranges)
        append_range(out, explanation, range, columns, options);
    if (explanation.left_out != 0)
        fmt::format_to(into, "and {} that are not listed\n", counted(explanation.left_out, "read"));

    if (!explanation.ranges.empty())
        out += "\n";
    if (explanation.refused)
        append_refused(out, explanation, *explanation.refused, false, options);
    else
        fmt::format_to(into, "{}: {}\n", colours.good("accepted"), origin_text(explanation.origin));
    if (explanation.ignored)
        append_refused(out, explanation, *explanation.ignored, true, options);
    if (!explanation.written_for.empty())
        out += folded(fmt::format("{}: just these bytes are written for {}\n", colours.odd("another message?"),
                                  fmt::join(explanation.written_for, ", ")),
                      options.width, 4);
    if (explanation.allocations != 0)
        fmt::format_to(into, "memory: {} in {}\n", counted(explanation.memory, "byte"),
                       counted(explanation.allocations, "block"));
    for (const Note& note : explanation.notes)
        out += folded(
            fmt::format("{}{}: {}\n", colours.odd(fmt::format("note: {}", note.code)), place_text(note), note.text),
            options.width, 4);
    return out;
}

}   // namespace kesto::command
