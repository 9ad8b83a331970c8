// ifit_dfx.hpp: the ifit_dfx messages for C++20; ifit_codec.hpp explains. Printed from the catalogue by `./run headers`;
// do not edit.
#ifndef KESTO_IFIT_DFX_HPP
#define KESTO_IFIT_DFX_HPP

#include "ifit_dfx.h"
#include "ifit_codec.hpp"

namespace ifit_codec {

template <>
struct message_traits<::ifit_dfx_query_stat_cond_mesh> {
    static constexpr std::uint32_t id = IFIT_DFX_QUERY_STAT_COND_MESH_ID;
    static constexpr std::string_view name = "ifit_dfx_query_stat_cond_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 32;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 30;
    static constexpr auto unpack = ::ifit_dfx_query_stat_cond_mesh__unpack;
    static constexpr auto pack = ::ifit_dfx_query_stat_cond_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dfx_query_stat_cond_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_query_stat_cond_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_query_stat_cond_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_dfx_query_comm_param_mesh> {
    static constexpr std::uint32_t id = IFIT_DFX_QUERY_COMM_PARAM_MESH_ID;
    static constexpr std::string_view name = "ifit_dfx_query_comm_param_mesh";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_dfx_query_comm_param_mesh__unpack;
    static constexpr auto pack = ::ifit_dfx_query_comm_param_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dfx_query_comm_param_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_query_comm_param_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_query_comm_param_mesh_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_dfx_query_comm_param_mesh& record, Visit&& visit)
    {
        visit(record.f2);
    }
};

template <>
struct message_traits<::ifit_dfx_datetime_mesh> {
    static constexpr std::uint32_t id = IFIT_DFX_DATETIME_MESH_ID;
    static constexpr std::string_view name = "ifit_dfx_datetime_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 32;
    static constexpr std::uint32_t compact_least = 24;
    static constexpr std::uint32_t compact_most = 31;
    static constexpr auto unpack = ::ifit_dfx_datetime_mesh__unpack;
    static constexpr auto pack = ::ifit_dfx_datetime_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dfx_datetime_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_datetime_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_datetime_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_dfx_query_comm_rec_mesh> {
    static constexpr std::uint32_t id = IFIT_DFX_QUERY_COMM_REC_MESH_ID;
    static constexpr std::string_view name = "ifit_dfx_query_comm_rec_mesh";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 22;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_dfx_query_comm_rec_mesh__unpack;
    static constexpr auto pack = ::ifit_dfx_query_comm_rec_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dfx_query_comm_rec_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_query_comm_rec_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_query_comm_rec_mesh_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_dfx_query_comm_rec_mesh& record, Visit&& visit)
    {
        visit(record.f3);
    }
};

template <>
struct message_traits<::ifit_dfx_query_glbdata_cond_mesh> {
    static constexpr std::uint32_t id = IFIT_DFX_QUERY_GLBDATA_COND_MESH_ID;
    static constexpr std::string_view name = "ifit_dfx_query_glbdata_cond_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 32;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 30;
    static constexpr auto unpack = ::ifit_dfx_query_glbdata_cond_mesh__unpack;
    static constexpr auto pack = ::ifit_dfx_query_glbdata_cond_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dfx_query_glbdata_cond_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_query_glbdata_cond_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_query_glbdata_cond_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_dfx_query_glbdata_item_mesh> {
    static constexpr std::uint32_t id = IFIT_DFX_QUERY_GLBDATA_ITEM_MESH_ID;
    static constexpr std::string_view name = "ifit_dfx_query_glbdata_item_mesh";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 14;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_dfx_query_glbdata_item_mesh__unpack;
    static constexpr auto pack = ::ifit_dfx_query_glbdata_item_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dfx_query_glbdata_item_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_query_glbdata_item_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_query_glbdata_item_mesh_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_dfx_query_glbdata_item_mesh& record, Visit&& visit)
    {
        visit(record.f0);
    }
};

template <>
struct message_traits<::ifit_dfx_query_queryhash_cond_mesh> {
    static constexpr std::uint32_t id = IFIT_DFX_QUERY_QUERYHASH_COND_MESH_ID;
    static constexpr std::string_view name = "ifit_dfx_query_queryhash_cond_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 64;
    static constexpr std::uint32_t compact_least = 26;
    static constexpr std::uint32_t compact_most = 55;
    static constexpr auto unpack = ::ifit_dfx_query_queryhash_cond_mesh__unpack;
    static constexpr auto pack = ::ifit_dfx_query_queryhash_cond_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dfx_query_queryhash_cond_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_query_queryhash_cond_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_query_queryhash_cond_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_dfx_query_queryhash_item_mesh> {
    static constexpr std::uint32_t id = IFIT_DFX_QUERY_QUERYHASH_ITEM_MESH_ID;
    static constexpr std::string_view name = "ifit_dfx_query_queryhash_item_mesh";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 310;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_dfx_query_queryhash_item_mesh__unpack;
    static constexpr auto pack = ::ifit_dfx_query_queryhash_item_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dfx_query_queryhash_item_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_query_queryhash_item_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_query_queryhash_item_mesh_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_dfx_query_queryhash_item_mesh& record, Visit&& visit)
    {
        visit(record.f0);
    }
};

template <>
struct message_traits<::ifit_dfx_reset_statis_mesh> {
    static constexpr std::uint32_t id = IFIT_DFX_RESET_STATIS_MESH_ID;
    static constexpr std::string_view name = "ifit_dfx_reset_statis_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 32;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 30;
    static constexpr auto unpack = ::ifit_dfx_reset_statis_mesh__unpack;
    static constexpr auto pack = ::ifit_dfx_reset_statis_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dfx_reset_statis_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_reset_statis_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_reset_statis_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_dfx_query_stat_mesh_key> {
    static constexpr std::uint32_t id = IFIT_DFX_QUERY_STAT_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_dfx_query_stat_mesh_key";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 52;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_dfx_query_stat_mesh_key__unpack;
    static constexpr auto pack = ::ifit_dfx_query_stat_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_dfx_query_stat_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_query_stat_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_query_stat_mesh_key_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_dfx_query_stat_mesh_key& record, Visit&& visit)
    {
        visit(record.f0.f2);
    }
};

template <>
struct message_traits<::ifit_dfx_query_stat_item_mesh> {
    static constexpr std::uint32_t id = IFIT_DFX_QUERY_STAT_ITEM_MESH_ID;
    static constexpr std::string_view name = "ifit_dfx_query_stat_item_mesh";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 120;
    static constexpr std::uint32_t compact_least = 102;
    static constexpr std::uint32_t compact_most = 117;
    static constexpr auto unpack = ::ifit_dfx_query_stat_item_mesh__unpack;
    static constexpr auto pack = ::ifit_dfx_query_stat_item_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dfx_query_stat_item_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_query_stat_item_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_query_stat_item_mesh_free__unpacked;
};

template <>
struct message_traits<::ifit_dfx_query_stat_rec_mesh> {
    static constexpr std::uint32_t id = IFIT_DFX_QUERY_STAT_REC_MESH_ID;
    static constexpr std::string_view name = "ifit_dfx_query_stat_rec_mesh";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 38;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_dfx_query_stat_rec_mesh__unpack;
    static constexpr auto pack = ::ifit_dfx_query_stat_rec_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dfx_query_stat_rec_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_query_stat_rec_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_query_stat_rec_mesh_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_dfx_query_stat_rec_mesh& record, Visit&& visit)
    {
        visit(record.f0.f3);
        visit(record.f1);
    }
};

template <>
struct message_traits<::ifit_dfx_query_glbdata_mesh_key> {
    static constexpr std::uint32_t id = IFIT_DFX_QUERY_GLBDATA_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_dfx_query_glbdata_mesh_key";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 52;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_dfx_query_glbdata_mesh_key__unpack;
    static constexpr auto pack = ::ifit_dfx_query_glbdata_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_dfx_query_glbdata_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_query_glbdata_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_query_glbdata_mesh_key_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_dfx_query_glbdata_mesh_key& record, Visit&& visit)
    {
        visit(record.f0.f2);
    }
};

template <>
struct message_traits<::ifit_dfx_query_glbdata_rec_mesh> {
    static constexpr std::uint32_t id = IFIT_DFX_QUERY_GLBDATA_REC_MESH_ID;
    static constexpr std::string_view name = "ifit_dfx_query_glbdata_rec_mesh";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 52;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_dfx_query_glbdata_rec_mesh__unpack;
    static constexpr auto pack = ::ifit_dfx_query_glbdata_rec_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dfx_query_glbdata_rec_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_query_glbdata_rec_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_query_glbdata_rec_mesh_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_dfx_query_glbdata_rec_mesh& record, Visit&& visit)
    {
        visit(record.f0.f3);
        visit(record.f1.f0);
    }
};

template <>
struct message_traits<::ifit_dfx_query_queryhash_mesh_key> {
    static constexpr std::uint32_t id = IFIT_DFX_QUERY_QUERYHASH_MESH_KEY_ID;
    static constexpr std::string_view name = "ifit_dfx_query_queryhash_mesh_key";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 60;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_dfx_query_queryhash_mesh_key__unpack;
    static constexpr auto pack = ::ifit_dfx_query_queryhash_mesh_key__pack;
    static constexpr auto sendmsg = ::ifit_dfx_query_queryhash_mesh_key__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_query_queryhash_mesh_key__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_query_queryhash_mesh_key_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_dfx_query_queryhash_mesh_key& record, Visit&& visit)
    {
        visit(record.f0.f2);
    }
};

template <>
struct message_traits<::ifit_dfx_query_queryhash_rec_mesh> {
    static constexpr std::uint32_t id = IFIT_DFX_QUERY_QUERYHASH_REC_MESH_ID;
    static constexpr std::string_view name = "ifit_dfx_query_queryhash_rec_mesh";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 348;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::ifit_dfx_query_queryhash_rec_mesh__unpack;
    static constexpr auto pack = ::ifit_dfx_query_queryhash_rec_mesh__pack;
    static constexpr auto sendmsg = ::ifit_dfx_query_queryhash_rec_mesh__sendmsg;
    static constexpr auto sendtomsg = ::ifit_dfx_query_queryhash_rec_mesh__sendtomsg;
    static constexpr auto free_unpacked = ::ifit_dfx_query_queryhash_rec_mesh_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::ifit_dfx_query_queryhash_rec_mesh& record, Visit&& visit)
    {
        visit(record.f0.f3);
        visit(record.f1.f0);
    }
};

}   // namespace ifit_codec

#endif
