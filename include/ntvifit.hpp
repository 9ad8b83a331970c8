// ntvifit.hpp: the ntvifit messages for C++20; ifit_codec.hpp explains. Printed from the catalogue by `./run headers`;
// do not edit.
#ifndef KESTO_NTVIFIT_HPP
#define KESTO_NTVIFIT_HPP

#include "ntvifit.h"
#include "ifit_codec.hpp"

namespace ifit_codec {

template <>
struct message_traits<::ntvifit_app_data> {
    static constexpr std::uint32_t id = NTVIFIT_APP_DATA_ID;
    static constexpr std::string_view name = "ntvifit_app_data";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ntvifit_app_data__unpack;
    static constexpr auto pack = ::ntvifit_app_data__pack;
    static constexpr auto sendmsg = ::ntvifit_app_data__sendmsg;
    static constexpr auto sendtomsg = ::ntvifit_app_data__sendtomsg;
    static constexpr auto free_unpacked = ::ntvifit_app_data_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ntvifit_app_data& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ntvifit_stats_data> {
    static constexpr std::uint32_t id = NTVIFIT_STATS_DATA_ID;
    static constexpr std::string_view name = "ntvifit_stats_data";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 104;
    static constexpr std::uint32_t compact_least = 38;
    static constexpr std::uint32_t compact_most = 98;
    static constexpr auto unpack = ::ntvifit_stats_data__unpack;
    static constexpr auto pack = ::ntvifit_stats_data__pack;
    static constexpr auto sendmsg = ::ntvifit_stats_data__sendmsg;
    static constexpr auto sendtomsg = ::ntvifit_stats_data__sendtomsg;
    static constexpr auto free_unpacked = ::ntvifit_stats_data_free__unpacked;
};

template <>
struct message_traits<::ntvifit_flow_tuples> {
    static constexpr std::uint32_t id = NTVIFIT_FLOW_TUPLES_ID;
    static constexpr std::string_view name = "ntvifit_flow_tuples";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 56;
    static constexpr std::uint32_t compact_least = 40;
    static constexpr std::uint32_t compact_most = 54;
    static constexpr auto unpack = ::ntvifit_flow_tuples__unpack;
    static constexpr auto pack = ::ntvifit_flow_tuples__pack;
    static constexpr auto sendmsg = ::ntvifit_flow_tuples__sendmsg;
    static constexpr auto sendtomsg = ::ntvifit_flow_tuples__sendtomsg;
    static constexpr auto free_unpacked = ::ntvifit_flow_tuples_free__unpacked;
};

template <>
struct message_traits<::ntvifit_flow_config> {
    static constexpr std::uint32_t id = NTVIFIT_FLOW_CONFIG_ID;
    static constexpr std::string_view name = "ntvifit_flow_config";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 128;
    static constexpr std::uint32_t compact_least = 98;
    static constexpr std::uint32_t compact_most = 122;
    static constexpr auto unpack = ::ntvifit_flow_config__unpack;
    static constexpr auto pack = ::ntvifit_flow_config__pack;
    static constexpr auto sendmsg = ::ntvifit_flow_config__sendmsg;
    static constexpr auto sendtomsg = ::ntvifit_flow_config__sendtomsg;
    static constexpr auto free_unpacked = ::ntvifit_flow_config_free__unpacked;
};

template <>
struct message_traits<::ntvifit_stats_key> {
    static constexpr std::uint32_t id = NTVIFIT_STATS_KEY_ID;
    static constexpr std::string_view name = "ntvifit_stats_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 32;
    static constexpr std::uint32_t compact_least = 20;
    static constexpr std::uint32_t compact_most = 32;
    static constexpr auto unpack = ::ntvifit_stats_key__unpack;
    static constexpr auto pack = ::ntvifit_stats_key__pack;
    static constexpr auto sendmsg = ::ntvifit_stats_key__sendmsg;
    static constexpr auto sendtomsg = ::ntvifit_stats_key__sendtomsg;
    static constexpr auto free_unpacked = ::ntvifit_stats_key_free__unpacked;
};

template <>
struct message_traits<::ntvifit_entry_to_mdtlm> {
    static constexpr std::uint32_t id = NTVIFIT_ENTRY_TO_MDTLM_ID;
    static constexpr std::string_view name = "ntvifit_entry_to_mdtlm";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 64;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ntvifit_entry_to_mdtlm__unpack;
    static constexpr auto pack = ::ntvifit_entry_to_mdtlm__pack;
    static constexpr auto sendmsg = ::ntvifit_entry_to_mdtlm__sendmsg;
    static constexpr auto sendtomsg = ::ntvifit_entry_to_mdtlm__sendtomsg;
    static constexpr auto free_unpacked = ::ntvifit_entry_to_mdtlm_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ntvifit_entry_to_mdtlm& record, Visit&& visit)
    {
        visit(record.f17);
        visit(record.f19);
        visit(record.f23);
    }
};

template <>
struct message_traits<::ntvifit_entry_list_mdtlm> {
    static constexpr std::uint32_t id = NTVIFIT_ENTRY_LIST_MDTLM_ID;
    static constexpr std::string_view name = "ntvifit_entry_list_mdtlm";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ntvifit_entry_list_mdtlm__unpack;
    static constexpr auto pack = ::ntvifit_entry_list_mdtlm__pack;
    static constexpr auto sendmsg = ::ntvifit_entry_list_mdtlm__sendmsg;
    static constexpr auto sendtomsg = ::ntvifit_entry_list_mdtlm__sendtomsg;
    static constexpr auto free_unpacked = ::ntvifit_entry_list_mdtlm_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ntvifit_entry_list_mdtlm& record, Visit&& visit)
    {
        visit(record.f0);
    }
};

template <>
struct message_traits<::ntvifit_stats_info> {
    static constexpr std::uint32_t id = NTVIFIT_STATS_INFO_ID;
    static constexpr std::string_view name = "ntvifit_stats_info";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 252;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ntvifit_stats_info__unpack;
    static constexpr auto pack = ::ntvifit_stats_info__pack;
    static constexpr auto sendmsg = ::ntvifit_stats_info__sendmsg;
    static constexpr auto sendtomsg = ::ntvifit_stats_info__sendtomsg;
    static constexpr auto free_unpacked = ::ntvifit_stats_info_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ntvifit_stats_info& record, Visit&& visit)
    {
        visit(record.f4.f1);
    }
};

template <>
struct message_traits<::ntvifit_stats_info_list> {
    static constexpr std::uint32_t id = NTVIFIT_STATS_INFO_LIST_ID;
    static constexpr std::string_view name = "ntvifit_stats_info_list";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 14;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ntvifit_stats_info_list__unpack;
    static constexpr auto pack = ::ntvifit_stats_info_list__pack;
    static constexpr auto sendmsg = ::ntvifit_stats_info_list__sendmsg;
    static constexpr auto sendtomsg = ::ntvifit_stats_info_list__sendtomsg;
    static constexpr auto free_unpacked = ::ntvifit_stats_info_list_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ntvifit_stats_info_list& record, Visit&& visit)
    {
        visit(record.f0);
    }
};

}   // namespace ifit_codec

#endif
