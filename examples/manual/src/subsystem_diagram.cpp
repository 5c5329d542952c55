#include "subsystem_diagram.h"

namespace quillmark::manual {

const std::vector<DiagramPart>& diagramParts() {
    static const std::vector<DiagramPart> parts = {
        {"Host", "", {176, 4, 344, 44}},
        {"Component", "inside-component", {96, 76, 424, 120}},
        {"Document driver", "inside-driver", {4, 152, 316, 212}},
        {"Settings page", "inside-settings", {332, 152, 516, 212}},
        {"HTML pages", "inside-pages", {4, 252, 164, 312}},
        {"Contents", "inside-contents", {180, 252, 316, 312}},
        {"Diagrams", "inside-diagrams", {332, 252, 516, 312}}};
    return parts;
}

std::string corners(const DiagramPart& part) {
    const std::string left = std::to_string(part.box.left);
    const std::string top = std::to_string(part.box.top);
    const std::string right = std::to_string(part.box.right);
    const std::string bottom = std::to_string(part.box.bottom);
    return left + ',' + top + ',' + right + ',' + top + ',' + right + ',' + bottom + ',' + left +
           ',' + bottom;
}

}  // namespace quillmark::manual
