// Channels over ZeroMQ: a channel has one PULL socket for receiving and one PUSH socket for each place that it sends
// to. An item is one message part, head and bytes as on the stand-in's sockets. The items of one call form one message,
// which ZeroMQ carries as a whole or not at all. With MESH_ZEROMQ_KEYS a socket communicates only with peers whose keys
// it knows.

#include <algorithm>
#include <errno.h>
#include <stdio.h>
#include <unistd.h>
#include <zmq.h>

#include "platform/standin/mesh_transport.h"
#include "platform/zeromq/endpoints.h"
#include "platform/zeromq/keys.h"

namespace {

constexpr uint32_t sealing = 64;   // more than encryption adds to a part
constexpr int patience_ms =
    5000;   // for a receiver to appear or to make room, and at the end for what is still to leave

// An endpoint with its socket, which only one thread may use at a time.
struct Place {
    Endpoint endpoint;
    void* socket;   // null if it could not be opened
    pthread_mutex_t mutex;
};

constinit pthread_once_t opened = PTHREAD_ONCE_INIT;
constinit void* zeromq{};
constinit bool with_keys{};
constinit Keys keys{};
constinit pid_t opener{};
constinit Place places[MOST_ENDPOINTS]{};
constinit uint32_t place_count{};

void set(void* socket, int option, int value) { zmq_setsockopt(socket, option, &value, sizeof value); }

[[nodiscard]] bool set_key(void* socket, int option, const char* key)
{
    return zmq_setsockopt(socket, option, key, KEY_ROOM) == 0;
}

[[nodiscard]] bool lock_socket(void* socket, const Endpoint& endpoint)
{
    if (endpoint.receives) {
        set(socket, ZMQ_CURVE_SERVER, 1);
        return set_key(socket, ZMQ_CURVE_SECRETKEY, keys.secret_key) &&
               zmq_setsockopt(socket, ZMQ_ZAP_DOMAIN, "mesh", 4) == 0;   // so that every sender needs admission
    }
    const char* const receiver = receiver_key(keys, endpoint.address);
    if (receiver == nullptr) {
        errno = EACCES;   // no line has the receiver's key
        return false;
    }
    return set_key(socket, ZMQ_CURVE_SERVERKEY, receiver) && set_key(socket, ZMQ_CURVE_PUBLICKEY, keys.public_key) &&
           set_key(socket, ZMQ_CURVE_SECRETKEY, keys.secret_key);
}

[[nodiscard]] bool connect_socket(void* socket, const Endpoint& endpoint)
{
    if (with_keys && !lock_socket(socket, endpoint))
        return false;
    return (endpoint.receives ? zmq_bind : zmq_connect)(socket, endpoint.address) == 0;
}

void* open_socket(const Endpoint& endpoint)
{
    void* const socket = zmq_socket(zeromq, endpoint.receives ? ZMQ_PULL : ZMQ_PUSH);
    if (socket == nullptr)
        return nullptr;
    // The limit is per part, and a longer part ends the connection. ZeroMQ does not limit a message of many parts.
    const int64_t longest = packet_head + MESH_STANDIN_ITEM_BYTES + (with_keys ? sealing : 0);
    zmq_setsockopt(socket, ZMQ_MAXMSGSIZE, &longest, sizeof longest);
    set(socket, ZMQ_LINGER, patience_ms);
    set(socket, ZMQ_SNDTIMEO, patience_ms);
    set(socket, ZMQ_IMMEDIATE, 1);   // until a receiver has appeared, the sender waits; nothing is queued
    if (connect_socket(socket, endpoint))
        return socket;
    fprintf(stderr, "MESH over ZeroMQ: %s: %s\n", endpoint.address, zmq_strerror(errno));
    zmq_close(socket);
    return nullptr;
}

// Returns false if keys were requested and cannot be used; then no socket may be opened.
[[nodiscard]] bool prepare_keys()
{
    const char* const name = getenv("MESH_ZEROMQ_KEYS");
    with_keys = name != nullptr && name[0] != '\0';
    if (!with_keys)
        return true;
    FILE* const file = fopen(name, "re");
    const bool good = file != nullptr && read_keys(file, name, keys) && start_admission(zeromq, keys);
    if (file != nullptr)
        fclose(file);
    if (!good)
        fprintf(stderr, "MESH over ZeroMQ: no keys from MESH_ZEROMQ_KEYS; no place of the map is opened\n");
    return good;
}

void open_all()
{
    static Endpoint endpoints[MOST_ENDPOINTS];
    const char* const name = getenv("MESH_ZEROMQ_MAP");
    FILE* const file = name == nullptr ? nullptr : fopen(name, "re");
    if (file == nullptr) {
        fprintf(stderr, "MESH over ZeroMQ: MESH_ZEROMQ_MAP names no readable file; all channels are loopbacks\n");
        return;
    }
    const uint32_t count = read_endpoints(file, name, endpoints);
    fclose(file);
    zeromq = zmq_ctx_new();
    opener = getpid();
    const bool may_open = zeromq != nullptr && prepare_keys();
    for (uint32_t i = 0; i < count; ++i) {
        pthread_mutex_init(&places[i].mutex, nullptr);
        places[i].endpoint = endpoints[i];
        places[i].socket = may_open ? open_socket(endpoints[i]) : nullptr;
        place_count = i + 1;
    }
}

// The latest messages get time to leave. A child after a fork has nothing to close: the sockets are its parent's.
[[gnu::destructor]] void close_all()
{
    if (opener != getpid())
        return;
    for (uint32_t i = 0; i < place_count; ++i)
        if (places[i].socket != nullptr)
            zmq_close(places[i].socket);
    if (zeromq == nullptr)
        return;
    zmq_ctx_shutdown(zeromq);
    end_admission();
    zmq_ctx_term(zeromq);
}

bool carries(uint32_t channel)
{
    pthread_once(&opened, open_all);
    return std::any_of(places, places + place_count,
                       [=](const Place& place) { return place.endpoint.channel == channel; });
}

Place* find_place(uint32_t channel, bool receives, uint32_t destination)
{
    Place* const end = places + place_count;
    Place* const found = std::find_if(
        places, end, [=](const Place& place) { return is_place(place.endpoint, channel, receives, destination); });
    return found == end ? nullptr : found;
}

int result_of_errno()
{
    switch (errno) {
    case EAGAIN: return MESH_STANDIN_TIMEOUT;
    case ENOMEM: return MESH_STANDIN_NO_MEMORY;
    case ETERM: return MESH_STANDIN_PEER_CLOSED;
    default: return MESH_STANDIN_SYSTEM;
    }
}

// The parts of one message. All are made before the first one is sent, because a message cannot be taken back once
// begun.
struct Parts {
    explicit Parts(uint32_t count) : all(static_cast<zmq_msg_t*>(calloc(count, sizeof(zmq_msg_t)))) {}
    ~Parts()
    {
        for (uint32_t i = sent; i < made; ++i)
            zmq_msg_close(&all[i]);
        free(all);
    }
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;

    zmq_msg_t* all;
    uint32_t made = 0;
    uint32_t sent = 0;
};

[[nodiscard]] bool make_parts(const MeshSendItem* items, uint32_t count, Parts& parts)
{
    for (; parts.all != nullptr && parts.made < count; ++parts.made) {
        const MeshSendItem& item = items[parts.made];
        zmq_msg_t* const part = &parts.all[parts.made];
        if (zmq_msg_init_size(part, packet_head + item.length) != 0)
            return false;
        uint8_t* const packet = static_cast<uint8_t*>(zmq_msg_data(part));
        store_head(packet, item);
        if (item.length > 0)
            memcpy(packet + packet_head, item.data, item.length);
    }
    return parts.made == count;
}

int send_parts(void* socket, Parts& parts)
{
    for (; parts.sent < parts.made; ++parts.sent)
        while (zmq_msg_send(&parts.all[parts.sent], socket, parts.sent + 1 < parts.made ? ZMQ_SNDMORE : 0) < 0)
            if (errno != EINTR)
                return result_of_errno();
    return MESH_STANDIN_OK;
}

int send(const CapturedCall& call, const MeshSendItem* items, uint32_t count)
{
    Place* const place = find_place(call.channel, false, call.destination);
    if (place == nullptr)
        return MESH_STANDIN_NO_PEER;
    Parts parts(count);
    if (!make_parts(items, count, parts))
        return MESH_STANDIN_NO_MEMORY;
    const Lock hold(place->mutex);
    if (place->socket == nullptr)
        return MESH_STANDIN_BAD_PATH;
    const int result = send_parts(place->socket, parts);
    // The next call would continue the unfinished message; closing the socket discards it.
    if (result != MESH_STANDIN_OK && parts.sent > 0) {
        zmq_close(place->socket);
        place->socket = open_socket(place->endpoint);
    }
    if (result == MESH_STANDIN_OK)
        std::for_each(items, items + count, [&](const MeshSendItem& item) { mesh_sent(call, item); });
    return result;
}

// Waits for exclusive use of the socket as well as for the packet.
int receive(uint32_t channel, uint64_t deadline, uint8_t* packet, uint32_t capacity, uint32_t& length)
{
    Place* const place = find_place(channel, true, 0);
    if (place == nullptr)
        return MESH_STANDIN_NOT_BOUND;
    if (place->socket == nullptr)
        return MESH_STANDIN_BAD_PATH;
    const Lock hold(place->mutex);
    for (;;) {
        const int left = ms_until(deadline);
        zmq_pollitem_t entry{place->socket, 0, ZMQ_POLLIN, 0};
        const int ready = zmq_poll(&entry, 1, left);
        const int got = ready > 0 ? zmq_recv(place->socket, packet, capacity, ZMQ_DONTWAIT) : -1;
        if (got >= 0) {
            length = std::min(static_cast<uint32_t>(got), capacity);
            return MESH_STANDIN_OK;
        }
        if (ready != 0 && errno != EINTR && errno != EAGAIN)
            return result_of_errno();
        if (ready == 0 && left == 0)
            return MESH_STANDIN_TIMEOUT;
    }
}

constexpr MeshTransport transport{carries, send, receive};

}   // namespace

const MeshTransport* mesh_transport() { return &transport; }
