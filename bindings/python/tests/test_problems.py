"""What the driver reports comes back: warnings as a list, failures as exceptions."""

from pathlib import Path

import pytest

from dochtml import ClosedError, Document, DocumentError, Problem

SETTINGS = {"Html.StyleSheet": ""}


def test_a_good_document_has_no_problems() -> None:
    with Document("rep.htm", settings=SETTINGS) as report:
        report.tag("here").link("back", to="here")
    assert report.problems == []


def test_warnings_come_in_the_driver_s_words() -> None:
    with Document("rep.htm", settings=SETTINGS) as report:
        report.image("none.gif").tag("twice").tag("twice")
    assert [str(problem) for problem in report.problems] == [
        "ERR File not found: none.gif",
        'WARNING: bookmark "twice" already exists as rep_dtl.htm#twice',
    ]
    assert not any(problem.is_unresolved for problem in report.problems)


def test_references_without_a_target_are_told_when_the_document_is_closed(work: Path) -> None:
    with Document("rep.htm", settings=SETTINGS) as report:
        report.line("first line").link("one", to="no such place").page_break()
        report.link("two", to="nowhere").link("again", to="nowhere")
        assert report.problems == []
    first, second = str(work / "rep_dtl.htm"), str(work / "rep_dtl2.htm")
    assert report.problems == [
        Problem(f"unresolved reference to no such place on page {first} near line 2",
                "no such place", first, 2),
        Problem(f"unresolved reference to nowhere on page {second} near line 1",
                "nowhere", second, 1),
        Problem(f"unresolved reference to nowhere on page {second} near line 1",
                "nowhere", second, 1),
    ]  # fmt: skip
    assert all(problem.is_unresolved for problem in report.problems)


def test_an_unresolved_region_is_told_once() -> None:
    from dochtml import Region

    Path("a.gif").write_bytes(b"GIF")
    region = Region("Class A", "GUID-9", [(0, 0), (10, 0), (10, 10)])
    with Document("rep.htm", settings=SETTINGS, image_maps=lambda picture: [region]) as report:
        report.image("a.gif").line("text")
    assert [problem.target for problem in report.problems] == ["GUID-9"]


def test_create_fails_in_the_driver_s_words(work: Path) -> None:
    with pytest.raises(DocumentError) as failure:
        Document("rep.htm", settings={"Html.StyleSheet": "none.css", "Settings.InstallDir": "/no"})
    assert str(failure.value) == "Html style sheet does not exist.\n\\no\\none.css"


def test_a_page_that_cannot_be_written_is_told_by_the_call_that_wrote_it(work: Path) -> None:
    with pytest.raises(DocumentError) as failure:
        with Document("rep.htm", settings=SETTINGS) as report:
            report.line("one").page_break()
            (work / "rep_dtl2.htm").mkdir()
            report.line("two")
            report.page_break()
    name = str(work / "rep_dtl2.htm").replace("/", "\\")
    assert str(failure.value) == f"Error opening file: {name}: Not a regular file"
    # What could be written is there.
    assert (work / "rep_dtl.htm").exists() and (work / "rep_toc.dat").exists()


def test_close_goes_through_to_the_end_and_tells_all_that_failed(work: Path) -> None:
    report = Document("rep.htm", settings=SETTINGS)
    report.line("one")
    for name in ("rep_dtl.htm", "rep_toc.dat"):
        (work / name).mkdir()
    with pytest.raises(DocumentError) as failure:
        report.close()
    assert failure.value.reasons == tuple(
        f"Error opening file: {work / name}: Not a regular file".replace("/", "\\")
        for name in ("rep_dtl.htm", "rep_toc.dat")
    )
    report.close()


def test_a_block_that_raises_closes_the_document(work: Path) -> None:
    with pytest.raises(LookupError):
        with Document("rep.htm", settings=SETTINGS) as report:
            report.line("said before")
            raise LookupError("the host's own")
    assert b"said before" in (work / "rep_dtl.htm").read_bytes()
    assert (work / "rep.htm").exists()


def test_the_host_s_exception_is_kept_when_closing_fails_too(work: Path) -> None:
    with pytest.raises(LookupError) as failure:
        with Document("rep.htm", settings=SETTINGS) as report:
            report.line("text")
            (work / "rep_dtl.htm").mkdir()
            raise LookupError
    (note,) = failure.value.__notes__
    assert note.startswith("The document could not be completed: Error opening file: ")


def test_a_closed_document_takes_nothing_more() -> None:
    report = Document("rep.htm", settings=SETTINGS)
    report.close()
    report.close()
    with pytest.raises(ClosedError, match="^the document is closed$"):
        report.insertText("too late")


def test_the_current_directory_stays(work: Path) -> None:
    (work / "out").mkdir()
    with Document("out/rep.htm", settings=SETTINGS) as report:
        report.line("text")
    assert Path.cwd() == work


def test_a_document_nobody_closes_closes_itself_and_says_so(work: Path) -> None:
    report = Document("rep.htm", settings=SETTINGS)
    report.line("forgotten")
    with pytest.warns(ResourceWarning, match="a document was not closed"):
        del report
    assert b"forgotten" in (work / "rep_dtl.htm").read_bytes()
    assert Path.cwd() == work


def test_a_name_that_the_code_page_does_not_hold_is_refused(work: Path) -> None:
    with pytest.raises(ValueError, match="the driver has no letters 'Ω' for the name"):
        Document("Ω.htm")
    assert list(work.iterdir()) == []


def test_the_pages_are_named_as_they_are_on_the_disk(work: Path) -> None:
    with Document("ä.htm", settings=SETTINGS) as report:
        report.line("text")
    assert report.pages[0] == str(work / "ä_dtl.htm") and Path(report.pages[0]).exists()
