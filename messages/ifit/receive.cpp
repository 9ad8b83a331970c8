// The receive unit of the control messages.

#define KESTO_MODULE ifit
#define KESTO_CATALOGUE "messages/ifit/ifit.def"
#define KESTO_HEADER "include/ifit.h"
#include "core/receive_unit.inc"
