#!/usr/bin/env python3
"""Checks that nothing in a document set points nowhere.

Usage: check_links.py [--allow NAME]... DIRECTORY [START...]

Every page of the set (.htm and .html, in DIRECTORY and below) is read. Each link of a page to
another file of the set must name a file that is there, in the very letters; each fragment must be
an anchor of that file; each picture must exist. That covers A, AREA, FRAME, IMG, INPUT, LINK and
META Refresh, and pictures and frames that the page's scripts write. Links to other systems
("http://...", "mailto:...") and absolute file addresses are counted but not followed.

With START pages, every page must also be reachable from one of them. --allow leaves a file name
out of the check of what exists.

Exit status: 0 all is well, 1 something is broken (a line each on standard output), 2 bad usage.
"""

import argparse
import os
import posixpath
import re
import sys
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote

# A page says when it is in UTF-8; every other one has bytes of an 8-bit code page. Names in links
# are compared with names on the disk.
UTF8_PAGE = re.compile(rb'CONTENT="text/html; charset=utf-8"', re.IGNORECASE)
CODE_PAGE = "latin-1"
PAGE_SUFFIXES = {".htm", ".html"}

# One-letter schemes are drives: "C|/docs/a.doc" comes with a bar, but be lenient.
OUTSIDE = re.compile(r"[A-Za-z][A-Za-z0-9+.-]+:")

LINK_ATTRIBUTES = {
    "a": ["href"],
    "area": ["href"],
    "frame": ["src"],
    "iframe": ["src"],
    "img": ["src"],
    "input": ["src"],
    "link": ["href"],
    "body": ["background"],
}
SCRIPTED_PICTURE = re.compile(r"\bthis\.src\s*=\s*'([^']*)'")
SCRIPTED_FRAME = re.compile(r"<FRAME\s+SRC='([^']*)'", re.IGNORECASE)
REFRESH_TARGET = re.compile(r";\s*URL\s*=\s*['\"]?([^'\"]+)", re.IGNORECASE)


class Page(HTMLParser):
    """The anchors of a page and its links with their lines."""

    def __init__(self, content):
        super().__init__(convert_charrefs=True)
        self.encoding = "utf-8" if UTF8_PAGE.search(content) else CODE_PAGE
        text = content.decode(self.encoding, "replace")
        self.anchors, self.links = set(), []
        self.in_script = False
        self.feed(text)
        self.close()

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        self.in_script = tag == "script"
        for name in ("id", "name") if tag == "a" else ("id",):
            if values.get(name):
                self.anchors.add(values[name])
        for name in LINK_ATTRIBUTES.get(tag, []):
            if values.get(name) is not None:
                self.add(values[name])
        for name, value in attributes:
            if name.startswith("on") and value:
                for target in SCRIPTED_PICTURE.findall(value):
                    self.add(target)
        if tag == "meta" and (values.get("http-equiv") or "").lower() == "refresh":
            for target in REFRESH_TARGET.findall(values.get("content") or ""):
                self.add(target)

    def handle_endtag(self, tag):
        if tag == "script":
            self.in_script = False

    def handle_data(self, data):
        if self.in_script:
            for target in SCRIPTED_FRAME.findall(data):
                self.add(target)

    def add(self, target):
        self.links.append((self.getpos()[0], target.strip()))


class DocumentSet:
    def __init__(self, root):
        self.root = Path(root)
        # Names as the directories list them, so that letters count on every system.
        self.files = {
            (Path(directory) / name).relative_to(self.root).as_posix()
            for directory, _, names in os.walk(self.root)
            for name in names
        }
        self.pages = {}
        for name in sorted(self.files):
            if posixpath.splitext(name)[1].lower() in PAGE_SUFFIXES:
                self.pages[name] = Page((self.root / name).read_bytes())

    def file_of(self, page, path):
        """The file that a link's path names as seen from a page, or None."""
        for spelling in (path, unquote(path, self.pages[page].encoding)):
            if not spelling:
                return page
            name = posixpath.normpath(posixpath.join(posixpath.dirname(page), spelling))
            if name in self.files:
                return name
        return None

    def has_anchor(self, name, fragment):
        page = self.pages[name]
        return fragment in page.anchors or unquote(fragment, page.encoding) in page.anchors


class Checker:
    def __init__(self, document_set, allowed):
        self.set, self.allowed = document_set, set(allowed)
        self.faults, self.followed, self.outside = [], 0, 0
        self.neighbours = {name: set() for name in document_set.pages}

    def check_all(self):
        for name, page in self.set.pages.items():
            for line, target in page.links:
                self.check(name, line, target)

    def check(self, page, line, target):
        if OUTSIDE.match(target):
            self.outside += 1
            return
        self.followed += 1
        path, mark, fragment = target.partition("#")
        name = self.set.file_of(page, path.partition("?")[0])
        if name is None:
            if posixpath.basename(path) not in self.allowed:
                self.fault(page, line, target, "no such file")
            return
        if name in self.set.pages:
            self.neighbours[page].add(name)
            if mark and not self.set.has_anchor(name, fragment):
                self.fault(page, line, target, "no such anchor")

    def check_reach(self, starts):
        reached, waiting = set(), list(starts)
        while waiting:
            name = waiting.pop()
            if name not in reached:
                reached.add(name)
                waiting.extend(self.neighbours.get(name, ()))
        for name in sorted(set(self.set.pages) - reached):
            self.faults.append(f"{name}: no link leads here")

    def fault(self, page, line, target, reason):
        self.faults.append(f"{page}:{line}: {target}: {reason}")


def main(arguments):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--allow", action="append", default=[], metavar="NAME")
    parser.add_argument("directory")
    parser.add_argument("start", nargs="*")
    options = parser.parse_args(arguments)

    document_set = DocumentSet(options.directory)
    if not document_set.pages:
        parser.error(f"there are no pages in {options.directory}")
    strangers = [name for name in options.start if name not in document_set.pages]
    if strangers:
        parser.error(f"no page of the set: {', '.join(strangers)}")

    checker = Checker(document_set, options.allow)
    checker.check_all()
    if options.start:
        checker.check_reach(options.start)
    for fault in checker.faults:
        print(fault)
    print(
        f"{len(document_set.pages)} pages, {checker.followed} links, {checker.outside} outside, "
        f"{len(checker.faults)} broken",
        file=sys.stderr,
    )
    return 1 if checker.faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
