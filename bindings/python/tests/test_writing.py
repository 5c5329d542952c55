"""The layer over the operations."""

import pytest
from conftest import Page

from dochtml import Document

PAGE = '<a name="Page 1"></a>'
# A page that makes no entry of its own gets one.
ENTRY = '<a name="toc{}"></a>'
SETTINGS = {"Html.StyleSheet": ""}


def test_ten_lines_make_a_report(body: Page) -> None:
    with Document("report.htm", settings=SETTINGS) as report:
        report.heading(1, "Introduction")
        report.text("See ").link("the class", to="GUID-7").endl()
        report.page_break()
        report.heading(2, "Class", tag="GUID-7")
    assert body("report_dtl.htm") == (
        f'{PAGE}<H1><a name="toc1"></a>Introduction</H1>\n'
        'See <A HREF="report_dtl2.htm#GUID-7">the class</A><BR>\n\n'
    )
    assert body("report_dtl2.htm") == (
        '<a name="Page 2"></a><a name="GUID-7"></a><H2><a name="toc2"></a>Class</H2>\n\n'
    )


def test_texts_are_shown_as_they_are(body: Page) -> None:
    with Document("rep.htm", settings=SETTINGS) as report:
        report.tag("a").line("a < b && c").link("<T>", to="a")
    assert body("rep_dtl.htm") == (
        f'{ENTRY.format(1)}{PAGE}<a name="a"></a>a &lt; b &amp;&amp; c<BR>\n<A HREF="rep_dtl.htm#a">&lt;T></A>\n'
    )


def test_blocks_end_what_they_begin(body: Page) -> None:
    with Document("rep.htm", settings=SETTINGS) as report:
        with report.header():
            report.text("top")
        with report.footer():
            report.text("foot")
        with report.table():
            with report.row():
                with report.cell():
                    report.text("a")
                report.cells("b", "c")
        with report.style("List Number"):
            report.line("one")
        report.text("end")
    assert body("rep_dtl.htm") == (
        "top<HR>\n"
        f"{ENTRY.format(2)}{PAGE}<TABLE BORDER=1 CELLSPACING=0 CELLPADDING=2><TR>\n"
        "<TD>a</TD><TD>b</TD><TD>c</TD></TABLE>\n"
        '<OL><a name="toc1"></a><LI>one<BR>\n</OL>\nend\n<HR>foot'
    )


def test_a_row_of_links_has_commas_and_texts_without_a_target(body: Page) -> None:
    with Document("rep.htm", settings=SETTINGS) as report:
        with report.block("USERS"):
            report.tag("a").links([("<A>", "a"), ("B", None), ("C", "a")])
        report.links([])
    assert body("rep_dtl.htm") == (
        f'{ENTRY.format(1)}{PAGE}<DIV CLASS=USERS><a name="a"></a><A HREF="rep_dtl.htm#a">&lt;A></A>'
        ', B, <A HREF="rep_dtl.htm#a">C</A></DIV>\n'
    )


def test_a_contents_entry_is_what_its_block_writes(body: Page) -> None:
    with Document("rep.htm", settings=SETTINGS) as report:
        with report.contents_entry():
            report.text("Glossary")
    with open("rep_toc.dat", encoding="cp1252") as tree:
        assert '(NODE "Glossary" "rep_dtl.htm#toc1"' in tree.read()


def test_the_pages_of_a_directory_lie_in_it(body: Page) -> None:
    with Document("rep.htm", settings=SETTINGS) as report:
        report.line("front")
        with report.directory("parts"):
            report.line("part")
        report.page_break().line("home")
    assert body("parts/rep_dtl2.htm") == ENTRY.format(2) + '<a name="Page 2"></a>part<BR>\n\n'
    assert body("rep_dtl3.htm") == ENTRY.format(3) + '<a name="Page 3"></a>home<BR>\n\n'


def test_an_open_table_ends_when_its_block_raises(body: Page) -> None:
    with Document("rep.htm", settings=SETTINGS) as report:
        with pytest.raises(LookupError):
            with report.table():
                report.addRow()
                report.cells("a")
                raise LookupError
        report.text("after")
    assert body("rep_dtl.htm").endswith("<TD>a</TD></TABLE>\nafter\n")


def test_a_closed_document_in_a_block_is_no_harm() -> None:
    with Document("rep.htm", settings=SETTINGS) as report:
        with report.table():
            report.addRow()
            report.cells("a")
            report.close()


def test_a_page_break_is_made() -> None:
    with Document("rep.htm", settings=SETTINGS) as report:
        report.line("one").page_break().line("two")
    assert [page.rpartition("/")[2] for page in report.pages][:2] == ["rep_dtl.htm", "rep_dtl2.htm"]


@pytest.mark.parametrize("level", [0, -1])
def test_a_heading_has_a_level_from_1(level: int) -> None:
    with Document("rep.htm", settings=SETTINGS) as report:
        with pytest.raises(ValueError, match="a heading has level 1 or more"):
            report.heading(level, "none")


def test_a_handle_has_64_bits() -> None:
    with Document("rep.htm", settings=SETTINGS) as report:
        report.mark((1 << 64) - 1).mark(0)
        for handle in (-1, 1 << 64):
            with pytest.raises(OverflowError, match="handle does not fit into 64 bits"):
                report.mark(handle)
