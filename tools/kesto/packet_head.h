// Recognises a whole packet where a byte string is expected, as it results from copying bytes out of a capture.
#pragma once

#include <optional>
#include <span>

#include "tools/kesto/messages.h"

namespace kesto::command {

struct PacketHead {
    static constexpr u32 length = 8;

    const Message* message = nullptr;   // whose id it begins with
    u64 stated = 0;                     // length of what follows, as the head says
    u64 present = 0;                    // length of what follows
};

// None unless the bytes begin with an id of the catalogue that cannot be a root.
std::optional<PacketHead> packet_head_of(std::span<const u8> bytes);
std::string packet_head_text(const PacketHead& head);

}   // namespace kesto::command
