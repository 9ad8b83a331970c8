// kesto: explains, decodes, encodes and compares byte strings of the catalogue's messages.

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <cstdio>

#include "tools/kesto/commands.h"

namespace {

using namespace kesto::command;

const std::map<std::string, InputFormat> input_formats{
    {"auto", InputFormat::automatic}, {"bytes", InputFormat::bytes}, {"hex", InputFormat::hex}};
const std::map<std::string, ColourChoice> colour_choices{
    {"auto", ColourChoice::automatic}, {"always", ColourChoice::always}, {"never", ColourChoice::never}};
const std::map<std::string, Form> forms{{"sent", Form::as_sent}, {"compact", Form::compact}, {"fixed", Form::fixed}};

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
        ->type_name(fmt::format("{}", fmt::join(words, "|")));
}

// What `explain` and `decode` read.
struct Source {
    std::string message;
    std::string file = "-";
    std::string hex;
    InputFormat format = InputFormat::automatic;

    void add_to(CLI::App& app)
    {
        app.add_option("MESSAGE", message, "name or id of the message");
        app.add_option("FILE", file, "the byte string; - for standard input (the default)");
        add_format(app);
        app.add_option("--hex", hex, "the byte string itself, as in \"04 00 00 00\"")->type_name("TEXT");
    }

    void add_format(CLI::App& app)
    {
        add_choice(app, "--input-format", format, input_formats, "how files hold bytes; auto takes hex text for hex");
    }

    Bytes bytes() const { return hex.empty() ? read_bytes(file, format) : bytes_from_hex(hex); }
};

struct Explain {
    Source source;
    ExplainChoices choices;

    explicit Explain(CLI::App& app)
    {
        CLI::App& self = *app.add_subcommand("explain", "Show what every byte means, and which check refuses them");
        source.add_to(self);
        add_choice(self, "--color", choices.colour, colour_choices, "colours; auto: on a terminal, without NO_COLOR");
        self.add_flag("--json", choices.json, "print JSON");
        self.add_option("--html", choices.html, "write a page to look at in a browser")->type_name("FILE");
        self.add_flag("--all", choices.whole, "show long payloads to the last byte");
        self.add_option_function<u32>(
                "--pointers", [this](u32 bits) { choices.options.pointer_width = bits / 8; },
                "reckon memory for a process of 32 or 64 bits")
            ->check(CLI::IsMember({32, 64}))
            ->type_name("32|64");
    }

    int run() const { return explain_bytes(message_named(source.message), source.bytes(), choices); }
};

struct Decode {
    Source source;
    DecodeChoices choices;

    explicit Decode(CLI::App& app)
    {
        CLI::App& self = *app.add_subcommand("decode", "Print the record as JSON");
        source.add_to(self);
        self.add_flag("--line", choices.compact_json, "all in one line");
        self.add_option("--memory", choices.most_memory, "refuse what takes more bytes of memory (64 MiB)")
            ->type_name("BYTES");
    }

    int run() const { return decode_bytes(message_named(source.message), source.bytes(), choices); }
};

struct Encode {
    std::string message;
    std::string file = "-";
    EncodeChoices choices;

    explicit Encode(CLI::App& app)
    {
        CLI::App& self = *app.add_subcommand("encode", "Write the bytes of a record that is given as JSON");
        self.add_option("MESSAGE", message, "name or id of the message")->required();
        self.add_option("FILE", file, "the JSON; - for standard input (the default)");
        add_choice(self, "--form", choices.form, forms, "compact as X__pack writes it, fixed, or the one that is sent");
        self.add_option("-o,--output", choices.output, "the file to write")->type_name("FILE");
        self.add_flag("--hex", choices.hex, "write hex text; a terminal gets it anyway");
    }

    int run() const { return encode_json(message_named(message), read_text(file), file, choices); }
};

int run(int argc, char** argv)
{
    CLI::App app("Explains, decodes, encodes and compares KESTO byte strings.", "kesto");
    app.require_subcommand(1);
    app.failure_message(CLI::FailureMessage::simple);
    const Explain explain(app);
    const Decode decode(app);
    const Encode encode(app);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : unusable;
    }
    if (app.got_subcommand("explain"))
        return explain.run();
    if (app.got_subcommand("decode"))
        return decode.run();
    return encode.run();
}

}   // namespace

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const Fault& fault) {
        fmt::print(stderr, "kesto: {}\n", fault.what());
    } catch (const std::exception& error) {
        fmt::print(stderr, "kesto: {}\n", error.what());
    }
    return unusable;
}
