#pragma once

#include <array>
#include <string>
#include <string_view>

namespace quillmark::testing {

/// The code points of a host's text, one after the other. A lone surrogate becomes U+FFFD.
[[nodiscard]] inline std::u32string naiveCodePoints(std::u16string_view text) {
    std::u32string points;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t point = text[i];
        const bool isHigh = point >= 0xD800 && point < 0xDC00;
        if (isHigh && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000) {
            point = 0x10000 + (point - 0xD800) * 0x400 + (text[++i] - 0xDC00U);
        } else if (point >= 0xD800 && point < 0xE000) {
            point = 0xFFFD;
        }
        points += point;
    }
    return points;
}

/// Code points in UTF-8, in the simplest way.
[[nodiscard]] inline std::string naiveUtf8(std::u32string_view points) {
    std::string bytes;
    for (const char32_t point : points) {
        const int more = point < 0x80 ? 0 : point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
        constexpr std::array<char32_t, 4> leads = {0, 0xC0, 0xE0, 0xF0};
        char32_t divisor = 1;
        for (int k = 0; k < more; ++k) {
            divisor *= 64;
        }
        bytes += static_cast<char>(leads.at(static_cast<std::size_t>(more)) + point / divisor);
        for (int k = 0; k < more; ++k) {
            divisor /= 64;
            bytes += static_cast<char>(0x80 + point / divisor % 64);
        }
    }
    return bytes;
}

/// A host's text in UTF-8.
[[nodiscard]] inline std::string naiveUtf8(std::u16string_view text) {
    return naiveUtf8(naiveCodePoints(text));
}

/// A path in a link of a document in UTF-8, byte by byte.
[[nodiscard]] inline std::string naiveLink(std::string_view path) {
    std::string link;
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80 && c != '%' && c != '#' && c != '?') {
            link += c;
            continue;
        }
        constexpr std::string_view digits = "0123456789ABCDEF";
        link += {'%', digits[byte / 16], digits[byte % 16]};
    }
    return link;
}

/// How a naive document reads its host's texts and writes its characters.
struct NaiveCharSet {
    std::u32string (*characters)(std::u16string_view text);
    std::string (*bytes)(std::u32string_view characters);
    std::u32string (*link)(const std::u32string& path);
    const char32_t* contentType;
};

/// One character for each byte. Texts have no characters beyond U+00FF.
[[nodiscard]] inline NaiveCharSet naiveEightBit() {
    return {[](std::u16string_view text) { return std::u32string(text.begin(), text.end()); },
            [](std::u32string_view characters) {
                std::string bytes;
                for (const char32_t character : characters) {
                    bytes += static_cast<char>(character);
                }
                return bytes;
            },
            [](const std::u32string& path) { return path; }, U"text/html; iso-8859-1"};
}

/// One character for each code point.
[[nodiscard]] inline NaiveCharSet naiveUnicode() {
    return {naiveCodePoints, [](std::u32string_view points) { return naiveUtf8(points); },
            [](const std::u32string& path) {
                const std::string link = naiveLink(naiveUtf8(path));
                return std::u32string(link.begin(), link.end());
            },
            U"text/html; charset=utf-8"};
}

}  // namespace quillmark::testing
