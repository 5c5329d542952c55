"""What the tests share. Nothing of the user's takes part: stores and registration are their own."""

import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path
from typing import Callable, Iterator

import pytest

_home = tempfile.mkdtemp()
for _variable in ("XDG_CONFIG_HOME", "XDG_DATA_HOME"):
    os.environ[_variable] = _home
os.environ["SOURCE_DATE_EPOCH"] = "946728000"

Page = Callable[[str], str]


@pytest.fixture(autouse=True)
def work(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> Iterator[Path]:
    """Every test works in a directory of its own, with a user's store of its own."""
    monkeypatch.chdir(tmp_path)
    store = Path(_home) / "quillmark"
    yield tmp_path
    shutil.rmtree(store, ignore_errors=True)


@pytest.fixture
def user_store() -> Path:
    store = Path(_home) / "quillmark" / "settings.ini"
    store.parent.mkdir(exist_ok=True)
    return store


@pytest.fixture
def body(work: Path) -> Page:
    """The body of a page that was written, without the frame around it."""

    def read(name: str) -> str:
        text = (work / name).read_bytes().decode("cp1252")
        return text.partition("<BODY  >\n")[2].removesuffix("\n</BODY>\n</HTML>\n")

    return read


@pytest.fixture
def python() -> Callable[..., "subprocess.CompletedProcess[str]"]:
    """Runs a program in a Python of its own."""

    def run(program: str, **environment: str) -> "subprocess.CompletedProcess[str]":
        return subprocess.run(
            [sys.executable, "-B", "-c", program],
            env={**os.environ, **environment},
            capture_output=True,
            text=True,
            check=False,
        )

    return run


@pytest.fixture(scope="session", autouse=True)
def _no_home_left() -> Iterator[None]:
    yield
    shutil.rmtree(_home, ignore_errors=True)
