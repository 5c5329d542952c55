"""The clickable regions of pictures."""

from typing import Callable, Iterable, Iterator, NamedTuple, Sequence


class Region(NamedTuple):
    """A polygon of a picture, and the bookmark that a click on it leads to.

    The corners are pairs of pixels, or a text as an image map has it ("0,0,10,0,10,10").
    """

    name: str
    target: str
    corners: Sequence[tuple[int, int]] | str


# Gives the regions of a picture, which comes with its name as `insertImage` had it.
ImageMaps = Callable[[str], Iterable[Region] | None]


def region_texts(image_maps: ImageMaps, picture: str) -> Iterator[str]:
    """What the driver is told: three texts per region."""
    for name, target, corners in image_maps(picture) or ():
        yield name
        yield target
        yield corners if isinstance(corners, str) else ",".join(f"{x},{y}" for x, y in corners)
