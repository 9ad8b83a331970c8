#include "tools/kesto/notes.h"

#include <fmt/format.h>

#include <algorithm>

namespace kesto::command {

std::vector<Note> Notes::all() const
{
    std::vector<Note> notes = notes_;
    std::stable_sort(notes.begin(), notes.end(),
                     [](const Note& left, const Note& right) { return left.position < right.position; });
    for (const auto& [code, count] : counts_)
        if (count > most_of_a_kind)
            notes.push_back({code.data(), 0, 0, "", fmt::format("{} more of this kind", count - most_of_a_kind)});
    return notes;
}

}   // namespace kesto::command
