/* ifit_sync.h: records and operations of the ifit_sync messages. Printed from the catalogue by `./run headers`; do not edit.
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
 * ifit_sync_recv_init registers every message's X__unpack and X_free__unpacked with the messaging library, in the order of this
 *   file; it returns 0 or the library's first other result, after which the later ones are not registered.
 * ifit_sync_send_init registers ifit_sync__send_resource_clean, which does nothing, and returns the library's result.
 *   Sending works without either, and so do X__pack, X__unpack and X_free__unpacked.
 */
#ifndef KESTO_IFIT_SYNC_H
#define KESTO_IFIT_SYNC_H

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
 * Mirrored tables. The synchronised copy of control tables: the row, and then the sync tail u8, u8, u16, u32, u32. They
 *   have no key: update and delete both carry lists of whole records. Messages: ifit_sync_global_mesh,
 *   ifit_sync_mcp_mesh, ifit_sync_test_type_mesh, ifit_sync_flow_base_mesh, ifit_sync_flow_srv6policy_mesh,
 *   ifit_sync_dyn_flow_mesh, ifit_sync_flow_tuplev4_mesh, ifit_sync_flow_tuplev6_mesh, ifit_sync_flow_vpn_mesh,
 *   ifit_sync_flow_loss_mesh, ifit_sync_flow_delay_mesh, ifit_sync_lrn_vpn_mesh, ifit_sync_lrn_intf_mesh,
 *   ifit_sync_color_intf_mesh, ifit_sync_color_intf_entry_mesh.
 *
 * Rule, native-IP and global entries. The synchronised copy of rule, native-IP and global tables, with more numbers
 *   before the sync tail. Except for ifit_sync_mcp_global_entry, update and delete carry one whole record, in fixed form.
 *   Messages: ifit_sync_ifit_rule, ifit_sync_ifit_native_ip_learn, ifit_sync_ifit_native_ip_intf,
 *   ifit_sync_ifit_native_ip_intf_color_clear, ifit_sync_ifit_native_ip_intf_auto_detect, ifit_sync_ifit_global_entry,
 *   ifit_sync_mcp_global_entry.
 *
 * Flow state entries. The state of single flows, which has no control table: flow information, ageing, sessions, and
 *   the extended flow information for IPv4 and IPv6. All begin with the slots of their key and end with the sync tail.
 *   Messages: ifit_sync_ifit_flowinfo_entry, ifit_sync_ifit_flowage_entry, ifit_sync_ifit_session_entry,
 *   ifit_sync_ifit_tuplev4ext_flowinfo_entry, ifit_sync_ifit_tuplev6ext_flowinfo_entry.
 *
 * Native entries. Entries for native telemetry. They repeat no message of the module ntvifit. Update and delete carry
 *   one whole record, in fixed form. Messages: ifit_sync_ntvifit_glb_entry, ifit_sync_ntvifit_intf_entry,
 *   ifit_sync_ntvifit_intf_color_clear_entry, ifit_sync_ntvifit_intf_auto_detect_entry.
 *
 * Whitelist entries. Whitelists by VPN and by rule, each for interfaces. Messages:
 *   ifit_sync_ifit_whitelist_vpn_intf_entry, ifit_sync_ifit_whitelist_rule_intf_entry.
 *
 * Smoothing. By their names, the version of the database and the request of a smoothing run. Messages:
 *   ifit_sync_db_smooth_ver, ifit_sync_dam_smooth_request.
 */

/* ifit_sync_ifit_rule: The row of ifit_rule_mesh, then 7 more slots, the last five of them the sync tail. Fixed form of
 * 176 bytes, compact form of 116 to 176. Owns no memory. */
typedef struct ifit_sync_ifit_rule {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint8_t f4[16];
    uint8_t f5;
    uint8_t f6;
    uint16_t f7;
    uint32_t f8;
    uint8_t f9[16];
    uint8_t f10;
    uint8_t f11;
    uint16_t f12;
    uint16_t f13;
    uint8_t f14;
    uint8_t f15;
    uint8_t f16;
    uint8_t f17;
    uint16_t f18;
    uint16_t f19;
    uint16_t f20;
    uint32_t f21;
    uint32_t f22;
    uint8_t f23;
    uint8_t f24;
    uint16_t f25;
    uint32_t f26;
    uint32_t f27;
} ifit_sync_ifit_rule;

#define IFIT_SYNC_IFIT_RULE_ID UINT32_C(0xa7dc2298)

uint32_t ifit_sync_ifit_rule__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_rule *rec);
void ifit_sync_ifit_rule_free__unpacked(ifit_sync_ifit_rule *rec);
int ifit_sync_ifit_rule__pack(const ifit_sync_ifit_rule *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_rule__sendsingle(uint32_t channel, const ifit_sync_ifit_rule *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_rule__sendbatch(uint32_t channel, const ifit_sync_ifit_rule *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_rule__sendmsg(uint32_t channel, const ifit_sync_ifit_rule *recs, uint32_t n);
int ifit_sync_ifit_rule__sendtomsg(uint32_t channel, const ifit_sync_ifit_rule *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_native_ip_learn: The row of ifit_native_ip_learn_mesh, then 7 more slots, the last five of them the
 * sync tail. Fixed form of 80 bytes, compact form of 42 to 74. Owns no memory. */
typedef struct ifit_sync_ifit_native_ip_learn {
    uint32_t f0;
    uint8_t f1;
    uint8_t f2;
    uint16_t f3;
    uint8_t f4;
    uint8_t f5;
    uint8_t f6;
    uint8_t f7;
    uint32_t f8;
    uint32_t f9;
    uint8_t f10;
    uint8_t f11;
    uint16_t f12;
    uint32_t f13;
    uint32_t f14;
} ifit_sync_ifit_native_ip_learn;

#define IFIT_SYNC_IFIT_NATIVE_IP_LEARN_ID UINT32_C(0x29e7b26a)

uint32_t ifit_sync_ifit_native_ip_learn__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_native_ip_learn *rec);
void ifit_sync_ifit_native_ip_learn_free__unpacked(ifit_sync_ifit_native_ip_learn *rec);
int ifit_sync_ifit_native_ip_learn__pack(const ifit_sync_ifit_native_ip_learn *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_native_ip_learn__sendsingle(uint32_t channel, const ifit_sync_ifit_native_ip_learn *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_native_ip_learn__sendbatch(uint32_t channel, const ifit_sync_ifit_native_ip_learn *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_native_ip_learn__sendmsg(uint32_t channel, const ifit_sync_ifit_native_ip_learn *recs, uint32_t n);
int ifit_sync_ifit_native_ip_learn__sendtomsg(uint32_t channel, const ifit_sync_ifit_native_ip_learn *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_native_ip_intf: The row of ifit_native_ip_intf_mesh, then 7 more slots, the last five of them the sync
 * tail. Fixed form of 80 bytes, compact form of 40 to 76. Owns no memory. */
typedef struct ifit_sync_ifit_native_ip_intf {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint8_t f3;
    uint8_t f4;
    uint8_t f5;
    uint8_t f6;
    uint32_t f7;
    uint32_t f8;
    uint8_t f9;
    uint8_t f10;
    uint16_t f11;
    uint32_t f12;
    uint32_t f13;
} ifit_sync_ifit_native_ip_intf;

#define IFIT_SYNC_IFIT_NATIVE_IP_INTF_ID UINT32_C(0x50ff9461)

uint32_t ifit_sync_ifit_native_ip_intf__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_native_ip_intf *rec);
void ifit_sync_ifit_native_ip_intf_free__unpacked(ifit_sync_ifit_native_ip_intf *rec);
int ifit_sync_ifit_native_ip_intf__pack(const ifit_sync_ifit_native_ip_intf *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_native_ip_intf__sendsingle(uint32_t channel, const ifit_sync_ifit_native_ip_intf *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_native_ip_intf__sendbatch(uint32_t channel, const ifit_sync_ifit_native_ip_intf *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_native_ip_intf__sendmsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf *recs, uint32_t n);
int ifit_sync_ifit_native_ip_intf__sendtomsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_native_ip_intf_color_clear: The row of ifit_native_ip_intf_color_clear_mesh, then 7 more slots, which
 * are not the sync tail. Fixed form of 72 bytes, compact form of 36 to 67. Owns no memory. */
typedef struct ifit_sync_ifit_native_ip_intf_color_clear {
    uint32_t f0;
    uint32_t f1;
    uint8_t f2;
    uint8_t f3;
    uint16_t f4;
    uint32_t f5;
    uint32_t f6;
    uint8_t f7;
    uint8_t f8;
    uint8_t f9;
    uint32_t f10;
    uint32_t f11;
} ifit_sync_ifit_native_ip_intf_color_clear;

#define IFIT_SYNC_IFIT_NATIVE_IP_INTF_COLOR_CLEAR_ID UINT32_C(0xa94cb207)

uint32_t ifit_sync_ifit_native_ip_intf_color_clear__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_native_ip_intf_color_clear *rec);
void ifit_sync_ifit_native_ip_intf_color_clear_free__unpacked(ifit_sync_ifit_native_ip_intf_color_clear *rec);
int ifit_sync_ifit_native_ip_intf_color_clear__pack(const ifit_sync_ifit_native_ip_intf_color_clear *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_native_ip_intf_color_clear__sendsingle(uint32_t channel, const ifit_sync_ifit_native_ip_intf_color_clear *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_color_clear__sendbatch(uint32_t channel, const ifit_sync_ifit_native_ip_intf_color_clear *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_color_clear__sendmsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_color_clear *recs, uint32_t n);
int ifit_sync_ifit_native_ip_intf_color_clear__sendtomsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_color_clear *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_native_ip_intf_auto_detect: The row of ifit_native_ip_intf_auto_detect_mesh, then 7 more slots, the
 * last five of them the sync tail. Fixed form of 72 bytes, compact form of 38 to 70. Owns no memory. */
typedef struct ifit_sync_ifit_native_ip_intf_auto_detect {
    uint32_t f0;
    uint32_t f1;
    uint8_t f2;
    uint8_t f3;
    uint8_t f4;
    uint8_t f5;
    uint32_t f6;
    uint32_t f7;
    uint8_t f8;
    uint8_t f9;
    uint16_t f10;
    uint32_t f11;
    uint32_t f12;
} ifit_sync_ifit_native_ip_intf_auto_detect;

#define IFIT_SYNC_IFIT_NATIVE_IP_INTF_AUTO_DETECT_ID UINT32_C(0x820e68f9)

uint32_t ifit_sync_ifit_native_ip_intf_auto_detect__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_native_ip_intf_auto_detect *rec);
void ifit_sync_ifit_native_ip_intf_auto_detect_free__unpacked(ifit_sync_ifit_native_ip_intf_auto_detect *rec);
int ifit_sync_ifit_native_ip_intf_auto_detect__pack(const ifit_sync_ifit_native_ip_intf_auto_detect *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_native_ip_intf_auto_detect__sendsingle(uint32_t channel, const ifit_sync_ifit_native_ip_intf_auto_detect *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_auto_detect__sendbatch(uint32_t channel, const ifit_sync_ifit_native_ip_intf_auto_detect *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_auto_detect__sendmsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_auto_detect *recs, uint32_t n);
int ifit_sync_ifit_native_ip_intf_auto_detect__sendtomsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_auto_detect *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ntvifit_glb_entry: Fixed form of 88 bytes, compact form of 46 to 86. Owns no memory. */
typedef struct ifit_sync_ntvifit_glb_entry {
    uint32_t f0;
    uint8_t f1;
    uint8_t f2;
    uint16_t f3;
    uint8_t f4;
    uint8_t f5;
    uint8_t f6;
    uint8_t f7;
    uint32_t f8;
    uint32_t f9;
    uint32_t f10;
    uint32_t f11;
    uint8_t f12;
    uint8_t f13;
    uint16_t f14;
    uint32_t f15;
    uint32_t f16;
} ifit_sync_ntvifit_glb_entry;

#define IFIT_SYNC_NTVIFIT_GLB_ENTRY_ID UINT32_C(0x769afe0c)

uint32_t ifit_sync_ntvifit_glb_entry__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ntvifit_glb_entry *rec);
void ifit_sync_ntvifit_glb_entry_free__unpacked(ifit_sync_ntvifit_glb_entry *rec);
int ifit_sync_ntvifit_glb_entry__pack(const ifit_sync_ntvifit_glb_entry *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ntvifit_glb_entry__sendsingle(uint32_t channel, const ifit_sync_ntvifit_glb_entry *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ntvifit_glb_entry__sendbatch(uint32_t channel, const ifit_sync_ntvifit_glb_entry *recs, uint32_t n, uint32_t destination);
int ifit_sync_ntvifit_glb_entry__sendmsg(uint32_t channel, const ifit_sync_ntvifit_glb_entry *recs, uint32_t n);
int ifit_sync_ntvifit_glb_entry__sendtomsg(uint32_t channel, const ifit_sync_ntvifit_glb_entry *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_global_entry: Repeats ifit_global_mesh only in slots 0 to 12; slot 13 is u32 here and u8 there. Fixed
 * form of 144 bytes, compact form of 68 to 140. Owns no memory. */
typedef struct ifit_sync_ifit_global_entry {
    uint32_t f0;
    uint8_t f1;
    uint8_t f2;
    uint16_t f3;
    uint32_t f4;
    uint32_t f5;
    uint32_t f6;
    uint32_t f7;
    uint32_t f8;
    uint8_t f9;
    uint8_t f10;
    uint8_t f11;
    uint8_t f12;
    uint32_t f13;
    uint32_t f14;
    uint32_t f15;
    uint32_t f16;
    uint32_t f17;
    uint32_t f18;
    uint32_t f19;
    uint8_t f20;
    uint8_t f21;
    uint8_t f22;
    uint8_t f23;
    uint8_t f24;
    uint8_t f25;
    uint16_t f26;
    uint32_t f27;
} ifit_sync_ifit_global_entry;

#define IFIT_SYNC_IFIT_GLOBAL_ENTRY_ID UINT32_C(0x0c0861da)

uint32_t ifit_sync_ifit_global_entry__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_global_entry *rec);
void ifit_sync_ifit_global_entry_free__unpacked(ifit_sync_ifit_global_entry *rec);
int ifit_sync_ifit_global_entry__pack(const ifit_sync_ifit_global_entry *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_global_entry__sendsingle(uint32_t channel, const ifit_sync_ifit_global_entry *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_global_entry__sendbatch(uint32_t channel, const ifit_sync_ifit_global_entry *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_global_entry__sendmsg(uint32_t channel, const ifit_sync_ifit_global_entry *recs, uint32_t n);
int ifit_sync_ifit_global_entry__sendtomsg(uint32_t channel, const ifit_sync_ifit_global_entry *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ntvifit_intf_entry: Fixed form of 144 bytes, compact form of 74 to 137. Owns no memory. */
typedef struct ifit_sync_ntvifit_intf_entry {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint8_t f3;
    uint8_t f4;
    uint8_t f5;
    uint8_t f6;
    uint8_t f7;
    uint8_t f8;
    uint8_t f9;
    uint8_t f10;
    uint32_t f11;
    uint32_t f12;
    uint32_t f13;
    uint8_t f14;
    uint8_t f15;
    uint8_t f16;
    uint16_t f17;
    uint16_t f18;
    uint16_t f19;
    uint16_t f20;
    uint8_t f21;
    uint8_t f22;
    uint8_t f23;
    uint8_t f24;
    uint32_t f25;
    uint8_t f26;
    uint8_t f27;
    uint16_t f28;
    uint32_t f29;
    uint32_t f30;
} ifit_sync_ntvifit_intf_entry;

#define IFIT_SYNC_NTVIFIT_INTF_ENTRY_ID UINT32_C(0x90750f62)

uint32_t ifit_sync_ntvifit_intf_entry__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ntvifit_intf_entry *rec);
void ifit_sync_ntvifit_intf_entry_free__unpacked(ifit_sync_ntvifit_intf_entry *rec);
int ifit_sync_ntvifit_intf_entry__pack(const ifit_sync_ntvifit_intf_entry *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ntvifit_intf_entry__sendsingle(uint32_t channel, const ifit_sync_ntvifit_intf_entry *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ntvifit_intf_entry__sendbatch(uint32_t channel, const ifit_sync_ntvifit_intf_entry *recs, uint32_t n, uint32_t destination);
int ifit_sync_ntvifit_intf_entry__sendmsg(uint32_t channel, const ifit_sync_ntvifit_intf_entry *recs, uint32_t n);
int ifit_sync_ntvifit_intf_entry__sendtomsg(uint32_t channel, const ifit_sync_ntvifit_intf_entry *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ntvifit_intf_color_clear_entry: Fixed form of 48 bytes, compact form of 26 to 46. Owns no memory. */
typedef struct ifit_sync_ntvifit_intf_color_clear_entry {
    uint32_t f0;
    uint32_t f1;
    uint8_t f2;
    uint8_t f3;
    uint16_t f4;
    uint32_t f5;
    uint32_t f6;
} ifit_sync_ntvifit_intf_color_clear_entry;

#define IFIT_SYNC_NTVIFIT_INTF_COLOR_CLEAR_ENTRY_ID UINT32_C(0x275d9b9c)

uint32_t ifit_sync_ntvifit_intf_color_clear_entry__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ntvifit_intf_color_clear_entry *rec);
void ifit_sync_ntvifit_intf_color_clear_entry_free__unpacked(ifit_sync_ntvifit_intf_color_clear_entry *rec);
int ifit_sync_ntvifit_intf_color_clear_entry__pack(const ifit_sync_ntvifit_intf_color_clear_entry *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ntvifit_intf_color_clear_entry__sendsingle(uint32_t channel, const ifit_sync_ntvifit_intf_color_clear_entry *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ntvifit_intf_color_clear_entry__sendbatch(uint32_t channel, const ifit_sync_ntvifit_intf_color_clear_entry *recs, uint32_t n, uint32_t destination);
int ifit_sync_ntvifit_intf_color_clear_entry__sendmsg(uint32_t channel, const ifit_sync_ntvifit_intf_color_clear_entry *recs, uint32_t n);
int ifit_sync_ntvifit_intf_color_clear_entry__sendtomsg(uint32_t channel, const ifit_sync_ntvifit_intf_color_clear_entry *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ntvifit_intf_auto_detect_entry: Fixed form of 96 bytes, compact form of 48 to 92. Owns no memory. */
typedef struct ifit_sync_ntvifit_intf_auto_detect_entry {
    uint32_t f0;
    uint32_t f1;
    uint8_t f2;
    uint8_t f3;
    uint8_t f4;
    uint8_t f5;
    uint8_t f6;
    uint8_t f7;
    uint16_t f8;
    uint32_t f9;
    uint32_t f10;
    uint32_t f11;
    uint32_t f12;
    uint8_t f13;
    uint8_t f14;
    uint16_t f15;
    uint32_t f16;
    uint32_t f17;
} ifit_sync_ntvifit_intf_auto_detect_entry;

#define IFIT_SYNC_NTVIFIT_INTF_AUTO_DETECT_ENTRY_ID UINT32_C(0x6d5839aa)

uint32_t ifit_sync_ntvifit_intf_auto_detect_entry__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ntvifit_intf_auto_detect_entry *rec);
void ifit_sync_ntvifit_intf_auto_detect_entry_free__unpacked(ifit_sync_ntvifit_intf_auto_detect_entry *rec);
int ifit_sync_ntvifit_intf_auto_detect_entry__pack(const ifit_sync_ntvifit_intf_auto_detect_entry *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ntvifit_intf_auto_detect_entry__sendsingle(uint32_t channel, const ifit_sync_ntvifit_intf_auto_detect_entry *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ntvifit_intf_auto_detect_entry__sendbatch(uint32_t channel, const ifit_sync_ntvifit_intf_auto_detect_entry *recs, uint32_t n, uint32_t destination);
int ifit_sync_ntvifit_intf_auto_detect_entry__sendmsg(uint32_t channel, const ifit_sync_ntvifit_intf_auto_detect_entry *recs, uint32_t n);
int ifit_sync_ntvifit_intf_auto_detect_entry__sendtomsg(uint32_t channel, const ifit_sync_ntvifit_intf_auto_detect_entry *recs, uint32_t n, uint32_t destination);

/* ifit_sync_global_mesh: Repeats ifit_global_mesh only in slots 0 to 14; slot 15 is u8 here and u16 there. Fixed form
 * of 96 bytes, compact form of 50 to 94. Owns no memory. */
typedef struct ifit_sync_global_mesh {
    uint32_t f0;
    uint8_t f1;
    uint8_t f2;
    uint16_t f3;
    uint32_t f4;
    uint32_t f5;
    uint32_t f6;
    uint32_t f7;
    uint32_t f8;
    uint8_t f9;
    uint8_t f10;
    uint8_t f11;
    uint8_t f12;
    uint8_t f13;
    uint8_t f14;
    uint8_t f15;
    uint8_t f16;
    uint32_t f17;
    uint32_t f18;
} ifit_sync_global_mesh;

#define IFIT_SYNC_GLOBAL_MESH_ID UINT32_C(0xb06f011c)

uint32_t ifit_sync_global_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_global_mesh *rec);
void ifit_sync_global_mesh_free__unpacked(ifit_sync_global_mesh *rec);
int ifit_sync_global_mesh__pack(const ifit_sync_global_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_global_mesh__sendsingle(uint32_t channel, const ifit_sync_global_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_global_mesh__sendbatch(uint32_t channel, const ifit_sync_global_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_global_mesh__sendmsg(uint32_t channel, const ifit_sync_global_mesh *recs, uint32_t n);
int ifit_sync_global_mesh__sendtomsg(uint32_t channel, const ifit_sync_global_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_global_mesh_update: Update of ifit_sync_global_mesh: a list of whole records. Compact form of 16 bytes and
 * more. Owns its elements. */
typedef struct ifit_sync_global_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_global_mesh *items; } f1;
} ifit_sync_global_mesh_update;

#define IFIT_SYNC_GLOBAL_MESH_UPDATE_ID UINT32_C(0x488ece98)

uint32_t ifit_sync_global_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_global_mesh_update *rec);
void ifit_sync_global_mesh_update_free__unpacked(ifit_sync_global_mesh_update *rec);
int ifit_sync_global_mesh_update__pack(const ifit_sync_global_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_global_mesh_update__sendsingle(uint32_t channel, const ifit_sync_global_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_global_mesh_update__sendbatch(uint32_t channel, const ifit_sync_global_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_global_mesh_update__sendmsg(uint32_t channel, const ifit_sync_global_mesh_update *recs, uint32_t n);
int ifit_sync_global_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_global_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_global_mesh_delete: Delete of ifit_sync_global_mesh: a list of whole records. Compact form of 16 bytes and
 * more. Owns its elements. */
typedef struct ifit_sync_global_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_global_mesh *items; } f1;
} ifit_sync_global_mesh_delete;

#define IFIT_SYNC_GLOBAL_MESH_DELETE_ID UINT32_C(0xd0660e3e)

uint32_t ifit_sync_global_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_global_mesh_delete *rec);
void ifit_sync_global_mesh_delete_free__unpacked(ifit_sync_global_mesh_delete *rec);
int ifit_sync_global_mesh_delete__pack(const ifit_sync_global_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_global_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_global_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_global_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_global_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_global_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_global_mesh_delete *recs, uint32_t n);
int ifit_sync_global_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_global_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_mcp_mesh: The row of ifit_mcp_mesh, then 5 more slots, the sync tail. Fixed form of 64 bytes, compact form
 * of 34 to 62. Owns no memory. */
typedef struct ifit_sync_mcp_mesh {
    uint32_t f0;
    uint8_t f1;
    uint8_t f2;
    uint16_t f3;
    uint32_t f4;
    uint32_t f5;
    uint8_t f6;
    uint8_t f7;
    uint16_t f8;
    uint32_t f9;
    uint32_t f10;
} ifit_sync_mcp_mesh;

#define IFIT_SYNC_MCP_MESH_ID UINT32_C(0x9dd1a383)

uint32_t ifit_sync_mcp_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_mcp_mesh *rec);
void ifit_sync_mcp_mesh_free__unpacked(ifit_sync_mcp_mesh *rec);
int ifit_sync_mcp_mesh__pack(const ifit_sync_mcp_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_mcp_mesh__sendsingle(uint32_t channel, const ifit_sync_mcp_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_mcp_mesh__sendbatch(uint32_t channel, const ifit_sync_mcp_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_mcp_mesh__sendmsg(uint32_t channel, const ifit_sync_mcp_mesh *recs, uint32_t n);
int ifit_sync_mcp_mesh__sendtomsg(uint32_t channel, const ifit_sync_mcp_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_mcp_mesh_update: Update of ifit_sync_mcp_mesh: a list of whole records. Compact form of 16 bytes and more.
 * Owns its elements. */
typedef struct ifit_sync_mcp_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_mcp_mesh *items; } f1;
} ifit_sync_mcp_mesh_update;

#define IFIT_SYNC_MCP_MESH_UPDATE_ID UINT32_C(0x09eda835)

uint32_t ifit_sync_mcp_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_mcp_mesh_update *rec);
void ifit_sync_mcp_mesh_update_free__unpacked(ifit_sync_mcp_mesh_update *rec);
int ifit_sync_mcp_mesh_update__pack(const ifit_sync_mcp_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_mcp_mesh_update__sendsingle(uint32_t channel, const ifit_sync_mcp_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_mcp_mesh_update__sendbatch(uint32_t channel, const ifit_sync_mcp_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_mcp_mesh_update__sendmsg(uint32_t channel, const ifit_sync_mcp_mesh_update *recs, uint32_t n);
int ifit_sync_mcp_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_mcp_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_mcp_mesh_delete: Delete of ifit_sync_mcp_mesh: a list of whole records. Compact form of 16 bytes and more.
 * Owns its elements. */
typedef struct ifit_sync_mcp_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_mcp_mesh *items; } f1;
} ifit_sync_mcp_mesh_delete;

#define IFIT_SYNC_MCP_MESH_DELETE_ID UINT32_C(0x66c5861f)

uint32_t ifit_sync_mcp_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_mcp_mesh_delete *rec);
void ifit_sync_mcp_mesh_delete_free__unpacked(ifit_sync_mcp_mesh_delete *rec);
int ifit_sync_mcp_mesh_delete__pack(const ifit_sync_mcp_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_mcp_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_mcp_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_mcp_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_mcp_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_mcp_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_mcp_mesh_delete *recs, uint32_t n);
int ifit_sync_mcp_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_mcp_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_base_mesh: The row of ifit_flow_base_mesh, then 5 more slots, the sync tail. Fixed form of 112 bytes,
 * compact form of 46 to 106. Owns no memory. */
typedef struct ifit_sync_flow_base_mesh {
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
    uint8_t f12;
    uint8_t f13;
    uint16_t f14;
    uint32_t f15;
    uint32_t f16;
} ifit_sync_flow_base_mesh;

#define IFIT_SYNC_FLOW_BASE_MESH_ID UINT32_C(0x726ebbf7)

uint32_t ifit_sync_flow_base_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_base_mesh *rec);
void ifit_sync_flow_base_mesh_free__unpacked(ifit_sync_flow_base_mesh *rec);
int ifit_sync_flow_base_mesh__pack(const ifit_sync_flow_base_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_base_mesh__sendsingle(uint32_t channel, const ifit_sync_flow_base_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_base_mesh__sendbatch(uint32_t channel, const ifit_sync_flow_base_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_base_mesh__sendmsg(uint32_t channel, const ifit_sync_flow_base_mesh *recs, uint32_t n);
int ifit_sync_flow_base_mesh__sendtomsg(uint32_t channel, const ifit_sync_flow_base_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_base_mesh_update: Update of ifit_sync_flow_base_mesh: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_sync_flow_base_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_flow_base_mesh *items; } f1;
} ifit_sync_flow_base_mesh_update;

#define IFIT_SYNC_FLOW_BASE_MESH_UPDATE_ID UINT32_C(0x9f3ed399)

uint32_t ifit_sync_flow_base_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_base_mesh_update *rec);
void ifit_sync_flow_base_mesh_update_free__unpacked(ifit_sync_flow_base_mesh_update *rec);
int ifit_sync_flow_base_mesh_update__pack(const ifit_sync_flow_base_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_base_mesh_update__sendsingle(uint32_t channel, const ifit_sync_flow_base_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_base_mesh_update__sendbatch(uint32_t channel, const ifit_sync_flow_base_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_base_mesh_update__sendmsg(uint32_t channel, const ifit_sync_flow_base_mesh_update *recs, uint32_t n);
int ifit_sync_flow_base_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_flow_base_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_base_mesh_delete: Delete of ifit_sync_flow_base_mesh: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_sync_flow_base_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_flow_base_mesh *items; } f1;
} ifit_sync_flow_base_mesh_delete;

#define IFIT_SYNC_FLOW_BASE_MESH_DELETE_ID UINT32_C(0x8a6b9763)

uint32_t ifit_sync_flow_base_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_base_mesh_delete *rec);
void ifit_sync_flow_base_mesh_delete_free__unpacked(ifit_sync_flow_base_mesh_delete *rec);
int ifit_sync_flow_base_mesh_delete__pack(const ifit_sync_flow_base_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_base_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_flow_base_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_base_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_flow_base_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_base_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_flow_base_mesh_delete *recs, uint32_t n);
int ifit_sync_flow_base_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_flow_base_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_srv6policy_mesh: The row of ifit_flow_srv6policy_mesh, then 5 more slots, the sync tail. Fixed form of
 * 184 bytes, compact form of 124 to 180. Owns no memory. */
typedef struct ifit_sync_flow_srv6policy_mesh {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    kesto_u64 f3;
    uint8_t f4;
    uint8_t f5;
    uint16_t f6;
    uint32_t f7;
    uint32_t f8;
    uint32_t f9;
    uint32_t f10[4];
    uint32_t f11[4];
    uint32_t f12[4];
    uint32_t f13;
    uint32_t f14;
    uint8_t f15;
    uint8_t f16;
    uint16_t f17;
    uint32_t f18;
    uint32_t f19;
} ifit_sync_flow_srv6policy_mesh;

#define IFIT_SYNC_FLOW_SRV6POLICY_MESH_ID UINT32_C(0x3d6772c9)

uint32_t ifit_sync_flow_srv6policy_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_srv6policy_mesh *rec);
void ifit_sync_flow_srv6policy_mesh_free__unpacked(ifit_sync_flow_srv6policy_mesh *rec);
int ifit_sync_flow_srv6policy_mesh__pack(const ifit_sync_flow_srv6policy_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_srv6policy_mesh__sendsingle(uint32_t channel, const ifit_sync_flow_srv6policy_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_srv6policy_mesh__sendbatch(uint32_t channel, const ifit_sync_flow_srv6policy_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_srv6policy_mesh__sendmsg(uint32_t channel, const ifit_sync_flow_srv6policy_mesh *recs, uint32_t n);
int ifit_sync_flow_srv6policy_mesh__sendtomsg(uint32_t channel, const ifit_sync_flow_srv6policy_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_srv6policy_mesh_update: Update of ifit_sync_flow_srv6policy_mesh: a list of whole records. Compact
 * form of 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_flow_srv6policy_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_flow_srv6policy_mesh *items; } f1;
} ifit_sync_flow_srv6policy_mesh_update;

#define IFIT_SYNC_FLOW_SRV6POLICY_MESH_UPDATE_ID UINT32_C(0xb4836e7b)

uint32_t ifit_sync_flow_srv6policy_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_srv6policy_mesh_update *rec);
void ifit_sync_flow_srv6policy_mesh_update_free__unpacked(ifit_sync_flow_srv6policy_mesh_update *rec);
int ifit_sync_flow_srv6policy_mesh_update__pack(const ifit_sync_flow_srv6policy_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_srv6policy_mesh_update__sendsingle(uint32_t channel, const ifit_sync_flow_srv6policy_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_srv6policy_mesh_update__sendbatch(uint32_t channel, const ifit_sync_flow_srv6policy_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_srv6policy_mesh_update__sendmsg(uint32_t channel, const ifit_sync_flow_srv6policy_mesh_update *recs, uint32_t n);
int ifit_sync_flow_srv6policy_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_flow_srv6policy_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_srv6policy_mesh_delete: Delete of ifit_sync_flow_srv6policy_mesh: a list of whole records. Compact
 * form of 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_flow_srv6policy_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_flow_srv6policy_mesh *items; } f1;
} ifit_sync_flow_srv6policy_mesh_delete;

#define IFIT_SYNC_FLOW_SRV6POLICY_MESH_DELETE_ID UINT32_C(0x4574ea5d)

uint32_t ifit_sync_flow_srv6policy_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_srv6policy_mesh_delete *rec);
void ifit_sync_flow_srv6policy_mesh_delete_free__unpacked(ifit_sync_flow_srv6policy_mesh_delete *rec);
int ifit_sync_flow_srv6policy_mesh_delete__pack(const ifit_sync_flow_srv6policy_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_srv6policy_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_flow_srv6policy_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_srv6policy_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_flow_srv6policy_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_srv6policy_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_flow_srv6policy_mesh_delete *recs, uint32_t n);
int ifit_sync_flow_srv6policy_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_flow_srv6policy_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_dyn_flow_mesh: The row of ifit_dyn_flow_mesh, then 5 more slots, the sync tail. Fixed form of 152 bytes,
 * compact form of 84 to 152. Owns no memory. */
typedef struct ifit_sync_dyn_flow_mesh {
    uint32_t f0;
    uint32_t f1;
    kesto_u64 f2;
    uint32_t f3;
    uint32_t f4;
    uint8_t f5;
    uint8_t f6;
    uint16_t f7;
    uint32_t f8;
    uint32_t f9;
    uint32_t f10;
    uint32_t f11;
    uint32_t f12;
    uint8_t f13;
    uint8_t f14;
    uint8_t f15;
    uint8_t f16;
    uint32_t f17;
    uint32_t f18[4];
    uint8_t f19;
    uint8_t f20;
    uint16_t f21;
    uint32_t f22;
    uint32_t f23;
} ifit_sync_dyn_flow_mesh;

#define IFIT_SYNC_DYN_FLOW_MESH_ID UINT32_C(0xe92083d5)

uint32_t ifit_sync_dyn_flow_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_dyn_flow_mesh *rec);
void ifit_sync_dyn_flow_mesh_free__unpacked(ifit_sync_dyn_flow_mesh *rec);
int ifit_sync_dyn_flow_mesh__pack(const ifit_sync_dyn_flow_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_dyn_flow_mesh__sendsingle(uint32_t channel, const ifit_sync_dyn_flow_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_dyn_flow_mesh__sendbatch(uint32_t channel, const ifit_sync_dyn_flow_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_dyn_flow_mesh__sendmsg(uint32_t channel, const ifit_sync_dyn_flow_mesh *recs, uint32_t n);
int ifit_sync_dyn_flow_mesh__sendtomsg(uint32_t channel, const ifit_sync_dyn_flow_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_dyn_flow_mesh_update: Update of ifit_sync_dyn_flow_mesh: a list of whole records. Compact form of 16 bytes
 * and more. Owns its elements. */
typedef struct ifit_sync_dyn_flow_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_dyn_flow_mesh *items; } f1;
} ifit_sync_dyn_flow_mesh_update;

#define IFIT_SYNC_DYN_FLOW_MESH_UPDATE_ID UINT32_C(0x784cab47)

uint32_t ifit_sync_dyn_flow_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_dyn_flow_mesh_update *rec);
void ifit_sync_dyn_flow_mesh_update_free__unpacked(ifit_sync_dyn_flow_mesh_update *rec);
int ifit_sync_dyn_flow_mesh_update__pack(const ifit_sync_dyn_flow_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_dyn_flow_mesh_update__sendsingle(uint32_t channel, const ifit_sync_dyn_flow_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_dyn_flow_mesh_update__sendbatch(uint32_t channel, const ifit_sync_dyn_flow_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_dyn_flow_mesh_update__sendmsg(uint32_t channel, const ifit_sync_dyn_flow_mesh_update *recs, uint32_t n);
int ifit_sync_dyn_flow_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_dyn_flow_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_dyn_flow_mesh_delete: Delete of ifit_sync_dyn_flow_mesh: a list of whole records. Compact form of 16 bytes
 * and more. Owns its elements. */
typedef struct ifit_sync_dyn_flow_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_dyn_flow_mesh *items; } f1;
} ifit_sync_dyn_flow_mesh_delete;

#define IFIT_SYNC_DYN_FLOW_MESH_DELETE_ID UINT32_C(0xf2b08a69)

uint32_t ifit_sync_dyn_flow_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_dyn_flow_mesh_delete *rec);
void ifit_sync_dyn_flow_mesh_delete_free__unpacked(ifit_sync_dyn_flow_mesh_delete *rec);
int ifit_sync_dyn_flow_mesh_delete__pack(const ifit_sync_dyn_flow_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_dyn_flow_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_dyn_flow_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_dyn_flow_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_dyn_flow_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_dyn_flow_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_dyn_flow_mesh_delete *recs, uint32_t n);
int ifit_sync_dyn_flow_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_dyn_flow_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_loss_mesh: The row of ifit_flow_loss_mesh, then 5 more slots, the sync tail. Fixed form of 64 bytes,
 * compact form of 32 to 64. Owns no memory. */
typedef struct ifit_sync_flow_loss_mesh {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint32_t f4;
    uint8_t f5;
    uint8_t f6;
    uint16_t f7;
    uint32_t f8;
    uint32_t f9;
} ifit_sync_flow_loss_mesh;

#define IFIT_SYNC_FLOW_LOSS_MESH_ID UINT32_C(0x74770165)

uint32_t ifit_sync_flow_loss_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_loss_mesh *rec);
void ifit_sync_flow_loss_mesh_free__unpacked(ifit_sync_flow_loss_mesh *rec);
int ifit_sync_flow_loss_mesh__pack(const ifit_sync_flow_loss_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_loss_mesh__sendsingle(uint32_t channel, const ifit_sync_flow_loss_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_loss_mesh__sendbatch(uint32_t channel, const ifit_sync_flow_loss_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_loss_mesh__sendmsg(uint32_t channel, const ifit_sync_flow_loss_mesh *recs, uint32_t n);
int ifit_sync_flow_loss_mesh__sendtomsg(uint32_t channel, const ifit_sync_flow_loss_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_loss_mesh_update: Update of ifit_sync_flow_loss_mesh: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_sync_flow_loss_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_flow_loss_mesh *items; } f1;
} ifit_sync_flow_loss_mesh_update;

#define IFIT_SYNC_FLOW_LOSS_MESH_UPDATE_ID UINT32_C(0xe9470c37)

uint32_t ifit_sync_flow_loss_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_loss_mesh_update *rec);
void ifit_sync_flow_loss_mesh_update_free__unpacked(ifit_sync_flow_loss_mesh_update *rec);
int ifit_sync_flow_loss_mesh_update__pack(const ifit_sync_flow_loss_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_loss_mesh_update__sendsingle(uint32_t channel, const ifit_sync_flow_loss_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_loss_mesh_update__sendbatch(uint32_t channel, const ifit_sync_flow_loss_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_loss_mesh_update__sendmsg(uint32_t channel, const ifit_sync_flow_loss_mesh_update *recs, uint32_t n);
int ifit_sync_flow_loss_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_flow_loss_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_loss_mesh_delete: Delete of ifit_sync_flow_loss_mesh: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_sync_flow_loss_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_flow_loss_mesh *items; } f1;
} ifit_sync_flow_loss_mesh_delete;

#define IFIT_SYNC_FLOW_LOSS_MESH_DELETE_ID UINT32_C(0xe3bb1e99)

uint32_t ifit_sync_flow_loss_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_loss_mesh_delete *rec);
void ifit_sync_flow_loss_mesh_delete_free__unpacked(ifit_sync_flow_loss_mesh_delete *rec);
int ifit_sync_flow_loss_mesh_delete__pack(const ifit_sync_flow_loss_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_loss_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_flow_loss_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_loss_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_flow_loss_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_loss_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_flow_loss_mesh_delete *recs, uint32_t n);
int ifit_sync_flow_loss_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_flow_loss_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_delay_mesh: The row of ifit_flow_delay_mesh, then 5 more slots, the sync tail. Fixed form of 64 bytes,
 * compact form of 32 to 64. Owns no memory. */
typedef struct ifit_sync_flow_delay_mesh {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint32_t f4;
    uint8_t f5;
    uint8_t f6;
    uint16_t f7;
    uint32_t f8;
    uint32_t f9;
} ifit_sync_flow_delay_mesh;

#define IFIT_SYNC_FLOW_DELAY_MESH_ID UINT32_C(0xe0f0b865)

uint32_t ifit_sync_flow_delay_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_delay_mesh *rec);
void ifit_sync_flow_delay_mesh_free__unpacked(ifit_sync_flow_delay_mesh *rec);
int ifit_sync_flow_delay_mesh__pack(const ifit_sync_flow_delay_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_delay_mesh__sendsingle(uint32_t channel, const ifit_sync_flow_delay_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_delay_mesh__sendbatch(uint32_t channel, const ifit_sync_flow_delay_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_delay_mesh__sendmsg(uint32_t channel, const ifit_sync_flow_delay_mesh *recs, uint32_t n);
int ifit_sync_flow_delay_mesh__sendtomsg(uint32_t channel, const ifit_sync_flow_delay_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_delay_mesh_update: Update of ifit_sync_flow_delay_mesh: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_sync_flow_delay_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_flow_delay_mesh *items; } f1;
} ifit_sync_flow_delay_mesh_update;

#define IFIT_SYNC_FLOW_DELAY_MESH_UPDATE_ID UINT32_C(0xc5617937)

uint32_t ifit_sync_flow_delay_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_delay_mesh_update *rec);
void ifit_sync_flow_delay_mesh_update_free__unpacked(ifit_sync_flow_delay_mesh_update *rec);
int ifit_sync_flow_delay_mesh_update__pack(const ifit_sync_flow_delay_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_delay_mesh_update__sendsingle(uint32_t channel, const ifit_sync_flow_delay_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_delay_mesh_update__sendbatch(uint32_t channel, const ifit_sync_flow_delay_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_delay_mesh_update__sendmsg(uint32_t channel, const ifit_sync_flow_delay_mesh_update *recs, uint32_t n);
int ifit_sync_flow_delay_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_flow_delay_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_delay_mesh_delete: Delete of ifit_sync_flow_delay_mesh: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_sync_flow_delay_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_flow_delay_mesh *items; } f1;
} ifit_sync_flow_delay_mesh_delete;

#define IFIT_SYNC_FLOW_DELAY_MESH_DELETE_ID UINT32_C(0xbfd58b99)

uint32_t ifit_sync_flow_delay_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_delay_mesh_delete *rec);
void ifit_sync_flow_delay_mesh_delete_free__unpacked(ifit_sync_flow_delay_mesh_delete *rec);
int ifit_sync_flow_delay_mesh_delete__pack(const ifit_sync_flow_delay_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_delay_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_flow_delay_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_delay_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_flow_delay_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_delay_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_flow_delay_mesh_delete *recs, uint32_t n);
int ifit_sync_flow_delay_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_flow_delay_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_test_type_mesh: The row of ifit_test_type_mesh, then 5 more slots, the sync tail. Fixed form of 72 bytes,
 * compact form of 36 to 68. Owns no memory. */
typedef struct ifit_sync_test_type_mesh {
    uint32_t f0;
    uint32_t f1;
    uint8_t f2;
    uint8_t f3;
    uint16_t f4;
    uint32_t f5;
    uint32_t f6;
    uint8_t f7;
    uint8_t f8;
    uint16_t f9;
    uint32_t f10;
    uint32_t f11;
} ifit_sync_test_type_mesh;

#define IFIT_SYNC_TEST_TYPE_MESH_ID UINT32_C(0x7bb84f34)

uint32_t ifit_sync_test_type_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_test_type_mesh *rec);
void ifit_sync_test_type_mesh_free__unpacked(ifit_sync_test_type_mesh *rec);
int ifit_sync_test_type_mesh__pack(const ifit_sync_test_type_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_test_type_mesh__sendsingle(uint32_t channel, const ifit_sync_test_type_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_test_type_mesh__sendbatch(uint32_t channel, const ifit_sync_test_type_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_test_type_mesh__sendmsg(uint32_t channel, const ifit_sync_test_type_mesh *recs, uint32_t n);
int ifit_sync_test_type_mesh__sendtomsg(uint32_t channel, const ifit_sync_test_type_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_test_type_mesh_update: Update of ifit_sync_test_type_mesh: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_sync_test_type_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_test_type_mesh *items; } f1;
} ifit_sync_test_type_mesh_update;

#define IFIT_SYNC_TEST_TYPE_MESH_UPDATE_ID UINT32_C(0xa84bf810)

uint32_t ifit_sync_test_type_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_test_type_mesh_update *rec);
void ifit_sync_test_type_mesh_update_free__unpacked(ifit_sync_test_type_mesh_update *rec);
int ifit_sync_test_type_mesh_update__pack(const ifit_sync_test_type_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_test_type_mesh_update__sendsingle(uint32_t channel, const ifit_sync_test_type_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_test_type_mesh_update__sendbatch(uint32_t channel, const ifit_sync_test_type_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_test_type_mesh_update__sendmsg(uint32_t channel, const ifit_sync_test_type_mesh_update *recs, uint32_t n);
int ifit_sync_test_type_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_test_type_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_test_type_mesh_delete: Delete of ifit_sync_test_type_mesh: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_sync_test_type_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_test_type_mesh *items; } f1;
} ifit_sync_test_type_mesh_delete;

#define IFIT_SYNC_TEST_TYPE_MESH_DELETE_ID UINT32_C(0xbf606da6)

uint32_t ifit_sync_test_type_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_test_type_mesh_delete *rec);
void ifit_sync_test_type_mesh_delete_free__unpacked(ifit_sync_test_type_mesh_delete *rec);
int ifit_sync_test_type_mesh_delete__pack(const ifit_sync_test_type_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_test_type_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_test_type_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_test_type_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_test_type_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_test_type_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_test_type_mesh_delete *recs, uint32_t n);
int ifit_sync_test_type_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_test_type_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_tuplev4_mesh: The row of ifit_flow_tuplev4_mesh, then 5 more slots, the sync tail. Fixed form of 120
 * bytes, compact form of 56 to 120. Owns no memory. */
typedef struct ifit_sync_flow_tuplev4_mesh {
    uint32_t f0;
    uint32_t f1;
    kesto_u64 f2;
    uint32_t f3;
    uint32_t f4;
    uint32_t f5;
    uint32_t f6;
    uint16_t f7;
    uint16_t f8;
    uint16_t f9;
    uint16_t f10;
    uint8_t f11;
    uint8_t f12;
    uint8_t f13;
    uint8_t f14;
    uint32_t f15;
    uint32_t f16;
    uint8_t f17;
    uint8_t f18;
    uint16_t f19;
    uint32_t f20;
    uint32_t f21;
} ifit_sync_flow_tuplev4_mesh;

#define IFIT_SYNC_FLOW_TUPLEV4_MESH_ID UINT32_C(0x94710c10)

uint32_t ifit_sync_flow_tuplev4_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_tuplev4_mesh *rec);
void ifit_sync_flow_tuplev4_mesh_free__unpacked(ifit_sync_flow_tuplev4_mesh *rec);
int ifit_sync_flow_tuplev4_mesh__pack(const ifit_sync_flow_tuplev4_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_tuplev4_mesh__sendsingle(uint32_t channel, const ifit_sync_flow_tuplev4_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_tuplev4_mesh__sendbatch(uint32_t channel, const ifit_sync_flow_tuplev4_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_tuplev4_mesh__sendmsg(uint32_t channel, const ifit_sync_flow_tuplev4_mesh *recs, uint32_t n);
int ifit_sync_flow_tuplev4_mesh__sendtomsg(uint32_t channel, const ifit_sync_flow_tuplev4_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_tuplev4_mesh_update: Update of ifit_sync_flow_tuplev4_mesh: a list of whole records. Compact form of
 * 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_flow_tuplev4_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_flow_tuplev4_mesh *items; } f1;
} ifit_sync_flow_tuplev4_mesh_update;

#define IFIT_SYNC_FLOW_TUPLEV4_MESH_UPDATE_ID UINT32_C(0x3e56564c)

uint32_t ifit_sync_flow_tuplev4_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_tuplev4_mesh_update *rec);
void ifit_sync_flow_tuplev4_mesh_update_free__unpacked(ifit_sync_flow_tuplev4_mesh_update *rec);
int ifit_sync_flow_tuplev4_mesh_update__pack(const ifit_sync_flow_tuplev4_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_tuplev4_mesh_update__sendsingle(uint32_t channel, const ifit_sync_flow_tuplev4_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_tuplev4_mesh_update__sendbatch(uint32_t channel, const ifit_sync_flow_tuplev4_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_tuplev4_mesh_update__sendmsg(uint32_t channel, const ifit_sync_flow_tuplev4_mesh_update *recs, uint32_t n);
int ifit_sync_flow_tuplev4_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_flow_tuplev4_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_tuplev4_mesh_delete: Delete of ifit_sync_flow_tuplev4_mesh: a list of whole records. Compact form of
 * 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_flow_tuplev4_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_flow_tuplev4_mesh *items; } f1;
} ifit_sync_flow_tuplev4_mesh_delete;

#define IFIT_SYNC_FLOW_TUPLEV4_MESH_DELETE_ID UINT32_C(0x6b245432)

uint32_t ifit_sync_flow_tuplev4_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_tuplev4_mesh_delete *rec);
void ifit_sync_flow_tuplev4_mesh_delete_free__unpacked(ifit_sync_flow_tuplev4_mesh_delete *rec);
int ifit_sync_flow_tuplev4_mesh_delete__pack(const ifit_sync_flow_tuplev4_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_tuplev4_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_flow_tuplev4_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_tuplev4_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_flow_tuplev4_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_tuplev4_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_flow_tuplev4_mesh_delete *recs, uint32_t n);
int ifit_sync_flow_tuplev4_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_flow_tuplev4_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_tuplev6_mesh: The row of ifit_flow_tuplev6_mesh, then 5 more slots, the sync tail. Fixed form of 152
 * bytes, compact form of 100 to 148. Owns no memory. */
typedef struct ifit_sync_flow_tuplev6_mesh {
    uint32_t f0;
    uint32_t f1;
    kesto_u64 f2;
    uint32_t f3[4];
    uint32_t f4[4];
    uint8_t f5;
    uint8_t f6;
    uint16_t f7;
    uint16_t f8;
    uint16_t f9;
    uint16_t f10;
    uint8_t f11;
    uint8_t f12;
    uint32_t f13;
    uint32_t f14;
    uint8_t f15;
    uint8_t f16;
    uint16_t f17;
    uint32_t f18;
    uint32_t f19;
} ifit_sync_flow_tuplev6_mesh;

#define IFIT_SYNC_FLOW_TUPLEV6_MESH_ID UINT32_C(0x92114a9a)

uint32_t ifit_sync_flow_tuplev6_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_tuplev6_mesh *rec);
void ifit_sync_flow_tuplev6_mesh_free__unpacked(ifit_sync_flow_tuplev6_mesh *rec);
int ifit_sync_flow_tuplev6_mesh__pack(const ifit_sync_flow_tuplev6_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_tuplev6_mesh__sendsingle(uint32_t channel, const ifit_sync_flow_tuplev6_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_tuplev6_mesh__sendbatch(uint32_t channel, const ifit_sync_flow_tuplev6_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_tuplev6_mesh__sendmsg(uint32_t channel, const ifit_sync_flow_tuplev6_mesh *recs, uint32_t n);
int ifit_sync_flow_tuplev6_mesh__sendtomsg(uint32_t channel, const ifit_sync_flow_tuplev6_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_tuplev6_mesh_update: Update of ifit_sync_flow_tuplev6_mesh: a list of whole records. Compact form of
 * 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_flow_tuplev6_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_flow_tuplev6_mesh *items; } f1;
} ifit_sync_flow_tuplev6_mesh_update;

#define IFIT_SYNC_FLOW_TUPLEV6_MESH_UPDATE_ID UINT32_C(0xca85b34e)

uint32_t ifit_sync_flow_tuplev6_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_tuplev6_mesh_update *rec);
void ifit_sync_flow_tuplev6_mesh_update_free__unpacked(ifit_sync_flow_tuplev6_mesh_update *rec);
int ifit_sync_flow_tuplev6_mesh_update__pack(const ifit_sync_flow_tuplev6_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_tuplev6_mesh_update__sendsingle(uint32_t channel, const ifit_sync_flow_tuplev6_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_tuplev6_mesh_update__sendbatch(uint32_t channel, const ifit_sync_flow_tuplev6_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_tuplev6_mesh_update__sendmsg(uint32_t channel, const ifit_sync_flow_tuplev6_mesh_update *recs, uint32_t n);
int ifit_sync_flow_tuplev6_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_flow_tuplev6_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_tuplev6_mesh_delete: Delete of ifit_sync_flow_tuplev6_mesh: a list of whole records. Compact form of
 * 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_flow_tuplev6_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_flow_tuplev6_mesh *items; } f1;
} ifit_sync_flow_tuplev6_mesh_delete;

#define IFIT_SYNC_FLOW_TUPLEV6_MESH_DELETE_ID UINT32_C(0xee98687c)

uint32_t ifit_sync_flow_tuplev6_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_tuplev6_mesh_delete *rec);
void ifit_sync_flow_tuplev6_mesh_delete_free__unpacked(ifit_sync_flow_tuplev6_mesh_delete *rec);
int ifit_sync_flow_tuplev6_mesh_delete__pack(const ifit_sync_flow_tuplev6_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_tuplev6_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_flow_tuplev6_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_tuplev6_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_flow_tuplev6_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_tuplev6_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_flow_tuplev6_mesh_delete *recs, uint32_t n);
int ifit_sync_flow_tuplev6_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_flow_tuplev6_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_vpn_mesh: The row of ifit_flow_vpn_mesh, then 5 more slots, the sync tail. Fixed form of 96 bytes,
 * compact form of 42 to 90. Owns no memory. */
typedef struct ifit_sync_flow_vpn_mesh {
    uint32_t f0;
    uint32_t f1;
    kesto_u64 f2;
    uint32_t f3;
    uint32_t f4;
    uint8_t f5;
    uint8_t f6;
    uint16_t f7;
    uint32_t f8;
    uint32_t f9;
    uint8_t f10;
    uint8_t f11;
    uint16_t f12;
    uint32_t f13;
    uint32_t f14;
} ifit_sync_flow_vpn_mesh;

#define IFIT_SYNC_FLOW_VPN_MESH_ID UINT32_C(0x361c8a8c)

uint32_t ifit_sync_flow_vpn_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_vpn_mesh *rec);
void ifit_sync_flow_vpn_mesh_free__unpacked(ifit_sync_flow_vpn_mesh *rec);
int ifit_sync_flow_vpn_mesh__pack(const ifit_sync_flow_vpn_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_vpn_mesh__sendsingle(uint32_t channel, const ifit_sync_flow_vpn_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_vpn_mesh__sendbatch(uint32_t channel, const ifit_sync_flow_vpn_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_vpn_mesh__sendmsg(uint32_t channel, const ifit_sync_flow_vpn_mesh *recs, uint32_t n);
int ifit_sync_flow_vpn_mesh__sendtomsg(uint32_t channel, const ifit_sync_flow_vpn_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_vpn_mesh_update: Update of ifit_sync_flow_vpn_mesh: a list of whole records. Compact form of 16 bytes
 * and more. Owns its elements. */
typedef struct ifit_sync_flow_vpn_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_flow_vpn_mesh *items; } f1;
} ifit_sync_flow_vpn_mesh_update;

#define IFIT_SYNC_FLOW_VPN_MESH_UPDATE_ID UINT32_C(0x43ca68a8)

uint32_t ifit_sync_flow_vpn_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_vpn_mesh_update *rec);
void ifit_sync_flow_vpn_mesh_update_free__unpacked(ifit_sync_flow_vpn_mesh_update *rec);
int ifit_sync_flow_vpn_mesh_update__pack(const ifit_sync_flow_vpn_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_vpn_mesh_update__sendsingle(uint32_t channel, const ifit_sync_flow_vpn_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_vpn_mesh_update__sendbatch(uint32_t channel, const ifit_sync_flow_vpn_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_vpn_mesh_update__sendmsg(uint32_t channel, const ifit_sync_flow_vpn_mesh_update *recs, uint32_t n);
int ifit_sync_flow_vpn_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_flow_vpn_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_flow_vpn_mesh_delete: Delete of ifit_sync_flow_vpn_mesh: a list of whole records. Compact form of 16 bytes
 * and more. Owns its elements. */
typedef struct ifit_sync_flow_vpn_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_flow_vpn_mesh *items; } f1;
} ifit_sync_flow_vpn_mesh_delete;

#define IFIT_SYNC_FLOW_VPN_MESH_DELETE_ID UINT32_C(0x30b647ce)

uint32_t ifit_sync_flow_vpn_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_flow_vpn_mesh_delete *rec);
void ifit_sync_flow_vpn_mesh_delete_free__unpacked(ifit_sync_flow_vpn_mesh_delete *rec);
int ifit_sync_flow_vpn_mesh_delete__pack(const ifit_sync_flow_vpn_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_flow_vpn_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_flow_vpn_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_flow_vpn_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_flow_vpn_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_flow_vpn_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_flow_vpn_mesh_delete *recs, uint32_t n);
int ifit_sync_flow_vpn_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_flow_vpn_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_lrn_vpn_mesh: The row of ifit_lrn_vpn_mesh, then 5 more slots, the sync tail. Fixed form of 88 bytes,
 * compact form of 46 to 86. Owns no memory. */
typedef struct ifit_sync_lrn_vpn_mesh {
    uint32_t f0;
    uint32_t f1;
    uint16_t f2;
    uint8_t f3;
    uint8_t f4;
    uint8_t f5;
    uint8_t f6;
    uint8_t f7;
    uint8_t f8;
    uint32_t f9;
    uint32_t f10;
    uint32_t f11;
    uint8_t f12;
    uint8_t f13;
    uint16_t f14;
    uint32_t f15;
    uint32_t f16;
} ifit_sync_lrn_vpn_mesh;

#define IFIT_SYNC_LRN_VPN_MESH_ID UINT32_C(0x7120bcb6)

uint32_t ifit_sync_lrn_vpn_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_lrn_vpn_mesh *rec);
void ifit_sync_lrn_vpn_mesh_free__unpacked(ifit_sync_lrn_vpn_mesh *rec);
int ifit_sync_lrn_vpn_mesh__pack(const ifit_sync_lrn_vpn_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_lrn_vpn_mesh__sendsingle(uint32_t channel, const ifit_sync_lrn_vpn_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_lrn_vpn_mesh__sendbatch(uint32_t channel, const ifit_sync_lrn_vpn_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_lrn_vpn_mesh__sendmsg(uint32_t channel, const ifit_sync_lrn_vpn_mesh *recs, uint32_t n);
int ifit_sync_lrn_vpn_mesh__sendtomsg(uint32_t channel, const ifit_sync_lrn_vpn_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_lrn_vpn_mesh_update: Update of ifit_sync_lrn_vpn_mesh: a list of whole records. Compact form of 16 bytes
 * and more. Owns its elements. */
typedef struct ifit_sync_lrn_vpn_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_lrn_vpn_mesh *items; } f1;
} ifit_sync_lrn_vpn_mesh_update;

#define IFIT_SYNC_LRN_VPN_MESH_UPDATE_ID UINT32_C(0x05faf4ca)

uint32_t ifit_sync_lrn_vpn_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_lrn_vpn_mesh_update *rec);
void ifit_sync_lrn_vpn_mesh_update_free__unpacked(ifit_sync_lrn_vpn_mesh_update *rec);
int ifit_sync_lrn_vpn_mesh_update__pack(const ifit_sync_lrn_vpn_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_lrn_vpn_mesh_update__sendsingle(uint32_t channel, const ifit_sync_lrn_vpn_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_lrn_vpn_mesh_update__sendbatch(uint32_t channel, const ifit_sync_lrn_vpn_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_lrn_vpn_mesh_update__sendmsg(uint32_t channel, const ifit_sync_lrn_vpn_mesh_update *recs, uint32_t n);
int ifit_sync_lrn_vpn_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_lrn_vpn_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_lrn_vpn_mesh_delete: Delete of ifit_sync_lrn_vpn_mesh: a list of whole records. Compact form of 16 bytes
 * and more. Owns its elements. */
typedef struct ifit_sync_lrn_vpn_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_lrn_vpn_mesh *items; } f1;
} ifit_sync_lrn_vpn_mesh_delete;

#define IFIT_SYNC_LRN_VPN_MESH_DELETE_ID UINT32_C(0xaf2064f8)

uint32_t ifit_sync_lrn_vpn_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_lrn_vpn_mesh_delete *rec);
void ifit_sync_lrn_vpn_mesh_delete_free__unpacked(ifit_sync_lrn_vpn_mesh_delete *rec);
int ifit_sync_lrn_vpn_mesh_delete__pack(const ifit_sync_lrn_vpn_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_lrn_vpn_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_lrn_vpn_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_lrn_vpn_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_lrn_vpn_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_lrn_vpn_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_lrn_vpn_mesh_delete *recs, uint32_t n);
int ifit_sync_lrn_vpn_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_lrn_vpn_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_lrn_intf_mesh: The row of ifit_lrn_intf_mesh, then 5 more slots, the sync tail. Fixed form of 72 bytes,
 * compact form of 34 to 70. Owns no memory. */
typedef struct ifit_sync_lrn_intf_mesh {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint32_t f4;
    uint32_t f5;
    uint8_t f6;
    uint8_t f7;
    uint16_t f8;
    uint32_t f9;
    uint32_t f10;
} ifit_sync_lrn_intf_mesh;

#define IFIT_SYNC_LRN_INTF_MESH_ID UINT32_C(0xea1c065d)

uint32_t ifit_sync_lrn_intf_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_lrn_intf_mesh *rec);
void ifit_sync_lrn_intf_mesh_free__unpacked(ifit_sync_lrn_intf_mesh *rec);
int ifit_sync_lrn_intf_mesh__pack(const ifit_sync_lrn_intf_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_lrn_intf_mesh__sendsingle(uint32_t channel, const ifit_sync_lrn_intf_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_lrn_intf_mesh__sendbatch(uint32_t channel, const ifit_sync_lrn_intf_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_lrn_intf_mesh__sendmsg(uint32_t channel, const ifit_sync_lrn_intf_mesh *recs, uint32_t n);
int ifit_sync_lrn_intf_mesh__sendtomsg(uint32_t channel, const ifit_sync_lrn_intf_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_lrn_intf_mesh_update: Update of ifit_sync_lrn_intf_mesh: a list of whole records. Compact form of 16 bytes
 * and more. Owns its elements. */
typedef struct ifit_sync_lrn_intf_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_lrn_intf_mesh *items; } f1;
} ifit_sync_lrn_intf_mesh_update;

#define IFIT_SYNC_LRN_INTF_MESH_UPDATE_ID UINT32_C(0xc4d56a4f)

uint32_t ifit_sync_lrn_intf_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_lrn_intf_mesh_update *rec);
void ifit_sync_lrn_intf_mesh_update_free__unpacked(ifit_sync_lrn_intf_mesh_update *rec);
int ifit_sync_lrn_intf_mesh_update__pack(const ifit_sync_lrn_intf_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_lrn_intf_mesh_update__sendsingle(uint32_t channel, const ifit_sync_lrn_intf_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_lrn_intf_mesh_update__sendbatch(uint32_t channel, const ifit_sync_lrn_intf_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_lrn_intf_mesh_update__sendmsg(uint32_t channel, const ifit_sync_lrn_intf_mesh_update *recs, uint32_t n);
int ifit_sync_lrn_intf_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_lrn_intf_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_lrn_intf_mesh_delete: Delete of ifit_sync_lrn_intf_mesh: a list of whole records. Compact form of 16 bytes
 * and more. Owns its elements. */
typedef struct ifit_sync_lrn_intf_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_lrn_intf_mesh *items; } f1;
} ifit_sync_lrn_intf_mesh_delete;

#define IFIT_SYNC_LRN_INTF_MESH_DELETE_ID UINT32_C(0x1c3e16e1)

uint32_t ifit_sync_lrn_intf_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_lrn_intf_mesh_delete *rec);
void ifit_sync_lrn_intf_mesh_delete_free__unpacked(ifit_sync_lrn_intf_mesh_delete *rec);
int ifit_sync_lrn_intf_mesh_delete__pack(const ifit_sync_lrn_intf_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_lrn_intf_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_lrn_intf_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_lrn_intf_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_lrn_intf_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_lrn_intf_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_lrn_intf_mesh_delete *recs, uint32_t n);
int ifit_sync_lrn_intf_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_lrn_intf_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_color_intf_mesh: The row of ifit_color_intf_mesh, then 5 more slots, the sync tail. Fixed form of 56 bytes,
 * compact form of 32 to 56. Owns no memory. */
typedef struct ifit_sync_color_intf_mesh {
    uint32_t f0;
    uint32_t f1;
    uint8_t f2;
    uint8_t f3;
    uint16_t f4;
    uint8_t f5;
    uint8_t f6;
    uint16_t f7;
    uint32_t f8;
    uint32_t f9;
} ifit_sync_color_intf_mesh;

#define IFIT_SYNC_COLOR_INTF_MESH_ID UINT32_C(0x293a80c2)

uint32_t ifit_sync_color_intf_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_color_intf_mesh *rec);
void ifit_sync_color_intf_mesh_free__unpacked(ifit_sync_color_intf_mesh *rec);
int ifit_sync_color_intf_mesh__pack(const ifit_sync_color_intf_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_color_intf_mesh__sendsingle(uint32_t channel, const ifit_sync_color_intf_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_color_intf_mesh__sendbatch(uint32_t channel, const ifit_sync_color_intf_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_color_intf_mesh__sendmsg(uint32_t channel, const ifit_sync_color_intf_mesh *recs, uint32_t n);
int ifit_sync_color_intf_mesh__sendtomsg(uint32_t channel, const ifit_sync_color_intf_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_color_intf_mesh_update: Update of ifit_sync_color_intf_mesh: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_sync_color_intf_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_color_intf_mesh *items; } f1;
} ifit_sync_color_intf_mesh_update;

#define IFIT_SYNC_COLOR_INTF_MESH_UPDATE_ID UINT32_C(0x08963ff6)

uint32_t ifit_sync_color_intf_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_color_intf_mesh_update *rec);
void ifit_sync_color_intf_mesh_update_free__unpacked(ifit_sync_color_intf_mesh_update *rec);
int ifit_sync_color_intf_mesh_update__pack(const ifit_sync_color_intf_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_color_intf_mesh_update__sendsingle(uint32_t channel, const ifit_sync_color_intf_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_color_intf_mesh_update__sendbatch(uint32_t channel, const ifit_sync_color_intf_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_color_intf_mesh_update__sendmsg(uint32_t channel, const ifit_sync_color_intf_mesh_update *recs, uint32_t n);
int ifit_sync_color_intf_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_color_intf_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_color_intf_mesh_delete: Delete of ifit_sync_color_intf_mesh: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_sync_color_intf_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_color_intf_mesh *items; } f1;
} ifit_sync_color_intf_mesh_delete;

#define IFIT_SYNC_COLOR_INTF_MESH_DELETE_ID UINT32_C(0xd87f39d4)

uint32_t ifit_sync_color_intf_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_color_intf_mesh_delete *rec);
void ifit_sync_color_intf_mesh_delete_free__unpacked(ifit_sync_color_intf_mesh_delete *rec);
int ifit_sync_color_intf_mesh_delete__pack(const ifit_sync_color_intf_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_color_intf_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_color_intf_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_color_intf_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_color_intf_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_color_intf_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_color_intf_mesh_delete *recs, uint32_t n);
int ifit_sync_color_intf_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_color_intf_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_rule_update: Update of ifit_sync_ifit_rule: one whole record. Fixed form of 200 bytes, compact form of
 * 132 to 194. Owns no memory. */
typedef struct ifit_sync_ifit_rule_update {
    uint16_t f0;
    ifit_sync_ifit_rule f1;
} ifit_sync_ifit_rule_update;

#define IFIT_SYNC_IFIT_RULE_UPDATE_ID UINT32_C(0x5200a9f4)

uint32_t ifit_sync_ifit_rule_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_rule_update *rec);
void ifit_sync_ifit_rule_update_free__unpacked(ifit_sync_ifit_rule_update *rec);
int ifit_sync_ifit_rule_update__pack(const ifit_sync_ifit_rule_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_rule_update__sendsingle(uint32_t channel, const ifit_sync_ifit_rule_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_rule_update__sendbatch(uint32_t channel, const ifit_sync_ifit_rule_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_rule_update__sendmsg(uint32_t channel, const ifit_sync_ifit_rule_update *recs, uint32_t n);
int ifit_sync_ifit_rule_update__sendtomsg(uint32_t channel, const ifit_sync_ifit_rule_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_rule_delete: Delete of ifit_sync_ifit_rule: one whole record. Fixed form of 200 bytes, compact form of
 * 132 to 194. Owns no memory. */
typedef struct ifit_sync_ifit_rule_delete {
    uint16_t f0;
    ifit_sync_ifit_rule f1;
} ifit_sync_ifit_rule_delete;

#define IFIT_SYNC_IFIT_RULE_DELETE_ID UINT32_C(0x91b359ca)

uint32_t ifit_sync_ifit_rule_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_rule_delete *rec);
void ifit_sync_ifit_rule_delete_free__unpacked(ifit_sync_ifit_rule_delete *rec);
int ifit_sync_ifit_rule_delete__pack(const ifit_sync_ifit_rule_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_rule_delete__sendsingle(uint32_t channel, const ifit_sync_ifit_rule_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_rule_delete__sendbatch(uint32_t channel, const ifit_sync_ifit_rule_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_rule_delete__sendmsg(uint32_t channel, const ifit_sync_ifit_rule_delete *recs, uint32_t n);
int ifit_sync_ifit_rule_delete__sendtomsg(uint32_t channel, const ifit_sync_ifit_rule_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_native_ip_learn_update: Update of ifit_sync_ifit_native_ip_learn: one whole record. Fixed form of 104
 * bytes, compact form of 58 to 92. Owns no memory. */
typedef struct ifit_sync_ifit_native_ip_learn_update {
    uint16_t f0;
    ifit_sync_ifit_native_ip_learn f1;
} ifit_sync_ifit_native_ip_learn_update;

#define IFIT_SYNC_IFIT_NATIVE_IP_LEARN_UPDATE_ID UINT32_C(0xafb9fafe)

uint32_t ifit_sync_ifit_native_ip_learn_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_native_ip_learn_update *rec);
void ifit_sync_ifit_native_ip_learn_update_free__unpacked(ifit_sync_ifit_native_ip_learn_update *rec);
int ifit_sync_ifit_native_ip_learn_update__pack(const ifit_sync_ifit_native_ip_learn_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_native_ip_learn_update__sendsingle(uint32_t channel, const ifit_sync_ifit_native_ip_learn_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_native_ip_learn_update__sendbatch(uint32_t channel, const ifit_sync_ifit_native_ip_learn_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_native_ip_learn_update__sendmsg(uint32_t channel, const ifit_sync_ifit_native_ip_learn_update *recs, uint32_t n);
int ifit_sync_ifit_native_ip_learn_update__sendtomsg(uint32_t channel, const ifit_sync_ifit_native_ip_learn_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_native_ip_learn_delete: Delete of ifit_sync_ifit_native_ip_learn: one whole record. Fixed form of 104
 * bytes, compact form of 58 to 92. Owns no memory. */
typedef struct ifit_sync_ifit_native_ip_learn_delete {
    uint16_t f0;
    ifit_sync_ifit_native_ip_learn f1;
} ifit_sync_ifit_native_ip_learn_delete;

#define IFIT_SYNC_IFIT_NATIVE_IP_LEARN_DELETE_ID UINT32_C(0x2c1e89ac)

uint32_t ifit_sync_ifit_native_ip_learn_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_native_ip_learn_delete *rec);
void ifit_sync_ifit_native_ip_learn_delete_free__unpacked(ifit_sync_ifit_native_ip_learn_delete *rec);
int ifit_sync_ifit_native_ip_learn_delete__pack(const ifit_sync_ifit_native_ip_learn_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_native_ip_learn_delete__sendsingle(uint32_t channel, const ifit_sync_ifit_native_ip_learn_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_native_ip_learn_delete__sendbatch(uint32_t channel, const ifit_sync_ifit_native_ip_learn_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_native_ip_learn_delete__sendmsg(uint32_t channel, const ifit_sync_ifit_native_ip_learn_delete *recs, uint32_t n);
int ifit_sync_ifit_native_ip_learn_delete__sendtomsg(uint32_t channel, const ifit_sync_ifit_native_ip_learn_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_native_ip_intf_update: Update of ifit_sync_ifit_native_ip_intf: one whole record. Fixed form of 104
 * bytes, compact form of 56 to 94. Owns no memory. */
typedef struct ifit_sync_ifit_native_ip_intf_update {
    uint16_t f0;
    ifit_sync_ifit_native_ip_intf f1;
} ifit_sync_ifit_native_ip_intf_update;

#define IFIT_SYNC_IFIT_NATIVE_IP_INTF_UPDATE_ID UINT32_C(0xfecbcd73)

uint32_t ifit_sync_ifit_native_ip_intf_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_native_ip_intf_update *rec);
void ifit_sync_ifit_native_ip_intf_update_free__unpacked(ifit_sync_ifit_native_ip_intf_update *rec);
int ifit_sync_ifit_native_ip_intf_update__pack(const ifit_sync_ifit_native_ip_intf_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_native_ip_intf_update__sendsingle(uint32_t channel, const ifit_sync_ifit_native_ip_intf_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_update__sendbatch(uint32_t channel, const ifit_sync_ifit_native_ip_intf_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_update__sendmsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_update *recs, uint32_t n);
int ifit_sync_ifit_native_ip_intf_update__sendtomsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_native_ip_intf_delete: Delete of ifit_sync_ifit_native_ip_intf: one whole record. Fixed form of 104
 * bytes, compact form of 56 to 94. Owns no memory. */
typedef struct ifit_sync_ifit_native_ip_intf_delete {
    uint16_t f0;
    ifit_sync_ifit_native_ip_intf f1;
} ifit_sync_ifit_native_ip_intf_delete;

#define IFIT_SYNC_IFIT_NATIVE_IP_INTF_DELETE_ID UINT32_C(0x73d4d765)

uint32_t ifit_sync_ifit_native_ip_intf_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_native_ip_intf_delete *rec);
void ifit_sync_ifit_native_ip_intf_delete_free__unpacked(ifit_sync_ifit_native_ip_intf_delete *rec);
int ifit_sync_ifit_native_ip_intf_delete__pack(const ifit_sync_ifit_native_ip_intf_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_native_ip_intf_delete__sendsingle(uint32_t channel, const ifit_sync_ifit_native_ip_intf_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_delete__sendbatch(uint32_t channel, const ifit_sync_ifit_native_ip_intf_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_delete__sendmsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_delete *recs, uint32_t n);
int ifit_sync_ifit_native_ip_intf_delete__sendtomsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_native_ip_intf_color_clear_update: Update of ifit_sync_ifit_native_ip_intf_color_clear: one whole
 * record. Fixed form of 96 bytes, compact form of 52 to 85. Owns no memory. */
typedef struct ifit_sync_ifit_native_ip_intf_color_clear_update {
    uint16_t f0;
    ifit_sync_ifit_native_ip_intf_color_clear f1;
} ifit_sync_ifit_native_ip_intf_color_clear_update;

#define IFIT_SYNC_IFIT_NATIVE_IP_INTF_COLOR_CLEAR_UPDATE_ID UINT32_C(0x6e42ac09)

uint32_t ifit_sync_ifit_native_ip_intf_color_clear_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_native_ip_intf_color_clear_update *rec);
void ifit_sync_ifit_native_ip_intf_color_clear_update_free__unpacked(ifit_sync_ifit_native_ip_intf_color_clear_update *rec);
int ifit_sync_ifit_native_ip_intf_color_clear_update__pack(const ifit_sync_ifit_native_ip_intf_color_clear_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_native_ip_intf_color_clear_update__sendsingle(uint32_t channel, const ifit_sync_ifit_native_ip_intf_color_clear_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_color_clear_update__sendbatch(uint32_t channel, const ifit_sync_ifit_native_ip_intf_color_clear_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_color_clear_update__sendmsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_color_clear_update *recs, uint32_t n);
int ifit_sync_ifit_native_ip_intf_color_clear_update__sendtomsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_color_clear_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_native_ip_intf_color_clear_delete: Delete of ifit_sync_ifit_native_ip_intf_color_clear: one whole
 * record. Fixed form of 96 bytes, compact form of 52 to 85. Owns no memory. */
typedef struct ifit_sync_ifit_native_ip_intf_color_clear_delete {
    uint16_t f0;
    ifit_sync_ifit_native_ip_intf_color_clear f1;
} ifit_sync_ifit_native_ip_intf_color_clear_delete;

#define IFIT_SYNC_IFIT_NATIVE_IP_INTF_COLOR_CLEAR_DELETE_ID UINT32_C(0x1aaabbd3)

uint32_t ifit_sync_ifit_native_ip_intf_color_clear_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_native_ip_intf_color_clear_delete *rec);
void ifit_sync_ifit_native_ip_intf_color_clear_delete_free__unpacked(ifit_sync_ifit_native_ip_intf_color_clear_delete *rec);
int ifit_sync_ifit_native_ip_intf_color_clear_delete__pack(const ifit_sync_ifit_native_ip_intf_color_clear_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_native_ip_intf_color_clear_delete__sendsingle(uint32_t channel, const ifit_sync_ifit_native_ip_intf_color_clear_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_color_clear_delete__sendbatch(uint32_t channel, const ifit_sync_ifit_native_ip_intf_color_clear_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_color_clear_delete__sendmsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_color_clear_delete *recs, uint32_t n);
int ifit_sync_ifit_native_ip_intf_color_clear_delete__sendtomsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_color_clear_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_native_ip_intf_auto_detect_update: Update of ifit_sync_ifit_native_ip_intf_auto_detect: one whole
 * record. Fixed form of 96 bytes, compact form of 54 to 88. Owns no memory. */
typedef struct ifit_sync_ifit_native_ip_intf_auto_detect_update {
    uint16_t f0;
    ifit_sync_ifit_native_ip_intf_auto_detect f1;
} ifit_sync_ifit_native_ip_intf_auto_detect_update;

#define IFIT_SYNC_IFIT_NATIVE_IP_INTF_AUTO_DETECT_UPDATE_ID UINT32_C(0x01d20c4b)

uint32_t ifit_sync_ifit_native_ip_intf_auto_detect_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_native_ip_intf_auto_detect_update *rec);
void ifit_sync_ifit_native_ip_intf_auto_detect_update_free__unpacked(ifit_sync_ifit_native_ip_intf_auto_detect_update *rec);
int ifit_sync_ifit_native_ip_intf_auto_detect_update__pack(const ifit_sync_ifit_native_ip_intf_auto_detect_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_native_ip_intf_auto_detect_update__sendsingle(uint32_t channel, const ifit_sync_ifit_native_ip_intf_auto_detect_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_auto_detect_update__sendbatch(uint32_t channel, const ifit_sync_ifit_native_ip_intf_auto_detect_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_auto_detect_update__sendmsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_auto_detect_update *recs, uint32_t n);
int ifit_sync_ifit_native_ip_intf_auto_detect_update__sendtomsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_auto_detect_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_native_ip_intf_auto_detect_delete: Delete of ifit_sync_ifit_native_ip_intf_auto_detect: one whole
 * record. Fixed form of 96 bytes, compact form of 54 to 88. Owns no memory. */
typedef struct ifit_sync_ifit_native_ip_intf_auto_detect_delete {
    uint16_t f0;
    ifit_sync_ifit_native_ip_intf_auto_detect f1;
} ifit_sync_ifit_native_ip_intf_auto_detect_delete;

#define IFIT_SYNC_IFIT_NATIVE_IP_INTF_AUTO_DETECT_DELETE_ID UINT32_C(0xf9fb7cad)

uint32_t ifit_sync_ifit_native_ip_intf_auto_detect_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_native_ip_intf_auto_detect_delete *rec);
void ifit_sync_ifit_native_ip_intf_auto_detect_delete_free__unpacked(ifit_sync_ifit_native_ip_intf_auto_detect_delete *rec);
int ifit_sync_ifit_native_ip_intf_auto_detect_delete__pack(const ifit_sync_ifit_native_ip_intf_auto_detect_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_native_ip_intf_auto_detect_delete__sendsingle(uint32_t channel, const ifit_sync_ifit_native_ip_intf_auto_detect_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_auto_detect_delete__sendbatch(uint32_t channel, const ifit_sync_ifit_native_ip_intf_auto_detect_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_native_ip_intf_auto_detect_delete__sendmsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_auto_detect_delete *recs, uint32_t n);
int ifit_sync_ifit_native_ip_intf_auto_detect_delete__sendtomsg(uint32_t channel, const ifit_sync_ifit_native_ip_intf_auto_detect_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_flowinfo_entry: Fixed form of 248 bytes, compact form of 174 to 246. Owns no memory. */
typedef struct ifit_sync_ifit_flowinfo_entry {
    uint32_t f0;
    kesto_u64 f1;
    uint32_t f2;
    uint8_t f3;
    uint8_t f4;
    uint8_t f5;
    uint8_t f6;
    uint32_t f7;
    uint32_t f8;
    uint8_t f9;
    uint8_t f10;
    uint16_t f11;
    uint8_t f12;
    uint8_t f13;
    uint8_t f14;
    uint8_t f15;
    uint32_t f16;
    uint32_t f17;
    uint32_t f18;
    uint32_t f19;
    uint32_t f20[4];
    uint32_t f21[4];
    uint32_t f22[4];
    uint32_t f23;
    uint32_t f24[4];
    uint8_t f25;
    uint8_t f26;
    uint16_t f27;
    uint8_t f28;
    uint8_t f29;
    uint16_t f30;
    uint32_t f31;
    uint32_t f32;
} ifit_sync_ifit_flowinfo_entry;

#define IFIT_SYNC_IFIT_FLOWINFO_ENTRY_ID UINT32_C(0xac969c61)

uint32_t ifit_sync_ifit_flowinfo_entry__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_flowinfo_entry *rec);
void ifit_sync_ifit_flowinfo_entry_free__unpacked(ifit_sync_ifit_flowinfo_entry *rec);
int ifit_sync_ifit_flowinfo_entry__pack(const ifit_sync_ifit_flowinfo_entry *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_flowinfo_entry__sendsingle(uint32_t channel, const ifit_sync_ifit_flowinfo_entry *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_flowinfo_entry__sendbatch(uint32_t channel, const ifit_sync_ifit_flowinfo_entry *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_flowinfo_entry__sendmsg(uint32_t channel, const ifit_sync_ifit_flowinfo_entry *recs, uint32_t n);
int ifit_sync_ifit_flowinfo_entry__sendtomsg(uint32_t channel, const ifit_sync_ifit_flowinfo_entry *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_flowinfo_entry_key: Key of ifit_sync_ifit_flowinfo_entry: its slots 0 to 3. Fixed form of 40 bytes,
 * compact form of 20 to 37. Owns no memory. */
typedef struct ifit_sync_ifit_flowinfo_entry_key {
    uint32_t f0;
    kesto_u64 f1;
    uint32_t f2;
    uint8_t f3;
} ifit_sync_ifit_flowinfo_entry_key;

#define IFIT_SYNC_IFIT_FLOWINFO_ENTRY_KEY_ID UINT32_C(0xeb9b7651)

uint32_t ifit_sync_ifit_flowinfo_entry_key__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_flowinfo_entry_key *rec);
void ifit_sync_ifit_flowinfo_entry_key_free__unpacked(ifit_sync_ifit_flowinfo_entry_key *rec);
int ifit_sync_ifit_flowinfo_entry_key__pack(const ifit_sync_ifit_flowinfo_entry_key *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_flowinfo_entry_key__sendsingle(uint32_t channel, const ifit_sync_ifit_flowinfo_entry_key *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_flowinfo_entry_key__sendbatch(uint32_t channel, const ifit_sync_ifit_flowinfo_entry_key *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_flowinfo_entry_key__sendmsg(uint32_t channel, const ifit_sync_ifit_flowinfo_entry_key *recs, uint32_t n);
int ifit_sync_ifit_flowinfo_entry_key__sendtomsg(uint32_t channel, const ifit_sync_ifit_flowinfo_entry_key *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_flowinfo_entry_update: Update of ifit_sync_ifit_flowinfo_entry: a list of whole records. Compact form
 * of 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_ifit_flowinfo_entry_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_ifit_flowinfo_entry *items; } f1;
} ifit_sync_ifit_flowinfo_entry_update;

#define IFIT_SYNC_IFIT_FLOWINFO_ENTRY_UPDATE_ID UINT32_C(0xbac0a573)

uint32_t ifit_sync_ifit_flowinfo_entry_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_flowinfo_entry_update *rec);
void ifit_sync_ifit_flowinfo_entry_update_free__unpacked(ifit_sync_ifit_flowinfo_entry_update *rec);
int ifit_sync_ifit_flowinfo_entry_update__pack(const ifit_sync_ifit_flowinfo_entry_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_flowinfo_entry_update__sendsingle(uint32_t channel, const ifit_sync_ifit_flowinfo_entry_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_flowinfo_entry_update__sendbatch(uint32_t channel, const ifit_sync_ifit_flowinfo_entry_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_flowinfo_entry_update__sendmsg(uint32_t channel, const ifit_sync_ifit_flowinfo_entry_update *recs, uint32_t n);
int ifit_sync_ifit_flowinfo_entry_update__sendtomsg(uint32_t channel, const ifit_sync_ifit_flowinfo_entry_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_flowinfo_entry_delete: Delete of ifit_sync_ifit_flowinfo_entry: a list of whole records. Compact form
 * of 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_ifit_flowinfo_entry_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_ifit_flowinfo_entry *items; } f1;
} ifit_sync_ifit_flowinfo_entry_delete;

#define IFIT_SYNC_IFIT_FLOWINFO_ENTRY_DELETE_ID UINT32_C(0x2fc9af65)

uint32_t ifit_sync_ifit_flowinfo_entry_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_flowinfo_entry_delete *rec);
void ifit_sync_ifit_flowinfo_entry_delete_free__unpacked(ifit_sync_ifit_flowinfo_entry_delete *rec);
int ifit_sync_ifit_flowinfo_entry_delete__pack(const ifit_sync_ifit_flowinfo_entry_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_flowinfo_entry_delete__sendsingle(uint32_t channel, const ifit_sync_ifit_flowinfo_entry_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_flowinfo_entry_delete__sendbatch(uint32_t channel, const ifit_sync_ifit_flowinfo_entry_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_flowinfo_entry_delete__sendmsg(uint32_t channel, const ifit_sync_ifit_flowinfo_entry_delete *recs, uint32_t n);
int ifit_sync_ifit_flowinfo_entry_delete__sendtomsg(uint32_t channel, const ifit_sync_ifit_flowinfo_entry_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_session_entry: Fixed form of 384 bytes, compact form of 262 to 378. Owns no memory. */
typedef struct ifit_sync_ifit_session_entry {
    uint32_t f0;
    kesto_u64 f1;
    uint32_t f2;
    uint8_t f3;
    uint8_t f4;
    uint8_t f5;
    uint8_t f6;
    kesto_u64 f7;
    kesto_u64 f8;
    uint32_t f9;
    kesto_u64 f10;
    kesto_u64 f11;
    uint32_t f12;
    uint32_t f13;
    kesto_u64 f14;
    uint8_t f15;
    uint8_t f16;
    uint8_t f17;
    uint8_t f18;
    uint16_t f19;
    uint8_t f20;
    uint8_t f21;
    uint32_t f22;
    uint32_t f23;
    uint8_t f24;
    uint8_t f25;
    uint16_t f26;
    uint16_t f27;
    uint8_t f28;
    uint8_t f29;
    uint32_t f30[4];
    uint32_t f31[4];
    uint8_t f32;
    uint8_t f33;
    uint8_t f34;
    uint8_t f35;
    uint16_t f36;
    uint16_t f37;
    uint8_t f38[32];
    uint8_t f39[64];
    uint8_t f40;
    uint8_t f41;
    uint16_t f42;
    uint32_t f43;
    uint32_t f44;
} ifit_sync_ifit_session_entry;

#define IFIT_SYNC_IFIT_SESSION_ENTRY_ID UINT32_C(0x56158c01)

uint32_t ifit_sync_ifit_session_entry__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_session_entry *rec);
void ifit_sync_ifit_session_entry_free__unpacked(ifit_sync_ifit_session_entry *rec);
int ifit_sync_ifit_session_entry__pack(const ifit_sync_ifit_session_entry *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_session_entry__sendsingle(uint32_t channel, const ifit_sync_ifit_session_entry *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_session_entry__sendbatch(uint32_t channel, const ifit_sync_ifit_session_entry *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_session_entry__sendmsg(uint32_t channel, const ifit_sync_ifit_session_entry *recs, uint32_t n);
int ifit_sync_ifit_session_entry__sendtomsg(uint32_t channel, const ifit_sync_ifit_session_entry *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_session_entry_key: Key of ifit_sync_ifit_session_entry: its slots 0 to 3. Fixed form of 40 bytes,
 * compact form of 20 to 37. Owns no memory. */
typedef struct ifit_sync_ifit_session_entry_key {
    uint32_t f0;
    kesto_u64 f1;
    uint32_t f2;
    uint8_t f3;
} ifit_sync_ifit_session_entry_key;

#define IFIT_SYNC_IFIT_SESSION_ENTRY_KEY_ID UINT32_C(0x4339cf31)

uint32_t ifit_sync_ifit_session_entry_key__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_session_entry_key *rec);
void ifit_sync_ifit_session_entry_key_free__unpacked(ifit_sync_ifit_session_entry_key *rec);
int ifit_sync_ifit_session_entry_key__pack(const ifit_sync_ifit_session_entry_key *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_session_entry_key__sendsingle(uint32_t channel, const ifit_sync_ifit_session_entry_key *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_session_entry_key__sendbatch(uint32_t channel, const ifit_sync_ifit_session_entry_key *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_session_entry_key__sendmsg(uint32_t channel, const ifit_sync_ifit_session_entry_key *recs, uint32_t n);
int ifit_sync_ifit_session_entry_key__sendtomsg(uint32_t channel, const ifit_sync_ifit_session_entry_key *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_session_entry_update: Update of ifit_sync_ifit_session_entry: a list of whole records. Compact form of
 * 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_ifit_session_entry_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_ifit_session_entry *items; } f1;
} ifit_sync_ifit_session_entry_update;

#define IFIT_SYNC_IFIT_SESSION_ENTRY_UPDATE_ID UINT32_C(0xb1d520d3)

uint32_t ifit_sync_ifit_session_entry_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_session_entry_update *rec);
void ifit_sync_ifit_session_entry_update_free__unpacked(ifit_sync_ifit_session_entry_update *rec);
int ifit_sync_ifit_session_entry_update__pack(const ifit_sync_ifit_session_entry_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_session_entry_update__sendsingle(uint32_t channel, const ifit_sync_ifit_session_entry_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_session_entry_update__sendbatch(uint32_t channel, const ifit_sync_ifit_session_entry_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_session_entry_update__sendmsg(uint32_t channel, const ifit_sync_ifit_session_entry_update *recs, uint32_t n);
int ifit_sync_ifit_session_entry_update__sendtomsg(uint32_t channel, const ifit_sync_ifit_session_entry_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_session_entry_delete: Delete of ifit_sync_ifit_session_entry: a list of whole records. Compact form of
 * 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_ifit_session_entry_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_ifit_session_entry *items; } f1;
} ifit_sync_ifit_session_entry_delete;

#define IFIT_SYNC_IFIT_SESSION_ENTRY_DELETE_ID UINT32_C(0x2463c1c5)

uint32_t ifit_sync_ifit_session_entry_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_session_entry_delete *rec);
void ifit_sync_ifit_session_entry_delete_free__unpacked(ifit_sync_ifit_session_entry_delete *rec);
int ifit_sync_ifit_session_entry_delete__pack(const ifit_sync_ifit_session_entry_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_session_entry_delete__sendsingle(uint32_t channel, const ifit_sync_ifit_session_entry_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_session_entry_delete__sendbatch(uint32_t channel, const ifit_sync_ifit_session_entry_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_session_entry_delete__sendmsg(uint32_t channel, const ifit_sync_ifit_session_entry_delete *recs, uint32_t n);
int ifit_sync_ifit_session_entry_delete__sendtomsg(uint32_t channel, const ifit_sync_ifit_session_entry_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_flowage_entry: Fixed form of 88 bytes, compact form of 42 to 82. Owns no memory. */
typedef struct ifit_sync_ifit_flowage_entry {
    uint32_t f0;
    kesto_u64 f1;
    uint32_t f2;
    uint8_t f3;
    uint8_t f4;
    uint16_t f5;
    uint32_t f6;
    uint16_t f7;
    uint8_t f8;
    uint8_t f9;
    uint8_t f10;
    uint8_t f11;
    uint16_t f12;
    uint32_t f13;
    uint32_t f14;
} ifit_sync_ifit_flowage_entry;

#define IFIT_SYNC_IFIT_FLOWAGE_ENTRY_ID UINT32_C(0xbe13f906)

uint32_t ifit_sync_ifit_flowage_entry__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_flowage_entry *rec);
void ifit_sync_ifit_flowage_entry_free__unpacked(ifit_sync_ifit_flowage_entry *rec);
int ifit_sync_ifit_flowage_entry__pack(const ifit_sync_ifit_flowage_entry *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_flowage_entry__sendsingle(uint32_t channel, const ifit_sync_ifit_flowage_entry *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_flowage_entry__sendbatch(uint32_t channel, const ifit_sync_ifit_flowage_entry *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_flowage_entry__sendmsg(uint32_t channel, const ifit_sync_ifit_flowage_entry *recs, uint32_t n);
int ifit_sync_ifit_flowage_entry__sendtomsg(uint32_t channel, const ifit_sync_ifit_flowage_entry *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_flowage_entry_key: Key of ifit_sync_ifit_flowage_entry: its slots 0 to 3. Fixed form of 40 bytes,
 * compact form of 20 to 37. Owns no memory. */
typedef struct ifit_sync_ifit_flowage_entry_key {
    uint32_t f0;
    kesto_u64 f1;
    uint32_t f2;
    uint8_t f3;
} ifit_sync_ifit_flowage_entry_key;

#define IFIT_SYNC_IFIT_FLOWAGE_ENTRY_KEY_ID UINT32_C(0xbc5288a2)

uint32_t ifit_sync_ifit_flowage_entry_key__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_flowage_entry_key *rec);
void ifit_sync_ifit_flowage_entry_key_free__unpacked(ifit_sync_ifit_flowage_entry_key *rec);
int ifit_sync_ifit_flowage_entry_key__pack(const ifit_sync_ifit_flowage_entry_key *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_flowage_entry_key__sendsingle(uint32_t channel, const ifit_sync_ifit_flowage_entry_key *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_flowage_entry_key__sendbatch(uint32_t channel, const ifit_sync_ifit_flowage_entry_key *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_flowage_entry_key__sendmsg(uint32_t channel, const ifit_sync_ifit_flowage_entry_key *recs, uint32_t n);
int ifit_sync_ifit_flowage_entry_key__sendtomsg(uint32_t channel, const ifit_sync_ifit_flowage_entry_key *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_flowage_entry_update: Update of ifit_sync_ifit_flowage_entry: a list of whole records. Compact form of
 * 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_ifit_flowage_entry_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_ifit_flowage_entry *items; } f1;
} ifit_sync_ifit_flowage_entry_update;

#define IFIT_SYNC_IFIT_FLOWAGE_ENTRY_UPDATE_ID UINT32_C(0x1104547a)

uint32_t ifit_sync_ifit_flowage_entry_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_flowage_entry_update *rec);
void ifit_sync_ifit_flowage_entry_update_free__unpacked(ifit_sync_ifit_flowage_entry_update *rec);
int ifit_sync_ifit_flowage_entry_update__pack(const ifit_sync_ifit_flowage_entry_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_flowage_entry_update__sendsingle(uint32_t channel, const ifit_sync_ifit_flowage_entry_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_flowage_entry_update__sendbatch(uint32_t channel, const ifit_sync_ifit_flowage_entry_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_flowage_entry_update__sendmsg(uint32_t channel, const ifit_sync_ifit_flowage_entry_update *recs, uint32_t n);
int ifit_sync_ifit_flowage_entry_update__sendtomsg(uint32_t channel, const ifit_sync_ifit_flowage_entry_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_flowage_entry_delete: Delete of ifit_sync_ifit_flowage_entry: a list of whole records. Compact form of
 * 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_ifit_flowage_entry_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_ifit_flowage_entry *items; } f1;
} ifit_sync_ifit_flowage_entry_delete;

#define IFIT_SYNC_IFIT_FLOWAGE_ENTRY_DELETE_ID UINT32_C(0x16febae8)

uint32_t ifit_sync_ifit_flowage_entry_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_flowage_entry_delete *rec);
void ifit_sync_ifit_flowage_entry_delete_free__unpacked(ifit_sync_ifit_flowage_entry_delete *rec);
int ifit_sync_ifit_flowage_entry_delete__pack(const ifit_sync_ifit_flowage_entry_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_flowage_entry_delete__sendsingle(uint32_t channel, const ifit_sync_ifit_flowage_entry_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_flowage_entry_delete__sendbatch(uint32_t channel, const ifit_sync_ifit_flowage_entry_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_flowage_entry_delete__sendmsg(uint32_t channel, const ifit_sync_ifit_flowage_entry_delete *recs, uint32_t n);
int ifit_sync_ifit_flowage_entry_delete__sendtomsg(uint32_t channel, const ifit_sync_ifit_flowage_entry_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ntvifit_glb_entry_update: Update of ifit_sync_ntvifit_glb_entry: one whole record. Fixed form of 112 bytes,
 * compact form of 62 to 104. Owns no memory. */
typedef struct ifit_sync_ntvifit_glb_entry_update {
    uint16_t f0;
    ifit_sync_ntvifit_glb_entry f1;
} ifit_sync_ntvifit_glb_entry_update;

#define IFIT_SYNC_NTVIFIT_GLB_ENTRY_UPDATE_ID UINT32_C(0x4ac7a728)

uint32_t ifit_sync_ntvifit_glb_entry_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ntvifit_glb_entry_update *rec);
void ifit_sync_ntvifit_glb_entry_update_free__unpacked(ifit_sync_ntvifit_glb_entry_update *rec);
int ifit_sync_ntvifit_glb_entry_update__pack(const ifit_sync_ntvifit_glb_entry_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ntvifit_glb_entry_update__sendsingle(uint32_t channel, const ifit_sync_ntvifit_glb_entry_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ntvifit_glb_entry_update__sendbatch(uint32_t channel, const ifit_sync_ntvifit_glb_entry_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ntvifit_glb_entry_update__sendmsg(uint32_t channel, const ifit_sync_ntvifit_glb_entry_update *recs, uint32_t n);
int ifit_sync_ntvifit_glb_entry_update__sendtomsg(uint32_t channel, const ifit_sync_ntvifit_glb_entry_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ntvifit_glb_entry_delete: Delete of ifit_sync_ntvifit_glb_entry: one whole record. Fixed form of 112 bytes,
 * compact form of 62 to 104. Owns no memory. */
typedef struct ifit_sync_ntvifit_glb_entry_delete {
    uint16_t f0;
    ifit_sync_ntvifit_glb_entry f1;
} ifit_sync_ntvifit_glb_entry_delete;

#define IFIT_SYNC_NTVIFIT_GLB_ENTRY_DELETE_ID UINT32_C(0x37b3864e)

uint32_t ifit_sync_ntvifit_glb_entry_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ntvifit_glb_entry_delete *rec);
void ifit_sync_ntvifit_glb_entry_delete_free__unpacked(ifit_sync_ntvifit_glb_entry_delete *rec);
int ifit_sync_ntvifit_glb_entry_delete__pack(const ifit_sync_ntvifit_glb_entry_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ntvifit_glb_entry_delete__sendsingle(uint32_t channel, const ifit_sync_ntvifit_glb_entry_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ntvifit_glb_entry_delete__sendbatch(uint32_t channel, const ifit_sync_ntvifit_glb_entry_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ntvifit_glb_entry_delete__sendmsg(uint32_t channel, const ifit_sync_ntvifit_glb_entry_delete *recs, uint32_t n);
int ifit_sync_ntvifit_glb_entry_delete__sendtomsg(uint32_t channel, const ifit_sync_ntvifit_glb_entry_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_global_entry_update: Update of ifit_sync_ifit_global_entry: one whole record. Fixed form of 168 bytes,
 * compact form of 84 to 158. Owns no memory. */
typedef struct ifit_sync_ifit_global_entry_update {
    uint16_t f0;
    ifit_sync_ifit_global_entry f1;
} ifit_sync_ifit_global_entry_update;

#define IFIT_SYNC_IFIT_GLOBAL_ENTRY_UPDATE_ID UINT32_C(0x0661c78e)

uint32_t ifit_sync_ifit_global_entry_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_global_entry_update *rec);
void ifit_sync_ifit_global_entry_update_free__unpacked(ifit_sync_ifit_global_entry_update *rec);
int ifit_sync_ifit_global_entry_update__pack(const ifit_sync_ifit_global_entry_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_global_entry_update__sendsingle(uint32_t channel, const ifit_sync_ifit_global_entry_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_global_entry_update__sendbatch(uint32_t channel, const ifit_sync_ifit_global_entry_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_global_entry_update__sendmsg(uint32_t channel, const ifit_sync_ifit_global_entry_update *recs, uint32_t n);
int ifit_sync_ifit_global_entry_update__sendtomsg(uint32_t channel, const ifit_sync_ifit_global_entry_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_global_entry_delete: Delete of ifit_sync_ifit_global_entry: one whole record. Fixed form of 168 bytes,
 * compact form of 84 to 158. Owns no memory. */
typedef struct ifit_sync_ifit_global_entry_delete {
    uint16_t f0;
    ifit_sync_ifit_global_entry f1;
} ifit_sync_ifit_global_entry_delete;

#define IFIT_SYNC_IFIT_GLOBAL_ENTRY_DELETE_ID UINT32_C(0x54733fbc)

uint32_t ifit_sync_ifit_global_entry_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_global_entry_delete *rec);
void ifit_sync_ifit_global_entry_delete_free__unpacked(ifit_sync_ifit_global_entry_delete *rec);
int ifit_sync_ifit_global_entry_delete__pack(const ifit_sync_ifit_global_entry_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_global_entry_delete__sendsingle(uint32_t channel, const ifit_sync_ifit_global_entry_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_global_entry_delete__sendbatch(uint32_t channel, const ifit_sync_ifit_global_entry_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_global_entry_delete__sendmsg(uint32_t channel, const ifit_sync_ifit_global_entry_delete *recs, uint32_t n);
int ifit_sync_ifit_global_entry_delete__sendtomsg(uint32_t channel, const ifit_sync_ifit_global_entry_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_mcp_global_entry: Fixed form of 64 bytes, compact form of 34 to 62. Owns no memory. */
typedef struct ifit_sync_mcp_global_entry {
    uint32_t f0;
    uint8_t f1;
    uint8_t f2;
    uint16_t f3;
    uint32_t f4;
    uint32_t f5;
    uint8_t f6;
    uint8_t f7;
    uint16_t f8;
    uint32_t f9;
    uint32_t f10;
} ifit_sync_mcp_global_entry;

#define IFIT_SYNC_MCP_GLOBAL_ENTRY_ID UINT32_C(0xc57ec0f6)

uint32_t ifit_sync_mcp_global_entry__unpack(const uint8_t *buf, uint32_t len, ifit_sync_mcp_global_entry *rec);
void ifit_sync_mcp_global_entry_free__unpacked(ifit_sync_mcp_global_entry *rec);
int ifit_sync_mcp_global_entry__pack(const ifit_sync_mcp_global_entry *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_mcp_global_entry__sendsingle(uint32_t channel, const ifit_sync_mcp_global_entry *rec, uint32_t unused, uint32_t destination);
int ifit_sync_mcp_global_entry__sendbatch(uint32_t channel, const ifit_sync_mcp_global_entry *recs, uint32_t n, uint32_t destination);
int ifit_sync_mcp_global_entry__sendmsg(uint32_t channel, const ifit_sync_mcp_global_entry *recs, uint32_t n);
int ifit_sync_mcp_global_entry__sendtomsg(uint32_t channel, const ifit_sync_mcp_global_entry *recs, uint32_t n, uint32_t destination);

/* ifit_sync_mcp_global_entry_update: Update of ifit_sync_mcp_global_entry: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_sync_mcp_global_entry_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_mcp_global_entry *items; } f1;
} ifit_sync_mcp_global_entry_update;

#define IFIT_SYNC_MCP_GLOBAL_ENTRY_UPDATE_ID UINT32_C(0xa84f560a)

uint32_t ifit_sync_mcp_global_entry_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_mcp_global_entry_update *rec);
void ifit_sync_mcp_global_entry_update_free__unpacked(ifit_sync_mcp_global_entry_update *rec);
int ifit_sync_mcp_global_entry_update__pack(const ifit_sync_mcp_global_entry_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_mcp_global_entry_update__sendsingle(uint32_t channel, const ifit_sync_mcp_global_entry_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_mcp_global_entry_update__sendbatch(uint32_t channel, const ifit_sync_mcp_global_entry_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_mcp_global_entry_update__sendmsg(uint32_t channel, const ifit_sync_mcp_global_entry_update *recs, uint32_t n);
int ifit_sync_mcp_global_entry_update__sendtomsg(uint32_t channel, const ifit_sync_mcp_global_entry_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_mcp_global_entry_delete: Delete of ifit_sync_mcp_global_entry: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_sync_mcp_global_entry_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_mcp_global_entry *items; } f1;
} ifit_sync_mcp_global_entry_delete;

#define IFIT_SYNC_MCP_GLOBAL_ENTRY_DELETE_ID UINT32_C(0x120ad138)

uint32_t ifit_sync_mcp_global_entry_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_mcp_global_entry_delete *rec);
void ifit_sync_mcp_global_entry_delete_free__unpacked(ifit_sync_mcp_global_entry_delete *rec);
int ifit_sync_mcp_global_entry_delete__pack(const ifit_sync_mcp_global_entry_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_mcp_global_entry_delete__sendsingle(uint32_t channel, const ifit_sync_mcp_global_entry_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_mcp_global_entry_delete__sendbatch(uint32_t channel, const ifit_sync_mcp_global_entry_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_mcp_global_entry_delete__sendmsg(uint32_t channel, const ifit_sync_mcp_global_entry_delete *recs, uint32_t n);
int ifit_sync_mcp_global_entry_delete__sendtomsg(uint32_t channel, const ifit_sync_mcp_global_entry_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ntvifit_intf_entry_update: Update of ifit_sync_ntvifit_intf_entry: one whole record. Fixed form of 168
 * bytes, compact form of 90 to 155. Owns no memory. */
typedef struct ifit_sync_ntvifit_intf_entry_update {
    uint16_t f0;
    ifit_sync_ntvifit_intf_entry f1;
} ifit_sync_ntvifit_intf_entry_update;

#define IFIT_SYNC_NTVIFIT_INTF_ENTRY_UPDATE_ID UINT32_C(0x940a4bd6)

uint32_t ifit_sync_ntvifit_intf_entry_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ntvifit_intf_entry_update *rec);
void ifit_sync_ntvifit_intf_entry_update_free__unpacked(ifit_sync_ntvifit_intf_entry_update *rec);
int ifit_sync_ntvifit_intf_entry_update__pack(const ifit_sync_ntvifit_intf_entry_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ntvifit_intf_entry_update__sendsingle(uint32_t channel, const ifit_sync_ntvifit_intf_entry_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ntvifit_intf_entry_update__sendbatch(uint32_t channel, const ifit_sync_ntvifit_intf_entry_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ntvifit_intf_entry_update__sendmsg(uint32_t channel, const ifit_sync_ntvifit_intf_entry_update *recs, uint32_t n);
int ifit_sync_ntvifit_intf_entry_update__sendtomsg(uint32_t channel, const ifit_sync_ntvifit_intf_entry_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ntvifit_intf_entry_delete: Delete of ifit_sync_ntvifit_intf_entry: one whole record. Fixed form of 168
 * bytes, compact form of 90 to 155. Owns no memory. */
typedef struct ifit_sync_ntvifit_intf_entry_delete {
    uint16_t f0;
    ifit_sync_ntvifit_intf_entry f1;
} ifit_sync_ntvifit_intf_entry_delete;

#define IFIT_SYNC_NTVIFIT_INTF_ENTRY_DELETE_ID UINT32_C(0x0db704b4)

uint32_t ifit_sync_ntvifit_intf_entry_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ntvifit_intf_entry_delete *rec);
void ifit_sync_ntvifit_intf_entry_delete_free__unpacked(ifit_sync_ntvifit_intf_entry_delete *rec);
int ifit_sync_ntvifit_intf_entry_delete__pack(const ifit_sync_ntvifit_intf_entry_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ntvifit_intf_entry_delete__sendsingle(uint32_t channel, const ifit_sync_ntvifit_intf_entry_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ntvifit_intf_entry_delete__sendbatch(uint32_t channel, const ifit_sync_ntvifit_intf_entry_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ntvifit_intf_entry_delete__sendmsg(uint32_t channel, const ifit_sync_ntvifit_intf_entry_delete *recs, uint32_t n);
int ifit_sync_ntvifit_intf_entry_delete__sendtomsg(uint32_t channel, const ifit_sync_ntvifit_intf_entry_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_db_smooth_ver: Fixed form of 24 bytes, compact form of 16 to 24. Owns no memory. */
typedef struct ifit_sync_db_smooth_ver {
    uint32_t f0;
    uint32_t f1;
} ifit_sync_db_smooth_ver;

#define IFIT_SYNC_DB_SMOOTH_VER_ID UINT32_C(0xcba290f2)

uint32_t ifit_sync_db_smooth_ver__unpack(const uint8_t *buf, uint32_t len, ifit_sync_db_smooth_ver *rec);
void ifit_sync_db_smooth_ver_free__unpacked(ifit_sync_db_smooth_ver *rec);
int ifit_sync_db_smooth_ver__pack(const ifit_sync_db_smooth_ver *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_db_smooth_ver__sendsingle(uint32_t channel, const ifit_sync_db_smooth_ver *rec, uint32_t unused, uint32_t destination);
int ifit_sync_db_smooth_ver__sendbatch(uint32_t channel, const ifit_sync_db_smooth_ver *recs, uint32_t n, uint32_t destination);
int ifit_sync_db_smooth_ver__sendmsg(uint32_t channel, const ifit_sync_db_smooth_ver *recs, uint32_t n);
int ifit_sync_db_smooth_ver__sendtomsg(uint32_t channel, const ifit_sync_db_smooth_ver *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_tuplev4ext_flowinfo_entry: Fixed form of 176 bytes, compact form of 96 to 172. Owns no memory. */
typedef struct ifit_sync_ifit_tuplev4ext_flowinfo_entry {
    uint32_t f0;
    kesto_u64 f1;
    uint32_t f2;
    uint8_t f3;
    uint8_t f4;
    uint16_t f5;
    uint32_t f6;
    uint32_t f7;
    uint32_t f8;
    uint32_t f9;
    uint32_t f10;
    uint16_t f11;
    uint16_t f12;
    uint16_t f13;
    uint16_t f14;
    uint8_t f15;
    uint8_t f16;
    uint16_t f17;
    uint32_t f18;
    uint32_t f19;
    uint8_t f20;
    uint8_t f21;
    uint8_t f22;
    uint8_t f23;
    uint8_t f24[16];
    uint8_t f25;
    uint8_t f26;
    uint16_t f27;
    uint32_t f28;
    uint32_t f29;
} ifit_sync_ifit_tuplev4ext_flowinfo_entry;

#define IFIT_SYNC_IFIT_TUPLEV4EXT_FLOWINFO_ENTRY_ID UINT32_C(0x89d019d5)

uint32_t ifit_sync_ifit_tuplev4ext_flowinfo_entry__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_tuplev4ext_flowinfo_entry *rec);
void ifit_sync_ifit_tuplev4ext_flowinfo_entry_free__unpacked(ifit_sync_ifit_tuplev4ext_flowinfo_entry *rec);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry__pack(const ifit_sync_ifit_tuplev4ext_flowinfo_entry *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry__sendsingle(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry__sendbatch(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry__sendmsg(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry *recs, uint32_t n);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry__sendtomsg(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_tuplev4ext_flowinfo_entry_key: Key of ifit_sync_ifit_tuplev4ext_flowinfo_entry: its slots 0 to 3.
 * Fixed form of 40 bytes, compact form of 20 to 37. Owns no memory. */
typedef struct ifit_sync_ifit_tuplev4ext_flowinfo_entry_key {
    uint32_t f0;
    kesto_u64 f1;
    uint32_t f2;
    uint8_t f3;
} ifit_sync_ifit_tuplev4ext_flowinfo_entry_key;

#define IFIT_SYNC_IFIT_TUPLEV4EXT_FLOWINFO_ENTRY_KEY_ID UINT32_C(0x523185a5)

uint32_t ifit_sync_ifit_tuplev4ext_flowinfo_entry_key__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_tuplev4ext_flowinfo_entry_key *rec);
void ifit_sync_ifit_tuplev4ext_flowinfo_entry_key_free__unpacked(ifit_sync_ifit_tuplev4ext_flowinfo_entry_key *rec);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_key__pack(const ifit_sync_ifit_tuplev4ext_flowinfo_entry_key *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_key__sendsingle(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry_key *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_key__sendbatch(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry_key *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_key__sendmsg(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry_key *recs, uint32_t n);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_key__sendtomsg(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry_key *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_tuplev4ext_flowinfo_entry_update: Update of ifit_sync_ifit_tuplev4ext_flowinfo_entry: a list of whole
 * records. Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_ifit_tuplev4ext_flowinfo_entry_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_ifit_tuplev4ext_flowinfo_entry *items; } f1;
} ifit_sync_ifit_tuplev4ext_flowinfo_entry_update;

#define IFIT_SYNC_IFIT_TUPLEV4EXT_FLOWINFO_ENTRY_UPDATE_ID UINT32_C(0xec5cbd47)

uint32_t ifit_sync_ifit_tuplev4ext_flowinfo_entry_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_tuplev4ext_flowinfo_entry_update *rec);
void ifit_sync_ifit_tuplev4ext_flowinfo_entry_update_free__unpacked(ifit_sync_ifit_tuplev4ext_flowinfo_entry_update *rec);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_update__pack(const ifit_sync_ifit_tuplev4ext_flowinfo_entry_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_update__sendsingle(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_update__sendbatch(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_update__sendmsg(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry_update *recs, uint32_t n);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_update__sendtomsg(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete: Delete of ifit_sync_ifit_tuplev4ext_flowinfo_entry: a list of whole
 * records. Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_ifit_tuplev4ext_flowinfo_entry *items; } f1;
} ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete;

#define IFIT_SYNC_IFIT_TUPLEV4EXT_FLOWINFO_ENTRY_DELETE_ID UINT32_C(0x66c09c69)

uint32_t ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete *rec);
void ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete_free__unpacked(ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete *rec);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete__pack(const ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete__sendsingle(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete__sendbatch(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete__sendmsg(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete *recs, uint32_t n);
int ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete__sendtomsg(uint32_t channel, const ifit_sync_ifit_tuplev4ext_flowinfo_entry_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_tuplev6ext_flowinfo_entry: Fixed form of 216 bytes, compact form of 146 to 210. Owns no memory. */
typedef struct ifit_sync_ifit_tuplev6ext_flowinfo_entry {
    uint32_t f0;
    kesto_u64 f1;
    uint32_t f2;
    uint8_t f3;
    uint8_t f4;
    uint16_t f5;
    uint32_t f6;
    uint32_t f7[4];
    uint32_t f8[4];
    uint8_t f9;
    uint8_t f10;
    uint16_t f11;
    uint16_t f12;
    uint16_t f13;
    uint16_t f14;
    uint8_t f15;
    uint8_t f16;
    uint32_t f17;
    uint32_t f18;
    uint16_t f19;
    uint8_t f20;
    uint8_t f21;
    uint8_t f22;
    uint8_t f23;
    uint16_t f24;
    uint8_t f25[16];
    uint8_t f26;
    uint8_t f27;
    uint16_t f28;
    uint32_t f29;
    uint32_t f30;
} ifit_sync_ifit_tuplev6ext_flowinfo_entry;

#define IFIT_SYNC_IFIT_TUPLEV6EXT_FLOWINFO_ENTRY_ID UINT32_C(0x55c64c9f)

uint32_t ifit_sync_ifit_tuplev6ext_flowinfo_entry__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_tuplev6ext_flowinfo_entry *rec);
void ifit_sync_ifit_tuplev6ext_flowinfo_entry_free__unpacked(ifit_sync_ifit_tuplev6ext_flowinfo_entry *rec);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry__pack(const ifit_sync_ifit_tuplev6ext_flowinfo_entry *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry__sendsingle(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry__sendbatch(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry__sendmsg(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry *recs, uint32_t n);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry__sendtomsg(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_tuplev6ext_flowinfo_entry_key: Key of ifit_sync_ifit_tuplev6ext_flowinfo_entry: its slots 0 to 3.
 * Fixed form of 40 bytes, compact form of 20 to 37. Owns no memory. */
typedef struct ifit_sync_ifit_tuplev6ext_flowinfo_entry_key {
    uint32_t f0;
    kesto_u64 f1;
    uint32_t f2;
    uint8_t f3;
} ifit_sync_ifit_tuplev6ext_flowinfo_entry_key;

#define IFIT_SYNC_IFIT_TUPLEV6EXT_FLOWINFO_ENTRY_KEY_ID UINT32_C(0xc2786e1f)

uint32_t ifit_sync_ifit_tuplev6ext_flowinfo_entry_key__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_tuplev6ext_flowinfo_entry_key *rec);
void ifit_sync_ifit_tuplev6ext_flowinfo_entry_key_free__unpacked(ifit_sync_ifit_tuplev6ext_flowinfo_entry_key *rec);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_key__pack(const ifit_sync_ifit_tuplev6ext_flowinfo_entry_key *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_key__sendsingle(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry_key *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_key__sendbatch(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry_key *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_key__sendmsg(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry_key *recs, uint32_t n);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_key__sendtomsg(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry_key *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_tuplev6ext_flowinfo_entry_update: Update of ifit_sync_ifit_tuplev6ext_flowinfo_entry: a list of whole
 * records. Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_ifit_tuplev6ext_flowinfo_entry_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_ifit_tuplev6ext_flowinfo_entry *items; } f1;
} ifit_sync_ifit_tuplev6ext_flowinfo_entry_update;

#define IFIT_SYNC_IFIT_TUPLEV6EXT_FLOWINFO_ENTRY_UPDATE_ID UINT32_C(0xa2ad8b21)

uint32_t ifit_sync_ifit_tuplev6ext_flowinfo_entry_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_tuplev6ext_flowinfo_entry_update *rec);
void ifit_sync_ifit_tuplev6ext_flowinfo_entry_update_free__unpacked(ifit_sync_ifit_tuplev6ext_flowinfo_entry_update *rec);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_update__pack(const ifit_sync_ifit_tuplev6ext_flowinfo_entry_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_update__sendsingle(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_update__sendbatch(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_update__sendmsg(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry_update *recs, uint32_t n);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_update__sendtomsg(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete: Delete of ifit_sync_ifit_tuplev6ext_flowinfo_entry: a list of whole
 * records. Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_ifit_tuplev6ext_flowinfo_entry *items; } f1;
} ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete;

#define IFIT_SYNC_IFIT_TUPLEV6EXT_FLOWINFO_ENTRY_DELETE_ID UINT32_C(0x2088661b)

uint32_t ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete *rec);
void ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete_free__unpacked(ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete *rec);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete__pack(const ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete__sendsingle(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete__sendbatch(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete__sendmsg(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete *recs, uint32_t n);
int ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete__sendtomsg(uint32_t channel, const ifit_sync_ifit_tuplev6ext_flowinfo_entry_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_whitelist_vpn_intf_entry: Fixed form of 88 bytes, compact form of 48 to 88. Owns no memory. */
typedef struct ifit_sync_ifit_whitelist_vpn_intf_entry {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint16_t f4;
    uint8_t f5;
    uint8_t f6;
    uint8_t f7;
    uint8_t f8;
    uint8_t f9;
    uint8_t f10;
    uint32_t f11;
    uint8_t f12;
    uint8_t f13;
    uint8_t f14;
    uint8_t f15;
    uint32_t f16;
    uint32_t f17;
} ifit_sync_ifit_whitelist_vpn_intf_entry;

#define IFIT_SYNC_IFIT_WHITELIST_VPN_INTF_ENTRY_ID UINT32_C(0x8eedd6e7)

uint32_t ifit_sync_ifit_whitelist_vpn_intf_entry__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_whitelist_vpn_intf_entry *rec);
void ifit_sync_ifit_whitelist_vpn_intf_entry_free__unpacked(ifit_sync_ifit_whitelist_vpn_intf_entry *rec);
int ifit_sync_ifit_whitelist_vpn_intf_entry__pack(const ifit_sync_ifit_whitelist_vpn_intf_entry *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_whitelist_vpn_intf_entry__sendsingle(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_whitelist_vpn_intf_entry__sendbatch(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_whitelist_vpn_intf_entry__sendmsg(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry *recs, uint32_t n);
int ifit_sync_ifit_whitelist_vpn_intf_entry__sendtomsg(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_whitelist_vpn_intf_entry_key: Key of ifit_sync_ifit_whitelist_vpn_intf_entry: its slots 0 to 2. Fixed
 * form of 32 bytes, compact form of 18 to 30. Owns no memory. */
typedef struct ifit_sync_ifit_whitelist_vpn_intf_entry_key {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
} ifit_sync_ifit_whitelist_vpn_intf_entry_key;

#define IFIT_SYNC_IFIT_WHITELIST_VPN_INTF_ENTRY_KEY_ID UINT32_C(0x99b18717)

uint32_t ifit_sync_ifit_whitelist_vpn_intf_entry_key__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_whitelist_vpn_intf_entry_key *rec);
void ifit_sync_ifit_whitelist_vpn_intf_entry_key_free__unpacked(ifit_sync_ifit_whitelist_vpn_intf_entry_key *rec);
int ifit_sync_ifit_whitelist_vpn_intf_entry_key__pack(const ifit_sync_ifit_whitelist_vpn_intf_entry_key *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_whitelist_vpn_intf_entry_key__sendsingle(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry_key *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_whitelist_vpn_intf_entry_key__sendbatch(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry_key *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_whitelist_vpn_intf_entry_key__sendmsg(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry_key *recs, uint32_t n);
int ifit_sync_ifit_whitelist_vpn_intf_entry_key__sendtomsg(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry_key *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_whitelist_vpn_intf_entry_update: Update of ifit_sync_ifit_whitelist_vpn_intf_entry: a list of whole
 * records. Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_ifit_whitelist_vpn_intf_entry_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_ifit_whitelist_vpn_intf_entry *items; } f1;
} ifit_sync_ifit_whitelist_vpn_intf_entry_update;

#define IFIT_SYNC_IFIT_WHITELIST_VPN_INTF_ENTRY_UPDATE_ID UINT32_C(0xb23b9c29)

uint32_t ifit_sync_ifit_whitelist_vpn_intf_entry_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_whitelist_vpn_intf_entry_update *rec);
void ifit_sync_ifit_whitelist_vpn_intf_entry_update_free__unpacked(ifit_sync_ifit_whitelist_vpn_intf_entry_update *rec);
int ifit_sync_ifit_whitelist_vpn_intf_entry_update__pack(const ifit_sync_ifit_whitelist_vpn_intf_entry_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_whitelist_vpn_intf_entry_update__sendsingle(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_whitelist_vpn_intf_entry_update__sendbatch(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_whitelist_vpn_intf_entry_update__sendmsg(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry_update *recs, uint32_t n);
int ifit_sync_ifit_whitelist_vpn_intf_entry_update__sendtomsg(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_whitelist_vpn_intf_entry_delete: Delete of ifit_sync_ifit_whitelist_vpn_intf_entry: a list of whole
 * records. Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_ifit_whitelist_vpn_intf_entry_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_ifit_whitelist_vpn_intf_entry *items; } f1;
} ifit_sync_ifit_whitelist_vpn_intf_entry_delete;

#define IFIT_SYNC_IFIT_WHITELIST_VPN_INTF_ENTRY_DELETE_ID UINT32_C(0x77f060f3)

uint32_t ifit_sync_ifit_whitelist_vpn_intf_entry_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_whitelist_vpn_intf_entry_delete *rec);
void ifit_sync_ifit_whitelist_vpn_intf_entry_delete_free__unpacked(ifit_sync_ifit_whitelist_vpn_intf_entry_delete *rec);
int ifit_sync_ifit_whitelist_vpn_intf_entry_delete__pack(const ifit_sync_ifit_whitelist_vpn_intf_entry_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_whitelist_vpn_intf_entry_delete__sendsingle(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_whitelist_vpn_intf_entry_delete__sendbatch(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_whitelist_vpn_intf_entry_delete__sendmsg(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry_delete *recs, uint32_t n);
int ifit_sync_ifit_whitelist_vpn_intf_entry_delete__sendtomsg(uint32_t channel, const ifit_sync_ifit_whitelist_vpn_intf_entry_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_whitelist_rule_intf_entry: Fixed form of 216 bytes, compact form of 150 to 214. Owns no memory. */
typedef struct ifit_sync_ifit_whitelist_rule_intf_entry {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint32_t f4;
    uint32_t f5;
    uint32_t f6[4];
    uint8_t f7;
    uint8_t f8;
    uint16_t f9;
    uint32_t f10;
    uint32_t f11[4];
    uint8_t f12;
    uint8_t f13;
    uint16_t f14;
    uint16_t f15;
    uint8_t f16;
    uint8_t f17;
    uint8_t f18;
    uint8_t f19;
    uint16_t f20;
    uint16_t f21;
    uint8_t f22;
    uint8_t f23;
    uint8_t f24;
    uint8_t f25;
    uint16_t f26;
    uint8_t f27[16];
    uint8_t f28;
    uint8_t f29;
    uint16_t f30;
    uint32_t f31;
    uint32_t f32;
} ifit_sync_ifit_whitelist_rule_intf_entry;

#define IFIT_SYNC_IFIT_WHITELIST_RULE_INTF_ENTRY_ID UINT32_C(0xd6d6b931)

uint32_t ifit_sync_ifit_whitelist_rule_intf_entry__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_whitelist_rule_intf_entry *rec);
void ifit_sync_ifit_whitelist_rule_intf_entry_free__unpacked(ifit_sync_ifit_whitelist_rule_intf_entry *rec);
int ifit_sync_ifit_whitelist_rule_intf_entry__pack(const ifit_sync_ifit_whitelist_rule_intf_entry *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_whitelist_rule_intf_entry__sendsingle(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_whitelist_rule_intf_entry__sendbatch(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_whitelist_rule_intf_entry__sendmsg(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry *recs, uint32_t n);
int ifit_sync_ifit_whitelist_rule_intf_entry__sendtomsg(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_whitelist_rule_intf_entry_key: Key of ifit_sync_ifit_whitelist_rule_intf_entry: its slots 0 to 4.
 * Fixed form of 48 bytes, compact form of 22 to 42. Owns no memory. */
typedef struct ifit_sync_ifit_whitelist_rule_intf_entry_key {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint32_t f4;
} ifit_sync_ifit_whitelist_rule_intf_entry_key;

#define IFIT_SYNC_IFIT_WHITELIST_RULE_INTF_ENTRY_KEY_ID UINT32_C(0x2c3f5ea1)

uint32_t ifit_sync_ifit_whitelist_rule_intf_entry_key__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_whitelist_rule_intf_entry_key *rec);
void ifit_sync_ifit_whitelist_rule_intf_entry_key_free__unpacked(ifit_sync_ifit_whitelist_rule_intf_entry_key *rec);
int ifit_sync_ifit_whitelist_rule_intf_entry_key__pack(const ifit_sync_ifit_whitelist_rule_intf_entry_key *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_whitelist_rule_intf_entry_key__sendsingle(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry_key *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_whitelist_rule_intf_entry_key__sendbatch(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry_key *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_whitelist_rule_intf_entry_key__sendmsg(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry_key *recs, uint32_t n);
int ifit_sync_ifit_whitelist_rule_intf_entry_key__sendtomsg(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry_key *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_whitelist_rule_intf_entry_update: Update of ifit_sync_ifit_whitelist_rule_intf_entry: a list of whole
 * records. Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_ifit_whitelist_rule_intf_entry_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_ifit_whitelist_rule_intf_entry *items; } f1;
} ifit_sync_ifit_whitelist_rule_intf_entry_update;

#define IFIT_SYNC_IFIT_WHITELIST_RULE_INTF_ENTRY_UPDATE_ID UINT32_C(0x0554f863)

uint32_t ifit_sync_ifit_whitelist_rule_intf_entry_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_whitelist_rule_intf_entry_update *rec);
void ifit_sync_ifit_whitelist_rule_intf_entry_update_free__unpacked(ifit_sync_ifit_whitelist_rule_intf_entry_update *rec);
int ifit_sync_ifit_whitelist_rule_intf_entry_update__pack(const ifit_sync_ifit_whitelist_rule_intf_entry_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_whitelist_rule_intf_entry_update__sendsingle(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_whitelist_rule_intf_entry_update__sendbatch(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_whitelist_rule_intf_entry_update__sendmsg(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry_update *recs, uint32_t n);
int ifit_sync_ifit_whitelist_rule_intf_entry_update__sendtomsg(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ifit_whitelist_rule_intf_entry_delete: Delete of ifit_sync_ifit_whitelist_rule_intf_entry: a list of whole
 * records. Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_ifit_whitelist_rule_intf_entry_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_ifit_whitelist_rule_intf_entry *items; } f1;
} ifit_sync_ifit_whitelist_rule_intf_entry_delete;

#define IFIT_SYNC_IFIT_WHITELIST_RULE_INTF_ENTRY_DELETE_ID UINT32_C(0x2ae98515)

uint32_t ifit_sync_ifit_whitelist_rule_intf_entry_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ifit_whitelist_rule_intf_entry_delete *rec);
void ifit_sync_ifit_whitelist_rule_intf_entry_delete_free__unpacked(ifit_sync_ifit_whitelist_rule_intf_entry_delete *rec);
int ifit_sync_ifit_whitelist_rule_intf_entry_delete__pack(const ifit_sync_ifit_whitelist_rule_intf_entry_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ifit_whitelist_rule_intf_entry_delete__sendsingle(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ifit_whitelist_rule_intf_entry_delete__sendbatch(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ifit_whitelist_rule_intf_entry_delete__sendmsg(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry_delete *recs, uint32_t n);
int ifit_sync_ifit_whitelist_rule_intf_entry_delete__sendtomsg(uint32_t channel, const ifit_sync_ifit_whitelist_rule_intf_entry_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_color_intf_entry_mesh: Fixed form of 56 bytes, compact form of 32 to 56. Owns no memory. */
typedef struct ifit_sync_color_intf_entry_mesh {
    uint32_t f0;
    uint32_t f1;
    uint8_t f2;
    uint8_t f3;
    uint16_t f4;
    uint8_t f5;
    uint8_t f6;
    uint16_t f7;
    uint32_t f8;
    uint32_t f9;
} ifit_sync_color_intf_entry_mesh;

#define IFIT_SYNC_COLOR_INTF_ENTRY_MESH_ID UINT32_C(0x5a33005b)

uint32_t ifit_sync_color_intf_entry_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_sync_color_intf_entry_mesh *rec);
void ifit_sync_color_intf_entry_mesh_free__unpacked(ifit_sync_color_intf_entry_mesh *rec);
int ifit_sync_color_intf_entry_mesh__pack(const ifit_sync_color_intf_entry_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_color_intf_entry_mesh__sendsingle(uint32_t channel, const ifit_sync_color_intf_entry_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_sync_color_intf_entry_mesh__sendbatch(uint32_t channel, const ifit_sync_color_intf_entry_mesh *recs, uint32_t n, uint32_t destination);
int ifit_sync_color_intf_entry_mesh__sendmsg(uint32_t channel, const ifit_sync_color_intf_entry_mesh *recs, uint32_t n);
int ifit_sync_color_intf_entry_mesh__sendtomsg(uint32_t channel, const ifit_sync_color_intf_entry_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_sync_color_intf_entry_mesh_update: Update of ifit_sync_color_intf_entry_mesh: a list of whole records. Compact
 * form of 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_color_intf_entry_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_color_intf_entry_mesh *items; } f1;
} ifit_sync_color_intf_entry_mesh_update;

#define IFIT_SYNC_COLOR_INTF_ENTRY_MESH_UPDATE_ID UINT32_C(0xd184c36d)

uint32_t ifit_sync_color_intf_entry_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_color_intf_entry_mesh_update *rec);
void ifit_sync_color_intf_entry_mesh_update_free__unpacked(ifit_sync_color_intf_entry_mesh_update *rec);
int ifit_sync_color_intf_entry_mesh_update__pack(const ifit_sync_color_intf_entry_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_color_intf_entry_mesh_update__sendsingle(uint32_t channel, const ifit_sync_color_intf_entry_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_color_intf_entry_mesh_update__sendbatch(uint32_t channel, const ifit_sync_color_intf_entry_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_color_intf_entry_mesh_update__sendmsg(uint32_t channel, const ifit_sync_color_intf_entry_mesh_update *recs, uint32_t n);
int ifit_sync_color_intf_entry_mesh_update__sendtomsg(uint32_t channel, const ifit_sync_color_intf_entry_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_color_intf_entry_mesh_delete: Delete of ifit_sync_color_intf_entry_mesh: a list of whole records. Compact
 * form of 16 bytes and more. Owns its elements. */
typedef struct ifit_sync_color_intf_entry_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_sync_color_intf_entry_mesh *items; } f1;
} ifit_sync_color_intf_entry_mesh_delete;

#define IFIT_SYNC_COLOR_INTF_ENTRY_MESH_DELETE_ID UINT32_C(0x02f5d867)

uint32_t ifit_sync_color_intf_entry_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_color_intf_entry_mesh_delete *rec);
void ifit_sync_color_intf_entry_mesh_delete_free__unpacked(ifit_sync_color_intf_entry_mesh_delete *rec);
int ifit_sync_color_intf_entry_mesh_delete__pack(const ifit_sync_color_intf_entry_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_color_intf_entry_mesh_delete__sendsingle(uint32_t channel, const ifit_sync_color_intf_entry_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_color_intf_entry_mesh_delete__sendbatch(uint32_t channel, const ifit_sync_color_intf_entry_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_color_intf_entry_mesh_delete__sendmsg(uint32_t channel, const ifit_sync_color_intf_entry_mesh_delete *recs, uint32_t n);
int ifit_sync_color_intf_entry_mesh_delete__sendtomsg(uint32_t channel, const ifit_sync_color_intf_entry_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ntvifit_intf_color_clear_entry_update: Update of ifit_sync_ntvifit_intf_color_clear_entry: one whole
 * record. Fixed form of 72 bytes, compact form of 42 to 64. Owns no memory. */
typedef struct ifit_sync_ntvifit_intf_color_clear_entry_update {
    uint16_t f0;
    ifit_sync_ntvifit_intf_color_clear_entry f1;
} ifit_sync_ntvifit_intf_color_clear_entry_update;

#define IFIT_SYNC_NTVIFIT_INTF_COLOR_CLEAR_ENTRY_UPDATE_ID UINT32_C(0xf0864a18)

uint32_t ifit_sync_ntvifit_intf_color_clear_entry_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ntvifit_intf_color_clear_entry_update *rec);
void ifit_sync_ntvifit_intf_color_clear_entry_update_free__unpacked(ifit_sync_ntvifit_intf_color_clear_entry_update *rec);
int ifit_sync_ntvifit_intf_color_clear_entry_update__pack(const ifit_sync_ntvifit_intf_color_clear_entry_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ntvifit_intf_color_clear_entry_update__sendsingle(uint32_t channel, const ifit_sync_ntvifit_intf_color_clear_entry_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ntvifit_intf_color_clear_entry_update__sendbatch(uint32_t channel, const ifit_sync_ntvifit_intf_color_clear_entry_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ntvifit_intf_color_clear_entry_update__sendmsg(uint32_t channel, const ifit_sync_ntvifit_intf_color_clear_entry_update *recs, uint32_t n);
int ifit_sync_ntvifit_intf_color_clear_entry_update__sendtomsg(uint32_t channel, const ifit_sync_ntvifit_intf_color_clear_entry_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ntvifit_intf_color_clear_entry_delete: Delete of ifit_sync_ntvifit_intf_color_clear_entry: one whole
 * record. Fixed form of 72 bytes, compact form of 42 to 64. Owns no memory. */
typedef struct ifit_sync_ntvifit_intf_color_clear_entry_delete {
    uint16_t f0;
    ifit_sync_ntvifit_intf_color_clear_entry f1;
} ifit_sync_ntvifit_intf_color_clear_entry_delete;

#define IFIT_SYNC_NTVIFIT_INTF_COLOR_CLEAR_ENTRY_DELETE_ID UINT32_C(0x785d89be)

uint32_t ifit_sync_ntvifit_intf_color_clear_entry_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ntvifit_intf_color_clear_entry_delete *rec);
void ifit_sync_ntvifit_intf_color_clear_entry_delete_free__unpacked(ifit_sync_ntvifit_intf_color_clear_entry_delete *rec);
int ifit_sync_ntvifit_intf_color_clear_entry_delete__pack(const ifit_sync_ntvifit_intf_color_clear_entry_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ntvifit_intf_color_clear_entry_delete__sendsingle(uint32_t channel, const ifit_sync_ntvifit_intf_color_clear_entry_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ntvifit_intf_color_clear_entry_delete__sendbatch(uint32_t channel, const ifit_sync_ntvifit_intf_color_clear_entry_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ntvifit_intf_color_clear_entry_delete__sendmsg(uint32_t channel, const ifit_sync_ntvifit_intf_color_clear_entry_delete *recs, uint32_t n);
int ifit_sync_ntvifit_intf_color_clear_entry_delete__sendtomsg(uint32_t channel, const ifit_sync_ntvifit_intf_color_clear_entry_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ntvifit_intf_auto_detect_entry_update: Update of ifit_sync_ntvifit_intf_auto_detect_entry: one whole
 * record. Fixed form of 120 bytes, compact form of 64 to 110. Owns no memory. */
typedef struct ifit_sync_ntvifit_intf_auto_detect_entry_update {
    uint16_t f0;
    ifit_sync_ntvifit_intf_auto_detect_entry f1;
} ifit_sync_ntvifit_intf_auto_detect_entry_update;

#define IFIT_SYNC_NTVIFIT_INTF_AUTO_DETECT_ENTRY_UPDATE_ID UINT32_C(0xad34113e)

uint32_t ifit_sync_ntvifit_intf_auto_detect_entry_update__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ntvifit_intf_auto_detect_entry_update *rec);
void ifit_sync_ntvifit_intf_auto_detect_entry_update_free__unpacked(ifit_sync_ntvifit_intf_auto_detect_entry_update *rec);
int ifit_sync_ntvifit_intf_auto_detect_entry_update__pack(const ifit_sync_ntvifit_intf_auto_detect_entry_update *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ntvifit_intf_auto_detect_entry_update__sendsingle(uint32_t channel, const ifit_sync_ntvifit_intf_auto_detect_entry_update *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ntvifit_intf_auto_detect_entry_update__sendbatch(uint32_t channel, const ifit_sync_ntvifit_intf_auto_detect_entry_update *recs, uint32_t n, uint32_t destination);
int ifit_sync_ntvifit_intf_auto_detect_entry_update__sendmsg(uint32_t channel, const ifit_sync_ntvifit_intf_auto_detect_entry_update *recs, uint32_t n);
int ifit_sync_ntvifit_intf_auto_detect_entry_update__sendtomsg(uint32_t channel, const ifit_sync_ntvifit_intf_auto_detect_entry_update *recs, uint32_t n, uint32_t destination);

/* ifit_sync_ntvifit_intf_auto_detect_entry_delete: Delete of ifit_sync_ntvifit_intf_auto_detect_entry: one whole
 * record. Fixed form of 120 bytes, compact form of 64 to 110. Owns no memory. */
typedef struct ifit_sync_ntvifit_intf_auto_detect_entry_delete {
    uint16_t f0;
    ifit_sync_ntvifit_intf_auto_detect_entry f1;
} ifit_sync_ntvifit_intf_auto_detect_entry_delete;

#define IFIT_SYNC_NTVIFIT_INTF_AUTO_DETECT_ENTRY_DELETE_ID UINT32_C(0x6f25f8ec)

uint32_t ifit_sync_ntvifit_intf_auto_detect_entry_delete__unpack(const uint8_t *buf, uint32_t len, ifit_sync_ntvifit_intf_auto_detect_entry_delete *rec);
void ifit_sync_ntvifit_intf_auto_detect_entry_delete_free__unpacked(ifit_sync_ntvifit_intf_auto_detect_entry_delete *rec);
int ifit_sync_ntvifit_intf_auto_detect_entry_delete__pack(const ifit_sync_ntvifit_intf_auto_detect_entry_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_ntvifit_intf_auto_detect_entry_delete__sendsingle(uint32_t channel, const ifit_sync_ntvifit_intf_auto_detect_entry_delete *rec, uint32_t unused, uint32_t destination);
int ifit_sync_ntvifit_intf_auto_detect_entry_delete__sendbatch(uint32_t channel, const ifit_sync_ntvifit_intf_auto_detect_entry_delete *recs, uint32_t n, uint32_t destination);
int ifit_sync_ntvifit_intf_auto_detect_entry_delete__sendmsg(uint32_t channel, const ifit_sync_ntvifit_intf_auto_detect_entry_delete *recs, uint32_t n);
int ifit_sync_ntvifit_intf_auto_detect_entry_delete__sendtomsg(uint32_t channel, const ifit_sync_ntvifit_intf_auto_detect_entry_delete *recs, uint32_t n, uint32_t destination);

/* ifit_sync_dam_smooth_request: The slots of ifit_dam_smooth_request in another module; only the id tells them apart.
 * Fixed form of 24 bytes, compact form of 14 to 18. Owns no memory. */
typedef struct ifit_sync_dam_smooth_request {
    uint32_t f0;
} ifit_sync_dam_smooth_request;

#define IFIT_SYNC_DAM_SMOOTH_REQUEST_ID UINT32_C(0xa1d99c78)

uint32_t ifit_sync_dam_smooth_request__unpack(const uint8_t *buf, uint32_t len, ifit_sync_dam_smooth_request *rec);
void ifit_sync_dam_smooth_request_free__unpacked(ifit_sync_dam_smooth_request *rec);
int ifit_sync_dam_smooth_request__pack(const ifit_sync_dam_smooth_request *rec, uint8_t *buf, uint32_t *len);
int ifit_sync_dam_smooth_request__sendsingle(uint32_t channel, const ifit_sync_dam_smooth_request *rec, uint32_t unused, uint32_t destination);
int ifit_sync_dam_smooth_request__sendbatch(uint32_t channel, const ifit_sync_dam_smooth_request *recs, uint32_t n, uint32_t destination);
int ifit_sync_dam_smooth_request__sendmsg(uint32_t channel, const ifit_sync_dam_smooth_request *recs, uint32_t n);
int ifit_sync_dam_smooth_request__sendtomsg(uint32_t channel, const ifit_sync_dam_smooth_request *recs, uint32_t n, uint32_t destination);

int ifit_sync_recv_init(void);
int ifit_sync_send_init(void);
void ifit_sync__send_resource_clean(void);

#ifdef __cplusplus
}
#endif

#endif
