// The codecs in C++20: records that free themselves, spans and string views over their fields, operations by type.
//
// Include <module>.hpp, which brings this file, the C header of the module and the traits of its messages. Everything
// here is inline and compiles to the C calls. Nothing here throws, allocates, or needs a library besides the codecs.
// What calls MESH is not noexcept, so that it can stay a plain jump to the C function.
//
// Read the top of <module>.h first: what it says about the operations holds here, too.
#ifndef IFIT_CODEC_HPP
#define IFIT_CODEC_HPP

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>
#include <optional>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>

namespace ifit_codec {

// ---- messages by the type of their record ----

// What belongs to the message whose record is R; <module>.hpp specialises it for every message of the module.
//
//   id, name        as in MESH and in the message reference
//   owns_blocks     whether a decoded record may point to texts, blocks or vectors
//   fixed_length    bytes of the fixed form; 0 if there is none
//   compact_least   bytes of the compact form of an all-zero record
//   compact_most    bytes of the longest compact form; 0 if texts, blocks and vectors can make it longer
//   unpack, ...     the C functions
//   each_owned      calls visit(field) for the record's texts, blocks and vectors, also those in nested records
template <class R>
struct message_traits;

template <class R>
concept message = requires
{
    message_traits<R>::id;
};

template <message R>
inline constexpr std::uint32_t message_id = message_traits<R>::id;

template <message R>
inline constexpr std::string_view message_name = message_traits<R>::name;

// The size of a buffer that holds any record of R packed. Only for messages that own no blocks.
template <message R>
requires(!message_traits<R>::owns_blocks) inline constexpr std::size_t largest_packed = message_traits<R>::compact_most;

// ---- fields ----

template <class F>
concept block_field = requires(F& field)
{
    {
        field.length
        } -> std::same_as<std::uint32_t&>;
    {
        field.data
        } -> std::same_as<std::uint8_t*&>;
};

template <class F>
concept vector_field = requires(F& field)
{
    {
        field.count
        } -> std::same_as<std::uint32_t&>;
    *field.items;
};

// A text. A null pointer gives a view whose data() is null; an empty text, one whose data() is not.
[[nodiscard]] inline std::string_view view(const char* text) noexcept
{
    return text == nullptr ? std::string_view() : std::string_view(text);
}

// A vector or a block of bytes. Without its pointer, as a refused record may have it, the span is empty, whatever the
// count.
template <vector_field F>
[[nodiscard]] constexpr auto view(F& field) noexcept
{
    using Item = std::remove_pointer_t<decltype(field.items)>;
    return std::span<Item>(field.items, field.items == nullptr ? 0 : field.count);
}

template <vector_field F>
[[nodiscard]] constexpr auto view(const F& field) noexcept
{
    using Item = std::remove_pointer_t<decltype(field.items)>;
    return std::span<const Item>(field.items, field.items == nullptr ? 0 : field.count);
}

template <block_field F>
[[nodiscard]] constexpr std::span<std::uint8_t> view(F& field) noexcept
{
    return {field.data, field.data == nullptr ? 0 : field.length};
}

template <block_field F>
[[nodiscard]] constexpr std::span<const std::uint8_t> view(const F& field) noexcept
{
    return {field.data, field.data == nullptr ? 0 : field.length};
}

// An array of bytes as text, up to its first NUL or, without one, its end.
template <std::size_t N>
[[nodiscard]] inline std::string_view text_in(const std::uint8_t (&array)[N]) noexcept
{
    const void* const end = std::memchr(array, 0, N);
    return {reinterpret_cast<const char*>(array),
            end == nullptr ? N : static_cast<std::size_t>(static_cast<const std::uint8_t*>(end) - array)};
}

// These make a field of a record that will be packed or sent point to memory of the caller, which has to outlive the
// call. The codecs only read it; the casts are there because records have no constant pointers. Of more than 2^32 - 1
// elements or bytes the field gets none and the result is false.
template <vector_field F>
constexpr bool point_to(F& field, std::span<const std::remove_pointer_t<decltype(F::items)>> items) noexcept
{
    const bool possible = items.size() <= std::numeric_limits<std::uint32_t>::max();
    field.count = possible ? static_cast<std::uint32_t>(items.size()) : 0;
    field.items = possible ? const_cast<decltype(field.items)>(items.data()) : nullptr;
    return possible;
}

template <block_field F>
constexpr bool point_to(F& field, std::span<const std::uint8_t> bytes) noexcept
{
    const bool possible = bytes.size() <= std::numeric_limits<std::uint32_t>::max();
    field.length = possible ? static_cast<std::uint32_t>(bytes.size()) : 0;
    field.data = possible ? const_cast<std::uint8_t*>(bytes.data()) : nullptr;
    return possible;
}

// A text needs its NUL, which a string view may lack: pass a literal, or c_str() of a string that stays.
inline void point_to(char*& field, const char* text) noexcept { field = const_cast<char*>(text); }

// ---- decoding ----

// How a decode ended, as far as the record shows it: X__unpack itself does not tell.
//
//   decoded   the record has a text, a block or a vector, which no refused record has
//   refused   the record was not touched, or has a count or length without its pointer
//   unknown   the record owns nothing: it may be a decoded one in which all such fields are absent or empty, or a
//             refused one. All messages without owned blocks end so.
enum class outcome : std::uint8_t { unknown, refused, decoded };

template <message R>
struct unpacked;

template <message R>
[[nodiscard]] unpacked<R> unpack(std::span<const std::uint8_t> bytes) noexcept;

// A record that the decoder filled, and that owns what it points to. Scalars and arrays may be changed; pointers,
// lengths and counts are the library's. To send, fill a plain R.
template <message R>
class owned {
public:
    owned() noexcept = default;
    owned(owned&& from) noexcept : record_(from.release()) {}
    owned& operator=(owned&& from) noexcept
    {
        if (this != &from) {
            free();
            record_ = from.release();
        }
        return *this;
    }
    ~owned() { free(); }

    // Takes over a record that X__unpack filled in, or a zeroed one.
    [[nodiscard]] static owned adopt(const R& record) noexcept
    {
        owned made;
        made.record_ = record;
        return made;
    }

    // Gives the record away, to be freed with X_free__unpacked. The rest is zeroed.
    [[nodiscard]] R release() noexcept
    {
        if constexpr (message_traits<R>::owns_blocks)
            return std::exchange(record_, R{});
        else
            return record_;
    }

    // Frees what the record has, then decodes into it. `bytes` may have any content and is not needed afterwards.
    outcome unpack(std::span<const std::uint8_t> bytes) noexcept
    {
        free();
        record_ = R{};
        return unpack_zeroed(bytes);
    }

    R& operator*() noexcept { return record_; }
    const R& operator*() const noexcept { return record_; }
    R* operator->() noexcept { return &record_; }
    const R* operator->() const noexcept { return &record_; }

private:
    template <message Other>
    friend unpacked<Other> unpack(std::span<const std::uint8_t> bytes) noexcept;

    using traits = message_traits<R>;

    void free() noexcept
    {
        if constexpr (traits::owns_blocks)
            traits::free_unpacked(&record_);
    }

    static void unpack_into(R& record, std::span<const std::uint8_t> bytes) noexcept
    {
        // A length that does not fit becomes one that the decoder refuses.
        constexpr std::size_t most = std::numeric_limits<std::uint32_t>::max();
        traits::unpack(bytes.data(), static_cast<std::uint32_t>(bytes.size() < most ? bytes.size() : most), &record);
    }

    // A pointer that no decoder stores, in the first field that has one, shows whether the record was touched.
    outcome unpack_zeroed(std::span<const std::uint8_t> bytes) noexcept
    {
        if constexpr (!traits::owns_blocks) {
            unpack_into(record_, bytes);
            return outcome::unknown;
        } else {
            std::uint8_t mark = 0;
            bool first = true, any = false, lost = false;
            traits::each_owned(record_, [&](auto& field) {
                if (std::exchange(first, false))
                    set_pointer(field, &mark);
            });
            unpack_into(record_, bytes);
            first = true;
            traits::each_owned(record_, [&](auto& field) {
                if (std::exchange(first, false) && pointer(field) == &mark) {
                    set_pointer(field, nullptr);
                    lost = true;
                }
                any = any || pointer(field) != nullptr;
            });
            if (lost)
                return outcome::refused;
            if (any)
                return outcome::decoded;
            traits::each_owned(record_, [&](auto& field) { lost = lost || count(field) != 0; });
            return static_cast<outcome>(lost);   // refused or unknown, without a branch
        }
    }

    template <class F>
    static const void* pointer(const F& field) noexcept
    {
        if constexpr (block_field<F>)
            return field.data;
        else if constexpr (vector_field<F>)
            return field.items;
        else
            return field;
    }

    template <class F>
    static void set_pointer(F& field, void* to) noexcept
    {
        if constexpr (block_field<F>)
            field.data = static_cast<std::uint8_t*>(to);
        else if constexpr (vector_field<F>)
            field.items = static_cast<decltype(field.items)>(to);
        else
            field = static_cast<char*>(to);
    }

    template <class F>
    static std::uint32_t count(const F& field) noexcept
    {
        if constexpr (block_field<F>)
            return field.length;
        else if constexpr (vector_field<F>)
            return field.count;
        else
            return 0;
    }

    R record_{};
};

template <message R>
struct unpacked {
    owned<R> record;
    outcome result = outcome::unknown;
};

//   auto [record, result] = ifit_codec::unpack<ifit_mcp_mesh_update>(bytes);
template <message R>
[[nodiscard]] inline unpacked<R> unpack(std::span<const std::uint8_t> bytes) noexcept
{
    unpacked<R> made;
    made.result = made.record.unpack_zeroed(bytes);
    return made;
}

// The record that MESH shows to a consumer, if the message is R's; else null. It stays MESH's.
template <message R>
[[nodiscard]] inline const R* record_if(std::uint32_t id, const void* record) noexcept
{
    return id == message_id<R> ? static_cast<const R*>(record) : nullptr;
}

// ---- encoding ----

// The compact form of the record, as the part of `buffer` that it takes; nothing if there is too little room, or for a
// vector with a count and no pointer. A block with a pointer and length 0 makes the result 8 bytes longer than what was
// written.
template <message R>
[[nodiscard]] inline std::optional<std::span<std::uint8_t>> pack(const R& record, std::span<std::uint8_t> buffer)
{
    constexpr std::size_t most = std::numeric_limits<std::uint32_t>::max();
    auto length = static_cast<std::uint32_t>(buffer.size() < most ? buffer.size() : most);
    if (message_traits<R>::pack(&record, buffer.data(), &length) != 0)
        return std::nullopt;
    return buffer.first(length);
}

// The room that pack needs for the record; nothing for one that it refuses. Writes a line to the log.
template <message R>
[[nodiscard]] inline std::optional<std::uint32_t> packed_size(const R& record)
{
    std::uint32_t length = std::numeric_limits<std::uint32_t>::max();
    if (message_traits<R>::pack(&record, nullptr, &length) != 0)
        return std::nullopt;
    return length;
}

// ---- sending; the results are those of X__sendmsg and X__sendtomsg: MESH's, or -1 when nothing was sent ----

template <message R>
inline int send(std::uint32_t channel, const R& record)
{
    return message_traits<R>::sendmsg(channel, &record, 1);
}

template <message R>
inline int send(std::uint32_t channel, const R& record, std::uint32_t destination)
{
    return message_traits<R>::sendtomsg(channel, &record, 1, destination);
}

template <class Range>
using record_of = std::remove_cv_t<std::remove_reference_t<decltype(*std::data(std::declval<const Range&>()))>>;

// `records`: an array, vector or span of records. An empty one, or one of more than 2^32 - 1, gives -1.
template <class Range>
requires message<record_of<Range>>
inline int send_batch(std::uint32_t channel, const Range& records)
{
    if (std::size(records) > std::numeric_limits<std::uint32_t>::max())
        return -1;
    return message_traits<record_of<Range>>::sendmsg(channel, std::data(records),
                                                     static_cast<std::uint32_t>(std::size(records)));
}

template <class Range>
requires message<record_of<Range>>
inline int send_batch(std::uint32_t channel, const Range& records, std::uint32_t destination)
{
    if (std::size(records) > std::numeric_limits<std::uint32_t>::max())
        return -1;
    return message_traits<record_of<Range>>::sendtomsg(channel, std::data(records),
                                                       static_cast<std::uint32_t>(std::size(records)), destination);
}

}   // namespace ifit_codec

#endif
