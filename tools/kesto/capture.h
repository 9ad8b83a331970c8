// Reads capture files of link type USER0, as written by the MESH stand-in, packet by packet. They may be compressed
// with gzip.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

struct pcap;   // from libpcap

namespace kesto::tools {

// Why a packet is not a message. Such packets are counted and shown; none of them stops the reader.
enum class PacketFault : std::uint8_t {
    none,
    cut,                // the capture kept only the first bytes of the packet
    short_packet,       // too short for id and length
    length_disagrees,   // length differs from the number of bytes after the header
};

const char* name_of(PacketFault fault);   // the names used in dissector/kesto.lua
const char* text_of(PacketFault fault);   // a sentence without a full stop

struct CapturedPacket {
    std::uint64_t number = 0;   // from 1
    std::int64_t seconds = 0;   // since 1970
    std::uint32_t microseconds = 0;
    PacketFault fault = PacketFault::none;
    std::uint32_t id = 0;                  // 0 if the packet is too short for it
    std::span<const std::uint8_t> bytes;   // after id and length; valid until the next packet is read
};

class CaptureReader {
public:
    // "-" means standard input. False with the reason if the file is not a capture or has another link type.
    [[nodiscard]] bool open(const std::string& path, std::string& error);

    // False at the end, with a reason in `error` if the file is truncated or damaged.
    [[nodiscard]] bool next(CapturedPacket& packet, std::string& error);

    // Called about every megabyte with the bytes read, after decompression, and the file's (0 if unknown, as for a pipe).
    std::function<void(std::uint64_t read, std::uint64_t all)> progress;

private:
    struct Closer {
        void operator()(pcap* handle) const;
    };

    void report_progress();

    std::unique_ptr<pcap, Closer> handle_;
    std::string name_;   // for messages
    std::uint64_t number_ = 0;
    std::uint64_t read_ = 0;
    std::uint64_t all_ = 0;
    std::uint64_t next_report_ = 0;
};

}   // namespace kesto::tools
