/* Answers queries about this machine's network interfaces, until the asker leaves. */
#define _POSIX_C_SOURCE 200809L
#include <errno.h>
#include <inttypes.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "ifit_dfx.h"
#include "platform/standin/mesh_standin.h"
#include "query.h"

enum { MOST_INTERFACES = 64, PATIENCE_MS = 10000 };

typedef struct Interface {
    char name[50];
    uint64_t received, sent;
} Interface;

static int failed; /* an answer could not be sent */

/* Fills `list` from /proc/net/dev and returns how many there are. */
static uint32_t read_interfaces(Interface* list, uint32_t room)
{
    char line[512];
    uint32_t count = 0;
    FILE* file = fopen("/proc/net/dev", "r");
    if (file == NULL) {
        fprintf(stderr, "query_answerer: /proc/net/dev: %s\n", strerror(errno));
        return 0;
    }
    while (count < room && fgets(line, sizeof line, file) != NULL) {
        Interface at;
        memset(&at, 0, sizeof at); /* all 50 bytes of the name travel */
        /* Eight columns are about receiving; the first one after them is the bytes sent. Title lines do not match. */
        if (sscanf(line, " %49[^: ]: %" SCNu64 " %*u %*u %*u %*u %*u %*u %*u %" SCNu64, at.name, &at.received,
                   &at.sent) == 3)
            list[count++] = at;
    }
    fclose(file);
    return count;
}

/* One line of a file about an interface; empty when there is none. */
static void read_about(const char* interface, const char* what, char* line, int room)
{
    char path[128];
    FILE* file;
    line[0] = '\0';
    snprintf(path, sizeof path, "/sys/class/net/%s/%s", interface, what);
    file = fopen(path, "r");
    if (file == NULL)
        return;
    if (fgets(line, room, file) == NULL)
        line[0] = '\0';
    fclose(file);
}

/* The mark is lent, not copied: sending only reads it, and the question outlives the answer. */
static void fill_frame(ifit_dfx_query_comm_rec_mesh* frame, const ifit_dfx_query_comm_param_mesh* question,
                       uint32_t count)
{
    frame->f0 = question->f0;
    frame->f1 = question->f1;
    frame->f2 = count > 0 ? QUERY_FOUND : QUERY_NOTHING;
    frame->f3.length = question->f2.length;
    frame->f3.data = question->f2.data;
    frame->f4 = count;
}

static int answer_statistics(const ifit_dfx_query_stat_mesh_key* question)
{
    Interface list[MOST_INTERFACES];
    ifit_dfx_query_stat_item_mesh items[MOST_INTERFACES];
    ifit_dfx_query_stat_rec_mesh answer;
    const time_t now = time(NULL);
    struct tm local;
    uint32_t count = read_interfaces(list, MOST_INTERFACES);
    if (question->f1.f0 != 0 && count > question->f1.f0)
        count = question->f1.f0;
    memset(&local, 0, sizeof local);
    localtime_r(&now, &local);

    memset(&answer, 0, sizeof answer); /* records start zeroed, and so do the items of a vector */
    memset(items, 0, sizeof items);
    for (uint32_t i = 0; i < count; ++i) {
        memcpy(items[i].f0, list[i].name, sizeof items[i].f0);
        items[i].f1 = (uint32_t)list[i].received;
        items[i].f2 = (uint32_t)list[i].sent;
        items[i].f3.year = (uint16_t)(local.tm_year + 1900);
        items[i].f3.month = (uint8_t)(local.tm_mon + 1);
        items[i].f3.day = (uint8_t)local.tm_mday;
        items[i].f3.hour = (uint8_t)local.tm_hour;
        items[i].f3.minute = (uint8_t)local.tm_min;
        items[i].f3.second = (uint8_t)local.tm_sec;
    }
    fill_frame(&answer.f0, &question->f0, count);
    answer.f1.count = count;
    answer.f1.items = items;
    return ifit_dfx_query_stat_rec_mesh__sendmsg(QUERY_CHANNEL, &answer, 1);
}

static int answer_global_data(const ifit_dfx_query_glbdata_mesh_key* question)
{
    char text[256] = "";
    ifit_dfx_query_glbdata_rec_mesh answer;
    FILE* file = fopen("/proc/version", "r");
    if (file != NULL) {
        if (fgets(text, sizeof text, file) == NULL)
            text[0] = '\0';
        fclose(file);
    }
    text[strcspn(text, "\n")] = '\0';

    memset(&answer, 0, sizeof answer);
    fill_frame(&answer.f0, &question->f0, text[0] != '\0');
    answer.f1.f0 = text; /* an empty text is sent as one; null would be no text */
    return ifit_dfx_query_glbdata_rec_mesh__sendmsg(QUERY_CHANNEL, &answer, 1);
}

static int answer_hash(const ifit_dfx_query_queryhash_mesh_key* question)
{
    Interface list[MOST_INTERFACES];
    char line[64];
    unsigned address[6] = {0};
    ifit_dfx_query_queryhash_rec_mesh answer;
    const uint32_t count = read_interfaces(list, MOST_INTERFACES);
    uint32_t found = 0;
    while (found < count && name_hash(list[found].name) != question->f1.f3)
        ++found;

    memset(&answer, 0, sizeof answer);
    fill_frame(&answer.f0, &question->f0, found < count);
    if (found < count) {
        answer.f1.f0 = list[found].name;
        answer.f1.f8 = list[found].received;
        answer.f1.f10 = list[found].sent;
        read_about(list[found].name, "mtu", line, sizeof line);
        answer.f1.f5 = (uint32_t)strtoul(line, NULL, 10);
        read_about(list[found].name, "address", line, sizeof line);
        sscanf(line, "%2x:%2x:%2x:%2x:%2x:%2x", &address[0], &address[1], &address[2], &address[3], &address[4],
               &address[5]);
        for (int i = 0; i < 6; ++i)
            answer.f1.f4[i] = (uint8_t)address[i];
    }
    return ifit_dfx_query_queryhash_rec_mesh__sendmsg(QUERY_CHANNEL, &answer, 1);
}

/* Every kind of question begins with the same frame. Test pointers, not lengths: a refused question may have kept those. */
static int was_decoded(const ifit_dfx_query_comm_param_mesh* frame) { return frame->f2.data != NULL; }

/* Called for each message after it was decoded; the record is freed for us when we return. */
static void on_message(void* context, uint32_t channel, uint32_t id, const void* record, uint32_t record_size,
                       const uint8_t* bytes, uint32_t length)
{
    int result;
    (void)context, (void)channel, (void)record_size, (void)bytes;
    if (id != IFIT_DFX_QUERY_STAT_MESH_KEY_ID && id != IFIT_DFX_QUERY_GLBDATA_MESH_KEY_ID &&
        id != IFIT_DFX_QUERY_QUERYHASH_MESH_KEY_ID) {
        fprintf(stderr, "query_answerer: message 0x%08" PRIx32 " is not a question\n", id);
        return;
    }
    if (!was_decoded(record)) { /* the frame stands first in all three */
        fprintf(stderr, "query_answerer: a question of %" PRIu32 " bytes was refused\n", length);
        return;
    }
    if (id == IFIT_DFX_QUERY_STAT_MESH_KEY_ID)
        result = answer_statistics(record);
    else if (id == IFIT_DFX_QUERY_GLBDATA_MESH_KEY_ID)
        result = answer_global_data(record);
    else
        result = answer_hash(record);
    if (result != 0) {
        fprintf(stderr, "query_answerer: cannot answer: %s\n",
                result == -1 ? "the record cannot be encoded" : mesh_standin_text(result));
        failed = 1;
    }
}

int main(int argc, char** argv)
{
    int result;
    if (argc == 2 && strcmp(argv[1], "--help") == 0) {
        printf(
            "usage: query_answerer SOCKET\n"
            "Answers queries about this machine's network interfaces on the socket path SOCKET, which must not exist\n"
            "yet. Ends when the asker leaves, with 0, or when nobody asks for 10 seconds, with 1.\n");
        return 0;
    }
    if (argc != 2 || argv[1][0] == '-') {
        fprintf(stderr, "usage: query_answerer SOCKET (or --help)\n");
        return 2;
    }

    result = ifit_dfx_recv_init(); /* from here on messages of this module can be received */
    if (result == 0)
        result = mesh_standin_set_consumer(QUERY_CHANNEL, on_message, NULL);
    if (result == 0)
        result = mesh_standin_listen(QUERY_CHANNEL, argv[1]);
    if (result != 0) {
        fprintf(stderr, "query_answerer: cannot listen on %s: %s (%s)\n", argv[1], mesh_standin_text(result),
                strerror(errno));
        return 1;
    }
    for (;;) {
        result = mesh_standin_receive(QUERY_CHANNEL, PATIENCE_MS);
        if (result == MESH_STANDIN_PEER_CLOSED || result == MESH_STANDIN_TIMEOUT || result == MESH_STANDIN_SYSTEM ||
            result == MESH_STANDIN_NO_MEMORY)
            break;
        if (result != 0) /* one bad packet; the next may be good */
            fprintf(stderr, "query_answerer: %s\n", mesh_standin_text(result));
    }
    mesh_standin_close(QUERY_CHANNEL);
    if (result != MESH_STANDIN_PEER_CLOSED)
        fprintf(stderr, "query_answerer: %s\n", mesh_standin_text(result));
    return result == MESH_STANDIN_PEER_CLOSED && !failed ? 0 : 1;
}
