/* Sends texts to a receiver: sender SOCKET|- DESTINATION TEXT...
 *
 * With - the channel is where this process's MESH has put it already. DESTINATION 0 is none. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "greeting.h"
#include "ifit_dfx.h"
#include "platform/standin/mesh_standin.h"

int main(int argc, char** argv)
{
    int result = 0;
    if (argc < 4) {
        fprintf(stderr, "usage: sender SOCKET|- DESTINATION TEXT...\n");
        return 2;
    }
    if (strcmp(argv[1], "-") != 0)
        result = mesh_standin_connect(GREETING_CHANNEL, argv[1], GREETING_PATIENCE_MS);
    for (int i = 3; i < argc && result == 0; ++i) {
        ifit_dfx_query_glbdata_item_mesh item = {0};
        item.f0 = argv[i]; /* lent for the call: sending only reads it */
        result = ifit_dfx_query_glbdata_item_mesh__sendtomsg(GREETING_CHANNEL, &item, 1,
                                                             (uint32_t)strtoul(argv[2], NULL, 0));
    }
    if (result != 0)
        fprintf(stderr, "sender: %s\n", result == -1 ? "the record cannot be encoded" : mesh_standin_text(result));
    return result == 0 ? 0 : 1;
}
