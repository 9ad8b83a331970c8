// Uses each codec unit once.
#pragma once

#include <cstdint>
#include <iterator>
#include <vector>

#define KESTO_EACH_MODULE "tools/module_header.inc"
#include "messages/modules.inc"
#undef KESTO_EACH_MODULE

namespace kesto::tests {

// One receive and one send operation of each module, such that each unit logs and each receive unit allocates.
struct Use {
    void (*receive)();
    void (*send)();
};

template <class Record>
void receive_with(std::uint32_t (*unpack)(const std::uint8_t*, std::uint32_t, Record*), void (*free_unpacked)(Record*),
                  const std::vector<std::uint8_t>& bytes)
{
    Record record{};
    unpack(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &record);
    free_unpacked(&record);
    unpack(bytes.data(), 3, &record);   // logs
}

template <class Record>
void send_with(int (*pack)(const Record*, std::uint8_t*, std::uint32_t*))
{
    const Record record{};
    std::uint8_t buffer[512];
    std::uint32_t length = sizeof buffer;
    pack(&record, buffer, &length);
    length = sizeof buffer;
    pack(&record, nullptr, &length);   // logs
}

inline const std::vector<std::uint8_t> one_empty_text = {10, 0, 0, 0, 6, 0, 8, 0, 4, 0, 6,
                                                         0,  0, 0, 4, 0, 0, 0, 0, 0, 0, 0};
inline const std::vector<std::uint8_t> one_byte_block = {12, 0, 0, 0, 8, 0, 8, 0, 0, 0, 4, 0, 8,
                                                         0,  0, 0, 4, 0, 0, 0, 1, 0, 0, 0, 7};
// A list of one element. Its vtable is the 4 at position 16, which means no slots.
inline const std::vector<std::uint8_t> one_element = {12, 0, 0, 0, 8, 0, 8, 0, 0, 0, 4, 0, 8,  0, 0, 0,
                                                      4,  0, 0, 0, 1, 0, 0, 0, 4, 0, 0, 0, 12, 0, 0, 0};

inline const Use uses[] = {
    {[] {
         receive_with(ifit_dfx_query_glbdata_item_mesh__unpack, ifit_dfx_query_glbdata_item_mesh_free__unpacked,
                      one_empty_text);
     },
     [] { send_with(ifit_dfx_query_stat_rec_mesh__pack); }},
#ifndef KESTO_WITHOUT_ifit
    {[] { receive_with(ifit_mcp_mesh_update__unpack, ifit_mcp_mesh_update_free__unpacked, one_element); },
     [] { send_with(ifit_mcp_mesh_update__pack); }},
#endif
#ifndef KESTO_WITHOUT_ifit_sync
    {[] { receive_with(ifit_sync_mcp_mesh_update__unpack, ifit_sync_mcp_mesh_update_free__unpacked, one_element); },
     [] { send_with(ifit_sync_mcp_mesh__pack); }},
#endif
    {[] { receive_with(ntvifit_app_data__unpack, ntvifit_app_data_free__unpacked, one_byte_block); },
     [] { send_with(ntvifit_app_data__pack); }},
#ifdef KESTO_WITH_synthetic
    {[] { receive_with(synthetic_text__unpack, synthetic_text_free__unpacked, one_empty_text); },
     [] { send_with(synthetic_pair__pack); }},
#endif
};
constexpr std::uint32_t units = 2 * std::size(uses);

inline void use_every_unit()
{
    for (const Use& use : uses) {
        use.receive();
        use.send();
    }
}

}   // namespace kesto::tests
