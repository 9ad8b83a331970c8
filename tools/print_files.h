// What the printers share: a file for every module, in a folder given on the command line.
#pragma once

#include <cstdio>

#include "tools/catalogue.h"

namespace kesto::tools {

// The main of a printer: writes FOLDER/<module><suffix> for every module. Returns the program's result.
int print_files(int argc, char** argv, const char* suffix, void (*print)(std::FILE* file, const ModuleInfo& module));

}   // namespace kesto::tools
