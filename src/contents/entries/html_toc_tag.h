#pragma once

#include <cstdint>

#include "foundation/orx_string.h"

namespace quillmark {

/// One entry of the table of contents.
class HtmlTOCTag {
public:
    /// Depth, 1 = top.
    [[nodiscard]] std::int32_t getLevel() const noexcept { return level_; }
    void setLevel(std::int32_t level) noexcept { level_ = level; }

    /// The text as it is on the page: already HTML, with "&lt;", "&nbsp;" and "<BR>\n".
    [[nodiscard]] OrxString getText() const { return text_; }
    void setText(const OrxString& text) { text_ = text; }

    /// The link: the page file relative to the output directory, "#", the anchor.
    [[nodiscard]] OrxString getHref() const { return href_; }
    void setHref(const OrxString& href) { href_ = href; }

    /// File name of the icon of the entry's model element, or empty.
    [[nodiscard]] OrxString getGif() const { return gif_; }
    void setGif(const OrxString& gif) { gif_ = gif; }

    /// File name of the icon of the element's stereotype, or empty.
    [[nodiscard]] OrxString getStereoGif() const { return stereoGif_; }
    void setStereoGif(const OrxString& stereoGif) { stereoGif_ = stereoGif; }

    // Entries are neither sorted nor searched. The comparisons only exist for containers that
    // require them, and always return true: never sort or search by them.
    friend bool operator==(const HtmlTOCTag& /*a*/, const HtmlTOCTag& /*b*/) { return true; }
    friend bool operator!=(const HtmlTOCTag& /*a*/, const HtmlTOCTag& /*b*/) { return true; }
    friend bool operator<(const HtmlTOCTag& /*a*/, const HtmlTOCTag& /*b*/) { return true; }
    friend bool operator>(const HtmlTOCTag& /*a*/, const HtmlTOCTag& /*b*/) { return true; }

private:
    OrxString href_;
    OrxString text_;
    std::int32_t level_ = 0;
    OrxString gif_;
    OrxString stereoGif_;
};

}  // namespace quillmark
