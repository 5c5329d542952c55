"""Draws the pictures of contents entries: packed in ../icons.zip, loose in ../navigator/icons.

Drawn again, the files show the same pictures; their bytes depend on the version of Pillow.
The names follow the driver's icon rules: the metaclass, then "_" and the kind or visibility,
or the name of a user-defined metaclass. The archive carries a fixed date.
"""

import zipfile
from pathlib import Path

from canvas import Canvas

SIZE = 16
WHITE = (255, 255, 255)
BLUE, GREEN, AMBER, RED, GREY, VIOLET = (
    (43, 91, 156),
    (46, 125, 82),
    (190, 125, 20),
    (176, 58, 46),
    (120, 128, 140),
    (112, 72, 150),
)

LETTERS = {
    "A": (" ### ", "#   #", "#   #", "#####", "#   #", "#   #", "#   #"),
    "C": (" ### ", "#   #", "#    ", "#    ", "#    ", "#   #", " ### "),
    "D": ("#### ", "#   #", "#   #", "#   #", "#   #", "#   #", "#### "),
    "I": (" ### ", "  #  ", "  #  ", "  #  ", "  #  ", "  #  ", " ### "),
    "O": (" ### ", "#   #", "#   #", "#   #", "#   #", "#   #", " ### "),
    "P": ("#### ", "#   #", "#   #", "#### ", "#    ", "#    ", "#    "),
    "T": ("#####", "  #  ", "  #  ", "  #  ", "  #  ", "  #  ", "  #  "),
}

VISIBILITY = {"public": GREEN, "protected": AMBER, "private": RED}


def box(left, top, right, bottom, radius):
    def inside(x, y):
        dx = max(left + radius - x, 0, x - (right - radius))
        dy = max(top + radius - y, 0, y - (bottom - radius))
        return dx * dx + dy * dy <= radius * radius

    return inside


def lettered(letter, colour):
    canvas = Canvas(SIZE, SIZE)
    canvas.paint(box(1, 1, 15, 15, 3), colour)
    canvas.glyph(LETTERS[letter], 5, 4, WHITE)
    return canvas


def sheet():
    canvas = Canvas(SIZE, SIZE)
    canvas.paint(box(3, 1, 13, 15, 1), GREY)
    canvas.paint(box(4, 2, 12, 14, 0.5), WHITE)
    for y in (5, 8, 11):
        canvas.paint(box(5.5, y - 0.5, 10.5, y + 0.5, 0.3), GREY)
    return canvas


def stack():
    canvas = Canvas(SIZE, SIZE)
    for offset in (0, 2, 4):
        canvas.paint(box(1 + offset, 5 - offset, 11 + offset, 15 - offset, 1.5), BLUE)
        canvas.paint(box(2 + offset, 6 - offset, 10 + offset, 14 - offset, 1), (222, 232, 246))
    return canvas


def folder():
    canvas = Canvas(SIZE, SIZE)
    canvas.paint(box(1, 2, 8, 8, 1), AMBER)
    canvas.paint(box(1, 4, 15, 14, 1.5), AMBER)
    canvas.paint(box(2, 7, 14, 13, 1), (250, 232, 195))
    return canvas


def drawing():
    canvas = Canvas(SIZE, SIZE)
    canvas.paint(box(1, 1, 8, 7, 1), VIOLET)
    canvas.paint(box(8, 9, 15, 15, 1), VIOLET)
    canvas.paint(box(4, 6, 5, 12.5, 0.2), GREY)
    canvas.paint(box(4, 11.5, 9, 12.5, 0.2), GREY)
    return canvas


def dot(colour):
    canvas = Canvas(SIZE, SIZE)
    canvas.paint(lambda x, y: (x - 8) ** 2 + (y - 8) ** 2 <= 25, colour)
    return canvas


def icons():
    pictures = {
        "__None": sheet(),
        "__Collection": stack(),
        "Class": lettered("C", BLUE),
        "Class_interface": lettered("I", BLUE),
        "Package": folder(),
        "Diagram": drawing(),
        "Diagram_subsystem": drawing(),
        "TaggedValue": lettered("T", VIOLET),
        "Operation": lettered("O", GREY),
        "Attribute": lettered("A", GREY),
        "Opening": dot(GREEN),
        "Closing": dot(RED),
    }
    for word, colour in VISIBILITY.items():
        pictures[f"Operation_{word}"] = lettered("O", colour)
        pictures[f"Attribute_{word}"] = lettered("A", colour)
    return pictures


def main():
    support = Path(__file__).resolve().parent.parent
    loose = support / "navigator" / "icons"
    loose.mkdir(exist_ok=True)
    with zipfile.ZipFile(support / "icons.zip", "w", zipfile.ZIP_STORED) as archive:
        for name, canvas in sorted(icons().items()):
            entry = zipfile.ZipInfo(f"{name}.gif", (2000, 1, 1, 0, 0, 0))
            entry.external_attr = 0o644 << 16
            archive.writestr(entry, canvas.to_gif())
            (loose / f"{name}.gif").write_bytes(canvas.to_gif())


if __name__ == "__main__":
    main()
