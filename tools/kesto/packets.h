// The sub-commands for the packets of a capture file. A packet that is no message of the catalogue counts as refused.
#pragma once

#include "tools/kesto/commands.h"

namespace kesto::command {

struct PacketChoices {
    std::string file;                   // "-" for standard input
    u64 number = 0;                     // only this one; 0 for all
    const Message* message = nullptr;   // only those with its id; null for all
};

int explain_packets(const PacketChoices& which, const ExplainChoices& choices);
int explain_raw_packets(const PacketChoices& which, bool as_json);
int decode_packets(const PacketChoices& which, const DecodeChoices& choices);

}   // namespace kesto::command
