// Tests the tap in front of a scripted MESH. It is linked before MESH here instead of preloaded; the environment, which
// it reads when it is loaded, comes from CTest: KESTO_TAP with %p, files of 1 MiB, three of them.

#include <gtest/gtest.h>

#include <fcntl.h>
#include <pthread.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <thread>

#include "model/little_endian.h"
#include "tests/support/expected_catalogue.h"
#include "tests/support/figures.h"
#include "tests/support/scripted_mesh.h"

namespace kesto::tests {

namespace {

namespace fs = std::filesystem;
using model::Bytes;
// Direction, known, channel, destination, result, id, number of bytes and, if there are any, the first of them.
using Packet = std::vector<std::uint32_t>;
using Packets = std::vector<Packet>;

constexpr std::uint32_t known_id = 0x91cd149e, other_id = 0x12345678;
constexpr std::size_t file_head = 24, record_head = 16, call_head = 24, packet_head = 8;
const std::string pattern = std::getenv("KESTO_TAP") == nullptr ? "CTest sets it: %p" : std::getenv("KESTO_TAP");

std::string path_of(pid_t process)
{
    return std::string(pattern).replace(pattern.find("%p"), 2, std::to_string(process));
}

std::string own_path() { return path_of(getpid()); }

std::uint64_t now()
{
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch() /
                                      std::chrono::microseconds(1));
}

const std::uint64_t start = now();

Packets packets_in(const std::string& path)
{
    const std::string content = read_file(path);
    const Bytes file(content.begin(), content.end());
    Packets packets;
    for (std::size_t at = file_head, length = 0; at + record_head <= file.size(); at += record_head + length) {
        const std::uint8_t *const record = &file[at], *const call = record + record_head,
                                  *const packet = call + call_head;
        length = model::get32(record + 8);
        const auto bytes = static_cast<std::uint32_t>(length - call_head - packet_head);
        EXPECT_TRUE(at + record_head + length <= file.size() && model::get32(packet + 4) == bytes);
        const std::uint64_t began = model::get(call + 16, 8) / 1000,
                            written = model::get32(record) * std::uint64_t{1000000} + model::get32(record + 4);
        EXPECT_TRUE(start <= began && began <= written && written <= now());
        packets.push_back({call[1], model::get16(call + 2), model::get32(call + 4), model::get32(call + 8),
                           model::get32(call + 12), model::get32(packet), bytes});
        if (bytes > 0)
            packets.back().push_back(packet[packet_head]);
    }
    return packets;
}

// Sends `count` bytes of a value on channel 3.
int send(std::uint32_t value, std::uint32_t count = 1)
{
    const Bytes bytes(count, static_cast<std::uint8_t>(value));
    const MeshSendItem item{bytes.data(), known_id, count};
    return MESH_SendMsg(3, &item, 1);
}

Packet sent(std::uint32_t value, std::uint32_t count = 1) { return {0, 5, 3, 0, 0, known_id, count, value}; }

class Tap : public testing::Test {
protected:
    Tap() { scripted_mesh = {}; }

    static void TearDownTestSuite()   // also removes the files of children
    {
        for (const auto& entry : fs::directory_iterator(fs::path(pattern).parent_path()))
            if (entry.path().string().starts_with(pattern.substr(0, pattern.find("%p"))))
                fs::remove(entry.path());
    }

    // Runs `work` in a child, which must end well, and returns the path of the capture.
    static std::string in_child(const std::function<void()>& work)
    {
        const pid_t child = fork();
        if (child == 0) {
            alarm(60);   // for a lock that is never released
            work();
            _exit(HasFailure() ? 1 : 0);
        }
        int status = -1;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
        return path_of(child);
    }
};

TEST_F(Tap, passes_sends_unchanged_and_writes_their_items_with_the_result)
{
    const Bytes bytes{1, 2};
    const MeshSendItem items[] = {
        {bytes.data(), known_id, 2}, {bytes.data(), other_id, 2}, {bytes.data(), known_id, 0}, {nullptr, known_id, 9}};
    in_child([&] {
        Packets expected;
        for (const int result : {0, -7}) {
            scripted_mesh.result = result;
            scripted_mesh.error = result == 0 ? 0 : ENETDOWN;
            errno = EXDEV;
            EXPECT_EQ(MESH_SendMsg(0xffffffff, items, 4), result);
            EXPECT_EQ(errno, result == 0 ? EXDEV : ENETDOWN);
            EXPECT_TRUE(scripted_mesh.items == items && scripted_mesh.count == 4 &&
                        scripted_mesh.channel == 0xffffffff);
            EXPECT_EQ(MESH_SendToMsg(1, items, 1, 0xfffffffe), result);
            EXPECT_EQ(scripted_mesh.destination, 0xfffffffe);
            EXPECT_EQ(MESH_SendMsg(1, nullptr, 5), result);
            const auto returned = static_cast<std::uint32_t>(result);
            const Packet empty{0, 5, 0xffffffff, 0, returned, known_id, 0};
            expected.insert(expected.end(), {{0, 5, 0xffffffff, 0, returned, known_id, 2, 1},
                                             empty,
                                             empty,
                                             {0, 7, 1, 0xfffffffe, returned, known_id, 2, 1}});
        }
        EXPECT_EQ(packets_in(own_path()), expected) << "an id outside the catalogue is not written";
    });
}

std::size_t packets_in_decoder;   // which are in the file

std::uint32_t decode(const std::uint8_t* bytes, std::uint32_t length, void* record)
{
    packets_in_decoder = bytes == nullptr ? 0 : packets_in(own_path()).size();
    if (record != nullptr)
        *static_cast<const void**>(record) = bytes;
    return 1000 + length;
}
std::uint32_t decode_otherwise(const std::uint8_t*, std::uint32_t, void*) { return 2000; }
void free_record(void*) {}

TEST_F(Tap, writes_what_the_decoder_of_each_id_gets_before_it_runs)
{
    in_child([] {
        Packets expected;
        for (const model::Message& message : expected_catalogue().messages) {
            ASSERT_EQ(MESH_RegIDLFuncHook(message.id, decode, free_record), 0);
            EXPECT_TRUE(scripted_mesh.id == message.id && scripted_mesh.free_record == &free_record);
            const Bytes bytes{1, 2, 3};
            const void* record = nullptr;
            EXPECT_EQ(scripted_mesh.unpack(nullptr, 0, nullptr), 1000u) << "asks for the size";
            EXPECT_TRUE(scripted_mesh.unpack(bytes.data(), 3, &record) == 1003 && record == bytes.data());
            expected.push_back({1, 0, 0, 0, 0, message.id, 3, 1});
            EXPECT_EQ(packets_in_decoder, expected.size());
        }
        EXPECT_EQ(packets_in(own_path()), expected);
    });
}

TEST_F(Tap, passes_registrations_of_other_ids_unchanged_and_follows_those_that_mesh_accepts)
{
    for (const std::uint32_t id : {other_id, 0u, 0xffffffffu}) {
        ASSERT_EQ(MESH_RegIDLFuncHook(id, decode, free_record), 0);
        EXPECT_EQ(scripted_mesh.unpack, &decode);
    }
    ASSERT_EQ(MESH_RegIDLFuncHook(known_id, decode, free_record), 0);
    const MeshUnpack trampoline = scripted_mesh.unpack;
    scripted_mesh.result = 17;
    EXPECT_EQ(MESH_RegIDLFuncHook(known_id, decode_otherwise, free_record), 17);
    EXPECT_EQ(trampoline(nullptr, 0, nullptr), 1000u) << "the refused decoder is not in use";
    scripted_mesh.result = 0;
    EXPECT_EQ(MESH_RegIDLFuncHook(known_id, decode_otherwise, free_record), 0);
    EXPECT_EQ(scripted_mesh.unpack(nullptr, 0, nullptr), 2000u);
    EXPECT_EQ(MESH_RegIDLFuncHook(known_id, nullptr, free_record), 0);
    EXPECT_EQ(scripted_mesh.unpack, nullptr);
}

TEST_F(Tap, can_write_in_a_child_that_was_forked_while_another_thread_wrote)
{
    in_child([] {   // which has a file of its own for what the thread sends
        std::atomic<bool> stop{};
        std::thread sender([&] {
            while (!stop)
                (void)send(1);
        });
        for (int i = 0; i < 50 && !HasFailure(); ++i)
            EXPECT_EQ(packets_in(in_child([] { (void)send(2); })), Packets{sent(2)});
        stop = true;
        sender.join();
    });
}

TEST_F(Tap, does_not_deadlock_if_a_signal_handler_sends)
{
    in_child([&] {
        static constinit std::atomic<std::uint32_t> handled{};
        signal(SIGUSR1, [](int) {
            const MeshSendItem item{nullptr, known_id, 0};
            (void)MESH_SendMsg(3, &item, 1);
            ++handled;
        });
        std::thread interrupter([main = pthread_self()] {
            for (std::uint32_t i = 0; i < 200; ++i) {
                pthread_kill(main, SIGUSR1);
                while (handled <= i)
                    std::this_thread::yield();
            }
        });
        while (handled < 200)
            (void)send(1);
        interrupter.join();
        (void)send(3);
        const Packets all = packets_in(own_path());
        EXPECT_TRUE(!all.empty() && all.back() == sent(3)) << "the capture goes on";
    });
}

TEST_F(Tap, writes_to_no_file_of_a_process_that_has_closed_the_capture)
{
    in_child([] {
        EXPECT_EQ(send(1), 0);
        for (int file = 3; file < 256; ++file)
            close(file);   // as a process does that becomes a daemon
        const std::string own = own_path() + ".own";
        int last = -1;
        for (int i = 0; i < 20; ++i)
            last = open(own.c_str(), O_RDWR | O_CREAT | O_APPEND, 0600);
        EXPECT_EQ(send(2), 0);
        EXPECT_EQ(fs::file_size(own), 0u);
        for (int file = 3; file <= last; ++file)
            EXPECT_EQ(close(file), 0) << "the tap has closed it";
        EXPECT_EQ(send(3), 0);
        EXPECT_EQ(packets_in(own_path()), (Packets{sent(1), sent(2), sent(3)}));
    });
}

TEST_F(Tap, keeps_to_its_files_and_their_size_and_replaces_nothing_else)
{
    constexpr std::uint32_t large = 100000;
    const auto send_large = [](std::uint32_t count) {
        for (std::uint32_t i = 0; i < count; ++i)
            EXPECT_EQ(send(i, large), 0);
    };
    const std::string file = in_child([&] { send_large(60); });
    std::uint32_t next = 60 - 2 * 10 - 10;   // ten fit in a file
    for (const std::string& name : {file + ".2", file + ".1", file}) {
        EXPECT_LE(fs::file_size(name), 1u << 20);
        for (const Packet& packet : packets_in(name))
            EXPECT_EQ(packet, sent(next++, large)) << name;
    }
    EXPECT_EQ(next, 60u);
    EXPECT_FALSE(fs::exists(file + ".3"));

    const std::string other = in_child([&] {
        std::ofstream(own_path() + ".1") << "notes";
        errno = EXDEV;
        send_large(12);
        EXPECT_EQ(errno, EXDEV);
    });
    EXPECT_EQ(read_file(other + ".1"), "notes");
    EXPECT_EQ(packets_in(other).size(), 10u);

    in_child([&] {   // a limit of the process on its files, whose signal would end it
        const rlimit small{250000, 250000};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
        send_large(5);
        EXPECT_EQ(packets_in(own_path()).size(), 1u) << "two fit";
    });
}

}   // namespace

}   // namespace kesto::tests
