// Opens files that may be compressed with gzip.
#pragma once

#include <cstdio>

namespace kesto::tools {

// A stream of the file's content, decompressed if need be; owns `descriptor` if it succeeds. Null with errno otherwise.
// A damaged file ends in a read error.
std::FILE* open_gzip(int descriptor);

}   // namespace kesto::tools
