#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// The halves that UTF-16 writes a character beyond U+FFFF with: a high one, then a low one.
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

/// How many units the first character of `text`, which is not empty, takes: 2 for a pair. A half
/// that stands alone counts as a character.
[[nodiscard]] constexpr std::size_t firstLength(std::u16string_view text) noexcept {
    return text.size() > 1 && isHigh(text[0]) && isLow(text[1]) ? 2 : 1;
}

}  // namespace quillmark::surrogates
