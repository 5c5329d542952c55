#pragma once

#include <array>
#include <string_view>

namespace quillmark::manual {

inline constexpr int glyphWidth = 5;
inline constexpr int glyphHeight = 9;

/// A letter as rows of "#" and blanks; the last two rows lie below the base line.
using Glyph = std::array<std::string_view, glyphHeight>;

/// The letter's picture; an unknown character is a blank.
[[nodiscard]] const Glyph& glyphOf(char letter);

}  // namespace quillmark::manual
