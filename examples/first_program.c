/* A record to bytes and back. */
#include <stdio.h>

#include "ifit_dfx.h"

int main(void)
{
    ifit_dfx_query_glbdata_item_mesh sent = {0}, received = {0}; /* records start zeroed */
    char text[] = "hello";
    uint8_t bytes[64];
    uint32_t length = sizeof bytes;

    sent.f0 = text;
    if (ifit_dfx_query_glbdata_item_mesh__pack(&sent, bytes, &length) != 0)
        return 1;
    ifit_dfx_query_glbdata_item_mesh__unpack(bytes, length, &received); /* the result does not tell success */
    if (received.f0 == NULL)                                            /* a null pointer does */
        return 1;
    printf("%u bytes carry \"%s\"\n", length, received.f0);
    ifit_dfx_query_glbdata_item_mesh_free__unpacked(&received);
    return 0;
}
