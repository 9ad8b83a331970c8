#include "tools/kesto/messages.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <numeric>

namespace kesto::command {

namespace {

// Number of letters to insert, delete or replace so that `left` becomes a prefix of `right`.
std::size_t distance_to_beginning(std::string_view left, std::string_view right)
{
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = i;
        row[0] = i + 1;
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t replaced = diagonal + (left[i] == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return *std::min_element(row.begin(), row.end());
}

}   // namespace

const Message* find_message(std::string_view name_or_id)
{
    if (const Message* const named = catalogue().find(name_or_id))
        return named;
    const bool hex = name_or_id.starts_with("0x") || name_or_id.starts_with("0X");
    if (hex)
        name_or_id.remove_prefix(2);
    u32 id = 0;
    const char* const end = name_or_id.data() + name_or_id.size();
    const auto [stop, fault] = std::from_chars(name_or_id.data(), end, id, hex ? 16 : 10);
    return fault == std::errc() && stop == end ? catalogue().find(id) : nullptr;
}

std::vector<std::string> suggestions(std::string_view name)
{
    struct Candidate {
        std::pair<std::size_t, std::size_t> score;   // wrong letters, missing letters
        const std::string* name;
    };
    std::vector<Candidate> near;
    for (const Message& message : catalogue().messages) {
        const std::size_t wrong = distance_to_beginning(name, message.name);
        const bool holds = name.size() >= 3 && message.name.find(name) != std::string::npos;
        if (holds || wrong <= std::min<std::size_t>(3, name.size() / 4))
            near.push_back({{holds ? 0 : wrong, message.name.size()}, &message.name});
    }
    std::stable_sort(near.begin(), near.end(), [](const auto& a, const auto& b) { return a.score < b.score; });
    near.resize(std::min<std::size_t>(near.size(), 5));
    std::vector<std::string> names;
    for (const Candidate& candidate : near)
        names.push_back(*candidate.name);
    return names;
}

}   // namespace kesto::command
