#!/usr/bin/env bash
# Runs `exchange` of examples/: every message must arrive in another process, and it must report lost and damaged ones.
#
#   exchange.sh [EMULATOR...] PROGRAM
set -uo pipefail
failed=0

# $1: expected exit code; $2: condition on the last row: messages m, byte strings s, allocations a, left over l,
# failures f; $3: pattern expected in the output; then the environment, and the program with arguments.
expect() {
    local code=$1 holds=$2 text=$3 output
    shift 3
    output=$(env "$@" 2>&1)
    [ $? -eq "$code" ] && grep -q "$text" <<<"$output" &&
        awk '$1 == "all" { m = $2; s = $3; a = $5; l = $6; f = $7; good = m > 200 && l == 0 && '"$holds"' }
            END { exit !good }' <<<"$output" && return
    printf 'FAILED: %s\n%s\n' "$*" "$output"
    failed=1
}

expect 0 "s > 4 * m && a > 0 && f == 0" "nothing differs" "$@"
expect 1 "f == s" "differ: f0[.:[]" "$@" --damage all
expect 1 "f == 8" "ifit_mcp_mesh, .* differ: f5: " "$@" --damage ifit_mcp_mesh
expect 1 "f == 4" "ifit_mcp_mesh_update, .* differ: f1\[[0-9]*\].f5: " "$@" --damage ifit_mcp_mesh_update
expect 1 "f == 8 || f == 4" "ifit_dfx_query_stat_mesh_key, .* differ: f1.f2: " "$@" --damage ifit_dfx_query_stat_mesh_key
# A failed decode leaves counts without elements, which the comparison must handle.
expect 1 "a == 399 && f > 0" "received differ" OSAL_STANDIN_FAIL_FROM=400 "$@"
exit $failed
