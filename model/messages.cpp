// Builds the catalogue from messages/<module>/<module>.def, whose lines are read as text.
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>

#include "model/catalogue.h"
#include "model/text.h"

namespace kesto::model {
namespace {

// Removes the first item from the comma-separated `list` and returns it.
std::string_view next_item(std::string_view& list)
{
    const std::string_view item = list.substr(0, list.find(','));
    list.remove_prefix(item.size());
    list.remove_prefix(std::min(list.find_first_not_of(", "), list.size()));
    return item;
}

// Nothing here depends on input: any error is in a .def file, and the library does not compile with it either.
[[noreturn]] void refuse(std::string_view where, std::string_view what)
{
    std::fprintf(stderr, "%.*s: %.*s\n", static_cast<int>(where.size()), where.data(), static_cast<int>(what.size()),
                 what.data());
    std::abort();
}

class Builder {
public:
    void begin_module(std::string name)
    {
        flush();
        built.modules.push_back({std::move(name), {}});
    }

    void add(std::string name, u32 id, std::string_view slots)
    {
        flush();
        pending_.name = std::move(name);
        pending_.id = id;
        while (!slots.empty())
            pending_.slots.push_back(slot_of(next_item(slots)));
    }

    // These describe the message added last.
    void name_fields(std::string_view names)
    {
        for (Slot& slot : pending_.slots)
            slot.field = next_item(names);
    }

    // The message added last is complete.
    void flush()
    {
        std::string error;
        if (!pending_.name.empty() && !built.add(pending_, error))
            refuse(pending_.name, error);
        pending_ = {};
    }

    Catalogue built;

private:
    // U16, U8Array<8>, Vector<ifit_mcp_mesh>
    Slot slot_of(std::string_view word) const
    {
        const std::size_t bracket = std::min(word.find('<'), word.size());
        const std::string_view type = word.substr(0, bracket);
        const std::string_view argument =
            bracket == word.size() ? "" : word.substr(bracket + 1, word.size() - bracket - 2);
        Slot slot;
        if (type.starts_with("U")) {
            std::from_chars(type.data() + 1, type.data() + type.size(), slot.width);
            slot.width /= 8;
        }
        if (type.ends_with("Array")) {
            slot.kind = Kind::array;
            std::from_chars(argument.data(), argument.data() + argument.size(), slot.count);
        } else if (!argument.empty()) {
            slot.kind = type == "Vector" ? Kind::vector : Kind::table;
            slot.lenient = type == "LenientTable";
            slot.nested = built.find(argument);
            if (slot.nested == nullptr)
                refuse(pending_.name, join({"no message ", argument, " before it"}));
        } else if (slot.width == 0) {
            slot.kind = type == "String" ? Kind::string : Kind::bytes;
        }
        return slot;
    }

    Message pending_;
};

#define KESTO_QUOTED(text) KESTO_QUOTED_EXPANDED(text)
#define KESTO_QUOTED_EXPANDED(text) #text

}   // namespace

const Catalogue& catalogue()
{
    static const Catalogue all = [] {
        Builder builder;
#define KESTO_EACH_MODULE "model/add_module.inc"
#include "messages/modules.inc"
#undef KESTO_EACH_MODULE
        builder.flush();
        return std::move(builder.built);
    }();
    return all;
}

}   // namespace kesto::model
