"""Ends a test that lacks a tool, and says what to install."""

import pathlib
import shutil
import sys

PACKAGES = pathlib.Path(__file__).resolve().parents[2] / "scripts/packages.txt"


def package_of(tool):
    """The Debian package that scripts/packages.txt names for a command."""
    for line in PACKAGES.read_text().splitlines():
        words = line.split()
        if len(words) == 3 and words[2] == tool:
            return words[1]
    return tool


def require(*tools):
    missing = [package_of(tool) for tool in tools if shutil.which(tool) is None]
    if missing:
        sys.exit(f"Install: {' '.join(missing)}")
