"""What a tool's --help says: its options and commands, from the table that the tool itself uses."""

import re
import subprocess
from dataclasses import dataclass

HEADING = re.compile(r"^(\w+):$")
ITEM = re.compile(r"^  (\S.*?)(?:  +(\S.*))?$")
CONTINUED = re.compile(r"^ {10,}(\S.*)$")
SETTING = re.compile(r"^(\w+\.\w+)=")


@dataclass
class Option:
    """An option: its names ("-o", "--output"), the name of its value or "", what it does."""

    names: list[str]
    value: str
    meaning: str

    @property
    def takes_file(self) -> bool:
        return self.value == "FILE"

    @property
    def takes_directory(self) -> bool:
        return self.value == "DIR"


@dataclass
class Command:
    """A command of a tool, as "get NAME"."""

    usage: str
    meaning: str

    @property
    def name(self) -> str:
        return self.usage.split()[0]


@dataclass
class Tool:
    name: str
    options: list[Option]
    commands: list[Command]


def sections(text: str) -> dict[str, list[tuple[str, str]]]:
    """The lists below headings such as "Options:": pairs of an item and its meaning."""
    found: dict[str, list[tuple[str, str]]] = {}
    items: list[tuple[str, str]] | None = None
    for line in text.splitlines():
        if heading := HEADING.match(line):
            items = found.setdefault(heading[1], [])
        elif items is not None and (more := CONTINUED.match(line)) and items:
            item, meaning = items[-1]
            items[-1] = (item, f"{meaning} {more[1]}".strip())
        elif items is not None and (item := ITEM.match(line)):
            items.append((item[1], item[2] or ""))
        else:
            items = None
    return found


def option(item: str, meaning: str) -> Option:
    names, value = [], ""
    for word in item.split(" "):
        if word.startswith("-"):
            names.append(word.rstrip(","))
        else:
            value = word
    return Option(names, value, meaning)


def read_tool(name: str, text: str) -> Tool:
    lists = sections(text)
    options = [option(*item) for item in lists.get("Options", [])]
    if not options or any(not each.names or not each.meaning for each in options):
        raise ValueError(f"the help of {name} lists no options, or one without a meaning")
    return Tool(name, options, [Command(*item) for item in lists.get("Commands", [])])


def output(*command: str) -> str:
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def tool_of(directory: str, name: str) -> Tool:
    return read_tool(name, output(f"{directory}/{name}", "--help"))


def setting_names(directory: str, empty_store: str) -> list[str]:
    """All settings, as GROUP.NAME."""
    listed = output(f"{directory}/dochtml-settings", "--settings", empty_store, "list")
    return [found[1] for line in listed.splitlines() if (found := SETTING.match(line))]
