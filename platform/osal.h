/* Optional services of the process's OS-abstraction layer.
 *
 * A process provides them by defining these names in its global scope. The codec library looks them up with dlsym once
 * per codec unit, on first use, and works without them; it never links against them. */
#ifndef KESTO_PLATFORM_OSAL_H
#define KESTO_PLATFORM_OSAL_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The first argument of every log call. */
typedef struct OsalLogDescriptor {
    const char* tag;
    const char* sub_tag;
    uint32_t value; /* passed on, never interpreted here */
    uint32_t spare;
} OsalLogDescriptor;

enum {
    OSAL_MEMORY_MODULE = 12, /* the module number that the codecs pass to the memory services */
    OSAL_LOG_LEVEL = 2       /* the level of every log call */
};

/* Returns 1 if the module must use the two memory services below; any other value means malloc and free. */
uint32_t RVL_OsalMemUseFlagGet(uint32_t module);

/* Returns null if there is no memory. `caller` is the name of the calling routine; the string lives as long as
 * the library. */
void* RVL_OsalMemCacheAlloc(uint32_t size, uint32_t module, const char* caller);

/* Must accept a null pointer. */
void RVL_OsalMemFree(void* pointer, uint32_t module, const char* caller);

/* Writes one log record: printf-style `format` and its arguments. The result is ignored. */
uint32_t RVL_OsalLogWrite(const OsalLogDescriptor* descriptor, uint32_t level, uint32_t code, const char* file,
                          uint32_t line, const char* function, const char* format, ...)
    __attribute__((format(printf, 7, 8)));

#ifdef __cplusplus
}
#endif

#endif
