// Explains a byte string without knowing its message.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>

#include "tools/kesto/commands.h"
#include "tools/kesto/packet_head.h"

namespace kesto::command {

struct RawLine {
    u32 depth;   // nesting depth
    u64 position;
    std::string text;
};

struct RawView {
    u64 length = 0;
    std::optional<PacketHead> packet_head;   // of a whole packet; everything else is about the byte string after it
    bool has_root_table = false;
    std::vector<RawLine> lines;
    std::optional<Fitting> fitting;   // none if the byte string is too long to try
};

RawView look_at(std::span<const u8> bytes);
std::string raw_text(const RawView& view, std::size_t width);   // of the terminal, 0 for none
nlohmann::ordered_json raw_json(const RawView& view);

}   // namespace kesto::command
