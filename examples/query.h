/* Shared by query_asker and query_answerer. The codecs carry every field and look into none; what a field means is up
 * to the programs on both sides.
 *
 * Frame of a question    f0 number of the question   f2 a mark of the asker, never empty
 * Frame of an answer     f0, f3 the same             f2 QUERY_FOUND or QUERY_NOTHING      f4 number of items
 *
 * Because every question and answer has a mark, one whose mark is null after decoding was refused by the decoder.
 *
 * statistics    condition f0: at most so many interfaces, 0 for all
 *               item f0 name, f1 bytes received, f2 bytes sent (the low 32 bits of each), f3 local time
 * global data   item f0: a text about the machine
 * hash          condition f3: name_hash of an interface
 *               item f0 name, f4 hardware address (6 bytes), f5 MTU, f8 bytes received, f10 bytes sent */
#ifndef KESTO_EXAMPLES_QUERY_H
#define KESTO_EXAMPLES_QUERY_H

#include <stdint.h>

enum { QUERY_CHANNEL = 1, QUERY_FOUND = 0, QUERY_NOTHING = 1 };

/* 64-bit FNV-1a. */
static inline uint64_t name_hash(const char* name)
{
    uint64_t hash = UINT64_C(0xcbf29ce484222325);
    for (; *name != '\0'; ++name)
        hash = (hash ^ (uint8_t)*name) * UINT64_C(0x100000001b3);
    return hash;
}

#endif
