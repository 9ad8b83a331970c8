#include "annotate.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "model/decode.h"

namespace {

namespace model = kesto::model;

struct Line {
    uint32_t position;
    uint32_t length;
    std::string meaning;
};

// The plain reader shows what it reads, in its own order.
class Lines : public model::Walk {
public:
    explicit Lines(const model::Message& message) : message_(message) {}

    void read(const model::Item& item) override
    {
        if (lines.size() == most)   // hostile bytes can have the same ones read again and again
            return;
        std::string meaning = path_text(message_, *item.path) + " " + name_of(item.piece);
        if (item.piece != model::Piece::payload)
            meaning += ": " + std::to_string(item.value);
        lines.push_back({item.position, item.length, meaning});
    }

    std::vector<Line> lines;

private:
    static constexpr size_t most = 10000;
    const model::Message& message_;
};

// Sixteen bytes a row; the meaning stands beside the first.
void print(std::string& listing, const uint8_t* bytes, const Line& line)
{
    char text[64];
    for (uint32_t done = 0; done < line.length; done += 16) {
        int used = std::snprintf(text, sizeof text, "%6u ", line.position + done);
        for (uint32_t i = 0; i < 16; ++i)
            used += std::snprintf(text + used, sizeof text - size_t(used), done + i < line.length ? " %02x" : "   ",
                                  bytes[line.position + std::min(done + i, line.length - 1)]);
        listing += done == 0 ? text + ("  " + line.meaning) : std::string(text);
        listing.erase(listing.find_last_not_of(' ') + 1);
        listing += "\n";
    }
}

}   // namespace

std::string annotate(uint32_t id, const uint8_t* bytes, uint32_t length)
{
    const model::Message& message = *model::catalogue().find(id);
    Lines walk(message);
    model::DecodeOptions options;
    options.contents = false;
    options.walk = &walk;
    model::Outcome outcome;
    decode(message, bytes, length, options, outcome);
    std::stable_sort(walk.lines.begin(), walk.lines.end(),
                     [](const Line& a, const Line& b) { return a.position < b.position; });

    std::string listing;
    uint32_t reached = 0;
    for (const Line& line : walk.lines) {
        if (line.position > reached)
            print(listing, bytes, {reached, line.position - reached, "(not read)"});
        print(listing, bytes, line);
        reached = std::max(reached, line.position + line.length);
    }
    if (reached < length)
        print(listing, bytes, {reached, length - reached, "(not read)"});
    return outcome.failure ? listing + "        refused: " + to_text(outcome.failure) + "\n" : listing;
}
