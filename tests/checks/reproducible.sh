#!/usr/bin/env bash
# Rebuilds the library in a folder with another name and depth, and compares the files, with debugging information and
# stripped. LIBRARY must have been built with debugging information.
#
#   reproducible.sh SOURCE_FOLDER LIBRARY
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
place="$work/another/place, deeper"
mkdir -p "$place"
cp -R "$1"/{CMakeLists.txt,cmake,core,include,messages,packaging,platform,verify} "$place"
{ cmake -G Ninja -S "$place" -B "$place/made" -DKESTO_DEBUG_INFO=ON && cmake --build "$place/made"; } >"$work/log" 2>&1 ||
    { cat "$work/log"; exit 1; }
strip -o "$work/one.so" "$2"
strip -o "$work/another.so" "$place/made/libifit_codec.so"
cmp "$2" "$place/made/libifit_codec.so"
cmp "$work/one.so" "$work/another.so"
size() { stat -Lc %s "$1"; }
echo "identical from two folders: $(size "$2") bytes, $(size "$work/one.so") stripped"
