#include "platform/zeromq/endpoints.h"

#include <errno.h>
#include <stdlib.h>
#include <string.h>

#include "platform/standin/mesh_standin.h"

namespace {

constexpr const char *blanks = " \t\r\n";

[[nodiscard]] bool read_number(const char *word, uint32_t least, uint32_t most, uint32_t &value)
{
    char *end = nullptr;
    errno = 0;
    const unsigned long long read = word == nullptr || word[0] == '-' ? 0 : strtoull(word, &end, 0);
    if (end == nullptr || end == word || *end != '\0' || errno != 0 || read < least || read > most)
        return false;
    value = static_cast<uint32_t>(read);
    return true;
}

// CHANNEL receive ADDRESS, CHANNEL send ADDRESS, or CHANNEL send ADDRESS to DESTINATION. Null when `line` says so.
const char *read_line(char *line, Endpoint &endpoint)
{
    char *rest = nullptr;
    const char *const channel = strtok_r(line, blanks, &rest);
    const char *const direction = strtok_r(nullptr, blanks, &rest);
    const char *const address = strtok_r(nullptr, blanks, &rest);
    const char *const to = strtok_r(nullptr, blanks, &rest);
    const char *const destination = strtok_r(nullptr, blanks, &rest);
    endpoint = {};
    if (!read_number(channel, 0, MESH_STANDIN_CHANNELS - 1, endpoint.channel))
        return "no such channel";
    if (direction == nullptr || (strcmp(direction, "receive") != 0 && strcmp(direction, "send") != 0))
        return "neither receive nor send";
    endpoint.receives = direction[0] == 'r';
    if (address == nullptr || strlen(address) >= sizeof endpoint.address)
        return "no address, or too long a one";
    memcpy(endpoint.address, address, strlen(address) + 1);
    if (to == nullptr)
        return nullptr;
    if (endpoint.receives || strcmp(to, "to") != 0 || !read_number(destination, 1, UINT32_MAX, endpoint.destination) ||
        strtok_r(nullptr, blanks, &rest) != nullptr)
        return "only \"to DESTINATION\" may follow, after send";
    return nullptr;
}

bool same_place(const Endpoint &one, const Endpoint &other)
{
    return one.channel == other.channel && one.receives == other.receives && one.destination == other.destination;
}

const char *add(const Endpoint &endpoint, Endpoint (&endpoints)[MOST_ENDPOINTS], uint32_t &count)
{
    for (uint32_t i = 0; i < count; ++i)
        if (same_place(endpoints[i], endpoint))
            return "an earlier line says where that is";
    if (count == MOST_ENDPOINTS)
        return "too many lines";
    endpoints[count++] = endpoint;
    return nullptr;
}

} // namespace

uint32_t read_endpoints(FILE *file, const char *name, Endpoint (&endpoints)[MOST_ENDPOINTS])
{
    uint32_t count = 0;
    char *line = nullptr;
    size_t room = 0;
    for (int number = 1; getline(&line, &room, file) >= 0; ++number) {
        line[strcspn(line, "#")] = '\0';
        if (line[strspn(line, blanks)] == '\0')
            continue;
        Endpoint endpoint;
        const char *fault = read_line(line, endpoint);
        if (fault == nullptr)
            fault = add(endpoint, endpoints, count);
        if (fault != nullptr)
            fprintf(stderr, "%s:%d: %s; left out\n", name, number, fault);
    }
    free(line);
    return count;
}
