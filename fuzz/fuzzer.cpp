// The library and the model must agree on any bytes and records.

#include <cstdio>
#include <cstdlib>

#include "fuzz/inputs.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size)
{
    const std::string fault = kesto::fuzz::KESTO_RUN_INPUT(input, size);
    if (fault.empty())
        return 0;
    std::fprintf(stderr, "%s\n", fault.c_str());
    std::abort();
}
