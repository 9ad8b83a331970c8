// Asks another process about the machine's network interfaces and shows what comes back, as a table and as bytes.
#include <spawn.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <string>

#include "annotate.h"
#include "ifit_dfx.h"
#include "platform/standin/mesh_standin.h"
#include "query.h"

extern char** environ;

namespace {

constexpr uint32_t patience_ms = 5000;

// The question that is under way, as the consumer sees it.
struct Exchange {
    uint32_t number = 0;
    std::string mark;
    bool show_bytes = false;
    bool answered = false;
    std::string first_interface;
};

// True for the answer to our question. The mark is tested by its pointer: a refused answer may have kept the length.
bool is_our_answer(const Exchange& exchange, const ifit_dfx_query_comm_rec_mesh& frame)
{
    if (frame.f3.data == nullptr) {
        std::fprintf(stderr, "query_asker: the answer was refused by the decoder\n");
        return false;
    }
    if (frame.f0 != exchange.number || frame.f3.length != exchange.mark.size() ||
        std::memcmp(frame.f3.data, exchange.mark.data(), frame.f3.length) != 0) {
        std::fprintf(stderr, "query_asker: this answers somebody else's question\n");
        return false;
    }
    if (frame.f2 != QUERY_FOUND) {
        std::fprintf(stderr, "query_asker: the answerer found nothing\n");
        return false;
    }
    return true;
}

// Names are foreign bytes, too: not even the NUL at the end is certain.
std::string name_of(const ifit_dfx_query_stat_item_mesh& item)
{
    const char* const text = reinterpret_cast<const char*>(item.f0);
    return std::string(text, strnlen(text, sizeof item.f0));
}

void show(Exchange& exchange, const ifit_dfx_query_stat_rec_mesh& answer, const uint8_t* bytes, uint32_t length)
{
    if (!is_our_answer(exchange, answer.f0) || answer.f1.items == nullptr)
        return;
    exchange.answered = true;
    exchange.first_interface = name_of(answer.f1.items[0]);
    if (exchange.show_bytes) {
        std::printf("\nAn answer about one interface, %" PRIu32 " bytes:\n%s", length,
                    annotate(IFIT_DFX_QUERY_STAT_REC_MESH_ID, bytes, length).c_str());
        return;
    }
    std::printf("%-16s %12s %12s  %s\n", "interface", "received", "sent", "at");
    for (uint32_t i = 0; i < answer.f1.count; ++i) {
        const ifit_dfx_query_stat_item_mesh& item = answer.f1.items[i];
        std::printf("%-16s %12" PRIu32 " %12" PRIu32 "  %04d-%02d-%02d %02d:%02d:%02d\n", name_of(item).c_str(),
                    item.f1, item.f2, item.f3.year, item.f3.month, item.f3.day, item.f3.hour, item.f3.minute,
                    item.f3.second);
    }
}

void show(Exchange& exchange, const ifit_dfx_query_glbdata_rec_mesh& answer)
{
    if (!is_our_answer(exchange, answer.f0) || answer.f1.f0 == nullptr)
        return;
    exchange.answered = true;
    std::printf("\nThe machine: %s\n", answer.f1.f0);
}

void show(Exchange& exchange, const ifit_dfx_query_queryhash_rec_mesh& answer)
{
    const ifit_dfx_query_queryhash_item_mesh& item = answer.f1;
    if (!is_our_answer(exchange, answer.f0) || item.f0 == nullptr)
        return;
    exchange.answered = true;
    std::printf("\nThe interface whose name hashes to %016" PRIx64 ": %s, address %02x:%02x:%02x:%02x:%02x:%02x, "
                "MTU %" PRIu32 ", %" PRIu64 " bytes received, %" PRIu64 " sent\n",
                name_hash(item.f0), item.f0, item.f4[0], item.f4[1], item.f4[2], item.f4[3], item.f4[4], item.f4[5],
                item.f5, static_cast<uint64_t>(item.f8), static_cast<uint64_t>(item.f10));
}

// Called for each message after it was decoded; the record is freed for us when we return.
void on_message(void* context, uint32_t, uint32_t id, const void* record, uint32_t, const uint8_t* bytes,
                uint32_t length)
{
    Exchange& exchange = *static_cast<Exchange*>(context);
    if (id == IFIT_DFX_QUERY_STAT_REC_MESH_ID)
        show(exchange, *static_cast<const ifit_dfx_query_stat_rec_mesh*>(record), bytes, length);
    else if (id == IFIT_DFX_QUERY_GLBDATA_REC_MESH_ID)
        show(exchange, *static_cast<const ifit_dfx_query_glbdata_rec_mesh*>(record));
    else if (id == IFIT_DFX_QUERY_QUERYHASH_REC_MESH_ID)
        show(exchange, *static_cast<const ifit_dfx_query_queryhash_rec_mesh*>(record));
    else
        std::fprintf(stderr, "query_asker: message 0x%08" PRIx32 " is not an answer\n", id);
}

bool succeeded(const char* step, int result)
{
    if (result != 0)
        std::fprintf(stderr, "query_asker: %s: %s\n", step,
                     result == -1 ? "the record cannot be encoded" : mesh_standin_text(result));
    return result == 0;
}

// Sends one question and waits for its answer. The record only borrows the mark, so there is nothing to free.
template <typename Question>
bool ask(Exchange& exchange, Question question, int (*send)(uint32_t, const Question*, uint32_t))
{
    question.f0.f0 = ++exchange.number;
    question.f0.f2.length = static_cast<uint32_t>(exchange.mark.size());
    question.f0.f2.data = reinterpret_cast<uint8_t*>(exchange.mark.data());
    exchange.answered = false;
    return succeeded("cannot send", send(QUERY_CHANNEL, &question, 1)) &&
           succeeded("no answer", mesh_standin_receive(QUERY_CHANNEL, patience_ms)) && exchange.answered;
}

bool ask_everything()
{
    Exchange exchange;
    exchange.mark = "asker " + std::to_string(getpid());
    mesh_standin_set_consumer(QUERY_CHANNEL, on_message, &exchange);

    ifit_dfx_query_stat_mesh_key statistics{};   // records start zeroed
    bool good = ask(exchange, statistics, ifit_dfx_query_stat_mesh_key__sendmsg);
    statistics.f1.f0 = 1;
    exchange.show_bytes = true;
    good = good && ask(exchange, statistics, ifit_dfx_query_stat_mesh_key__sendmsg);
    good = good && ask(exchange, ifit_dfx_query_glbdata_mesh_key{}, ifit_dfx_query_glbdata_mesh_key__sendmsg);
    ifit_dfx_query_queryhash_mesh_key by_hash{};
    by_hash.f1.f3 = name_hash(exchange.first_interface.c_str());
    good = good && ask(exchange, by_hash, ifit_dfx_query_queryhash_mesh_key__sendmsg);

    mesh_standin_set_consumer(QUERY_CHANNEL, nullptr, nullptr);
    return good;
}

bool talk(const char* path)
{
    if (!succeeded("cannot register the decoders", ifit_dfx_recv_init()) ||
        !succeeded(("cannot connect to " + std::string(path)).c_str(),
                   mesh_standin_connect(QUERY_CHANNEL, path, patience_ms)))
        return false;
    const bool good = ask_everything();
    mesh_standin_close(QUERY_CHANNEL);
    return good;
}

// Runs the answerer on a socket in a folder of our own for as long as we ask.
bool start_and_talk(const char* answerer)
{
    char folder[] = "/tmp/query-XXXXXX";
    if (mkdtemp(folder) == nullptr) {
        std::fprintf(stderr, "query_asker: %s: %s\n", folder, std::strerror(errno));
        return false;
    }
    std::string path = std::string(folder) + "/socket", program = answerer;
    char* arguments[] = {program.data(), path.data(), nullptr};
    pid_t process;
    const int error = posix_spawn(&process, answerer, nullptr, nullptr, arguments, environ);
    bool good = error == 0;
    if (good) {
        good = talk(path.c_str());
        // The answerer ends by itself when we have left, or when nobody came.
        int status = 0;
        const bool ended_well = waitpid(process, &status, 0) == process && status == 0;
        if (!ended_well)
            std::fprintf(stderr, "query_asker: %s did not end well\n", answerer);
        good = good && ended_well;
    } else {
        std::fprintf(stderr, "query_asker: cannot start %s: %s\n", answerer, std::strerror(error));
    }
    rmdir(folder);
    return good;
}

}   // namespace

int main(int argc, char** argv)
{
    const std::string first = argc > 1 ? argv[1] : "";
    if (first == "--help") {
        std::printf(
            "usage: query_asker --start ANSWERER   start the program ANSWERER and ask it\n"
            "       query_asker SOCKET             ask a query_answerer that listens on SOCKET\n"
            "Shows the answers as a table and the bytes of one of them. Ends with 0 if all went well, else with 1.\n");
        return 0;
    }
    if (argc == 3 && first == "--start")
        return start_and_talk(argv[2]) ? 0 : 1;
    if (argc == 2 && first.substr(0, 1) != "-")
        return talk(argv[1]) ? 0 : 1;
    std::fprintf(stderr, "usage: query_asker --start ANSWERER | SOCKET (or --help)\n");
    return 2;
}
