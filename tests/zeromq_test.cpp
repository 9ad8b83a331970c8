// The transport over ZeroMQ inside one process, driven by hooks of this file's own: what goes out on channel 1 comes in
// on channel 2. Built twice, without keys and with keys.

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <errno.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "platform/mesh.h"
#include "platform/standin/mesh_standin.h"

namespace {

// How many calls of one operation of ZeroMQ still go well before one fails; without a plan all do.
struct Failure {
    const char* operation;
    int calls_before;
};
Failure planned{};

bool fails(const char* operation)
{
    if (planned.operation == nullptr || std::string(planned.operation) != operation || planned.calls_before-- != 0)
        return false;
    planned = {};
    errno = ENOMEM;
    return true;
}

std::atomic<int> frames_before_admission_fails{-1};

}   // namespace

// In front of ZeroMQ's own, for the transport.
extern "C" int zmq_msg_init_size(void* message, size_t size)
{
    static const auto real = reinterpret_cast<int (*)(void*, size_t)>(dlsym(RTLD_NEXT, "zmq_msg_init_size"));
    return fails("init_size") ? -1 : real(message, size);
}

extern "C" int zmq_msg_send(void* message, void* socket, int flags)
{
    static const auto real = reinterpret_cast<int (*)(void*, void*, int)>(dlsym(RTLD_NEXT, "zmq_msg_send"));
    return fails("send") ? -1 : real(message, socket, flags);
}

extern "C" int zmq_recv(void* socket, void* buffer, size_t length, int flags)
{
    static const auto real = reinterpret_cast<int (*)(void*, void*, size_t, int)>(dlsym(RTLD_NEXT, "zmq_recv"));
    if (frames_before_admission_fails < 0 || frames_before_admission_fails-- != 0)
        return real(socket, buffer, length, flags);
    errno = ENOMEM;
    return -1;
}

extern "C" int zmq_curve_keypair(char* public_key, char* secret_key);

namespace {

std::vector<std::string> seen;

uint32_t unpack(const uint8_t *, uint32_t, void *)
{
    return 1;
}

void free_record(void *) {}

void keep(void *, uint32_t channel, uint32_t id, const void *, uint32_t, const uint8_t *bytes, uint32_t length)
{
    const std::string content(reinterpret_cast<const char *>(bytes), length);
    const bool uniform = length > 100 && content == std::string(length, content[0]);
    seen.push_back(std::to_string(channel) + ":" + std::to_string(id) + " " +
                   (uniform ? std::to_string(length) + " times " + content[0] : content));
}

MeshSendItem item(uint32_t id, const std::string &bytes)
{
    return {reinterpret_cast<const uint8_t *>(bytes.data()), id, static_cast<uint32_t>(bytes.size())};
}

// The map is read once per process, so all tests share it.
class ZeroMq : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        ASSERT_NE(mkdtemp(folder), nullptr);
        const std::string place = folder;
        std::ofstream(place + "/map") << "# everything of one process\n"
                                      << "2 receive ipc://" << place << "/two\n"
                                      << "1 send    ipc://" << place << "/two   # also without a destination\n"
                                      << "1 send    ipc://" << place << "/two to 0x7\n"
                                      << "1 send    ipc://" << place << "/two to 7\n"
                                      << "1 send    ipc://" << place << "/two to 8 9\n"
                                      << "64 send   ipc://" << place << "/two\n"
                                      << "3 sent    ipc://" << place << "/two\n"
                                      << "4 send    nowhere\n"
                                      << "5 send    ipc://" << place << "/nobody\n";
        setenv("MESH_ZEROMQ_MAP", (place + "/map").c_str(), 1);
        if (KESTO_WITH_KEYS) {
            char public_key[41], secret_key[41];
            ASSERT_EQ(zmq_curve_keypair(public_key, secret_key), 0);
            std::ofstream(place + "/keys") << "secret " << secret_key << "\n\nsender " << public_key << "\n"
                                           << "receiver ipc://" << place << "/two " << public_key << "\n"
                                           << "receiver ipc://" << place << "/nobody " << public_key << "\n"
                                           << "receiver nowhere " << public_key << "\n";
            setenv("MESH_ZEROMQ_KEYS", (place + "/keys").c_str(), 1);
        }
        testing::internal::CaptureStderr();
        ASSERT_EQ(mesh_standin_receive(2, 0), MESH_STANDIN_TIMEOUT);
        reported = testing::internal::GetCapturedStderr();
    }

    static void TearDownTestSuite() { std::filesystem::remove_all(folder); }

    void SetUp() override
    {
        mesh_standin_reset();
        seen.clear();
        ASSERT_EQ(MESH_RegIDLFuncHook(7, unpack, free_record), 0);
        mesh_standin_set_consumer(MESH_STANDIN_EVERY_CHANNEL, keep, nullptr);
    }

    // What is sent now is what comes next: nothing of an earlier call is under way.
    static void expect_nothing_under_way()
    {
        const std::string mark = "mark";
        const MeshSendItem one = item(7, mark);
        seen.clear();
        EXPECT_EQ(MESH_SendMsg(1, &one, 1), MESH_STANDIN_OK);
        EXPECT_EQ(mesh_standin_receive(2, 5000), MESH_STANDIN_OK);
        EXPECT_EQ(seen, (std::vector<std::string>{"2:7 mark"}));
    }

    static inline char folder[] = "/tmp/zeromqXXXXXX";
    static inline std::string reported;
};

TEST_F(ZeroMq, lines_that_are_not_understood_are_named_and_left_out)
{
    for (const char *line : {"map:5: an earlier line", "map:6: only \"to", "map:7: no such channel", "map:8: neither",
                             "nowhere: "})
        EXPECT_NE(reported.find(line), std::string::npos) << line << " in\n" << reported;
    const std::string x = "x";
    const MeshSendItem one = item(7, x);
    EXPECT_EQ(MESH_SendMsg(3, &one, 1), MESH_STANDIN_OK) << "no line: a loopback";
    EXPECT_EQ(MESH_SendMsg(4, &one, 1), MESH_STANDIN_BAD_PATH);
    EXPECT_EQ(seen, (std::vector<std::string>{"3:7 x"}));
}

TEST_F(ZeroMq, items_arrive_in_order_one_a_call_and_an_unknown_id_keeps_nothing_back)
{
    const std::string a = "a", empty, longest(MESH_STANDIN_ITEM_BYTES, 'c');
    const MeshSendItem items[] = {item(7, a), item(8, a), item(7, empty), item(7, longest)};
    const std::string capture = std::string(folder) + "/capture";
    ASSERT_EQ(mesh_standin_capture(capture.c_str()), MESH_STANDIN_OK);
    ASSERT_EQ(MESH_SendToMsg(1, items, 4, 7), MESH_STANDIN_OK);
    EXPECT_EQ(MESH_SendToMsg(1, items, 4, 8), MESH_STANDIN_NO_PEER);
    std::vector<int> results;
    for (int i = 0; i < 4; ++i)
        results.push_back(mesh_standin_receive(2, 5000));
    EXPECT_EQ(results, (std::vector<int>{MESH_STANDIN_OK, MESH_STANDIN_UNKNOWN_ID, MESH_STANDIN_OK, MESH_STANDIN_OK}));
    EXPECT_EQ(seen, (std::vector<std::string>{"2:7 a", "2:7 ", "2:7 196608 times c"}));
    MeshStandinCounters counters;
    mesh_standin_counters(&counters);
    EXPECT_EQ(counters.sent, 4u);
    EXPECT_EQ(counters.delivered, 3u);
    ASSERT_EQ(mesh_standin_capture(nullptr), MESH_STANDIN_OK);
    EXPECT_EQ(std::filesystem::file_size(capture), 24 + 2 * (4 * (16 + 8) + 1 + 1 + 0 + MESH_STANDIN_ITEM_BYTES))
        << "each item that left, and each that came";
    expect_nothing_under_way();
}

TEST_F(ZeroMq, a_batch_of_which_one_item_cannot_leave_goes_not_at_all)
{
    const std::string a = "a", too_long(MESH_STANDIN_ITEM_BYTES + 1, 'c');
    const MeshSendItem long_one[] = {item(7, a), item(7, too_long)}, three[] = {item(7, a), item(7, a), item(7, a)};
    EXPECT_EQ(MESH_SendMsg(1, long_one, 2), MESH_STANDIN_TOO_LONG);
    expect_nothing_under_way();
    for (const char* operation : {"init_size", "send"})
        for (int k = 0; k < 3; ++k) {
            planned = {operation, k};
            EXPECT_EQ(MESH_SendMsg(1, three, 3), MESH_STANDIN_NO_MEMORY) << operation << " " << k;
            expect_nothing_under_way();
        }
}

#if !KESTO_WITH_KEYS // for want of a key nobody gets that far
// Somebody who speaks the protocol without the library: a greeting, READY as a PUSH socket, and the head of a part.
TEST_F(ZeroMq, who_announces_a_part_longer_than_any_item_is_cut_off)
{
    const std::string greeting = '\xff' + std::string(8, '\0') + '\x7f' + '\3' + '\0' + "NULL" + std::string(48, '\0');
    const std::string ready = std::string("\4\x1a\5READY\x0bSocket-Type\0\0\0\4PUSH", 28);
    const std::string part = "\2" + std::string(5, '\0') + "\3" + std::string("\0\x09", 2);   // of 196608 + 9 bytes
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    strcpy(address.sun_path, (std::string(folder) + "/two").c_str());
    const int peer = socket(AF_UNIX, SOCK_STREAM, 0);
    const timeval patience{5, 0};
    ASSERT_EQ(setsockopt(peer, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience), 0);
    ASSERT_EQ(connect(peer, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    std::string heard;
    const auto hear = [&] {
        char c = 0;
        const ssize_t got = recv(peer, &c, 1, 0);
        heard += c;
        return got;
    };
    ASSERT_EQ(send(peer, (greeting + ready).data(), 64 + 28, 0), 64 + 28);
    while (heard.find("READY") == std::string::npos)
        ASSERT_EQ(hear(), 1) << "cut off before the part";
    ASSERT_EQ(send(peer, part.data(), part.size(), 0), 9);
    ssize_t got;
    while ((got = hear()) == 1) {}
    EXPECT_TRUE(got == 0 || errno == ECONNRESET) << "still connected";
    close(peer);
}
#endif

TEST_F(ZeroMq, what_the_map_does_not_say_is_refused)
{
    const std::string x = "x";
    const MeshSendItem one = item(7, x);
    EXPECT_EQ(MESH_SendToMsg(1, &one, 1, 8), MESH_STANDIN_NO_PEER);
    EXPECT_EQ(MESH_SendMsg(2, &one, 1), MESH_STANDIN_NO_PEER);
    EXPECT_EQ(mesh_standin_receive(1, 0), MESH_STANDIN_NOT_BOUND);
    EXPECT_EQ(mesh_standin_listen(1, "/tmp/nothing"), MESH_STANDIN_BUSY);
    EXPECT_EQ(mesh_standin_connect(1, "/tmp/nothing", 0), MESH_STANDIN_BUSY);
    EXPECT_EQ(MESH_SendMsg(5, &one, 1), MESH_STANDIN_TIMEOUT) << "nobody has come in five seconds";
}

TEST_F(ZeroMq, many_threads_send_without_mixing_their_batches)
{
    constexpr int threads = 4, batches = 100;
    std::vector<std::thread> senders;
    for (int t = 0; t < threads; ++t)
        senders.emplace_back([t] {
            const std::string first = "first of " + std::to_string(t), second = "second of " + std::to_string(t);
            const MeshSendItem items[] = {item(7, first), item(7, second)};
            for (int i = 0; i < batches; ++i)
                EXPECT_EQ(MESH_SendMsg(1, items, 2), MESH_STANDIN_OK);
        });
    for (int i = 0; i < 2 * threads * batches; ++i)
        ASSERT_EQ(mesh_standin_receive(2, 5000), MESH_STANDIN_OK);
    for (std::thread &sender : senders)
        sender.join();
    for (std::size_t i = 0; i + 1 < seen.size(); i += 2)
        EXPECT_EQ(seen[i].substr(seen[i].find("of")), seen[i + 1].substr(seen[i + 1].find("of"))) << i;
}

// The last test, as nobody is admitted after it.
TEST_F(ZeroMq, nobody_is_admitted_once_admission_has_failed)
{
    if (!KESTO_WITH_KEYS)
        GTEST_SKIP() << "everybody is admitted";
    const std::string x = "x";
    const MeshSendItem two[] = {item(7, x), item(7, x)};
    const auto begin_a_new_connection = [&] {
        planned = {"send", 1};
        EXPECT_EQ(MESH_SendMsg(1, two, 2), MESH_STANDIN_NO_MEMORY);
    };
    frames_before_admission_fails = 6;   // the seven of one question; it waits for the first one already
    begin_a_new_connection();
    expect_nothing_under_way();
    while (frames_before_admission_fails >= 0)
        std::this_thread::yield();
    begin_a_new_connection();
    EXPECT_EQ(MESH_SendMsg(1, two, 1), MESH_STANDIN_TIMEOUT) << "nobody has answered in five seconds";
}

}   // namespace
