// ifit_sync.hpp: the ifit_sync messages for C++20; ifit_codec.hpp explains. Printed from the catalogue by `./run headers`;
// do not edit.
#ifndef KESTO_IFIT_SYNC_HPP
#define KESTO_IFIT_SYNC_HPP

#include "ifit_sync.h"
#include "ifit_codec.hpp"

namespace ifit_codec {

template <>
struct message_traits<::ifit_sync_ifit_rule> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_RULE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_rule";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 176;
    static constexpr std::uint32_t compact_least = 116;
    static constexpr std::uint32_t compact_most = 176;
    static constexpr auto unpack = ::ifit_sync_ifit_rule__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_rule__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_rule__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_rule__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_rule_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_native_ip_learn> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_NATIVE_IP_LEARN_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_native_ip_learn";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 80;
    static constexpr std::uint32_t compact_least = 42;
    static constexpr std::uint32_t compact_most = 74;
    static constexpr auto unpack = ::ifit_sync_ifit_native_ip_learn__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_native_ip_learn__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_native_ip_learn__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_native_ip_learn__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_native_ip_learn_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_native_ip_intf> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_NATIVE_IP_INTF_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_native_ip_intf";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 80;
    static constexpr std::uint32_t compact_least = 40;
    static constexpr std::uint32_t compact_most = 76;
    static constexpr auto unpack = ::ifit_sync_ifit_native_ip_intf__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_native_ip_intf__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_native_ip_intf__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_native_ip_intf__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_native_ip_intf_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_native_ip_intf_color_clear> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_NATIVE_IP_INTF_COLOR_CLEAR_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_native_ip_intf_color_clear";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 72;
    static constexpr std::uint32_t compact_least = 36;
    static constexpr std::uint32_t compact_most = 67;
    static constexpr auto unpack = ::ifit_sync_ifit_native_ip_intf_color_clear__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_native_ip_intf_color_clear__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_native_ip_intf_color_clear__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_native_ip_intf_color_clear__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_native_ip_intf_color_clear_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_native_ip_intf_auto_detect> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_NATIVE_IP_INTF_AUTO_DETECT_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_native_ip_intf_auto_detect";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 72;
    static constexpr std::uint32_t compact_least = 38;
    static constexpr std::uint32_t compact_most = 70;
    static constexpr auto unpack = ::ifit_sync_ifit_native_ip_intf_auto_detect__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_native_ip_intf_auto_detect__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_native_ip_intf_auto_detect__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_native_ip_intf_auto_detect__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_native_ip_intf_auto_detect_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ntvifit_glb_entry> {
    static constexpr std::uint32_t id = IFIT_SYNC_NTVIFIT_GLB_ENTRY_ID;
    static constexpr std::string_view name = "ifit_sync_ntvifit_glb_entry";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 88;
    static constexpr std::uint32_t compact_least = 46;
    static constexpr std::uint32_t compact_most = 86;
    static constexpr auto unpack = ::ifit_sync_ntvifit_glb_entry__unpack;
    static constexpr auto pack = ::ifit_sync_ntvifit_glb_entry__pack;
    static constexpr auto sendmsg = ::ifit_sync_ntvifit_glb_entry__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ntvifit_glb_entry__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ntvifit_glb_entry_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_global_entry> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_GLOBAL_ENTRY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_global_entry";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 144;
    static constexpr std::uint32_t compact_least = 68;
    static constexpr std::uint32_t compact_most = 140;
    static constexpr auto unpack = ::ifit_sync_ifit_global_entry__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_global_entry__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_global_entry__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_global_entry__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_global_entry_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ntvifit_intf_entry> {
    static constexpr std::uint32_t id = IFIT_SYNC_NTVIFIT_INTF_ENTRY_ID;
    static constexpr std::string_view name = "ifit_sync_ntvifit_intf_entry";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 144;
    static constexpr std::uint32_t compact_least = 74;
    static constexpr std::uint32_t compact_most = 137;
    static constexpr auto unpack = ::ifit_sync_ntvifit_intf_entry__unpack;
    static constexpr auto pack = ::ifit_sync_ntvifit_intf_entry__pack;
    static constexpr auto sendmsg = ::ifit_sync_ntvifit_intf_entry__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ntvifit_intf_entry__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ntvifit_intf_entry_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ntvifit_intf_color_clear_entry> {
    static constexpr std::uint32_t id = IFIT_SYNC_NTVIFIT_INTF_COLOR_CLEAR_ENTRY_ID;
    static constexpr std::string_view name = "ifit_sync_ntvifit_intf_color_clear_entry";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 48;
    static constexpr std::uint32_t compact_least = 26;
    static constexpr std::uint32_t compact_most = 46;
    static constexpr auto unpack = ::ifit_sync_ntvifit_intf_color_clear_entry__unpack;
    static constexpr auto pack = ::ifit_sync_ntvifit_intf_color_clear_entry__pack;
    static constexpr auto sendmsg = ::ifit_sync_ntvifit_intf_color_clear_entry__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ntvifit_intf_color_clear_entry__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ntvifit_intf_color_clear_entry_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ntvifit_intf_auto_detect_entry> {
    static constexpr std::uint32_t id = IFIT_SYNC_NTVIFIT_INTF_AUTO_DETECT_ENTRY_ID;
    static constexpr std::string_view name = "ifit_sync_ntvifit_intf_auto_detect_entry";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 96;
    static constexpr std::uint32_t compact_least = 48;
    static constexpr std::uint32_t compact_most = 92;
    static constexpr auto unpack = ::ifit_sync_ntvifit_intf_auto_detect_entry__unpack;
    static constexpr auto pack = ::ifit_sync_ntvifit_intf_auto_detect_entry__pack;
    static constexpr auto sendmsg = ::ifit_sync_ntvifit_intf_auto_detect_entry__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ntvifit_intf_auto_detect_entry__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ntvifit_intf_auto_detect_entry_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_global_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_GLOBAL_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_global_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 96;
    static constexpr std::uint32_t compact_least = 50;
    static constexpr std::uint32_t compact_most = 94;
    static constexpr auto unpack = ::ifit_sync_global_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_global_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_global_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_global_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_global_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_global_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_GLOBAL_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_global_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_global_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_global_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_global_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_global_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_global_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_global_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_global_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_GLOBAL_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_global_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_global_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_global_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_global_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_global_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_global_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_global_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_mcp_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_MCP_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_mcp_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 64;
    static constexpr std::uint32_t compact_least = 34;
    static constexpr std::uint32_t compact_most = 62;
    static constexpr auto unpack = ::ifit_sync_mcp_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_mcp_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_mcp_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_mcp_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_mcp_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_mcp_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_MCP_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_mcp_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_mcp_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_mcp_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_mcp_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_mcp_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_mcp_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_mcp_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_mcp_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_MCP_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_mcp_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_mcp_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_mcp_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_mcp_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_mcp_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_mcp_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_mcp_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_flow_base_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_BASE_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_flow_base_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 112;
    static constexpr std::uint32_t compact_least = 46;
    static constexpr std::uint32_t compact_most = 106;
    static constexpr auto unpack = ::ifit_sync_flow_base_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_flow_base_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_base_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_base_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_base_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_flow_base_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_BASE_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_flow_base_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_flow_base_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_flow_base_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_base_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_base_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_base_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_flow_base_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_flow_base_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_BASE_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_flow_base_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_flow_base_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_flow_base_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_base_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_base_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_base_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_flow_base_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_flow_srv6policy_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_SRV6POLICY_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_flow_srv6policy_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 184;
    static constexpr std::uint32_t compact_least = 124;
    static constexpr std::uint32_t compact_most = 180;
    static constexpr auto unpack = ::ifit_sync_flow_srv6policy_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_flow_srv6policy_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_srv6policy_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_srv6policy_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_srv6policy_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_flow_srv6policy_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_SRV6POLICY_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_flow_srv6policy_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_flow_srv6policy_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_flow_srv6policy_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_srv6policy_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_srv6policy_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_srv6policy_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_flow_srv6policy_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_flow_srv6policy_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_SRV6POLICY_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_flow_srv6policy_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_flow_srv6policy_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_flow_srv6policy_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_srv6policy_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_srv6policy_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_srv6policy_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_flow_srv6policy_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_dyn_flow_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_DYN_FLOW_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_dyn_flow_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 152;
    static constexpr std::uint32_t compact_least = 84;
    static constexpr std::uint32_t compact_most = 152;
    static constexpr auto unpack = ::ifit_sync_dyn_flow_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_dyn_flow_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_dyn_flow_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_dyn_flow_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_dyn_flow_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_dyn_flow_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_DYN_FLOW_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_dyn_flow_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_dyn_flow_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_dyn_flow_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_dyn_flow_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_dyn_flow_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_dyn_flow_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_dyn_flow_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_dyn_flow_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_DYN_FLOW_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_dyn_flow_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_dyn_flow_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_dyn_flow_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_dyn_flow_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_dyn_flow_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_dyn_flow_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_dyn_flow_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_flow_loss_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_LOSS_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_flow_loss_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 64;
    static constexpr std::uint32_t compact_least = 32;
    static constexpr std::uint32_t compact_most = 64;
    static constexpr auto unpack = ::ifit_sync_flow_loss_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_flow_loss_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_loss_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_loss_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_loss_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_flow_loss_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_LOSS_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_flow_loss_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_flow_loss_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_flow_loss_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_loss_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_loss_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_loss_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_flow_loss_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_flow_loss_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_LOSS_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_flow_loss_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_flow_loss_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_flow_loss_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_loss_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_loss_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_loss_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_flow_loss_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_flow_delay_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_DELAY_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_flow_delay_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 64;
    static constexpr std::uint32_t compact_least = 32;
    static constexpr std::uint32_t compact_most = 64;
    static constexpr auto unpack = ::ifit_sync_flow_delay_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_flow_delay_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_delay_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_delay_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_delay_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_flow_delay_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_DELAY_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_flow_delay_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_flow_delay_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_flow_delay_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_delay_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_delay_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_delay_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_flow_delay_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_flow_delay_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_DELAY_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_flow_delay_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_flow_delay_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_flow_delay_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_delay_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_delay_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_delay_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_flow_delay_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_test_type_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_TEST_TYPE_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_test_type_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 72;
    static constexpr std::uint32_t compact_least = 36;
    static constexpr std::uint32_t compact_most = 68;
    static constexpr auto unpack = ::ifit_sync_test_type_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_test_type_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_test_type_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_test_type_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_test_type_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_test_type_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_TEST_TYPE_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_test_type_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_test_type_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_test_type_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_test_type_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_test_type_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_test_type_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_test_type_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_test_type_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_TEST_TYPE_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_test_type_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_test_type_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_test_type_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_test_type_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_test_type_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_test_type_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_test_type_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_flow_tuplev4_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_TUPLEV4_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_flow_tuplev4_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 120;
    static constexpr std::uint32_t compact_least = 56;
    static constexpr std::uint32_t compact_most = 120;
    static constexpr auto unpack = ::ifit_sync_flow_tuplev4_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_flow_tuplev4_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_tuplev4_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_tuplev4_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_tuplev4_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_flow_tuplev4_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_TUPLEV4_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_flow_tuplev4_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_flow_tuplev4_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_flow_tuplev4_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_tuplev4_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_tuplev4_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_tuplev4_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_flow_tuplev4_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_flow_tuplev4_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_TUPLEV4_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_flow_tuplev4_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_flow_tuplev4_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_flow_tuplev4_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_tuplev4_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_tuplev4_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_tuplev4_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_flow_tuplev4_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_flow_tuplev6_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_TUPLEV6_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_flow_tuplev6_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 152;
    static constexpr std::uint32_t compact_least = 100;
    static constexpr std::uint32_t compact_most = 148;
    static constexpr auto unpack = ::ifit_sync_flow_tuplev6_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_flow_tuplev6_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_tuplev6_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_tuplev6_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_tuplev6_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_flow_tuplev6_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_TUPLEV6_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_flow_tuplev6_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_flow_tuplev6_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_flow_tuplev6_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_tuplev6_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_tuplev6_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_tuplev6_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_flow_tuplev6_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_flow_tuplev6_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_TUPLEV6_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_flow_tuplev6_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_flow_tuplev6_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_flow_tuplev6_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_tuplev6_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_tuplev6_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_tuplev6_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_flow_tuplev6_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_flow_vpn_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_VPN_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_flow_vpn_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 96;
    static constexpr std::uint32_t compact_least = 42;
    static constexpr std::uint32_t compact_most = 90;
    static constexpr auto unpack = ::ifit_sync_flow_vpn_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_flow_vpn_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_vpn_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_vpn_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_vpn_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_flow_vpn_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_VPN_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_flow_vpn_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_flow_vpn_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_flow_vpn_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_vpn_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_vpn_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_vpn_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_flow_vpn_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_flow_vpn_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_FLOW_VPN_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_flow_vpn_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_flow_vpn_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_flow_vpn_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_flow_vpn_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_flow_vpn_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_flow_vpn_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_flow_vpn_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_lrn_vpn_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_LRN_VPN_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_lrn_vpn_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 88;
    static constexpr std::uint32_t compact_least = 46;
    static constexpr std::uint32_t compact_most = 86;
    static constexpr auto unpack = ::ifit_sync_lrn_vpn_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_lrn_vpn_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_lrn_vpn_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_lrn_vpn_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_lrn_vpn_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_lrn_vpn_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_LRN_VPN_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_lrn_vpn_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_lrn_vpn_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_lrn_vpn_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_lrn_vpn_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_lrn_vpn_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_lrn_vpn_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_lrn_vpn_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_lrn_vpn_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_LRN_VPN_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_lrn_vpn_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_lrn_vpn_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_lrn_vpn_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_lrn_vpn_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_lrn_vpn_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_lrn_vpn_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_lrn_vpn_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_lrn_intf_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_LRN_INTF_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_lrn_intf_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 72;
    static constexpr std::uint32_t compact_least = 34;
    static constexpr std::uint32_t compact_most = 70;
    static constexpr auto unpack = ::ifit_sync_lrn_intf_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_lrn_intf_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_lrn_intf_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_lrn_intf_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_lrn_intf_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_lrn_intf_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_LRN_INTF_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_lrn_intf_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_lrn_intf_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_lrn_intf_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_lrn_intf_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_lrn_intf_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_lrn_intf_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_lrn_intf_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_lrn_intf_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_LRN_INTF_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_lrn_intf_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_lrn_intf_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_lrn_intf_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_lrn_intf_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_lrn_intf_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_lrn_intf_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_lrn_intf_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_color_intf_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_COLOR_INTF_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_color_intf_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 56;
    static constexpr std::uint32_t compact_least = 32;
    static constexpr std::uint32_t compact_most = 56;
    static constexpr auto unpack = ::ifit_sync_color_intf_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_color_intf_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_color_intf_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_color_intf_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_color_intf_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_color_intf_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_COLOR_INTF_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_color_intf_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_color_intf_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_color_intf_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_color_intf_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_color_intf_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_color_intf_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_color_intf_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_color_intf_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_COLOR_INTF_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_color_intf_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_color_intf_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_color_intf_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_color_intf_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_color_intf_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_color_intf_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_color_intf_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ifit_rule_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_RULE_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_rule_update";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 200;
    static constexpr std::uint32_t compact_least = 132;
    static constexpr std::uint32_t compact_most = 194;
    static constexpr auto unpack = ::ifit_sync_ifit_rule_update__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_rule_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_rule_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_rule_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_rule_update_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_rule_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_RULE_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_rule_delete";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 200;
    static constexpr std::uint32_t compact_least = 132;
    static constexpr std::uint32_t compact_most = 194;
    static constexpr auto unpack = ::ifit_sync_ifit_rule_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_rule_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_rule_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_rule_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_rule_delete_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_native_ip_learn_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_NATIVE_IP_LEARN_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_native_ip_learn_update";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 104;
    static constexpr std::uint32_t compact_least = 58;
    static constexpr std::uint32_t compact_most = 92;
    static constexpr auto unpack = ::ifit_sync_ifit_native_ip_learn_update__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_native_ip_learn_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_native_ip_learn_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_native_ip_learn_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_native_ip_learn_update_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_native_ip_learn_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_NATIVE_IP_LEARN_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_native_ip_learn_delete";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 104;
    static constexpr std::uint32_t compact_least = 58;
    static constexpr std::uint32_t compact_most = 92;
    static constexpr auto unpack = ::ifit_sync_ifit_native_ip_learn_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_native_ip_learn_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_native_ip_learn_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_native_ip_learn_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_native_ip_learn_delete_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_native_ip_intf_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_NATIVE_IP_INTF_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_native_ip_intf_update";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 104;
    static constexpr std::uint32_t compact_least = 56;
    static constexpr std::uint32_t compact_most = 94;
    static constexpr auto unpack = ::ifit_sync_ifit_native_ip_intf_update__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_native_ip_intf_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_native_ip_intf_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_native_ip_intf_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_native_ip_intf_update_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_native_ip_intf_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_NATIVE_IP_INTF_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_native_ip_intf_delete";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 104;
    static constexpr std::uint32_t compact_least = 56;
    static constexpr std::uint32_t compact_most = 94;
    static constexpr auto unpack = ::ifit_sync_ifit_native_ip_intf_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_native_ip_intf_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_native_ip_intf_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_native_ip_intf_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_native_ip_intf_delete_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_native_ip_intf_color_clear_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_NATIVE_IP_INTF_COLOR_CLEAR_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_native_ip_intf_color_clear_update";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 96;
    static constexpr std::uint32_t compact_least = 52;
    static constexpr std::uint32_t compact_most = 85;
    static constexpr auto unpack = ::ifit_sync_ifit_native_ip_intf_color_clear_update__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_native_ip_intf_color_clear_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_native_ip_intf_color_clear_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_native_ip_intf_color_clear_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_native_ip_intf_color_clear_update_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_native_ip_intf_color_clear_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_NATIVE_IP_INTF_COLOR_CLEAR_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_native_ip_intf_color_clear_delete";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 96;
    static constexpr std::uint32_t compact_least = 52;
    static constexpr std::uint32_t compact_most = 85;
    static constexpr auto unpack = ::ifit_sync_ifit_native_ip_intf_color_clear_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_native_ip_intf_color_clear_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_native_ip_intf_color_clear_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_native_ip_intf_color_clear_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_native_ip_intf_color_clear_delete_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_native_ip_intf_auto_detect_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_NATIVE_IP_INTF_AUTO_DETECT_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_native_ip_intf_auto_detect_update";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 96;
    static constexpr std::uint32_t compact_least = 54;
    static constexpr std::uint32_t compact_most = 88;
    static constexpr auto unpack = ::ifit_sync_ifit_native_ip_intf_auto_detect_update__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_native_ip_intf_auto_detect_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_native_ip_intf_auto_detect_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_native_ip_intf_auto_detect_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_native_ip_intf_auto_detect_update_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_native_ip_intf_auto_detect_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_NATIVE_IP_INTF_AUTO_DETECT_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_native_ip_intf_auto_detect_delete";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 96;
    static constexpr std::uint32_t compact_least = 54;
    static constexpr std::uint32_t compact_most = 88;
    static constexpr auto unpack = ::ifit_sync_ifit_native_ip_intf_auto_detect_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_native_ip_intf_auto_detect_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_native_ip_intf_auto_detect_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_native_ip_intf_auto_detect_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_native_ip_intf_auto_detect_delete_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_flowinfo_entry> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_FLOWINFO_ENTRY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_flowinfo_entry";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 248;
    static constexpr std::uint32_t compact_least = 174;
    static constexpr std::uint32_t compact_most = 246;
    static constexpr auto unpack = ::ifit_sync_ifit_flowinfo_entry__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_flowinfo_entry__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_flowinfo_entry__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_flowinfo_entry__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_flowinfo_entry_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_flowinfo_entry_key> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_FLOWINFO_ENTRY_KEY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_flowinfo_entry_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 20;
    static constexpr std::uint32_t compact_most = 37;
    static constexpr auto unpack = ::ifit_sync_ifit_flowinfo_entry_key__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_flowinfo_entry_key__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_flowinfo_entry_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_flowinfo_entry_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_flowinfo_entry_key_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_flowinfo_entry_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_FLOWINFO_ENTRY_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_flowinfo_entry_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_ifit_flowinfo_entry_update__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_flowinfo_entry_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_flowinfo_entry_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_flowinfo_entry_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_flowinfo_entry_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_ifit_flowinfo_entry_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ifit_flowinfo_entry_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_FLOWINFO_ENTRY_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_flowinfo_entry_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_ifit_flowinfo_entry_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_flowinfo_entry_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_flowinfo_entry_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_flowinfo_entry_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_flowinfo_entry_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_ifit_flowinfo_entry_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ifit_session_entry> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_SESSION_ENTRY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_session_entry";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 384;
    static constexpr std::uint32_t compact_least = 262;
    static constexpr std::uint32_t compact_most = 378;
    static constexpr auto unpack = ::ifit_sync_ifit_session_entry__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_session_entry__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_session_entry__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_session_entry__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_session_entry_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_session_entry_key> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_SESSION_ENTRY_KEY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_session_entry_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 20;
    static constexpr std::uint32_t compact_most = 37;
    static constexpr auto unpack = ::ifit_sync_ifit_session_entry_key__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_session_entry_key__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_session_entry_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_session_entry_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_session_entry_key_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_session_entry_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_SESSION_ENTRY_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_session_entry_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_ifit_session_entry_update__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_session_entry_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_session_entry_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_session_entry_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_session_entry_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_ifit_session_entry_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ifit_session_entry_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_SESSION_ENTRY_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_session_entry_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_ifit_session_entry_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_session_entry_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_session_entry_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_session_entry_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_session_entry_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_ifit_session_entry_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ifit_flowage_entry> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_FLOWAGE_ENTRY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_flowage_entry";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 88;
    static constexpr std::uint32_t compact_least = 42;
    static constexpr std::uint32_t compact_most = 82;
    static constexpr auto unpack = ::ifit_sync_ifit_flowage_entry__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_flowage_entry__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_flowage_entry__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_flowage_entry__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_flowage_entry_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_flowage_entry_key> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_FLOWAGE_ENTRY_KEY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_flowage_entry_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 20;
    static constexpr std::uint32_t compact_most = 37;
    static constexpr auto unpack = ::ifit_sync_ifit_flowage_entry_key__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_flowage_entry_key__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_flowage_entry_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_flowage_entry_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_flowage_entry_key_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_flowage_entry_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_FLOWAGE_ENTRY_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_flowage_entry_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_ifit_flowage_entry_update__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_flowage_entry_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_flowage_entry_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_flowage_entry_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_flowage_entry_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_ifit_flowage_entry_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ifit_flowage_entry_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_FLOWAGE_ENTRY_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_flowage_entry_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_ifit_flowage_entry_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_flowage_entry_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_flowage_entry_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_flowage_entry_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_flowage_entry_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_ifit_flowage_entry_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ntvifit_glb_entry_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_NTVIFIT_GLB_ENTRY_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ntvifit_glb_entry_update";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 112;
    static constexpr std::uint32_t compact_least = 62;
    static constexpr std::uint32_t compact_most = 104;
    static constexpr auto unpack = ::ifit_sync_ntvifit_glb_entry_update__unpack;
    static constexpr auto pack = ::ifit_sync_ntvifit_glb_entry_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ntvifit_glb_entry_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ntvifit_glb_entry_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ntvifit_glb_entry_update_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ntvifit_glb_entry_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_NTVIFIT_GLB_ENTRY_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ntvifit_glb_entry_delete";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 112;
    static constexpr std::uint32_t compact_least = 62;
    static constexpr std::uint32_t compact_most = 104;
    static constexpr auto unpack = ::ifit_sync_ntvifit_glb_entry_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ntvifit_glb_entry_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ntvifit_glb_entry_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ntvifit_glb_entry_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ntvifit_glb_entry_delete_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_global_entry_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_GLOBAL_ENTRY_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_global_entry_update";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 168;
    static constexpr std::uint32_t compact_least = 84;
    static constexpr std::uint32_t compact_most = 158;
    static constexpr auto unpack = ::ifit_sync_ifit_global_entry_update__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_global_entry_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_global_entry_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_global_entry_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_global_entry_update_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_global_entry_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_GLOBAL_ENTRY_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_global_entry_delete";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 168;
    static constexpr std::uint32_t compact_least = 84;
    static constexpr std::uint32_t compact_most = 158;
    static constexpr auto unpack = ::ifit_sync_ifit_global_entry_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_global_entry_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_global_entry_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_global_entry_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_global_entry_delete_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_mcp_global_entry> {
    static constexpr std::uint32_t id = IFIT_SYNC_MCP_GLOBAL_ENTRY_ID;
    static constexpr std::string_view name = "ifit_sync_mcp_global_entry";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 64;
    static constexpr std::uint32_t compact_least = 34;
    static constexpr std::uint32_t compact_most = 62;
    static constexpr auto unpack = ::ifit_sync_mcp_global_entry__unpack;
    static constexpr auto pack = ::ifit_sync_mcp_global_entry__pack;
    static constexpr auto sendmsg = ::ifit_sync_mcp_global_entry__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_mcp_global_entry__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_mcp_global_entry_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_mcp_global_entry_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_MCP_GLOBAL_ENTRY_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_mcp_global_entry_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_mcp_global_entry_update__unpack;
    static constexpr auto pack = ::ifit_sync_mcp_global_entry_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_mcp_global_entry_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_mcp_global_entry_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_mcp_global_entry_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_mcp_global_entry_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_mcp_global_entry_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_MCP_GLOBAL_ENTRY_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_mcp_global_entry_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_mcp_global_entry_delete__unpack;
    static constexpr auto pack = ::ifit_sync_mcp_global_entry_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_mcp_global_entry_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_mcp_global_entry_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_mcp_global_entry_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_mcp_global_entry_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ntvifit_intf_entry_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_NTVIFIT_INTF_ENTRY_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ntvifit_intf_entry_update";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 168;
    static constexpr std::uint32_t compact_least = 90;
    static constexpr std::uint32_t compact_most = 155;
    static constexpr auto unpack = ::ifit_sync_ntvifit_intf_entry_update__unpack;
    static constexpr auto pack = ::ifit_sync_ntvifit_intf_entry_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ntvifit_intf_entry_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ntvifit_intf_entry_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ntvifit_intf_entry_update_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ntvifit_intf_entry_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_NTVIFIT_INTF_ENTRY_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ntvifit_intf_entry_delete";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 168;
    static constexpr std::uint32_t compact_least = 90;
    static constexpr std::uint32_t compact_most = 155;
    static constexpr auto unpack = ::ifit_sync_ntvifit_intf_entry_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ntvifit_intf_entry_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ntvifit_intf_entry_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ntvifit_intf_entry_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ntvifit_intf_entry_delete_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_db_smooth_ver> {
    static constexpr std::uint32_t id = IFIT_SYNC_DB_SMOOTH_VER_ID;
    static constexpr std::string_view name = "ifit_sync_db_smooth_ver";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 24;
    static constexpr auto unpack = ::ifit_sync_db_smooth_ver__unpack;
    static constexpr auto pack = ::ifit_sync_db_smooth_ver__pack;
    static constexpr auto sendmsg = ::ifit_sync_db_smooth_ver__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_db_smooth_ver__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_db_smooth_ver_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_tuplev4ext_flowinfo_entry> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_TUPLEV4EXT_FLOWINFO_ENTRY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_tuplev4ext_flowinfo_entry";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 176;
    static constexpr std::uint32_t compact_least = 96;
    static constexpr std::uint32_t compact_most = 172;
    static constexpr auto unpack = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_tuplev4ext_flowinfo_entry_key> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_TUPLEV4EXT_FLOWINFO_ENTRY_KEY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_tuplev4ext_flowinfo_entry_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 20;
    static constexpr std::uint32_t compact_most = 37;
    static constexpr auto unpack = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_key__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_key__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_key_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_tuplev4ext_flowinfo_entry_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_TUPLEV4EXT_FLOWINFO_ENTRY_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_tuplev4ext_flowinfo_entry_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_update__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_ifit_tuplev4ext_flowinfo_entry_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_TUPLEV4EXT_FLOWINFO_ENTRY_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ifit_tuplev6ext_flowinfo_entry> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_TUPLEV6EXT_FLOWINFO_ENTRY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_tuplev6ext_flowinfo_entry";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 216;
    static constexpr std::uint32_t compact_least = 146;
    static constexpr std::uint32_t compact_most = 210;
    static constexpr auto unpack = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_tuplev6ext_flowinfo_entry_key> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_TUPLEV6EXT_FLOWINFO_ENTRY_KEY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_tuplev6ext_flowinfo_entry_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 20;
    static constexpr std::uint32_t compact_most = 37;
    static constexpr auto unpack = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_key__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_key__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_key_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_tuplev6ext_flowinfo_entry_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_TUPLEV6EXT_FLOWINFO_ENTRY_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_tuplev6ext_flowinfo_entry_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_update__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_ifit_tuplev6ext_flowinfo_entry_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_TUPLEV6EXT_FLOWINFO_ENTRY_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ifit_whitelist_vpn_intf_entry> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_WHITELIST_VPN_INTF_ENTRY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_whitelist_vpn_intf_entry";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 88;
    static constexpr std::uint32_t compact_least = 48;
    static constexpr std::uint32_t compact_most = 88;
    static constexpr auto unpack = ::ifit_sync_ifit_whitelist_vpn_intf_entry__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_whitelist_vpn_intf_entry__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_whitelist_vpn_intf_entry__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_whitelist_vpn_intf_entry__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_whitelist_vpn_intf_entry_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_whitelist_vpn_intf_entry_key> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_WHITELIST_VPN_INTF_ENTRY_KEY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_whitelist_vpn_intf_entry_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 32;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 30;
    static constexpr auto unpack = ::ifit_sync_ifit_whitelist_vpn_intf_entry_key__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_whitelist_vpn_intf_entry_key__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_whitelist_vpn_intf_entry_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_whitelist_vpn_intf_entry_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_whitelist_vpn_intf_entry_key_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_whitelist_vpn_intf_entry_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_WHITELIST_VPN_INTF_ENTRY_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_whitelist_vpn_intf_entry_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_ifit_whitelist_vpn_intf_entry_update__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_whitelist_vpn_intf_entry_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_whitelist_vpn_intf_entry_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_whitelist_vpn_intf_entry_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_whitelist_vpn_intf_entry_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_ifit_whitelist_vpn_intf_entry_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ifit_whitelist_vpn_intf_entry_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_WHITELIST_VPN_INTF_ENTRY_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_whitelist_vpn_intf_entry_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_ifit_whitelist_vpn_intf_entry_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_whitelist_vpn_intf_entry_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_whitelist_vpn_intf_entry_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_whitelist_vpn_intf_entry_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_whitelist_vpn_intf_entry_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_ifit_whitelist_vpn_intf_entry_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ifit_whitelist_rule_intf_entry> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_WHITELIST_RULE_INTF_ENTRY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_whitelist_rule_intf_entry";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 216;
    static constexpr std::uint32_t compact_least = 150;
    static constexpr std::uint32_t compact_most = 214;
    static constexpr auto unpack = ::ifit_sync_ifit_whitelist_rule_intf_entry__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_whitelist_rule_intf_entry__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_whitelist_rule_intf_entry__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_whitelist_rule_intf_entry__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_whitelist_rule_intf_entry_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_whitelist_rule_intf_entry_key> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_WHITELIST_RULE_INTF_ENTRY_KEY_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_whitelist_rule_intf_entry_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 48;
    static constexpr std::uint32_t compact_least = 22;
    static constexpr std::uint32_t compact_most = 42;
    static constexpr auto unpack = ::ifit_sync_ifit_whitelist_rule_intf_entry_key__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_whitelist_rule_intf_entry_key__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_whitelist_rule_intf_entry_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_whitelist_rule_intf_entry_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_whitelist_rule_intf_entry_key_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ifit_whitelist_rule_intf_entry_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_WHITELIST_RULE_INTF_ENTRY_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_whitelist_rule_intf_entry_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_ifit_whitelist_rule_intf_entry_update__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_whitelist_rule_intf_entry_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_whitelist_rule_intf_entry_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_whitelist_rule_intf_entry_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_whitelist_rule_intf_entry_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_ifit_whitelist_rule_intf_entry_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ifit_whitelist_rule_intf_entry_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_IFIT_WHITELIST_RULE_INTF_ENTRY_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ifit_whitelist_rule_intf_entry_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_ifit_whitelist_rule_intf_entry_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ifit_whitelist_rule_intf_entry_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ifit_whitelist_rule_intf_entry_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ifit_whitelist_rule_intf_entry_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ifit_whitelist_rule_intf_entry_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_ifit_whitelist_rule_intf_entry_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_color_intf_entry_mesh> {
    static constexpr std::uint32_t id = IFIT_SYNC_COLOR_INTF_ENTRY_MESH_ID;
    static constexpr std::string_view name = "ifit_sync_color_intf_entry_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 56;
    static constexpr std::uint32_t compact_least = 32;
    static constexpr std::uint32_t compact_most = 56;
    static constexpr auto unpack = ::ifit_sync_color_intf_entry_mesh__unpack;
    static constexpr auto pack = ::ifit_sync_color_intf_entry_mesh__pack;
    static constexpr auto sendmsg = ::ifit_sync_color_intf_entry_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_color_intf_entry_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_color_intf_entry_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_color_intf_entry_mesh_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_COLOR_INTF_ENTRY_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_color_intf_entry_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_color_intf_entry_mesh_update__unpack;
    static constexpr auto pack = ::ifit_sync_color_intf_entry_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_color_intf_entry_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_color_intf_entry_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_color_intf_entry_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_color_intf_entry_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_color_intf_entry_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_COLOR_INTF_ENTRY_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_color_intf_entry_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_sync_color_intf_entry_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_sync_color_intf_entry_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_color_intf_entry_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_color_intf_entry_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_color_intf_entry_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_sync_color_intf_entry_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_sync_ntvifit_intf_color_clear_entry_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_NTVIFIT_INTF_COLOR_CLEAR_ENTRY_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ntvifit_intf_color_clear_entry_update";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 72;
    static constexpr std::uint32_t compact_least = 42;
    static constexpr std::uint32_t compact_most = 64;
    static constexpr auto unpack = ::ifit_sync_ntvifit_intf_color_clear_entry_update__unpack;
    static constexpr auto pack = ::ifit_sync_ntvifit_intf_color_clear_entry_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ntvifit_intf_color_clear_entry_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ntvifit_intf_color_clear_entry_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ntvifit_intf_color_clear_entry_update_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ntvifit_intf_color_clear_entry_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_NTVIFIT_INTF_COLOR_CLEAR_ENTRY_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ntvifit_intf_color_clear_entry_delete";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 72;
    static constexpr std::uint32_t compact_least = 42;
    static constexpr std::uint32_t compact_most = 64;
    static constexpr auto unpack = ::ifit_sync_ntvifit_intf_color_clear_entry_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ntvifit_intf_color_clear_entry_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ntvifit_intf_color_clear_entry_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ntvifit_intf_color_clear_entry_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ntvifit_intf_color_clear_entry_delete_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ntvifit_intf_auto_detect_entry_update> {
    static constexpr std::uint32_t id = IFIT_SYNC_NTVIFIT_INTF_AUTO_DETECT_ENTRY_UPDATE_ID;
    static constexpr std::string_view name = "ifit_sync_ntvifit_intf_auto_detect_entry_update";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 120;
    static constexpr std::uint32_t compact_least = 64;
    static constexpr std::uint32_t compact_most = 110;
    static constexpr auto unpack = ::ifit_sync_ntvifit_intf_auto_detect_entry_update__unpack;
    static constexpr auto pack = ::ifit_sync_ntvifit_intf_auto_detect_entry_update__pack;
    static constexpr auto sendmsg = ::ifit_sync_ntvifit_intf_auto_detect_entry_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ntvifit_intf_auto_detect_entry_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ntvifit_intf_auto_detect_entry_update_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_ntvifit_intf_auto_detect_entry_delete> {
    static constexpr std::uint32_t id = IFIT_SYNC_NTVIFIT_INTF_AUTO_DETECT_ENTRY_DELETE_ID;
    static constexpr std::string_view name = "ifit_sync_ntvifit_intf_auto_detect_entry_delete";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 120;
    static constexpr std::uint32_t compact_least = 64;
    static constexpr std::uint32_t compact_most = 110;
    static constexpr auto unpack = ::ifit_sync_ntvifit_intf_auto_detect_entry_delete__unpack;
    static constexpr auto pack = ::ifit_sync_ntvifit_intf_auto_detect_entry_delete__pack;
    static constexpr auto sendmsg = ::ifit_sync_ntvifit_intf_auto_detect_entry_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_ntvifit_intf_auto_detect_entry_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_ntvifit_intf_auto_detect_entry_delete_free__unpacked;
};

template <>
struct message_traits<::ifit_sync_dam_smooth_request> {
    static constexpr std::uint32_t id = IFIT_SYNC_DAM_SMOOTH_REQUEST_ID;
    static constexpr std::string_view name = "ifit_sync_dam_smooth_request";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 14;
    static constexpr std::uint32_t compact_most = 18;
    static constexpr auto unpack = ::ifit_sync_dam_smooth_request__unpack;
    static constexpr auto pack = ::ifit_sync_dam_smooth_request__pack;
    static constexpr auto sendmsg = ::ifit_sync_dam_smooth_request__sendmsg;
    static constexpr auto sendtomsg = ::ifit_sync_dam_smooth_request__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_sync_dam_smooth_request_free__unpacked;
};

}   // namespace ifit_codec

#endif
