/* kesto_verify.h: whether a byte string decodes, and why not. A small library beside the codecs, libkesto_verify.so.
 *
 * X__unpack returns the same value whether it decoded or refused. kesto_verify gives its verdict beforehand, without a
 * record and without memory: a byte string that it accepts is refused by X__unpack only if there is no memory.
 *
 * Both functions may be called from any thread at any time, also from a signal handler: they only read their arguments
 * and constants. The verdict is that of the codecs of the same version and target. */
#ifndef KESTO_VERIFY_H
#define KESTO_VERIFY_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The results of kesto_verify. */
enum { KESTO_ACCEPTED = 0, KESTO_REFUSED = 1, KESTO_UNKNOWN_ID = 2 };

/* The checks of the decoder, in no order. Positions and lengths are in bytes. */
typedef enum kesto_check {
    KESTO_NO_CHECK,
    KESTO_BUFFER_NULL,
    KESTO_LENGTH,          /* below 4, or above 2^31 - 1 */
    KESTO_TABLE_POSITION,  /* a table begins after the root, and 4 bytes before the end or earlier */
    KESTO_VTABLE_POSITION, /* so does its vtable */
    KESTO_VTABLE_LENGTH,   /* the vtable ends within the byte string */
    KESTO_SCALAR_END,      /* so does a scalar */
    KESTO_CELL_END,        /* so does a cell, which leads to another place */
    KESTO_REFERENCE_WRAP,  /* a cell leads on, without passing 2^32 */
    KESTO_REFERENCE_RANGE, /* the count that it leads to ends within the byte string */
    KESTO_ARRAY_COUNT,     /* an array has as many values as the message says */
    KESTO_COUNT_RANGE,     /* the count of a vector or of an array of u32 is below 2^30 */
    KESTO_BODY_END,        /* what a length or count announces ends within the byte string */
    KESTO_NESTED_WRAP,     /* a cell leads on to a nested table */
    KESTO_ELEMENT_WRAP,    /* and so does the cell of an element */
    KESTO_ELEMENT_NULL,    /* the records of a vector take a number of bytes below 2^32; here modulo 2^32 it is 0 */
    KESTO_ELEMENT_BLOCK    /* the same; here an element lies beyond what the size modulo 2^32 holds */
} kesto_check;

enum { KESTO_MOST_STEPS = 9 };

typedef struct kesto_refusal {
    kesto_check check;
    uint32_t position; /* of the number that was refused */
    uint32_t steps;    /* of the path to the field or table that was refused; 0 for the message's own table */
    struct {
        uint32_t slot;   /* of the field fN, from 0 */
        int32_t element; /* of a vector, from 0; -1 for none */
    } path[KESTO_MOST_STEPS];
} kesto_refusal;

/* Decides about `length` bytes at `bytes`, of any content and alignment, as a message with this id. `*refusal` is
 * written only with KESTO_REFUSED; it may be null, which is faster for refused bytes. A nested table whose refusal does
 * not refuse the message (ifit_smooth_begin_mesh, ifit_smooth_end_mesh) is accepted. */
int kesto_verify(uint32_t id, const uint8_t *bytes, uint32_t length, kesto_refusal *refusal);

/* The name of the message with this id; null if there is none. Static. */
const char *kesto_name(uint32_t id);

/* A check as `kesto explain` names it, such as "body_end"; null for an unknown one. Static. */
const char *kesto_check_name(kesto_check check);

#ifdef __cplusplus
}
#endif

#endif
