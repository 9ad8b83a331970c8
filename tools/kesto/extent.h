// Compares the length of a byte string with the one that it announces.
#pragma once

#include "tools/kesto/notes.h"

namespace kesto::command {

// Adds a note if the byte string seems to be cut, or if bytes are left over. The ranges and the origin must be known.
// Returns the position of the bytes left over, or the length.
u64 note_extent(const Explanation& explanation, Notes& notes);

}   // namespace kesto::command
