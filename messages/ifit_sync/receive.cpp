// The receive unit of the sync messages.

#define KESTO_MODULE ifit_sync
#define KESTO_CATALOGUE "messages/ifit_sync/ifit_sync.def"
#define KESTO_HEADER "include/ifit_sync.h"
#include "core/receive_unit.inc"
