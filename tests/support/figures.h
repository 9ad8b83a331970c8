#pragma once
// Figures transcribed by hand. The head of tests/data/figures.txt explains its lines.

#include <string>
#include <vector>

#include "model/record.h"
#include "tests/support/expected_catalogue.h"

namespace kesto::tests {

struct Figure {
    unsigned line = 0;
    std::string kind;
    const model::Message* message = nullptr;
    bool fixed_form = false;
    std::vector<model::Record> records;   // the records that it describes
    std::vector<std::string> arguments;

    std::string where() const { return "figures.txt:" + std::to_string(line); }
};

// Returns false on an error, with the reason in `error`.
[[nodiscard]] bool load_figures(std::vector<Figure>& figures, std::string& error);

// The fault in the encoding of `record`, where the encoder wrote `written` and reported the length `reported`; empty if
// there is none.
std::string fault_in_bytes(const Figure& figure, const model::Record& record, const model::Bytes& written,
                           model::u64 reported);

std::string read_file(const std::string& path);

}   // namespace kesto::tests
