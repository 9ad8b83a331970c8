// The stand-ins' replacement for the C++ library, so that C programs which link or preload them need no C++ run
// time, and a failed allocation is a result like others.
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

// Chains of nodes that have a `key` and a `next`, in the order in which they were added.

// The link to the node of `key`, or the null at the chain's end.
template <typename Node, typename Key>
Node** find_link(Node** link, Key key)
{
    while (*link != nullptr && (*link)->key != key)
        link = &(*link)->next;
    return link;
}

// Whatever is new is zeroed apart from its key. Null without memory.
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

// Numbers of packets and capture files, the same on every host.

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
