#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace quillmark {

/// The integer at the front of a text, as the C library's `atoi` reads it: blanks are skipped, a
/// sign may come, the first other character ends it, no digits give 0. A number that an `int`
/// cannot hold becomes the nearest one that it can.
[[nodiscard]] inline std::int32_t leadingInteger(std::string_view text) noexcept {
    const std::size_t start = text.find_first_not_of(" \t\n\v\f\r");
    if (start == std::string_view::npos) {
        return 0;
    }
    const bool negative = text[start] == '-';
    std::size_t pos = start + ((negative || text[start] == '+') ? 1U : 0U);
    constexpr std::int64_t limit = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
    std::int64_t value = 0;
    for (; pos < text.size() && text[pos] >= '0' && text[pos] <= '9'; ++pos) {
        value = value * 10 + (text[pos] - '0');
        value = value > limit ? limit : value;
    }
    const std::int64_t signedValue = negative ? -value : value;
    return static_cast<std::int32_t>(signedValue == limit ? limit - 1 : signedValue);
}

}  // namespace quillmark
