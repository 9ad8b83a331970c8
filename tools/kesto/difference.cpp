#include "tools/kesto/difference.h"

#include <fmt/format.h>

#include "tools/kesto/names.h"
#include "tools/kesto/quoting.h"

namespace kesto::command {

namespace {

using nlohmann::ordered_json;

bool is_record(const ordered_json& json) { return json.is_object() && !json.contains("hex"); }

void collect(const ordered_json& left, const ordered_json& right, const std::string& path,
             std::vector<Difference>& found)
{
    if (left == right)
        return;
    if (is_record(left) && is_record(right)) {
        for (const auto& [name, value] : left.items())
            collect(value, right.at(name), path + "." + name, found);
    } else if (left.is_array() && right.is_array()) {
        const ordered_json nothing;
        for (std::size_t i = 0; i < std::max(left.size(), right.size()); ++i)
            collect(i < left.size() ? left[i] : nothing, i < right.size() ? right[i] : nothing,
                    fmt::format("{}[{}]", path, i), found);
    } else {
        found.push_back({path, left, right});
    }
}

}   // namespace

std::vector<Difference> differences(const Record& left, const Record& right)
{
    std::vector<Difference> found;
    collect(named_json(left), named_json(right), "", found);
    return found;
}

ordered_json differences_json(const std::vector<Difference>& all)
{
    ordered_json json = ordered_json::array();
    for (const Difference& each : all)
        json.push_back({{"path", each.path}, {"a", each.left}, {"b", each.right}});
    return json;
}

std::string difference_line(const Difference& difference, const Colours& colours)
{
    return fmt::format("{}: {}  {}\n", colours.name(difference.path), colours.bad(json_text(difference.left, -1)),
                       colours.good(json_text(difference.right, -1)));
}

int compare(const Record& left, const Record& right, const DiffChoices& choices)
{
    const std::vector<Difference> found = differences(left, right);
    std::string out;
    if (choices.json)
        out = json_text(differences_json(found), 2) + "\n";
    const Colours colours = colours_for(choices.colour);
    for (const Difference& each : found)
        if (!choices.json)
            out += difference_line(each, colours);
    print(out);
    return found.empty() ? accepted : refused;
}

}   // namespace kesto::command
