"""The operations are those of the component, under their names, with their kinds and texts."""

import ctypes
import inspect
import json
import os
import re
import subprocess
from pathlib import Path
from typing import Iterator

import pytest
from late_binding import (
    DISP_E_OVERFLOW, DISP_E_TYPEMISMATCH, VT_BSTR, VT_BYREF, VT_I8, LateBound, Variant, text_block,
)

from dochtml import Document
from dochtml.operations import Operations
from dochtml.operations.table import OPERATIONS, Operation

SOURCE = Path(os.environ["DOCHTML_TEST_SOURCE"])
ANNOTATIONS = {"text": str, "short": int, "long": int, "boolean": bool}


@pytest.fixture
def component_document() -> Iterator[LateBound]:
    document = LateBound()
    yield document
    document.release()


def test_there_are_42_operations() -> None:
    assert len(OPERATIONS) == 42


@pytest.mark.parametrize("operation", OPERATIONS, ids=lambda operation: str(operation.name))
def test_the_component_has_the_operation_and_its_parameters_in_this_order(
    operation: Operation, component_document: LateBound
) -> None:
    names = [name for name, _ in operation.parameters]
    ids = component_document.ids_of(operation.name, *names)
    assert ids == [operation.number, *range(len(names))]


def fitting(kind: str, keep: list[object]) -> Variant:
    """An argument that a parameter of the kind takes."""
    if kind == "out":
        place = ctypes.c_void_p()
        keep.append(place)
        return Variant(VT_BSTR | VT_BYREF, value=ctypes.addressof(place))
    return Variant(VT_I8, value=0)


def kind_in_component(document: LateBound, operation: Operation, index: int) -> str:
    """The kind of a parameter, found out by what the component refuses."""
    keep: list[object] = []

    def result_with(argument: Variant) -> int:
        arguments = [fitting(kind, keep) for _, kind in operation.parameters]
        arguments[index] = argument
        return document.invoke(operation.number, *arguments)

    word = text_block("word")
    if result_with(Variant(VT_BSTR, value=ctypes.addressof(word) + 4)) == 0:
        return "text"
    if result_with(Variant(VT_I8, value=1 << 40)) == DISP_E_OVERFLOW:
        return "short" if result_with(Variant(VT_I8, value=70000)) == DISP_E_OVERFLOW else "long"
    assert result_with(Variant(VT_BSTR, value=ctypes.addressof(word) + 4)) == DISP_E_TYPEMISMATCH
    return "boolean"


@pytest.mark.parametrize(
    "operation",
    [row for row in OPERATIONS if row.parameters and row.parameters[0][1] != "out"],
    ids=lambda operation: str(operation.name),
)
def test_the_kinds_are_those_that_the_component_takes(
    operation: Operation, component_document: LateBound
) -> None:
    kinds = [
        kind_in_component(component_document, operation, index)
        for index in range(len(operation.parameters))
    ]
    assert kinds == [kind for _, kind in operation.parameters]


def test_out_texts_are_answers() -> None:
    with Document("rep.htm") as report:
        assert report.getDocType() == "Html"
        assert report.getPropPages() == "{474BDD93-0170-11D3-A6BF-00104B2AEFE1}"


@pytest.mark.parametrize("operation", OPERATIONS, ids=lambda operation: str(operation.name))
def test_type_hints_follow_the_kinds(operation: Operation) -> None:
    signature = inspect.signature(getattr(Operations, operation.name))
    hints = {name: value.annotation for name, value in signature.parameters.items()}
    hints.pop("self")
    wanted = {name: ANNOTATIONS[kind] for name, kind in operation.parameters if kind != "out"}
    assert hints == wanted
    assert signature.return_annotation == (None if len(wanted) == len(operation.parameters) else str)


def test_docstrings_say_what_the_manual_says() -> None:
    page = (SOURCE / "docs" / "operations.md").read_text(encoding="utf-8")
    sections = re.findall(r"^### (\w+)\n\n(.+)\n", page, re.MULTILINE)
    assert len(sections) == len(OPERATIONS)
    for name, summary in sections:
        # Links between the operations are plain names in the source.
        plain = re.sub(r"\[([^]]*)\]\(#\w+\)", r"\1", summary)
        assert (inspect.getdoc(getattr(Operations, name)) or "").splitlines()[0] == plain


def play(calls: Path, file: Path) -> None:
    document = None
    for line in calls.read_text(encoding="utf-8").splitlines():
        name, *arguments = json.loads(line)
        if name == "create":
            document = Document(file)
        elif document is not None:
            getattr(document, name)(*arguments)


def test_the_operations_write_the_bytes_that_the_replay_tool_writes(work: Path) -> None:
    calls = SOURCE / "tests" / "component" / "report" / "report.jsonl"
    text = calls.read_text(encoding="utf-8")
    first = work / "first.jsonl"
    # Both take the installed style sheet.
    lines = [line for line in text.splitlines() if "overrideRegistry" not in line]
    first.write_text("\n".join(lines), encoding="utf-8")
    for directory in ("python", "replay"):
        (work / directory).mkdir()
    play(first, work / "python" / "rep.htm")
    tool = [os.environ["DOCHTML_TEST_REPLAY"], "--quiet", "--output", "replay/rep.htm", str(first)]
    subprocess.run(tool, check=True)
    names = sorted(path.name for path in (work / "replay").iterdir() if path.is_file())
    assert names == sorted(path.name for path in (work / "python").iterdir() if path.is_file())
    for name in names:
        assert (work / "python" / name).read_bytes() == (work / "replay" / name).read_bytes()
