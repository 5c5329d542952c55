"""Descriptions: the comment language of GObject libraries, as calls of the driver."""

from __future__ import annotations

import re

from dochtml import Document, escaped

from .model import Element, ObjectModel

_BLOCK = re.compile(
    r"\|\[(?:<!--.*?-->)?\n?(.*?)\]\||^```[^\n]*\n(.*?)^```", re.DOTALL | re.MULTILINE
)
_INLINE = re.compile(
    r"(?P<code>`[^`\n]+`)"
    r"|(?P<call>\b[a-z]\w+(?=\(\)))\(\)"
    r"|[#%](?P<symbol>[A-Za-z_]\w*(?:::?[a-z][\w-]*)?)"
    r"|@(?P<parameter>\w+)"
    r"|\[(?P<shown>[^\]\n]+)\](?:\[[\w.-]*\]|\(https?:[^)\s]+\))"
    r"|\[\w+@(?P<link>[\w.:-]+)\]"
)
_ITEM = re.compile(r"(?m)^ *[-*] +")
_TITLE = re.compile(r"#+ +(.*?)(?: *#+)?(?: *\{#.*\})?")


def summary(doc: str) -> str:
    """The first sentence."""
    text = re.split(r"\n\s*\n|\|\[", doc, maxsplit=1)[0]
    return re.split(r"(?<=[.:])\s", " ".join(text.split()), maxsplit=1)[0]


class TextWriter:
    """Writes descriptions; names of elements become links."""

    def __init__(self, report: Document, model: ObjectModel) -> None:
        self._report = report
        self._model = model
        self._ids = {element.id for element in model.elements()}

    def write(self, doc: str) -> None:
        """A whole description: paragraphs, lists, titles and code."""
        last = 0
        for found in _BLOCK.finditer(doc):
            self._prose(doc[last : found.start()])
            self._code((found[1] or found[2] or "").rstrip())
            last = found.end()
        self._prose(doc[last:])

    def _code(self, code: str) -> None:
        lines = (escaped(line).replace("  ", "&nbsp; ") for line in code.expandtabs(4).split("\n"))
        self._report.insertText(f"<DIV CLASS=CODE>{'<BR>'.join(lines)}</DIV>")

    def _prose(self, text: str) -> None:
        for paragraph in re.split(r"\n\s*\n", text):
            paragraph = paragraph.strip()
            title = _TITLE.fullmatch(paragraph)
            if title:
                self._report.insertText(f"<H6>{escaped(title[1])}</H6>")
            elif paragraph:
                self._block("P", paragraph)

    def _block(self, tag: str, text: str) -> None:
        items = _ITEM.split(text)
        self._report.insertText(f"<{tag}>")
        self.line(items[0])
        for item in items[1:]:
            self._report.insertText("<BR>&bull; ")
            self.line(item)
        self._report.insertText(f"</{tag}>")

    def line(self, text: str) -> None:
        """A piece of running text."""
        text = " ".join(text.split())
        last = 0
        for found in _INLINE.finditer(text):
            if found.start() > last:
                self._report.text(text[last : found.start()])
            self._piece(found)
            last = found.end()
        if last < len(text):
            self._report.text(text[last:])

    def _piece(self, found: re.Match[str]) -> None:
        if found["shown"]:
            self._report.text(found["shown"])
            return
        if found["parameter"]:
            self._report.insertText(f"<EM>{escaped(found['parameter'])}</EM>")
            return
        code = (found["code"] or "").strip("`")
        shown = code or found["call"] or found["symbol"] or found["link"]
        target = None if found["code"] else self._target(shown)
        text = f"{shown}()" if found["call"] else shown
        if target is None:
            self._report.insertText(f"<CODE>{escaped(text)}</CODE>")
        else:
            self._report.link(text, to=target)

    def _target(self, name: str) -> str | None:
        """The bookmark of a name in C or in the model."""
        if name in self._ids:
            return name
        owner, joint, member = re.match(r"([\w.]+)(::?)?(.*)", name).groups("")  # type: ignore[union-attr]
        element = self._named(owner)
        if element is None:
            return None
        full = element.id + joint + member
        return full if full in self._ids else None

    def _named(self, c_name: str) -> Element | None:
        """An element by its name in C; "GFiles" are several of them."""
        found = self._model.by_c_name.get(c_name)
        return found or self._model.by_c_name.get(c_name.removesuffix("s"))
