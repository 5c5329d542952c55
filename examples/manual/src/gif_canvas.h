#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark::manual {

struct Point {
    int x = 0;
    int y = 0;
};

/// A rectangle of pixels: left and top belong to it, right and bottom lie just outside.
struct Box {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

/// A picture of indexed colours that becomes a GIF file. What lies outside the picture is not
/// drawn.
class GifCanvas {
public:
    /// `palette` has 2 to 256 colours; the picture begins in the first of them.
    GifCanvas(int width, int height, std::vector<Colour> palette);

    void fill(const Box& box, std::uint8_t colour);
    void frame(const Box& box, int thickness, std::uint8_t colour);
    /// A straight line with a tip at its end; horizontal or vertical.
    void arrow(Point from, Point to, std::uint8_t colour);
    /// Letters of twice the size of their patterns, centred in the box.
    void label(const Box& box, std::string_view text, std::uint8_t colour);

    /// The bytes of the file.
    [[nodiscard]] std::string toGif() const;

private:
    void set(int x, int y, std::uint8_t colour);
    void letter(Point at, char letter, std::uint8_t colour);

    int width_;
    int height_;
    std::vector<Colour> palette_;
    std::vector<std::uint8_t> pixels_;
};

}  // namespace quillmark::manual
