/* Sends texts: sender SOCKET TEXT... */
#include <stdio.h>

#include "greeting.h"
#include "ifit_dfx.h"
#include "transport.h"

int main(int argc, char** argv)
{
    int result = argc < 3 ? -1 : mesh_standin_connect(GREETING_CHANNEL, argv[1], PATIENCE_MS);
    for (int i = 2; i < argc && result == 0; ++i) {
        ifit_dfx_query_glbdata_item_mesh record = {0};
        record.f0 = argv[i];
        result = ifit_dfx_query_glbdata_item_mesh__sendmsg(GREETING_CHANNEL, &record, 1); /* 0, or MESH's result */
    }
    if (result != 0)
        fprintf(stderr, "sender: %s\n", argc < 3 ? "usage: sender SOCKET TEXT..." : mesh_standin_text(result));
    return result == 0 ? 0 : 1;
}
