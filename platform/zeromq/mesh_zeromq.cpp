// Channels over ZeroMQ: one PULL socket for what a channel receives, one PUSH socket for each place it sends to. An item
// is one message part, head and bytes as on the stand-in's sockets, and the items of one call are one message, which
// ZeroMQ carries as a whole or not at all.

#include <errno.h>
#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>
#include <zmq.h>

#include "platform/mesh.h"
#include "platform/standin/mesh_standin.h"
#include "platform/standin/mesh_transport.h"
#include "platform/zeromq/endpoints.h"

namespace {

constexpr uint32_t packet_head = 8;
constexpr int patience_ms = 5000; // for a receiver to appear or to make room, and at the end for what is still to leave

// A place with its socket, which one thread uses at a time.
struct Place {
    Endpoint endpoint;
    void *socket; // null when it could not be opened
    pthread_mutex_t mutex;
};

constinit pthread_once_t opened = PTHREAD_ONCE_INIT;
constinit void *zeromq{};
constinit pid_t opener{};
constinit Place places[MOST_ENDPOINTS]{};
constinit uint32_t place_count{};

struct Hold {
    explicit Hold(Place &place) : mutex(place.mutex) { pthread_mutex_lock(&mutex); }
    ~Hold() { pthread_mutex_unlock(&mutex); }
    Hold(const Hold &) = delete;
    Hold &operator=(const Hold &) = delete;

    pthread_mutex_t &mutex;
};

void set(void *socket, int option, int value)
{
    zmq_setsockopt(socket, option, &value, sizeof value);
}

void *open_socket(const Endpoint &endpoint)
{
    void *const socket = zmq_socket(zeromq, endpoint.receives ? ZMQ_PULL : ZMQ_PUSH);
    if (socket == nullptr)
        return nullptr;
    const int64_t longest = packet_head + MESH_STANDIN_ITEM_BYTES;
    zmq_setsockopt(socket, ZMQ_MAXMSGSIZE, &longest, sizeof longest); // of a part; who sends more is cut off
    set(socket, ZMQ_LINGER, patience_ms);
    set(socket, ZMQ_SNDTIMEO, patience_ms);
    set(socket, ZMQ_IMMEDIATE, 1); // a receiver that has not appeared yet keeps the sender waiting; nothing is queued
    const int result = endpoint.receives ? zmq_bind(socket, endpoint.address) : zmq_connect(socket, endpoint.address);
    if (result == 0)
        return socket;
    fprintf(stderr, "MESH over ZeroMQ: %s: %s\n", endpoint.address, zmq_strerror(errno));
    zmq_close(socket);
    return nullptr;
}

void open_all()
{
    static Endpoint endpoints[MOST_ENDPOINTS];
    const char *const name = getenv("MESH_ZEROMQ_MAP");
    FILE *const file = name == nullptr ? nullptr : fopen(name, "re");
    if (file == nullptr) {
        fprintf(stderr, "MESH over ZeroMQ: MESH_ZEROMQ_MAP names no readable file; all channels are loopbacks\n");
        return;
    }
    const uint32_t count = read_endpoints(file, name, endpoints);
    fclose(file);
    zeromq = zmq_ctx_new();
    opener = getpid();
    for (uint32_t i = 0; i < count && zeromq != nullptr; ++i) {
        pthread_mutex_init(&places[i].mutex, nullptr);
        places[i].endpoint = endpoints[i];
        places[i].socket = open_socket(endpoints[i]);
        place_count = i + 1;
    }
}

// What was sent last is given time to leave. A child after a fork has nothing to close: ZeroMQ stayed with its parent.
[[gnu::destructor]] void close_all()
{
    if (opener != getpid())
        return;
    for (uint32_t i = 0; i < place_count; ++i)
        if (places[i].socket != nullptr)
            zmq_close(places[i].socket);
    if (zeromq != nullptr)
        zmq_ctx_term(zeromq);
}

bool carries(uint32_t channel)
{
    pthread_once(&opened, open_all);
    for (uint32_t i = 0; i < place_count; ++i)
        if (places[i].endpoint.channel == channel)
            return true;
    return false;
}

Place *find_place(uint32_t channel, bool receives, uint32_t destination)
{
    for (uint32_t i = 0; i < place_count; ++i) {
        const Endpoint &endpoint = places[i].endpoint;
        if (endpoint.channel == channel && endpoint.receives == receives && endpoint.destination == destination)
            return &places[i];
    }
    return nullptr;
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

int send_part(void *socket, const MeshSendItem &item, int flags)
{
    zmq_msg_t part;
    if (zmq_msg_init_size(&part, packet_head + item.length) != 0)
        return MESH_STANDIN_NO_MEMORY;
    uint8_t *const packet = static_cast<uint8_t *>(zmq_msg_data(&part));
    store_u32(packet, item.id);
    store_u32(packet + 4, item.length);
    if (item.length > 0)
        memcpy(packet + packet_head, item.data, item.length);
    while (zmq_msg_send(&part, socket, flags) < 0)
        if (errno != EINTR) {
            const int result = result_of_errno();
            zmq_msg_close(&part);
            return result;
        }
    return MESH_STANDIN_OK;
}

int send(uint32_t channel, const MeshSendItem *items, uint32_t count, uint32_t destination)
{
    Place *const place = find_place(channel, false, destination);
    if (place == nullptr)
        return MESH_STANDIN_NO_PEER;
    if (place->socket == nullptr)
        return MESH_STANDIN_BAD_PATH;
    const Hold hold(*place);
    int result = MESH_STANDIN_OK;
    for (uint32_t i = 0; i < count && result == MESH_STANDIN_OK; ++i)
        result = send_part(place->socket, items[i], i + 1 < count ? ZMQ_SNDMORE : 0);
    return result;
}

// Waits for the socket's turn as well as for the packet.
int receive(uint32_t channel, uint32_t timeout_ms, uint8_t *packet, uint32_t capacity, uint32_t &length)
{
    Place *const place = find_place(channel, true, 0);
    if (place == nullptr)
        return MESH_STANDIN_NOT_BOUND;
    if (place->socket == nullptr)
        return MESH_STANDIN_BAD_PATH;
    const Hold hold(*place);
    zmq_pollitem_t entry{place->socket, 0, ZMQ_POLLIN, 0};
    const int ready = zmq_poll(&entry, 1, timeout_ms > INT32_MAX ? INT32_MAX : static_cast<long>(timeout_ms));
    if (ready == 0 || (ready < 0 && errno == EINTR))
        return MESH_STANDIN_TIMEOUT;
    const int got = ready < 0 ? -1 : zmq_recv(place->socket, packet, capacity, ZMQ_DONTWAIT);
    if (got < 0)
        return result_of_errno();
    length = static_cast<uint32_t>(got) < capacity ? static_cast<uint32_t>(got) : capacity;
    return MESH_STANDIN_OK;
}

constexpr MeshTransport transport{carries, send, receive};

} // namespace

const MeshTransport *mesh_transport()
{
    return &transport;
}
