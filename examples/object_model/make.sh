#!/bin/sh
# Makes the reference of GLib, GObject and Gio, or of other namespaces.
#   examples/object_model/make.sh BUILD_DIR OUTPUT_DIR [GIR...]
# BUILD_DIR holds the built component and the Python package, OUTPUT_DIR gets the document set
# (open reference.htm there).
set -eu
if [ $# -lt 2 ]; then
    sed -n '2,5s/^# \{0,1\}//p' "$0" >&2
    exit 2
fi

example=$(cd "$(dirname "$0")" && pwd)
build=$(cd "$1" && pwd)
out=$2
shift 2
if [ $# -eq 0 ]; then
    girs=${GIR_DIR:-/usr/share/gir-1.0}
    set -- "$girs/GLib-2.0.gir" "$girs/GObject-2.0.gir" "$girs/Gio-2.0.gir"
fi

# The component of this build, and no settings of the user's own.
PYTHONPATH=$build/python:$example XDG_CONFIG_HOME=/nonexistent exec \
    "${PYTHON:-python3}" -B -m object_model "$out/reference.htm" "$@"
