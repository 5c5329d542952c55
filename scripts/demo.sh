#!/bin/bash
# Builds the driver and its tools, and makes the example document set, the reference manual of the
# document interface, in out/.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

need build
mkdir -p build
say "Building"
cmake -S . -B build/demo -G Ninja -D CMAKE_BUILD_TYPE=Release -D DOCHTML_BUILD_TESTS=OFF -D DOCHTML_BUILD_PYTHON=OFF \
    >build/demo.configure.log 2>&1 || { cat build/demo.configure.log; exit 1; }
cmake --build build/demo --target dochtml-replay manual_generator

say "Making the document set"
examples/manual/make.sh build/demo out

pages=$(find out -name '*.htm' | wc -l)
say "Done: $pages pages. Open in a browser:"
echo "    $PWD/out/manual.htm"
