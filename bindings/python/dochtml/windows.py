"""Windows: the system's component model, its registry and its code page."""

import ctypes
import sys
import winreg
from pathlib import Path

assert sys.platform == "win32"

LIBRARY = "dochtmlcom.dll"
LIBRARY_DIRECTORIES = (".", "bin", "lib")
METHOD = ctypes.WINFUNCTYPE
CODE_PAGE = "mbcs"

_STORE = r"Software\Zorvane\Quillmark"
_free_string = ctypes.WinDLL("oleaut32").SysFreeString
_free_string.argtypes = [ctypes.c_void_p]
_free_string.restype = None


def open_library(file: Path) -> ctypes.CDLL:
    return ctypes.WinDLL(str(file))


def free_text(address: int) -> None:
    """Frees a text that the component has handed out."""
    _free_string(address)


def native_path(name: str) -> str:
    """A file name of the driver's as this system writes it."""
    return name


def _registry_value(root: int, key: str, name: str) -> str | None:
    try:
        with winreg.OpenKey(root, key) as opened:
            return str(winreg.QueryValueEx(opened, name)[0])
    except OSError:
        return None


def registered_library(program: str) -> Path | None:
    """The library that registration has made known under a program identifier."""
    classes = winreg.HKEY_CLASSES_ROOT
    class_id = _registry_value(classes, rf"{program}\CLSID", "")
    if class_id is None:
        current = _registry_value(classes, rf"{program}\CurVer", "")
        class_id = _registry_value(classes, rf"{current}\CLSID", "") if current else None
    key = rf"CLSID\{class_id}\InprocServer32"
    file = _registry_value(classes, key, "") if class_id else None
    return Path(file) if file else None


class UserSettings:
    """The user's own settings store."""

    def value(self, group: str, name: str) -> str | None:
        return _registry_value(winreg.HKEY_CURRENT_USER, rf"{_STORE}\{group}", name)


def user_settings() -> UserSettings:
    return UserSettings()
