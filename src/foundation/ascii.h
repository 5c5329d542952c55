#pragma once

#include <algorithm>
#include <string_view>

/// ASCII letters and their case, the same in every locale and code page. Other characters are left
/// unchanged.
namespace quillmark::ascii {

template <typename Character>
[[nodiscard]] constexpr bool isLetter(Character c) noexcept {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

template <typename Character>
[[nodiscard]] constexpr Character toLower(Character c) noexcept {
    return c >= 'A' && c <= 'Z' ? static_cast<Character>(c - 'A' + 'a') : c;
}

template <typename Character>
[[nodiscard]] constexpr Character toUpper(Character c) noexcept {
    return c >= 'a' && c <= 'z' ? static_cast<Character>(c - 'a' + 'A') : c;
}

[[nodiscard]] constexpr bool equalIgnoringCase(std::string_view a, std::string_view b) noexcept {
    return std::ranges::equal(a, b, {}, toLower<char>, toLower<char>);
}

}  // namespace quillmark::ascii
