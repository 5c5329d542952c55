#include "foundation/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "foundation/surrogates.h"

namespace quillmark::code_page {

namespace {

/// What the bytes 0x80 to 0x9F stand for. The five that have no character of their own stand for
/// the control codes of the same value, as the system's own table has it.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char16_t replacement = 0xFFFD;

char narrowed(char16_t unit) noexcept {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) {
        return static_cast<char>(static_cast<unsigned char>(unit));
    }
    const auto* const hit = std::find(upperControls.begin(), upperControls.end(), unit);
    return hit == upperControls.end() ? '?'
                                      : static_cast<char>(0x80 + (hit - upperControls.begin()));
}

/// Decodes one code point at `pos` and moves behind it; a malformed byte counts alone.
char32_t decodeUtf8(std::string_view utf8, std::size_t& pos) noexcept {
    const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    const unsigned char lead = byteAt(pos++);
    if (lead < 0x80) {
        return lead;
    }
    const std::size_t more = lead >= 0xF0 ? 3U : lead >= 0xE0 ? 2U : 1U;
    if (lead < 0xC2 || lead > 0xF4 || pos + more > utf8.size()) {
        return replacement;
    }
    char32_t point = lead & (0x3FU >> more);
    for (std::size_t i = 0; i < more; ++i) {
        const unsigned char next = byteAt(pos + i);
        if ((next & 0xC0U) != 0x80U) {
            return replacement;
        }
        point = (point << 6U) | (next & 0x3FU);
    }
    constexpr std::array<char32_t, 4> smallest = {0, 0x80, 0x800, 0x10000};
    if (point < smallest.at(more) || point > 0x10FFFF || surrogates::isHigh(point) ||
        surrogates::isLow(point)) {
        return replacement;
    }
    pos += more;
    return point;
}

void encodeUtf8(std::string& out, char32_t point) {
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

}  // namespace

bool copyAscii(char* target, std::u16string_view text) noexcept {
    // Whole blocks by way of a local one: a fixed count and no overlap with the source let the
    // compiler turn the inner loop into a few vector instructions at any level of optimization.
    constexpr std::size_t block = 32;
    std::uint16_t seen = 0;
    std::size_t done = 0;
    for (; done + block <= text.size(); done += block) {
        std::array<std::uint16_t, block> units{};
        std::array<unsigned char, block> bytes{};
        std::memcpy(units.data(), text.data() + done, sizeof units);
        for (std::size_t i = 0; i < block; ++i) {
            seen = static_cast<std::uint16_t>(seen | units[i]);
            bytes[i] = static_cast<unsigned char>(units[i]);
        }
        std::memcpy(target + done, bytes.data(), block);
    }
    for (; done < text.size(); ++done) {
        seen = static_cast<std::uint16_t>(seen | text[done]);
        target[done] = static_cast<char>(static_cast<unsigned char>(text[done]));
    }
    return seen < 0x80;
}

void appendNarrowed(std::string& out, std::u16string_view text) {
    const std::size_t start = out.size();
    out.resize(start + text.size());
    char* const target = out.data() + start;
    if (!copyAscii(target, text)) {
        std::transform(text.begin(), text.end(), target, narrowed);
    }
}

std::u16string widened(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const bool upperControl = byte >= 0x80 && byte <= 0x9F;
        text.push_back(upperControl ? upperControls.at(byte - 0x80U) : char16_t{byte});
    }
    return text;
}

std::u16string fromUtf8(std::string_view utf8) {
    std::u16string text;
    text.reserve(utf8.size());
    for (std::size_t pos = 0; pos < utf8.size();) {
        const char32_t point = decodeUtf8(utf8, pos);
        if (point < 0x10000) {
            text.push_back(static_cast<char16_t>(point));
        } else {
            text.push_back(static_cast<char16_t>(0xD800U + ((point - 0x10000U) >> 10U)));
            text.push_back(static_cast<char16_t>(0xDC00U + ((point - 0x10000U) & 0x3FFU)));
        }
    }
    return text;
}

std::string toUtf8(std::u16string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t point = text[i];
        if (surrogates::isHigh(point) && i + 1 < text.size() && surrogates::isLow(text[i + 1])) {
            point = 0x10000U + ((point - 0xD800U) << 10U) + (char32_t{text[++i]} - 0xDC00U);
        } else if (surrogates::isHigh(point) || surrogates::isLow(point)) {
            point = replacement;
        }
        encodeUtf8(utf8, point);
    }
    return utf8;
}

}  // namespace quillmark::code_page
