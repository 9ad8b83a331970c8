#ifndef CONSUMER_H
#define CONSUMER_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

void on_message(uint32_t id, uint32_t length, const void *record);

#ifdef __cplusplus
}
#endif

#endif
