#include "foundation/utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>

#include "foundation/surrogates.h"

namespace quillmark::utf8 {

namespace {

constexpr char32_t replacement = 0xFFFD;

/// The number of bytes in a character that starts with `lead`; 0 if none beyond ASCII does.
std::size_t lengthFrom(unsigned char lead) noexcept {
    if (lead < 0xC2 || lead > 0xF4) {
        return 0;
    }
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

bool isAllowed(char32_t point, std::size_t length, LoneSurrogates loneSurrogates) noexcept {
    const char32_t smallest = length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
    return point >= smallest && point <= 0x10FFFF &&
           (loneSurrogates == LoneSurrogates::accepted || !surrogates::isAny(point));
}

/// Decodes the character beyond ASCII at `pos` and moves `pos` past it. If it is malformed,
/// returns nothing and leaves `pos` unchanged.
std::optional<char32_t> decodeBeyondAscii(std::string_view utf8, std::size_t& pos,
                                          LoneSurrogates loneSurrogates) noexcept {
    const auto byteAt = [utf8](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    const std::size_t length = lengthFrom(byteAt(pos));
    if (length == 0 || pos + length > utf8.size()) {
        return std::nullopt;
    }
    char32_t point = byteAt(pos) & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned char next = byteAt(pos + i);
        if ((next & 0xC0U) != 0x80U) {
            return std::nullopt;
        }
        point = (point << 6U) | (next & 0x3FU);
    }
    if (!isAllowed(point, length, loneSurrogates)) {
        return std::nullopt;
    }
    pos += length;
    return point;
}

char16_t* writeUnits(char32_t point, char16_t* out) noexcept {
    if (point >= 0x10000) {
        *out++ = static_cast<char16_t>(0xD800U + ((point - 0x10000U) >> 10U));
        point = 0xDC00U + ((point - 0x10000U) & 0x3FFU);
    }
    *out++ = static_cast<char16_t>(point);
    return out;
}

/// Widens the front of the text in groups of bytes, up to the first group that is not all ASCII.
/// Most texts are ASCII throughout.
char16_t* widenAscii(std::string_view utf8, std::size_t& pos, char16_t* out) noexcept {
    constexpr std::size_t group = sizeof(std::uint64_t);
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    for (; pos + group <= utf8.size(); pos += group) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, utf8.data() + pos, group);
        if ((bytes & highBits) != 0) {
            break;
        }
        for (std::size_t i = 0; i < group; ++i) {
            *out++ = static_cast<unsigned char>(utf8[pos + i]);
        }
    }
    return out;
}

/// Decodes all of `utf8`. `onMalformed` is called with `out` for a byte that is not part of a
/// well-formed character, and returns the new `out`, or null to stop.
template <typename OnMalformed>
char16_t* decode(std::string_view utf8, char16_t* out, LoneSurrogates loneSurrogates,
                 const OnMalformed& onMalformed) noexcept {
    std::size_t pos = 0;
    out = widenAscii(utf8, pos, out);
    while (pos < utf8.size() && out != nullptr) {
        const auto byte = static_cast<unsigned char>(utf8[pos]);
        if (byte < 0x80) {
            *out++ = byte;
            ++pos;
        } else if (const auto point = decodeBeyondAscii(utf8, pos, loneSurrogates)) {
            out = writeUnits(*point, out);
        } else {
            out = onMalformed(out);
            ++pos;
        }
    }
    return out;
}

}  // namespace

std::u16string toUtf16(std::string_view utf8) {
    std::u16string text(utf8.size(), u'\0');
    const char16_t* const end =
        decode(utf8, text.data(), LoneSurrogates::malformed, [](char16_t* out) noexcept {
            *out++ = char16_t{replacement};
            return out;
        });
    text.resize(static_cast<std::size_t>(end - text.data()));
    return text;
}

char16_t* decodeStrictly(std::string_view utf8, char16_t* out,
                         LoneSurrogates loneSurrogates) noexcept {
    return decode(utf8, out, loneSurrogates,
                  [](char16_t* /*out*/) noexcept -> char16_t* { return nullptr; });
}

void append(std::string& out, char32_t point) {
    const auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(byte)); };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xC0U | (point >> 6U));
        put(0x80U | (point & 0x3FU));
    } else if (point < 0x10000) {
        put(0xE0U | (point >> 12U));
        put(0x80U | ((point >> 6U) & 0x3FU));
        put(0x80U | (point & 0x3FU));
    } else {
        put(0xF0U | (point >> 18U));
        put(0x80U | ((point >> 12U) & 0x3FU));
        put(0x80U | ((point >> 6U) & 0x3FU));
        put(0x80U | (point & 0x3FU));
    }
}

std::string fromUtf16(std::u16string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t point = text[i];
        if (surrogates::isHigh(point) && i + 1 < text.size() && surrogates::isLow(text[i + 1])) {
            point = 0x10000U + ((point - 0xD800U) << 10U) + (char32_t{text[++i]} - 0xDC00U);
        } else if (surrogates::isAny(point)) {
            point = replacement;
        }
        append(utf8, point);
    }
    return utf8;
}

}  // namespace quillmark::utf8
