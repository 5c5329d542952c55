"""What Python objects provide to the driver: a model and image maps."""

import gc
from pathlib import Path
from typing import Iterable

import pytest
from conftest import Page

from dochtml import Document, Element, ModelElement, Region, component

SETTINGS = {"Html.StyleSheet": ""}


def icons(work: Path) -> list[list[str]]:
    """The icon, and the stereotype's, of every entry."""
    lines = (work / "rep_toc.dat").read_text(encoding="cp1252").splitlines()
    return [line.split('"')[5::2] for line in lines if "NODE" in line]


def test_the_model_chooses_the_icons(work: Path) -> None:
    elements = {
        1: ModelElement("Class", {"kind": "interface"}),
        1 << 40: ModelElement("Operation", {"visibility": "private"}),
        3: ModelElement("Attribute", {"userDefinedMetaClass": "Column"}),
    }
    with Document("rep.htm", settings=SETTINGS, model=elements.get) as report:
        for handle in (1, 1 << 40, 3, 99, 0, (1 << 64) - 1):
            report.mark(handle).heading(1, f"Element {handle}")
    assert [entry[0] for entry in icons(work)] == [
        "Class_interface.gif", "Operation_private.gif", "Attribute.gif",
        "__None.gif", "__None.gif", "__Collection.gif",
    ]  # fmt: skip
    assert icons(work)[2][1] == "Column.gif"


def test_the_second_schema_asks_for_other_attributes(work: Path) -> None:
    element = ModelElement("Any", {"metaClass": "Block", "stereotype": "ValueType"})
    component().services.set_schema_type(2)
    try:
        with Document("rep.htm", settings=SETTINGS, model={1: element}.get) as report:
            report.mark(1).heading(1, "Block")
    finally:
        component().services.set_schema_type(0)
    assert icons(work)[0][0] == "Block.gif" and icons(work)[0][1] == "Block+valuetype.gif"


def test_each_document_has_its_own_model(work: Path) -> None:
    first = Document("first.htm", settings=SETTINGS, model={1: ModelElement("Package")}.get)
    with Document("rep.htm", settings=SETTINGS, model={1: ModelElement("Diagram")}.get) as second:
        first.mark(1).heading(1, "In the first")
        second.mark(1).heading(1, "In the second")
        first.close()
    assert icons(work)[0][0] == "Diagram.gif"
    assert '"Package.gif"' in (work / "first_toc.dat").read_text()


def test_an_exception_of_the_model_reaches_the_caller(work: Path) -> None:
    def broken(handle: int) -> Element | None:
        raise LookupError(f"no element {handle}")

    with Document("rep.htm", settings=SETTINGS, model=broken) as report:
        with pytest.raises(LookupError, match="^no element 7$"):
            report.mark(7).heading(1, "Title")
        report.line("goes on")
        # Its entry is still to come, and asks once more.
        report.mark(0)
    assert report.problems == []
    assert b"goes on" in (work / "rep_dtl.htm").read_bytes()


def test_an_exception_of_an_attribute_reaches_the_caller() -> None:
    class Broken:
        metaclass = "Class"
        associations: dict[str, list[Element]] = {}

        @property
        def attributes(self) -> dict[str, str]:
            raise KeyboardInterrupt

    with Document("rep.htm", settings=SETTINGS, model=lambda handle: Broken()) as report:
        with pytest.raises(KeyboardInterrupt):
            report.mark(7).heading(1, "Title")
        report.mark(0)


def test_regions_make_a_picture_clickable(body: Page) -> None:
    Path("a.gif").write_bytes(b"GIF")
    asked = []

    def regions(picture: str) -> Iterable[Region]:
        asked.append(picture)
        yield Region("Class A", "GUID-1", [(0, 0), (10, 0), (10, 10)])
        yield Region("Class Ä", "GUID-1", "1,2,3,4,5,6")

    with Document("rep.htm", settings=SETTINGS, image_maps=regions) as report:
        report.tag("GUID-1").image("a.gif")
    assert asked == ["a.gif"]
    assert body("rep_dtl.htm") == (
        '<a name="toc1"></a><a name="Page 1"></a><a name="GUID-1"></a>'
        '<IMG SRC="pix/a.gif" ALIGN="BOTTOM" BORDER="0"  USEMAP=#map0 >\n'
        '<MAP NAME="map0">\n'
        '  <AREA SHAPE="POLY" COORDS="0,0,10,0,10,10"  NAME="Class A" HREF="rep_dtl.htm#GUID-1">\n'
        '  <AREA SHAPE="POLY" COORDS="1,2,3,4,5,6"  NAME="Class Ä" HREF="rep_dtl.htm#GUID-1">\n'
        "</MAP>\n"
    )


def test_a_picture_without_regions_is_a_picture(body: Page) -> None:
    Path("a.gif").write_bytes(b"GIF")
    with Document("rep.htm", settings=SETTINGS, image_maps=lambda picture: None) as report:
        report.image("a.gif")
    assert "MAP" not in body("rep_dtl.htm")


def test_an_exception_of_the_image_maps_reaches_the_caller() -> None:
    Path("a.gif").write_bytes(b"GIF")
    with Document("rep.htm", settings=SETTINGS, image_maps=lambda picture: 1 // 0) as report:  # type: ignore[arg-type, return-value]
        with pytest.raises(ZeroDivisionError):
            report.image("a.gif")
        report.line("goes on")


def test_nothing_of_a_model_is_kept_when_its_documents_are_gone() -> None:
    class Element:
        metaclass = "Class"
        attributes: dict[str, str] = {}
        associations: dict[str, list[object]] = {}

    element = Element()
    with Document("rep.htm", settings=SETTINGS, model=lambda handle: element) as report:  # type: ignore[arg-type, return-value]
        report.mark(7).heading(1, "Title")
    del report
    gc.collect()
    assert [what for what in gc.get_referrers(element) if isinstance(what, dict)] == []
