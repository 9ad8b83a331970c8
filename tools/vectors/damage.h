// Encoded byte strings with one number changed or the end cut off.
#pragma once

#include "tools/vectors/by_hand.h"

namespace kesto::vectors {

// Each root, distance, length, slot, cell and count in turn gets the values on both sides of each change of the
// verdict; the byte string is also truncated. Every field is shown with each code once.
std::vector<Sample> damaged(const Sample& whole);

}   // namespace kesto::vectors
