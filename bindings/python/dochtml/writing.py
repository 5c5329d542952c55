"""A document as a Python writer expects it: texts as they are, and blocks that end by themselves."""

import os
import threading
from contextlib import contextmanager
from typing import Iterable, Iterator, TypeVar, Union

from .operations import Operations

Self = TypeVar("Self", bound="Writer")
File = Union[str, "os.PathLike[str]"]

# The driver keeps the first half of a handle for the whole process until the second one comes.
_mark_lock = threading.Lock()


def escaped(text: str) -> str:
    """A text that a page shows as it is."""
    return text.replace("&", "&amp;").replace("<", "&lt;")


def _signed(half: int) -> int:
    return half - 0x100000000 if half >= 0x80000000 else half


class Writer(Operations):
    """The operations, and over them what makes a report easy to write.

    Methods that write something return the document, so that calls can be chained. Texts are shown
    as they are, "<" and "&" included; `insertText` takes markup.
    """

    def text(self: Self, text: str) -> Self:
        """Adds text to the current line."""
        self.insertText(escaped(text) if isinstance(text, str) else text)
        return self

    def endl(self: Self) -> Self:
        """Ends the line."""
        self.insertEndl()
        return self

    def line(self: Self, text: str = "") -> Self:
        """Adds text to the current line and ends it."""
        return self.text(text).endl()

    def heading(self: Self, level: int, text: str, tag: str | None = None) -> Self:
        """Writes a heading, which becomes an entry of the contents, and goes back to "Normal".

        A tag names the place for links. It stands in front of the heading.
        """
        if not isinstance(level, int) or isinstance(level, bool):
            raise TypeError(f"level must be an int, not {type(level).__name__}")
        if level < 1:
            raise ValueError(f"a heading has level 1 or more, not {level}")
        if tag is not None:
            self.insertTag(tag)
        with self.style(f"Heading {level}"):
            self.text(text)
        return self

    def link(self: Self, text: str, to: File) -> Self:
        """Adds text that links to a tag (now or later), a file or an address."""
        self.insertXref(escaped(text) if isinstance(text, str) else text, os.fspath(to))
        return self

    def links(self: Self, targets: Iterable[tuple[str, File | None]]) -> Self:
        """Adds a row of links, with commas between them. What has no target is text."""
        for number, (text, to) in enumerate(targets):
            if number:
                self.insertText(", ")
            self.text(text) if to is None else self.link(text, to)
        return self

    def image(self: Self, file: File, to: File = "") -> Self:
        """Shows a picture, with a link if wanted."""
        self.insertImage(os.fspath(file), os.fspath(to))
        return self

    def tag(self: Self, name: str) -> Self:
        """Names the current place for links."""
        self.insertTag(name)
        return self

    def mark(self: Self, handle: int) -> Self:
        """Says which element of the model the following output is about; 0 for none."""
        if not isinstance(handle, int) or isinstance(handle, bool):
            raise TypeError(f"handle must be an int, not {type(handle).__name__}")
        if not 0 <= handle < 1 << 64:
            raise OverflowError(f"handle does not fit into 64 bits: {handle}")
        with _mark_lock:
            self.insertMark(_signed(handle & 0xFFFFFFFF), False)
            self.insertMark(_signed(handle >> 32), True)
        return self

    def page_break(self: Self) -> Self:
        """Ends the page and begins the next."""
        self.insertPageBreak()
        return self

    def _is_open(self) -> bool:
        return self._caller is not None

    @contextmanager
    def style(self: Self, name: str) -> Iterator[Self]:
        """A paragraph style for a block; afterwards "Normal" holds."""
        self.setStyle(name)
        try:
            yield self
        finally:
            if self._is_open():
                self.setStyle("Normal")

    @contextmanager
    def block(self: Self, css_class: str) -> Iterator[Self]:
        """A block of the page with a class of the style sheet."""
        self.insertText(f"<DIV CLASS={css_class}>")
        try:
            yield self
        finally:
            if self._is_open():
                self.insertText("</DIV>")

    @contextmanager
    def header(self: Self) -> Iterator[Self]:
        """What stands at the top of every page."""
        self.startHeader()
        try:
            yield self
        finally:
            if self._is_open():
                self.endHeader()

    @contextmanager
    def footer(self: Self) -> Iterator[Self]:
        """What stands at the foot of every page."""
        self.startFooter()
        try:
            yield self
        finally:
            if self._is_open():
                self.endFooter()

    @contextmanager
    def contents_entry(self: Self) -> Iterator[Self]:
        """An entry of the contents; its text is what the block writes."""
        self.startTOCEntry()
        try:
            yield self
        finally:
            if self._is_open():
                self.endTOCEntry()

    @contextmanager
    def directory(self: Self, name: str) -> Iterator[Self]:
        """A directory for the pages of a block; pages after the next break lie outside again."""
        self.pushDirectory(name)
        try:
            yield self
        finally:
            if self._is_open():
                self.popDirectory()

    @contextmanager
    def table(self: Self) -> Iterator[Self]:
        """A table."""
        self.startTable()
        try:
            yield self
        finally:
            if self._is_open():
                self.endTable()

    @contextmanager
    def row(self: Self) -> Iterator[Self]:
        """A row; the next one, or the table's end, ends it for the driver."""
        self.addRow()
        yield self

    @contextmanager
    def cell(self: Self) -> Iterator[Self]:
        """A cell; the next one, or the row's end, ends it for the driver."""
        self.addCell()
        yield self

    def cells(self: Self, *texts: str) -> Self:
        """Adds a cell for each text."""
        for text in texts:
            self.addCell()
            self.text(text)
        return self
