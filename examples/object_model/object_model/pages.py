"""The page of a type: what it is, its diagram, its members, and who uses it."""

from __future__ import annotations

from itertools import groupby

from dochtml import Document, escaped

from .diagrams import Diagrams
from .model import MEMBER_KINDS, Element, Member, ObjectModel, Type, TypeUse
from .texts import TextWriter, summary


class PageWriter:
    def __init__(self, report: Document, model: ObjectModel, diagrams: Diagrams | None) -> None:
        self.report = report
        self.model = model
        self.texts = TextWriter(report, model)
        self._diagrams = diagrams

    def section(self, title: str) -> None:
        """A title within a page, which is not an entry of the contents."""
        self.report.insertText(f"<H5>{escaped(title)}</H5>")

    def heading(self, level: int, title: str, element: Element) -> None:
        self.report.mark(element.handle).heading(level, title, tag=element.id)

    def type_name(self, use: TypeUse) -> None:
        """A type as C writes it, with a link when the model has it."""
        target = use.name if use.name in self.model.types else None
        self.report.links([(use.c_name or use.name, target)])

    def names(self, title: str, names: list[str]) -> None:
        """A row of names, if there are any."""
        if names:
            types = self.model.types
            with self.report.block("FACT"):
                self.report.insertText(f"<B>{title}</B> ")
                self.report.links((name, name if name in types else None) for name in names)

    def type_page(self, one: Type) -> None:
        report = self.report
        self.heading(3, one.name, one)
        with report.block("FACT"):
            report.text(f"{one.kind.capitalize()} of ")
            assert one.owner is not None
            report.link(one.owner.name, to=one.owner.id)
            report.text(f" · {one.c_name}" if one.c_name else "")
            report.text(f" · since {one.version}" if one.version else "")
        self._deprecation(one)
        picture = self._diagrams.picture(one) if self._diagrams else None
        if picture is not None:
            with report.block("DIAGRAM"):
                report.image(picture)
        self._relations(one)
        self.texts.write(one.doc)
        if one.kind in ("callback", "alias"):
            self._shape(one)
        self.members(one.members)
        self._users(one)

    def _relations(self, one: Type) -> None:
        heirs = self.model.heirs.get(one.id, [])
        chain = [above.id for above in self.model.ancestors(one)]
        self.names("Inherits", chain or [one.parent] if one.parent else [])
        needs = "Requires" if one.kind == "interface" else "Implements"
        self.names(needs, one.interfaces)
        self.names("Subclasses", [heir.id for heir in heirs if heir.parent == one.id])
        others = [heir for heir in heirs if heir.parent != one.id]
        self.names("Required by", [heir.id for heir in others if heir.kind == "interface"])
        self.names("Implemented by", [heir.id for heir in others if heir.kind != "interface"])
        self.names("Structure of", [one.struct_of] if one.struct_of else [])

    def _deprecation(self, element: Element) -> None:
        if element.deprecated:
            with self.report.block("OLD"):
                self.report.insertText("<B>Deprecated.</B> ")
                self.texts.line(element.deprecated.removeprefix("yes"))

    def members(self, members: list[Member]) -> None:
        """Tables of all members by kind, then each of them at length."""
        order = list(MEMBER_KINDS)
        ordered = sorted(members, key=lambda member: order.index(member.kind))
        for kind, group in groupby(ordered, key=lambda member: member.kind):
            self._member_table(MEMBER_KINDS[kind], list(group))
        for member in ordered:
            if member.kind not in ("field", "member"):
                self._detail(member)

    def _member_table(self, title: str, members: list[Member]) -> None:
        report = self.report
        self.section(title)
        with report.table():
            for member in members:
                with report.row():
                    with report.cell():
                        self._member_name(member)
                    with report.cell():
                        use = member.result.type if member.result else member.type
                        if use is not None:
                            self.type_name(use)
                        report.text(member.value)
                    with report.cell():
                        self.texts.line(summary(member.doc))

    def _member_name(self, member: Member) -> None:
        # What has no text of its own is described by its row alone.
        if member.kind in ("field", "member"):
            self.report.tag(member.id).text(member.name)
        else:
            self.report.link(member.name, to=member.id)

    def _detail(self, member: Member) -> None:
        self.heading(4, member.name, member)
        self._shape(member)
        self._deprecation(member)
        self.texts.write(member.doc)
        described = [part for part in member.parameters if part.doc]
        if member.result is not None and member.result.doc:
            described.append(member.result)
        if not described:
            return
        with self.report.table():
            for part in described:
                with self.report.row():
                    self.report.cells(part.name)
                    with self.report.cell():
                        self.type_name(part.type)
                        self.report.text("" if part.direction == "in" else f" ({part.direction})")
                    with self.report.cell():
                        self.texts.line(part.doc)

    def _shape(self, member: Member) -> None:
        """The declaration, with links to its types."""
        with self.report.block("CODE"):
            if member.result is not None:
                self.type_name(member.result.type)
                self.report.insertText("<BR>")
            self.report.text(member.c_name or member.name)
            if member.type is not None:
                self.report.text(": ")
                self.type_name(member.type)
                self.report.text(f" = {member.value}" if member.value else "")
                self.report.text(f" ({member.access})" if member.access else "")
            if member.result is not None:
                self.report.text(" (")
                for number, part in enumerate(member.parameters):
                    self.report.insertText(", " if number else "")
                    self.type_name(part.type)
                    self.report.text(f" {part.name}")
                self.report.text(")")

    def _users(self, one: Type) -> None:
        users = self.model.users.get(one.id, [])
        if users:
            self.section("Used by")
            with self.report.block("USERS"):
                self.report.links((user.label, user.id) for user in users)
