"""The package keeps its promise of types."""

import os
import subprocess
from pathlib import Path

import pytest

import dochtml

SOURCE = Path(os.environ["DOCHTML_TEST_SOURCE"])
STAGE = Path(dochtml.__file__).parents[1]


@pytest.mark.parametrize("platform", ["linux", "win32"])
def test_mypy_has_nothing_to_say(platform: str, work: Path) -> None:
    files = [STAGE / "dochtml"]
    for place in ("bindings/python", "examples/object_model"):
        files += (SOURCE / place).rglob("*.py")
    # The package is checked where it is whole. The tests run on one system only.
    files = [file for file in files if file.parent != SOURCE / "bindings/python/dochtml"]
    if platform == "win32":
        files = [file for file in files if "tests" not in file.parts]
    run = subprocess.run(
        [os.environ["DOCHTML_TEST_MYPY"], "--strict", "--platform", platform,
         "--cache-dir", work / "cache", *sorted(files)],
        env={**os.environ, "MYPYPATH": str(STAGE)},
        capture_output=True, text=True, check=False,
    )  # fmt: skip
    assert run.returncode == 0, run.stdout + run.stderr
