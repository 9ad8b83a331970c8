// Records, however filled: library and reference must write the same bytes, and read the same record back.

#include <cstdio>
#include <cstdlib>

#include "fuzz/one_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size)
{
    const std::string fault = kesto::fuzz::run_record_input(input, size);
    if (fault.empty())
        return 0;
    std::fprintf(stderr, "%s\n", fault.c_str());
    std::abort();
}
