// Explains the bytes of a message, for people who want to see the wire format at work.
#pragma once

#include <cstdint>
#include <string>

// One line per piece of the byte string: position, bytes, meaning, in the order of positions. The id is that of a known
// message. Any bytes may be given; the listing ends with what the decoder refuses, if anything.
std::string annotate(uint32_t id, const uint8_t* bytes, uint32_t length);
