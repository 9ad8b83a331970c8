#include "tools/families.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace kesto::tools {

using namespace model;

namespace {

const std::vector<Family> all{
    {"ifit_dfx",
     "Query frames",
     "Every query begins with one of these: a question with ifit_dfx_query_comm_param_mesh, an answer with "
     "ifit_dfx_query_comm_rec_mesh. The answer's frame has the two numbers and the block of the question's, a number "
     "between them and one after them. The library carries the frames and acts on none of their fields.",
     {"ifit_dfx_query_comm_param_mesh", "ifit_dfx_query_comm_rec_mesh", "ifit_dfx_datetime_mesh"}},
    {"ifit_dfx",
     "Statistics query",
     "The question is a frame and a condition, the answer a frame and any number of items, each with a date and time.",
     {"ifit_dfx_query_stat_mesh_key", "ifit_dfx_query_stat_cond_mesh", "ifit_dfx_query_stat_rec_mesh",
      "ifit_dfx_query_stat_item_mesh"}},
    {"ifit_dfx",
     "Global data query",
     "The question is a frame and a condition, the answer a frame and one item, which is a text.",
     {"ifit_dfx_query_glbdata_mesh_key", "ifit_dfx_query_glbdata_cond_mesh", "ifit_dfx_query_glbdata_rec_mesh",
      "ifit_dfx_query_glbdata_item_mesh"}},
    {"ifit_dfx",
     "Hash query",
     "The question is a frame and the widest condition of the module, the answer a frame and one item, the module's "
     "largest record.",
     {"ifit_dfx_query_queryhash_mesh_key", "ifit_dfx_query_queryhash_cond_mesh", "ifit_dfx_query_queryhash_rec_mesh",
      "ifit_dfx_query_queryhash_item_mesh"}},
    {"ifit_dfx", "Reset of statistics", "Stands outside the queries.", {"ifit_dfx_reset_statis_mesh"}},

    {"ifit",
     "Global tables",
     "Control tables: global settings, mcp, test type and paf. A row and a key travel alone, rows in an update and "
     "keys "
     "in a delete. Slot 0 of both lists is a number that nothing compares with the count of the list.",
     {"ifit_global_mesh", "ifit_mcp_mesh", "ifit_test_type_mesh", "ifit_paf_mesh"}},
    {"ifit",
     "Flow tables",
     "Control tables that describe measured flows: the base flow, its SRv6 policy, tuple and VPN attributes, the "
     "dynamic flow, loss and delay.",
     {"ifit_flow_base_mesh", "ifit_flow_srv6policy_mesh", "ifit_dyn_flow_mesh", "ifit_flow_tuplev4_mesh",
      "ifit_flow_tuplev6_mesh", "ifit_flow_vpn_mesh", "ifit_flow_loss_mesh", "ifit_flow_delay_mesh"}},
    {"ifit",
     "Rule and native-IP tables",
     "Control tables for rules, and for native IP: learning, interfaces, colour clearing, automatic detection, learned "
     "VPNs and interfaces.",
     {"ifit_rule_mesh", "ifit_native_ip_learn_mesh", "ifit_native_ip_intf_mesh", "ifit_native_ip_intf_color_clear_mesh",
      "ifit_native_ip_intf_auto_detect_mesh", "ifit_color_intf_mesh", "ifit_lrn_vpn_mesh", "ifit_lrn_intf_mesh"}},
    {"ifit",
     "Dynamic flow reports",
     "Report flows that were created dynamically, at the ingress for IPv4 and IPv6 and at middle or egress nodes, and "
     "the removal of whitelist instances. Each record has a list, in the shape of an update.",
     {"ifit_report_ifit_add_mesh", "ifit_report_app_ifit_add_mesh", "ifit_ingress_ipv4_dyn_flow_mesh",
      "ifit_ingress_ipv4_dyn_flow_oper_mesh", "ifit_ingress_ipv6_dyn_flow_mesh", "ifit_ingress_ipv6_dyn_flow_oper_mesh",
      "ifit_dyn_flow_mid_or_egress_mesh", "ifit_dyn_flow_mid_or_egress_oper_mesh",
      "ifit_notify_whitelist_dyninst_delete_mesh", "ifit_whitelist_dyninst_delete_mesh"}},
    {"ifit",
     "Smoothing and PID exchange",
     "By their names, the messages that bracket a smoothing run, and that ask for and report PID values.",
     {"ifit_smooth_mesh", "ifit_smooth_begin_mesh", "ifit_smooth_end_mesh", "ifit_dam_smooth_request",
      "ifit_request_pid_value_mesh", "ifit_request_app_pid_smooth_mesh", "ifit_pid_state_mesh"}},
    {"ifit",
     "Statistics export",
     "Measured statistics: of an instance to mcp, of flows and hops to mdtlm. The lists to mdtlm have the vector first "
     "and a number after it; the list to mcp has them the other way round.",
     {"ifit_instance_statistics_to_mcp_mesh", "ifit_statistics_to_mcp_mesh", "ifit_flow_statistics_entry_to_mdtlm",
      "ifit_flow_statistics_list_to_mdtlm", "ifit_flow_hop_statistics_entry_to_mdtlm",
      "ifit_flow_hop_statistics_list_to_mdtlm"}},

    {"ifit_sync",
     "Mirrored tables",
     "The synchronised copy of control tables: the row, and then the sync tail u8, u8, u16, u32, u32. They have no "
     "key: "
     "update and delete both carry lists of whole records.",
     {"ifit_sync_global_mesh", "ifit_sync_mcp_mesh", "ifit_sync_test_type_mesh", "ifit_sync_flow_base_mesh",
      "ifit_sync_flow_srv6policy_mesh", "ifit_sync_dyn_flow_mesh", "ifit_sync_flow_tuplev4_mesh",
      "ifit_sync_flow_tuplev6_mesh", "ifit_sync_flow_vpn_mesh", "ifit_sync_flow_loss_mesh", "ifit_sync_flow_delay_mesh",
      "ifit_sync_lrn_vpn_mesh", "ifit_sync_lrn_intf_mesh", "ifit_sync_color_intf_mesh",
      "ifit_sync_color_intf_entry_mesh"}},
    {"ifit_sync",
     "Rule, native-IP and global entries",
     "The synchronised copy of rule, native-IP and global tables, with more numbers before the sync tail. Except for "
     "ifit_sync_mcp_global_entry, update and delete carry one whole record, in fixed form.",
     {"ifit_sync_ifit_rule", "ifit_sync_ifit_native_ip_learn", "ifit_sync_ifit_native_ip_intf",
      "ifit_sync_ifit_native_ip_intf_color_clear", "ifit_sync_ifit_native_ip_intf_auto_detect",
      "ifit_sync_ifit_global_entry", "ifit_sync_mcp_global_entry"}},
    {"ifit_sync",
     "Flow state entries",
     "The state of single flows, which has no control table: flow information, ageing, sessions, and the extended flow "
     "information for IPv4 and IPv6. All begin with the slots of their key and end with the sync tail.",
     {"ifit_sync_ifit_flowinfo_entry", "ifit_sync_ifit_flowage_entry", "ifit_sync_ifit_session_entry",
      "ifit_sync_ifit_tuplev4ext_flowinfo_entry", "ifit_sync_ifit_tuplev6ext_flowinfo_entry"}},
    {"ifit_sync",
     "Native entries",
     "Entries for native telemetry. They repeat no message of the module ntvifit. Update and delete carry one whole "
     "record, in fixed form.",
     {"ifit_sync_ntvifit_glb_entry", "ifit_sync_ntvifit_intf_entry", "ifit_sync_ntvifit_intf_color_clear_entry",
      "ifit_sync_ntvifit_intf_auto_detect_entry"}},
    {"ifit_sync",
     "Whitelist entries",
     "Whitelists by VPN and by rule, each for interfaces.",
     {"ifit_sync_ifit_whitelist_vpn_intf_entry", "ifit_sync_ifit_whitelist_rule_intf_entry"}},
    {"ifit_sync",
     "Smoothing",
     "By their names, the version of the database and the request of a smoothing run.",
     {"ifit_sync_db_smooth_ver", "ifit_sync_dam_smooth_request"}},

    {"ntvifit",
     "Flow records",
     "The parts of a native flow's statistics: key, configuration, tuples, counters and application data. Each is a "
     "message, and a table of ntvifit_stats_info. The library reads no field of them.",
     {"ntvifit_stats_key", "ntvifit_flow_config", "ntvifit_flow_tuples", "ntvifit_stats_data", "ntvifit_app_data"}},
    {"ntvifit",
     "Statistics export",
     "Gather and export: the five flow records in one, a list of these, and a flat entry with its list, to mdtlm.",
     {"ntvifit_stats_info", "ntvifit_stats_info_list", "ntvifit_entry_to_mdtlm", "ntvifit_entry_list_mdtlm"}},
};

const Message* find(const std::string& name) { return catalogue().find(name); }

// The message that this one is the key, update or delete of.
const Message* row_of(const Message& message, const char* suffix)
{
    const std::string_view name = message.name;
    return name.ends_with(suffix) ? catalogue().find(name.substr(0, name.size() - std::string_view(suffix).size()))
                                  : nullptr;
}

std::size_t common_slots(const Message& left, const Message& right)
{
    std::size_t k = 0;
    while (k < left.slots.size() && k < right.slots.size() && slot_text(left.slots[k]) == slot_text(right.slots[k]))
        ++k;
    return k;
}

std::string first_slots(std::size_t count) { return count == 1 ? "slot 0" : "slots 0 to " + std::to_string(count - 1); }

// What an update or delete of `row` carries.
std::string content_text(const Message& message, const Message& row)
{
    for (const Slot& slot : message.slots)
        if (slot.nested != nullptr)
            return std::string(slot.kind == Kind::vector ? "a list of " : "one ") +
                   (slot.nested == &row                      ? "whole record"
                    : slot.nested->name == row.name + "_key" ? "key"
                                                             : "other record") +
                   (slot.kind == Kind::vector ? "s" : "");
    return "no record";
}

bool has_sync_tail(const Message& message)
{
    static constexpr u32 widths[] = {1, 1, 2, 4, 4};
    const std::size_t count = message.slots.size();
    for (std::size_t i = 0; i < 5; ++i)
        if (count < 5 || message.slots[count - 5 + i].kind != Kind::scalar ||
            message.slots[count - 5 + i].width != widths[i])
            return false;
    return true;
}

std::string mirror_text(const Message& message, const Message& row, const std::string& name)
{
    const std::size_t common = common_slots(message, row), more = message.slots.size() - common;
    if (common == row.slots.size() && more == 0)
        return "The slots of " + name + " in another module; only the id tells them apart.";
    if (common < row.slots.size())
        return "Repeats " + name + " only in " + first_slots(common) + "; slot " + std::to_string(common) + " is " +
               slot_text(message.slots[common]) + " here and " + slot_text(row.slots[common]) + " there.";
    const std::string tail = !has_sync_tail(message) ? ", which are not the sync tail"
                             : more > 5              ? ", the last five of them the sync tail"
                                                     : ", the sync tail";
    return "The row of " + name + ", then " + std::to_string(more) + " more slots" + tail + ".";
}

void check()
{
    std::map<std::string, int> seen;
    for (const Family& family : all)
        for (const char* root : family.roots) {
            const Members members = members_of(root);
            for (const Message* message : {members.row, members.key, members.update, members.remove})
                if (message != nullptr)
                    ++seen[message->name];
        }
    bool well = true;
    for (const Module& module : catalogue().modules)
        for (const Message* message : module.messages)
            if (seen[message->name] != 1 && module.name != "synthetic") {
                std::fprintf(stderr, "tools/families.cpp: %s is in %d families\n", message->name.c_str(),
                             seen[message->name]);
                well = false;
            }
    if (!well)
        std::exit(1);
}

}   // namespace

const std::vector<Family>& families()
{
    static const bool checked = (check(), true);
    (void)checked;
    return all;
}

Members members_of(const char* root)
{
    const std::string name = root;
    return {find(name), find(name + "_key"), find(name + "_update"), find(name + "_delete")};
}

const Message* mirrored(const Message& message)
{
    constexpr std::string_view prefix = "ifit_sync_";
    if (!message.name.starts_with(prefix))
        return nullptr;
    const std::string rest = message.name.substr(prefix.size());
    if (rest == "ifit_global_entry")   // named otherwise
        return find("ifit_global_mesh");
    const Message* const same = find("ifit_" + rest);
    const Message* const table = same != nullptr ? same : find(rest + "_mesh");
    return table != nullptr && row_of(*table, "_update") == nullptr && row_of(*table, "_delete") == nullptr ? table
                                                                                                            : nullptr;
}

std::string role_text(const Message& message, std::string (*name)(const Message&))
{
    if (const Message* const row = row_of(message, "_key")) {
        const std::size_t common = common_slots(message, *row);
        if (common == message.slots.size())
            return "Key of " + name(*row) + ": its " + first_slots(common) + ".";
        return "Key of " + name(*row) + ", but cannot be cut from it: slot " + std::to_string(common) + " is " +
               slot_text(message.slots[common]) + " here and " + slot_text(row->slots[common]) + " there.";
    }
    if (const Message* const row = row_of(message, "_update"))
        return "Update of " + name(*row) + ": " + content_text(message, *row) + ".";
    if (const Message* const row = row_of(message, "_delete"))
        return "Delete of " + name(*row) + ": " + content_text(message, *row) + ".";
    if (const Message* const row = mirrored(message))
        return mirror_text(message, *row, name(*row));
    return {};
}

std::vector<std::string> wrapped(const std::string& text, std::size_t width)
{
    std::vector<std::string> lines{""};
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        const std::string word = text.substr(at, end - at);
        if (!lines.back().empty() && lines.back().size() + 1 + word.size() > width)
            lines.emplace_back();
        lines.back() += (lines.back().empty() ? "" : " ") + word;
        at = end + 1;
    }
    return lines;
}

}   // namespace kesto::tools
