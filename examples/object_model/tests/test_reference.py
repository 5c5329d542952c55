"""The reference of GLib, GObject and Gio."""

import os
import re
import subprocess
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
SOURCE = Path(os.environ["DOCHTML_TEST_SOURCE"])


def test_the_reference_has_its_pages_and_no_broken_link(tmp_path: Path) -> None:
    made = subprocess.run(
        [HERE.parent / "make.sh", os.environ["DOCHTML_TEST_BUILD"], tmp_path / "out"],
        env={**os.environ, "PYTHON": sys.executable},
        capture_output=True, text=True, check=False,
    )  # fmt: skip
    assert (made.returncode, made.stderr) == (0, "")
    checked = subprocess.run(
        # The contents page of the applet is written too, but with the navigator no link leads there.
        [sys.executable, SOURCE / "scripts/check_links.py", tmp_path / "out", "reference.htm",
         "reference_cnt.htm"],
        capture_output=True, text=True, check=False,
    )  # fmt: skip
    assert (checked.returncode, checked.stdout) == (0, "")
    pages, links = map(int, re.findall(r"(\d+) (?:pages|links)", checked.stderr))
    assert pages >= 700 and links >= 50_000
    # Each class has its diagram.
    assert len(list((tmp_path / "out" / "pix").glob("*.dot.png"))) >= 150
