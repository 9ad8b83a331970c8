#include <algorithm>
#include <atomic>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <time.h>
#include <unistd.h>

#include "platform/standin/mesh_transport.h"

namespace {

constexpr int send_patience_ms = 5000;
constexpr int slice_ms = 10;   // interval at which a waiting call checks whether its channel has been closed
constexpr int socket_buffer = 2 * static_cast<int>(MESH_STANDIN_ITEM_BYTES);
constexpr int no_socket = -1;

struct Hook {
    uint32_t key;   // the message id
    Hook* next;
    MeshUnpack unpack;
    MeshFree free_record;
    uint32_t record_size;   // 0 until the decoder has been asked
};

struct CleanHook {
    MeshClean key;
    CleanHook* next;
};

struct Consumer {
    MeshStandinConsumer call;
    void* context;
};

struct Channel {
    uint64_t binding;           // unique for each socket that is listened on or connected; 0 on a loopback
    int listener = no_socket;   // open until there is a peer
    int peer = no_socket;
    bool owns_path;   // `address` is ours to unlink
    sockaddr_un address;
    Consumer consumer;
};

constinit pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;   // guards all that follows
constinit Hook* hooks[1024]{};
constinit uint32_t hook_count{};
constinit CleanHook* clean_hooks{};
constinit Consumer any_consumer{};
constinit Channel channels[MESH_STANDIN_CHANNELS]{};
constinit uint64_t bindings{};
constinit MeshStandinCounters counters{};

constinit std::atomic<uint32_t> waiting{};
constinit std::atomic<bool> check_bytes{};
constinit std::atomic<uint32_t> zero_checksums{};   // a result of the check, so that the compiler cannot remove it

Hook** hooks_with(uint32_t id) { return &hooks[id * UINT32_C(0x9e3779b1) >> 22]; }

int deliver(uint32_t channel, uint32_t id, const uint8_t* bytes, uint32_t length)
{
    Hook hook;
    Consumer consumer;
    {
        const Lock lock(mutex);
        const Hook* const found = *find_link(hooks_with(id), id);
        if (found == nullptr) {
            ++counters.refused;
            return MESH_STANDIN_UNKNOWN_ID;
        }
        hook = *found;
        consumer = channels[channel].consumer.call != nullptr ? channels[channel].consumer : any_consumer;
    }
    if (hook.record_size == 0) {
        hook.record_size = hook.unpack(nullptr, 0, nullptr);
        const Lock lock(mutex);
        Hook* const found = *find_link(hooks_with(id), id);
        if (found != nullptr && found->unpack == hook.unpack)
            found->record_size = hook.record_size;
    }
    void* const record = calloc(1, std::max(hook.record_size, UINT32_C(1)));
    if (record == nullptr)
        return MESH_STANDIN_NO_MEMORY;
    hook.unpack(bytes, length, record);
    if (consumer.call != nullptr)
        consumer.call(consumer.context, channel, id, record, hook.record_size, bytes, length);
    hook.free_record(record);
    free(record);
    const Lock lock(mutex);
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

// Preserves errno for the failure that led here.
void close_socket(int& socket)
{
    const int error = errno;
    if (socket != no_socket)
        close(socket);
    socket = no_socket;
    errno = error;
}

void remove_path(Channel& channel)
{
    if (channel.owns_path)
        unlink(channel.address.sun_path);
    channel.owns_path = false;
}

void unbind(Channel& channel)
{
    close_socket(channel.listener);
    close_socket(channel.peer);
    remove_path(channel);
    channel.binding = 0;
}

uint64_t binding_of(uint32_t channel)
{
    const Lock lock(mutex);
    return channels[channel].binding;
}

// Counts a call as waiting during its lifetime.
struct Wait {
    Wait() { ++waiting; }
    ~Wait() { --waiting; }
};

int open_socket() { return socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0); }

// Best effort: the default buffer holds an item too.
void enlarge_buffers(int socket)
{
    setsockopt(socket, SOL_SOCKET, SO_SNDBUF, &socket_buffer, sizeof socket_buffer);
    setsockopt(socket, SOL_SOCKET, SO_RCVBUF, &socket_buffer, sizeof socket_buffer);
}

// Any other process that has connected meanwhile sees its connection end when the listener is closed.
void accept_peer(Channel& channel)
{
    channel.peer = accept4(channel.listener, nullptr, nullptr, SOCK_CLOEXEC);
    if (channel.peer == no_socket)
        return;
    enlarge_buffers(channel.peer);
    close_socket(channel.listener);
    remove_path(channel);
}

int result_of_errno()
{
    switch (errno) {
    case EPIPE:
    case ECONNRESET:
    case ENOTCONN: return MESH_STANDIN_PEER_CLOSED;
    case EMSGSIZE: return MESH_STANDIN_TOO_LONG;
    case EAGAIN:
    case EINTR:
    case ECONNABORTED: return MESH_STANDIN_TIMEOUT;
    case ENOMEM:
    case ENOBUFS: return MESH_STANDIN_NO_MEMORY;
    default: return MESH_STANDIN_SYSTEM;
    }
}

// Calls attempt(peer) until its result is not a timeout, the deadline has passed or the channel is closed. Each attempt
// runs with the lock held and without waiting.
// Between attempts the socket is polled through a duplicate, which a close in another thread does not invalidate.
template <typename Attempt>
int with_peer(uint32_t number, uint64_t binding, short event, uint64_t deadline, Attempt attempt)
{
    for (;;) {
        const int left = ms_until(deadline);
        pollfd entry{no_socket, event, 0};
        {
            const Lock lock(mutex);
            Channel& channel = channels[number];
            if (channel.binding != binding)
                return MESH_STANDIN_PEER_CLOSED;
            if (channel.peer == no_socket)
                accept_peer(channel);
            const int result = channel.peer != no_socket ? attempt(channel.peer) : result_of_errno();
            if (result != MESH_STANDIN_TIMEOUT)
                return result;
            if (left == 0)
                return channel.peer != no_socket ? MESH_STANDIN_TIMEOUT : MESH_STANDIN_NO_PEER;
            entry.fd = fcntl(channel.peer != no_socket ? channel.peer : channel.listener, F_DUPFD_CLOEXEC, 0);
        }
        const Wait wait;
        poll(&entry, 1, std::min(left, slice_ms));
        close_socket(entry.fd);
    }
}

int send_bound(const CapturedCall& call, uint64_t binding, const MeshSendItem* items, uint32_t count)
{
    const uint32_t channel = call.channel;
    int result = with_peer(channel, binding, POLLOUT, 0, [](int) { return MESH_STANDIN_OK; });
    for (uint32_t i = 0; i < count && result == MESH_STANDIN_OK; ++i) {
        uint8_t head[packet_head];
        store_head(head, items[i]);
        iovec pieces[] = {{head, sizeof head}, {const_cast<uint8_t*>(items[i].data), items[i].length}};
        msghdr message{};
        message.msg_iov = pieces;
        message.msg_iovlen = 2;
        result = with_peer(channel, binding, POLLOUT, now_ms() + send_patience_ms, [&](int peer) {
            return sendmsg(peer, &message, MSG_NOSIGNAL | MSG_DONTWAIT) < 0 ? result_of_errno() : MESH_STANDIN_OK;
        });
        if (result == MESH_STANDIN_OK)
            mesh_sent(call, items[i]);
    }
    return result;
}

// Reads one packet into `buffer`, one byte larger than the longest packet, so that a longer packet is noticed.
int read_packet(uint32_t channel, uint64_t deadline, uint8_t* buffer, uint32_t capacity, uint32_t& length)
{
    const uint64_t binding = binding_of(channel);
    if (binding == 0)
        return MESH_STANDIN_NOT_BOUND;
    const int result = with_peer(channel, binding, POLLIN, deadline, [&](int peer) {
        const ssize_t got = recv(peer, buffer, capacity, MSG_DONTWAIT);
        if (got < 0)
            return result_of_errno();
        // A length of 0 means an empty packet or the end of the connection; poll tells whether the peer has closed it.
        pollfd end{peer, POLLRDHUP, 0};
        if (got == 0 && poll(&end, 1, 0) > 0)
            return static_cast<int>(MESH_STANDIN_PEER_CLOSED);
        length = static_cast<uint32_t>(got);
        return static_cast<int>(MESH_STANDIN_OK);
    });
    return result == MESH_STANDIN_NO_PEER ? MESH_STANDIN_TIMEOUT : result;
}

int deliver_packet(uint32_t channel, const uint8_t* packet, uint32_t length)
{
    if (length < packet_head)
        return MESH_STANDIN_SHORT_PACKET;
    const uint32_t body = length - packet_head;
    if (body > MESH_STANDIN_ITEM_BYTES)
        return MESH_STANDIN_TOO_LONG;
    if (load_u32(packet + 4) != body)
        return MESH_STANDIN_LENGTH_DISAGREES;
    uint8_t* const bytes = static_cast<uint8_t*>(malloc(std::max(body, UINT32_C(1))));
    if (bytes == nullptr)
        return MESH_STANDIN_NO_MEMORY;
    memcpy(bytes, packet + packet_head, body);
    const int result = deliver(channel, load_u32(packet), bytes, body);
    free(bytes);
    return result;
}

// The transport that carries a channel, or null if this file carries it itself.
const MeshTransport* transport_of(uint32_t channel)
{
    const MeshTransport* const transport = mesh_transport();
    return transport != nullptr && transport->carries(channel) ? transport : nullptr;
}

// Makes the tests that listening and connecting share, and converts the path to an address.
int make_address(uint32_t channel, const char* path, sockaddr_un& address)
{
    if (channel >= MESH_STANDIN_CHANNELS)
        return MESH_STANDIN_UNKNOWN_CHANNEL;
    if (path == nullptr)
        return MESH_STANDIN_BAD_ARGUMENT;
    if (transport_of(channel) != nullptr)
        return MESH_STANDIN_BUSY;
    const size_t length = strlen(path);
    if (length == 0 || length >= sizeof address.sun_path) {
        errno = length == 0 ? ENOENT : ENAMETOOLONG;
        return MESH_STANDIN_BAD_PATH;
    }
    address = {};
    address.sun_family = AF_UNIX;
    memcpy(address.sun_path, path, length);
    return MESH_STANDIN_OK;
}

// Makes one attempt. The result is a timeout if another attempt may succeed.
int try_connect(Channel& channel, const sockaddr_un& address)
{
    const Lock lock(mutex);
    if (channel.binding != 0)
        return MESH_STANDIN_BUSY;
    channel.peer = open_socket();
    if (channel.peer == no_socket)
        return MESH_STANDIN_SYSTEM;
    if (connect(channel.peer, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
        enlarge_buffers(channel.peer);
        channel.binding = ++bindings;
        return MESH_STANDIN_OK;
    }
    close_socket(channel.peer);
    // EAGAIN: the listener has not accepted earlier connections yet.
    const bool may_come = errno == ENOENT || errno == ECONNREFUSED || errno == EAGAIN || errno == EINTR;
    return may_come ? MESH_STANDIN_TIMEOUT : MESH_STANDIN_BAD_PATH;
}

// Sending -------------------------------------------------------------------------------------------------------------

// The items are captured before they are delivered, and so without a result.
int send_loopback(CapturedCall call, const MeshSendItem* items, uint32_t count)
{
    int first_failure = MESH_STANDIN_OK;
    call.known &= static_cast<uint16_t>(~CAPTURE_RESULT);
    for (uint32_t i = 0; i < count; ++i) {
        mesh_sent(call, items[i]);
        const int result = deliver(call.channel, items[i].id, items[i].data, items[i].length);
        if (first_failure == MESH_STANDIN_OK)
            first_failure = result;
    }
    return first_failure;
}

// Folds all bytes into one without carries: a byte that was never written makes all eight bits undefined, whatever the
// other bytes hold. In a wider sum the defined bits could decide the comparison, and nothing would be reported.
void check(const MeshSendItem& item)
{
    uint8_t folded = 0;
    for (uint32_t i = 0; i < item.length; ++i)
        folded ^= item.data[i];
    if (folded == 0)
        ++zero_checksums;
}

// What is captured with each item that leaves. The result is 0: items that do not leave are not captured.
CapturedCall sent_call(uint32_t channel, const uint32_t* destination)
{
    CapturedCall call{};
    call.direction = CaptureDirection::sent;
    call.known = CAPTURE_CHANNEL | CAPTURE_RESULT;
    call.channel = channel;
    if (destination != nullptr) {
        call.known |= CAPTURE_DESTINATION;
        call.destination = *destination;
    }
    call.began = capture_is_on() ? capture_time() : 0;
    return call;
}

int send_items(uint32_t channel, const MeshSendItem* items, uint32_t count, const uint32_t* destination)
{
    if (channel >= MESH_STANDIN_CHANNELS)
        return MESH_STANDIN_UNKNOWN_CHANNEL;
    if (items == nullptr && count > 0)
        return MESH_STANDIN_BAD_ARGUMENT;
    bool fits_packets = true;
    for (uint32_t i = 0; i < count; ++i) {
        if (items[i].data == nullptr && items[i].length > 0)
            return MESH_STANDIN_BAD_ARGUMENT;
        fits_packets = fits_packets && items[i].length <= MESH_STANDIN_ITEM_BYTES;
    }
    if (destination != nullptr) {
        const Lock lock(mutex);
        counters.destination = *destination;
    }
    for (uint32_t i = 0; check_bytes && i < count; ++i)
        check(items[i]);
    const CapturedCall call = sent_call(channel, destination);
    const MeshTransport* const transport = transport_of(channel);
    if (transport != nullptr && fits_packets)
        return transport->send(call, items, count);
    const uint64_t binding = binding_of(channel);
    if (transport == nullptr && binding == 0)
        return send_loopback(call, items, count);
    return fits_packets ? send_bound(call, binding, items, count) : MESH_STANDIN_TOO_LONG;
}

bool start_capture(const char* path) { return capture_to({"mesh stand-in", path, capture_without_limit, 1, false}); }

void capture_received(uint32_t channel, const uint8_t* packet, uint32_t length)
{
    if (!capture_is_on())
        return;
    CapturedCall call{};
    call.direction = CaptureDirection::received;
    call.known = CAPTURE_CHANNEL;
    call.channel = channel;
    call.began = capture_time();
    capture_packet(call, nullptr, 0, packet, length);
}

[[gnu::constructor]] void read_environment()
{
    const char* const path = getenv("MESH_STANDIN_CAPTURE");
    if (path != nullptr && path[0] != '\0') [[maybe_unused]]
        const bool ignored = start_capture(path);   // has printed the reason on stderr
}

}   // namespace

// A library with a transport overrides this definition.
[[gnu::weak]] const MeshTransport* mesh_transport() { return nullptr; }

void mesh_sent(const CapturedCall& call, const MeshSendItem& item)
{
    capture_item(call, item.id, item.data, item.length);
    const Lock lock(mutex);
    ++counters.sent;
    counters.bytes += item.length;
}

int ms_until(uint64_t deadline)
{
    const uint64_t now = now_ms();
    return deadline <= now ? 0 : static_cast<int>(std::min(deadline - now, uint64_t{INT_MAX}));
}

// The four operations of MESH -----------------------------------------------------------------------------------------

int MESH_SendMsg(uint32_t channel, const MeshSendItem* items, uint32_t count)
{
    return send_items(channel, items, count, nullptr);
}

int MESH_SendToMsg(uint32_t channel, const MeshSendItem* items, uint32_t count, uint32_t destination)
{
    return send_items(channel, items, count, &destination);
}

int MESH_RegIDLFuncHook(uint32_t id, MeshUnpack unpack, MeshFree free_record)
{
    if (unpack == nullptr || free_record == nullptr)
        return MESH_STANDIN_BAD_ARGUMENT;
    const Lock lock(mutex);
    Hook* const hook = find_or_add(hooks_with(id), id);
    if (hook == nullptr)
        return MESH_STANDIN_NO_MEMORY;
    hook_count += hook->unpack == nullptr ? 1 : 0;
    *hook = {id, hook->next, unpack, free_record, 0};
    return MESH_STANDIN_OK;
}

int MESH_RegIDLResorceCleanFuncHook(MeshClean clean)
{
    if (clean == nullptr)
        return MESH_STANDIN_BAD_ARGUMENT;
    const Lock lock(mutex);
    return find_or_add(&clean_hooks, clean) != nullptr ? MESH_STANDIN_OK : MESH_STANDIN_NO_MEMORY;
}

// Control -------------------------------------------------------------------------------------------------------------

const char* mesh_standin_text(int result)
{
    switch (result) {
    case MESH_STANDIN_OK: return "success";
    case MESH_STANDIN_BAD_ARGUMENT: return "a null pointer where something must be";
    case MESH_STANDIN_UNKNOWN_CHANNEL: return "no such channel";
    case MESH_STANDIN_NOT_BOUND: return "the channel is not bound to a socket";
    case MESH_STANDIN_UNKNOWN_ID: return "no decoder is registered for the message id";
    case MESH_STANDIN_SHORT_PACKET: return "the packet is shorter than its head";
    case MESH_STANDIN_LENGTH_DISAGREES: return "the packet's length disagrees with its bytes";
    case MESH_STANDIN_TOO_LONG: return "the item is too long for a packet";
    case MESH_STANDIN_BUSY: return "the channel is bound already";
    case MESH_STANDIN_BAD_PATH: return "the socket path cannot be used";
    case MESH_STANDIN_NO_PEER: return "nobody has connected to the channel";
    case MESH_STANDIN_PEER_CLOSED: return "the connection is closed";
    case MESH_STANDIN_TIMEOUT: return "the time is over";
    case MESH_STANDIN_NO_MEMORY: return "out of memory";
    case MESH_STANDIN_SYSTEM: return "a system call failed";
    default: return "unknown result";
    }
}

int mesh_standin_set_consumer(uint32_t channel, MeshStandinConsumer consumer, void* context)
{
    if (channel >= MESH_STANDIN_CHANNELS && channel != MESH_STANDIN_EVERY_CHANNEL)
        return MESH_STANDIN_UNKNOWN_CHANNEL;
    const Lock lock(mutex);
    (channel == MESH_STANDIN_EVERY_CHANNEL ? any_consumer : channels[channel].consumer) = {consumer, context};
    return MESH_STANDIN_OK;
}

int mesh_standin_listen(uint32_t number, const char* path)
{
    sockaddr_un address;
    int result = make_address(number, path, address);
    if (result != MESH_STANDIN_OK)
        return result;
    const Lock lock(mutex);
    Channel& channel = channels[number];
    if (channel.binding != 0)
        return MESH_STANDIN_BUSY;
    channel.listener = open_socket();
    if (channel.listener == no_socket)
        return MESH_STANDIN_SYSTEM;
    channel.address = address;
    channel.owns_path = bind(channel.listener, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    channel.binding = ++bindings;
    if (!channel.owns_path)
        result = MESH_STANDIN_BAD_PATH;
    else if (listen(channel.listener, 1) != 0)
        result = MESH_STANDIN_SYSTEM;
    if (result != MESH_STANDIN_OK)
        unbind(channel);
    return result;
}

int mesh_standin_connect(uint32_t channel, const char* path, uint32_t timeout_ms)
{
    sockaddr_un address;
    int result = make_address(channel, path, address);
    if (result != MESH_STANDIN_OK)
        return result;
    const uint64_t deadline = now_ms() + timeout_ms;
    for (;;) {
        const bool last = ms_until(deadline) == 0;
        result = try_connect(channels[channel], address);
        if (result != MESH_STANDIN_TIMEOUT || last)
            return result;
        const Wait wait;
        usleep(1000 * slice_ms);
    }
}

int mesh_standin_receive(uint32_t channel, uint32_t timeout_ms)
{
    if (channel >= MESH_STANDIN_CHANNELS)
        return MESH_STANDIN_UNKNOWN_CHANNEL;
    const uint64_t deadline = now_ms() + timeout_ms;
    constexpr uint32_t capacity = packet_head + MESH_STANDIN_ITEM_BYTES + 1;
    uint8_t* const packet = static_cast<uint8_t*>(malloc(capacity));
    if (packet == nullptr)
        return MESH_STANDIN_NO_MEMORY;
    uint32_t length = 0;
    const MeshTransport* const transport = transport_of(channel);
    int result = (transport != nullptr ? transport->receive : read_packet)(channel, deadline, packet, capacity, length);
    if (result == MESH_STANDIN_OK) {
        capture_received(channel, packet, length);
        result = deliver_packet(channel, packet, length);
    }
    free(packet);
    return result;
}

int mesh_standin_close(uint32_t channel)
{
    if (channel >= MESH_STANDIN_CHANNELS)
        return MESH_STANDIN_UNKNOWN_CHANNEL;
    const Lock lock(mutex);
    if (channels[channel].binding == 0)
        return MESH_STANDIN_NOT_BOUND;
    unbind(channels[channel]);
    return MESH_STANDIN_OK;
}

uint32_t mesh_standin_registered(void)
{
    const Lock lock(mutex);
    return hook_count;
}

uint32_t mesh_standin_run_clean_hooks(void)
{
    const CleanHook* hook = nullptr;
    for (uint32_t count = 0;; ++count) {
        {
            const Lock lock(mutex);
            hook = hook == nullptr ? clean_hooks : hook->next;
        }
        if (hook == nullptr)
            return count;
        hook->key();
    }
}

void mesh_standin_check_initialised(int on) { check_bytes = on != 0; }

int mesh_standin_capture(const char* path) { return start_capture(path) ? MESH_STANDIN_OK : MESH_STANDIN_BAD_PATH; }

void mesh_standin_counters(MeshStandinCounters* result)
{
    const Lock lock(mutex);
    *result = counters;
    result->waiting = waiting;
}

void mesh_standin_reset(void)
{
    for (uint32_t i = 0; i < MESH_STANDIN_CHANNELS; ++i) {
        mesh_standin_close(i);
        mesh_standin_set_consumer(i, nullptr, nullptr);
    }
    const Lock lock(mutex);
    for (Hook*& chain : hooks)
        free_chain(chain);
    free_chain(clean_hooks);
    hook_count = 0;
    any_consumer = {};
    counters = {};
    check_bytes = false;
}
