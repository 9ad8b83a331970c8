#!/usr/bin/env bash
# Compares the binary interface of a library built with -g with the committed one: exported functions, their parameters,
# and every record's size, fields and offsets.
#
#   abi.sh BASELINE LIBRARY            exits with 1 on a difference
#   abi.sh --write BASELINE LIBRARY    makes LIBRARY's interface the baseline
set -euo pipefail
if [ "$1" = --write ]; then
    # Omits details that are not part of the interface: source locations, parameter names, folders.
    abidw --no-show-locs --no-parameter-names --no-corpus-path --no-comp-dir-path --exported-interfaces-only "$3" |
        gzip -9n >"$2"
    echo "$2 written: $(zcat "$2" | grep -c '<function-decl') functions"
    exit
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
zcat "$1" >"$work/committed.abi"
abidiff --no-show-locs --leaf-changes-only --impacted-interfaces "$work/committed.abi" "$2" || {
    echo "The binary interface of $2 differs from $1. If this is intended, see docs/integrating.md and run ./run abi --write"
    exit 1
}
echo "$(grep -c '<function-decl' "$work/committed.abi") functions and their records match $1"
