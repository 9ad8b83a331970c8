// Reads capture files packet by packet; they may be compressed with gzip. In those of link type USER1, which the tap and
// the MESH stand-in write, a call head precedes each packet; those of link type USER0 have only packets.
// platform/standin/capture.h has the layout.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>

struct pcap;   // from libpcap

namespace kesto::tools {

// Why a packet is not a message. Such packets are counted and shown; none of them stops the reader.
enum class PacketFault : std::uint8_t {
    none,
    cut,                // the capture kept only the first bytes of the packet
    unknown_head,       // the call head has another version or an unknown direction
    short_packet,       // too short for id and length, or for the call head
    length_disagrees,   // length differs from the number of bytes after the header
};

const char* name_of(PacketFault fault);   // the names used in dissector/kesto.lua
const char* text_of(PacketFault fault);   // a sentence without a full stop

// The call that sent or delivered a packet.
struct Call {
    bool is_sent = false;
    std::optional<std::uint32_t> channel, destination;
    std::optional<std::int32_t> result;   // of the send operation
    std::uint64_t began = 0;              // in nanoseconds since 1970
};

struct CapturedPacket {
    std::uint64_t number = 0;   // from 1
    std::int64_t seconds = 0;   // since 1970
    std::uint32_t microseconds = 0;
    std::optional<Call> call;   // of link type USER1, unless the call head is invalid
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
    bool has_calls_ = false;
    std::uint64_t number_ = 0;
    std::uint64_t read_ = 0;
    std::uint64_t all_ = 0;
    std::uint64_t next_report_ = 0;
};

}   // namespace kesto::tools
