"""Settings by name."""

import os
import re
import subprocess
from pathlib import Path
from typing import Any

import pytest

from dochtml import SETTINGS, Document, SettingError, find_setting


def test_the_settings_are_those_of_the_driver() -> None:
    tool = [os.environ["DOCHTML_TEST_SETTINGS"], "list"]
    listing = subprocess.run(tool, check=True, capture_output=True, text=True).stdout
    wanted = re.findall(r"^(\S+?)=.*\n.*, (\w+)\n    (.*)$", listing, re.MULTILINE)
    assert len(wanted) >= 20
    assert [tuple(setting) for setting in SETTINGS] == wanted


def test_a_setting_holds_for_its_document(work: Path) -> None:
    with Document("rep.htm", settings={"Html.BodyTags": 'bgcolor="#ffffee"'}) as report:
        report.line("yellow")
    with Document("other.htm") as report:
        report.line("white")
    assert b'<BODY bgcolor="#ffffee" >' in (work / "rep_dtl.htm").read_bytes()
    assert b"<BODY  >" in (work / "other_dtl.htm").read_bytes()


def test_numbers_and_truth_values_are_settings(work: Path) -> None:
    settings = {"Html.Navig": 2, "Html.ShowIcons": False, "html.toclevel": 1}
    with Document("rep.htm", settings=settings) as report:
        report.line("text")
    # Without contents the pages have the document's own name.
    assert (work / "rep.htm").exists() and not (work / "rep_toc.dat").exists()


def test_group_settings_reaches_the_driver_too(work: Path) -> None:
    with Document("rep.htm", settings={"Settings.TestLevel": 1}) as report:
        with report.header():
            report.insertField(1)
        report.line("text")
    assert b"XX/XX/XX" in (work / "rep_dtl.htm").read_bytes()


def test_what_the_user_has_stored_holds_beneath(work: Path, user_store: Path) -> None:
    user_store.write_text(
        '; by hand\n[html]\n bodytags = "text=red"\nStyleSheet=\n[Html]\nBodyTags=second\n'
    )
    with Document("rep.htm") as report:
        report.line("text")
    assert b"<BODY text=red >" in (work / "rep_dtl.htm").read_bytes()
    assert not (work / "default.css").exists()


def test_a_path_is_a_text(work: Path) -> None:
    style = work / "my.css"
    style.write_text("BODY { color: red; }")
    (work / "out").mkdir()
    with Document("out/rep.htm", settings={"Html.StyleSheet": style}) as report:
        report.line("text")
    assert (work / "out" / "my.css").read_text() == "BODY { color: red; }"


@pytest.mark.parametrize(
    "name, hint",
    [
        ("Html.TOCLevle", "; did you mean Html.TOCLevel?"),
        ("TOCLevel", "; did you mean Html.TOCLevel?"),
        ("Qqqq.Zzzz", ""),
    ],
)
def test_an_unknown_name_is_refused(name: str, hint: str) -> None:
    with pytest.raises(SettingError, match="^" + re.escape(f"there is no setting {name}{hint}") + "$"):
        Document("rep.htm", settings={name: 1})


@pytest.mark.parametrize(
    "name, value, wanted",
    [
        ("Html.ShowIcons", 1, "a bool, not int"),
        ("Html.ShowIcons", "true", "a bool, not str"),
        ("Html.TOCLevel", "3", "an int, not str"),
        ("Html.TOCLevel", True, "an int, not bool"),
        ("Html.BodyTags", 3, "a str, not int"),
    ],
)
def test_a_value_of_another_kind_is_refused(name: str, value: Any, wanted: str) -> None:
    with pytest.raises(TypeError, match=f"^{name} must be {wanted}$"):
        Document("rep.htm", settings={name: value})


@pytest.mark.parametrize("name, value", [("Html.Navig", 0x8000), ("Html.TOCLevel", 1 << 31)])
def test_a_number_that_does_not_fit_is_refused(name: str, value: int) -> None:
    with pytest.raises(OverflowError, match=f"^{name} does not hold {value}$"):
        Document("rep.htm", settings={name: value})


def test_a_refused_setting_opens_no_document(work: Path) -> None:
    with pytest.raises(SettingError):
        Document("rep.htm", settings={"Html.None": 1})
    assert list(work.iterdir()) == []


def test_settings_are_found_in_any_case() -> None:
    setting = find_setting("html.TOCLEVEL")
    assert setting is not None and setting.name == "Html.TOCLevel" and setting.kind == "integer"
    assert find_setting("Html.None") is None
