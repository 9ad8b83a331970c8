#pragma once
// The expected catalogue: a list of messages transcribed by hand, which tests compare with the library's catalogue.

#include <string>

#include "model/catalogue.h"

namespace kesto::tests {

// True if the build has all shipped modules. Tests of single messages may need one that is left out.
#if defined(KESTO_WITHOUT_ifit_dfx) || defined(KESTO_WITHOUT_ifit) || defined(KESTO_WITHOUT_ifit_sync) || \
    defined(KESTO_WITHOUT_ntvifit)
constexpr bool all_modules_built = false;
#else
constexpr bool all_modules_built = true;
#endif

// The messages of tests/data/messages.txt, which explains its lines, and tests/module/messages.txt, for the modules
// that are built. If a list cannot be read, the process ends.
const model::Catalogue& expected_catalogue();

// True for a message of a module that is not built, false for an unknown name.
inline bool is_left_out(const std::string& name)
{
    return !all_modules_built && expected_catalogue().find(name) == nullptr;
}

}   // namespace kesto::tests
