#pragma once
// The list of messages that was transcribed by hand, against which the library's own catalogue is held.

#include <string>

#include "model/catalogue.h"

namespace kesto::tests {

// Whether the build has all shipped modules. Tests of single messages may need one that is left out.
#if defined(KESTO_WITHOUT_ifit_dfx) || defined(KESTO_WITHOUT_ifit) || defined(KESTO_WITHOUT_ifit_sync) || \
    defined(KESTO_WITHOUT_ntvifit)
constexpr bool all_modules_built = false;
#else
constexpr bool all_modules_built = true;
#endif

// The messages that are written down in tests/data/messages.txt, which explains its lines, and tests/module/messages.txt:
// those of the modules that are built. A list that cannot be read ends the process.
const model::Catalogue& expected_catalogue();

// Whether it is a message of a module that is not built. A name that no message has is none.
inline bool is_left_out(const std::string& name)
{
    return !all_modules_built && expected_catalogue().find(name) == nullptr;
}

}   // namespace kesto::tests
