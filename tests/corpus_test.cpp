// Runs the fuzzers' corpus on targets and with checks that the fuzzers do not use.

#include <gtest/gtest.h>

#include "fuzz/inputs.h"
#include "tests/support/against_model.h"
#include "tests/support/figures.h"

namespace kesto::tests {

namespace {

void expect_agreement(const char* file, std::string (*run)(const std::uint8_t* input, std::size_t size))
{
    std::vector<ByteString> inputs;
    std::string error;
    ASSERT_TRUE(fuzz::read_packed(KESTO_SOURCE_DIR "/tests/fuzz/corpus/" + std::string(file), inputs, error)) << error;
    ASSERT_FALSE(inputs.empty());
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        if (all_modules_built) {
            ASSERT_NE(fuzz::message_of(expected_catalogue(), inputs[i].data(), inputs[i].size()), nullptr)
                << file << ", input " << i;
        }
        ASSERT_EQ(run(inputs[i].data(), inputs[i].size()), "")
            << file << ", input " << i << ": " << model::to_hex(inputs[i]);
    }
}

TEST(Corpus, byte_strings_decode_like_the_model) { expect_agreement("decode.inputs", fuzz::run_decode_input); }

TEST(Corpus, records_encode_like_the_model) { expect_agreement("record.inputs", fuzz::run_record_input); }

}   // namespace

}   // namespace kesto::tests
