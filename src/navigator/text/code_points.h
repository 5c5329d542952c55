#pragma once

#include <cstdint>
#include <string_view>

/// What a code point is to the search. The browser's side (support/navigator/code_points.js) has
/// the same table; docs/navigator.md describes it.
namespace quillmark::code_points {

enum class Kind : std::uint8_t { letter, ideograph, separator, nothing };

/// A code point in its folded form: one letter, or the letters that it stands for.
struct Folded {
    Kind kind = Kind::separator;
    /// For letters and ideographs, unless `letters` holds two or more.
    char32_t point = 0;
    /// "ae" for U+00E6. Empty for one letter.
    std::string_view letters{};
};

[[nodiscard]] Folded fold(char32_t point) noexcept;

}  // namespace quillmark::code_points
