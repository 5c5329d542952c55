#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "foundation/surrogates.h"

namespace quillmark {

/// A character reference at the front of a text: "&lt;", "&#233;", "&#xE9;".
struct HtmlReference {
    /// With "&" and ";". 0 where no reference is.
    std::size_t length = 0;
    char32_t point = 0;
};

namespace html_reference {

inline constexpr char32_t replacement = 0xFFFD;

struct Name {
    std::string_view text;
    char32_t point;
};
inline constexpr std::array<Name, 6> names = {{{"lt;", U'<'},
                                               {"gt;", U'>'},
                                               {"amp;", U'&'},
                                               {"quot;", U'"'},
                                               {"apos;", U'\''},
                                               {"nbsp;", 0xA0}}};

template <typename Char>
[[nodiscard]] constexpr bool startsWith(std::basic_string_view<Char> text,
                                        std::string_view ascii) noexcept {
    if (text.size() < ascii.size()) {
        return false;
    }
    for (std::size_t i = 0; i < ascii.size(); ++i) {
        if (text[i] != static_cast<Char>(ascii[i])) {
            return false;
        }
    }
    return true;
}

/// The value of a digit, or `base` for anything else.
template <typename Char>
[[nodiscard]] constexpr char32_t digitValue(Char c, char32_t base) noexcept {
    if (c >= Char{'0'} && c <= Char{'9'}) {
        return static_cast<char32_t>(c - Char{'0'});
    }
    if (base == 16 && c >= Char{'a'} && c <= Char{'f'}) {
        return static_cast<char32_t>(c - Char{'a'}) + 10;
    }
    if (base == 16 && c >= Char{'A'} && c <= Char{'F'}) {
        return static_cast<char32_t>(c - Char{'A'}) + 10;
    }
    return base;
}

[[nodiscard]] constexpr char32_t characterOf(char32_t number) noexcept {
    const bool isCharacter = number != 0 && number <= 0x10FFFF && !surrogates::isHigh(number) &&
                             !surrogates::isLow(number);
    return isCharacter ? number : replacement;
}

template <typename Char>
[[nodiscard]] constexpr HtmlReference numeric(std::basic_string_view<Char> text) noexcept {
    constexpr char32_t tooLarge = 0x110000;
    const bool isHex = text.size() > 2 && (text[2] == Char{'x'} || text[2] == Char{'X'});
    const char32_t base = isHex ? 16 : 10;
    const std::size_t start = isHex ? 3 : 2;
    std::size_t at = start;
    char32_t number = 0;
    for (; at < text.size() && digitValue(text[at], base) < base; ++at) {
        number = number < tooLarge ? number * base + digitValue(text[at], base) : tooLarge;
    }
    if (at == start || at == text.size() || text[at] != Char{';'}) {
        return {};
    }
    return {at + 1, characterOf(number)};
}

/// The reference at the front of `text`. References to 0, to surrogates and beyond U+10FFFF give
/// U+FFFD.
template <typename Char>
[[nodiscard]] constexpr HtmlReference at(std::basic_string_view<Char> text) noexcept {
    if (text.size() < 4 || text[0] != Char{'&'}) {
        return {};
    }
    if (text[1] == Char{'#'}) {
        return numeric(text);
    }
    for (const Name& name : names) {
        if (startsWith(text.substr(1), name.text)) {
            return {name.text.size() + 1, name.point};
        }
    }
    return {};
}

}  // namespace html_reference

}  // namespace quillmark
