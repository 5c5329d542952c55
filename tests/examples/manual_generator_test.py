"""The generator of the manual: what it writes, what it refuses, and the page made from its data.

Usage: manual_generator_test.py MANUAL_GENERATOR
"""

import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
GENERATOR = pathlib.Path(sys.argv.pop(1)).resolve()
DATA = ROOT / "examples" / "manual" / "data"


def run(*arguments):
    return subprocess.run([GENERATOR, *map(str, arguments)], capture_output=True, text=True,
                          check=False)


class Generator(unittest.TestCase):
    def setUp(self):
        self.directory = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.directory)

    def generate(self, *options):
        made = run(*options, self.directory)
        self.assertEqual((made.returncode, made.stderr), (0, ""))

    def read(self, name):
        return (self.directory / name).read_text(encoding="utf-8")

    def calls(self, name="manual.jsonl"):
        return [json.loads(line) for line in self.read(name).splitlines()]

    def test_the_operations_page_is_up_to_date(self):
        page = self.directory / "operations.md"
        self.assertEqual(run("--operations-md", page).returncode, 0)
        self.assertEqual(page.read_text(), (ROOT / "docs" / "operations.md").read_text(),
                         "run manual_generator --operations-md docs/operations.md")

    def test_the_calls_make_one_document(self):
        self.generate("--document", "there/manual.htm")
        names = [call[0] for call in self.calls()]
        self.assertEqual(self.calls()[0], ["create", "there/manual.htm"])
        self.assertEqual((names.count("create"), names.count("close")), (1, 1))
        self.assertEqual(names[-1], "close")

    def test_the_manual_uses_what_it_describes(self):
        self.generate()
        used = {call[0] for call in self.calls()}
        self.assertGreaterEqual(used, {
            "setOption", "insertField", "startHeader", "startFooter", "setTextAlign",
            "setFontAttribute", "startTable", "insertTag", "insertXref", "insertMark",
            "insertLocate", "startTOCEntry", "insertTOC", "insertImage", "insertFile",
            "pushDirectory", "popDirectory", "insertPageBreak"})

    def test_every_reference_has_its_bookmark(self):
        self.generate()
        calls = self.calls()
        tags = {call[1] for call in calls if call[0] == "insertTag"}
        aims = {call[2] for call in calls if call[0] == "insertXref"}
        for call in calls:
            if call[0] == "insertText":
                aims.update(part.split('">')[0] for part in call[1].split('<a href="#')[1:])
        self.assertLessEqual(aims, tags)

    def test_what_begins_also_ends(self):
        self.generate()
        names = [call[0] for call in self.calls()]
        for begin, end in (("startTable", "endTable"), ("startTOCEntry", "endTOCEntry"),
                           ("startHeader", "endHeader"), ("startFooter", "endFooter")):
            self.assertEqual(names.count(begin), names.count(end), begin)

    def test_elements_that_are_marked_are_in_the_model(self):
        self.generate()
        model = json.loads(self.read("model.json"))
        halves = [call[1] for call in self.calls() if call[0] == "insertMark"]
        for low, high in zip(halves[::2], halves[1::2]):
            if (low, high) != (-1, -1):
                self.assertIn(f"0x{high:08x}{low:08x}", model["elements"])

    def test_bridges_lead_from_a_directory_to_its_neighbour_and_back(self):
        self.generate("--document", "out/manual.htm")
        bridges = self.calls("bridges.jsonl")
        creates = [call[1] for call in bridges if call[0] == "create"]
        self.assertEqual(creates[:2], ["out/manual_dtl5.htm", "out/inside/manual_dtl4.htm"])
        texts = [call[1] for call in bridges if call[0] == "insertText"]
        self.assertIn("URL=inside/manual_dtl5.htm", texts[0])
        self.assertIn("URL=../manual_dtl4.htm", texts[2])

    def test_names_of_pictures_can_be_relative(self):
        self.generate("--relative")
        pictures = [call[1] for call in self.calls() if call[0] == "insertImage"]
        self.assertEqual(pictures, ["pictures/subsystems.gif"])
        self.assertEqual(list(json.loads(self.read("image-maps.json"))), pictures)

    def test_what_the_calls_name_is_there(self):
        self.generate("--relative")
        for call in self.calls():
            if call[0] in ("insertImage", "insertFile"):
                self.assertTrue((self.directory / call[1]).is_file(), call[1])

    def test_two_runs_write_the_same(self):
        self.generate("--relative")
        first = {path: path.read_bytes() for path in self.directory.rglob("*") if path.is_file()}
        self.generate("--relative")
        again = {path: path.read_bytes() for path in self.directory.rglob("*") if path.is_file()}
        self.assertEqual(first, again)


class Refusals(unittest.TestCase):
    """Descriptions that do not fit the table of operations are refused with a reason."""

    def refused(self, file, old, new):
        with tempfile.TemporaryDirectory() as directory:
            data = pathlib.Path(directory, "data")
            shutil.copytree(DATA, data)
            text = (data / file).read_text()
            self.assertIn(old, text)
            (data / file).write_text(text.replace(old, new, 1))
            made = run("--data", data, pathlib.Path(directory, "work"))
            self.assertEqual(made.returncode, 1)
            return made.stderr

    def test_an_operation_that_is_not_described(self):
        reason = self.refused("operations/3-fonts.txt", "@operation setFontName", "@operation other")
        self.assertIn("setFontName: not described", reason)

    def test_an_operation_that_is_described_twice(self):
        reason = self.refused("operations/3-fonts.txt", "@operation setFontName", "@operation create")
        self.assertIn("create: described twice", reason)

    def test_an_argument_that_the_table_does_not_have(self):
        reason = self.refused("operations/3-fonts.txt", "@argument size", "@argument points")
        self.assertIn("setFontSize: the arguments are not those of the table", reason)

    def test_a_link_to_an_unknown_operation(self):
        reason = self.refused("operations/3-fonts.txt", "@see setFontSize", "@see setFontColor")
        self.assertIn("there is no operation setFontColor to see", reason)

    def test_a_keyword_that_nobody_knows(self):
        reason = self.refused("operations/3-fonts.txt", "@summary", "@sumary")
        self.assertRegex(reason, r"3-fonts.txt:\d+: @sumary cannot stand here")

    def test_a_piece_that_nobody_knows(self):
        reason = self.refused("chapters/1-front.txt", "!index", "!indices")
        self.assertIn("there is nothing like !indices", reason)

    def test_an_element_that_the_model_does_not_know(self):
        reason = self.refused("chapters/1-front.txt", "@element interface", "@element thing")
        self.assertIn('the model has no kind of element "thing"', reason)

    def test_bad_usage(self):
        for arguments in ([], ["--document"], ["--bold", "x"], ["a", "b"]):
            made = run(*arguments)
            self.assertEqual(made.returncode, 2, arguments)
            self.assertIn("usage: manual_generator", made.stderr)


if __name__ == "__main__":
    unittest.main()
