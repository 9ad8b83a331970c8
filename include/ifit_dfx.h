/* ifit_dfx.h: records and operations of the ifit_dfx messages. Printed from the catalogue by `./run headers`; do not edit.
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
 * ifit_dfx_recv_init registers every message's X__unpack and X_free__unpacked with the messaging library, in the order of this
 *   file; it returns 0 or the library's first other result, after which the later ones are not registered.
 * ifit_dfx_send_init registers ifit_dfx__send_resource_clean, which does nothing, and returns the library's result.
 *   Sending works without either, and so do X__pack, X__unpack and X_free__unpacked.
 */
#ifndef KESTO_IFIT_DFX_H
#define KESTO_IFIT_DFX_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#ifndef KESTO_U64
#define KESTO_U64
/* At a multiple of 8 in a structure, also where the compiler's own rule is 4. */
typedef uint64_t kesto_u64 __attribute__((aligned(8)));
#endif

/* What the messages are for. A message X is meant together with X_key, X_update and X_delete, where there are such.
 *
 * Query frames. Every query begins with one of these: a question with ifit_dfx_query_comm_param_mesh, an answer with
 *   ifit_dfx_query_comm_rec_mesh. The answer's frame has the two numbers and the block of the question's, a number
 *   between them and one after them. The library carries the frames and acts on none of their fields. Messages:
 *   ifit_dfx_query_comm_param_mesh, ifit_dfx_query_comm_rec_mesh, ifit_dfx_datetime_mesh.
 *
 * Statistics query. The question is a frame and a condition, the answer a frame and any number of items, each with a
 *   date and time. Messages: ifit_dfx_query_stat_mesh_key, ifit_dfx_query_stat_cond_mesh, ifit_dfx_query_stat_rec_mesh,
 *   ifit_dfx_query_stat_item_mesh.
 *
 * Global data query. The question is a frame and a condition, the answer a frame and one item, which is a text.
 *   Messages: ifit_dfx_query_glbdata_mesh_key, ifit_dfx_query_glbdata_cond_mesh, ifit_dfx_query_glbdata_rec_mesh,
 *   ifit_dfx_query_glbdata_item_mesh.
 *
 * Hash query. The question is a frame and the widest condition of the module, the answer a frame and one item, the
 *   module's largest record. Messages: ifit_dfx_query_queryhash_mesh_key, ifit_dfx_query_queryhash_cond_mesh,
 *   ifit_dfx_query_queryhash_rec_mesh, ifit_dfx_query_queryhash_item_mesh.
 *
 * Reset of statistics. Stands outside the queries. Messages: ifit_dfx_reset_statis_mesh.
 */

/* ifit_dfx_query_stat_cond_mesh: Fixed form of 32 bytes, compact form of 18 to 30. Owns no memory. */
typedef struct ifit_dfx_query_stat_cond_mesh {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
} ifit_dfx_query_stat_cond_mesh;

#define IFIT_DFX_QUERY_STAT_COND_MESH_ID UINT32_C(0x00631cc8)

uint32_t ifit_dfx_query_stat_cond_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_query_stat_cond_mesh *rec);
void ifit_dfx_query_stat_cond_mesh_free__unpacked(ifit_dfx_query_stat_cond_mesh *rec);
int ifit_dfx_query_stat_cond_mesh__pack(const ifit_dfx_query_stat_cond_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_query_stat_cond_mesh__sendsingle(uint32_t channel, const ifit_dfx_query_stat_cond_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_query_stat_cond_mesh__sendbatch(uint32_t channel, const ifit_dfx_query_stat_cond_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dfx_query_stat_cond_mesh__sendmsg(uint32_t channel, const ifit_dfx_query_stat_cond_mesh *recs, uint32_t n);
int ifit_dfx_query_stat_cond_mesh__sendtomsg(uint32_t channel, const ifit_dfx_query_stat_cond_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_query_comm_param_mesh: Compact form of 18 bytes and more. Owns its bytes. */
typedef struct ifit_dfx_query_comm_param_mesh {
    uint32_t f0;
    uint32_t f1;
    struct { uint32_t length; uint8_t *data; } f2;
} ifit_dfx_query_comm_param_mesh;

#define IFIT_DFX_QUERY_COMM_PARAM_MESH_ID UINT32_C(0x88219105)

uint32_t ifit_dfx_query_comm_param_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_query_comm_param_mesh *rec);
void ifit_dfx_query_comm_param_mesh_free__unpacked(ifit_dfx_query_comm_param_mesh *rec);
int ifit_dfx_query_comm_param_mesh__pack(const ifit_dfx_query_comm_param_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_query_comm_param_mesh__sendsingle(uint32_t channel, const ifit_dfx_query_comm_param_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_query_comm_param_mesh__sendbatch(uint32_t channel, const ifit_dfx_query_comm_param_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dfx_query_comm_param_mesh__sendmsg(uint32_t channel, const ifit_dfx_query_comm_param_mesh *recs, uint32_t n);
int ifit_dfx_query_comm_param_mesh__sendtomsg(uint32_t channel, const ifit_dfx_query_comm_param_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_datetime_mesh: Fixed form of 32 bytes, compact form of 24 to 31. Owns no memory. */
typedef struct ifit_dfx_datetime_mesh {
    uint16_t year;
    uint8_t month;
    uint8_t day;
    uint8_t hour;
    uint8_t minute;
    uint8_t second;
} ifit_dfx_datetime_mesh;

#define IFIT_DFX_DATETIME_MESH_ID UINT32_C(0x9b8e7b4f)

uint32_t ifit_dfx_datetime_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_datetime_mesh *rec);
void ifit_dfx_datetime_mesh_free__unpacked(ifit_dfx_datetime_mesh *rec);
int ifit_dfx_datetime_mesh__pack(const ifit_dfx_datetime_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_datetime_mesh__sendsingle(uint32_t channel, const ifit_dfx_datetime_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_datetime_mesh__sendbatch(uint32_t channel, const ifit_dfx_datetime_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dfx_datetime_mesh__sendmsg(uint32_t channel, const ifit_dfx_datetime_mesh *recs, uint32_t n);
int ifit_dfx_datetime_mesh__sendtomsg(uint32_t channel, const ifit_dfx_datetime_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_query_comm_rec_mesh: Compact form of 22 bytes and more. Owns its bytes. */
typedef struct ifit_dfx_query_comm_rec_mesh {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    struct { uint32_t length; uint8_t *data; } f3;
    uint32_t f4;
} ifit_dfx_query_comm_rec_mesh;

#define IFIT_DFX_QUERY_COMM_REC_MESH_ID UINT32_C(0xd9a44964)

uint32_t ifit_dfx_query_comm_rec_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_query_comm_rec_mesh *rec);
void ifit_dfx_query_comm_rec_mesh_free__unpacked(ifit_dfx_query_comm_rec_mesh *rec);
int ifit_dfx_query_comm_rec_mesh__pack(const ifit_dfx_query_comm_rec_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_query_comm_rec_mesh__sendsingle(uint32_t channel, const ifit_dfx_query_comm_rec_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_query_comm_rec_mesh__sendbatch(uint32_t channel, const ifit_dfx_query_comm_rec_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dfx_query_comm_rec_mesh__sendmsg(uint32_t channel, const ifit_dfx_query_comm_rec_mesh *recs, uint32_t n);
int ifit_dfx_query_comm_rec_mesh__sendtomsg(uint32_t channel, const ifit_dfx_query_comm_rec_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_query_glbdata_cond_mesh: Fixed form of 32 bytes, compact form of 18 to 30. Owns no memory. */
typedef struct ifit_dfx_query_glbdata_cond_mesh {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
} ifit_dfx_query_glbdata_cond_mesh;

#define IFIT_DFX_QUERY_GLBDATA_COND_MESH_ID UINT32_C(0xf2b70aaf)

uint32_t ifit_dfx_query_glbdata_cond_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_query_glbdata_cond_mesh *rec);
void ifit_dfx_query_glbdata_cond_mesh_free__unpacked(ifit_dfx_query_glbdata_cond_mesh *rec);
int ifit_dfx_query_glbdata_cond_mesh__pack(const ifit_dfx_query_glbdata_cond_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_query_glbdata_cond_mesh__sendsingle(uint32_t channel, const ifit_dfx_query_glbdata_cond_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_query_glbdata_cond_mesh__sendbatch(uint32_t channel, const ifit_dfx_query_glbdata_cond_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dfx_query_glbdata_cond_mesh__sendmsg(uint32_t channel, const ifit_dfx_query_glbdata_cond_mesh *recs, uint32_t n);
int ifit_dfx_query_glbdata_cond_mesh__sendtomsg(uint32_t channel, const ifit_dfx_query_glbdata_cond_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_query_glbdata_item_mesh: Compact form of 14 bytes and more. Owns its text. */
typedef struct ifit_dfx_query_glbdata_item_mesh {
    char *f0;
} ifit_dfx_query_glbdata_item_mesh;

#define IFIT_DFX_QUERY_GLBDATA_ITEM_MESH_ID UINT32_C(0x91cd149e)

uint32_t ifit_dfx_query_glbdata_item_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_query_glbdata_item_mesh *rec);
void ifit_dfx_query_glbdata_item_mesh_free__unpacked(ifit_dfx_query_glbdata_item_mesh *rec);
int ifit_dfx_query_glbdata_item_mesh__pack(const ifit_dfx_query_glbdata_item_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_query_glbdata_item_mesh__sendsingle(uint32_t channel, const ifit_dfx_query_glbdata_item_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_query_glbdata_item_mesh__sendbatch(uint32_t channel, const ifit_dfx_query_glbdata_item_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dfx_query_glbdata_item_mesh__sendmsg(uint32_t channel, const ifit_dfx_query_glbdata_item_mesh *recs, uint32_t n);
int ifit_dfx_query_glbdata_item_mesh__sendtomsg(uint32_t channel, const ifit_dfx_query_glbdata_item_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_query_queryhash_cond_mesh: Fixed form of 64 bytes, compact form of 26 to 55. Owns no memory. */
typedef struct ifit_dfx_query_queryhash_cond_mesh {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    kesto_u64 f3;
    uint32_t f4;
    uint8_t f5;
    uint32_t f6;
} ifit_dfx_query_queryhash_cond_mesh;

#define IFIT_DFX_QUERY_QUERYHASH_COND_MESH_ID UINT32_C(0xb35da534)

uint32_t ifit_dfx_query_queryhash_cond_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_query_queryhash_cond_mesh *rec);
void ifit_dfx_query_queryhash_cond_mesh_free__unpacked(ifit_dfx_query_queryhash_cond_mesh *rec);
int ifit_dfx_query_queryhash_cond_mesh__pack(const ifit_dfx_query_queryhash_cond_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_query_queryhash_cond_mesh__sendsingle(uint32_t channel, const ifit_dfx_query_queryhash_cond_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_query_queryhash_cond_mesh__sendbatch(uint32_t channel, const ifit_dfx_query_queryhash_cond_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dfx_query_queryhash_cond_mesh__sendmsg(uint32_t channel, const ifit_dfx_query_queryhash_cond_mesh *recs, uint32_t n);
int ifit_dfx_query_queryhash_cond_mesh__sendtomsg(uint32_t channel, const ifit_dfx_query_queryhash_cond_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_query_queryhash_item_mesh: Compact form of 310 bytes and more. Owns its text. */
typedef struct ifit_dfx_query_queryhash_item_mesh {
    char *f0;
    uint8_t f1;
    uint8_t f2;
    uint8_t f3;
    uint8_t f4[8];
    uint32_t f5;
    uint8_t f6[32];
    kesto_u64 f7;
    kesto_u64 f8;
    uint32_t f9;
    kesto_u64 f10;
    kesto_u64 f11;
    uint32_t f12;
    uint32_t f13;
    kesto_u64 f14;
    uint32_t f15;
    uint8_t f16;
    uint8_t f17;
    uint16_t f18;
    uint8_t f19;
    uint8_t f20;
    uint8_t f21;
    uint8_t f22;
    uint16_t f23;
    uint8_t f24;
    uint8_t f25;
    uint32_t f26[4];
    uint32_t f27[4];
    uint8_t f28;
    uint8_t f29;
    uint8_t f30;
    uint8_t f31;
    uint16_t f32;
    uint16_t f33;
    uint8_t f34[32];
    uint8_t f35[64];
    uint8_t f36;
    uint8_t f37;
    uint16_t f38;
    uint32_t f39;
    uint32_t f40;
} ifit_dfx_query_queryhash_item_mesh;

#define IFIT_DFX_QUERY_QUERYHASH_ITEM_MESH_ID UINT32_C(0xf30940b5)

uint32_t ifit_dfx_query_queryhash_item_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_query_queryhash_item_mesh *rec);
void ifit_dfx_query_queryhash_item_mesh_free__unpacked(ifit_dfx_query_queryhash_item_mesh *rec);
int ifit_dfx_query_queryhash_item_mesh__pack(const ifit_dfx_query_queryhash_item_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_query_queryhash_item_mesh__sendsingle(uint32_t channel, const ifit_dfx_query_queryhash_item_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_query_queryhash_item_mesh__sendbatch(uint32_t channel, const ifit_dfx_query_queryhash_item_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dfx_query_queryhash_item_mesh__sendmsg(uint32_t channel, const ifit_dfx_query_queryhash_item_mesh *recs, uint32_t n);
int ifit_dfx_query_queryhash_item_mesh__sendtomsg(uint32_t channel, const ifit_dfx_query_queryhash_item_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_reset_statis_mesh: Fixed form of 32 bytes, compact form of 18 to 30. Owns no memory. */
typedef struct ifit_dfx_reset_statis_mesh {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
} ifit_dfx_reset_statis_mesh;

#define IFIT_DFX_RESET_STATIS_MESH_ID UINT32_C(0xbaa3bcd6)

uint32_t ifit_dfx_reset_statis_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_reset_statis_mesh *rec);
void ifit_dfx_reset_statis_mesh_free__unpacked(ifit_dfx_reset_statis_mesh *rec);
int ifit_dfx_reset_statis_mesh__pack(const ifit_dfx_reset_statis_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_reset_statis_mesh__sendsingle(uint32_t channel, const ifit_dfx_reset_statis_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_reset_statis_mesh__sendbatch(uint32_t channel, const ifit_dfx_reset_statis_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dfx_reset_statis_mesh__sendmsg(uint32_t channel, const ifit_dfx_reset_statis_mesh *recs, uint32_t n);
int ifit_dfx_reset_statis_mesh__sendtomsg(uint32_t channel, const ifit_dfx_reset_statis_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_query_stat_mesh_key: Compact form of 52 bytes and more. Owns its bytes. */
typedef struct ifit_dfx_query_stat_mesh_key {
    ifit_dfx_query_comm_param_mesh f0;
    ifit_dfx_query_stat_cond_mesh f1;
} ifit_dfx_query_stat_mesh_key;

#define IFIT_DFX_QUERY_STAT_MESH_KEY_ID UINT32_C(0x756e7591)

uint32_t ifit_dfx_query_stat_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_query_stat_mesh_key *rec);
void ifit_dfx_query_stat_mesh_key_free__unpacked(ifit_dfx_query_stat_mesh_key *rec);
int ifit_dfx_query_stat_mesh_key__pack(const ifit_dfx_query_stat_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_query_stat_mesh_key__sendsingle(uint32_t channel, const ifit_dfx_query_stat_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_query_stat_mesh_key__sendbatch(uint32_t channel, const ifit_dfx_query_stat_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_dfx_query_stat_mesh_key__sendmsg(uint32_t channel, const ifit_dfx_query_stat_mesh_key *recs, uint32_t n);
int ifit_dfx_query_stat_mesh_key__sendtomsg(uint32_t channel, const ifit_dfx_query_stat_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_query_stat_item_mesh: Fixed form of 120 bytes, compact form of 102 to 117. Owns no memory. */
typedef struct ifit_dfx_query_stat_item_mesh {
    uint8_t f0[50];
    uint32_t f1;
    uint32_t f2;
    ifit_dfx_datetime_mesh f3;
} ifit_dfx_query_stat_item_mesh;

#define IFIT_DFX_QUERY_STAT_ITEM_MESH_ID UINT32_C(0x380ee2a9)

uint32_t ifit_dfx_query_stat_item_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_query_stat_item_mesh *rec);
void ifit_dfx_query_stat_item_mesh_free__unpacked(ifit_dfx_query_stat_item_mesh *rec);
int ifit_dfx_query_stat_item_mesh__pack(const ifit_dfx_query_stat_item_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_query_stat_item_mesh__sendsingle(uint32_t channel, const ifit_dfx_query_stat_item_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_query_stat_item_mesh__sendbatch(uint32_t channel, const ifit_dfx_query_stat_item_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dfx_query_stat_item_mesh__sendmsg(uint32_t channel, const ifit_dfx_query_stat_item_mesh *recs, uint32_t n);
int ifit_dfx_query_stat_item_mesh__sendtomsg(uint32_t channel, const ifit_dfx_query_stat_item_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_query_stat_rec_mesh: Compact form of 38 bytes and more. Owns its bytes, elements. */
typedef struct ifit_dfx_query_stat_rec_mesh {
    ifit_dfx_query_comm_rec_mesh f0;
    struct { uint32_t count; ifit_dfx_query_stat_item_mesh *items; } f1;
} ifit_dfx_query_stat_rec_mesh;

#define IFIT_DFX_QUERY_STAT_REC_MESH_ID UINT32_C(0x1e368072)

uint32_t ifit_dfx_query_stat_rec_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_query_stat_rec_mesh *rec);
void ifit_dfx_query_stat_rec_mesh_free__unpacked(ifit_dfx_query_stat_rec_mesh *rec);
int ifit_dfx_query_stat_rec_mesh__pack(const ifit_dfx_query_stat_rec_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_query_stat_rec_mesh__sendsingle(uint32_t channel, const ifit_dfx_query_stat_rec_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_query_stat_rec_mesh__sendbatch(uint32_t channel, const ifit_dfx_query_stat_rec_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dfx_query_stat_rec_mesh__sendmsg(uint32_t channel, const ifit_dfx_query_stat_rec_mesh *recs, uint32_t n);
int ifit_dfx_query_stat_rec_mesh__sendtomsg(uint32_t channel, const ifit_dfx_query_stat_rec_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_query_glbdata_mesh_key: Compact form of 52 bytes and more. Owns its bytes. */
typedef struct ifit_dfx_query_glbdata_mesh_key {
    ifit_dfx_query_comm_param_mesh f0;
    ifit_dfx_query_glbdata_cond_mesh f1;
} ifit_dfx_query_glbdata_mesh_key;

#define IFIT_DFX_QUERY_GLBDATA_MESH_KEY_ID UINT32_C(0xda64baf0)

uint32_t ifit_dfx_query_glbdata_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_query_glbdata_mesh_key *rec);
void ifit_dfx_query_glbdata_mesh_key_free__unpacked(ifit_dfx_query_glbdata_mesh_key *rec);
int ifit_dfx_query_glbdata_mesh_key__pack(const ifit_dfx_query_glbdata_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_query_glbdata_mesh_key__sendsingle(uint32_t channel, const ifit_dfx_query_glbdata_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_query_glbdata_mesh_key__sendbatch(uint32_t channel, const ifit_dfx_query_glbdata_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_dfx_query_glbdata_mesh_key__sendmsg(uint32_t channel, const ifit_dfx_query_glbdata_mesh_key *recs, uint32_t n);
int ifit_dfx_query_glbdata_mesh_key__sendtomsg(uint32_t channel, const ifit_dfx_query_glbdata_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_query_glbdata_rec_mesh: Compact form of 52 bytes and more. Owns its text, bytes. */
typedef struct ifit_dfx_query_glbdata_rec_mesh {
    ifit_dfx_query_comm_rec_mesh f0;
    ifit_dfx_query_glbdata_item_mesh f1;
} ifit_dfx_query_glbdata_rec_mesh;

#define IFIT_DFX_QUERY_GLBDATA_REC_MESH_ID UINT32_C(0x47fab70b)

uint32_t ifit_dfx_query_glbdata_rec_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_query_glbdata_rec_mesh *rec);
void ifit_dfx_query_glbdata_rec_mesh_free__unpacked(ifit_dfx_query_glbdata_rec_mesh *rec);
int ifit_dfx_query_glbdata_rec_mesh__pack(const ifit_dfx_query_glbdata_rec_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_query_glbdata_rec_mesh__sendsingle(uint32_t channel, const ifit_dfx_query_glbdata_rec_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_query_glbdata_rec_mesh__sendbatch(uint32_t channel, const ifit_dfx_query_glbdata_rec_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dfx_query_glbdata_rec_mesh__sendmsg(uint32_t channel, const ifit_dfx_query_glbdata_rec_mesh *recs, uint32_t n);
int ifit_dfx_query_glbdata_rec_mesh__sendtomsg(uint32_t channel, const ifit_dfx_query_glbdata_rec_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_query_queryhash_mesh_key: Compact form of 60 bytes and more. Owns its bytes. */
typedef struct ifit_dfx_query_queryhash_mesh_key {
    ifit_dfx_query_comm_param_mesh f0;
    ifit_dfx_query_queryhash_cond_mesh f1;
} ifit_dfx_query_queryhash_mesh_key;

#define IFIT_DFX_QUERY_QUERYHASH_MESH_KEY_ID UINT32_C(0x18f76235)

uint32_t ifit_dfx_query_queryhash_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_query_queryhash_mesh_key *rec);
void ifit_dfx_query_queryhash_mesh_key_free__unpacked(ifit_dfx_query_queryhash_mesh_key *rec);
int ifit_dfx_query_queryhash_mesh_key__pack(const ifit_dfx_query_queryhash_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_query_queryhash_mesh_key__sendsingle(uint32_t channel, const ifit_dfx_query_queryhash_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_query_queryhash_mesh_key__sendbatch(uint32_t channel, const ifit_dfx_query_queryhash_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_dfx_query_queryhash_mesh_key__sendmsg(uint32_t channel, const ifit_dfx_query_queryhash_mesh_key *recs, uint32_t n);
int ifit_dfx_query_queryhash_mesh_key__sendtomsg(uint32_t channel, const ifit_dfx_query_queryhash_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_dfx_query_queryhash_rec_mesh: Compact form of 348 bytes and more. Owns its text, bytes. */
typedef struct ifit_dfx_query_queryhash_rec_mesh {
    ifit_dfx_query_comm_rec_mesh f0;
    ifit_dfx_query_queryhash_item_mesh f1;
} ifit_dfx_query_queryhash_rec_mesh;

#define IFIT_DFX_QUERY_QUERYHASH_REC_MESH_ID UINT32_C(0xc536dac6)

uint32_t ifit_dfx_query_queryhash_rec_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dfx_query_queryhash_rec_mesh *rec);
void ifit_dfx_query_queryhash_rec_mesh_free__unpacked(ifit_dfx_query_queryhash_rec_mesh *rec);
int ifit_dfx_query_queryhash_rec_mesh__pack(const ifit_dfx_query_queryhash_rec_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dfx_query_queryhash_rec_mesh__sendsingle(uint32_t channel, const ifit_dfx_query_queryhash_rec_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dfx_query_queryhash_rec_mesh__sendbatch(uint32_t channel, const ifit_dfx_query_queryhash_rec_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dfx_query_queryhash_rec_mesh__sendmsg(uint32_t channel, const ifit_dfx_query_queryhash_rec_mesh *recs, uint32_t n);
int ifit_dfx_query_queryhash_rec_mesh__sendtomsg(uint32_t channel, const ifit_dfx_query_queryhash_rec_mesh *recs, uint32_t n, uint32_t destination);

int ifit_dfx_recv_init(void);
int ifit_dfx_send_init(void);
void ifit_dfx__send_resource_clean(void);

#ifdef __cplusplus
}
#endif

#endif
