"""The package keeps its promise of types."""

import os
import subprocess
from pathlib import Path

import pytest

import dochtml

SOURCE = Path(os.environ["DOCHTML_TEST_SOURCE"])
STAGE = Path(dochtml.__file__).parents[1]


@pytest.mark.parametrize("platform", ["linux", "win32"])
@pytest.mark.parametrize(
    "place", [STAGE / "dochtml", SOURCE / "bindings/python", SOURCE / "examples/object_model"],
    ids=lambda place: str(place.name),
)
def test_mypy_has_nothing_to_say(place: Path, platform: str, work: Path) -> None:
    files = [place] if place.parent == STAGE else sorted(place.rglob("*.py"))
    files = [file for file in files if file.parent != SOURCE / "bindings/python/dochtml"]
    run = subprocess.run(
        [os.environ["DOCHTML_TEST_MYPY"], "--strict", "--platform", platform,
         "--cache-dir", work / "cache", *files],
        env={**os.environ, "MYPYPATH": str(STAGE)},
        capture_output=True, text=True, check=False,
    )  # fmt: skip
    assert run.returncode == 0, run.stdout + run.stderr
