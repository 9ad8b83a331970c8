#include "annotate.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <span>
#include <string_view>
#include <vector>

namespace {

// What stands where in a message: its slots in order.
enum class Kind { number, block, array, table, vector };

struct Shape;

struct Slot {
    std::string_view name;
    Kind kind;
    uint32_t size = 0;            // bytes of a number, elements of an array
    const Shape *shape = nullptr; // of a table, or of a vector's elements
};

struct Shape {
    std::span<const Slot> slots;
};

constexpr Slot datetime_slots[] = {{"year", Kind::number, 2}, {"month", Kind::number, 1},  {"day", Kind::number, 1},
                                   {"hour", Kind::number, 1}, {"minute", Kind::number, 1}, {"second", Kind::number, 1}};
constexpr Shape datetime{datetime_slots};
constexpr Slot item_slots[] = {{"name", Kind::array, 50},
                               {"received", Kind::number, 4},
                               {"sent", Kind::number, 4},
                               {"time", Kind::table, 0, &datetime}};
constexpr Shape item{item_slots};
constexpr Slot frame_slots[] = {{"question", Kind::number, 4},
                                {"f1", Kind::number, 4},
                                {"result", Kind::number, 4},
                                {"mark", Kind::block},
                                {"items", Kind::number, 4}};
constexpr Shape frame{frame_slots};
constexpr Slot record_slots[] = {{"frame", Kind::table, 0, &frame}, {"interfaces", Kind::vector, 0, &item}};
constexpr Shape record{record_slots};

struct Piece {
    uint32_t at;
    uint32_t length;
    std::string meaning;
};

struct Walk {
    std::span<const uint8_t> bytes;
    std::vector<Piece> pieces;
    std::string refused; // the first thing that was; nothing is explained after it
    size_t left;         // bytes still to explain; tables that lie over each other would make the listing endless

    // Tested by subtraction: `at + length` could wrap.
    bool has(uint32_t at, uint32_t length) const { return at <= bytes.size() && length <= bytes.size() - at; }

    bool refuse(const std::string &why)
    {
        if (refused.empty())
            refused = why;
        return false;
    }

    // Makes a piece of bytes that are inside the string.
    bool claim(uint32_t at, uint32_t length, const std::string &meaning)
    {
        if (!refused.empty())
            return false;
        if (!has(at, length))
            return refuse(meaning + " would leave the string");
        if (length > left)
            return refuse(meaning + " lies over something else");
        left -= length;
        pieces.push_back({at, length, meaning});
        return true;
    }

    uint32_t number(uint32_t at, uint32_t width) const // inside a claimed piece
    {
        uint32_t value = 0;
        for (uint32_t i = width; i > 0; --i)
            value = value << 8 | bytes[at + i - 1];
        return value;
    }

    // The text that the bytes begin with, quoted; empty if they begin with none.
    std::string text_at(uint32_t at, uint32_t length) const
    {
        std::string text;
        for (uint32_t i = 0; i < length && bytes[at + i] >= ' ' && bytes[at + i] <= '~'; ++i)
            text += static_cast<char>(bytes[at + i]);
        return text.empty() ? text : ": \"" + text + "\"";
    }

    void explain(const std::string &more) { pieces.back().meaning += more; }

    // Follows a cell, whose distance counts from the cell itself.
    bool follow(uint32_t cell, const std::string &name, uint32_t &target)
    {
        if (!claim(cell, 4, name))
            return false;
        const uint32_t distance = number(cell, 4);
        target = cell + distance;
        explain(": " + std::to_string(distance) + " bytes on, at " + std::to_string(target));
        return target >= cell || refuse(name + " leads past 2^32");
    }

    // Count and payload behind a cell; `width` is that of one element.
    bool counted(uint32_t cell, const std::string &name, uint32_t width, uint32_t &body, uint32_t &count)
    {
        uint32_t target;
        if (!follow(cell, "where " + name + " is", target) || !claim(target, 4, "count of " + name))
            return false;
        count = number(target, 4);
        explain(": " + std::to_string(count));
        body = target + 4;
        return count <= (bytes.size() - body) / width || refuse(name + " would leave the string");
    }

    void table(uint32_t at, const Shape &shape, const std::string &name)
    {
        if (!claim(at, 4, name + ": its vtable is at "))
            return;
        const uint32_t vtable = at - number(at, 4); // a signed distance; the subtraction may wrap
        explain(std::to_string(vtable));
        if (!has(vtable, 4)) {
            refuse("vtable of " + name + " would leave the string");
            return;
        }
        const uint32_t length = number(vtable, 2);
        if (!claim(vtable, length < 4 ? 4 : length, "vtable of " + name + ": length " + std::to_string(length)))
            return;
        explain(", table " + std::to_string(number(vtable + 2, 2)) + ", slots at");
        std::vector<uint32_t> offsets;
        for (uint32_t k = 0; length > 5 + 2 * k; ++k) {
            offsets.push_back(number(vtable + 4 + 2 * k, 2));
            explain(" " + std::to_string(offsets.back()));
        }
        for (size_t k = 0; k < shape.slots.size() && k < offsets.size(); ++k)
            if (offsets[k] != 0) // absent otherwise
                slot(at + offsets[k], shape.slots[k], name == "root" ? "" : name + ".");
    }

    void slot(uint32_t at, const Slot &slot, const std::string &prefix)
    {
        const std::string name = prefix + std::string(slot.name);
        uint32_t body, count;
        switch (slot.kind) {
        case Kind::number:
            if (claim(at, slot.size, name))
                explain(": " + std::to_string(number(at, slot.size)));
            break;
        case Kind::block:
        case Kind::array:
            if (!counted(at, name, 1, body, count) || !claim(body, count, name))
                break;
            explain(text_at(body, count));
            if (slot.kind == Kind::array && count != slot.size)
                refuse(name + " must have " + std::to_string(slot.size) + " elements");
            break;
        case Kind::table:
            if (follow(at, "where " + name + " is", body))
                table(body, *slot.shape, name);
            break;
        case Kind::vector:
            if (!counted(at, name, 4, body, count))
                break;
            for (uint32_t i = 0; i < count && refused.empty(); ++i) {
                const std::string element = name + "[" + std::to_string(i) + "]";
                uint32_t target;
                if (follow(body + 4 * i, "where " + element + " is", target))
                    table(target, *slot.shape, element);
            }
            break;
        }
    }
};

// Sixteen bytes a line; the meaning stands beside the first.
void print(std::string &listing, std::span<const uint8_t> bytes, const Piece &piece)
{
    constexpr uint32_t per_line = 16;
    uint32_t done = 0;
    do {
        std::array<char, 16> position{};
        std::snprintf(position.data(), position.size(), "%6u  ", piece.at + done);
        std::string line = position.data();
        for (uint32_t i = 0; i < per_line; ++i) {
            std::array<char, 4> digits{"   "};
            if (done + i < piece.length)
                std::snprintf(digits.data(), digits.size(), "%02x ", bytes[piece.at + done + i]);
            line += digits.data();
        }
        line += done == 0 ? " " + piece.meaning : "";
        listing += line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
        done += per_line;
    } while (done < piece.length);
}

} // namespace

std::string annotate_stat_rec(const uint8_t *bytes, uint32_t length)
{
    Walk walk{{bytes, length}, {}, {}, length};
    if (walk.claim(0, 4, "root table is at ")) {
        walk.explain(std::to_string(walk.number(0, 4)));
        walk.table(walk.number(0, 4), record, "root");
    }
    std::stable_sort(walk.pieces.begin(), walk.pieces.end(), [](const Piece &a, const Piece &b) { return a.at < b.at; });

    std::string listing;
    uint32_t reached = 0;
    for (const Piece &piece : walk.pieces) {
        if (piece.at > reached)
            print(listing, walk.bytes, {reached, piece.at - reached, "(not used)"});
        print(listing, walk.bytes, piece);
        reached = std::max(reached, piece.at + piece.length);
    }
    if (reached < length)
        print(listing, walk.bytes, {reached, length - reached, "(not used)"});
    return walk.refused.empty() ? listing : listing + "        refused: " + walk.refused + "\n";
}
