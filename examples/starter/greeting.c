#include "greeting.h"

#include <stdio.h>
#include <string.h>

#include "ifit_dfx.h"
#include "kesto_verify.h"

int greeting_text(uint32_t id, const uint8_t* bytes, uint32_t length, char* text, uint32_t size)
{
    ifit_dfx_query_glbdata_item_mesh record = {0}; /* records start zeroed */
    kesto_refusal why;
    int result = -1;
    if (id != IFIT_DFX_QUERY_GLBDATA_ITEM_MESH_ID) {
        fprintf(stderr, "greeting: message 0x%08x (%s) is none\n", (unsigned)id, kesto_name(id) ? kesto_name(id) : "?");
        return -1;
    }
    if (kesto_verify(id, bytes, length, &why) != KESTO_ACCEPTED) {
        fprintf(stderr, "greeting: refused, %s at position %u\n", kesto_check_name(why.check), (unsigned)why.position);
        return -1;
    }
    ifit_dfx_query_glbdata_item_mesh__unpack(bytes, length, &record);
    if (record.f0 != NULL && strlen(record.f0) < size) { /* null: the sender left it out, or there is no memory */
        strcpy(text, record.f0);
        result = (int)strlen(text);
    }
    ifit_dfx_query_glbdata_item_mesh_free__unpacked(&record);
    return result;
}
