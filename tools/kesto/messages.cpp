#include "tools/kesto/messages.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <numeric>

namespace kesto::command {

namespace {

// Number of letters to insert, delete or replace so that `left` becomes a prefix of `right`.
std::size_t distance_to_beginning(std::string_view left, std::string_view right)
{
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = i;
        row[0] = i + 1;
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t replaced = diagonal + (left[i] == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return *std::min_element(row.begin(), row.end());
}

// Suffixes of what belongs to a message: routines as logs name them, exported functions, the id's macro.
constexpr std::string_view suffixes[] = {
    "_unpack", "_unpack_non_root", "_free_unpacked", "_pack",     "__unpack",    "_free__unpacked",
    "__pack",  "__sendsingle",     "__sendbatch",    "__sendmsg", "__sendtomsg", "_id",
};

std::string in_lower_case(std::string_view text)
{
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return lower;
}

// The pieces of `text` that consist of letters, digits and, for identifiers, underscores.
std::vector<std::string_view> words_of(std::string_view text, bool identifiers)
{
    const auto belongs = [&](unsigned char c) { return std::isalnum(c) != 0 || (identifiers && c == '_'); };
    std::vector<std::string_view> words;
    for (auto at = text.begin(); at != text.end();) {
        const auto begin = std::find_if(at, text.end(), belongs);
        at = std::find_if_not(begin, text.end(), belongs);
        if (begin != at)
            words.emplace_back(begin, at);
    }
    return words;
}

std::string_view without_suffix(std::string_view word)
{
    std::size_t longest = 0;
    for (const std::string_view suffix : suffixes)
        if (word.ends_with(suffix))
            longest = std::max(longest, suffix.size());
    return word.substr(0, word.size() - longest);
}

const Message* find_id(std::string_view text)
{
    const bool hex = text.starts_with("0x");
    if (hex)
        text.remove_prefix(2);
    u32 id = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, id, hex ? 16 : 10);
    return fault == std::errc() && stop == end ? catalogue().find(id) : nullptr;
}

const Message* find_word(std::string_view word)
{
    if (const Message* const named = catalogue().find(word))
        return named;
    return word.starts_with("0x") ? find_id(word) : catalogue().find(without_suffix(word));
}

// Number of words of a message's name that `words` lacks, and vice versa.
std::pair<std::size_t, std::size_t> words_missing(const Message& message, const std::vector<std::string_view>& words)
{
    const std::vector<std::string_view> own = words_of(message.name, false);
    const auto lacking = [](const auto& from, const auto& in) {
        return static_cast<std::size_t>(std::ranges::count_if(
            from, [&](std::string_view word) { return std::ranges::find(in, word) == in.end(); }));
    };
    return {lacking(own, words), lacking(words, own)};
}

}   // namespace

std::vector<const Message*> messages_named(std::string_view text)
{
    const std::string lower = in_lower_case(text);
    if (const Message* const by_id = find_id(lower))
        return {by_id};
    std::vector<const Message*> found;
    for (const std::string_view word : words_of(lower, true)) {
        const Message* const message = find_word(word);
        if (message != nullptr && std::ranges::find(found, message) == found.end())
            found.push_back(message);
    }
    return found;
}

bool names_nested_routine(std::string_view text)
{
    const std::string lower = in_lower_case(text);
    return std::ranges::any_of(words_of(lower, true),
                               [](std::string_view word) { return word.ends_with("_unpack_non_root"); });
}

const Message* find_message(std::string_view text)
{
    const std::vector<const Message*> found = messages_named(text);
    return found.size() == 1 ? found.front() : nullptr;
}

std::vector<std::string> suggestions(std::string_view text)
{
    const std::string lower = in_lower_case(text);
    const std::vector<std::string_view> identifiers = words_of(lower, true);
    if (identifiers.empty())
        return {};
    // The longest identifier of a log line should be the routine's. A few words are taken for the parts of a name.
    const std::string joined = fmt::format("{}", fmt::join(identifiers, "_"));
    const std::string_view name = without_suffix(
        identifiers.size() > 4 ? *std::ranges::max_element(identifiers, {}, &std::string_view::size) : joined);
    const std::vector<std::string_view> words = words_of(name, false);
    struct Candidate {
        std::pair<std::size_t, std::size_t> score;   // wrong letters or words, missing ones
        const std::string* name;
    };
    std::vector<Candidate> near;
    for (const Message& message : catalogue().messages) {
        const std::size_t wrong = distance_to_beginning(name, message.name);
        const bool holds = name.size() >= 3 && message.name.find(name) != std::string::npos;
        const auto [absent, surplus] = words_missing(message, words);
        if (holds || wrong <= std::min<std::size_t>(3, name.size() / 4))
            near.push_back({{holds ? 0 : wrong, message.name.size()}, &message.name});
        else if (surplus < words.size() && surplus <= words.size() / 2)
            near.push_back({{name.size() + surplus, absent}, &message.name});   // after all that are spelled alike
    }
    std::stable_sort(near.begin(), near.end(), [](const auto& a, const auto& b) { return a.score < b.score; });
    near.resize(std::min<std::size_t>(near.size(), 5));
    std::vector<std::string> names;
    names.reserve(near.size());
    for (const Candidate& candidate : near)
        names.push_back(*candidate.name);
    return names;
}

std::string no_message_text(std::string_view text)
{
    const std::vector<std::string> similar = suggestions(text);
    return fmt::format("no message '{}'{}", text,
                       similar.empty() ? "" : fmt::format("; did you mean {}?", fmt::join(similar, ", ")));
}

}   // namespace kesto::command
