// A test body for every message.
#pragma once

#include <gtest/gtest.h>

#include "tests/support/against_reference.h"

namespace kesto::tests {

class EveryMessageTest : public testing::TestWithParam<const reference::Message*> {
protected:
    const reference::Message& message() const { return *GetParam(); }
    const Operations& library() const { return operations(message().name); }
    bool fixed() const { return message().fixed_length != 0; }
};

inline std::vector<const reference::Message*> all_messages()
{
    std::vector<const reference::Message*> all;
    for (const reference::Message& message : transcribed().messages)
        all.push_back(&message);
    return all;
}

inline std::string name_of_case(const testing::TestParamInfo<const reference::Message*>& info) { return info.param->name; }

}   // namespace kesto::tests

#define KESTO_FOR_EVERY_MESSAGE(suite)                                                                        \
    INSTANTIATE_TEST_SUITE_P(All, suite, testing::ValuesIn(::kesto::tests::all_messages()), ::kesto::tests::name_of_case)
