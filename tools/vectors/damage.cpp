#include "tools/vectors/damage.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "tools/kesto/explanation.h"

namespace kesto::vectors {

namespace {

using command::Range;
using model::Piece;
using model::u32;
using model::u64;

// Positions near the start and the end, for readers that are off by a few bytes.
std::vector<u64> targets(u32 length)
{
    std::vector<u64> all = {3, 4};
    for (u64 end = length - 8; end <= u64{length} + 1; ++end)
        all.push_back(end);
    return all;
}

// Ordered by the position or size that they denote, so that adjacent values have adjacent meanings.
std::vector<u64> values_of(const Range& range, u32 length)
{
    std::vector<u64> values;
    switch (range.piece) {
    case Piece::root: values = targets(length); break;
    case Piece::vtable_offset:
        for (const u64 target : targets(length))
            values.push_back(range.position - target);
        break;
    case Piece::slot:
        for (const u64 target : targets(length))
            if (target > range.table)
                values.push_back(target - range.table);
        break;
    case Piece::cell:
    case Piece::element_cell:
        for (const u64 target : targets(length))
            if (target >= range.position)
                values.push_back(target - range.position);
        for (const u64 target : {0xffffffffU, 0U})   // the last position before 2^32, and the first one after
            values.push_back(target - range.position);
        values.push_back(0xffffffff);
        break;
    case Piece::vtable_length: values = {length - range.position, length - range.position + 1, 0xffff}; break;
    case Piece::count: {
        const u64 rest = length - range.position - 4;
        values = {range.value - 1, range.value, range.value + 1,          rest / 4,  rest / 4 + 1, rest, rest + 1,
                  0x3fffffff,      0x40000000,  0x40000000 + range.value, 0xffffffff};
        std::sort(values.begin(), values.end());
        break;
    }
    default: break;
    }
    for (u64& value : values)
        value &= range.length == 2 ? 0xffff : 0xffffffff;
    return values;
}

std::string verdict_of(const Sample& sample)
{
    model::Outcome outcome;
    model::decode(*sample.message, sample.bytes.data(), model::position_of_end(sample.bytes), {}, outcome);
    return fmt::format("{} {} {}", name_of(outcome.failure.refusal), to_text(outcome.failure.path),
                       name_of(outcome.ignored.refusal));
}

class Collection {
public:
    explicit Collection(const Bytes& whole) : whole_(whole) {}

    // Keeps the samples on both sides of each change of the verdict, unless they show nothing new.
    void add(const std::vector<Sample>& neighbours, const std::string& place)
    {
        std::vector<std::string> verdicts;
        for (const Sample& sample : neighbours)
            verdicts.push_back(verdict_of(sample));
        for (std::size_t i = 0; i < neighbours.size(); ++i) {
            const bool changes = (i > 0 && verdicts[i] != verdicts[i - 1]) ||
                                 (i + 1 < verdicts.size() && verdicts[i] != verdicts[i + 1]);
            if (changes && neighbours[i].bytes != whole_ && seen_.insert(verdicts[i] + place).second)
                kept.push_back(neighbours[i]);
        }
    }

    std::vector<Sample> kept;

private:
    const Bytes& whole_;
    std::set<std::string> seen_;
};

}   // namespace

std::vector<Sample> damaged(const Sample& whole)
{
    Collection collection(whole.bytes);
    const u32 length = model::position_of_end(whole.bytes);
    const command::Explanation explanation = command::explain(*whole.message, whole.bytes);
    for (const Range& range : explanation.ranges) {
        std::vector<Sample> neighbours;
        const std::string place =
            fmt::format("{} of {} at {}", kind_text(range), path_text(explanation, range), range.position);
        for (const u64 value : values_of(range, length)) {
            Sample sample = whole;
            model::put(&sample.bytes[range.position], value, range.length);
            sample.about += fmt::format(", {}: {:#x} instead of {:#x}", place, value, range.value);
            neighbours.push_back(std::move(sample));
        }
        collection.add(neighbours, range.piece == Piece::slot ? "" : place);
    }
    std::vector<Sample> cut;
    for (u32 kept = 0; kept <= length; ++kept) {
        Sample sample = whole;
        sample.bytes.resize(kept);
        sample.about += fmt::format(", only the first {} of {} bytes", kept, length);
        cut.push_back(std::move(sample));
    }
    collection.add(cut, "");
    return std::move(collection.kept);
}

}   // namespace kesto::vectors
