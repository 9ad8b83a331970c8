// Byte strings written by hand, each for a rule that a reader may get wrong.
#pragma once

#include <string>
#include <vector>

#include "tools/kesto/messages.h"

namespace kesto::vectors {

using model::Bytes;

struct Sample {
    std::string about;
    const model::Message* message = nullptr;
    Bytes bytes;
};

struct ByHand {
    Sample sample;
    const char* code;   // of the refusal, "none" if accepted
};

std::vector<ByHand> by_hand();

}   // namespace kesto::vectors
