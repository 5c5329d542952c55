"""An installation that was moved as a whole: tools, registration and hosts find its component.

    moved_prefix_test.py PREFIX WORK HOST
"""

import os
import pathlib
import shutil
import subprocess
import sys
import unittest

PREFIX, WORK, HOST = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
CALLS = '["create","tool.htm"]\n["insertText","From the tool"]\n["close"]\n'


class MovedPrefix(unittest.TestCase):
    def setUp(self):
        shutil.rmtree(WORK, ignore_errors=True)
        self.addCleanup(shutil.rmtree, WORK)
        self.prefix = WORK / "moved here"
        shutil.copytree(PREFIX, self.prefix)
        (self.component,) = self.prefix.glob("lib*/**/dochtml/libdochtmlcom.so")
        home = {"XDG_DATA_HOME": str(WORK / "data"), "XDG_CONFIG_HOME": str(WORK / "config")}
        self.environment = {**os.environ, **home}

    def run_program(self, *command, **options):
        ended = subprocess.run(
            command, env=self.environment, cwd=WORK, capture_output=True, text=True, **options
        )
        self.assertEqual((ended.returncode, ended.stderr), (0, ""))
        return ended.stdout

    def test_the_component_is_a_plug_in(self):
        self.assertEqual(list(self.prefix.glob("lib*/libdochtmlcom.so")), [])
        self.assertEqual(self.component.parent.name, "dochtml")

    def test_the_replay_tool_finds_it(self):
        tool = self.prefix / "bin/dochtml-replay"
        said = self.run_program(tool, "--version")
        self.assertIn(f"component: {self.component} (installed with this program)\n", said)
        self.run_program(tool, "--quiet", "-", input=CALLS)
        self.assertIn("From the tool", (WORK / "tool_dtl.htm").read_text())

    def test_registration_and_hosts_find_it(self):
        register = self.prefix / "bin/dochtml-register"
        self.run_program(register)
        said = self.run_program(register, "--version")
        self.assertIn(f"registered component: {self.component}\n", said)
        self.run_program(HOST, WORK / "hello.htm", self.prefix / "share/dochtml/default.css")
        self.assertIn("Hello", (WORK / "hello_dtl.htm").read_text())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
