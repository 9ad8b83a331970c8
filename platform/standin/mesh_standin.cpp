#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/uio.h>
#include <sys/un.h>
#include <time.h>
#include <unistd.h>

#include "platform/standin/mesh_transport.h"

// The declarations carry the visibility; everything else of this library is hidden.
#pragma GCC visibility push(default)
#include "platform/mesh.h"
#include "platform/standin/mesh_standin.h"
#pragma GCC visibility pop
#include "platform/standin/capture.h"
#include "platform/standin/little_endian.h"

namespace {

constexpr uint32_t packet_head = 8;
constexpr int send_wait_seconds = 5;
constexpr int socket_buffer = 2 * static_cast<int>(MESH_STANDIN_ITEM_BYTES);
constexpr int no_socket = -1;

struct Hook {
    uint32_t id;
    uint32_t record_size;
    bool size_known;
    MeshUnpack unpack; // null in an empty place
    MeshFree free_record;
};

struct HookTable {
    Hook *places;
    uint32_t capacity; // 0 or a power of two
    uint32_t count;
};

struct CleanList {
    MeshClean *hooks;
    uint32_t capacity;
    uint32_t count;
};

struct Consumer {
    MeshStandinConsumer call;
    void *context;
};

struct Channel {
    bool bound;
    bool closing;     // waits for the last user; refused to new ones
    bool owns_path;   // `address` is ours to unlink
    int listener = no_socket;
    int peer = no_socket;
    uint32_t users; // calls that work on the sockets without the lock; the last one out settles the channel
    Consumer consumer;
    sockaddr_un address;
};

constinit pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER; // guards all that follows
constinit HookTable table{};
constinit CleanList clean_list{};
constinit Consumer any_consumer{};
constinit Channel channels[MESH_STANDIN_CHANNELS]{};
constinit MeshStandinCounters counters{};
constinit bool check_bytes{};
constinit volatile uint32_t zero_checksums{}; // a result of the check, so that it cannot be left out

struct Lock {
    Lock() { pthread_mutex_lock(&mutex); }
    ~Lock() { pthread_mutex_unlock(&mutex); }
    Lock(const Lock &) = delete;
    Lock &operator=(const Lock &) = delete;
};

// Hooks ---------------------------------------------------------------------------------------------------------------

Hook *place_of(Hook *places, uint32_t capacity, uint32_t id)
{
    uint32_t at = id * UINT32_C(0x9e3779b1) & (capacity - 1);
    while (places[at].unpack != nullptr && places[at].id != id)
        at = (at + 1) & (capacity - 1);
    return &places[at];
}

Hook *find_hook(uint32_t id)
{
    if (table.capacity == 0)
        return nullptr;
    Hook *const place = place_of(table.places, table.capacity, id);
    return place->unpack == nullptr ? nullptr : place;
}

// Keeps at least half of the places empty, which bounds every search.
[[nodiscard]] bool make_room()
{
    if (2 * (table.count + 1) <= table.capacity)
        return true;
    const uint32_t capacity = table.capacity == 0 ? 64 : 2 * table.capacity;
    Hook *const places = static_cast<Hook *>(calloc(capacity, sizeof(Hook)));
    if (places == nullptr)
        return false;
    for (uint32_t i = 0; i < table.capacity; ++i)
        if (table.places[i].unpack != nullptr)
            *place_of(places, capacity, table.places[i].id) = table.places[i];
    free(table.places);
    table.places = places;
    table.capacity = capacity;
    return true;
}

int deliver(uint32_t channel, uint32_t id, const uint8_t *bytes, uint32_t length)
{
    Hook hook;
    Consumer consumer;
    {
        const Lock lock;
        const Hook *const found = find_hook(id);
        if (found == nullptr) {
            ++counters.refused;
            return MESH_STANDIN_UNKNOWN_ID;
        }
        hook = *found;
        consumer = channels[channel].consumer.call != nullptr ? channels[channel].consumer : any_consumer;
    }
    if (!hook.size_known) {
        hook.record_size = hook.unpack(nullptr, 0, nullptr);
        const Lock lock;
        Hook *const found = find_hook(id);
        if (found != nullptr && found->unpack == hook.unpack) {
            found->record_size = hook.record_size;
            found->size_known = true;
        }
    }
    void *const record = calloc(1, hook.record_size == 0 ? 1 : hook.record_size);
    if (record == nullptr)
        return MESH_STANDIN_NO_MEMORY;
    hook.unpack(bytes, length, record);
    if (consumer.call != nullptr)
        consumer.call(consumer.context, channel, id, record, hook.record_size, bytes, length);
    hook.free_record(record);
    free(record);
    const Lock lock;
    ++counters.delivered;
    return MESH_STANDIN_OK;
}

// Sockets -------------------------------------------------------------------------------------------------------------

uint64_t now_ms()
{
    timespec time;
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<uint64_t>(time.tv_sec) * 1000 + static_cast<uint64_t>(time.tv_nsec) / 1000000;
}

void close_socket(int &socket)
{
    if (socket != no_socket)
        close(socket);
    socket = no_socket;
}

void remove_path(Channel &channel)
{
    if (channel.owns_path)
        unlink(channel.address.sun_path);
    channel.owns_path = false;
}

// With the lock held and no users left: finishes a close, or lets the listener go once there is a peer, so that whoever
// else has connected meanwhile sees its connection end.
void settle(Channel &channel)
{
    if (channel.closing) {
        close_socket(channel.peer);
        channel.bound = false;
        channel.closing = false;
    }
    if (channel.peer != no_socket || !channel.bound)
        close_socket(channel.listener);
}

// Keeps a bound channel's sockets open while a call works on them without the lock.
struct Use {
    explicit Use(uint32_t number) : channel(channels[number])
    {
        const Lock lock;
        result = !channel.bound ? MESH_STANDIN_NOT_BOUND : channel.closing ? MESH_STANDIN_PEER_CLOSED : MESH_STANDIN_OK;
        if (result == MESH_STANDIN_OK)
            ++channel.users;
    }
    ~Use()
    {
        if (result != MESH_STANDIN_OK)
            return;
        const Lock lock;
        if (--channel.users == 0)
            settle(channel);
    }
    Use(const Use &) = delete;
    Use &operator=(const Use &) = delete;

    Channel &channel;
    int result;
};

// Counts a call among those that wait.
struct Wait {
    Wait() { count(1); }
    ~Wait() { count(UINT32_MAX); }
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;

    static void count(uint32_t step)
    {
        const Lock lock;
        counters.waiting += step;
    }
};

// Waits until there is something to read or the other side has gone; poll's own answer for "nothing yet" is 0.
int wait_readable(int socket, uint64_t deadline)
{
    const Wait wait;
    for (;;) {
        const uint64_t now = now_ms();
        const uint64_t left = deadline > now ? deadline - now : 0;
        pollfd entry{socket, POLLIN, 0};
        const int ready = poll(&entry, 1, left > INT32_MAX ? INT32_MAX : static_cast<int>(left));
        if (ready > 0)
            return MESH_STANDIN_OK;
        if (ready < 0 && errno != EINTR)
            return MESH_STANDIN_SYSTEM;
        if (ready == 0 && now >= deadline)
            return MESH_STANDIN_TIMEOUT;
    }
}

// Both are best effort: without them the default buffer holds an item and a send waits for as long as the peer lets it.
void configure(int socket)
{
    const timeval wait{send_wait_seconds, 0};
    setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &wait, sizeof wait);
    setsockopt(socket, SOL_SOCKET, SO_SNDBUF, &socket_buffer, sizeof socket_buffer);
    setsockopt(socket, SOL_SOCKET, SO_RCVBUF, &socket_buffer, sizeof socket_buffer);
}

// The channel's peer, after accepting it if it is still to come.
int find_peer(Channel &channel, uint64_t deadline, int &peer)
{
    for (;;) {
        int listener;
        {
            const Lock lock;
            if (channel.closing)
                return MESH_STANDIN_PEER_CLOSED;
            peer = channel.peer;
            listener = channel.listener;
        }
        if (peer != no_socket)
            return MESH_STANDIN_OK;
        const int ready = wait_readable(listener, deadline);
        if (ready != MESH_STANDIN_OK)
            return ready;
        int accepted = accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
        const Lock lock;
        if (accepted == no_socket) {
            // EINVAL: the listener was shut down by a close. Another thread may have taken the peer.
            if (errno != EINVAL && errno != EAGAIN && errno != EINTR && errno != ECONNABORTED)
                return MESH_STANDIN_SYSTEM;
        } else if (channel.closing || channel.peer != no_socket) {
            close_socket(accepted);
        } else {
            configure(accepted);
            channel.peer = accepted;
            remove_path(channel);
        }
    }
}

int result_of_errno()
{
    switch (errno) {
    case EPIPE:
    case ECONNRESET:
    case ENOTCONN:
        return MESH_STANDIN_PEER_CLOSED;
    case EMSGSIZE:
        return MESH_STANDIN_TOO_LONG;
    case EAGAIN:
        return MESH_STANDIN_TIMEOUT;
    case ENOMEM:
    case ENOBUFS:
        return MESH_STANDIN_NO_MEMORY;
    default:
        return MESH_STANDIN_SYSTEM;
    }
}

// An item as a packet.
struct Packet {
    explicit Packet(const MeshSendItem &item)
    {
        store_u32(head, item.id);
        store_u32(head + 4, item.length);
        pieces[0] = {head, sizeof head};
        pieces[1] = {const_cast<uint8_t *>(item.data), item.length};
    }
    Packet(const Packet &) = delete;
    Packet &operator=(const Packet &) = delete;

    uint8_t head[packet_head];
    iovec pieces[2];
};

int send_packet(int peer, const MeshSendItem &item)
{
    Packet packet(item);
    msghdr message{};
    message.msg_iov = packet.pieces;
    message.msg_iovlen = 2;
    while (sendmsg(peer, &message, MSG_NOSIGNAL) < 0)
        if (errno != EINTR)
            return result_of_errno();
    capture_packet(packet.pieces, 2);
    const Lock lock;
    ++counters.sent;
    counters.bytes += item.length;
    return MESH_STANDIN_OK;
}

bool fit_packets(const MeshSendItem *items, uint32_t count)
{
    for (uint32_t i = 0; i < count; ++i)
        if (items[i].length > MESH_STANDIN_ITEM_BYTES)
            return false;
    return true;
}

int send_bound(Channel &channel, const MeshSendItem *items, uint32_t count)
{
    if (!fit_packets(items, count))
        return MESH_STANDIN_TOO_LONG;
    int peer;
    int result = find_peer(channel, 0, peer);
    if (result == MESH_STANDIN_TIMEOUT)
        return MESH_STANDIN_NO_PEER;
    for (uint32_t i = 0; i < count && result == MESH_STANDIN_OK; ++i)
        result = send_packet(peer, items[i]);
    return result;
}

// The transport of a channel that this file does not carry itself.
const MeshTransport *transport_of(uint32_t channel)
{
    const MeshTransport *const transport = mesh_transport();
    return transport != nullptr && transport->carries(channel) ? transport : nullptr;
}

int send_elsewhere(const MeshTransport &transport, uint32_t channel, const MeshSendItem *items, uint32_t count,
                   uint32_t destination)
{
    if (!fit_packets(items, count))
        return MESH_STANDIN_TOO_LONG;
    const int result = transport.send(channel, items, count, destination);
    for (uint32_t i = 0; i < count && result == MESH_STANDIN_OK; ++i) {
        capture_packet(Packet(items[i]).pieces, 2);
        const Lock lock;
        ++counters.sent;
        counters.bytes += items[i].length;
    }
    return result;
}

int receive_elsewhere(const MeshTransport &transport, uint32_t channel, uint64_t deadline, uint8_t *packet,
                      uint32_t capacity, uint32_t &length)
{
    for (;;) {
        const uint64_t now = now_ms();
        const uint64_t left = deadline > now ? deadline - now : 0;
        const int result = transport.receive(channel, static_cast<uint32_t>(left), packet, capacity, length);
        if (result != MESH_STANDIN_TIMEOUT || now >= deadline)
            return result;
    }
}

int send_loopback(uint32_t channel, const MeshSendItem *items, uint32_t count)
{
    int first_failure = MESH_STANDIN_OK;
    for (uint32_t i = 0; i < count; ++i) {
        {
            const Lock lock;
            ++counters.sent;
            counters.bytes += items[i].length;
        }
        capture_packet(Packet(items[i]).pieces, 2);
        const int result = deliver(channel, items[i].id, items[i].data, items[i].length);
        if (first_failure == MESH_STANDIN_OK)
            first_failure = result;
    }
    return first_failure;
}

void check(const MeshSendItem &item)
{
    // Folded to one byte without carries: a byte that was never written leaves all eight bits unknown, whatever the others
    // hold. In a wider sum the known bits could settle the comparison, and nothing would be reported.
    uint8_t folded = 0;
    for (uint32_t i = 0; i < item.length; ++i)
        folded ^= item.data[i];
    if (folded == 0) {
        const Lock lock;
        zero_checksums = zero_checksums + 1;
    }
}

int send_items(uint32_t channel, const MeshSendItem *items, uint32_t count, const uint32_t *destination)
{
    if (channel >= MESH_STANDIN_CHANNELS)
        return MESH_STANDIN_UNKNOWN_CHANNEL;
    if (items == nullptr && count > 0)
        return MESH_STANDIN_BAD_ARGUMENT;
    for (uint32_t i = 0; i < count; ++i)
        if (items[i].data == nullptr && items[i].length > 0)
            return MESH_STANDIN_BAD_ARGUMENT;
    bool checking;
    {
        const Lock lock;
        checking = check_bytes;
        if (destination != nullptr)
            counters.destination = *destination;
    }
    for (uint32_t i = 0; checking && i < count; ++i)
        check(items[i]);
    if (const MeshTransport *const transport = transport_of(channel))
        return send_elsewhere(*transport, channel, items, count, destination != nullptr ? *destination : 0);
    const Use use(channel);
    if (use.result == MESH_STANDIN_NOT_BOUND)
        return send_loopback(channel, items, count);
    return use.result == MESH_STANDIN_OK ? send_bound(use.channel, items, count) : use.result;
}

// Reads one packet into `buffer`, which has one byte more than the longest packet, so that a longer one shows.
int read_packet(int peer, uint64_t deadline, uint8_t *buffer, uint32_t capacity, uint32_t &length)
{
    for (;;) {
        const int ready = wait_readable(peer, deadline);
        if (ready != MESH_STANDIN_OK)
            return ready;
        const ssize_t got = recv(peer, buffer, capacity, MSG_DONTWAIT);
        if (got > 0) {
            length = static_cast<uint32_t>(got);
            return MESH_STANDIN_OK;
        }
        if (got < 0 && errno != EAGAIN && errno != EINTR)
            return result_of_errno();
        if (got == 0) {
            // Either an empty packet or the end; only after the end nothing more can come.
            pollfd entry{peer, POLLRDHUP, 0};
            if (poll(&entry, 1, 0) > 0)
                return MESH_STANDIN_PEER_CLOSED;
            length = 0;
            return MESH_STANDIN_OK;
        }
    }
}

int deliver_packet(uint32_t channel, const uint8_t *packet, uint32_t length)
{
    if (length < packet_head)
        return MESH_STANDIN_SHORT_PACKET;
    const uint32_t body = length - packet_head;
    if (body > MESH_STANDIN_ITEM_BYTES)
        return MESH_STANDIN_TOO_LONG;
    if (load_u32(packet + 4) != body)
        return MESH_STANDIN_LENGTH_DISAGREES;
    uint8_t *const bytes = static_cast<uint8_t *>(malloc(body == 0 ? 1 : body));
    if (bytes == nullptr)
        return MESH_STANDIN_NO_MEMORY;
    memcpy(bytes, packet + packet_head, body);
    const int result = deliver(channel, load_u32(packet), bytes, body);
    free(bytes);
    return result;
}

[[nodiscard]] bool make_address(const char *path, sockaddr_un &address)
{
    memset(&address, 0, sizeof address);
    address.sun_family = AF_UNIX;
    const size_t length = strlen(path);
    if (length == 0 || length >= sizeof address.sun_path) {
        errno = length == 0 ? ENOENT : ENAMETOOLONG;
        return false;
    }
    memcpy(address.sun_path, path, length);
    return true;
}

int test_bind(uint32_t channel, const char *path, sockaddr_un &address)
{
    if (channel >= MESH_STANDIN_CHANNELS)
        return MESH_STANDIN_UNKNOWN_CHANNEL;
    if (path == nullptr)
        return MESH_STANDIN_BAD_ARGUMENT;
    if (transport_of(channel) != nullptr)
        return MESH_STANDIN_BUSY;
    return make_address(path, address) ? MESH_STANDIN_OK : MESH_STANDIN_BAD_PATH;
}

// One attempt; EAGAIN says that the listener has not come round to its earlier callers yet.
int try_connect(const sockaddr_un &address, int &peer)
{
    peer = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (peer == no_socket)
        return MESH_STANDIN_SYSTEM;
    if (connect(peer, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0) {
        fcntl(peer, F_SETFL, 0); // only the attempt was not to wait
        return MESH_STANDIN_OK;
    }
    const int error = errno;
    close_socket(peer);
    errno = error;
    const bool may_come = error == ENOENT || error == ECONNREFUSED || error == EAGAIN || error == EINTR;
    return may_come ? MESH_STANDIN_TIMEOUT : MESH_STANDIN_BAD_PATH;
}

[[gnu::constructor]] void start_capture()
{
    const char *const path = getenv("MESH_STANDIN_CAPTURE");
    if (path != nullptr && path[0] != '\0')
        [[maybe_unused]] const bool ignored = capture_to(path); // has said why on stderr
}

} // namespace

// Gives way to that of a library with a transport.
[[gnu::weak]] const MeshTransport *mesh_transport()
{
    return nullptr;
}

// The four operations of MESH -----------------------------------------------------------------------------------------

int MESH_SendMsg(uint32_t channel, const MeshSendItem *items, uint32_t count)
{
    return send_items(channel, items, count, nullptr);
}

int MESH_SendToMsg(uint32_t channel, const MeshSendItem *items, uint32_t count, uint32_t destination)
{
    return send_items(channel, items, count, &destination);
}

int MESH_RegIDLFuncHook(uint32_t id, MeshUnpack unpack, MeshFree free_record)
{
    if (unpack == nullptr || free_record == nullptr)
        return MESH_STANDIN_BAD_ARGUMENT;
    const Lock lock;
    if (!make_room())
        return MESH_STANDIN_NO_MEMORY;
    Hook *const place = place_of(table.places, table.capacity, id);
    if (place->unpack == nullptr)
        ++table.count;
    *place = Hook{id, 0, false, unpack, free_record};
    return MESH_STANDIN_OK;
}

int MESH_RegIDLResorceCleanFuncHook(MeshClean clean)
{
    if (clean == nullptr)
        return MESH_STANDIN_BAD_ARGUMENT;
    const Lock lock;
    for (uint32_t i = 0; i < clean_list.count; ++i)
        if (clean_list.hooks[i] == clean)
            return MESH_STANDIN_OK;
    if (clean_list.count == clean_list.capacity) {
        const uint32_t capacity = clean_list.capacity == 0 ? 8 : 2 * clean_list.capacity;
        void *const hooks = realloc(clean_list.hooks, capacity * sizeof(MeshClean));
        if (hooks == nullptr)
            return MESH_STANDIN_NO_MEMORY;
        clean_list.hooks = static_cast<MeshClean *>(hooks);
        clean_list.capacity = capacity;
    }
    clean_list.hooks[clean_list.count++] = clean;
    return MESH_STANDIN_OK;
}

// Control -------------------------------------------------------------------------------------------------------------

const char *mesh_standin_text(int result)
{
    switch (result) {
    case MESH_STANDIN_OK:
        return "success";
    case MESH_STANDIN_BAD_ARGUMENT:
        return "a null pointer where something must be";
    case MESH_STANDIN_UNKNOWN_CHANNEL:
        return "no such channel";
    case MESH_STANDIN_NOT_BOUND:
        return "the channel is not bound to a socket";
    case MESH_STANDIN_UNKNOWN_ID:
        return "no decoder is registered for the message id";
    case MESH_STANDIN_SHORT_PACKET:
        return "the packet is shorter than its head";
    case MESH_STANDIN_LENGTH_DISAGREES:
        return "the packet's length disagrees with its bytes";
    case MESH_STANDIN_TOO_LONG:
        return "the item is too long for a packet";
    case MESH_STANDIN_BUSY:
        return "the channel is bound already";
    case MESH_STANDIN_BAD_PATH:
        return "the socket path cannot be used";
    case MESH_STANDIN_NO_PEER:
        return "nobody has connected to the channel";
    case MESH_STANDIN_PEER_CLOSED:
        return "the connection is closed";
    case MESH_STANDIN_TIMEOUT:
        return "the time is over";
    case MESH_STANDIN_NO_MEMORY:
        return "out of memory";
    case MESH_STANDIN_SYSTEM:
        return "a system call failed";
    default:
        return "unknown result";
    }
}

int mesh_standin_set_consumer(uint32_t channel, MeshStandinConsumer consumer, void *context)
{
    if (channel >= MESH_STANDIN_CHANNELS && channel != MESH_STANDIN_EVERY_CHANNEL)
        return MESH_STANDIN_UNKNOWN_CHANNEL;
    const Lock lock;
    (channel == MESH_STANDIN_EVERY_CHANNEL ? any_consumer : channels[channel].consumer) = Consumer{consumer, context};
    return MESH_STANDIN_OK;
}

int mesh_standin_listen(uint32_t number, const char *path)
{
    sockaddr_un address;
    const int tested = test_bind(number, path, address);
    if (tested != MESH_STANDIN_OK)
        return tested;
    const Lock lock;
    Channel &channel = channels[number];
    if (channel.bound)
        return MESH_STANDIN_BUSY;
    // Non-blocking, so that two threads which wait for the peer cannot hang in accept.
    int listener = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (listener == no_socket)
        return MESH_STANDIN_SYSTEM;
    const bool owns_path = bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    channel.address = address;
    channel.owns_path = owns_path;
    if (!owns_path || listen(listener, 1) != 0) {
        const int error = errno;
        close_socket(listener);
        remove_path(channel);
        errno = error;
        return owns_path ? MESH_STANDIN_SYSTEM : MESH_STANDIN_BAD_PATH;
    }
    channel.listener = listener;
    channel.bound = true;
    return MESH_STANDIN_OK;
}

int mesh_standin_connect(uint32_t number, const char *path, uint32_t timeout_ms)
{
    sockaddr_un address;
    int result = test_bind(number, path, address);
    if (result != MESH_STANDIN_OK)
        return result;
    Channel &channel = channels[number];
    {
        const Lock lock;
        if (channel.bound)
            return MESH_STANDIN_BUSY;
    }
    int peer = no_socket;
    const uint64_t deadline = now_ms() + timeout_ms;
    for (;;) {
        const bool last = now_ms() >= deadline;
        result = try_connect(address, peer);
        if (result != MESH_STANDIN_TIMEOUT || last)
            break;
        const Wait wait;
        const timespec pause{0, 10000000};
        nanosleep(&pause, nullptr);
    }
    if (result != MESH_STANDIN_OK)
        return result;
    configure(peer);
    const Lock lock;
    if (channel.bound) { // by another thread meanwhile
        close_socket(peer);
        return MESH_STANDIN_BUSY;
    }
    channel.peer = peer;
    channel.bound = true;
    return MESH_STANDIN_OK;
}

int mesh_standin_receive(uint32_t number, uint32_t timeout_ms)
{
    if (number >= MESH_STANDIN_CHANNELS)
        return MESH_STANDIN_UNKNOWN_CHANNEL;
    const uint64_t deadline = now_ms() + timeout_ms;
    constexpr uint32_t capacity = packet_head + MESH_STANDIN_ITEM_BYTES + 1;
    uint8_t *const packet = static_cast<uint8_t *>(malloc(capacity));
    if (packet == nullptr)
        return MESH_STANDIN_NO_MEMORY;
    uint32_t length = 0;
    int result;
    if (const MeshTransport *const transport = transport_of(number)) {
        result = receive_elsewhere(*transport, number, deadline, packet, capacity, length);
    } else {
        // Ends before the delivery, so that the consumer may close the channel.
        const Use use(number);
        int peer = no_socket;
        result = use.result;
        if (result == MESH_STANDIN_OK)
            result = find_peer(use.channel, deadline, peer);
        if (result == MESH_STANDIN_OK)
            result = read_packet(peer, deadline, packet, capacity, length);
    }
    if (result == MESH_STANDIN_OK) {
        const iovec piece{packet, length};
        capture_packet(&piece, 1);
        result = deliver_packet(number, packet, length);
    }
    free(packet);
    return result;
}

int mesh_standin_close(uint32_t number)
{
    if (number >= MESH_STANDIN_CHANNELS)
        return MESH_STANDIN_UNKNOWN_CHANNEL;
    const Lock lock;
    Channel &channel = channels[number];
    if (!channel.bound || channel.closing)
        return MESH_STANDIN_NOT_BOUND;
    channel.closing = true;
    remove_path(channel);
    if (channel.users == 0) {
        settle(channel);
        return MESH_STANDIN_OK;
    }
    // Wakes whoever waits; the last one closes the sockets, so that their numbers are not taken by others meanwhile.
    if (channel.listener != no_socket)
        shutdown(channel.listener, SHUT_RDWR);
    if (channel.peer != no_socket)
        shutdown(channel.peer, SHUT_RDWR);
    return MESH_STANDIN_OK;
}

uint32_t mesh_standin_registered(void)
{
    const Lock lock;
    return table.count;
}

uint32_t mesh_standin_run_clean_hooks(void)
{
    for (uint32_t i = 0;; ++i) {
        MeshClean clean;
        {
            const Lock lock;
            if (i == clean_list.count)
                return i;
            clean = clean_list.hooks[i];
        }
        clean();
    }
}

void mesh_standin_check_initialised(int on)
{
    const Lock lock;
    check_bytes = on != 0;
}

int mesh_standin_capture(const char *path)
{
    return capture_to(path) ? MESH_STANDIN_OK : MESH_STANDIN_BAD_PATH;
}

void mesh_standin_counters(MeshStandinCounters *result)
{
    const Lock lock;
    *result = counters;
}

void mesh_standin_reset(void)
{
    for (uint32_t i = 0; i < MESH_STANDIN_CHANNELS; ++i) {
        mesh_standin_close(i);
        mesh_standin_set_consumer(i, nullptr, nullptr);
    }
    const Lock lock;
    free(table.places);
    table = HookTable{};
    free(clean_list.hooks);
    clean_list = CleanList{};
    any_consumer = Consumer{};
    counters = MeshStandinCounters{};
    check_bytes = false;
}
