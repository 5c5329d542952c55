"""Where the component is."""

import os
import shutil
import sys
from pathlib import Path
from typing import Iterator

from .errors import ComponentError
from .system import LIBRARY, LIBRARY_DIRECTORIES, registered_library

VARIABLE = "DOCHTML_COMPONENT"
_PROGRAM = "DocHtml.DocHtml.2.1.0"
_TOOL = "dochtml-replay"
# From a package in PREFIX/lib/python3/dist-packages, PREFIX is the fourth of its parents.
_NEAR = 5


def _near_package() -> Iterator[Path]:
    package = Path(__file__).resolve().parent
    yield package / LIBRARY
    for prefix in package.parents[:_NEAR]:
        yield from _in_prefix(prefix)


def _in_prefix(prefix: Path) -> Iterator[Path]:
    for directory in LIBRARY_DIRECTORIES:
        yield prefix / directory / LIBRARY


def _of_tools() -> Iterator[Path]:
    tool = shutil.which(_TOOL)
    if tool:
        yield from _in_prefix(Path(tool).resolve().parent.parent)


def _candidates() -> Iterator[Path]:
    yield from _near_package()
    registered = registered_library(_PROGRAM)
    if registered:
        yield registered
    yield from _of_tools()
    for prefix in (sys.prefix, sys.base_prefix, "/usr/local", "/usr"):
        yield from _in_prefix(Path(prefix))


def find_component() -> Path:
    """The library: the one that the environment names, near this package, registered, installed."""
    named = os.environ.get(VARIABLE)
    if named:
        return Path(named).absolute()
    for file in _candidates():
        if file.is_file():
            return file
    raise ComponentError(
        f"the component {LIBRARY} is not on this machine: install the package dochtml, or name "
        f"the file in the environment variable {VARIABLE}"
    )


def support_files(library: Path) -> Path | None:
    """The directory of style sheet and pictures that was installed with a library."""
    for prefix in library.resolve().parents[:4]:
        directory = prefix / "share" / "dochtml"
        if (directory / "default.css").is_file():
            return directory
    return None
