// Explains the bytes of one ifit_dfx_query_stat_rec_mesh, for people who want to see the wire format at work.
#pragma once

#include <cstdint>
#include <string>

// One line per piece of the byte string: position, bytes, meaning, in the order of positions. Any bytes may be given: every
// read is tested first, and the listing ends with what was refused, if anything was.
std::string annotate_stat_rec(const uint8_t *bytes, uint32_t length);
