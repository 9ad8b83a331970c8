#!/usr/bin/env bash
# Runs programs with and without the tap. They must behave the same, and every packet of the captures must decode.
#
#   tap.sh BUILD_FOLDER [MESH_OVER_ZEROMQ]
set -uo pipefail
build=$1 over_zeromq=${2-}
tap=$build/platform/tap/libkesto_tap.so kesto=$build/tools/kesto/kesto
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
failed=0
mesh=   # preloaded instead of the program's own; empty for that one

fail() {
    echo "FAILED: $*"
    failed=1
}

# Runs a program, whose processes send to each other, and leaves the records received in the file `records`.
#   $1: name of the captures   $2...: the program
compare() {
    LD_PRELOAD=$mesh timeout 60 "${@:2}" >plain || fail "$1"
    KESTO_TAP=$1.%p.pcap LD_PRELOAD=$tap:$mesh timeout 60 "${@:2}" >tapped || fail "$1 with the tap"
    diff plain tapped || fail "$1 with the tap prints something else"
    local capture direction
    for capture in "$1".*.pcap; do
        "$kesto" decode --pcap "$capture" || fail "$capture: packets that do not decode" >&2
        [ "$(stat -c %a "$capture")" = 600 ] || fail "$capture can be read by others" >&2
    done >packets
    for direction in sent received; do
        grep "\"direction\":\"$direction" packets | sed 's/.*"record"://; s/}$//' | sort >$direction
    done
    diff sent received || fail "$1: records that were sent and received"
    mv received records
}

compare exchange "$build/examples/exchange"
[ "$(wc -l <records)" -gt 100 ] || fail "exchange: too few packets"
echo "exchange: $(wc -l <records) packets sent and received"

# Two programs, over the stand-in's sockets and over ZeroMQ.
echo "1 receive ipc://$work/zeromq" >far.map
echo "1 send ipc://$work/zeromq" >near.map
# shellcheck disable=SC2016  # for the shell that runs it
talk='MESH_ZEROMQ_MAP=far.map "$0/receiver" "$1" & MESH_ZEROMQ_MAP=near.map "$0/sender" "$1" 0 "good morning" bye && wait $!'
for mesh in "" $over_zeromq; do
    place=${mesh:+-}
    compare "talk${mesh:+_over_zeromq}" bash -c "$talk" "$build/examples" "${place:-socket}"
    [ "$(tr '\n' ' ' <records)" = '{"f0":"bye"} {"f0":"good morning"} ' ] || fail "talk over ${mesh:-sockets}"
    echo "sender and receiver over ${mesh:-sockets}: $(wc -l <records) packets sent and received"
done
mesh=

# MESH outside the search order of the process.
compare plugin "$build/tests/tap_plugin_host" "$build/tests/libtap_plugin.so"
[ "$(cat records)" = '{"f0":"from a plug-in"}' ] || fail "plug-in"

# Without KESTO_TAP nothing is written, and a program that sends nothing leaves no file.
LD_PRELOAD=$tap "$build/examples/exchange" >/dev/null || fail "exchange, tap without KESTO_TAP"
complaints=$(KESTO_TAP=none.pcap KESTO_TAP_MIB=0 KESTO_TAP_FILES=4x KESTO_TAP_OTHERS=1 LD_PRELOAD=$tap /bin/true 2>&1)
[ "$complaints" = "kesto tap: KESTO_TAP_MIB=0 ignored: not a number from 1 to 4096
kesto tap: KESTO_TAP_FILES=4x ignored: not a number from 1 to 99" ] || fail "settings: $complaints"
[ "$(find . -name '*.pcap*' ! -name 'exchange.*' ! -name 'talk*' ! -name 'plugin.*')" = "" ] || fail "files that nobody asked for"
exit $failed
