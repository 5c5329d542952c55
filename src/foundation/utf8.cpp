#include "foundation/utf8.h"

#include <array>
#include <cstddef>
#include <optional>

#include "foundation/code_page.h"
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

/// Writes each byte as one unit. Returns true if every byte is ASCII, so that this is the decoded
/// text. Most texts are, and without an early end the compiler can vectorize the loop.
bool widenAscii(std::string_view utf8, char16_t* out) noexcept {
    const char* const bytes = utf8.data();
    const std::size_t size = utf8.size();
    unsigned char seen = 0;
    for (std::size_t i = 0; i < size; ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        seen = static_cast<unsigned char>(seen | byte);
        out[i] = byte;
    }
    return seen < 0x80;
}

/// Decodes all of `utf8`. `onMalformed` is called with `out` for a byte that is not part of a
/// well-formed character, and returns the new `out`, or null to stop.
template <typename OnMalformed>
char16_t* decode(std::string_view utf8, char16_t* out, LoneSurrogates loneSurrogates,
                 const OnMalformed& onMalformed) noexcept {
    if (widenAscii(utf8, out)) {
        return out + utf8.size();
    }
    std::size_t pos = 0;
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

namespace {

char toByte(char32_t byte) noexcept {
    return static_cast<char>(static_cast<unsigned char>(byte));
}

/// Writes one to four bytes, and returns their end.
char* writePoint(char* out, char32_t point) noexcept {
    if (point < 0x80) {
        out[0] = toByte(point);
        return out + 1;
    }
    const char last = toByte(0x80U | (point & 0x3FU));
    if (point < 0x800) {
        out[0] = toByte(0xC0U | (point >> 6U));
        out[1] = last;
        return out + 2;
    }
    const char lastButOne = toByte(0x80U | ((point >> 6U) & 0x3FU));
    if (point < 0x10000) {
        out[0] = toByte(0xE0U | (point >> 12U));
        out[1] = lastButOne;
        out[2] = last;
        return out + 3;
    }
    out[0] = toByte(0xF0U | (point >> 18U));
    out[1] = toByte(0x80U | ((point >> 12U) & 0x3FU));
    out[2] = lastButOne;
    out[3] = last;
    return out + 4;
}

/// Takes the pair or the lone surrogate at the front of `text` off it.
char32_t takeSurrogates(std::u16string_view& text) noexcept {
    const std::size_t length = surrogates::firstLength(text);
    const char32_t point = length == 1 ? replacement
                                       : 0x10000U + ((char32_t{text[0]} - 0xD800U) << 10U) +
                                             (char32_t{text[1]} - 0xDC00U);
    text.remove_prefix(length);
    return point;
}

}  // namespace

void append(std::string& out, char32_t point) {
    std::array<char, 4> bytes{};
    out.append(bytes.data(), writePoint(bytes.data(), point));
}

std::string fromUtf16(std::u16string_view text) {
    std::string utf8;
    append(utf8, text);
    return utf8;
}

void append(std::string& out, std::u16string_view text) {
    const std::size_t start = out.size();
    out.resize(start + text.size());
    if (code_page::copyAscii(out.data() + start, text)) {
        return;
    }
    // A unit needs at most three bytes; a pair, which is two units, needs four.
    out.resize(start + 3 * text.size());
    char* target = out.data() + start;
    while (!text.empty()) {
        if (surrogates::isAny(text.front())) {
            target = writePoint(target, takeSurrogates(text));
        } else {
            target = writePoint(target, text.front());
            text.remove_prefix(1);
        }
    }
    out.resize(static_cast<std::size_t>(target - out.data()));
}

bool Check::take(std::string_view piece) {
    while (kept_ != 0 && !piece.empty()) {
        cut_.at(kept_++) = piece.front();
        piece.remove_prefix(1);
        std::size_t pos = 0;
        if (decodeBeyondAscii({cut_.data(), kept_}, pos, LoneSurrogates::malformed)) {
            kept_ = 0;
        } else if (kept_ >= lengthFrom(static_cast<unsigned char>(cut_[0]))) {
            return false;
        }
    }
    for (std::size_t pos = 0; pos < piece.size();) {
        const auto byte = static_cast<unsigned char>(piece[pos]);
        if (byte < 0x80) {
            ++pos;
        } else if (!decodeBeyondAscii(piece, pos, LoneSurrogates::malformed)) {
            kept_ = piece.size() - pos;
            if (kept_ >= lengthFrom(byte)) {
                return false;
            }
            piece.substr(pos).copy(cut_.data(), kept_);
            return true;
        }
    }
    return true;
}

}  // namespace quillmark::utf8
