#pragma once

#include <cstdint>

#include "driver/pages/output_router.h"

namespace quillmark {

/// Attribute codes of `setFontAttribute`. They are not combined: 3 is unknown.
enum FontAttribute : std::int16_t { DocBold = 1, DocItalic = 2, DocUnderline = 4, DocStrike = 8 };

/// The font in force and the tags that it leaves open.
///
/// The face name is kept but never written. Closing tags come in the order of the opening ones,
/// not mirrored.
class FontWriter {
public:
    explicit FontWriter(OutputRouter& out) noexcept : out_(out) {}

    void setName(const OrxString& name);
    void setSize(std::int16_t points);
    /// Writes the tag whether or not the attribute changes; an unknown code writes nothing.
    void setAttribute(FontAttribute attribute, bool value);

    /// The font in force. In the body a closed font falls back to the default; in a section the
    /// font stored last carries on, closed or not.
    [[nodiscard]] FontData current() const;
    void openTags(const FontData& font);
    void closeTags(const FontData& font);
    /// Closes what may be open of the current state's font.
    void close();
    /// Closes the current state's font, makes `font` the current one and opens its tags.
    void switchTo(const FontData& font);
    /// Stores the font as the current one and opens its tags without closing anything.
    void reopen(const FontData& font);

private:
    void store(const FontData& font);
    void writeBaseFont(std::int16_t points);

    OutputRouter& out_;
};

/// The attribute's name in the call trace, empty for an unknown code.
[[nodiscard]] std::string_view fontAttributeWord(FontAttribute attribute) noexcept;

}  // namespace quillmark
