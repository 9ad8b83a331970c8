// The stand-ins of platform/standin, driven by hooks of this file's own.

#include <gtest/gtest.h>

#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <string.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "platform/mesh.h"
#include "platform/osal.h"
#include "platform/standin/mesh_standin.h"
#include "platform/standin/osal_standin.h"

namespace {

// A message of this file: any bytes; the record keeps a copy. A first byte of 0xff fails the decode after the length has
// been stored, as a refused field does.
struct Note {
    uint64_t aligned;
    uint32_t length;
    char *text;
};

int null_calls, frees, misaligned, dirty;

uint32_t note_unpack(const uint8_t *bytes, uint32_t length, void *storage)
{
    if (bytes == nullptr || storage == nullptr) {
        ++null_calls;
        return sizeof(Note);
    }
    Note *const note = static_cast<Note *>(storage);
    misaligned += reinterpret_cast<uintptr_t>(note) % 8 != 0;
    dirty += note->aligned != 0 || note->length != 0 || note->text != nullptr;
    note->length = length;
    if (length > 0 && bytes[0] == 0xff)
        return sizeof(Note);
    note->text = static_cast<char *>(malloc(length + 1));
    memcpy(note->text, bytes, length);
    note->text[length] = '\0';
    return sizeof(Note);
}

void note_free(void *storage)
{
    ++frees;
    free(static_cast<Note *>(storage)->text);
    static_cast<Note *>(storage)->text = nullptr;
}

uint32_t other_unpack(const uint8_t *, uint32_t, void *)
{
    return 1;
}

void other_free(void *) {}

// Everything the consumer was given, one line a delivery.
std::vector<std::string> seen;

void keep(void *context, uint32_t channel, uint32_t id, const void *record, uint32_t size, const uint8_t *bytes,
          uint32_t length)
{
    const std::string who = context == nullptr ? "" : static_cast<const char *>(context);
    std::string line = who + std::to_string(channel) + ":" + std::to_string(id) + " ";
    if (size == sizeof(Note)) {
        const Note *const note = static_cast<const Note *>(record);
        line += note->text == nullptr ? "failed" : note->text;
        EXPECT_EQ(note->length, length);
    } else {
        line += "size " + std::to_string(size) + " " + std::string(reinterpret_cast<const char *>(bytes), length);
    }
    seen.push_back(line);
}

MeshSendItem item(uint32_t id, const std::string &bytes)
{
    return {reinterpret_cast<const uint8_t *>(bytes.data()), id, static_cast<uint32_t>(bytes.size())};
}

int send_text(uint32_t channel, uint32_t id, const std::string &bytes)
{
    const MeshSendItem one = item(id, bytes);
    return MESH_SendMsg(channel, &one, 1);
}

using Lines = std::vector<std::string>;

class Mesh : public testing::Test {
protected:
    void SetUp() override
    {
        mesh_standin_reset();
        mesh_standin_check_initialised(1);
        null_calls = frees = misaligned = dirty = 0;
        seen.clear();
        ASSERT_NE(mkdtemp(folder), nullptr);
        path = std::string(folder) + "/socket";
        ASSERT_EQ(MESH_RegIDLFuncHook(7, note_unpack, note_free), 0);
        mesh_standin_set_consumer(MESH_STANDIN_EVERY_CHANNEL, keep, nullptr);
    }

    void TearDown() override
    {
        mesh_standin_reset();
        EXPECT_EQ(rmdir(folder), 0) << "a socket path was left behind";
        EXPECT_EQ(misaligned, 0);
        EXPECT_EQ(dirty, 0);
    }

    // The other side of channel 1 without the stand-in's own framing.
    int raw_peer() const
    {
        const int socket_fd = socket(AF_UNIX, SOCK_SEQPACKET, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        memcpy(address.sun_path, path.c_str(), path.size());
        EXPECT_EQ(connect(socket_fd, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
        return socket_fd;
    }

    static MeshStandinCounters counters()
    {
        MeshStandinCounters now;
        mesh_standin_counters(&now);
        return now;
    }

    static void await_waiting(uint32_t calls)
    {
        while (counters().waiting < calls)
            std::this_thread::yield();
    }

    char folder[32] = "/tmp/standinXXXXXX";
    std::string path;
};

TEST_F(Mesh, loopback_delivers_in_order_and_an_unknown_id_keeps_nothing_back)
{
    EXPECT_EQ(null_calls, 0) << "registering must not call the decoder, which would log";
    const std::string a = "a", b = "b", c = "c";
    const MeshSendItem items[] = {item(7, a), item(8, b), item(7, c)};
    EXPECT_EQ(MESH_SendMsg(3, items, 3), MESH_STANDIN_UNKNOWN_ID);
    EXPECT_EQ(seen, (Lines{"3:7 a", "3:7 c"}));
    EXPECT_EQ(null_calls, 1) << "the size is asked for once";
    EXPECT_EQ(frees, 2);
    EXPECT_EQ(MESH_SendToMsg(63, items, 1, 0xdeadbeef), MESH_STANDIN_OK);
    EXPECT_EQ(counters().sent, 4u);
    EXPECT_EQ(counters().delivered, 3u);
    EXPECT_EQ(counters().refused, 1u);
    EXPECT_EQ(counters().bytes, 4u);
    EXPECT_EQ(counters().destination, 0xdeadbeef);
}

TEST_F(Mesh, bad_arguments_have_a_result_each_and_deliver_nothing)
{
    const MeshSendItem hollow[] = {{reinterpret_cast<const uint8_t *>("x"), 7, 1}, {nullptr, 7, 1}};
    EXPECT_EQ(MESH_SendMsg(0, nullptr, 1), MESH_STANDIN_BAD_ARGUMENT);
    EXPECT_EQ(MESH_SendMsg(0, hollow, 2), MESH_STANDIN_BAD_ARGUMENT);
    EXPECT_EQ(MESH_SendMsg(0, nullptr, 0), MESH_STANDIN_OK) << "an empty batch is legal";
    EXPECT_EQ(MESH_SendMsg(64, hollow, 1), MESH_STANDIN_UNKNOWN_CHANNEL);
    EXPECT_EQ(MESH_SendToMsg(UINT32_MAX, hollow, 1, 1), MESH_STANDIN_UNKNOWN_CHANNEL);
    EXPECT_EQ(mesh_standin_receive(64, 0), MESH_STANDIN_UNKNOWN_CHANNEL);
    EXPECT_EQ(mesh_standin_receive(1, 0), MESH_STANDIN_NOT_BOUND);
    EXPECT_EQ(mesh_standin_close(1), MESH_STANDIN_NOT_BOUND);
    EXPECT_EQ(mesh_standin_set_consumer(64, keep, nullptr), MESH_STANDIN_UNKNOWN_CHANNEL);
    EXPECT_EQ(MESH_RegIDLFuncHook(9, nullptr, note_free), MESH_STANDIN_BAD_ARGUMENT);
    EXPECT_EQ(MESH_RegIDLFuncHook(9, note_unpack, nullptr), MESH_STANDIN_BAD_ARGUMENT);
    EXPECT_EQ(mesh_standin_listen(1, nullptr), MESH_STANDIN_BAD_ARGUMENT);
    EXPECT_EQ(mesh_standin_listen(1, ""), MESH_STANDIN_BAD_PATH);
    EXPECT_EQ(mesh_standin_listen(1, std::string(108, 'x').c_str()), MESH_STANDIN_BAD_PATH);
    EXPECT_EQ(mesh_standin_connect(1, path.c_str(), 30), MESH_STANDIN_TIMEOUT);
    EXPECT_EQ(seen, Lines{});
    EXPECT_EQ(counters().sent, 0u);
    for (int result = -1; result <= MESH_STANDIN_SYSTEM + 1; ++result)
        EXPECT_EQ(mesh_standin_text(result) == std::string("unknown result"),
                  result < 0 || result > MESH_STANDIN_SYSTEM)
            << result;
}

TEST_F(Mesh, failed_decode_reaches_the_consumer_and_is_freed)
{
    EXPECT_EQ(send_text(0, 7, "\xff..."), MESH_STANDIN_OK);
    EXPECT_EQ(seen, Lines{"0:7 failed"});
    EXPECT_EQ(frees, 1);
}

TEST_F(Mesh, hooks_survive_growth_and_a_second_registration_replaces_size_and_decoder)
{
    for (uint32_t id = 1000; id < 2000; ++id)
        ASSERT_EQ(MESH_RegIDLFuncHook(id << 16, note_unpack, note_free), 0);
    EXPECT_EQ(mesh_standin_registered(), 1001u);
    for (uint32_t id = 1000; id < 2000; ++id)
        ASSERT_EQ(send_text(0, id << 16, "x"), MESH_STANDIN_OK) << id;
    seen.clear();
    ASSERT_EQ(send_text(0, 7, "x"), 0);
    ASSERT_EQ(MESH_RegIDLFuncHook(7, other_unpack, other_free), 0);
    EXPECT_EQ(mesh_standin_registered(), 1001u);
    ASSERT_EQ(send_text(0, 7, "x"), 0);
    EXPECT_EQ(seen, (Lines{"0:7 x", "0:7 size 1 x"}));
}

TEST_F(Mesh, a_channels_own_consumer_goes_before_the_common_one)
{
    char name[] = "own ";
    mesh_standin_set_consumer(2, keep, name);
    EXPECT_EQ(send_text(1, 7, "x") | send_text(2, 7, "y"), 0);
    mesh_standin_set_consumer(2, nullptr, nullptr);
    EXPECT_EQ(send_text(2, 7, "z"), 0);
    EXPECT_EQ(seen, (Lines{"1:7 x", "own 2:7 y", "2:7 z"}));
}

TEST_F(Mesh, consumer_may_send_and_close_from_within)
{
    ASSERT_EQ(mesh_standin_listen(1, path.c_str()), 0);
    ASSERT_EQ(mesh_standin_connect(2, path.c_str(), 0), 0);
    const auto answer = [](void *, uint32_t channel, uint32_t, const void *, uint32_t, const uint8_t *, uint32_t) {
        EXPECT_EQ(send_text(3, 7, "inner"), 0);
        EXPECT_EQ(mesh_standin_close(channel), 0);
    };
    mesh_standin_set_consumer(1, answer, nullptr);
    ASSERT_EQ(send_text(2, 7, "outer"), 0);
    EXPECT_EQ(mesh_standin_receive(1, 1000), MESH_STANDIN_OK);
    EXPECT_EQ(seen, Lines{"3:7 inner"});
    EXPECT_EQ(mesh_standin_receive(2, 1000), MESH_STANDIN_PEER_CLOSED);
}

int cleaned;

TEST_F(Mesh, each_clean_hook_runs_once)
{
    cleaned = 0;
    const MeshClean one = [] { cleaned += 1; }, ten = [] { cleaned = 10 * cleaned; };
    EXPECT_EQ(MESH_RegIDLResorceCleanFuncHook(nullptr), MESH_STANDIN_BAD_ARGUMENT);
    EXPECT_EQ(MESH_RegIDLResorceCleanFuncHook(one) | MESH_RegIDLResorceCleanFuncHook(ten) |
                  MESH_RegIDLResorceCleanFuncHook(one),
              0);
    EXPECT_EQ(mesh_standin_run_clean_hooks(), 2u);
    EXPECT_EQ(cleaned, 10);
}

TEST_F(Mesh, packets_of_a_foreign_peer_are_judged_one_by_one)
{
    ASSERT_EQ(mesh_standin_listen(1, path.c_str()), 0);
    EXPECT_EQ(mesh_standin_listen(1, path.c_str()), MESH_STANDIN_BUSY);
    EXPECT_EQ(mesh_standin_listen(2, path.c_str()), MESH_STANDIN_BAD_PATH);
    EXPECT_EQ(send_text(1, 7, "x"), MESH_STANDIN_NO_PEER);
    EXPECT_EQ(mesh_standin_receive(1, 10), MESH_STANDIN_TIMEOUT);
    const int peer = raw_peer();
    const std::string head("\x07\0\0\0", 4);
    const struct {
        std::string packet;
        int result;
    } cases[] = {
        {"", MESH_STANDIN_SHORT_PACKET},
        {head + std::string("\0\0\0", 3), MESH_STANDIN_SHORT_PACKET},
        {head + std::string("\0\0\0\0", 4), MESH_STANDIN_OK},
        {head + std::string("\2\0\0\0x", 5), MESH_STANDIN_LENGTH_DISAGREES},
        {head + std::string("\1\0\0\0xy", 6), MESH_STANDIN_LENGTH_DISAGREES},
        {head + std::string("\1\0\0\x80x", 5), MESH_STANDIN_LENGTH_DISAGREES},
        {std::string("\0\0\0\x07\1\0\0\0x", 9), MESH_STANDIN_UNKNOWN_ID},
        {head + std::string("\1\0\3\0", 4) + std::string(196609, 'x'), MESH_STANDIN_TOO_LONG},
        {head + std::string("\1\0\0\0x", 5), MESH_STANDIN_OK},
    };
    for (const auto &one : cases) {
        ASSERT_EQ(send(peer, one.packet.data(), one.packet.size(), 0), static_cast<ssize_t>(one.packet.size()));
        EXPECT_EQ(mesh_standin_receive(1, 1000), one.result) << testing::PrintToString(one.packet.substr(0, 16));
    }
    EXPECT_EQ(mesh_standin_receive(1, 0), MESH_STANDIN_TIMEOUT);
    EXPECT_EQ(seen, (Lines{"1:7 ", "1:7 x"}));

    uint8_t got[16];
    EXPECT_EQ(send_text(1, 7, "hi"), 0);
    ASSERT_EQ(recv(peer, got, sizeof got, 0), 10);
    EXPECT_EQ(memcmp(got, "\7\0\0\0\2\0\0\0hi", 10), 0);
    close(peer);
    EXPECT_EQ(mesh_standin_receive(1, 1000), MESH_STANDIN_PEER_CLOSED);
    EXPECT_EQ(send_text(1, 7, "x"), MESH_STANDIN_PEER_CLOSED);
    EXPECT_EQ(mesh_standin_close(1), 0);
    EXPECT_EQ(send_text(1, 7, "back"), 0);
    EXPECT_EQ(seen.back(), "1:7 back") << "a closed channel is a loopback again";
}

TEST_F(Mesh, longest_item_crosses_and_one_byte_more_sends_nothing_of_the_batch)
{
    ASSERT_EQ(mesh_standin_listen(1, path.c_str()), 0);
    ASSERT_EQ(mesh_standin_connect(2, path.c_str(), 0), 0);
    const std::string longest(MESH_STANDIN_ITEM_BYTES, 'l'), longer = longest + "r", small = "s";
    const MeshSendItem batch[] = {item(7, small), item(7, longer)};
    EXPECT_EQ(MESH_SendMsg(2, batch, 2), MESH_STANDIN_TOO_LONG);
    EXPECT_EQ(mesh_standin_receive(1, 0), MESH_STANDIN_TIMEOUT);
    EXPECT_EQ(send_text(2, 7, longest), 0);
    EXPECT_EQ(mesh_standin_receive(1, 1000), 0);
    EXPECT_EQ(seen, Lines{"1:7 " + longest});
    seen.clear();
    EXPECT_EQ(send_text(3, 7, longer), 0);
    EXPECT_EQ(seen.size(), 1u) << "a loopback has no limit";
}

TEST_F(Mesh, two_processes_exchange_in_both_directions)
{
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        // The listener appears once the parent waits for it.
        char go;
        int bad = read(ends[0], &go, 1) != 1;
        bad |= mesh_standin_listen(5, path.c_str());
        for (int i = 0; i < 100; ++i) {
            bad |= mesh_standin_receive(5, 5000);
            bad |= send_text(5, 7, seen.back() + "!");
        }
        _exit(bad);
    }
    std::thread connecting([this] { EXPECT_EQ(mesh_standin_connect(4, path.c_str(), 5000), 0); });
    await_waiting(1);
    EXPECT_EQ(write(ends[1], "", 1), 1);
    connecting.join();
    close(ends[0]);
    close(ends[1]);
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(send_text(4, 7, std::to_string(i)), 0);
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(mesh_standin_receive(4, 5000), 0);
        EXPECT_EQ(seen.back(), "4:7 5:7 " + std::to_string(i) + "!");
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(mesh_standin_receive(4, 5000), MESH_STANDIN_PEER_CLOSED);
}

TEST_F(Mesh, close_wakes_waiting_threads_and_frees_the_channel_for_a_new_binding)
{
    for (const bool connected : {false, true}) {
        ASSERT_EQ(mesh_standin_listen(1, path.c_str()), 0);
        if (connected) {
            ASSERT_EQ(mesh_standin_connect(2, path.c_str(), 0), 0);
            ASSERT_EQ(send_text(2, 7, "so that the peer is there"), 0);
            ASSERT_EQ(mesh_standin_receive(1, 0), 0);
        }
        std::vector<std::thread> waiting;
        for (int i = 0; i < 3; ++i)
            waiting.emplace_back([] { EXPECT_EQ(mesh_standin_receive(1, 20000), MESH_STANDIN_PEER_CLOSED); });
        await_waiting(3);
        EXPECT_EQ(mesh_standin_close(1), 0);
        for (std::thread &one : waiting)
            one.join();
        EXPECT_EQ(mesh_standin_receive(1, 0), MESH_STANDIN_NOT_BOUND);
    }
}

TEST_F(Mesh, threads_share_hooks_and_channels)
{
    mesh_standin_set_consumer(MESH_STANDIN_EVERY_CHANNEL, nullptr, nullptr);
    ASSERT_EQ(MESH_RegIDLFuncHook(7, other_unpack, other_free), 0);
    ASSERT_EQ(mesh_standin_listen(1, path.c_str()), 0);
    ASSERT_EQ(mesh_standin_connect(2, path.c_str(), 0), 0);
    std::vector<std::thread> threads;
    for (uint32_t t = 0; t < 4; ++t)
        threads.emplace_back([t] {
            for (uint32_t i = 0; i < 200; ++i) {
                EXPECT_EQ(MESH_RegIDLFuncHook(1000 * t + 10 + i, other_unpack, other_free), 0);
                EXPECT_EQ(send_text(3, 1000 * t + 10 + i, "x"), 0);
                EXPECT_EQ(send_text(2, 7, "y"), 0);
                EXPECT_EQ(mesh_standin_receive(1, 5000), 0);
            }
        });
    for (std::thread &one : threads)
        one.join();
    EXPECT_EQ(counters().delivered, 1600u);
    EXPECT_EQ(counters().bytes, 1600u);
}

// Captures ------------------------------------------------------------------------------------------------------------

uint32_t number_at(const std::string &bytes, size_t at)
{
    uint32_t number = 0;
    for (size_t i = 4; i-- > 0;)
        number = number << 8 | static_cast<uint8_t>(bytes.at(at + i));
    return number;
}

const std::string head("\xd4\xc3\xb2\xa1\2\0\4\0\0\0\0\0\0\0\0\0\0\0\4\0\x93\0\0\0", 24);

std::string bytes_of(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The packets of a capture file, which must be whole.
Lines packets_in(const std::string &path)
{
    const std::string bytes = bytes_of(path);
    EXPECT_EQ(bytes.substr(0, head.size()), head) << path;
    Lines packets;
    for (size_t at = head.size(); at < bytes.size(); at += 16 + packets.back().size()) {
        EXPECT_LE(at + 16, bytes.size());
        EXPECT_LT(number_at(bytes, at + 4), 1000000u) << "microseconds";
        EXPECT_EQ(number_at(bytes, at + 8), number_at(bytes, at + 12)) << "cut";
        packets.push_back(bytes.substr(at + 16, number_at(bytes, at + 8)));
        EXPECT_EQ(packets.back().size(), number_at(bytes, at + 8));
    }
    return packets;
}

std::string note(const std::string &text)
{
    return std::string("\7\0\0\0", 4) + static_cast<char>(text.size()) + std::string(3, '\0') + text;
}

class Capture : public Mesh {
protected:
    void SetUp() override
    {
        Mesh::SetUp();
        file = std::string(folder) + "/capture";
    }
    void TearDown() override
    {
        EXPECT_EQ(mesh_standin_capture(nullptr), 0);
        unlink(file.c_str());
        Mesh::TearDown();
    }

    std::string file;
};

TEST_F(Capture, holds_what_passes_once_and_at_once_whatever_it_is)
{
    std::ofstream(file) << head << std::string(1000, 'o');   // an older one
    ASSERT_EQ(mesh_standin_capture(file.c_str()), 0);
    EXPECT_EQ(packets_in(file), Lines{});
    const std::string a = "a", b;
    const MeshSendItem items[] = {item(7, a), item(8, b)};
    EXPECT_EQ(MESH_SendMsg(3, items, 2), MESH_STANDIN_UNKNOWN_ID);
    Lines passed{note("a"), std::string("\x08\0\0\0\0\0\0\0", 8)};
    EXPECT_EQ(packets_in(file), passed);

    ASSERT_EQ(mesh_standin_listen(1, path.c_str()), 0);
    EXPECT_EQ(send_text(1, 7, "to nobody"), MESH_STANDIN_NO_PEER);
    const int peer = raw_peer();
    for (const std::string &packet : {note("whole"), note("lon") + "ger", std::string("sh")}) {
        ASSERT_EQ(send(peer, packet.data(), packet.size(), 0), static_cast<ssize_t>(packet.size()));
        (void)mesh_standin_receive(1, 1000);
        passed.push_back(packet);
    }
    EXPECT_EQ(send_text(1, 7, "back"), 0);
    passed.push_back(note("back"));
    EXPECT_EQ(packets_in(file), passed);

    EXPECT_EQ(mesh_standin_capture(nullptr), 0);
    EXPECT_EQ(send_text(3, 7, "after"), 0);
    EXPECT_EQ(packets_in(file), passed);
    close(peer);
}

TEST_F(Capture, takes_the_place_of_captures_alone_and_is_its_owners)
{
    const auto mode = [this] {
        struct stat status;
        EXPECT_EQ(lstat(file.c_str(), &status), 0);
        return status.st_mode;
    };
    const std::string other_link_type = head.substr(0, 20) + std::string("\x01\0\0\0", 4);
    for (const std::string& content : {std::string("notes"), head.substr(0, 23) + "x", other_link_type}) {
        std::ofstream(file) << content;
        ASSERT_EQ(chmod(file.c_str(), 0644), 0);
        testing::internal::CaptureStderr();
        EXPECT_EQ(mesh_standin_capture(file.c_str()), MESH_STANDIN_BAD_PATH) << content;
        EXPECT_EQ(send_text(3, 7, "x"), 0);
        EXPECT_NE(testing::internal::GetCapturedStderr().find("no capture of ours"), std::string::npos);
        EXPECT_EQ(bytes_of(file), content);
        EXPECT_EQ(mode(), S_IFREG | 0644u);
    }
    for (const std::string& content : {std::string(), head.substr(0, 7), head + "older"}) {
        std::ofstream(file) << content;
        EXPECT_EQ(mesh_standin_capture(file.c_str()), MESH_STANDIN_OK) << content;
        EXPECT_EQ(bytes_of(file), head);
        EXPECT_EQ(mode(), S_IFREG | 0600u) << "an older capture that all could read";
    }
    ASSERT_EQ(mesh_standin_capture(nullptr), MESH_STANDIN_OK);
    unlink(file.c_str());
    EXPECT_EQ(mesh_standin_capture(file.c_str()), MESH_STANDIN_OK);
    EXPECT_EQ(mode(), S_IFREG | 0600u) << "a new one";
    if (geteuid() == 0) {   // who may write to what others own
        ASSERT_EQ(mesh_standin_capture(nullptr), MESH_STANDIN_OK);
        ASSERT_EQ(chown(file.c_str(), 1, 1), 0);
        testing::internal::CaptureStderr();
        EXPECT_EQ(mesh_standin_capture(file.c_str()), MESH_STANDIN_BAD_PATH);
        EXPECT_NE(testing::internal::GetCapturedStderr().find("another user"), std::string::npos);
    }

    unlink(file.c_str());
    const std::string target = file + ".target";
    for (const bool exists : {false, true}) {
        if (exists)
            std::ofstream(target) << head << "of somebody else";
        ASSERT_EQ(symlink(target.c_str(), file.c_str()), 0);
        testing::internal::CaptureStderr();
        EXPECT_EQ(mesh_standin_capture(file.c_str()), MESH_STANDIN_BAD_PATH);
        EXPECT_NE(testing::internal::GetCapturedStderr().find("symbolic link"), std::string::npos);
        EXPECT_EQ(bytes_of(target), exists ? head + "of somebody else" : "");
        unlink(file.c_str());
        EXPECT_EQ(unlink(target.c_str()), exists ? 0 : -1);
    }
}

TEST_F(Capture, of_many_threads_has_whole_packets)
{
    mesh_standin_set_consumer(MESH_STANDIN_EVERY_CHANNEL, nullptr, nullptr);
    ASSERT_EQ(MESH_RegIDLFuncHook(7, other_unpack, other_free), 0);
    ASSERT_EQ(mesh_standin_capture(file.c_str()), 0);
    std::vector<std::thread> threads;
    for (uint32_t t = 0; t < 4; ++t)
        threads.emplace_back([t] {
            for (uint32_t i = 0; i < 200; ++i)
                EXPECT_EQ(send_text(t, 7, std::string(i, static_cast<char>('a' + t))), 0);
        });
    for (std::thread &one : threads)
        one.join();
    Lines packets = packets_in(file), sent;
    for (uint32_t t = 0; t < 4; ++t)
        for (uint32_t i = 0; i < 200; ++i)
            sent.push_back(note(std::string(i, static_cast<char>('a' + t))));
    std::sort(packets.begin(), packets.end());
    std::sort(sent.begin(), sent.end());
    EXPECT_EQ(packets, sent);
}

// What a child sends with the parent's capture: its result, and what it says on stderr.
std::string of_child(pid_t &child)
{
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    child = fork();
    if (child == 0) {
        dup2(ends[1], STDERR_FILENO);
        _exit(send_text(3, 7, "child") | send_text(3, 7, "child again"));
    }
    close(ends[1]);
    std::string said;
    for (char c; read(ends[0], &c, 1) == 1;)
        said += c;
    close(ends[0]);
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0) << "sending is disturbed";
    return said;
}

TEST_F(Capture, of_two_processes_are_two_or_one_of_them_has_none)
{
    ASSERT_EQ(mesh_standin_capture(file.c_str()), 0);
    ASSERT_EQ(send_text(3, 7, "parent"), 0);
    pid_t child = 0;
    const std::string said = of_child(child);
    EXPECT_EQ(said, "mesh stand-in: no capture to " + file +
                        ": another process writes it; %p in the name stands for the process id\n");
    ASSERT_EQ(send_text(3, 7, "parent"), 0);
    EXPECT_EQ(packets_in(file), (Lines{note("parent"), note("parent")}));

    ASSERT_EQ(mesh_standin_capture((file + "%p.x").c_str()), 0);
    ASSERT_EQ(send_text(3, 7, "parent"), 0);
    EXPECT_EQ(of_child(child), "");
    const std::string own = file + std::to_string(getpid()) + ".x", childs = file + std::to_string(child) + ".x";
    EXPECT_EQ(packets_in(own), Lines{note("parent")});
    EXPECT_EQ(packets_in(childs), (Lines{note("child"), note("child again")}));
    unlink(own.c_str());
    unlink(childs.c_str());
}

TEST_F(Capture, that_cannot_be_written_is_reported_and_disturbs_nothing)
{
    for (const std::string &bad : {std::string(folder), std::string(folder) + "/no/file", std::string("/dev/null"),
                                   std::string(5000, 'x')}) {
        testing::internal::CaptureStderr();
        EXPECT_EQ(mesh_standin_capture(bad.c_str()), MESH_STANDIN_BAD_PATH) << bad;
        EXPECT_EQ(send_text(3, 7, "x") | send_text(3, 7, "x"), 0);
        const std::string said = testing::internal::GetCapturedStderr();
        EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
    }
    // A full disk, in the middle of a packet.
    ASSERT_EQ(mesh_standin_capture(file.c_str()), 0);
    ASSERT_EQ(send_text(3, 7, "fits"), 0);
    rlimit before;
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{60, before.rlim_max};
    signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_EQ(send_text(3, 7, "does not fit") | send_text(3, 7, "x"), 0);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(packets_in(file), Lines{note("fits")});
}

// Services ------------------------------------------------------------------------------------------------------------

class Osal : public testing::Test {
protected:
    void SetUp() override
    {
        osal_standin_plan(&before);
        osal_standin_set_plan(&plan);
    }
    void TearDown() override { osal_standin_set_plan(&before); }

    static void *take(uint32_t size) { return RVL_OsalMemCacheAlloc(size, OSAL_MEMORY_MODULE, "taker"); }
    static void give(void *block) { RVL_OsalMemFree(block, OSAL_MEMORY_MODULE, "giver"); }
    static OsalStandinCounters counters()
    {
        OsalStandinCounters now;
        osal_standin_counters(&now);
        return now;
    }

    OsalStandinPlan before;
    OsalStandinPlan plan{OSAL_STANDIN_NO_LIMIT, 0, 0, 1, 1, 0};
};

TEST_F(Osal, many_blocks_come_and_go_in_any_order_and_all_are_counted)
{
    std::vector<void *> blocks;
    uint64_t live = 0;
    for (uint32_t i = 0; i < 3000; ++i) {
        blocks.push_back(take(i));
        ASSERT_NE(blocks.back(), nullptr);
        ASSERT_EQ(reinterpret_cast<uintptr_t>(blocks.back()) % 16, 0u);
        memset(blocks.back(), 0xa5, i);
        live += i;
    }
    EXPECT_EQ(counters().live_bytes, live);
    // Neighbours in the table go at different times, so that a search path cut by a release would lose a block.
    for (uint32_t step = 0; step < 7; ++step)
        for (uint32_t i = step; i < 3000; i += 7)
            give(blocks[i]);
    give(nullptr);
    EXPECT_EQ(counters().live_blocks, 0u);
    EXPECT_EQ(counters().live_bytes, 0u);
    EXPECT_EQ(counters().peak_blocks, 3000u);
    EXPECT_EQ(counters().total_bytes, live);
    EXPECT_EQ(counters().null_releases, 1u);
}

TEST_F(Osal, budget_counts_live_bytes_and_failures_hit_the_planned_requests)
{
    const auto outcome = [](const std::vector<uint32_t> &sizes) {
        std::string made;
        std::vector<void *> blocks;
        for (const uint32_t size : sizes) {
            blocks.push_back(take(size));
            made += blocks.back() == nullptr ? '-' : '+';
        }
        for (void *block : blocks)
            give(block);
        return made;
    };
    plan.budget = 100;
    osal_standin_set_plan(&plan);
    EXPECT_EQ(outcome({60, 41, 40, 1, UINT32_MAX}), "+-+--");
    EXPECT_EQ(outcome({101, 100, 0}), "-++") << "what was released is free again";
    EXPECT_EQ(counters().failures, 4u);
    plan = {OSAL_STANDIN_NO_LIMIT, 2, 5, 1, 1, 0};
    osal_standin_set_plan(&plan);
    EXPECT_EQ(outcome({1, 1, 1, 1, 1, 1}), "+-++--");
}

TEST_F(Osal, a_release_of_what_is_not_live_ends_the_process_with_a_reason)
{
    char local[64];
    EXPECT_DEATH(give(local), "giver releases .* no live block");
    EXPECT_DEATH(
        {
            void *const block = take(24);
            give(block);
            give(block);
        },
        "giver releases .* released twice");
    EXPECT_DEATH(give(static_cast<char *>(take(64)) + 16), "no live block") << "inside a block is not its start";
}

TEST_F(Osal, log_records_become_one_line_each)
{
    const OsalLogDescriptor who{"KESTO", "KESTO_MARLOCK_SERIAL", 0x6200, 0};
    testing::internal::CaptureStderr();
    RVL_OsalLogWrite(&who, 2, 22, "", 1, "a_unpack", "[KESTO]:Table offset(%u) is out of range(4 - %u)", 3u, 22u);
    RVL_OsalLogWrite(&who, 2, 12, "", 1, "b", "two\nlines %s", std::string(5000, 'x').c_str());
    plan.write_log = 0;
    osal_standin_set_plan(&plan);
    RVL_OsalLogWrite(&who, 2, 22, "", 1, "c", "unwritten");
    const std::string written = testing::internal::GetCapturedStderr();
    const std::string first = "KESTO/KESTO_MARLOCK_SERIAL level 2 code 22 a_unpack: "
                              "[KESTO]:Table offset(3) is out of range(4 - 22)\n";
    ASSERT_EQ(written.substr(0, first.size()), first);
    EXPECT_EQ(written.find('\n', first.size()), written.size() - 1);
    EXPECT_NE(written.find("code 12 b: two lines xxx"), std::string::npos);
    EXPECT_EQ(counters().log_records, 1u);
}

TEST_F(Osal, environment_sets_the_plan_and_bad_values_are_named_and_ignored)
{
    const auto read = [](const char *name, const char *value) {
        setenv(name, value, 1);
        testing::internal::CaptureStderr();
        osal_standin_read_environment();
        unsetenv(name);
        return testing::internal::GetCapturedStderr();
    };
    OsalStandinPlan now;
    for (const char *bad : {"", "-1", "1x", " 1", "0x10", "18446744073709551616", "99999999999999999999"}) {
        EXPECT_NE(read("OSAL_STANDIN_BUDGET", bad).find("OSAL_STANDIN_BUDGET=" + std::string(bad) + " ignored"),
                  std::string::npos)
            << bad;
        osal_standin_plan(&now);
        EXPECT_EQ(now.budget, OSAL_STANDIN_NO_LIMIT) << bad;
    }
    EXPECT_EQ(read("OSAL_STANDIN_BUDGET", "18446744073709551614"), "");
    osal_standin_plan(&now);
    EXPECT_EQ(now.budget, UINT64_MAX - 1);
    EXPECT_NE(read("OSAL_STANDIN_MEMORY", "2"), "");
    EXPECT_EQ(RVL_OsalMemUseFlagGet(OSAL_MEMORY_MODULE), 1u);
    EXPECT_EQ(RVL_OsalMemUseFlagGet(OSAL_MEMORY_MODULE + 1), 0u);
    EXPECT_EQ(read("OSAL_STANDIN_MEMORY", "0"), "");
    EXPECT_EQ(RVL_OsalMemUseFlagGet(OSAL_MEMORY_MODULE), 0u);
    EXPECT_EQ(read("OSAL_STANDIN_FAIL_FROM", "1"), "");
    EXPECT_EQ(take(1), nullptr);
}

TEST_F(Osal, summary_at_the_end_names_what_was_never_released)
{
    EXPECT_EXIT(
        {
            plan.report = 1;
            osal_standin_set_plan(&plan);
            void *volatile lost = take(24);
            give(take(8));
            exit(lost == nullptr);
        },
        testing::ExitedWithCode(0),
        "2 blocks with 32 bytes given, at most 2 with 32 at a time; 0 requests failed; .*never released: 1 blocks with 24");
}

} // namespace
