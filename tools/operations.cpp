#include "tools/operations.h"

#include <cstdio>
#include <cstdlib>
#include <iterator>

#define KESTO_EACH_MODULE "tools/module_header.inc"
#include "messages/modules.inc"
#undef KESTO_EACH_MODULE

namespace kesto::tools {

namespace {

// Records are passed as void*; the casts go through a generic function type.
using Any = void (*)();

template <class To, class From>
To as(From from)
{
    return reinterpret_cast<To>(reinterpret_cast<Any>(from));
}

#define MESSAGE(message, id, ...)                                       \
    {#message,                                                          \
     id,                                                                \
     sizeof(::message),                                                 \
     as<decltype(Operations::unpack)>(message##__unpack),               \
     as<decltype(Operations::free_unpacked)>(message##_free__unpacked), \
     as<decltype(Operations::pack)>(message##__pack),                   \
     as<decltype(Operations::sendsingle)>(message##__sendsingle),       \
     as<decltype(Operations::sendbatch)>(message##__sendbatch),         \
     as<decltype(Operations::sendmsg)>(message##__sendmsg),             \
     as<decltype(Operations::sendtomsg)>(message##__sendtomsg)},
#define NAMED_FIELDS(...)

#define KESTO_QUOTED(text) KESTO_QUOTED_EXPANDED(text)
#define KESTO_QUOTED_EXPANDED(text) #text
#define KESTO_JOIN(a, b) KESTO_JOIN_EXPANDED(a, b)
#define KESTO_JOIN_EXPANDED(a, b) a##b

const ModuleOperations all[] = {
#define KESTO_EACH_MODULE "tools/operations_module.inc"
#include "messages/modules.inc"
#undef KESTO_EACH_MODULE
};

}   // namespace

std::span<const ModuleOperations> module_operations() { return all; }

const Operations* find_operations(std::string_view name)
{
    for (const ModuleOperations& module : all)
        for (const Operations& message : module.messages)
            if (name == message.name)
                return &message;
    return nullptr;
}

const Operations& operations(std::string_view name)
{
    if (const Operations* const found = find_operations(name))
        return *found;
    std::fprintf(stderr, "no message %.*s\n", static_cast<int>(name.size()), name.data());
    std::abort();
}

}   // namespace kesto::tools
