/* ifit.h: records and operations of the ifit messages. Printed from the catalogue by `./run headers`; do not edit.
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
 * ifit_recv_init registers every message's X__unpack and X_free__unpacked with the messaging library, in the order of this
 *   file; it returns 0 or the library's first other result, after which the later ones are not registered.
 * ifit_send_init registers ifit__send_resource_clean, which does nothing, and returns the library's result.
 *   Sending works without either, and so do X__pack, X__unpack and X_free__unpacked.
 */
#ifndef KESTO_IFIT_H
#define KESTO_IFIT_H

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
 * Global tables. Control tables: global settings, mcp, test type and paf. A row and a key travel alone, rows in an
 *   update and keys in a delete. Slot 0 of both lists is a number that nothing compares with the count of the list.
 *   Messages: ifit_global_mesh, ifit_mcp_mesh, ifit_test_type_mesh, ifit_paf_mesh.
 *
 * Flow tables. Control tables that describe measured flows: the base flow, its SRv6 policy, tuple and VPN attributes,
 *   the dynamic flow, loss and delay. Messages: ifit_flow_base_mesh, ifit_flow_srv6policy_mesh, ifit_dyn_flow_mesh,
 *   ifit_flow_tuplev4_mesh, ifit_flow_tuplev6_mesh, ifit_flow_vpn_mesh, ifit_flow_loss_mesh, ifit_flow_delay_mesh.
 *
 * Rule and native-IP tables. Control tables for rules, and for native IP: learning, interfaces, colour clearing,
 *   automatic detection, learned VPNs and interfaces. Messages: ifit_rule_mesh, ifit_native_ip_learn_mesh,
 *   ifit_native_ip_intf_mesh, ifit_native_ip_intf_color_clear_mesh, ifit_native_ip_intf_auto_detect_mesh,
 *   ifit_color_intf_mesh, ifit_lrn_vpn_mesh, ifit_lrn_intf_mesh.
 *
 * Dynamic flow reports. Report flows that were created dynamically, at the ingress for IPv4 and IPv6 and at middle or
 *   egress nodes, and the removal of whitelist instances. Each record has a list, in the shape of an update. Messages:
 *   ifit_report_ifit_add_mesh, ifit_report_app_ifit_add_mesh, ifit_ingress_ipv4_dyn_flow_mesh,
 *   ifit_ingress_ipv4_dyn_flow_oper_mesh, ifit_ingress_ipv6_dyn_flow_mesh, ifit_ingress_ipv6_dyn_flow_oper_mesh,
 *   ifit_dyn_flow_mid_or_egress_mesh, ifit_dyn_flow_mid_or_egress_oper_mesh, ifit_notify_whitelist_dyninst_delete_mesh,
 *   ifit_whitelist_dyninst_delete_mesh.
 *
 * Smoothing and PID exchange. By their names, the messages that bracket a smoothing run, and that ask for and report
 *   PID values. Messages: ifit_smooth_mesh, ifit_smooth_begin_mesh, ifit_smooth_end_mesh, ifit_dam_smooth_request,
 *   ifit_request_pid_value_mesh, ifit_request_app_pid_smooth_mesh, ifit_pid_state_mesh.
 *
 * Statistics export. Measured statistics: of an instance to mcp, of flows and hops to mdtlm. The lists to mdtlm have
 *   the vector first and a number after it; the list to mcp has them the other way round. Messages:
 *   ifit_instance_statistics_to_mcp_mesh, ifit_statistics_to_mcp_mesh, ifit_flow_statistics_entry_to_mdtlm,
 *   ifit_flow_statistics_list_to_mdtlm, ifit_flow_hop_statistics_entry_to_mdtlm, ifit_flow_hop_statistics_list_to_mdtlm.
 */

/* ifit_smooth_mesh: Fixed form of 24 bytes, compact form of 16 to 24. Owns no memory. */
typedef struct ifit_smooth_mesh {
    uint32_t f0;
    uint32_t f1;
} ifit_smooth_mesh;

#define IFIT_SMOOTH_MESH_ID UINT32_C(0x24c4689f)

uint32_t ifit_smooth_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_smooth_mesh *rec);
void ifit_smooth_mesh_free__unpacked(ifit_smooth_mesh *rec);
int ifit_smooth_mesh__pack(const ifit_smooth_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_smooth_mesh__sendsingle(uint32_t channel, const ifit_smooth_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_smooth_mesh__sendbatch(uint32_t channel, const ifit_smooth_mesh *recs, uint32_t n, uint32_t destination);
int ifit_smooth_mesh__sendmsg(uint32_t channel, const ifit_smooth_mesh *recs, uint32_t n);
int ifit_smooth_mesh__sendtomsg(uint32_t channel, const ifit_smooth_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_global_mesh: Fixed form of 80 bytes, compact form of 44 to 80. Owns no memory. */
typedef struct ifit_global_mesh {
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
    uint16_t f15;
} ifit_global_mesh;

#define IFIT_GLOBAL_MESH_ID UINT32_C(0x4b6a5078)

uint32_t ifit_global_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_global_mesh *rec);
void ifit_global_mesh_free__unpacked(ifit_global_mesh *rec);
int ifit_global_mesh__pack(const ifit_global_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_global_mesh__sendsingle(uint32_t channel, const ifit_global_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_global_mesh__sendbatch(uint32_t channel, const ifit_global_mesh *recs, uint32_t n, uint32_t destination);
int ifit_global_mesh__sendmsg(uint32_t channel, const ifit_global_mesh *recs, uint32_t n);
int ifit_global_mesh__sendtomsg(uint32_t channel, const ifit_global_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_global_mesh_key: Key of ifit_global_mesh: its slot 0. Fixed form of 24 bytes, compact form of 14 to 18. Owns no
 * memory. */
typedef struct ifit_global_mesh_key {
    uint32_t f0;
} ifit_global_mesh_key;

#define IFIT_GLOBAL_MESH_KEY_ID UINT32_C(0xc810538c)

uint32_t ifit_global_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_global_mesh_key *rec);
void ifit_global_mesh_key_free__unpacked(ifit_global_mesh_key *rec);
int ifit_global_mesh_key__pack(const ifit_global_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_global_mesh_key__sendsingle(uint32_t channel, const ifit_global_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_global_mesh_key__sendbatch(uint32_t channel, const ifit_global_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_global_mesh_key__sendmsg(uint32_t channel, const ifit_global_mesh_key *recs, uint32_t n);
int ifit_global_mesh_key__sendtomsg(uint32_t channel, const ifit_global_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_global_mesh_update: Update of ifit_global_mesh: a list of whole records. Compact form of 16 bytes and more. Owns
 * its elements. */
typedef struct ifit_global_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_global_mesh *items; } f1;
} ifit_global_mesh_update;

#define IFIT_GLOBAL_MESH_UPDATE_ID UINT32_C(0x12ea2214)

uint32_t ifit_global_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_global_mesh_update *rec);
void ifit_global_mesh_update_free__unpacked(ifit_global_mesh_update *rec);
int ifit_global_mesh_update__pack(const ifit_global_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_global_mesh_update__sendsingle(uint32_t channel, const ifit_global_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_global_mesh_update__sendbatch(uint32_t channel, const ifit_global_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_global_mesh_update__sendmsg(uint32_t channel, const ifit_global_mesh_update *recs, uint32_t n);
int ifit_global_mesh_update__sendtomsg(uint32_t channel, const ifit_global_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_global_mesh_delete: Delete of ifit_global_mesh: a list of keys. Compact form of 16 bytes and more. Owns its
 * elements. */
typedef struct ifit_global_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_global_mesh_key *items; } f1;
} ifit_global_mesh_delete;

#define IFIT_GLOBAL_MESH_DELETE_ID UINT32_C(0xfc5efdea)

uint32_t ifit_global_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_global_mesh_delete *rec);
void ifit_global_mesh_delete_free__unpacked(ifit_global_mesh_delete *rec);
int ifit_global_mesh_delete__pack(const ifit_global_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_global_mesh_delete__sendsingle(uint32_t channel, const ifit_global_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_global_mesh_delete__sendbatch(uint32_t channel, const ifit_global_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_global_mesh_delete__sendmsg(uint32_t channel, const ifit_global_mesh_delete *recs, uint32_t n);
int ifit_global_mesh_delete__sendtomsg(uint32_t channel, const ifit_global_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_mcp_mesh: Fixed form of 40 bytes, compact form of 24 to 40. Owns no memory. */
typedef struct ifit_mcp_mesh {
    uint32_t f0;
    uint8_t f1;
    uint8_t f2;
    uint16_t f3;
    uint32_t f4;
    uint32_t f5;
} ifit_mcp_mesh;

#define IFIT_MCP_MESH_ID UINT32_C(0x2492d87f)

uint32_t ifit_mcp_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_mcp_mesh *rec);
void ifit_mcp_mesh_free__unpacked(ifit_mcp_mesh *rec);
int ifit_mcp_mesh__pack(const ifit_mcp_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_mcp_mesh__sendsingle(uint32_t channel, const ifit_mcp_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_mcp_mesh__sendbatch(uint32_t channel, const ifit_mcp_mesh *recs, uint32_t n, uint32_t destination);
int ifit_mcp_mesh__sendmsg(uint32_t channel, const ifit_mcp_mesh *recs, uint32_t n);
int ifit_mcp_mesh__sendtomsg(uint32_t channel, const ifit_mcp_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_mcp_mesh_key: Key of ifit_mcp_mesh: its slot 0. Fixed form of 24 bytes, compact form of 14 to 18. Owns no
 * memory. */
typedef struct ifit_mcp_mesh_key {
    uint32_t f0;
} ifit_mcp_mesh_key;

#define IFIT_MCP_MESH_KEY_ID UINT32_C(0x4e8e7dbf)

uint32_t ifit_mcp_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_mcp_mesh_key *rec);
void ifit_mcp_mesh_key_free__unpacked(ifit_mcp_mesh_key *rec);
int ifit_mcp_mesh_key__pack(const ifit_mcp_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_mcp_mesh_key__sendsingle(uint32_t channel, const ifit_mcp_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_mcp_mesh_key__sendbatch(uint32_t channel, const ifit_mcp_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_mcp_mesh_key__sendmsg(uint32_t channel, const ifit_mcp_mesh_key *recs, uint32_t n);
int ifit_mcp_mesh_key__sendtomsg(uint32_t channel, const ifit_mcp_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_mcp_mesh_update: Update of ifit_mcp_mesh: a list of whole records. Compact form of 16 bytes and more. Owns its
 * elements. */
typedef struct ifit_mcp_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_mcp_mesh *items; } f1;
} ifit_mcp_mesh_update;

#define IFIT_MCP_MESH_UPDATE_ID UINT32_C(0x10ccf041)

uint32_t ifit_mcp_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_mcp_mesh_update *rec);
void ifit_mcp_mesh_update_free__unpacked(ifit_mcp_mesh_update *rec);
int ifit_mcp_mesh_update__pack(const ifit_mcp_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_mcp_mesh_update__sendsingle(uint32_t channel, const ifit_mcp_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_mcp_mesh_update__sendbatch(uint32_t channel, const ifit_mcp_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_mcp_mesh_update__sendmsg(uint32_t channel, const ifit_mcp_mesh_update *recs, uint32_t n);
int ifit_mcp_mesh_update__sendtomsg(uint32_t channel, const ifit_mcp_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_mcp_mesh_delete: Delete of ifit_mcp_mesh: a list of keys. Compact form of 16 bytes and more. Owns its elements.
 * */
typedef struct ifit_mcp_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_mcp_mesh_key *items; } f1;
} ifit_mcp_mesh_delete;

#define IFIT_MCP_MESH_DELETE_ID UINT32_C(0x139f193b)

uint32_t ifit_mcp_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_mcp_mesh_delete *rec);
void ifit_mcp_mesh_delete_free__unpacked(ifit_mcp_mesh_delete *rec);
int ifit_mcp_mesh_delete__pack(const ifit_mcp_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_mcp_mesh_delete__sendsingle(uint32_t channel, const ifit_mcp_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_mcp_mesh_delete__sendbatch(uint32_t channel, const ifit_mcp_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_mcp_mesh_delete__sendmsg(uint32_t channel, const ifit_mcp_mesh_delete *recs, uint32_t n);
int ifit_mcp_mesh_delete__sendtomsg(uint32_t channel, const ifit_mcp_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_flow_base_mesh: Fixed form of 88 bytes, compact form of 36 to 84. Owns no memory. */
typedef struct ifit_flow_base_mesh {
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
} ifit_flow_base_mesh;

#define IFIT_FLOW_BASE_MESH_ID UINT32_C(0xddcefc7b)

uint32_t ifit_flow_base_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_flow_base_mesh *rec);
void ifit_flow_base_mesh_free__unpacked(ifit_flow_base_mesh *rec);
int ifit_flow_base_mesh__pack(const ifit_flow_base_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_base_mesh__sendsingle(uint32_t channel, const ifit_flow_base_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_flow_base_mesh__sendbatch(uint32_t channel, const ifit_flow_base_mesh *recs, uint32_t n, uint32_t destination);
int ifit_flow_base_mesh__sendmsg(uint32_t channel, const ifit_flow_base_mesh *recs, uint32_t n);
int ifit_flow_base_mesh__sendtomsg(uint32_t channel, const ifit_flow_base_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_flow_base_mesh_key: Key of ifit_flow_base_mesh: its slots 0 to 2. Fixed form of 40 bytes, compact form of 18 to
 * 34. Owns no memory. */
typedef struct ifit_flow_base_mesh_key {
    uint32_t f0;
    uint32_t f1;
    kesto_u64 f2;
} ifit_flow_base_mesh_key;

#define IFIT_FLOW_BASE_MESH_KEY_ID UINT32_C(0x1df4625b)

uint32_t ifit_flow_base_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_flow_base_mesh_key *rec);
void ifit_flow_base_mesh_key_free__unpacked(ifit_flow_base_mesh_key *rec);
int ifit_flow_base_mesh_key__pack(const ifit_flow_base_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_base_mesh_key__sendsingle(uint32_t channel, const ifit_flow_base_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_flow_base_mesh_key__sendbatch(uint32_t channel, const ifit_flow_base_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_flow_base_mesh_key__sendmsg(uint32_t channel, const ifit_flow_base_mesh_key *recs, uint32_t n);
int ifit_flow_base_mesh_key__sendtomsg(uint32_t channel, const ifit_flow_base_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_flow_base_mesh_update: Update of ifit_flow_base_mesh: a list of whole records. Compact form of 16 bytes and
 * more. Owns its elements. */
typedef struct ifit_flow_base_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_flow_base_mesh *items; } f1;
} ifit_flow_base_mesh_update;

#define IFIT_FLOW_BASE_MESH_UPDATE_ID UINT32_C(0x391b57cd)

uint32_t ifit_flow_base_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_flow_base_mesh_update *rec);
void ifit_flow_base_mesh_update_free__unpacked(ifit_flow_base_mesh_update *rec);
int ifit_flow_base_mesh_update__pack(const ifit_flow_base_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_base_mesh_update__sendsingle(uint32_t channel, const ifit_flow_base_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_flow_base_mesh_update__sendbatch(uint32_t channel, const ifit_flow_base_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_flow_base_mesh_update__sendmsg(uint32_t channel, const ifit_flow_base_mesh_update *recs, uint32_t n);
int ifit_flow_base_mesh_update__sendtomsg(uint32_t channel, const ifit_flow_base_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_flow_base_mesh_delete: Delete of ifit_flow_base_mesh: a list of keys. Compact form of 16 bytes and more. Owns
 * its elements. */
typedef struct ifit_flow_base_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_flow_base_mesh_key *items; } f1;
} ifit_flow_base_mesh_delete;

#define IFIT_FLOW_BASE_MESH_DELETE_ID UINT32_C(0xad9f5cc7)

uint32_t ifit_flow_base_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_flow_base_mesh_delete *rec);
void ifit_flow_base_mesh_delete_free__unpacked(ifit_flow_base_mesh_delete *rec);
int ifit_flow_base_mesh_delete__pack(const ifit_flow_base_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_base_mesh_delete__sendsingle(uint32_t channel, const ifit_flow_base_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_flow_base_mesh_delete__sendbatch(uint32_t channel, const ifit_flow_base_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_flow_base_mesh_delete__sendmsg(uint32_t channel, const ifit_flow_base_mesh_delete *recs, uint32_t n);
int ifit_flow_base_mesh_delete__sendtomsg(uint32_t channel, const ifit_flow_base_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_flow_srv6policy_mesh: Fixed form of 160 bytes, compact form of 114 to 158. Owns no memory. */
typedef struct ifit_flow_srv6policy_mesh {
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
} ifit_flow_srv6policy_mesh;

#define IFIT_FLOW_SRV6POLICY_MESH_ID UINT32_C(0x1fd0a745)

uint32_t ifit_flow_srv6policy_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_flow_srv6policy_mesh *rec);
void ifit_flow_srv6policy_mesh_free__unpacked(ifit_flow_srv6policy_mesh *rec);
int ifit_flow_srv6policy_mesh__pack(const ifit_flow_srv6policy_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_srv6policy_mesh__sendsingle(uint32_t channel, const ifit_flow_srv6policy_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_flow_srv6policy_mesh__sendbatch(uint32_t channel, const ifit_flow_srv6policy_mesh *recs, uint32_t n, uint32_t destination);
int ifit_flow_srv6policy_mesh__sendmsg(uint32_t channel, const ifit_flow_srv6policy_mesh *recs, uint32_t n);
int ifit_flow_srv6policy_mesh__sendtomsg(uint32_t channel, const ifit_flow_srv6policy_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_flow_srv6policy_mesh_key: Key of ifit_flow_srv6policy_mesh, but cannot be cut from it: slot 2 is u64 here and
 * u32 there. Fixed form of 40 bytes, compact form of 18 to 34. Owns no memory. */
typedef struct ifit_flow_srv6policy_mesh_key {
    uint32_t f0;
    uint32_t f1;
    kesto_u64 f2;
} ifit_flow_srv6policy_mesh_key;

#define IFIT_FLOW_SRV6POLICY_MESH_KEY_ID UINT32_C(0xec771f95)

uint32_t ifit_flow_srv6policy_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_flow_srv6policy_mesh_key *rec);
void ifit_flow_srv6policy_mesh_key_free__unpacked(ifit_flow_srv6policy_mesh_key *rec);
int ifit_flow_srv6policy_mesh_key__pack(const ifit_flow_srv6policy_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_srv6policy_mesh_key__sendsingle(uint32_t channel, const ifit_flow_srv6policy_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_flow_srv6policy_mesh_key__sendbatch(uint32_t channel, const ifit_flow_srv6policy_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_flow_srv6policy_mesh_key__sendmsg(uint32_t channel, const ifit_flow_srv6policy_mesh_key *recs, uint32_t n);
int ifit_flow_srv6policy_mesh_key__sendtomsg(uint32_t channel, const ifit_flow_srv6policy_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_flow_srv6policy_mesh_update: Update of ifit_flow_srv6policy_mesh: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_flow_srv6policy_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_flow_srv6policy_mesh *items; } f1;
} ifit_flow_srv6policy_mesh_update;

#define IFIT_FLOW_SRV6POLICY_MESH_UPDATE_ID UINT32_C(0xfe78b7d7)

uint32_t ifit_flow_srv6policy_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_flow_srv6policy_mesh_update *rec);
void ifit_flow_srv6policy_mesh_update_free__unpacked(ifit_flow_srv6policy_mesh_update *rec);
int ifit_flow_srv6policy_mesh_update__pack(const ifit_flow_srv6policy_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_srv6policy_mesh_update__sendsingle(uint32_t channel, const ifit_flow_srv6policy_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_flow_srv6policy_mesh_update__sendbatch(uint32_t channel, const ifit_flow_srv6policy_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_flow_srv6policy_mesh_update__sendmsg(uint32_t channel, const ifit_flow_srv6policy_mesh_update *recs, uint32_t n);
int ifit_flow_srv6policy_mesh_update__sendtomsg(uint32_t channel, const ifit_flow_srv6policy_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_flow_srv6policy_mesh_delete: Delete of ifit_flow_srv6policy_mesh: a list of keys. Compact form of 16 bytes and
 * more. Owns its elements. */
typedef struct ifit_flow_srv6policy_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_flow_srv6policy_mesh_key *items; } f1;
} ifit_flow_srv6policy_mesh_delete;

#define IFIT_FLOW_SRV6POLICY_MESH_DELETE_ID UINT32_C(0x6af1bc39)

uint32_t ifit_flow_srv6policy_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_flow_srv6policy_mesh_delete *rec);
void ifit_flow_srv6policy_mesh_delete_free__unpacked(ifit_flow_srv6policy_mesh_delete *rec);
int ifit_flow_srv6policy_mesh_delete__pack(const ifit_flow_srv6policy_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_srv6policy_mesh_delete__sendsingle(uint32_t channel, const ifit_flow_srv6policy_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_flow_srv6policy_mesh_delete__sendbatch(uint32_t channel, const ifit_flow_srv6policy_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_flow_srv6policy_mesh_delete__sendmsg(uint32_t channel, const ifit_flow_srv6policy_mesh_delete *recs, uint32_t n);
int ifit_flow_srv6policy_mesh_delete__sendtomsg(uint32_t channel, const ifit_flow_srv6policy_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_dyn_flow_mesh: Fixed form of 136 bytes, compact form of 74 to 130. Owns no memory. */
typedef struct ifit_dyn_flow_mesh {
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
} ifit_dyn_flow_mesh;

#define IFIT_DYN_FLOW_MESH_ID UINT32_C(0x5261cdc9)

uint32_t ifit_dyn_flow_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dyn_flow_mesh *rec);
void ifit_dyn_flow_mesh_free__unpacked(ifit_dyn_flow_mesh *rec);
int ifit_dyn_flow_mesh__pack(const ifit_dyn_flow_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dyn_flow_mesh__sendsingle(uint32_t channel, const ifit_dyn_flow_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dyn_flow_mesh__sendbatch(uint32_t channel, const ifit_dyn_flow_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dyn_flow_mesh__sendmsg(uint32_t channel, const ifit_dyn_flow_mesh *recs, uint32_t n);
int ifit_dyn_flow_mesh__sendtomsg(uint32_t channel, const ifit_dyn_flow_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dyn_flow_mesh_key: Key of ifit_dyn_flow_mesh: its slots 0 to 2. Fixed form of 40 bytes, compact form of 18 to
 * 34. Owns no memory. */
typedef struct ifit_dyn_flow_mesh_key {
    uint32_t f0;
    uint32_t f1;
    kesto_u64 f2;
} ifit_dyn_flow_mesh_key;

#define IFIT_DYN_FLOW_MESH_KEY_ID UINT32_C(0xef1e0e89)

uint32_t ifit_dyn_flow_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_dyn_flow_mesh_key *rec);
void ifit_dyn_flow_mesh_key_free__unpacked(ifit_dyn_flow_mesh_key *rec);
int ifit_dyn_flow_mesh_key__pack(const ifit_dyn_flow_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_dyn_flow_mesh_key__sendsingle(uint32_t channel, const ifit_dyn_flow_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_dyn_flow_mesh_key__sendbatch(uint32_t channel, const ifit_dyn_flow_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_dyn_flow_mesh_key__sendmsg(uint32_t channel, const ifit_dyn_flow_mesh_key *recs, uint32_t n);
int ifit_dyn_flow_mesh_key__sendtomsg(uint32_t channel, const ifit_dyn_flow_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_dyn_flow_mesh_update: Update of ifit_dyn_flow_mesh: a list of whole records. Compact form of 16 bytes and more.
 * Owns its elements. */
typedef struct ifit_dyn_flow_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_dyn_flow_mesh *items; } f1;
} ifit_dyn_flow_mesh_update;

#define IFIT_DYN_FLOW_MESH_UPDATE_ID UINT32_C(0x75aea77b)

uint32_t ifit_dyn_flow_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_dyn_flow_mesh_update *rec);
void ifit_dyn_flow_mesh_update_free__unpacked(ifit_dyn_flow_mesh_update *rec);
int ifit_dyn_flow_mesh_update__pack(const ifit_dyn_flow_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_dyn_flow_mesh_update__sendsingle(uint32_t channel, const ifit_dyn_flow_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_dyn_flow_mesh_update__sendbatch(uint32_t channel, const ifit_dyn_flow_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_dyn_flow_mesh_update__sendmsg(uint32_t channel, const ifit_dyn_flow_mesh_update *recs, uint32_t n);
int ifit_dyn_flow_mesh_update__sendtomsg(uint32_t channel, const ifit_dyn_flow_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_dyn_flow_mesh_delete: Delete of ifit_dyn_flow_mesh: a list of keys. Compact form of 16 bytes and more. Owns its
 * elements. */
typedef struct ifit_dyn_flow_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_dyn_flow_mesh_key *items; } f1;
} ifit_dyn_flow_mesh_delete;

#define IFIT_DYN_FLOW_MESH_DELETE_ID UINT32_C(0x06a0235d)

uint32_t ifit_dyn_flow_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_dyn_flow_mesh_delete *rec);
void ifit_dyn_flow_mesh_delete_free__unpacked(ifit_dyn_flow_mesh_delete *rec);
int ifit_dyn_flow_mesh_delete__pack(const ifit_dyn_flow_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_dyn_flow_mesh_delete__sendsingle(uint32_t channel, const ifit_dyn_flow_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_dyn_flow_mesh_delete__sendbatch(uint32_t channel, const ifit_dyn_flow_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_dyn_flow_mesh_delete__sendmsg(uint32_t channel, const ifit_dyn_flow_mesh_delete *recs, uint32_t n);
int ifit_dyn_flow_mesh_delete__sendtomsg(uint32_t channel, const ifit_dyn_flow_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_flow_loss_mesh: Fixed form of 48 bytes, compact form of 22 to 42. Owns no memory. */
typedef struct ifit_flow_loss_mesh {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint32_t f4;
} ifit_flow_loss_mesh;

#define IFIT_FLOW_LOSS_MESH_ID UINT32_C(0x9a046df1)

uint32_t ifit_flow_loss_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_flow_loss_mesh *rec);
void ifit_flow_loss_mesh_free__unpacked(ifit_flow_loss_mesh *rec);
int ifit_flow_loss_mesh__pack(const ifit_flow_loss_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_loss_mesh__sendsingle(uint32_t channel, const ifit_flow_loss_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_flow_loss_mesh__sendbatch(uint32_t channel, const ifit_flow_loss_mesh *recs, uint32_t n, uint32_t destination);
int ifit_flow_loss_mesh__sendmsg(uint32_t channel, const ifit_flow_loss_mesh *recs, uint32_t n);
int ifit_flow_loss_mesh__sendtomsg(uint32_t channel, const ifit_flow_loss_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_flow_loss_mesh_key: Key of ifit_flow_loss_mesh: its slots 0 to 1. Fixed form of 24 bytes, compact form of 16 to
 * 24. Owns no memory. */
typedef struct ifit_flow_loss_mesh_key {
    uint32_t f0;
    uint32_t f1;
} ifit_flow_loss_mesh_key;

#define IFIT_FLOW_LOSS_MESH_KEY_ID UINT32_C(0x6a86dc61)

uint32_t ifit_flow_loss_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_flow_loss_mesh_key *rec);
void ifit_flow_loss_mesh_key_free__unpacked(ifit_flow_loss_mesh_key *rec);
int ifit_flow_loss_mesh_key__pack(const ifit_flow_loss_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_loss_mesh_key__sendsingle(uint32_t channel, const ifit_flow_loss_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_flow_loss_mesh_key__sendbatch(uint32_t channel, const ifit_flow_loss_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_flow_loss_mesh_key__sendmsg(uint32_t channel, const ifit_flow_loss_mesh_key *recs, uint32_t n);
int ifit_flow_loss_mesh_key__sendtomsg(uint32_t channel, const ifit_flow_loss_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_flow_loss_mesh_update: Update of ifit_flow_loss_mesh: a list of whole records. Compact form of 16 bytes and
 * more. Owns its elements. */
typedef struct ifit_flow_loss_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_flow_loss_mesh *items; } f1;
} ifit_flow_loss_mesh_update;

#define IFIT_FLOW_LOSS_MESH_UPDATE_ID UINT32_C(0x4e8e2323)

uint32_t ifit_flow_loss_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_flow_loss_mesh_update *rec);
void ifit_flow_loss_mesh_update_free__unpacked(ifit_flow_loss_mesh_update *rec);
int ifit_flow_loss_mesh_update__pack(const ifit_flow_loss_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_loss_mesh_update__sendsingle(uint32_t channel, const ifit_flow_loss_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_flow_loss_mesh_update__sendbatch(uint32_t channel, const ifit_flow_loss_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_flow_loss_mesh_update__sendmsg(uint32_t channel, const ifit_flow_loss_mesh_update *recs, uint32_t n);
int ifit_flow_loss_mesh_update__sendtomsg(uint32_t channel, const ifit_flow_loss_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_flow_loss_mesh_delete: Delete of ifit_flow_loss_mesh: a list of keys. Compact form of 16 bytes and more. Owns
 * its elements. */
typedef struct ifit_flow_loss_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_flow_loss_mesh_key *items; } f1;
} ifit_flow_loss_mesh_delete;

#define IFIT_FLOW_LOSS_MESH_DELETE_ID UINT32_C(0x021f50d5)

uint32_t ifit_flow_loss_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_flow_loss_mesh_delete *rec);
void ifit_flow_loss_mesh_delete_free__unpacked(ifit_flow_loss_mesh_delete *rec);
int ifit_flow_loss_mesh_delete__pack(const ifit_flow_loss_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_loss_mesh_delete__sendsingle(uint32_t channel, const ifit_flow_loss_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_flow_loss_mesh_delete__sendbatch(uint32_t channel, const ifit_flow_loss_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_flow_loss_mesh_delete__sendmsg(uint32_t channel, const ifit_flow_loss_mesh_delete *recs, uint32_t n);
int ifit_flow_loss_mesh_delete__sendtomsg(uint32_t channel, const ifit_flow_loss_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_flow_delay_mesh: Fixed form of 48 bytes, compact form of 22 to 42. Owns no memory. */
typedef struct ifit_flow_delay_mesh {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint32_t f4;
} ifit_flow_delay_mesh;

#define IFIT_FLOW_DELAY_MESH_ID UINT32_C(0x5021f101)

uint32_t ifit_flow_delay_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_flow_delay_mesh *rec);
void ifit_flow_delay_mesh_free__unpacked(ifit_flow_delay_mesh *rec);
int ifit_flow_delay_mesh__pack(const ifit_flow_delay_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_delay_mesh__sendsingle(uint32_t channel, const ifit_flow_delay_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_flow_delay_mesh__sendbatch(uint32_t channel, const ifit_flow_delay_mesh *recs, uint32_t n, uint32_t destination);
int ifit_flow_delay_mesh__sendmsg(uint32_t channel, const ifit_flow_delay_mesh *recs, uint32_t n);
int ifit_flow_delay_mesh__sendtomsg(uint32_t channel, const ifit_flow_delay_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_flow_delay_mesh_key: Key of ifit_flow_delay_mesh: its slots 0 to 1. Fixed form of 24 bytes, compact form of 16
 * to 24. Owns no memory. */
typedef struct ifit_flow_delay_mesh_key {
    uint32_t f0;
    uint32_t f1;
} ifit_flow_delay_mesh_key;

#define IFIT_FLOW_DELAY_MESH_KEY_ID UINT32_C(0x46e78431)

uint32_t ifit_flow_delay_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_flow_delay_mesh_key *rec);
void ifit_flow_delay_mesh_key_free__unpacked(ifit_flow_delay_mesh_key *rec);
int ifit_flow_delay_mesh_key__pack(const ifit_flow_delay_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_delay_mesh_key__sendsingle(uint32_t channel, const ifit_flow_delay_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_flow_delay_mesh_key__sendbatch(uint32_t channel, const ifit_flow_delay_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_flow_delay_mesh_key__sendmsg(uint32_t channel, const ifit_flow_delay_mesh_key *recs, uint32_t n);
int ifit_flow_delay_mesh_key__sendtomsg(uint32_t channel, const ifit_flow_delay_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_flow_delay_mesh_update: Update of ifit_flow_delay_mesh: a list of whole records. Compact form of 16 bytes and
 * more. Owns its elements. */
typedef struct ifit_flow_delay_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_flow_delay_mesh *items; } f1;
} ifit_flow_delay_mesh_update;

#define IFIT_FLOW_DELAY_MESH_UPDATE_ID UINT32_C(0xd94827d3)

uint32_t ifit_flow_delay_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_flow_delay_mesh_update *rec);
void ifit_flow_delay_mesh_update_free__unpacked(ifit_flow_delay_mesh_update *rec);
int ifit_flow_delay_mesh_update__pack(const ifit_flow_delay_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_delay_mesh_update__sendsingle(uint32_t channel, const ifit_flow_delay_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_flow_delay_mesh_update__sendbatch(uint32_t channel, const ifit_flow_delay_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_flow_delay_mesh_update__sendmsg(uint32_t channel, const ifit_flow_delay_mesh_update *recs, uint32_t n);
int ifit_flow_delay_mesh_update__sendtomsg(uint32_t channel, const ifit_flow_delay_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_flow_delay_mesh_delete: Delete of ifit_flow_delay_mesh: a list of keys. Compact form of 16 bytes and more. Owns
 * its elements. */
typedef struct ifit_flow_delay_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_flow_delay_mesh_key *items; } f1;
} ifit_flow_delay_mesh_delete;

#define IFIT_FLOW_DELAY_MESH_DELETE_ID UINT32_C(0x4bd6c8c5)

uint32_t ifit_flow_delay_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_flow_delay_mesh_delete *rec);
void ifit_flow_delay_mesh_delete_free__unpacked(ifit_flow_delay_mesh_delete *rec);
int ifit_flow_delay_mesh_delete__pack(const ifit_flow_delay_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_delay_mesh_delete__sendsingle(uint32_t channel, const ifit_flow_delay_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_flow_delay_mesh_delete__sendbatch(uint32_t channel, const ifit_flow_delay_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_flow_delay_mesh_delete__sendmsg(uint32_t channel, const ifit_flow_delay_mesh_delete *recs, uint32_t n);
int ifit_flow_delay_mesh_delete__sendtomsg(uint32_t channel, const ifit_flow_delay_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_test_type_mesh: Fixed form of 48 bytes, compact form of 26 to 46. Owns no memory. */
typedef struct ifit_test_type_mesh {
    uint32_t f0;
    uint32_t f1;
    uint8_t f2;
    uint8_t f3;
    uint16_t f4;
    uint32_t f5;
    uint32_t f6;
} ifit_test_type_mesh;

#define IFIT_TEST_TYPE_MESH_ID UINT32_C(0x8a5d89a8)

uint32_t ifit_test_type_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_test_type_mesh *rec);
void ifit_test_type_mesh_free__unpacked(ifit_test_type_mesh *rec);
int ifit_test_type_mesh__pack(const ifit_test_type_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_test_type_mesh__sendsingle(uint32_t channel, const ifit_test_type_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_test_type_mesh__sendbatch(uint32_t channel, const ifit_test_type_mesh *recs, uint32_t n, uint32_t destination);
int ifit_test_type_mesh__sendmsg(uint32_t channel, const ifit_test_type_mesh *recs, uint32_t n);
int ifit_test_type_mesh__sendtomsg(uint32_t channel, const ifit_test_type_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_test_type_mesh_key: Key of ifit_test_type_mesh: its slots 0 to 1. Fixed form of 24 bytes, compact form of 16 to
 * 24. Owns no memory. */
typedef struct ifit_test_type_mesh_key {
    uint32_t f0;
    uint32_t f1;
} ifit_test_type_mesh_key;

#define IFIT_TEST_TYPE_MESH_KEY_ID UINT32_C(0x1add95fc)

uint32_t ifit_test_type_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_test_type_mesh_key *rec);
void ifit_test_type_mesh_key_free__unpacked(ifit_test_type_mesh_key *rec);
int ifit_test_type_mesh_key__pack(const ifit_test_type_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_test_type_mesh_key__sendsingle(uint32_t channel, const ifit_test_type_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_test_type_mesh_key__sendbatch(uint32_t channel, const ifit_test_type_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_test_type_mesh_key__sendmsg(uint32_t channel, const ifit_test_type_mesh_key *recs, uint32_t n);
int ifit_test_type_mesh_key__sendtomsg(uint32_t channel, const ifit_test_type_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_test_type_mesh_update: Update of ifit_test_type_mesh: a list of whole records. Compact form of 16 bytes and
 * more. Owns its elements. */
typedef struct ifit_test_type_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_test_type_mesh *items; } f1;
} ifit_test_type_mesh_update;

#define IFIT_TEST_TYPE_MESH_UPDATE_ID UINT32_C(0x7c6083e4)

uint32_t ifit_test_type_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_test_type_mesh_update *rec);
void ifit_test_type_mesh_update_free__unpacked(ifit_test_type_mesh_update *rec);
int ifit_test_type_mesh_update__pack(const ifit_test_type_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_test_type_mesh_update__sendsingle(uint32_t channel, const ifit_test_type_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_test_type_mesh_update__sendbatch(uint32_t channel, const ifit_test_type_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_test_type_mesh_update__sendmsg(uint32_t channel, const ifit_test_type_mesh_update *recs, uint32_t n);
int ifit_test_type_mesh_update__sendtomsg(uint32_t channel, const ifit_test_type_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_test_type_mesh_delete: Delete of ifit_test_type_mesh: a list of keys. Compact form of 16 bytes and more. Owns
 * its elements. */
typedef struct ifit_test_type_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_test_type_mesh_key *items; } f1;
} ifit_test_type_mesh_delete;

#define IFIT_TEST_TYPE_MESH_DELETE_ID UINT32_C(0x057dbbfa)

uint32_t ifit_test_type_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_test_type_mesh_delete *rec);
void ifit_test_type_mesh_delete_free__unpacked(ifit_test_type_mesh_delete *rec);
int ifit_test_type_mesh_delete__pack(const ifit_test_type_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_test_type_mesh_delete__sendsingle(uint32_t channel, const ifit_test_type_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_test_type_mesh_delete__sendbatch(uint32_t channel, const ifit_test_type_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_test_type_mesh_delete__sendmsg(uint32_t channel, const ifit_test_type_mesh_delete *recs, uint32_t n);
int ifit_test_type_mesh_delete__sendtomsg(uint32_t channel, const ifit_test_type_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_rule_mesh: Fixed form of 144 bytes, compact form of 102 to 142. Owns no memory. */
typedef struct ifit_rule_mesh {
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
} ifit_rule_mesh;

#define IFIT_RULE_MESH_ID UINT32_C(0x5dd885e3)

uint32_t ifit_rule_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_rule_mesh *rec);
void ifit_rule_mesh_free__unpacked(ifit_rule_mesh *rec);
int ifit_rule_mesh__pack(const ifit_rule_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_rule_mesh__sendsingle(uint32_t channel, const ifit_rule_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_rule_mesh__sendbatch(uint32_t channel, const ifit_rule_mesh *recs, uint32_t n, uint32_t destination);
int ifit_rule_mesh__sendmsg(uint32_t channel, const ifit_rule_mesh *recs, uint32_t n);
int ifit_rule_mesh__sendtomsg(uint32_t channel, const ifit_rule_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_rule_mesh_key: Key of ifit_rule_mesh: its slots 0 to 2. Fixed form of 32 bytes, compact form of 18 to 30. Owns
 * no memory. */
typedef struct ifit_rule_mesh_key {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
} ifit_rule_mesh_key;

#define IFIT_RULE_MESH_KEY_ID UINT32_C(0x68a43113)

uint32_t ifit_rule_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_rule_mesh_key *rec);
void ifit_rule_mesh_key_free__unpacked(ifit_rule_mesh_key *rec);
int ifit_rule_mesh_key__pack(const ifit_rule_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_rule_mesh_key__sendsingle(uint32_t channel, const ifit_rule_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_rule_mesh_key__sendbatch(uint32_t channel, const ifit_rule_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_rule_mesh_key__sendmsg(uint32_t channel, const ifit_rule_mesh_key *recs, uint32_t n);
int ifit_rule_mesh_key__sendtomsg(uint32_t channel, const ifit_rule_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_rule_mesh_update: Update of ifit_rule_mesh: a list of whole records. Compact form of 16 bytes and more. Owns its
 * elements. */
typedef struct ifit_rule_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_rule_mesh *items; } f1;
} ifit_rule_mesh_update;

#define IFIT_RULE_MESH_UPDATE_ID UINT32_C(0x950523d5)

uint32_t ifit_rule_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_rule_mesh_update *rec);
void ifit_rule_mesh_update_free__unpacked(ifit_rule_mesh_update *rec);
int ifit_rule_mesh_update__pack(const ifit_rule_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_rule_mesh_update__sendsingle(uint32_t channel, const ifit_rule_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_rule_mesh_update__sendbatch(uint32_t channel, const ifit_rule_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_rule_mesh_update__sendmsg(uint32_t channel, const ifit_rule_mesh_update *recs, uint32_t n);
int ifit_rule_mesh_update__sendtomsg(uint32_t channel, const ifit_rule_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_rule_mesh_delete: Delete of ifit_rule_mesh: a list of keys. Compact form of 16 bytes and more. Owns its
 * elements. */
typedef struct ifit_rule_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_rule_mesh_key *items; } f1;
} ifit_rule_mesh_delete;

#define IFIT_RULE_MESH_DELETE_ID UINT32_C(0x481942bf)

uint32_t ifit_rule_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_rule_mesh_delete *rec);
void ifit_rule_mesh_delete_free__unpacked(ifit_rule_mesh_delete *rec);
int ifit_rule_mesh_delete__pack(const ifit_rule_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_rule_mesh_delete__sendsingle(uint32_t channel, const ifit_rule_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_rule_mesh_delete__sendbatch(uint32_t channel, const ifit_rule_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_rule_mesh_delete__sendmsg(uint32_t channel, const ifit_rule_mesh_delete *recs, uint32_t n);
int ifit_rule_mesh_delete__sendtomsg(uint32_t channel, const ifit_rule_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_learn_mesh: Fixed form of 40 bytes, compact form of 28 to 40. Owns no memory. */
typedef struct ifit_native_ip_learn_mesh {
    uint32_t f0;
    uint8_t f1;
    uint8_t f2;
    uint16_t f3;
    uint8_t f4;
    uint8_t f5;
    uint8_t f6;
    uint8_t f7;
} ifit_native_ip_learn_mesh;

#define IFIT_NATIVE_IP_LEARN_MESH_ID UINT32_C(0x0bd6eecf)

uint32_t ifit_native_ip_learn_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_learn_mesh *rec);
void ifit_native_ip_learn_mesh_free__unpacked(ifit_native_ip_learn_mesh *rec);
int ifit_native_ip_learn_mesh__pack(const ifit_native_ip_learn_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_learn_mesh__sendsingle(uint32_t channel, const ifit_native_ip_learn_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_learn_mesh__sendbatch(uint32_t channel, const ifit_native_ip_learn_mesh *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_learn_mesh__sendmsg(uint32_t channel, const ifit_native_ip_learn_mesh *recs, uint32_t n);
int ifit_native_ip_learn_mesh__sendtomsg(uint32_t channel, const ifit_native_ip_learn_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_learn_mesh_key: Key of ifit_native_ip_learn_mesh: its slot 0. Fixed form of 24 bytes, compact form of
 * 14 to 18. Owns no memory. */
typedef struct ifit_native_ip_learn_mesh_key {
    uint32_t f0;
} ifit_native_ip_learn_mesh_key;

#define IFIT_NATIVE_IP_LEARN_MESH_KEY_ID UINT32_C(0x1a33c7cf)

uint32_t ifit_native_ip_learn_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_learn_mesh_key *rec);
void ifit_native_ip_learn_mesh_key_free__unpacked(ifit_native_ip_learn_mesh_key *rec);
int ifit_native_ip_learn_mesh_key__pack(const ifit_native_ip_learn_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_learn_mesh_key__sendsingle(uint32_t channel, const ifit_native_ip_learn_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_learn_mesh_key__sendbatch(uint32_t channel, const ifit_native_ip_learn_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_learn_mesh_key__sendmsg(uint32_t channel, const ifit_native_ip_learn_mesh_key *recs, uint32_t n);
int ifit_native_ip_learn_mesh_key__sendtomsg(uint32_t channel, const ifit_native_ip_learn_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_learn_mesh_update: Update of ifit_native_ip_learn_mesh: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_native_ip_learn_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_native_ip_learn_mesh *items; } f1;
} ifit_native_ip_learn_mesh_update;

#define IFIT_NATIVE_IP_LEARN_MESH_UPDATE_ID UINT32_C(0x991b10f1)

uint32_t ifit_native_ip_learn_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_learn_mesh_update *rec);
void ifit_native_ip_learn_mesh_update_free__unpacked(ifit_native_ip_learn_mesh_update *rec);
int ifit_native_ip_learn_mesh_update__pack(const ifit_native_ip_learn_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_learn_mesh_update__sendsingle(uint32_t channel, const ifit_native_ip_learn_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_learn_mesh_update__sendbatch(uint32_t channel, const ifit_native_ip_learn_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_learn_mesh_update__sendmsg(uint32_t channel, const ifit_native_ip_learn_mesh_update *recs, uint32_t n);
int ifit_native_ip_learn_mesh_update__sendtomsg(uint32_t channel, const ifit_native_ip_learn_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_learn_mesh_delete: Delete of ifit_native_ip_learn_mesh: a list of keys. Compact form of 16 bytes and
 * more. Owns its elements. */
typedef struct ifit_native_ip_learn_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_native_ip_learn_mesh_key *items; } f1;
} ifit_native_ip_learn_mesh_delete;

#define IFIT_NATIVE_IP_LEARN_MESH_DELETE_ID UINT32_C(0x9aaff62b)

uint32_t ifit_native_ip_learn_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_learn_mesh_delete *rec);
void ifit_native_ip_learn_mesh_delete_free__unpacked(ifit_native_ip_learn_mesh_delete *rec);
int ifit_native_ip_learn_mesh_delete__pack(const ifit_native_ip_learn_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_learn_mesh_delete__sendsingle(uint32_t channel, const ifit_native_ip_learn_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_learn_mesh_delete__sendbatch(uint32_t channel, const ifit_native_ip_learn_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_learn_mesh_delete__sendmsg(uint32_t channel, const ifit_native_ip_learn_mesh_delete *recs, uint32_t n);
int ifit_native_ip_learn_mesh_delete__sendtomsg(uint32_t channel, const ifit_native_ip_learn_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_intf_mesh: Fixed form of 48 bytes, compact form of 26 to 42. Owns no memory. */
typedef struct ifit_native_ip_intf_mesh {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint8_t f3;
    uint8_t f4;
    uint8_t f5;
    uint8_t f6;
} ifit_native_ip_intf_mesh;

#define IFIT_NATIVE_IP_INTF_MESH_ID UINT32_C(0xcf1c1b24)

uint32_t ifit_native_ip_intf_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_intf_mesh *rec);
void ifit_native_ip_intf_mesh_free__unpacked(ifit_native_ip_intf_mesh *rec);
int ifit_native_ip_intf_mesh__pack(const ifit_native_ip_intf_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_intf_mesh__sendsingle(uint32_t channel, const ifit_native_ip_intf_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_intf_mesh__sendbatch(uint32_t channel, const ifit_native_ip_intf_mesh *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_intf_mesh__sendmsg(uint32_t channel, const ifit_native_ip_intf_mesh *recs, uint32_t n);
int ifit_native_ip_intf_mesh__sendtomsg(uint32_t channel, const ifit_native_ip_intf_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_intf_mesh_key: Key of ifit_native_ip_intf_mesh: its slots 0 to 2. Fixed form of 32 bytes, compact form
 * of 18 to 30. Owns no memory. */
typedef struct ifit_native_ip_intf_mesh_key {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
} ifit_native_ip_intf_mesh_key;

#define IFIT_NATIVE_IP_INTF_MESH_KEY_ID UINT32_C(0xabc333e8)

uint32_t ifit_native_ip_intf_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_intf_mesh_key *rec);
void ifit_native_ip_intf_mesh_key_free__unpacked(ifit_native_ip_intf_mesh_key *rec);
int ifit_native_ip_intf_mesh_key__pack(const ifit_native_ip_intf_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_intf_mesh_key__sendsingle(uint32_t channel, const ifit_native_ip_intf_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_intf_mesh_key__sendbatch(uint32_t channel, const ifit_native_ip_intf_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_intf_mesh_key__sendmsg(uint32_t channel, const ifit_native_ip_intf_mesh_key *recs, uint32_t n);
int ifit_native_ip_intf_mesh_key__sendtomsg(uint32_t channel, const ifit_native_ip_intf_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_intf_mesh_update: Update of ifit_native_ip_intf_mesh: a list of whole records. Compact form of 16
 * bytes and more. Owns its elements. */
typedef struct ifit_native_ip_intf_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_native_ip_intf_mesh *items; } f1;
} ifit_native_ip_intf_mesh_update;

#define IFIT_NATIVE_IP_INTF_MESH_UPDATE_ID UINT32_C(0x6eb72320)

uint32_t ifit_native_ip_intf_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_intf_mesh_update *rec);
void ifit_native_ip_intf_mesh_update_free__unpacked(ifit_native_ip_intf_mesh_update *rec);
int ifit_native_ip_intf_mesh_update__pack(const ifit_native_ip_intf_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_intf_mesh_update__sendsingle(uint32_t channel, const ifit_native_ip_intf_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_intf_mesh_update__sendbatch(uint32_t channel, const ifit_native_ip_intf_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_intf_mesh_update__sendmsg(uint32_t channel, const ifit_native_ip_intf_mesh_update *recs, uint32_t n);
int ifit_native_ip_intf_mesh_update__sendtomsg(uint32_t channel, const ifit_native_ip_intf_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_intf_mesh_delete: Delete of ifit_native_ip_intf_mesh: a list of keys. Compact form of 16 bytes and
 * more. Owns its elements. */
typedef struct ifit_native_ip_intf_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_native_ip_intf_mesh_key *items; } f1;
} ifit_native_ip_intf_mesh_delete;

#define IFIT_NATIVE_IP_INTF_MESH_DELETE_ID UINT32_C(0x689e6ef6)

uint32_t ifit_native_ip_intf_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_intf_mesh_delete *rec);
void ifit_native_ip_intf_mesh_delete_free__unpacked(ifit_native_ip_intf_mesh_delete *rec);
int ifit_native_ip_intf_mesh_delete__pack(const ifit_native_ip_intf_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_intf_mesh_delete__sendsingle(uint32_t channel, const ifit_native_ip_intf_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_intf_mesh_delete__sendbatch(uint32_t channel, const ifit_native_ip_intf_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_intf_mesh_delete__sendmsg(uint32_t channel, const ifit_native_ip_intf_mesh_delete *recs, uint32_t n);
int ifit_native_ip_intf_mesh_delete__sendtomsg(uint32_t channel, const ifit_native_ip_intf_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_intf_color_clear_mesh: Fixed form of 40 bytes, compact form of 22 to 34. Owns no memory. */
typedef struct ifit_native_ip_intf_color_clear_mesh {
    uint32_t f0;
    uint32_t f1;
    uint8_t f2;
    uint8_t f3;
    uint16_t f4;
} ifit_native_ip_intf_color_clear_mesh;

#define IFIT_NATIVE_IP_INTF_COLOR_CLEAR_MESH_ID UINT32_C(0x1dd09182)

uint32_t ifit_native_ip_intf_color_clear_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_intf_color_clear_mesh *rec);
void ifit_native_ip_intf_color_clear_mesh_free__unpacked(ifit_native_ip_intf_color_clear_mesh *rec);
int ifit_native_ip_intf_color_clear_mesh__pack(const ifit_native_ip_intf_color_clear_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_intf_color_clear_mesh__sendsingle(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_intf_color_clear_mesh__sendbatch(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_intf_color_clear_mesh__sendmsg(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh *recs, uint32_t n);
int ifit_native_ip_intf_color_clear_mesh__sendtomsg(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_intf_color_clear_mesh_key: Key of ifit_native_ip_intf_color_clear_mesh: its slots 0 to 1. Fixed form
 * of 24 bytes, compact form of 16 to 24. Owns no memory. */
typedef struct ifit_native_ip_intf_color_clear_mesh_key {
    uint32_t f0;
    uint32_t f1;
} ifit_native_ip_intf_color_clear_mesh_key;

#define IFIT_NATIVE_IP_INTF_COLOR_CLEAR_MESH_KEY_ID UINT32_C(0xb8c4895e)

uint32_t ifit_native_ip_intf_color_clear_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_intf_color_clear_mesh_key *rec);
void ifit_native_ip_intf_color_clear_mesh_key_free__unpacked(ifit_native_ip_intf_color_clear_mesh_key *rec);
int ifit_native_ip_intf_color_clear_mesh_key__pack(const ifit_native_ip_intf_color_clear_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_intf_color_clear_mesh_key__sendsingle(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_intf_color_clear_mesh_key__sendbatch(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_intf_color_clear_mesh_key__sendmsg(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh_key *recs, uint32_t n);
int ifit_native_ip_intf_color_clear_mesh_key__sendtomsg(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_intf_color_clear_mesh_update: Update of ifit_native_ip_intf_color_clear_mesh: a list of whole records.
 * Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_native_ip_intf_color_clear_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_native_ip_intf_color_clear_mesh *items; } f1;
} ifit_native_ip_intf_color_clear_mesh_update;

#define IFIT_NATIVE_IP_INTF_COLOR_CLEAR_MESH_UPDATE_ID UINT32_C(0xdd886ab6)

uint32_t ifit_native_ip_intf_color_clear_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_intf_color_clear_mesh_update *rec);
void ifit_native_ip_intf_color_clear_mesh_update_free__unpacked(ifit_native_ip_intf_color_clear_mesh_update *rec);
int ifit_native_ip_intf_color_clear_mesh_update__pack(const ifit_native_ip_intf_color_clear_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_intf_color_clear_mesh_update__sendsingle(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_intf_color_clear_mesh_update__sendbatch(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_intf_color_clear_mesh_update__sendmsg(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh_update *recs, uint32_t n);
int ifit_native_ip_intf_color_clear_mesh_update__sendtomsg(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_intf_color_clear_mesh_delete: Delete of ifit_native_ip_intf_color_clear_mesh: a list of keys. Compact
 * form of 16 bytes and more. Owns its elements. */
typedef struct ifit_native_ip_intf_color_clear_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_native_ip_intf_color_clear_mesh_key *items; } f1;
} ifit_native_ip_intf_color_clear_mesh_delete;

#define IFIT_NATIVE_IP_INTF_COLOR_CLEAR_MESH_DELETE_ID UINT32_C(0x57339094)

uint32_t ifit_native_ip_intf_color_clear_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_intf_color_clear_mesh_delete *rec);
void ifit_native_ip_intf_color_clear_mesh_delete_free__unpacked(ifit_native_ip_intf_color_clear_mesh_delete *rec);
int ifit_native_ip_intf_color_clear_mesh_delete__pack(const ifit_native_ip_intf_color_clear_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_intf_color_clear_mesh_delete__sendsingle(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_intf_color_clear_mesh_delete__sendbatch(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_intf_color_clear_mesh_delete__sendmsg(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh_delete *recs, uint32_t n);
int ifit_native_ip_intf_color_clear_mesh_delete__sendtomsg(uint32_t channel, const ifit_native_ip_intf_color_clear_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_flow_tuplev4_mesh: Fixed form of 104 bytes, compact form of 46 to 98. Owns no memory. */
typedef struct ifit_flow_tuplev4_mesh {
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
} ifit_flow_tuplev4_mesh;

#define IFIT_FLOW_TUPLEV4_MESH_ID UINT32_C(0x95b006f4)

uint32_t ifit_flow_tuplev4_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_flow_tuplev4_mesh *rec);
void ifit_flow_tuplev4_mesh_free__unpacked(ifit_flow_tuplev4_mesh *rec);
int ifit_flow_tuplev4_mesh__pack(const ifit_flow_tuplev4_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_tuplev4_mesh__sendsingle(uint32_t channel, const ifit_flow_tuplev4_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_flow_tuplev4_mesh__sendbatch(uint32_t channel, const ifit_flow_tuplev4_mesh *recs, uint32_t n, uint32_t destination);
int ifit_flow_tuplev4_mesh__sendmsg(uint32_t channel, const ifit_flow_tuplev4_mesh *recs, uint32_t n);
int ifit_flow_tuplev4_mesh__sendtomsg(uint32_t channel, const ifit_flow_tuplev4_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_flow_tuplev4_mesh_key: Key of ifit_flow_tuplev4_mesh: its slots 0 to 2. Fixed form of 40 bytes, compact form of
 * 18 to 34. Owns no memory. */
typedef struct ifit_flow_tuplev4_mesh_key {
    uint32_t f0;
    uint32_t f1;
    kesto_u64 f2;
} ifit_flow_tuplev4_mesh_key;

#define IFIT_FLOW_TUPLEV4_MESH_KEY_ID UINT32_C(0x8ff3a438)

uint32_t ifit_flow_tuplev4_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_flow_tuplev4_mesh_key *rec);
void ifit_flow_tuplev4_mesh_key_free__unpacked(ifit_flow_tuplev4_mesh_key *rec);
int ifit_flow_tuplev4_mesh_key__pack(const ifit_flow_tuplev4_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_tuplev4_mesh_key__sendsingle(uint32_t channel, const ifit_flow_tuplev4_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_flow_tuplev4_mesh_key__sendbatch(uint32_t channel, const ifit_flow_tuplev4_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_flow_tuplev4_mesh_key__sendmsg(uint32_t channel, const ifit_flow_tuplev4_mesh_key *recs, uint32_t n);
int ifit_flow_tuplev4_mesh_key__sendtomsg(uint32_t channel, const ifit_flow_tuplev4_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_flow_tuplev4_mesh_update: Update of ifit_flow_tuplev4_mesh: a list of whole records. Compact form of 16 bytes
 * and more. Owns its elements. */
typedef struct ifit_flow_tuplev4_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_flow_tuplev4_mesh *items; } f1;
} ifit_flow_tuplev4_mesh_update;

#define IFIT_FLOW_TUPLEV4_MESH_UPDATE_ID UINT32_C(0x9c70f9d0)

uint32_t ifit_flow_tuplev4_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_flow_tuplev4_mesh_update *rec);
void ifit_flow_tuplev4_mesh_update_free__unpacked(ifit_flow_tuplev4_mesh_update *rec);
int ifit_flow_tuplev4_mesh_update__pack(const ifit_flow_tuplev4_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_tuplev4_mesh_update__sendsingle(uint32_t channel, const ifit_flow_tuplev4_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_flow_tuplev4_mesh_update__sendbatch(uint32_t channel, const ifit_flow_tuplev4_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_flow_tuplev4_mesh_update__sendmsg(uint32_t channel, const ifit_flow_tuplev4_mesh_update *recs, uint32_t n);
int ifit_flow_tuplev4_mesh_update__sendtomsg(uint32_t channel, const ifit_flow_tuplev4_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_flow_tuplev4_mesh_delete: Delete of ifit_flow_tuplev4_mesh: a list of keys. Compact form of 16 bytes and more.
 * Owns its elements. */
typedef struct ifit_flow_tuplev4_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_flow_tuplev4_mesh_key *items; } f1;
} ifit_flow_tuplev4_mesh_delete;

#define IFIT_FLOW_TUPLEV4_MESH_DELETE_ID UINT32_C(0x0c3dac66)

uint32_t ifit_flow_tuplev4_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_flow_tuplev4_mesh_delete *rec);
void ifit_flow_tuplev4_mesh_delete_free__unpacked(ifit_flow_tuplev4_mesh_delete *rec);
int ifit_flow_tuplev4_mesh_delete__pack(const ifit_flow_tuplev4_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_tuplev4_mesh_delete__sendsingle(uint32_t channel, const ifit_flow_tuplev4_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_flow_tuplev4_mesh_delete__sendbatch(uint32_t channel, const ifit_flow_tuplev4_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_flow_tuplev4_mesh_delete__sendmsg(uint32_t channel, const ifit_flow_tuplev4_mesh_delete *recs, uint32_t n);
int ifit_flow_tuplev4_mesh_delete__sendtomsg(uint32_t channel, const ifit_flow_tuplev4_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_flow_tuplev6_mesh: Fixed form of 128 bytes, compact form of 90 to 126. Owns no memory. */
typedef struct ifit_flow_tuplev6_mesh {
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
} ifit_flow_tuplev6_mesh;

#define IFIT_FLOW_TUPLEV6_MESH_ID UINT32_C(0x24e6ed0e)

uint32_t ifit_flow_tuplev6_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_flow_tuplev6_mesh *rec);
void ifit_flow_tuplev6_mesh_free__unpacked(ifit_flow_tuplev6_mesh *rec);
int ifit_flow_tuplev6_mesh__pack(const ifit_flow_tuplev6_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_tuplev6_mesh__sendsingle(uint32_t channel, const ifit_flow_tuplev6_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_flow_tuplev6_mesh__sendbatch(uint32_t channel, const ifit_flow_tuplev6_mesh *recs, uint32_t n, uint32_t destination);
int ifit_flow_tuplev6_mesh__sendmsg(uint32_t channel, const ifit_flow_tuplev6_mesh *recs, uint32_t n);
int ifit_flow_tuplev6_mesh__sendtomsg(uint32_t channel, const ifit_flow_tuplev6_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_flow_tuplev6_mesh_key: Key of ifit_flow_tuplev6_mesh: its slots 0 to 2. Fixed form of 40 bytes, compact form of
 * 18 to 34. Owns no memory. */
typedef struct ifit_flow_tuplev6_mesh_key {
    uint32_t f0;
    uint32_t f1;
    kesto_u64 f2;
} ifit_flow_tuplev6_mesh_key;

#define IFIT_FLOW_TUPLEV6_MESH_KEY_ID UINT32_C(0x6808ac3a)

uint32_t ifit_flow_tuplev6_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_flow_tuplev6_mesh_key *rec);
void ifit_flow_tuplev6_mesh_key_free__unpacked(ifit_flow_tuplev6_mesh_key *rec);
int ifit_flow_tuplev6_mesh_key__pack(const ifit_flow_tuplev6_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_tuplev6_mesh_key__sendsingle(uint32_t channel, const ifit_flow_tuplev6_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_flow_tuplev6_mesh_key__sendbatch(uint32_t channel, const ifit_flow_tuplev6_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_flow_tuplev6_mesh_key__sendmsg(uint32_t channel, const ifit_flow_tuplev6_mesh_key *recs, uint32_t n);
int ifit_flow_tuplev6_mesh_key__sendtomsg(uint32_t channel, const ifit_flow_tuplev6_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_flow_tuplev6_mesh_update: Update of ifit_flow_tuplev6_mesh: a list of whole records. Compact form of 16 bytes
 * and more. Owns its elements. */
typedef struct ifit_flow_tuplev6_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_flow_tuplev6_mesh *items; } f1;
} ifit_flow_tuplev6_mesh_update;

#define IFIT_FLOW_TUPLEV6_MESH_UPDATE_ID UINT32_C(0xe08218a2)

uint32_t ifit_flow_tuplev6_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_flow_tuplev6_mesh_update *rec);
void ifit_flow_tuplev6_mesh_update_free__unpacked(ifit_flow_tuplev6_mesh_update *rec);
int ifit_flow_tuplev6_mesh_update__pack(const ifit_flow_tuplev6_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_tuplev6_mesh_update__sendsingle(uint32_t channel, const ifit_flow_tuplev6_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_flow_tuplev6_mesh_update__sendbatch(uint32_t channel, const ifit_flow_tuplev6_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_flow_tuplev6_mesh_update__sendmsg(uint32_t channel, const ifit_flow_tuplev6_mesh_update *recs, uint32_t n);
int ifit_flow_tuplev6_mesh_update__sendtomsg(uint32_t channel, const ifit_flow_tuplev6_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_flow_tuplev6_mesh_delete: Delete of ifit_flow_tuplev6_mesh: a list of keys. Compact form of 16 bytes and more.
 * Owns its elements. */
typedef struct ifit_flow_tuplev6_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_flow_tuplev6_mesh_key *items; } f1;
} ifit_flow_tuplev6_mesh_delete;

#define IFIT_FLOW_TUPLEV6_MESH_DELETE_ID UINT32_C(0xe5c7b3a0)

uint32_t ifit_flow_tuplev6_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_flow_tuplev6_mesh_delete *rec);
void ifit_flow_tuplev6_mesh_delete_free__unpacked(ifit_flow_tuplev6_mesh_delete *rec);
int ifit_flow_tuplev6_mesh_delete__pack(const ifit_flow_tuplev6_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_tuplev6_mesh_delete__sendsingle(uint32_t channel, const ifit_flow_tuplev6_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_flow_tuplev6_mesh_delete__sendbatch(uint32_t channel, const ifit_flow_tuplev6_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_flow_tuplev6_mesh_delete__sendmsg(uint32_t channel, const ifit_flow_tuplev6_mesh_delete *recs, uint32_t n);
int ifit_flow_tuplev6_mesh_delete__sendtomsg(uint32_t channel, const ifit_flow_tuplev6_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_flow_vpn_mesh: Fixed form of 72 bytes, compact form of 32 to 68. Owns no memory. */
typedef struct ifit_flow_vpn_mesh {
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
} ifit_flow_vpn_mesh;

#define IFIT_FLOW_VPN_MESH_ID UINT32_C(0x4c55fb70)

uint32_t ifit_flow_vpn_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_flow_vpn_mesh *rec);
void ifit_flow_vpn_mesh_free__unpacked(ifit_flow_vpn_mesh *rec);
int ifit_flow_vpn_mesh__pack(const ifit_flow_vpn_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_vpn_mesh__sendsingle(uint32_t channel, const ifit_flow_vpn_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_flow_vpn_mesh__sendbatch(uint32_t channel, const ifit_flow_vpn_mesh *recs, uint32_t n, uint32_t destination);
int ifit_flow_vpn_mesh__sendmsg(uint32_t channel, const ifit_flow_vpn_mesh *recs, uint32_t n);
int ifit_flow_vpn_mesh__sendtomsg(uint32_t channel, const ifit_flow_vpn_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_flow_vpn_mesh_key: Key of ifit_flow_vpn_mesh: its slots 0 to 2. Fixed form of 40 bytes, compact form of 18 to
 * 34. Owns no memory. */
typedef struct ifit_flow_vpn_mesh_key {
    uint32_t f0;
    uint32_t f1;
    kesto_u64 f2;
} ifit_flow_vpn_mesh_key;

#define IFIT_FLOW_VPN_MESH_KEY_ID UINT32_C(0x3d23bef4)

uint32_t ifit_flow_vpn_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_flow_vpn_mesh_key *rec);
void ifit_flow_vpn_mesh_key_free__unpacked(ifit_flow_vpn_mesh_key *rec);
int ifit_flow_vpn_mesh_key__pack(const ifit_flow_vpn_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_vpn_mesh_key__sendsingle(uint32_t channel, const ifit_flow_vpn_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_flow_vpn_mesh_key__sendbatch(uint32_t channel, const ifit_flow_vpn_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_flow_vpn_mesh_key__sendmsg(uint32_t channel, const ifit_flow_vpn_mesh_key *recs, uint32_t n);
int ifit_flow_vpn_mesh_key__sendtomsg(uint32_t channel, const ifit_flow_vpn_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_flow_vpn_mesh_update: Update of ifit_flow_vpn_mesh: a list of whole records. Compact form of 16 bytes and more.
 * Owns its elements. */
typedef struct ifit_flow_vpn_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_flow_vpn_mesh *items; } f1;
} ifit_flow_vpn_mesh_update;

#define IFIT_FLOW_VPN_MESH_UPDATE_ID UINT32_C(0x04a2dcec)

uint32_t ifit_flow_vpn_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_flow_vpn_mesh_update *rec);
void ifit_flow_vpn_mesh_update_free__unpacked(ifit_flow_vpn_mesh_update *rec);
int ifit_flow_vpn_mesh_update__pack(const ifit_flow_vpn_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_vpn_mesh_update__sendsingle(uint32_t channel, const ifit_flow_vpn_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_flow_vpn_mesh_update__sendbatch(uint32_t channel, const ifit_flow_vpn_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_flow_vpn_mesh_update__sendmsg(uint32_t channel, const ifit_flow_vpn_mesh_update *recs, uint32_t n);
int ifit_flow_vpn_mesh_update__sendtomsg(uint32_t channel, const ifit_flow_vpn_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_flow_vpn_mesh_delete: Delete of ifit_flow_vpn_mesh: a list of keys. Compact form of 16 bytes and more. Owns its
 * elements. */
typedef struct ifit_flow_vpn_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_flow_vpn_mesh_key *items; } f1;
} ifit_flow_vpn_mesh_delete;

#define IFIT_FLOW_VPN_MESH_DELETE_ID UINT32_C(0xb66695d2)

uint32_t ifit_flow_vpn_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_flow_vpn_mesh_delete *rec);
void ifit_flow_vpn_mesh_delete_free__unpacked(ifit_flow_vpn_mesh_delete *rec);
int ifit_flow_vpn_mesh_delete__pack(const ifit_flow_vpn_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_vpn_mesh_delete__sendsingle(uint32_t channel, const ifit_flow_vpn_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_flow_vpn_mesh_delete__sendbatch(uint32_t channel, const ifit_flow_vpn_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_flow_vpn_mesh_delete__sendmsg(uint32_t channel, const ifit_flow_vpn_mesh_delete *recs, uint32_t n);
int ifit_flow_vpn_mesh_delete__sendtomsg(uint32_t channel, const ifit_flow_vpn_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_lrn_vpn_mesh: Fixed form of 64 bytes, compact form of 36 to 64. Owns no memory. */
typedef struct ifit_lrn_vpn_mesh {
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
} ifit_lrn_vpn_mesh;

#define IFIT_LRN_VPN_MESH_ID UINT32_C(0x9cee1122)

uint32_t ifit_lrn_vpn_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_lrn_vpn_mesh *rec);
void ifit_lrn_vpn_mesh_free__unpacked(ifit_lrn_vpn_mesh *rec);
int ifit_lrn_vpn_mesh__pack(const ifit_lrn_vpn_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_lrn_vpn_mesh__sendsingle(uint32_t channel, const ifit_lrn_vpn_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_lrn_vpn_mesh__sendbatch(uint32_t channel, const ifit_lrn_vpn_mesh *recs, uint32_t n, uint32_t destination);
int ifit_lrn_vpn_mesh__sendmsg(uint32_t channel, const ifit_lrn_vpn_mesh *recs, uint32_t n);
int ifit_lrn_vpn_mesh__sendtomsg(uint32_t channel, const ifit_lrn_vpn_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_lrn_vpn_mesh_key: Key of ifit_lrn_vpn_mesh: its slots 0 to 1. Fixed form of 24 bytes, compact form of 16 to 24.
 * Owns no memory. */
typedef struct ifit_lrn_vpn_mesh_key {
    uint32_t f0;
    uint32_t f1;
} ifit_lrn_vpn_mesh_key;

#define IFIT_LRN_VPN_MESH_KEY_ID UINT32_C(0xd5eca1be)

uint32_t ifit_lrn_vpn_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_lrn_vpn_mesh_key *rec);
void ifit_lrn_vpn_mesh_key_free__unpacked(ifit_lrn_vpn_mesh_key *rec);
int ifit_lrn_vpn_mesh_key__pack(const ifit_lrn_vpn_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_lrn_vpn_mesh_key__sendsingle(uint32_t channel, const ifit_lrn_vpn_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_lrn_vpn_mesh_key__sendbatch(uint32_t channel, const ifit_lrn_vpn_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_lrn_vpn_mesh_key__sendmsg(uint32_t channel, const ifit_lrn_vpn_mesh_key *recs, uint32_t n);
int ifit_lrn_vpn_mesh_key__sendtomsg(uint32_t channel, const ifit_lrn_vpn_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_lrn_vpn_mesh_update: Update of ifit_lrn_vpn_mesh: a list of whole records. Compact form of 16 bytes and more.
 * Owns its elements. */
typedef struct ifit_lrn_vpn_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_lrn_vpn_mesh *items; } f1;
} ifit_lrn_vpn_mesh_update;

#define IFIT_LRN_VPN_MESH_UPDATE_ID UINT32_C(0x576a4696)

uint32_t ifit_lrn_vpn_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_lrn_vpn_mesh_update *rec);
void ifit_lrn_vpn_mesh_update_free__unpacked(ifit_lrn_vpn_mesh_update *rec);
int ifit_lrn_vpn_mesh_update__pack(const ifit_lrn_vpn_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_lrn_vpn_mesh_update__sendsingle(uint32_t channel, const ifit_lrn_vpn_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_lrn_vpn_mesh_update__sendbatch(uint32_t channel, const ifit_lrn_vpn_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_lrn_vpn_mesh_update__sendmsg(uint32_t channel, const ifit_lrn_vpn_mesh_update *recs, uint32_t n);
int ifit_lrn_vpn_mesh_update__sendtomsg(uint32_t channel, const ifit_lrn_vpn_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_lrn_vpn_mesh_delete: Delete of ifit_lrn_vpn_mesh: a list of keys. Compact form of 16 bytes and more. Owns its
 * elements. */
typedef struct ifit_lrn_vpn_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_lrn_vpn_mesh_key *items; } f1;
} ifit_lrn_vpn_mesh_delete;

#define IFIT_LRN_VPN_MESH_DELETE_ID UINT32_C(0xb7c8b774)

uint32_t ifit_lrn_vpn_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_lrn_vpn_mesh_delete *rec);
void ifit_lrn_vpn_mesh_delete_free__unpacked(ifit_lrn_vpn_mesh_delete *rec);
int ifit_lrn_vpn_mesh_delete__pack(const ifit_lrn_vpn_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_lrn_vpn_mesh_delete__sendsingle(uint32_t channel, const ifit_lrn_vpn_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_lrn_vpn_mesh_delete__sendbatch(uint32_t channel, const ifit_lrn_vpn_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_lrn_vpn_mesh_delete__sendmsg(uint32_t channel, const ifit_lrn_vpn_mesh_delete *recs, uint32_t n);
int ifit_lrn_vpn_mesh_delete__sendtomsg(uint32_t channel, const ifit_lrn_vpn_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_lrn_intf_mesh: Fixed form of 48 bytes, compact form of 24 to 48. Owns no memory. */
typedef struct ifit_lrn_intf_mesh {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint32_t f4;
    uint32_t f5;
} ifit_lrn_intf_mesh;

#define IFIT_LRN_INTF_MESH_ID UINT32_C(0x80a1e7c9)

uint32_t ifit_lrn_intf_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_lrn_intf_mesh *rec);
void ifit_lrn_intf_mesh_free__unpacked(ifit_lrn_intf_mesh *rec);
int ifit_lrn_intf_mesh__pack(const ifit_lrn_intf_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_lrn_intf_mesh__sendsingle(uint32_t channel, const ifit_lrn_intf_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_lrn_intf_mesh__sendbatch(uint32_t channel, const ifit_lrn_intf_mesh *recs, uint32_t n, uint32_t destination);
int ifit_lrn_intf_mesh__sendmsg(uint32_t channel, const ifit_lrn_intf_mesh *recs, uint32_t n);
int ifit_lrn_intf_mesh__sendtomsg(uint32_t channel, const ifit_lrn_intf_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_lrn_intf_mesh_key: Key of ifit_lrn_intf_mesh: its slots 0 to 2. Fixed form of 32 bytes, compact form of 18 to
 * 30. Owns no memory. */
typedef struct ifit_lrn_intf_mesh_key {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
} ifit_lrn_intf_mesh_key;

#define IFIT_LRN_INTF_MESH_KEY_ID UINT32_C(0x3fc5c889)

uint32_t ifit_lrn_intf_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_lrn_intf_mesh_key *rec);
void ifit_lrn_intf_mesh_key_free__unpacked(ifit_lrn_intf_mesh_key *rec);
int ifit_lrn_intf_mesh_key__pack(const ifit_lrn_intf_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_lrn_intf_mesh_key__sendsingle(uint32_t channel, const ifit_lrn_intf_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_lrn_intf_mesh_key__sendbatch(uint32_t channel, const ifit_lrn_intf_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_lrn_intf_mesh_key__sendmsg(uint32_t channel, const ifit_lrn_intf_mesh_key *recs, uint32_t n);
int ifit_lrn_intf_mesh_key__sendtomsg(uint32_t channel, const ifit_lrn_intf_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_lrn_intf_mesh_update: Update of ifit_lrn_intf_mesh: a list of whole records. Compact form of 16 bytes and more.
 * Owns its elements. */
typedef struct ifit_lrn_intf_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_lrn_intf_mesh *items; } f1;
} ifit_lrn_intf_mesh_update;

#define IFIT_LRN_INTF_MESH_UPDATE_ID UINT32_C(0x79e0257b)

uint32_t ifit_lrn_intf_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_lrn_intf_mesh_update *rec);
void ifit_lrn_intf_mesh_update_free__unpacked(ifit_lrn_intf_mesh_update *rec);
int ifit_lrn_intf_mesh_update__pack(const ifit_lrn_intf_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_lrn_intf_mesh_update__sendsingle(uint32_t channel, const ifit_lrn_intf_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_lrn_intf_mesh_update__sendbatch(uint32_t channel, const ifit_lrn_intf_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_lrn_intf_mesh_update__sendmsg(uint32_t channel, const ifit_lrn_intf_mesh_update *recs, uint32_t n);
int ifit_lrn_intf_mesh_update__sendtomsg(uint32_t channel, const ifit_lrn_intf_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_lrn_intf_mesh_delete: Delete of ifit_lrn_intf_mesh: a list of keys. Compact form of 16 bytes and more. Owns its
 * elements. */
typedef struct ifit_lrn_intf_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_lrn_intf_mesh_key *items; } f1;
} ifit_lrn_intf_mesh_delete;

#define IFIT_LRN_INTF_MESH_DELETE_ID UINT32_C(0x0ad1a15d)

uint32_t ifit_lrn_intf_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_lrn_intf_mesh_delete *rec);
void ifit_lrn_intf_mesh_delete_free__unpacked(ifit_lrn_intf_mesh_delete *rec);
int ifit_lrn_intf_mesh_delete__pack(const ifit_lrn_intf_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_lrn_intf_mesh_delete__sendsingle(uint32_t channel, const ifit_lrn_intf_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_lrn_intf_mesh_delete__sendbatch(uint32_t channel, const ifit_lrn_intf_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_lrn_intf_mesh_delete__sendmsg(uint32_t channel, const ifit_lrn_intf_mesh_delete *recs, uint32_t n);
int ifit_lrn_intf_mesh_delete__sendtomsg(uint32_t channel, const ifit_lrn_intf_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_color_intf_mesh: Fixed form of 40 bytes, compact form of 22 to 34. Owns no memory. */
typedef struct ifit_color_intf_mesh {
    uint32_t f0;
    uint32_t f1;
    uint8_t f2;
    uint8_t f3;
    uint16_t f4;
} ifit_color_intf_mesh;

#define IFIT_COLOR_INTF_MESH_ID UINT32_C(0x45a63a16)

uint32_t ifit_color_intf_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_color_intf_mesh *rec);
void ifit_color_intf_mesh_free__unpacked(ifit_color_intf_mesh *rec);
int ifit_color_intf_mesh__pack(const ifit_color_intf_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_color_intf_mesh__sendsingle(uint32_t channel, const ifit_color_intf_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_color_intf_mesh__sendbatch(uint32_t channel, const ifit_color_intf_mesh *recs, uint32_t n, uint32_t destination);
int ifit_color_intf_mesh__sendmsg(uint32_t channel, const ifit_color_intf_mesh *recs, uint32_t n);
int ifit_color_intf_mesh__sendtomsg(uint32_t channel, const ifit_color_intf_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_color_intf_mesh_key: Key of ifit_color_intf_mesh: its slots 0 to 1. Fixed form of 24 bytes, compact form of 16
 * to 24. Owns no memory. */
typedef struct ifit_color_intf_mesh_key {
    uint32_t f0;
    uint32_t f1;
} ifit_color_intf_mesh_key;

#define IFIT_COLOR_INTF_MESH_KEY_ID UINT32_C(0x987a7272)

uint32_t ifit_color_intf_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_color_intf_mesh_key *rec);
void ifit_color_intf_mesh_key_free__unpacked(ifit_color_intf_mesh_key *rec);
int ifit_color_intf_mesh_key__pack(const ifit_color_intf_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_color_intf_mesh_key__sendsingle(uint32_t channel, const ifit_color_intf_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_color_intf_mesh_key__sendbatch(uint32_t channel, const ifit_color_intf_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_color_intf_mesh_key__sendmsg(uint32_t channel, const ifit_color_intf_mesh_key *recs, uint32_t n);
int ifit_color_intf_mesh_key__sendtomsg(uint32_t channel, const ifit_color_intf_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_color_intf_mesh_update: Update of ifit_color_intf_mesh: a list of whole records. Compact form of 16 bytes and
 * more. Owns its elements. */
typedef struct ifit_color_intf_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_color_intf_mesh *items; } f1;
} ifit_color_intf_mesh_update;

#define IFIT_COLOR_INTF_MESH_UPDATE_ID UINT32_C(0x3c9a45ea)

uint32_t ifit_color_intf_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_color_intf_mesh_update *rec);
void ifit_color_intf_mesh_update_free__unpacked(ifit_color_intf_mesh_update *rec);
int ifit_color_intf_mesh_update__pack(const ifit_color_intf_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_color_intf_mesh_update__sendsingle(uint32_t channel, const ifit_color_intf_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_color_intf_mesh_update__sendbatch(uint32_t channel, const ifit_color_intf_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_color_intf_mesh_update__sendmsg(uint32_t channel, const ifit_color_intf_mesh_update *recs, uint32_t n);
int ifit_color_intf_mesh_update__sendtomsg(uint32_t channel, const ifit_color_intf_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_color_intf_mesh_delete: Delete of ifit_color_intf_mesh: a list of keys. Compact form of 16 bytes and more. Owns
 * its elements. */
typedef struct ifit_color_intf_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_color_intf_mesh_key *items; } f1;
} ifit_color_intf_mesh_delete;

#define IFIT_COLOR_INTF_MESH_DELETE_ID UINT32_C(0x8d077918)

uint32_t ifit_color_intf_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_color_intf_mesh_delete *rec);
void ifit_color_intf_mesh_delete_free__unpacked(ifit_color_intf_mesh_delete *rec);
int ifit_color_intf_mesh_delete__pack(const ifit_color_intf_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_color_intf_mesh_delete__sendsingle(uint32_t channel, const ifit_color_intf_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_color_intf_mesh_delete__sendbatch(uint32_t channel, const ifit_color_intf_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_color_intf_mesh_delete__sendmsg(uint32_t channel, const ifit_color_intf_mesh_delete *recs, uint32_t n);
int ifit_color_intf_mesh_delete__sendtomsg(uint32_t channel, const ifit_color_intf_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_intf_auto_detect_mesh: Fixed form of 40 bytes, compact form of 24 to 36. Owns no memory. */
typedef struct ifit_native_ip_intf_auto_detect_mesh {
    uint32_t f0;
    uint32_t f1;
    uint8_t f2;
    uint8_t f3;
    uint8_t f4;
    uint8_t f5;
} ifit_native_ip_intf_auto_detect_mesh;

#define IFIT_NATIVE_IP_INTF_AUTO_DETECT_MESH_ID UINT32_C(0x5dfed448)

uint32_t ifit_native_ip_intf_auto_detect_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_intf_auto_detect_mesh *rec);
void ifit_native_ip_intf_auto_detect_mesh_free__unpacked(ifit_native_ip_intf_auto_detect_mesh *rec);
int ifit_native_ip_intf_auto_detect_mesh__pack(const ifit_native_ip_intf_auto_detect_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_intf_auto_detect_mesh__sendsingle(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_intf_auto_detect_mesh__sendbatch(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_intf_auto_detect_mesh__sendmsg(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh *recs, uint32_t n);
int ifit_native_ip_intf_auto_detect_mesh__sendtomsg(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_intf_auto_detect_mesh_key: Key of ifit_native_ip_intf_auto_detect_mesh: its slots 0 to 3. Fixed form
 * of 32 bytes, compact form of 20 to 30. Owns no memory. */
typedef struct ifit_native_ip_intf_auto_detect_mesh_key {
    uint32_t f0;
    uint32_t f1;
    uint8_t f2;
    uint8_t f3;
} ifit_native_ip_intf_auto_detect_mesh_key;

#define IFIT_NATIVE_IP_INTF_AUTO_DETECT_MESH_KEY_ID UINT32_C(0x0f22cadc)

uint32_t ifit_native_ip_intf_auto_detect_mesh_key__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_intf_auto_detect_mesh_key *rec);
void ifit_native_ip_intf_auto_detect_mesh_key_free__unpacked(ifit_native_ip_intf_auto_detect_mesh_key *rec);
int ifit_native_ip_intf_auto_detect_mesh_key__pack(const ifit_native_ip_intf_auto_detect_mesh_key *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_intf_auto_detect_mesh_key__sendsingle(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh_key *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_intf_auto_detect_mesh_key__sendbatch(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh_key *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_intf_auto_detect_mesh_key__sendmsg(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh_key *recs, uint32_t n);
int ifit_native_ip_intf_auto_detect_mesh_key__sendtomsg(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh_key *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_intf_auto_detect_mesh_update: Update of ifit_native_ip_intf_auto_detect_mesh: a list of whole records.
 * Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_native_ip_intf_auto_detect_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_native_ip_intf_auto_detect_mesh *items; } f1;
} ifit_native_ip_intf_auto_detect_mesh_update;

#define IFIT_NATIVE_IP_INTF_AUTO_DETECT_MESH_UPDATE_ID UINT32_C(0x53733644)

uint32_t ifit_native_ip_intf_auto_detect_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_intf_auto_detect_mesh_update *rec);
void ifit_native_ip_intf_auto_detect_mesh_update_free__unpacked(ifit_native_ip_intf_auto_detect_mesh_update *rec);
int ifit_native_ip_intf_auto_detect_mesh_update__pack(const ifit_native_ip_intf_auto_detect_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_intf_auto_detect_mesh_update__sendsingle(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_intf_auto_detect_mesh_update__sendbatch(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_intf_auto_detect_mesh_update__sendmsg(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh_update *recs, uint32_t n);
int ifit_native_ip_intf_auto_detect_mesh_update__sendtomsg(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_native_ip_intf_auto_detect_mesh_delete: Delete of ifit_native_ip_intf_auto_detect_mesh: a list of keys. Compact
 * form of 16 bytes and more. Owns its elements. */
typedef struct ifit_native_ip_intf_auto_detect_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_native_ip_intf_auto_detect_mesh_key *items; } f1;
} ifit_native_ip_intf_auto_detect_mesh_delete;

#define IFIT_NATIVE_IP_INTF_AUTO_DETECT_MESH_DELETE_ID UINT32_C(0xdc906e5a)

uint32_t ifit_native_ip_intf_auto_detect_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_native_ip_intf_auto_detect_mesh_delete *rec);
void ifit_native_ip_intf_auto_detect_mesh_delete_free__unpacked(ifit_native_ip_intf_auto_detect_mesh_delete *rec);
int ifit_native_ip_intf_auto_detect_mesh_delete__pack(const ifit_native_ip_intf_auto_detect_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_native_ip_intf_auto_detect_mesh_delete__sendsingle(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_native_ip_intf_auto_detect_mesh_delete__sendbatch(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_native_ip_intf_auto_detect_mesh_delete__sendmsg(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh_delete *recs, uint32_t n);
int ifit_native_ip_intf_auto_detect_mesh_delete__sendtomsg(uint32_t channel, const ifit_native_ip_intf_auto_detect_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_paf_mesh: Fixed form of 24 bytes, compact form of 16 to 24. Owns no memory. */
typedef struct ifit_paf_mesh {
    uint32_t f0;
    uint32_t f1;
} ifit_paf_mesh;

#define IFIT_PAF_MESH_ID UINT32_C(0x7f443f8e)

uint32_t ifit_paf_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_paf_mesh *rec);
void ifit_paf_mesh_free__unpacked(ifit_paf_mesh *rec);
int ifit_paf_mesh__pack(const ifit_paf_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_paf_mesh__sendsingle(uint32_t channel, const ifit_paf_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_paf_mesh__sendbatch(uint32_t channel, const ifit_paf_mesh *recs, uint32_t n, uint32_t destination);
int ifit_paf_mesh__sendmsg(uint32_t channel, const ifit_paf_mesh *recs, uint32_t n);
int ifit_paf_mesh__sendtomsg(uint32_t channel, const ifit_paf_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_paf_mesh_update: Update of ifit_paf_mesh: a list of whole records. Compact form of 16 bytes and more. Owns its
 * elements. */
typedef struct ifit_paf_mesh_update {
    uint16_t f0;
    struct { uint32_t count; ifit_paf_mesh *items; } f1;
} ifit_paf_mesh_update;

#define IFIT_PAF_MESH_UPDATE_ID UINT32_C(0x6827fc22)

uint32_t ifit_paf_mesh_update__unpack(const uint8_t *buf, uint32_t len, ifit_paf_mesh_update *rec);
void ifit_paf_mesh_update_free__unpacked(ifit_paf_mesh_update *rec);
int ifit_paf_mesh_update__pack(const ifit_paf_mesh_update *rec, uint8_t *buf, uint32_t *len);
int ifit_paf_mesh_update__sendsingle(uint32_t channel, const ifit_paf_mesh_update *rec, uint32_t unused, uint32_t destination);
int ifit_paf_mesh_update__sendbatch(uint32_t channel, const ifit_paf_mesh_update *recs, uint32_t n, uint32_t destination);
int ifit_paf_mesh_update__sendmsg(uint32_t channel, const ifit_paf_mesh_update *recs, uint32_t n);
int ifit_paf_mesh_update__sendtomsg(uint32_t channel, const ifit_paf_mesh_update *recs, uint32_t n, uint32_t destination);

/* ifit_paf_mesh_delete: Delete of ifit_paf_mesh: a list of whole records. Compact form of 16 bytes and more. Owns its
 * elements. */
typedef struct ifit_paf_mesh_delete {
    uint16_t f0;
    struct { uint32_t count; ifit_paf_mesh *items; } f1;
} ifit_paf_mesh_delete;

#define IFIT_PAF_MESH_DELETE_ID UINT32_C(0x6d6d9720)

uint32_t ifit_paf_mesh_delete__unpack(const uint8_t *buf, uint32_t len, ifit_paf_mesh_delete *rec);
void ifit_paf_mesh_delete_free__unpacked(ifit_paf_mesh_delete *rec);
int ifit_paf_mesh_delete__pack(const ifit_paf_mesh_delete *rec, uint8_t *buf, uint32_t *len);
int ifit_paf_mesh_delete__sendsingle(uint32_t channel, const ifit_paf_mesh_delete *rec, uint32_t unused, uint32_t destination);
int ifit_paf_mesh_delete__sendbatch(uint32_t channel, const ifit_paf_mesh_delete *recs, uint32_t n, uint32_t destination);
int ifit_paf_mesh_delete__sendmsg(uint32_t channel, const ifit_paf_mesh_delete *recs, uint32_t n);
int ifit_paf_mesh_delete__sendtomsg(uint32_t channel, const ifit_paf_mesh_delete *recs, uint32_t n, uint32_t destination);

/* ifit_request_pid_value_mesh: Fixed form of 24 bytes, compact form of 14 to 18. Owns no memory. */
typedef struct ifit_request_pid_value_mesh {
    uint32_t f0;
} ifit_request_pid_value_mesh;

#define IFIT_REQUEST_PID_VALUE_MESH_ID UINT32_C(0x95fb0738)

uint32_t ifit_request_pid_value_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_request_pid_value_mesh *rec);
void ifit_request_pid_value_mesh_free__unpacked(ifit_request_pid_value_mesh *rec);
int ifit_request_pid_value_mesh__pack(const ifit_request_pid_value_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_request_pid_value_mesh__sendsingle(uint32_t channel, const ifit_request_pid_value_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_request_pid_value_mesh__sendbatch(uint32_t channel, const ifit_request_pid_value_mesh *recs, uint32_t n, uint32_t destination);
int ifit_request_pid_value_mesh__sendmsg(uint32_t channel, const ifit_request_pid_value_mesh *recs, uint32_t n);
int ifit_request_pid_value_mesh__sendtomsg(uint32_t channel, const ifit_request_pid_value_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_request_app_pid_smooth_mesh: Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_request_app_pid_smooth_mesh {
    uint16_t f0;
    struct { uint32_t count; ifit_request_pid_value_mesh *items; } f1;
} ifit_request_app_pid_smooth_mesh;

#define IFIT_REQUEST_APP_PID_SMOOTH_MESH_ID UINT32_C(0x5970a763)

uint32_t ifit_request_app_pid_smooth_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_request_app_pid_smooth_mesh *rec);
void ifit_request_app_pid_smooth_mesh_free__unpacked(ifit_request_app_pid_smooth_mesh *rec);
int ifit_request_app_pid_smooth_mesh__pack(const ifit_request_app_pid_smooth_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_request_app_pid_smooth_mesh__sendsingle(uint32_t channel, const ifit_request_app_pid_smooth_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_request_app_pid_smooth_mesh__sendbatch(uint32_t channel, const ifit_request_app_pid_smooth_mesh *recs, uint32_t n, uint32_t destination);
int ifit_request_app_pid_smooth_mesh__sendmsg(uint32_t channel, const ifit_request_app_pid_smooth_mesh *recs, uint32_t n);
int ifit_request_app_pid_smooth_mesh__sendtomsg(uint32_t channel, const ifit_request_app_pid_smooth_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_report_ifit_add_mesh: Fixed form of 24 bytes, compact form of 14 to 18. Owns no memory. */
typedef struct ifit_report_ifit_add_mesh {
    uint32_t f0;
} ifit_report_ifit_add_mesh;

#define IFIT_REPORT_IFIT_ADD_MESH_ID UINT32_C(0xccd15a08)

uint32_t ifit_report_ifit_add_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_report_ifit_add_mesh *rec);
void ifit_report_ifit_add_mesh_free__unpacked(ifit_report_ifit_add_mesh *rec);
int ifit_report_ifit_add_mesh__pack(const ifit_report_ifit_add_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_report_ifit_add_mesh__sendsingle(uint32_t channel, const ifit_report_ifit_add_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_report_ifit_add_mesh__sendbatch(uint32_t channel, const ifit_report_ifit_add_mesh *recs, uint32_t n, uint32_t destination);
int ifit_report_ifit_add_mesh__sendmsg(uint32_t channel, const ifit_report_ifit_add_mesh *recs, uint32_t n);
int ifit_report_ifit_add_mesh__sendtomsg(uint32_t channel, const ifit_report_ifit_add_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_report_app_ifit_add_mesh: Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_report_app_ifit_add_mesh {
    uint16_t f0;
    struct { uint32_t count; ifit_report_ifit_add_mesh *items; } f1;
} ifit_report_app_ifit_add_mesh;

#define IFIT_REPORT_APP_IFIT_ADD_MESH_ID UINT32_C(0x4eae1800)

uint32_t ifit_report_app_ifit_add_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_report_app_ifit_add_mesh *rec);
void ifit_report_app_ifit_add_mesh_free__unpacked(ifit_report_app_ifit_add_mesh *rec);
int ifit_report_app_ifit_add_mesh__pack(const ifit_report_app_ifit_add_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_report_app_ifit_add_mesh__sendsingle(uint32_t channel, const ifit_report_app_ifit_add_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_report_app_ifit_add_mesh__sendbatch(uint32_t channel, const ifit_report_app_ifit_add_mesh *recs, uint32_t n, uint32_t destination);
int ifit_report_app_ifit_add_mesh__sendmsg(uint32_t channel, const ifit_report_app_ifit_add_mesh *recs, uint32_t n);
int ifit_report_app_ifit_add_mesh__sendtomsg(uint32_t channel, const ifit_report_app_ifit_add_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dyn_flow_mid_or_egress_mesh: Fixed form of 112 bytes, compact form of 70 to 106. Owns no memory. */
typedef struct ifit_dyn_flow_mid_or_egress_mesh {
    kesto_u64 f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint8_t f4;
    uint8_t f5;
    uint16_t f6;
    uint8_t f7;
    uint8_t f8;
    uint8_t f9;
    uint8_t f10;
    uint32_t f11;
    uint8_t f12;
    uint8_t f13;
    uint8_t f14;
    uint8_t f15;
    uint32_t f16[4];
} ifit_dyn_flow_mid_or_egress_mesh;

#define IFIT_DYN_FLOW_MID_OR_EGRESS_MESH_ID UINT32_C(0xd180a0dc)

uint32_t ifit_dyn_flow_mid_or_egress_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dyn_flow_mid_or_egress_mesh *rec);
void ifit_dyn_flow_mid_or_egress_mesh_free__unpacked(ifit_dyn_flow_mid_or_egress_mesh *rec);
int ifit_dyn_flow_mid_or_egress_mesh__pack(const ifit_dyn_flow_mid_or_egress_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dyn_flow_mid_or_egress_mesh__sendsingle(uint32_t channel, const ifit_dyn_flow_mid_or_egress_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dyn_flow_mid_or_egress_mesh__sendbatch(uint32_t channel, const ifit_dyn_flow_mid_or_egress_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dyn_flow_mid_or_egress_mesh__sendmsg(uint32_t channel, const ifit_dyn_flow_mid_or_egress_mesh *recs, uint32_t n);
int ifit_dyn_flow_mid_or_egress_mesh__sendtomsg(uint32_t channel, const ifit_dyn_flow_mid_or_egress_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dyn_flow_mid_or_egress_oper_mesh: Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_dyn_flow_mid_or_egress_oper_mesh {
    uint16_t f0;
    struct { uint32_t count; ifit_dyn_flow_mid_or_egress_mesh *items; } f1;
} ifit_dyn_flow_mid_or_egress_oper_mesh;

#define IFIT_DYN_FLOW_MID_OR_EGRESS_OPER_MESH_ID UINT32_C(0x780c3e0f)

uint32_t ifit_dyn_flow_mid_or_egress_oper_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_dyn_flow_mid_or_egress_oper_mesh *rec);
void ifit_dyn_flow_mid_or_egress_oper_mesh_free__unpacked(ifit_dyn_flow_mid_or_egress_oper_mesh *rec);
int ifit_dyn_flow_mid_or_egress_oper_mesh__pack(const ifit_dyn_flow_mid_or_egress_oper_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_dyn_flow_mid_or_egress_oper_mesh__sendsingle(uint32_t channel, const ifit_dyn_flow_mid_or_egress_oper_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_dyn_flow_mid_or_egress_oper_mesh__sendbatch(uint32_t channel, const ifit_dyn_flow_mid_or_egress_oper_mesh *recs, uint32_t n, uint32_t destination);
int ifit_dyn_flow_mid_or_egress_oper_mesh__sendmsg(uint32_t channel, const ifit_dyn_flow_mid_or_egress_oper_mesh *recs, uint32_t n);
int ifit_dyn_flow_mid_or_egress_oper_mesh__sendtomsg(uint32_t channel, const ifit_dyn_flow_mid_or_egress_oper_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_instance_statistics_to_mcp_mesh: Fixed form of 104 bytes, compact form of 42 to 102. Owns no memory. */
typedef struct ifit_instance_statistics_to_mcp_mesh {
    uint32_t f0;
    kesto_u64 f1;
    uint32_t f2;
    uint8_t f3;
    uint8_t f4;
    uint8_t f5;
    uint8_t f6;
    uint16_t f7;
    uint16_t f8;
    kesto_u64 f9;
    kesto_u64 f10;
    kesto_u64 f11;
    uint32_t f12;
    uint32_t f13;
    uint32_t f14;
} ifit_instance_statistics_to_mcp_mesh;

#define IFIT_INSTANCE_STATISTICS_TO_MCP_MESH_ID UINT32_C(0xbddbef0b)

uint32_t ifit_instance_statistics_to_mcp_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_instance_statistics_to_mcp_mesh *rec);
void ifit_instance_statistics_to_mcp_mesh_free__unpacked(ifit_instance_statistics_to_mcp_mesh *rec);
int ifit_instance_statistics_to_mcp_mesh__pack(const ifit_instance_statistics_to_mcp_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_instance_statistics_to_mcp_mesh__sendsingle(uint32_t channel, const ifit_instance_statistics_to_mcp_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_instance_statistics_to_mcp_mesh__sendbatch(uint32_t channel, const ifit_instance_statistics_to_mcp_mesh *recs, uint32_t n, uint32_t destination);
int ifit_instance_statistics_to_mcp_mesh__sendmsg(uint32_t channel, const ifit_instance_statistics_to_mcp_mesh *recs, uint32_t n);
int ifit_instance_statistics_to_mcp_mesh__sendtomsg(uint32_t channel, const ifit_instance_statistics_to_mcp_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_statistics_to_mcp_mesh: Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_statistics_to_mcp_mesh {
    uint16_t f0;
    struct { uint32_t count; ifit_instance_statistics_to_mcp_mesh *items; } f1;
} ifit_statistics_to_mcp_mesh;

#define IFIT_STATISTICS_TO_MCP_MESH_ID UINT32_C(0x5d351be9)

uint32_t ifit_statistics_to_mcp_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_statistics_to_mcp_mesh *rec);
void ifit_statistics_to_mcp_mesh_free__unpacked(ifit_statistics_to_mcp_mesh *rec);
int ifit_statistics_to_mcp_mesh__pack(const ifit_statistics_to_mcp_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_statistics_to_mcp_mesh__sendsingle(uint32_t channel, const ifit_statistics_to_mcp_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_statistics_to_mcp_mesh__sendbatch(uint32_t channel, const ifit_statistics_to_mcp_mesh *recs, uint32_t n, uint32_t destination);
int ifit_statistics_to_mcp_mesh__sendmsg(uint32_t channel, const ifit_statistics_to_mcp_mesh *recs, uint32_t n);
int ifit_statistics_to_mcp_mesh__sendtomsg(uint32_t channel, const ifit_statistics_to_mcp_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_ingress_ipv4_dyn_flow_mesh: Fixed form of 160 bytes, compact form of 74 to 158. Owns no memory. */
typedef struct ifit_ingress_ipv4_dyn_flow_mesh {
    kesto_u64 f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint32_t f4;
    uint32_t f5;
    uint32_t f6;
    uint32_t f7;
    uint16_t f8;
    uint16_t f9;
    uint16_t f10;
    uint16_t f11;
    uint8_t f12;
    uint8_t f13;
    uint8_t f14;
    uint8_t f15;
    uint16_t f16;
    uint8_t f17;
    uint8_t f18;
    uint8_t f19;
    uint8_t f20;
    uint16_t f21;
    uint32_t f22;
    kesto_u64 f23;
    uint8_t f24;
    uint8_t f25;
    uint8_t f26;
    uint8_t f27;
    uint32_t f28;
    uint32_t f29;
    uint32_t f30;
} ifit_ingress_ipv4_dyn_flow_mesh;

#define IFIT_INGRESS_IPV4_DYN_FLOW_MESH_ID UINT32_C(0x2de2428b)

uint32_t ifit_ingress_ipv4_dyn_flow_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_ingress_ipv4_dyn_flow_mesh *rec);
void ifit_ingress_ipv4_dyn_flow_mesh_free__unpacked(ifit_ingress_ipv4_dyn_flow_mesh *rec);
int ifit_ingress_ipv4_dyn_flow_mesh__pack(const ifit_ingress_ipv4_dyn_flow_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_ingress_ipv4_dyn_flow_mesh__sendsingle(uint32_t channel, const ifit_ingress_ipv4_dyn_flow_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_ingress_ipv4_dyn_flow_mesh__sendbatch(uint32_t channel, const ifit_ingress_ipv4_dyn_flow_mesh *recs, uint32_t n, uint32_t destination);
int ifit_ingress_ipv4_dyn_flow_mesh__sendmsg(uint32_t channel, const ifit_ingress_ipv4_dyn_flow_mesh *recs, uint32_t n);
int ifit_ingress_ipv4_dyn_flow_mesh__sendtomsg(uint32_t channel, const ifit_ingress_ipv4_dyn_flow_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_ingress_ipv4_dyn_flow_oper_mesh: Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_ingress_ipv4_dyn_flow_oper_mesh {
    uint16_t f0;
    struct { uint32_t count; ifit_ingress_ipv4_dyn_flow_mesh *items; } f1;
} ifit_ingress_ipv4_dyn_flow_oper_mesh;

#define IFIT_INGRESS_IPV4_DYN_FLOW_OPER_MESH_ID UINT32_C(0x723584ee)

uint32_t ifit_ingress_ipv4_dyn_flow_oper_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_ingress_ipv4_dyn_flow_oper_mesh *rec);
void ifit_ingress_ipv4_dyn_flow_oper_mesh_free__unpacked(ifit_ingress_ipv4_dyn_flow_oper_mesh *rec);
int ifit_ingress_ipv4_dyn_flow_oper_mesh__pack(const ifit_ingress_ipv4_dyn_flow_oper_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_ingress_ipv4_dyn_flow_oper_mesh__sendsingle(uint32_t channel, const ifit_ingress_ipv4_dyn_flow_oper_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_ingress_ipv4_dyn_flow_oper_mesh__sendbatch(uint32_t channel, const ifit_ingress_ipv4_dyn_flow_oper_mesh *recs, uint32_t n, uint32_t destination);
int ifit_ingress_ipv4_dyn_flow_oper_mesh__sendmsg(uint32_t channel, const ifit_ingress_ipv4_dyn_flow_oper_mesh *recs, uint32_t n);
int ifit_ingress_ipv4_dyn_flow_oper_mesh__sendtomsg(uint32_t channel, const ifit_ingress_ipv4_dyn_flow_oper_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_ingress_ipv6_dyn_flow_mesh: Fixed form of 248 bytes, compact form of 191 to 248. Owns no memory. */
typedef struct ifit_ingress_ipv6_dyn_flow_mesh {
    kesto_u64 f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint32_t f4[4];
    uint32_t f5[4];
    uint32_t f6[4];
    uint32_t f7[4];
    uint16_t f8;
    uint16_t f9;
    uint16_t f10;
    uint16_t f11;
    uint8_t f12;
    uint8_t f13;
    uint8_t f14;
    uint8_t f15;
    uint16_t f16;
    uint8_t f17;
    uint8_t f18;
    uint8_t f19;
    uint8_t f20;
    uint16_t f21;
    uint32_t f22;
    kesto_u64 f23;
    uint8_t f24;
    uint8_t f25[3];
    uint32_t f26;
    uint32_t f27[2];
} ifit_ingress_ipv6_dyn_flow_mesh;

#define IFIT_INGRESS_IPV6_DYN_FLOW_MESH_ID UINT32_C(0xfaa664f1)

uint32_t ifit_ingress_ipv6_dyn_flow_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_ingress_ipv6_dyn_flow_mesh *rec);
void ifit_ingress_ipv6_dyn_flow_mesh_free__unpacked(ifit_ingress_ipv6_dyn_flow_mesh *rec);
int ifit_ingress_ipv6_dyn_flow_mesh__pack(const ifit_ingress_ipv6_dyn_flow_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_ingress_ipv6_dyn_flow_mesh__sendsingle(uint32_t channel, const ifit_ingress_ipv6_dyn_flow_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_ingress_ipv6_dyn_flow_mesh__sendbatch(uint32_t channel, const ifit_ingress_ipv6_dyn_flow_mesh *recs, uint32_t n, uint32_t destination);
int ifit_ingress_ipv6_dyn_flow_mesh__sendmsg(uint32_t channel, const ifit_ingress_ipv6_dyn_flow_mesh *recs, uint32_t n);
int ifit_ingress_ipv6_dyn_flow_mesh__sendtomsg(uint32_t channel, const ifit_ingress_ipv6_dyn_flow_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_ingress_ipv6_dyn_flow_oper_mesh: Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_ingress_ipv6_dyn_flow_oper_mesh {
    uint16_t f0;
    struct { uint32_t count; ifit_ingress_ipv6_dyn_flow_mesh *items; } f1;
} ifit_ingress_ipv6_dyn_flow_oper_mesh;

#define IFIT_INGRESS_IPV6_DYN_FLOW_OPER_MESH_ID UINT32_C(0x97508dcc)

uint32_t ifit_ingress_ipv6_dyn_flow_oper_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_ingress_ipv6_dyn_flow_oper_mesh *rec);
void ifit_ingress_ipv6_dyn_flow_oper_mesh_free__unpacked(ifit_ingress_ipv6_dyn_flow_oper_mesh *rec);
int ifit_ingress_ipv6_dyn_flow_oper_mesh__pack(const ifit_ingress_ipv6_dyn_flow_oper_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_ingress_ipv6_dyn_flow_oper_mesh__sendsingle(uint32_t channel, const ifit_ingress_ipv6_dyn_flow_oper_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_ingress_ipv6_dyn_flow_oper_mesh__sendbatch(uint32_t channel, const ifit_ingress_ipv6_dyn_flow_oper_mesh *recs, uint32_t n, uint32_t destination);
int ifit_ingress_ipv6_dyn_flow_oper_mesh__sendmsg(uint32_t channel, const ifit_ingress_ipv6_dyn_flow_oper_mesh *recs, uint32_t n);
int ifit_ingress_ipv6_dyn_flow_oper_mesh__sendtomsg(uint32_t channel, const ifit_ingress_ipv6_dyn_flow_oper_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_notify_whitelist_dyninst_delete_mesh: Fixed form of 48 bytes, compact form of 22 to 42. Owns no memory. */
typedef struct ifit_notify_whitelist_dyninst_delete_mesh {
    uint32_t f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
    uint32_t f4;
} ifit_notify_whitelist_dyninst_delete_mesh;

#define IFIT_NOTIFY_WHITELIST_DYNINST_DELETE_MESH_ID UINT32_C(0x3b731dd2)

uint32_t ifit_notify_whitelist_dyninst_delete_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_notify_whitelist_dyninst_delete_mesh *rec);
void ifit_notify_whitelist_dyninst_delete_mesh_free__unpacked(ifit_notify_whitelist_dyninst_delete_mesh *rec);
int ifit_notify_whitelist_dyninst_delete_mesh__pack(const ifit_notify_whitelist_dyninst_delete_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_notify_whitelist_dyninst_delete_mesh__sendsingle(uint32_t channel, const ifit_notify_whitelist_dyninst_delete_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_notify_whitelist_dyninst_delete_mesh__sendbatch(uint32_t channel, const ifit_notify_whitelist_dyninst_delete_mesh *recs, uint32_t n, uint32_t destination);
int ifit_notify_whitelist_dyninst_delete_mesh__sendmsg(uint32_t channel, const ifit_notify_whitelist_dyninst_delete_mesh *recs, uint32_t n);
int ifit_notify_whitelist_dyninst_delete_mesh__sendtomsg(uint32_t channel, const ifit_notify_whitelist_dyninst_delete_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_whitelist_dyninst_delete_mesh: Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_whitelist_dyninst_delete_mesh {
    uint16_t f0;
    struct { uint32_t count; ifit_notify_whitelist_dyninst_delete_mesh *items; } f1;
} ifit_whitelist_dyninst_delete_mesh;

#define IFIT_WHITELIST_DYNINST_DELETE_MESH_ID UINT32_C(0xa9d76452)

uint32_t ifit_whitelist_dyninst_delete_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_whitelist_dyninst_delete_mesh *rec);
void ifit_whitelist_dyninst_delete_mesh_free__unpacked(ifit_whitelist_dyninst_delete_mesh *rec);
int ifit_whitelist_dyninst_delete_mesh__pack(const ifit_whitelist_dyninst_delete_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_whitelist_dyninst_delete_mesh__sendsingle(uint32_t channel, const ifit_whitelist_dyninst_delete_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_whitelist_dyninst_delete_mesh__sendbatch(uint32_t channel, const ifit_whitelist_dyninst_delete_mesh *recs, uint32_t n, uint32_t destination);
int ifit_whitelist_dyninst_delete_mesh__sendmsg(uint32_t channel, const ifit_whitelist_dyninst_delete_mesh *recs, uint32_t n);
int ifit_whitelist_dyninst_delete_mesh__sendtomsg(uint32_t channel, const ifit_whitelist_dyninst_delete_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_pid_state_mesh: Fixed form of 40 bytes, compact form of 20 to 34. Owns no memory. */
typedef struct ifit_pid_state_mesh {
    uint16_t f0;
    uint32_t f1;
    uint32_t f2;
    uint32_t f3;
} ifit_pid_state_mesh;

#define IFIT_PID_STATE_MESH_ID UINT32_C(0x1ec3f49e)

uint32_t ifit_pid_state_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_pid_state_mesh *rec);
void ifit_pid_state_mesh_free__unpacked(ifit_pid_state_mesh *rec);
int ifit_pid_state_mesh__pack(const ifit_pid_state_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_pid_state_mesh__sendsingle(uint32_t channel, const ifit_pid_state_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_pid_state_mesh__sendbatch(uint32_t channel, const ifit_pid_state_mesh *recs, uint32_t n, uint32_t destination);
int ifit_pid_state_mesh__sendmsg(uint32_t channel, const ifit_pid_state_mesh *recs, uint32_t n);
int ifit_pid_state_mesh__sendtomsg(uint32_t channel, const ifit_pid_state_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_smooth_begin_mesh: Fixed form of 48 bytes, compact form of 32 to 44. Owns no memory. */
typedef struct ifit_smooth_begin_mesh {
    uint32_t f0;
    ifit_smooth_mesh f1;
} ifit_smooth_begin_mesh;

#define IFIT_SMOOTH_BEGIN_MESH_ID UINT32_C(0xf93c9101)

uint32_t ifit_smooth_begin_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_smooth_begin_mesh *rec);
void ifit_smooth_begin_mesh_free__unpacked(ifit_smooth_begin_mesh *rec);
int ifit_smooth_begin_mesh__pack(const ifit_smooth_begin_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_smooth_begin_mesh__sendsingle(uint32_t channel, const ifit_smooth_begin_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_smooth_begin_mesh__sendbatch(uint32_t channel, const ifit_smooth_begin_mesh *recs, uint32_t n, uint32_t destination);
int ifit_smooth_begin_mesh__sendmsg(uint32_t channel, const ifit_smooth_begin_mesh *recs, uint32_t n);
int ifit_smooth_begin_mesh__sendtomsg(uint32_t channel, const ifit_smooth_begin_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_smooth_end_mesh: Fixed form of 48 bytes, compact form of 32 to 44. Owns no memory. */
typedef struct ifit_smooth_end_mesh {
    uint32_t f0;
    ifit_smooth_mesh f1;
} ifit_smooth_end_mesh;

#define IFIT_SMOOTH_END_MESH_ID UINT32_C(0xc0c0ede9)

uint32_t ifit_smooth_end_mesh__unpack(const uint8_t *buf, uint32_t len, ifit_smooth_end_mesh *rec);
void ifit_smooth_end_mesh_free__unpacked(ifit_smooth_end_mesh *rec);
int ifit_smooth_end_mesh__pack(const ifit_smooth_end_mesh *rec, uint8_t *buf, uint32_t *len);
int ifit_smooth_end_mesh__sendsingle(uint32_t channel, const ifit_smooth_end_mesh *rec, uint32_t unused, uint32_t destination);
int ifit_smooth_end_mesh__sendbatch(uint32_t channel, const ifit_smooth_end_mesh *recs, uint32_t n, uint32_t destination);
int ifit_smooth_end_mesh__sendmsg(uint32_t channel, const ifit_smooth_end_mesh *recs, uint32_t n);
int ifit_smooth_end_mesh__sendtomsg(uint32_t channel, const ifit_smooth_end_mesh *recs, uint32_t n, uint32_t destination);

/* ifit_dam_smooth_request: Fixed form of 24 bytes, compact form of 14 to 18. Owns no memory. */
typedef struct ifit_dam_smooth_request {
    uint32_t f0;
} ifit_dam_smooth_request;

#define IFIT_DAM_SMOOTH_REQUEST_ID UINT32_C(0xb0b41e34)

uint32_t ifit_dam_smooth_request__unpack(const uint8_t *buf, uint32_t len, ifit_dam_smooth_request *rec);
void ifit_dam_smooth_request_free__unpacked(ifit_dam_smooth_request *rec);
int ifit_dam_smooth_request__pack(const ifit_dam_smooth_request *rec, uint8_t *buf, uint32_t *len);
int ifit_dam_smooth_request__sendsingle(uint32_t channel, const ifit_dam_smooth_request *rec, uint32_t unused, uint32_t destination);
int ifit_dam_smooth_request__sendbatch(uint32_t channel, const ifit_dam_smooth_request *recs, uint32_t n, uint32_t destination);
int ifit_dam_smooth_request__sendmsg(uint32_t channel, const ifit_dam_smooth_request *recs, uint32_t n);
int ifit_dam_smooth_request__sendtomsg(uint32_t channel, const ifit_dam_smooth_request *recs, uint32_t n, uint32_t destination);

/* ifit_flow_statistics_entry_to_mdtlm: Fixed form of 288 bytes, compact form of 220 to 284. Owns no memory. */
typedef struct ifit_flow_statistics_entry_to_mdtlm {
    kesto_u64 f0;
    uint8_t f1;
    uint8_t f2;
    uint8_t f3;
    uint8_t f4;
    uint32_t f5[4];
    uint32_t f6[4];
    uint16_t f7;
    uint16_t f8;
    uint8_t f9[32];
    uint32_t f10;
    uint8_t f11[64];
    uint32_t f12;
    uint8_t f13;
    uint8_t f14;
    uint8_t f15;
    uint8_t f16;
    uint16_t f17;
    uint16_t f18;
    kesto_u64 f19;
    kesto_u64 f20;
    kesto_u64 f21;
    uint32_t f22;
    uint32_t f23;
} ifit_flow_statistics_entry_to_mdtlm;

#define IFIT_FLOW_STATISTICS_ENTRY_TO_MDTLM_ID UINT32_C(0x1484d163)

uint32_t ifit_flow_statistics_entry_to_mdtlm__unpack(const uint8_t *buf, uint32_t len, ifit_flow_statistics_entry_to_mdtlm *rec);
void ifit_flow_statistics_entry_to_mdtlm_free__unpacked(ifit_flow_statistics_entry_to_mdtlm *rec);
int ifit_flow_statistics_entry_to_mdtlm__pack(const ifit_flow_statistics_entry_to_mdtlm *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_statistics_entry_to_mdtlm__sendsingle(uint32_t channel, const ifit_flow_statistics_entry_to_mdtlm *rec, uint32_t unused, uint32_t destination);
int ifit_flow_statistics_entry_to_mdtlm__sendbatch(uint32_t channel, const ifit_flow_statistics_entry_to_mdtlm *recs, uint32_t n, uint32_t destination);
int ifit_flow_statistics_entry_to_mdtlm__sendmsg(uint32_t channel, const ifit_flow_statistics_entry_to_mdtlm *recs, uint32_t n);
int ifit_flow_statistics_entry_to_mdtlm__sendtomsg(uint32_t channel, const ifit_flow_statistics_entry_to_mdtlm *recs, uint32_t n, uint32_t destination);

/* ifit_flow_statistics_list_to_mdtlm: Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_flow_statistics_list_to_mdtlm {
    struct { uint32_t count; ifit_flow_statistics_entry_to_mdtlm *items; } f0;
    uint32_t f1;
} ifit_flow_statistics_list_to_mdtlm;

#define IFIT_FLOW_STATISTICS_LIST_TO_MDTLM_ID UINT32_C(0xed1ca3d7)

uint32_t ifit_flow_statistics_list_to_mdtlm__unpack(const uint8_t *buf, uint32_t len, ifit_flow_statistics_list_to_mdtlm *rec);
void ifit_flow_statistics_list_to_mdtlm_free__unpacked(ifit_flow_statistics_list_to_mdtlm *rec);
int ifit_flow_statistics_list_to_mdtlm__pack(const ifit_flow_statistics_list_to_mdtlm *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_statistics_list_to_mdtlm__sendsingle(uint32_t channel, const ifit_flow_statistics_list_to_mdtlm *rec, uint32_t unused, uint32_t destination);
int ifit_flow_statistics_list_to_mdtlm__sendbatch(uint32_t channel, const ifit_flow_statistics_list_to_mdtlm *recs, uint32_t n, uint32_t destination);
int ifit_flow_statistics_list_to_mdtlm__sendmsg(uint32_t channel, const ifit_flow_statistics_list_to_mdtlm *recs, uint32_t n);
int ifit_flow_statistics_list_to_mdtlm__sendtomsg(uint32_t channel, const ifit_flow_statistics_list_to_mdtlm *recs, uint32_t n, uint32_t destination);

/* ifit_flow_hop_statistics_entry_to_mdtlm: Fixed form of 192 bytes, compact form of 124 to 192. Owns no memory. */
typedef struct ifit_flow_hop_statistics_entry_to_mdtlm {
    kesto_u64 f0;
    uint32_t f1;
    uint8_t f2[64];
    uint8_t f3;
    uint8_t f4;
    uint8_t f5;
    uint8_t f6;
    uint32_t f7;
    uint16_t f8;
    uint16_t f9;
    kesto_u64 f10;
    kesto_u64 f11;
    kesto_u64 f12;
    uint32_t f13;
    uint32_t f14;
    uint8_t f15;
    uint8_t f16;
    uint16_t f17;
    uint32_t f18;
    uint32_t f19;
} ifit_flow_hop_statistics_entry_to_mdtlm;

#define IFIT_FLOW_HOP_STATISTICS_ENTRY_TO_MDTLM_ID UINT32_C(0xf930c393)

uint32_t ifit_flow_hop_statistics_entry_to_mdtlm__unpack(const uint8_t *buf, uint32_t len, ifit_flow_hop_statistics_entry_to_mdtlm *rec);
void ifit_flow_hop_statistics_entry_to_mdtlm_free__unpacked(ifit_flow_hop_statistics_entry_to_mdtlm *rec);
int ifit_flow_hop_statistics_entry_to_mdtlm__pack(const ifit_flow_hop_statistics_entry_to_mdtlm *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_hop_statistics_entry_to_mdtlm__sendsingle(uint32_t channel, const ifit_flow_hop_statistics_entry_to_mdtlm *rec, uint32_t unused, uint32_t destination);
int ifit_flow_hop_statistics_entry_to_mdtlm__sendbatch(uint32_t channel, const ifit_flow_hop_statistics_entry_to_mdtlm *recs, uint32_t n, uint32_t destination);
int ifit_flow_hop_statistics_entry_to_mdtlm__sendmsg(uint32_t channel, const ifit_flow_hop_statistics_entry_to_mdtlm *recs, uint32_t n);
int ifit_flow_hop_statistics_entry_to_mdtlm__sendtomsg(uint32_t channel, const ifit_flow_hop_statistics_entry_to_mdtlm *recs, uint32_t n, uint32_t destination);

/* ifit_flow_hop_statistics_list_to_mdtlm: Compact form of 16 bytes and more. Owns its elements. */
typedef struct ifit_flow_hop_statistics_list_to_mdtlm {
    struct { uint32_t count; ifit_flow_hop_statistics_entry_to_mdtlm *items; } f0;
    uint32_t f1;
} ifit_flow_hop_statistics_list_to_mdtlm;

#define IFIT_FLOW_HOP_STATISTICS_LIST_TO_MDTLM_ID UINT32_C(0x515d9fc7)

uint32_t ifit_flow_hop_statistics_list_to_mdtlm__unpack(const uint8_t *buf, uint32_t len, ifit_flow_hop_statistics_list_to_mdtlm *rec);
void ifit_flow_hop_statistics_list_to_mdtlm_free__unpacked(ifit_flow_hop_statistics_list_to_mdtlm *rec);
int ifit_flow_hop_statistics_list_to_mdtlm__pack(const ifit_flow_hop_statistics_list_to_mdtlm *rec, uint8_t *buf, uint32_t *len);
int ifit_flow_hop_statistics_list_to_mdtlm__sendsingle(uint32_t channel, const ifit_flow_hop_statistics_list_to_mdtlm *rec, uint32_t unused, uint32_t destination);
int ifit_flow_hop_statistics_list_to_mdtlm__sendbatch(uint32_t channel, const ifit_flow_hop_statistics_list_to_mdtlm *recs, uint32_t n, uint32_t destination);
int ifit_flow_hop_statistics_list_to_mdtlm__sendmsg(uint32_t channel, const ifit_flow_hop_statistics_list_to_mdtlm *recs, uint32_t n);
int ifit_flow_hop_statistics_list_to_mdtlm__sendtomsg(uint32_t channel, const ifit_flow_hop_statistics_list_to_mdtlm *recs, uint32_t n, uint32_t destination);

int ifit_recv_init(void);
int ifit_send_init(void);
void ifit__send_resource_clean(void);

#ifdef __cplusplus
}
#endif

#endif
