"""Writes GIF pictures: an indexed canvas, anti-aliased shapes, and the LZW packing.

The support pictures are small enough to be drawn by sampling a shape at 4 x 4 points a pixel.
Nothing but the standard library is used, so anybody can draw them again.
"""

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

    def to_gif(self):
        palette, indices = self._indexed()
        bits = max(1, (len(palette) - 1).bit_length())
        table = b"".join(bytes(colour or (255, 255, 255)) for colour in palette)
        table += bytes(3 * (2**bits - len(palette)))
        out = b"GIF89a" + _word(self.width) + _word(self.height)
        out += bytes([0x80 | (bits - 1) << 4 | (bits - 1), 0, 0]) + table
        if None in palette:
            out += b"\x21\xf9\x04\x01\x00\x00" + bytes([palette.index(None), 0])
        out += b"\x2c" + bytes(4) + _word(self.width) + _word(self.height) + b"\x00"
        least = max(2, bits)
        packed = pack(indices, least)
        out += bytes([least])
        for start in range(0, len(packed), 255):
            chunk = packed[start : start + 255]
            out += bytes([len(chunk)]) + chunk
        return out + b"\x00\x3b"

    def _indexed(self):
        palette, indices = [], []
        for row in self.pixels:
            for pixel in row:
                if pixel not in palette:
                    palette.append(pixel)
                indices.append(palette.index(pixel))
        if len(palette) > 256:
            raise ValueError("more than 256 colours")
        return palette, indices


def _word(number):
    return number.to_bytes(2, "little")


def pack(indices, least):
    """LZW as GIF wants it: codes grow from `least` + 1 to 12 bits, low bits first."""
    clear, end = 1 << least, (1 << least) + 1
    codes, width, known = _alphabet(clear), least + 1, clear + 2
    stream = _Bits()
    stream.add(clear, width)
    run = ()
    for index in indices:
        longer = run + (index,)
        if longer in codes:
            run = longer
            continue
        stream.add(codes[run], width)
        if known == 4096:
            stream.add(clear, width)
            codes, width, known = _alphabet(clear), least + 1, clear + 2
        else:
            codes[longer] = known
            if known == 1 << width:
                width += 1
            known += 1
        run = (index,)
    stream.add(codes[run], width)
    stream.add(end, width)
    return stream.bytes()


def _alphabet(size):
    return {(index,): index for index in range(size)}


class _Bits:
    def __init__(self):
        self.value, self.length = 0, 0

    def add(self, code, width):
        self.value |= code << self.length
        self.length += width

    def bytes(self):
        return self.value.to_bytes((self.length + 7) // 8, "little")
