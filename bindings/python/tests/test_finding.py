"""Where the component is found, and what is said when it is not the right one."""

import os
import shutil
import subprocess
import sys
from pathlib import Path
from typing import Callable

import pytest

import dochtml

Run = Callable[..., "subprocess.CompletedProcess[str]"]

COMPONENT = dochtml.component().file
OTHER = os.environ["DOCHTML_TEST_OTHER"]
TELL = """
import dochtml
try:
    print(dochtml.component().file)
except dochtml.ComponentError as error:
    print("refused:", error)
"""
# A package that lies alone, on a machine where nothing is installed.
ALONE = "import sys, dochtml.finding as f; f._in_prefix = lambda prefix: iter(());" + TELL


def test_the_component_of_the_build_is_found() -> None:
    assert COMPONENT.name == "libdochtmlcom.so"
    assert COMPONENT.is_relative_to(Path(dochtml.__file__).parents[2])


def test_the_environment_names_another_one(work: Path, python: Run) -> None:
    copy = shutil.copy(COMPONENT, work / "another.so")
    assert python(TELL, DOCHTML_COMPONENT=str(copy)).stdout == f"{copy}\n"


def test_a_registered_one_is_found(work: Path, python: Run) -> None:
    copy = shutil.copy(COMPONENT, work / "registered.so")
    environment = {"XDG_DATA_HOME": str(work / "data")}
    register = os.environ["DOCHTML_TEST_REGISTER"]
    subprocess.run([register, copy], env={**os.environ, **environment}, check=True)
    assert python(ALONE, **environment).stdout == f"{copy}\n"


def test_a_registered_one_without_its_directory_is_refused(work: Path, python: Run) -> None:
    copy = Path(shutil.copy(COMPONENT, work / "registered.so"))
    environment = {"XDG_DATA_HOME": str(work / "data")}
    register = os.environ["DOCHTML_TEST_REGISTER"]
    subprocess.run([register, copy], env={**os.environ, **environment}, check=True)
    classes = work / "data" / "quillmark" / "classes.ini"
    text = classes.read_text(encoding="utf-8")
    classes.write_text(text.replace(str(copy), copy.name), encoding="utf-8")
    assert python(ALONE, **environment).stdout == (
        "refused: the registered component registered.so is not an absolute path\n"
    )


def test_without_one_it_says_what_to_install(python: Run) -> None:
    assert python(ALONE).stdout == (
        "refused: the component libdochtmlcom.so is not on this machine: install the package "
        "dochtml, or name the file in the environment variable DOCHTML_COMPONENT\n"
    )


def test_a_file_that_is_not_there_is_refused(python: Run) -> None:
    output = python(TELL, DOCHTML_COMPONENT="/no/such/file.so").stdout
    assert output.startswith("refused: the component cannot be loaded: /no/such/file.so: ")


@pytest.mark.parametrize(
    "kind, why",
    [
        ("no-class", "it has no class of documents"),
        ("no-services", "it takes no services of a host"),
        ("no-document", "it makes no document (result 0x80004002)"),
        ("other-operations", "its operation 3 is not insertText"),
    ],
)
def test_a_component_of_another_version_is_refused(kind: str, why: str, python: Run) -> None:
    output = python(TELL, DOCHTML_COMPONENT=OTHER, OTHER_COMPONENT=kind).stdout
    assert output == f"refused: {OTHER} is not the component of this version: {why}\n"


def test_a_library_that_is_no_component_is_refused(work: Path, python: Run) -> None:
    libm = next(Path("/lib").glob("*/libm.so.6"))
    output = python(TELL, DOCHTML_COMPONENT=str(libm)).stdout
    assert output == (
        f"refused: {libm} is not the component of this version: "
        "it does not export DllGetClassObject\n"
    )


def test_a_document_left_open_at_the_end_of_the_process_is_completed(work: Path) -> None:
    program = (
        "import dochtml; report = dochtml.Document('rep.htm', model=lambda h: None);"
        "report.mark(7).heading(1, 'Left open')"
    )
    run = subprocess.run(
        [sys.executable, "-B", "-c", program], capture_output=True, text=True, check=True
    )
    assert run.stderr == ""
    assert b"Left open" in (work / "rep_dtl.htm").read_bytes()
