// Generates from the catalogue what the contenders need for each measured message: schemas, and the code that a user of
// the peer would write to fill its objects from a plain record and to read them back.
//
//   print_adapters FOLDER

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/messages.h"
#include "model/catalogue.h"

using namespace kesto::model;

namespace {

using Messages = std::vector<const Message*>;

// Each message once, after the messages nested in it.
void add(const Message& message, Messages& all)
{
    for (const Slot& slot : message.slots)
        if (slot.nested != nullptr)
            add(*slot.nested, all);
    for (const Message* each : all)
        if (each == &message)
            return;
    all.push_back(&message);
}

// Names without underscores, as Cap'n Proto requires.
std::string camel_case(const std::string& name)
{
    std::string camel;
    bool up = true;
    for (const char c : name) {
        if (c != '_')
            camel += up ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
        up = c == '_';
    }
    return camel;
}

// ---- templates: text with placeholders such as $m, for a message or one of its slots ----

std::string word(char letter, const Message& message, const Slot* slot)
{
    const auto number = static_cast<std::size_t>(slot - message.slots.data());
    switch (letter) {
    case 'm': return message.name;
    case 'M': return camel_case(message.name);
    case 'f': return slot->field;   // name in the record
    case 'k': return std::to_string(number);
    case 't': return std::to_string(number + 1);
    case 'n': return slot->nested->name;
    case 'N': return camel_case(slot->nested->name);
    case 'b': return std::to_string(8 * slot->width);
    case 'c': return std::to_string(slot->count);
    default: std::abort();
    }
}

std::string filled(const char* text, const Message& message, const Slot* slot = nullptr)
{
    std::string out;
    for (; *text != '\0'; ++text)
        out += *text == '$' ? word(*++text, message, slot) : std::string(1, *text);
    return out;
}

// The line printed for a slot, by kind; nothing if the kind has no line.
struct Lines {
    const char* scalar = "";
    const char* narrow = nullptr;   // a scalar below 32 bits; null: same as scalar
    const char* text = "";
    const char* block = "";
    const char* octets = "";   // an array of u8
    const char* words = "";    // an array of u32
    const char* table = "";
    const char* vector = "";

    const char* for_slot(const Slot& slot) const
    {
        switch (slot.kind) {
        case Kind::scalar: return slot.width < 4 && narrow != nullptr ? narrow : scalar;
        case Kind::string: return text;
        case Kind::bytes: return block;
        case Kind::array: return slot.width == 1 ? octets : words;
        case Kind::table: return table;
        case Kind::vector: return vector;
        }
        return "";
    }
};

// Text around the slots' lines, such as a function or a schema structure.
struct Part {
    const char* head = "";
    Lines lines = {};
    const char* tail = "";
};

std::string each(const Messages& messages, std::initializer_list<Part> parts)
{
    std::string out;
    for (const Message* message : messages)
        for (const Part& part : parts) {
            out += filled(part.head, *message);
            for (const Slot& slot : message->slots)
                out += filled(part.lines.for_slot(slot), *message, &slot);
            out += filled(part.tail, *message);
        }
    return out;
}

const std::string includes =
    "#include \"ifit.h\"\n#include \"ifit_dfx.h\"\n#include \"ifit_sync.h\"\n#include \"ntvifit.h\"\n";

std::string source(const std::string& headers, const std::string& content, const std::string& spans)
{
    return headers + "#include \"release.h\"\n\nnamespace kesto::bench {\n\nnamespace {\n" + content +
           "\n}   // namespace\n\n" + spans + "\n}   // namespace kesto::bench\n";
}

std::string codecs(const Messages& roots, const std::string& name, const std::string& line)
{
    return "\nconst Codec " + name + "_codecs[] = {\n" + each(roots, {{line.c_str()}}) + "};\n";
}

std::string span(const std::string& name)
{
    return "const std::span<const Codec> " + name + " = " + name + "_codecs;\n";
}

constexpr const char codec_line[] = "    {\"$m\", encode_$m, decode_$m, release_$m},\n";

// ---- release functions, for all but ours ----

std::string release(const Messages& roots, const Messages& all)
{
    const Lines lines = {.text = "    std::free(in.$f);\n",
                         .block = "    std::free(in.$f.data);\n",
                         .table = "    release(in.$f);\n",
                         .vector = R"(    for (u32 i = 0; i < in.$f.count; ++i)
        release(in.$f.items[i]);
    std::free(in.$f.items);
)"};
    return "#pragma once\n#include \"bench/contender.h\"\n" + includes + "\nnamespace kesto::bench {\n" +
           each(all, {{"\ninline void release([[maybe_unused]] const ::$m& in)\n{\n", lines, "}\n"}}) +
           each(roots, {{"\ninline void release_$m(void* record) { release(*static_cast<const ::$m*>(record)); }\n"}}) +
           "\n}   // namespace kesto::bench\n";
}

// ---- the limit: the raw record, then its texts, blocks and elements end to end in slot order ----

std::string limit(const Messages& roots, const Messages& all)
{
    const Lines store = {.text = R"(        if (in.$f != nullptr)
            to = put<Copy>(to, in.$f, std::strlen(in.$f) + 1);
)",
                         .block = R"(        if (in.$f.data != nullptr)
            to = put<Copy>(to, in.$f.data, in.$f.length);
)",
                         .table = "        to = store(in.$f, to);\n",
                         .vector = R"(        if (in.$f.items != nullptr)
            to = put<Copy>(to, in.$f.items, in.$f.count * sizeof(::$n));
        for (u32 i = 0; i < in.$f.count; ++i)
            to = store(in.$f.items[i], to);
)"};
    const Lines load = {.text = R"(        if (out.$f != nullptr)
            from = get<Copy>(out.$f, from, std::strlen(reinterpret_cast<const char*>(from)) + 1);
)",
                        .block = R"(        if (out.$f.data != nullptr)
            from = get<Copy>(out.$f.data, from, out.$f.length);
)",
                        .table = "        from = load(out.$f, from);\n",
                        .vector = R"(        if (out.$f.items != nullptr)
            from = get<Copy>(out.$f.items, from, out.$f.count * sizeof(::$n));
        for (u32 i = 0; i < out.$f.count; ++i)
            from = load(out.$f.items[i], from);
)"};
    const std::string parts =
        each(all, {{"\n    static u8* store([[maybe_unused]] const ::$m& in, u8* to)\n    {\n", store,
                    "        return to;\n    }\n"},
                   {"\n    static const u8* load([[maybe_unused]] ::$m& out, const u8* from)\n    {\n", load,
                    "        return from;\n    }\n"}});
    const std::string operations = each(roots, {{R"(
    static int encode_$m(const void* record, u8* buffer, u32* length)
    {
        u8* const end = put<Copy>(buffer, record, sizeof(::$m));
        *length = static_cast<u32>(store(*static_cast<const ::$m*>(record), end) - buffer);
        return 0;
    }

    static u32 decode_$m(const u8* bytes, u32, void* record)
    {
        Copy::copy(record, bytes, sizeof(::$m));
        load(*static_cast<::$m*>(record), bytes + sizeof(::$m));
        return sizeof(::$m);
    }
)"}});
    const auto with = [&](const std::string& name, const std::string& copy) {
        return codecs(roots, name,
                      "    {\"$m\", Limit<" + copy + ">::encode_$m, Limit<" + copy + ">::decode_$m, release_$m},\n");
    };
    return source("#include \"bench/limit.h\"\n",
                  "\ntemplate <class Copy>\nstruct Limit {" + parts + operations + "};\n" +
                      with("limit_memcpy", "Memcpy") + with("limit_moves", "Moves"),
                  span("limit_memcpy") + span("limit_moves"));
}

// ---- protobuf ----

std::string proto(const Messages& all, const std::string& package)
{
    // With explicit presence, clearing keeps a table's object; without it, every parse would allocate one in the arena.
    const Lines lines = {.scalar = "    fixed$b f$k = $t;\n",
                         .narrow = "    uint32 f$k = $t;\n",
                         .text = "    optional bytes f$k = $t;\n",
                         .block = "    optional bytes f$k = $t;\n",
                         .octets = "    bytes f$k = $t;\n",
                         .words = "    repeated fixed32 f$k = $t;\n",
                         .table = "    optional $n f$k = $t;\n",
                         .vector = "    repeated $n f$k = $t;\n"};
    return "syntax = \"proto3\";\npackage " + package + ";\n" + each(all, {{"\nmessage $m {\n", lines, "}\n"}});
}

std::string protobuf(const Messages& roots, const Messages& all)
{
    const Lines fill = {.scalar = "    out.set_f$k(in.$f);\n",
                        .text = R"(    if (in.$f != nullptr)
        out.set_f$k(in.$f);
    else
        out.clear_f$k();
)",
                        .block = R"(    if (in.$f.data != nullptr)
        out.set_f$k(in.$f.data, in.$f.length);
    else
        out.clear_f$k();
)",
                        .octets = "    out.set_f$k(in.$f, sizeof in.$f);\n",
                        .words = "    fill_words(*out.mutable_f$k(), in.$f);\n",
                        .table = "    fill(in.$f, *out.mutable_f$k());\n",
                        .vector = R"(    resize(*out.mutable_f$k(), in.$f.count);
    for (u32 i = 0; i < in.$f.count; ++i)
        fill(in.$f.items[i], *out.mutable_f$k(static_cast<int>(i)));
)"};
    const Lines read = {.scalar = "    out.$f = in.f$k();\n",
                        .narrow = "    out.$f = static_cast<u$b>(in.f$k());\n",
                        .text = "    out.$f = in.has_f$k() ? copy_of_text(in.f$k()) : nullptr;\n",
                        .block = R"(    out.$f.length = static_cast<u32>(in.f$k().size());
    out.$f.data = in.has_f$k() ? copy_of_block(in.f$k()) : nullptr;
)",
                        .octets = "    read_array(in.f$k(), out.$f);\n",
                        .words = "    read_array(in.f$k(), out.$f);\n",
                        .table = "    read(in.f$k(), out.$f);\n",
                        .vector = R"(    out.$f.count = static_cast<u32>(in.f$k_size());
    out.$f.items = elements<::$n>(out.$f.count);
    for (u32 i = 0; i < out.$f.count; ++i)
        read(in.f$k(static_cast<int>(i)), out.$f.items[i]);
)"};
    const std::string parts = each(all, {{"\nvoid fill(const ::$m& in, peer_protobuf::$m& out)\n{\n", fill, "}\n"},
                                         {"\nvoid read(const peer_protobuf::$m& in, ::$m& out)\n{\n", read, "}\n"}});
    const std::string operations = each(roots, {{R"(
Reused<peer_protobuf::$m> $m_out, $m_in;

int encode_$m(const void* record, u8* buffer, u32* length)
{
    fill(*static_cast<const ::$m*>(record), $m_out.message);
    return write($m_out.message, buffer, length);
}

u32 decode_$m(const u8* bytes, u32 length, void* record)
{
    if (!$m_in.message.ParseFromArray(bytes, static_cast<int>(length)))
        return 0;
    read($m_in.message, *static_cast<::$m*>(record));
    return sizeof(::$m);
}
)"}});
    return source("#include \"bench/protobuf.h\"\n#include \"peer_protobuf.pb.h\"\n",
                  parts + operations + codecs(roots, "protobuf", codec_line), span("protobuf"));
}

// ---- Cap'n Proto ----

std::string capnp_schema(const Messages& all)
{
    const Lines lines = {.scalar = "    f$k @$k :UInt$b;\n",
                         .text = "    f$k @$k :Text;\n",
                         .block = "    f$k @$k :Data;\n",
                         .octets = "    f$k @$k :Data;\n",
                         .words = "    f$k @$k :List(UInt32);\n",
                         .table = "    f$k @$k :$N;\n",
                         .vector = "    f$k @$k :List($N);\n"};
    return "@0xb1d7f2c49a5e3806;\nusing Cxx = import \"/capnp/c++.capnp\";\n$Cxx.namespace(\"peer_capnp\");\n" +
           each(all, {{"\nstruct $M {\n", lines, "}\n"}});
}

std::string capnp(const Messages& roots, const Messages& all)
{
    const Lines fill = {.scalar = "    out.setF$k(in.$f);\n",
                        .text = "    if (in.$f != nullptr)\n        out.setF$k(in.$f);\n",
                        .block = "    if (in.$f.data != nullptr)\n        out.setF$k({in.$f.data, in.$f.length});\n",
                        .octets = "    out.setF$k({in.$f, sizeof in.$f});\n",
                        .words = "    fill_words(out.initF$k($c), in.$f);\n",
                        .table = "    fill(in.$f, out.initF$k());\n",
                        .vector = R"(    auto elements_$k = out.initF$k(in.$f.count);
    for (u32 i = 0; i < in.$f.count; ++i)
        fill(in.$f.items[i], elements_$k[i]);
)"};
    const Lines read = {.scalar = "    out.$f = in.getF$k();\n",
                        .text = "    out.$f = in.hasF$k() ? copy_of_text(in.getF$k()) : nullptr;\n",
                        .block = R"(    const auto block_$k = in.getF$k();
    out.$f.length = static_cast<u32>(block_$k.size());
    out.$f.data = in.hasF$k() ? copy_of_block(block_$k) : nullptr;
)",
                        .octets = "    read_octets(in.getF$k(), out.$f);\n",
                        .words = "    read_words(in.getF$k(), out.$f);\n",
                        .table = "    read(in.getF$k(), out.$f);\n",
                        .vector = R"(    const auto elements_$k = in.getF$k();
    out.$f.count = elements_$k.size();
    out.$f.items = elements<::$n>(out.$f.count);
    for (u32 i = 0; i < out.$f.count; ++i)
        read(elements_$k[i], out.$f.items[i]);
)"};
    const std::string parts = each(all, {{"\nvoid fill(const ::$m& in, peer_capnp::$M::Builder out)\n{\n", fill, "}\n"},
                                         {"\nvoid read(peer_capnp::$M::Reader in, ::$m& out)\n{\n", read, "}\n"}});
    const std::string operations = each(roots, {{R"(
int encode_$m(const void* record, u8* buffer, u32* length)
{
    capnp::MallocMessageBuilder message(scratch());
    fill(*static_cast<const ::$m*>(record), message.initRoot<peer_capnp::$M>());
    return write(message, buffer, length);
}

u32 decode_$m(const u8* bytes, u32 length, void* record)
{
    capnp::FlatArrayMessageReader message(words_of(bytes, length), options());
    read(message.getRoot<peer_capnp::$M>(), *static_cast<::$m*>(record));
    return sizeof(::$m);
}
)"}});
    return source("#include \"bench/capnp.h\"\n#include \"peer_capnp.capnp.h\"\n",
                  parts + operations + codecs(roots, "capnproto", codec_line), span("capnproto"));
}

// ---- nanopb ----

// Scalars have their own width and arrays are inline; texts, blocks and vectors remain callbacks.
std::string nanopb_options(const Messages& all)
{
    const Lines lines = {.narrow = "peer_nanopb.$m.f$k int_size:IS_$b\n",
                         .octets = "peer_nanopb.$m.f$k max_size:$c fixed_length:true\n",
                         .words = "peer_nanopb.$m.f$k max_count:$c fixed_count:true\n"};
    return each(all, {{"", lines}});
}

std::string nanopb(const Messages& roots, const Messages& all)
{
    const Lines fill = {.scalar = "        out.f$k = in.$f;\n",
                        .text = "        out.f$k = encoding(put_text, in.$f);\n",
                        .block = "        out.f$k = encoding(put_block<decltype(in.$f)>, &in.$f);\n",
                        .octets = "        std::memcpy(out.f$k, in.$f, sizeof in.$f);\n",
                        .words = "        std::memcpy(out.f$k, in.$f, sizeof in.$f);\n",
                        .table = "        out.has_f$k = true;\n        Peer_$n::fill(in.$f, out.f$k);\n",
                        .vector = "        out.f$k = encoding(put_vector<decltype(in.$f), Peer_$n>, &in.$f);\n"};
    // Fields without storage in the peer's structure are decoded directly into the record.
    const Lines prepare = {.text = "        out.$f = nullptr;\n        in.f$k = decoding(get_text, &out.$f);\n",
                           .block = R"(        out.$f = {};
        in.f$k = decoding(get_block<decltype(out.$f)>, &out.$f);
)",
                           .table = "        Peer_$n::prepare(in.f$k, out.$f);\n",
                           .vector = R"(        out.$f = {};
        in.f$k = decoding(get_element<decltype(out.$f), Peer_$n>, &out.$f);
)"};
    const Lines read = {.scalar = "        out.$f = in.f$k;\n",
                        .octets = "        std::memcpy(out.$f, in.f$k, sizeof out.$f);\n",
                        .words = "        std::memcpy(out.$f, in.f$k, sizeof out.$f);\n",
                        .table = "        Peer_$n::read(in.f$k, out.$f);\n"};
    const std::string parts =
        each(all, {{R"(
struct Peer_$m {
    using Message = peer_nanopb_$m;
    static constexpr const pb_msgdesc_t& fields = peer_nanopb_$m_msg;
)"},
                   {"\n    static void fill(const ::$m& in, Message& out)\n    {\n", fill, "    }\n"},
                   {"\n    static void prepare(Message& in, ::$m& out)\n    {\n", prepare, "    }\n"},
                   {"\n    static void read(const Message& in, ::$m& out)\n    {\n", read, "    }\n};\n"}});
    const std::string operations = each(roots, {{R"(
int encode_$m(const void* record, u8* buffer, u32* length)
{
    return encode<Peer_$m>(*static_cast<const ::$m*>(record), buffer, length);
}

u32 decode_$m(const u8* bytes, u32 length, void* record)
{
    return decode<Peer_$m>(bytes, length, *static_cast<::$m*>(record));
}
)"}});
    return source("#include \"bench/nanopb.h\"\n#include \"peer_nanopb.pb.h\"\n",
                  parts + operations + codecs(roots, "nanopb", codec_line), span("nanopb"));
}

void write(const std::string& path, const std::string& content)
{
    std::FILE* const file = std::fopen(path.c_str(), "w");
    if (file == nullptr || std::fputs(content.c_str(), file) < 0 || std::fclose(file) != 0) {
        std::perror(path.c_str());
        std::exit(1);
    }
}

}   // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    Messages roots, all;
    for (const char* name : kesto::bench::measured_messages) {
        const Message* const message = catalogue().find(name);
        if (message == nullptr) {
            std::fprintf(stderr, "no message %s\n", name);
            return 1;
        }
        roots.push_back(message);
        add(*message, all);
    }
    const std::string folder = std::string(argv[1]) + "/";
    write(folder + "release.h", release(roots, all));
    write(folder + "limit.cpp", limit(roots, all));
    write(folder + "peer_protobuf.proto", proto(all, "peer_protobuf"));
    write(folder + "protobuf.cpp", protobuf(roots, all));
    write(folder + "peer_capnp.capnp", capnp_schema(all));
    write(folder + "capnp.cpp", capnp(roots, all));
    write(folder + "peer_nanopb.proto", proto(all, "peer_nanopb"));
    write(folder + "peer_nanopb.options", nanopb_options(all));
    write(folder + "nanopb.cpp", nanopb(roots, all));
    return 0;
}
