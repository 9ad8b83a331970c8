// What the messages are for: families of messages with their purpose, and what a message is within its family.
#pragma once

#include <string>
#include <vector>

#include "model/catalogue.h"

namespace kesto::tools {

struct Family {
    const char* module;
    const char* title;
    const char* purpose;   // sentences
    // Each stands also for the messages X_key, X_update and X_delete that there are.
    std::vector<const char*> roots;
};

// In the order in which pages show them. Ends the process if a message of a module that has families is in none of
// them, or in two.
const std::vector<Family>& families();

// The messages of a root that are in the catalogue, itself first: X, X_key, X_update, X_delete; null for what there is
// not.
struct Members {
    const model::Message* row = nullptr;
    const model::Message* key = nullptr;
    const model::Message* update = nullptr;
    const model::Message* remove = nullptr;
};
Members members_of(const char* root);

// The message of the control tables that a sync message repeats; null if there is none.
const model::Message* mirrored(const model::Message& message);

// Sentences about the message within its family, computed from the slots: "Key of X: ...". Empty if there is nothing
// to say. `name` turns a message into the text for its name.
std::string role_text(const model::Message& message, std::string (*name)(const model::Message&));

// Splits sentences into lines of at most `width` characters.
std::vector<std::string> wrapped(const std::string& text, std::size_t width);

}   // namespace kesto::tools
