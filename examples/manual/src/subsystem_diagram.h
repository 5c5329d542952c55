#pragma once

#include <string>
#include <vector>

namespace quillmark::manual {

/// A rectangle of pixels: left and top belong to it, right and bottom lie just outside.
struct Box {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// A part of the driver in the picture, and the chapter that tells about it (empty: none).
struct DiagramPart {
    std::string name;
    std::string chapter;
    Box box;
};

/// The parts in the picture data/pictures/subsystems.gif, which draw/subsystems.py draws.
[[nodiscard]] const std::vector<DiagramPart>& diagramParts();

/// The corners of a part, as an image map wants them: "x,y,x,y,...".
[[nodiscard]] std::string corners(const DiagramPart& part);

}  // namespace quillmark::manual
