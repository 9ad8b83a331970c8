/* Sends many records at once where they fit, and one by one where they do not.
 *
 * A batch of messages that own texts, blocks or vectors has 64 KiB for all its bytes and goes as a whole or not at all.
 * The channel is a loopback: what is sent comes to on_message before the send returns. */
#include <stdio.h>
#include <string.h>

#include "ifit_dfx.h"
#include "platform/standin/mesh_standin.h"

enum { CHANNEL = 1, RECORDS = 100, LONGEST = 2000 };

typedef struct Arrived {
    uint32_t messages, bytes;
} Arrived;

static void on_message(void* context, uint32_t channel, uint32_t id, const void* record, uint32_t record_size,
                       const uint8_t* bytes, uint32_t length)
{
    Arrived* arrived = context;
    (void)channel, (void)id, (void)record, (void)record_size, (void)bytes;
    ++arrived->messages;
    arrived->bytes += length;
}

/* The result is MESH's, or -1: then nothing has been sent, and nothing arrives twice if each record goes by itself. */
static int send_all(const ifit_dfx_query_glbdata_item_mesh* items, uint32_t count)
{
    int result = ifit_dfx_query_glbdata_item_mesh__sendmsg(CHANNEL, items, count);
    if (result != -1) {
        printf("%u records in a batch\n", (unsigned)count);
        return result;
    }
    printf("%u records do not fit a batch; one by one\n", (unsigned)count);
    result = 0;
    for (uint32_t i = 0; i < count && result == 0; ++i)
        result = ifit_dfx_query_glbdata_item_mesh__sendmsg(CHANNEL, &items[i], 1);
    return result;
}

/* All records share one text of `length` letters. */
static int try_length(uint32_t length)
{
    static char text[LONGEST + 1];
    ifit_dfx_query_glbdata_item_mesh items[RECORDS];
    Arrived arrived = {0, 0};
    int result;
    memset(text, 'x', length);
    text[length] = '\0';
    for (uint32_t i = 0; i < RECORDS; ++i)
        items[i].f0 = text;
    result = mesh_standin_set_consumer(CHANNEL, on_message, &arrived);
    if (result == 0)
        result = send_all(items, RECORDS);
    printf("texts of %u: %u messages arrived, %u bytes\n", (unsigned)length, (unsigned)arrived.messages,
           (unsigned)arrived.bytes);
    return result;
}

int main(void)
{
    int result = ifit_dfx_recv_init();
    if (result == 0)
        result = try_length(100);
    if (result == 0)
        result = try_length(LONGEST);
    if (result != 0)
        fprintf(stderr, "batch: %s\n", mesh_standin_text(result));
    return result == 0 ? 0 : 1;
}
