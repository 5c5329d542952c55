"""What was not right with a document, as the driver reported it."""

import re
from dataclasses import dataclass
from typing import Iterator

from .system import native_path

_PAGE = "Unresolved references on page "
_REFERENCE = re.compile(r"  (.*) near line (\d+)(?: (.*))?")


@dataclass(frozen=True)
class Problem:
    """A warning, or a reference that found no target; then the last three are given."""

    text: str
    target: str = ""
    page: str = ""
    line: int = 0

    @property
    def is_unresolved(self) -> bool:
        return bool(self.target)

    def __str__(self) -> str:
        return self.text


def unresolved_references(report: str) -> Iterator[Problem]:
    """The references of a report, each once: a link is two places, its begin and its end."""
    first, *lines = report.splitlines() or [""]
    if not first.startswith(_PAGE):
        return
    page = native_path(first.removeprefix(_PAGE))
    for line in lines:
        found = _REFERENCE.fullmatch(line)
        if found and found[3] != "</A>":
            text = f"unresolved reference to {found[1]} on page {page} near line {found[2]}"
            yield Problem(text, found[1], page, int(found[2]))
