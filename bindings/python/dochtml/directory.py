"""The process's current directory, which the driver changes when it closes a document."""

import os
import threading
from contextlib import contextmanager
from typing import Iterator

_lock = threading.Lock()
_depth = 0
_kept: str | None = None


@contextmanager
def kept_directory() -> Iterator[None]:
    """Afterwards the current directory is the one from before, whatever several threads do."""
    global _depth, _kept
    with _lock:
        if _depth == 0:
            _kept = _current()
        _depth += 1
    try:
        yield
    finally:
        with _lock:
            _depth -= 1
            if _depth == 0 and _kept is not None:
                _return_to(_kept)


def _current() -> str | None:
    try:
        return os.getcwd()
    except OSError:
        return None


def _return_to(directory: str) -> None:
    try:
        os.chdir(directory)
    except OSError:
        pass  # It is gone, or closed to us by now.
