"""Links of Markdown documents that lead nowhere."""

import re
import sys
from pathlib import Path
from urllib.parse import unquote

LINK = re.compile(r"\]\(([^()\s]+)\)")
HEADING = re.compile(r"^#+ +(.*)$", re.MULTILINE)
CODE = re.compile(r"^```(?s:.*?)^```$|^    .*$", re.MULTILINE)
ELSEWHERE = re.compile(r"[a-z]+:")


def anchors(document):
    """The headings of a document as links name them."""
    text = CODE.sub("", document.read_text())
    plain = [re.sub(r"[^\w\- ]", "", heading.lower()) for heading in HEADING.findall(text)]
    return {heading.strip().replace(" ", "-") for heading in plain}


def is_broken(document, target):
    if ELSEWHERE.match(target):
        return False
    path, _, fragment = target.partition("#")
    file = (document.parent / unquote(path)) if path else document
    if not file.exists():
        return True
    return bool(fragment) and file.suffix == ".md" and fragment not in anchors(file)


def broken_links(root):
    """Each link below `root` that leads nowhere, as "document: link"."""
    found = []
    for document in sorted(Path(root).rglob("*.md")):
        for target in LINK.findall(CODE.sub("", document.read_text())):
            if is_broken(document, target):
                found.append(f"{document.relative_to(root)}: {target}")
    return found


if __name__ == "__main__":
    broken = broken_links(sys.argv[1])
    print(*broken, sep="\n")
    sys.exit(bool(broken))
