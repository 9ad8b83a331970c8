// The sub-commands for a message and its bytes. All return the exit status: 0 for accepted or equal, 1 for refused or
// different.
#pragma once

#include "tools/kesto/explain.h"
#include "tools/kesto/input.h"

namespace kesto::command {

enum Result { accepted = 0, refused = 1, unusable = 2 };

struct ExplainChoices {
    ExplainOptions options;
    ColourChoice colour = ColourChoice::automatic;
    bool json = false;
    bool whole = false;
    std::string html;   // output file, empty for none
};

int explain_bytes(const Message& message, std::span<const u8> bytes, const ExplainChoices& choices);

// If there is something odd, also lists other messages that the bytes may be meant for.
Explanation explain_fully(const Message& message, std::span<const u8> bytes, const ExplainOptions& options);

// Explains the bytes without a message.
int explain_raw(std::span<const u8> bytes, bool json);

// The messages whose writers produce exactly these bytes, and all messages that accept them.
struct Fitting {
    std::vector<std::string> written_so;
    std::vector<std::string> accepted;
    u32 given_up = 0;     // messages that would exceed the remaining read budget
    u64 bytes_read = 0;   // by all of them
};

// Each message may read a limited number of bytes; repeated reads count again. A byte string of more than 1 MiB fits no
// message.
Fitting fitting_messages(std::span<const u8> bytes, u64 most_read_by_each);

struct DecodeChoices {
    u64 most_memory = 256 << 20;   // for the record and its JSON
    bool compact_json = false;     // on one line
};

int decode_bytes(const Message& message, std::span<const u8> bytes, const DecodeChoices& choices);

enum class Form { as_sent, compact, fixed };

struct EncodeChoices {
    Form form = Form::as_sent;
    std::string output = "-";
    bool hex = false;
};

int encode_json(const Message& message, const std::string& text, const std::string& where,
                const EncodeChoices& choices);

struct DiffChoices {
    ColourChoice colour = ColourChoice::automatic;
    bool json = false;
};

int compare(const Record& left, const Record& right, const DiffChoices& choices);

struct ListChoices {
    bool names = false;   // only names, one per line
    bool json = false;
};

int list_messages(const std::string& pattern, const ListChoices& choices);
int show_message(const Message& message, bool json);
int show_sizes(const Message& message, bool json);
int show_sizes(const Record& record, bool json);

// Decodes for `decode` and `diff`. Reports a refusal on standard error and then returns no record. Throws a Fault if
// record and JSON would exceed the memory limit.
std::optional<Record> decoded(const Message& message, std::span<const u8> bytes, u64 most_memory,
                              const std::string& where);

// Accepted or refused, without ranges; given up if record and JSON would exceed the memory limit.
Explanation explain_verdict(const Message& message, std::span<const u8> bytes, u64 most_memory);
std::string given_up_text(u64 most_memory);

Record record_of(const Explanation& accepted);

// The bytes that X__pack writes or that are sent in fixed form. Throws a Fault if the message has no fixed form.
Bytes encoded(const Record& record, Form form);

// Throws a Fault that suggests similar names, or lists the messages if the text names several.
const Message& message_named(const std::string& name);

// The same for a name that comes with bytes. A routine that decodes a nested message, as in X_unpack_non_root, stands for
// the message around it whose decoder logs that name at these bytes; a Fault lists the messages if several may do so.
const Message& message_for_bytes(const std::string& name, std::span<const u8> bytes);

}   // namespace kesto::command
