"""A document belongs to its thread; several threads have several documents."""

import threading
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import pytest

from dochtml import Document, DocumentError, Region, WrongThreadError

SETTINGS = {"Html.StyleSheet": ""}


def test_a_call_from_another_thread_is_refused() -> None:
    raised: list[BaseException] = []

    def call_and_close(report: Document) -> None:
        for call in (lambda: report.insertText("x"), report.close):
            try:
                call()
            except WrongThreadError as error:
                raised.append(error)

    with Document("rep.htm", settings=SETTINGS) as report:
        thread = threading.Thread(target=call_and_close, args=(report,))
        thread.start()
        thread.join()
        report.line("still open")
    assert [str(error) for error in raised] == [
        "a document is used on the thread that made it; make one document per thread"
    ] * 2


def write(work: Path, name: str) -> Document:
    """A document with a problem of its own, a picture of its own and a failure of its own."""
    picture = work / f"{name}.gif"
    picture.write_bytes(b"GIF")
    directory = work / name
    directory.mkdir()
    region = Region(name, "here", [(0, 0), (1, 0), (1, 1)])
    settings = {**SETTINGS, "Html.BodyTags": name}
    with Document(
        directory / "rep.htm", settings=settings, image_maps=lambda _: [region]
    ) as report:
        for page in range(100):
            report.tag("here" if page == 0 else f"page {page}")
            report.line(name).image(picture).link("none", to=f"{name}-{page}").page_break()
        (directory / "rep_dtl101.htm").mkdir()
        with pytest.raises(DocumentError, match=f"{name}.rep_dtl101.htm"):
            report.line("last").page_break()
    return report


def test_documents_of_several_threads_do_not_mix(work: Path) -> None:
    names = ["alpha", "beta", "gamma"]
    with ThreadPoolExecutor(len(names)) as threads:
        reports = list(threads.map(lambda name: write(work, name), names))
    for name, report in zip(names, reports):
        assert [problem.target for problem in report.problems] == [
            f"{name}-{page}" for page in range(100)
        ]
        for page in (work / name).glob("rep_dtl?.htm"):
            text = page.read_text(encoding="cp1252")
            assert f"<BODY {name} >" in text and f'NAME="{name}"' in text
    assert Path.cwd() == work


def test_a_document_may_end_in_another_thread(work: Path) -> None:
    """The last reference may be dropped anywhere, for instance by the garbage collector."""
    holder = [Document("rep.htm", settings=SETTINGS)]
    holder[0].line("text")
    holder[0].close()
    thread = threading.Thread(target=holder.clear)
    thread.start()
    thread.join()
    assert (work / "rep_dtl.htm").exists()
