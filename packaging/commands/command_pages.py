#!/usr/bin/env python3
"""Makes the manual pages of the tools and their completion for bash and zsh.

    command_pages.py --version VERSION --programs DIRECTORY OUTPUT

The texts of the pages are in NAME.1.in; the options come from each tool's own table, by way of what
--help shows, so they cannot differ from what the tool takes.
"""

import argparse
import pathlib
import tempfile

import completion
from tool_help import Option, Tool, setting_names, tool_of

HERE = pathlib.Path(__file__).resolve().parent
TOOLS = ("dochtml-replay", "dochtml-settings", "dochtml-register")


def roff(text: str) -> str:
    """A text with the signs that have a meaning in a manual page made plain."""
    text = text.replace("\\", "\\e").replace("-", "\\-")
    return "\\&" + text if text.startswith((".", "'")) else text


def option_entry(option: Option) -> str:
    value = f" \\fI{roff(option.value)}\\fR" if option.value else ""
    names = ", ".join(f"\\fB{roff(name)}\\fR" for name in option.names)
    meaning = option.meaning[0].upper() + option.meaning[1:]
    return f".TP\n{names}{value}\n{roff(meaning)}.\n"


def command_entry(usage: str, meaning: str) -> str:
    name, _, arguments = usage.partition(" ")
    shown = f"\\fB{roff(name)}\\fR" + (f" \\fI{roff(arguments)}\\fR" if arguments else "")
    return f".TP\n{shown}\n{roff(meaning[0].upper() + meaning[1:])}.\n"


def manual_page(tool: Tool, version: str) -> str:
    text = (HERE / f"{tool.name}.1.in").read_text()
    options = "".join(map(option_entry, tool.options))
    commands = "".join(command_entry(each.usage, each.meaning) for each in tool.commands)
    for mark, value in (("@VERSION@", version), ("@OPTIONS@\n", options), ("@COMMANDS@\n", commands)):
        text = text.replace(mark, value)
    return text


def write(file: pathlib.Path, text: str) -> None:
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_text(text)


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--version", required=True)
    parser.add_argument("--programs", required=True)
    parser.add_argument("output", type=pathlib.Path)
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as directory:
        settings = setting_names(arguments.programs, f"{directory}/none.ini")
    for name in TOOLS:
        tool = tool_of(arguments.programs, name)
        write(arguments.output / "man1" / f"{name}.1", manual_page(tool, arguments.version))
        write(arguments.output / "bash" / name, completion.bash(tool, settings))
        write(arguments.output / "zsh" / f"_{name}", completion.zsh(tool, settings))


if __name__ == "__main__":
    main()
