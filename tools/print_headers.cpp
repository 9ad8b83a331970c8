// Prints the public headers from the catalogue: include/<module>.h for C, and include/<module>.hpp, which tells
// ifit_codec.hpp which functions belong to which record.
//
//   print_headers FOLDER    writes both into FOLDER for every module

#include <cctype>
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "tools/families.h"
#include "tools/print_files.h"

using namespace kesto::model;
using namespace kesto::tools;

namespace {

std::string upper(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

// The top of every header. `@` is replaced by the module name.
constexpr const char head[] =
    R"(/* @.h: records and operations of the @ messages. Printed from the catalogue by `./run headers`; do not edit.
 *
 * A message X has a record, the plain structure X, an id, X_ID in capitals, and seven operations. In the record, fields
 * stand in slot order at their natural alignment, a 64-bit one at a multiple of 8 on every target. A text is a pointer to
 * NUL-terminated bytes; a block of bytes is a length and a pointer; a vector is a count and a pointer to that many
 * records, end to end. Arrays and nested records lie inline. Fields have places and types here, and no meanings: those
 * are agreed between the programs that exchange the message.
 *
 * All operations may be called from any thread at any time, on different records. None of them keeps a pointer.
 *
 * X__unpack decodes `len` bytes at `buf` into `*rec` and returns the size of the record in bytes.
 *   WARNING: it returns the same value when decoding fails. After a failure all pointers in `*rec` are null, while scalars,
 *   lengths and counts keep what was read, unless the parameters, the first table or its vtable were refused: then `*rec`
 *   is untouched. Start from a zeroed record, and test the pointers, not the counts. `buf` may be foreign bytes of any
 *   content and alignment; it is not needed after the call. Null for `buf` or `rec`, or a `len` below 4 or above
 *   2^31 - 1, is refused.
 *   On success texts, blocks and vectors belong to the caller until X_free__unpacked(rec).
 *
 * X_free__unpacked gives back what X__unpack allocated for `*rec` and nulls the pointers; lengths, counts and scalars stay,
 *   and so does the record itself. Null does nothing, and neither does a second call. Only for what X__unpack filled in.
 *
 * X__pack encodes `*rec` in compact form into `buf`. `*len` is the room at `buf` on entry and the length on return. Returns
 *   0, or -1 for a null `rec`, a room that is too small or a length beyond 32 bits; `*len` then stays as it was.
 *   `len` must not be null. WARNING: with a null `buf` and enough room it writes nothing and yet returns 0 with `*len` set.
 *   So a null `buf` with `*len` UINT32_MAX tells the room that a record needs; it writes a log line, too.
 *   A zero scalar, a null text and a null or empty block or vector take no room; an empty text is kept apart from a null
 *   one. A block with a pointer and length 0 makes `*len` 8 larger than what was written.
 *   A vector with a count and no pointer, as a failed X__unpack leaves it, is refused with -1, whatever the room.
 *
 * X__sendsingle, X__sendbatch, X__sendmsg and X__sendtomsg encode records and hand them to the messaging library, on
 *   `channel`, to `destination` (0 for none). They return that library's result, or -1 when nothing was sent. X__sendmsg
 *   and X__sendtomsg are the ones to call: they take `n` records that lie end to end at `recs`, refuse n = 0 with -1, and
 *   use X__sendsingle for one and X__sendbatch for more; a batch goes as a whole or not at all. Messages with a fixed form
 *   are sent in it: nothing is allocated for one, and one block for a batch of any size. All others are sent in compact
 *   form, and a batch of them must fit 64 KiB in all, while a single one has no limit. The argument `unused` is not read.
 *   Null records are refused with -1 where the form is compact, and so is a vector with a count and no pointer. Of messages
 *   with a fixed form, records must not be null.
 *
 * @_recv_init registers every message's X__unpack and X_free__unpacked with the messaging library, in the order of this
 *   file; it returns 0 or the library's first other result, after which the later ones are not registered.
 * @_send_init registers @__send_resource_clean, which does nothing, and returns the library's result.
 *   Sending works without either, and so do X__pack, X__unpack and X_free__unpacked.
 */
#ifndef KESTO_@_H
#define KESTO_@_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#ifndef KESTO_U64
#define KESTO_U64
/* At a multiple of 8 in a structure, also where the compiler's own rule is 4. */
typedef uint64_t kesto_u64 __attribute__((aligned(8)));
#endif
)";

void print_head(std::FILE* file, const std::string& module)
{
    bool in_guard = false;
    for (const char* at = head; *at != '\0'; ++at) {
        if (*at == '\n' || *at == ' ')
            in_guard = false;
        if (std::strncmp(at, "KESTO_@_H", 9) == 0)
            in_guard = true;
        if (*at == '@')
            std::fputs((in_guard ? upper(module) : module).c_str(), file);
        else
            std::fputc(*at, file);
    }
}

std::string field_declaration(const Slot& slot)
{
    const std::string scalar = slot.width == 8 ? "kesto_u64" : "uint" + std::to_string(8 * slot.width) + "_t";
    switch (slot.kind) {
    case Kind::scalar: return scalar + " " + slot.field;
    case Kind::string: return "char *" + slot.field;
    case Kind::bytes: return "struct { uint32_t length; uint8_t *data; } " + slot.field;
    case Kind::array: return scalar + " " + slot.field + "[" + std::to_string(slot.count) + "]";
    case Kind::table: return slot.nested->name + " " + slot.field;
    case Kind::vector: return "struct { uint32_t count; " + slot.nested->name + " *items; } " + slot.field;
    }
    return {};
}

bool has(const Message& message, Kind kind)
{
    for (const Slot& slot : message.slots)
        if (slot.kind == kind || (slot.kind == Kind::table && has(*slot.nested, kind)))
            return true;
    return false;
}

std::string ownership(const Message& message)
{
    std::string parts;
    const auto add = [&](Kind kind, const char* text) {
        if (has(message, kind))
            parts += (parts.empty() ? "" : ", ") + std::string(text);
    };
    add(Kind::string, "text");
    add(Kind::bytes, "bytes");
    add(Kind::vector, "elements");
    for (const Slot& slot : message.slots)
        if (slot.kind == Kind::vector && slot.nested->owns_blocks)
            parts += " and what they own";
    return parts.empty() ? "Owns no memory." : "Owns its " + parts + ".";
}

std::string lengths(const Message& message)
{
    const std::string least = std::to_string(message.compact_zero);
    if (message.owns_blocks)
        return "Compact form of " + least + " bytes and more.";
    return "Fixed form of " + std::to_string(message.fixed_length) + " bytes, compact form of " + least + " to " +
           std::to_string(message.compact_full) + ".";
}

void print_message(std::FILE* file, const Message& message)
{
    const char* const name = message.name.c_str();
    const std::string role = role_text(message, [](const Message& other) { return other.name; });
    const std::string about =
        message.name + ": " + (role.empty() ? "" : role + " ") + lengths(message) + " " + ownership(message) + " */";
    const char* before = "\n/* ";
    for (const std::string& line : wrapped(about, 117)) {
        std::fprintf(file, "%s%s\n", before, line.c_str());
        before = " * ";
    }
    std::fprintf(file, "typedef struct %s {\n", name);
    for (const Slot& slot : message.slots)
        std::fprintf(file, "    %s;\n", field_declaration(slot).c_str());
    std::fprintf(file, "} %s;\n\n", name);
    std::fprintf(file, "#define %s_ID UINT32_C(0x%08" PRIx32 ")\n\n", upper(message.name).c_str(), message.id);
    std::fprintf(file, "uint32_t %s__unpack(const uint8_t *buf, uint32_t len, %s *rec);\n", name, name);
    std::fprintf(file, "void %s_free__unpacked(%s *rec);\n", name, name);
    std::fprintf(file, "int %s__pack(const %s *rec, uint8_t *buf, uint32_t *len);\n", name, name);
    std::fprintf(file, "int %s__sendsingle(uint32_t channel, const %s *rec, uint32_t unused, uint32_t destination);\n",
                 name, name);
    std::fprintf(file, "int %s__sendbatch(uint32_t channel, const %s *recs, uint32_t n, uint32_t destination);\n", name,
                 name);
    std::fprintf(file, "int %s__sendmsg(uint32_t channel, const %s *recs, uint32_t n);\n", name, name);
    std::fprintf(file, "int %s__sendtomsg(uint32_t channel, const %s *recs, uint32_t n, uint32_t destination);\n", name,
                 name);
}

// The families of the module, as one comment.
void print_families(std::FILE* file, const Module& module)
{
    const char* before = "\n/* What the messages are for. A message X is meant together with X_key, X_update and "
                         "X_delete, where there are such.\n";
    for (const Family& family : families()) {
        if (module.name != family.module)
            continue;
        std::fprintf(file, "%s *\n * %s. ", before, family.title);
        before = "";
        std::string members = family.purpose;
        for (const char* root : family.roots)
            members += std::string(root == family.roots.front() ? " Messages: " : ", ") + root;
        const std::vector<std::string> lines = wrapped(std::string(family.title) + ". " + members + ".", 117);
        std::fprintf(file, "%s\n", lines[0].substr(std::string(family.title).size() + 2).c_str());
        for (std::size_t i = 1; i < lines.size(); ++i)
            std::fprintf(file, " *   %s\n", lines[i].c_str());
    }
    if (*before == '\0')
        std::fputs(" */\n", file);
}

void print_module(std::FILE* file, const Module& module)
{
    print_head(file, module.name);
    print_families(file, module);
    for (const Message* message : module.messages)
        print_message(file, *message);
    const char* const name = module.name.c_str();
    std::fprintf(file, "\nint %s_recv_init(void);\nint %s_send_init(void);\nvoid %s__send_resource_clean(void);\n",
                 name, name, name);
    std::fputs("\n#ifdef __cplusplus\n}\n#endif\n\n#endif\n", file);
}

// ---- <module>.hpp ----

// The paths from the record to the texts, blocks and vectors of its own and of its nested records.
void add_owned(const Message& message, const std::string& path, std::vector<std::string>& paths)
{
    for (const Slot& slot : message.slots) {
        const std::string field = path + "." + slot.field;
        if (slot.kind == Kind::table)
            add_owned(*slot.nested, field, paths);
        else if (slot.kind == Kind::string || slot.kind == Kind::bytes || slot.kind == Kind::vector)
            paths.push_back(field);
    }
}

void print_traits(std::FILE* file, const Message& message)
{
    const char* const name = message.name.c_str();
    std::fprintf(file, "\ntemplate <>\nstruct message_traits<::%s> {\n", name);
    std::fprintf(file, "    static constexpr std::uint32_t id = %s_ID;\n", upper(message.name).c_str());
    std::fprintf(file, "    static constexpr std::string_view name = \"%s\";\n", name);
    std::fprintf(file, "    static constexpr bool owns_blocks = %s;\n", message.owns_blocks ? "true" : "false");
    for (const auto& [what, bytes] :
         {std::pair{"fixed_length", message.fixed_length}, std::pair{"compact_least", message.compact_zero},
          std::pair{"compact_most", message.compact_full}})
        std::fprintf(file, "    static constexpr std::uint32_t %s = %u;\n", what, bytes);
    for (const char* operation : {"unpack", "pack", "sendmsg", "sendtomsg"})
        std::fprintf(file, "    static constexpr auto %s = ::%s__%s;\n", operation, name, operation);
    std::fprintf(file, "    static constexpr auto free_unpacked = ::%s_free__unpacked;\n", name);
    if (message.owns_blocks) {
        std::vector<std::string> paths;
        add_owned(message, "record", paths);
        std::fprintf(file, "    template <class Visit>\n");
        std::fprintf(file, "    static constexpr void each_owned(::%s& record, Visit&& visit)\n    {\n", name);
        for (const std::string& path : paths)
            std::fprintf(file, "        visit(%s);\n", path.c_str());
        std::fputs("    }\n", file);
    }
    std::fputs("};\n", file);
}

void print_traits_of_module(std::FILE* file, const Module& module)
{
    const char* const name = module.name.c_str();
    std::fprintf(file,
                 "// %s.hpp: the %s messages for C++20; ifit_codec.hpp explains. Printed from the catalogue by `./run "
                 "headers`;\n// do not edit.\n",
                 name, name);
    const std::string guard = "KESTO_" + upper(module.name) + "_HPP";
    std::fprintf(file, "#ifndef %s\n#define %s\n\n", guard.c_str(), guard.c_str());
    std::fprintf(file, "#include \"%s.h\"\n#include \"ifit_codec.hpp\"\n\nnamespace ifit_codec {\n", name);
    for (const Message* message : module.messages)
        print_traits(file, *message);
    std::fputs("\n}   // namespace ifit_codec\n\n#endif\n", file);
}

}   // namespace

int main(int argc, char** argv)
{
    const int result = print_files(argc, argv, ".h", print_module);
    return result != 0 ? result : print_files(argc, argv, ".hpp", print_traits_of_module);
}
