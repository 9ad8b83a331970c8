#include <stdio.h>

#include "ifit.h"
#include "ifit_dfx.h"
#include "ifit_sync.h"
#include "ntvifit.h"

#ifdef __cplusplus
extern "C" {
#endif
void on_message(uint32_t id, uint32_t length, const void* record);
#ifdef __cplusplus
}
#endif

void on_message(uint32_t id, uint32_t length, const void* record)
{
    const ifit_dfx_query_glbdata_item_mesh* item = (const ifit_dfx_query_glbdata_item_mesh*)record;
    printf("message 0x%08x of %u bytes says \"%s\"\n", (unsigned)id, (unsigned)length, item->f0);
}

int main(void)
{
    char text[] = "hello";
    ifit_dfx_query_glbdata_item_mesh item = {0};
    item.f0 = text;
    return ifit_dfx_recv_init() || ifit_dfx_query_glbdata_item_mesh__sendmsg(1, &item, 1);
}
