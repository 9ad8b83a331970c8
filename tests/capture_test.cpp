// Tests the capture reader on files written by the MESH stand-in and on other files.

#include <gtest/gtest.h>
#include <unistd.h>

#include <ctime>
#include <thread>
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

// A packet of a size that only loopback accepts is read up to the readers' limit.
TEST_F(Captures, are_readable_while_the_stand_in_writes_them)
{
    const Bytes longest(262144 - 24 - 8, 0x6c), longer(longest.size() + 1, 0x6c);
    const std::time_t before = std::time(nullptr);
    CaptureReader reader;
    ASSERT_EQ(mesh_standin_capture(path.c_str()), 0);
    ASSERT_TRUE(reader.open(path, error)) << error;
    CapturedPacket packet;
    send(0xefaf473c, longest);
    ASSERT_TRUE(reader.next(packet, error)) << error;
    EXPECT_GE(packet.seconds, before);
    EXPECT_LE(packet.seconds, std::time(nullptr));
    send(6, longer);
    send(7, {});
    const std::vector<Packet> expected{
        {PacketFault::none, 0xefaf473c, longest}, {PacketFault::cut, 6, longest}, {PacketFault::none, 7, {}}};
    EXPECT_TRUE(packets_of(path, error) == expected);
    EXPECT_EQ(error, "");
}

TEST_F(Captures, damaged_and_foreign_files_report_a_reason)
{
    const RawPacket sound = packet_of(7, {1, 2, 3});
    Bytes one = capture_head(147);
    add_packet(one, sound);
    Bytes two = one, enormous = one, no_magic = one;
    add_packet(two, sound);
    add_packet(enormous, sound);
    model::put(&enormous[one.size() + 8], 0x7fffffff, 4);
    no_magic[0] = 0;
    const auto up_to = [&](std::size_t length) { return Bytes(two.begin(), two.begin() + static_cast<long>(length)); };

    const struct {
        Bytes file;
        std::size_t packets;
        const char* reason;   // a part of the message; empty for none
    } cases[] = {
        {{}, 0, "truncated"},
        {up_to(23), 0, "truncated"},
        {up_to(24), 0, ""},
        {no_magic, 0, "unknown file format"},
        {capture_head(1), 0, "link type EN10MB (1), not USER0 (147) or USER1 (148)"},
        {capture_head(149), 0, "link type 149, not USER0"},
        {one, 1, ""},
        {up_to(one.size() + 1), 1, "after packet 1: truncated"},
        {up_to(one.size() + 16), 1, "after packet 1: truncated"},
        {up_to(two.size() - 1), 1, "after packet 1: truncated"},
        {enormous, 1, "after packet 1: "},
        {two, 2, ""},
    };
    for (const auto& [file, packets, reason] : cases) {
        write_file(path, file);
        error.clear();
        EXPECT_EQ(packets_of(path, error).size(), packets) << reason;
        EXPECT_EQ(error.empty(), reason[0] == '\0') << error;
        EXPECT_TRUE(error.empty() || error.starts_with(path + ": ")) << error;
        EXPECT_NE(error.find(reason), std::string::npos) << error;
    }
    (void)packets_of(path + "x", error);
    EXPECT_EQ(error, path + "x: No such file or directory");
}

TEST_F(Captures, invalid_packets_are_returned_with_their_fault)
{
    const Bytes three{1, 2, 3};
    Bytes capture = capture_head(147);
    RawPacket cut = packet_of(7, three, 4);
    ++cut.length_on_the_wire;
    for (const RawPacket& packet :
         {RawPacket{{}, 0}, RawPacket{{7, 0, 0, 0, 3, 0, 0}, 7}, RawPacket{{7, 0, 0}, 30}, packet_of(7, three, 2),
          packet_of(7, three, 0xffffffff), packet_of(7, three, 3), cut})
        add_packet(capture, packet);
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

TEST_F(Captures, invalid_call_heads_are_faults_too)
{
    const Bytes three{1, 2, 3}, call = call_head(0, 7, 1, 2, 3, 4);
    Bytes capture = capture_head(148), later = call;
    later[0] = 2;
    for (const RawPacket& packet :
         {with_call(call, packet_of(7, three)), with_call(call, packet_of(7, three, 2)),
          with_call(call, {{7, 0, 0, 0, 3, 0, 0}, 7}), RawPacket{{1, 0}, 2}, with_call(later, packet_of(7, three)),
          with_call(call_head(2, 7, 1, 2, 3, 4), packet_of(7, three))})
        add_packet(capture, packet);
    write_file(path, capture);
    std::string faults;
    for (const Packet& packet : packets_of(path, error))
        faults += name_of(packet.fault) + std::string(" ");
    EXPECT_EQ(faults, "none length_disagrees short_packet short_packet unknown_head unknown_head ");
}

TEST_F(Captures, large_files_report_progress_and_pipes_are_readable)
{
    Bytes capture = capture_head(147);
    for (int i = 0; i < 30; ++i)
        add_packet(capture, packet_of(7, Bytes(200000, 0x70)));
    write_file(path, capture);

    std::vector<std::uint64_t> steps;
    CaptureReader reader;
    reader.progress = [&](std::uint64_t read, std::uint64_t all) {
        EXPECT_EQ(all, capture.size());
        EXPECT_LE(read, all);
        EXPECT_EQ((read - 24) % (200000 + 8 + 16), 0u) << "a whole packet";
        steps.push_back(read);
    };
    ASSERT_TRUE(reader.open(path, error)) << error;
    EXPECT_EQ(rest_of(reader, error).size(), 30u);
    ASSERT_EQ(steps.size(), 5u) << "once a megabyte";
    for (std::size_t i = 0; i < steps.size(); ++i)
        EXPECT_GE(steps[i], (i + 1) << 20);

    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    std::thread writer([&] {   // writes the first packet, which is larger than a pipe's buffer
        EXPECT_EQ(write(ends[1], capture.data(), 24 + 16 + 200008), 24 + 16 + 200008);
        close(ends[1]);
    });
    ASSERT_EQ(dup2(ends[0], STDIN_FILENO), STDIN_FILENO);
    close(ends[0]);
    EXPECT_EQ(packets_of("-", error).size(), 1u);
    EXPECT_EQ(error, "");
    writer.join();
}

}   // namespace

}   // namespace kesto::tests
