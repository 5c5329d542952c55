"""Inheritance diagrams, drawn by Graphviz, with regions from its own image maps."""

from __future__ import annotations

import os
import subprocess
import xml.etree.ElementTree as ET
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from dochtml import Region

from .model import ObjectModel, Type

# More heirs than this become one box; the others stand in rows.
_HEIRS = 12
_ROW = 4
_GRAPH = """digraph "{id}" {{
  graph [rankdir=BT, bgcolor="transparent", ranksep=0.35, nodesep=0.2, dpi=96]
  node [shape=box, style="filled,rounded", fontname="DejaVu Sans", fontsize=10, height=0.3,
        margin="0.12,0.05", color="#8fa3bf", fillcolor="#eef3fa", fontcolor="#1d3557"]
  edge [arrowhead=empty, color="#68768a", arrowsize=0.7]
{lines}}}
"""


class GraphvizError(Exception):
    """Graphviz is not there, or does not draw."""


def _node(model: ObjectModel, name: str, here: Type) -> str:
    other = model.types.get(name)
    near = other is not None and other.owner is here.owner
    label = other.name if near and other is not None else name
    style = ['label="' + label + '"']
    if other is not None:
        style.append(f'URL="{name}"')
        if other.kind == "interface":
            style.append('fillcolor="#f1f7ee", color="#9dbb8a"')
    if name == here.id:
        style.append('fillcolor="#1d3557", fontcolor="white"')
    return f'  "{name}" [{", ".join(style)}]\n'


def graph_of(model: ObjectModel, one: Type) -> str:
    """The class, what it inherits and implements, and what is made from it."""
    edges: list[tuple[str, str, str]] = []
    below = one
    for above in [*model.ancestors(one)]:
        edges.append((below.id, above.id, ""))
        below = above
    if below.parent:
        edges.append((below.id, below.parent, ""))
    edges += [(one.id, name, " [style=dashed]") for name in one.interfaces]
    heirs = model.heirs.get(one.id, [])
    shown = heirs[:_HEIRS]
    edges += [(heir.id, one.id, "" if heir.parent == one.id else " [style=dashed]")
              for heir in shown]  # fmt: skip
    edges += [(lower.id, upper.id, " [style=invis]") for upper, lower in zip(shown, shown[_ROW:])]
    names = dict.fromkeys([one.id, *(name for edge in edges for name in edge[:2])])
    lines = "".join(_node(model, name, one) for name in names)
    lines += "".join(f'  "{start}" -> "{end}"{style}\n' for start, end, style in edges)
    if len(heirs) > _HEIRS:
        more = f'"{len(heirs) - _HEIRS} more"'
        lines += f'  {more} [style=dotted]\n  {more} -> "{shown[-1].id}" [style=invis]\n'
    return _GRAPH.format(id=one.id, lines=lines)


class Diagrams:
    """The pictures of all classes and interfaces, and the regions of each."""

    def __init__(self, model: ObjectModel, directory: Path, dot: str) -> None:
        self._directory = directory
        self._files: dict[str, Path] = {}
        for one in model.types.values():
            if one.parent or one.interfaces or one.id in model.heirs:
                file = directory / f"{one.id}.dot"
                file.write_text(graph_of(model, one), encoding="utf-8")
                self._files[one.id] = file
        self._draw(dot, [str(file) for file in self._files.values()])

    def _draw(self, dot: str, files: list[str]) -> None:
        count = os.cpu_count() or 1

        def draw(part: list[str]) -> None:
            command = [dot, "-Tpng", "-Tcmapx", "-O", *part]
            try:
                run = subprocess.run(command, capture_output=True, text=True, check=False)
            except OSError as problem:
                raise GraphvizError(f"{dot}: {problem.strerror}") from None
            if run.returncode != 0:
                raise GraphvizError((run.stderr.splitlines() or [f"{dot} failed"])[0])

        parts = [part for part in (files[start::count] for start in range(count)) if part]
        with ThreadPoolExecutor(count) as threads:
            list(threads.map(draw, parts))

    def picture(self, one: Type) -> Path | None:
        file = self._files.get(one.id)
        return None if file is None else file.with_name(file.name + ".png")

    def regions(self, picture: str) -> list[Region]:
        """The regions of a picture; the driver asks for them."""
        file = Path(picture)
        if file.parent != self._directory:
            return []
        areas = ET.parse(file.with_suffix(".cmapx")).getroot().iter("area")
        return [_region(area) for area in areas]


def _region(area: ET.Element) -> Region:
    target = area.get("href", "")
    numbers = [int(number) for number in area.get("coords", "").split(",")]
    corners = list(zip(numbers[0::2], numbers[1::2]))
    if area.get("shape") == "rect":
        (left, top), (right, bottom) = corners
        corners = [(left, top), (right, top), (right, bottom), (left, bottom)]
    # The driver puts the link in the place of the target's first occurrence, so the name of the
    # region is another one.
    space, _, name = target.partition(".")
    return Region(f"{name} ({space})", target, corners)
