/* Prints the texts that a sender sends, until the last one: receiver SOCKET|-
 *
 * With - the channel is where this process's MESH has put it already. */
#include <stdio.h>
#include <string.h>

#include "greeting.h"
#include "ifit_dfx.h"
#include "platform/standin/mesh_standin.h"

/* Called for each message after it was decoded; the record is freed for us when we return. */
static void on_message(void* context, uint32_t channel, uint32_t id, const void* record, uint32_t record_size,
                       const uint8_t* bytes, uint32_t length)
{
    const ifit_dfx_query_glbdata_item_mesh* item = record;
    int* done = context;
    (void)record_size, (void)bytes;
    if (id != IFIT_DFX_QUERY_GLBDATA_ITEM_MESH_ID || item->f0 == NULL) { /* null: the decoder refused the bytes */
        fprintf(stderr, "receiver: message 0x%08x of %u bytes is not a text\n", (unsigned)id, (unsigned)length);
        return;
    }
    printf("channel %u, %u bytes: %s\n", (unsigned)channel, (unsigned)length, item->f0);
    *done = strcmp(item->f0, LAST_TEXT) == 0;
}

int main(int argc, char** argv)
{
    int done = 0, result;
    if (argc != 2) {
        fprintf(stderr, "usage: receiver SOCKET|-\n");
        return 2;
    }
    result = ifit_dfx_recv_init(); /* from here on messages of this module can be received */
    if (result == 0)
        result = mesh_standin_set_consumer(GREETING_CHANNEL, on_message, &done);
    if (result == 0 && strcmp(argv[1], "-") != 0)
        result = mesh_standin_listen(GREETING_CHANNEL, argv[1]);
    while (result == 0 && !done)
        result = mesh_standin_receive(GREETING_CHANNEL, GREETING_PATIENCE_MS);
    if (result != 0)
        fprintf(stderr, "receiver: %s\n", mesh_standin_text(result));
    return result == 0 ? 0 : 1;
}
