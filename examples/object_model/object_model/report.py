"""The report as a whole: a page for the model, for each namespace, kind and type, and the index."""

from __future__ import annotations

from itertools import groupby
from pathlib import Path

from dochtml import Document, component, find_setting

from .diagrams import Diagrams
from .model import TYPE_KINDS, Element, Namespace, ObjectModel, Type
from .pages import PageWriter
from .texts import summary

# Taken up as soon as the driver has them.
_NAVIGATOR = "Html.ScriptNavigator"
_CHAR_SET = "Html.CharSet"


def style_sheet(directory: Path) -> Path:
    """The driver's own style sheet, and behind it what this report adds."""
    installed = component().support_files
    base = (installed / "default.css").read_text(encoding="utf-8") if installed else ""
    own = Path(__file__).parent.with_name("model.css").read_text(encoding="utf-8")
    file = directory / "model.css"
    file.write_text(base + own, encoding="utf-8")
    return file


def settings(directory: Path) -> dict[str, str | int | bool | Path]:
    has_navigator = find_setting(_NAVIGATOR) is not None
    return {
        "Html.StyleSheet": style_sheet(directory),
        "Html.Navig": 1,
        # A plain listing of every member helps nobody.
        "Html.TOCLevel": 4 if has_navigator else 3,
        "Html.SupportOld": not has_navigator,
        **({_NAVIGATOR: True} if has_navigator else {}),
        **({_CHAR_SET: "UTF-8"} if find_setting(_CHAR_SET) else {}),
    }


class ReportWriter:
    def __init__(self, report: Document, model: ObjectModel, diagrams: Diagrams | None) -> None:
        self._report = report
        self._model = model
        self._pages = PageWriter(report, model, diagrams)

    def write(self, title: str) -> None:
        report = self._report
        with report.header():
            with report.block("RUNNING"):
                report.text(title)
        self._overview(title)
        for space in self._model.namespaces:
            with report.directory(space.name):
                self._namespace(space)
        self._index()

    def _overview(self, title: str) -> None:
        report = self._report
        report.heading(1, title, tag="overview")
        with report.table():
            for space in self._model.namespaces:
                with report.row():
                    with report.cell():
                        report.link(space.name, to=space.id)
                    members = sum(len(one.members) for one in space.types) + len(space.members)
                    report.cells(f"{len(space.types)} types", f"{members} members")
        report.link("Index of all names", to="index").endl()

    def _namespace(self, space: Namespace) -> None:
        report = self._report
        self._way(None)
        self._pages.heading(1, space.name, space)
        kinds = {kind: [t for t in space.types if t.kind == kind] for kind in TYPE_KINDS}
        kinds = {kind: types for kind, types in kinds.items() if types}
        for kind, types in kinds.items():
            self._pages.section(TYPE_KINDS[kind])
            with report.block("USERS"):
                report.links((one.name, one.id) for one in types)
        for kind, types in kinds.items():
            self._page(space)
            self._kind(TYPE_KINDS[kind], space, types)
        if space.members:
            self._page(space)
            report.mark(space.handle)
            report.heading(2, f"Functions and constants of {space.name}")
            self._pages.members(space.members)

    def _page(self, space: Namespace | None) -> None:
        """The next page; its first line leads up."""
        self._report.page_break()
        self._way(space)

    def _way(self, space: Namespace | None) -> None:
        report = self._report
        with report.block("WAY"):
            report.link("Overview", to="overview")
            if space is not None:
                report.text(" · ").link(space.name, to=space.id)
            report.text(" · ").link("Index", to="index")

    def _kind(self, title: str, space: Namespace, types: list[Type]) -> None:
        """A page that lists the types of a kind, then a page for each."""
        report = self._report
        report.mark((1 << 64) - 1).heading(2, title)
        with report.table():
            for one in types:
                with report.row():
                    with report.cell():
                        report.link(one.name, to=one.id)
                    with report.cell():
                        self._pages.texts.line(summary(one.doc))
        for one in types:
            self._page(space)
            self._pages.type_page(one)

    def _index(self) -> None:
        """A page with the letters, then a page for each of them."""
        report = self._report

        def letter(element: Element) -> str:
            return element.name.strip("_")[:1].upper() or "_"

        elements = sorted(
            self._model.elements(), key=lambda e: (letter(e), e.name.lower(), e.id)
        )
        pages = [(first, list(group)) for first, group in groupby(elements, letter)]
        self._page(None)
        report.mark((1 << 64) - 1).heading(1, "Index", tag="index")
        for first, group in pages:
            report.link(first, to=f"index {first}").text(f" {len(group)} names").endl()
        for first, group in pages:
            self._page(None)
            report.mark(0).heading(2, first, tag=f"index {first}")
            for element in group:
                report.link(element.name, to=element.id)
                report.text(f" · {element.kind.removeprefix('glib:')}")
                if element.owner is not None:
                    report.text(" of ").link(element.owner.id, to=element.owner.id)
                report.endl()
