"""Reads GObject introspection files."""

from __future__ import annotations

import xml.etree.ElementTree as ET
from pathlib import Path
from typing import Iterator

from .model import MEMBER_KINDS, TYPE_KINDS, Member, Namespace, Parameter, Type, TypeUse

_PREFIXES = {
    "http://www.gtk.org/introspection/core/1.0": "",
    "http://www.gtk.org/introspection/c/1.0": "c:",
    "http://www.gtk.org/introspection/glib/1.0": "glib:",
    "http://www.w3.org/XML/1998/namespace": "xml:",
}


class GirError(Exception):
    """A file that is not a GObject introspection file."""


def read_namespace(file: Path) -> Namespace:
    try:
        root = ET.parse(file).getroot()
    except OSError as problem:
        raise GirError(f"{file}: {problem.strerror}") from None
    except (ET.ParseError, ValueError, LookupError) as problem:
        raise GirError(f"{file}: {problem}") from None
    for node in root.iter():
        node.tag = _short(str(node.tag))
        node.attrib = {_short(name): value for name, value in node.attrib.items()}
    spaces = root.findall("namespace")
    if root.tag != "repository" or len(spaces) != 1 or not spaces[0].get("name"):
        raise GirError(f"{file}: not an introspection file: it holds no namespace")
    return _Reader(spaces[0]).namespace


def _short(name: str) -> str:
    uri, brace, rest = name.removeprefix("{").partition("}")
    return _PREFIXES.get(uri, "") + rest if brace else name


def _text(node: ET.Element, tag: str) -> str:
    return (node.findtext(tag) or "").strip()


class _Reader:
    def __init__(self, space: ET.Element) -> None:
        self.namespace = Namespace("namespace", space.get("name", ""))
        for node in space:
            name = node.get("name") or node.get("glib:name")
            if not name or node.get("introspectable") == "0" and node.tag == "record":
                continue
            if node.tag in TYPE_KINDS and not name.endswith("Private"):
                self.namespace.types.append(self._type(node, name))
            elif node.tag in MEMBER_KINDS and "moved-to" not in node.attrib:
                self.namespace.members.append(self._member(node, name, self.namespace))

    def _type(self, node: ET.Element, name: str) -> Type:
        made = Type(node.tag, name, self.namespace)
        self._fill(made, node)
        made.parent = self._full_name(node.get("parent", ""))
        made.struct_of = self._full_name(node.get("glib:is-gtype-struct-for", ""))
        made.interfaces = [
            self._full_name(other.get("name", ""))
            for other in (*node.findall("implements"), *node.findall("prerequisite"))
        ]
        made.members = list(self._members(node, made))
        return made

    def _members(self, node: ET.Element, owner: Type) -> Iterator[Member]:
        seen = set()
        for child in node:
            name = child.get("name")
            if child.tag in MEMBER_KINDS and name and (child.tag, name) not in seen:
                seen.add((child.tag, name))
                yield self._member(child, name, owner)

    def _member(self, node: ET.Element, name: str, owner: Type | Namespace) -> Member:
        made = Member(node.tag, name, owner)
        self._fill(made, node)
        return made

    def _fill(self, made: Member, node: ET.Element) -> None:
        made.c_name = (
            node.get("c:identifier") or node.get("c:type") or node.get("glib:type-name") or ""
        )
        made.doc = _text(node, "doc")
        made.version = node.get("version", "")
        if node.get("deprecated") == "1":
            made.deprecated = _text(node, "doc-deprecated") or "yes"
        made.value = node.get("value", "")
        made.type = self._type_use(node)
        # A field may hold a function of its own.
        callback = node.find("callback")
        shape = node if callback is None else callback
        result = shape.find("return-value")
        if result is not None:
            made.result = self._parameter(result, "Returns")
        made.parameters = [
            self._parameter(part, part.get("name", ""))
            for part in shape.findall("parameters/*")
            if part.tag in ("instance-parameter", "parameter")
        ]
        if shape.get("throws") == "1":
            error = TypeUse("GError**", "GLib.Error")
            made.parameters.append(Parameter("error", error, "Return location for an error", "out"))
        if node.tag == "property":
            readable = "read" if node.get("readable", "1") == "1" else ""
            writable = "write" if node.get("writable") == "1" else ""
            made.access = ", ".join(filter(None, [readable, writable]))

    def _parameter(self, node: ET.Element, name: str) -> Parameter:
        use = self._type_use(node) or TypeUse("...")
        return Parameter(name, use, _text(node, "doc"), node.get("direction", "in"))

    def _type_use(self, node: ET.Element) -> TypeUse | None:
        found = node.find("type")
        array = node.find("array")
        if found is None and array is not None:
            inner = array.find("type")
            name = "" if inner is None else inner.get("name", "")
            return TypeUse(array.get("c:type") or f"{name}[]", self._full_name(name))
        if found is None:
            return None
        name = found.get("name", "")
        return TypeUse(found.get("c:type") or name, self._full_name(name))

    def _full_name(self, name: str) -> str:
        return name if not name or "." in name else f"{self.namespace.name}.{name}"
