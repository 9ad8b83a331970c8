#include "tools/operations.h"

#include <cstdio>
#include <cstdlib>
#include <iterator>

#include "ifit.h"
#include "ifit_dfx.h"
#include "ifit_sync.h"
#include "ntvifit.h"

namespace kesto::tools {

namespace {

// Records cross as void*; the casts go through the type that stands for any function.
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

const Operations ifit_dfx_messages[] = {
#include "messages/ifit_dfx/ifit_dfx.def"
};
const Operations ifit_messages[] = {
#include "messages/ifit/ifit.def"
};
const Operations ifit_sync_messages[] = {
#include "messages/ifit_sync/ifit_sync.def"
};
const Operations ntvifit_messages[] = {
#include "messages/ntvifit/ntvifit.def"
};

const ModuleOperations all[] = {
    {"ifit_dfx", ifit_dfx_messages, ifit_dfx_recv_init, ifit_dfx_send_init, ifit_dfx__send_resource_clean},
    {"ifit", ifit_messages, ifit_recv_init, ifit_send_init, ifit__send_resource_clean},
    {"ifit_sync", ifit_sync_messages, ifit_sync_recv_init, ifit_sync_send_init, ifit_sync__send_resource_clean},
    {"ntvifit", ntvifit_messages, ntvifit_recv_init, ntvifit_send_init, ntvifit__send_resource_clean},
};

}   // namespace

std::span<const ModuleOperations> module_operations() { return all; }

const Operations& operations(std::string_view name)
{
    for (const ModuleOperations& module : all)
        for (const Operations& message : module.messages)
            if (name == message.name)
                return message;
    std::fprintf(stderr, "no message %.*s\n", static_cast<int>(name.size()), name.data());
    std::abort();
}

}   // namespace kesto::tools
