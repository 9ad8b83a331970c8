// Fields in which two records differ.
#pragma once

#include <nlohmann/json.hpp>

#include "tools/kesto/commands.h"

namespace kesto::command {

struct Difference {
    std::string path;
    nlohmann::ordered_json left;   // null if absent
    nlohmann::ordered_json right;
};

std::vector<Difference> differences(const Record& left, const Record& right);
nlohmann::ordered_json differences_json(const std::vector<Difference>& all);   // path, a, b
std::string difference_line(const Difference& difference, const Colours& colours);

}   // namespace kesto::command
