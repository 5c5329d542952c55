"""The report of a small model, and what is said when something is wrong."""

import os
import subprocess
import sys
from pathlib import Path

import pytest

HERE = Path(__file__).resolve().parent
SHAPES = HERE / "shapes.gir"


def run(
    *arguments: object, cwd: Path, **environment: str
) -> "subprocess.CompletedProcess[str]":
    path = os.pathsep.join([str(HERE.parent), os.environ["PYTHONPATH"]])
    return subprocess.run(
        [sys.executable, "-B", "-m", "object_model", *map(str, arguments)],
        env={**os.environ, "PYTHONPATH": path, "XDG_CONFIG_HOME": str(cwd), **environment},
        cwd=cwd,
        capture_output=True,
        text=True,
        check=False,
    )


@pytest.fixture(scope="module")
def pages(tmp_path_factory: pytest.TempPathFactory) -> dict[str, str]:
    """The pages of the small model by their titles, in one line each."""
    work = tmp_path_factory.mktemp("report")
    done = run("out/shapes.htm", SHAPES, cwd=work)
    assert (done.returncode, done.stderr) == (0, "")
    found = {}
    for file in (work / "out").rglob("shapes_dtl*.htm"):
        text = file.read_bytes().decode("cp1252")
        title = text.partition("</a>")[2].rpartition("</H")[0]
        head = next(part for part in ("H1", "H2", "H3") if f"<{part}>" in title)
        name = text.partition(f"<{head}>")[2].partition(f"</{head}>")[0].rpartition(">")[2]
        found[name] = text
    return found


def test_every_type_has_a_page(pages: dict[str, str]) -> None:
    assert {"Shapes", "Classes", "Shape", "Circle", "Drawable", "Side"} <= pages.keys()


def test_links_lead_in_both_directions(pages: dict[str, str]) -> None:
    circle, shape = pages["Circle"], pages["Shape"]
    assert "<B>Inherits</B> <A HREF=" in circle and '#Shapes.Shape">Shapes.Shape</A>' in circle
    assert '#Shapes.Circle">Shapes.Circle</A>' in shape
    used_by = shape.partition("Used by</H5>")[2]
    assert '#Shapes.Circle.new">Shapes.Circle.new</A>' in used_by


def test_a_declaration_links_its_types(pages: dict[str, str]) -> None:
    shape = pages["Circle"].partition("<DIV CLASS=CODE>")[2].partition("</DIV>")[0]
    assert shape.startswith("<A HREF=") and '#Shapes.Circle">ShCircle*</A><BR>' in shape
    assert "sh_circle_new (<A HREF=" in shape and '#Shapes.Shape">ShShape*</A> model)' in shape


def test_descriptions_are_text_and_their_names_are_links(pages: dict[str, str]) -> None:
    shape = pages["Shape"]
    assert '#Shapes.Circle.new">sh_circle_new()</A> and <A HREF=' in shape
    assert '#Shapes.Shape:colour">ShShape:colour</A>.' in shape
    assert "<DIV CLASS=CODE>if (a &lt; b)<BR>&nbsp; draw ();</DIV>" in shape
    assert "The colour of all &lt;shapes>." in shape and "<CODE>NULL</CODE>" in shape


def test_a_diagram_leads_to_the_classes_that_it_shows(pages: dict[str, str]) -> None:
    circle = pages["Circle"]
    assert '<IMG SRC="../pix/Shapes.Circle.dot.png"' in circle
    for name in ("Shape", "Circle"):
        area = circle.partition(f'NAME="{name} (Shapes)" HREF="')[2].partition('"')[0]
        assert area.endswith(f"#Shapes.{name}")


def test_what_is_deprecated_says_so(pages: dict[str, str]) -> None:
    page = pages["Functions and constants of Shapes"]
    assert "<B>Deprecated.</B> Use <A HREF=" in page


def test_the_contents_have_icons_by_metaclass_and_visibility(tmp_path: Path) -> None:
    assert run("shapes.htm", SHAPES, cwd=tmp_path).returncode == 0
    tree = (tmp_path / "shapes_toc.dat").read_text(encoding="cp1252")
    icons = {line.split('"')[1]: line.split('"')[5] for line in tree.splitlines() if "NODE" in line}
    assert icons["Shapes"] == "Package.gif" and icons["Shape"] == "Class.gif"
    assert icons["Drawable"] == "Class_interface.gif" and icons["Classes"] == "__Collection.gif"


def test_two_runs_write_the_same_bytes(tmp_path: Path) -> None:
    sets = []
    for name in ("first", "second"):
        assert run(f"{name}/shapes.htm", SHAPES, cwd=tmp_path).returncode == 0
        files = sorted(file for file in (tmp_path / name).rglob("*") if file.is_file())
        sets.append([(str(file.relative_to(tmp_path / name)), file.read_bytes()) for file in files])
    assert sets[0] == sets[1]


@pytest.mark.parametrize(
    "text, why",
    [
        ("<repository><names", "unclosed token: line 1, column 12"),
        ("", "no element found: line 1, column 0"),
        ("<html/>", "not an introspection file: it holds no namespace"),
        ('<?xml version="1.0" encoding="none"?><a/>', "unknown encoding: none"),
    ],
)
def test_a_damaged_file_is_named(text: str, why: str, tmp_path: Path) -> None:
    (tmp_path / "bad.gir").write_text(text)
    done = run("out/rep.htm", SHAPES, "bad.gir", cwd=tmp_path)
    assert (done.returncode, done.stderr) == (1, f"object_model: bad.gir: {why}\n")
    assert not (tmp_path / "out").exists()


def test_a_missing_file_is_named(tmp_path: Path) -> None:
    done = run("rep.htm", "none.gir", cwd=tmp_path)
    assert done.stderr == "object_model: none.gir: No such file or directory\n"
    assert done.returncode == 1


def test_a_namespace_that_is_given_twice_is_named(tmp_path: Path) -> None:
    done = run("rep.htm", SHAPES, SHAPES, cwd=tmp_path)
    assert done.stderr == f"object_model: {SHAPES}: the namespace Shapes is given twice\n"
    assert done.returncode == 1 and not list(tmp_path.iterdir())


def test_without_graphviz_there_is_a_report_and_a_line_that_says_so(tmp_path: Path) -> None:
    done = run("rep.htm", SHAPES, cwd=tmp_path, PATH=str(tmp_path))
    assert done.stderr == (
        "object_model: Graphviz (dot) is not installed; the report has no diagrams\n"
    )
    assert done.returncode == 0 and (tmp_path / "rep.htm").exists()
    assert not list(tmp_path.rglob("*.png"))


def test_a_graphviz_that_fails_is_no_end(tmp_path: Path) -> None:
    (tmp_path / "dot").write_text("#!/bin/sh\necho 'no fonts' >&2\nexit 1\n")
    (tmp_path / "dot").chmod(0o755)
    done = run("rep.htm", SHAPES, cwd=tmp_path, PATH=f"{tmp_path}:{os.environ['PATH']}")
    assert done.stderr == (
        "object_model: Graphviz does not draw (no fonts); the report has no diagrams\n"
    )
    assert done.returncode == 0


def test_a_directory_that_cannot_be_written_is_named(tmp_path: Path) -> None:
    """A file in the place of a page, as even a superuser cannot write through it."""
    (tmp_path / "rep_dtl.htm").mkdir()
    done = run("rep.htm", SHAPES, cwd=tmp_path)
    page = str(tmp_path / "rep_dtl.htm").replace("/", "\\")
    assert done.stderr == f"object_model: Error opening file: {page}: Not a regular file\n"
    assert done.returncode == 1
    # What could be written stays.
    assert (tmp_path / "Shapes" / "rep_dtl2.htm").exists()


def test_a_directory_without_the_right_to_write_is_named_once(tmp_path: Path) -> None:
    for number in range(1, 20):
        (tmp_path / "Shapes" / f"rep_dtl{number}.htm").mkdir(parents=True)
    done = run("rep.htm", SHAPES, cwd=tmp_path)
    assert done.stderr.startswith("object_model: Error opening file: ")
    assert done.stderr.endswith(" more)\n") and done.stderr.count("\n") == 1


def test_an_output_below_a_file_is_refused(tmp_path: Path) -> None:
    (tmp_path / "file").write_text("")
    done = run("file/out/rep.htm", SHAPES, cwd=tmp_path)
    assert (done.returncode, done.stderr) == (
        1, "object_model: file/out: Not a directory\n",
    )  # fmt: skip


def test_a_component_of_another_version_is_refused(tmp_path: Path) -> None:
    other = os.environ["DOCHTML_TEST_OTHER"]
    done = run("rep.htm", SHAPES, cwd=tmp_path, DOCHTML_COMPONENT=other, OTHER_COMPONENT="no-class")
    assert done.stderr == (
        f"object_model: {other} is not the component of this version: "
        "it has no class of documents\n"
    )
    assert done.returncode == 1
