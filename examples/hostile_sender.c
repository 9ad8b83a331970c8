/* Sends a good answer, that answer in every kind of disrepair, and a good one again: hostile_sender SOCKET
 *
 * Past MESH, straight to the socket of the stand-in, whose packets are described in platform/standin/mesh_standin.h. */
#define _POSIX_C_SOURCE 200809L
#include <stdio.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <time.h>

#include "ifit_dfx.h"

enum { HEAD = 8, ROOM = 1024 };

static int peer;

/* `said` is the length that the head gives. */
static int send_packet(uint32_t id, uint32_t said, const uint8_t* bytes, uint32_t length)
{
    uint8_t packet[HEAD + ROOM];
    for (int i = 0; i < 4; ++i) {
        packet[i] = (uint8_t)(id >> (8 * i));
        packet[4 + i] = (uint8_t)(said >> (8 * i));
    }
    memcpy(packet + HEAD, bytes, length);
    return send(peer, packet, HEAD + length, MSG_NOSIGNAL) >= 0;
}

static uint32_t pack_answer(uint8_t* bytes)
{
    static uint8_t mark[] = "our mark";
    ifit_dfx_query_stat_item_mesh rows[2] = {{.f0 = "eth0", .f1 = 17, .f3 = {.year = 2026, .month = 11, .day = 23}},
                                             {.f0 = "eth1", .f1 = 4, .f3 = {.year = 2026, .month = 2, .day = 28}}};
    ifit_dfx_query_stat_rec_mesh answer = {.f0 = {.f0 = 1, .f3 = {sizeof mark, mark}, .f4 = 2}, .f1 = {2, rows}};
    uint32_t length = ROOM;
    return ifit_dfx_query_stat_rec_mesh__pack(&answer, bytes, &length) == 0 ? length : 0;
}

static int connect_to(const char* path)
{
    const struct timespec pause = {0, 10000000};
    struct sockaddr_un address = {.sun_family = AF_UNIX};
    strncpy(address.sun_path, path, sizeof address.sun_path - 1);
    peer = socket(AF_UNIX, SOCK_SEQPACKET, 0);
    for (int tries = 0; tries < 1000; ++tries) { /* the receiver may still be starting */
        if (connect(peer, (const struct sockaddr*)&address, sizeof address) == 0)
            return 1;
        nanosleep(&pause, NULL);
    }
    return 0;
}

int main(int argc, char** argv)
{
    const uint32_t id = IFIT_DFX_QUERY_STAT_REC_MESH_ID;
    uint8_t bytes[ROOM];
    const uint32_t length = pack_answer(bytes);
    int good;
    if (argc != 2 || length == 0 || !connect_to(argv[1])) {
        fprintf(stderr, "hostile_sender: needs the SOCKET of a careful_receiver\n");
        return 2;
    }
    good = send_packet(id, length, bytes, length);
    for (uint32_t cut = 0; cut < length && good; ++cut) /* its end missing */
        good = send_packet(id, cut, bytes, cut);
    for (uint32_t at = 0; at < length && good; ++at) { /* one byte wrong */
        bytes[at] ^= 0xff;
        good = send_packet(id, length, bytes, length);
        bytes[at] ^= 0xff;
    }
    good = good && send_packet(id, length + 1, bytes, length) && send_packet(id + 1, length, bytes, length) &&
           send(peer, bytes, 3, MSG_NOSIGNAL) == 3; /* a lie about the length, an unknown message, half a head */
    good = good && send_packet(id, length, bytes, length);
    printf("%u packets of up to %u bytes\n", (unsigned)(2 * length + 5), (unsigned)(HEAD + length));
    return good ? 0 : 1;
}
