#include "gif_canvas.h"

#include <algorithm>
#include <bit>

#include "glyphs.h"
#include "lzw.h"

namespace quillmark::manual {

namespace {

constexpr int scale = 2;
constexpr int letterAdvance = (glyphWidth + 1) * scale;
/// The part of a letter above the base line, by which a line of text is centred.
constexpr int letterRise = (glyphHeight - 2) * scale;

char low(int number) {
    return static_cast<char>(number & 0xff);
}
char high(int number) {
    return static_cast<char>((number >> 8) & 0xff);
}

std::string word(int number) {
    return {low(number), high(number)};
}

}  // namespace

GifCanvas::GifCanvas(int width, int height, std::vector<Colour> palette)
    : width_(width),
      height_(height),
      palette_(std::move(palette)),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0) {}

void GifCanvas::set(int x, int y, std::uint8_t colour) {
    if (x >= 0 && x < width_ && y >= 0 && y < height_) {
        pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                static_cast<std::size_t>(x)] = colour;
    }
}

void GifCanvas::fill(const Box& box, std::uint8_t colour) {
    for (int y = box.top; y < box.bottom; ++y) {
        for (int x = box.left; x < box.right; ++x) {
            set(x, y, colour);
        }
    }
}

void GifCanvas::frame(const Box& box, int thickness, std::uint8_t colour) {
    fill({box.left, box.top, box.right, box.top + thickness}, colour);
    fill({box.left, box.bottom - thickness, box.right, box.bottom}, colour);
    fill({box.left, box.top, box.left + thickness, box.bottom}, colour);
    fill({box.right - thickness, box.top, box.right, box.bottom}, colour);
}

void GifCanvas::arrow(Point from, Point to, std::uint8_t colour) {
    constexpr int tip = 6;
    fill({std::min(from.x, to.x) - 1, std::min(from.y, to.y) - 1, std::max(from.x, to.x) + 1,
          std::max(from.y, to.y) + 1},
         colour);
    const int alongX = (to.x > from.x) - (to.x < from.x);
    const int alongY = (to.y > from.y) - (to.y < from.y);
    for (int back = 0; back < tip; ++back) {
        for (int side = -back; side < back; ++side) {
            set(to.x - alongX * back + (alongX == 0 ? side : 0),
                to.y - alongY * back + (alongY == 0 ? side : 0), colour);
        }
    }
}

void GifCanvas::letter(Point at, char letter, std::uint8_t colour) {
    const Glyph& glyph = glyphOf(letter);
    for (int row = 0; row < glyphHeight; ++row) {
        const std::string_view cells = glyph[static_cast<std::size_t>(row)];
        for (int column = 0; column < static_cast<int>(cells.size()); ++column) {
            if (cells[static_cast<std::size_t>(column)] == '#') {
                const Point corner{at.x + column * scale, at.y + row * scale};
                fill({corner.x, corner.y, corner.x + scale, corner.y + scale}, colour);
            }
        }
    }
}

void GifCanvas::label(const Box& box, std::string_view text, std::uint8_t colour) {
    const int length = static_cast<int>(text.size()) * letterAdvance - scale;
    Point at{(box.left + box.right - length) / 2, (box.top + box.bottom - letterRise) / 2};
    for (const char character : text) {
        letter(at, character, colour);
        at.x += letterAdvance;
    }
}

std::string GifCanvas::toGif() const {
    const int bits = std::max(1, static_cast<int>(std::bit_width(palette_.size() - 1)));
    std::string gif = "GIF89a" + word(width_) + word(height_);
    gif += {low(0x80 | ((bits - 1) << 4) | (bits - 1)), '\0', '\0'};
    for (const Colour& colour : palette_) {
        gif += {low(colour.red), low(colour.green), low(colour.blue)};
    }
    gif.append(3 * ((std::size_t{1} << bits) - palette_.size()), '\0');
    gif += ',' + word(0) + word(0) + word(width_) + word(height_) + '\0';

    const int codeBits = std::max(2, bits);
    gif += low(codeBits);
    const std::string packed = packLzw(pixels_, codeBits);
    constexpr std::size_t blockSize = 255;
    for (std::size_t start = 0; start < packed.size(); start += blockSize) {
        const std::string block = packed.substr(start, blockSize);
        gif += low(static_cast<int>(block.size())) + block;
    }
    return gif + '\0' + ';';
}

}  // namespace quillmark::manual
