#!/usr/bin/env bash
# Runs sender and receiver of examples/ over ZeroMQ instead of the stand-in's sockets: in two processes, without and
# with keys.
#
#   zeromq.sh LIBRARY PROGRAM_FOLDER EXPECTED_OUTPUT
set -uo pipefail
library=$1 programs=$2 expected=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
address=tcp://127.0.0.1:$((20000 + RANDOM % 10000))
echo "1 receive $address" >"$work/far.map"
echo "1 send $address" >"$work/near.map"
failed=0

# $1: file with the channel map, then the program. Kills a program that hangs.
over_zeromq() {
    local map=$1
    shift
    MESH_ZEROMQ_MAP=$map LD_PRELOAD=$library timeout 30 "$@"
}

# $1: file with keys, empty for none; then the arguments of the sender.
sender_with() {
    MESH_ZEROMQ_KEYS=$1 over_zeromq "$work/near.map" "$programs/sender" - 0 "${@:2}"
}

# $1: file with keys, empty for none.
start_receiver() {
    MESH_ZEROMQ_KEYS=$1 over_zeromq "$work/far.map" "$programs/receiver" - >"$work/far" &
    pid=$!
}

# Sends the last texts with the keys in $1. The receiver must then have printed the expected output.
finish() {
    sender_with "$1" "good morning" "" bye || failed=1
    wait $pid || failed=1
    diff -u "$expected" <(grep -v "still here" "$work/far") || failed=1
}

# The sender must fail with the keys in $1 and print a line that matches $2.
expect_refused() {
    sender_with "$1" "refused" 2>"$work/refused" && { echo "FAILED: $1 was admitted"; failed=1; }
    grep -q "$2" "$work/refused" || { echo "FAILED: $1: $(cat "$work/refused")"; failed=1; }
}

start_receiver ""
finish ""

for name in receiver admitted stranger other; do
    "$(dirname "$library")/mesh_zeromq_keys" >"$work/$name.pair"
    declare "$name=$(sed -n 's/^# public key: //p' "$work/$name.pair")"
done
(cat "$work/receiver.pair" && echo "sender $admitted") >"$work/receiver.keys"
(cat "$work/admitted.pair" && echo "receiver $address $receiver") >"$work/admitted.keys"
(cat "$work/stranger.pair" && echo "receiver $address $receiver") >"$work/stranger.keys"
(cat "$work/admitted.pair" && echo "receiver $address $other") >"$work/wrong_receiver.keys"
(cat "$work/admitted.keys" &&
    printf '%s\n' "secret short" "sender ${other}x" "receiver $other" "key 1") >"$work/bad.keys"

# Senders without the right key retry until they time out. Meanwhile the admitted sender keeps the receiver from timing
# out.
start_receiver "$work/receiver.keys"
tries=()
for keys in "$work/stranger.keys" "$work/wrong_receiver.keys" ""; do
    (sender_with "$keys" "refused" 2>&1 | grep "the time is over") >>"$work/over" &
    tries+=($!)
done
while kill -0 "${tries[@]}" 2>/dev/null; do   # while any of them is running
    sender_with "$work/admitted.keys" "still here" || { failed=1; break; }
done
[ "$(wc -l <"$work/over")" = 3 ] || { echo "FAILED: a sender without the right key was admitted"; failed=1; }
finish "$work/admitted.keys"

expect_refused "$work/admitted.pair" "$address: Permission denied"   # no key for the receiver
expect_refused "$work/none.keys" "no keys from MESH_ZEROMQ_KEYS"
expect_refused "$work/bad.keys" "no keys from MESH_ZEROMQ_KEYS"
[ "$(grep -c "bad.keys:[4-7]: " "$work/refused")" = 4 ] || { cat "$work/refused"; failed=1; }
[ $failed -eq 0 ] && echo "sender and receiver over ZeroMQ, without and with keys"
exit $failed
