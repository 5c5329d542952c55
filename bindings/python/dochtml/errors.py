"""What can go wrong."""

from typing import Sequence


class DochtmlError(Exception):
    """The base of this package's own errors."""


class ComponentError(DochtmlError):
    """The component is missing, cannot be loaded, or is not the one that this package needs."""


class DocumentError(DochtmlError):
    """The driver could not open or write something. The reasons are the driver's own words."""

    def __init__(self, reasons: Sequence[str]) -> None:
        super().__init__("\n".join(reasons))
        self.reasons = tuple(reasons)


class SettingError(DochtmlError, ValueError):
    """A name that is not a setting, or a value that a setting cannot take."""


class WrongThreadError(DochtmlError, RuntimeError):
    """A document was used outside the thread that made it."""


class ClosedError(DochtmlError, ValueError):
    """A document was used after it was closed."""
