"""What the driver reports while it works on a document."""

from __future__ import annotations

from typing import TYPE_CHECKING, NoReturn, Protocol

from .errors import DocumentError
from .problems import Problem, unresolved_references
from .system import CODE_PAGE, native_path

if TYPE_CHECKING:
    from .model import Model
    from .regions import ImageMaps


# The line in front of a failure or a warning that has a reason.
_REASON = "ERR The system reports: "


class Store(Protocol):
    """Keeps settings as texts."""

    def value(self, group: str, name: str, /) -> str | None: ...


class Mailbox:
    """Belongs to one document; the services find it by the thread that the driver calls on.

    It does not know its document, so that it keeps none alive.
    """

    def __init__(
        self,
        store: Store,
        encoding: str = CODE_PAGE,
        model: Model | None = None,
        image_maps: ImageMaps | None = None,
    ) -> None:
        self.store = store
        self.encoding = encoding
        self.model = model
        self.image_maps = image_maps
        self.problems: list[Problem] = []
        self.pages: list[str] = []
        self.has_failed = False
        self.is_closed = False
        self._failures: list[str] = []
        self._raised: BaseException | None = None
        self._reason = ""

    def _take_reason(self) -> str:
        """Why the system refused what the driver now reports, if it said so."""
        reason, self._reason = self._reason, ""
        return reason

    def decode(self, text: bytes) -> str:
        return text.decode(self.encoding, "replace")

    def encode(self, text: str) -> bytes:
        return text.encode(self.encoding, "replace")

    def take_page(self, name: bytes) -> None:
        self.pages.append(native_path(self.decode(name)))

    def take_line(self, text: str) -> None:
        """A line of the driver's trace: a problem, or a list of open references."""
        if text.startswith(_REASON):
            self._reason = ": " + text.removeprefix(_REASON).rstrip()
        elif text.startswith(("ERR ", "WARNING")):
            self.problems.append(Problem(text.rstrip() + self._take_reason()))
        else:
            self.problems += unresolved_references(text)

    def take_failure(self, reason: str) -> None:
        # What follows an exception of a callback is only its echo.
        if self._raised is None:
            self._failures.append(reason + self._take_reason())
            self.has_failed = True

    def take_exception(self, exception: BaseException) -> None:
        """An exception of a callback. The driver cannot pass it on; the call will raise it."""
        if self._raised is None:
            self._raised = exception
            self.has_failed = True

    def raise_failure(self) -> NoReturn:
        raised, failures = self._raised, self._failures
        self._raised, self._failures, self.has_failed = None, [], False
        if raised is not None:
            try:
                raise raised
            finally:
                # Its trace leads here and from here to it: a circle that keeps the document.
                del raised
        raise DocumentError(failures)


# The mailbox of the document that a thread is working on.
ACTIVE: dict[int, Mailbox] = {}
