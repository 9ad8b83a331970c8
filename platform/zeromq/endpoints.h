// The file that says where channels and destinations are; docs/over-zeromq.md describes it.
#ifndef KESTO_PLATFORM_ZEROMQ_ENDPOINTS_H
#define KESTO_PLATFORM_ZEROMQ_ENDPOINTS_H

#include <stdint.h>
#include <stdio.h>

enum { MOST_ENDPOINTS = 256, ENDPOINT_ROOM = 256 };

struct Endpoint {
    uint32_t channel;
    bool receives;          // else it is sent to
    uint32_t destination;   // 0: of what is sent without one
    char address[ENDPOINT_ROOM];
};

inline bool is_place(const Endpoint& endpoint, uint32_t channel, bool receives, uint32_t destination)
{
    return endpoint.channel == channel && endpoint.receives == receives && endpoint.destination == destination;
}

// Reads `file` and returns how many endpoints it names. A line that is not understood, or is about the same place as an
// earlier one, is reported on stderr under `name` and left out.
uint32_t read_endpoints(FILE* file, const char* name, Endpoint (&endpoints)[MOST_ENDPOINTS]);

#endif
