#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// UTF-16 writes a character beyond U+FFFF as a pair of surrogates: a high one, then a low one.
namespace quillmark::surrogates {

[[nodiscard]] constexpr bool isHigh(std::uint32_t unit) noexcept {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
[[nodiscard]] constexpr bool isLow(std::uint32_t unit) noexcept {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}
[[nodiscard]] constexpr bool isAny(std::uint32_t unit) noexcept {
    return isHigh(unit) || isLow(unit);
}

/// The number of units in the first character of `text`, which must not be empty: 2 for a pair,
/// otherwise 1. A lone surrogate counts as a character.
[[nodiscard]] constexpr std::size_t firstLength(std::u16string_view text) noexcept {
    return text.size() > 1 && isHigh(text[0]) && isLow(text[1]) ? 2 : 1;
}

}  // namespace quillmark::surrogates
