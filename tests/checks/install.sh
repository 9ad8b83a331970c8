#!/usr/bin/env bash
# Installs a build, moves the installation, and builds and runs programs that use nothing else: with CMake and
# pkg-config, in C and C++, with their own MESH and with the stand-in; and the template project. Then builds the same
# programs together with the library's sources.
#
#   install.sh BUILD_FOLDER SOURCE_FOLDER
set -euo pipefail
build=$1 sources=$2 consumer=$2/tests/consumer
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
here=$work/moved/here

fail() {
    echo "FAILED: $*"
    exit 1
}

quietly() {
    "$@" >"$work/log" 2>&1 || { cat "$work/log"; fail "$*"; }
}

# The given command must fail and print $1.
fails_with() {
    "${@:2}" >"$work/log" 2>&1 && fail "expected to fail, but passed: ${*:2}"
    grep -q "$1" "$work/log" || { cat "$work/log"; fail "${*:2}"; }
}

# Both consumers in folder $1 must print what they were sent. The length of 28 follows from the rules in
# docs/wire-format.md.
runs_well() {
    local says='message 0x91cd149e of 28 bytes says "hello"'
    [ "$("$1/consumer_c")" = "$says" ] && [ "$("$1/consumer_cpp")" = "$says" ] || fail "the consumers in $1"
}

quietly cmake --install "$build" --prefix "$work/first/place"
mkdir "$work/moved" && mv "$work/first/place" "$here"
lib=$(dirname "$(find "$here" -name libifit_codec.so)")
[ "$(readlink "$lib/libifit_codec.so")" = libifit_codec.so.1 ] || fail "libifit_codec.so is not a link to the soname"
grep -rlF -e "$work/first" -e "$sources" -e "$build" "$here" --include='*.cmake' --include='*.pc' --include='*.h' &&
    fail "the files listed above contain a path of the build"

quietly cmake -G Ninja -S "$consumer" -B "$work/package" -DIFIT_CODEC_FROM=find_package -DCMAKE_PREFIX_PATH="$here" \
    -DCMAKE_C_STANDARD=99 -DCMAKE_CXX_STANDARD=11
quietly cmake --build "$work/package"
runs_well "$work/package"

# MESH from the stand-in. Without it, the errors are those that README.md and docs/integrating.md quote.
with_standin=(-G Ninja -S "$consumer" -DIFIT_CODEC_FROM=find_package -DCMAKE_PREFIX_PATH="$here"
    -DIFIT_CODEC_COMPONENTS=zervamesh)
quietly cmake "${with_standin[@]}" -B "$work/standin"
quietly cmake --build "$work/standin" --target first_program
[ "$("$work/standin/first_program")" = '28 bytes carry "hello"' ] || fail "first_program with the stand-in"

# The template project, copied as a team would.
cp -r "$sources/examples/starter" "$work/starter"
quietly cmake -G Ninja -S "$work/starter" -B "$work/starter/build" -DCMAKE_PREFIX_PATH="$here" -DCMAKE_C_FLAGS=-Werror
quietly cmake --build "$work/starter/build"
quietly ctest --test-dir "$work/starter/build" --output-on-failure --no-tests=error

fails_with "libifit_codec.so.*: undefined reference to \`MESH_SendMsg'" \
    cmake --build "$work/package" --target first_program
mv "$lib/ifit-codec" "$lib"/cmake/IfitCodec/IfitCodecZervamesh* "$work"
fails_with "component zervamesh is missing" cmake "${with_standin[@]}" -B "$work/without"
fails_with 'compatible with requested version "2.0"' cmake -S "$consumer" -B "$work/future" \
    -DCMAKE_PREFIX_PATH="$here" -DIfitCodec_DIR="$lib/cmake/IfitCodec" -DIFIT_CODEC_FROM=find_package \
    -DIFIT_CODEC_WANTED=2.0

export PKG_CONFIG_PATH=$lib/pkgconfig
version=$(sed -n 's/^project(IfitCodec VERSION \([0-9.]*\).*/\1/p' "$sources/CMakeLists.txt")
[ "$(pkg-config --modversion ifit-codec)" = "$version" ] || fail "ifit-codec.pc has the wrong version"
mkdir "$work/pkgconfig"
read -ra compile < <(pkg-config --cflags ifit-codec)
read -ra link < <(pkg-config --libs ifit-codec)
quietly cc -std=c99 "${compile[@]}" -c "$consumer/mesh.c" -o "$work/pkgconfig/mesh.o"
quietly cc -std=c99 "${compile[@]}" "$consumer/consumer.c" "$work/pkgconfig/mesh.o" "${link[@]}" \
    -Wl,-rpath,"$lib" -o "$work/pkgconfig/consumer_c"
quietly c++ -std=c++11 "${compile[@]}" "$consumer/consumer.cpp" "$work/pkgconfig/mesh.o" "${link[@]}" \
    -Wl,-rpath,"$lib" -o "$work/pkgconfig/consumer_cpp"
runs_well "$work/pkgconfig"
echo "installed and moved: passed with find_package and pkg-config, in C and C++"

# Builds with the sources and only the module that is used. FetchContent calls add_subdirectory, so building one of the
# two is enough.
for method in add_subdirectory FetchContent; do
    quietly cmake -G Ninja -S "$consumer" -B "$work/$method" -DIFIT_CODEC_FROM=$method -DIFIT_CODEC_SOURCES="$sources" \
        -DCMAKE_BUILD_TYPE=None -DKESTO_MODULES=ifit_dfx
done
quietly cmake --build "$work/FetchContent"
runs_well "$work/FetchContent"
quietly cmake --install "$work/FetchContent" --prefix "$work/nothing"
[ -z "$(find "$work/nothing" -type f 2>/dev/null)" ] || fail "a program that includes the sources also installs the library"
echo "with the sources: passed with FetchContent and add_subdirectory"
