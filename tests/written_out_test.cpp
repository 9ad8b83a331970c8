// Byte strings, records and traces written by hand. Library and model are compared with each other, and both with the
// expectations here.

#include <gtest/gtest.h>

#include "ntvifit.h"
#include "tests/support/against_model.h"

namespace kesto::tests {

namespace {

using namespace model;

Record record_of(const Message& message, std::string_view text)
{
    Record record;
    std::string error;
    EXPECT_TRUE(parse_record(message, text, record, error)) << error;
    return record;
}

struct TraceCase {
    const char* what;
    const char* message;
    const char* record;
    void (*damage)(Bytes& bytes);
    u32 failing_allocation;
    const char* refusal;
    const char* trace;   // of the decode, and of the free after it
    const char* left;    // the record after it
    u32 elements = 0;    // bytes of all elements of the list, for SIZE in the trace
};

constexpr u32 none = AllocationFaults::never;
constexpr TraceCase trace_cases[] = {
    {"a good key", "ifit_dfx_query_stat_mesh_key", "{{1 2 h'aabbcc'} zero}", [](Bytes&) {}, none, "none",
     "ifit_dfx_query_comm_param_mesh_unpack_non_root allocates block 0, size 3\n"
     "ifit_dfx_query_comm_param_mesh_free_unpacked releases block 0\n",
     "{{1 2 null*3} {0 0 0}}"},
    {"the allocation of the frame's block fails, and two frees follow", "ifit_dfx_query_stat_mesh_key",
     "{{1 2 h'aabbcc'} zero}", [](Bytes&) {}, 0, "allocation",
     "ifit_dfx_query_comm_param_mesh_unpack_non_root allocates block 0, size 3, failed\n"
     "ifit_dfx_query_comm_param_mesh_unpack_non_root logs 12 [KESTO]:Malloc unpack data failed, size(3)\n"
     "ifit_dfx_query_comm_param_mesh_free_unpacked releases null\n"
     "ifit_dfx_query_comm_param_mesh_free_unpacked releases null\n"
     "ifit_dfx_query_comm_param_mesh_free_unpacked releases null\n",
     "{{1 2 null*3} {0 0 0}}"},
    {"the condition after a good frame has a vtable at 3", "ifit_dfx_query_stat_mesh_key", "{{0 0 h'aa'} {1 2 3}}",
     [](Bytes& bytes) { put(&bytes[57], 57 - 3, 4); }, none, "vtable_position",
     "ifit_dfx_query_comm_param_mesh_unpack_non_root allocates block 0, size 1\n"
     "ifit_dfx_query_stat_cond_mesh_unpack_non_root logs 22 [KESTO]:Vtable offset(57) is out of range(4 - 69)\n"
     "ifit_dfx_query_comm_param_mesh_free_unpacked releases block 0\n"
     "ifit_dfx_query_comm_param_mesh_free_unpacked releases null\n",
     "{{0 0 null*1} {0 0 0}}"},
    {"the frame's table is out of range: only the key's own free follows", "ifit_dfx_query_stat_mesh_key",
     "{zero zero}", [](Bytes& bytes) { put(&bytes[16], 0x7fffff, 4); }, none, "table_position",
     "ifit_dfx_query_comm_param_mesh_unpack_non_root logs 22 [KESTO]:Table offset(8388623) is out of range(4 - 52)\n"
     "ifit_dfx_query_comm_param_mesh_free_unpacked releases null\n"
     "ifit_dfx_query_comm_param_mesh_free_unpacked releases null\n",
     "{{0 0 null} {0 0 0}}"},
    {"a good list of entries", "ntvifit_entry_list_mdtlm",
     "{[{0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 h'01' 0 null 0 0 0 h'0203' 0 0} zero] 9}", [](Bytes&) {}, none, "none",
     "ntvifit_entry_list_mdtlm_unpack allocates block 0, size SIZE\n"
     "ntvifit_entry_to_mdtlm_unpack_non_root allocates block 1, size 1\n"
     "ntvifit_entry_to_mdtlm_unpack_non_root allocates block 2, size 2\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases block 1\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases block 2\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_list_mdtlm_free_unpacked releases block 0\n",
     "{null*2 9}", 2 * sizeof(ntvifit_entry_to_mdtlm)},
    {"the allocation of an entry's second block fails: its own free, then the list's over all elements",
     "ntvifit_entry_list_mdtlm", "{[{0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 h'01' 0 null 0 0 0 h'0203' 0 0} zero] 9}",
     [](Bytes&) {}, 2, "allocation",
     "ntvifit_entry_list_mdtlm_unpack allocates block 0, size SIZE\n"
     "ntvifit_entry_to_mdtlm_unpack_non_root allocates block 1, size 1\n"
     "ntvifit_entry_to_mdtlm_unpack_non_root allocates block 2, size 2, failed\n"
     "ntvifit_entry_to_mdtlm_unpack_non_root logs 12 [KESTO]:Malloc unpack data failed, size(2)\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases block 1\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_list_mdtlm_free_unpacked releases block 0\n",
     "{null*2 0}", 2 * sizeof(ntvifit_entry_to_mdtlm)},
    {"a block nested in an element: the free of the leaf, of the element, of the list", "ntvifit_stats_info_list",
     "{[{zero zero zero zero {5 h'0708'} 0 0 0 0 0 0 0 0 0}]}", [](Bytes&) {}, 1, "allocation",
     "ntvifit_stats_info_list_unpack allocates block 0, size SIZE\n"
     "ntvifit_app_data_unpack_non_root allocates block 1, size 2, failed\n"
     "ntvifit_app_data_unpack_non_root logs 12 [KESTO]:Malloc unpack data failed, size(2)\n"
     "ntvifit_app_data_free_unpacked releases null\n"
     "ntvifit_app_data_free_unpacked releases null\n"
     "ntvifit_app_data_free_unpacked releases null\n"
     "ntvifit_stats_info_list_free_unpacked releases block 0\n",
     "{null*1}", sizeof(ntvifit_stats_info)},
    {"an element with a wrong array count", "ifit_rule_mesh_update", "{7 [zero zero]}",
     [](Bytes& bytes) { put(&bytes[34 + 46 + 4 + 8], 15, 4); }, none, "array_count",
     "ifit_rule_mesh_update_unpack allocates block 0, size 144\n"
     "ifit_rule_mesh_update_free_unpacked releases block 0\n",
     "{7 null*2}"},
    {"empty text has a block", "ifit_dfx_query_glbdata_item_mesh", "{\"\"}", [](Bytes&) {}, none, "none",
     "ifit_dfx_query_glbdata_item_mesh_unpack allocates block 0, size 1\n"
     "ifit_dfx_query_glbdata_item_mesh_free_unpacked releases block 0\n",
     "{null}"},
    {"the logged size of a text includes its NUL", "ifit_dfx_query_glbdata_item_mesh", "{\"abc\"}", [](Bytes&) {}, 0,
     "allocation",
     "ifit_dfx_query_glbdata_item_mesh_unpack allocates block 0, size 4, failed\n"
     "ifit_dfx_query_glbdata_item_mesh_unpack logs 12 [KESTO]:Malloc unpack data failed, size(4)\n"
     "ifit_dfx_query_glbdata_item_mesh_free_unpacked releases null\n"
     "ifit_dfx_query_glbdata_item_mesh_free_unpacked releases null\n",
     "{null}"},
    {"a vtable that runs past the end", "ifit_mcp_mesh", "{1 0 0 0 0 0}", [](Bytes& bytes) { put(&bytes[4], 25, 2); },
     none, "vtable_length", "ifit_mcp_mesh_unpack logs 22 [KESTO]:Vtable Len(25) is out of range(0 - 24)\n", nullptr},
    {"a nested failure that is ignored", "ifit_smooth_begin_mesh", "{5 {6 7}}",
     [](Bytes& bytes) { put(&bytes[24], 21, 2); }, none, "none",
     "ifit_smooth_mesh_unpack_non_root logs 22 [KESTO]:Vtable Len(21) is out of range(0 - 20)\n", "{5 {0 0}}"},
};

TEST(WrittenOut, traces_match)
{
    DecodeCheck check;
    for (const TraceCase& each : trace_cases) {
        if (is_left_out(each.message))
            continue;
        SCOPED_TRACE(each.what);
        const Message& message = *expected_catalogue().find(each.message);
        Bytes bytes = compact_form(record_of(message, each.record));
        each.damage(bytes);
        check.faults.at = each.failing_allocation;
        EXPECT_EQ(check.check(message, bytes), "");
        const Outcome& outcome = check.outcome();
        EXPECT_STREQ(name_of(outcome.failure.refusal), each.refusal);
        EXPECT_EQ(outcome.untouched, each.left == nullptr);
        if (each.left != nullptr) {
            EXPECT_EQ(to_text(outcome.record), each.left);
        }
        std::string expected = each.trace, trace;
        if (const std::size_t at = expected.find("SIZE"); at != std::string::npos)
            expected.replace(at, 4, std::to_string(each.elements));
        for (const Event& event : outcome.trace)
            trace += to_text(event) + "\n";
        EXPECT_EQ(trace, expected);
    }
}

struct EdgeCase {
    const char* message;
    const char* hex;
    const char* refusal;
    const char* left;   // the record after it; none if it is untouched
};

// Each case is on an edge or off by one. The bytes of a case are complete, root word first.
constexpr EdgeCase edge_cases[] = {
    {"ifit_dam_smooth_request", "0a000000 0600 0800 0400 06000000 2a000000", "none", "{42}"},
    {"ifit_dam_smooth_request", "0a000000 0600 0800 0400 06000000 2a0000", "scalar_end", "{0}"},
    {"ifit_dam_smooth_request", "0a000000 0000 0800 0400 06000000 2a000000", "none", "{0}"},
    {"ifit_dam_smooth_request", "0a000000 0500 0800 0400 06000000 2a000000", "none", "{0}"},
    {"ifit_dam_smooth_request", "0a000000 0700 0800 0400 06000000 2a000000", "none", "{42}"},
    {"ifit_dam_smooth_request", "0a000000 0600 0800 0100 06000000 2a000000", "none", "{0x2a000000}"},
    {"ifit_dam_smooth_request", "08000000 0400 0400 04000000", "none", "{0}"},
    {"ifit_dam_smooth_request", "09000000 0400 0400 04000000", "table_position", nullptr},
    {"ifit_dam_smooth_request", "03000000 0400 0400 04000000", "table_position", nullptr},
    {"ifit_dam_smooth_request", "04000000 fcffffff 0400 0400", "none", "{0}"},
    {"ifit_dam_smooth_request", "04000000 fbffffff 0400 0400", "vtable_position", nullptr},
    {"ifit_dam_smooth_request", "04000000 fcffffff 0500 0400", "vtable_length", nullptr},
    {"ifit_dam_smooth_request", "040000", "length_below_4", nullptr},

    {"ifit_dfx_query_glbdata_item_mesh", "0a000000 0600 0c00 0400 06000000 00000000", "none", "{\"\"}"},
    {"ifit_dfx_query_glbdata_item_mesh", "0a000000 0600 0c00 0400 06000000 01000000", "reference_range", "{null}"},
    {"ifit_dfx_query_glbdata_item_mesh", "0a000000 0600 0c00 0400 06000000 ffffffff", "reference_wrap", "{null}"},
    {"ifit_dfx_query_glbdata_item_mesh", "0a000000 0600 0c00 0400 06000000 000000", "cell_end", "{null}"},
    {"ifit_dfx_query_glbdata_item_mesh", "0a000000 0600 0c00 0400 06000000 04000000 02000000 4142", "none", "{\"AB\"}"},
    {"ifit_dfx_query_glbdata_item_mesh", "0a000000 0600 0c00 0400 06000000 04000000 02000000 41", "body_end", "{null}"},
    {"ifit_dfx_query_glbdata_item_mesh", "0a000000 0600 0c00 0400 06000000 04000000 ffffffff 41", "body_end", "{null}"},
    {"ntvifit_app_data", "0c000000 0800 0000 0000 0400 08000000 04000000 00000000", "none", "{0 null}"},

    {"ifit_report_app_ifit_add_mesh", "0c000000 0800 0000 0000 0400 08000000 04000000 00000000", "none", "{0 null}"},
    {"ifit_report_app_ifit_add_mesh", "0c000000 0800 0000 0000 0400 08000000 04000000 00000040", "count_range",
     "{0 null}"},
    {"ifit_report_app_ifit_add_mesh", "0c000000 0800 0000 0000 0400 08000000 04000000 01000000", "body_end",
     "{0 null}"},
    {"ifit_report_app_ifit_add_mesh", "0c000000 0800 0000 0000 0400 08000000 04000000 01000000 ffffffff",
     "element_wrap", "{0 null*1}"},
    {"ifit_report_app_ifit_add_mesh", "0c000000 0800 0000 0000 0400 08000000 04000000 01000000 01000000",
     "table_position", "{0 null*1}"},

    {"ntvifit_flow_tuples", "12000000 0e00 0000 0000 0000 0000 0000 0400 0e000000 04000000 06000000 010203040506",
     "none", "{0 0 0 0 h'010203040506' 0 0}"},
    {"ntvifit_flow_tuples", "12000000 0e00 0000 0000 0000 0000 0000 0400 0e000000 04000000 06000000 0102030405",
     "body_end", "zero"},
    {"ntvifit_flow_tuples", "12000000 0e00 0000 0000 0000 0000 0000 0400 0e000000 04000000 05000000 010203040506",
     "array_count", "zero"},
    {"ntvifit_flow_tuples", "12000000 0e00 0000 0000 0000 0000 0000 0400 0e000000 04000000 07000000 01020304050607",
     "array_count", "zero"},
    {"ifit_flow_tuplev6_mesh",
     "10000000 0c00 0000 0000 0000 0000 0400 0c000000 04000000 04000000"
     " 01000000 02000000 03000000 ff000080",
     "none", "{0 0 0 <1 2 3 0x800000ff> zero 0 0 0 0 0 0 0 0 0 0}"},
    {"ifit_flow_tuplev6_mesh",
     "10000000 0c00 0000 0000 0000 0000 0400 0c000000 04000000 10000000"
     " 01000000 02000000 03000000 ff000080",
     "array_count", "zero"},
    {"ifit_flow_tuplev6_mesh",
     "10000000 0c00 0000 0000 0000 0000 0400 0c000000 04000000 04000040"
     " 01000000 02000000 03000000 ff000080",
     "count_range", "zero"},
    {"ifit_sync_ifit_rule_update", "0c000000 0800 0000 0000 0400 08000000 ffffffff", "nested_wrap", "zero"},
    {"ifit_sync_ifit_rule_update", "0c000000 0800 0000 0000 0400 08000000 000000", "cell_end", "zero"},
};

TEST(WrittenOut, every_bound_is_exact)
{
    DecodeCheck check;
    for (const EdgeCase& edge : edge_cases) {
        if (is_left_out(edge.message))
            continue;
        SCOPED_TRACE(edge.message + std::string(" ") + edge.hex);
        const Message& message = *expected_catalogue().find(edge.message);
        Bytes bytes;
        std::string error;
        ASSERT_TRUE(model::from_hex(edge.hex, bytes, error)) << error;
        const bool succeeds = edge.refusal == std::string("none");
        const Record left = record_of(message, edge.left != nullptr ? edge.left : "zero");
        check.expected = succeeds ? &left : nullptr;
        EXPECT_EQ(check.check(message, bytes), "");
        const Outcome& outcome = check.outcome();
        EXPECT_STREQ(name_of(outcome.failure.refusal), edge.refusal);
        EXPECT_EQ(outcome.untouched, edge.left == nullptr);
        if (!succeeds && !outcome.untouched) {
            EXPECT_EQ(difference(left, outcome.record), "");
        }
    }
}

}   // namespace

}   // namespace kesto::tests
