"""A canvas for anti-aliased shapes, which Pillow turns into a GIF picture.

The support pictures are small enough to be drawn by sampling a shape at 4 x 4 points a pixel.
"""

import io

from PIL import Image

SAMPLES = 4


def mix(back, front, share):
    return tuple(round(b + (f - b) * share) for b, f in zip(back, front))


class Canvas:
    """True-colour pixels; a pixel that is None stays transparent."""

    def __init__(self, width, height, background=None):
        self.width, self.height = width, height
        self.pixels = [[background] * width for _ in range(height)]

    def paint(self, inside, colour, paper=(255, 255, 255)):
        """Colours where `inside(x, y)` holds; edges are blended with what lies below."""
        for y in range(self.height):
            for x in range(self.width):
                share = self._share(inside, x, y)
                if share:
                    below = self.pixels[y][x] or paper
                    self.pixels[y][x] = mix(below, colour, share)

    @staticmethod
    def _share(inside, x, y):
        step = 1 / SAMPLES
        hits = sum(
            inside(x + (i + 0.5) * step, y + (j + 0.5) * step)
            for i in range(SAMPLES)
            for j in range(SAMPLES)
        )
        return hits / SAMPLES**2

    def glyph(self, rows, left, top, colour):
        """Draws a letter given as rows of "#" and blanks."""
        for dy, row in enumerate(rows):
            for dx, cell in enumerate(row):
                if cell == "#":
                    self.pixels[top + dy][left + dx] = colour

    def image(self):
        """The picture as Pillow keeps it; at most 256 colours, one of them transparent."""
        pixels = [pixel for row in self.pixels for pixel in row]
        palette = list(dict.fromkeys(pixels))
        image = Image.new("P", (self.width, self.height))
        image.putdata([palette.index(pixel) for pixel in pixels])
        image.putpalette([value for colour in palette for value in colour or (255, 255, 255)])
        if None in palette:
            image.info["transparency"] = palette.index(None)
        return image

    def to_gif(self):
        stream = io.BytesIO()
        self.image().save(stream, "GIF")
        return stream.getvalue()
