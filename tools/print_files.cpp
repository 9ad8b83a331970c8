#include "tools/print_files.h"

namespace kesto::tools {

int print_files(int argc, char** argv, const char* suffix, void (*print)(std::FILE* file, const ModuleInfo& module))
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    for (const ModuleInfo& module : modules()) {
        const std::string path = std::string(argv[1]) + "/" + module.name + suffix;
        std::FILE* const file = std::fopen(path.c_str(), "w");
        if (file == nullptr) {
            std::perror(path.c_str());
            return 1;
        }
        print(file, module);
        const bool written = std::ferror(file) == 0;
        if (std::fclose(file) != 0 || !written) {
            std::fprintf(stderr, "%s: could not be written\n", path.c_str());
            return 1;
        }
    }
    return 0;
}

}   // namespace kesto::tools
