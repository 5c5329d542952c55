"""Settings by name."""

import difflib
import os
from pathlib import Path
from typing import Mapping, Union

from .errors import SettingError
from .mailbox import Store
from .settings_table import SETTINGS, Setting
from .system import CODE_PAGE

Value = Union[str, bool, int, "os.PathLike[str]"]

_BY_NAME = {setting.name.lower(): setting for setting in SETTINGS}
_LIMITS = {"short": 0x8000, "integer": 0x80000000}
# What the driver calls the kinds when a document overrides a setting.
_VALUE_TYPES = {"short": 1, "integer": 1, "text": 2, "boolean": 3}
_INSTALL_DIR = ("settings", "installdir")


def find_setting(name: str) -> Setting | None:
    """The setting of that name ("Html.TOCLevel", in any case), or None."""
    return _BY_NAME.get(name.lower())


def _known_setting(name: str) -> Setting:
    if not isinstance(name, str):
        raise TypeError(f"the name of a setting must be a str, not {type(name).__name__}")
    setting = find_setting(name)
    if setting is None:
        near = difflib.get_close_matches(name.lower(), _BY_NAME, 1, 0.5)
        hint = f"; did you mean {_BY_NAME[near[0]].name}?" if near else ""
        raise SettingError(f"there is no setting {name}{hint}")
    return setting


def _text_of(setting: Setting, value: Value) -> str:
    if setting.kind == "boolean":
        if not isinstance(value, bool):
            raise _wrong_type(setting, "a bool", value)
        return "true" if value else "false"
    if setting.kind in _LIMITS:
        if not isinstance(value, int) or isinstance(value, bool):
            raise _wrong_type(setting, "an int", value)
        limit = _LIMITS[setting.kind]
        if not -limit <= value < limit:
            raise OverflowError(f"{setting.name} does not hold {value}")
        return str(value)
    if not isinstance(value, (str, os.PathLike)):
        raise _wrong_type(setting, "a str", value)
    return os.fspath(value)


def _wrong_type(setting: Setting, wanted: str, value: object) -> TypeError:
    return TypeError(f"{setting.name} must be {wanted}, not {type(value).__name__}")


class DocumentSettings:
    """The settings of one document: its own, then the user's, then what is installed.

    The driver asks for them by group and name.
    """

    def __init__(
        self, given: Mapping[str, Value], stored: Store, support_files: Path | None
    ) -> None:
        self._stored = stored
        self._support_files = support_files
        self._own: dict[tuple[str, str], str] = {}
        self._overrides: list[tuple[str, str, str, int]] = []
        for name, value in given.items():
            setting = _known_setting(name)
            text = _text_of(setting, value)
            group, _, short_name = setting.name.partition(".")
            self._own[(group.lower(), short_name.lower())] = text
            self._overrides.append((group, short_name, text, _VALUE_TYPES[setting.kind]))

    def value(self, group: str, name: str) -> str | None:
        address = (group.lower(), name.lower())
        found = self._own.get(address)
        if found is None:
            found = self._stored.value(group, name)
        if not found and address == _INSTALL_DIR and self._support_files is not None:
            return str(self._support_files)
        return found

    @property
    def overrides(self) -> list[tuple[str, str, str, int]]:
        """What the driver is told before `create`; wide texts keep all their letters."""
        return self._overrides

    @property
    def encoding(self) -> str:
        """How the texts of the document are kept inside the driver."""
        char_set = self.value("Html", "CharSet") if find_setting("Html.CharSet") else None
        return "utf-8" if char_set is not None and char_set.lower() == "utf-8" else CODE_PAGE
