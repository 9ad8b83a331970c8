// The sub-commands for the packets of a capture file. A packet that is no message of the catalogue counts as refused.
#pragma once

#include <functional>

#include "tools/kesto/commands.h"

namespace kesto::command {

struct PacketChoices {
    std::string file;                   // "-" for standard input
    u64 number = 0;                     // only this one; 0 for all
    const Message* message = nullptr;   // only those with its id; null for all
};

struct PacketView {
    u64 number = 0;   // from 1
    std::string time;
    u32 id = 0;
    const Message* message = nullptr;     // found by id, null if there is none
    const char* fault = nullptr;          // why it is no message, null if it is one
    std::span<const u8> bytes;            // after the head; valid until the next packet is read
    std::optional<bool> is_sent;          // or received; unknown without a call head
    std::optional<std::int32_t> result;   // of the send operation; unknown without a call head
};

// All packets, or the one with this number. Throws a Fault if the file cannot be read.
void for_every_packet(const std::string& file, u64 number, const std::function<void(const PacketView&)>& see);

int explain_packets(const PacketChoices& which, const ExplainChoices& choices);
int explain_raw_packets(const PacketChoices& which, bool as_json);
int decode_packets(const PacketChoices& which, const DecodeChoices& choices);

}   // namespace kesto::command
