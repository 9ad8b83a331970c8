// All small faults, for every message and both forms: every other value of every byte, and boundary values of every
// word that is an offset or a count. Every truncation is tested in against_model_test.cpp.
//
// If all cases take too long, KESTO_SHARE=k/n in the environment selects the k-th of n parts (k from 0).

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "model/generate.h"
#include "tests/support/every_message.h"

namespace kesto::tests {

namespace {

using model::Item;
using model::Piece;
using model::put;

struct Share {
    unsigned number = 0;
    unsigned of = 1;

    Share()
    {
        const char* const text = std::getenv("KESTO_SHARE");
        if (text != nullptr && (std::sscanf(text, "%u/%u", &number, &of) != 2 || number >= of)) {
            std::fprintf(stderr, "KESTO_SHARE=%s is not of the form k/n with k below n\n", text);
            std::exit(1);
        }
    }

    bool includes(std::uint64_t which) const { return which % of == number; }
};

const Share share;

// One for all cases, so that it is set up only once.
DecodeCheck& check()
{
    static DecodeCheck instance(1 << 16);
    return instance;
}

// A byte string placed before the guarded page, where it is changed and decoded.
struct Sample {
    const model::Message& message;
    const ByteString& whole;
    const std::uint32_t length = static_cast<std::uint32_t>(whole.size());
    std::uint8_t* const bytes = std::copy(whole.begin(), whole.end(), check().buffer().place(length)) - length;

    void restore(std::uint32_t position, std::uint32_t width)
    {
        std::copy_n(&whole[position], width, bytes + position);
    }

    // Reports a difference between library and model and then returns false.
    [[nodiscard]] bool decodes_alike()
    {
        const std::string fault = check().check(message, bytes, length);
        if (!fault.empty())
            ADD_FAILURE() << fault << "\n  bytes " << model::to_hex(bytes, length);
        return fault.empty();
    }
};

std::vector<ByteString> full_samples(const model::Message& message)
{
    model::Random random(message.id);
    return both_forms(model::random_record(message, model::Density::full, random));
}

// ---- words that are offsets or counts ----

struct Word {
    std::uint32_t position;
    std::uint32_t width;
    std::uint32_t table;   // position of the table that it belongs to
    bool repeated;         // in a vector element other than the first
};

struct WordFinder : model::Walk {
    std::vector<Word> words;
    std::uint32_t tables[model::greatest_depth + 2] = {};   // tables being read, by depth

    void read(const Item& item) override
    {
        if (item.piece == Piece::table_length || item.piece == Piece::scalar || item.piece == Piece::payload)
            return;
        const bool of_table = item.piece == Piece::vtable_offset || item.piece == Piece::vtable_length;
        const std::uint32_t depth = item.path->length + of_table;
        if (item.piece == Piece::vtable_offset)
            tables[depth] = item.position;
        const auto first = item.path->steps.begin();
        const bool repeated = std::any_of(first, first + item.path->length, [](auto step) { return step.element > 0; });
        words.push_back({item.position, item.length, tables[depth], repeated});
    }
};

std::vector<Word> words_of(const model::Message& message, const ByteString& bytes)
{
    WordFinder finder;
    model::DecodeOptions options;
    options.walk = &finder;
    model::Outcome outcome;
    model::decode(message, bytes.data(), static_cast<std::uint32_t>(bytes.size()), options, outcome);
    EXPECT_FALSE(outcome.failure) << message.name;
    return finder.words;
}

std::vector<std::uint32_t> all_boundaries(std::uint32_t length)
{
    std::vector<std::uint32_t> boundaries{0, 1, 3, 4, 5, 6, 7, 8, 0x3FFFFFFF, 0x40000000, 0x7FFFFFFF, 0x80000000};
    for (std::uint32_t i = 0; i < 7; ++i)
        boundaries.push_back(length - 5 + i);
    for (std::uint32_t i = 1; i <= 8; ++i)
        boundaries.push_back(0 - i);
    return boundaries;
}

std::vector<std::uint32_t> few_boundaries(std::uint32_t length)
{
    return {0, 4, length - 4, length - 3, 0x40000000, 0x7FFFFFFF, 0xFFFFFFFC};
}

// Values for which the word itself, or its target relative to its own position or to its table, is at a boundary.
// Also counts of 4-byte items that just fit or just do not fit.
std::vector<std::uint64_t> boundary_values(const Word& word, const std::vector<std::uint32_t>& boundaries,
                                           std::uint32_t length)
{
    std::vector<std::uint64_t> values;
    for (const std::uint32_t boundary : boundaries)
        for (const std::uint32_t value :
             {boundary, boundary - word.position, boundary - word.table, word.table - boundary})
            values.push_back(word.width == 2 ? value & 0xFFFF : value);
    for (std::uint32_t i = 0; i < 4; ++i)
        values.push_back((length - word.position - 4) / 4 - 1 + i);
    std::sort(values.begin(), values.end());
    values.erase(std::unique(values.begin(), values.end()), values.end());
    return values;
}

// ---- the tests ----

class EveryFault : public EveryMessageTest {};

KESTO_FOR_EVERY_MESSAGE(EveryFault);

TEST_P(EveryFault, every_value_of_every_byte)
{
    for (const ByteString& whole : full_samples(message())) {
        Sample sample{message(), whole};
        for (std::uint32_t at = 0; at < sample.length; ++at) {
            const std::uint32_t original = whole[at];
            for (std::uint32_t change = 1; change < 256; ++change) {
                if (!share.includes(at + change))
                    continue;
                sample.bytes[at] = static_cast<std::uint8_t>(original ^ change);
                ASSERT_TRUE(sample.decodes_alike()) << "byte " << at << ", was " << original;
            }
            sample.restore(at, 1);
        }
    }
}

TEST_P(EveryFault, boundary_values_of_every_word)
{
    for (const ByteString& whole : full_samples(message())) {
        Sample sample{message(), whole};
        std::uint64_t number = 0;
        for (const Word& word : words_of(message(), whole)) {
            for (const std::uint64_t value : boundary_values(word, all_boundaries(sample.length), sample.length)) {
                if (!share.includes(number++))
                    continue;
                put(sample.bytes + word.position, value, word.width);
                ASSERT_TRUE(sample.decodes_alike()) << "word at " << word.position;
            }
            sample.restore(word.position, word.width);
        }
    }
}

// One message of each shape, for faults that need two words.
const char* const shapes[] = {
    "ifit_color_intf_mesh",               // scalars
    "ifit_dfx_query_glbdata_item_mesh",   // text
    "ifit_dfx_query_comm_param_mesh",     // a block
    "ifit_dfx_query_stat_item_mesh",      // an array and a table
    "ifit_dfx_query_glbdata_rec_mesh",    // tables with a block and a text
    "ifit_color_intf_mesh_update",        // a vector
    "ifit_dfx_query_stat_rec_mesh",       // a table, and a vector whose elements hold an array and a table
    "ntvifit_entry_list_mdtlm",           // a vector whose elements own blocks
    "ntvifit_stats_info_list",            // a vector whose elements' tables own blocks
    "synthetic_rows",                     // if the test module is built
    "synthetic_lenient",
};

std::vector<const char*> built_shapes()
{
    std::vector<const char*> built;
    std::ranges::copy_if(shapes, std::back_inserter(built),
                         [](const char* name) { return expected_catalogue().find(name) != nullptr; });
    return built;
}

class EveryShape : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(All, EveryShape, testing::ValuesIn(built_shapes()),
                         [](const auto& each) { return std::string(each.param); });

TEST_P(EveryShape, boundary_values_of_every_pair_of_words)
{
    const model::Message& message = *expected_catalogue().find(GetParam());
    for (const ByteString& whole : full_samples(message)) {
        Sample sample{message, whole};
        std::vector<Word> words = words_of(message, whole);
        std::erase_if(words, [](const Word& word) { return word.repeated; });   // the first element represents all
        std::vector<std::vector<std::uint64_t>> values;                         // by word
        for (const Word& word : words)
            values.push_back(boundary_values(word, few_boundaries(sample.length), sample.length));
        std::uint64_t number = 0;
        for (std::size_t i = 0; i < words.size(); ++i)
            for (std::size_t j = 0; j < i; ++j) {
                for (const std::uint64_t one : values[i])
                    for (const std::uint64_t other : values[j]) {
                        if (!share.includes(number++))
                            continue;
                        put(sample.bytes + words[i].position, one, words[i].width);
                        put(sample.bytes + words[j].position, other, words[j].width);
                        ASSERT_TRUE(sample.decodes_alike())
                            << "words at " << words[i].position << ", " << words[j].position;
                    }
                for (const std::size_t k : {i, j})
                    sample.restore(words[k].position, words[k].width);
            }
    }
}

}   // namespace

}   // namespace kesto::tests
