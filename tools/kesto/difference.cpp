#include <fmt/format.h>

#include <nlohmann/json.hpp>

#include "tools/kesto/commands.h"
#include "tools/kesto/names.h"
#include "tools/kesto/quoting.h"

namespace kesto::command {

namespace {

using nlohmann::ordered_json;

struct Difference {
    std::string path;
    ordered_json left;   // null if absent
    ordered_json right;
};

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

int compare(const Record& left, const Record& right, const DiffChoices& choices)
{
    std::vector<Difference> found;
    collect(named_json(left), named_json(right), "", found);
    std::string out;
    if (choices.json) {
        ordered_json all = ordered_json::array();
        for (const Difference& each : found)
            all.push_back({{"path", each.path}, {"a", each.left}, {"b", each.right}});
        out = json_text(all, 2) + "\n";
    }
    const Colours colours = colours_for(choices.colour);
    for (const Difference& each : found)
        if (!choices.json)
            out += fmt::format("{}: {}  {}\n", colours.name(each.path), colours.bad(json_text(each.left, -1)),
                               colours.good(json_text(each.right, -1)));
    print(out);
    return found.empty() ? accepted : refused;
}

}   // namespace kesto::command
