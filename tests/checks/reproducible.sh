#!/usr/bin/env bash
# Builds the library twice, in folders of different names and depths, and compares the bytes, unstripped and stripped.
#
#   reproducible.sh SOURCE_FOLDER [option of CMake]...
set -euo pipefail
sources=$1
shift
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
places=("$work/one" "$work/another/place, deeper")
for place in "${places[@]}"; do
    mkdir -p "$place"
    cp -R "$sources"/{CMakeLists.txt,cmake,core,include,messages,packaging,platform} "$place"
    { cmake -G Ninja -S "$place" -B "$place/made" "$@" && cmake --build "$place/made"; } >"$work/log" 2>&1 ||
        { cat "$work/log"; exit 1; }
    strip -o "$place/stripped.so" "$place/made/libifit_codec.so"
done
for file in made/libifit_codec.so stripped.so; do
    cmp "${places[0]}/$file" "${places[1]}/$file" || exit 1
done
size() { stat -Lc %s "${places[0]}/$1"; }
echo "the same $(size made/libifit_codec.so) bytes, $(size stripped.so) stripped, from two folders"
