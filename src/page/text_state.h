#pragma once

#include <cstdint>

#include "foundation/orx_object.h"
#include "foundation/orx_string.h"
#include "platform/recoding.h"

namespace quillmark {

/// The font properties that a host sets one by one.
class FontData : public OrxObject {
public:
    OrxString name{"Arial"};
    /// In points. 0 if no size is set.
    std::uint16_t size = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;

    /// Removes name, size and attributes. A new font, in contrast, has the name "Arial".
    void clear();
    [[nodiscard]] bool hasAttribute() const noexcept {
        return bold || italic || underline || strike;
    }
    friend bool operator!=(const FontData& a, const FontData& b) noexcept;
};

/// The codes of `setTextAlign`. Any other code is kept as it is and aligns to the left.
enum class TextAlign : std::uint16_t { none = 0, left = 1, center = 2, right = 3 };

/// The state of text output. The body has one, and so has each section.
class DocHtmlTextState {
public:
    DocHtmlTextState() = default;
    DocHtmlTextState(const DocHtmlTextState&) = default;
    DocHtmlTextState& operator=(const DocHtmlTextState&) = default;
    virtual ~DocHtmlTextState() = default;

    TextAlign textAlign = TextAlign::none;
    OrxString styleName{"Normal"};
    /// Whether tags for `font` may be open in the output and must be closed.
    bool fontOpen = false;
    FontData font;

    /// Resets everything but the font.
    void reset();
    void recode(Recoding& recoding);
};

}  // namespace quillmark
