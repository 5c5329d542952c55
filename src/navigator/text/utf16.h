#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "foundation/surrogates.h"

/// UTF-16 by code points.
namespace quillmark::utf16 {

/// The code point at `at`; moves `at` behind it. A lone surrogate gives U+FFFD.
[[nodiscard]] constexpr char32_t take(std::u16string_view text, std::size_t& at) noexcept {
    constexpr char32_t replacement = 0xFFFD;
    const char32_t unit = text[at++];
    if (surrogates::isLow(unit)) {
        return replacement;
    }
    if (!surrogates::isHigh(unit)) {
        return unit;
    }
    if (at == text.size() || !surrogates::isLow(text[at])) {
        return replacement;
    }
    return 0x10000U + ((unit - 0xD800U) << 10U) + (char32_t{text[at++]} - 0xDC00U);
}

inline void append(std::u16string& out, char32_t point) {
    if (point < 0x10000) {
        out.push_back(static_cast<char16_t>(point));
    } else {
        out.push_back(static_cast<char16_t>(0xD800U + ((point - 0x10000U) >> 10U)));
        out.push_back(static_cast<char16_t>(0xDC00U + ((point - 0x10000U) & 0x3FFU)));
    }
}

}  // namespace quillmark::utf16
