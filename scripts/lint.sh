#!/bin/bash
# Holds the sources against .clang-format and .clang-tidy.
#   scripts/lint.sh [format|tidy] [--changed]
# Without a name both are done; --changed looks only at what differs from the last commit.
# clang-tidy reads the compile commands of BUILD_DIR (default build/tidy, configured if needed).
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
build_dir=${BUILD_DIR:-build/tidy}

# files PATTERN...: the files to look at, of those that are there.
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

# Every source of src/ that this build compiles.
tidy() {
    [ -f "$build_dir/compile_commands.json" ] || cmake --preset tidy -B "$build_dir" >/dev/null
    files 'src/*.cpp' |
        while read -r file; do
            grep -q "\"file\": \".*/$file\"" "$build_dir/compile_commands.json" && echo "$file"
        done |
        xargs -r -n 1 -P "$(nproc)" clang-tidy --quiet -p "$build_dir"
}

for check in "${checks[@]}"; do
    "$check" || { echo "lint.sh: $check found something" >&2; exit 1; }
done
