#include "tools/print_files.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace kesto::tools {

bool write_changed(const std::string& path, const std::string& text)
{
    std::ifstream present(path, std::ios::binary);
    if (present && std::string{std::istreambuf_iterator<char>(present), {}} == text)
        return true;
    std::ofstream file(path, std::ios::binary);
    file << text << std::flush;
    if (!file)
        std::fprintf(stderr, "%s: cannot be written\n", path.c_str());
    return static_cast<bool>(file);
}

int print_files(int argc, char** argv, const char* suffix, void (*print)(std::FILE* file, const model::Module& module))
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    for (const model::Module& module : model::catalogue().modules) {
        char* text = nullptr;
        std::size_t length = 0;
        std::FILE* const file = open_memstream(&text, &length);
        if (file == nullptr)
            return 1;
        print(file, module);
        if (std::fclose(file) != 0)
            return 1;
        const bool written = write_changed(std::string(argv[1]) + "/" + module.name + suffix, {text, length});
        std::free(text);
        if (!written)
            return 1;
    }
    return 0;
}

}   // namespace kesto::tools
