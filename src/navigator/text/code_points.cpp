#include "navigator/text/code_points.h"

#include <algorithm>
#include <array>
#include <span>

namespace quillmark::code_points {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

constexpr std::array<Range, 7> ignored = {{{0xAD, 0xAD},
                                           {0x300, 0x36F},
                                           {0x200B, 0x200F},
                                           {0x202A, 0x202E},
                                           {0x2060, 0x206F},
                                           {0xFE00, 0xFE0F},
                                           {0xFEFF, 0xFEFF}}};
constexpr std::array<Range, 7> ideographs = {{{0x3005, 0x3005},
                                              {0x3040, 0x30FF},
                                              {0x31F0, 0x31FF},
                                              {0x3400, 0x4DBF},
                                              {0x4E00, 0x9FFF},
                                              {0xF900, 0xFAFF},
                                              {0x20000, 0x3FFFF}}};
constexpr std::array<Range, 10> separators = {{{0x80, 0xBF},
                                               {0x2000, 0x2BFF},
                                               {0x2E00, 0x2E7F},
                                               {0x3000, 0x303F},
                                               {0xD800, 0xF8FF},
                                               {0xFE10, 0xFE6F},
                                               {0xFF00, 0xFF65},
                                               {0xFFDD, 0xFFFF},
                                               {0x1F000, 0x1FAFF},
                                               {0xE0000, 0x10FFFF}}};

/// U+00C0 to U+017F, 32 in a line; "-" is a separator.
constexpr char32_t firstLatin = 0xC0;
constexpr std::array<std::string_view, 192> latin = {
    // clang-format off
    "a","a","a","a","a","a","ae","c","e","e","e","e","i","i","i","i","d","n","o","o","o","o","o","-","o","u","u","u","u","y","th","ss",
    "a","a","a","a","a","a","ae","c","e","e","e","e","i","i","i","i","d","n","o","o","o","o","o","-","o","u","u","u","u","y","th","y",
    "a","a","a","a","a","a","c","c","c","c","c","c","c","c","d","d","d","d","e","e","e","e","e","e","e","e","e","e","g","g","g","g",
    "g","g","g","g","h","h","h","h","i","i","i","i","i","i","i","i","i","i","ij","ij","j","j","k","k","k","l","l","l","l","l","l","l",
    "l","l","l","n","n","n","n","n","n","n","n","n","o","o","o","o","o","o","oe","oe","r","r","r","r","r","r","s","s","s","s","s","s",
    "s","s","t","t","t","t","t","t","u","u","u","u","u","u","u","u","u","u","u","u","w","w","y","y","y","z","z","z","z","z","z","s"
    // clang-format on
};

struct Accented {
    char32_t point;
    char32_t base;
};
constexpr std::array<Accented, 20> accentedGreek = {
    {{0x386, 0x3B1}, {0x3AC, 0x3B1}, {0x388, 0x3B5}, {0x3AD, 0x3B5}, {0x389, 0x3B7},
     {0x3AE, 0x3B7}, {0x38A, 0x3B9}, {0x390, 0x3B9}, {0x3AA, 0x3B9}, {0x3AF, 0x3B9},
     {0x3CA, 0x3B9}, {0x38C, 0x3BF}, {0x3CC, 0x3BF}, {0x38E, 0x3C5}, {0x3AB, 0x3C5},
     {0x3B0, 0x3C5}, {0x3CB, 0x3C5}, {0x3CD, 0x3C5}, {0x38F, 0x3C9}, {0x3CE, 0x3C9}}};

constexpr bool isIn(char32_t point, Range range) noexcept {
    return point >= range.first && point <= range.last;
}

bool isWithin(char32_t point, std::span<const Range> ranges) noexcept {
    return std::ranges::any_of(ranges, [point](Range range) { return isIn(point, range); });
}

constexpr Folded letter(char32_t point) noexcept {
    return {Kind::letter, point};
}

Folded foldAscii(char32_t point) noexcept {
    if (isIn(point, {U'A', U'Z'})) {
        return letter(point + 32);
    }
    const bool isLetter = isIn(point, {U'a', U'z'}) || isIn(point, {U'0', U'9'});
    return isLetter ? letter(point) : Folded{};
}

Folded foldLatin(char32_t point) noexcept {
    const std::string_view letters = latin.at(point - firstLatin);
    if (letters == "-") {
        return {};
    }
    if (letters.size() == 1) {
        return letter(static_cast<unsigned char>(letters.front()));
    }
    return {Kind::letter, 0, letters};
}

Folded foldGreekOrCyrillic(char32_t point) noexcept {
    const auto* const accented = std::ranges::find(accentedGreek, point, &Accented::point);
    if (accented != accentedGreek.end()) {
        return letter(accented->base);
    }
    constexpr char32_t finalSigma = 0x3C2;
    if (point == finalSigma || isIn(point, {0x391, 0x3A1}) || isIn(point, {0x3A3, 0x3A9}) ||
        isIn(point, {0x410, 0x42F})) {
        return letter(point == finalSigma ? point + 1 : point + 32);
    }
    return letter(isIn(point, {0x400, 0x40F}) ? point + 80 : point);
}

Folded foldWide(char32_t point) noexcept {
    constexpr char32_t wideOffset = 0xFEE0;
    const char32_t ascii = point - wideOffset;
    return isIn(ascii, {U'0', U'z'}) ? foldAscii(ascii) : Folded{};
}

}  // namespace

Folded fold(char32_t point) noexcept {
    if (point < 0x80) {
        return foldAscii(point);
    }
    if (isWithin(point, ignored)) {
        return {Kind::nothing};
    }
    if (isIn(point, {firstLatin, 0x17F})) {
        return foldLatin(point);
    }
    if (isIn(point, {0x370, 0x4FF})) {
        return foldGreekOrCyrillic(point);
    }
    if (isIn(point, {0xFF00, 0xFF5A})) {
        return foldWide(point);
    }
    if (isWithin(point, ideographs)) {
        return {Kind::ideograph, point};
    }
    return isWithin(point, separators) ? Folded{} : letter(point);
}

}  // namespace quillmark::code_points
