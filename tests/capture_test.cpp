// The reader of captures, on what the MESH stand-in writes and on files that are no captures of ours.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <ctime>
#include <filesystem>
#include <vector>

#include "platform/mesh.h"
#include "platform/standin/mesh_standin.h"
#include "tests/support/capture_file.h"
#include "tests/support/capture_folder.h"
#include "tools/kesto/capture.h"

namespace kesto::tests {

namespace {

using tools::CapturedPacket;
using tools::CaptureReader;
using tools::PacketFault;

struct Packet {
    PacketFault fault;
    std::uint32_t id;
    Bytes bytes;

    bool operator==(const Packet&) const = default;
};

std::vector<Packet> rest_of(CaptureReader& reader, std::string& error)
{
    std::vector<Packet> packets;
    CapturedPacket packet;
    while (reader.next(packet, error)) {
        packets.push_back({packet.fault, packet.id, {packet.bytes.begin(), packet.bytes.end()}});
        EXPECT_EQ(packet.number, packets.size());
    }
    return packets;
}

std::vector<Packet> packets_of(const std::string& path, std::string& error)
{
    CaptureReader reader;
    return reader.open(path, error) ? rest_of(reader, error) : std::vector<Packet>{};
}

void send(std::uint32_t id, const Bytes& bytes)
{
    const MeshSendItem item{bytes.data(), id, static_cast<std::uint32_t>(bytes.size())};
    EXPECT_EQ(MESH_SendMsg(0, &item, 1), MESH_STANDIN_UNKNOWN_ID);
}

class Captures : public CaptureFolder {
protected:
    std::string error;
};

TEST_F(Captures, of_the_stand_in_are_read_while_they_grow)
{
    ASSERT_EQ(mesh_standin_capture(path.c_str()), 0);
    CaptureReader reader;
    ASSERT_TRUE(reader.open(path, error)) << error;
    const std::time_t before = std::time(nullptr);
    send(0xefaf473c, {1, 2, 3});
    CapturedPacket packet;
    ASSERT_TRUE(reader.next(packet, error)) << error;
    EXPECT_GE(packet.seconds, before);
    EXPECT_LE(packet.seconds, std::time(nullptr));
    EXPECT_EQ(packet.fault, PacketFault::none);
    EXPECT_EQ(packet.id, 0xefaf473c);
    EXPECT_EQ(Bytes(packet.bytes.begin(), packet.bytes.end()), (Bytes{1, 2, 3}));
}

TEST_F(Captures, keep_as_much_of_a_packet_as_readers_take)
{
    const std::size_t most = 262144 - 8;
    const Bytes longest(most, 0x6c), longer(most + 1, 0x6c);
    ASSERT_EQ(mesh_standin_capture(path.c_str()), 0);
    send(5, longest);
    send(6, longer);
    send(7, {});
    const std::vector<Packet> expected{
        {PacketFault::none, 5, longest}, {PacketFault::cut, 6, longest}, {PacketFault::none, 7, {}}};
    EXPECT_TRUE(packets_of(path, error) == expected);
    EXPECT_EQ(error, "");
}

TEST_F(Captures, of_two_processes_hold_the_same_packets)
{
    std::FILE* const pipe = popen(("MESH_STANDIN_CAPTURE=" + path + ".%p " KESTO_EXCHANGE " >/dev/null").c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    EXPECT_EQ(pclose(pipe), 0);
    std::vector<std::vector<Packet>> captures;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        captures.push_back(packets_of(entry.path(), error));
        EXPECT_EQ(error, "");
    }
    ASSERT_EQ(captures.size(), 2u);
    EXPECT_GT(captures[0].size(), 4 * 235u);
    EXPECT_TRUE(captures[0] == captures[1]);
}

TEST_F(Captures, that_are_damaged_or_of_others_end_with_a_reason)
{
    const RawPacket sound = packet_of(7, {1, 2, 3});
    Bytes two = capture_head(147);
    add_packet(two, sound);
    const std::size_t first_end = two.size();
    add_packet(two, sound);
    const auto up_to = [&](std::size_t length) { return Bytes(two.begin(), two.begin() + static_cast<long>(length)); };
    Bytes enormous = up_to(first_end);
    add_packet(enormous, sound);
    reference::put(&enormous[first_end + 8], 0x7fffffff, 4);
    Bytes no_magic = two;
    no_magic[0] = 0;

    const struct {
        Bytes file;
        std::size_t packets;
        const char* reason;   // a part of it; empty for none
    } cases[] = {
        {{}, 0, "truncated"},
        {up_to(23), 0, "truncated"},
        {up_to(24), 0, ""},
        {no_magic, 0, "unknown file format"},
        {capture_head(1), 0, "link type EN10MB (1), not USER0 (147)"},
        {capture_head(148), 0, "link type 148, not USER0"},
        {up_to(first_end), 1, ""},
        {up_to(first_end + 1), 1, "behind packet 1: truncated"},
        {up_to(first_end + 16), 1, "behind packet 1: truncated"},
        {up_to(two.size() - 1), 1, "behind packet 1: truncated"},
        {enormous, 1, "behind packet 1: "},
        {two, 2, ""},
    };
    for (const auto& one : cases) {
        write_file(path, one.file);
        error.clear();
        const std::vector<Packet> packets = packets_of(path, error);
        EXPECT_EQ(packets.size(), one.packets) << one.reason;
        if (one.reason[0] == '\0')
            EXPECT_EQ(error, "");
        else
            EXPECT_TRUE(error.starts_with(path + ": ") && error.find(one.reason) != std::string::npos) << error;
    }
    (void)packets_of(path + "x", error);
    EXPECT_EQ(error, path + "x: No such file or directory");
}

TEST_F(Captures, give_packets_that_are_no_messages_and_why)
{
    const Bytes three{1, 2, 3};
    Bytes capture = capture_head(147);
    add_packet(capture, {{}, 0});
    add_packet(capture, {{7, 0, 0, 0, 3, 0, 0}, 7});
    add_packet(capture, {{7, 0, 0}, 30});
    add_packet(capture, packet_of(7, three, 2));
    add_packet(capture, packet_of(7, three, 0xffffffff));
    add_packet(capture, packet_of(7, three, 3));
    RawPacket cut = packet_of(7, three, 4);
    ++cut.length_on_the_wire;
    add_packet(capture, cut);
    write_file(path, capture);
    const std::vector<Packet> expected{
        {PacketFault::short_packet, 0, {}},
        {PacketFault::short_packet, 7, {}},
        {PacketFault::cut, 0, {}},
        {PacketFault::length_disagrees, 7, three},
        {PacketFault::length_disagrees, 7, three},
        {PacketFault::none, 7, three},
        {PacketFault::cut, 7, three},
    };
    EXPECT_TRUE(packets_of(path, error) == expected);
    EXPECT_EQ(error, "");
}

TEST_F(Captures, that_are_large_report_their_progress_and_pipes_have_no_end)
{
    Bytes capture = capture_head(147);
    for (int i = 0; i < 30; ++i)
        add_packet(capture, packet_of(7, Bytes(200000, 0x70)));
    write_file(path, capture);

    struct Step {
        std::uint64_t read, all;
    };
    std::vector<Step> steps;
    CaptureReader reader;
    reader.progress = [&](std::uint64_t read, std::uint64_t all) { steps.push_back({read, all}); };
    ASSERT_TRUE(reader.open(path, error)) << error;
    EXPECT_EQ(rest_of(reader, error).size(), 30u);
    ASSERT_EQ(steps.size(), 5u) << "once a megabyte";
    for (std::size_t i = 0; i < steps.size(); ++i) {
        EXPECT_EQ(steps[i].all, capture.size());
        EXPECT_EQ((steps[i].read - 24) % (200000 + 8 + 16), 0u) << "a whole packet";
        EXPECT_GE(steps[i].read, (i + 1) << 20);
        EXPECT_LE(steps[i].read, capture.size());
    }

    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const Bytes small(capture.begin(), capture.begin() + 24 + 16 + 200008);
    const pid_t writer = fork();
    if (writer == 0) {
        close(ends[0]);
        _exit(write(ends[1], small.data(), small.size()) == static_cast<ssize_t>(small.size()) ? 0 : 1);
    }
    close(ends[1]);
    ASSERT_EQ(dup2(ends[0], STDIN_FILENO), STDIN_FILENO);
    close(ends[0]);
    ASSERT_TRUE(reader.open("-", error)) << error;
    EXPECT_EQ(rest_of(reader, error).size(), 1u);
    EXPECT_EQ(error, "");
    int status = -1;
    EXPECT_EQ(waitpid(writer, &status, 0), writer);
    EXPECT_EQ(status, 0);
}

}   // namespace

}   // namespace kesto::tests
