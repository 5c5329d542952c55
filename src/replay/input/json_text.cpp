#include "replay/input/json_text.h"

#include <charconv>
#include <cstdint>
#include <cstring>
#include <optional>

#include "foundation/surrogates.h"

namespace quillmark::replay {

namespace {

constexpr std::size_t escapeSize = 6;

/// How many bytes a character takes that begins with `lead`; 0 for a byte that begins none.
std::size_t lengthFrom(unsigned char lead) noexcept {
    if (lead < 0xC2 || lead > 0xF4) {
        return 0;
    }
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

/// Decodes one character beyond ASCII and moves `pos` behind it; false when it is malformed.
bool decodeLong(std::string_view utf8, std::size_t& pos, std::uint32_t& point) noexcept {
    const auto byteAt = [utf8](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    const std::size_t length = lengthFrom(byteAt(pos));
    if (length == 0 || pos + length > utf8.size()) {
        return false;
    }
    point = byteAt(pos) & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned char next = byteAt(pos + i);
        if ((next & 0xC0U) != 0x80U) {
            return false;
        }
        point = (point << 6U) | (next & 0x3FU);
    }
    pos += length;
    return point >= (length == 2 ? 0x80U : length == 3 ? 0x800U : 0x10000U) && point <= 0x10FFFF;
}

/// The unit that an escape `\uXXXX` at `pos` names.
std::optional<std::uint32_t> escapeAt(std::string_view text, std::size_t pos) noexcept {
    std::uint32_t unit = 0;
    if (pos + escapeSize > text.size() || text[pos] != '\\' || text[pos + 1] != 'u') {
        return std::nullopt;
    }
    const char* const last = text.data() + pos + escapeSize;
    const auto [end, error] = std::from_chars(last - 4, last, unit, 16);
    return error == std::errc() && end == last ? std::optional(unit) : std::nullopt;
}

bool holdsSurrogateBytes(std::string_view text) noexcept {
    for (std::size_t pos = 0; (pos = text.find('\xED', pos)) != std::string_view::npos; ++pos) {
        if (pos + 1 < text.size() && static_cast<unsigned char>(text[pos + 1]) >= 0xA0) {
            return true;
        }
    }
    return false;
}

/// How much of the text at `pos`, where a backslash stands, is taken over as it is; 0 when it is
/// the escape of a lone surrogate, which `unit` then holds.
std::size_t wholeEscapeAt(std::string_view text, std::size_t pos, std::uint32_t& unit) noexcept {
    const std::optional<std::uint32_t> named = escapeAt(text, pos);
    if (!named || (!surrogates::isHigh(*named) && !surrogates::isLow(*named))) {
        return pos + 1 < text.size() ? 2 : 1;
    }
    const std::optional<std::uint32_t> second = escapeAt(text, pos + escapeSize);
    if (surrogates::isHigh(*named) && second && surrogates::isLow(*second)) {
        return 2 * escapeSize;
    }
    unit = *named;
    return 0;
}

/// Widens what begins at `pos` as long as whole groups of bytes are ASCII, as most text is.
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

}  // namespace

char16_t* decodeUtf8(std::string_view utf8, char16_t* out, bool surrogates) noexcept {
    std::size_t pos = 0;
    out = widenAscii(utf8, pos, out);
    while (pos < utf8.size()) {
        const auto byte = static_cast<unsigned char>(utf8[pos]);
        if (byte < 0x80) {
            *out++ = byte;
            ++pos;
            continue;
        }
        std::uint32_t point = 0;
        if (!decodeLong(utf8, pos, point)) {
            return nullptr;
        }
        if (!surrogates && (surrogates::isHigh(point) || surrogates::isLow(point))) {
            return nullptr;
        }
        if (point >= 0x10000) {
            *out++ = static_cast<char16_t>(0xD800U + ((point - 0x10000U) >> 10U));
            point = 0xDC00U + ((point - 0x10000U) & 0x3FFU);
        }
        *out++ = static_cast<char16_t>(point);
    }
    return out;
}

std::size_t foldLoneSurrogates(std::span<char> line) noexcept {
    const std::string_view text(line.data(), line.size());
    std::size_t from = text.find('\\');
    if (from == std::string_view::npos || holdsSurrogateBytes(text)) {
        return line.size();
    }
    std::size_t to = from;
    while (from < text.size()) {
        std::uint32_t unit = 0;
        const std::size_t taken = text[from] == '\\' ? wholeEscapeAt(text, from, unit) : 1;
        if (taken > 0) {
            std::memmove(&line[to], &line[from], taken);
            to += taken;
            from += taken;
            continue;
        }
        line[to++] = static_cast<char>(0xE0U | (unit >> 12U));
        line[to++] = static_cast<char>(0x80U | ((unit >> 6U) & 0x3FU));
        line[to++] = static_cast<char>(0x80U | (unit & 0x3FU));
        from += escapeSize;
    }
    return to;
}

}  // namespace quillmark::replay
