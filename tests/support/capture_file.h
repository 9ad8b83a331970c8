// Builds capture files byte by byte, both valid and invalid ones.
#pragma once

#include <fstream>
#include <string>

#include "model/little_endian.h"

namespace kesto::tests {

using model::Bytes;

struct RawPacket {
    Bytes bytes;
    std::uint32_t length_on_the_wire;
};

inline Bytes capture_head(std::uint32_t link_type)
{
    Bytes head;
    for (const std::uint32_t word : {0xa1b2c3d4U, 2U | 4U << 16, 0U, 0U, 262144U, link_type})
        model::append(head, word, 4);
    return head;
}

inline void add_packet(Bytes& capture, const RawPacket& packet)
{
    for (const std::size_t word :
         {std::size_t{1700000000}, std::size_t{250}, packet.bytes.size(), std::size_t{packet.length_on_the_wire}})
        model::append(capture, word, 4);
    capture.insert(capture.end(), packet.bytes.begin(), packet.bytes.end());
}

// A packet with its id and stated length before `bytes`.
inline RawPacket packet_of(std::uint32_t id, const Bytes& bytes, std::size_t stated_length)
{
    RawPacket packet;
    model::append(packet.bytes, id, 4);
    model::append(packet.bytes, stated_length, 4);
    packet.bytes.insert(packet.bytes.end(), bytes.begin(), bytes.end());
    packet.length_on_the_wire = static_cast<std::uint32_t>(packet.bytes.size());
    return packet;
}

inline RawPacket packet_of(std::uint32_t id, const Bytes& bytes) { return packet_of(id, bytes, bytes.size()); }

// The call head that precedes a packet of link type USER1.
inline Bytes call_head(std::uint32_t direction, std::uint32_t known, std::uint32_t channel, std::uint32_t destination,
                       std::uint32_t result, std::uint64_t began)
{
    Bytes head{1, static_cast<std::uint8_t>(direction)};
    model::append(head, known, 2);
    for (const std::uint32_t word : {channel, destination, result})
        model::append(head, word, 4);
    model::append(head, began, 8);
    return head;
}

inline RawPacket with_call(Bytes head, const RawPacket& packet)
{
    head.insert(head.end(), packet.bytes.begin(), packet.bytes.end());
    return {head, packet.length_on_the_wire + 24};
}

inline void write_file(const std::string& path, const Bytes& bytes)
{
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

}   // namespace kesto::tests
