/* Prints the texts that arrive: receiver SOCKET */
#include <stdio.h>
#include <string.h>

#include "greeting.h"
#include "ifit_dfx.h"
#include "transport.h"

/* MESH has decoded `record`, which is its own and freed when we return. We look at the bytes instead, to learn whether
 * they were refused. */
static void handle(void* context, uint32_t channel, uint32_t id, const void* record, uint32_t record_size,
                   const uint8_t* bytes, uint32_t length)
{
    char text[200];
    (void)channel, (void)record, (void)record_size;
    if (greeting_text(id, bytes, length, text, sizeof text) < 0)
        return;
    printf("received: %s\n", text);
    *(int*)context = strcmp(text, LAST_GREETING) == 0;
}

int main(int argc, char** argv)
{
    int done = 0, result = argc != 2;
    if (result == 0)
        result = ifit_dfx_recv_init(); /* once per process, for each module that it receives */
    if (result == 0)
        result = mesh_standin_set_consumer(GREETING_CHANNEL, handle, &done);
    if (result == 0)
        result = mesh_standin_listen(GREETING_CHANNEL, argv[1]);
    while (result == 0 && !done)
        result = mesh_standin_receive(GREETING_CHANNEL, PATIENCE_MS);
    if (result != 0)
        fprintf(stderr, "receiver: %s\n", argc != 2 ? "usage: receiver SOCKET" : mesh_standin_text(result));
    return result == 0 ? 0 : 1;
}
