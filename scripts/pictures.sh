#!/bin/bash
# Makes the pictures of the documentation in docs/images: the reference of a real model in
# Chromium, and the settings page under Wine. Look at them before you commit them.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

# save_picture SOURCE NAME: saves a screenshot as an opaque PNG file in full colour.
save_picture() {
    convert "$1" -alpha off -strip -define png:color-type=2 -define png:bit-depth=8 \
        "docs/images/$2.png"
    echo "    docs/images/$2.png"
}

need build quick full
need_node_modules
mkdir -p build/pictures

say "Building"
configure release -D DOCHTML_BUILD_PYTHON=ON
cmake --build --preset release
configure mingw64
cmake --build --preset mingw64 --target settings_page_tests

say "Taking the pictures"
rm -rf build/pictures/set
examples/object_model/make.sh build/release build/pictures/set
page=$(cd build/pictures/set && grep -rlF '<a name="Gio.InputStream"></a>' . --include='*.htm')
NAVIGATOR_BROWSERS=chrome node scripts/take_pictures.mjs build/pictures/set "$page" build/pictures
(cd build/pictures &&
    convert -background white \( tree.png search.png +append \) \
        \( dark.png phone.png drawer.png +append \) -append navigator-all.png)
save_picture build/pictures/navigator-all.png navigator
save_picture build/pictures/object-model.png object-model

windows=$PWD/build/mingw64
(cd build/pictures &&
    ../../tests/settings_ui/windows/with-display.sh \
        ../../cmake/run-wine.sh "$windows/wine-settings" \
        "$windows/tests/settings_ui/settings_page_tests.exe" \
        --gtest_brief=1 --gtest_filter='*.IsSavedAsAPicture' "$windows/bin/dochtmlcom.dll" \
        "$windows/bin/dochtml-replay.exe" "$windows/bin/dochtml-settings.exe")
save_picture build/pictures/settings-page.bmp settings-page
