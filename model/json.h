#pragma once
// Records as JSON and back, without loss.
//
//   u8 u16 u32     a number
//   u64            decimal digits in a string; a number is taken, too
//   string         a string, null for a null pointer; {"hex": "..."} for what is not UTF-8 or holds a NUL
//   bytes, u8[N]   hex digits in a string; bytes may be null
//   u32[N]         an array of N numbers
//   table          an object by field names
//   vector         an array of objects

#include <nlohmann/json_fwd.hpp>
#include <stdexcept>
#include <string>

#include "model/record.h"

namespace kesto::model {

struct JsonFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// A record that a successful decode left.
nlohmann::ordered_json record_json(const Record& record);

// Throws a JsonFault that names the place, as in ".f1[0].f3: ...". What is missing is zero or null, as in a record that
// starts zeroed; what the message does not have is refused.
Record record_from_json(const Message& message, const nlohmann::ordered_json& json);

// Throws a JsonFault too, which begins with `where`. A name that stands twice in an object is refused.
nlohmann::ordered_json parse_json(const std::string& text, const std::string& where);

}   // namespace kesto::model
