#include <fmt/format.h>

#include <nlohmann/json.hpp>

#include "tools/kesto/explain.h"
#include "tools/kesto/input.h"
#include "tools/kesto/names.h"

namespace kesto::command {

namespace {

using nlohmann::ordered_json;

ordered_json range_json(const Explanation& explanation, const Range& range)
{
    return {
        {"position", range.position},
        {"length", range.length},
        {"path", range.message == nullptr ? "" : path_text(explanation, range)},
        {"kind", kind_text(range)},
        {"value", value_text(explanation, range)},
        {"reads", range.reads},
    };
}

}   // namespace

ordered_json refused_json(const Explanation& explanation, const Refused& refused)
{
    const model::Failure& failure = refused.failure;
    ordered_json json = {
        {"code", name_of(failure.refusal)},
        {"path", field_path(*explanation.message, failure.path)},
        {"position", failure.position},
        {"value", failure.value},
        {"limit", failure.limit},
        {"rule", rule_text(failure)},
        {"comparison", comparison_text(failure)},
        {"routine", name_of(failure.routine)},
        {"log", nullptr},
    };
    if (refused.log)
        json["log"] = {{"level", model::log_level},
                       {"code", code_of(refused.log->format)},
                       {"routine", name_of(refused.log->routine)},
                       {"text", log_text(*refused.log)}};
    return json;
}

ordered_json explanation_json(const Explanation& explanation)
{
    ordered_json json = {
        {"message", explanation.message->name},
        {"id", fmt::format("{:#010x}", explanation.message->id)},
        {"length", explanation.bytes.size()},
        {"bytes", to_hex(explanation.bytes.data(), explanation.bytes.size())},   // only once, as ranges may overlap
        {"accepted", !explanation.refused},
        {"refused", nullptr},
        {"ignored", nullptr},
        {"origin", origin_text(explanation.origin)},
        {"written_for", explanation.written_for},
        {"memory", {{"bytes", explanation.memory}, {"blocks", explanation.allocations}}},
        {"notes", ordered_json::array()},
        {"ranges", ordered_json::array()},
        {"reads_left_out", explanation.left_out},
    };
    if (explanation.refused)
        json["refused"] = refused_json(explanation, *explanation.refused);
    if (explanation.ignored)
        json["ignored"] = refused_json(explanation, *explanation.ignored);
    for (const Note& note : explanation.notes)
        json["notes"].push_back({{"code", note.code},
                                 {"position", note.position},
                                 {"length", note.length},
                                 {"path", note.path},
                                 {"text", note.text}});
    for (const Range& range : explanation.ranges)
        json["ranges"].push_back(range_json(explanation, range));
    return json;
}

}   // namespace kesto::command
