"""Arguments are looked at before the driver gets them."""

from pathlib import Path
from typing import Any, Callable, Iterator

import pytest
from conftest import Page

from dochtml import Document

# How a page begins that makes no entry of its own.
PAGE = '<a name="toc1"></a><a name="Page 1"></a>'


@pytest.fixture
def report() -> Iterator[Document]:
    with Document("rep.htm", settings={"Html.StyleSheet": ""}) as document:
        yield document


@pytest.mark.parametrize("value", [None, 7, b"bytes", ["list"], 1.5])
def test_a_text_must_be_a_str(report: Document, value: Any) -> None:
    with pytest.raises(TypeError, match=f"^text must be a str, not {type(value).__name__}$"):
        report.insertText(value)


@pytest.mark.parametrize("value", [None, "7", 7.0, True])
def test_a_number_must_be_an_int(report: Document, value: Any) -> None:
    with pytest.raises(TypeError, match=f"^field must be an int, not {type(value).__name__}$"):
        report.insertField(value)


@pytest.mark.parametrize("value", [None, "true", 1.0])
def test_a_truth_value_must_be_a_bool(report: Document, value: Any) -> None:
    with pytest.raises(TypeError, match=f"^value must be a bool, not {type(value).__name__}$"):
        report.setFontAttribute(1, value)


@pytest.mark.parametrize("value", [0x8000, -0x8001, 1 << 80])
def test_a_short_holds_16_bits(report: Document, value: int) -> None:
    with pytest.raises(OverflowError, match="^size does not fit into 16 bits: "):
        report.setFontSize(value)


@pytest.mark.parametrize("value", [0x80000000, -0x80000001])
def test_a_long_holds_32_bits(report: Document, value: int) -> None:
    with pytest.raises(OverflowError, match="^points does not fit into 32 bits: "):
        report.setTableRowHeight(value)


@pytest.mark.parametrize(
    "call",
    [
        lambda report: report.setFontSize(0x7FFF),
        lambda report: report.setFontSize(-0x8000),
        lambda report: report.setTableRowHeight(0x7FFFFFFF),
        lambda report: report.setTableRowHeight(-0x80000000),
        lambda report: report.insertMark(-1, 0),
    ],
)
def test_the_limits_themselves_fit(report: Document, call: Callable[[Document], None]) -> None:
    call(report)


def test_a_refused_call_does_not_reach_the_driver(report: Document, body: Page) -> None:
    with pytest.raises(TypeError):
        report.insertXref("text", 7)  # type: ignore[arg-type]
    report.insertText("next")
    report.close()
    assert body("rep_dtl.htm") == PAGE + "next\n"


@pytest.mark.parametrize("length", [1, 2037, 2045, 2046, 2047, 2048, 5000, 100_000])
def test_texts_of_every_length_arrive_whole(report: Document, body: Page, length: int) -> None:
    text = ("0123456789" * (length // 10 + 1))[:length]
    report.insertTag("here")
    report.insertXref(text, "here")
    report.insertXref(text, "http://a.example/" + text)
    report.insertText("end")
    report.close()
    assert body("rep_dtl.htm") == (
        f'{PAGE}<a name="here"></a>'
        f'<A HREF="rep_dtl.htm#here">{text}</A>'
        f'<A HREF="http://a.example/{text}">{text}</A>end\n'
    )


def test_letters_go_through_the_code_page(report: Document, work: Path) -> None:
    report.insertText("ä€ Ω \U0001f600 \ud800 ")
    report.close()
    assert b"\xe4\x80 ? ?? ? " in (work / "rep_dtl.htm").read_bytes()


def test_a_text_may_hold_zeros(report: Document, work: Path) -> None:
    report.insertText("a\0b")
    report.close()
    assert b"a\0b" in (work / "rep_dtl.htm").read_bytes()
