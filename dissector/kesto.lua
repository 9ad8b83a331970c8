-- Dissects KESTO messages in tshark and Wireshark: packets of link type USER0 (147), as described in mesh_standin.h, and
-- of link type USER1 (148), which begin with a call head, as described in platform/standin/capture.h.
--
--   tshark -X lua_script:dissector/kesto.lua -r FILE
--
-- It makes the same tests as the decoder in the same order and stops where the decoder stops. A vector whose array size
-- wraps at 4 GiB cannot occur, as a packet has at most 256 KiB.
--
-- Positions count from the start of the byte string, which follows the packet's head. Numbers are Lua numbers: sums of
-- u32 are exact in all versions of Lua and are reduced modulo 2^32 explicitly.

local head_length = 8
local call_head_length = 24
local max_items = 20000 -- in the tree of a packet; a text or a block counts as one more per 64 bytes
local two_to_32 = 4294967296

-- Messages: name, id, slots as field=slot. In catalogue order, so nested messages come before those that use them.
local catalogue = {
-- printed by ./run headers, from here
{ "ifit_dfx_query_stat_cond_mesh", 0x00631cc8, "f0=u32 f1=u32 f2=u32" },
{ "ifit_dfx_query_comm_param_mesh", 0x88219105, "f0=u32 f1=u32 f2=bytes" },
{ "ifit_dfx_datetime_mesh", 0x9b8e7b4f, "year=u16 month=u8 day=u8 hour=u8 minute=u8 second=u8" },
{ "ifit_dfx_query_comm_rec_mesh", 0xd9a44964, "f0=u32 f1=u32 f2=u32 f3=bytes f4=u32" },
{ "ifit_dfx_query_glbdata_cond_mesh", 0xf2b70aaf, "f0=u32 f1=u32 f2=u32" },
{ "ifit_dfx_query_glbdata_item_mesh", 0x91cd149e, "f0=string" },
{ "ifit_dfx_query_queryhash_cond_mesh", 0xb35da534, "f0=u32 f1=u32 f2=u32 f3=u64 f4=u32 f5=u8 f6=u32" },
{ "ifit_dfx_query_queryhash_item_mesh", 0xf30940b5, "f0=string f1=u8 f2=u8 f3=u8 f4=u8[8] f5=u32 f6=u8[32] f7=u64 f8=u64 f9=u32 f10=u64 f11=u64 f12=u32 f13=u32 f14=u64 f15=u32 f16=u8 f17=u8 f18=u16 f19=u8 f20=u8 f21=u8 f22=u8 f23=u16 f24=u8 f25=u8 f26=u32[4] f27=u32[4] f28=u8 f29=u8 f30=u8 f31=u8 f32=u16 f33=u16 f34=u8[32] f35=u8[64] f36=u8 f37=u8 f38=u16 f39=u32 f40=u32" },
{ "ifit_dfx_reset_statis_mesh", 0xbaa3bcd6, "f0=u32 f1=u32 f2=u32" },
{ "ifit_dfx_query_stat_mesh_key", 0x756e7591, "f0=table:ifit_dfx_query_comm_param_mesh f1=table:ifit_dfx_query_stat_cond_mesh" },
{ "ifit_dfx_query_stat_item_mesh", 0x380ee2a9, "f0=u8[50] f1=u32 f2=u32 f3=table:ifit_dfx_datetime_mesh" },
{ "ifit_dfx_query_stat_rec_mesh", 0x1e368072, "f0=table:ifit_dfx_query_comm_rec_mesh f1=vector:ifit_dfx_query_stat_item_mesh" },
{ "ifit_dfx_query_glbdata_mesh_key", 0xda64baf0, "f0=table:ifit_dfx_query_comm_param_mesh f1=table:ifit_dfx_query_glbdata_cond_mesh" },
{ "ifit_dfx_query_glbdata_rec_mesh", 0x47fab70b, "f0=table:ifit_dfx_query_comm_rec_mesh f1=table:ifit_dfx_query_glbdata_item_mesh" },
{ "ifit_dfx_query_queryhash_mesh_key", 0x18f76235, "f0=table:ifit_dfx_query_comm_param_mesh f1=table:ifit_dfx_query_queryhash_cond_mesh" },
{ "ifit_dfx_query_queryhash_rec_mesh", 0xc536dac6, "f0=table:ifit_dfx_query_comm_rec_mesh f1=table:ifit_dfx_query_queryhash_item_mesh" },
{ "ifit_smooth_mesh", 0x24c4689f, "f0=u32 f1=u32" },
{ "ifit_global_mesh", 0x4b6a5078, "f0=u32 f1=u8 f2=u8 f3=u16 f4=u32 f5=u32 f6=u32 f7=u32 f8=u32 f9=u8 f10=u8 f11=u8 f12=u8 f13=u8 f14=u8 f15=u16" },
{ "ifit_global_mesh_key", 0xc810538c, "f0=u32" },
{ "ifit_global_mesh_update", 0x12ea2214, "f0=u16 f1=vector:ifit_global_mesh" },
{ "ifit_global_mesh_delete", 0xfc5efdea, "f0=u16 f1=vector:ifit_global_mesh_key" },
{ "ifit_mcp_mesh", 0x2492d87f, "f0=u32 f1=u8 f2=u8 f3=u16 f4=u32 f5=u32" },
{ "ifit_mcp_mesh_key", 0x4e8e7dbf, "f0=u32" },
{ "ifit_mcp_mesh_update", 0x10ccf041, "f0=u16 f1=vector:ifit_mcp_mesh" },
{ "ifit_mcp_mesh_delete", 0x139f193b, "f0=u16 f1=vector:ifit_mcp_mesh_key" },
{ "ifit_flow_base_mesh", 0xddcefc7b, "f0=u32 f1=u32 f2=u64 f3=u64 f4=u32 f5=u32 f6=u8 f7=u8 f8=u16 f9=u32 f10=u32 f11=u32" },
{ "ifit_flow_base_mesh_key", 0x1df4625b, "f0=u32 f1=u32 f2=u64" },
{ "ifit_flow_base_mesh_update", 0x391b57cd, "f0=u16 f1=vector:ifit_flow_base_mesh" },
{ "ifit_flow_base_mesh_delete", 0xad9f5cc7, "f0=u16 f1=vector:ifit_flow_base_mesh_key" },
{ "ifit_flow_srv6policy_mesh", 0x1fd0a745, "f0=u32 f1=u32 f2=u32 f3=u64 f4=u8 f5=u8 f6=u16 f7=u32 f8=u32 f9=u32 f10=u32[4] f11=u32[4] f12=u32[4] f13=u32 f14=u32" },
{ "ifit_flow_srv6policy_mesh_key", 0xec771f95, "f0=u32 f1=u32 f2=u64" },
{ "ifit_flow_srv6policy_mesh_update", 0xfe78b7d7, "f0=u16 f1=vector:ifit_flow_srv6policy_mesh" },
{ "ifit_flow_srv6policy_mesh_delete", 0x6af1bc39, "f0=u16 f1=vector:ifit_flow_srv6policy_mesh_key" },
{ "ifit_dyn_flow_mesh", 0x5261cdc9, "f0=u32 f1=u32 f2=u64 f3=u32 f4=u32 f5=u8 f6=u8 f7=u16 f8=u32 f9=u32 f10=u32 f11=u32 f12=u32 f13=u8 f14=u8 f15=u8 f16=u8 f17=u32 f18=u32[4]" },
{ "ifit_dyn_flow_mesh_key", 0xef1e0e89, "f0=u32 f1=u32 f2=u64" },
{ "ifit_dyn_flow_mesh_update", 0x75aea77b, "f0=u16 f1=vector:ifit_dyn_flow_mesh" },
{ "ifit_dyn_flow_mesh_delete", 0x06a0235d, "f0=u16 f1=vector:ifit_dyn_flow_mesh_key" },
{ "ifit_flow_loss_mesh", 0x9a046df1, "f0=u32 f1=u32 f2=u32 f3=u32 f4=u32" },
{ "ifit_flow_loss_mesh_key", 0x6a86dc61, "f0=u32 f1=u32" },
{ "ifit_flow_loss_mesh_update", 0x4e8e2323, "f0=u16 f1=vector:ifit_flow_loss_mesh" },
{ "ifit_flow_loss_mesh_delete", 0x021f50d5, "f0=u16 f1=vector:ifit_flow_loss_mesh_key" },
{ "ifit_flow_delay_mesh", 0x5021f101, "f0=u32 f1=u32 f2=u32 f3=u32 f4=u32" },
{ "ifit_flow_delay_mesh_key", 0x46e78431, "f0=u32 f1=u32" },
{ "ifit_flow_delay_mesh_update", 0xd94827d3, "f0=u16 f1=vector:ifit_flow_delay_mesh" },
{ "ifit_flow_delay_mesh_delete", 0x4bd6c8c5, "f0=u16 f1=vector:ifit_flow_delay_mesh_key" },
{ "ifit_test_type_mesh", 0x8a5d89a8, "f0=u32 f1=u32 f2=u8 f3=u8 f4=u16 f5=u32 f6=u32" },
{ "ifit_test_type_mesh_key", 0x1add95fc, "f0=u32 f1=u32" },
{ "ifit_test_type_mesh_update", 0x7c6083e4, "f0=u16 f1=vector:ifit_test_type_mesh" },
{ "ifit_test_type_mesh_delete", 0x057dbbfa, "f0=u16 f1=vector:ifit_test_type_mesh_key" },
{ "ifit_rule_mesh", 0x5dd885e3, "f0=u32 f1=u32 f2=u32 f3=u32 f4=u8[16] f5=u8 f6=u8 f7=u16 f8=u32 f9=u8[16] f10=u8 f11=u8 f12=u16 f13=u16 f14=u8 f15=u8 f16=u8 f17=u8 f18=u16 f19=u16 f20=u16" },
{ "ifit_rule_mesh_key", 0x68a43113, "f0=u32 f1=u32 f2=u32" },
{ "ifit_rule_mesh_update", 0x950523d5, "f0=u16 f1=vector:ifit_rule_mesh" },
{ "ifit_rule_mesh_delete", 0x481942bf, "f0=u16 f1=vector:ifit_rule_mesh_key" },
{ "ifit_native_ip_learn_mesh", 0x0bd6eecf, "f0=u32 f1=u8 f2=u8 f3=u16 f4=u8 f5=u8 f6=u8 f7=u8" },
{ "ifit_native_ip_learn_mesh_key", 0x1a33c7cf, "f0=u32" },
{ "ifit_native_ip_learn_mesh_update", 0x991b10f1, "f0=u16 f1=vector:ifit_native_ip_learn_mesh" },
{ "ifit_native_ip_learn_mesh_delete", 0x9aaff62b, "f0=u16 f1=vector:ifit_native_ip_learn_mesh_key" },
{ "ifit_native_ip_intf_mesh", 0xcf1c1b24, "f0=u32 f1=u32 f2=u32 f3=u8 f4=u8 f5=u8 f6=u8" },
{ "ifit_native_ip_intf_mesh_key", 0xabc333e8, "f0=u32 f1=u32 f2=u32" },
{ "ifit_native_ip_intf_mesh_update", 0x6eb72320, "f0=u16 f1=vector:ifit_native_ip_intf_mesh" },
{ "ifit_native_ip_intf_mesh_delete", 0x689e6ef6, "f0=u16 f1=vector:ifit_native_ip_intf_mesh_key" },
{ "ifit_native_ip_intf_color_clear_mesh", 0x1dd09182, "f0=u32 f1=u32 f2=u8 f3=u8 f4=u16" },
{ "ifit_native_ip_intf_color_clear_mesh_key", 0xb8c4895e, "f0=u32 f1=u32" },
{ "ifit_native_ip_intf_color_clear_mesh_update", 0xdd886ab6, "f0=u16 f1=vector:ifit_native_ip_intf_color_clear_mesh" },
{ "ifit_native_ip_intf_color_clear_mesh_delete", 0x57339094, "f0=u16 f1=vector:ifit_native_ip_intf_color_clear_mesh_key" },
{ "ifit_flow_tuplev4_mesh", 0x95b006f4, "f0=u32 f1=u32 f2=u64 f3=u32 f4=u32 f5=u32 f6=u32 f7=u16 f8=u16 f9=u16 f10=u16 f11=u8 f12=u8 f13=u8 f14=u8 f15=u32 f16=u32" },
{ "ifit_flow_tuplev4_mesh_key", 0x8ff3a438, "f0=u32 f1=u32 f2=u64" },
{ "ifit_flow_tuplev4_mesh_update", 0x9c70f9d0, "f0=u16 f1=vector:ifit_flow_tuplev4_mesh" },
{ "ifit_flow_tuplev4_mesh_delete", 0x0c3dac66, "f0=u16 f1=vector:ifit_flow_tuplev4_mesh_key" },
{ "ifit_flow_tuplev6_mesh", 0x24e6ed0e, "f0=u32 f1=u32 f2=u64 f3=u32[4] f4=u32[4] f5=u8 f6=u8 f7=u16 f8=u16 f9=u16 f10=u16 f11=u8 f12=u8 f13=u32 f14=u32" },
{ "ifit_flow_tuplev6_mesh_key", 0x6808ac3a, "f0=u32 f1=u32 f2=u64" },
{ "ifit_flow_tuplev6_mesh_update", 0xe08218a2, "f0=u16 f1=vector:ifit_flow_tuplev6_mesh" },
{ "ifit_flow_tuplev6_mesh_delete", 0xe5c7b3a0, "f0=u16 f1=vector:ifit_flow_tuplev6_mesh_key" },
{ "ifit_flow_vpn_mesh", 0x4c55fb70, "f0=u32 f1=u32 f2=u64 f3=u32 f4=u32 f5=u8 f6=u8 f7=u16 f8=u32 f9=u32" },
{ "ifit_flow_vpn_mesh_key", 0x3d23bef4, "f0=u32 f1=u32 f2=u64" },
{ "ifit_flow_vpn_mesh_update", 0x04a2dcec, "f0=u16 f1=vector:ifit_flow_vpn_mesh" },
{ "ifit_flow_vpn_mesh_delete", 0xb66695d2, "f0=u16 f1=vector:ifit_flow_vpn_mesh_key" },
{ "ifit_lrn_vpn_mesh", 0x9cee1122, "f0=u32 f1=u32 f2=u16 f3=u8 f4=u8 f5=u8 f6=u8 f7=u8 f8=u8 f9=u32 f10=u32 f11=u32" },
{ "ifit_lrn_vpn_mesh_key", 0xd5eca1be, "f0=u32 f1=u32" },
{ "ifit_lrn_vpn_mesh_update", 0x576a4696, "f0=u16 f1=vector:ifit_lrn_vpn_mesh" },
{ "ifit_lrn_vpn_mesh_delete", 0xb7c8b774, "f0=u16 f1=vector:ifit_lrn_vpn_mesh_key" },
{ "ifit_lrn_intf_mesh", 0x80a1e7c9, "f0=u32 f1=u32 f2=u32 f3=u32 f4=u32 f5=u32" },
{ "ifit_lrn_intf_mesh_key", 0x3fc5c889, "f0=u32 f1=u32 f2=u32" },
{ "ifit_lrn_intf_mesh_update", 0x79e0257b, "f0=u16 f1=vector:ifit_lrn_intf_mesh" },
{ "ifit_lrn_intf_mesh_delete", 0x0ad1a15d, "f0=u16 f1=vector:ifit_lrn_intf_mesh_key" },
{ "ifit_color_intf_mesh", 0x45a63a16, "f0=u32 f1=u32 f2=u8 f3=u8 f4=u16" },
{ "ifit_color_intf_mesh_key", 0x987a7272, "f0=u32 f1=u32" },
{ "ifit_color_intf_mesh_update", 0x3c9a45ea, "f0=u16 f1=vector:ifit_color_intf_mesh" },
{ "ifit_color_intf_mesh_delete", 0x8d077918, "f0=u16 f1=vector:ifit_color_intf_mesh_key" },
{ "ifit_native_ip_intf_auto_detect_mesh", 0x5dfed448, "f0=u32 f1=u32 f2=u8 f3=u8 f4=u8 f5=u8" },
{ "ifit_native_ip_intf_auto_detect_mesh_key", 0x0f22cadc, "f0=u32 f1=u32 f2=u8 f3=u8" },
{ "ifit_native_ip_intf_auto_detect_mesh_update", 0x53733644, "f0=u16 f1=vector:ifit_native_ip_intf_auto_detect_mesh" },
{ "ifit_native_ip_intf_auto_detect_mesh_delete", 0xdc906e5a, "f0=u16 f1=vector:ifit_native_ip_intf_auto_detect_mesh_key" },
{ "ifit_paf_mesh", 0x7f443f8e, "f0=u32 f1=u32" },
{ "ifit_paf_mesh_update", 0x6827fc22, "f0=u16 f1=vector:ifit_paf_mesh" },
{ "ifit_paf_mesh_delete", 0x6d6d9720, "f0=u16 f1=vector:ifit_paf_mesh" },
{ "ifit_request_pid_value_mesh", 0x95fb0738, "f0=u32" },
{ "ifit_request_app_pid_smooth_mesh", 0x5970a763, "f0=u16 f1=vector:ifit_request_pid_value_mesh" },
{ "ifit_report_ifit_add_mesh", 0xccd15a08, "f0=u32" },
{ "ifit_report_app_ifit_add_mesh", 0x4eae1800, "f0=u16 f1=vector:ifit_report_ifit_add_mesh" },
{ "ifit_dyn_flow_mid_or_egress_mesh", 0xd180a0dc, "f0=u64 f1=u32 f2=u32 f3=u32 f4=u8 f5=u8 f6=u16 f7=u8 f8=u8 f9=u8 f10=u8 f11=u32 f12=u8 f13=u8 f14=u8 f15=u8 f16=u32[4]" },
{ "ifit_dyn_flow_mid_or_egress_oper_mesh", 0x780c3e0f, "f0=u16 f1=vector:ifit_dyn_flow_mid_or_egress_mesh" },
{ "ifit_instance_statistics_to_mcp_mesh", 0xbddbef0b, "f0=u32 f1=u64 f2=u32 f3=u8 f4=u8 f5=u8 f6=u8 f7=u16 f8=u16 f9=u64 f10=u64 f11=u64 f12=u32 f13=u32 f14=u32" },
{ "ifit_statistics_to_mcp_mesh", 0x5d351be9, "f0=u16 f1=vector:ifit_instance_statistics_to_mcp_mesh" },
{ "ifit_ingress_ipv4_dyn_flow_mesh", 0x2de2428b, "f0=u64 f1=u32 f2=u32 f3=u32 f4=u32 f5=u32 f6=u32 f7=u32 f8=u16 f9=u16 f10=u16 f11=u16 f12=u8 f13=u8 f14=u8 f15=u8 f16=u16 f17=u8 f18=u8 f19=u8 f20=u8 f21=u16 f22=u32 f23=u64 f24=u8 f25=u8 f26=u8 f27=u8 f28=u32 f29=u32 f30=u32" },
{ "ifit_ingress_ipv4_dyn_flow_oper_mesh", 0x723584ee, "f0=u16 f1=vector:ifit_ingress_ipv4_dyn_flow_mesh" },
{ "ifit_ingress_ipv6_dyn_flow_mesh", 0xfaa664f1, "f0=u64 f1=u32 f2=u32 f3=u32 f4=u32[4] f5=u32[4] f6=u32[4] f7=u32[4] f8=u16 f9=u16 f10=u16 f11=u16 f12=u8 f13=u8 f14=u8 f15=u8 f16=u16 f17=u8 f18=u8 f19=u8 f20=u8 f21=u16 f22=u32 f23=u64 f24=u8 f25=u8[3] f26=u32 f27=u32[2]" },
{ "ifit_ingress_ipv6_dyn_flow_oper_mesh", 0x97508dcc, "f0=u16 f1=vector:ifit_ingress_ipv6_dyn_flow_mesh" },
{ "ifit_notify_whitelist_dyninst_delete_mesh", 0x3b731dd2, "f0=u32 f1=u32 f2=u32 f3=u32 f4=u32" },
{ "ifit_whitelist_dyninst_delete_mesh", 0xa9d76452, "f0=u16 f1=vector:ifit_notify_whitelist_dyninst_delete_mesh" },
{ "ifit_pid_state_mesh", 0x1ec3f49e, "f0=u16 f1=u32 f2=u32 f3=u32" },
{ "ifit_smooth_begin_mesh", 0xf93c9101, "f0=u32 f1=table?:ifit_smooth_mesh" },
{ "ifit_smooth_end_mesh", 0xc0c0ede9, "f0=u32 f1=table?:ifit_smooth_mesh" },
{ "ifit_dam_smooth_request", 0xb0b41e34, "f0=u32" },
{ "ifit_flow_statistics_entry_to_mdtlm", 0x1484d163, "f0=u64 f1=u8 f2=u8 f3=u8 f4=u8 f5=u32[4] f6=u32[4] f7=u16 f8=u16 f9=u8[32] f10=u32 f11=u8[64] f12=u32 f13=u8 f14=u8 f15=u8 f16=u8 f17=u16 f18=u16 f19=u64 f20=u64 f21=u64 f22=u32 f23=u32" },
{ "ifit_flow_statistics_list_to_mdtlm", 0xed1ca3d7, "f0=vector:ifit_flow_statistics_entry_to_mdtlm f1=u32" },
{ "ifit_flow_hop_statistics_entry_to_mdtlm", 0xf930c393, "f0=u64 f1=u32 f2=u8[64] f3=u8 f4=u8 f5=u8 f6=u8 f7=u32 f8=u16 f9=u16 f10=u64 f11=u64 f12=u64 f13=u32 f14=u32 f15=u8 f16=u8 f17=u16 f18=u32 f19=u32" },
{ "ifit_flow_hop_statistics_list_to_mdtlm", 0x515d9fc7, "f0=vector:ifit_flow_hop_statistics_entry_to_mdtlm f1=u32" },
{ "ifit_sync_ifit_rule", 0xa7dc2298, "f0=u32 f1=u32 f2=u32 f3=u32 f4=u8[16] f5=u8 f6=u8 f7=u16 f8=u32 f9=u8[16] f10=u8 f11=u8 f12=u16 f13=u16 f14=u8 f15=u8 f16=u8 f17=u8 f18=u16 f19=u16 f20=u16 f21=u32 f22=u32 f23=u8 f24=u8 f25=u16 f26=u32 f27=u32" },
{ "ifit_sync_ifit_native_ip_learn", 0x29e7b26a, "f0=u32 f1=u8 f2=u8 f3=u16 f4=u8 f5=u8 f6=u8 f7=u8 f8=u32 f9=u32 f10=u8 f11=u8 f12=u16 f13=u32 f14=u32" },
{ "ifit_sync_ifit_native_ip_intf", 0x50ff9461, "f0=u32 f1=u32 f2=u32 f3=u8 f4=u8 f5=u8 f6=u8 f7=u32 f8=u32 f9=u8 f10=u8 f11=u16 f12=u32 f13=u32" },
{ "ifit_sync_ifit_native_ip_intf_color_clear", 0xa94cb207, "f0=u32 f1=u32 f2=u8 f3=u8 f4=u16 f5=u32 f6=u32 f7=u8 f8=u8 f9=u8 f10=u32 f11=u32" },
{ "ifit_sync_ifit_native_ip_intf_auto_detect", 0x820e68f9, "f0=u32 f1=u32 f2=u8 f3=u8 f4=u8 f5=u8 f6=u32 f7=u32 f8=u8 f9=u8 f10=u16 f11=u32 f12=u32" },
{ "ifit_sync_ntvifit_glb_entry", 0x769afe0c, "f0=u32 f1=u8 f2=u8 f3=u16 f4=u8 f5=u8 f6=u8 f7=u8 f8=u32 f9=u32 f10=u32 f11=u32 f12=u8 f13=u8 f14=u16 f15=u32 f16=u32" },
{ "ifit_sync_ifit_global_entry", 0x0c0861da, "f0=u32 f1=u8 f2=u8 f3=u16 f4=u32 f5=u32 f6=u32 f7=u32 f8=u32 f9=u8 f10=u8 f11=u8 f12=u8 f13=u32 f14=u32 f15=u32 f16=u32 f17=u32 f18=u32 f19=u32 f20=u8 f21=u8 f22=u8 f23=u8 f24=u8 f25=u8 f26=u16 f27=u32" },
{ "ifit_sync_ntvifit_intf_entry", 0x90750f62, "f0=u32 f1=u32 f2=u32 f3=u8 f4=u8 f5=u8 f6=u8 f7=u8 f8=u8 f9=u8 f10=u8 f11=u32 f12=u32 f13=u32 f14=u8 f15=u8 f16=u8 f17=u16 f18=u16 f19=u16 f20=u16 f21=u8 f22=u8 f23=u8 f24=u8 f25=u32 f26=u8 f27=u8 f28=u16 f29=u32 f30=u32" },
{ "ifit_sync_ntvifit_intf_color_clear_entry", 0x275d9b9c, "f0=u32 f1=u32 f2=u8 f3=u8 f4=u16 f5=u32 f6=u32" },
{ "ifit_sync_ntvifit_intf_auto_detect_entry", 0x6d5839aa, "f0=u32 f1=u32 f2=u8 f3=u8 f4=u8 f5=u8 f6=u8 f7=u8 f8=u16 f9=u32 f10=u32 f11=u32 f12=u32 f13=u8 f14=u8 f15=u16 f16=u32 f17=u32" },
{ "ifit_sync_global_mesh", 0xb06f011c, "f0=u32 f1=u8 f2=u8 f3=u16 f4=u32 f5=u32 f6=u32 f7=u32 f8=u32 f9=u8 f10=u8 f11=u8 f12=u8 f13=u8 f14=u8 f15=u8 f16=u8 f17=u32 f18=u32" },
{ "ifit_sync_global_mesh_update", 0x488ece98, "f0=u16 f1=vector:ifit_sync_global_mesh" },
{ "ifit_sync_global_mesh_delete", 0xd0660e3e, "f0=u16 f1=vector:ifit_sync_global_mesh" },
{ "ifit_sync_mcp_mesh", 0x9dd1a383, "f0=u32 f1=u8 f2=u8 f3=u16 f4=u32 f5=u32 f6=u8 f7=u8 f8=u16 f9=u32 f10=u32" },
{ "ifit_sync_mcp_mesh_update", 0x09eda835, "f0=u16 f1=vector:ifit_sync_mcp_mesh" },
{ "ifit_sync_mcp_mesh_delete", 0x66c5861f, "f0=u16 f1=vector:ifit_sync_mcp_mesh" },
{ "ifit_sync_flow_base_mesh", 0x726ebbf7, "f0=u32 f1=u32 f2=u64 f3=u64 f4=u32 f5=u32 f6=u8 f7=u8 f8=u16 f9=u32 f10=u32 f11=u32 f12=u8 f13=u8 f14=u16 f15=u32 f16=u32" },
{ "ifit_sync_flow_base_mesh_update", 0x9f3ed399, "f0=u16 f1=vector:ifit_sync_flow_base_mesh" },
{ "ifit_sync_flow_base_mesh_delete", 0x8a6b9763, "f0=u16 f1=vector:ifit_sync_flow_base_mesh" },
{ "ifit_sync_flow_srv6policy_mesh", 0x3d6772c9, "f0=u32 f1=u32 f2=u32 f3=u64 f4=u8 f5=u8 f6=u16 f7=u32 f8=u32 f9=u32 f10=u32[4] f11=u32[4] f12=u32[4] f13=u32 f14=u32 f15=u8 f16=u8 f17=u16 f18=u32 f19=u32" },
{ "ifit_sync_flow_srv6policy_mesh_update", 0xb4836e7b, "f0=u16 f1=vector:ifit_sync_flow_srv6policy_mesh" },
{ "ifit_sync_flow_srv6policy_mesh_delete", 0x4574ea5d, "f0=u16 f1=vector:ifit_sync_flow_srv6policy_mesh" },
{ "ifit_sync_dyn_flow_mesh", 0xe92083d5, "f0=u32 f1=u32 f2=u64 f3=u32 f4=u32 f5=u8 f6=u8 f7=u16 f8=u32 f9=u32 f10=u32 f11=u32 f12=u32 f13=u8 f14=u8 f15=u8 f16=u8 f17=u32 f18=u32[4] f19=u8 f20=u8 f21=u16 f22=u32 f23=u32" },
{ "ifit_sync_dyn_flow_mesh_update", 0x784cab47, "f0=u16 f1=vector:ifit_sync_dyn_flow_mesh" },
{ "ifit_sync_dyn_flow_mesh_delete", 0xf2b08a69, "f0=u16 f1=vector:ifit_sync_dyn_flow_mesh" },
{ "ifit_sync_flow_loss_mesh", 0x74770165, "f0=u32 f1=u32 f2=u32 f3=u32 f4=u32 f5=u8 f6=u8 f7=u16 f8=u32 f9=u32" },
{ "ifit_sync_flow_loss_mesh_update", 0xe9470c37, "f0=u16 f1=vector:ifit_sync_flow_loss_mesh" },
{ "ifit_sync_flow_loss_mesh_delete", 0xe3bb1e99, "f0=u16 f1=vector:ifit_sync_flow_loss_mesh" },
{ "ifit_sync_flow_delay_mesh", 0xe0f0b865, "f0=u32 f1=u32 f2=u32 f3=u32 f4=u32 f5=u8 f6=u8 f7=u16 f8=u32 f9=u32" },
{ "ifit_sync_flow_delay_mesh_update", 0xc5617937, "f0=u16 f1=vector:ifit_sync_flow_delay_mesh" },
{ "ifit_sync_flow_delay_mesh_delete", 0xbfd58b99, "f0=u16 f1=vector:ifit_sync_flow_delay_mesh" },
{ "ifit_sync_test_type_mesh", 0x7bb84f34, "f0=u32 f1=u32 f2=u8 f3=u8 f4=u16 f5=u32 f6=u32 f7=u8 f8=u8 f9=u16 f10=u32 f11=u32" },
{ "ifit_sync_test_type_mesh_update", 0xa84bf810, "f0=u16 f1=vector:ifit_sync_test_type_mesh" },
{ "ifit_sync_test_type_mesh_delete", 0xbf606da6, "f0=u16 f1=vector:ifit_sync_test_type_mesh" },
{ "ifit_sync_flow_tuplev4_mesh", 0x94710c10, "f0=u32 f1=u32 f2=u64 f3=u32 f4=u32 f5=u32 f6=u32 f7=u16 f8=u16 f9=u16 f10=u16 f11=u8 f12=u8 f13=u8 f14=u8 f15=u32 f16=u32 f17=u8 f18=u8 f19=u16 f20=u32 f21=u32" },
{ "ifit_sync_flow_tuplev4_mesh_update", 0x3e56564c, "f0=u16 f1=vector:ifit_sync_flow_tuplev4_mesh" },
{ "ifit_sync_flow_tuplev4_mesh_delete", 0x6b245432, "f0=u16 f1=vector:ifit_sync_flow_tuplev4_mesh" },
{ "ifit_sync_flow_tuplev6_mesh", 0x92114a9a, "f0=u32 f1=u32 f2=u64 f3=u32[4] f4=u32[4] f5=u8 f6=u8 f7=u16 f8=u16 f9=u16 f10=u16 f11=u8 f12=u8 f13=u32 f14=u32 f15=u8 f16=u8 f17=u16 f18=u32 f19=u32" },
{ "ifit_sync_flow_tuplev6_mesh_update", 0xca85b34e, "f0=u16 f1=vector:ifit_sync_flow_tuplev6_mesh" },
{ "ifit_sync_flow_tuplev6_mesh_delete", 0xee98687c, "f0=u16 f1=vector:ifit_sync_flow_tuplev6_mesh" },
{ "ifit_sync_flow_vpn_mesh", 0x361c8a8c, "f0=u32 f1=u32 f2=u64 f3=u32 f4=u32 f5=u8 f6=u8 f7=u16 f8=u32 f9=u32 f10=u8 f11=u8 f12=u16 f13=u32 f14=u32" },
{ "ifit_sync_flow_vpn_mesh_update", 0x43ca68a8, "f0=u16 f1=vector:ifit_sync_flow_vpn_mesh" },
{ "ifit_sync_flow_vpn_mesh_delete", 0x30b647ce, "f0=u16 f1=vector:ifit_sync_flow_vpn_mesh" },
{ "ifit_sync_lrn_vpn_mesh", 0x7120bcb6, "f0=u32 f1=u32 f2=u16 f3=u8 f4=u8 f5=u8 f6=u8 f7=u8 f8=u8 f9=u32 f10=u32 f11=u32 f12=u8 f13=u8 f14=u16 f15=u32 f16=u32" },
{ "ifit_sync_lrn_vpn_mesh_update", 0x05faf4ca, "f0=u16 f1=vector:ifit_sync_lrn_vpn_mesh" },
{ "ifit_sync_lrn_vpn_mesh_delete", 0xaf2064f8, "f0=u16 f1=vector:ifit_sync_lrn_vpn_mesh" },
{ "ifit_sync_lrn_intf_mesh", 0xea1c065d, "f0=u32 f1=u32 f2=u32 f3=u32 f4=u32 f5=u32 f6=u8 f7=u8 f8=u16 f9=u32 f10=u32" },
{ "ifit_sync_lrn_intf_mesh_update", 0xc4d56a4f, "f0=u16 f1=vector:ifit_sync_lrn_intf_mesh" },
{ "ifit_sync_lrn_intf_mesh_delete", 0x1c3e16e1, "f0=u16 f1=vector:ifit_sync_lrn_intf_mesh" },
{ "ifit_sync_color_intf_mesh", 0x293a80c2, "f0=u32 f1=u32 f2=u8 f3=u8 f4=u16 f5=u8 f6=u8 f7=u16 f8=u32 f9=u32" },
{ "ifit_sync_color_intf_mesh_update", 0x08963ff6, "f0=u16 f1=vector:ifit_sync_color_intf_mesh" },
{ "ifit_sync_color_intf_mesh_delete", 0xd87f39d4, "f0=u16 f1=vector:ifit_sync_color_intf_mesh" },
{ "ifit_sync_ifit_rule_update", 0x5200a9f4, "f0=u16 f1=table:ifit_sync_ifit_rule" },
{ "ifit_sync_ifit_rule_delete", 0x91b359ca, "f0=u16 f1=table:ifit_sync_ifit_rule" },
{ "ifit_sync_ifit_native_ip_learn_update", 0xafb9fafe, "f0=u16 f1=table:ifit_sync_ifit_native_ip_learn" },
{ "ifit_sync_ifit_native_ip_learn_delete", 0x2c1e89ac, "f0=u16 f1=table:ifit_sync_ifit_native_ip_learn" },
{ "ifit_sync_ifit_native_ip_intf_update", 0xfecbcd73, "f0=u16 f1=table:ifit_sync_ifit_native_ip_intf" },
{ "ifit_sync_ifit_native_ip_intf_delete", 0x73d4d765, "f0=u16 f1=table:ifit_sync_ifit_native_ip_intf" },
{ "ifit_sync_ifit_native_ip_intf_color_clear_update", 0x6e42ac09, "f0=u16 f1=table:ifit_sync_ifit_native_ip_intf_color_clear" },
{ "ifit_sync_ifit_native_ip_intf_color_clear_delete", 0x1aaabbd3, "f0=u16 f1=table:ifit_sync_ifit_native_ip_intf_color_clear" },
{ "ifit_sync_ifit_native_ip_intf_auto_detect_update", 0x01d20c4b, "f0=u16 f1=table:ifit_sync_ifit_native_ip_intf_auto_detect" },
{ "ifit_sync_ifit_native_ip_intf_auto_detect_delete", 0xf9fb7cad, "f0=u16 f1=table:ifit_sync_ifit_native_ip_intf_auto_detect" },
{ "ifit_sync_ifit_flowinfo_entry", 0xac969c61, "f0=u32 f1=u64 f2=u32 f3=u8 f4=u8 f5=u8 f6=u8 f7=u32 f8=u32 f9=u8 f10=u8 f11=u16 f12=u8 f13=u8 f14=u8 f15=u8 f16=u32 f17=u32 f18=u32 f19=u32 f20=u32[4] f21=u32[4] f22=u32[4] f23=u32 f24=u32[4] f25=u8 f26=u8 f27=u16 f28=u8 f29=u8 f30=u16 f31=u32 f32=u32" },
{ "ifit_sync_ifit_flowinfo_entry_key", 0xeb9b7651, "f0=u32 f1=u64 f2=u32 f3=u8" },
{ "ifit_sync_ifit_flowinfo_entry_update", 0xbac0a573, "f0=u16 f1=vector:ifit_sync_ifit_flowinfo_entry" },
{ "ifit_sync_ifit_flowinfo_entry_delete", 0x2fc9af65, "f0=u16 f1=vector:ifit_sync_ifit_flowinfo_entry" },
{ "ifit_sync_ifit_session_entry", 0x56158c01, "f0=u32 f1=u64 f2=u32 f3=u8 f4=u8 f5=u8 f6=u8 f7=u64 f8=u64 f9=u32 f10=u64 f11=u64 f12=u32 f13=u32 f14=u64 f15=u8 f16=u8 f17=u8 f18=u8 f19=u16 f20=u8 f21=u8 f22=u32 f23=u32 f24=u8 f25=u8 f26=u16 f27=u16 f28=u8 f29=u8 f30=u32[4] f31=u32[4] f32=u8 f33=u8 f34=u8 f35=u8 f36=u16 f37=u16 f38=u8[32] f39=u8[64] f40=u8 f41=u8 f42=u16 f43=u32 f44=u32" },
{ "ifit_sync_ifit_session_entry_key", 0x4339cf31, "f0=u32 f1=u64 f2=u32 f3=u8" },
{ "ifit_sync_ifit_session_entry_update", 0xb1d520d3, "f0=u16 f1=vector:ifit_sync_ifit_session_entry" },
{ "ifit_sync_ifit_session_entry_delete", 0x2463c1c5, "f0=u16 f1=vector:ifit_sync_ifit_session_entry" },
{ "ifit_sync_ifit_flowage_entry", 0xbe13f906, "f0=u32 f1=u64 f2=u32 f3=u8 f4=u8 f5=u16 f6=u32 f7=u16 f8=u8 f9=u8 f10=u8 f11=u8 f12=u16 f13=u32 f14=u32" },
{ "ifit_sync_ifit_flowage_entry_key", 0xbc5288a2, "f0=u32 f1=u64 f2=u32 f3=u8" },
{ "ifit_sync_ifit_flowage_entry_update", 0x1104547a, "f0=u16 f1=vector:ifit_sync_ifit_flowage_entry" },
{ "ifit_sync_ifit_flowage_entry_delete", 0x16febae8, "f0=u16 f1=vector:ifit_sync_ifit_flowage_entry" },
{ "ifit_sync_ntvifit_glb_entry_update", 0x4ac7a728, "f0=u16 f1=table:ifit_sync_ntvifit_glb_entry" },
{ "ifit_sync_ntvifit_glb_entry_delete", 0x37b3864e, "f0=u16 f1=table:ifit_sync_ntvifit_glb_entry" },
{ "ifit_sync_ifit_global_entry_update", 0x0661c78e, "f0=u16 f1=table:ifit_sync_ifit_global_entry" },
{ "ifit_sync_ifit_global_entry_delete", 0x54733fbc, "f0=u16 f1=table:ifit_sync_ifit_global_entry" },
{ "ifit_sync_mcp_global_entry", 0xc57ec0f6, "f0=u32 f1=u8 f2=u8 f3=u16 f4=u32 f5=u32 f6=u8 f7=u8 f8=u16 f9=u32 f10=u32" },
{ "ifit_sync_mcp_global_entry_update", 0xa84f560a, "f0=u16 f1=vector:ifit_sync_mcp_global_entry" },
{ "ifit_sync_mcp_global_entry_delete", 0x120ad138, "f0=u16 f1=vector:ifit_sync_mcp_global_entry" },
{ "ifit_sync_ntvifit_intf_entry_update", 0x940a4bd6, "f0=u16 f1=table:ifit_sync_ntvifit_intf_entry" },
{ "ifit_sync_ntvifit_intf_entry_delete", 0x0db704b4, "f0=u16 f1=table:ifit_sync_ntvifit_intf_entry" },
{ "ifit_sync_db_smooth_ver", 0xcba290f2, "f0=u32 f1=u32" },
{ "ifit_sync_ifit_tuplev4ext_flowinfo_entry", 0x89d019d5, "f0=u32 f1=u64 f2=u32 f3=u8 f4=u8 f5=u16 f6=u32 f7=u32 f8=u32 f9=u32 f10=u32 f11=u16 f12=u16 f13=u16 f14=u16 f15=u8 f16=u8 f17=u16 f18=u32 f19=u32 f20=u8 f21=u8 f22=u8 f23=u8 f24=u8[16] f25=u8 f26=u8 f27=u16 f28=u32 f29=u32" },
{ "ifit_sync_ifit_tuplev4ext_flowinfo_entry_key", 0x523185a5, "f0=u32 f1=u64 f2=u32 f3=u8" },
{ "ifit_sync_ifit_tuplev4ext_flowinfo_entry_update", 0xec5cbd47, "f0=u16 f1=vector:ifit_sync_ifit_tuplev4ext_flowinfo_entry" },
{ "ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete", 0x66c09c69, "f0=u16 f1=vector:ifit_sync_ifit_tuplev4ext_flowinfo_entry" },
{ "ifit_sync_ifit_tuplev6ext_flowinfo_entry", 0x55c64c9f, "f0=u32 f1=u64 f2=u32 f3=u8 f4=u8 f5=u16 f6=u32 f7=u32[4] f8=u32[4] f9=u8 f10=u8 f11=u16 f12=u16 f13=u16 f14=u16 f15=u8 f16=u8 f17=u32 f18=u32 f19=u16 f20=u8 f21=u8 f22=u8 f23=u8 f24=u16 f25=u8[16] f26=u8 f27=u8 f28=u16 f29=u32 f30=u32" },
{ "ifit_sync_ifit_tuplev6ext_flowinfo_entry_key", 0xc2786e1f, "f0=u32 f1=u64 f2=u32 f3=u8" },
{ "ifit_sync_ifit_tuplev6ext_flowinfo_entry_update", 0xa2ad8b21, "f0=u16 f1=vector:ifit_sync_ifit_tuplev6ext_flowinfo_entry" },
{ "ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete", 0x2088661b, "f0=u16 f1=vector:ifit_sync_ifit_tuplev6ext_flowinfo_entry" },
{ "ifit_sync_ifit_whitelist_vpn_intf_entry", 0x8eedd6e7, "f0=u32 f1=u32 f2=u32 f3=u32 f4=u16 f5=u8 f6=u8 f7=u8 f8=u8 f9=u8 f10=u8 f11=u32 f12=u8 f13=u8 f14=u8 f15=u8 f16=u32 f17=u32" },
{ "ifit_sync_ifit_whitelist_vpn_intf_entry_key", 0x99b18717, "f0=u32 f1=u32 f2=u32" },
{ "ifit_sync_ifit_whitelist_vpn_intf_entry_update", 0xb23b9c29, "f0=u16 f1=vector:ifit_sync_ifit_whitelist_vpn_intf_entry" },
{ "ifit_sync_ifit_whitelist_vpn_intf_entry_delete", 0x77f060f3, "f0=u16 f1=vector:ifit_sync_ifit_whitelist_vpn_intf_entry" },
{ "ifit_sync_ifit_whitelist_rule_intf_entry", 0xd6d6b931, "f0=u32 f1=u32 f2=u32 f3=u32 f4=u32 f5=u32 f6=u32[4] f7=u8 f8=u8 f9=u16 f10=u32 f11=u32[4] f12=u8 f13=u8 f14=u16 f15=u16 f16=u8 f17=u8 f18=u8 f19=u8 f20=u16 f21=u16 f22=u8 f23=u8 f24=u8 f25=u8 f26=u16 f27=u8[16] f28=u8 f29=u8 f30=u16 f31=u32 f32=u32" },
{ "ifit_sync_ifit_whitelist_rule_intf_entry_key", 0x2c3f5ea1, "f0=u32 f1=u32 f2=u32 f3=u32 f4=u32" },
{ "ifit_sync_ifit_whitelist_rule_intf_entry_update", 0x0554f863, "f0=u16 f1=vector:ifit_sync_ifit_whitelist_rule_intf_entry" },
{ "ifit_sync_ifit_whitelist_rule_intf_entry_delete", 0x2ae98515, "f0=u16 f1=vector:ifit_sync_ifit_whitelist_rule_intf_entry" },
{ "ifit_sync_color_intf_entry_mesh", 0x5a33005b, "f0=u32 f1=u32 f2=u8 f3=u8 f4=u16 f5=u8 f6=u8 f7=u16 f8=u32 f9=u32" },
{ "ifit_sync_color_intf_entry_mesh_update", 0xd184c36d, "f0=u16 f1=vector:ifit_sync_color_intf_entry_mesh" },
{ "ifit_sync_color_intf_entry_mesh_delete", 0x02f5d867, "f0=u16 f1=vector:ifit_sync_color_intf_entry_mesh" },
{ "ifit_sync_ntvifit_intf_color_clear_entry_update", 0xf0864a18, "f0=u16 f1=table:ifit_sync_ntvifit_intf_color_clear_entry" },
{ "ifit_sync_ntvifit_intf_color_clear_entry_delete", 0x785d89be, "f0=u16 f1=table:ifit_sync_ntvifit_intf_color_clear_entry" },
{ "ifit_sync_ntvifit_intf_auto_detect_entry_update", 0xad34113e, "f0=u16 f1=table:ifit_sync_ntvifit_intf_auto_detect_entry" },
{ "ifit_sync_ntvifit_intf_auto_detect_entry_delete", 0x6f25f8ec, "f0=u16 f1=table:ifit_sync_ntvifit_intf_auto_detect_entry" },
{ "ifit_sync_dam_smooth_request", 0xa1d99c78, "f0=u32" },
{ "ntvifit_app_data", 0x0b10f5d5, "f0=u32 f1=bytes" },
{ "ntvifit_stats_data", 0x392ea985, "f0=u32 f1=u8 f2=u8 f3=u16 f4=u64 f5=u64 f6=u32 f7=u32 f8=u64 f9=u64 f10=u32 f11=u32 f12=u32" },
{ "ntvifit_flow_tuples", 0x033f8145, "f0=u32 f1=u32 f2=u16 f3=u16 f4=u8[6] f5=u8 f6=u8" },
{ "ntvifit_flow_config", 0xefaf473c, "f0=u32 f1=u32 f2=u32 f3=u32 f4=u8[64] f5=u32 f6=u32" },
{ "ntvifit_stats_key", 0x6b191fcc, "f0=u32 f1=u32 f2=u16 f3=u16" },
{ "ntvifit_entry_to_mdtlm", 0x565e6e52, "f0=u32 f1=u32 f2=u32 f3=u16 f4=u16 f5=u8 f6=u8 f7=u16 f8=u64 f9=u64 f10=u32 f11=u32 f12=u64 f13=u64 f14=u32 f15=u32 f16=u32 f17=bytes f18=u8 f19=bytes f20=u8 f21=u8 f22=u16 f23=bytes f24=u8 f25=u32" },
{ "ntvifit_entry_list_mdtlm", 0x86bee653, "f0=vector:ntvifit_entry_to_mdtlm f1=u32" },
{ "ntvifit_stats_info", 0x6df6f7e5, "f0=table:ntvifit_stats_key f1=table:ntvifit_flow_config f2=table:ntvifit_flow_tuples f3=table:ntvifit_stats_data f4=table:ntvifit_app_data f5=u8 f6=u8 f7=u16 f8=u32 f9=u8 f10=u8 f11=u8 f12=u8 f13=u32" },
{ "ntvifit_stats_info_list", 0x3758099a, "f0=vector:ntvifit_stats_info" },
-- to here
}

-- ---- fields ----

local kesto = Proto("kesto", "KESTO message")

local all_fields = {}

local function declare(field)
    all_fields[#all_fields + 1] = field
    return field
end

local of_packet = {
    id = declare(ProtoField.uint32("kesto.id", "id", base.HEX)),
    length = declare(ProtoField.uint32("kesto.length", "length")),
    message = declare(ProtoField.string("kesto.message", "message")),
    fault = declare(ProtoField.string("kesto.packet_fault", "packet fault")),
}

-- The call that sent or delivered the packet.
local directions = { [0] = "sent", [1] = "received" }
local of_call = {
    version = declare(ProtoField.uint8("kesto.head_version", "head version")),
    direction = declare(ProtoField.uint8("kesto.direction", "direction", base.DEC, directions)),
    known = declare(ProtoField.uint16("kesto.known", "known", base.HEX)),
    channel = declare(ProtoField.uint32("kesto.channel", "channel")),
    destination = declare(ProtoField.uint32("kesto.destination", "destination")),
    result = declare(ProtoField.int32("kesto.result", "result")),
    time = declare(ProtoField.absolute_time("kesto.time", "call began")),
}

local of_piece = {
    root = declare(ProtoField.uint32("kesto.root", "root", base.DEC_HEX)),
    vtable_offset = declare(ProtoField.uint32("kesto.vtable_offset", "vtable offset", base.DEC_HEX)),
    vtable_length = declare(ProtoField.uint16("kesto.vtable_length", "vtable length")),
    table_length = declare(ProtoField.uint16("kesto.table_length", "table length")),
    slot = declare(ProtoField.uint16("kesto.slot", "slot")),
    cell = declare(ProtoField.uint32("kesto.cell", "cell", base.DEC_HEX)),
    count = declare(ProtoField.uint32("kesto.count", "count", base.DEC_HEX)),
    element_cell = declare(ProtoField.uint32("kesto.element_cell", "element cell", base.DEC_HEX)),
}

-- Why and where the decoder stops: the position, the value that was compared, and the limit.
local function refusal_fields(name, text)
    return {
        refusal = declare(ProtoField.string(name, text)),
        position = declare(ProtoField.uint32(name .. ".position", "position")),
        value = declare(ProtoField.uint64(name .. ".value", "value")),
        limit = declare(ProtoField.uint64(name .. ".limit", "limit")),
    }
end

local refused = refusal_fields("kesto.refused", "refused")
local ignored = refusal_fields("kesto.ignored", "refused, but ignored by the message")

refused.expert = ProtoExpert.new("kesto.refused.expert", "The decoder refuses the byte string", expert.group.MALFORMED,
    expert.severity.ERROR)
ignored.expert = ProtoExpert.new("kesto.ignored.expert", "The decoder refuses a table and continues",
    expert.group.MALFORMED, expert.severity.WARN)
local packet_expert = ProtoExpert.new("kesto.packet_fault.expert", "Not a valid message packet", expert.group.MALFORMED,
    expert.severity.ERROR)
local shortened_expert = ProtoExpert.new("kesto.shortened", "Checked completely, but not shown completely",
    expert.group.UNDECODED, expert.severity.NOTE)

-- Explanations of a refusal's value and limit.
local sentences = {
    length_below_4 = "the length is %d, below %d",
    table_position = "the table is at %d, outside 4 to %d",
    vtable_position = "the vtable is at %d, outside 4 to %d",
    vtable_length = "the vtable has %d bytes, but only %d are left",
    scalar_end = "the number ends at %d, the bytes at %d",
    cell_end = "the cell ends at %d, the bytes at %d",
    reference_wrap = "the target wraps past 2^32 to %d, before the cell at %d",
    reference_range = "the count would end at %d, the bytes end at %d",
    array_count = "the count is %d, not %d",
    count_range = "the count is %d, not below %d",
    body_end = "the payload would end at %d, the bytes end at %d",
    nested_wrap = "the target wraps past 2^32 to %d, before the cell at %d",
    element_wrap = "the target wraps past 2^32 to %d, before the cell at %d",
}

-- ---- messages: the parsed catalogue, with a protocol field for each path to a field ----

local scalar_fields = {
    u8 = { 1, ProtoField.uint8 },
    u16 = { 2, ProtoField.uint16 },
    u32 = { 4, ProtoField.uint32 },
    u64 = { 8, ProtoField.uint64 },
}

local slots_of_message = {} -- by name, as text

for _, line in ipairs(catalogue) do
    slots_of_message[line[1]] = line[3]
end

-- ---- names of fields, from a file as kesto(1) describes it: -X lua_script1:FILE, or the environment ----

local function unreadable(file, number, text, ...)
    error(string.format("%s:%d: " .. text, file, number, ...), 0)
end

-- Which types a display can show.
local display_types = {
    hex = { u8 = true, u16 = true, u32 = true, u64 = true },
    ipv4 = { u32 = true, ["u8[4]"] = true },
    ipv6 = { ["u32[4]"] = true, ["u8[16]"] = true },
    mac = { u64 = true, ["u8[6]"] = true },
    time = { u32 = true, u64 = true },
}
display_types.enum = display_types.hex

local ticks_per_second = { ["time"] = 1, ["time-ms"] = 1000, ["time-us"] = 1000000, ["time-ns"] = 1000000000 }
for display in pairs(ticks_per_second) do
    display_types[display] = display_types.time
end

-- Compared as digits: numbers of Lua 5.1 and 5.2 are exact up to 2^53 only.
local largest_number = { u8 = "255", u16 = "65535", u32 = "4294967295", u64 = "18446744073709551615" }

local function is_too_large(number, type)
    local hex, decimal = number:match("^0x0*(%x*)$"), number:match("^0*(%d*)$")
    local digits, largest = hex or decimal, hex and ("f"):rep(2 * scalar_fields[type][1]) or largest_number[type]
    return #digits > #largest or (#digits == #largest and digits:lower() > largest)
end

-- A table from number to word.
local function read_words(file, number, type, words)
    local values, values_of_words = {}, {}
    for i = 4, #words do
        local word, text = words[i]:match("^(%l[%l%d_]*)=(%w+)$")
        if not word or not (text:match("^%d+$") or text:match("^0x%x+$")) then
            unreadable(file, number, "'%s' is not as in tcp=6", words[i])
        elseif is_too_large(text, type) then
            unreadable(file, number, "'%s': %s holds no number that large", words[i], type)
        end
        local value = tonumber(text)
        if values[value] or values_of_words[word] then
            unreadable(file, number, "'%s' repeats a word or a number", words[i])
        end
        values[value], values_of_words[word] = word, value
    end
    return next(values) and values or unreadable(file, number, "an enum needs words, as in tcp=6")
end

local function read_field_line(file, number, message, words)
    local field, name, display = words[1], words[2], words[3]
    local types = {}
    for known, text in slots_of_message[message]:gmatch("([%w_]+)=(%S+)") do
        types[known] = text
    end
    if not types[field] then
        unreadable(file, number, "%s has no field '%s'", message, field)
    elseif not name or not name:match("^%l[%l%d_]*$") or (types[name] and name ~= field) then
        unreadable(file, number, "'%s' is no name for %s", name or "", field)
    elseif display and not (display_types[display] and display_types[display][types[field]]) then
        unreadable(file, number, "%s is %s, which '%s' cannot show", field, types[field], display)
    elseif words[4] and display ~= "enum" then
        unreadable(file, number, "'%s' is too much", words[4])
    end
    local enumeration = display == "enum" and read_words(file, number, types[field], words) or nil
    return { name = name, display = display, words = enumeration }
end

local function read_text(file)
    local opened, fault = io.open(file, "rb")
    if not opened then
        error(fault, 0)
    end
    local text, reason = opened:read("*a")
    opened:close()
    return text or error(file .. ": " .. reason, 0)
end

-- By message and field: name, display, words.
local function read_names(file)
    local views, message, number = {}, nil, 0
    for line in read_text(file):gmatch("[^\n]*\n?") do
        number = number + 1
        local control = line:gsub("[\t\r\n]", ""):match("%c")
        if control then
            unreadable(file, number, "byte 0x%02x: the file is not text", control:byte())
        end
        local words = {}
        for word in line:gsub("#.*", ""):gmatch("%S+") do
            words[#words + 1] = word
        end
        if #words > 0 and not line:match("^[ \t]") then
            message = words[1]
            if #words > 1 or not slots_of_message[message] or views[message] then
                unreadable(file, number, "'%s' is no message, or stands twice", table.concat(words, " "))
            end
            views[message] = {}
        elseif #words > 0 then
            if not message then
                unreadable(file, number, "a field stands before any message")
            end
            local view = read_field_line(file, number, message, words)
            for field, known in pairs(views[message]) do
                if field == words[1] or known.name == view.name then
                    unreadable(file, number, "'%s' stands twice", words[1])
                end
            end
            views[message][words[1]] = view
        end
    end
    return views
end

local names_file = ... or os.getenv("KESTO_NAMES")
local views = names_file and names_file ~= "" and read_names(names_file) or {}

-- The octets of an address in the order of reading. Numbers have the first octet at the top.
local function octets_of(slot, range)
    local octets = {}
    for at = 0, range:len() - 1 do
        local from = slot.width == 1 and at or at - at % slot.width + slot.width - 1 - at % slot.width
        octets[at + 1] = range(from, 1):uint()
    end
    return octets
end

local function joined(octets, first, format, step, between)
    local parts = {}
    for at = first, #octets, step do
        parts[#parts + 1] = string.format(format, octets[at], octets[at + 1])
    end
    return table.concat(parts, between)
end

local function time_of(slot, range)
    local ticks = ticks_per_second[slot.view.display]
    local value = slot.width == 8 and range:le_uint64() or UInt64(range:le_uint())
    return NSTime((value / ticks):tonumber(), (value % ticks):tonumber() * (1000000000 / ticks))
end

-- Kinds of fields for displays, and the value to show in them; without one the bytes are the value.
local displays = {
    hex = { make = function(path, name, slot) return slot.make(path, name, base.HEX) end },
    enum = { make = function(path, name, slot) return slot.make(path, name, base.DEC, slot.view.words) end },
    ipv4 = {
        make = function(path, name) return ProtoField.ipv4(path, name) end,
        value = function(slot, range) return Address.ip(joined(octets_of(slot, range), 1, "%d", 1, ".")) end,
    },
    ipv6 = {
        make = function(path, name) return ProtoField.ipv6(path, name) end,
        value = function(slot, range) return Address.ipv6(joined(octets_of(slot, range), 1, "%02x%02x", 2, ":")) end,
    },
    mac = {
        make = function(path, name) return ProtoField.ether(path, name) end,
        value = function(slot, range)
            local octets = octets_of(slot, range)
            return Address.ether(joined(octets, #octets - 5, "%02x", 1, ":"))
        end,
    },
}
for display in pairs(ticks_per_second) do
    displays[display] = {
        make = function(path, name) return ProtoField.absolute_time(path, name, base.UTC) end,
        value = time_of,
    }
end

local make_slots

local function make_slot(path, field, text, view)
    local slot = { name = view.name or field, text = text, view = view, display = displays[view.display] }
    field = slot.name
    path = path .. "." .. field
    local scalar = scalar_fields[text]
    if scalar then
        slot.kind, slot.width, slot.make = "scalar", scalar[1], scalar[2]
        slot.field = declare(slot.display and slot.display.make(path, field, slot)
            or scalar[2](path, field, base.DEC_HEX))
        return slot
    end
    if text == "string" or text == "bytes" then
        slot.kind = text
        slot.field = declare(ProtoField[text](path, field))
        return slot
    end
    local element, count = text:match("^(%w+)%[(%d+)%]$")
    if element then
        slot.kind, slot.width, slot.count = "array", scalar_fields[element][1], tonumber(count)
        slot.field = declare(slot.display and slot.display.make(path, field, slot)
            or slot.width == 1 and ProtoField.bytes(path, field)
            or ProtoField.uint32(path, field, base.DEC_HEX))
        return slot
    end
    local kind, lenient, nested = text:match("^(%a+)(%??):([%w_]+)$")
    slot.kind, slot.lenient = kind, lenient == "?"
    slot.field = declare(ProtoField.none(path, field))
    slot.nested = { name = nested, slots = make_slots(path, nested) }
    return slot
end

function make_slots(path, name)
    local slots = {}
    for field, text in slots_of_message[name]:gmatch("([%w_]+)=(%S+)") do
        slots[#slots + 1] = make_slot(path, field, text, (views[name] or {})[field] or {})
    end
    return slots
end

local messages = {} -- by id

for _, line in ipairs(catalogue) do
    local name, id = line[1], line[2]
    local path = "kesto." .. name
    messages[id] = { name = name, field = declare(ProtoField.none(path, name)), slots = make_slots(path, name) }
end

kesto.fields = all_fields
kesto.experts = { refused.expert, ignored.expert, packet_expert, shortened_expert }

-- ---- one byte string ----

-- The state of one read:
--   bytes, length   the byte string
--   buffer          the packet
--   root_item       the top of the tree, for items without a better parent
--   remaining       of max_items; if below 0, nothing more is shown
--   word            position and width of the last word read, which leads to the next part
--   passed          valid tables, by message and position; not read again once nothing more is shown
--   failure         why the decoder stops
local Reader = {}
Reader.__index = Reader

function Reader:number(at, width)
    local b0, b1, b2, b3 = self.bytes:byte(at + 1, at + width)
    return b0 + 256 * (b1 or 0) + 65536 * (b2 or 0) + 16777216 * (b3 or 0)
end

-- A range, clipped to the byte string.
function Reader:range(at, length)
    local from = math.min(at, self.length)
    return self.buffer(head_length + from, math.min(length, self.length - from))
end

function Reader:may_show(tree, length)
    self.remaining = self.remaining - 1 - math.floor(length / 64)
    return tree ~= nil and self.remaining >= 0
end

-- The next four functions return the new item, or nil if it is not shown.
function Reader:show(tree, field, at, length)
    if self:may_show(tree, length) then
        return tree:add_le(field, self:range(at, length))
    end
end

-- A scalar, or an array that is shown as one value.
function Reader:show_value(tree, slot, at, length)
    if not (slot.display and slot.display.value) then
        return self:show(tree, slot.field, at, length)
    end
    if self:may_show(tree, length) then
        local range = self:range(at, length)
        return tree:add(slot.field, range, slot.display.value(slot, range))
    end
end

function Reader:show_text(tree, field, at, length)
    if self:may_show(tree, length) then
        return tree:add_packet_field(field, self:range(at, length), ENC_UTF_8)
    end
end

function Reader:heading(tree, at, length, text, ...)
    if self:may_show(tree, 0) then
        return tree:add(self:range(at, length), string.format(text, ...))
    end
end

local function append(item, text, ...)
    if item then
        item:append_text(string.format(text, ...))
    end
end

function Reader:word_at(tree, piece, at, width)
    self.word = { at, width }
    return self:number(at, width), self:show(tree, of_piece[piece], at, width)
end

-- ---- refusals ----

function Reader:refuse(tree, refusal, position, value, limit)
    self.failure = { tree = tree or self.root_item, refusal = refusal, position = position, value = value,
        limit = limit, word = self.word }
    return false
end

local function as_u64(number)
    return UInt64(number % two_to_32, math.floor(number / two_to_32))
end

-- Shows the failure at the refused number, or if that lies past the end, at the word that leads there.
function Reader:show_failure(kind)
    local failure = self.failure
    local at, width = failure.position, 4
    if at >= self.length then
        at, width = failure.word[1], failure.word[2]
    end
    local range = self:range(at, width)
    local item = failure.tree:add(kind.refusal, range, failure.refusal)
    item:add(kind.position, range, failure.position):set_generated()
    item:add(kind.value, range, as_u64(failure.value)):set_generated()
    item:add(kind.limit, range, as_u64(failure.limit)):set_generated()
    local numbers = string.format(sentences[failure.refusal], failure.value, failure.limit)
    item:add_proto_expert_info(kind.expert, failure.refusal .. ": " .. numbers)
end

-- ---- the decoder's steps; each function returns false if the decoder stops ----

-- Returns true, the item of the table and the position of its vtable; or false.
function Reader:open_table(tree, position, field, label)
    local last = self.length - 4
    if position < 4 or position > last then
        return self:refuse(tree, "table_position", position, position, last)
    end
    local item = self:show(tree, field, position, 4)
    append(item, "%s, table at %d", label, position)
    local distance = self:word_at(item, "vtable_offset", position, 4)
    local vtable = (position - distance) % two_to_32
    append(item, ", vtable at %d", vtable)
    if vtable < 4 or vtable > last then
        return self:refuse(item, "vtable_position", position, vtable, last)
    end
    return true, item, vtable
end

function Reader:open_vtable(tree, vtable)
    local item = self:heading(tree, vtable, self:number(vtable, 2), "vtable at %d", vtable)
    local length = self:word_at(item, "vtable_length", vtable, 2)
    local remaining = self.length - vtable
    if length > remaining then
        return self:refuse(item, "vtable_length", vtable, length, remaining)
    end
    if length >= 4 then
        self:show(item, of_piece.table_length, vtable + 2, 2)
    end
    return true, item, length
end

function Reader:read_cell(tree, slot, at)
    if at + 4 > self.length then
        return self:refuse(tree, "cell_end", at, at + 4, self.length)
    end
    local distance, item = self:word_at(tree, "cell", at, 4)
    local target = (at + distance) % two_to_32
    append(item, ", %s leads to %d", slot.name, target)
    return true, target
end

function Reader:read_count(tree, slot, at)
    local open, body = self:read_cell(tree, slot, at)
    if not open then
        return false
    end
    if body < at then
        return self:refuse(tree, "reference_wrap", at, body, at)
    end
    if body + 4 > self.length then
        return self:refuse(tree, "reference_range", at, body + 4, self.length)
    end
    local count, item = self:word_at(tree, "count", body, 4)
    append(item, ", %s", slot.name)
    return true, body, count
end

function Reader:body_fits(tree, body, payload)
    local finish = body + 4 + payload
    return finish <= self.length or self:refuse(tree, "body_end", body, finish, self.length)
end

local read = {} -- functions by slot kind

function read.scalar(reader, tree, slot, at)
    if at + slot.width > reader.length then
        return reader:refuse(tree, "scalar_end", at, at + slot.width, reader.length)
    end
    reader:show_value(tree, slot, at, slot.width)
    return true
end

-- Reads the body of a text or a block.
function Reader:read_octets(tree, slot, at)
    local open, body, count = self:read_count(tree, slot, at)
    return open and self:body_fits(tree, body, count), body, count
end

function read.string(reader, tree, slot, at)
    local inside, body, count = reader:read_octets(tree, slot, at)
    if inside then
        reader:show_text(tree, slot.field, body + 4, count)
    end
    return inside
end

function read.bytes(reader, tree, slot, at)
    local inside, body, count = reader:read_octets(tree, slot, at)
    if inside and count > 0 then
        reader:show(tree, slot.field, body + 4, count)
    end
    return inside
end

function read.array(reader, tree, slot, at)
    local open, body, count = reader:read_count(tree, slot, at)
    if not open then
        return false
    end
    if slot.width == 4 and count >= 0x40000000 then
        return reader:refuse(tree, "count_range", body, count, 0x40000000)
    end
    if count ~= slot.count then
        return reader:refuse(tree, "array_count", body, count, slot.count)
    end
    if not reader:body_fits(tree, body, count * slot.width) then
        return false
    end
    if slot.width == 1 or slot.display then
        reader:show_value(tree, slot, body + 4, count * slot.width)
    else
        local item = reader:heading(tree, body + 4, 4 * count, "%s: %s", slot.name, slot.text)
        for i = 0, count - 1 do
            append(reader:show(item, slot.field, body + 4 + 4 * i, 4), ", [%d]", i)
        end
    end
    return true
end

function read.table(reader, tree, slot, at)
    local open, target = reader:read_cell(tree, slot, at)
    if not open then
        return false
    end
    if target < at then
        return reader:refuse(tree, "nested_wrap", at, target, at)
    end
    if reader:read_table(tree, slot.nested, target, slot.field, ": " .. slot.nested.name) then
        return true
    end
    if not slot.lenient then
        return false
    end
    reader:show_failure(ignored)
    reader.failure = nil
    return true
end

function read.vector(reader, tree, slot, at)
    local open, body, count = reader:read_count(tree, slot, at)
    if not open then
        return false
    end
    if count >= 0x40000000 then
        return reader:refuse(tree, "count_range", body, count, 0x40000000)
    end
    if not reader:body_fits(tree, body, 4 * count) then
        return false
    end
    local item = reader:heading(tree, body, 4 + 4 * count, "%s: %d of %s", slot.name, count, slot.nested.name)
    for i = 0, count - 1 do
        local cell = body + 4 + 4 * i
        local distance, cell_item = reader:word_at(item, "element_cell", cell, 4)
        local target = (cell + distance) % two_to_32
        append(cell_item, ", [%d] leads to %d", i, target)
        if target < cell then
            return reader:refuse(item, "element_wrap", cell, target, cell)
        end
        if not reader:read_table(item, slot.nested, target, slot.field, string.format("[%d]", i)) then
            return false
        end
    end
    return true
end

function Reader:read_slots(tree, message, position, vtable)
    local open, vtable_item, vtable_length = self:open_vtable(tree, vtable)
    if not open then
        return false
    end
    for k, slot in ipairs(message.slots) do
        local word = vtable + 2 + 2 * k -- k counts from 1 here
        if vtable_length < 4 + 2 * k then
            break -- this slot and all later ones are absent
        end
        local offset, item = self:word_at(vtable_item, "slot", word, 2)
        if offset == 0 then
            append(item, ", %s absent", slot.name)
        else
            append(item, ", %s at %d", slot.name, position + offset)
            if not read[slot.kind](self, tree, slot, position + offset) then
                return false
            end
        end
    end
    return true
end

function Reader:read_table(tree, message, position, field, label)
    local passed = self.passed[message]
    if not passed then
        passed = {}
        self.passed[message] = passed
    end
    if self.remaining < 0 and passed[position] then
        return true
    end
    local open, item, vtable = self:open_table(tree, position, field, label)
    if not open or not self:read_slots(item, message, position, vtable) then
        return false
    end
    passed[position] = true
    return true
end

function Reader:read_message(message)
    if self.length < 4 then
        self.word = { 0, 4 }
        return self:refuse(self.root_item, "length_below_4", 0, self.length, 4)
    end
    local root = self:word_at(self.root_item, "root", 0, 4)
    return self:read_table(self.root_item, message, root, message.field, "")
end

-- ---- one packet ----

local function not_a_message(item, range, fault, text)
    item:add(of_packet.fault, range, fault):add_proto_expert_info(packet_expert, text)
    return text
end

-- Returns the text for the info column.
local function read_byte_string(buffer, item, message)
    local reader = setmetatable({
        bytes = buffer:raw(head_length),
        length = buffer:captured_len() - head_length,
        buffer = buffer,
        root_item = item,
        remaining = max_items,
        passed = {},
    }, Reader)
    reader:read_message(message)
    if reader.remaining < 0 then
        item:add_proto_expert_info(shortened_expert,
            string.format("More than %d items: the rest was checked but is not shown", max_items))
    end
    local info = string.format("%s, %d bytes", message.name, reader.length)
    if reader.failure then
        reader:show_failure(refused)
        info = info .. ", refused: " .. reader.failure.refusal
    end
    return info
end

local function is_cut(buffer, item)
    local captured, reported = buffer:captured_len(), buffer:reported_len()
    return captured < reported and not_a_message(item, buffer(), "cut",
        string.format("The capture holds %d of the packet's %d bytes", captured, reported))
end

local function read_packet(buffer, item)
    local captured = buffer:captured_len()
    if captured < head_length then
        return not_a_message(item, buffer(), "short_packet",
            string.format("A packet of %d bytes is too short for id and length", captured))
    end
    local id, length = buffer(0, 4):le_uint(), buffer(4, 4):le_uint()
    local message = messages[id]
    item:add_le(of_packet.id, buffer(0, 4))
    item:add_le(of_packet.length, buffer(4, 4))
    if length ~= captured - head_length then
        return not_a_message(item, buffer(4, 4), "length_disagrees",
            string.format("The stated length is %d, but %d bytes follow", length, captured - head_length))
    end
    if not message then
        return not_a_message(item, buffer(0, 4), "unknown_id", string.format("No message has the id 0x%08x", id))
    end
    item:add(of_packet.message, buffer(0, 4), message.name):set_generated()
    item:append_text(", " .. message.name)
    return read_byte_string(buffer, item, message)
end

-- Returns the addition to the info column, as in ", sent on channel 1 to destination 9, result 0".
local function read_call(buffer, item)
    local direction, known = buffer(1, 1):uint(), buffer(2, 2):le_uint()
    local text = ", " .. directions[direction]
    item:add_le(of_call.version, buffer(0, 1))
    item:add_le(of_call.direction, buffer(1, 1))
    item:add_le(of_call.known, buffer(2, 2))
    local function is_known(bit)
        return math.floor(known / bit) % 2 == 1
    end
    if is_known(1) then
        item:add_le(of_call.channel, buffer(4, 4))
        text = text .. string.format(" on channel %d", buffer(4, 4):le_uint())
    end
    if is_known(2) then
        item:add_le(of_call.destination, buffer(8, 4))
        text = text .. string.format(" to destination %d", buffer(8, 4):le_uint())
    end
    if is_known(4) then
        item:add_le(of_call.result, buffer(12, 4))
        text = text .. string.format(", result %d", buffer(12, 4):le_int())
    end
    local nanoseconds = buffer(16, 8):le_uint64()
    item:add(of_call.time, buffer(16, 8),
        NSTime.new((nanoseconds / 1000000000):tonumber(), (nanoseconds % 1000000000):tonumber()))
    return text
end

local function read_packet_with_call(buffer, item)
    local captured = buffer:captured_len()
    if captured < call_head_length + head_length then
        return not_a_message(item, buffer(), "short_packet",
            string.format("A packet of %d bytes is too short for call head, id and length", captured))
    end
    if buffer(0, 1):uint() ~= 1 or not directions[buffer(1, 1):uint()] then
        return not_a_message(item, buffer(0, 2), "unknown_head",
            "The call head has an unknown version or direction")
    end
    local call = read_call(buffer, item)
    return read_packet(buffer(call_head_length):tvb(), item) .. call
end

local with_call = Proto("kesto_call", "KESTO message with call head")

local function dissect(read, buffer, pinfo, tree)
    pinfo.cols.protocol = "KESTO"
    local item = tree:add(kesto, buffer())
    pinfo.cols.info = is_cut(buffer, item) or read(buffer, item)
    return buffer:captured_len()
end

function kesto.dissector(buffer, pinfo, tree)
    return dissect(read_packet, buffer, pinfo, tree)
end

function with_call.dissector(buffer, pinfo, tree)
    return dissect(read_packet_with_call, buffer, pinfo, tree)
end

DissectorTable.get("wtap_encap"):add(wtap_encaps.USER0, kesto)
DissectorTable.get("wtap_encap"):add(wtap_encaps.USER1, with_call)
