#include "tools/kesto/packets.h"

namespace kesto::command {

namespace {

[[noreturn]] void fail() { throw Fault("this build cannot read captures: it was made without libpcap"); }

}   // namespace

void for_every_packet(const std::string&, u64, const std::function<void(const PacketView&)>&) { fail(); }
int explain_packets(const PacketChoices&, const ExplainChoices&) { fail(); }
int explain_raw_packets(const PacketChoices&, bool) { fail(); }
int decode_packets(const PacketChoices&, const DecodeChoices&) { fail(); }

}   // namespace kesto::command
