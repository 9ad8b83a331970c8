// Writes packets to a capture file: what mesh_standin_capture of mesh_standin.h says, and its one place in a process.
//
// The file is a pcap file with microseconds, little-endian on every host, link type USER0 (147). Each packet goes into
// it with one system call and nothing is held back, so the file can be read while it grows.
#ifndef KESTO_PLATFORM_STANDIN_CAPTURE_H
#define KESTO_PLATFORM_STANDIN_CAPTURE_H

#include <stdint.h>

// Ends the capture there is and begins another one, unless `path` is null. On a failure errno says more, and a line on
// stderr says it to the user.
[[nodiscard]] bool capture_to(const char* path);

// A packet of two pieces, either of which may be empty. Costs next to nothing without a capture.
void capture_packet(const uint8_t* head, uint32_t head_length, const uint8_t* rest, uint32_t rest_length);

#endif
