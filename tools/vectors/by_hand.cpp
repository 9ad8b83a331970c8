#include "tools/vectors/by_hand.h"

#include <algorithm>

#include "tools/kesto/input.h"

namespace kesto::vectors {

namespace {

using command::bytes_from_hex;

// ifit_mcp_mesh_delete: no f0, and f1 with one element whose f0 is 7.
constexpr const char one_element[] = "0c000000 "         //  0 root: 12
                                     "0800 1000 "        //  4 vtable: 8, the table has 16
                                     "0000 0400 "        //  8 slots: absent, 16
                                     "08000000 "         // 12 table: vtable 8 back
                                     "04000000 "         // 16 cell: 20
                                     "01000000 "         // 20 count
                                     "0a000000 "         // 24 element cell: 34
                                     "0600 0800 0400 "   // 28 vtable: 6, the table has 8; slot: 38
                                     "06000000 "         // 34 table: vtable 6 back
                                     "07000000";         // 38 f0

// ifit_dfx_query_glbdata_item_mesh: "hello".
constexpr const char one_text[] = "0a000000 "         //  0 root: 10
                                  "0600 1200 0400 "   //  4 vtable: 6, the table has 18; slot: 14
                                  "06000000 "         // 10 table: vtable 6 back
                                  "04000000 "         // 14 cell: 18
                                  "05000000 "         // 18 length
                                  "68656c6c6f 00";    // 22 "hello" and its NUL

// ifit_dfx_query_comm_param_mesh: f2 with two bytes.
constexpr const char one_block[] = "0e000000 "                   //  0 root: 14
                                   "0a00 0e00 0000 0000 0400 "   //  4 vtable: 10, the table has 14; slots: f2 at 18
                                   "0a000000 "                   // 14 table: vtable 10 back
                                   "04000000 "                   // 18 cell: 22
                                   "02000000 "                   // 22 length
                                   "abcd";                       // 26 content

// ifit_smooth_begin_mesh: f1 is a nested table whose refusal does not refuse the message.
constexpr const char lenient[] = "0c000000 "              //  0 root: 12
                                 "0800 0c00 0400 0800 "   //  4 vtable: 8, the table has 12; slots: 16, 20
                                 "08000000 "              // 12 table: vtable 8 back
                                 "09000000 "              // 16 f0
                                 "0c000000 "              // 20 cell: 32
                                 "0800 0c00 0400 0800 "   // 24 vtable: 8, the table has 12; slots: 36, 40
                                 "08000000 "              // 32 table: vtable 8 back
                                 "01000000 02000000";     // 36 f0, f1

struct Case {
    const char* about;
    const char* code;
    const char* message;
    const char* bytes;
    std::size_t at = 0;   // position at which `instead` replaces part of `bytes`
    const char* instead = "";
};

constexpr const char keys[] = "ifit_mcp_mesh_delete";
constexpr const char key[] = "ifit_mcp_mesh_key";
constexpr const char pair[] = "ifit_smooth_mesh";
constexpr const char text[] = "ifit_dfx_query_glbdata_item_mesh";
constexpr const char block[] = "ifit_dfx_query_comm_param_mesh";
constexpr const char begin[] = "ifit_smooth_begin_mesh";

constexpr Case cases[] = {
    // ---- accepted ----
    {"a vector with one element", "none", keys, one_element},
    {"a text", "none", text, one_text},
    {"a block", "none", block, one_block},
    {"a nested table", "none", begin, lenient},
    {"the shortest byte string: the table is its own vtable, of length 0", "none", key, "04000000 00000000"},
    {"a message with an array and a nested table of which nothing is there", "none", "ifit_dfx_query_stat_item_mesh",
     "08000000 0400 0400 04000000"},
    {"a vtable length of 0, too short for itself", "none", keys, one_element, 4, "00"},
    {"a vtable length of 3, too short for itself", "none", keys, one_element, 4, "03"},
    {"a vtable length of 5: no slot", "none", keys, one_element, 4, "05"},
    {"a vtable length of 6: f1 is absent", "none", keys, one_element, 4, "06"},
    {"an odd vtable length of 7: f1 is absent", "none", keys, one_element, 4, "07"},
    {"an odd vtable length of 9: f1 is there", "none", keys, one_element, 4, "09"},
    {"an odd vtable length of an element", "none", keys, one_element, 28, "07"},
    {"a longer vtable, with a slot that nobody knows and that leads outside", "none", key,
     "0c000000 0800 0800 0400 ffff 08000000 2a000000"},
    {"a wrong table length", "none", keys, one_element, 6, "ffff"},
    {"a vtable after its table: the distance to it is -8 modulo 2^32", "none", key,
     "04000000 f8ffffff 2a000000 0600 0800 0400"},
    {"a vtable that ends with the byte string, of no slots", "none", key, "04000000 fcffffff 0400 0400"},
    {"a slot into the vtable: f0 is what the vtable begins with", "none", key, "04000000 fcffffff 0600 0800 0400"},
    {"a slot into the table's own first word", "none", key, "0a000000 0600 0800 0100 06000000 2a000000"},
    {"two scalars that overlap by three bytes", "none", pair, "0c000000 0800 0900 0400 0500 08000000 0102030405"},
    {"two scalars at one place", "none", pair, "0c000000 0800 0800 0400 0400 08000000 01020304"},
    {"two elements that are one table", "none", keys,
     "0c000000 0800 1400 0000 0400 08000000 04000000 02000000 0e000000 0a000000 0600 0800 0400 06000000 07000000"},
    {"two elements with one vtable", "none", keys,
     "0c000000 0800 1400 0000 0400 08000000 04000000 02000000 0e000000 12000000 0600 0800 0400 06000000 07000000 "
     "0e000000 08000000"},
    {"an element that uses the root table's vtable", "none", keys,
     "0c000000 0800 1000 0400 0800 08000000 05000000 04000000 01000000 04000000 1c000000 06000000"},
    {"a cell that leads to itself: an empty text", "none", text, one_text, 14, "00"},
    {"a cell that leads to itself: an empty vector, which is null", "none", keys, one_element, 16, "00"},
    {"a block of length 0, which is null", "none", block, one_block, 22, "00"},
    {"a text of length 0, which is not null", "none", text, one_text, 18, "00"},
    {"a text without NUL at the end of the byte string", "none", text,
     "0a000000 0600 1100 0400 06000000 04000000 05000000 68656c6c6f"},
    {"a text that takes the byte after it, too", "none", text, one_text, 18, "06"},
    {"a text with a NUL within", "none", text, one_text, 24, "00"},
    {"a text that is not UTF-8", "none", text, one_text, 22, "ff"},
    {"bytes after the message that nobody reads", "none", key, "0a000000 0600 0800 0400 06000000 2a000000 ffffffffff"},
    {"bytes before the vtable that nobody reads", "none", key, "0e000000 ffffffff 0600 0800 0400 06000000 2a000000"},
    {"a nested table outside, which is ignored; a line is logged", "none", begin, lenient, 20, "ffffff7f"},
    {"a nested table whose vtable is outside, which is ignored; a line is logged", "none", begin, lenient, 32, "80"},
    {"a nested table whose vtable is too long, which is ignored; a line is logged", "none", begin, lenient, 24, "ff"},
    {"a nested table whose second scalar is outside: its first one stays", "none", begin, lenient, 30, "0900"},

    // ---- refused ----
    {"nothing", "length_below_4", key, ""},
    {"one byte", "length_below_4", key, "04"},
    {"three bytes", "length_below_4", text, "040000"},
    {"a root and nothing else", "table_position", key, "04000000"},
    {"a root that leads to itself", "table_position", key, one_text, 0, "00"},
    {"a root that leads into itself", "table_position", key, one_text, 0, "03"},
    {"a root that leads to the last byte but two", "table_position", text, one_text, 0, "19"},
    {"a root of all ones", "table_position", text, one_text, 0, "ffffffff"},
    {"an element outside", "table_position", keys, one_element, 24, "0f"},
    {"an element cell that leads to the last place below 2^32", "table_position", keys, one_element, 24, "e7ffffff"},
    {"a vtable at 0", "vtable_position", text, one_text, 10, "0a"},
    {"a vtable at 3", "vtable_position", text, one_text, 10, "07"},
    {"a vtable past the end", "vtable_position", text, one_text, 10, "eeffffff"},
    {"an element's vtable before 4", "vtable_position", keys, one_element, 34, "20"},
    {"a vtable that ends a byte past the end", "vtable_length", text, one_text, 4, "19"},
    {"a vtable of 65535 bytes", "vtable_length", text, one_text, 4, "ffff"},
    {"an element's vtable that ends a byte past the end", "vtable_length", keys, one_element, 28, "0f"},
    {"a scalar that ends a byte past the end", "scalar_end", key, "0a000000 0600 0800 0500 06000000 2a000000"},
    {"an element's scalar that ends a byte past the end", "scalar_end", keys, one_element, 32, "05"},
    {"a scalar of which only the first byte is there", "scalar_end", key, "0a000000 0600 0800 0700 06000000 2a000000"},
    {"a slot of 65535", "scalar_end", key, "0a000000 0600 0800 ffff 06000000 2a000000"},
    {"a cell that ends a byte past the end", "cell_end", keys, one_element, 10, "1b"},
    {"a cell of 65535", "cell_end", text, one_text, 8, "ffff"},
    {"a cell that leads to 2^32, which is 0", "reference_wrap", text, one_text, 14, "f2ffffff"},
    {"a cell that leads to the byte before it", "reference_wrap", keys, one_element, 16, "ffffffff"},
    {"a cell that leads to the last place below 2^32", "reference_range", text, one_text, 14, "f1ffffff"},
    {"a cell that leads to a count of three bytes", "reference_range", keys, one_element, 16, "17"},
    {"a cell that leads right past the end", "reference_range", block, one_block, 18, "0a"},
    {"a text that ends a byte past the end", "body_end", text, one_text, 18, "07"},
    {"a text whose length and NUL come to 2^32", "body_end", text, one_text, 18, "ffffffff"},
    {"a text whose end comes to 2^32", "body_end", text, one_text, 18, "eaffffff"},
    {"a block that ends a byte past the end", "body_end", block, one_block, 22, "03"},
    {"a block whose end wraps to within", "body_end", block, one_block, 22, "f0ffffff"},
    {"element cells that end past the end", "body_end", keys, one_element, 20, "05"},
    {"the greatest count that is looked at", "body_end", keys, one_element, 20, "ffffff3f"},
    {"a count whose cells come to 2^32 bytes", "count_range", keys, one_element, 20, "00000040"},
    {"a count whose cells come to 2^32 and 4 bytes", "count_range", keys, one_element, 20, "01000040"},
    {"an element cell that leads to the byte before it", "element_wrap", keys, one_element, 24, "ffffffff"},
    {"an element cell that leads to 2^32, which is 0", "element_wrap", keys, one_element, 24, "e8ffffff"},
    {"a nested cell that leads to 2^32, which is 0", "nested_wrap", begin, lenient, 20, "ecffffff"},
    {"a nested cell that leads to the byte before it", "nested_wrap", begin, lenient, 20, "ffffffff"},
    {"a nested table is ignored, and its cell is not", "cell_end", begin, lenient, 10, "1d"},
};

Bytes bytes_of(const Case& each)
{
    Bytes bytes = bytes_from_hex(each.bytes);
    const Bytes instead = bytes_from_hex(each.instead);
    std::copy(instead.begin(), instead.end(), bytes.begin() + static_cast<std::ptrdiff_t>(each.at));
    return bytes;
}

}   // namespace

std::vector<ByHand> by_hand()
{
    std::vector<ByHand> all;
    for (const Case& each : cases)
        all.push_back({{each.about, command::find_message(each.message), bytes_of(each)}, each.code});
    return all;
}

}   // namespace kesto::vectors
