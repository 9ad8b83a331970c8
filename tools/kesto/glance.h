// Whole captures at a glance.
#pragma once

#include <nlohmann/json.hpp>

#include "tools/kesto/packets.h"

namespace kesto::command {

struct GlanceChoices {
    ColourChoice colour = ColourChoice::automatic;
    bool json = false;
    bool whole = false;   // list all packets that differ
    std::string html;     // output file, empty for none
};

// What a capture holds, message by message. 1 if a packet is refused or no message.
int summarise_capture(const std::string& file, const GlanceChoices& choices);

// Which packets of `sent` are missing, doubled or changed in `received`. 1 if any is. Packets that MESH refused to send
// are counted on their own. Holds both captures in memory.
int compare_captures(const std::string& sent, const std::string& received, const GlanceChoices& choices);

inline constexpr const char refused_by_mesh_text[] = "refused by MESH when sent";

inline constexpr const char pairing_remark[] =
    "Packets pair by id and bytes. What is left pairs by place and order within an id: a guess.";

// Pages, from what --json prints.
std::string summary_html(const nlohmann::ordered_json& summary);
std::string comparison_html(const nlohmann::ordered_json& comparison);

// Throws a Fault if there is no such packet or it is no message. The bytes live as long as the result.
struct PacketCopy {
    u64 number = 0;
    std::string time;
    u32 id = 0;
    const Message* message = nullptr;
    const char* fault = nullptr;
    Bytes bytes;
    std::optional<bool> is_sent;
    std::optional<std::int32_t> result;

    bool is_refused_by_mesh() const { return result.value_or(0) != 0; }
};
PacketCopy message_packet(const std::string& file, u64 number);

}   // namespace kesto::command
