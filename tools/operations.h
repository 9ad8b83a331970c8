// The seven operations of every message by name. Signatures follow the public headers, with records as untyped memory.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace kesto::tools {

struct Operations {
    const char* name;
    std::uint32_t id;
    std::uint32_t record_size;
    std::uint32_t (*unpack)(const std::uint8_t* buf, std::uint32_t len, void* rec);
    void (*free_unpacked)(void* rec);
    int (*pack)(const void* rec, std::uint8_t* buf, std::uint32_t* len);
    int (*sendsingle)(std::uint32_t channel, const void* rec, std::uint32_t unused, std::uint32_t destination);
    int (*sendbatch)(std::uint32_t channel, const void* recs, std::uint32_t n, std::uint32_t destination);
    int (*sendmsg)(std::uint32_t channel, const void* recs, std::uint32_t n);
    int (*sendtomsg)(std::uint32_t channel, const void* recs, std::uint32_t n, std::uint32_t destination);
};

struct ModuleOperations {
    const char* name;
    std::span<const Operations> messages;   // in catalogue order
    int (*recv_init)();
    int (*send_init)();
    void (*send_resource_clean)();
};

// The modules that are built.
std::span<const ModuleOperations> module_operations();

// For an unknown name, the first returns null and the second ends the process.
const Operations* find_operations(std::string_view name);
const Operations& operations(std::string_view name);

}   // namespace kesto::tools
