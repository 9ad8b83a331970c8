/* A plug-in that sends with a codec. It brings MESH along, which therefore is not in the search order of the process. */
#include "ifit_dfx.h"

int run(void);

__attribute__((visibility("default"))) int run(void)
{
    ifit_dfx_query_glbdata_item_mesh item = {0};
    char text[] = "from a plug-in";
    const int failed = ifit_dfx_recv_init();
    item.f0 = text;
    return failed != 0 ? failed : ifit_dfx_query_glbdata_item_mesh__sendmsg(5, &item, 1);
}
