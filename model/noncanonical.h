#pragma once
// Byte strings that none of our writers produces and that every reader must accept.

#include "model/generate.h"

namespace kesto::model {

// Returns a byte string that decodes to as_decoded(record), in a random layout: fields in any order with garbage
// between them; vtables before, after or far from their table, too short, too long or of odd length; wrong table
// lengths; defaults written or omitted; shared cells, bodies, tables and vtables; bodies that overlap other parts.
Bytes noncanonical_layout(const Record& record, Random& random);

}   // namespace kesto::model
