#pragma once

#include <string>
#include <vector>

#include "gif_canvas.h"

namespace quillmark::manual {

/// A part of the driver in the picture, and the chapter that tells about it (empty: none).
struct DiagramPart {
    std::string name;
    std::string chapter;
    Box box;
};

/// The picture of the driver's parts, drawn as the host draws its diagrams.
class SubsystemDiagram {
public:
    SubsystemDiagram();

    [[nodiscard]] const std::vector<DiagramPart>& parts() const noexcept { return parts_; }
    /// The bytes of the GIF file.
    [[nodiscard]] std::string toGif() const;
    /// The corners of a part, as an image map wants them: "x,y,x,y,...".
    [[nodiscard]] static std::string corners(const DiagramPart& part);

private:
    std::vector<DiagramPart> parts_;
};

}  // namespace quillmark::manual
