/* A process with a memory service and a log of its own. The codecs find the four names of platform/osal.h in the
 * program, which has to export them: -rdynamic, or ENABLE_EXPORTS in CMake. */
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "ifit_dfx.h"
#include "platform/osal.h"

enum { BUDGET = 64, HEAD = 16 }; /* 64 bytes for all decoded records; a block's size stands before it */

static uint32_t live;

uint32_t RVL_OsalMemUseFlagGet(uint32_t module) { return module == OSAL_MEMORY_MODULE; }

/* Any thread may call; a process with several needs a lock here. Blocks serve any type, so the head has 16 bytes. */
void* RVL_OsalMemCacheAlloc(uint32_t size, uint32_t module, const char* caller)
{
    char* block;
    (void)module, (void)caller;
    if (size > BUDGET - live)
        return NULL; /* the codecs refuse the message and give back what they had */
    block = malloc(HEAD + (size_t)size);
    if (block == NULL)
        return NULL;
    memcpy(block, &size, sizeof size);
    live += size;
    return block + HEAD;
}

void RVL_OsalMemFree(void* pointer, uint32_t module, const char* caller)
{
    uint32_t size;
    (void)module, (void)caller;
    if (pointer == NULL) /* is called for absent parts, too */
        return;
    memcpy(&size, (char*)pointer - HEAD, sizeof size);
    live -= size;
    free((char*)pointer - HEAD);
}

uint32_t RVL_OsalLogWrite(const OsalLogDescriptor* descriptor, uint32_t level, uint32_t code, const char* file,
                          uint32_t line, const char* function, const char* format, ...)
{
    va_list arguments;
    (void)level, (void)file, (void)line;
    va_start(arguments, format);
    printf("log of %s, code %u, %s: ", descriptor->tag, (unsigned)code, function);
    vprintf(format, arguments);
    printf("\n");
    va_end(arguments);
    return 0;
}

int main(void)
{
    static const char* const texts[] = {"short",
                                        "much longer than the 64 bytes that the service above has for all of them"};
    for (int i = 0; i < 2; ++i) {
        ifit_dfx_query_glbdata_item_mesh sent = {0}, received = {0};
        uint8_t bytes[256];
        uint32_t length = sizeof bytes;
        sent.f0 = (char*)texts[i];
        if (ifit_dfx_query_glbdata_item_mesh__pack(&sent, bytes, &length) != 0)
            return 1;
        ifit_dfx_query_glbdata_item_mesh__unpack(bytes, length, &received);
        printf("%s; %u bytes in use\n", received.f0 != NULL ? received.f0 : "refused", (unsigned)live);
        ifit_dfx_query_glbdata_item_mesh_free__unpacked(&received);
    }
    printf("%u bytes in use at the end\n", (unsigned)live);
    return live == 0 ? 0 : 1;
}
