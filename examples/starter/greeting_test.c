/* What a peer may send: greetings, other messages, and bytes that were cut. */
#include <stdio.h>
#include <string.h>

#include "greeting.h"
#include "ifit_dfx.h"

static int failures;
#define EXPECT(what) ((what) ? (void)0 : (void)(fprintf(stderr, "line %d: %s\n", __LINE__, #what), ++failures))

int main(void)
{
    ifit_dfx_query_glbdata_item_mesh record = {0};
    uint8_t bytes[64];
    uint32_t length = sizeof bytes;
    char text[6], sent[] = "hello";
    record.f0 = sent;
    EXPECT(ifit_dfx_query_glbdata_item_mesh__pack(&record, bytes, &length) == 0);
    EXPECT(greeting_text(IFIT_DFX_QUERY_GLBDATA_ITEM_MESH_ID, bytes, length, text, sizeof text) == 5);
    EXPECT(strcmp(text, "hello") == 0);
    EXPECT(greeting_text(IFIT_DFX_QUERY_GLBDATA_ITEM_MESH_ID, bytes, length, text, sizeof text - 1) == -1);
    EXPECT(greeting_text(1, bytes, length, text, sizeof text) == -1);
    for (uint32_t cut = 0; cut < length - 1; ++cut) /* the last byte is a NUL that no reader needs */
        EXPECT(greeting_text(IFIT_DFX_QUERY_GLBDATA_ITEM_MESH_ID, bytes, cut, text, sizeof text) == -1);
    return failures != 0;
}
