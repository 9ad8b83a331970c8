// Prints byte strings with the result that a decoder must produce, for authors of other codecs. The expected results
// come from the model. vectors/README.md explains the files.
//
//   print_vectors FOLDER

#include <fmt/format.h>

#include <cstdio>
#include <nlohmann/json.hpp>

#include "model/encode.h"
#include "model/hex.h"
#include "model/json.h"
#include "model/noncanonical.h"
#include "tools/kesto/explain.h"
#include "tools/kesto/input.h"
#include "tools/print_files.h"
#include "tools/vectors/damage.h"

namespace kesto::vectors {

namespace {

using command::Fault;
using model::Density;
using model::Message;
using model::Random;
using model::Record;
using model::u32;
using model::u8;
using nlohmann::ordered_json;

constexpr std::size_t max_record_bytes = 4000;   // keeps the files small
constexpr std::size_t max_hostile_bytes = 700;
constexpr int max_draws = 1000;   // after which a record is used even if it is too long

using model::to_hex;

ordered_json line_of(const Message& message)
{
    return {{"message", message.name}, {"id", fmt::format("{:#010x}", message.id)}};
}

// ---- records ----

// Random octets are rarely readable text.
void make_readable(Record& record)
{
    for (std::size_t k = 0; k < record.fields.size(); ++k) {
        if (record.message->slots[k].kind == model::Kind::string)
            for (u8& octet : record.fields[k].octets)
                octet = static_cast<u8>(' ' + octet % 95);
        for (Record& nested : record.fields[k].records)
            make_readable(nested);
    }
}

// A record as a decoder leaves it, without the states that only a sender's record can have.
Record drawn_record(const Message& message, Density density, Random& random, std::size_t max_bytes)
{
    for (int draw = 0;; ++draw) {
        Record record = model::as_decoded(model::random_record(message, density, random));
        const bool is_trivial = density != Density::zero && model::is_default(record);
        if ((is_trivial || model::exact_size(record) > max_bytes) && draw < max_draws)
            continue;
        if (density == Density::full)
            make_readable(record);
        return record;
    }
}

std::vector<ordered_json> record_lines(const model::Module& module)
{
    const struct {
        const char* name;
        Density density;
    } cases[] = {{"empty", Density::zero}, {"full", Density::full}, {"boundary", Density::edge}};
    std::vector<ordered_json> lines;
    for (const Message* each_message : module.messages) {
        const Message& message = *each_message;
        Random random(message.id);
        for (const auto& each : cases) {
            const Record record = drawn_record(message, each.density, random, max_record_bytes);
            ordered_json line = line_of(message);
            line["case"] = each.name;
            line["compact"] = to_hex(model::compact_form(record));
            line["fixed"] = nullptr;
            if (message.fixed_length != 0)
                line["fixed"] = to_hex(model::fixed_form(record));
            line["record"] = model::record_json(record);
            lines.push_back(std::move(line));
        }
    }
    return lines;
}

// ---- hostile and noncanonical byte strings ----

ordered_json refusal_json(const Message& root, const model::Failure& failure)
{
    if (!failure)
        return nullptr;
    return {{"code", name_of(failure.refusal)},
            {"path", model::path_text(root, failure.path)},
            {"position", failure.position}};
}

ordered_json hostile_line(const Sample& sample)
{
    static constexpr u8 nothing = 0;   // an empty byte string is not a null pointer
    const Bytes& bytes = sample.bytes;
    model::Outcome outcome;
    model::decode(*sample.message, bytes.empty() ? &nothing : bytes.data(), model::position_of_end(bytes), {}, outcome);

    ordered_json line = line_of(*sample.message);
    line["about"] = sample.about;
    line["hex"] = to_hex(bytes);
    line["refused"] = refusal_json(*sample.message, outcome.failure);
    line["ignored"] = refusal_json(*sample.message, outcome.ignored);
    line["log"] = ordered_json::array();
    for (const model::Event& event : outcome.trace)
        if (event.act == model::Act::log)
            line["log"].push_back(command::log_line(event));
    line["record"] = nullptr;
    if (!outcome.untouched)
        line["record"] = model::record_json(outcome.record);
    return line;
}

void add_by_hand(std::vector<ordered_json>& lines)
{
    for (const ByHand& each : by_hand()) {
        lines.push_back(hostile_line(each.sample));
        const ordered_json& refused = lines.back()["refused"];
        const std::string code = refused.is_null() ? "none" : refused["code"].get<std::string>();
        if (code != each.code)
            throw Fault(fmt::format("{}: expected {}, got {}", each.sample.about, each.code, code));
    }
}

void add_damaged(std::vector<ordered_json>& lines)
{
    // Together these have every kind of slot, in a root, in nested tables and in elements.
    for (const char* name :
         {"ifit_mcp_mesh_delete", "ifit_smooth_end_mesh", "ifit_dfx_query_comm_rec_mesh",
          "ifit_dfx_query_glbdata_rec_mesh", "ifit_dfx_query_stat_rec_mesh", "ifit_flow_tuplev6_mesh",
          "ifit_sync_flow_tuplev6_mesh_update", "ntvifit_flow_tuples", "ntvifit_stats_info_list"}) {
        const Message& message = *model::catalogue().find(name);
        Random random(message.id);
        const Record record = drawn_record(message, Density::full, random, max_hostile_bytes);
        for (const bool fixed : {false, true}) {
            if (fixed && message.fixed_length == 0)
                continue;
            const Sample whole = {fixed ? "fixed form" : "compact form", &message,
                                  fixed ? model::fixed_form(record) : model::compact_form(record)};
            for (const Sample& sample : damaged(whole))
                lines.push_back(hostile_line(sample));
        }
    }
}

void add_noncanonical(std::vector<ordered_json>& lines)
{
    constexpr Density densities[] = {Density::full, Density::sparse, Density::edge};
    for (const Message& message : model::catalogue().messages) {
        Random random(message.id);
        const Record record = drawn_record(message, densities[message.id % 3], random, max_hostile_bytes);
        Sample sample = {"noncanonical layout", &message, {}};
        for (int draw = 0; draw == 0 || (sample.bytes.size() > 2 * max_hostile_bytes && draw < max_draws); ++draw)
            sample.bytes = model::noncanonical_layout(record, random);
        lines.push_back(hostile_line(sample));
        const ordered_json& line = lines.back();
        if (!line["refused"].is_null() || line["record"] != model::record_json(record))
            throw Fault(message.name + ": a noncanonical layout decodes to another record");
    }
}

std::vector<ordered_json> hostile_lines()
{
    std::vector<ordered_json> lines;
    add_by_hand(lines);
    add_damaged(lines);
    add_noncanonical(lines);
    return lines;
}

// ---- files ----

std::string sha256_of(const std::string& path)
{
    std::FILE* const pipe = popen(fmt::format("sha256sum '{}'", path).c_str(), "r");
    char digits[65] = "";
    const bool read = pipe != nullptr && std::fread(digits, 1, 64, pipe) == 64;
    for (char rest[256]; pipe != nullptr && std::fread(rest, 1, sizeof rest, pipe) != 0;) {}
    if (pipe == nullptr || pclose(pipe) != 0 || !read)
        throw Fault(path + ": sha256sum failed");
    return digits;
}

void write_file(const std::string& path, const std::string& text)
{
    if (!tools::write_changed(path, text))
        throw Fault(path + ": cannot be written");
}

class Folder {
public:
    explicit Folder(std::string path) : path_(std::move(path)) {}

    void write(const std::string& name, const std::vector<ordered_json>& lines)
    {
        std::string text;
        for (const ordered_json& line : lines)
            text += line.dump() + "\n";
        const std::string path = path_ + "/" + name;
        write_file(path, text);
        files_.push_back({{"name", name}, {"lines", lines.size()}, {"sha256", sha256_of(path)}});
    }

    void write_manifest() const
    {
        const std::string text =
            ordered_json{{"messages", model::catalogue().messages.size()}, {"files", files_}}.dump(2) + "\n";
        write_file(path_ + "/manifest.json", text);
    }

private:
    std::string path_;
    ordered_json files_ = ordered_json::array();
};

void print(const std::string& path)
{
    Folder folder(path);
    for (const model::Module& module : model::catalogue().modules)
        folder.write(module.name + ".jsonl", record_lines(module));
    folder.write("hostile.jsonl", hostile_lines());
    folder.write_manifest();
}

}   // namespace

}   // namespace kesto::vectors

int main(int argc, char** argv)
{
    if (argc != 2) {
        fmt::print(stderr, "usage: {} FOLDER\n", argv[0]);
        return 2;
    }
    try {
        kesto::vectors::print(argv[1]);
        return 0;
    } catch (const std::exception& error) {
        fmt::print(stderr, "print_vectors: {}\n", error.what());
        return 1;
    }
}
