#include "model/trace.h"

#include "model/text.h"

namespace kesto::model {
namespace {

struct FormatText {
    u32 code;
    u32 arguments;
    const char* text;
};

constexpr FormatText formats[] = {
    {22, 3, "[KESTO]:Param invalid(%s, %d, %s)"},
    {22, 2, "[KESTO]:Table offset(%u) is out of range(4 - %u)"},
    {22, 2, "[KESTO]:Vtable offset(%u) is out of range(4 - %u)"},
    {22, 2, "[KESTO]:Vtable Len(%u) is out of range(0 - %u)"},
    {12, 1, "[KESTO]:Malloc unpack data failed, size(%u)"},
    {22, 3, "[KESTO]:Param invalid(%s, %u, %s)"},
};

const FormatText& format_text(Format format) { return formats[static_cast<std::size_t>(format)]; }

std::string argument_text(char conversion, u32 argument)
{
    if (conversion == 's')
        return argument == 0 ? "null" : "nonNull";
    if (conversion == 'd' && argument > 0x7fffffffU)
        return join({"-", std::to_string(0U - argument)});
    return std::to_string(argument);
}

}   // namespace

const std::string& name_of(const Routine& routine)
{
    switch (routine.kind) {
    case RoutineKind::unpack: return routine.message->unpack_name;
    case RoutineKind::unpack_non_root: return routine.message->unpack_non_root_name;
    case RoutineKind::free_unpacked: return routine.message->free_unpacked_name;
    case RoutineKind::pack: break;
    }
    return routine.message->pack_name;
}

u32 code_of(Format format) { return format_text(format).code; }
const char* text_of(Format format) { return format_text(format).text; }
u32 argument_count(Format format) { return format_text(format).arguments; }

std::string log_text(const Event& event)
{
    std::string out;
    std::size_t argument = 0;
    for (const char* at = text_of(event.format); *at != 0; ++at) {
        if (*at == '%') {
            out += argument_text(*++at, event.arguments[argument++]);
        } else {
            out += *at;
        }
    }
    return out;
}

std::string to_text(const Event& event)
{
    const std::string& routine = name_of(event.routine);
    if (event.act == Act::log)
        return routine + " logs " + std::to_string(code_of(event.format)) + " " + log_text(event);
    const std::string block = event.block < 0 ? "null" : join({"block ", std::to_string(event.block)});
    if (event.act == Act::release)
        return routine + " releases " + block;
    return routine + " allocates " + block + ", size " + std::to_string(event.size) + (event.failed ? ", failed" : "");
}

}   // namespace kesto::model
