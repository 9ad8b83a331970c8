// A collection of notes with a bounded size, whatever the byte string.
#pragma once

#include <map>

#include "tools/kesto/explanation.h"

namespace kesto::command {

class Notes {
public:
    void add(const char* code, u32 position, u32 length, const std::string& path, const std::string& text)
    {
        u64& count = counts_[code];
        if (++count <= most_of_a_kind)
            notes_.push_back({code, position, length, path, text});
    }

    // Sorted by position, followed by the number of omitted notes of each kind.
    std::vector<Note> all() const;

private:
    static constexpr u64 most_of_a_kind = 8;

    std::vector<Note> notes_;
    std::map<std::string_view, u64> counts_;
};

}   // namespace kesto::command
