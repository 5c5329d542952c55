#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace quillmark {

/// A number in decimal digits, exact at any size: `digits` times ten to the power `exponent`.
/// The digits begin with another digit than 0; no digits are the number zero.
struct DecimalValue {
    bool isNegative = false;
    std::string digits;
    std::int64_t exponent = 0;
};

/// The number whose decimal digits are those of `digits`, which may begin with zeros.
[[nodiscard]] DecimalValue decimalOf(bool isNegative, std::string digits, std::int64_t exponent);

/// The nearest whole number, halves to the even neighbour; nothing when 64 bits cannot hold it.
[[nodiscard]] std::optional<std::int64_t> roundedToWhole(const DecimalValue& value);

/// The nearest real number: 0 for one that is too small, infinity for one that is too large.
[[nodiscard]] double realOf(const DecimalValue& value);

/// All digits without an exponent, such as "-0.05"; zeros at the end of a fraction are left out.
[[nodiscard]] std::string shownInFull(const DecimalValue& value);

}  // namespace quillmark
