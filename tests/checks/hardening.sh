#!/usr/bin/env bash
# Checks the hardening of a built library or program: hardening.sh FILE [READELF OBJDUMP]. Exits with 1 if something is
# missing. Some checks apply only to libifit_codec.so.
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
require "position-independent code" 'file type is DYN' "$headers"
require "read-only relocations" GNU_RELRO "$headers"
require "immediate binding" 'BIND_NOW\|FLAGS.*NOW' "$dynamic"
require "non-executable stack" 'GNU_STACK.* RW ' "$headers"
require "stack protector" __stack_chk_fail "$symbols"
of_codecs=""
if [[ $library = */libifit_codec.so* ]]; then
    require "flag that keeps it mapped" NODELETE "$dynamic"
    of_codecs=", kept mapped"
    if [ "$objdump" != none ]; then
        # Copies and clears of compile-time size use moves, never string instructions; see core/copy.h.
        if $objdump -d "$library" | grep 'rep \(stos\|movs\)' >/dev/null; then
            echo "$library: string instructions"
            missing=1
        fi
        of_codecs+=", no string instructions"
    fi
fi
# Preloaded into programs that may have neither the C++ run-time library nor that of the compiler.
if [[ $library = */libkesto_tap.so ]] && grep NEEDED <<<"$dynamic" | grep -v '\[\(libc\.so\|ld-linux\)'; then
    echo "$library: needs more than libc"
    missing=1
fi
if grep -q TEXTREL <<<"$dynamic"; then
    echo "$library: relocations in its code"
    missing=1
fi
[ $missing -eq 0 ] && echo "$(basename "$library"): relro, bind now, stack not executable, stack protector$of_codecs"
exit $missing
