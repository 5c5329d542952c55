#pragma once

#include <array>
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

/// Halves of surrogate pairs, which UTF-8 does not have.
inline constexpr std::array<ScriptSample, 4> illFormedSamples = {{
    {"HighAlone", {u"a\xD83D", 2}},
    {"LowAlone", {u"\xDE00z", 2}},
    {"PairTurnedAround", {u"\xDE00\xD83D", 2}},
    {"HighBeforeAPair", {u"\xD83D\xD83D\xDE00", 3}},
}};

}  // namespace quillmark::testing
