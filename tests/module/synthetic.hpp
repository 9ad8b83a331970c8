// synthetic.hpp: the synthetic messages for C++20; ifit_codec.hpp explains. Printed from the catalogue by `./run headers`;
// do not edit.
#ifndef KESTO_SYNTHETIC_HPP
#define KESTO_SYNTHETIC_HPP

#include "synthetic.h"
#include "ifit_codec.hpp"

namespace ifit_codec {

template <>
struct message_traits<::synthetic_byte> {
    static constexpr std::uint32_t id = SYNTHETIC_BYTE_ID;
    static constexpr std::string_view name = "synthetic_byte";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 24;
    static constexpr std::uint32_t compact_least = 14;
    static constexpr std::uint32_t compact_most = 15;
    static constexpr auto unpack = ::synthetic_byte__unpack;
    static constexpr auto pack = ::synthetic_byte__pack;
    static constexpr auto sendmsg = ::synthetic_byte__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_byte__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_byte_free__unpacked;
};

template <>
struct message_traits<::synthetic_pair> {
    static constexpr std::uint32_t id = SYNTHETIC_PAIR_ID;
    static constexpr std::string_view name = "synthetic_pair";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 32;
    static constexpr std::uint32_t compact_least = 16;
    static constexpr std::uint32_t compact_most = 25;
    static constexpr auto unpack = ::synthetic_pair__unpack;
    static constexpr auto pack = ::synthetic_pair__pack;
    static constexpr auto sendmsg = ::synthetic_pair__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_pair__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_pair_free__unpacked;
};

template <>
struct message_traits<::synthetic_eight> {
    static constexpr std::uint32_t id = SYNTHETIC_EIGHT_ID;
    static constexpr std::string_view name = "synthetic_eight";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 56;
    static constexpr std::uint32_t compact_least = 28;
    static constexpr std::uint32_t compact_most = 51;
    static constexpr auto unpack = ::synthetic_eight__unpack;
    static constexpr auto pack = ::synthetic_eight__pack;
    static constexpr auto sendmsg = ::synthetic_eight__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_eight__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_eight_free__unpacked;
};

template <>
struct message_traits<::synthetic_nine> {
    static constexpr std::uint32_t id = SYNTHETIC_NINE_ID;
    static constexpr std::string_view name = "synthetic_nine";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 64;
    static constexpr std::uint32_t compact_least = 30;
    static constexpr std::uint32_t compact_most = 57;
    static constexpr auto unpack = ::synthetic_nine__unpack;
    static constexpr auto pack = ::synthetic_nine__pack;
    static constexpr auto sendmsg = ::synthetic_nine__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_nine__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_nine_free__unpacked;
};

template <>
struct message_traits<::synthetic_twelve> {
    static constexpr std::uint32_t id = SYNTHETIC_TWELVE_ID;
    static constexpr std::string_view name = "synthetic_twelve";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 88;
    static constexpr std::uint32_t compact_least = 36;
    static constexpr std::uint32_t compact_most = 84;
    static constexpr auto unpack = ::synthetic_twelve__unpack;
    static constexpr auto pack = ::synthetic_twelve__pack;
    static constexpr auto sendmsg = ::synthetic_twelve__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_twelve__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_twelve_free__unpacked;
};

template <>
struct message_traits<::synthetic_fourteen> {
    static constexpr std::uint32_t id = SYNTHETIC_FOURTEEN_ID;
    static constexpr std::string_view name = "synthetic_fourteen";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 80;
    static constexpr std::uint32_t compact_least = 40;
    static constexpr std::uint32_t compact_most = 76;
    static constexpr auto unpack = ::synthetic_fourteen__unpack;
    static constexpr auto pack = ::synthetic_fourteen__pack;
    static constexpr auto sendmsg = ::synthetic_fourteen__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_fourteen__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_fourteen_free__unpacked;
};

template <>
struct message_traits<::synthetic_fifteen> {
    static constexpr std::uint32_t id = SYNTHETIC_FIFTEEN_ID;
    static constexpr std::string_view name = "synthetic_fifteen";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 88;
    static constexpr std::uint32_t compact_least = 42;
    static constexpr std::uint32_t compact_most = 83;
    static constexpr auto unpack = ::synthetic_fifteen__unpack;
    static constexpr auto pack = ::synthetic_fifteen__pack;
    static constexpr auto sendmsg = ::synthetic_fifteen__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_fifteen__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_fifteen_free__unpacked;
};

template <>
struct message_traits<::synthetic_wide> {
    static constexpr std::uint32_t id = SYNTHETIC_WIDE_ID;
    static constexpr std::string_view name = "synthetic_wide";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 224;
    static constexpr std::uint32_t compact_least = 102;
    static constexpr std::uint32_t compact_most = 222;
    static constexpr auto unpack = ::synthetic_wide__unpack;
    static constexpr auto pack = ::synthetic_wide__pack;
    static constexpr auto sendmsg = ::synthetic_wide__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_wide__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_wide_free__unpacked;
};

template <>
struct message_traits<::synthetic_array> {
    static constexpr std::uint32_t id = SYNTHETIC_ARRAY_ID;
    static constexpr std::string_view name = "synthetic_array";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 184;
    static constexpr std::uint32_t compact_least = 182;
    static constexpr std::uint32_t compact_most = 182;
    static constexpr auto unpack = ::synthetic_array__unpack;
    static constexpr auto pack = ::synthetic_array__pack;
    static constexpr auto sendmsg = ::synthetic_array__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_array__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_array_free__unpacked;
};

template <>
struct message_traits<::synthetic_arrays> {
    static constexpr std::uint32_t id = SYNTHETIC_ARRAYS_ID;
    static constexpr std::string_view name = "synthetic_arrays";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 80;
    static constexpr std::uint32_t compact_least = 64;
    static constexpr std::uint32_t compact_most = 74;
    static constexpr auto unpack = ::synthetic_arrays__unpack;
    static constexpr auto pack = ::synthetic_arrays__pack;
    static constexpr auto sendmsg = ::synthetic_arrays__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_arrays__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_arrays_free__unpacked;
};

template <>
struct message_traits<::synthetic_frame> {
    static constexpr std::uint32_t id = SYNTHETIC_FRAME_ID;
    static constexpr std::string_view name = "synthetic_frame";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 144;
    static constexpr std::uint32_t compact_least = 100;
    static constexpr std::uint32_t compact_most = 124;
    static constexpr auto unpack = ::synthetic_frame__unpack;
    static constexpr auto pack = ::synthetic_frame__pack;
    static constexpr auto sendmsg = ::synthetic_frame__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_frame__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_frame_free__unpacked;
};

template <>
struct message_traits<::synthetic_nested_frame> {
    static constexpr std::uint32_t id = SYNTHETIC_NESTED_FRAME_ID;
    static constexpr std::string_view name = "synthetic_nested_frame";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 168;
    static constexpr std::uint32_t compact_least = 116;
    static constexpr std::uint32_t compact_most = 142;
    static constexpr auto unpack = ::synthetic_nested_frame__unpack;
    static constexpr auto pack = ::synthetic_nested_frame__pack;
    static constexpr auto sendmsg = ::synthetic_nested_frame__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_nested_frame__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_nested_frame_free__unpacked;
};

template <>
struct message_traits<::synthetic_flat_lenient> {
    static constexpr std::uint32_t id = SYNTHETIC_FLAT_LENIENT_ID;
    static constexpr std::string_view name = "synthetic_flat_lenient";
    static constexpr bool owns_blocks = false;
    static constexpr std::uint32_t fixed_length = 56;
    static constexpr std::uint32_t compact_least = 32;
    static constexpr std::uint32_t compact_most = 43;
    static constexpr auto unpack = ::synthetic_flat_lenient__unpack;
    static constexpr auto pack = ::synthetic_flat_lenient__pack;
    static constexpr auto sendmsg = ::synthetic_flat_lenient__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_flat_lenient__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_flat_lenient_free__unpacked;
};

template <>
struct message_traits<::synthetic_text> {
    static constexpr std::uint32_t id = SYNTHETIC_TEXT_ID;
    static constexpr std::string_view name = "synthetic_text";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 14;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::synthetic_text__unpack;
    static constexpr auto pack = ::synthetic_text__pack;
    static constexpr auto sendmsg = ::synthetic_text__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_text__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_text_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::synthetic_text& record, Visit&& visit)
    {
        visit(record.f0);
    }
};

template <>
struct message_traits<::synthetic_block> {
    static constexpr std::uint32_t id = SYNTHETIC_BLOCK_ID;
    static constexpr std::string_view name = "synthetic_block";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 14;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::synthetic_block__unpack;
    static constexpr auto pack = ::synthetic_block__pack;
    static constexpr auto sendmsg = ::synthetic_block__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_block__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_block_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::synthetic_block& record, Visit&& visit)
    {
        visit(record.f0);
    }
};

template <>
struct message_traits<::synthetic_owner> {
    static constexpr std::uint32_t id = SYNTHETIC_OWNER_ID;
    static constexpr std::string_view name = "synthetic_owner";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 22;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::synthetic_owner__unpack;
    static constexpr auto pack = ::synthetic_owner__pack;
    static constexpr auto sendmsg = ::synthetic_owner__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_owner__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_owner_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::synthetic_owner& record, Visit&& visit)
    {
        visit(record.f1);
        visit(record.f3);
    }
};

template <>
struct message_traits<::synthetic_long_owner> {
    static constexpr std::uint32_t id = SYNTHETIC_LONG_OWNER_ID;
    static constexpr std::string_view name = "synthetic_long_owner";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 91;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::synthetic_long_owner__unpack;
    static constexpr auto pack = ::synthetic_long_owner__pack;
    static constexpr auto sendmsg = ::synthetic_long_owner__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_long_owner__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_long_owner_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::synthetic_long_owner& record, Visit&& visit)
    {
        visit(record.f0);
        visit(record.f8);
        visit(record.f17);
    }
};

template <>
struct message_traits<::synthetic_nested_owner> {
    static constexpr std::uint32_t id = SYNTHETIC_NESTED_OWNER_ID;
    static constexpr std::string_view name = "synthetic_nested_owner";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 142;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::synthetic_nested_owner__unpack;
    static constexpr auto pack = ::synthetic_nested_owner__pack;
    static constexpr auto sendmsg = ::synthetic_nested_owner__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_nested_owner__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_nested_owner_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::synthetic_nested_owner& record, Visit&& visit)
    {
        visit(record.f0.f1);
        visit(record.f0.f3);
        visit(record.f3);
    }
};

template <>
struct message_traits<::synthetic_lenient> {
    static constexpr std::uint32_t id = SYNTHETIC_LENIENT_ID;
    static constexpr std::string_view name = "synthetic_lenient";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 60;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::synthetic_lenient__unpack;
    static constexpr auto pack = ::synthetic_lenient__pack;
    static constexpr auto sendmsg = ::synthetic_lenient__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_lenient__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_lenient_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::synthetic_lenient& record, Visit&& visit)
    {
        visit(record.f0.f1);
        visit(record.f0.f3);
        visit(record.f3);
    }
};

template <>
struct message_traits<::synthetic_long_lenient> {
    static constexpr std::uint32_t id = SYNTHETIC_LONG_LENIENT_ID;
    static constexpr std::string_view name = "synthetic_long_lenient";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 111;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::synthetic_long_lenient__unpack;
    static constexpr auto pack = ::synthetic_long_lenient__pack;
    static constexpr auto sendmsg = ::synthetic_long_lenient__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_long_lenient__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_long_lenient_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::synthetic_long_lenient& record, Visit&& visit)
    {
        visit(record.f1.f0);
        visit(record.f1.f8);
        visit(record.f1.f17);
        visit(record.f3);
    }
};

template <>
struct message_traits<::synthetic_rows> {
    static constexpr std::uint32_t id = SYNTHETIC_ROWS_ID;
    static constexpr std::string_view name = "synthetic_rows";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 18;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::synthetic_rows__unpack;
    static constexpr auto pack = ::synthetic_rows__pack;
    static constexpr auto sendmsg = ::synthetic_rows__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_rows__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_rows_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::synthetic_rows& record, Visit&& visit)
    {
        visit(record.f1);
    }
};

template <>
struct message_traits<::synthetic_row_lists> {
    static constexpr std::uint32_t id = SYNTHETIC_ROW_LISTS_ID;
    static constexpr std::string_view name = "synthetic_row_lists";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 20;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::synthetic_row_lists__unpack;
    static constexpr auto pack = ::synthetic_row_lists__pack;
    static constexpr auto sendmsg = ::synthetic_row_lists__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_row_lists__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_row_lists_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::synthetic_row_lists& record, Visit&& visit)
    {
        visit(record.f0);
        visit(record.f2);
        visit(record.f3);
    }
};

template <>
struct message_traits<::synthetic_owner_lists> {
    static constexpr std::uint32_t id = SYNTHETIC_OWNER_LISTS_ID;
    static constexpr std::string_view name = "synthetic_owner_lists";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 20;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::synthetic_owner_lists__unpack;
    static constexpr auto pack = ::synthetic_owner_lists__pack;
    static constexpr auto sendmsg = ::synthetic_owner_lists__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_owner_lists__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_owner_lists_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::synthetic_owner_lists& record, Visit&& visit)
    {
        visit(record.f0);
        visit(record.f2);
        visit(record.f3);
    }
};

template <>
struct message_traits<::synthetic_deep> {
    static constexpr std::uint32_t id = SYNTHETIC_DEEP_ID;
    static constexpr std::string_view name = "synthetic_deep";
    static constexpr bool owns_blocks = true;
    static constexpr std::uint32_t fixed_length = 0;
    static constexpr std::uint32_t compact_least = 58;
    static constexpr std::uint32_t compact_most = 0;
    static constexpr auto unpack = ::synthetic_deep__unpack;
    static constexpr auto pack = ::synthetic_deep__pack;
    static constexpr auto sendmsg = ::synthetic_deep__sendmsg;
    static constexpr auto sendtomsg = ::synthetic_deep__sendtomsg;
    static constexpr auto free_unpacked = ::synthetic_deep_free__unpacked;
    template <class Visit>
    static constexpr void each_owned(::synthetic_deep& record, Visit&& visit)
    {
        visit(record.f0);
        visit(record.f1.f1);
        visit(record.f2.f0);
        visit(record.f2.f2);
        visit(record.f2.f3);
    }
};

}   // namespace ifit_codec

#endif
