/* synthetic.h: records and operations of the synthetic messages. Printed from the catalogue by `./run headers`; do not edit.
 *
 * A message X has a record, the plain structure X, an id, X_ID in capitals, and seven operations. In the record, fields
 * stand in slot order at their natural alignment, a 64-bit one at a multiple of 8 on every target. A text is a pointer to
 * NUL-terminated bytes; a block of bytes is a length and a pointer; a vector is a count and a pointer to that many
 * records, end to end. Arrays and nested records lie inline. Fields have places and types here, and no meanings: those
 * are agreed between the programs that exchange the message.
 *
 * All operations may be called from any thread at any time, on different records. None of them keeps a pointer.
 *
 * X__unpack decodes `len` bytes at `buf` into `*rec` and returns the size of the record in bytes.
 *   WARNING: it returns the same value when decoding fails. After a failure all pointers in `*rec` are null, while scalars,
 *   lengths and counts keep what was read, unless the parameters, the first table or its vtable were refused: then `*rec`
 *   is untouched. Start from a zeroed record, and test the pointers, not the counts. `buf` may be foreign bytes of any
 *   content and alignment; it is not needed after the call. Null for `buf` or `rec`, or a `len` below 4 or above
 *   2^31 - 1, is refused.
 *   On success texts, blocks and vectors belong to the caller until X_free__unpacked(rec).
 *
 * X_free__unpacked gives back what X__unpack allocated for `*rec` and nulls the pointers; lengths, counts and scalars stay,
 *   and so does the record itself. Null does nothing, and neither does a second call. Only for what X__unpack filled in.
 *
 * X__pack encodes `*rec` in compact form into `buf`. `*len` is the room at `buf` on entry and the length on return. Returns
 *   0, or -1 for a null `rec`, a room that is too small or a length beyond 32 bits; `*len` then stays as it was.
 *   `len` must not be null. WARNING: with a null `buf` and enough room it writes nothing and yet returns 0 with `*len` set.
 *   So a null `buf` with `*len` UINT32_MAX tells the room that a record needs; it writes a log line, too.
 *   A zero scalar, a null text and a null or empty block or vector take no room; an empty text is kept apart from a null
 *   one. A block with a pointer and length 0 makes `*len` 8 larger than what was written.
 *   A vector with a count and no pointer, as a failed X__unpack leaves it, is refused with -1, whatever the room.
 *
 * X__sendsingle, X__sendbatch, X__sendmsg and X__sendtomsg encode records and hand them to the messaging library, on
 *   `channel`, to `destination` (0 for none). They return that library's result, or -1 when nothing was sent. X__sendmsg
 *   and X__sendtomsg are the ones to call: they take `n` records that lie end to end at `recs`, refuse n = 0 with -1, and
 *   use X__sendsingle for one and X__sendbatch for more; a batch goes as a whole or not at all. Messages with a fixed form
 *   are sent in it: nothing is allocated for one, and one block for a batch of any size. All others are sent in compact
 *   form, and a batch of them must fit 64 KiB in all, while a single one has no limit. The argument `unused` is not read.
 *   Null records are refused with -1 where the form is compact, and so is a vector with a count and no pointer. Of messages
 *   with a fixed form, records must not be null.
 *
 * synthetic_recv_init registers every message's X__unpack and X_free__unpacked with the messaging library, in the order of this
 *   file; it returns 0 or the library's first other result, after which the later ones are not registered.
 * synthetic_send_init registers synthetic__send_resource_clean, which does nothing, and returns the library's result.
 *   Sending works without either, and so do X__pack, X__unpack and X_free__unpacked.
 */
#ifndef KESTO_SYNTHETIC_H
#define KESTO_SYNTHETIC_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#ifndef KESTO_U64
#define KESTO_U64
/* At a multiple of 8 in a structure, also where the compiler's own rule is 4. */
typedef uint64_t kesto_u64 __attribute__((aligned(8)));
#endif

/* synthetic_byte: Fixed form of 24 bytes, compact form of 14 to 15. Owns no memory. */
typedef struct synthetic_byte {
    uint8_t f0;
} synthetic_byte;

#define SYNTHETIC_BYTE_ID UINT32_C(0x51000001)

uint32_t synthetic_byte__unpack(const uint8_t *buf, uint32_t len, synthetic_byte *rec);
void synthetic_byte_free__unpacked(synthetic_byte *rec);
int synthetic_byte__pack(const synthetic_byte *rec, uint8_t *buf, uint32_t *len);
int synthetic_byte__sendsingle(uint32_t channel, const synthetic_byte *rec, uint32_t unused, uint32_t destination);
int synthetic_byte__sendbatch(uint32_t channel, const synthetic_byte *recs, uint32_t n, uint32_t destination);
int synthetic_byte__sendmsg(uint32_t channel, const synthetic_byte *recs, uint32_t n);
int synthetic_byte__sendtomsg(uint32_t channel, const synthetic_byte *recs, uint32_t n, uint32_t destination);

/* synthetic_pair: Fixed form of 32 bytes, compact form of 16 to 25. Owns no memory. */
typedef struct synthetic_pair {
    kesto_u64 f0;
    uint8_t f1;
} synthetic_pair;

#define SYNTHETIC_PAIR_ID UINT32_C(0x51000002)

uint32_t synthetic_pair__unpack(const uint8_t *buf, uint32_t len, synthetic_pair *rec);
void synthetic_pair_free__unpacked(synthetic_pair *rec);
int synthetic_pair__pack(const synthetic_pair *rec, uint8_t *buf, uint32_t *len);
int synthetic_pair__sendsingle(uint32_t channel, const synthetic_pair *rec, uint32_t unused, uint32_t destination);
int synthetic_pair__sendbatch(uint32_t channel, const synthetic_pair *recs, uint32_t n, uint32_t destination);
int synthetic_pair__sendmsg(uint32_t channel, const synthetic_pair *recs, uint32_t n);
int synthetic_pair__sendtomsg(uint32_t channel, const synthetic_pair *recs, uint32_t n, uint32_t destination);

/* synthetic_eight: Fixed form of 56 bytes, compact form of 28 to 51. Owns no memory. */
typedef struct synthetic_eight {
    uint8_t f0;
    uint16_t f1;
    uint32_t f2;
    kesto_u64 f3;
    uint8_t f4;
    uint8_t f5;
    uint16_t f6;
    uint32_t f7;
} synthetic_eight;

#define SYNTHETIC_EIGHT_ID UINT32_C(0x51000003)

uint32_t synthetic_eight__unpack(const uint8_t *buf, uint32_t len, synthetic_eight *rec);
void synthetic_eight_free__unpacked(synthetic_eight *rec);
int synthetic_eight__pack(const synthetic_eight *rec, uint8_t *buf, uint32_t *len);
int synthetic_eight__sendsingle(uint32_t channel, const synthetic_eight *rec, uint32_t unused, uint32_t destination);
int synthetic_eight__sendbatch(uint32_t channel, const synthetic_eight *recs, uint32_t n, uint32_t destination);
int synthetic_eight__sendmsg(uint32_t channel, const synthetic_eight *recs, uint32_t n);
int synthetic_eight__sendtomsg(uint32_t channel, const synthetic_eight *recs, uint32_t n, uint32_t destination);

/* synthetic_nine: Fixed form of 64 bytes, compact form of 30 to 57. Owns no memory. */
typedef struct synthetic_nine {
    kesto_u64 f0;
    uint8_t f1;
    uint32_t f2;
    uint8_t f3;
    uint16_t f4;
    uint8_t f5;
    uint8_t f6;
    uint8_t f7;
    kesto_u64 f8;
} synthetic_nine;

#define SYNTHETIC_NINE_ID UINT32_C(0x51000004)

uint32_t synthetic_nine__unpack(const uint8_t *buf, uint32_t len, synthetic_nine *rec);
void synthetic_nine_free__unpacked(synthetic_nine *rec);
int synthetic_nine__pack(const synthetic_nine *rec, uint8_t *buf, uint32_t *len);
int synthetic_nine__sendsingle(uint32_t channel, const synthetic_nine *rec, uint32_t unused, uint32_t destination);
int synthetic_nine__sendbatch(uint32_t channel, const synthetic_nine *recs, uint32_t n, uint32_t destination);
int synthetic_nine__sendmsg(uint32_t channel, const synthetic_nine *recs, uint32_t n);
int synthetic_nine__sendtomsg(uint32_t channel, const synthetic_nine *recs, uint32_t n, uint32_t destination);

/* synthetic_twelve: Fixed form of 88 bytes, compact form of 36 to 84. Owns no memory. */
typedef struct synthetic_twelve {
    uint32_t f0;
    uint32_t f1;
    kesto_u64 f2;
    kesto_u64 f3;
    uint32_t f4;
    uint32_t f5;
    uint8_t f6;
    uint8_t f7;
    uint16_t f8;
    uint32_t f9;
    uint32_t f10;
    uint32_t f11;
} synthetic_twelve;

#define SYNTHETIC_TWELVE_ID UINT32_C(0x51000005)

uint32_t synthetic_twelve__unpack(const uint8_t *buf, uint32_t len, synthetic_twelve *rec);
void synthetic_twelve_free__unpacked(synthetic_twelve *rec);
int synthetic_twelve__pack(const synthetic_twelve *rec, uint8_t *buf, uint32_t *len);
int synthetic_twelve__sendsingle(uint32_t channel, const synthetic_twelve *rec, uint32_t unused, uint32_t destination);
int synthetic_twelve__sendbatch(uint32_t channel, const synthetic_twelve *recs, uint32_t n, uint32_t destination);
int synthetic_twelve__sendmsg(uint32_t channel, const synthetic_twelve *recs, uint32_t n);
int synthetic_twelve__sendtomsg(uint32_t channel, const synthetic_twelve *recs, uint32_t n, uint32_t destination);

/* synthetic_fourteen: Fixed form of 80 bytes, compact form of 40 to 76. Owns no memory. */
typedef struct synthetic_fourteen {
    uint8_t f0;
    uint8_t f1;
    uint8_t f2;
    uint8_t f3;
    uint16_t f4;
    uint16_t f5;
    uint32_t f6;
    uint32_t f7;
    uint32_t f8;
    kesto_u64 f9;
    uint8_t f10;
    uint16_t f11;
    uint32_t f12;
    uint8_t f13;
} synthetic_fourteen;

#define SYNTHETIC_FOURTEEN_ID UINT32_C(0x51000006)

uint32_t synthetic_fourteen__unpack(const uint8_t *buf, uint32_t len, synthetic_fourteen *rec);
void synthetic_fourteen_free__unpacked(synthetic_fourteen *rec);
int synthetic_fourteen__pack(const synthetic_fourteen *rec, uint8_t *buf, uint32_t *len);
int synthetic_fourteen__sendsingle(uint32_t channel, const synthetic_fourteen *rec, uint32_t unused, uint32_t destination);
int synthetic_fourteen__sendbatch(uint32_t channel, const synthetic_fourteen *recs, uint32_t n, uint32_t destination);
int synthetic_fourteen__sendmsg(uint32_t channel, const synthetic_fourteen *recs, uint32_t n);
int synthetic_fourteen__sendtomsg(uint32_t channel, const synthetic_fourteen *recs, uint32_t n, uint32_t destination);

/* synthetic_fifteen: Fixed form of 88 bytes, compact form of 42 to 83. Owns no memory. */
typedef struct synthetic_fifteen {
    uint32_t f0;
    uint8_t f1;
    uint16_t f2;
    uint8_t f3;
    uint32_t f4;
    kesto_u64 f5;
    uint8_t f6;
    uint8_t f7;
    uint16_t f8;
    uint32_t f9;
    uint8_t f10;
    uint16_t f11;
    uint8_t f12;
    kesto_u64 f13;
    uint8_t f14;
} synthetic_fifteen;

#define SYNTHETIC_FIFTEEN_ID UINT32_C(0x51000007)

uint32_t synthetic_fifteen__unpack(const uint8_t *buf, uint32_t len, synthetic_fifteen *rec);
void synthetic_fifteen_free__unpacked(synthetic_fifteen *rec);
int synthetic_fifteen__pack(const synthetic_fifteen *rec, uint8_t *buf, uint32_t *len);
int synthetic_fifteen__sendsingle(uint32_t channel, const synthetic_fifteen *rec, uint32_t unused, uint32_t destination);
int synthetic_fifteen__sendbatch(uint32_t channel, const synthetic_fifteen *recs, uint32_t n, uint32_t destination);
int synthetic_fifteen__sendmsg(uint32_t channel, const synthetic_fifteen *recs, uint32_t n);
int synthetic_fifteen__sendtomsg(uint32_t channel, const synthetic_fifteen *recs, uint32_t n, uint32_t destination);

/* synthetic_wide: Fixed form of 224 bytes, compact form of 102 to 222. Owns no memory. */
typedef struct synthetic_wide {
    uint32_t f0;
    uint8_t f1;
    uint16_t f2;
    kesto_u64 f3;
    uint8_t f4;
    uint32_t f5;
    uint16_t f6;
    uint8_t f7;
    uint8_t f8;
    uint32_t f9;
    uint8_t f10;
    uint16_t f11;
    kesto_u64 f12;
    uint8_t f13;
    uint32_t f14;
    uint16_t f15;
    uint8_t f16;
    uint8_t f17;
    uint32_t f18;
    uint8_t f19;
    uint16_t f20;
    kesto_u64 f21;
    uint8_t f22;
    uint32_t f23;
    uint16_t f24;
    uint8_t f25;
    uint8_t f26;
    uint32_t f27;
    uint8_t f28;
    uint16_t f29;
    kesto_u64 f30;
    uint8_t f31;
    uint32_t f32;
    uint16_t f33;
    uint8_t f34;
    uint8_t f35;
    uint32_t f36;
    uint8_t f37;
    uint16_t f38;
    kesto_u64 f39;
    uint8_t f40;
    uint32_t f41;
    uint16_t f42;
    uint8_t f43;
    uint8_t f44;
} synthetic_wide;

#define SYNTHETIC_WIDE_ID UINT32_C(0x51000008)

uint32_t synthetic_wide__unpack(const uint8_t *buf, uint32_t len, synthetic_wide *rec);
void synthetic_wide_free__unpacked(synthetic_wide *rec);
int synthetic_wide__pack(const synthetic_wide *rec, uint8_t *buf, uint32_t *len);
int synthetic_wide__sendsingle(uint32_t channel, const synthetic_wide *rec, uint32_t unused, uint32_t destination);
int synthetic_wide__sendbatch(uint32_t channel, const synthetic_wide *recs, uint32_t n, uint32_t destination);
int synthetic_wide__sendmsg(uint32_t channel, const synthetic_wide *recs, uint32_t n);
int synthetic_wide__sendtomsg(uint32_t channel, const synthetic_wide *recs, uint32_t n, uint32_t destination);

/* synthetic_array: Fixed form of 184 bytes, compact form of 182 to 182. Owns no memory. */
typedef struct synthetic_array {
    uint32_t f0[40];
} synthetic_array;

#define SYNTHETIC_ARRAY_ID UINT32_C(0x51000009)

uint32_t synthetic_array__unpack(const uint8_t *buf, uint32_t len, synthetic_array *rec);
void synthetic_array_free__unpacked(synthetic_array *rec);
int synthetic_array__pack(const synthetic_array *rec, uint8_t *buf, uint32_t *len);
int synthetic_array__sendsingle(uint32_t channel, const synthetic_array *rec, uint32_t unused, uint32_t destination);
int synthetic_array__sendbatch(uint32_t channel, const synthetic_array *recs, uint32_t n, uint32_t destination);
int synthetic_array__sendmsg(uint32_t channel, const synthetic_array *recs, uint32_t n);
int synthetic_array__sendtomsg(uint32_t channel, const synthetic_array *recs, uint32_t n, uint32_t destination);

/* synthetic_arrays: Fixed form of 80 bytes, compact form of 64 to 74. Owns no memory. */
typedef struct synthetic_arrays {
    uint8_t f0[5];
    uint16_t f1;
    uint32_t f2[3];
    kesto_u64 f3;
    uint8_t f4[1];
} synthetic_arrays;

#define SYNTHETIC_ARRAYS_ID UINT32_C(0x5100000a)

uint32_t synthetic_arrays__unpack(const uint8_t *buf, uint32_t len, synthetic_arrays *rec);
void synthetic_arrays_free__unpacked(synthetic_arrays *rec);
int synthetic_arrays__pack(const synthetic_arrays *rec, uint8_t *buf, uint32_t *len);
int synthetic_arrays__sendsingle(uint32_t channel, const synthetic_arrays *rec, uint32_t unused, uint32_t destination);
int synthetic_arrays__sendbatch(uint32_t channel, const synthetic_arrays *recs, uint32_t n, uint32_t destination);
int synthetic_arrays__sendmsg(uint32_t channel, const synthetic_arrays *recs, uint32_t n);
int synthetic_arrays__sendtomsg(uint32_t channel, const synthetic_arrays *recs, uint32_t n, uint32_t destination);

/* synthetic_frame: Fixed form of 144 bytes, compact form of 100 to 124. Owns no memory. */
typedef struct synthetic_frame {
    synthetic_pair f0;
    uint32_t f1;
    synthetic_arrays f2;
    uint8_t f3;
} synthetic_frame;

#define SYNTHETIC_FRAME_ID UINT32_C(0x5100000b)

uint32_t synthetic_frame__unpack(const uint8_t *buf, uint32_t len, synthetic_frame *rec);
void synthetic_frame_free__unpacked(synthetic_frame *rec);
int synthetic_frame__pack(const synthetic_frame *rec, uint8_t *buf, uint32_t *len);
int synthetic_frame__sendsingle(uint32_t channel, const synthetic_frame *rec, uint32_t unused, uint32_t destination);
int synthetic_frame__sendbatch(uint32_t channel, const synthetic_frame *recs, uint32_t n, uint32_t destination);
int synthetic_frame__sendmsg(uint32_t channel, const synthetic_frame *recs, uint32_t n);
int synthetic_frame__sendtomsg(uint32_t channel, const synthetic_frame *recs, uint32_t n, uint32_t destination);

/* synthetic_nested_frame: Fixed form of 168 bytes, compact form of 116 to 142. Owns no memory. */
typedef struct synthetic_nested_frame {
    uint16_t f0;
    synthetic_frame f1;
} synthetic_nested_frame;

#define SYNTHETIC_NESTED_FRAME_ID UINT32_C(0x5100000c)

uint32_t synthetic_nested_frame__unpack(const uint8_t *buf, uint32_t len, synthetic_nested_frame *rec);
void synthetic_nested_frame_free__unpacked(synthetic_nested_frame *rec);
int synthetic_nested_frame__pack(const synthetic_nested_frame *rec, uint8_t *buf, uint32_t *len);
int synthetic_nested_frame__sendsingle(uint32_t channel, const synthetic_nested_frame *rec, uint32_t unused, uint32_t destination);
int synthetic_nested_frame__sendbatch(uint32_t channel, const synthetic_nested_frame *recs, uint32_t n, uint32_t destination);
int synthetic_nested_frame__sendmsg(uint32_t channel, const synthetic_nested_frame *recs, uint32_t n);
int synthetic_nested_frame__sendtomsg(uint32_t channel, const synthetic_nested_frame *recs, uint32_t n, uint32_t destination);

/* synthetic_flat_lenient: Fixed form of 56 bytes, compact form of 32 to 43. Owns no memory. */
typedef struct synthetic_flat_lenient {
    synthetic_pair f0;
    uint16_t f1;
} synthetic_flat_lenient;

#define SYNTHETIC_FLAT_LENIENT_ID UINT32_C(0x5100000d)

uint32_t synthetic_flat_lenient__unpack(const uint8_t *buf, uint32_t len, synthetic_flat_lenient *rec);
void synthetic_flat_lenient_free__unpacked(synthetic_flat_lenient *rec);
int synthetic_flat_lenient__pack(const synthetic_flat_lenient *rec, uint8_t *buf, uint32_t *len);
int synthetic_flat_lenient__sendsingle(uint32_t channel, const synthetic_flat_lenient *rec, uint32_t unused, uint32_t destination);
int synthetic_flat_lenient__sendbatch(uint32_t channel, const synthetic_flat_lenient *recs, uint32_t n, uint32_t destination);
int synthetic_flat_lenient__sendmsg(uint32_t channel, const synthetic_flat_lenient *recs, uint32_t n);
int synthetic_flat_lenient__sendtomsg(uint32_t channel, const synthetic_flat_lenient *recs, uint32_t n, uint32_t destination);

/* synthetic_text: Compact form of 14 bytes and more. Owns its text. */
typedef struct synthetic_text {
    char *f0;
} synthetic_text;

#define SYNTHETIC_TEXT_ID UINT32_C(0x51000011)

uint32_t synthetic_text__unpack(const uint8_t *buf, uint32_t len, synthetic_text *rec);
void synthetic_text_free__unpacked(synthetic_text *rec);
int synthetic_text__pack(const synthetic_text *rec, uint8_t *buf, uint32_t *len);
int synthetic_text__sendsingle(uint32_t channel, const synthetic_text *rec, uint32_t unused, uint32_t destination);
int synthetic_text__sendbatch(uint32_t channel, const synthetic_text *recs, uint32_t n, uint32_t destination);
int synthetic_text__sendmsg(uint32_t channel, const synthetic_text *recs, uint32_t n);
int synthetic_text__sendtomsg(uint32_t channel, const synthetic_text *recs, uint32_t n, uint32_t destination);

/* synthetic_block: Compact form of 14 bytes and more. Owns its bytes. */
typedef struct synthetic_block {
    struct { uint32_t length; uint8_t *data; } f0;
} synthetic_block;

#define SYNTHETIC_BLOCK_ID UINT32_C(0x51000012)

uint32_t synthetic_block__unpack(const uint8_t *buf, uint32_t len, synthetic_block *rec);
void synthetic_block_free__unpacked(synthetic_block *rec);
int synthetic_block__pack(const synthetic_block *rec, uint8_t *buf, uint32_t *len);
int synthetic_block__sendsingle(uint32_t channel, const synthetic_block *rec, uint32_t unused, uint32_t destination);
int synthetic_block__sendbatch(uint32_t channel, const synthetic_block *recs, uint32_t n, uint32_t destination);
int synthetic_block__sendmsg(uint32_t channel, const synthetic_block *recs, uint32_t n);
int synthetic_block__sendtomsg(uint32_t channel, const synthetic_block *recs, uint32_t n, uint32_t destination);

/* synthetic_owner: Compact form of 22 bytes and more. Owns its text, bytes. */
typedef struct synthetic_owner {
    uint32_t f0;
    char *f1;
    uint8_t f2;
    struct { uint32_t length; uint8_t *data; } f3;
    kesto_u64 f4;
} synthetic_owner;

#define SYNTHETIC_OWNER_ID UINT32_C(0x51000013)

uint32_t synthetic_owner__unpack(const uint8_t *buf, uint32_t len, synthetic_owner *rec);
void synthetic_owner_free__unpacked(synthetic_owner *rec);
int synthetic_owner__pack(const synthetic_owner *rec, uint8_t *buf, uint32_t *len);
int synthetic_owner__sendsingle(uint32_t channel, const synthetic_owner *rec, uint32_t unused, uint32_t destination);
int synthetic_owner__sendbatch(uint32_t channel, const synthetic_owner *recs, uint32_t n, uint32_t destination);
int synthetic_owner__sendmsg(uint32_t channel, const synthetic_owner *recs, uint32_t n);
int synthetic_owner__sendtomsg(uint32_t channel, const synthetic_owner *recs, uint32_t n, uint32_t destination);

/* synthetic_long_owner: Compact form of 91 bytes and more. Owns its text, bytes. */
typedef struct synthetic_long_owner {
    char *f0;
    uint8_t f1[3];
    kesto_u64 f2;
    uint32_t f3;
    uint16_t f4;
    uint8_t f5;
    uint8_t f6;
    uint32_t f7;
    struct { uint32_t length; uint8_t *data; } f8;
    uint32_t f9;
    uint32_t f10[2];
    uint8_t f11;
    uint16_t f12;
    uint32_t f13;
    kesto_u64 f14;
    synthetic_pair f15;
    uint8_t f16;
    char *f17;
} synthetic_long_owner;

#define SYNTHETIC_LONG_OWNER_ID UINT32_C(0x51000014)

uint32_t synthetic_long_owner__unpack(const uint8_t *buf, uint32_t len, synthetic_long_owner *rec);
void synthetic_long_owner_free__unpacked(synthetic_long_owner *rec);
int synthetic_long_owner__pack(const synthetic_long_owner *rec, uint8_t *buf, uint32_t *len);
int synthetic_long_owner__sendsingle(uint32_t channel, const synthetic_long_owner *rec, uint32_t unused, uint32_t destination);
int synthetic_long_owner__sendbatch(uint32_t channel, const synthetic_long_owner *recs, uint32_t n, uint32_t destination);
int synthetic_long_owner__sendmsg(uint32_t channel, const synthetic_long_owner *recs, uint32_t n);
int synthetic_long_owner__sendtomsg(uint32_t channel, const synthetic_long_owner *recs, uint32_t n, uint32_t destination);

/* synthetic_nested_owner: Compact form of 142 bytes and more. Owns its text, bytes. */
typedef struct synthetic_nested_owner {
    synthetic_owner f0;
    uint8_t f1;
    synthetic_frame f2;
    char *f3;
} synthetic_nested_owner;

#define SYNTHETIC_NESTED_OWNER_ID UINT32_C(0x51000015)

uint32_t synthetic_nested_owner__unpack(const uint8_t *buf, uint32_t len, synthetic_nested_owner *rec);
void synthetic_nested_owner_free__unpacked(synthetic_nested_owner *rec);
int synthetic_nested_owner__pack(const synthetic_nested_owner *rec, uint8_t *buf, uint32_t *len);
int synthetic_nested_owner__sendsingle(uint32_t channel, const synthetic_nested_owner *rec, uint32_t unused, uint32_t destination);
int synthetic_nested_owner__sendbatch(uint32_t channel, const synthetic_nested_owner *recs, uint32_t n, uint32_t destination);
int synthetic_nested_owner__sendmsg(uint32_t channel, const synthetic_nested_owner *recs, uint32_t n);
int synthetic_nested_owner__sendtomsg(uint32_t channel, const synthetic_nested_owner *recs, uint32_t n, uint32_t destination);

/* synthetic_lenient: Compact form of 60 bytes and more. Owns its text, bytes. */
typedef struct synthetic_lenient {
    synthetic_owner f0;
    uint32_t f1;
    synthetic_pair f2;
    char *f3;
    uint8_t f4;
} synthetic_lenient;

#define SYNTHETIC_LENIENT_ID UINT32_C(0x51000016)

uint32_t synthetic_lenient__unpack(const uint8_t *buf, uint32_t len, synthetic_lenient *rec);
void synthetic_lenient_free__unpacked(synthetic_lenient *rec);
int synthetic_lenient__pack(const synthetic_lenient *rec, uint8_t *buf, uint32_t *len);
int synthetic_lenient__sendsingle(uint32_t channel, const synthetic_lenient *rec, uint32_t unused, uint32_t destination);
int synthetic_lenient__sendbatch(uint32_t channel, const synthetic_lenient *recs, uint32_t n, uint32_t destination);
int synthetic_lenient__sendmsg(uint32_t channel, const synthetic_lenient *recs, uint32_t n);
int synthetic_lenient__sendtomsg(uint32_t channel, const synthetic_lenient *recs, uint32_t n, uint32_t destination);

/* synthetic_long_lenient: Compact form of 111 bytes and more. Owns its text, bytes. */
typedef struct synthetic_long_lenient {
    kesto_u64 f0;
    synthetic_long_owner f1;
    uint32_t f2;
    struct { uint32_t length; uint8_t *data; } f3;
} synthetic_long_lenient;

#define SYNTHETIC_LONG_LENIENT_ID UINT32_C(0x51000017)

uint32_t synthetic_long_lenient__unpack(const uint8_t *buf, uint32_t len, synthetic_long_lenient *rec);
void synthetic_long_lenient_free__unpacked(synthetic_long_lenient *rec);
int synthetic_long_lenient__pack(const synthetic_long_lenient *rec, uint8_t *buf, uint32_t *len);
int synthetic_long_lenient__sendsingle(uint32_t channel, const synthetic_long_lenient *rec, uint32_t unused, uint32_t destination);
int synthetic_long_lenient__sendbatch(uint32_t channel, const synthetic_long_lenient *recs, uint32_t n, uint32_t destination);
int synthetic_long_lenient__sendmsg(uint32_t channel, const synthetic_long_lenient *recs, uint32_t n);
int synthetic_long_lenient__sendtomsg(uint32_t channel, const synthetic_long_lenient *recs, uint32_t n, uint32_t destination);

/* synthetic_rows: Compact form of 18 bytes and more. Owns its elements. */
typedef struct synthetic_rows {
    uint16_t f0;
    struct { uint32_t count; synthetic_pair *items; } f1;
    uint8_t f2;
} synthetic_rows;

#define SYNTHETIC_ROWS_ID UINT32_C(0x51000021)

uint32_t synthetic_rows__unpack(const uint8_t *buf, uint32_t len, synthetic_rows *rec);
void synthetic_rows_free__unpacked(synthetic_rows *rec);
int synthetic_rows__pack(const synthetic_rows *rec, uint8_t *buf, uint32_t *len);
int synthetic_rows__sendsingle(uint32_t channel, const synthetic_rows *rec, uint32_t unused, uint32_t destination);
int synthetic_rows__sendbatch(uint32_t channel, const synthetic_rows *recs, uint32_t n, uint32_t destination);
int synthetic_rows__sendmsg(uint32_t channel, const synthetic_rows *recs, uint32_t n);
int synthetic_rows__sendtomsg(uint32_t channel, const synthetic_rows *recs, uint32_t n, uint32_t destination);

/* synthetic_row_lists: Compact form of 20 bytes and more. Owns its elements. */
typedef struct synthetic_row_lists {
    struct { uint32_t count; synthetic_wide *items; } f0;
    uint32_t f1;
    struct { uint32_t count; synthetic_byte *items; } f2;
    struct { uint32_t count; synthetic_frame *items; } f3;
} synthetic_row_lists;

#define SYNTHETIC_ROW_LISTS_ID UINT32_C(0x51000022)

uint32_t synthetic_row_lists__unpack(const uint8_t *buf, uint32_t len, synthetic_row_lists *rec);
void synthetic_row_lists_free__unpacked(synthetic_row_lists *rec);
int synthetic_row_lists__pack(const synthetic_row_lists *rec, uint8_t *buf, uint32_t *len);
int synthetic_row_lists__sendsingle(uint32_t channel, const synthetic_row_lists *rec, uint32_t unused, uint32_t destination);
int synthetic_row_lists__sendbatch(uint32_t channel, const synthetic_row_lists *recs, uint32_t n, uint32_t destination);
int synthetic_row_lists__sendmsg(uint32_t channel, const synthetic_row_lists *recs, uint32_t n);
int synthetic_row_lists__sendtomsg(uint32_t channel, const synthetic_row_lists *recs, uint32_t n, uint32_t destination);

/* synthetic_owner_lists: Compact form of 20 bytes and more. Owns its elements and what they own and what they own and
 * what they own. */
typedef struct synthetic_owner_lists {
    struct { uint32_t count; synthetic_owner *items; } f0;
    uint8_t f1;
    struct { uint32_t count; synthetic_long_owner *items; } f2;
    struct { uint32_t count; synthetic_text *items; } f3;
} synthetic_owner_lists;

#define SYNTHETIC_OWNER_LISTS_ID UINT32_C(0x51000023)

uint32_t synthetic_owner_lists__unpack(const uint8_t *buf, uint32_t len, synthetic_owner_lists *rec);
void synthetic_owner_lists_free__unpacked(synthetic_owner_lists *rec);
int synthetic_owner_lists__pack(const synthetic_owner_lists *rec, uint8_t *buf, uint32_t *len);
int synthetic_owner_lists__sendsingle(uint32_t channel, const synthetic_owner_lists *rec, uint32_t unused, uint32_t destination);
int synthetic_owner_lists__sendbatch(uint32_t channel, const synthetic_owner_lists *recs, uint32_t n, uint32_t destination);
int synthetic_owner_lists__sendmsg(uint32_t channel, const synthetic_owner_lists *recs, uint32_t n);
int synthetic_owner_lists__sendtomsg(uint32_t channel, const synthetic_owner_lists *recs, uint32_t n, uint32_t destination);

/* synthetic_deep: Compact form of 58 bytes and more. Owns its elements and what they own. */
typedef struct synthetic_deep {
    struct { uint32_t count; synthetic_rows *items; } f0;
    synthetic_rows f1;
    synthetic_owner_lists f2;
    uint32_t f3;
} synthetic_deep;

#define SYNTHETIC_DEEP_ID UINT32_C(0x51000024)

uint32_t synthetic_deep__unpack(const uint8_t *buf, uint32_t len, synthetic_deep *rec);
void synthetic_deep_free__unpacked(synthetic_deep *rec);
int synthetic_deep__pack(const synthetic_deep *rec, uint8_t *buf, uint32_t *len);
int synthetic_deep__sendsingle(uint32_t channel, const synthetic_deep *rec, uint32_t unused, uint32_t destination);
int synthetic_deep__sendbatch(uint32_t channel, const synthetic_deep *recs, uint32_t n, uint32_t destination);
int synthetic_deep__sendmsg(uint32_t channel, const synthetic_deep *recs, uint32_t n);
int synthetic_deep__sendtomsg(uint32_t channel, const synthetic_deep *recs, uint32_t n, uint32_t destination);

int synthetic_recv_init(void);
int synthetic_send_init(void);
void synthetic__send_resource_clean(void);

#ifdef __cplusplus
}
#endif

#endif
