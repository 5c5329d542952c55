#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace quillmark::testing {

/// A text of a script, for tests of what documents keep.
struct ScriptSample {
    const char* script;
    std::u16string_view text;
};

/// Twelve scripts, and what is special in some: right to left, combining marks, characters beyond
/// U+FFFF, joined emoji, and the same letter composed and decomposed.
inline constexpr std::array<ScriptSample, 12> scriptSamples = {{
    {"Latin", u"Stra\u00DFe \u017C\u00F3\u0142w caf\u00E9 cafe\u0301"},
    {"Greek", u"\u03A4\u03B9\u03BC\u03AE"},
    {"Cyrillic", u"\u0426\u0435\u043D\u0430"},
    {"Hebrew", u"\u05DE\u05D7\u05D9\u05E8"},
    {"Arabic", u"\u0633\u0639\u0631 \u0661\u0662"},
    {"Devanagari", u"\u092E\u0942\u0932\u094D\u092F"},
    {"Thai", u"\u0E23\u0E32\u0E04\u0E32"},
    {"Georgian", u"\u10E4\u10D0\u10E1\u10D8"},
    {"Korean", u"\uAC00\uACA9 \u1100\u1161"},
    {"Japanese", u"\u4FA1\u683C\u306D\u3060\u3093 \U00020BB7"},
    {"Gothic", u"\U00010332\U0001033F\U00010344"},
    {"Emoji", u"\U0001F468\u200D\U0001F469\u200D\U0001F467 \U0001F1E9\U0001F1EA \u2764\uFE0F"},
}};

/// The same in UTF-8, converted one code point at a time in the simplest way.
[[nodiscard]] inline std::string naiveUtf8(std::u16string_view text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned long point = text[i];
        const bool isHigh = point >= 0xD800 && point < 0xDC00;
        if (isHigh && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000) {
            point = 0x10000 + (point - 0xD800) * 0x400 + (text[++i] - 0xDC00UL);
        } else if (point >= 0xD800 && point < 0xE000) {
            point = 0xFFFD;
        }
        const int more = point < 0x80 ? 0 : point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
        constexpr std::array<unsigned long, 4> leads = {0, 0xC0, 0xE0, 0xF0};
        unsigned long divisor = 1;
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

}  // namespace quillmark::testing
