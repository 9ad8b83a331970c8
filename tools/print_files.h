// Functions shared by the printers.
#pragma once

#include <cstdio>
#include <string>

#include "model/catalogue.h"

namespace kesto::tools {

// Writes a file unless it already has this content, to avoid rebuilding its dependents. On an error prints a message
// and returns false.
[[nodiscard]] bool write_changed(const std::string& path, const std::string& text);

// The main function of a printer: writes FOLDER/<module><suffix> for every module. Returns the exit status.
int print_files(int argc, char** argv, const char* suffix, void (*print)(std::FILE* file, const model::Module& module));

}   // namespace kesto::tools
