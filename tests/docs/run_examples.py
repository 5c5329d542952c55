#!/usr/bin/env python3
"""Runs the examples of the documentation as a reader would, and compares what they print.

Usage: run_examples.py ROOT REPLAY_TOOL
"""

import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile
import unittest

ROOT, TOOL = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])


def blocks(page):
    """The indented blocks of a Markdown page, without their indentation."""
    text = (ROOT / page).read_text(encoding="utf-8")
    for match in re.finditer(r"(?:^ {4}.*\n|^\n(?= {4}))+", text, re.MULTILINE):
        yield "".join(line[4:] or "\n" for line in match[0].strip("\n").splitlines(keepends=True)) + "\n"


def block_after(page, beginning):
    """The first block that begins with a text, and the block before it."""
    before = ""
    for block in blocks(page):
        if block.startswith(beginning):
            return block, before
        before = block
    raise AssertionError(f"{page} has no block that begins with {beginning!r}")


class Examples(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.place = pathlib.Path(scratch.name)

    def play(self, command):
        """What the tool prints for a command line of the documentation."""
        words = shlex.split(command)
        self.assertEqual(pathlib.Path(words[0]).name, "dochtml-replay")
        run = subprocess.run(
            [TOOL, "--install-dir", ROOT / "support", *words[1:]],
            cwd=self.place,
            env={**os.environ, "XDG_CONFIG_HOME": "/nonexistent"},
            capture_output=True,
            text=True,
        )
        self.assertEqual(run.returncode, 0, run.stderr)
        return run.stdout + run.stderr

    def test_the_first_document_of_the_replay_tool(self):
        shown, calls = block_after("docs/replay-tool.md", "$ dochtml-replay --set")
        (self.place / "hello.jsonl").write_text(calls, encoding="utf-8")
        command, _, printed = shown.partition("\n")
        self.assertEqual(self.play(command.removeprefix("$ ")), printed)
        for name in ("hello.htm", "hello_dtl.htm", "hello_cnt.htm"):
            self.assertTrue((self.place / name).is_file(), name)

    def test_the_first_document_of_the_readme(self):
        shown, _ = block_after("README.md", "$ cat hello.jsonl\n")
        lines = shown.splitlines()
        command = next(line for line in lines[1:] if line.startswith("$ "))
        calls = lines[1 : lines.index(command)]
        (self.place / "hello.jsonl").write_text("\n".join(calls) + "\n", encoding="utf-8")
        self.play(command.removeprefix("$ "))
        self.assertIn("A first page.", (self.place / "hello.htm").read_text(encoding="latin-1"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
