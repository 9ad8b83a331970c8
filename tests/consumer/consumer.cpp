#include "consumer.h"

#include <cstdio>
#include <string>

#include "ifit.h"
#include "ifit_dfx.h"
#include "ifit_sync.h"
#include "ntvifit.h"

void on_message(uint32_t id, uint32_t length, const void *record)
{
    const auto &item = *static_cast<const ifit_dfx_query_glbdata_item_mesh *>(record);
    std::printf("C++: message 0x%08x of %u bytes says \"%s\"\n", unsigned{id}, unsigned{length}, item.f0);
}

int main()
{
    std::string text = "hello";
    ifit_dfx_query_glbdata_item_mesh item{};
    item.f0 = &text[0];
    return ifit_dfx_recv_init() != 0 || ifit_recv_init() != 0 || ifit_sync_recv_init() != 0 || ntvifit_recv_init() != 0 ||
           ifit_dfx_query_glbdata_item_mesh__sendmsg(1, &item, 1) != 0;
}
