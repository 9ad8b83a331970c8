#pragma once
// Converts records to JSON and back, without loss.
//
//   u8 u16 u32     a number
//   u64            decimal digits in a string; a number is accepted, too
//   string         a string, null for a null pointer; {"hex": "..."} if it is not UTF-8 or contains a NUL
//   bytes, u8[N]   hex digits in a string; bytes may be null
//   u32[N]         an array of N numbers
//   table          an object with the field names as keys
//   vector         an array of objects

#include <nlohmann/json_fwd.hpp>
#include <stdexcept>
#include <string>

#include "model/record.h"

namespace kesto::model {

struct JsonFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// The record must come from a successful decode.
nlohmann::ordered_json record_json(const Record& record);

// Throws a JsonFault that names the place, as in ".f1[0].f3: ...". Missing fields are zero or null; fields that the
// message does not have are refused.
Record record_from_json(const Message& message, const nlohmann::ordered_json& json);

// Throws a JsonFault that begins with `where`. A duplicate name in an object is refused.
nlohmann::ordered_json parse_json(const std::string& text, const std::string& where);

}   // namespace kesto::model
