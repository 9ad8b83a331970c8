// The reference itself: against figures written down by hand, and against itself through every layout.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <map>

#include "reference/decode.h"
#include "reference/encode.h"
#include "reference/memory.h"
#include "reference/strange.h"
#include "tests/support/figures.h"

namespace kesto::tests
{
namespace
{

using namespace reference;

const Catalogue& catalogue()
{
    static const Catalogue* const loaded = [] {
        auto* const fresh = new Catalogue;
        std::string error;
        if (!load_catalogue(*fresh, error))
            ADD_FAILURE() << error;
        return fresh;
    }();
    return *loaded;
}

const Message& message_named(const char* name)
{
    return *catalogue().find(name);
}

Outcome decoded(const Message& message, const Bytes& bytes, const DecodeOptions& options = {})
{
    Outcome outcome;
    decode(message, bytes.data(), position_of_end(bytes), options, outcome);
    return outcome;
}

Record record_of(const Message& message, std::string_view text)
{
    Record record;
    std::string error;
    EXPECT_TRUE(parse_record(message, text, record, error)) << error;
    return record;
}

std::string to_text(const Trace& trace)
{
    std::string out;
    for (const Event& event : trace)
        out += reference::to_text(event) + "\n";
    return out;
}

// Every block that was given out came back exactly once, and nothing else did.
bool is_balanced(const Trace& trace)
{
    std::map<i32, int> live;
    for (const Event& event : trace) {
        if (event.act == Act::allocate && !event.failed)
            ++live[event.block];
        if (event.act == Act::release && event.block >= 0 && --live[event.block] != 0)
            return false;
    }
    return std::all_of(live.begin(), live.end(), [](const auto& block) { return block.second == 0; });
}

bool holds_pointer(const Record& record)
{
    return std::any_of(record.fields.begin(), record.fields.end(), [](const Field& field) {
        return field.present || std::any_of(field.records.begin(), field.records.end(), holds_pointer);
    });
}

// After the free everything has come back; a failed decode has done so by itself.
void expect_nothing_left(Outcome& outcome, const std::string& what)
{
    if (outcome.untouched) {
        EXPECT_EQ(outcome.allocations, 0u) << what;
        return;
    }
    if (outcome.failure) {
        EXPECT_TRUE(is_balanced(outcome.trace) && !holds_pointer(outcome.record)) << what << "\n"
                                                                                  << to_text(outcome.trace);
    }
    free_unpacked(outcome.record, outcome.trace);
    EXPECT_TRUE(is_balanced(outcome.trace) && !holds_pointer(outcome.record)) << what << "\n" << to_text(outcome.trace);
}

TEST(Reference, every_figure_holds)
{
    std::vector<Figure> figures;
    std::string error;
    ASSERT_TRUE(load_figures(catalogue(), figures, error)) << error;
    for (const Figure& figure : figures) {
        if (!figure.about_bytes()) {
            EXPECT_EQ(fault_in_catalogue(figure, catalogue()), "") << figure.where();
            continue;
        }
        for (const Record& record : figure.records()) {
            const Bytes bytes = figure.fixed_form ? fixed_form(record) : compact_form(record);
            const u64 reported = figure.fixed_form ? bytes.size() : exact_size(record);
            EXPECT_EQ(fault_in_bytes(figure, record, bytes, reported), "") << figure.where();
        }
    }
}

TEST(Reference, both_forms_and_strange_layouts_of_every_message_decode_to_the_record)
{
    for (const Message& message : catalogue().messages) {
        Random random(message.id);
        for (int round = 0; round < 12; ++round) {
            for (const Density density : densities) {
                const Record record = random_record(message, density, random);
                ASSERT_TRUE(is_encodable(record));
                const Record wanted = as_decoded(record);
                std::vector<Bytes> strings{compact_form(record), strange_layout(record, random),
                                           strange_layout(record, random)};
                EXPECT_EQ(exact_size(wanted), strings[0].size()) << reference::to_text(record);
                EXPECT_EQ(compact_form(wanted), strings[0]) << reference::to_text(record);
                if (!message.owns_heap)
                    strings.push_back(fixed_form(record));
                for (const Bytes& bytes : strings) {
                    Outcome outcome = decoded(message, bytes);
                    const std::string what = message.name + reference::to_text(record);
                    ASSERT_FALSE(outcome.failure || outcome.ignored) << reference::to_text(outcome.failure) << what;
                    ASSERT_EQ(difference(wanted, outcome.record), "") << what;
                    expect_nothing_left(outcome, what);
                }
            }
        }
    }
}

TEST(Reference, structures_in_memory_hold_and_encode_like_trees)
{
    for (const Message& message : catalogue().messages) {
        Random random(message.id + 1);
        for (const Density density : densities) {
            const std::vector<Record> records{random_record(message, density, random),
                                              random_record(message, density, random)};
            const RecordMemory memory(records);
            for (std::size_t i = 0; i < records.size(); ++i) {
                const u32 stride = message.layout(host_pointer_width).size;
                const void* const at = static_cast<const u8*>(memory.data()) + stride * i;
                EXPECT_EQ(difference(records[i], from_memory(message, at)), "") << message.name;
                EXPECT_EQ(difference(records[i], at), "") << message.name;
                EXPECT_EQ(compact_form(records[i]), compact_form(message, at)) << message.name;
                EXPECT_EQ(exact_size(records[i]), exact_size(message, at)) << message.name;
                if (message.owns_heap)
                    continue;
                EXPECT_EQ(fixed_form(records[i]), fixed_form(message, at)) << message.name;
            }
        }
    }
}

// The compiler's own opinion of a record with every kind of gap, pointers of the host.
struct Block {
    u32 length;
    u8* data;
};
struct Entry {
    u32 f0, f1, f2;
    u16 f3, f4;
    u8 f5, f6;
    u16 f7;
    alignas(8) u64 f8;
    alignas(8) u64 f9;
    u32 f10, f11;
    alignas(8) u64 f12;
    alignas(8) u64 f13;
    u32 f14, f15, f16;
    Block f17;
    u8 f18;
    Block f19;
    u8 f20, f21;
    u16 f22;
    Block f23;
    u8 f24;
    u32 f25;
};

TEST(Reference, record_layout_is_the_compilers)
{
    const RecordLayout& layout = message_named("ntvifit_entry_to_mdtlm").layout(host_pointer_width);
    EXPECT_EQ(layout.size, sizeof(Entry));
    EXPECT_EQ(layout.alignment, alignof(Entry));
    EXPECT_EQ(layout.offsets[8], offsetof(Entry, f8));
    EXPECT_EQ(layout.offsets[17], offsetof(Entry, f17));
    EXPECT_EQ(layout.offsets[18], offsetof(Entry, f18));
    EXPECT_EQ(layout.offsets[19], offsetof(Entry, f19));
    EXPECT_EQ(layout.offsets[23], offsetof(Entry, f23));
    EXPECT_EQ(layout.offsets[25], offsetof(Entry, f25));
}

TEST(Reference, truncation_at_any_byte_is_refused_or_cuts_unread_bytes_only)
{
    for (const Message& message : catalogue().messages) {
        Random random(message.id + 2);
        const Record record = random_record(message, Density::full, random);
        std::vector<Bytes> strings{compact_form(record), strange_layout(record, random)};
        if (!message.owns_heap)
            strings.push_back(fixed_form(record));
        for (const Bytes& whole : strings) {
            if (whole.size() > 5000)
                continue;
            for (std::size_t length = 0; length < whole.size(); ++length) {
                const Bytes bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
                Outcome outcome;
                const u8 none = 0;
                decode(message, length == 0 ? &none : bytes.data(), position_of_end(bytes), {}, outcome);
                const std::string what = message.name + " cut at " + std::to_string(length);
                if (!outcome.failure && !outcome.ignored) {
                    EXPECT_EQ(difference(as_decoded(record), outcome.record), "") << what;
                }
                expect_nothing_left(outcome, what);
            }
        }
    }
}

TEST(Reference, any_bytes_and_any_failing_allocation_leave_nothing_behind)
{
    Outcome outcome;
    for (const Message& message : catalogue().messages) {
        Random random(message.id + 3);
        const Record record = random_record(message, Density::full, random);
        for (int round = 0; round < 400; ++round) {
            Bytes bytes = round % 2 == 0 ? compact_form(record) : strange_layout(record, random);
            for (u32 i = random.below(4); i > 0; --i) {
                const u32 at = random.one_in(2) ? random.below(std::min(120U, position_of_end(bytes)))
                                                : random.below(position_of_end(bytes));
                bytes[at] = random.one_in(2) ? random.octet() : static_cast<u8>(bytes[at] + random.below(3) - 1);
            }
            DecodeOptions options;
            options.pointer_width = random.one_in(2) ? 4 : 8;
            if (random.one_in(2))
                options.faults.at = random.below(6);
            options.faults.all_after = random.one_in(2);
            decode(message, bytes.data(), position_of_end(bytes), options, outcome);
            expect_nothing_left(outcome, message.name);
        }
    }
}

struct TraceCase {
    const char* what;
    const char* message;
    const char* record;
    void (*spoil)(Bytes& bytes);
    u32 failing_allocation;
    const char* refusal;
    const char* trace;
    const char* left;   // the record after it
};

constexpr u32 none = AllocationFaults::never;

// Written out by hand.
constexpr TraceCase trace_cases[] = {
    {"a good key", "ifit_dfx_query_stat_mesh_key", "{{1 2 h'aabbcc'} zero}", [](Bytes&) {}, none, "none",
     "ifit_dfx_query_comm_param_mesh_unpack_non_root allocates block 0, size 3\n"
     "ifit_dfx_query_comm_param_mesh_free_unpacked releases block 0\n",
     "{{1 2 null*3} {0 0 0}}"},
    {"the frame's block is refused, and passes two frees", "ifit_dfx_query_stat_mesh_key", "{{1 2 h'aabbcc'} zero}",
     [](Bytes&) {}, 0, "allocation",
     "ifit_dfx_query_comm_param_mesh_unpack_non_root allocates block 0, size 3, in vain\n"
     "ifit_dfx_query_comm_param_mesh_unpack_non_root logs 12 [KESTO]:Malloc unpack data failed, size(3)\n"
     "ifit_dfx_query_comm_param_mesh_free_unpacked releases null\n"
     "ifit_dfx_query_comm_param_mesh_free_unpacked releases null\n",
     "{{1 2 null*3} {0 0 0}}"},
    {"the condition behind a good frame has a vtable at 3", "ifit_dfx_query_stat_mesh_key", "{{0 0 h'aa'} {1 2 3}}",
     [](Bytes& bytes) { put(&bytes[57], 57 - 3, 4); }, none, "vtable_position",
     "ifit_dfx_query_comm_param_mesh_unpack_non_root allocates block 0, size 1\n"
     "ifit_dfx_query_stat_cond_mesh_unpack_non_root logs 22 [KESTO]:Vtable offset(57) is out of range(4 - 69)\n"
     "ifit_dfx_query_comm_param_mesh_free_unpacked releases block 0\n",
     "{{0 0 null*1} {0 0 0}}"},
    {"the frame's table is out of range: a plain stop, then the key's own free", "ifit_dfx_query_stat_mesh_key",
     "{zero zero}", [](Bytes& bytes) { put(&bytes[16], 0x7fffff, 4); }, none, "table_position",
     "ifit_dfx_query_comm_param_mesh_unpack_non_root logs 22 [KESTO]:Table offset(8388623) is out of range(4 - 52)\n"
     "ifit_dfx_query_comm_param_mesh_free_unpacked releases null\n",
     "{{0 0 null} {0 0 0}}"},
    {"a good list of entries", "ntvifit_entry_list_mdtlm",
     "{[{0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 h'01' 0 null 0 0 0 h'0203' 0 0} zero] 9}", [](Bytes&) {}, none, "none",
     "ntvifit_entry_list_mdtlm_unpack allocates block 0, size 240\n"
     "ntvifit_entry_to_mdtlm_unpack_non_root allocates block 1, size 1\n"
     "ntvifit_entry_to_mdtlm_unpack_non_root allocates block 2, size 2\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases block 1\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases block 2\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
     "ntvifit_entry_list_mdtlm_free_unpacked releases block 0\n",
     "{null*2 9}"},
    {"an entry's second block is refused: its own free, then the list's over all elements", "ntvifit_entry_list_mdtlm",
     "{[{0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 h'01' 0 null 0 0 0 h'0203' 0 0} zero] 9}", [](Bytes&) {}, 2, "allocation",
     "ntvifit_entry_list_mdtlm_unpack allocates block 0, size 240\n"
     "ntvifit_entry_to_mdtlm_unpack_non_root allocates block 1, size 1\n"
     "ntvifit_entry_to_mdtlm_unpack_non_root allocates block 2, size 2, in vain\n"
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
     "{null*2 0}"},
    {"a block nested in an element: the free of the leaf, of the element, of the list", "ntvifit_stats_info_list",
     "{[{zero zero zero zero {5 h'0708'} 0 0 0 0 0 0 0 0 0}]}", [](Bytes&) {}, 1, "allocation",
     "ntvifit_stats_info_list_unpack allocates block 0, size 216\n"
     "ntvifit_app_data_unpack_non_root allocates block 1, size 2, in vain\n"
     "ntvifit_app_data_unpack_non_root logs 12 [KESTO]:Malloc unpack data failed, size(2)\n"
     "ntvifit_app_data_free_unpacked releases null\n"
     "ntvifit_app_data_free_unpacked releases null\n"
     "ntvifit_app_data_free_unpacked releases null\n"
     "ntvifit_stats_info_list_free_unpacked releases block 0\n",
     "{null*1}"},
    {"an array count of an element", "ifit_rule_mesh_update", "{7 [zero zero]}",
     [](Bytes& bytes) { put(&bytes[34 + 46 + 4 + 8], 15, 4); }, none, "array_count",
     "ifit_rule_mesh_update_unpack allocates block 0, size 144\n"
     "ifit_rule_mesh_update_free_unpacked releases block 0\n",
     "{7 null*2}"},
    {"empty text has a block", "ifit_dfx_query_glbdata_item_mesh", "{\"\"}", [](Bytes&) {}, none, "none",
     "ifit_dfx_query_glbdata_item_mesh_unpack allocates block 0, size 1\n"
     "ifit_dfx_query_glbdata_item_mesh_free_unpacked releases block 0\n",
     "{null}"},
    {"text that is refused is logged with its NUL", "ifit_dfx_query_glbdata_item_mesh", "{\"abc\"}", [](Bytes&) {}, 0,
     "allocation",
     "ifit_dfx_query_glbdata_item_mesh_unpack allocates block 0, size 4, in vain\n"
     "ifit_dfx_query_glbdata_item_mesh_unpack logs 12 [KESTO]:Malloc unpack data failed, size(4)\n"
     "ifit_dfx_query_glbdata_item_mesh_free_unpacked releases null\n",
     "{null}"},
    {"a vtable that runs past the end", "ifit_mcp_mesh", "{1 0 0 0 0 0}", [](Bytes& bytes) { put(&bytes[4], 25, 2); },
     none, "vtable_length", "ifit_mcp_mesh_unpack logs 22 [KESTO]:Vtable Len(25) is out of range(0 - 24)\n", nullptr},
    {"a nested failure that is ignored", "ifit_smooth_begin_mesh", "{5 {6 7}}",
     [](Bytes& bytes) { put(&bytes[24], 21, 2); }, none, "none",
     "ifit_smooth_mesh_unpack_non_root logs 22 [KESTO]:Vtable Len(21) is out of range(0 - 20)\n", "{5 {0 0}}"},
};

TEST(Reference, traces_written_by_hand_are_met)
{
    for (const TraceCase& expected : trace_cases) {
        const Message& type = message_named(expected.message);
        Bytes bytes = compact_form(record_of(type, expected.record));
        expected.spoil(bytes);
        DecodeOptions options;
        options.pointer_width = 4;
        options.faults.at = expected.failing_allocation;
        Outcome outcome = decoded(type, bytes, options);
        EXPECT_STREQ(name_of(outcome.failure.refusal), expected.refusal) << expected.what;
        EXPECT_EQ(outcome.untouched, expected.left == nullptr) << expected.what;
        if (!outcome.untouched && !outcome.failure)
            free_unpacked(outcome.record, outcome.trace);
        EXPECT_EQ(to_text(outcome.trace), expected.trace) << expected.what;
        if (outcome.untouched)
            continue;
        EXPECT_EQ(reference::to_text(outcome.record), expected.left) << expected.what;
    }
}

// Counts how often each byte is read and keeps the reads as lines.
struct Coverage final : Walk {
    std::vector<int> reads;
    std::string lines;

    void read(const Item& item) override
    {
        for (u32 i = 0; i < item.length; ++i)
            ++reads[item.position + i];
        lines += std::to_string(item.position) + " " + name_of(item.piece) + " " + reference::to_text(*item.path) +
                 "=" + std::to_string(item.value) + "\n";
    }
};

u32 count_texts(const Record& record)
{
    u32 texts = 0;
    for (std::size_t k = 0; k < record.fields.size(); ++k) {
        texts += record.message->slots[k].kind == Kind::string && record.fields[k].present;
        for (const Record& nested : record.fields[k].records)
            texts += count_texts(nested);
    }
    return texts;
}

// The lengths of the parts, as they are stated, leave this many bytes of a fixed form over.
u32 gap_bytes(const Message& message)
{
    u32 gaps = message.fixed_length - 4 - message.fixed_table_length - message.vtable_length;
    for (const Slot& slot : message.slots) {
        if (slot.kind == Kind::table)
            gaps += gap_bytes(*slot.nested);
    }
    return gaps;
}

TEST(Reference, a_walk_shows_every_byte_of_our_own_forms_once_but_gaps_and_NULs)
{
    for (const Message& message : catalogue().messages) {
        Random random(message.id + 4);
        const Record record = random_record(message, Density::full, random);
        for (const bool fixed : {false, true}) {
            if (fixed && message.owns_heap)
                continue;
            const Bytes bytes = fixed ? fixed_form(record) : compact_form(record);
            Coverage coverage;
            coverage.reads.assign(bytes.size(), 0);
            DecodeOptions options;
            options.walk = &coverage;
            decoded(message, bytes, options);
            for (std::size_t i = 0; i < bytes.size(); ++i) {
                EXPECT_LE(coverage.reads[i], 1) << message.name << " " << i;
                EXPECT_TRUE(coverage.reads[i] == 1 || bytes[i] == 0) << message.name << " " << i;
            }
            const auto unread = std::count(coverage.reads.begin(), coverage.reads.end(), 0);
            EXPECT_EQ(unread, fixed ? gap_bytes(message) : count_texts(record)) << message.name;
        }
    }
}

TEST(Reference, a_walk_tells_where_it_is)
{
    Coverage coverage;
    DecodeOptions options;
    options.walk = &coverage;
    const Message& type = message_named("ifit_request_app_pid_smooth_mesh");
    const Bytes bytes = compact_form(record_of(type, "{7 [{8} {9}]}"));
    coverage.reads.assign(bytes.size(), 0);
    decoded(type, bytes, options);
    EXPECT_EQ(coverage.lines,
              "0 root =12\n12 vtable_offset =8\n4 vtable_length =8\n6 table_length =22\n"
              "8 slot f0=4\n16 scalar f0=7\n"
              "10 slot f1=6\n18 cell f1=4\n22 count f1=2\n"
              "26 element_cell f1[0]=14\n40 vtable_offset f1[0]=6\n34 vtable_length f1[0]=6\n36 table_length f1[0]=8\n"
              "38 slot f1[0].f0=4\n44 scalar f1[0].f0=8\n"
              "30 element_cell f1[1]=24\n54 vtable_offset f1[1]=6\n48 vtable_length f1[1]=6\n50 table_length f1[1]=8\n"
              "52 slot f1[1].f0=4\n58 scalar f1[1].f0=9\n");
}

struct EdgeCase {
    const char* message;
    const char* hex;
    const char* refusal;
    const char* left;   // the record after it; none if it is untouched
};

// Each on the edge or one off it. The bytes of a case are given whole, root word first.
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

Bytes bytes_of(const std::string& hex)
{
    Bytes bytes;
    std::string digits;
    std::copy_if(hex.begin(), hex.end(), std::back_inserter(digits), [](char digit) { return digit != ' '; });
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        bytes.push_back(static_cast<u8>(std::stoul(digits.substr(i, 2), nullptr, 16)));
    }
    return bytes;
}

TEST(Reference, edges_of_every_test_are_on_the_right_side)
{
    for (const EdgeCase& edge : edge_cases) {
        const Message& type = message_named(edge.message);
        Outcome outcome = decoded(type, bytes_of(edge.hex));
        EXPECT_STREQ(name_of(outcome.failure.refusal), edge.refusal) << edge.message << " " << edge.hex;
        EXPECT_EQ(outcome.untouched, edge.left == nullptr) << edge.message << " " << edge.hex;
        if (outcome.untouched)
            continue;
        if (!outcome.failure)
            outcome.record = as_decoded(outcome.record);
        EXPECT_EQ(difference(record_of(type, edge.left), outcome.record), "") << edge.message << " " << edge.hex;
    }
}

TEST(Reference, parameters_are_refused_with_their_log_and_leave_the_record)
{
    const Message& type = message_named("ifit_mcp_mesh");
    const Bytes bytes = fixed_form(zero_record(type));
    const auto trace = [&](const u8* buffer, u32 length, bool record_null) {
        Outcome outcome;
        DecodeOptions options;
        options.record_null = record_null;
        decode(type, buffer, length, options, outcome);
        EXPECT_TRUE(outcome.untouched);
        return to_text(outcome.trace);
    };
    const std::string head = "ifit_mcp_mesh_unpack logs 22 [KESTO]:Param invalid(";
    EXPECT_EQ(trace(nullptr, 40, false), head + "null, 40, nonNull)\n");
    EXPECT_EQ(trace(nullptr, 3, true), head + "null, 3, null)\n");
    EXPECT_EQ(trace(bytes.data(), 40, true), head + "nonNull, 40, null)\n");
    EXPECT_EQ(trace(bytes.data(), 3, false), head + "nonNull, 3, nonNull)\n");
    EXPECT_EQ(trace(bytes.data(), 0x80000000U, false), head + "nonNull, -2147483648, nonNull)\n");
    EXPECT_EQ(trace(bytes.data(), 0xffffffffU, false), head + "nonNull, -1, nonNull)\n");
}

// A list whose count is so great that its array's size wraps. All cells are 0: an element of nothing.
struct GreatList {
    u32 length;
    u8* bytes;

    GreatList(u16 slot_0, u16 slot_1, u32 count) : length(24 + 4 * count + 64)
    {
        bytes = static_cast<u8*>(std::calloc(length, 1));
        put(bytes, 12, 4);
        put(bytes + 4, 8, 2);
        put(bytes + 8, slot_0, 2);
        put(bytes + 10, slot_1, 2);
        put(bytes + 12, 8, 4);
        put(bytes + 16, 4, 4);
        put(bytes + 20, count, 4);
    }
    GreatList(const GreatList&) = delete;
    GreatList& operator=(const GreatList&) = delete;
    ~GreatList() { std::free(bytes); }
};

TEST(Reference, an_array_whose_size_wraps_ends_the_decode_within_its_block)
{
    DecodeOptions options;
    options.pointer_width = 4;
    Outcome outcome;

    // 120 bytes an entry: 35791396 of them come to 2^32 + 224, room for one. It has a block of its own.
    const u32 count = 35791396;
    const GreatList list(4, 0, count);
    u8* const tail = list.bytes + 24 + 4 * count;
    put(list.bytes + 24, 4 * count + 40, 4);   // element 0: its vtable of 18 slots and its table behind the cells
    put(tail, 40, 2);
    put(tail + 38, 4, 2);
    put(tail + 40, 40, 4);
    put(tail + 44, 4, 4);
    put(tail + 48, 1, 4);
    put(tail + 52, 7, 1);
    decode(message_named("ntvifit_entry_list_mdtlm"), list.bytes, list.length, options, outcome);
    EXPECT_STREQ(name_of(outcome.failure.refusal), "element_block");
    EXPECT_EQ(to_text(outcome.trace), "ntvifit_entry_list_mdtlm_unpack allocates block 0, size 224\n"
                                      "ntvifit_entry_to_mdtlm_unpack_non_root allocates block 1, size 1\n"
                                      "ntvifit_entry_to_mdtlm_free_unpacked releases block 1\n"
                                      "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
                                      "ntvifit_entry_to_mdtlm_free_unpacked releases null\n"
                                      "ntvifit_entry_list_mdtlm_free_unpacked releases block 0\n");
    EXPECT_EQ(reference::to_text(outcome.record), "{null*35791396 0}");

    // 256 bytes an entry: 2^24 of them come to 0, and there is no array at all.
    const GreatList nothing(0, 4, 1U << 24);
    decode(message_named("ifit_sync_ifit_session_entry_update"), nothing.bytes, nothing.length, options, outcome);
    EXPECT_STREQ(name_of(outcome.failure.refusal), "element_null");
    EXPECT_EQ(to_text(outcome.trace), "ifit_sync_ifit_session_entry_update_unpack logs 22 "
                                      "[KESTO]:Param invalid(nonNull, 67108952, null)\n");
    EXPECT_EQ(reference::to_text(outcome.record), "{0 null*16777216}");
}

}   // namespace
}   // namespace kesto::tests
