"""The elements of an object model, and what leads from one to another."""

from __future__ import annotations

from dataclasses import dataclass, field
from functools import cached_property
from typing import Iterator

from dochtml import ModelElement

# Kinds of types, in the order of the report, and what a set of them is called.
TYPE_KINDS = {
    "class": "Classes",
    "interface": "Interfaces",
    "record": "Records",
    "union": "Unions",
    "enumeration": "Enumerations",
    "bitfield": "Flags",
    "callback": "Callbacks",
    "alias": "Aliases",
}
# The same for members.
MEMBER_KINDS = {
    "constructor": "Constructors",
    "method": "Methods",
    "function": "Functions",
    "virtual-method": "Virtual methods",
    "property": "Properties",
    "glib:signal": "Signals",
    "field": "Fields",
    "member": "Values",
    "constant": "Constants",
}
# How a member's name is joined to its owner's.
_JOINTS = {"property": ":", "glib:signal": "::", "virtual-method": ".vfunc_", "field": ".field_"}
# What the contents need for the icon of a kind: a metaclass, with its kind or visibility.
_ICONS = {
    "namespace": ModelElement("Package"),
    "interface": ModelElement("Class", {"kind": "interface"}),
    "enumeration": ModelElement("Attribute"),
    "bitfield": ModelElement("Attribute"),
    "callback": ModelElement("Operation"),
    "constructor": ModelElement("Operation", {"visibility": "public"}),
    "method": ModelElement("Operation", {"visibility": "public"}),
    "function": ModelElement("Operation", {"visibility": "public"}),
    "virtual-method": ModelElement("Operation", {"visibility": "protected"}),
    "property": ModelElement("Attribute", {"visibility": "public"}),
    "glib:signal": ModelElement("Attribute", {"visibility": "protected"}),
    "field": ModelElement("Attribute", {"visibility": "private"}),
    "member": ModelElement("TaggedValue"),
    "constant": ModelElement("TaggedValue"),
}


@dataclass(frozen=True)
class TypeUse:
    """A type as a parameter or a field names it: in C, and in the model ("Gio.File")."""

    c_name: str
    name: str = ""


@dataclass(frozen=True)
class Parameter:
    name: str
    type: TypeUse
    doc: str = ""
    direction: str = "in"


@dataclass(eq=False)
class Element:
    """A namespace, a type or a member."""

    kind: str
    name: str
    owner: Element | None = None
    c_name: str = ""
    doc: str = ""
    version: str = ""
    deprecated: str = ""
    handle: int = 0

    @cached_property
    def id(self) -> str:
        """The bookmark of the element: its full name."""
        if self.owner is None:
            return self.name
        return self.owner.id + _JOINTS.get(self.kind, ".") + self.name

    @property
    def label(self) -> str:
        """The full name for a reader."""
        note = {"virtual-method": " (virtual)", "field": " (field)"}.get(self.kind, "")
        return self.name if self.owner is None else f"{self.owner.id}.{self.name}{note}"

    @property
    def icon(self) -> ModelElement:
        return _ICONS.get(self.kind, ModelElement("Class"))


@dataclass(eq=False)
class Member(Element):
    parameters: list[Parameter] = field(default_factory=list)
    result: Parameter | None = None
    type: TypeUse | None = None
    value: str = ""
    access: str = ""

    def uses(self) -> Iterator[TypeUse]:
        """The types that it is made of."""
        for parameter in [*self.parameters, *filter(None, [self.result])]:
            yield parameter.type
        if self.type is not None:
            yield self.type


@dataclass(eq=False)
class Type(Member):
    parent: str = ""
    interfaces: list[str] = field(default_factory=list)
    struct_of: str = ""
    members: list[Member] = field(default_factory=list)


@dataclass(eq=False)
class Namespace(Element):
    types: list[Type] = field(default_factory=list)
    members: list[Member] = field(default_factory=list)


class ObjectModel:
    """All namespaces, and the ways between their elements in both directions."""

    def __init__(self, namespaces: list[Namespace]) -> None:
        self.namespaces = namespaces
        self.types = {t.id: t for space in namespaces for t in space.types}
        self.by_c_name: dict[str, Element] = {}
        self.users: dict[str, list[Element]] = {}
        self.heirs: dict[str, list[Type]] = {}
        self.by_handle: dict[int, ModelElement] = {}
        for handle, element in enumerate(self.elements(), 1):
            element.handle = handle
            self.by_handle[handle] = element.icon
            if element.c_name:
                self.by_c_name.setdefault(element.c_name, element)
            if isinstance(element, Member):
                for name in {use.name for use in element.uses()} & self.types.keys():
                    self.users.setdefault(name, []).append(element)
        for heir in self.types.values():
            for name in filter(None, [heir.parent, *heir.interfaces]):
                self.heirs.setdefault(name, []).append(heir)

    def elements(self) -> Iterator[Element]:
        for space in self.namespaces:
            yield space
            yield from space.members
            for one in space.types:
                yield one
                yield from one.members

    def ancestors(self, one: Type) -> list[Type]:
        """The classes above, the nearest first."""
        chain: list[Type] = []
        above = self.types.get(one.parent)
        while above is not None and above not in chain:
            chain.append(above)
            above = self.types.get(above.parent)
        return chain
