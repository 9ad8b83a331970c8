#pragma once
// Byte strings that no writer of ours would produce and every reader must take.

#include "model/generate.h"

namespace kesto::model {

// A byte string that decodes to as_decoded(record), in a layout drawn from `random`: fields in any order with garbage
// between them, vtables before, after or far from their table, too short, too long or of odd length, wrong table
// lengths, defaults written out or left out, cells, bodies, tables and vtables shared, bodies that overlap other parts.
Bytes noncanonical_layout(const Record& record, Random& random);

}   // namespace kesto::model
