#!/bin/bash
# Makes the packages: for Debian, the zip for Windows, and their bill of materials (SPDX).
#   scripts/package.sh [--no-windows] [--from PRESET] [--check] [OUTPUT]
#     OUTPUT         gets the files (default: build/packages)
#     --from PRESET  takes the Debian packages from this configured build, which has the options of
#                    the preset "package"; default: a build of their own
#     --check        makes the packages a second time: elsewhere, a day later, under other
#                    conditions, without a cache; and compares
# The same sources make the same bytes: all times in the packages are SOURCE_DATE_EPOCH, or the time
# of the last commit.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

usage() {
    echo "usage: scripts/package.sh [--no-windows] [--from PRESET] [--check] [OUTPUT]" >&2
    exit 2
}

windows=true check=false preset=package output=build/packages
while [ $# -gt 0 ]; do
    case $1 in
        --no-windows) windows=false ;;
        --check) check=true ;;
        --from) [ $# -gt 1 ] || usage; preset=$2; shift ;;
        -*) usage ;;
        *) output=$1 ;;
    esac
    shift
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
    # The tests pack these builds again.
    echo "$1" >>build/packed-builds.txt
}

# Makes the packages again from a copy of the sources, and compares them byte for byte. A compiler
# cache would hide paths and times, so it is off. What differs stays there, to be looked at.
make_again() {
    local again sources option=()
    $windows || option=(--no-windows)
    again=$(mktemp -d)
    sources="$again/a directory of another length"
    mkdir "$sources"
    (
        umask 077
        git ls-files -z --cached --others --exclude-standard |
            xargs -0 cp --parents --target-directory="$sources"
        cd "$sources"
        CCACHE_DISABLE=1 TZ=Asia/Tokyo LC_ALL=C faketime -f +30h \
            scripts/package.sh "${option[@]}" "$again/packages"
    )
    (cd "$again/packages" && sha256sum -- *) >"$again/sums"
    (cd "$output" && sha256sum --check --quiet "$again/sums") ||
        { echo "The second packages are in $again/packages." >&2; exit 1; }
    rm -rf "$again"
}

need build package
rm -f "$output"/*.deb "$output"/*.zip "$output"/*.spdx.json build/packed-builds.txt

say "Building for Debian"
[ "$preset" != package ] || configure package
# The manual is made again, because it shows the time.
rm -f "build/$preset/manual-set.stamp"
cmake --build --preset "$preset"
pack "$preset"

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
cmake -D PACKAGES="$output" -D BUILD="$PWD/build/$preset" -P cmake/bill_of_materials.cmake

if $check; then
    say "Making the packages again, to compare"
    need full
    make_again
    say "The same bytes:"
else
    say "Done:"
fi
(cd "$output" && sha256sum -- *)
