"""Finds classes (structs, enumerations, unions) that are defined twice under one name.

The linker does not report them: it keeps one of the two definitions, and code that was compiled
for the other one breaks.
"""

import re

COMMENTS_AND_LITERALS = re.compile(
    r"""//[^\n]*|/\*.*?\*/|R"([^()\\\s]*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|(?<![0-9a-fA-F])'(?:\\.|[^'\\\n])+'""",
    re.DOTALL,
)
DIRECTIVE = re.compile(r"^\s*#(?:\\\n|[^\n])*", re.MULTILINE)
ATTRIBUTE = re.compile(r"\[\[.*?\]\]|\balignas\s*\([^()]*\)")
NAMESPACE = re.compile(r"(?:inline\s+)?namespace\s*([\w:]*)$")
CLASS = re.compile(
    r"(?:^|>\s*|\btypedef\s+|\bstatic\s+|\bconst\s+|\bconstexpr\s+|[:]\s+)"
    r"(?:enum\s+class|enum\s+struct|enum|class|struct|union)\s+"
    r"(\w[\w:]*(?:<.*>)?)(?:\s+final)?\s*(?::[^:].*)?$",
    re.DOTALL,
)


def definitions(text):
    """Yields (qualified name, line) of every class that `text` defines and other files can see."""

    def blank(match):
        return " " + "\n" * match[0].count("\n")

    text = COMMENTS_AND_LITERALS.sub(blank, text)
    text = ATTRIBUTE.sub(blank, DIRECTIVE.sub(blank, text))
    # One entry for each open brace: the name that it adds, or None where names are local.
    scopes = []
    start = 0
    for mark in re.finditer(r"[{};]", text):
        if mark[0] == "{":
            head = text[start : mark.start()].strip()
            scope, is_class = opened_scope(head)
            if is_class and None not in scopes:
                yield "::".join([*filter(None, scopes), scope]), text.count("\n", 0, mark.start()) + 1
            scopes.append(scope)
        elif mark[0] == "}" and scopes:
            scopes.pop()
        start = mark.end()


def opened_scope(head):
    """What a brace after `head` opens: the name it adds, and whether that is the name of a class.

    An unnamed namespace and a function add None: no other file sees their names.
    """
    namespace = NAMESPACE.search(head)
    if namespace:
        return namespace[1] or None, False
    if head.startswith('extern'):
        return "", False
    named = CLASS.search(head)
    if named:
        return re.sub(r"\s+", "", named[1]), True
    return None, False


def are_in_one_program(one, other):
    """False for the two systems' folders, and for the tests of two modules."""
    systems = {"posix", "windows"}
    if systems & {*one.split("/")} and systems & {*other.split("/")}:
        if systems & {*one.split("/")} != systems & {*other.split("/")}:
            return False
    folders = [name.split("/")[1] for name in (one, other) if name.startswith("tests/")]
    return len(set(folders) - {"support"}) < 2


class ClassNames:
    """Takes in one file after another and reports names that were defined before."""

    def __init__(self):
        self.seen = {}

    def faults(self, name, text):
        """Yields (line, fault) for every class of file `name` that an earlier file defines too."""
        for defined, line in definitions(text):
            for other, other_line in self.seen.get(defined, []):
                if are_in_one_program(name, other):
                    yield line, f"{defined} is defined in {other}:{other_line} too"
            self.seen.setdefault(defined, []).append((name, line))
