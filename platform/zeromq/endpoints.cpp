#include "platform/zeromq/endpoints.h"

#include <algorithm>
#include <errno.h>

#include "platform/standin/mesh_standin.h"
#include "platform/zeromq/lines.h"

namespace {

[[nodiscard]] bool read_number(const char* word, uint32_t least, uint32_t most, uint32_t& value)
{
    char* end = nullptr;
    errno = 0;
    const unsigned long long read = word == nullptr || word[0] == '-' ? 0 : strtoull(word, &end, 0);
    if (end == nullptr || end == word || *end != '\0' || errno != 0 || read < least || read > most)
        return false;
    value = static_cast<uint32_t>(read);
    return true;
}

// Parses CHANNEL receive ADDRESS, CHANNEL send ADDRESS, or CHANNEL send ADDRESS to DESTINATION. Returns null, or a text
// that says what is wrong.
const char* read_endpoint(const Words& words, Endpoint& endpoint)
{
    const auto& [channel, direction, address, to, destination, more] = words;
    if (!read_number(channel, 0, MESH_STANDIN_CHANNELS - 1, endpoint.channel))
        return "no such channel";
    if (direction == nullptr || (strcmp(direction, "receive") != 0 && strcmp(direction, "send") != 0))
        return "neither receive nor send";
    endpoint.receives = direction[0] == 'r';
    if (address == nullptr || strlen(address) >= sizeof endpoint.address)
        return "no address, or too long a one";
    memcpy(endpoint.address, address, strlen(address) + 1);
    if (to != nullptr && (endpoint.receives || strcmp(to, "to") != 0 || more != nullptr ||
                          !read_number(destination, 1, UINT32_MAX, endpoint.destination)))
        return "only \"to DESTINATION\" may follow, after send";
    return nullptr;
}

}   // namespace

uint32_t read_endpoints(FILE* file, const char* name, Endpoint (&endpoints)[MOST_ENDPOINTS])
{
    uint32_t count = 0;
    (void)read_lines(file, name, true, "; left out", [&](const Words& words) {
        Endpoint endpoint{};
        const char* const fault = read_endpoint(words, endpoint);
        if (fault != nullptr)
            return fault;
        const auto same_place = [&](const Endpoint& other) {
            return is_place(other, endpoint.channel, endpoint.receives, endpoint.destination);
        };
        if (std::any_of(endpoints, endpoints + count, same_place))
            return "an earlier line says where that is";
        if (count == MOST_ENDPOINTS)
            return "too many lines";
        endpoints[count++] = endpoint;
        return fault;
    });
    return count;
}
