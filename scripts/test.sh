#!/bin/bash
# Builds everything and runs every test: native, with sanitizers, lint, Windows under Wine, browser.
#   scripts/test.sh           everything; as root, it installs missing packages
#   scripts/test.sh --quick   only the native build and its tests, for the inner loop
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

# build PRESET [CMAKE_OPTION...]
build() {
    say "Building: $1"
    configure "$@"
    cmake --build --preset "$1"
}

# Runs the tests of several build directories together, so that ctest prints one total.
test_builds() {
    local build
    say "Testing: $*"
    mkdir -p build/all
    for build in "$@"; do
        echo "subdirs(\"$PWD/build/$build\")"
    done >build/all/CTestTestfile.cmake
    # The Windows replay tool is compared with the native one, which is built already.
    DOCHTML_NATIVE_BUILD=$PWD/build/gcc \
        ctest --test-dir build/all --output-on-failure --no-tests=error
}

case ${1-} in
    --quick)
        need build quick
        build debug -D DOCHTML_BROWSER_TESTS=OFF
        ctest --preset debug --label-regex 'native|structure'
        ;;
    '')
        need build quick full package
        need_node_modules
        build gcc -D DOCHTML_BROWSER_TESTS=ON
        build asan
        build tsan
        build mingw64
        # Debian's 64-bit Wine cannot run 32-bit programs, so the tests only look at the binaries.
        build mingw32 -D DOCHTML_TEST_PROGRAMS=OFF
        say "Making the packages"
        scripts/package.sh --from gcc
        # This build compiles nothing; its native tests are those of the other builds.
        configure tidy
        test_builds gcc asan tsan mingw64 mingw32 tidy/tests/lint
        ;;
    *)
        echo "usage: scripts/test.sh [--quick]" >&2
        exit 2
        ;;
esac
