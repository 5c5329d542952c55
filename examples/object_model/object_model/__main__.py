"""Writes the reference of an object model.

The model comes from GObject introspection files, as the -dev packages of libraries have them in
/usr/share/gir-1.0. Types of namespaces that are not given are named and not linked.
"""

import argparse
import shutil
import sys
import tempfile
import time
from pathlib import Path

from dochtml import DochtmlError, Document, DocumentError

from .diagrams import Diagrams, GraphvizError
from .gir import GirError, read_namespace
from .model import ObjectModel
from .report import ReportWriter, settings


def tell(words: object) -> None:
    print(f"object_model: {words}", file=sys.stderr)


def draw(model: ObjectModel, directory: Path) -> Diagrams | None:
    dot = shutil.which("dot")
    if dot is None:
        tell("Graphviz (dot) is not installed; the report has no diagrams")
        return None
    try:
        return Diagrams(model, directory, dot)
    except GraphvizError as problem:
        tell(f"Graphviz does not draw ({problem}); the report has no diagrams")
        return None


def write(file: Path, title: str, model: ObjectModel, work: Path) -> Document:
    diagrams = draw(model, work)
    regions = None if diagrams is None else diagrams.regions
    with Document(
        file,
        title=title,
        settings=settings(work),
        model=model.by_handle.get,
        image_maps=regions,
    ) as report:
        ReportWriter(report, model, diagrams).write(title)
    return report


def read_model(girs: list[Path]) -> ObjectModel:
    spaces = {}
    for gir in girs:
        space = read_namespace(gir)
        if space.name in spaces:
            raise GirError(f"{gir}: the namespace {space.name} is given twice")
        spaces[space.name] = space
    return ObjectModel(list(spaces.values()))


def run(file: Path, girs: list[Path], title: str) -> int:
    begin = time.monotonic()
    model = read_model(girs)
    title = title or "Reference of " + ", ".join(space.name for space in model.namespaces)
    file.parent.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as work:
        report = write(file, title, model, Path(work))
    for problem in report.problems:
        tell(problem)
    seconds = time.monotonic() - begin
    print(f"{len(report.pages)} pages in {seconds:.1f} s: {file}")
    return 1 if report.problems else 0


def main() -> int:
    parser = argparse.ArgumentParser(prog="object_model", description=__doc__.splitlines()[0])
    parser.add_argument("file", type=Path, help="the document to write")
    parser.add_argument("gir", type=Path, nargs="+", help="a GObject introspection file")
    parser.add_argument("--title", default="", help="the title of the report")
    options = parser.parse_args()
    try:
        return run(options.file, options.gir, options.title)
    except OSError as problem:
        tell(f"{problem.filename}: {problem.strerror}")
    except DocumentError as problem:
        # Where one page cannot be written, most others cannot either.
        more = len(problem.reasons) - 1
        first = problem.reasons[0].replace("\n", " ")
        tell(f"{first} (and {more} more)" if more else first)
    except (GirError, DochtmlError) as problem:
        tell(problem)
    return 1


if __name__ == "__main__":
    sys.exit(main())
