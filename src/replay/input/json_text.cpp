#include "replay/input/json_text.h"

#include <charconv>
#include <cstdint>
#include <cstring>
#include <optional>

#include "foundation/surrogates.h"

namespace quillmark::replay {

namespace {

constexpr std::size_t escapeSize = 6;

/// The UTF-16 unit of an escape `\uXXXX` at `pos`.
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

/// How many bytes from the backslash at `pos` are to be copied unchanged. 0 if it begins the escape
/// of a lone surrogate, which is stored in `unit`.
std::size_t wholeEscapeAt(std::string_view text, std::size_t pos, std::uint32_t& unit) noexcept {
    const std::optional<std::uint32_t> named = escapeAt(text, pos);
    if (!named || !surrogates::isAny(*named)) {
        return pos + 1 < text.size() ? 2 : 1;
    }
    const std::optional<std::uint32_t> second = escapeAt(text, pos + escapeSize);
    if (surrogates::isHigh(*named) && second && surrogates::isLow(*second)) {
        return 2 * escapeSize;
    }
    unit = *named;
    return 0;
}

}  // namespace

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
            std::memmove(line.data() + to, line.data() + from, taken);
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
