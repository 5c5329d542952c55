#pragma once

#include <array>
#include <cstdint>

#include "driver/pages/document_context.h"
#include "page/links/cached_link.h"

namespace quillmark {

/// The back and next arrows at the top of a page, and the line break after them.
///
/// An arrow names the neighbouring page by its number, in the directory of the page itself. It may
/// lead nowhere: the neighbour may be in another directory, or be empty and never written.
class ArrowBar {
public:
    explicit ArrowBar(const DocumentContext& context) noexcept : context_(context) {}

    /// The bar of the page being written.
    [[nodiscard]] OrxString bar(std::uint32_t pageNumber, bool lastPage);

private:
    enum Picture : std::uint8_t { backOn, backOff, forwardOn, forwardOff, pictureCount };

    [[nodiscard]] OrxString pictureLink(Picture picture);
    void appendArrow(OrxString& bar, std::uint32_t pageNumber, Picture picture);

    const DocumentContext& context_;
    std::array<CachedLink, pictureCount> links_;
};

/// Copies the four arrow pictures from the installed pictures into the image directory.
void copyArrowPictures(const DocumentContext& context);

}  // namespace quillmark
