#include <charconv>

#include "model/record.h"
#include "model/text.h"

namespace kesto::model {
namespace {

constexpr char hex_digits[] = "0123456789abcdef";

struct Reader {
    std::string_view& text;
    std::string& error;

    bool fail(const char* reason)
    {
        error = std::string(reason) + " before '" + std::string(text.substr(0, 20)) + "'";
        return false;
    }

    void skip_space()
    {
        while (!text.empty() && (text[0] == ' ' || text[0] == '\t'))
            text.remove_prefix(1);
    }

    bool consume(std::string_view token)
    {
        skip_space();
        if (!text.starts_with(token))
            return false;
        text.remove_prefix(token.size());
        return true;
    }

    bool number(u64& value)
    {
        const int base = consume("0x") ? 16 : 10;
        const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value, base);
        if (fault != std::errc())
            return fail("expected a number");
        text.remove_prefix(static_cast<std::size_t>(end - text.data()));
        return true;
    }

    bool hex_byte(std::vector<u8>& octets)
    {
        u8 value = 0;
        const std::string_view pair = text.substr(0, 2);
        const auto [end, fault] = std::from_chars(pair.data(), pair.data() + pair.size(), value, 16);
        if (fault != std::errc() || end != pair.data() + 2)
            return fail("expected two hexadecimal digits");
        octets.push_back(value);
        text.remove_prefix(2);
        return true;
    }

    bool octets(std::vector<u8>& octets)
    {
        while (!consume("'")) {
            if (!hex_byte(octets))
                return false;
        }
        return true;
    }

    bool characters(std::vector<u8>& octets)
    {
        for (;;) {
            if (text.empty())
                return fail("unterminated text");
            if (text.starts_with("\\x")) {
                text.remove_prefix(2);
                if (!hex_byte(octets))
                    return false;
                continue;
            }
            const char character = text[0];
            text.remove_prefix(1);
            if (character == '"')
                return true;
            octets.push_back(static_cast<u8>(character));
        }
    }

    bool array(const Slot& slot, Field& field)
    {
        std::vector<u64> values;
        if (slot.width == 1 && consume("h'")) {
            field.octets.clear();
            if (!octets(field.octets))
                return false;
            return field.octets.size() == slot.count || fail("wrong number of elements");
        }
        if (!consume("<"))
            return fail("expected an array");
        while (!consume(">")) {
            values.emplace_back();
            if (!number(values.back()))
                return false;
            if (values.back() >> (8 * slot.width) != 0)
                return fail("number too large");
        }
        if (values.size() != slot.count)
            return fail("wrong number of elements");
        for (std::size_t i = 0; i < values.size(); ++i) {
            if (slot.width == 1)
                field.octets[i] = static_cast<u8>(values[i]);
            if (slot.width == 4)
                field.words[i] = static_cast<u32>(values[i]);
        }
        return true;
    }

    bool elements(const Slot& slot, Field& field)
    {
        while (!consume("]")) {
            field.records.emplace_back();
            if (!parse_record(*slot.nested, text, field.records.back(), error))
                return false;
        }
        field.number = field.records.size();
        return true;
    }

    bool owned_block(const Slot& slot, Field& field)
    {
        if (consume("null*"))
            return slot.kind == Kind::string ? fail("text has no length") : number(field.number);
        if (consume("null"))
            return true;
        field.present = true;
        if (slot.kind == Kind::string)
            return consume("\"") ? characters(field.octets) : fail("expected text");
        if (slot.kind == Kind::vector)
            return consume("[") ? elements(slot, field) : fail("expected a vector");
        if (!consume("h'"))
            return fail("expected octets");
        if (!octets(field.octets))
            return false;
        field.number = field.octets.size();
        return true;
    }

    bool value(const Slot& slot, Field& field)
    {
        if (consume("zero"))
            return true;
        switch (slot.kind) {
        case Kind::scalar:
            if (!number(field.number))
                return false;
            return slot.width == 8 || field.number >> (8 * slot.width) == 0 || fail("number too large");
        case Kind::array: return array(slot, field);
        case Kind::table: return parse_record(*slot.nested, text, field.records[0], error);
        case Kind::string:
        case Kind::bytes:
        case Kind::vector: break;
        }
        return owned_block(slot, field);
    }
};

void add_hex(std::string& out, u8 octet)
{
    out += hex_digits[octet >> 4];
    out += hex_digits[octet & 15];
}

void add_octets(std::string& out, const std::vector<u8>& octets)
{
    out += "h'";
    for (const u8 octet : octets)
        add_hex(out, octet);
    out += '\'';
}

void add_characters(std::string& out, const std::vector<u8>& octets)
{
    out += '"';
    for (const u8 octet : octets) {
        if (octet >= 0x20 && octet < 0x7f && octet != '"' && octet != '\\') {
            out += static_cast<char>(octet);
        } else {
            out += "\\x";
            add_hex(out, octet);
        }
    }
    out += '"';
}

void add_field(std::string& out, const Slot& slot, const Field& field)
{
    if (slot.kind == Kind::scalar) {
        out += std::to_string(field.number);
    } else if (slot.kind == Kind::table) {
        out += to_text(field.records[0]);
    } else if (slot.kind == Kind::array && slot.width == 1) {
        add_octets(out, field.octets);
    } else if (slot.kind == Kind::array) {
        out += '<';
        for (std::size_t i = 0; i < field.words.size(); ++i)
            out += join({i == 0 ? "" : " ", std::to_string(field.words[i])});
        out += '>';
    } else if (!field.present) {
        out += field.number == 0 ? "null" : join({"null*", std::to_string(field.number)});
    } else if (slot.kind == Kind::string) {
        add_characters(out, field.octets);
    } else if (slot.kind == Kind::bytes) {
        add_octets(out, field.octets);
    } else {
        out += '[';
        for (std::size_t i = 0; i < field.records.size(); ++i)
            out += join({i == 0 ? "" : " ", to_text(field.records[i])});
        out += ']';
    }
}

}   // namespace

bool parse_record(const Message& message, std::string_view& text, Record& record, std::string& error)
{
    Reader reader{text, error};
    clear(record, message);
    if (reader.consume("zero"))
        return true;
    if (!reader.consume("{"))
        return reader.fail("expected a record");
    for (std::size_t k = 0; k < message.slots.size(); ++k) {
        if (!reader.value(message.slots[k], record.fields[k]))
            return false;
    }
    return reader.consume("}") || reader.fail("too many fields for the message");
}

std::string to_text(const Record& record)
{
    std::string out = "{";
    for (std::size_t k = 0; k < record.fields.size(); ++k) {
        if (k != 0)
            out += ' ';
        add_field(out, record.message->slots[k], record.fields[k]);
    }
    return out + "}";
}

}   // namespace kesto::model
