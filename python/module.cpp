// kesto._kesto: the model of the messages for Python. kesto/__init__.py wraps it in types; records are dictionaries.

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <nlohmann/json.hpp>

#include "model/utf8.h"
#include "tools/kesto/capture.h"
#include "tools/kesto/commands.h"

namespace py = pybind11;

namespace kesto::python {

namespace {

using command::Explanation;
using model::Field;
using model::Kind;
using model::Message;
using model::Record;
using model::Slot;
using model::u32;
using model::u64;
using model::u8;

const Message& message_named(const std::string& name)
{
    const Message* const found = model::catalogue().find(name);
    if (found == nullptr)
        throw py::key_error(name);
    return *found;
}

std::span<const u8> span_of(const std::string_view& bytes)
{
    return {reinterpret_cast<const u8*>(bytes.data()), bytes.size()};
}

py::bytes bytes_of(const std::vector<u8>& octets)
{
    return {reinterpret_cast<const char*>(octets.data()), octets.size()};
}

// ---- record to dictionary ----

py::dict dict_of(const Record& record);

py::object text_of(const Field& field)
{
    if (!field.present)
        return py::none();
    const bool whole = model::text_length(field.octets) == field.octets.size();
    if (whole && model::is_utf8(field.octets.data(), field.octets.size()))
        return py::str(reinterpret_cast<const char*>(field.octets.data()), field.octets.size());
    return bytes_of(field.octets);
}

py::object value_of(const Slot& slot, const Field& field)
{
    switch (slot.kind) {
    case Kind::scalar: return py::int_(field.number);
    case Kind::string: return text_of(field);
    case Kind::bytes: return field.present ? py::object(bytes_of(field.octets)) : py::none();
    case Kind::array: return slot.width == 1 ? py::object(bytes_of(field.octets)) : py::cast(field.words);
    case Kind::table: return dict_of(field.records[0]);
    case Kind::vector: break;
    }
    py::list elements;
    for (const Record& element : field.records)
        elements.append(dict_of(element));
    return elements;
}

py::dict dict_of(const Record& record)
{
    py::dict values;
    for (std::size_t k = 0; k < record.fields.size(); ++k)
        values[py::str(record.message->slots[k].field)] = value_of(record.message->slots[k], record.fields[k]);
    return values;
}

// ---- dictionary to record ----

[[noreturn]] void refuse(const std::string& path, const std::string& what)
{
    const py::object type = py::module_::import("kesto._errors").attr("EncodeError");
    PyErr_SetObject(type.ptr(), type(path.empty() ? "." : path, what).ptr());
    throw py::error_already_set();
}

u64 number_of(const py::handle& value, u32 width, const std::string& path)
{
    const u64 most = width == 8 ? ~u64{0} : (u64{1} << 8 * width) - 1;
    const std::string range = "an integer from 0 to " + std::to_string(most);
    if (!PyLong_Check(value.ptr()))
        refuse(path, "not " + range + " but a " + std::string(py::str(py::type::of(value).attr("__name__"))));
    const u64 number = PyLong_AsUnsignedLongLong(value.ptr());
    const bool failed = PyErr_Occurred() != nullptr;
    PyErr_Clear();
    if (failed || number > most)
        refuse(path, std::string(py::str(value)) + " is not " + range);
    return number;
}

std::vector<u8> octets_of(const py::handle& value, const std::string& path)
{
    if (!PyBytes_Check(value.ptr()) && !PyByteArray_Check(value.ptr()))
        refuse(path, "not bytes but a " + std::string(py::str(py::type::of(value).attr("__name__"))));
    const auto text = PyBytes_Check(value.ptr()) ? std::string(py::reinterpret_borrow<py::bytes>(value))
                                                 : std::string(py::reinterpret_borrow<py::bytearray>(value));
    return {text.begin(), text.end()};
}

py::object utf8_of(const py::handle& text, const std::string& path)
{
    try {
        return text.attr("encode")("utf-8");
    } catch (py::error_already_set&) {
        refuse(path, "holds a lone surrogate, which UTF-8 cannot carry");
    }
}

void set_text(Field& field, const py::handle& value, const std::string& path)
{
    const bool is_text = py::isinstance<py::str>(value);
    if (!is_text && !PyBytes_Check(value.ptr()))
        refuse(path, "not a str, bytes or None but a " + std::string(py::str(py::type::of(value).attr("__name__"))));
    field.octets = is_text ? octets_of(utf8_of(value, path), path) : octets_of(value, path);
    field.present = true;
    const u32 length = model::text_length(field.octets);
    if (length != field.octets.size())
        refuse(path, "the NUL at " + std::to_string(length) + " would end the text");
}

Record record_of(const Message& message, const py::handle& values, const std::string& path);

py::list list_of(const py::handle& value, const std::string& path)
{
    if (!py::isinstance<py::list>(value) && !py::isinstance<py::tuple>(value))
        refuse(path, "not a list but a " + std::string(py::str(py::type::of(value).attr("__name__"))));
    return py::list(py::reinterpret_borrow<py::object>(value));
}

std::string item_path(const std::string& path, std::size_t i) { return path + "[" + std::to_string(i) + "]"; }

void set_array(const Slot& slot, Field& field, const py::handle& value, const std::string& path)
{
    std::size_t given = 0;
    if (slot.width == 1) {
        field.octets = octets_of(value, path);
        given = field.octets.size();
    } else {
        const py::list items = list_of(value, path);
        field.words.clear();
        for (const py::handle item : items)
            field.words.push_back(static_cast<u32>(number_of(item, slot.width, item_path(path, given++))));
    }
    if (given != slot.count)
        refuse(path,
               "has " + std::to_string(given) + " values, " + slot_text(slot) + " takes " + std::to_string(slot.count));
}

void set_field(const Slot& slot, Field& field, const py::handle& value, const std::string& path)
{
    const bool may_be_absent = slot.kind == Kind::string || slot.kind == Kind::bytes;
    if (may_be_absent && value.is_none())
        return;
    switch (slot.kind) {
    case Kind::scalar: field.number = number_of(value, slot.width, path); break;
    case Kind::string: set_text(field, value, path); break;
    case Kind::bytes:
        field.octets = octets_of(value, path);
        field.number = field.octets.size();
        field.present = field.number != 0;
        break;
    case Kind::array: set_array(slot, field, value, path); break;
    case Kind::table: field.records[0] = record_of(*slot.nested, value, path); break;
    case Kind::vector:
        for (const py::handle element : list_of(value, path))
            field.records.push_back(record_of(*slot.nested, element, item_path(path, field.records.size())));
        field.number = field.records.size();
        field.present = field.number != 0;
        break;
    }
}

Record record_of(const Message& message, const py::handle& values, const std::string& path)
{
    if (!py::isinstance<py::dict>(values))
        refuse(path, "not a dictionary but a " + std::string(py::str(py::type::of(values).attr("__name__"))));
    Record record = model::zero_record(message);
    for (const auto& [key, value] : py::reinterpret_borrow<py::dict>(values)) {
        const std::string name = py::str(key);
        std::size_t k = 0;
        while (k < message.slots.size() && message.slots[k].field != name)
            ++k;
        if (k == message.slots.size())
            refuse(path + "." + name, message.name + " has no such field");
        set_field(message.slots[k], record.fields[k], value, path + "." + name);
    }
    return record;
}

// ---- the functions ----

py::list messages()
{
    py::list all;
    for (const Message& message : model::catalogue().messages) {
        py::list fields;
        for (const Slot& slot : message.slots) {
            static constexpr const char* kinds[] = {"scalar", "string", "bytes", "array", "table", "vector"};
            fields.append(py::make_tuple(slot.field, slot_text(slot), kinds[static_cast<int>(slot.kind)], slot.width,
                                         slot.count,
                                         slot.nested == nullptr ? py::none() : py::cast(slot.nested->name)));
        }
        all.append(py::make_tuple(message.name, message.module, message.id, fields, message.fixed_length,
                                  message.compact_zero, message.compact_full));
    }
    return all;
}

std::string refusal(const std::string& name, const std::string_view& bytes)
{
    const Explanation verdict =
        command::explain(message_named(name), span_of(bytes), {.most_ranges = 0, .most_memory = 0});
    return verdict.refused ? refused_json(verdict, *verdict.refused).dump() : "";
}

py::object decode(const std::string& name, const std::string_view& bytes, u64 most_memory)
{
    const Explanation verdict = command::explain_verdict(message_named(name), span_of(bytes), most_memory);
    if (verdict.given_up)
        throw std::length_error(command::given_up_text(most_memory));
    return verdict.refused ? py::object(py::none()) : dict_of(command::record_of(verdict));
}

py::bytes encode(const std::string& name, const py::dict& values, const std::string& form)
{
    const Message& message = message_named(name);
    const auto chosen = form == "fixed"     ? command::Form::fixed
                        : form == "compact" ? command::Form::compact
                                            : command::Form::as_sent;
    return bytes_of(command::encoded(record_of(message, values, ""), chosen));
}

std::string explain(const std::string& name, const std::string_view& bytes)
{
    return explanation_json(command::explain_fully(message_named(name), span_of(bytes), {}))
        .dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

class Capture {
public:
    explicit Capture(const std::string& path)
    {
        std::string error;
        if (!reader_.open(path, error))
            throw std::runtime_error(error);
    }

    py::object next()
    {
        tools::CapturedPacket packet;
        std::string error;
        if (!reader_.next(packet, error)) {
            if (!error.empty())
                throw std::runtime_error(error);
            return py::none();
        }
        const py::object fault =
            packet.fault == tools::PacketFault::none ? py::none() : py::cast(text_of(packet.fault));
        py::object call = py::none();
        if (packet.call)
            call = py::make_tuple(packet.call->is_sent ? "sent" : "received", packet.call->channel,
                                  packet.call->destination, packet.call->result, packet.call->began);
        return py::make_tuple(packet.number, packet.seconds, packet.microseconds, packet.id,
                              bytes_of({packet.bytes.begin(), packet.bytes.end()}), fault, call);
    }

private:
    tools::CaptureReader reader_;
};

}   // namespace

}   // namespace kesto::python

PYBIND11_MODULE(_kesto, module)
{
    using namespace kesto::python;
    module.doc() = "The messages, for kesto/__init__.py.";
    module.def("messages", messages);
    module.def("refusal", refusal);
    module.def("decode", decode);
    module.def("encode", encode);
    module.def("explain", explain);
    py::class_<Capture>(module, "Capture").def(py::init<const std::string&>()).def("next", &Capture::next);
    py::register_local_exception_translator([](std::exception_ptr thrown) {
        try {
            if (thrown)
                std::rethrow_exception(thrown);
        } catch (const kesto::command::Fault& fault) {
            PyErr_SetString(PyExc_ValueError, fault.what());
        }
    });
}
