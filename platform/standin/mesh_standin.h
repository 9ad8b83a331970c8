/* Control of the MESH stand-in: a libzervamesh.so for machines without the closed one.
 *
 * What it does with the four operations of platform/mesh.h
 * - Registration keeps {decoder, free} per message id. A second registration of an id replaces the first.
 * - Channels are numbered 0 to MESH_STANDIN_CHANNELS - 1; any other number is refused.
 * - A channel is a loopback until it is bound to a socket: the send operations deliver every item to this process's own
 *   decoder before they return. An item that cannot be delivered does not keep the later ones back; the result is the
 *   first failure.
 * - On a bound channel every item goes to the peer as one packet. All items are tested before the first one leaves; when
 *   the peer goes away halfway, the earlier items have been sent.
 * - A destination is accepted whatever it is, shown in the counters and used for nothing else.
 *
 * Delivery of one item: look up the id, get zeroed record storage (aligned for any type), decode, call the consumer, call
 * the registered free, give the storage back. A decoder's result is the record's size whether or not it could decode, so
 * the consumer is called for a failed decode too, and tells it by null pointers where its message needs them; free is
 * safe after one because the storage was zeroed.
 *
 * The record's size comes from the decoder itself: at the first delivery of an id it is called with (null, 0, null), which
 * returns the size and touches nothing. Codecs log one "Param invalid" line for that call when the process has a log
 * service. It waits for the first delivery so that registering many messages logs nothing.
 *
 * Packets on a socket (AF_UNIX, SOCK_SEQPACKET): u32 id, u32 length, both little-endian, then `length` bytes. A channel has
 * one peer, and both sides may send. A packet is an item of at most MESH_STANDIN_ITEM_BYTES; longer ones are refused as a
 * whole. Received bytes are handed on in a block of exactly their length, so that memory checkers see a read past it.
 *
 * Capture: with MESH_STANDIN_CAPTURE=file in the environment, or after mesh_standin_capture, everything that passes goes to a
 * pcap file of link type USER0 (147), in the form of the packets above and once per process: an item before it is delivered
 * on a loopback, a packet after it has left on a socket or over another transport, and a packet that was received, whatever
 * is in it. A packet longer than 262144 bytes, which only a loopback takes, is cut to them. %p in the name stands for the
 * process id. Only its owner can read the file (mode 0600). An empty file and an older capture are replaced; anything
 * else is left as it is: a file that is not a capture, belongs to another user or is being written by another process,
 * and a symbolic link. A child after a fork needs a file of its own, and so the %p. When the file cannot be opened or
 * written, a line on stderr says so once, and messages pass as they would have.
 *
 * Threads: everything may be called from any thread, save mesh_standin_reset. Hooks and consumers run without a lock held
 * and may themselves send. */
#ifndef KESTO_PLATFORM_STANDIN_MESH_STANDIN_H
#define KESTO_PLATFORM_STANDIN_MESH_STANDIN_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define MESH_STANDIN_CHANNELS 64u
#define MESH_STANDIN_EVERY_CHANNEL UINT32_MAX
#define MESH_STANDIN_ITEM_BYTES 196608u /* fits the socket buffer that an unprivileged Linux process gets */

/* Results of the MESH_* operations and of the functions below; never -1, which is the codecs' own. */
enum {
    MESH_STANDIN_OK = 0,
    MESH_STANDIN_BAD_ARGUMENT,     /* a null pointer where something must be */
    MESH_STANDIN_UNKNOWN_CHANNEL,  /* number out of range */
    MESH_STANDIN_NOT_BOUND,        /* a loopback where a socket is needed */
    MESH_STANDIN_UNKNOWN_ID,       /* no decoder registered */
    MESH_STANDIN_SHORT_PACKET,     /* less than the 8 bytes of id and length */
    MESH_STANDIN_LENGTH_DISAGREES, /* the packet has more or fewer bytes than its length says */
    MESH_STANDIN_TOO_LONG,         /* an item above MESH_STANDIN_ITEM_BYTES on a socket */
    MESH_STANDIN_BUSY,             /* the channel is bound already */
    MESH_STANDIN_BAD_PATH,         /* too long, exists already, or not accessible; errno says more */
    MESH_STANDIN_NO_PEER,          /* sent on a listening channel to which nobody has connected */
    MESH_STANDIN_PEER_CLOSED,      /* the other side, or mesh_standin_close in another thread */
    MESH_STANDIN_TIMEOUT,
    MESH_STANDIN_NO_MEMORY,
    MESH_STANDIN_SYSTEM /* any other failure of a system call; errno says which */
};

/* The result as an English text; never null. */
const char* mesh_standin_text(int result);

/* Called for every delivered item. `record` and `bytes` end with the call. */
typedef void (*MeshStandinConsumer)(void* context, uint32_t channel, uint32_t id, const void* record,
                                    uint32_t record_size, const uint8_t* bytes, uint32_t length);

/* The consumer of one channel, or with MESH_STANDIN_EVERY_CHANNEL of those that have none of their own. Null takes it
 * away. Without any, items are decoded and freed all the same. */
int mesh_standin_set_consumer(uint32_t channel, MeshStandinConsumer consumer, void* context);

/* Binds the channel to a socket at `path`, which must not exist yet, and returns at once. The first process that connects
 * becomes the peer; the path is removed then, or by mesh_standin_close. */
int mesh_standin_listen(uint32_t channel, const char* path);

/* Binds the channel to the socket that another process listens on, waiting up to `timeout_ms` for it to appear. */
int mesh_standin_connect(uint32_t channel, const char* path, uint32_t timeout_ms);

/* Waits up to `timeout_ms` for one packet on a bound channel (for the peer, too, if it is still to come) and delivers
 * it. A packet that cannot be delivered is dropped; the channel goes on. */
int mesh_standin_receive(uint32_t channel, uint32_t timeout_ms);

/* Makes the channel a loopback again. Other threads waiting on it return with MESH_STANDIN_PEER_CLOSED. */
int mesh_standin_close(uint32_t channel);

/* Number of ids that have a decoder. */
uint32_t mesh_standin_registered(void);

/* Runs the registered clean hooks in the order of registration, each function once, and returns how many there were.
 * Nothing runs them otherwise. */
uint32_t mesh_standin_run_clean_hooks(void);

/* With 1, every byte handed to the send operations is read and decides a branch, so that memory checkers report bytes
 * that were never written. 0 is the default. */
void mesh_standin_check_initialised(int on);

/* Captures to the file at `path` from now on, instead of to another one; null ends the capture. MESH_STANDIN_BAD_PATH, with
 * errno, when that file cannot be written: there is no capture then. */
int mesh_standin_capture(const char* path);

typedef struct MeshStandinCounters {
    uint64_t sent;        /* items that left on a socket or were tried on a loopback */
    uint64_t bytes;       /* of the items sent */
    uint64_t delivered;   /* items that went through a decoder */
    uint64_t refused;     /* items without a decoder for their id */
    uint32_t destination; /* of the latest MESH_SendToMsg, 0 before */
    uint32_t waiting;     /* calls that now wait for a peer or a packet on a socket; a close from here on wakes them */
} MeshStandinCounters;

void mesh_standin_counters(MeshStandinCounters* counters);

/* Forgets hooks, consumers and counters and closes all channels; a capture goes on. For tests: no other thread may be in a
 * call. */
void mesh_standin_reset(void);

#ifdef __cplusplus
}
#endif

#endif
