// Prints the catalogue into the packet analyser's script, dissector/kesto.lua, between the two marker lines.
//
//   print_dissector FILE    changes FILE in place

#include <cinttypes>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "tools/print_files.h"

using namespace kesto::model;
using namespace kesto::tools;

namespace {

constexpr const char first_line[] = "-- printed by ./run headers, from here\n";
constexpr const char last_line[] = "-- to here\n";

// One word: "u32", "u8[50]", "vector:ifit_mcp_mesh", or "table?:..." for a table whose refusal the message ignores.
std::string slot_word(const Slot& slot)
{
    if (slot.nested == nullptr)
        return slot_text(slot);
    const std::string kind = slot.kind == Kind::vector ? "vector:" : slot.lenient ? "table?:" : "table:";
    return kind + slot.nested->name;
}

std::string message_line(const Message& message)
{
    char id[11];
    std::snprintf(id, sizeof id, "0x%08" PRIx32, message.id);
    std::string line = "{ \"" + message.name + "\", " + id + ", \"";
    for (const Slot& slot : message.slots)
        line += (&slot == &message.slots.front() ? "" : " ") + slot.field + "=" + slot_word(slot);
    return line + "\" },\n";
}

std::string catalogue_lines()
{
    std::string lines;
    for (const Module& module : catalogue().modules)
        for (const Message* message : module.messages)
            lines += message_line(*message);
    return lines;
}

}   // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FILE\n", argv[0]);
        return 2;
    }
    std::ifstream input(argv[1], std::ios::binary);
    std::string script{std::istreambuf_iterator<char>(input), {}};
    const std::size_t begin = script.find(first_line);
    const std::size_t end = begin == std::string::npos ? begin : script.find(last_line, begin);
    if (end == std::string::npos) {
        std::fprintf(stderr, "%s: marker lines around the catalogue not found\n", argv[1]);
        return 1;
    }
    const std::size_t from = begin + sizeof first_line - 1;
    script.replace(from, end - from, catalogue_lines());
    return write_changed(argv[1], script) ? 0 : 1;
}
