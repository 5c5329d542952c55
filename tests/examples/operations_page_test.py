"""The examples of docs/operations.md write what the page says.

Usage: operations_page_test.py DOCHTML_REPLAY
"""

import json
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
REPLAY = pathlib.Path(sys.argv.pop(1)).resolve()

# Operations whose effect is an answer or another program, which no page shows.
WITHOUT_EXAMPLE = {"getDocType", "getPropPages"}

EXAMPLE = re.compile(r"\*\*Example\*\*\n\n```json\n(.*?)```\n((?:\nIn `[^`]+`:\n\n```html\n.*?```\n)+)",
                     re.DOTALL)
OUTPUT = re.compile(r"In `([^`]+)`:\n\n```html\n(.*?)\n```\n", re.DOTALL)


def sections():
    """The text of each operation on the page, by name."""
    page = (ROOT / "docs" / "operations.md").read_text(encoding="utf-8")
    parts = re.split(r"^(?:## .*|### (\w+))$", page, flags=re.MULTILINE)
    return {name: text for name, text in zip(parts[1::2], parts[2::2]) if name}


def framed(calls):
    names = [json.loads(call)[0] for call in calls]
    before = [] if "create" in names else ['["create","rep.htm"]']
    behind = [] if "close" in names else ['["close"]']
    return before + calls + behind


def play(calls, directory):
    """Drives the calls with default settings and gives the finished run."""
    settings = pathlib.Path(directory, "settings.ini")
    settings.write_text("")
    stream = "\n".join(framed(calls)) + "\n"
    support = ROOT / "support"
    return subprocess.run(
        [REPLAY, "--quiet", "--settings", settings, "--ini", settings, "--install-dir", support,
         "--set", f"Settings.UserFilesDir={support}", "-"],
        input=stream.encode(), cwd=directory, capture_output=True, check=False,
    )


class OperationsPage(unittest.TestCase):
    def test_every_operation_has_an_example_where_one_can_be_seen(self):
        for name, text in sections().items():
            self.assertEqual(bool(EXAMPLE.search(text)), name not in WITHOUT_EXAMPLE, name)

    def test_an_example_calls_its_operation(self):
        for name, text in sections().items():
            calls = "".join(found.group(1) for found in EXAMPLE.finditer(text))
            # Examples without these two show them in the frame around the calls.
            if name not in WITHOUT_EXAMPLE | {"showLast"}:
                self.assertIn(f'["{name}"', calls, name)

    def test_the_examples_write_what_the_page_says(self):
        for name, text in sections().items():
            for example in EXAMPLE.finditer(text):
                with self.subTest(name), tempfile.TemporaryDirectory() as directory:
                    run = play(example.group(1).splitlines(), directory)
                    self.assertEqual((run.returncode, run.stderr), (0, b""))
                    for file, lines in OUTPUT.findall(example.group(2)):
                        written = pathlib.Path(directory, file.replace("\\", "/")).read_bytes()
                        self.assertIn(lines, written.decode("cp1252"))


if __name__ == "__main__":
    unittest.main()
