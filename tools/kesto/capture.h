// Reads capture files of link type USER0, as the MESH stand-in writes them: one packet after the other.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

struct pcap;   // libpcap's

namespace kesto::tools {

// Why a packet is not a message: all of them are there to be counted and shown, none ends the reading.
enum class PacketFault : std::uint8_t {
    none,
    cut,                // the capture kept only the first bytes of the packet
    short_packet,       // no room for id and length
    length_disagrees,   // with the bytes after the two
};

const char* name_of(PacketFault fault);   // the words of dissector/kesto.lua
const char* text_of(PacketFault fault);   // a sentence without its full stop

struct CapturedPacket {
    std::uint64_t number = 0;   // from 1
    std::int64_t seconds = 0;   // since 1970
    std::uint32_t microseconds = 0;
    PacketFault fault = PacketFault::none;
    std::uint32_t id = 0;                  // 0 where there is no room for it
    std::span<const std::uint8_t> bytes;   // after id and length; until the next packet is read
};

class CaptureReader {
public:
    // "-" stands for standard input. False for what is no capture or has another link type, with the reason.
    [[nodiscard]] bool open(const std::string& path, std::string& error);

    // False at the end, and with a reason in `error` where the file breaks off or is damaged.
    [[nodiscard]] bool next(CapturedPacket& packet, std::string& error);

    // Called about every megabyte: bytes read, bytes in all (0 where nobody knows, as in a pipe).
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
