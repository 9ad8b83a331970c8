// Preloaded before MESH, writes what a process sends and receives to a capture file; docs/tap.md describes it. It takes
// the place of three of MESH's operations and calls MESH's own. Results, errno and arguments pass unchanged. The one
// thing that MESH sees is that the decoders it is given are trampolines.

#ifndef _GNU_SOURCE
#define _GNU_SOURCE
#endif
#include <algorithm>
#include <array>
#include <atomic>
#include <dlfcn.h>
#include <errno.h>
#include <limits.h>
#include <link.h>
#include <stdio.h>
#include <utility>

#include "platform/standin/capture.h"
#include "platform/standin/essentials.h"

// The declarations set the visibility of the definitions; everything else in this library is hidden.
#pragma GCC visibility push(default)
#include "platform/mesh.h"
#pragma GCC visibility pop

namespace {

constexpr uint32_t default_mib = 64, max_mib = 4096;
constexpr uint32_t default_files = 4, max_files = 99;
constexpr int no_mesh = -1;

constinit bool with_other_ids{};   // set before the program starts

// ---- the catalogue ----

constexpr auto ids = [] {
    constexpr uint32_t listed[] = {
#define KESTO_EACH_MODULE "platform/tap/catalogue_ids.inc"
#include "messages/modules.inc"
#undef KESTO_EACH_MODULE
    };
    std::array<uint32_t, std::size(listed)> sorted{};
    std::copy(std::begin(listed), std::end(listed), sorted.begin());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}();

// The place of `id` among the catalogue's; ids.size() if it is not there.
size_t index_of(uint32_t id)
{
    const auto found = std::lower_bound(ids.begin(), ids.end(), id);
    return found != ids.end() && *found == id ? static_cast<size_t>(found - ids.begin()) : ids.size();
}

// ---- MESH's own operations ----

struct Operation {
    const char* name;
    void* replacement;   // the one in this file
    std::atomic<void*> found;
};

constinit Operation send_msg{"MESH_SendMsg", nullptr, nullptr};
constinit Operation send_to_msg{"MESH_SendToMsg", nullptr, nullptr};
constinit Operation register_hook{"MESH_RegIDLFuncHook", nullptr, nullptr};
constinit pthread_mutex_t search_mutex = PTHREAD_MUTEX_INITIALIZER;

struct ObjectName {
    uint32_t left;   // objects before the wanted one
    char text[PATH_MAX];
};

// For dl_iterate_phdr. Copies the name, which may be gone once the loader's lock is released.
int copy_name(dl_phdr_info* object, size_t, void* context)
{
    ObjectName& name = *static_cast<ObjectName*>(context);
    if (name.left-- > 0)
        return 0;
    snprintf(name.text, sizeof name.text, "%s", object->dlpi_name);
    return 1;
}

// MESH may have been loaded along with a plug-in, which keeps it out of the search order of the process.
void* find_in_any_object(const Operation& operation)
{
    static constinit ObjectName name{};
    const Lock lock(search_mutex);
    for (uint32_t number = 0;; ++number) {
        name.left = number;
        if (dl_iterate_phdr(copy_name, &name) == 0)
            return nullptr;
        void* const object = name.text[0] == '\0' ? nullptr : dlopen(name.text, RTLD_LAZY | RTLD_NOLOAD);
        void* const found = object == nullptr ? nullptr : dlsym(object, operation.name);
        if (found != nullptr && found != operation.replacement)
            return found;   // the object stays loaded
        if (object != nullptr)
            dlclose(object);
    }
}

// Null if the process has no MESH. The search waits for the first call because MESH may be loaded late.
template <typename Function>
Function* original(Operation& operation, Function* replacement)
{
    void* found = operation.found.load(std::memory_order_relaxed);
    if (found == nullptr) [[unlikely]] {
        const int error = errno;
        operation.replacement = reinterpret_cast<void*>(replacement);
        found = dlsym(RTLD_NEXT, operation.name);
        if (found == nullptr)
            found = find_in_any_object(operation);
        operation.found.store(found, std::memory_order_relaxed);
        if (found == nullptr)
            report("kesto tap: no %s in this process; the call fails\n", operation.name);
        errno = error;
    }
    return reinterpret_cast<Function*>(found);
}

// ---- what leaves ----

void capture_sent(CapturedCall call, int result, const MeshSendItem* items, uint32_t count)
{
    call.direction = CaptureDirection::sent;
    call.known |= CAPTURE_CHANNEL | CAPTURE_RESULT;
    call.result = result;
    for (uint32_t i = 0; items != nullptr && i < count; ++i)
        if (with_other_ids || index_of(items[i].id) < ids.size())
            capture_item(call, items[i].id, items[i].data, items[i].data == nullptr ? 0 : items[i].length);
}

// ---- what is delivered ----

constinit std::array<std::atomic<MeshUnpack>, ids.size()> decoders{};

// Written before the decoder runs, so that a byte string that ends the process is in the file. A call without a byte
// string or a record only asks for the record's size.
[[gnu::noinline]] uint32_t pass_on(size_t index, const uint8_t* buffer, uint32_t length, void* record)
{
    if (buffer != nullptr && record != nullptr && capture_is_on()) {
        CapturedCall call{};
        call.direction = CaptureDirection::received;
        call.began = capture_time();
        capture_item(call, ids[index], buffer, length);
    }
    return decoders[index].load(std::memory_order_acquire)(buffer, length, record);
}

template <size_t index>
uint32_t trampoline(const uint8_t* buffer, uint32_t length, void* record)
{
    return pass_on(index, buffer, length, record);
}

constexpr auto trampolines = []<size_t... index>(std::index_sequence<index...>)
{
    return std::array<MeshUnpack, ids.size()>{trampoline<index>...};
}
(std::make_index_sequence<ids.size()>());

// ---- settings ----

// The decimal number in an environment variable; `otherwise` if it is unset or no number from `least` to `most`.
uint32_t number_in(const char* name, uint32_t least, uint32_t most, uint32_t otherwise)
{
    const char* const text = secure_getenv(name);
    if (text == nullptr || text[0] == '\0')
        return otherwise;
    char* end;
    errno = 0;
    const unsigned long number = strtoul(text, &end, 10);
    if (text[0] >= '0' && text[0] <= '9' && *end == '\0' && errno == 0 && number >= least && number <= most)
        return static_cast<uint32_t>(number);
    report("kesto tap: %s=%s ignored: not a number from %u to %u\n", name, text, static_cast<unsigned>(least),
           static_cast<unsigned>(most));
    return otherwise;
}

// The file is opened at the first packet: a shell or another program that only starts the one with MESH takes no file.
[[gnu::constructor]] void start()
{
    const int error = errno;
    const char* const path = secure_getenv("KESTO_TAP");
    if (path != nullptr && path[0] != '\0') {
        with_other_ids = number_in("KESTO_TAP_OTHERS", 0, 1, 0) != 0;
        const uint64_t max_bytes = uint64_t{number_in("KESTO_TAP_MIB", 1, max_mib, default_mib)} << 20;
        const uint32_t files = number_in("KESTO_TAP_FILES", 1, max_files, default_files);
        [[maybe_unused]] const bool ignored = capture_to({"kesto tap", path, max_bytes, files, true});
    }
    errno = error;
}

}   // namespace

int MESH_SendMsg(uint32_t channel, const MeshSendItem* items, uint32_t count)
{
    const auto send = original(send_msg, MESH_SendMsg);
    if (send == nullptr)
        return no_mesh;
    if (!capture_is_on())
        return send(channel, items, count);
    CapturedCall call{};
    call.channel = channel;
    call.began = capture_time();
    const int result = send(channel, items, count);
    capture_sent(call, result, items, count);
    return result;
}

int MESH_SendToMsg(uint32_t channel, const MeshSendItem* items, uint32_t count, uint32_t destination)
{
    const auto send = original(send_to_msg, MESH_SendToMsg);
    if (send == nullptr)
        return no_mesh;
    if (!capture_is_on())
        return send(channel, items, count, destination);
    CapturedCall call{};
    call.known = CAPTURE_DESTINATION;
    call.channel = channel;
    call.destination = destination;
    call.began = capture_time();
    const int result = send(channel, items, count, destination);
    capture_sent(call, result, items, count);
    return result;
}

// A decoder that replaces another one is put in place once MESH has accepted it, so that a refusal changes nothing.
int MESH_RegIDLFuncHook(uint32_t id, MeshUnpack unpack, MeshFree free_record)
{
    const auto register_it = original(register_hook, MESH_RegIDLFuncHook);
    if (register_it == nullptr)
        return no_mesh;
    const size_t index = index_of(id);
    if (unpack == nullptr || index == ids.size() || !capture_is_on())
        return register_it(id, unpack, free_record);
    MeshUnpack none = nullptr;
    const bool is_first = decoders[index].compare_exchange_strong(none, unpack, std::memory_order_acq_rel);
    const int result = register_it(id, trampolines[index], free_record);
    if (result == 0)
        decoders[index].store(unpack, std::memory_order_release);
    else if (is_first)
        decoders[index].store(nullptr, std::memory_order_release);
    return result;
}
