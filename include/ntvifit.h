/* ntvifit.h: records and operations of the ntvifit messages. Printed from the catalogue by `./run headers`; do not edit.
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
 * ntvifit_recv_init registers every message's X__unpack and X_free__unpacked with the messaging library, in the order of this
 *   file; it returns 0 or the library's first other result, after which the later ones are not registered.
 * ntvifit_send_init registers ntvifit__send_resource_clean, which does nothing, and returns the library's result.
 *   Sending works without either, and so do X__pack, X__unpack and X_free__unpacked.
 */
#ifndef KESTO_NTVIFIT_H
#define KESTO_NTVIFIT_H

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
 * Flow records. The parts of a native flow's statistics: key, configuration, tuples, counters and application data.
 *   Each is a message, and a table of ntvifit_stats_info. The library reads no field of them. Messages:
 *   ntvifit_stats_key, ntvifit_flow_config, ntvifit_flow_tuples, ntvifit_stats_data, ntvifit_app_data.
 *
 * Statistics export. Gather and export: the five flow records in one, a list of these, and a flat entry with its list,
 *   to mdtlm. Messages: ntvifit_stats_info, ntvifit_stats_info_list, ntvifit_entry_to_mdtlm, ntvifit_entry_list_mdtlm.
 */

/* ntvifit_app_data: Compact form of 16 bytes and more. Owns its bytes. */
typedef struct ntvifit_app_data {
    uint32_t f0;
    struct { uint32_t length; uint8_t *data; } f1;
} ntvifit_app_data;

#define NTVIFIT_APP_DATA_ID UINT32_C(0x0b10f5d5)

uint32_t ntvifit_app_data__unpack(const uint8_t *buf, uint32_t len, ntvifit_app_data *rec);
void ntvifit_app_data_free__unpacked(ntvifit_app_data *rec);
int ntvifit_app_data__pack(const ntvifit_app_data *rec, uint8_t *buf, uint32_t *len);
int ntvifit_app_data__sendsingle(uint32_t channel, const ntvifit_app_data *rec, uint32_t unused, uint32_t destination);
int ntvifit_app_data__sendbatch(uint32_t channel, const ntvifit_app_data *recs, uint32_t n, uint32_t destination);
int ntvifit_app_data__sendmsg(uint32_t channel, const ntvifit_app_data *recs, uint32_t n);
int ntvifit_app_data__sendtomsg(uint32_t channel, const ntvifit_app_data *recs, uint32_t n, uint32_t destination);

/* ntvifit_stats_data: Fixed form of 104 bytes, compact form of 38 to 98. Owns no memory. */
typedef struct ntvifit_stats_data {
    uint32_t f0;
    uint8_t f1;
    uint8_t f2;
    uint16_t f3;
    kesto_u64 f4;
    kesto_u64 f5;
    uint32_t f6;
    uint32_t f7;
    kesto_u64 f8;
    kesto_u64 f9;
    uint32_t f10;
    uint32_t f11;
    uint32_t f12;
} ntvifit_stats_data;

#define NTVIFIT_STATS_DATA_ID UINT32_C(0x392ea985)

uint32_t ntvifit_stats_data__unpack(const uint8_t *buf, uint32_t len, ntvifit_stats_data *rec);
void ntvifit_stats_data_free__unpacked(ntvifit_stats_data *rec);
int ntvifit_stats_data__pack(const ntvifit_stats_data *rec, uint8_t *buf, uint32_t *len);
int ntvifit_stats_data__sendsingle(uint32_t channel, const ntvifit_stats_data *rec, uint32_t unused, uint32_t destination);
int ntvifit_stats_data__sendbatch(uint32_t channel, const ntvifit_stats_data *recs, uint32_t n, uint32_t destination);
int ntvifit_stats_data__sendmsg(uint32_t channel, const ntvifit_stats_data *recs, uint32_t n);
int ntvifit_stats_data__sendtomsg(uint32_t channel, const ntvifit_stats_data *recs, uint32_t n, uint32_t destination);

/* ntvifit_flow_tuples: Fixed form of 56 bytes, compact form of 40 to 54. Owns no memory. */
typedef struct ntvifit_flow_tuples {
    uint32_t f0;
    uint32_t f1;
    uint16_t f2;
    uint16_t f3;
    uint8_t f4[6];
    uint8_t f5;
    uint8_t f6;
} ntvifit_flow_tuples;

#define NTVIFIT_FLOW_TUPLES_ID UINT32_C(0x033f8145)

uint32_t ntvifit_flow_tuples__unpack(const uint8_t *buf, uint32_t len, ntvifit_flow_tuples *rec);
void ntvifit_flow_tuples_free__unpacked(ntvifit_flow_tuples *rec);
int ntvifit_flow_tuples__pack(const ntvifit_flow_tuples *rec, uint8_t *buf, uint32_t *len);
int ntvifit_flow_tuples__sendsingle(uint32_t channel, const ntvifit_flow_tuples *rec, uint32_t unused, uint32_t destination);
int ntvifit_flow_tuples__sendbatch(uint32_t channel, const ntvifit_flow_tuples *recs, uint32_t n, uint32_t destination);
int ntvifit_flow_tuples__sendmsg(uint32_t channel, const ntvifit_flow_tuples *recs, uint32_t n);
int ntvifit_flow_tuples__sendtomsg(uint32_t channel, const ntvifit_flow_tuples *recs, uint32_t n, uint32_t destination);

/* ntvifit_flow_config: Fixed form of 128 bytes, compact form of 98 to 122. Owns no memory. */
typedef struct ntvifit_flow_config {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint8_t f4[64];
    uint32_t f5;
    uint32_t f6;
} ntvifit_flow_config;

#define NTVIFIT_FLOW_CONFIG_ID UINT32_C(0xefaf473c)

uint32_t ntvifit_flow_config__unpack(const uint8_t *buf, uint32_t len, ntvifit_flow_config *rec);
void ntvifit_flow_config_free__unpacked(ntvifit_flow_config *rec);
int ntvifit_flow_config__pack(const ntvifit_flow_config *rec, uint8_t *buf, uint32_t *len);
int ntvifit_flow_config__sendsingle(uint32_t channel, const ntvifit_flow_config *rec, uint32_t unused, uint32_t destination);
int ntvifit_flow_config__sendbatch(uint32_t channel, const ntvifit_flow_config *recs, uint32_t n, uint32_t destination);
int ntvifit_flow_config__sendmsg(uint32_t channel, const ntvifit_flow_config *recs, uint32_t n);
int ntvifit_flow_config__sendtomsg(uint32_t channel, const ntvifit_flow_config *recs, uint32_t n, uint32_t destination);

/* ntvifit_stats_key: Fixed form of 32 bytes, compact form of 20 to 32. Owns no memory. */
typedef struct ntvifit_stats_key {
    uint32_t f0;
    uint32_t f1;
    uint16_t f2;
    uint16_t f3;
} ntvifit_stats_key;

#define NTVIFIT_STATS_KEY_ID UINT32_C(0x6b191fcc)

uint32_t ntvifit_stats_key__unpack(const uint8_t *buf, uint32_t len, ntvifit_stats_key *rec);
void ntvifit_stats_key_free__unpacked(ntvifit_stats_key *rec);
int ntvifit_stats_key__pack(const ntvifit_stats_key *rec, uint8_t *buf, uint32_t *len);
int ntvifit_stats_key__sendsingle(uint32_t channel, const ntvifit_stats_key *rec, uint32_t unused, uint32_t destination);
int ntvifit_stats_key__sendbatch(uint32_t channel, const ntvifit_stats_key *recs, uint32_t n, uint32_t destination);
int ntvifit_stats_key__sendmsg(uint32_t channel, const ntvifit_stats_key *recs, uint32_t n);
int ntvifit_stats_key__sendtomsg(uint32_t channel, const ntvifit_stats_key *recs, uint32_t n, uint32_t destination);

/* ntvifit_entry_to_mdtlm: Compact form of 64 bytes and more. Owns its bytes. */
typedef struct ntvifit_entry_to_mdtlm {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint16_t f3;
    uint16_t f4;
    uint8_t f5;
    uint8_t f6;
    uint16_t f7;
    kesto_u64 f8;
    kesto_u64 f9;
    uint32_t f10;
    uint32_t f11;
    kesto_u64 f12;
    kesto_u64 f13;
    uint32_t f14;
    uint32_t f15;
    uint32_t f16;
    struct { uint32_t length; uint8_t *data; } f17;
    uint8_t f18;
    struct { uint32_t length; uint8_t *data; } f19;
    uint8_t f20;
    uint8_t f21;
    uint16_t f22;
    struct { uint32_t length; uint8_t *data; } f23;
    uint8_t f24;
    uint32_t f25;
} ntvifit_entry_to_mdtlm;

#define NTVIFIT_ENTRY_TO_MDTLM_ID UINT32_C(0x565e6e52)

uint32_t ntvifit_entry_to_mdtlm__unpack(const uint8_t *buf, uint32_t len, ntvifit_entry_to_mdtlm *rec);
void ntvifit_entry_to_mdtlm_free__unpacked(ntvifit_entry_to_mdtlm *rec);
int ntvifit_entry_to_mdtlm__pack(const ntvifit_entry_to_mdtlm *rec, uint8_t *buf, uint32_t *len);
int ntvifit_entry_to_mdtlm__sendsingle(uint32_t channel, const ntvifit_entry_to_mdtlm *rec, uint32_t unused, uint32_t destination);
int ntvifit_entry_to_mdtlm__sendbatch(uint32_t channel, const ntvifit_entry_to_mdtlm *recs, uint32_t n, uint32_t destination);
int ntvifit_entry_to_mdtlm__sendmsg(uint32_t channel, const ntvifit_entry_to_mdtlm *recs, uint32_t n);
int ntvifit_entry_to_mdtlm__sendtomsg(uint32_t channel, const ntvifit_entry_to_mdtlm *recs, uint32_t n, uint32_t destination);

/* ntvifit_entry_list_mdtlm: Compact form of 16 bytes and more. Owns its elements and what they own. */
typedef struct ntvifit_entry_list_mdtlm {
    struct { uint32_t count; ntvifit_entry_to_mdtlm *items; } f0;
    uint32_t f1;
} ntvifit_entry_list_mdtlm;

#define NTVIFIT_ENTRY_LIST_MDTLM_ID UINT32_C(0x86bee653)

uint32_t ntvifit_entry_list_mdtlm__unpack(const uint8_t *buf, uint32_t len, ntvifit_entry_list_mdtlm *rec);
void ntvifit_entry_list_mdtlm_free__unpacked(ntvifit_entry_list_mdtlm *rec);
int ntvifit_entry_list_mdtlm__pack(const ntvifit_entry_list_mdtlm *rec, uint8_t *buf, uint32_t *len);
int ntvifit_entry_list_mdtlm__sendsingle(uint32_t channel, const ntvifit_entry_list_mdtlm *rec, uint32_t unused, uint32_t destination);
int ntvifit_entry_list_mdtlm__sendbatch(uint32_t channel, const ntvifit_entry_list_mdtlm *recs, uint32_t n, uint32_t destination);
int ntvifit_entry_list_mdtlm__sendmsg(uint32_t channel, const ntvifit_entry_list_mdtlm *recs, uint32_t n);
int ntvifit_entry_list_mdtlm__sendtomsg(uint32_t channel, const ntvifit_entry_list_mdtlm *recs, uint32_t n, uint32_t destination);

/* ntvifit_stats_info: Compact form of 252 bytes and more. Owns its bytes. */
typedef struct ntvifit_stats_info {
    ntvifit_stats_key f0;
    ntvifit_flow_config f1;
    ntvifit_flow_tuples f2;
    ntvifit_stats_data f3;
    ntvifit_app_data f4;
    uint8_t f5;
    uint8_t f6;
    uint16_t f7;
    uint32_t f8;
    uint8_t f9;
    uint8_t f10;
    uint8_t f11;
    uint8_t f12;
    uint32_t f13;
} ntvifit_stats_info;

#define NTVIFIT_STATS_INFO_ID UINT32_C(0x6df6f7e5)

uint32_t ntvifit_stats_info__unpack(const uint8_t *buf, uint32_t len, ntvifit_stats_info *rec);
void ntvifit_stats_info_free__unpacked(ntvifit_stats_info *rec);
int ntvifit_stats_info__pack(const ntvifit_stats_info *rec, uint8_t *buf, uint32_t *len);
int ntvifit_stats_info__sendsingle(uint32_t channel, const ntvifit_stats_info *rec, uint32_t unused, uint32_t destination);
int ntvifit_stats_info__sendbatch(uint32_t channel, const ntvifit_stats_info *recs, uint32_t n, uint32_t destination);
int ntvifit_stats_info__sendmsg(uint32_t channel, const ntvifit_stats_info *recs, uint32_t n);
int ntvifit_stats_info__sendtomsg(uint32_t channel, const ntvifit_stats_info *recs, uint32_t n, uint32_t destination);

/* ntvifit_stats_info_list: Compact form of 14 bytes and more. Owns its elements and what they own. */
typedef struct ntvifit_stats_info_list {
    struct { uint32_t count; ntvifit_stats_info *items; } f0;
} ntvifit_stats_info_list;

#define NTVIFIT_STATS_INFO_LIST_ID UINT32_C(0x3758099a)

uint32_t ntvifit_stats_info_list__unpack(const uint8_t *buf, uint32_t len, ntvifit_stats_info_list *rec);
void ntvifit_stats_info_list_free__unpacked(ntvifit_stats_info_list *rec);
int ntvifit_stats_info_list__pack(const ntvifit_stats_info_list *rec, uint8_t *buf, uint32_t *len);
int ntvifit_stats_info_list__sendsingle(uint32_t channel, const ntvifit_stats_info_list *rec, uint32_t unused, uint32_t destination);
int ntvifit_stats_info_list__sendbatch(uint32_t channel, const ntvifit_stats_info_list *recs, uint32_t n, uint32_t destination);
int ntvifit_stats_info_list__sendmsg(uint32_t channel, const ntvifit_stats_info_list *recs, uint32_t n);
int ntvifit_stats_info_list__sendtomsg(uint32_t channel, const ntvifit_stats_info_list *recs, uint32_t n, uint32_t destination);

int ntvifit_recv_init(void);
int ntvifit_send_init(void);
void ntvifit__send_resource_clean(void);

#ifdef __cplusplus
}
#endif

#endif
