#!/usr/bin/env bash
# Runs programs with and without the tap. They must behave the same, and every packet of the captures must decode.
#
#   tap.sh BUILD_FOLDER
set -uo pipefail
build=$1
tap=$build/platform/tap/libkesto_tap.so zeromq=$build/platform/zeromq/libzervamesh_zmq.so
kesto=$build/tools/kesto/kesto
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
failed=0

fail() {
    echo "FAILED: $*"
    failed=1
}

# $1: prefix of the captures, then the program.
tapped() {
    KESTO_TAP=$1.%p.pcap LD_PRELOAD="$tap ${preload:-}" timeout 60 "${@:2}"
}

# The records with direction $1 in the captures $2 must be those in file $3, one line of JSON each. With "" every packet
# is only decoded.
expect_packets() {
    local capture
    for capture in $2; do
        "$kesto" decode --pcap "$capture" >"$capture.json" || fail "$capture: $("$kesto" decode --pcap "$capture" 2>&1 | grep -v '"record"' | head -3)"
        [ "$(stat -c %a "$capture")" = 600 ] || fail "$capture can be read by others"
    done
    # shellcheck disable=SC2086   # a pattern
    cat $2.json | grep "\"direction\":\"$1" | sed 's/.*"record"://; s/}$//' | sort >"$work/records"
    [ -z "$3" ] || diff "$3" "$work/records" || fail "$2: $1"
}

"$build/examples/exchange" >plain || fail "exchange"
tapped exchange "$build/examples/exchange" >tapped || fail "exchange with the tap"
diff plain tapped || fail "exchange prints something else"
expect_packets received 'exchange.*.pcap' ""
cp records received
expect_packets sent 'exchange.*.pcap' received
[ "$(wc -l <received)" -gt 100 ] || fail "exchange: too few packets"
echo "exchange: $(wc -l <received) packets sent and received"

printf '{"f0":"%s"}\n' "" bye "good morning" | sort >texts
over() {   # $1: name, $2 and $3: what the receiver and the sender get as their socket
    MESH_ZEROMQ_MAP=far.map tapped "$1.far" "$build/examples/receiver" "$2" >"$1.out" &
    MESH_ZEROMQ_MAP=near.map tapped "$1.near" "$build/examples/sender" "$3" 0 "good morning" "" bye || fail "$1: sender"
    wait $! || fail "$1: receiver"
    expect_packets sent "$1.near.*.pcap" texts
    expect_packets received "$1.far.*.pcap" texts
    echo "sender and receiver over $1"
}
over sockets socket socket
if [ -e "$zeromq" ]; then
    address=tcp://127.0.0.1:$((20000 + RANDOM % 10000))
    echo "1 receive $address" >far.map
    echo "1 send $address" >near.map
    preload=$zeromq over ZeroMQ - -
fi

# MESH outside the search order of the process.
"$build/tests/tap_plugin_host" "$build/tests/libtap_plugin.so" || fail "plug-in"
tapped plugin "$build/tests/tap_plugin_host" "$build/tests/libtap_plugin.so" || fail "plug-in with the tap"
echo '{"f0":"from a plug-in"}' >text
expect_packets sent 'plugin.*.pcap' text
expect_packets received 'plugin.*.pcap' text

# Without KESTO_TAP nothing is written, and a program that sends nothing leaves no file.
LD_PRELOAD=$tap "$build/examples/exchange" >/dev/null || fail "exchange, tap without KESTO_TAP"
complaints=$(KESTO_TAP=none.pcap KESTO_TAP_MIB=0 KESTO_TAP_FILES=4x KESTO_TAP_OTHERS=1 LD_PRELOAD=$tap /bin/true 2>&1)
[ "$complaints" = "kesto tap: KESTO_TAP_MIB=0 ignored: not a number from 1 to 4096
kesto tap: KESTO_TAP_FILES=4x ignored: not a number from 1 to 99" ] || fail "settings: $complaints"
[ -z "$(find . -name 'none*' -o -name '*.pcap' -newer text ! -name 'plugin*')" ] || fail "files that nobody asked for"
exit $failed
