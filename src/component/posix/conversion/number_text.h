#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

#include "component/posix/conversion/decimal_value.h"

namespace quillmark {

/// A number in hexadecimal or octal digits, which give its bits: "&HFFFF" is -1 as a 16-bit integer
/// and 65535 as a larger one.
struct BitPattern {
    std::uint64_t bits = 0;
};

/// Reads a number by the rules of automation for the United States. Returns nothing when the text
/// is not a number. Besides plain numbers such as "-1.5e3" it accepts:
///
/// - blanks of every kind at the start and at the end,
/// - a sign or a "$" at the start or at the end, and parentheses for a negative number,
/// - commas between and after the digits ("1,000"),
/// - "&H" and "&O" before hexadecimal and octal digits.
///
/// A zero unit ends the text.
[[nodiscard]] std::optional<std::variant<DecimalValue, BitPattern>> readNumber(
    std::u16string_view text);

}  // namespace quillmark
