// The measured library, and the messaging library that it finds in this program. The latter records only the address of
// an item.
#pragma once

#include <vector>

#include "bench/contender.h"
#include "bench/data.h"
#include "tools/operations.h"

namespace kesto::bench {

using tools::Operations;

ByteStrings pack_all(const Operations& library, const RecordSet& set);
ByteStrings send_all(const Operations& library, const RecordSet& set);   // the bytes handed over by sending

}   // namespace kesto::bench
