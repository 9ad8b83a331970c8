// Writes packets to a capture file, as described at mesh_standin_capture in mesh_standin.h. A process has one capture
// at most.
//
// The file is a pcap file with microseconds, little-endian on every host, link type USER0 (147). Each packet is written
// by one system call without buffering, so the file can be read while it grows.
#ifndef KESTO_PLATFORM_STANDIN_CAPTURE_H
#define KESTO_PLATFORM_STANDIN_CAPTURE_H

#include <stdint.h>

// Ends the current capture and, unless `path` is null, starts another one. A failure sets errno and prints a line on
// stderr.
[[nodiscard]] bool capture_to(const char* path);

// Writes a packet of two pieces, either of which may be empty; `head_length` must be at most 262144. Costs next to
// nothing without a capture.
void capture_packet(const uint8_t* head, uint32_t head_length, const uint8_t* rest, uint32_t rest_length);

#endif
