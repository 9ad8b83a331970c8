// The receive unit of the native telemetry messages.

#define KESTO_MODULE ntvifit
#define KESTO_CATALOGUE "messages/ntvifit/ntvifit.def"
#define KESTO_HEADER "include/ntvifit.h"
#include "core/receive_unit.inc"
