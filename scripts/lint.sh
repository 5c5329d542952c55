#!/bin/bash
# Checks the sources with clang-format and clang-tidy.
#   scripts/lint.sh [format|tidy] [--changed]
# Runs both checks unless one is named. With --changed, checks only the files that differ from the
# last commit. clang-tidy reads the compile commands of build/tidy, which is configured if needed.
set -euo pipefail
cd "$(dirname "$0")/.."

checks=() changed=false
for argument in "$@"; do
    case $argument in
        format | tidy) checks+=("$argument") ;;
        --changed) changed=true ;;
        *) echo "usage: scripts/lint.sh [format|tidy] [--changed]" >&2; exit 2 ;;
    esac
done
[ ${#checks[@]} -eq 0 ] && checks=(format tidy)

# files PATTERN...: prints the existing files to check.
files() {
    if $changed; then
        { git diff --name-only HEAD -- "$@"; git ls-files --others --exclude-standard -- "$@"; }
    else
        git ls-files --cached --others --exclude-standard -- "$@"
    fi | sort -u | while read -r file; do [ -f "$file" ] && echo "$file"; done || true
}

format() {
    files '*.cpp' '*.h' | xargs -r clang-format --dry-run --Werror
}

# All sources: the tests of tests/lint. Changed sources: one by one, those of src/ that this system
# compiles.
tidy() {
    cmake --preset tidy >/dev/null
    if ! $changed; then
        ctest --preset tidy -j "$(nproc)" -R 'lint_(tidy|alone)'
        return
    fi
    files 'src/*.cpp' |
        while read -r file; do
            grep -q "\"file\": \".*/$file\"" build/tidy/compile_commands.json && echo "$file"
        done |
        xargs -r -n 1 -P "$(nproc)" clang-tidy --quiet --checks='clang-diagnostic-*' -p build/tidy
}

for check in "${checks[@]}"; do
    "$check" || { echo "lint.sh: $check found something" >&2; exit 1; }
done
