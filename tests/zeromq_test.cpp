// Tests the ZeroMQ transport within one process: messages sent on channel 1 arrive on channel 2, or, for destination 9,
// on channel 6. Built twice, without keys and with keys.

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <zmq.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <latch>
#include <thread>

#include "tests/support/notes.h"

namespace {

// The number of calls of one ZeroMQ operation that succeed before one fails. Without a plan all succeed.
struct Failure {
    std::string operation;
    int calls_before;
};
Failure planned{};

bool fails(const char* operation)
{
    if (planned.operation != operation || planned.calls_before-- != 0)
        return false;
    planned = {};
    errno = ENOMEM;
    return true;
}

std::atomic<int> frames_before_admission_fails{-1};

template <typename Function>
Function* real(Function*, const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}   // namespace

// These replace ZeroMQ's own functions for the transport.
extern "C" int zmq_msg_init_size(zmq_msg_t* message, size_t size)
{
    return fails("init_size") ? -1 : real(zmq_msg_init_size, "zmq_msg_init_size")(message, size);
}

extern "C" int zmq_msg_send(zmq_msg_t* message, void* socket, int flags)
{
    std::this_thread::yield();   // to a thread that sends without waiting for the rest of this message
    return fails("send") ? -1 : real(zmq_msg_send, "zmq_msg_send")(message, socket, flags);
}

extern "C" int zmq_recv(void* socket, void* buffer, size_t length, int flags)
{
    if (frames_before_admission_fails < 0 || frames_before_admission_fails-- != 0)
        return real(zmq_recv, "zmq_recv")(socket, buffer, length, flags);
    errno = ENOMEM;
    return -1;
}

namespace kesto::tests {

namespace {

// The map is read once per process, so all tests share it.
class ZeroMq : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        ASSERT_NE(mkdtemp(folder), nullptr);
        const std::string two = address("two"), three = address("three"), nobody = address("nobody");
        std::ofstream(folder + std::string("/map"))
            << "# everything of one process\n2 receive " << two << "\n6 receive " << three << "\n"
            << "1 send " << two << "   # also without a destination\n1 send " << three << " to 0x9\n"
            << "1 send " << three << " to 9\n1 send " << three << " to 8 9\n64 send " << two << "\n3 sent " << two
            << "\n4 send nowhere\n5 send " << nobody << "\n";
        setenv("MESH_ZEROMQ_MAP", (folder + std::string("/map")).c_str(), 1);
        if (KESTO_WITH_KEYS) {
            char public_key[41], secret_key[41];
            ASSERT_EQ(zmq_curve_keypair(public_key, secret_key), 0);
            std::ofstream keys(folder + std::string("/keys"));
            keys << "secret " << secret_key << "\n\nsender " << public_key << "\n";
            for (const std::string& receiver : {two, three, nobody, std::string("nowhere")})
                keys << "receiver " << receiver << " " << public_key << "\n";
            setenv("MESH_ZEROMQ_KEYS", (folder + std::string("/keys")).c_str(), 1);
        }
        testing::internal::CaptureStderr();
        ASSERT_EQ(mesh_standin_receive(2, 0), MESH_STANDIN_TIMEOUT);
        reported = testing::internal::GetCapturedStderr();
    }

    static std::string address(const char* name) { return std::string("ipc://") + folder + "/" + name; }

    static void TearDownTestSuite() { std::filesystem::remove_all(folder); }

    void SetUp() override { start_notes(); }

    // The next packet must be the one sent now; nothing from an earlier call is still in transit.
    static void expect_nothing_in_transit()
    {
        seen.clear();
        EXPECT_EQ(send_text(1, 7, "mark"), MESH_STANDIN_OK);
        EXPECT_EQ(mesh_standin_receive(2, 5000), MESH_STANDIN_OK);
        EXPECT_EQ(seen, Lines{"2:7 mark"});
    }

    static inline char folder[] = "/tmp/zeromqXXXXXX";
    static inline std::string reported;
};

TEST_F(ZeroMq, bad_map_lines_are_reported_and_skipped_and_unmapped_channels_are_refused)
{
    for (const char* line :
         {"map:6: an earlier line", "map:7: only \"to", "map:8: no such channel", "map:9: neither", "nowhere: "})
        EXPECT_NE(reported.find(line), std::string::npos) << line << " in\n" << reported;
    const std::string nothing;
    const MeshSendItem one = item(7, nothing);
    EXPECT_EQ(MESH_SendMsg(3, &one, 1), MESH_STANDIN_OK) << "no line: a loopback";
    EXPECT_EQ(MESH_SendMsg(4, &one, 1), MESH_STANDIN_BAD_PATH);
    EXPECT_EQ(MESH_SendMsg(5, &one, 1), MESH_STANDIN_TIMEOUT) << "nobody has come in five seconds";
    EXPECT_EQ(MESH_SendToMsg(1, &one, 1, 8), MESH_STANDIN_NO_PEER);
    EXPECT_EQ(MESH_SendMsg(2, &one, 1), MESH_STANDIN_NO_PEER);
    EXPECT_EQ(mesh_standin_receive(1, 0), MESH_STANDIN_NOT_BOUND);
    EXPECT_EQ(mesh_standin_listen(1, "/tmp/nothing"), MESH_STANDIN_BUSY);
    EXPECT_EQ(mesh_standin_connect(1, "/tmp/nothing", 0), MESH_STANDIN_BUSY);
    EXPECT_EQ(seen, Lines{"3:7 "});
}

TEST_F(ZeroMq, each_receive_delivers_one_item_in_order_even_after_an_unknown_id)
{
    const std::string a = "a", empty, longest(MESH_STANDIN_ITEM_BYTES, 'c'), capture = folder + std::string("/capture");
    const MeshSendItem items[] = {item(7, a), item(8, a), item(7, empty), item(7, longest)};
    ASSERT_EQ(mesh_standin_capture(capture.c_str()), MESH_STANDIN_OK);
    ASSERT_EQ(MESH_SendToMsg(1, items, 4, 9), MESH_STANDIN_OK);
    for (const int result : {MESH_STANDIN_OK, MESH_STANDIN_UNKNOWN_ID, MESH_STANDIN_OK, MESH_STANDIN_OK})
        EXPECT_EQ(mesh_standin_receive(6, 5000), result);
    EXPECT_EQ(seen, (Lines{"6:7 a", "6:7 ", "6:7 " + longest}));
    EXPECT_EQ(mesh_counters().sent, 4u);
    ASSERT_EQ(mesh_standin_capture(nullptr), MESH_STANDIN_OK);
    EXPECT_EQ(std::filesystem::file_size(capture), 24 + 2 * (4 * (16 + 24 + 8) + 1 + 1 + 0 + MESH_STANDIN_ITEM_BYTES))
        << "each item that left, and each that came";
    expect_nothing_in_transit();
}

TEST_F(ZeroMq, batch_is_sent_whole_or_not_at_all)
{
    const std::string a = "a", too_long(MESH_STANDIN_ITEM_BYTES + 1, 'c');
    const MeshSendItem long_one[] = {item(7, a), item(7, too_long)}, three[] = {item(7, a), item(7, a), item(7, a)};
    EXPECT_EQ(MESH_SendMsg(1, long_one, 2), MESH_STANDIN_TOO_LONG);
    expect_nothing_in_transit();
    for (const char* operation : {"init_size", "send"})
        for (int k = 0; k < 3; ++k) {
            planned = {operation, k};
            EXPECT_EQ(MESH_SendMsg(1, three, 3), MESH_STANDIN_NO_MEMORY) << operation << " " << k;
            expect_nothing_in_transit();
        }
}

#if !KESTO_WITH_KEYS   // without a key no sender gets that far
TEST_F(ZeroMq, oversized_part_disconnects_the_sender)
{
    void* const context = zmq_ctx_new();
    void* const foreign = zmq_socket(context, ZMQ_PUSH);
    const int linger_ms = 0;
    zmq_setsockopt(foreign, ZMQ_LINGER, &linger_ms, sizeof linger_ms);
    ASSERT_EQ(zmq_connect(foreign, address("two").c_str()), 0);
    const std::string part(MESH_STANDIN_ITEM_BYTES + 9, 'p');
    for (const std::size_t length : {part.size() - 1, part.size()}) {
        ASSERT_EQ(zmq_send(foreign, part.data(), length, 0), static_cast<int>(length));
        EXPECT_EQ(mesh_standin_receive(2, 1000),
                  length == part.size() ? MESH_STANDIN_TIMEOUT : MESH_STANDIN_LENGTH_DISAGREES);
    }
    zmq_close(foreign);
    zmq_ctx_term(context);
}
#endif

TEST_F(ZeroMq, batches_of_concurrent_threads_do_not_interleave)
{
    constexpr std::size_t threads = 4, batches = 100, items = 5;
    std::vector<std::thread> senders;
    std::latch start(threads);
    for (std::size_t t = 0; t < threads; ++t)
        senders.emplace_back([t, &start] {
            const std::string text = std::to_string(t);
            start.arrive_and_wait();
            for (std::size_t i = 0; i < batches; ++i)
                EXPECT_EQ(MESH_SendMsg(1, std::vector(items, item(7, text)).data(), items), MESH_STANDIN_OK);
        });
    for (std::size_t i = 0; i < threads * batches * items; ++i)
        ASSERT_EQ(mesh_standin_receive(2, 5000), MESH_STANDIN_OK);
    for (std::thread& sender : senders)
        sender.join();
    for (std::size_t i = 0; i < seen.size(); ++i)
        EXPECT_EQ(seen[i], seen[i - i % items]) << i;
}

// This must be the last test, as no peer is admitted after it.
TEST_F(ZeroMq, no_peer_is_admitted_after_admission_has_failed)
{
    if (!KESTO_WITH_KEYS)
        GTEST_SKIP() << "everybody is admitted";
    const std::string x = "x";
    const MeshSendItem two[] = {item(7, x), item(7, x)};
    const auto reconnect = [&] {
        planned = {"send", 1};
        EXPECT_EQ(MESH_SendMsg(1, two, 2), MESH_STANDIN_NO_MEMORY);
    };
    frames_before_admission_fails = 6;   // the seven of one request; it already waits for the first one
    reconnect();
    expect_nothing_in_transit();
    while (frames_before_admission_fails >= 0)
        std::this_thread::yield();
    reconnect();
    EXPECT_EQ(MESH_SendMsg(1, two, 1), MESH_STANDIN_TIMEOUT) << "nobody has answered in five seconds";
}

}   // namespace

}   // namespace kesto::tests
