// Shared by the printers.
#pragma once

#include <cstdio>
#include <string>

#include "model/catalogue.h"

namespace kesto::tools {

// Writes a file, unless it says that already: what depends on it would be built again. False, after a message, when
// that is not possible.
[[nodiscard]] bool write_changed(const std::string& path, const std::string& text);

// The main of a printer: writes FOLDER/<module><suffix> for every module. Returns the program's result.
int print_files(int argc, char** argv, const char* suffix, void (*print)(std::FILE* file, const model::Module& module));

}   // namespace kesto::tools
