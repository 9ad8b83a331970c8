#!/usr/bin/env bash
# Compiles each public header on its own, included twice, in every language standard that it supports.
#
#   headers.sh SOURCE_FOLDER C_COMPILER C++_COMPILER
set -euo pipefail
cd "$1"
warnings=(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
count=0 failed=0

# $1 compiler, $2 language, then its standards; the headers are in `headers`
try() {
    local compiler=$1 language=$2 standard header
    shift 2
    for standard in "$@"; do
        for header in "${headers[@]}"; do
            printf '#include "%s"\n#include "%s"\n' "$header" "$header" |
                "$compiler" -x "$language" -std="$standard" "${warnings[@]}" -Iinclude -I. -fsyntax-only - ||
                { echo "FAILED: $compiler -std=$standard $header"; failed=1; }
            count=$((count + 1))
        done
    done
}

headers=(include/*.h)
headers=("${headers[@]#include/}" platform/mesh.h platform/osal.h)
try "$2" c c99 c11 c17
try "$3" c++ c++11 c++17 c++20
c_headers=${#headers[@]}
headers=(include/*.hpp)
headers=("${headers[@]#include/}")
try "$3" c++ c++20
echo "$count compilations of $((c_headers + ${#headers[@]})) headers"
exit $failed
