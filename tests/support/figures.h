#pragma once
// The test data that was written down by hand, the messages and the figures. The heads of tests/data/messages.txt and
// tests/data/figures.txt explain their lines.

#include <string>
#include <vector>

#include "reference/record.h"

namespace kesto::tests {

// Whether the build has all shipped modules. Tests of single messages may need one that is left out.
#if defined(KESTO_WITHOUT_ifit_dfx) || defined(KESTO_WITHOUT_ifit) || defined(KESTO_WITHOUT_ifit_sync) || defined(KESTO_WITHOUT_ntvifit)
constexpr bool all_modules_built = false;
#else
constexpr bool all_modules_built = true;
#endif

// The list of messages, those of the modules that are built. A list that cannot be read ends the process.
const reference::Catalogue& transcribed();

// Whether it is a message of a module that is not built. A name that no message has is none.
inline bool is_left_out(const std::string& name) { return !all_modules_built && transcribed().find(name) == nullptr; }

struct Figure {
    unsigned line = 0;
    std::string kind;
    const reference::Message* message = nullptr;
    bool fixed_form = false;
    std::vector<reference::Record> records;   // that it speaks of
    std::vector<std::string> arguments;

    std::string where() const { return "figures.txt:" + std::to_string(line); }
};

// False with the reason in `error`.
[[nodiscard]] bool load_figures(std::vector<Figure>& figures, std::string& error);

// What is wrong with the bytes of `record`, of which an encoder has written `written` and reported `reported`; else
// empty.
std::string fault_in_bytes(const Figure& figure, const reference::Record& record, const reference::Bytes& written,
                           reference::u64 reported);

std::string read_file(const std::string& path);

// Digits in pairs, with any blanks between them.
[[nodiscard]] bool parse_hex(std::string text, reference::Bytes& bytes);

}   // namespace kesto::tests
