/* What sender and receiver agree on. */
#pragma once

#include <stdint.h>

enum { GREETING_CHANNEL = 1 };
#define LAST_GREETING "bye" /* after it the receiver ends */

/* The text of a greeting that arrived, in memory of the caller's; its length, or -1 with a line on stderr for anything
 * else: another message, bytes that do not decode, or a text that does not fit. */
int greeting_text(uint32_t id, const uint8_t* bytes, uint32_t length, char* text, uint32_t size);
