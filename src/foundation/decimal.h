#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace quillmark {

/// Reads the integer at the start of a text as the C library's `atoi` does: it skips white space,
/// accepts a sign, and stops at the first character that is not a digit. Without digits the result
/// is 0. A number outside the range of `std::int32_t` becomes the nearest number inside it.
///
///     leadingInteger(" -12 pages");   // -12
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
