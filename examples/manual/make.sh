#!/bin/sh
# Makes the manual as a document set.
#   examples/manual/make.sh BUILD_DIR OUTPUT_DIR [OPTION...]
# BUILD_DIR holds the built programs, OUTPUT_DIR gets the document set (open manual.htm there).
# What the generator makes on the way stays in MANUAL_WORK_DIR (default: BUILD_DIR/manual).
# Further options go to dochtml-replay when it makes the manual.
set -eu
if [ $# -lt 2 ]; then
    sed -n '2,6s/^# \{0,1\}//p' "$0" >&2
    exit 2
fi

example=$(cd "$(dirname "$0")" && pwd)
support=$example/../../support
build=$(cd "$1" && pwd)
mkdir -p "$2"
out=$(cd "$2" && pwd)
shift 2
work=${MANUAL_WORK_DIR:-$build/manual}
replay=${DOCHTML_REPLAY:-$build/bin/dochtml-replay}

# The report generator: calls, picture, model, image maps.
"$build/examples/manual/manual_generator" --document "$out/manual.htm" "$work"

# The driver. No settings of the user's own take part.
play() {
    "$replay" --quiet --install-dir "$support" --set "Settings.UserFilesDir=$support" \
        --settings "$example/manual.ini" --ini "$example/manual.ini" "$@"
}
play --model "$work/model.json" --image-maps "$work/image-maps.json" "$@" "$work/manual.jsonl"
play "$work/bridges.jsonl"
