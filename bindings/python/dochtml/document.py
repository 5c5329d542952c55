"""A document from its creation to its end."""

import os
import warnings
import weakref
from _thread import get_ident
from ctypes import c_void_p
from types import TracebackType
from typing import Mapping, TypeVar

from .component import Component, component
from .directory import kept_directory
from .errors import DochtmlError
from .mailbox import ACTIVE, Mailbox
from .model import Model
from .problems import Problem
from .regions import ImageMaps
from .settings import DocumentSettings, Value
from .system import user_settings
from .writing import File, Writer

Self = TypeVar("Self", bound="Document")


class Document(Writer):
    """A document set that is being written.

        with Document("report.htm", title="Findings") as report:
            report.heading(1, "Introduction")
            report.text("See ").link("the class", to="GUID-7").endl()

    It belongs to the thread that made it. The end of the block closes it, also when the block
    raises.
    """

    def __init__(
        self,
        file: File,
        *,
        title: str = "",
        settings: Mapping[str, Value] | None = None,
        model: Model | None = None,
        image_maps: ImageMaps | None = None,
    ) -> None:
        """Opens the document.

        file: The document file; the names of all other files are made from it.
        settings: Settings by group and name, for this document: {"Html.TOCLevel": 3}.
        model: Gives the element of a handle of `mark`, for the icons of the contents.
        image_maps: Gives the regions of a picture of `image`.

        Raises DocumentError with the driver's words when it refuses, SettingError for a setting
        that there is not, and ComponentError when there is no component.
        """
        own = component()
        given = DocumentSettings(settings or {}, user_settings(), own.support_files)
        name = _checked_name(file, given.encoding)
        mailbox = Mailbox(given, given.encoding, model, image_maps)
        if model is not None:
            own.services.open_model()
        ACTIVE[get_ident()] = mailbox
        try:
            pointer = own.make_document()
        except BaseException:
            if model is not None:
                own.services.close_model()
            raise
        super().__init__(pointer, own.functions, mailbox)
        self.file = name
        self._services = own.services
        self._finalizer = weakref.finalize(self, _let_go, own, pointer, mailbox)
        self._open(title, given)

    def _open(self, title: str, settings: DocumentSettings) -> None:
        try:
            for override in settings.overrides:
                self.overrideRegistry(*override)
            self.create(self.file)
            if title:
                self.setOption("title", title)
        except BaseException:
            self._mailbox.is_closed = True
            self._finalizer()
            raise

    @property
    def problems(self) -> list[Problem]:
        """What the driver warned of; after `close` also the references that found no target."""
        return self._mailbox.problems

    @property
    def pages(self) -> list[str]:
        """The files of the pages that are written so far."""
        return self._mailbox.pages

    def close(self) -> None:
        """Ends the last page and writes contents, frames and start page.

        A document that is closed already stays as it is. Raises DocumentError when something could
        not be written; all else is written then. The current directory of the process stays.
        """
        if self._caller is None and self._thread == get_ident():
            return
        self._arguments()
        self._mailbox.is_closed = True
        try:
            with kept_directory():
                super().close()
        finally:
            self._services.stop_reports(self._mailbox)
            self._caller = None
            ACTIVE.pop(self._thread, None)

    def showLast(self) -> None:
        if self._caller is not None:
            super().showLast()
            return
        # This one is for documents that are closed.
        self._caller = self._thread
        try:
            super().showLast()
        finally:
            self._caller = None

    showLast.__doc__ = Writer.showLast.__doc__

    def __enter__(self: Self) -> Self:
        return self

    def __exit__(
        self,
        _kind: type[BaseException] | None,
        exception: BaseException | None,
        _trace: TracebackType | None,
    ) -> None:
        try:
            self.close()
        except DochtmlError as problem:
            if exception is None:
                raise
            exception.add_note(f"The document could not be completed: {problem}")


def _checked_name(file: File, encoding: str) -> str:
    # The driver looks for a relative directory below the current one when it closes.
    name = os.path.abspath(os.fspath(file))
    try:
        name.encode(encoding)
    except UnicodeEncodeError as problem:
        letters = name[problem.start : problem.end]
        raise ValueError(
            f"the driver has no letters {letters!r} for the name {name!r} (code page {encoding})"
        ) from None
    return name


def _let_go(component: Component, pointer: c_void_p, mailbox: Mailbox) -> None:
    """Releases a document that nobody has any more; one that is not closed closes itself."""
    if not mailbox.is_closed:
        warnings.warn("a document was not closed", ResourceWarning, stacklevel=2)
    thread = get_ident()
    before = ACTIVE.get(thread)
    ACTIVE[thread] = mailbox
    try:
        with kept_directory():
            component.release(pointer)
    finally:
        component.services.stop_reports(mailbox)
        if before is None or before is mailbox:
            del ACTIVE[thread]
        else:
            ACTIVE[thread] = before
        if mailbox.model is not None:
            component.services.close_model()
