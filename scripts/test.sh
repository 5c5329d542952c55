#!/bin/bash
# Builds everything and passes every test: native, sanitizers, lint, Windows under Wine, browser.
#   scripts/test.sh           all of it; installs what is missing when run as root
#   scripts/test.sh --quick   the native build and its tests, for the inner loop
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

# configure PRESET [CMAKE_OPTION...]
configure() {
    cmake --preset "$@" >"build/$1.configure.log" 2>&1 || { cat "build/$1.configure.log"; exit 1; }
}

# build PRESET [CMAKE_OPTION...]
build() {
    say "Building: $1"
    configure "$@"
    cmake --build --preset "$1"
}

# The browser tests' own tool, in the version that package-lock.json names.
need_node_modules() {
    [ node_modules/.package-lock.json -nt package-lock.json ] && return
    say "Installing the tool of the browser tests"
    npm ci --no-audit --no-fund || npm ci --no-audit --no-fund
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
        build debug -D DOCHTML_BROWSER_TESTS=OFF
        ctest --preset debug --label-regex 'native|structure'
        ;;
    '')
        need build quick full
        need_node_modules
        build debug -D DOCHTML_BROWSER_TESTS=ON
        build asan
        build mingw64
        # Debian's Wine for 64 bits runs no 32-bit program; what is checked is the binaries.
        build mingw32 -D DOCHTML_TEST_PROGRAMS=OFF
        build release
        configure tidy
        test_builds debug asan mingw64 mingw32 release tidy
        ;;
    *)
        echo "usage: scripts/test.sh [--quick]" >&2
        exit 2
        ;;
esac
