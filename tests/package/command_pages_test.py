"""Manual pages and completion of the tools hold what the tools take.

    command_pages_test.py PAGES PROGRAMS
"""

import pathlib
import re
import subprocess
import sys
import unittest

from required_tools import require

require("man", "zsh")
PAGES, PROGRAMS = map(pathlib.Path, sys.argv[1:3])
TOOLS = ("dochtml-replay", "dochtml-settings", "dochtml-register")
BASH = """
source "$1"
COMP_WORDS=({words})
COMP_CWORD={place}
_{function} 2>/dev/null
printf '%s\\n' "${{COMPREPLY[@]}}"
"""
ZSH = """
_arguments() { print -rl -- "$@" }
source $1
"""


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def options_of(tool):
    """All names of options in the tool's help."""
    lines = run(PROGRAMS / tool, "--help").split("Options:\n")[1].splitlines()
    return {
        name for line in lines if line.startswith("  -")
        for name in re.findall(r"(?<![\w-])--?[a-z-]+", line[:30])
    }


def completed(tool, *words):
    """What bash offers for the last of the words that follow the tool's name."""
    text = BASH.format(
        words=" ".join(f"'{word}'" for word in (tool, *words)),
        place=len(words),
        function=tool.replace("-", "_"),
    )
    return set(run("bash", "-c", text, "bash", PAGES / "bash" / tool).split())


class CommandPages(unittest.TestCase):
    def test_every_tool_has_options_to_compare(self):
        for tool in TOOLS:
            self.assertLess({"-h", "--help", "--version"}, options_of(tool))

    def test_bash_offers_the_options(self):
        for tool in TOOLS:
            self.assertEqual(completed(tool, "-"), options_of(tool))

    def test_bash_offers_commands_and_settings(self):
        help_text = run(PROGRAMS / "dochtml-settings", "--help")
        commands = set(re.findall(r"^  ([a-z]+) ", help_text, re.MULTILINE))
        self.assertEqual(completed("dochtml-settings", ""), commands)
        listed = run(PROGRAMS / "dochtml-settings", "--settings", "/nonexistent/settings.ini", "list")
        settings = set(re.findall(r"^(\w+\.\w+)=", listed, re.MULTILINE))
        self.assertIn("Html.TOCLevel", settings)
        self.assertEqual(completed("dochtml-settings", "get", ""), settings)
        self.assertEqual(completed("dochtml-replay", "--set", ""), {f"{name}=" for name in settings})
        self.assertEqual(completed("dochtml-replay", "--set", "Log."), {"Log.LogName="})
        self.assertEqual(completed("dochtml-replay", "--set", "=", "Log."), {"Log.LogName="})

    def test_bash_knows_the_command_behind_options_and_settings(self):
        options = ("--settings", "other.ini")
        self.assertEqual(completed("dochtml-settings", *options, "li"), {"list"})
        self.assertEqual(completed("dochtml-settings", *options, "get", "Log."), {"Log.LogName"})
        first = ("set", "Html.Navig", "=", "2")
        self.assertEqual(completed("dochtml-settings", *first, "Log."), {"Log.LogName="})
        self.assertEqual(completed("dochtml-settings", "set", "Html.StyleSheet", "=", "de"), set())

    def test_zsh_offers_the_options(self):
        for tool in TOOLS:
            arguments = run("zsh", "-fc", ZSH, "zsh", PAGES / "zsh" / f"_{tool}").splitlines()
            names = {
                found[1] for each in arguments
                if (found := re.match(r"(?:\*|\([^)]*\))(--?[a-z-]+)", each))
            }
            self.assertEqual(names, options_of(tool))

    def test_manual_pages_list_the_options(self):
        for tool in TOOLS:
            page = run("man", "--warnings=w", "-E", "ascii", "-l", PAGES / "man1" / f"{tool}.1")
            options = re.search(r"^OPTIONS$(.*?)^\w", page, re.MULTILINE | re.DOTALL)[1]
            named = set(re.findall(r"(?<![\w-])--?[a-z-]+(?= |$|,)", "\n".join(
                line for line in options.splitlines() if line.startswith("       -")
            ), re.MULTILINE))
            self.assertEqual(named, options_of(tool))

    def test_manual_pages_are_good_for_man(self):
        for tool in TOOLS:
            command = ["man", "--warnings", "-E", "UTF-8", "-l", PAGES / "man1" / f"{tool}.1"]
            shown = subprocess.run(command, capture_output=True, text=True)
            self.assertEqual((shown.returncode, shown.stderr), (0, ""))
            for heading in ("NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "EXIT STATUS", "SEE ALSO"):
                self.assertRegex(shown.stdout, rf"(?m)^{heading}$")
            self.assertNotIn("@", shown.stdout)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
