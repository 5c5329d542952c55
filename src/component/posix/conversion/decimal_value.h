#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace quillmark {

/// An exact decimal number of any size: `digits` times ten to the power of `exponent`. The first
/// digit is not 0. No digits mean the number zero.
struct DecimalValue {
    bool isNegative = false;
    std::string digits;
    std::int64_t exponent = 0;
};

/// The number with these decimal digits, which may have leading zeros.
[[nodiscard]] DecimalValue decimalOf(bool isNegative, std::string digits, std::int64_t exponent);

/// The nearest integer; halves round to even. Nothing when it does not fit into 64 bits.
[[nodiscard]] std::optional<std::int64_t> roundedToWhole(const DecimalValue& value);

/// The nearest floating-point number: 0 when the value is too small, infinity when it is too large.
[[nodiscard]] double realOf(const DecimalValue& value);

/// All digits without an exponent, such as "-0.05", and without trailing zeros in the fraction.
[[nodiscard]] std::string shownInFull(const DecimalValue& value);

}  // namespace quillmark
