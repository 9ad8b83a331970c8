#pragma once
// The figures of tests/data/figures.txt, whose head explains the lines.

#include <string>
#include <vector>

#include "reference/record.h"

namespace kesto::tests
{

struct Figure {
    enum class Fill { zero, full, any, given };

    unsigned line = 0;
    std::string kind;
    const reference::Message* message = nullptr;
    bool fixed_form = false;
    Fill fill = Fill::zero;
    reference::Record given;
    std::vector<std::string> arguments;

    // Says something about the bytes of a record, not about a message.
    bool about_bytes() const;

    // The records it speaks of; full ones are drawn at random.
    std::vector<reference::Record> records() const;

    std::string where() const { return "figures.txt:" + std::to_string(line); }
};

std::string read_file(const std::string& path);

// Both messages.txt and figures.txt of the test data; false with the reason in `error`.
[[nodiscard]] bool load_catalogue(reference::Catalogue& catalogue, std::string& error);
[[nodiscard]] bool load_figures(const reference::Catalogue& catalogue, std::vector<Figure>& figures,
                                std::string& error);

// The list of messages that was transcribed on its own, tests/data/messages.txt. Ends the process if it cannot be read.
const reference::Catalogue& transcribed();

// What is wrong with the bytes of `record`, of which an encoder has written `written` and reported `reported`; else
// empty.
std::string fault_in_bytes(const Figure& figure, const reference::Record& record, const reference::Bytes& written,
                           reference::u64 reported);

// What is wrong with the catalogue; else empty.
std::string fault_in_catalogue(const Figure& figure, const reference::Catalogue& catalogue);

}   // namespace kesto::tests
