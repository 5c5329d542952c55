#pragma once

#include <cstdint>
#include <optional>
#include <variant>

#include "component/posix/conversion/decimal_value.h"
#include "component/posix/conversion/number_text.h"
#include "dochtml/automation.h"

namespace quillmark {

/// A number as exactly as its variant holds it.
using Number = std::variant<std::int64_t, std::uint64_t, double, DecimalValue, BitPattern>;

/// The number that a variant holds or its text means; nothing when there is none.
[[nodiscard]] std::optional<Number> numberOf(const VARIANT& value);

/// Whether it is a decimal value with another sign or scale than there are.
[[nodiscard]] bool isDamagedDecimal(const VARIANT& value) noexcept;

/// The nearest integer, halves to the even neighbour; nothing when there is none of this size.
[[nodiscard]] std::optional<std::int16_t> toShort(const Number& number);
[[nodiscard]] std::optional<std::int32_t> toLong(const Number& number);

/// Whether it is another number than 0; nothing when no real number can hold it.
[[nodiscard]] std::optional<bool> toBoolean(const Number& number);

}  // namespace quillmark
