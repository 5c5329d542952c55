#pragma once

#include <cstdint>
#include <string>

#include "driver/pages/output_router.h"

namespace quillmark {

/// The codes of `setFontAttribute`. They cannot be combined: 3 is an unknown code.
enum FontAttribute : std::int16_t { DocBold = 1, DocItalic = 2, DocUnderline = 4, DocStrike = 8 };

/// Keeps the current font and writes its tags.
///
/// The face name is stored but never written. Tags are closed in the order in which they were
/// opened, not in reverse.
class FontWriter {
public:
    explicit FontWriter(OutputRouter& out) noexcept : out_(out) {}

    void setName(const OrxString& name);
    void setSize(std::int16_t points);
    /// Writes the tag even if the attribute does not change. An unknown code writes nothing.
    void setAttribute(FontAttribute attribute, bool value);

    /// The current font. In the body, a closed font falls back to the default. In a section, the
    /// font that was stored last stays current, closed or not.
    [[nodiscard]] const FontData& current() const noexcept;
    void openTags(const FontData& font);
    void closeTags(const FontData& font);
    /// Closes the font of the current text state if it is open.
    void close();
    /// Closes the current font, then stores `font` as the current one and opens its tags.
    void switchTo(const FontData& font);
    /// Stores `font` as the current one and opens its tags, without closing anything.
    void reopen(FontData font);

private:
    /// Whether the current font is the default one, because the body's is closed.
    [[nodiscard]] bool isDefault() const noexcept;
    /// A copy of the current font for a change, without its name, which `store` keeps.
    [[nodiscard]] FontData currentToChange() const;
    void store(FontData font);
    void writeBaseFont(std::int16_t points);

    OutputRouter& out_;
    FontData default_;
    std::string tags_;  // a member only to reuse its memory
};

/// The attribute's name in the call trace, empty for an unknown code.
[[nodiscard]] std::string_view fontAttributeWord(FontAttribute attribute) noexcept;

}  // namespace quillmark
