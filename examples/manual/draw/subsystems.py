#!/usr/bin/python3
"""Draws the picture of the driver's parts, ../data/pictures/subsystems.gif (needs Pillow).

    subsystems.py [FILE]

The generator knows the boxes too, because their corners are regions of the image map
(src/subsystem_diagram.cpp). A test compares the two, and this drawing with the file.
"""

import sys
from pathlib import Path

from PIL import Image, ImageDraw

SIZE = (520, 316)
PAPER, INK, LINE, BLUE, PALE, GREY = range(6)
COLOURS = (
    (255, 255, 255),
    (29, 53, 87),
    (104, 118, 138),
    (43, 91, 156),
    (222, 232, 246),
    (240, 242, 245),
)

# The corners of a box: left and top belong to it, right and bottom lie just outside.
PARTS = {
    "Host": (176, 4, 344, 44),
    "Component": (96, 76, 424, 120),
    "Document driver": (4, 152, 316, 212),
    "Settings page": (332, 152, 516, 212),
    "HTML pages": (4, 252, 164, 312),
    "Contents": (180, 252, 316, 312),
    "Diagrams": (332, 252, 516, 312),
}
# From a point downwards to a box.
ARROWS = ((260, 44, 75), (206, 120, 151), (378, 120, 151), (84, 212, 251), (248, 212, 251), (424, 232, 251))
# The driver reaches the diagrams by way of a bend.
BEND = ((290, 212, 292, 233), (290, 231, 425, 233))

# Letters as rows of "#" and blanks, two pixels per cell; the last two rows lie below the base line.
CELL, ADVANCE, RISE = 2, 12, 14
LETTERS = {
    "C": (" ### ", "#   #", "#    ", "#    ", "#    ", "#   #", " ### ", "     ", "     "),
    "D": ("#### ", "#   #", "#   #", "#   #", "#   #", "#   #", "#### ", "     ", "     "),
    "H": ("#   #", "#   #", "#   #", "#####", "#   #", "#   #", "#   #", "     ", "     "),
    "I": (" ### ", "  #  ", "  #  ", "  #  ", "  #  ", "  #  ", " ### ", "     ", "     "),
    "L": ("#    ", "#    ", "#    ", "#    ", "#    ", "#    ", "#####", "     ", "     "),
    "M": ("#   #", "## ##", "# # #", "# # #", "#   #", "#   #", "#   #", "     ", "     "),
    "S": (" ####", "#    ", "#    ", " ### ", "    #", "    #", "#### ", "     ", "     "),
    "T": ("#####", "  #  ", "  #  ", "  #  ", "  #  ", "  #  ", "  #  ", "     ", "     "),
    "a": ("     ", "     ", " ### ", "    #", " ####", "#   #", " ####", "     ", "     "),
    "b": ("#    ", "#    ", "#### ", "#   #", "#   #", "#   #", "#### ", "     ", "     "),
    "c": ("     ", "     ", " ####", "#    ", "#    ", "#    ", " ####", "     ", "     "),
    "d": ("    #", "    #", " ####", "#   #", "#   #", "#   #", " ####", "     ", "     "),
    "e": ("     ", "     ", " ### ", "#   #", "#####", "#    ", " ####", "     ", "     "),
    "f": ("  ## ", " #   ", "#### ", " #   ", " #   ", " #   ", " #   ", "     ", "     "),
    "g": ("     ", "     ", " ####", "#   #", "#   #", " ####", "    #", "    #", " ### "),
    "h": ("#    ", "#    ", "#### ", "#   #", "#   #", "#   #", "#   #", "     ", "     "),
    "i": ("  #  ", "     ", " ##  ", "  #  ", "  #  ", "  #  ", " ### ", "     ", "     "),
    "k": ("#    ", "#    ", "#  # ", "# #  ", "##   ", "# #  ", "#  # ", "     ", "     "),
    "l": (" ##  ", "  #  ", "  #  ", "  #  ", "  #  ", "  #  ", " ### ", "     ", "     "),
    "m": ("     ", "     ", "## # ", "# # #", "# # #", "# # #", "# # #", "     ", "     "),
    "n": ("     ", "     ", "#### ", "#   #", "#   #", "#   #", "#   #", "     ", "     "),
    "o": ("     ", "     ", " ### ", "#   #", "#   #", "#   #", " ### ", "     ", "     "),
    "p": ("     ", "     ", "#### ", "#   #", "#   #", "#   #", "#### ", "#    ", "#    "),
    "r": ("     ", "     ", "# ## ", "##  #", "#    ", "#    ", "#    ", "     ", "     "),
    "s": ("     ", "     ", " ####", "#    ", " ### ", "    #", "#### ", "     ", "     "),
    "t": (" #   ", " #   ", "#### ", " #   ", " #   ", " #   ", "  ## ", "     ", "     "),
    "u": ("     ", "     ", "#   #", "#   #", "#   #", "#   #", " ####", "     ", "     "),
    "v": ("     ", "     ", "#   #", "#   #", "#   #", " # # ", "  #  ", "     ", "     "),
    "w": ("     ", "     ", "#   #", "# # #", "# # #", "# # #", " # # ", "     ", "     "),
    "x": ("     ", "     ", "#   #", " # # ", "  #  ", " # # ", "#   #", "     ", "     "),
    "y": ("     ", "     ", "#   #", "#   #", "#   #", " ####", "    #", "    #", " ### "),
}


def fill(draw, box, colour):
    left, top, right, bottom = box
    draw.rectangle((left, top, right - 1, bottom - 1), fill=colour)


def arrow(draw, x, start, end):
    fill(draw, (x - 1, start - 1, x + 1, end + 1), LINE)
    for back in range(1, 6):
        fill(draw, (x - back, end - back, x + back, end - back + 1), LINE)


def label(draw, box, text):
    left, top, right, bottom = box
    x = (left + right - (len(text) * ADVANCE - CELL)) // 2
    y = (top + bottom - RISE) // 2
    for letter in text:
        for row, cells in enumerate(LETTERS.get(letter, ())):
            for column, cell in enumerate(cells):
                if cell == "#":
                    corner = (x + column * CELL, y + row * CELL)
                    fill(draw, (*corner, corner[0] + CELL, corner[1] + CELL), INK)
        x += ADVANCE


def part(draw, name, box):
    described = name != "Host"
    fill(draw, box, BLUE if described else LINE)
    left, top, right, bottom = box
    fill(draw, (left + 2, top + 2, right - 2, bottom - 2), PALE if described else GREY)
    label(draw, box, name)


def picture():
    image = Image.new("P", SIZE, PAPER)
    image.putpalette([value for colour in COLOURS for value in colour])
    draw = ImageDraw.Draw(image)
    for box in BEND:
        fill(draw, box, LINE)
    for x, start, end in ARROWS:
        arrow(draw, x, start, end)
    for name, box in PARTS.items():
        part(draw, name, box)
    return image


def main():
    default = Path(__file__).resolve().parent.parent / "data" / "pictures" / "subsystems.gif"
    picture().save(sys.argv[1] if len(sys.argv) > 1 else default)


if __name__ == "__main__":
    main()
