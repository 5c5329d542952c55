#include "subsystem_diagram.h"

namespace quillmark::manual {

namespace {

constexpr int width = 520;
constexpr int height = 316;

enum Shade : std::uint8_t { paper, ink, line, blue, pale, grey };

std::vector<Colour> shades() {
    return {{255, 255, 255}, {29, 53, 87},    {104, 118, 138},
            {43, 91, 156},   {222, 232, 246}, {240, 242, 245}};
}

int middle(const Box& box) {
    return (box.left + box.right) / 2;
}

}  // namespace

SubsystemDiagram::SubsystemDiagram()
    : parts_{{"Host", "", {176, 4, 344, 44}},
             {"Component", "inside-component", {96, 76, 424, 120}},
             {"Document driver", "inside-driver", {4, 152, 316, 212}},
             {"Settings page", "inside-settings", {332, 152, 516, 212}},
             {"HTML pages", "inside-pages", {4, 252, 164, 312}},
             {"Contents", "inside-contents", {180, 252, 316, 312}},
             {"Diagrams", "inside-diagrams", {332, 252, 516, 312}}} {}

std::string SubsystemDiagram::toGif() const {
    GifCanvas canvas(width, height, shades());
    const Box& host = parts_[0].box;
    const Box& component = parts_[1].box;
    const Box& driver = parts_[2].box;
    const Box& settings = parts_[3].box;
    canvas.arrow({middle(host), host.bottom}, {middle(host), component.top - 1}, line);
    canvas.arrow({206, component.bottom}, {206, driver.top - 1}, line);
    canvas.arrow({378, component.bottom}, {378, settings.top - 1}, line);
    canvas.arrow({84, driver.bottom}, {84, parts_[4].box.top - 1}, line);
    canvas.arrow({248, driver.bottom}, {248, parts_[5].box.top - 1}, line);
    // The driver reaches the diagrams by way of a bend.
    canvas.fill({290, driver.bottom, 292, 233}, line);
    canvas.fill({290, 231, 425, 233}, line);
    canvas.arrow({424, 232}, {424, parts_[6].box.top - 1}, line);
    for (const DiagramPart& part : parts_) {
        canvas.fill(part.box, part.chapter.empty() ? grey : pale);
        canvas.frame(part.box, 2, part.chapter.empty() ? line : blue);
        canvas.label(part.box, part.name, ink);
    }
    return canvas.toGif();
}

std::string SubsystemDiagram::corners(const DiagramPart& part) {
    const std::string left = std::to_string(part.box.left);
    const std::string top = std::to_string(part.box.top);
    const std::string right = std::to_string(part.box.right);
    const std::string bottom = std::to_string(part.box.bottom);
    return left + ',' + top + ',' + right + ',' + top + ',' + right + ',' + bottom + ',' + left +
           ',' + bottom;
}

}  // namespace quillmark::manual
