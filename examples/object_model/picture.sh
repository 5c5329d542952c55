#!/bin/sh
# Makes the picture of the README from the reference that make.sh makes.
#   examples/object_model/picture.sh BUILD_DIR [PAGE_OF]
# The picture shows the page of an element, Gio.InputStream unless another is named.
set -eu
[ $# -ge 1 ] || { sed -n '2,4s/^# \{0,1\}//p' "$0" >&2; exit 2; }
example=$(cd "$(dirname "$0")" && pwd)
picture=$example/../../docs/images/object-model.png
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$example/make.sh" "$1" "$work"
page=$(grep -rlF "<a name=\"${2-Gio.InputStream}\"></a>" "$work" --include='*.htm')
chromium --headless --no-sandbox --disable-gpu --hide-scrollbars --window-size=1280,900 \
    --user-data-dir="$work/profile" --virtual-time-budget=5000 \
    --screenshot="$work/shot.png" "file://$page" >/dev/null 2>&1
# Opaque, in full colour, and without a date.
convert "$work/shot.png" -background white -alpha remove -alpha off -strip "PNG24:$picture"
