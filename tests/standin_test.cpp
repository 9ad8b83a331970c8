// Tests the stand-ins of platform/standin with this file's own hooks.

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <thread>

#include "platform/osal.h"
#include "platform/standin/osal_standin.h"
#include "tests/support/capture_folder.h"
#include "tests/support/notes.h"

namespace kesto::tests {

namespace {

// Runs the same work in four threads.
void in_threads(const std::function<void(uint32_t)>& work)
{
    std::vector<std::thread> threads;
    for (uint32_t t = 0; t < 4; ++t)
        threads.emplace_back(work, t);
    for (std::thread& one : threads)
        one.join();
}

std::string stderr_of(const std::function<void()>& work)
{
    testing::internal::CaptureStderr();
    work();
    return testing::internal::GetCapturedStderr();
}

class Mesh : public CaptureFolder {
protected:
    void SetUp() override
    {
        CaptureFolder::SetUp();
        start_notes();
        mesh_standin_check_initialised(1);
        socket_path = folder / "socket";
    }
    void TearDown() override
    {
        mesh_standin_reset();
        EXPECT_FALSE(std::filesystem::exists(socket_path)) << "left behind";
        CaptureFolder::TearDown();
    }

    void bind_channels_1_and_2() const
    {
        ASSERT_EQ(mesh_standin_listen(1, socket_path.c_str()), 0);
        ASSERT_EQ(mesh_standin_connect(2, socket_path.c_str(), 0), 0);
    }

    // A peer of channel 1 that sends arbitrary packets.
    int raw_peer() const
    {
        const int peer = socket(AF_UNIX, SOCK_SEQPACKET, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        memcpy(address.sun_path, socket_path.c_str(), socket_path.size());
        EXPECT_EQ(connect(peer, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        return peer;
    }

    static void await_waiting(uint32_t calls)
    {
        for (int tries = 0; mesh_counters().waiting < calls; ++tries) {
            ASSERT_LT(tries, 10000) << "too few calls wait";
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }

    std::string socket_path;
};

// A decoder of another size for the same message.
uint32_t empty_unpack(const uint8_t*, uint32_t, void*) { return 1; }
void empty_free(void*) {}

TEST_F(Mesh, loopback_delivers_in_order_and_continues_after_a_failure)
{
    EXPECT_EQ(sizes_asked, 0) << "registering must not call the decoder, which would log";
    const std::string a = "a", b = "b", broken = "\xff...", longer(MESH_STANDIN_ITEM_BYTES + 1, 'l');
    const MeshSendItem items[] = {item(7, a), item(8, b), item(7, broken), item(7, longer)};
    EXPECT_EQ(MESH_SendMsg(3, items, 4), MESH_STANDIN_UNKNOWN_ID);
    EXPECT_EQ(sizes_asked, 1);
    EXPECT_EQ(notes_freed, 3);
    char name[] = "own ";
    mesh_standin_set_consumer(2, keep, name);
    EXPECT_EQ(send_text(2, 7, "y"), 0);
    mesh_standin_set_consumer(2, nullptr, nullptr);
    EXPECT_EQ(MESH_SendToMsg(2, items, 1, 0xdeadbeef), MESH_STANDIN_OK);
    EXPECT_EQ(seen, (Lines{"3:7 a", "3:7 failed", "3:7 " + longer, "own 2:7 y", "2:7 a"}));
    const MeshStandinCounters now = mesh_counters();
    EXPECT_EQ((std::vector{now.sent, now.bytes, now.delivered, now.refused, uint64_t{now.destination}}),
              (std::vector<uint64_t>{6, 8 + MESH_STANDIN_ITEM_BYTES + 1, 5, 1, 0xdeadbeef}));
}

TEST_F(Mesh, each_bad_argument_has_its_own_result_and_delivers_nothing)
{
    const MeshSendItem null_data[] = {{reinterpret_cast<const uint8_t*>("x"), 7, 1}, {nullptr, 7, 1}};
    for (const int result : {MESH_SendMsg(0, nullptr, 1), MESH_SendMsg(0, null_data, 2),
                             mesh_standin_listen(1, nullptr), MESH_RegIDLFuncHook(9, nullptr, note_free),
                             MESH_RegIDLFuncHook(9, note_unpack, nullptr), MESH_RegIDLResorceCleanFuncHook(nullptr)})
        EXPECT_EQ(result, MESH_STANDIN_BAD_ARGUMENT);
    for (const int result :
         {MESH_SendMsg(64, null_data, 1), MESH_SendToMsg(UINT32_MAX, null_data, 1, 1), mesh_standin_listen(64, "x"),
          mesh_standin_receive(64, 0), mesh_standin_close(64), mesh_standin_set_consumer(64, keep, nullptr)})
        EXPECT_EQ(result, MESH_STANDIN_UNKNOWN_CHANNEL);
    for (const std::string& bad : {std::string(), std::string(108, 'x')})
        EXPECT_EQ(mesh_standin_listen(1, bad.c_str()), MESH_STANDIN_BAD_PATH);
    EXPECT_EQ(mesh_standin_receive(1, 0), MESH_STANDIN_NOT_BOUND);
    EXPECT_EQ(mesh_standin_close(1), MESH_STANDIN_NOT_BOUND);
    EXPECT_EQ(mesh_standin_connect(1, socket_path.c_str(), 30), MESH_STANDIN_TIMEOUT);
    EXPECT_EQ(MESH_SendMsg(0, nullptr, 0), MESH_STANDIN_OK) << "an empty batch is legal";
    EXPECT_EQ(seen, Lines{});
    EXPECT_EQ(mesh_counters().sent, 0u);
    for (int result = -1; result <= MESH_STANDIN_SYSTEM + 1; ++result)
        EXPECT_EQ(mesh_standin_text(result) == std::string("unknown result"),
                  result < 0 || result > MESH_STANDIN_SYSTEM)
            << result;
}

int cleaned;

TEST_F(Mesh, hooks_are_found_by_id_and_replaced_and_clean_hooks_run_once)
{
    ASSERT_EQ(send_text(0, 7, "x"), 0);
    ASSERT_EQ(MESH_RegIDLFuncHook(7, empty_unpack, empty_free), 0);
    ASSERT_EQ(send_text(0, 7, "x"), 0);
    EXPECT_EQ(seen, (Lines{"0:7 x", "0:7 another decoder's"}));
    for (uint32_t id = 1000; id < 6000; ++id)
        ASSERT_EQ(MESH_RegIDLFuncHook(id << 16, note_unpack, note_free), 0);
    EXPECT_EQ(mesh_standin_registered(), 5001u);
    for (uint32_t id = 1000; id < 6000; ++id)
        ASSERT_EQ(send_text(0, id << 16, "x"), MESH_STANDIN_OK) << id;

    cleaned = 0;
    const MeshClean one = [] { cleaned += 1; }, ten = [] { cleaned *= 10; };
    for (const MeshClean hook : {one, ten, one})
        EXPECT_EQ(MESH_RegIDLResorceCleanFuncHook(hook), 0);
    EXPECT_EQ(mesh_standin_run_clean_hooks(), 2u);
    EXPECT_EQ(cleaned, 10);
}

TEST_F(Mesh, consumer_may_send_and_close_during_a_callback)
{
    bind_channels_1_and_2();
    mesh_standin_set_consumer(
        1,
        [](void*, uint32_t channel, uint32_t, const void*, uint32_t, const uint8_t*, uint32_t) {
            EXPECT_EQ(send_text(3, 7, "inner") | mesh_standin_close(channel), 0);
        },
        nullptr);
    ASSERT_EQ(send_text(2, 7, "outer") | mesh_standin_receive(1, 1000), MESH_STANDIN_OK);
    EXPECT_EQ(seen, Lines{"3:7 inner"});
    EXPECT_EQ(mesh_standin_receive(2, 1000), MESH_STANDIN_PEER_CLOSED);
}

TEST_F(Mesh, each_packet_of_a_foreign_peer_is_validated)
{
    ASSERT_EQ(mesh_standin_listen(1, socket_path.c_str()), 0);
    EXPECT_EQ(mesh_standin_listen(1, socket_path.c_str()), MESH_STANDIN_BUSY);
    EXPECT_EQ(mesh_standin_connect(1, socket_path.c_str(), 0), MESH_STANDIN_BUSY);
    EXPECT_EQ(mesh_standin_listen(2, socket_path.c_str()), MESH_STANDIN_BAD_PATH);
    EXPECT_EQ(send_text(1, 7, "x"), MESH_STANDIN_NO_PEER);
    EXPECT_EQ(mesh_standin_receive(1, 10), MESH_STANDIN_TIMEOUT);
    const int peer = raw_peer();
    const auto packet = [](const char(&length)[5], const std::string& body) {
        return std::string("\7\0\0\0", 4) + std::string(length, 4) + body;
    };
    const std::pair<std::string, int> cases[] = {
        {"", MESH_STANDIN_SHORT_PACKET},
        {packet("\0\0\0\0", "").substr(0, 7), MESH_STANDIN_SHORT_PACKET},
        {packet("\0\0\0\0", ""), MESH_STANDIN_OK},
        {packet("\2\0\0\0", "x"), MESH_STANDIN_LENGTH_DISAGREES},
        {packet("\1\0\0\0", "xy"), MESH_STANDIN_LENGTH_DISAGREES},
        {packet("\1\0\0\x80", "x"), MESH_STANDIN_LENGTH_DISAGREES},
        {std::string("\0\0\0\7\1\0\0\0x", 9), MESH_STANDIN_UNKNOWN_ID},
        {packet("\1\0\3\0", std::string(196609, 'x')), MESH_STANDIN_TOO_LONG},
        {packet("\1\0\0\0", "x"), MESH_STANDIN_OK},
    };
    for (const auto& [bytes, result] : cases) {
        ASSERT_EQ(send(peer, bytes.data(), bytes.size(), 0), static_cast<ssize_t>(bytes.size()));
        EXPECT_EQ(mesh_standin_receive(1, 1000), result) << testing::PrintToString(bytes.substr(0, 16));
    }
    EXPECT_EQ(mesh_standin_receive(1, 0), MESH_STANDIN_TIMEOUT);
    EXPECT_EQ(seen, (Lines{"1:7 ", "1:7 x"}));
    EXPECT_FALSE(std::filesystem::exists(socket_path)) << "not removed once there is a peer";

    char got[16];
    EXPECT_EQ(send_text(1, 7, "hi"), 0);
    EXPECT_EQ(std::string(got, static_cast<size_t>(recv(peer, got, sizeof got, 0))), packet("\2\0\0\0", "hi"));
    close(peer);
    EXPECT_EQ(mesh_standin_receive(1, 1000), MESH_STANDIN_PEER_CLOSED);
    EXPECT_EQ(send_text(1, 7, "x"), MESH_STANDIN_PEER_CLOSED);
    EXPECT_EQ(mesh_standin_close(1), 0);
    EXPECT_EQ(send_text(1, 7, "back"), 0);
    EXPECT_EQ(seen.back(), "1:7 back") << "a closed channel is a loopback again";
}

TEST_F(Mesh, connect_waits_for_the_listener_and_send_for_a_slow_peer)
{
    std::thread connecting([this] { EXPECT_EQ(mesh_standin_connect(2, socket_path.c_str(), 5000), 0); });
    await_waiting(1);
    ASSERT_EQ(mesh_standin_listen(1, socket_path.c_str()), 0);
    connecting.join();
    // A batch with an item that is one byte too long is not sent at all. Then sends more than the buffer holds.
    const std::string longest(MESH_STANDIN_ITEM_BYTES, 'l'), longer = longest + "r", small = "s";
    const MeshSendItem batch[] = {item(7, small), item(7, longer)};
    EXPECT_EQ(MESH_SendMsg(2, batch, 2), MESH_STANDIN_TOO_LONG);
    EXPECT_EQ(mesh_standin_receive(1, 0), MESH_STANDIN_TIMEOUT);
    std::thread sending([&] { EXPECT_EQ(MESH_SendMsg(2, std::vector(20, item(7, longest)).data(), 20), 0); });
    await_waiting(1);
    for (int i = 0; i < 20; ++i)
        ASSERT_EQ(mesh_standin_receive(1, 5000), 0);
    sending.join();
    EXPECT_EQ(seen, Lines(20, "1:7 " + longest));
}

TEST_F(Mesh, close_wakes_waiting_threads_and_allows_rebinding)
{
    for (const bool connected : {false, true}) {
        ASSERT_EQ(mesh_standin_listen(1, socket_path.c_str()), 0);
        EXPECT_EQ(connected ? mesh_standin_connect(2, socket_path.c_str(), 0) : 0, 0);
        std::thread waiting(
            [] { in_threads([](uint32_t) { EXPECT_EQ(mesh_standin_receive(1, 20000), MESH_STANDIN_PEER_CLOSED); }); });
        await_waiting(4);
        EXPECT_EQ(mesh_standin_close(1), 0);
        waiting.join();
        EXPECT_EQ(mesh_standin_receive(1, 0), MESH_STANDIN_NOT_BOUND);
    }
}

// Captures ------------------------------------------------------------------------------------------------------------

const std::string head("\xd4\xc3\xb2\xa1\2\0\4\0\0\0\0\0\0\0\0\0\0\0\4\0\x94\0\0\0", 24);

std::string bytes_of(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

constexpr size_t call_head = 24;

// The packets of a capture file, without or with the heads about their calls, up to the time. They must be complete and
// shorter than 256 bytes.
Lines packets_in(const std::string& path, bool with_calls = false)
{
    const std::string bytes = bytes_of(path);
    EXPECT_EQ(bytes.substr(0, head.size()), head) << path;
    Lines packets, calls;
    for (size_t at = head.size(); at < bytes.size(); at += 16 + call_head + packets.back().size()) {
        EXPECT_EQ(bytes.at(at + 7), '\0') << "more than a second's microseconds";
        const std::string length = bytes.substr(at + 8, 1) + std::string(3, '\0');
        EXPECT_EQ(bytes.substr(at + 8, 8), length + length);
        packets.push_back(bytes.substr(at + 16 + call_head, static_cast<uint8_t>(length[0]) - call_head));
        EXPECT_EQ(packets.back().size() + call_head, static_cast<uint8_t>(length[0]));
        calls.push_back(bytes.substr(at + 16, 16));
    }
    return with_calls ? calls : packets;
}

std::string note(const std::string& text)
{
    return std::string("\7\0\0\0", 4) + static_cast<char>(text.size()) + std::string(3, '\0') + text;
}

using Capture = Mesh;

TEST_F(Capture, records_every_packet_once_and_immediately_even_invalid_ones)
{
    std::ofstream(path) << head << std::string(1000, 'o');   // an older one
    ASSERT_EQ(mesh_standin_capture(path.c_str()), 0);
    EXPECT_EQ(packets_in(path), Lines{});
    const std::string a = "a", b;
    const MeshSendItem items[] = {item(7, a), item(8, b)};
    EXPECT_EQ(MESH_SendMsg(3, items, 2), MESH_STANDIN_UNKNOWN_ID);
    Lines passed{note("a"), std::string("\x08\0\0\0\0\0\0\0", 8)};
    EXPECT_EQ(packets_in(path), passed);

    ASSERT_EQ(mesh_standin_listen(1, socket_path.c_str()), 0);
    EXPECT_EQ(send_text(1, 7, "to nobody"), MESH_STANDIN_NO_PEER);
    const int peer = raw_peer();
    for (const std::string& packet : {note("whole"), note("lon") + "ger", std::string("sh")}) {
        ASSERT_EQ(send(peer, packet.data(), packet.size(), 0), static_cast<ssize_t>(packet.size()));
        (void)mesh_standin_receive(1, 1000);
        passed.push_back(packet);
    }
    EXPECT_EQ(send_text(1, 7, "back"), 0);
    passed.push_back(note("back"));
    EXPECT_EQ(packets_in(path), passed);
    close(peer);
    const Lines calls = packets_in(path, true);
    EXPECT_EQ(calls.at(0), std::string("\1\0\1\0\3\0\0\0\0\0\0\0\0\0\0\0", 16)) << "loopback: no result yet";
    EXPECT_EQ(calls.at(2), std::string("\1\1\1\0\1\0\0\0\0\0\0\0\0\0\0\0", 16)) << "received";
    EXPECT_EQ(calls.at(5), std::string("\1\0\5\0\1\0\0\0\0\0\0\0\0\0\0\0", 16)) << "sent, result 0";

    EXPECT_EQ(mesh_standin_capture(nullptr), 0);
    EXPECT_EQ(send_text(3, 7, "after"), 0);
    EXPECT_EQ(packets_in(path), passed);
}

TEST_F(Capture, replaces_only_captures_and_is_private_to_its_owner)
{
    const auto expect_refused = [&](const std::string& content, const char* why) {
        const std::string line =
            stderr_of([&] { EXPECT_EQ(mesh_standin_capture(path.c_str()), MESH_STANDIN_BAD_PATH) << content; });
        EXPECT_NE(line.find(why), std::string::npos) << line;
        EXPECT_EQ(send_text(3, 7, "x"), 0);
        EXPECT_EQ(bytes_of(path), content);
    };
    struct stat status;
    const auto write = [&](const std::string& content) {
        std::ofstream(path) << content;
        return chmod(path.c_str(), 0644);
    };
    for (const std::string& other : {std::string("notes"), head.substr(0, 23) + "x", head.substr(0, 20) + "\1"}) {
        ASSERT_EQ(write(other), 0);
        expect_refused(other, "no capture of ours");
        ASSERT_EQ(stat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode, S_IFREG | 0644u);
    }
    for (const std::string& older : {std::string("none"), std::string(), head.substr(0, 7), head + "older",
                                     head.substr(0, 20) + "\x93" + head.substr(21) + "without heads about calls"}) {
        ASSERT_EQ(older == "none" ? unlink(path.c_str()) : write(older), 0);
        EXPECT_EQ(mesh_standin_capture(path.c_str()), MESH_STANDIN_OK) << older;
        EXPECT_EQ(bytes_of(path), head);
        ASSERT_EQ(stat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode, S_IFREG | 0600u) << older;
        EXPECT_EQ(mesh_standin_capture(nullptr), MESH_STANDIN_OK);
    }
    if (geteuid() == 0) {   // root may write to files of other owners
        ASSERT_EQ(chown(path.c_str(), 1, 1), 0);
        expect_refused(head, "another user");
    }
    const std::string target = path + ".target";
    std::filesystem::rename(path, target);
    for (const std::string& content : {head, std::string()}) {
        std::filesystem::create_symlink(target, path);
        expect_refused(content, "symbolic link");
        EXPECT_EQ(std::filesystem::remove(target), !content.empty()) << "made";
        unlink(path.c_str());
    }
}

TEST_F(Capture, concurrent_threads_write_whole_packets)
{
    mesh_standin_set_consumer(MESH_STANDIN_EVERY_CHANNEL, nullptr, nullptr);
    ASSERT_EQ(MESH_RegIDLFuncHook(7, empty_unpack, empty_free), 0);
    bind_channels_1_and_2();
    ASSERT_EQ(mesh_standin_capture(path.c_str()), 0);
    const auto text = [](uint32_t t, uint32_t i) { return std::string(i, static_cast<char>('a' + t)); };
    in_threads([&](uint32_t t) {
        for (uint32_t i = 0; i < 200; ++i) {
            EXPECT_EQ(MESH_RegIDLFuncHook(1000 * t + 10 + i, empty_unpack, empty_free), 0);
            EXPECT_EQ(send_text(3, 1000 * t + 10 + i, ""), 0);
            EXPECT_EQ(send_text(2, 7, text(t, i)), 0);
            EXPECT_EQ(mesh_standin_receive(1, 5000), 0);
        }
    });
    EXPECT_EQ(mesh_counters().delivered, 1600u);
    Lines packets = packets_in(path), crossed;
    for (uint32_t i = 0; i < 800; ++i)
        crossed.insert(crossed.end(), 2, note(text(i / 200, i % 200)));
    std::erase_if(packets, [](const std::string& packet) { return packet[0] != 7 || packet[1] != 0; });
    std::sort(packets.begin(), packets.end());
    std::sort(crossed.begin(), crossed.end());
    EXPECT_EQ(packets, crossed);
    EXPECT_EQ(packets_in(path).size(), 2400u);
}

// Runs a child that sends with the parent's capture; returns its output on stderr.
std::string stderr_of_child(pid_t& child)
{
    return stderr_of([&] {
        child = fork();
        if (child == 0)
            _exit(send_text(3, 7, "child") | send_text(3, 7, "child again"));
        int status = -1;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0) << "sending is disturbed";
    });
}

TEST_F(Capture, two_processes_never_share_a_file)
{
    ASSERT_EQ(mesh_standin_capture(path.c_str()), 0);
    pid_t child = 0;
    ASSERT_EQ(send_text(3, 7, "parent"), 0);
    EXPECT_EQ(stderr_of_child(child), "mesh stand-in: no capture to " + path +
                                          ": another process writes it; %p in the name stands for the process id\n");
    ASSERT_EQ(send_text(3, 7, "parent"), 0);
    EXPECT_EQ(packets_in(path), (Lines{note("parent"), note("parent")}));

    ASSERT_EQ(mesh_standin_capture((path + "%p.x").c_str()), 0);
    ASSERT_EQ(send_text(3, 7, "parent"), 0);
    EXPECT_EQ(stderr_of_child(child), "");
    EXPECT_EQ(packets_in(path + std::to_string(getpid()) + ".x"), Lines{note("parent")});
    EXPECT_EQ(packets_in(path + std::to_string(child) + ".x"), (Lines{note("child"), note("child again")}));
}

TEST_F(Capture, write_error_is_reported_once_and_messages_still_pass)
{
    for (const std::string& bad : {folder.string(), path + "/no/file", std::string("/dev/null"), std::string(5000, 'x'),
                                   std::string(2000, 'x') + std::string(2000, '%') + "p"}) {
        const std::string lines = stderr_of([&] {
            EXPECT_EQ(mesh_standin_capture(bad.c_str()), MESH_STANDIN_BAD_PATH) << bad;
            EXPECT_EQ(send_text(3, 7, "x") | send_text(3, 7, "x"), 0);
        });
        EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 1) << lines;
    }
    // A full disk, in the middle of a packet.
    ASSERT_EQ(mesh_standin_capture(path.c_str()), 0);
    ASSERT_EQ(send_text(3, 7, "fits"), 0);
    rlimit before;
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{90, before.rlim_max};
    signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_EQ(send_text(3, 7, "does not fit") | send_text(3, 7, "x"), 0);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(packets_in(path), Lines{note("fits")});
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

    static OsalStandinCounters counters()
    {
        OsalStandinCounters now;
        osal_standin_counters(&now);
        return now;
    }

    OsalStandinPlan before, plan{OSAL_STANDIN_NO_LIMIT, 0, 0, 1, 1, 0};
};

void* take(uint32_t size) { return RVL_OsalMemCacheAlloc(size, OSAL_MEMORY_MODULE, "taker"); }
void give(void* block) { RVL_OsalMemFree(block, OSAL_MEMORY_MODULE, "giver"); }

TEST_F(Osal, blocks_released_in_any_order_are_all_counted)
{
    constexpr uint32_t many = 100000;   // more than there are chains
    std::vector<void*> blocks;
    for (uint32_t i = 0; i < many; ++i) {
        blocks.push_back(memset(take(i % 4), 0xa5, i % 4));
        ASSERT_EQ(reinterpret_cast<uintptr_t>(blocks.back()) % 16, 0u);
    }
    EXPECT_EQ(counters().live_bytes, many / 4 * 6);
    for (uint32_t step = 0; step < 7; ++step)
        for (uint32_t i = step; i < many; i += 7)
            give(blocks[i]);
    give(nullptr);
    const OsalStandinCounters now = counters();
    EXPECT_EQ((std::vector{now.live_blocks, now.live_bytes, now.peak_blocks, now.total_bytes, now.null_releases}),
              (std::vector<uint64_t>{0, 0, many, many / 4 * 6, 1}));
}

TEST_F(Osal, budget_limits_live_bytes_and_planned_requests_fail)
{
    const auto outcome = [&](const OsalStandinPlan& wanted, const std::vector<uint32_t>& sizes) {
        osal_standin_set_plan(&wanted);
        std::string made;
        std::vector<void*> blocks;
        for (const uint32_t size : sizes)
            made += blocks.emplace_back(take(size)) == nullptr ? '-' : '+';
        std::for_each(blocks.begin(), blocks.end(), give);
        return made;
    };
    EXPECT_EQ(outcome({100, 0, 0, 1, 1, 0}, {60, 41, 40, 1, UINT32_MAX}), "+-+--");
    EXPECT_EQ(counters().failures, 3u);
    EXPECT_EQ(outcome({100, 0, 0, 1, 1, 0}, {101, 100, 0}), "-++") << "what was released is free again";
    EXPECT_EQ(outcome({OSAL_STANDIN_NO_LIMIT, 2, 5, 1, 1, 0}, {1, 1, 1, 1, 1, 1}), "+-++--");
}

TEST_F(Osal, releasing_a_block_that_is_not_live_aborts_with_a_reason)
{
    void* const block = take(64);
    EXPECT_DEATH(give(static_cast<char*>(block) + 16), "giver releases .* no live block") << "not its start";
    give(block);
    EXPECT_DEATH(give(block), "giver releases .* released twice");
}

TEST_F(Osal, each_log_record_is_one_line)
{
    const OsalLogDescriptor who{"KESTO", "KESTO_MARLOCK_SERIAL", 0x6200, 0};
    const std::string written = stderr_of([&] {
        RVL_OsalLogWrite(&who, 2, 22, "", 1, "a_unpack", "[KESTO]:Table offset(%u) is out of range(4 - %u)", 3u, 22u);
        RVL_OsalLogWrite(&who, 2, 12, "", 1, "b", "two\nlines %s", std::string(5000, 'x').c_str());
        plan.write_log = 0;
        osal_standin_set_plan(&plan);
        RVL_OsalLogWrite(&who, 2, 22, "", 1, "c", "unwritten");
    });
    const std::string expected =
        "KESTO/KESTO_MARLOCK_SERIAL level 2 code 22 a_unpack: [KESTO]:Table offset(3) is out of "
        "range(4 - 22)\nKESTO/KESTO_MARLOCK_SERIAL level 2 code 12 b: two lines xxx";
    EXPECT_EQ(written.substr(0, expected.size()), expected);
    EXPECT_EQ(written.find('\n', expected.size()), written.size() - 1);
    EXPECT_EQ(counters().log_records, 1u);
}

TEST_F(Osal, environment_sets_the_plan_and_bad_values_are_reported_and_ignored)
{
    OsalStandinPlan now{};
    const auto complaint = [&](const std::string& name, const std::string& value) {
        setenv(name.c_str(), value.c_str(), 1);
        const std::string line = stderr_of(osal_standin_read_environment);
        unsetenv(name.c_str());
        osal_standin_plan(&now);
        return line;
    };
    for (const char* bad : {"", "-1", "1x", " 1", "0x10", "18446744073709551616"}) {
        EXPECT_TRUE(complaint("OSAL_STANDIN_BUDGET", bad)
                        .starts_with("osal stand-in: OSAL_STANDIN_BUDGET=" + std::string(bad) + " ignored"));
        EXPECT_EQ(now.budget, OSAL_STANDIN_NO_LIMIT) << bad;
    }
    EXPECT_NE(complaint("OSAL_STANDIN_MEMORY", "2"), "");
    EXPECT_EQ(RVL_OsalMemUseFlagGet(OSAL_MEMORY_MODULE), 1u);
    EXPECT_EQ(RVL_OsalMemUseFlagGet(OSAL_MEMORY_MODULE + 1), 0u);
    for (const auto& [name, value, set] : {std::tuple{"BUDGET", "18446744073709551614", &now.budget},
                                           {"FAIL_AT", "5", &now.fail_at},
                                           {"FAIL_FROM", "1", &now.fail_from}}) {
        EXPECT_EQ(complaint(std::string("OSAL_STANDIN_") + name, value), "");
        EXPECT_EQ(std::to_string(*set), value) << name;
    }
    EXPECT_EQ(take(1), nullptr) << "all fail from the first one on";
    EXPECT_EQ(complaint("OSAL_STANDIN_MEMORY", "0"), "");
    EXPECT_EQ(RVL_OsalMemUseFlagGet(OSAL_MEMORY_MODULE), 0u);
}

TEST_F(Osal, exit_report_counts_unreleased_blocks)
{
    plan.report = 1;
    const auto run = [this] {
        osal_standin_set_plan(&plan);
        void* volatile lost = take(24);
        give(take(8));
        exit(lost == nullptr);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0),
                "2 blocks with 32 bytes given, at most 2 with 32 at a time; 0 requests "
                "failed; .*never released: 1 blocks with 24");
}

}   // namespace

}   // namespace kesto::tests
