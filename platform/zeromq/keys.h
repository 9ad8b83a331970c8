// The file with the keys that this process uses and the senders that it admits; docs/over-zeromq.md describes it.
#ifndef KESTO_PLATFORM_ZEROMQ_KEYS_H
#define KESTO_PLATFORM_ZEROMQ_KEYS_H

#include <stdint.h>
#include <stdio.h>

#include "platform/zeromq/endpoints.h"

enum { KEY_BYTES = 32, KEY_ROOM = 41 };   // of a key, and of its text with the NUL

struct Receiver {
    char address[ENDPOINT_ROOM];
    char key[KEY_ROOM];
};

struct Keys {
    char secret_key[KEY_ROOM];
    char public_key[KEY_ROOM];   // derived from the secret key
    uint8_t senders[MOST_ENDPOINTS][KEY_BYTES];
    uint32_t sender_count;
    Receiver receivers[MOST_ENDPOINTS];
    uint32_t receiver_count;
};

// If a line is malformed or the secret key is missing, prints a line on stderr under `name` and returns false; then no
// socket may be opened.
[[nodiscard]] bool read_keys(FILE* file, const char* name, Keys& keys);

// The public key of the receiver at `address`; null if no line has it.
const char* receiver_key(const Keys& keys, const char* address);

// Must be called before the first socket is opened. Starts a thread that tells ZeroMQ which senders `keys` admit, until
// the context is shut down. `keys` must outlive the thread.
[[nodiscard]] bool start_admission(void* zeromq, const Keys& keys);

// Must be called after the context has been shut down and before it is terminated. Waits for the thread, if any.
void end_admission();

#endif
