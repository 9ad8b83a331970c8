// Written byte strings with one number changed or the end cut off.
#pragma once

#include "tools/vectors/by_hand.h"

namespace kesto::vectors {

// Each root, distance, length, slot, cell and count in turn gets the values at which a reader changes its verdict, one
// on either side; and the byte string is cut. Every field is shown with each code once.
std::vector<Sample> damaged(const Sample& whole);

}   // namespace kesto::vectors
