"""The INI files of the user: the settings store and the list of registered classes."""

from pathlib import Path

_BLANKS = " \t\r\v\f"


def _section_name(line: str) -> str | None:
    end = line.rfind("]")
    return line[1:end].strip(_BLANKS) if line.startswith("[") and end > 0 else None


def _unquoted(value: str) -> str:
    is_quoted = len(value) >= 2 and value[0] == value[-1] and value[0] in "\"'"
    return value[1:-1] if is_quoted else value


class IniFile:
    """Reads a file by the driver's rules: names in any case, and the first of a name counts.

    A file that cannot be read is an empty one.
    """

    def __init__(self, file: Path) -> None:
        try:
            text = file.read_bytes().decode("utf-8-sig", "replace")
        except OSError:
            text = ""
        self._values: dict[tuple[str, str], str] = {}
        known: set[str] = set()
        section: str | None = None
        for line in text.split("\n"):
            line = line.strip(_BLANKS)
            name = _section_name(line)
            if name is not None:
                section = None if name.lower() in known else name.lower()
                known.add(name.lower())
            elif section is not None and "=" in line and not line.startswith(";"):
                key, _, value = line.partition("=")
                address = (section, key.strip(_BLANKS).lower())
                self._values.setdefault(address, _unquoted(value.strip(_BLANKS)))

    def value(self, section: str, name: str) -> str | None:
        return self._values.get((section.lower(), name.lower()))
