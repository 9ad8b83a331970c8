// The measured messages. The adapter printer and the benchmark use this list.
#pragma once

namespace kesto::bench {

inline constexpr const char* measured_messages[] = {
    "ifit_color_intf_mesh",         "ifit_flow_base_mesh",        "ifit_flow_statistics_entry_to_mdtlm",
    "ifit_sync_ifit_session_entry", "ifit_flow_base_mesh_update", "ifit_dfx_query_queryhash_rec_mesh",
    "ntvifit_stats_info_list",
};

}   // namespace kesto::bench
