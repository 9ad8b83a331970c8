// Tests the tap in front of a scripted MESH. It is linked before MESH here instead of preloaded; the environment, which
// it reads when it is loaded, comes from CTest: KESTO_TAP with %p, files of 1 MiB, three of them.

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>
#include <thread>

#include "model/little_endian.h"
#include "tests/support/expected_catalogue.h"
#include "tests/support/scripted_mesh.h"

namespace kesto::tests {

namespace {

namespace fs = std::filesystem;
using model::Bytes;
using Lines = std::vector<std::string>;

constexpr std::uint32_t known_id = 0x91cd149e, other_id = 0x12345678;
constexpr std::size_t file_head = 24, record_head = 16, call_head = 24, packet_head = 8;

std::string path_of(pid_t process)
{
    std::string path = std::getenv("KESTO_TAP");
    return path.replace(path.find("%p"), 2, std::to_string(process));
}

Bytes bytes_of(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::uint64_t now()
{
    timespec time;
    clock_gettime(CLOCK_REALTIME, &time);
    return static_cast<std::uint64_t>(time.tv_sec) * 1000000 + static_cast<std::uint64_t>(time.tv_nsec) / 1000;
}

// A packet as text: direction, known, channel, destination, result and id, length of the bytes and the first of them.
std::string line_of(std::initializer_list<std::uint32_t> numbers, std::span<const std::uint8_t> bytes)
{
    std::string line;
    for (const std::uint32_t number : numbers)
        line += std::to_string(number) + " ";
    return line + std::to_string(bytes.size()) + (bytes.empty() ? "" : "*" + std::to_string(bytes[0]));
}

Lines packets_in(const std::string& path)
{
    static const std::uint64_t start = now();
    const Bytes file = bytes_of(path);
    Lines packets;
    for (std::size_t at = file_head, length = 0; at + record_head <= file.size(); at += record_head + length) {
        const std::uint8_t* const record = &file[at];
        length = model::get32(record + 8);
        EXPECT_EQ(model::get32(record + 12), length);
        EXPECT_LE(at + record_head + length, file.size());
        const std::uint8_t *const call = record + record_head, *const packet = call + call_head;
        EXPECT_EQ(call[0], 1u);
        EXPECT_EQ(model::get32(packet + 4), length - call_head - packet_head);
        const std::uint64_t began = model::get(call + 16, 8) / 1000,
                            written = model::get32(record) * std::uint64_t{1000000} + model::get32(record + 4);
        EXPECT_TRUE(start <= began && began <= written && written <= now());
        packets.push_back(line_of({call[1], model::get16(call + 2), model::get32(call + 4), model::get32(call + 8),
                                   model::get32(call + 12), model::get32(packet)},
                                  {packet + packet_head, call + length}));
    }
    return packets;
}

MeshSendItem item_of(std::uint32_t id, const Bytes& bytes)
{
    return {bytes.data(), id, static_cast<std::uint32_t>(bytes.size())};
}

int send(const Bytes& bytes)
{
    const MeshSendItem item = item_of(known_id, bytes);
    return MESH_SendMsg(3, &item, 1);
}

std::string sent(const Bytes& bytes) { return line_of({0, 5, 3, 0, 0, known_id}, bytes); }

// Runs `work` in a child, which must end well.
pid_t in_child(const std::function<void()>& work)
{
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    return child;
}

class Tap : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_NE(std::getenv("KESTO_TAP"), nullptr) << "CTest sets it";
        scripted_mesh = {};
        path = path_of(getpid());
        before = packets_in(path).size();
    }

    static void TearDownTestSuite()   // also removes the files of children
    {
        const std::string path = std::getenv("KESTO_TAP"), all = path.substr(0, path.find("%p"));
        for (const auto& entry : fs::directory_iterator(fs::path(path).parent_path()))
            if (entry.path().string().starts_with(all))
                fs::remove(entry.path());
    }

    Lines packets() const   // of this test
    {
        Lines all = packets_in(path);
        return {all.begin() + static_cast<long>(before), all.end()};
    }

    std::string path;
    std::size_t before = 0;
};

TEST_F(Tap, passes_sends_unchanged_and_writes_their_items_with_the_result)
{
    const Bytes one{1}, two{2, 2}, none;
    const MeshSendItem items[] = {
        item_of(known_id, one), item_of(other_id, two), item_of(known_id, none), {nullptr, known_id, 9}};
    Lines expected;
    for (const int result : {0, 42, -7}) {
        scripted_mesh = {};
        scripted_mesh.result = result;
        scripted_mesh.error = result == 0 ? 0 : ENETDOWN;
        errno = EXDEV;
        EXPECT_EQ(MESH_SendMsg(0xffffffff, items, 4), result);
        EXPECT_EQ(errno, result == 0 ? EXDEV : ENETDOWN);
        EXPECT_EQ(scripted_mesh.items, items);
        EXPECT_EQ(scripted_mesh.count, 4u);
        EXPECT_EQ(scripted_mesh.channel, 0xffffffff);
        EXPECT_EQ(scripted_mesh.destination, 0u);
        EXPECT_EQ(MESH_SendToMsg(1, items, 1, 0xfffffffe), result);
        EXPECT_EQ(scripted_mesh.destination, 0xfffffffe);
        EXPECT_EQ(MESH_SendMsg(1, nullptr, 5), result);
        const auto returned = static_cast<std::uint32_t>(result);
        for (const Bytes& bytes : {one, none, none})
            expected.push_back(line_of({0, 5, 0xffffffff, 0, returned, known_id}, bytes));
        expected.push_back(line_of({0, 7, 1, 0xfffffffe, returned, known_id}, one));
    }
    EXPECT_EQ(packets(), expected) << "an id outside the catalogue is not written";
}

std::string capture_path;   // for the decoders
std::size_t size_in_decoder;

std::uint32_t decode(const std::uint8_t* bytes, std::uint32_t length, void* record)
{
    size_in_decoder = bytes == nullptr ? 0 : bytes_of(capture_path).size();
    if (record != nullptr)
        *static_cast<const void**>(record) = bytes;
    return 1000 + length;
}
std::uint32_t decode_otherwise(const std::uint8_t*, std::uint32_t, void*) { return 2000; }
void free_record(void*) {}

TEST_F(Tap, writes_what_the_decoder_of_each_id_gets_before_it_runs)
{
    capture_path = path;
    Lines expected;
    for (const model::Message& message : expected_catalogue().messages) {
        ASSERT_EQ(MESH_RegIDLFuncHook(message.id, decode, free_record), 0);
        EXPECT_EQ(scripted_mesh.id, message.id);
        EXPECT_EQ(scripted_mesh.free_record, &free_record);
        const Bytes bytes{1, 2, 3};
        const void* record = nullptr;
        const std::size_t size = bytes_of(path).size();
        EXPECT_EQ(scripted_mesh.unpack(nullptr, 0, nullptr), 1000u) << "asks for the size";
        EXPECT_EQ(scripted_mesh.unpack(bytes.data(), 3, &record), 1003u);
        EXPECT_EQ(record, bytes.data());
        EXPECT_EQ(size_in_decoder, (size == 0 ? file_head : size) + record_head + call_head + packet_head + 3);
        expected.push_back(line_of({1, 0, 0, 0, 0, message.id}, bytes));
    }
    EXPECT_EQ(packets(), expected);
}

TEST_F(Tap, leaves_registrations_of_other_ids_alone_and_follows_those_that_mesh_accepts)
{
    for (const std::uint32_t id : {other_id, 0u, 0xffffffffu}) {
        ASSERT_EQ(MESH_RegIDLFuncHook(id, decode, free_record), 0);
        EXPECT_EQ(scripted_mesh.unpack, &decode);
    }
    ASSERT_EQ(MESH_RegIDLFuncHook(known_id, decode, free_record), 0);
    EXPECT_NE(scripted_mesh.unpack, &decode) << "MESH gets a trampoline";
    const MeshUnpack trampoline = scripted_mesh.unpack;
    scripted_mesh.result = 17;
    EXPECT_EQ(MESH_RegIDLFuncHook(known_id, decode_otherwise, free_record), 17);
    EXPECT_EQ(trampoline(nullptr, 0, nullptr), 1000u) << "the refused decoder is not in use";
    scripted_mesh.result = 0;
    EXPECT_EQ(MESH_RegIDLFuncHook(known_id, decode_otherwise, free_record), 0);
    EXPECT_EQ(scripted_mesh.unpack(nullptr, 0, nullptr), 2000u);
    EXPECT_EQ(MESH_RegIDLFuncHook(known_id, nullptr, free_record), 0);
    EXPECT_EQ(scripted_mesh.unpack, nullptr);
    EXPECT_EQ(packets(), Lines{});
}

TEST_F(Tap, gives_a_child_its_own_file_also_while_other_threads_send)
{
    const Bytes parent{1}, child{2};
    ASSERT_EQ(send(parent), 0);
    const pid_t process = in_child([&] { EXPECT_EQ(send(child), 0); });
    EXPECT_EQ(packets(), Lines{sent(parent)});
    EXPECT_EQ(packets_in(path_of(process)), Lines{sent(child)});

    in_child([&] {   // which has a file of its own for what the thread sends
        std::atomic<bool> stop{};
        std::thread sender([&] {
            while (!stop)
                (void)send(parent);
        });
        for (int i = 0; i < 50 && !HasFailure(); ++i)
            in_child([&] {
                alarm(20);   // a lock that the sender held would never be released here
                (void)send(child);
            });
        stop = true;
        sender.join();
    });
}

// As a process does that becomes a daemon.
TEST_F(Tap, writes_to_no_file_of_a_process_that_has_closed_the_capture)
{
    const std::string own = path + ".own";
    const pid_t process = in_child([&] {
        EXPECT_EQ(send({1}), 0);
        for (int file = 3; file < 256; ++file)
            close(file);
        std::vector<int> files;
        for (int i = 0; i < 20; ++i)
            files.push_back(open(own.c_str(), O_RDWR | O_CREAT | O_APPEND, 0600));
        EXPECT_EQ(send({2}), 0);
        EXPECT_EQ(fs::file_size(own), 0u);
        for (const int file : files)
            EXPECT_EQ(close(file), 0) << "the tap has closed it";
        EXPECT_EQ(send({3}), 0);
    });
    EXPECT_EQ(packets_in(path_of(process)), (Lines{sent({1}), sent({2}), sent({3})}));
}

TEST_F(Tap, keeps_to_its_files_and_their_size_and_replaces_nothing_else)
{
    const auto large = [](std::uint32_t i) { return Bytes(100000, static_cast<std::uint8_t>(i)); };
    const pid_t process = in_child([&] {
        for (std::uint32_t i = 0; i < 60; ++i)
            EXPECT_EQ(send(large(i)), 0);
    });
    std::uint32_t next = 60 - 2 * 10 - 10;   // ten fit in a file
    for (const char* suffix : {".2", ".1", ""}) {
        const std::string file = path_of(process) + suffix;
        struct stat status;
        ASSERT_EQ(stat(file.c_str(), &status), 0) << file;
        EXPECT_EQ(status.st_mode, S_IFREG | 0600u);
        EXPECT_LE(status.st_size, 1 << 20);
        for (const std::string& packet : packets_in(file))
            EXPECT_EQ(packet, sent(large(next++))) << file;
    }
    EXPECT_EQ(next, 60u);
    EXPECT_FALSE(fs::exists(path_of(process) + ".3"));

    testing::internal::CaptureStderr();
    const pid_t other = in_child([&] {
        std::ofstream(path_of(getpid()) + ".1") << "notes";
        errno = EXDEV;
        for (std::uint32_t i = 0; i < 12; ++i)
            EXPECT_EQ(send(large(i)), 0);
        EXPECT_EQ(errno, EXDEV);
    });
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "kesto tap: no capture to " + std::string(std::getenv("KESTO_TAP")) +
                  ": it holds something, and no capture of ours; it stays as it is\n");
    EXPECT_EQ(fs::file_size(path_of(other) + ".1"), 5u);
    EXPECT_EQ(packets_in(path_of(other)).size(), 10u);

    in_child([&] {   // a limit of the process on its files, whose signal would end it
        const rlimit small{250000, 250000};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
        for (std::uint32_t i = 0; i < 5; ++i)
            EXPECT_EQ(send(large(i)), 0);
        EXPECT_EQ(packets_in(path_of(getpid())).size(), 1u) << "two fit";
    });
}

}   // namespace

}   // namespace kesto::tests
