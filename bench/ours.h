// The library under measurement, and the messaging library that it finds in this program: it keeps where an item lies,
// and nothing else.
#pragma once

#include <vector>

#include "bench/contender.h"
#include "bench/data.h"
#include "tools/operations.h"

namespace kesto::bench {

using tools::Operations;

ByteStrings pack_all(const Operations& library, const RecordSet& set);
ByteStrings send_all(const Operations& library, const RecordSet& set);   // what sending hands over

}   // namespace kesto::bench
