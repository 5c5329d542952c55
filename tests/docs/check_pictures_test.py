#!/usr/bin/env python3
"""The check of pictures finds what it is there to find."""

import pathlib
import subprocess
import tempfile
import unittest

import check_pictures


class CheckPictures(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)

    def fault_of(self, *drawing):
        picture = self.root / "a.png"
        subprocess.run(["convert", "-size", "20x20", *drawing, picture], check=True)
        return check_pictures.fault(picture)

    def test_an_opaque_picture_in_full_colour_is_fine(self):
        self.assertIsNone(self.fault_of("gradient:red-blue", "-define", "png:color-type=2"))

    def test_a_picture_of_one_colour(self):
        self.assertEqual(
            "shows nothing but one colour",
            self.fault_of("xc:#336699", "-define", "png:color-type=2"),
        )

    def test_a_picture_with_transparent_parts(self):
        self.assertEqual("is transparent in places", self.fault_of("gradient:red-#0000ff00"))

    def test_a_picture_with_a_palette(self):
        self.assertEqual(
            "has a palette instead of full colour",
            self.fault_of("gradient:red-blue", "-colors", "8", "-define", "png:color-type=3"),
        )

    def test_a_file_that_is_not_there_or_not_a_picture(self):
        self.assertEqual("does not exist", check_pictures.fault(self.root / "none.png"))
        text = self.root / "text.png"
        text.write_text("hello")
        self.assertRegex(check_pictures.fault(text), "^cannot be read")

    def test_references_are_read_from_the_place_of_their_page(self):
        docs = self.root / "docs"
        docs.mkdir()
        (docs / "a.md").write_text('![one](images/a.png)\n<img src="b.png" width="3">\n')
        (self.root / "README.md").write_text('![two](docs/c.png "title") ![x](https://e.org/d.png)\n')
        self.assertEqual(
            [self.root / "docs/c.png", docs / "images/a.png", docs / "b.png"],
            [picture for _, _, picture in check_pictures.references(self.root)],
        )


if __name__ == "__main__":
    unittest.main()
