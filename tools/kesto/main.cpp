// kesto: explains, decodes, encodes and compares byte strings of the catalogue's messages.

#include <CLI/CLI.hpp>
#include <cstdio>
#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

#include "model/json.h"
#include "tools/kesto/glance.h"
#include "tools/kesto/names.h"
#include "tools/kesto/quoting.h"
#include "tools/kesto/terminal.h"

namespace {

using namespace kesto::command;

const std::map<std::string, InputFormat> input_formats{
    {"auto", InputFormat::automatic}, {"bytes", InputFormat::bytes}, {"hex", InputFormat::hex}};
const std::map<std::string, ColourChoice> colour_choices{
    {"auto", ColourChoice::automatic}, {"always", ColourChoice::always}, {"never", ColourChoice::never}};
const std::map<std::string, Form> forms{{"sent", Form::as_sent}, {"compact", Form::compact}, {"fixed", Form::fixed}};

constexpr std::size_t help_column = 30;   // where CLI11 begins to describe an option

constexpr const char message_help[] = "the message: its name, its id, a routine of it, or the log line that names one";

template <class Value>
CLI::Option* add_choice(CLI::App& app, const std::string& name, Value& value,
                        const std::map<std::string, Value>& values, const std::string& help)
{
    std::vector<std::string> words;
    for (const auto& [word, meaning] : values)
        words.push_back(word);
    return app
        .add_option_function<std::string>(
            name, [&value, &values](const std::string& word) { value = values.at(word); }, help)
        ->check(CLI::IsMember(words))
        ->type_name("WORD");
}

CLI::Option* add_page(CLI::App& app, std::string& file)
{
    return app.add_option("--html", file, "write a page to look at in a browser")->type_name("FILE");
}

void add_colour(CLI::App& app, ColourChoice& colour)
{
    add_choice(app, "--color", colour, colour_choices, "colours; auto: on a terminal, without NO_COLOR");
}

void add_format(CLI::App& app, InputFormat& format)
{
    add_choice(app, "--input-format", format, input_formats, "how files hold bytes; auto takes hex text for hex");
}

void add_memory(CLI::App& app, u64& most)
{
    app.add_option("--memory", most, "do not decode what takes kesto more memory (256 MiB)")->type_name("BYTES");
}

// The input of `explain` and `decode`: one byte string, or the packets of a capture.
struct Source {
    std::string message;
    std::string file = "-";
    std::optional<std::string> hex;
    InputFormat format = InputFormat::automatic;
    PacketChoices packets;
    std::string packets_of;   // selects packets by message

    void add_to(CLI::App& app)
    {
        CLI::Option* const name = app.add_option("MESSAGE", message, message_help);
        CLI::Option* const path = app.add_option("FILE", file, "the byte string; - for standard input (the default)");
        add_format(app, format);
        CLI::Option* const text = app.add_option("--hex", hex, "the byte string itself, as in \"04 00 00 00\"");
        text->type_name("TEXT")->excludes(path);
        CLI::Option* const capture =
            app.add_option("--pcap", packets.file, "every packet of a capture, message by the packet's id");
        capture->type_name("FILE")->excludes(name)->excludes(path)->excludes(text);
        app.add_option("--packet", packets.number, "of a capture: only the packet of this number, from 1")
            ->type_name("N")
            ->needs(capture)
            ->check(CLI::Range(u32{1}, UINT32_MAX));
        app.add_option("--message", packets_of, "of a capture: only the packets of this message")
            ->type_name("NAME")
            ->needs(capture);
    }

    bool is_capture() const { return !packets.file.empty(); }

    PacketChoices packets_meant() const
    {
        PacketChoices which = packets;
        if (!packets_of.empty())
            which.message = &message_named(packets_of);
        return which;
    }

    void need_message() const
    {
        if (message.empty())
            throw Fault("a MESSAGE is needed, by name, id or log line; `kesto explain --raw` does without, and --pcap");
    }

    // The only word on a command line that does not name a message.
    void take_message_for_file()
    {
        if (!message.empty() && (file != "-" || hex))
            throw Fault("--raw takes a FILE and no MESSAGE");
        if (!message.empty())
            file = message;
    }

    Bytes bytes() const { return hex ? bytes_from_hex(*hex) : read_bytes(file, format); }
};

struct Explain {
    Source source;
    ExplainChoices choices;
    bool raw = false;

    explicit Explain(CLI::App& app)
    {
        CLI::App& self =
            *app.add_subcommand("explain", "Show what every byte means, and which check refuses the byte string");
        source.add_to(self);
        add_colour(self, choices.colour);
        self.add_flag("--json", choices.json, "print JSON");
        CLI::Option* const html = add_page(self, choices.html);
        self.add_flag("--raw", raw, "without a message: what the bytes themselves tell")->excludes(html);
        self.add_flag("--all", choices.whole, "show long payloads to the last byte");
        self.add_option_function<u32>(
                "--pointers", [this](u32 bits) { choices.options.pointer_width = bits / 8; },
                "reckon memory for a process of 32 or 64 bits")
            ->check(CLI::IsMember({32, 64}))
            ->type_name("WORD");
    }

    int run()
    {
        if (source.is_capture() && !choices.html.empty() && source.packets.number == 0)
            throw Fault("--html takes one packet of a capture: --packet is needed");
        if (source.is_capture())
            return raw ? explain_raw_packets(source.packets_meant(), choices.json)
                       : explain_packets(source.packets_meant(), choices);
        if (raw) {
            source.take_message_for_file();
            return explain_raw(source.bytes(), choices.json);
        }
        source.need_message();
        const Bytes bytes = source.bytes();
        return explain_bytes(message_for_bytes(source.message, bytes), bytes, choices);
    }
};

struct Decode {
    Source source;
    DecodeChoices choices;

    explicit Decode(CLI::App& app)
    {
        CLI::App& self = *app.add_subcommand("decode", "Print the record as JSON");
        source.add_to(self);
        self.add_flag("--line", choices.compact_json, "all in one line");
        add_memory(self, choices.most_memory);
    }

    int run() const
    {
        if (source.is_capture())
            return decode_packets(source.packets_meant(), choices);
        source.need_message();
        const Message& message = message_named(source.message);
        return decode_bytes(message, source.bytes(), choices);
    }
};

struct Encode {
    std::string message;
    std::string file = "-";
    EncodeChoices choices;

    explicit Encode(CLI::App& app)
    {
        CLI::App& self = *app.add_subcommand("encode", "Write the bytes of a record that is given as JSON");
        self.add_option("MESSAGE", message, message_help)->required();
        self.add_option("FILE", file, "the JSON; - for standard input (the default)");
        add_choice(self, "--form", choices.form, forms, "compact as X__pack writes it, fixed, or the one that is sent");
        self.add_option("-o,--output", choices.output, "the file to write")->type_name("FILE");
        self.add_flag("--hex", choices.hex, "write hex text; a terminal gets it anyway");
    }

    int run() const
    {
        const Message& meant = message_named(message);
        return encode_json(meant, read_text(file), file, choices);
    }
};

struct Diff {
    std::string message, left, right;
    std::vector<std::string> captures;
    std::vector<u64> packets;
    InputFormat format = InputFormat::automatic;
    DiffChoices choices;
    u64 most_memory = DecodeChoices{}.most_memory;

    explicit Diff(CLI::App& app)
    {
        CLI::App& self = *app.add_subcommand("diff", "Compare the records of two byte strings, whatever their forms");
        self.add_option("MESSAGE", message, message_help);
        self.add_option("A", left, "a byte string; - for standard input");
        self.add_option("B", right, "another");
        CLI::Option* const capture =
            self.add_option("--pcap", captures, "a capture with one of the packets; twice for two captures")
                ->type_name("FILE")
                ->allow_extra_args(false);
        self.add_option("--packet", packets, "a packet instead of A; twice for A and B")
            ->type_name("N")
            ->needs(capture)
            ->allow_extra_args(false);
        add_format(self, format);
        add_colour(self, choices.colour);
        self.add_flag("--json", choices.json, "print JSON");
        add_memory(self, most_memory);
    }

    Record read(const Message& of, const Bytes& bytes, const std::string& where) const
    {
        std::optional<Record> record = decoded(of, bytes, most_memory, where);
        if (!record)
            throw Fault("refused, so there is nothing to compare");
        return *record;
    }

    // With one packet, the only word on the command line is the file of the other byte string.
    int run_with_packets() const
    {
        const bool is_one = packets.size() == 1;
        if (packets.empty() || packets.size() > 2 || captures.size() > packets.size())
            throw Fault("--packet is needed once or twice, --pcap as often or once");
        if (is_one == message.empty() || !left.empty())
            throw Fault(is_one ? "one --packet is compared with one FILE; two packets with each other"
                               : "two packets are compared without MESSAGE, A and B");
        const PacketCopy a = message_packet(captures.front(), packets.front());
        const std::string name = "packet " + std::to_string(a.number);
        if (is_one)
            return compare(read(*a.message, a.bytes, name), read(*a.message, read_bytes(message, format), message),
                           choices);
        const PacketCopy b = message_packet(captures.back(), packets.back());
        if (a.message != b.message)
            throw Fault("the packets are different messages: " + a.message->name + ", " + b.message->name);
        return compare(read(*a.message, a.bytes, name), read(*b.message, b.bytes, "packet " + std::to_string(b.number)),
                       choices);
    }

    int run() const
    {
        if (!captures.empty())
            return run_with_packets();
        if (right.empty())
            throw Fault("MESSAGE, A and B are needed, or --pcap and --packet");
        const Message& of = message_named(message);
        return compare(read(of, read_bytes(left, format), left), read(of, read_bytes(right, format), right), choices);
    }
};

struct Summary {
    std::string file;
    GlanceChoices choices;

    explicit Summary(CLI::App& app)
    {
        CLI::App& self = *app.add_subcommand("summary", "Show what a capture holds, message by message");
        self.add_option("CAPTURE", file, "the capture; - for standard input")->required();
        add_colour(self, choices.colour);
        self.add_flag("--json", choices.json, "print JSON");
        add_page(self, choices.html);
    }

    int run() const { return summarise_capture(file, choices); }
};

struct Compare {
    std::string sent, received;
    GlanceChoices choices;

    explicit Compare(CLI::App& app)
    {
        CLI::App& self = *app.add_subcommand("compare", "Show which packets are missing, doubled or changed");
        self.add_option("SENT", sent, "the sender's capture")->required();
        self.add_option("RECEIVED", received, "the receiver's")->required();
        add_colour(self, choices.colour);
        self.add_flag("--json", choices.json, "print JSON, with everything");
        add_page(self, choices.html);
        self.add_flag("--all", choices.whole, "list all packets and fields that differ");
    }

    int run() const { return compare_captures(sent, received, choices); }
};

struct List {
    std::string pattern;
    ListChoices choices;

    explicit List(CLI::App& app)
    {
        CLI::App& self = *app.add_subcommand("list", "List the messages with ids and lengths");
        self.add_option("PATTERN", pattern, "only those whose name or id holds this");
        self.add_flag("--names", choices.names, "names only");
        self.add_flag("--json", choices.json, "print JSON");
    }

    int run() const { return list_messages(pattern, choices); }
};

struct Show {
    std::string message;
    bool json = false;

    explicit Show(CLI::App& app)
    {
        CLI::App& self = *app.add_subcommand("show", "Show a message's slots, record and wire forms");
        self.add_option("MESSAGE", message, message_help)->required();
        self.add_flag("--json", json, "print JSON");
    }

    int run() const { return show_message(message_named(message), json); }
};

struct Size {
    std::string message, file;
    bool json = false;

    explicit Size(CLI::App& app)
    {
        CLI::App& self = *app.add_subcommand("size", "Show the lengths of a message, or of a record given as JSON");
        self.add_option("MESSAGE", message, message_help)->required();
        self.add_option("FILE", file, "the JSON; - for standard input");
        self.add_flag("--json", json, "print JSON");
    }

    int run() const
    {
        const Message& meant = message_named(message);
        if (file.empty())
            return show_sizes(meant, json);
        return show_sizes(record_from_named_json(meant, kesto::model::parse_json(read_text(file), file)), json);
    }
};

int run(int argc, char** argv)
{
    CLI::App app("Explains, decodes, encodes and compares KESTO byte strings.", "kesto");
    app.require_subcommand(1);
    app.set_version_flag("--version", KESTO_VERSION);
    app.fallthrough();   // options of the program may follow the sub-command
    std::string names_file;
    app.add_option("--names", names_file, "a file with names of fields, and how to show them")
        ->type_name("FILE")
        ->envname("KESTO_NAMES");
    Explain explain(app);
    Decode decode(app);
    Encode encode(app);
    Diff diff(app);
    Summary summary(app);
    Compare compare(app);
    List list(app);
    Show show(app);
    Size size(app);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) {   // help and version
            std::ostringstream text;
            app.exit(error, text);
            print(folded_for_terminal(text.str(), help_column));
            return accepted;
        }
        std::string reason = error.what();
        if (app.get_subcommands().empty() && dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
            std::string all;
            for (const CLI::App* each : app.get_subcommands({}))
                all += (all.empty() ? "" : ", ") + each->get_name();
            reason = "a sub-command is needed: " + all;
        }
        complain(reason + "; --help tells more");
        return unusable;
    }
    if (!names_file.empty())
        names().read(read_text(names_file), names_file);
    const std::string& chosen = app.get_subcommands().front()->get_name();
    const std::map<std::string, std::function<int()>> verbs = {
        {"explain", [&] { return explain.run(); }}, {"decode", [&] { return decode.run(); }},
        {"encode", [&] { return encode.run(); }},   {"diff", [&] { return diff.run(); }},
        {"summary", [&] { return summary.run(); }}, {"compare", [&] { return compare.run(); }},
        {"list", [&] { return list.run(); }},       {"show", [&] { return show.run(); }},
        {"size", [&] { return size.run(); }},
    };
    return verbs.at(chosen)();
}

}   // namespace

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        complain(error.what());
    }
    return unusable;
}
