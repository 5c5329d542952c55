#!/bin/bash
# Builds everything and passes every test: native, sanitizers, lint, Windows under Wine, browser.
#   scripts/test.sh           all of it; installs what is missing when run as root
#   scripts/test.sh --quick   the native build and its tests, for the inner loop
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

build() {
    say "Building: $1"
    cmake --preset "$1" >"build/$1.configure.log" 2>&1 || { cat "build/$1.configure.log"; exit 1; }
    cmake --build --preset "$1"
}

# One run over the tests of several builds, so that one total speaks for all of them.
test_builds() {
    local build
    say "Testing: $*"
    mkdir -p build/all
    for build in "$@"; do
        echo "subdirs(\"$PWD/build/$build\")"
    done >build/all/CTestTestfile.cmake
    ctest --test-dir build/all --output-on-failure --no-tests=error
}

mkdir -p build
case ${1-} in
    --quick)
        need build quick
        build debug
        ctest --preset debug --label-regex 'native|structure'
        ;;
    '')
        need build quick full
        for preset in debug asan mingw64 mingw32 tidy release; do
            build "$preset"
        done
        test_builds debug asan mingw64 mingw32 tidy release
        ;;
    *)
        echo "usage: scripts/test.sh [--quick]" >&2
        exit 2
        ;;
esac
