#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

#include "component/posix/conversion/decimal_value.h"

namespace quillmark {

/// A number written in hexadecimal or octal digits, which are the bits of the number: "&HFFFF" is
/// -1 where 16 bits are wanted and 65535 where there are more.
struct BitPattern {
    std::uint64_t bits = 0;
};

/// The number that a person's text means, as automation reads it under the English locale of the
/// United States; nothing when it means none. Accepted are, besides plain numbers such as "-1.5e3":
///
/// - blanks of every kind, in front and at the end,
/// - a sign or a "$" in front or at the end, parentheses for a negative number,
/// - commas between and after the digits ("1,000"),
/// - "&H" and "&O" in front of hexadecimal and octal digits.
///
/// A zero unit ends the text.
[[nodiscard]] std::optional<std::variant<DecimalValue, BitPattern>> readNumber(
    std::u16string_view text);

}  // namespace quillmark
