"""Documents leave nothing behind."""

import sys
import tempfile
from pathlib import Path

import pytest

from dochtml import Document, ModelElement, Region

# Room for the caches of the interpreter and of the C library.
_SLACK_KB = 1024


def resident_kb() -> int:
    with open("/proc/self/status", encoding="ascii") as status:
        return next(int(line.split()[1]) for line in status if line.startswith("VmRSS"))


def write(directory: str, number: int) -> None:
    element = ModelElement("Class", {"kind": "interface"})
    region = Region("a", "here", [(0, 0), (1, 0), (1, 1)])
    with Document(
        f"{directory}/r{number % 50}.htm",
        settings={"Html.Navig": 2, "Html.StyleSheet": "", "Settings.InstallDir": directory},
        model=lambda handle: element,
        image_maps=lambda picture: [region],
    ) as report:
        report.mark(number + 1).heading(1, "Title", tag="here")
        report.image(f"{directory}/a.gif").link("none", to="nowhere").endl()


@pytest.mark.skipif(sys.platform != "linux", reason="reads Linux's own figures")
def test_10000_documents_leave_nothing() -> None:
    memory = Path("/dev/shm")
    with tempfile.TemporaryDirectory(dir=memory if memory.is_dir() else None) as directory:
        Path(directory, "a.gif").write_bytes(b"GIF")
        for number in range(1000):
            write(directory, number)
        before = resident_kb()
        for number in range(1000, 10000):
            write(directory, number)
        assert resident_kb() - before < _SLACK_KB
