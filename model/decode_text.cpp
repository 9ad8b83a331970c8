#include "model/decode.h"
#include "model/text.h"

namespace kesto::model {
namespace {

constexpr const char* refusal_names[] = {
    "none",          "buffer_null", "record_null", "length_below_4", "table_position",  "vtable_position",
    "vtable_length", "scalar_end",  "cell_end",    "reference_wrap", "reference_range", "array_count",
    "count_range",   "body_end",    "nested_wrap", "element_wrap",   "element_null",    "element_block",
    "allocation",
};
static_assert(std::size(refusal_names) == static_cast<std::size_t>(Refusal::allocation) + 1);

constexpr const char* piece_names[] = {
    "root",  "vtable_offset", "vtable_length", "table_length", "slot",     "scalar",  "cell",
    "count", "payload",       "element_cell",  "vtable_rest",  "text_end", "padding", "unread",
};
static_assert(std::size(piece_names) == static_cast<std::size_t>(Piece::unread) + 1);

}   // namespace

const char* name_of(Refusal refusal) { return refusal_names[static_cast<std::size_t>(refusal)]; }
const char* name_of(Piece piece) { return piece_names[static_cast<std::size_t>(piece)]; }

std::string to_text(const Path& path)
{
    std::string out;
    for (u32 i = 0; i < path.length; ++i) {
        const Path::Step& step = path.steps[i];
        out += join({i == 0 ? "f" : ".f", std::to_string(step.slot)});
        if (step.element >= 0)
            out += join({"[", std::to_string(step.element), "]"});
    }
    return out;
}

std::string path_text(const Message& root, const Path& path)
{
    std::string out;
    const Message* message = &root;
    for (u32 i = 0; i < path.length; ++i) {
        const Slot& slot = message->slots[path.steps[i].slot];
        out += "." + slot.field;
        if (path.steps[i].element >= 0)
            out += join({"[", std::to_string(path.steps[i].element), "]"});
        message = slot.nested;
    }
    return out.empty() ? "." : out;
}

std::string to_text(const Failure& failure)
{
    if (!failure)
        return "none";
    std::string out = name_of(failure.routine) + ": " + name_of(failure.refusal);
    if (failure.path.length != 0)
        out += join({" at ", to_text(failure.path)});
    return out + ", position " + std::to_string(failure.position) + ", value " + std::to_string(failure.value) +
           ", limit " + std::to_string(failure.limit);
}

}   // namespace kesto::model
