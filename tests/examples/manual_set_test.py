"""The manual as a document set: all of it is there, and its parts agree with one another.

Usage: manual_set_test.py DIRECTORY, with the set in "manual", the generator's files in "work" and
the error trace in "manual.errors".
"""

import json
import pathlib
import re
import sys
import unittest
import zipfile

BASE = pathlib.Path(sys.argv.pop(1))
SET = BASE / "manual"
OPERATIONS = 42

NODE = re.compile(r'^( +)\(NODE "((?:[^"\\]|\\.)*)" "([^"]*)" "([^"]*)" (?:"([^"]*)" )?\)*$')


def text_of(name):
    return (SET / name).read_bytes().decode("cp1252")


def detail_pages():
    """The detail pages by number; bridge pages, which only lead on, are left out."""
    pages = {}
    for path in SET.rglob("manual_dtl*.htm"):
        number = int(re.fullmatch(r"manual_dtl(\d*)", path.stem).group(1) or 1)
        if b"HTTP-EQUIV=\"Refresh\"" not in path.read_bytes():
            assert number not in pages, f"page {number} is there twice"
            pages[number] = path.relative_to(SET).as_posix()
    return pages


def calls():
    with open(BASE / "work" / "manual.jsonl", encoding="utf-8") as lines:
        return [json.loads(line) for line in lines]


class ManualSet(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tree = text_of("manual_toc.dat").splitlines()
        cls.nodes = [NODE.match(line) for line in cls.tree[1:-1] or []]
        cls.pages = detail_pages()

    def test_the_tree_data_hold_one_node_a_line(self):
        self.assertEqual(self.tree[0], "(TREE")
        for line in self.tree[1:]:
            self.assertRegex(line, r"^(\)| +\(NODE .*)$")

    def test_no_page_is_missing(self):
        breaks = [call for call in calls() if call[0] in ("insertPageBreak", "pushDirectory")]
        self.assertEqual(sorted(self.pages), list(range(1, len(breaks) + 2)))
        self.assertGreater(len(self.pages), OPERATIONS)

    def test_every_operation_has_a_page_with_its_name_as_heading(self):
        headings = {}
        for name in self.pages.values():
            for heading in re.findall(r"<H2>(?:<a name=[^>]*></a>)*([^<]+)</H2>", text_of(name)):
                headings.setdefault(heading, []).append(name)
        index = [call for call in calls() if call[0] == "insertXref"]
        operations = [call[1] for call in index if call[2].startswith("GUID-operation-")]
        self.assertEqual(len(operations), OPERATIONS)
        for operation in operations:
            self.assertEqual(len(headings.get(operation, [])), 1, operation)

    def test_every_entry_of_the_tree_leads_to_an_anchor(self):
        self.assertGreater(len(self.nodes), len(self.pages) - 1)
        for node in filter(None, self.nodes):
            file, _, anchor = node.group(3).partition("#")
            self.assertIn(f'<a name="{anchor}"></a>', text_of(file), node.group(0))

    def test_the_tree_and_the_plain_contents_list_the_same(self):
        listed = re.findall(r'<A HREF="([^"]*)">', text_of("manual_scnt.htm"))
        self.assertEqual(listed, re.findall(r'\(NODE "(?:[^"\\]|\\.)*" "([^"]*)"', "\n".join(self.tree)))

    def test_the_contents_page_lists_what_the_frame_lists(self):
        listing = text_of("manual_scnt.htm").split("<BODY>\n")[1].split("\n</BODY>")[0]
        self.assertIn(listing, text_of(self.pages[2]))

    def test_every_icon_lies_in_the_archive(self):
        with zipfile.ZipFile(SET / "pixs" / "icons.zip") as archive:
            there = set(archive.namelist())
        icons = set(re.findall(r'"(\w+\.gif)"', "\n".join(self.tree)))
        self.assertGreater(len(icons), 6)
        self.assertLessEqual(icons, there)

    def test_levels_are_told_by_the_indent(self):
        depths = {len(node.group(1)) // 3 for node in filter(None, self.nodes)}
        self.assertEqual(depths, {1, 2, 3})

    def test_the_picture_has_a_region_for_every_part(self):
        regions = next(iter(json.loads((BASE / "work" / "image-maps.json").read_text()).values()))
        page = next(text_of(name) for name in self.pages.values() if "<MAP" in text_of(name))
        self.assertEqual(page.count("<AREA "), len(regions) // 3)
        for name, _, corners in zip(*[iter(regions)] * 3):
            self.assertRegex(page, f'COORDS="{corners}"  NAME="{name}" HREF="[^"]+"')

    def test_pictures_and_files_are_copied_into_the_set(self):
        for name in ("default.css", "toc2.jnlp", "pixs/subsystems.gif", "pixs/backON.gif",
                     "pixs/locate_in_brw.JPG", "docs/first-report.txt"):
            self.assertTrue((SET / name).is_file(), name)

    def test_nothing_went_wrong_on_the_way(self):
        errors = pathlib.Path(f"{SET}.errors")
        lines = errors.read_text().splitlines() if errors.exists() else []
        # There is no archiver in the installation directory, and none is needed.
        self.assertEqual([line for line in lines if "zip.exe" not in line], [])
        self.assertFalse(pathlib.Path(f"{SET}.exceptions").exists())


if __name__ == "__main__":
    unittest.main()
