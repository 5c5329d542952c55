"""Linux and its relatives: the boundary is the component's own, and so are the stores."""

import ctypes
import os
import sysconfig
from pathlib import Path

from .errors import ComponentError
from .ini import IniFile

LIBRARY = "libdochtmlcom.so"
# Where a prefix may keep the library, the plug-in directories first.
_triplet = sysconfig.get_config_var("MULTIARCH") or ""
LIBRARY_DIRECTORIES = (
    "lib/dochtml",
    f"lib/{_triplet}/dochtml",
    "lib64/dochtml",
    "lib",
    f"lib/{_triplet}",
    "lib64",
)
METHOD = ctypes.CFUNCTYPE
CODE_PAGE = "cp1252"

_TEXT_PREFIX = 8
_free = ctypes.CDLL(None).free
_free.argtypes = [ctypes.c_void_p]
_free.restype = None


def open_library(file: Path) -> ctypes.CDLL:
    return ctypes.CDLL(str(file))


def free_text(address: int) -> None:
    """Frees a text that the component has handed out."""
    _free(address - _TEXT_PREFIX)


def native_path(name: str) -> str:
    """A file name of the driver's as this system writes it."""
    return name.replace("\\", "/")


def _directory(variable: str, default: str) -> Path:
    value = os.environ.get(variable, "")
    return Path(value) if os.path.isabs(value) else Path.home() / default


def registered_library(program: str) -> Path | None:
    """The library that registration has made known under a program identifier."""
    classes = IniFile(_directory("XDG_DATA_HOME", ".local/share") / "quillmark" / "classes.ini")
    class_id = classes.value(rf"{program}\CLSID", "@")
    if class_id is None:
        current = classes.value(rf"{program}\CurVer", "@")
        class_id = classes.value(rf"{current}\CLSID", "@") if current else None
    file = classes.value(rf"CLSID\{class_id}\InprocServer32", "@") if class_id else None
    if not file:
        return None
    # The system would look for a relative one where others may have put a library of that name.
    if not os.path.isabs(file):
        raise ComponentError(f"the registered component {file} is not an absolute path")
    return Path(file.replace(r"\\", "\\"))


def user_settings() -> IniFile:
    """The user's own settings store, as it is now."""
    return IniFile(_directory("XDG_CONFIG_HOME", ".config") / "quillmark" / "settings.ini")
