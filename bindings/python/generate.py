#!/usr/bin/env python3
"""Writes the parts of the package that follow from the driver's own tables.

Usage: generate.py IDL DESCRIPTIONS SETTINGS_TOOL PACKAGE

The operations and their kinds come from the interface definition IDL, their descriptions from the
directory DESCRIPTIONS (the source of docs/operations.md), the settings from what the program
SETTINGS_TOOL lists. The modules go into the directory PACKAGE. None of them is kept in the source
tree, so they cannot differ from what they are made from.
"""

import re
import subprocess
import sys
import tempfile
import textwrap
from pathlib import Path
from typing import Iterator, NamedTuple

HEAD = '"""{title}\n\nMade by generate.py. Do not edit.\n"""\n\n'
WIDTH = 96


class Kind(NamedTuple):
    """How a kind of the interface definition appears in Python."""

    name: str
    annotation: str


KINDS = {
    "BSTR": Kind("text", "str"),
    "short": Kind("short", "int"),
    "long": Kind("long", "int"),
    "VARIANT_BOOL": Kind("boolean", "bool"),
    "BSTR*": Kind("out", ""),
}
OPERATION = re.compile(r"\[id\((\d+)\)[^\]]*\]\s*HRESULT\s+(\w+)\(([^)]*)\)\s*;")
PARAMETER = re.compile(r"\[(in|out)\]\s*([\w*]+)\s+(\w+)")


class Operation(NamedTuple):
    number: int
    name: str
    parameters: list[tuple[str, Kind]]

    @property
    def inputs(self) -> list[tuple[str, Kind]]:
        return [(name, kind) for name, kind in self.parameters if kind.name != "out"]


class Setting(NamedTuple):
    name: str
    kind: str
    meaning: str


def read_operations(idl: str) -> dict[str, Operation]:
    found = {}
    for number, name, arguments in OPERATION.findall(idl):
        parameters = [(p, KINDS[kind]) for _, kind, p in PARAMETER.findall(arguments)]
        found[name] = Operation(int(number), name, parameters)
    return found


class Description:
    """What the manual says of one operation."""

    def __init__(self) -> None:
        self.parts: dict[str, list[str]] = {"summary": [], "argument": [], "effect": [], "writes": []}


class Group:
    def __init__(self, name: str) -> None:
        self.name = name
        self.title = ""
        self.operations: dict[str, Description] = {}


def read_descriptions(directory: Path) -> list[Group]:
    groups: list[Group] = []
    for file in sorted(directory.glob("*.txt")):
        part: list[str] = []
        for line in file.read_text(encoding="utf-8").splitlines():
            if not line.startswith("@"):
                part.append(line)
                continue
            keyword, _, value = line[1:].partition(" ")
            part = []
            if keyword == "group":
                groups.append(Group(value))
            elif keyword == "title":
                groups[-1].title = value
            elif keyword == "operation":
                groups[-1].operations[value] = Description()
            elif groups[-1].operations:
                description = list(groups[-1].operations.values())[-1]
                part = description.parts.setdefault(keyword, [])
                if value:
                    part.append(value)
    return groups


def read_settings(tool: str) -> Iterator[Setting]:
    with tempfile.NamedTemporaryFile(suffix=".ini") as empty:
        listing = subprocess.run(
            [tool, "--settings", empty.name, "list"], check=True, capture_output=True, text=True
        ).stdout
    # The first line names the store. One setting is three lines: NAME=VALUE, its default and type,
    # its meaning.
    lines = listing.splitlines()[1:]
    for first, second, meaning in zip(lines[0::3], lines[1::3], lines[2::3], strict=True):
        kind = second.rpartition(", ")[2]
        if kind not in ("text", "boolean", "short", "integer"):
            raise SystemExit(f"{tool}: a setting of the unknown type {kind!r}")
        yield Setting(first.partition("=")[0], kind, meaning.strip())


def wrapped(text: str, indent: str, hanging: str = "") -> list[str]:
    if text.startswith("|"):
        return [indent + text]
    return textwrap.wrap(
        text, WIDTH, initial_indent=indent, subsequent_indent=indent + hanging,
        break_long_words=False, break_on_hyphens=False,
    )


def docstring(description: Description, indent: str) -> str:
    parts = description.parts
    lines = [parts["summary"][0]]
    if parts["argument"]:
        lines.append("")
        for argument in parts["argument"]:
            name, _, meaning = argument.partition(" ")
            lines += wrapped(f"{name}: {meaning}", indent, "    ")
    for title, paragraphs in (("", parts["effect"]), ("Writes: ", parts["writes"])):
        lines.append("")
        for number, paragraph in enumerate(paragraphs):
            lines += wrapped((title if number == 0 else "") + paragraph, indent) or [""]
    text = "\n".join(lines).rstrip().replace("\\", "\\\\").replace('"""', '\\"\\"\\"')
    return f'{indent}"""{text}\n{indent}"""\n'


def method(operation: Operation, description: Description) -> str:
    """The check of the caller and of the arguments, the call, and what went wrong meanwhile.

    It is all written out in each method, as calls of Python's own cost as much as the rest.
    """
    inputs = operation.inputs
    arguments = "".join(f", {name}: {kind.annotation}" for name, kind in inputs)
    values = "".join(f', take.{kind.name}("{name}", {name})' for name, kind in inputs)
    has_answer = len(inputs) < len(operation.parameters)
    lines = ["take = self._arguments()" if inputs else "self._arguments()"]
    if has_answer:
        lines.append("answer = c_void_p()")
        values += ", byref(answer)"
    lines += [
        f"self._functions[{operation.number}](self._pointer{values})",
        "if self._mailbox.has_failed:",
        "    self._mailbox.raise_failure()",
    ]
    if has_answer:
        lines.append("return taken_text(answer.value)")
    return (
        f"    def {operation.name}(self{arguments}) -> {'str' if has_answer else 'None'}:\n"
        + docstring(description, " " * 8)
        + "".join(f"        {line}\n" for line in lines)
    )


def mixin_name(group: Group) -> str:
    return group.name.title() + "Operations"


def group_module(group: Group, operations: dict[str, Operation]) -> str:
    methods = [method(operations[name], text) for name, text in group.operations.items()]
    needs_answers = any("taken_text" in text for text in methods)
    return (
        HEAD.format(title=group.title + ".")
        + ("from ctypes import byref, c_void_p\n\n" if needs_answers else "")
        + f"from ..calling import Caller{', taken_text' if needs_answers else ''}\n\n\n"
        + f"class {mixin_name(group)}(Caller):\n"
        + f'    """{group.title}."""\n\n'
        + "\n".join(methods)
    )


def table_module(operations: dict[str, Operation]) -> str:
    rows = sorted(operations.values())
    lines = "".join(
        f'    Operation({row.number}, "{row.name}", '
        + f"{tuple((name, kind.name) for name, kind in row.parameters)!r}),\n"
        for row in rows
    )
    return (
        HEAD.format(title="The operations in the order of the interface's table.")
        + "from typing import NamedTuple\n\n\n"
        + "class Operation(NamedTuple):\n"
        + '    """A row: dispatch identifier, name, and the names and kinds of the parameters."""\n\n'
        + "    number: int\n    name: str\n    parameters: tuple[tuple[str, str], ...]\n\n\n"
        + f"OPERATIONS = (\n{lines})\n"
    )


def operations_package(groups: list[Group]) -> str:
    imports = "".join(f"from .{group.name} import {mixin_name(group)}\n" for group in groups)
    bases = "".join(f"    {mixin_name(group)},\n" for group in groups)
    return (
        HEAD.format(title="The operations of the document interface, under their own names.")
        + imports
        + f"\n\nclass Operations(\n{bases}):\n"
        + '    """All operations of a document."""\n'
    )


def settings_module(settings: list[Setting]) -> str:
    lines = "".join(
        f"    Setting({row.name!r}, {row.kind!r},\n            {row.meaning!r}),\n"
        for row in settings
    )
    return (
        HEAD.format(title="The driver's settings.")
        + "from typing import NamedTuple\n\n\n"
        + "class Setting(NamedTuple):\n"
        + '    """A row: the name with its group, the kind of the value, and what it is for."""\n\n'
        + "    name: str\n    kind: str\n    meaning: str\n\n\n"
        + f"SETTINGS = (\n{lines})\n"
    )


def check(operations: dict[str, Operation], groups: list[Group]) -> None:
    described = [name for group in groups for name in group.operations]
    if sorted(described) != sorted(operations):
        odd = set(described) ^ set(operations)
        raise SystemExit(f"operations and descriptions differ: {', '.join(sorted(odd))}")
    if [row.number for row in sorted(operations.values())] != list(range(1, len(operations) + 1)):
        raise SystemExit("the operations are not numbered from 1 on")


def main() -> None:
    idl, descriptions, tool, package = sys.argv[1:]
    operations = read_operations(Path(idl).read_text(encoding="utf-8"))
    groups = read_descriptions(Path(descriptions))
    check(operations, groups)
    target = Path(package) / "operations"
    target.mkdir(parents=True, exist_ok=True)
    modules = {f"{group.name}.py": group_module(group, operations) for group in groups}
    modules["__init__.py"] = operations_package(groups)
    modules["table.py"] = table_module(operations)
    modules["../settings_table.py"] = settings_module(list(read_settings(tool)))
    for name, text in modules.items():
        (target / name).write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
