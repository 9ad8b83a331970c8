#include <fmt/format.h>

#include <iterator>

#include "tools/kesto/glance.h"
#include "tools/kesto/page.h"
#include "tools/kesto/quoting.h"

namespace kesto::command {

namespace {

using nlohmann::ordered_json;

std::string cell(const ordered_json& value)
{
    return "<td>" +
           (value.is_null() ? "" : escaped(value.is_string() ? value.get<std::string>() : json_text(value, -1)));
}

std::string message_cell(const ordered_json& of)
{
    const ordered_json& name = of["message"];
    return fmt::format("<td>{}<br><i>{}</i>", name.is_null() ? "(no message has this id)" : name.get<std::string>(),
                       of["id"].get<std::string>());
}

void begin_table(std::string& out, std::initializer_list<const char*> heads)
{
    out += "<div class=glance><table>\n<tr>";
    for (const char* const head : heads)
        fmt::format_to(std::back_inserter(out), "<th>{}", head);
    out += "</tr>\n";
}

void end_table(std::string& out) { out += "</table></div>\n"; }

std::string verdict(bool good, const std::string& head, const std::string& text)
{
    return fmt::format("<div class=\"verdict{}\"><p><b>{}</b></p><p>{}</p></div>\n", good ? "" : " refused", head,
                       escaped(text));
}

std::string packet_cell(const ordered_json& packet)
{
    if (packet.is_null())
        return "<td>";
    const int result = packet.value("result", 0);
    return fmt::format(
        "<td>packet {}, {}{}<br><i>{}</i>", packet["packet"].get<u64>(), counted(packet["length"].get<u64>(), "byte"),
        result == 0 ? "" : fmt::format(", result {}", result), escaped(packet["time"].get<std::string>()));
}

std::string change_cell(const ordered_json& pair)
{
    std::string out = "<td>" + escaped(pair["reason"].get<std::string>());
    for (const ordered_json& field : pair["fields"])
        fmt::format_to(std::back_inserter(out), "{}: <span class=cell>{}</span> <span class=scalar>{}</span><br>",
                       escaped(field["path"].get<std::string>()), escaped(json_text(field["a"], -1)),
                       escaped(json_text(field["b"], -1)));
    return out;
}

std::string side_text(const ordered_json& side)
{
    return fmt::format("{}: {}, {}", side["capture"].get<std::string>(), counted(side["packets"].get<u64>(), "packet"),
                       counted(side["bytes"].get<u64>(), "byte"));
}

}   // namespace

std::string summary_html(const ordered_json& summary)
{
    const std::string file = summary["capture"];
    const u64 refused = summary["refused"];
    std::string out = fmt::format("<h1>{}</h1>\n", escaped(file));
    out += verdict(refused == 0, refused == 0 ? "none refused" : fmt::format("{} refused", refused),
                   fmt::format("{}, {}", counted(summary["packets"].get<u64>(), "packet"),
                               counted(summary["bytes"].get<u64>(), "byte")));
    begin_table(out, {"packets", "message", "bytes", "first", "last"});
    for (const ordered_json& of : summary["messages"])
        out += "<tr>" + cell(of["packets"]) + message_cell(of) + cell(of["bytes"]) + cell(of["first"]) +
               cell(of["last"]) + "</tr>\n";
    end_table(out);
    if (refused != 0) {
        out += "<h1>Refused</h1>\n";
        begin_table(out, {"packets", "message", "check", "field", "first in packet"});
        for (const ordered_json& of : summary["messages"])
            for (const ordered_json& reason : of["refused"])
                out += "<tr>" + cell(reason["packets"]) + message_cell(of) + cell(reason["code"]) +
                       cell(reason["path"]) + cell(reason["first_packet"]) + "</tr>\n";
        end_table(out);
    }
    if (summary["refused_by_mesh"] != 0) {
        fmt::format_to(std::back_inserter(out), "<h1>{} {}</h1>\n",
                       counted(summary["refused_by_mesh"].get<u64>(), "packet"), refused_by_mesh_text);
        begin_table(out, {"packets", "message", "result", "first in packet"});
        for (const ordered_json& of : summary["messages"])
            for (const ordered_json& refusals : of["refused_by_mesh"])
                out += "<tr>" + cell(refusals["packets"]) + message_cell(of) + cell(refusals["result"]) +
                       cell(refusals["first_packet"]) + "</tr>\n";
        end_table(out);
    }
    return page_of(file, out);
}

std::string comparison_html(const ordered_json& comparison)
{
    const struct {
        const char *key, *head;
        bool is_difference = true;
    } sections[] = {{"refused_by_mesh", refused_by_mesh_text, false},
                    {"missing", "did not arrive"},
                    {"twice", "arrived more often than sent"},
                    {"changed", "arrived changed"},
                    {"unexpected", "arrived without having been sent"}};
    const ordered_json &sent = comparison["sent"], &received = comparison["received"];
    std::string lists;
    bool is_same = true;
    for (const auto& [key, head, is_difference] : sections) {
        const ordered_json& pairs = comparison[key];
        if (pairs.empty())
            continue;
        is_same = is_same && !is_difference;
        fmt::format_to(std::back_inserter(lists), "<h1>{} {}</h1>\n", counted(pairs.size(), "packet"), head);
        const bool with_change = pairs[0].contains("fields");
        if (with_change)
            fmt::format_to(std::back_inserter(lists), "<p>{}</p>\n", pairing_remark);
        begin_table(lists, {"", "message", "sent", "received", with_change ? "fields, sent and received" : ""});
        for (std::size_t i = 0; i < pairs.size(); ++i)
            lists +=
                fmt::format("<tr><td>{}{}{}{}{}</tr>\n", i + 1, message_cell(pairs[i]), packet_cell(pairs[i]["sent"]),
                            packet_cell(pairs[i]["received"]), with_change ? change_cell(pairs[i]) : "<td>");
        end_table(lists);
    }
    return page_of(
        fmt::format("{} and {}", sent["capture"].get<std::string>(), received["capture"].get<std::string>()),
        fmt::format("<h1>Sent and received</h1>\n{}{}",
                    verdict(is_same, counted(comparison["as_sent"].get<u64>(), "packet") + " arrived as sent",
                            fmt::format("sent {}; received {}", side_text(sent), side_text(received))),
                    lists));
}

}   // namespace kesto::command
