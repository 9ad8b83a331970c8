// The file that maps channels and destinations to addresses; docs/over-zeromq.md describes it.
#ifndef KESTO_PLATFORM_ZEROMQ_ENDPOINTS_H
#define KESTO_PLATFORM_ZEROMQ_ENDPOINTS_H

#include <stdint.h>
#include <stdio.h>

enum { MOST_ENDPOINTS = 256, ENDPOINT_ROOM = 256 };

struct Endpoint {
    uint32_t channel;
    bool receives;          // false: this process sends to it
    uint32_t destination;   // 0: for items sent without a destination
    char address[ENDPOINT_ROOM];
};

inline bool is_place(const Endpoint& endpoint, uint32_t channel, bool receives, uint32_t destination)
{
    return endpoint.channel == channel && endpoint.receives == receives && endpoint.destination == destination;
}

// Reads `file` and returns the number of endpoints in it. A line that is malformed or repeats the channel, direction
// and destination of an earlier one is reported on stderr under `name` and ignored.
uint32_t read_endpoints(FILE* file, const char* name, Endpoint (&endpoints)[MOST_ENDPOINTS]);

#endif
