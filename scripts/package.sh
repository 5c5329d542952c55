#!/bin/bash
# Makes the packages: for Debian, the zip for Windows, and their bill of materials (SPDX).
#   scripts/package.sh [--no-windows] [OUTPUT]
# OUTPUT (default: build/packages) gets the files. The same sources make the same bytes: all times in
# the packages are SOURCE_DATE_EPOCH, or the time of the last commit.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

windows=true output=build/packages
for argument in "$@"; do
    case $argument in
        --no-windows) windows=false ;;
        -*) echo "usage: scripts/package.sh [--no-windows] [OUTPUT]" >&2; exit 2 ;;
        *) output=$argument ;;
    esac
done
mkdir -p "$output"
output=$(cd "$output" && pwd)
# Sources outside Git are as old as their changelog.
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || stat -c %Y CHANGELOG.md)}
export TZ=UTC LC_ALL=C.UTF-8
umask 022

# pack BUILD: runs CPack in a directory of its own and moves the packages to the output.
pack() {
    local work=$PWD/build/$1/packing
    rm -rf "$work"
    cpack --config "build/$1/CPackConfig.cmake" -B "$work" >"build/$1.pack.log" 2>&1 ||
        { cat "build/$1.pack.log"; exit 1; }
    find "$work" -maxdepth 1 -type f \( -name '*.deb' -o -name '*.zip' \) -exec mv -t "$output" {} +
}

need build package
rm -f "$output"/*.deb "$output"/*.zip "$output"/*.spdx.json

say "Building for Debian"
configure package
# The manual is made again, because it shows the time.
rm -f build/package/manual-set.stamp
cmake --build --preset package
pack package

if $windows; then
    need full
    say "Building for Windows"
    configure mingw32
    cmake --build --preset mingw32 --target dochtmlcom dochtml_client
    configure mingw64 -D DOCHTML_32_BIT_BUILD="$PWD/build/mingw32"
    cmake --build --preset mingw64 --target dochtml dochtmlcom dochtml_client dochtml-replay \
        dochtml-settings
    pack mingw64
fi

say "Writing the bill of materials"
cmake -D PACKAGES="$output" -D BUILD="$PWD/build/package" -P cmake/bill_of_materials.cmake

say "Done:"
(cd "$output" && sha256sum -- *)
