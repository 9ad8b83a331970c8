#!/usr/bin/env bash
# How a built library is hardened: hardening.sh LIBRARY [READELF OBJDUMP]. Ends with 1 when something is missing.
set -euo pipefail
library=$1 readelf=${2:-readelf} objdump=${3:-objdump}
missing=0

require() {
    if ! grep -q "$2" <<<"$3"; then
        echo "$library: no $1"
        missing=1
    fi
}

headers=$($readelf -lW "$library")
dynamic=$($readelf -dW "$library")
symbols=$($readelf --dyn-syms -W "$library")
require "read-only relocations" GNU_RELRO "$headers"
require "immediate binding" 'BIND_NOW\|FLAGS.*NOW' "$dynamic"
require "non-executable stack" 'GNU_STACK.* RW ' "$headers"
require "stack protector" __stack_chk_fail "$symbols"
require "flag that keeps it mapped" NODELETE "$dynamic"
if grep -q TEXTREL <<<"$dynamic"; then
    echo "$library: relocations in its code"
    missing=1
fi
# Copies and clears of a size known when compiled are moves, never string instructions; see core/run.h.
if [ "$objdump" != none ] && $objdump -d "$library" | grep -q 'rep \(stos\|movs\)'; then
    echo "$library: string instructions"
    missing=1
fi
[ $missing -eq 0 ] && echo "relro, bind now, kept mapped, stack not executable, stack protector, no string instructions"
exit $missing
