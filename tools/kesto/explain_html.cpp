#include "tools/kesto/explain.h"
namespace kesto::command {
std::string explanation_html(const Explanation&) { return {}; }
}   // namespace kesto::command
