#include "diagram/image_map.h"

#include <cstddef>
#include <string>
#include <vector>

#include "host/image_map_interface.h"

namespace quillmark {

namespace {

/// One clickable region: three texts of the service's list.
struct Region {
    OrxString name;
    OrxString target;
    OrxString coords;
};

/// Room for this many texts is reserved at first.
constexpr std::size_t listBlock = 10;

std::vector<OrxString> regionTexts(const OrxString& picture) {
    std::vector<OrxString> texts;
    CImageMapInterface* const service = CImageMapInterface::getInterface();
    if (service != nullptr) {
        texts.reserve(listBlock);
        service->getRegions(picture, texts);
    }
    return texts;
}

/// The region whose texts begin at `first`. Texts missing at the end of the list are empty.
Region regionAt(const std::vector<OrxString>& texts, std::size_t first) {
    const auto text = [&](std::size_t index) {
        return index < texts.size() ? texts[index] : OrxString();
    };
    return {text(first), text(first + 1), text(first + 2)};
}

OrxString areaMarkup(const Region& region) {
    return "  <AREA SHAPE=\"POLY\" COORDS=\"" + region.coords + "\"  NAME=\"" + region.name +
           "\" " + region.target + ">\n";
}

/// Closes the picture's tag and opens the map.
OrxString mapOpening(std::int32_t number) {
    const std::string digits = std::to_string(number);
    return OrxString(" USEMAP=#map")
        .append(digits)
        .append(" >\n<MAP NAME=\"map")
        .append(digits)
        .append("\">\n");
}

}  // namespace

void ImageMapWriter::write(const OrxString& picture, const Output& output) {
    const std::vector<OrxString> texts = regionTexts(picture);
    if (texts.empty()) {
        return;
    }
    output.write(mapOpening(count_));
    ++count_;
    constexpr std::size_t regionTextCount = 3;
    for (std::size_t first = 0; first < texts.size(); first += regionTextCount) {
        const Region region = regionAt(texts, first);
        if (!region.target.isEmpty() && !region.coords.isEmpty()) {
            output.reference(region.target, areaMarkup(region));
        }
    }
    // The caller's ">" completes this end tag.
    output.write("</MAP");
}

}  // namespace quillmark
