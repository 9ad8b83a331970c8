// Turns the walk of a decoder into ranges and notes.
#pragma once

#include <array>
#include <unordered_map>

#include "tools/kesto/names.h"
#include "tools/kesto/notes.h"

namespace kesto::command {

// Thrown if a byte string needs more than the options allow.
struct GivenUp {};

// A table that is read again through another cell is not followed again. Otherwise a few bytes that the decoder reads a
// million times would be listed a million times.
class Collector final : public model::Walk {
public:
    Collector(Explanation& explanation, Notes& notes, const ExplainOptions& options)
        : explanation_(explanation), notes_(notes), options_(options)
    {
    }

    void read(const model::Item& item) override;
    void finish();

private:
    struct Table {
        u32 position = 0;
        u32 vtable = 0;
        u32 vtable_length = 0;
        u32 table_length = 0;
        bool has_table_length = false;
        u32 end = 0;   // end of the table's own bytes
        const Message* message = nullptr;
        model::Path path;
        u32 reads = 1;
    };

    void count(const model::Item& item);
    bool is_inside_known_table(const model::Item& item);
    bool enter(const model::Item& item);
    void note_item(const model::Item& item, Table& table);
    void note_vtable(Table& table);
    void note_text(const model::Item& item, Table& table);
    void note_table(const Table& table);
    void add(const Range& range);
    std::string path_text(const model::Path& path) const { return field_path(*explanation_.message, path); }

    Explanation& explanation_;
    Notes& notes_;
    const ExplainOptions& options_;
    std::vector<Table> tables_;
    std::unordered_map<u64, std::size_t> known_;                  // by message and position
    std::array<std::size_t, model::greatest_depth + 2> open_{};   // indexes of tables by depth
    std::array<u32, model::greatest_depth + 2> positions_{};      // of the same tables
    u32 known_depth_ = 0xffffffffU;                               // of the table that is read again or not kept
    bool is_left_out_ = false;                                    // the table at known_depth_ is not kept
    const Message* sized_ = nullptr;
    u64 size_ = 0;   // of sized_'s record
    Range last_;
};

}   // namespace kesto::command
