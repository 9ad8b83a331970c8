// The receive unit of the diagnostic messages.

#define KESTO_MODULE ifit_dfx
#define KESTO_CATALOGUE "messages/ifit_dfx/ifit_dfx.def"
#define KESTO_HEADER "include/ifit_dfx.h"
#include "core/receive_unit.inc"
