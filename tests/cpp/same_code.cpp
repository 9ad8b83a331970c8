// Pairs of functions that do the same by the C functions and by ifit_codec.hpp: same_code.py compares their machine code.
#include "ifit_dfx.hpp"
#include "ntvifit.hpp"

using record = ntvifit_entry_list_mdtlm;
using leaf = ntvifit_stats_data;

extern "C" {

std::uint64_t c_leaf(const std::uint8_t* bytes, std::uint32_t length)
{
    struct {
        leaf record;
        std::uint8_t result;
    } got = {};
    ntvifit_stats_data__unpack(bytes, length, &got.record);
    got.result = 0;   // kept beside the record: unknown
    return got.record.f4 + got.record.f0;
}

std::uint64_t cpp_leaf(const std::uint8_t* bytes, std::uint32_t length)
{
    const auto got = ifit_codec::unpack<leaf>({bytes, length});
    return got.record->f4 + got.record->f0;
}

// A C program that keeps beside the record whether it was decoded, and reads the rows of one that was.
std::uint32_t c_rows(const std::uint8_t* bytes, std::uint32_t length)
{
    std::uint8_t mark = 0;
    struct {
        record row_list;
        std::uint8_t result;
    } got = {};
    got.row_list.f0.items = reinterpret_cast<ntvifit_entry_to_mdtlm*>(&mark);
    ntvifit_entry_list_mdtlm__unpack(bytes, length, &got.row_list);
    if (got.row_list.f0.items == reinterpret_cast<ntvifit_entry_to_mdtlm*>(&mark)) {
        got.row_list.f0.items = nullptr;
        got.result = 1;
    } else if (got.row_list.f0.items != nullptr) {
        got.result = 2;
    } else {
        got.result = got.row_list.f0.count != 0;
    }
    std::uint32_t sum = 0;
    if (got.result == 2)
        for (std::uint32_t i = 0; i < got.row_list.f0.count; ++i)
            sum += got.row_list.f0.items[i].f0;
    ntvifit_entry_list_mdtlm_free__unpacked(&got.row_list);
    return sum;
}

std::uint32_t cpp_rows(const std::uint8_t* bytes, std::uint32_t length)
{
    const auto got = ifit_codec::unpack<record>({bytes, length});
    std::uint32_t sum = 0;
    if (got.result == ifit_codec::outcome::decoded)
        for (const ntvifit_entry_to_mdtlm& row : ifit_codec::view(got.record->f0))
            sum += row.f0;
    return sum;
}

std::uint32_t c_pack(const record* sent, std::uint8_t* buffer, std::uint32_t room)
{
    return ntvifit_entry_list_mdtlm__pack(sent, buffer, &room) == 0 ? room : 0;
}

std::uint32_t cpp_pack(const record* sent, std::uint8_t* buffer, std::uint32_t room)
{
    const auto packed = ifit_codec::pack(*sent, {buffer, room});
    return packed ? static_cast<std::uint32_t>(packed->size()) : 0;
}

int c_send(std::uint32_t channel, const leaf* sent) { return ntvifit_stats_data__sendtomsg(channel, sent, 1, 4); }
int cpp_send(std::uint32_t channel, const leaf* sent) { return ifit_codec::send(channel, *sent, 4); }

int c_batch(std::uint32_t channel, const leaf* sent, std::uint32_t count)
{
    return ntvifit_stats_data__sendmsg(channel, sent, count);
}

int cpp_batch(std::uint32_t channel, const leaf* sent, std::uint32_t count)
{
    return ifit_codec::send_batch(channel, std::span(sent, count));
}

int c_greet(std::uint32_t channel)
{
    char text[] = "hello";
    ifit_dfx_query_glbdata_item_mesh sent = {};
    sent.f0 = text;
    return ifit_dfx_query_glbdata_item_mesh__sendmsg(channel, &sent, 1);
}

int cpp_greet(std::uint32_t channel)
{
    const char text[] = "hello";
    ifit_dfx_query_glbdata_item_mesh sent{};
    ifit_codec::point_to(sent.f0, text);
    return ifit_codec::send(channel, sent);
}
}
