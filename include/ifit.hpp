// ifit.hpp: the ifit messages for C++20; ifit_codec.hpp explains. Printed from the catalogue by `./run headers`;
// do not edit.
#ifndef KESTO_IFIT_HPP
#define KESTO_IFIT_HPP

#include "ifit.h"
#include "ifit_codec.hpp"

namespace ifit_codec {

template <>
struct message_traits<::ifit_smooth_mesh> {
    static constexpr std::uint32_t id = IFIT_SMOOTH_MESH_ID;
    static constexpr std::string_view name = "ifit_smooth_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 24;
    static constexpr auto unpack = ::ifit_smooth_mesh__unpack;
    static constexpr auto pack = ::ifit_smooth_mesh__pack;
    static constexpr auto sendmsg = ::ifit_smooth_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_smooth_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_smooth_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_global_mesh> {
    static constexpr std::uint32_t id = IFIT_GLOBAL_MESH_ID;
    static constexpr std::string_view name = "ifit_global_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 80;
    static constexpr std::uint32_t compact_least = 44;
    static constexpr std::uint32_t compact_most = 80;
    static constexpr auto unpack = ::ifit_global_mesh__unpack;
    static constexpr auto pack = ::ifit_global_mesh__pack;
    static constexpr auto sendmsg = ::ifit_global_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_global_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_global_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_global_mesh_key> {
    static constexpr std::uint32_t id = IFIT_GLOBAL_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_global_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 14;
    static constexpr std::uint32_t compact_most = 18;
    static constexpr auto unpack = ::ifit_global_mesh_key__unpack;
    static constexpr auto pack = ::ifit_global_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_global_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_global_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_global_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_global_mesh_update> {
    static constexpr std::uint32_t id = IFIT_GLOBAL_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_global_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_global_mesh_update__unpack;
    static constexpr auto pack = ::ifit_global_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_global_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_global_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_global_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_global_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_global_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_GLOBAL_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_global_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_global_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_global_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_global_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_global_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_global_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_global_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_mcp_mesh> {
    static constexpr std::uint32_t id = IFIT_MCP_MESH_ID;
    static constexpr std::string_view name = "ifit_mcp_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 24;
    static constexpr std::uint32_t compact_most = 40;
    static constexpr auto unpack = ::ifit_mcp_mesh__unpack;
    static constexpr auto pack = ::ifit_mcp_mesh__pack;
    static constexpr auto sendmsg = ::ifit_mcp_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_mcp_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_mcp_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_mcp_mesh_key> {
    static constexpr std::uint32_t id = IFIT_MCP_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_mcp_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 14;
    static constexpr std::uint32_t compact_most = 18;
    static constexpr auto unpack = ::ifit_mcp_mesh_key__unpack;
    static constexpr auto pack = ::ifit_mcp_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_mcp_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_mcp_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_mcp_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_mcp_mesh_update> {
    static constexpr std::uint32_t id = IFIT_MCP_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_mcp_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_mcp_mesh_update__unpack;
    static constexpr auto pack = ::ifit_mcp_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_mcp_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_mcp_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_mcp_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_mcp_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_mcp_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_MCP_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_mcp_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_mcp_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_mcp_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_mcp_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_mcp_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_mcp_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_mcp_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_flow_base_mesh> {
    static constexpr std::uint32_t id = IFIT_FLOW_BASE_MESH_ID;
    static constexpr std::string_view name = "ifit_flow_base_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 88;
    static constexpr std::uint32_t compact_least = 36;
    static constexpr std::uint32_t compact_most = 84;
    static constexpr auto unpack = ::ifit_flow_base_mesh__unpack;
    static constexpr auto pack = ::ifit_flow_base_mesh__pack;
    static constexpr auto sendmsg = ::ifit_flow_base_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_base_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_base_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_base_mesh_key> {
    static constexpr std::uint32_t id = IFIT_FLOW_BASE_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_flow_base_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 34;
    static constexpr auto unpack = ::ifit_flow_base_mesh_key__unpack;
    static constexpr auto pack = ::ifit_flow_base_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_flow_base_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_base_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_base_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_base_mesh_update> {
    static constexpr std::uint32_t id = IFIT_FLOW_BASE_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_flow_base_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_base_mesh_update__unpack;
    static constexpr auto pack = ::ifit_flow_base_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_flow_base_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_base_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_base_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_base_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_flow_base_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_FLOW_BASE_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_flow_base_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_base_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_flow_base_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_flow_base_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_base_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_base_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_base_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_flow_srv6policy_mesh> {
    static constexpr std::uint32_t id = IFIT_FLOW_SRV6POLICY_MESH_ID;
    static constexpr std::string_view name = "ifit_flow_srv6policy_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 160;
    static constexpr std::uint32_t compact_least = 114;
    static constexpr std::uint32_t compact_most = 158;
    static constexpr auto unpack = ::ifit_flow_srv6policy_mesh__unpack;
    static constexpr auto pack = ::ifit_flow_srv6policy_mesh__pack;
    static constexpr auto sendmsg = ::ifit_flow_srv6policy_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_srv6policy_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_srv6policy_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_srv6policy_mesh_key> {
    static constexpr std::uint32_t id = IFIT_FLOW_SRV6POLICY_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_flow_srv6policy_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 34;
    static constexpr auto unpack = ::ifit_flow_srv6policy_mesh_key__unpack;
    static constexpr auto pack = ::ifit_flow_srv6policy_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_flow_srv6policy_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_srv6policy_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_srv6policy_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_srv6policy_mesh_update> {
    static constexpr std::uint32_t id = IFIT_FLOW_SRV6POLICY_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_flow_srv6policy_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_srv6policy_mesh_update__unpack;
    static constexpr auto pack = ::ifit_flow_srv6policy_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_flow_srv6policy_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_srv6policy_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_srv6policy_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_srv6policy_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_flow_srv6policy_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_FLOW_SRV6POLICY_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_flow_srv6policy_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_srv6policy_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_flow_srv6policy_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_flow_srv6policy_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_srv6policy_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_srv6policy_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_srv6policy_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_dyn_flow_mesh> {
    static constexpr std::uint32_t id = IFIT_DYN_FLOW_MESH_ID;
    static constexpr std::string_view name = "ifit_dyn_flow_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 136;
    static constexpr std::uint32_t compact_least = 74;
    static constexpr std::uint32_t compact_most = 130;
    static constexpr auto unpack = ::ifit_dyn_flow_mesh__unpack;
    static constexpr auto pack = ::ifit_dyn_flow_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dyn_flow_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dyn_flow_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dyn_flow_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_dyn_flow_mesh_key> {
    static constexpr std::uint32_t id = IFIT_DYN_FLOW_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_dyn_flow_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 34;
    static constexpr auto unpack = ::ifit_dyn_flow_mesh_key__unpack;
    static constexpr auto pack = ::ifit_dyn_flow_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_dyn_flow_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dyn_flow_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dyn_flow_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_dyn_flow_mesh_update> {
    static constexpr std::uint32_t id = IFIT_DYN_FLOW_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_dyn_flow_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_dyn_flow_mesh_update__unpack;
    static constexpr auto pack = ::ifit_dyn_flow_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_dyn_flow_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dyn_flow_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dyn_flow_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_dyn_flow_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_dyn_flow_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_DYN_FLOW_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_dyn_flow_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_dyn_flow_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_dyn_flow_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_dyn_flow_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dyn_flow_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dyn_flow_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_dyn_flow_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_flow_loss_mesh> {
    static constexpr std::uint32_t id = IFIT_FLOW_LOSS_MESH_ID;
    static constexpr std::string_view name = "ifit_flow_loss_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 48;
    static constexpr std::uint32_t compact_least = 22;
    static constexpr std::uint32_t compact_most = 42;
    static constexpr auto unpack = ::ifit_flow_loss_mesh__unpack;
    static constexpr auto pack = ::ifit_flow_loss_mesh__pack;
    static constexpr auto sendmsg = ::ifit_flow_loss_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_loss_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_loss_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_loss_mesh_key> {
    static constexpr std::uint32_t id = IFIT_FLOW_LOSS_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_flow_loss_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 24;
    static constexpr auto unpack = ::ifit_flow_loss_mesh_key__unpack;
    static constexpr auto pack = ::ifit_flow_loss_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_flow_loss_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_loss_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_loss_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_loss_mesh_update> {
    static constexpr std::uint32_t id = IFIT_FLOW_LOSS_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_flow_loss_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_loss_mesh_update__unpack;
    static constexpr auto pack = ::ifit_flow_loss_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_flow_loss_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_loss_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_loss_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_loss_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_flow_loss_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_FLOW_LOSS_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_flow_loss_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_loss_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_flow_loss_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_flow_loss_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_loss_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_loss_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_loss_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_flow_delay_mesh> {
    static constexpr std::uint32_t id = IFIT_FLOW_DELAY_MESH_ID;
    static constexpr std::string_view name = "ifit_flow_delay_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 48;
    static constexpr std::uint32_t compact_least = 22;
    static constexpr std::uint32_t compact_most = 42;
    static constexpr auto unpack = ::ifit_flow_delay_mesh__unpack;
    static constexpr auto pack = ::ifit_flow_delay_mesh__pack;
    static constexpr auto sendmsg = ::ifit_flow_delay_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_delay_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_delay_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_delay_mesh_key> {
    static constexpr std::uint32_t id = IFIT_FLOW_DELAY_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_flow_delay_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 24;
    static constexpr auto unpack = ::ifit_flow_delay_mesh_key__unpack;
    static constexpr auto pack = ::ifit_flow_delay_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_flow_delay_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_delay_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_delay_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_delay_mesh_update> {
    static constexpr std::uint32_t id = IFIT_FLOW_DELAY_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_flow_delay_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_delay_mesh_update__unpack;
    static constexpr auto pack = ::ifit_flow_delay_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_flow_delay_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_delay_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_delay_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_delay_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_flow_delay_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_FLOW_DELAY_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_flow_delay_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_delay_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_flow_delay_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_flow_delay_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_delay_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_delay_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_delay_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_test_type_mesh> {
    static constexpr std::uint32_t id = IFIT_TEST_TYPE_MESH_ID;
    static constexpr std::string_view name = "ifit_test_type_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 48;
    static constexpr std::uint32_t compact_least = 26;
    static constexpr std::uint32_t compact_most = 46;
    static constexpr auto unpack = ::ifit_test_type_mesh__unpack;
    static constexpr auto pack = ::ifit_test_type_mesh__pack;
    static constexpr auto sendmsg = ::ifit_test_type_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_test_type_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_test_type_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_test_type_mesh_key> {
    static constexpr std::uint32_t id = IFIT_TEST_TYPE_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_test_type_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 24;
    static constexpr auto unpack = ::ifit_test_type_mesh_key__unpack;
    static constexpr auto pack = ::ifit_test_type_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_test_type_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_test_type_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_test_type_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_test_type_mesh_update> {
    static constexpr std::uint32_t id = IFIT_TEST_TYPE_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_test_type_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_test_type_mesh_update__unpack;
    static constexpr auto pack = ::ifit_test_type_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_test_type_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_test_type_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_test_type_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_test_type_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_test_type_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_TEST_TYPE_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_test_type_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_test_type_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_test_type_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_test_type_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_test_type_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_test_type_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_test_type_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_rule_mesh> {
    static constexpr std::uint32_t id = IFIT_RULE_MESH_ID;
    static constexpr std::string_view name = "ifit_rule_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 144;
    static constexpr std::uint32_t compact_least = 102;
    static constexpr std::uint32_t compact_most = 142;
    static constexpr auto unpack = ::ifit_rule_mesh__unpack;
    static constexpr auto pack = ::ifit_rule_mesh__pack;
    static constexpr auto sendmsg = ::ifit_rule_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_rule_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_rule_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_rule_mesh_key> {
    static constexpr std::uint32_t id = IFIT_RULE_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_rule_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 32;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 30;
    static constexpr auto unpack = ::ifit_rule_mesh_key__unpack;
    static constexpr auto pack = ::ifit_rule_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_rule_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_rule_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_rule_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_rule_mesh_update> {
    static constexpr std::uint32_t id = IFIT_RULE_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_rule_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_rule_mesh_update__unpack;
    static constexpr auto pack = ::ifit_rule_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_rule_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_rule_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_rule_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_rule_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_rule_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_RULE_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_rule_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_rule_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_rule_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_rule_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_rule_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_rule_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_rule_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_native_ip_learn_mesh> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_LEARN_MESH_ID;
    static constexpr std::string_view name = "ifit_native_ip_learn_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 28;
    static constexpr std::uint32_t compact_most = 40;
    static constexpr auto unpack = ::ifit_native_ip_learn_mesh__unpack;
    static constexpr auto pack = ::ifit_native_ip_learn_mesh__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_learn_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_learn_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_learn_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_native_ip_learn_mesh_key> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_LEARN_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_native_ip_learn_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 14;
    static constexpr std::uint32_t compact_most = 18;
    static constexpr auto unpack = ::ifit_native_ip_learn_mesh_key__unpack;
    static constexpr auto pack = ::ifit_native_ip_learn_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_learn_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_learn_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_learn_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_native_ip_learn_mesh_update> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_LEARN_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_native_ip_learn_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_native_ip_learn_mesh_update__unpack;
    static constexpr auto pack = ::ifit_native_ip_learn_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_learn_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_learn_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_learn_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_native_ip_learn_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_native_ip_learn_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_LEARN_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_native_ip_learn_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_native_ip_learn_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_native_ip_learn_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_learn_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_learn_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_learn_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_native_ip_learn_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_native_ip_intf_mesh> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_INTF_MESH_ID;
    static constexpr std::string_view name = "ifit_native_ip_intf_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 48;
    static constexpr std::uint32_t compact_least = 26;
    static constexpr std::uint32_t compact_most = 42;
    static constexpr auto unpack = ::ifit_native_ip_intf_mesh__unpack;
    static constexpr auto pack = ::ifit_native_ip_intf_mesh__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_intf_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_intf_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_intf_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_native_ip_intf_mesh_key> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_INTF_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_native_ip_intf_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 32;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 30;
    static constexpr auto unpack = ::ifit_native_ip_intf_mesh_key__unpack;
    static constexpr auto pack = ::ifit_native_ip_intf_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_intf_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_intf_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_intf_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_native_ip_intf_mesh_update> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_INTF_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_native_ip_intf_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_native_ip_intf_mesh_update__unpack;
    static constexpr auto pack = ::ifit_native_ip_intf_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_intf_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_intf_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_intf_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_native_ip_intf_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_native_ip_intf_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_INTF_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_native_ip_intf_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_native_ip_intf_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_native_ip_intf_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_intf_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_intf_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_intf_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_native_ip_intf_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_native_ip_intf_color_clear_mesh> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_INTF_COLOR_CLEAR_MESH_ID;
    static constexpr std::string_view name = "ifit_native_ip_intf_color_clear_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 22;
    static constexpr std::uint32_t compact_most = 34;
    static constexpr auto unpack = ::ifit_native_ip_intf_color_clear_mesh__unpack;
    static constexpr auto pack = ::ifit_native_ip_intf_color_clear_mesh__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_intf_color_clear_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_intf_color_clear_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_intf_color_clear_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_native_ip_intf_color_clear_mesh_key> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_INTF_COLOR_CLEAR_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_native_ip_intf_color_clear_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 24;
    static constexpr auto unpack = ::ifit_native_ip_intf_color_clear_mesh_key__unpack;
    static constexpr auto pack = ::ifit_native_ip_intf_color_clear_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_intf_color_clear_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_intf_color_clear_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_intf_color_clear_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_native_ip_intf_color_clear_mesh_update> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_INTF_COLOR_CLEAR_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_native_ip_intf_color_clear_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_native_ip_intf_color_clear_mesh_update__unpack;
    static constexpr auto pack = ::ifit_native_ip_intf_color_clear_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_intf_color_clear_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_intf_color_clear_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_intf_color_clear_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_native_ip_intf_color_clear_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_native_ip_intf_color_clear_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_INTF_COLOR_CLEAR_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_native_ip_intf_color_clear_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_native_ip_intf_color_clear_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_native_ip_intf_color_clear_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_intf_color_clear_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_intf_color_clear_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_intf_color_clear_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_native_ip_intf_color_clear_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_flow_tuplev4_mesh> {
    static constexpr std::uint32_t id = IFIT_FLOW_TUPLEV4_MESH_ID;
    static constexpr std::string_view name = "ifit_flow_tuplev4_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 104;
    static constexpr std::uint32_t compact_least = 46;
    static constexpr std::uint32_t compact_most = 98;
    static constexpr auto unpack = ::ifit_flow_tuplev4_mesh__unpack;
    static constexpr auto pack = ::ifit_flow_tuplev4_mesh__pack;
    static constexpr auto sendmsg = ::ifit_flow_tuplev4_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_tuplev4_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_tuplev4_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_tuplev4_mesh_key> {
    static constexpr std::uint32_t id = IFIT_FLOW_TUPLEV4_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_flow_tuplev4_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 34;
    static constexpr auto unpack = ::ifit_flow_tuplev4_mesh_key__unpack;
    static constexpr auto pack = ::ifit_flow_tuplev4_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_flow_tuplev4_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_tuplev4_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_tuplev4_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_tuplev4_mesh_update> {
    static constexpr std::uint32_t id = IFIT_FLOW_TUPLEV4_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_flow_tuplev4_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_tuplev4_mesh_update__unpack;
    static constexpr auto pack = ::ifit_flow_tuplev4_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_flow_tuplev4_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_tuplev4_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_tuplev4_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_tuplev4_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_flow_tuplev4_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_FLOW_TUPLEV4_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_flow_tuplev4_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_tuplev4_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_flow_tuplev4_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_flow_tuplev4_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_tuplev4_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_tuplev4_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_tuplev4_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_flow_tuplev6_mesh> {
    static constexpr std::uint32_t id = IFIT_FLOW_TUPLEV6_MESH_ID;
    static constexpr std::string_view name = "ifit_flow_tuplev6_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 128;
    static constexpr std::uint32_t compact_least = 90;
    static constexpr std::uint32_t compact_most = 126;
    static constexpr auto unpack = ::ifit_flow_tuplev6_mesh__unpack;
    static constexpr auto pack = ::ifit_flow_tuplev6_mesh__pack;
    static constexpr auto sendmsg = ::ifit_flow_tuplev6_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_tuplev6_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_tuplev6_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_tuplev6_mesh_key> {
    static constexpr std::uint32_t id = IFIT_FLOW_TUPLEV6_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_flow_tuplev6_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 34;
    static constexpr auto unpack = ::ifit_flow_tuplev6_mesh_key__unpack;
    static constexpr auto pack = ::ifit_flow_tuplev6_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_flow_tuplev6_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_tuplev6_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_tuplev6_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_tuplev6_mesh_update> {
    static constexpr std::uint32_t id = IFIT_FLOW_TUPLEV6_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_flow_tuplev6_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_tuplev6_mesh_update__unpack;
    static constexpr auto pack = ::ifit_flow_tuplev6_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_flow_tuplev6_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_tuplev6_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_tuplev6_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_tuplev6_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_flow_tuplev6_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_FLOW_TUPLEV6_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_flow_tuplev6_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_tuplev6_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_flow_tuplev6_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_flow_tuplev6_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_tuplev6_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_tuplev6_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_tuplev6_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_flow_vpn_mesh> {
    static constexpr std::uint32_t id = IFIT_FLOW_VPN_MESH_ID;
    static constexpr std::string_view name = "ifit_flow_vpn_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 72;
    static constexpr std::uint32_t compact_least = 32;
    static constexpr std::uint32_t compact_most = 68;
    static constexpr auto unpack = ::ifit_flow_vpn_mesh__unpack;
    static constexpr auto pack = ::ifit_flow_vpn_mesh__pack;
    static constexpr auto sendmsg = ::ifit_flow_vpn_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_vpn_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_vpn_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_vpn_mesh_key> {
    static constexpr std::uint32_t id = IFIT_FLOW_VPN_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_flow_vpn_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 34;
    static constexpr auto unpack = ::ifit_flow_vpn_mesh_key__unpack;
    static constexpr auto pack = ::ifit_flow_vpn_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_flow_vpn_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_vpn_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_vpn_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_vpn_mesh_update> {
    static constexpr std::uint32_t id = IFIT_FLOW_VPN_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_flow_vpn_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_vpn_mesh_update__unpack;
    static constexpr auto pack = ::ifit_flow_vpn_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_flow_vpn_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_vpn_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_vpn_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_vpn_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_flow_vpn_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_FLOW_VPN_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_flow_vpn_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_vpn_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_flow_vpn_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_flow_vpn_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_vpn_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_vpn_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_vpn_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_lrn_vpn_mesh> {
    static constexpr std::uint32_t id = IFIT_LRN_VPN_MESH_ID;
    static constexpr std::string_view name = "ifit_lrn_vpn_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 64;
    static constexpr std::uint32_t compact_least = 36;
    static constexpr std::uint32_t compact_most = 64;
    static constexpr auto unpack = ::ifit_lrn_vpn_mesh__unpack;
    static constexpr auto pack = ::ifit_lrn_vpn_mesh__pack;
    static constexpr auto sendmsg = ::ifit_lrn_vpn_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_lrn_vpn_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_lrn_vpn_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_lrn_vpn_mesh_key> {
    static constexpr std::uint32_t id = IFIT_LRN_VPN_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_lrn_vpn_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 24;
    static constexpr auto unpack = ::ifit_lrn_vpn_mesh_key__unpack;
    static constexpr auto pack = ::ifit_lrn_vpn_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_lrn_vpn_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_lrn_vpn_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_lrn_vpn_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_lrn_vpn_mesh_update> {
    static constexpr std::uint32_t id = IFIT_LRN_VPN_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_lrn_vpn_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_lrn_vpn_mesh_update__unpack;
    static constexpr auto pack = ::ifit_lrn_vpn_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_lrn_vpn_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_lrn_vpn_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_lrn_vpn_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_lrn_vpn_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_lrn_vpn_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_LRN_VPN_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_lrn_vpn_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_lrn_vpn_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_lrn_vpn_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_lrn_vpn_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_lrn_vpn_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_lrn_vpn_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_lrn_vpn_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_lrn_intf_mesh> {
    static constexpr std::uint32_t id = IFIT_LRN_INTF_MESH_ID;
    static constexpr std::string_view name = "ifit_lrn_intf_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 48;
    static constexpr std::uint32_t compact_least = 24;
    static constexpr std::uint32_t compact_most = 48;
    static constexpr auto unpack = ::ifit_lrn_intf_mesh__unpack;
    static constexpr auto pack = ::ifit_lrn_intf_mesh__pack;
    static constexpr auto sendmsg = ::ifit_lrn_intf_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_lrn_intf_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_lrn_intf_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_lrn_intf_mesh_key> {
    static constexpr std::uint32_t id = IFIT_LRN_INTF_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_lrn_intf_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 32;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 30;
    static constexpr auto unpack = ::ifit_lrn_intf_mesh_key__unpack;
    static constexpr auto pack = ::ifit_lrn_intf_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_lrn_intf_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_lrn_intf_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_lrn_intf_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_lrn_intf_mesh_update> {
    static constexpr std::uint32_t id = IFIT_LRN_INTF_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_lrn_intf_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_lrn_intf_mesh_update__unpack;
    static constexpr auto pack = ::ifit_lrn_intf_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_lrn_intf_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_lrn_intf_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_lrn_intf_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_lrn_intf_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_lrn_intf_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_LRN_INTF_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_lrn_intf_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_lrn_intf_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_lrn_intf_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_lrn_intf_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_lrn_intf_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_lrn_intf_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_lrn_intf_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_color_intf_mesh> {
    static constexpr std::uint32_t id = IFIT_COLOR_INTF_MESH_ID;
    static constexpr std::string_view name = "ifit_color_intf_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 22;
    static constexpr std::uint32_t compact_most = 34;
    static constexpr auto unpack = ::ifit_color_intf_mesh__unpack;
    static constexpr auto pack = ::ifit_color_intf_mesh__pack;
    static constexpr auto sendmsg = ::ifit_color_intf_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_color_intf_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_color_intf_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_color_intf_mesh_key> {
    static constexpr std::uint32_t id = IFIT_COLOR_INTF_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_color_intf_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 24;
    static constexpr auto unpack = ::ifit_color_intf_mesh_key__unpack;
    static constexpr auto pack = ::ifit_color_intf_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_color_intf_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_color_intf_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_color_intf_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_color_intf_mesh_update> {
    static constexpr std::uint32_t id = IFIT_COLOR_INTF_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_color_intf_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_color_intf_mesh_update__unpack;
    static constexpr auto pack = ::ifit_color_intf_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_color_intf_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_color_intf_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_color_intf_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_color_intf_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_color_intf_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_COLOR_INTF_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_color_intf_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_color_intf_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_color_intf_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_color_intf_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_color_intf_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_color_intf_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_color_intf_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_native_ip_intf_auto_detect_mesh> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_INTF_AUTO_DETECT_MESH_ID;
    static constexpr std::string_view name = "ifit_native_ip_intf_auto_detect_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 24;
    static constexpr std::uint32_t compact_most = 36;
    static constexpr auto unpack = ::ifit_native_ip_intf_auto_detect_mesh__unpack;
    static constexpr auto pack = ::ifit_native_ip_intf_auto_detect_mesh__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_intf_auto_detect_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_intf_auto_detect_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_intf_auto_detect_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_native_ip_intf_auto_detect_mesh_key> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_INTF_AUTO_DETECT_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_native_ip_intf_auto_detect_mesh_key";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 32;
    static constexpr std::uint32_t compact_least = 20;
    static constexpr std::uint32_t compact_most = 30;
    static constexpr auto unpack = ::ifit_native_ip_intf_auto_detect_mesh_key__unpack;
    static constexpr auto pack = ::ifit_native_ip_intf_auto_detect_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_intf_auto_detect_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_intf_auto_detect_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_intf_auto_detect_mesh_key_free__unpacked;
};

template <>
struct message_traits<::ifit_native_ip_intf_auto_detect_mesh_update> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_INTF_AUTO_DETECT_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_native_ip_intf_auto_detect_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_native_ip_intf_auto_detect_mesh_update__unpack;
    static constexpr auto pack = ::ifit_native_ip_intf_auto_detect_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_intf_auto_detect_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_intf_auto_detect_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_intf_auto_detect_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_native_ip_intf_auto_detect_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_native_ip_intf_auto_detect_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_NATIVE_IP_INTF_AUTO_DETECT_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_native_ip_intf_auto_detect_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_native_ip_intf_auto_detect_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_native_ip_intf_auto_detect_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_native_ip_intf_auto_detect_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_native_ip_intf_auto_detect_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_native_ip_intf_auto_detect_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_native_ip_intf_auto_detect_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_paf_mesh> {
    static constexpr std::uint32_t id = IFIT_PAF_MESH_ID;
    static constexpr std::string_view name = "ifit_paf_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 24;
    static constexpr auto unpack = ::ifit_paf_mesh__unpack;
    static constexpr auto pack = ::ifit_paf_mesh__pack;
    static constexpr auto sendmsg = ::ifit_paf_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_paf_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_paf_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_paf_mesh_update> {
    static constexpr std::uint32_t id = IFIT_PAF_MESH_UPDATE_ID;
    static constexpr std::string_view name = "ifit_paf_mesh_update";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_paf_mesh_update__unpack;
    static constexpr auto pack = ::ifit_paf_mesh_update__pack;
    static constexpr auto sendmsg = ::ifit_paf_mesh_update__sendmsg;
    static constexpr auto sendtomsg = ::ifit_paf_mesh_update__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_paf_mesh_update_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_paf_mesh_update& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_paf_mesh_delete> {
    static constexpr std::uint32_t id = IFIT_PAF_MESH_DELETE_ID;
    static constexpr std::string_view name = "ifit_paf_mesh_delete";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_paf_mesh_delete__unpack;
    static constexpr auto pack = ::ifit_paf_mesh_delete__pack;
    static constexpr auto sendmsg = ::ifit_paf_mesh_delete__sendmsg;
    static constexpr auto sendtomsg = ::ifit_paf_mesh_delete__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_paf_mesh_delete_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_paf_mesh_delete& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_request_pid_value_mesh> {
    static constexpr std::uint32_t id = IFIT_REQUEST_PID_VALUE_MESH_ID;
    static constexpr std::string_view name = "ifit_request_pid_value_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 14;
    static constexpr std::uint32_t compact_most = 18;
    static constexpr auto unpack = ::ifit_request_pid_value_mesh__unpack;
    static constexpr auto pack = ::ifit_request_pid_value_mesh__pack;
    static constexpr auto sendmsg = ::ifit_request_pid_value_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_request_pid_value_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_request_pid_value_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_request_app_pid_smooth_mesh> {
    static constexpr std::uint32_t id = IFIT_REQUEST_APP_PID_SMOOTH_MESH_ID;
    static constexpr std::string_view name = "ifit_request_app_pid_smooth_mesh";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_request_app_pid_smooth_mesh__unpack;
    static constexpr auto pack = ::ifit_request_app_pid_smooth_mesh__pack;
    static constexpr auto sendmsg = ::ifit_request_app_pid_smooth_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_request_app_pid_smooth_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_request_app_pid_smooth_mesh_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_request_app_pid_smooth_mesh& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_report_ifit_add_mesh> {
    static constexpr std::uint32_t id = IFIT_REPORT_IFIT_ADD_MESH_ID;
    static constexpr std::string_view name = "ifit_report_ifit_add_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 14;
    static constexpr std::uint32_t compact_most = 18;
    static constexpr auto unpack = ::ifit_report_ifit_add_mesh__unpack;
    static constexpr auto pack = ::ifit_report_ifit_add_mesh__pack;
    static constexpr auto sendmsg = ::ifit_report_ifit_add_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_report_ifit_add_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_report_ifit_add_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_report_app_ifit_add_mesh> {
    static constexpr std::uint32_t id = IFIT_REPORT_APP_IFIT_ADD_MESH_ID;
    static constexpr std::string_view name = "ifit_report_app_ifit_add_mesh";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_report_app_ifit_add_mesh__unpack;
    static constexpr auto pack = ::ifit_report_app_ifit_add_mesh__pack;
    static constexpr auto sendmsg = ::ifit_report_app_ifit_add_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_report_app_ifit_add_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_report_app_ifit_add_mesh_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_report_app_ifit_add_mesh& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_dyn_flow_mid_or_egress_mesh> {
    static constexpr std::uint32_t id = IFIT_DYN_FLOW_MID_OR_EGRESS_MESH_ID;
    static constexpr std::string_view name = "ifit_dyn_flow_mid_or_egress_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 112;
    static constexpr std::uint32_t compact_least = 70;
    static constexpr std::uint32_t compact_most = 106;
    static constexpr auto unpack = ::ifit_dyn_flow_mid_or_egress_mesh__unpack;
    static constexpr auto pack = ::ifit_dyn_flow_mid_or_egress_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dyn_flow_mid_or_egress_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dyn_flow_mid_or_egress_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dyn_flow_mid_or_egress_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_dyn_flow_mid_or_egress_oper_mesh> {
    static constexpr std::uint32_t id = IFIT_DYN_FLOW_MID_OR_EGRESS_OPER_MESH_ID;
    static constexpr std::string_view name = "ifit_dyn_flow_mid_or_egress_oper_mesh";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_dyn_flow_mid_or_egress_oper_mesh__unpack;
    static constexpr auto pack = ::ifit_dyn_flow_mid_or_egress_oper_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dyn_flow_mid_or_egress_oper_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dyn_flow_mid_or_egress_oper_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dyn_flow_mid_or_egress_oper_mesh_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_dyn_flow_mid_or_egress_oper_mesh& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_instance_statistics_to_mcp_mesh> {
    static constexpr std::uint32_t id = IFIT_INSTANCE_STATISTICS_TO_MCP_MESH_ID;
    static constexpr std::string_view name = "ifit_instance_statistics_to_mcp_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 104;
    static constexpr std::uint32_t compact_least = 42;
    static constexpr std::uint32_t compact_most = 102;
    static constexpr auto unpack = ::ifit_instance_statistics_to_mcp_mesh__unpack;
    static constexpr auto pack = ::ifit_instance_statistics_to_mcp_mesh__pack;
    static constexpr auto sendmsg = ::ifit_instance_statistics_to_mcp_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_instance_statistics_to_mcp_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_instance_statistics_to_mcp_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_statistics_to_mcp_mesh> {
    static constexpr std::uint32_t id = IFIT_STATISTICS_TO_MCP_MESH_ID;
    static constexpr std::string_view name = "ifit_statistics_to_mcp_mesh";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_statistics_to_mcp_mesh__unpack;
    static constexpr auto pack = ::ifit_statistics_to_mcp_mesh__pack;
    static constexpr auto sendmsg = ::ifit_statistics_to_mcp_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_statistics_to_mcp_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_statistics_to_mcp_mesh_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_statistics_to_mcp_mesh& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_ingress_ipv4_dyn_flow_mesh> {
    static constexpr std::uint32_t id = IFIT_INGRESS_IPV4_DYN_FLOW_MESH_ID;
    static constexpr std::string_view name = "ifit_ingress_ipv4_dyn_flow_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 160;
    static constexpr std::uint32_t compact_least = 74;
    static constexpr std::uint32_t compact_most = 158;
    static constexpr auto unpack = ::ifit_ingress_ipv4_dyn_flow_mesh__unpack;
    static constexpr auto pack = ::ifit_ingress_ipv4_dyn_flow_mesh__pack;
    static constexpr auto sendmsg = ::ifit_ingress_ipv4_dyn_flow_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_ingress_ipv4_dyn_flow_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_ingress_ipv4_dyn_flow_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_ingress_ipv4_dyn_flow_oper_mesh> {
    static constexpr std::uint32_t id = IFIT_INGRESS_IPV4_DYN_FLOW_OPER_MESH_ID;
    static constexpr std::string_view name = "ifit_ingress_ipv4_dyn_flow_oper_mesh";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_ingress_ipv4_dyn_flow_oper_mesh__unpack;
    static constexpr auto pack = ::ifit_ingress_ipv4_dyn_flow_oper_mesh__pack;
    static constexpr auto sendmsg = ::ifit_ingress_ipv4_dyn_flow_oper_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_ingress_ipv4_dyn_flow_oper_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_ingress_ipv4_dyn_flow_oper_mesh_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_ingress_ipv4_dyn_flow_oper_mesh& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_ingress_ipv6_dyn_flow_mesh> {
    static constexpr std::uint32_t id = IFIT_INGRESS_IPV6_DYN_FLOW_MESH_ID;
    static constexpr std::string_view name = "ifit_ingress_ipv6_dyn_flow_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 248;
    static constexpr std::uint32_t compact_least = 191;
    static constexpr std::uint32_t compact_most = 248;
    static constexpr auto unpack = ::ifit_ingress_ipv6_dyn_flow_mesh__unpack;
    static constexpr auto pack = ::ifit_ingress_ipv6_dyn_flow_mesh__pack;
    static constexpr auto sendmsg = ::ifit_ingress_ipv6_dyn_flow_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_ingress_ipv6_dyn_flow_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_ingress_ipv6_dyn_flow_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_ingress_ipv6_dyn_flow_oper_mesh> {
    static constexpr std::uint32_t id = IFIT_INGRESS_IPV6_DYN_FLOW_OPER_MESH_ID;
    static constexpr std::string_view name = "ifit_ingress_ipv6_dyn_flow_oper_mesh";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_ingress_ipv6_dyn_flow_oper_mesh__unpack;
    static constexpr auto pack = ::ifit_ingress_ipv6_dyn_flow_oper_mesh__pack;
    static constexpr auto sendmsg = ::ifit_ingress_ipv6_dyn_flow_oper_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_ingress_ipv6_dyn_flow_oper_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_ingress_ipv6_dyn_flow_oper_mesh_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_ingress_ipv6_dyn_flow_oper_mesh& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_notify_whitelist_dyninst_delete_mesh> {
    static constexpr std::uint32_t id = IFIT_NOTIFY_WHITELIST_DYNINST_DELETE_MESH_ID;
    static constexpr std::string_view name = "ifit_notify_whitelist_dyninst_delete_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 48;
    static constexpr std::uint32_t compact_least = 22;
    static constexpr std::uint32_t compact_most = 42;
    static constexpr auto unpack = ::ifit_notify_whitelist_dyninst_delete_mesh__unpack;
    static constexpr auto pack = ::ifit_notify_whitelist_dyninst_delete_mesh__pack;
    static constexpr auto sendmsg = ::ifit_notify_whitelist_dyninst_delete_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_notify_whitelist_dyninst_delete_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_notify_whitelist_dyninst_delete_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_whitelist_dyninst_delete_mesh> {
    static constexpr std::uint32_t id = IFIT_WHITELIST_DYNINST_DELETE_MESH_ID;
    static constexpr std::string_view name = "ifit_whitelist_dyninst_delete_mesh";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_whitelist_dyninst_delete_mesh__unpack;
    static constexpr auto pack = ::ifit_whitelist_dyninst_delete_mesh__pack;
    static constexpr auto sendmsg = ::ifit_whitelist_dyninst_delete_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_whitelist_dyninst_delete_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_whitelist_dyninst_delete_mesh_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_whitelist_dyninst_delete_mesh& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_pid_state_mesh> {
    static constexpr std::uint32_t id = IFIT_PID_STATE_MESH_ID;
    static constexpr std::string_view name = "ifit_pid_state_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 40;
    static constexpr std::uint32_t compact_least = 20;
    static constexpr std::uint32_t compact_most = 34;
    static constexpr auto unpack = ::ifit_pid_state_mesh__unpack;
    static constexpr auto pack = ::ifit_pid_state_mesh__pack;
    static constexpr auto sendmsg = ::ifit_pid_state_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_pid_state_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_pid_state_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_smooth_begin_mesh> {
    static constexpr std::uint32_t id = IFIT_SMOOTH_BEGIN_MESH_ID;
    static constexpr std::string_view name = "ifit_smooth_begin_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 48;
    static constexpr std::uint32_t compact_least = 32;
    static constexpr std::uint32_t compact_most = 44;
    static constexpr auto unpack = ::ifit_smooth_begin_mesh__unpack;
    static constexpr auto pack = ::ifit_smooth_begin_mesh__pack;
    static constexpr auto sendmsg = ::ifit_smooth_begin_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_smooth_begin_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_smooth_begin_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_smooth_end_mesh> {
    static constexpr std::uint32_t id = IFIT_SMOOTH_END_MESH_ID;
    static constexpr std::string_view name = "ifit_smooth_end_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 48;
    static constexpr std::uint32_t compact_least = 32;
    static constexpr std::uint32_t compact_most = 44;
    static constexpr auto unpack = ::ifit_smooth_end_mesh__unpack;
    static constexpr auto pack = ::ifit_smooth_end_mesh__pack;
    static constexpr auto sendmsg = ::ifit_smooth_end_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_smooth_end_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_smooth_end_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_dam_smooth_request> {
    static constexpr std::uint32_t id = IFIT_DAM_SMOOTH_REQUEST_ID;
    static constexpr std::string_view name = "ifit_dam_smooth_request";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 14;
    static constexpr std::uint32_t compact_most = 18;
    static constexpr auto unpack = ::ifit_dam_smooth_request__unpack;
    static constexpr auto pack = ::ifit_dam_smooth_request__pack;
    static constexpr auto sendmsg = ::ifit_dam_smooth_request__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dam_smooth_request__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dam_smooth_request_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_statistics_entry_to_mdtlm> {
    static constexpr std::uint32_t id = IFIT_FLOW_STATISTICS_ENTRY_TO_MDTLM_ID;
    static constexpr std::string_view name = "ifit_flow_statistics_entry_to_mdtlm";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 288;
    static constexpr std::uint32_t compact_least = 220;
    static constexpr std::uint32_t compact_most = 284;
    static constexpr auto unpack = ::ifit_flow_statistics_entry_to_mdtlm__unpack;
    static constexpr auto pack = ::ifit_flow_statistics_entry_to_mdtlm__pack;
    static constexpr auto sendmsg = ::ifit_flow_statistics_entry_to_mdtlm__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_statistics_entry_to_mdtlm__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_statistics_entry_to_mdtlm_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_statistics_list_to_mdtlm> {
    static constexpr std::uint32_t id = IFIT_FLOW_STATISTICS_LIST_TO_MDTLM_ID;
    static constexpr std::string_view name = "ifit_flow_statistics_list_to_mdtlm";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_statistics_list_to_mdtlm__unpack;
    static constexpr auto pack = ::ifit_flow_statistics_list_to_mdtlm__pack;
    static constexpr auto sendmsg = ::ifit_flow_statistics_list_to_mdtlm__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_statistics_list_to_mdtlm__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_statistics_list_to_mdtlm_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_statistics_list_to_mdtlm& record, Visit&& visit)
    {
        visit(record.f0);
    }
};

template <>
struct message_traits<::ifit_flow_hop_statistics_entry_to_mdtlm> {
    static constexpr std::uint32_t id = IFIT_FLOW_HOP_STATISTICS_ENTRY_TO_MDTLM_ID;
    static constexpr std::string_view name = "ifit_flow_hop_statistics_entry_to_mdtlm";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 192;
    static constexpr std::uint32_t compact_least = 124;
    static constexpr std::uint32_t compact_most = 192;
    static constexpr auto unpack = ::ifit_flow_hop_statistics_entry_to_mdtlm__unpack;
    static constexpr auto pack = ::ifit_flow_hop_statistics_entry_to_mdtlm__pack;
    static constexpr auto sendmsg = ::ifit_flow_hop_statistics_entry_to_mdtlm__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_hop_statistics_entry_to_mdtlm__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_hop_statistics_entry_to_mdtlm_free__unpacked;
};

template <>
struct message_traits<::ifit_flow_hop_statistics_list_to_mdtlm> {
    static constexpr std::uint32_t id = IFIT_FLOW_HOP_STATISTICS_LIST_TO_MDTLM_ID;
    static constexpr std::string_view name = "ifit_flow_hop_statistics_list_to_mdtlm";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_flow_hop_statistics_list_to_mdtlm__unpack;
    static constexpr auto pack = ::ifit_flow_hop_statistics_list_to_mdtlm__pack;
    static constexpr auto sendmsg = ::ifit_flow_hop_statistics_list_to_mdtlm__sendmsg;
    static constexpr auto sendtomsg = ::ifit_flow_hop_statistics_list_to_mdtlm__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_flow_hop_statistics_list_to_mdtlm_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_flow_hop_statistics_list_to_mdtlm& record, Visit&& visit)
    {
        visit(record.f0);
    }
};

}   // namespace ifit_codec

#endif
