#!/usr/bin/env python3
"""Checks the pictures that the Markdown pages of a source tree show.

Usage: check_pictures.py ROOT

Each picture is looked up as its page refers to it. It must be in full colour, opaque, and show more
than one colour. Reads the pictures with ImageMagick.
"""

import pathlib
import re
import subprocess
import sys

REFERENCE = re.compile(r"!\[[^\]]*\]\(([^)\s]+)[^)]*\)|<img\b[^>]*\bsrc=\"([^\"]+)\"")
# The color type of a PNG file whose pixels are numbers of colours.
PALETTE = "3"
SKIPPED = {"build", "out", "node_modules", ".git"}


def references(root):
    """Yields (page, reference, picture) for every picture that a page shows."""
    for page in sorted(root.rglob("*.md")):
        if SKIPPED & set(page.relative_to(root).parts):
            continue
        for match in REFERENCE.finditer(page.read_text(encoding="utf-8")):
            reference = match[1] or match[2]
            if "://" not in reference:
                yield page.relative_to(root), reference, page.parent / reference


def fault(picture):
    """What is wrong with a picture, or None."""
    if not picture.is_file():
        return "does not exist"
    described = subprocess.run(
        ["identify", "-format", "%[opaque] %k %[png:IHDR.color-type-orig]", picture], capture_output=True, text=True
    )
    if described.returncode != 0:
        return "cannot be read: " + described.stderr.strip()
    opaque, colours, *color_type = described.stdout.split()
    if int(colours) < 2:
        return "shows nothing but one colour"
    if opaque.lower() != "true":
        return "is transparent in places"
    if color_type == [PALETTE]:
        return "has a palette instead of full colour"
    return None


def main():
    shown = list(references(pathlib.Path(sys.argv[1])))
    faults = [
        f"{page}: {reference} {wrong}" for page, reference, path in shown if (wrong := fault(path))
    ]
    print("\n".join(faults))
    print(f"{len(shown)} pictures looked at, {len(faults)} faults")
    return 1 if faults or not shown else 0


if __name__ == "__main__":
    sys.exit(main())
