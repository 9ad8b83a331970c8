// The file that says with which keys this process sends and receives, and who may send to it; docs/over-zeromq.md
// describes it.
#ifndef KESTO_PLATFORM_ZEROMQ_KEYS_H
#define KESTO_PLATFORM_ZEROMQ_KEYS_H

#include <stdint.h>
#include <stdio.h>

#include "platform/zeromq/endpoints.h"

enum { KEY_BYTES = 32, KEY_ROOM = 41 };   // a key, and its text with a NUL

struct Receiver {
    char address[ENDPOINT_ROOM];
    char key[KEY_ROOM];
};

struct Keys {
    char secret_key[KEY_ROOM];
    char public_key[KEY_ROOM];   // follows from the secret one
    uint8_t senders[MOST_ENDPOINTS][KEY_BYTES];
    uint32_t sender_count;
    Receiver receivers[MOST_ENDPOINTS];
    uint32_t receiver_count;
};

// False after a line on stderr under `name`, when a line is not understood or none has the secret key: then nothing may
// be opened.
[[nodiscard]] bool read_keys(FILE* file, const char* name, Keys& keys);

// The public key of the receiver at `address`; null when no line has it.
const char* receiver_key(const Keys& keys, const char* address);

// Call before the first socket is opened. From then on a thread tells ZeroMQ which senders `keys` admit, until the
// context ends.
[[nodiscard]] bool start_admission(void* zeromq, const Keys& keys);

// Call once the context has been shut down, and before it is terminated. Waits for that thread, if there is one.
void end_admission();

#endif
