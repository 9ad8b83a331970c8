// Runs a program through a shell.
#pragma once

#include <sys/wait.h>

#include <cstdio>
#include <string>

namespace kesto::tests {

struct CommandResult {
    int exit_code = -1;   // unchanged after a crash
    std::string output;   // including standard error
};

inline CommandResult run_command(const std::string& command)
{
    CommandResult result;
    std::FILE* const pipe = popen((command + " 2>&1").c_str(), "r");
    for (int c; pipe != nullptr && (c = std::fgetc(pipe)) != EOF;)
        result.output += static_cast<char>(c);
    const int status = pipe == nullptr ? -1 : pclose(pipe);
    if (status != -1 && WIFEXITED(status))
        result.exit_code = WEXITSTATUS(status);
    return result;
}

}   // namespace kesto::tests
