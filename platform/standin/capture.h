// Writes packets to a capture file, as described at mesh_standin_capture in mesh_standin.h. A process has one capture
// at most; the stand-in and the tap each have their own copy of this writer.
//
// The file is a pcap file with microseconds, little-endian on every host, link type USER1 (148). Each packet is written
// by one system call without buffering, so the file can be read while it grows. It consists of the call head, then
// id, length and byte string. The call head has 24 bytes, all numbers little-endian:
//
//    0  u8   version, 1
//    1  u8   direction: 0 sent, 1 received
//    2  u16  which of the next three are known, as CaptureKnown
//    4  u32  channel
//    8  u32  destination
//   12  i32  result of the send operation
//   16  u64  time at which the call began, in nanoseconds since 1970 (UTC)
//
// An unknown number is 0. The time of the packet itself in the file is the one at which it was written: after a send
// has returned, and before a received packet is decoded.
#ifndef KESTO_PLATFORM_STANDIN_CAPTURE_H
#define KESTO_PLATFORM_STANDIN_CAPTURE_H

#include <stdint.h>

enum class CaptureDirection : uint8_t { sent = 0, received = 1 };

enum CaptureKnown : uint16_t { CAPTURE_CHANNEL = 1, CAPTURE_DESTINATION = 2, CAPTURE_RESULT = 4 };

struct CapturedCall {
    CaptureDirection direction;
    uint16_t known;   // CaptureKnown, combined
    uint32_t channel, destination;
    int32_t result;
    uint64_t began;   // from capture_time
};

constexpr uint64_t capture_without_limit = INT64_MAX;

struct CapturePlan {
    const char* writer;     // who reports failures; a literal
    const char* path;       // %p stands for the process id; a relative path starts at the current folder of now
    uint64_t max_bytes;     // per file, or capture_without_limit; a packet that does not fit starts a new file
    uint32_t files;         // including the current one: PATH, then PATH.1 (the latest full one), PATH.2 ...
    bool at_first_packet;   // open the file then, rather than now
};

// Ends the current capture and, unless `plan.path` is null, starts another one. A failure sets errno and prints a line
// on stderr.
[[nodiscard]] bool capture_to(const CapturePlan& plan);

// Prints a line on stderr, except where that would block or, at a pipe without a reader, raise a signal. Changes errno.
[[gnu::format(printf, 1, 2)]] void report(const char* format, ...);

// Whether a packet would be written. Costs next to nothing.
bool capture_is_on();

// Nanoseconds since 1970, for CapturedCall.
uint64_t capture_time();

// Writes a packet of two pieces, either of which may be empty; `head_length` must be at most 1024. Costs next to
// nothing without a capture. Preserves errno. Writes nothing in a signal handler that has interrupted this function.
void capture_packet(const CapturedCall& call, const uint8_t* head, uint32_t head_length, const uint8_t* rest,
                    uint32_t rest_length);

// The same for an item as it would travel: id, length and byte string.
void capture_item(const CapturedCall& call, uint32_t id, const uint8_t* bytes, uint32_t length);

#endif
