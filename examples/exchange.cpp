// Sends every message to another process, which decodes it and holds it against what it expects.
//
// Both sides make the same sample of each message from the catalogue: one record goes singly, three as a batch, in
// fixed form where there is one and in compact form. The receiver compares record, re-encoded bytes, id and
// allocations.
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "model/generate.h"
#include "model/memory.h"
#include "platform/mesh.h"
#include "platform/standin/mesh_standin.h"
#include "platform/standin/osal_standin.h"
#include "tools/operations.h"

namespace {

using kesto::model::Field;
using kesto::model::Kind;
using kesto::model::Message;
using kesto::model::Module;
using kesto::model::Record;
using kesto::model::RecordMemory;
using kesto::tools::ModuleOperations;
using kesto::tools::Operations;
using ByteString = std::vector<std::uint8_t>;

constexpr std::uint32_t channel = 7;
constexpr std::uint32_t batch = 3;
constexpr std::uint32_t patience_ms = 10000;

// The items sent for each message, in this order; messages without a fixed form skip the first two.
struct Step {
    bool fixed;
    std::uint32_t records;
};
constexpr Step steps[] = {{true, 1}, {true, batch}, {false, 1}, {false, batch}};

// Records of one message, the same in every process: no number is zero, and every text, block and element is there.
std::vector<Record> sample_of(const Message& message)
{
    kesto::model::Random random(message.id);
    std::vector<Record> records;
    while (records.size() < batch)
        records.push_back(random_record(message, kesto::model::Density::full, random));
    return records;
}

// Changes one byte, in the last content of the record.
void damage(Record& record)
{
    Field& field = record.fields.back();
    if (!field.records.empty())
        damage(field.records.back());
    else if (!field.words.empty())
        field.words.back() ^= 1;
    else if (!field.octets.empty())
        field.octets.back() = field.octets.back() == 'x' ? 'y' : 'x';   // no NUL, which would end a text
    else
        field.number ^= 1;
}

// Texts, blocks and vectors of a record, at all depths.
std::uint64_t owned_blocks(const Record& record)
{
    std::uint64_t blocks = 0;
    for (const Field& field : record.fields) {
        blocks += field.present ? 1 : 0;
        for (const Record& nested : field.records)
            blocks += owned_blocks(nested);
    }
    return blocks;
}

// A library may be built with some of the modules alone.
bool is_built(const Message& message) { return kesto::tools::find_operations(message.name) != nullptr; }

bool applies(const Step& step, const Message& message) { return !step.fixed || message.fixed_length != 0; }

ByteString compact_form(const Operations& operations, const void* record)
{
    ByteString bytes(1 << 16);   // much more than any sample takes
    auto length = static_cast<std::uint32_t>(bytes.size());
    if (operations.pack(record, bytes.data(), &length) != 0)
        length = 0;
    bytes.resize(length);
    return bytes;
}

// ---- the sending side ----

// X__sendmsg chooses the fixed form where there is one; the compact form is then handed to MESH as any program may do.
int send(const Message& message, const std::vector<Record>& sample, const Step& step)
{
    const Operations& operations = kesto::tools::operations(message.name);
    if (step.fixed || message.fixed_length == 0)
        return operations.sendmsg(channel, RecordMemory(sample).data(), step.records);
    std::vector<ByteString> packed;
    std::vector<MeshSendItem> items;
    for (std::uint32_t i = 0; i < step.records; ++i) {
        packed.push_back(compact_form(operations, RecordMemory(sample[i]).data()));
        items.push_back({packed[i].data(), message.id, static_cast<std::uint32_t>(packed[i].size())});
    }
    return MESH_SendMsg(channel, items.data(), step.records);
}

bool send_everything(const char* path, const std::string& damaged)
{
    int result = mesh_standin_connect(channel, path, patience_ms);
    for (const Module& module : kesto::model::catalogue().modules)
        for (const Message* message : module.messages) {
            if (!is_built(*message))
                continue;
            std::vector<Record> sample = sample_of(*message);
            if (damaged == "all" || damaged == message->name)
                for (Record& record : sample)
                    damage(record);
            for (const Step& step : steps)
                if (result == MESH_STANDIN_OK && applies(step, *message))
                    result = send(*message, sample, step);
        }
    mesh_standin_close(channel);
    if (result != MESH_STANDIN_OK)
        std::fprintf(stderr, "exchange: sending stopped: %s\n",
                     result == -1 ? "a record cannot be encoded" : mesh_standin_text(result));
    return result == MESH_STANDIN_OK;
}

// ---- the receiving side ----

struct Row {
    std::size_t messages = 0;
    std::uint64_t byte_strings = 0, bytes = 0, allocations = 0, left_over = 0, failures = 0;
};

// One byte string: what it has to be, and what the consumer found.
struct Arrival {
    const Message& message;
    const Operations& operations;
    bool fixed;
    const Record& record;
    ByteString compact;
    std::uint32_t length = 0;
    std::string fault = "MESH delivered nothing";
};

std::string fault_of(const Arrival& expected, std::uint32_t id, const void* record, std::uint32_t record_size,
                     const std::uint8_t* bytes, std::uint32_t length)
{
    if (id != expected.message.id || record_size != expected.operations.record_size)
        return "another message came";
    const std::string difference = kesto::model::difference(expected.record, record);
    if (!difference.empty())
        return "sent and received differ: " + difference;
    // Only now: a record that failed to decode may have counts without elements, and must not be encoded.
    if (compact_form(expected.operations, record) != expected.compact)
        return "encoded again, its bytes differ";
    if (expected.fixed ? length != expected.message.fixed_length
                       : ByteString(bytes, bytes + length) != expected.compact)
        return "its bytes are not of the expected form";
    return {};
}

void on_message(void* context, std::uint32_t, std::uint32_t id, const void* record, std::uint32_t record_size,
                const std::uint8_t* bytes, std::uint32_t length)
{
    Arrival& arrival = *static_cast<Arrival*>(context);
    arrival.length = length;
    arrival.fault = fault_of(arrival, id, record, record_size, bytes, length);
}

// Rows of a table; on a terminal the last line shows meanwhile how far the next row is.
class Table {
public:
    void head() const
    {
        std::printf("%-10s %8s %12s %9s %11s %9s %8s\n", "module", "messages", "byte strings", "bytes", "allocations",
                    "left over", "failures");
    }

    void progress(const Module& module, std::size_t done) const
    {
        if (!terminal_)
            return;
        std::printf("\r%-10s %zu of %zu", module.name.c_str(), done, module.messages.size());
        std::fflush(stdout);
    }

    void clear_progress() const
    {
        if (terminal_)
            std::printf("\r\033[K");
        std::fflush(stdout);
    }

    void row(const char* name, const Row& row) const
    {
        clear_progress();
        std::printf("%-10s %8zu %12" PRIu64 " %9" PRIu64 " %11" PRIu64 " %9" PRIu64 " %8" PRIu64 "\n", name,
                    row.messages, row.byte_strings, row.bytes, row.allocations, row.left_over, row.failures);
        std::fflush(stdout);
    }

private:
    bool terminal_ = isatty(STDOUT_FILENO) != 0;
};

class Receiver {
public:
    bool receive_everything(const char* path);

private:
    bool listen(const char* path);
    void receive(const Message& message, Row& row);
    std::string receive_one(Arrival arrival, Row& row);

    Table table_;
    int result_ = MESH_STANDIN_OK;   // anything else: the sender is gone
};

bool Receiver::listen(const char* path)
{
    OsalStandinPlan plan;
    osal_standin_plan(&plan);
    plan.use_memory = 1;
    plan.write_log = 0;   // the stand-in's first question to each decoder, for the record's size, would log a line
    osal_standin_set_plan(&plan);
    for (const ModuleOperations& module : kesto::tools::module_operations())
        if (result_ == MESH_STANDIN_OK)
            result_ = module.recv_init();
    if (result_ == MESH_STANDIN_OK)
        result_ = mesh_standin_listen(channel, path);
    if (result_ != MESH_STANDIN_OK)
        std::fprintf(stderr, "exchange: cannot listen on %s: %s\n", path, mesh_standin_text(result_));
    return result_ == MESH_STANDIN_OK;
}

// Returns what is wrong with the next byte string.
std::string Receiver::receive_one(Arrival arrival, Row& row)
{
    if (result_ != MESH_STANDIN_OK)
        return "it did not come";
    OsalStandinCounters before, after;
    osal_standin_counters(&before);
    mesh_standin_set_consumer(channel, on_message, &arrival);
    const int result = mesh_standin_receive(channel, patience_ms);
    mesh_standin_set_consumer(channel, nullptr, nullptr);
    osal_standin_counters(&after);

    if (result == MESH_STANDIN_PEER_CLOSED || result == MESH_STANDIN_TIMEOUT || result == MESH_STANDIN_SYSTEM)
        result_ = result;
    if (result != MESH_STANDIN_OK)
        return mesh_standin_text(result);
    const std::uint64_t allocations = after.total_blocks - before.total_blocks;
    const std::uint64_t left_over = after.live_blocks - before.live_blocks;
    ++row.byte_strings;
    row.bytes += arrival.length;
    row.allocations += allocations;
    row.left_over += left_over;
    if (!arrival.fault.empty())
        return arrival.fault;
    const std::uint64_t blocks = owned_blocks(arrival.record);
    if (allocations != blocks)
        return "decoding took " + std::to_string(allocations) + " blocks instead of " + std::to_string(blocks);
    return left_over == 0 ? std::string() : std::to_string(left_over) + " blocks were not released";
}

void Receiver::receive(const Message& message, Row& row)
{
    const Operations& operations = kesto::tools::operations(message.name);
    const std::vector<Record> sample = sample_of(message);
    const bool gone_before = result_ != MESH_STANDIN_OK;
    std::string first_fault;
    for (const Step& step : steps)
        for (std::uint32_t i = 0; i < step.records && applies(step, message); ++i) {
            const ByteString compact = compact_form(operations, RecordMemory(sample[i]).data());
            const std::string fault = receive_one({message, operations, step.fixed, sample[i], compact}, row);
            if (fault.empty())
                continue;
            ++row.failures;
            if (first_fault.empty())
                first_fault = (step.fixed ? "fixed form, " : "compact form, ") + std::to_string(i + 1) + " of " +
                              std::to_string(step.records) + ": " + fault;
        }
    if (first_fault.empty() || gone_before)   // where the sender got lost has been said
        return;
    table_.clear_progress();
    std::fprintf(stderr, "exchange: %s, %s\n", message.name.c_str(), first_fault.c_str());
}

bool Receiver::receive_everything(const char* path)
{
    if (!listen(path))
        return false;
    Row all;
    table_.head();
    for (const Module& module : kesto::model::catalogue().modules) {
        Row row;
        for (const Message* message : module.messages) {
            if (!is_built(*message))
                continue;
            table_.progress(module, row.messages);
            receive(*message, row);
            ++row.messages;
        }
        if (row.messages != 0)
            table_.row(module.name.c_str(), row);
        all = {all.messages + row.messages,       all.byte_strings + row.byte_strings, all.bytes + row.bytes,
               all.allocations + row.allocations, all.left_over + row.left_over,       all.failures + row.failures};
    }
    table_.row("all", all);
    const bool too_much =
        result_ == MESH_STANDIN_OK && mesh_standin_receive(channel, patience_ms) != MESH_STANDIN_PEER_CLOSED;
    mesh_standin_close(channel);
    if (all.failures != 0)
        std::printf("\nNot everything arrived as it was sent: %" PRIu64 " byte strings failed.\n", all.failures);
    else if (too_much)
        std::printf("\nAll %zu messages arrived, but the sender did not stop there.\n", all.messages);
    else
        std::printf("\nAll %zu messages arrived as they were sent; nothing differs.\n", all.messages);
    return !too_much && all.failures == 0;
}

// ---- both ----

// The sender runs as a child of the receiver, on a socket in a folder of our own.
bool exchange_everything(const std::string& damaged)
{
    char folder[] = "/tmp/exchange-XXXXXX";
    if (mkdtemp(folder) == nullptr) {
        std::fprintf(stderr, "exchange: %s: %s\n", folder, std::strerror(errno));
        return false;
    }
    const std::string path = std::string(folder) + "/socket";
    const pid_t sender = fork();
    if (sender == 0)
        return send_everything(path.c_str(), damaged);
    bool good = sender > 0 && Receiver().receive_everything(path.c_str());
    int status = 0;
    if (sender < 0 || waitpid(sender, &status, 0) != sender || status != 0) {
        std::fprintf(stderr, "exchange: the sending process did not end well\n");
        good = false;
    }
    rmdir(folder);
    return good;
}

}   // namespace

int main(int argc, char** argv)
{
    const auto is = [&](int i, const char* word) { return i < argc && std::strcmp(argv[i], word) == 0; };
    if (argc == 2 && is(1, "--help")) {
        std::printf(
            "usage: exchange                    send every message to a process started for it\n"
            "       exchange --receive SOCKET   only receive, on a socket path that must not exist yet\n"
            "       exchange --send SOCKET      only send, to the program that receives there\n"
            "       exchange --damage MESSAGE   as without arguments, with one byte of that message's records\n"
            "                                   changed before they are sent, or of every message's with \"all\"\n"
            "Shows a table per module. Ends with 0 if everything arrived as it was sent, else with 1.\n");
        return 0;
    }
    if (argc == 1)
        return exchange_everything("") ? 0 : 1;
    if (argc == 3 && is(1, "--receive"))
        return Receiver().receive_everything(argv[2]) ? 0 : 1;
    if (argc == 3 && is(1, "--send"))
        return send_everything(argv[2], "") ? 0 : 1;
    if (argc == 3 && is(1, "--damage") && (is(2, "all") || kesto::model::catalogue().find(argv[2]) != nullptr))
        return exchange_everything(argv[2]) ? 0 : 1;
    std::fprintf(stderr, "usage: exchange [--receive SOCKET | --send SOCKET | --damage MESSAGE] (or --help)\n");
    return 2;
}
