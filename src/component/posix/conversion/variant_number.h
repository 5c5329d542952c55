#pragma once

#include <cstdint>
#include <optional>
#include <variant>

#include "component/posix/conversion/decimal_value.h"
#include "component/posix/conversion/number_text.h"
#include "dochtml/automation.h"

namespace quillmark {

/// A number with the full precision of its variant.
using Number = std::variant<std::int64_t, std::uint64_t, double, DecimalValue, BitPattern>;

/// The number that a variant contains, as a number or as text. Nothing when it is not a number.
[[nodiscard]] std::optional<Number> numberOf(const VARIANT& value);

/// Whether the value is a decimal value with an invalid sign or scale.
[[nodiscard]] bool isDamagedDecimal(const VARIANT& value) noexcept;

/// The nearest integer; halves round to even. Nothing when it does not fit.
[[nodiscard]] std::optional<std::int16_t> toShort(const Number& number);
[[nodiscard]] std::optional<std::int32_t> toLong(const Number& number);

/// Whether the number is not 0. Nothing when it does not fit into a floating-point number.
[[nodiscard]] std::optional<bool> toBoolean(const Number& number);

}  // namespace quillmark
