#!/usr/bin/env bash
# Runs the examples that have an expected output and compares. Pairs of programs communicate over a socket.
#
#   examples.sh PROGRAM_FOLDER EXPECTED_FOLDER [emulator]...
set -uo pipefail
programs=$1 expected=$2
shift 2
emulator=("$@")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

run() { timeout 60 ${emulator[@]+"${emulator[@]}"} "$programs/$@"; }

# $1: name of the expected output. The actual output is read from standard input.
compare() {
    diff -u "$expected/$1.txt" - || { echo "FAILED: $1"; failed=1; }
}

# Starts the receiver, then the sender; compares the output of both, the receiver's first. $1 receiver, $2 sender, then
# the sender's arguments.
pair() {
    local receiver=$1 sender=$2 result=0
    shift 2
    run "$receiver" "$work/socket" >"$work/received" 2>&1 &
    run "$sender" "$work/socket" "$@" >"$work/sent" 2>&1 || result=$?
    wait $! || result=$?
    [ $result -eq 0 ] || { cat "$work/sent" "$work/received"; echo "FAILED: $receiver, $sender: $result"; failed=1; }
    cat "$work/received" "$work/sent" | compare "$receiver"
}

run batch | compare batch
run own_services | compare own_services
run cpp_rows | compare cpp_rows
pair receiver sender 0 "good morning" "" bye
pair careful_receiver hostile_sender
exit $failed
