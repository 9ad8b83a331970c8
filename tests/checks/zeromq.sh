#!/usr/bin/env bash
# sender and receiver of examples/ over ZeroMQ in place of the stand-in's sockets: on this host's loopback, to one of
# two receivers by destination, and between two network namespaces: 77 where we may not make these.
#
#   zeromq.sh LIBRARY PROGRAM_FOLDER EXPECTED_OUTPUT
set -uo pipefail
# Whoever is not root may make networks in a user namespace of his own.
if [ "$(id -u)" -ne 0 ] && unshare --map-root-user --net --mount true 2>/dev/null; then
    exec unshare --map-root-user --net --mount \
        bash -c 'mount -t tmpfs none /run && ip link set lo up && exec "$@"' - "$0" "$@"
fi
library=$1 programs=$2 expected=$3
work=$(mktemp -d)
first=kesto-$$-1 second=kesto-$$-2
trap 'rm -rf "$work"; ip netns del $first 2>/dev/null; ip netns del $second 2>/dev/null' EXIT
failed=0 left_out=0

# $1: file that says where channels are, then the program. Ends what hangs.
over_zeromq() {
    local map=$1
    shift
    MESH_ZEROMQ_MAP=$map LD_PRELOAD=$library timeout 30 "$@"
}

compare() {
    diff -u "$expected" "$1" || { echo "FAILED: $2"; failed=1; }
}

on_this_host() {
    local port=$((20000 + RANDOM % 10000)) one two
    echo "1 receive tcp://127.0.0.1:$port" >"$work/one.map"
    echo "1 receive tcp://127.0.0.1:$((port + 1))   # destination 7" >"$work/two.map"
    cat >"$work/sender.map" <<MAP
1 send tcp://127.0.0.1:$port
1 send tcp://127.0.0.1:$((port + 1)) to 7
MAP
    over_zeromq "$work/one.map" "$programs/receiver" - >"$work/one" &
    one=$!
    over_zeromq "$work/two.map" "$programs/receiver" - >"$work/two" &
    two=$!
    over_zeromq "$work/sender.map" "$programs/sender" - 0 "good morning" "" bye || failed=1
    wait $one || failed=1
    compare "$work/one" "the receiver without a destination"
    [ -s "$work/two" ] && { echo "FAILED: destination 7 got what was for none"; failed=1; }
    over_zeromq "$work/sender.map" "$programs/sender" - 7 "good morning" "" bye || failed=1
    wait $two || failed=1
    compare "$work/two" "destination 7"
    over_zeromq "$work/sender.map" "$programs/sender" - 8 bye 2>"$work/nowhere" && failed=1
    grep -q "nobody has connected" "$work/nowhere" || { echo "FAILED: a destination that no line names"; failed=1; }
    echo "on this host, two destinations"
}

make_namespaces() {
    ip netns add $first && ip netns add $second &&
        ip link add kesto1 netns $first type veth peer name kesto2 netns $second &&
        ip -n $first address add 10.234.0.1/30 dev kesto1 && ip -n $first link set kesto1 up &&
        ip -n $second address add 10.234.0.2/30 dev kesto2 && ip -n $second link set kesto2 up
}

between_namespaces() {
    if ! make_namespaces >"$work/log" 2>&1; then
        echo "not between network namespaces: $(head -n 1 "$work/log")"
        left_out=1
        return
    fi
    echo "1 receive tcp://10.234.0.2:5701" >"$work/far.map"
    echo "1 send tcp://10.234.0.2:5701" >"$work/near.map"
    over_zeromq "$work/far.map" ip netns exec $second "$programs/receiver" - >"$work/far" &
    over_zeromq "$work/near.map" ip netns exec $first "$programs/sender" - 0 "good morning" "" bye || failed=1
    wait $! || failed=1
    compare "$work/far" "the receiver in another network namespace"
    echo "between two network namespaces"
}

on_this_host
between_namespaces
[ $failed -eq 0 ] && [ $left_out -eq 1 ] && exit 77
exit $failed
