#include "tools/kesto/packet_head.h"

#include <fmt/format.h>

namespace kesto::command {

std::optional<PacketHead> packet_head_of(std::span<const u8> bytes)
{
    if (bytes.size() < PacketHead::length)
        return {};
    const u32 id = model::get32(bytes.data());
    const Message* const message = catalogue().find(id);
    const bool may_be_root = id <= bytes.size() - 4;
    if (message == nullptr || may_be_root)
        return {};
    return PacketHead{message, model::get32(bytes.data() + 4), bytes.size() - PacketHead::length};
}

std::string packet_head_text(const PacketHead& head)
{
    const std::string length = head.stated == head.present
                                   ? "the length of what follows"
                                   : fmt::format("the length {}, but {} bytes follow", head.stated, head.present);
    return fmt::format("the id of {} and {}: the head of a packet? Then the byte string begins at {}",
                       head.message->name, length, PacketHead::length);
}

}   // namespace kesto::command
