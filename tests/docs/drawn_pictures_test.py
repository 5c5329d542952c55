"""The pictures that are shipped are those that their sources draw, pixel for pixel.

    drawn_pictures_test.py ROOT MANUAL_GENERATOR
"""

import io
import json
import pathlib
import subprocess
import sys
import tempfile
import unittest
import zipfile

try:
    from PIL import Image
except ImportError:
    sys.exit("Install: python3-pil")

ROOT = pathlib.Path(sys.argv.pop(1))
GENERATOR = sys.argv.pop(1)
sys.dont_write_bytecode = True
sys.path += [str(ROOT / "support/draw"), str(ROOT / "examples/manual/draw")]

import arrows  # noqa: E402
import icons  # noqa: E402
import subsystems  # noqa: E402


def pixels(data):
    """All pixels; what is transparent has no colour."""
    shown = Image.open(io.BytesIO(data)).convert("RGBA")
    return [pixel if pixel[3] else None for pixel in shown.getdata()]


class DrawnPictures(unittest.TestCase):
    def assert_shows(self, data, image):
        drawn = [pixel if pixel[3] else None for pixel in image.convert("RGBA").getdata()]
        self.assertEqual(pixels(data), drawn)

    def test_arrows(self):
        folder = ROOT / "support/pix"
        drawn = arrows.arrows()
        self.assertEqual({file.stem for file in folder.iterdir()}, set(drawn))
        for name, canvas in drawn.items():
            self.assert_shows((folder / f"{name}.gif").read_bytes(), canvas.image())
            self.assertEqual(pixels(canvas.to_gif()), pixels((folder / f"{name}.gif").read_bytes()))

    def test_icons(self):
        folder = ROOT / "support/navigator/icons"
        archive = zipfile.ZipFile(ROOT / "support/icons.zip")
        drawn = icons.icons()
        self.assertEqual({file.stem for file in folder.iterdir()}, set(drawn))
        self.assertEqual({pathlib.Path(name).stem for name in archive.namelist()}, set(drawn))
        for name, canvas in drawn.items():
            self.assert_shows((folder / f"{name}.gif").read_bytes(), canvas.image())
            self.assert_shows(archive.read(f"{name}.gif"), canvas.image())

    def test_the_diagram_of_the_manual(self):
        file = ROOT / "examples/manual/data/pictures/subsystems.gif"
        self.assert_shows(file.read_bytes(), subsystems.picture())

    def test_the_regions_of_the_diagram_are_its_boxes(self):
        with tempfile.TemporaryDirectory() as directory:
            subprocess.run([GENERATOR, directory], check=True)
            maps = json.loads((pathlib.Path(directory) / "image-maps.json").read_text())
        (regions,) = maps.values()
        boxes = {}
        for name, corners in zip(regions[::3], regions[2::3]):
            left, top, right, _, _, bottom, *_ = map(int, corners.split(","))
            boxes[name] = (left, top, right, bottom)
        drawn = {name: box for name, box in subsystems.PARTS.items() if name != "Host"}
        self.assertEqual(boxes, drawn)


if __name__ == "__main__":
    unittest.main()
