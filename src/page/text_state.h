#pragma once

#include <cstdint>

#include "foundation/orx_object.h"
#include "foundation/orx_string.h"

namespace quillmark {

/// A font as the host sets it, property by property.
class FontData : public OrxObject {
public:
    OrxString name{"Arial"};
    /// In points; 0 means that no size is set.
    std::uint16_t size = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;

    /// Empty name, no size, no attribute: unlike a fresh font, which is named "Arial".
    void clear();
    [[nodiscard]] bool hasAttribute() const noexcept {
        return bold || italic || underline || strike;
    }
    friend bool operator!=(const FontData& a, const FontData& b) noexcept;
};

/// The codes of `setTextAlign`. Any other code is kept as it is and aligns to the left.
enum class TextAlign : std::uint16_t { none = 0, left = 1, center = 2, right = 3 };

/// The text state in force: one for the body, one for each section.
class DocHtmlTextState {
public:
    DocHtmlTextState() = default;
    DocHtmlTextState(const DocHtmlTextState&) = default;
    DocHtmlTextState& operator=(const DocHtmlTextState&) = default;
    virtual ~DocHtmlTextState() = default;

    TextAlign textAlign = TextAlign::none;
    OrxString styleName{"Normal"};
    /// Tags for `font` may be open in the output and must be closed.
    bool fontOpen = false;
    FontData font;

    /// Back to the start, but the font stays as it is.
    void reset();
};

}  // namespace quillmark
