// The stand-ins' replacement for parts of the C++ library. C programs that link or preload them need no C++ run time,
// and a failed allocation is reported as a result.
#ifndef KESTO_PLATFORM_STANDIN_ESSENTIALS_H
#define KESTO_PLATFORM_STANDIN_ESSENTIALS_H

#include <endian.h>
#include <pthread.h>
#include <stdint.h>
#include <stdlib.h>
#include <string.h>

struct Lock {
    explicit Lock(pthread_mutex_t& to_hold) : mutex(to_hold) { pthread_mutex_lock(&mutex); }
    ~Lock() { pthread_mutex_unlock(&mutex); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

    pthread_mutex_t& mutex;
};

// Linked lists of nodes with a `key` and a `next`, in the order in which they were added.

// The link to the node with `key`, or the null link at the end of the list.
template <typename Node, typename Key>
Node** find_link(Node** link, Key key)
{
    while (*link != nullptr && (*link)->key != key)
        link = &(*link)->next;
    return link;
}

// A new node is zeroed except for its key. Null if there is no memory.
template <typename Node, typename Key>
[[nodiscard]] Node* find_or_add(Node** first, Key key)
{
    Node** const link = find_link(first, key);
    if (*link == nullptr) {
        *link = static_cast<Node*>(calloc(1, sizeof(Node)));
        if (*link != nullptr)
            (*link)->key = key;
    }
    return *link;
}

template <typename Node>
void free_chain(Node*& first)
{
    while (Node* const node = first) {
        first = node->next;
        free(node);
    }
}

// The numbers in packets and capture files are little-endian on every host.

inline void store_u32(uint8_t* at, uint32_t value)
{
    value = htole32(value);
    memcpy(at, &value, sizeof value);
}

inline uint32_t load_u32(const uint8_t* at)
{
    uint32_t value;
    memcpy(&value, at, sizeof value);
    return le32toh(value);
}

#endif
