"""Draws the back and next arrows of the detail pages into ../pix.

A page shows the lit arrows 19 and the unlit ones 22 pixels wide, all 20 high, so they are drawn
in these sizes.
"""

from pathlib import Path

from canvas import Canvas

LIT, UNLIT, WHITE = (43, 91, 156), (205, 210, 218), (255, 255, 255)
HEIGHT = 20


def disc(width):
    return lambda x, y: (x - width / 2) ** 2 + (y - HEIGHT / 2) ** 2 <= 9.2**2


def chevron(width, direction):
    """A stroke from the upper to the lower arm by way of the tip; -1 points left."""

    def inside(x, y):
        across = (x - width / 2) * direction
        down = abs(y - HEIGHT / 2)
        return down <= 4.6 and abs(across - (2.4 - down)) <= 1.5

    return inside


def arrow(width, direction, colour):
    canvas = Canvas(width, HEIGHT)
    canvas.paint(disc(width), colour)
    canvas.paint(chevron(width, direction), WHITE)
    return canvas


def arrows():
    pictures = {}
    for name, direction in (("back", -1), ("forward", 1)):
        pictures[f"{name}ON"] = arrow(19, direction, LIT)
        pictures[f"{name}OFF"] = arrow(22, direction, UNLIT)
    return pictures


def main():
    target = Path(__file__).resolve().parent.parent / "pix"
    for name, canvas in arrows().items():
        (target / f"{name}.gif").write_bytes(canvas.to_gif())


if __name__ == "__main__":
    main()
