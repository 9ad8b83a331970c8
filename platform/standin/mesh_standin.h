/* Control of the MESH stand-in: a libzervamesh.so for machines without the closed one.
 *
 * The four operations of platform/mesh.h:
 * - Registration keeps {decoder, free} per message id. A second registration of an id replaces the first.
 * - Channels are numbered 0 to MESH_STANDIN_CHANNELS - 1; any other number is refused.
 * - A channel is a loopback until it is bound to a socket: the send operations deliver every item to this process's own
 *   decoder before they return. If an item cannot be delivered, the later ones still are; the result is the first
 *   failure.
 * - On a bound channel every item goes to the peer as one packet. All items are tested before the first one is sent. If
 *   the peer disconnects halfway, the earlier items have been sent.
 * - Any destination is accepted. It is shown in the counters and used for nothing else.
 *
 * Delivery of one item: look up the id, allocate zeroed record storage (aligned for any type), decode, call the
 * consumer, call the registered free, release the storage. A decoder returns the record's size whether or not decoding
 * succeeded. The consumer is therefore called after a failed decode too, and recognises it by null pointers where its
 * message needs them. Calling free after a failure is safe because the storage was zeroed.
 *
 * The record's size comes from the decoder itself: at the first delivery of an id it is called with (null, 0, null),
 * which returns the size and touches nothing. Codecs log one "Param invalid" line for that call if the process has a
 * log service. The call is made at the first delivery so that registering many messages logs nothing.
 *
 * Packets on a socket (AF_UNIX, SOCK_SEQPACKET): u32 id, u32 length, both little-endian, then `length` bytes. A channel
 * has one peer, and both sides may send. A packet carries an item of at most MESH_STANDIN_ITEM_BYTES; a longer one is
 * refused as a whole. Received bytes are passed on in a block of exactly their length, so that memory checkers detect
 * reads past it.
 *
 * Capture: with MESH_STANDIN_CAPTURE=file in the environment, or after mesh_standin_capture, all traffic is written to
 * a pcap file of link type USER1 (148): a call head (see platform/standin/capture.h) and a packet as above. Every packet
 * is written once per process: on a loopback an item before it is delivered, and so without a result; a packet after it
 * was sent on a socket or over another transport; and a received packet whatever its content. A packet longer than
 * 262144 bytes with its call head, which is possible only on a loopback, is truncated to that length. %p in the name
 * stands for the process id. Only its owner can read the file (mode 0600). An empty file and an older capture are
 * replaced. Any other file is refused and left unchanged: one that is not a capture, belongs to another user or is being
 * written by another process, and a symbolic link. A child after a fork needs a file of its own, hence the %p. If the
 * file cannot be opened or written, one line on stderr says so, and messages pass as without a capture.
 *
 * Threads: every function but mesh_standin_reset may be called from any thread at any time. Hooks and consumers run
 * without a lock held and may themselves send. */
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
    MESH_STANDIN_BAD_ARGUMENT,     /* a null pointer that is not permitted */
    MESH_STANDIN_UNKNOWN_CHANNEL,  /* number out of range */
    MESH_STANDIN_NOT_BOUND,        /* the channel is a loopback, and the call needs a socket */
    MESH_STANDIN_UNKNOWN_ID,       /* no decoder registered */
    MESH_STANDIN_SHORT_PACKET,     /* less than the 8 bytes of id and length */
    MESH_STANDIN_LENGTH_DISAGREES, /* the packet has more or fewer bytes than its length says */
    MESH_STANDIN_TOO_LONG,         /* an item above MESH_STANDIN_ITEM_BYTES on a socket */
    MESH_STANDIN_BUSY,             /* the channel is bound already */
    MESH_STANDIN_BAD_PATH,         /* too long, existing already, or inaccessible; see errno */
    MESH_STANDIN_NO_PEER,          /* sending on a listening channel to which nobody has connected */
    MESH_STANDIN_PEER_CLOSED,      /* by the other side, or by mesh_standin_close in another thread */
    MESH_STANDIN_TIMEOUT,
    MESH_STANDIN_NO_MEMORY,
    MESH_STANDIN_SYSTEM /* any other failure of a system call; see errno */
};

/* The meaning of a result as an English text; never null. */
const char* mesh_standin_text(int result);

/* Called for every delivered item. `record` and `bytes` are valid only during the call. */
typedef void (*MeshStandinConsumer)(void* context, uint32_t channel, uint32_t id, const void* record,
                                    uint32_t record_size, const uint8_t* bytes, uint32_t length);

/* Sets the consumer of one channel, or with MESH_STANDIN_EVERY_CHANNEL that of all channels without one. Null removes
 * it. Without a consumer, items are still decoded and freed. */
int mesh_standin_set_consumer(uint32_t channel, MeshStandinConsumer consumer, void* context);

/* Binds the channel to a socket at `path`, which must not exist yet, and returns at once. The first process that
 * connects becomes the peer; the path is then removed, or by mesh_standin_close if nobody connects. */
int mesh_standin_listen(uint32_t channel, const char* path);

/* Binds the channel to the socket that another process listens on, waiting up to `timeout_ms` for it to appear. */
int mesh_standin_connect(uint32_t channel, const char* path, uint32_t timeout_ms);

/* Waits up to `timeout_ms` for one packet on a bound channel, including the wait for the peer, and delivers it.
 * A packet that cannot be delivered is dropped; the channel stays usable. */
int mesh_standin_receive(uint32_t channel, uint32_t timeout_ms);

/* Makes the channel a loopback again. Other threads waiting on it return with MESH_STANDIN_PEER_CLOSED. */
int mesh_standin_close(uint32_t channel);

/* The number of ids that have a decoder. */
uint32_t mesh_standin_registered(void);

/* Runs the registered clean hooks in the order of registration, each function once, and returns their number. Nothing
 * else runs them. */
uint32_t mesh_standin_run_clean_hooks(void);

/* With 1, a branch depends on every byte passed to the send operations, so that memory checkers report bytes that were
 * never written. 0 is the default. */
void mesh_standin_check_initialised(int on);

/* Captures to the file at `path` from now on and ends any earlier capture; null only ends it. If the file cannot be
 * written, the result is MESH_STANDIN_BAD_PATH, errno is set, and there is no capture. */
int mesh_standin_capture(const char* path);

typedef struct MeshStandinCounters {
    uint64_t sent;        /* items sent on a socket or tried on a loopback */
    uint64_t bytes;       /* of the items sent */
    uint64_t delivered;   /* items that went through a decoder */
    uint64_t refused;     /* items without a decoder for their id */
    uint32_t destination; /* of the latest MESH_SendToMsg; 0 before the first one */
    uint32_t waiting;     /* calls now waiting for a peer or a packet on a socket; a close from now on wakes them */
} MeshStandinCounters;

void mesh_standin_counters(MeshStandinCounters* counters);

/* Removes hooks and consumers, resets counters and closes all channels; a capture continues. For tests: no other thread
 * may be in a call. */
void mesh_standin_reset(void);

#ifdef __cplusplus
}
#endif

#endif
