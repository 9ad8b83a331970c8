// The send unit of the test module.

#define KESTO_MODULE synthetic
#define KESTO_CATALOGUE "tests/module/synthetic.def"
#define KESTO_HEADER "tests/module/synthetic.h"
#include "core/send_unit.inc"
