#!/usr/bin/env python3
"""Checks the source tree against the rules of the project.

- An include points to the same module or to a layer below, never upwards or sideways.
- Within a module, an include points to the same folder or to one before it.
- System headers and system macros stay in the folders that are there for them.
- A source includes its own header first, which proves that the header compiles by itself.
- No file of code grows beyond 400 lines.
- No two classes that a program may contain have the same name.

Usage: check_structure.py ROOT
"""

import pathlib
import re
import sys

from class_names import ClassNames

MAX_LINES = 400

# What each module may include besides itself. docs/architecture.md has the same table.
ALLOWED = {
    "foundation": set(),
    "platform": {"foundation"},
    "settings": {"foundation", "platform"},
    "host": {"foundation"},
    "page": {"foundation", "platform", "host"},
    "contents": {"foundation", "platform", "host", "page"},
    "diagram": {"foundation", "host"},
    "navigator": {"foundation", "platform", "host", "page", "contents"},
    "driver": {
        "foundation", "platform", "settings", "host", "page", "contents", "diagram", "navigator",
    },
    "command_line": {"foundation", "platform", "settings"},
    "settings_ui": {"foundation", "platform", "settings", "command_line"},
    "component": {
        "foundation", "platform", "settings", "host", "driver", "settings_ui", "command_line",
    },
    "replay": {"foundation", "platform", "settings", "host", "driver", "command_line"},
}

# Within these modules the same holds between folders: each includes itself and those before it.
# The empty name is the module's own folder.
FOLDERS_IN_ORDER = {
    "page": ("marks", "links", ""),
    "contents": ("entries", "tree", ""),
    "navigator": ("text", "data", "index", "entries", ""),
    "driver": ("boundary", "pages", "links", "text", "files", ""),
    "settings_ui": ("", "tool", "windows"),
    "component": (
        "module", "services", "object", "registration", "include", "posix", "windows", "client",
        "tool", "",
    ),
    "replay": ("input", "services", "play", "tool"),
}

# Where system headers and system conditionals may be used.
SYSTEM_FOLDERS = (
    "src/platform/posix/",
    "src/platform/windows/",
    "src/platform/files/posix/",
    "src/platform/files/windows/",
    "src/settings/windows/",
    "src/component/posix/",
    "src/component/windows/",
    "src/component/client/posix/",
    "src/component/client/windows/",
    "src/component/tool/posix/",
    "src/settings_ui/windows/",
    "src/settings_ui/tool/posix/",
    "src/settings_ui/tool/windows/",
)
# The wrapper of the Windows headers; public headers of the component stand on their own.
WINDOWS_API_HEADER = "src/platform/windows/windows_api.h"
PUBLIC_COMPONENT_HEADERS = "src/component/include/"

# The whole of the standard library as this project knows it; what is not here is a system header.
STANDARD_HEADERS = set(
    """algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv
    chrono cinttypes climits clocale cmath codecvt compare complex concepts condition_variable
    coroutine csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar
    cwctype deque exception execution filesystem format forward_list fstream functional future
    initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map
    memory memory_resource mutex new numbers numeric optional ostream queue random ranges ratio
    regex scoped_allocator semaphore set shared_mutex source_location span sstream stack stdexcept
    stop_token streambuf string string_view strstream syncstream system_error thread tuple
    type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector
    version""".split()
)
# The modules that use a library other than the standard one, and its headers.
LIBRARY_HEADERS = {"src/replay/": "rapidjson/", "src/command_line/": "CLI/"}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
CONDITIONAL = re.compile(r"^\s*#\s*(?:if|ifdef|ifndef|elif)\b(.*)")
SYSTEM_MACRO = re.compile(
    r"\b(_WIN32|_WIN64|WIN32|__MINGW\w*|_MSC_VER|__linux__|__unix__|__APPLE__|_POSIX\w*)\b"
)

CODE = {".cpp", ".h", ".idl", ".rc", ".cmake", ".py", ".js", ".mjs", ".sh", ".css"}
TEXT = CODE | {".txt", ".md", ".json", ".yml", ".jnlp", ".htm", ".html", ".in", ".def", ".jsonl"}
SKIPPED = {"build", "out", "node_modules", ".git", ".cache"}


def tree(root):
    for path in sorted(root.rglob("*")):
        name = path.relative_to(root)
        if path.is_file() and not any(part in SKIPPED for part in name.parts):
            yield name.as_posix(), path


def folder_fault(module, name, header):
    order = FOLDERS_IN_ORDER.get(module)
    if order is None:
        return None
    here, there = (path.split("/")[1] if path.count("/") > 1 else "" for path in (name, header))
    if order.index(there) > order.index(here):
        return f"{module}/{here} must not include {module}/{there} ({header})"
    return None


def layer_fault(name, header):
    module = name.split("/")[1]
    other = header.split("/")[0]
    if other == module:
        return folder_fault(module, name.removeprefix("src/"), header)
    if other not in ALLOWED or module not in ALLOWED:
        return None
    if other not in ALLOWED[module]:
        return f"{module} must not include {other} ({header})"
    return None


def system_include_fault(name, header):
    if name.startswith(PUBLIC_COMPONENT_HEADERS):
        return None
    if header == "windows.h" and name != WINDOWS_API_HEADER:
        return f"windows.h is included by {WINDOWS_API_HEADER} alone"
    if header in STANDARD_HEADERS or name.startswith(SYSTEM_FOLDERS):
        return None
    if any(name.startswith(m) and header.startswith(h) for m, h in LIBRARY_HEADERS.items()):
        return None
    return f"system header <{header}> outside the platform folders"


def source_faults(name, lines):
    """The rules for a file of src/."""
    for number, line in enumerate(lines, 1):
        include = INCLUDE.match(line)
        if include:
            check = system_include_fault if include[1] == "<" else layer_fault
            fault = check(name, include[2])
            if fault:
                yield number, fault
        conditional = CONDITIONAL.match(line)
        if conditional and SYSTEM_MACRO.search(conditional[1]):
            if not name.startswith((*SYSTEM_FOLDERS, PUBLIC_COMPONENT_HEADERS)):
                yield number, "system conditional outside the platform folders"


def own_header_fault(root, name, lines):
    """The rule for a source that has a header of the same name."""
    header = pathlib.PurePath(name).with_suffix(".h")
    if header.suffix == pathlib.PurePath(name).suffix or not (root / header).exists():
        return []
    includes = [match[2] for match in map(INCLUDE.match, lines) if match]
    if includes[:1] == [header.relative_to("src").as_posix()]:
        return []
    return [f"{name}:1: the first include must be {header.relative_to('src')}"]


def text_faults(name, lines):
    """The rules for every file of text."""
    if pathlib.PurePath(name).suffix in CODE and len(lines) > MAX_LINES:
        yield MAX_LINES + 1, f"{len(lines)} lines; the limit is {MAX_LINES}"


def check(root):
    checked = 0
    faults = []
    class_names = ClassNames()
    for name, path in tree(root):
        if path.suffix not in TEXT and path.name != "run":
            continue
        checked += 1
        text = path.read_text(encoding="utf-8", errors="replace")
        lines = text.splitlines()
        is_source = name.startswith("src/") and path.suffix in {".cpp", ".h"}
        rules = [text_faults] + ([source_faults] if is_source else [])
        for rule in rules:
            faults += [f"{name}:{line}: {what}" for line, what in rule(name, lines)]
        if is_source:
            faults += own_header_fault(root, name, lines)
        if name.startswith(("src/", "tests/")) and path.suffix in {".cpp", ".h"}:
            faults += [f"{name}:{line}: {what}" for line, what in class_names.faults(name, text)]
    return checked, faults


def main():
    checked, faults = check(pathlib.Path(sys.argv[1]))
    print("\n".join(faults))
    print(f"{checked} files looked at, {len(faults)} faults")
    return 1 if faults or checked == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
