#!/bin/sh
# Draws the two states of the "Locate in browser" button into ../pixs (needs ImageMagick).
set -eu
cd "$(dirname "$0")/../pixs"

# A tree of three lines with a ring around one of them: "find me in the contents".
draw() {
    convert -size 80x80 "xc:$2" -fill none -stroke "$3" -strokewidth 6 \
        -draw 'line 14,14 14,58' -draw 'line 14,20 34,20' -draw 'line 14,56 30,56' \
        -strokewidth 7 -draw 'circle 48,50 48,31' -draw 'line 62,64 73,75' \
        -resize 20x20 -strip -quality 92 "$1"
}

draw locate_in_brw.JPG '#ffffff' '#2b5b9c'
draw locate_in_brw_button_mouse_over.JPG '#dee8f6' '#b03a2e'
