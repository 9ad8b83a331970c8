// Runs a test body for every message.
#pragma once

#include <gtest/gtest.h>

#include "tests/support/against_model.h"

namespace kesto::tests {

class EveryMessageTest : public testing::TestWithParam<const model::Message*> {
protected:
    const model::Message& message() const { return *GetParam(); }
    const Operations& library() const { return operations(message().name); }
    bool fixed() const { return message().fixed_length != 0; }
};

inline std::vector<const model::Message*> all_messages()
{
    std::vector<const model::Message*> all;
    for (const model::Message& message : expected_catalogue().messages)
        all.push_back(&message);
    return all;
}

inline std::string name_of_case(const testing::TestParamInfo<const model::Message*>& info) { return info.param->name; }

}   // namespace kesto::tests

#define KESTO_FOR_EVERY_MESSAGE(suite)                                                      \
    INSTANTIATE_TEST_SUITE_P(All, suite, testing::ValuesIn(::kesto::tests::all_messages()), \
                             ::kesto::tests::name_of_case)
