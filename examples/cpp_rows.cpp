// A table of three rows as bytes and back, in C++: fields as spans, records that free themselves, and what can be told
// of bytes that were cut.
#include <array>
#include <cstdio>

#include "ntvifit.hpp"

int main()
{
    std::array<ntvifit_entry_to_mdtlm, 3> rows{};
    const std::array<std::uint8_t, 2> payload{0xAB, 0xCD};
    for (std::uint32_t i = 0; i < rows.size(); ++i) {
        rows[i].f0 = 100 + i;
        ifit_codec::point_to(rows[i].f17, payload);
    }
    ntvifit_entry_list_mdtlm sent{};
    ifit_codec::point_to(sent.f0, rows);

    std::array<std::uint8_t, 512> buffer;
    const auto packed = ifit_codec::pack(sent, buffer);
    if (!packed)
        return 1;

    for (const std::size_t length : {packed->size(), packed->size() / 2, std::size_t{10}}) {
        const auto [record, result] = ifit_codec::unpack<ntvifit_entry_list_mdtlm>(packed->first(length));
        std::printf("%zu bytes: %s\n", length,
                    result == ifit_codec::outcome::decoded   ? "decoded"
                    : result == ifit_codec::outcome::refused ? "refused"
                                                             : "decoded without rows, or refused");
        for (const ntvifit_entry_to_mdtlm& row : ifit_codec::view(record->f0))
            std::printf("    row %u with %zu bytes\n", row.f0, ifit_codec::view(row.f17).size());
    }   // each record has freed itself
    return 0;
}
