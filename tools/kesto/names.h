// Names that the operator gives to fields, and how their values are displayed, from a text file:
//
//   # all after a hash is a comment
//   ifit_flow_base_mesh
//       f0   flow      hex
//       f1   source    ipv4
//       f6   protocol  enum tcp=6 udp=17
//
// A message begins at the start of a line, its fields are indented. The display is optional.
#pragma once

#include <map>
#include <nlohmann/json_fwd.hpp>

#include "tools/kesto/messages.h"

namespace kesto::command {

enum class Display : u8 { plain, hex, ipv4, ipv6, mac, time, time_ms, time_us, time_ns, enumeration };

struct FieldView {
    std::string name;
    Display display = Display::plain;
    std::map<std::string, u64> words;   // of an enumeration
};

class Names {
public:
    // Throws a Fault that begins with "WHERE:LINE: ".
    void read(std::string_view text, const std::string& where);

    bool empty() const { return messages_.empty(); }
    const FieldView* find(const Message& message, std::size_t slot) const;

private:
    std::map<std::string, std::map<std::size_t, FieldView>, std::less<>> messages_;
};

// Those of this process; empty unless main() has read a file.
Names& names();

// The operator's name, or the catalogue's.
const std::string& field_name(const Message& message, std::size_t slot);

// As in ".f1[0].year"; "." for the root record.
std::string field_path(const Message& root, const model::Path& path);

// A value as the field's display shows it; empty for a plain field and for a value that the display cannot show.
// `wire` holds the bytes of a scalar or of an array's elements.
std::string displayed(const Message& message, std::size_t slot, const u8* wire);

// Like model::record_json and model::record_from_json, with the operator's names and displayed values. When reading, a
// field may have its name or the catalogue's, and a value may be as displayed or plain.
nlohmann::ordered_json named_json(const Record& record);
Record record_from_named_json(const Message& message, const nlohmann::ordered_json& json);

}   // namespace kesto::command
