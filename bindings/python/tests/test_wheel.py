"""A wheel, installed as a user does it."""

import os
import shutil
import subprocess
import sys
import zipfile
from pathlib import Path

import pytest

import dochtml

STAGE = Path(dochtml.__file__).parents[1]
PROGRAM = """
from dochtml import Document, component
with Document("rep.htm") as report:
    report.heading(1, "From a wheel")
print(component().file)
"""


def run(*command: object, **environment: str) -> str:
    clean = {name: value for name, value in os.environ.items() if not name.startswith("PYTHON")}
    return subprocess.run(
        [str(part) for part in command],
        env={**clean, **environment},
        check=True,
        stdout=subprocess.PIPE,
        text=True,
    ).stdout


@pytest.fixture(scope="module")
def wheel(tmp_path_factory: pytest.TempPathFactory) -> Path:
    work = tmp_path_factory.mktemp("wheel")
    # A build writes beside its sources.
    ignored = shutil.ignore_patterns("build", "*.egg-info", "__pycache__")
    shutil.copytree(STAGE, work / "source", ignore=ignored)
    run(sys.executable, "-m", "pip", "wheel", "--quiet", "--no-build-isolation", "--no-index",
        "--no-deps", "--wheel-dir", work, work / "source")  # fmt: skip
    (made,) = work.glob("*.whl")
    return made


@pytest.fixture(scope="module")
def environment(wheel: Path, tmp_path_factory: pytest.TempPathFactory) -> Path:
    place = tmp_path_factory.mktemp("environment") / "venv"
    run(sys.executable, "-m", "venv", "--without-pip", place)
    run(sys.executable, "-m", "pip", "--python", place, "install", "--quiet", "--no-index",
        "--disable-pip-version-check", wheel)  # fmt: skip
    return place


@pytest.fixture
def prefix(work: Path) -> Path:
    """The component and its support files, installed somewhere."""
    component = dochtml.component()
    place = work / "prefix"
    for directory in ("bin", "lib/dochtml"):
        (place / directory).mkdir(parents=True)
    shutil.copy(component.file, place / "lib/dochtml")
    shutil.copy(os.environ["DOCHTML_TEST_REPLAY"], place / "bin")
    assert component.support_files is not None
    shutil.copytree(component.support_files, place / "share/dochtml")
    return place


def test_the_wheel_holds_the_package_and_is_for_every_system(wheel: Path) -> None:
    assert wheel.name == f"dochtml-{os.environ['DOCHTML_TEST_VERSION']}-py3-none-any.whl"
    names = zipfile.ZipFile(wheel).namelist()
    assert {"dochtml/__init__.py", "dochtml/py.typed", "dochtml/operations/text.py"} <= set(names)
    assert not [name for name in names if not name.startswith("dochtml")]


def test_it_finds_the_component_by_the_tools_of_its_prefix(
    environment: Path, prefix: Path, work: Path
) -> None:
    for place in (prefix, work / "moved"):
        if not place.exists():
            prefix.rename(place)
        path = f"{place / 'bin'}:{os.environ['PATH']}"
        found = run(environment / "bin/python", "-c", PROGRAM, PATH=path)
        assert found == f"{place / 'lib/dochtml/libdochtmlcom.so'}\n"
        assert (work / "rep_dtl.htm").exists() and (work / "default.css").exists()


def test_it_finds_a_component_in_its_own_prefix(environment: Path, prefix: Path, work: Path) -> None:
    (site,) = environment.glob("lib/python*/site-packages/dochtml")
    package = prefix / "lib/python3/dist-packages/dochtml"
    shutil.copytree(site, package)
    found = run(sys.executable, "-B", "-c", PROGRAM, PYTHONPATH=str(package.parent))
    assert found == f"{prefix / 'lib/dochtml/libdochtmlcom.so'}\n"


def test_it_finds_a_component_beside_it(environment: Path, work: Path) -> None:
    (site,) = environment.glob("lib/python*/site-packages/dochtml")
    package = work / "app" / "dochtml"
    shutil.copytree(site, package)
    shutil.copy(dochtml.component().file, package)
    tell = "import dochtml; print(dochtml.component().file)"
    found = run(sys.executable, "-B", "-c", tell, PYTHONPATH=str(package.parent))
    assert found == f"{package / 'libdochtmlcom.so'}\n"
