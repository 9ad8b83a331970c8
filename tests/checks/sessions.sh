#!/usr/bin/env bash
# Runs the sessions of a document in order and compares their output. In an indented block, a line that begins with "$ "
# is a command, which continues after a backslash; the lines after it are its output, where "..." matches any number of
# lines. Empty lines are ignored. Exits with 77 if tshark is not installed for the commands that need it.
#
#   sessions.sh DOCUMENT PROGRAM_FOLDER
set -uo pipefail
document=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/build" && ln -s "$2" "$work/build/dev" && cd "$work" || exit 1
PATH=$2/tools/kesto:$PATH
export LC_ALL=C.UTF-8
command="" expected="" pattern="" failed=0 skipped=0 count=0

# Runs the last command read and compares its output.
compare() {
    [ -n "$command" ] || return
    if [ "${command%% *}" = tshark ] && ! type tshark >/dev/null 2>&1; then
        echo "skipped: $command"
        skipped=1
        return
    fi
    eval "$command" >"$work/output" 2>&1 </dev/null
    count=$((count + 1))
    local output
    output=$(grep -v '^$' "$work/output")
    # shellcheck disable=SC2053
    [[ ${output:+$output$'\n'} == $pattern ]] && return
    printf 'FAILED: %s\n' "$command"
    diff <(printf '%s' "$expected") "$work/output" | head -n 40
    failed=1
}

expect_output() {
    expected+=$1$'\n'
    case $1 in
    ...) pattern+="*" ;;
    *) pattern+=$(printf '%q' "$1")$'\n' ;;
    esac
}

while IFS= read -r line; do
    case $line in
    "    \$ "*)
        compare
        command=${line#    \$ } expected="" pattern=""
        while [ "${command: -1}" = "\\" ] && IFS= read -r line; do command=${command%\\}$line; done
        ;;
    "    "*) expect_output "${line#    }" ;;
    esac
done <"$document"
compare
echo "$count commands run from $(basename "$document")"
[ $failed -eq 0 ] && [ $count -gt 0 ] || exit 1
[ $skipped -eq 0 ] || exit 77
