#include "component/posix/conversion/variant_number.h"

#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>

#include "dochtml/text.h"

namespace quillmark {
namespace {

/// A currency value is in units of 1/10,000.
DecimalValue currencyNumber(CY value) {
    constexpr std::int64_t places = 4;
    std::string digits = std::to_string(value.int64);
    const bool isNegative = value.int64 < 0;
    digits.erase(0, isNegative ? 1 : 0);
    return decimalOf(isNegative, std::move(digits), -places);
}

/// The decimal digits of a 96-bit integer, given as 32-bit words from highest to lowest.
std::string digitsOf(std::array<std::uint32_t, 3> words) {
    constexpr std::array<std::uint32_t, 3> zero{};
    std::string digits;
    while (words != zero) {
        std::uint64_t rest = 0;
        for (std::uint32_t& word : words) {
            rest = rest << 32 | word;
            word = static_cast<std::uint32_t>(rest / 10);
            rest %= 10;
        }
        digits.insert(digits.begin(), static_cast<char>('0' + rest));
    }
    return digits;
}

/// A decimal value overlays the whole variant.
DECIMAL decimalIn(const VARIANT& variant) noexcept {
    DECIMAL decimal;
    static_assert(sizeof decimal <= sizeof variant);
    std::memcpy(&decimal, &variant, sizeof decimal);
    return decimal;
}

DecimalValue decimalNumber(const DECIMAL& value) {
    const auto middle = static_cast<std::uint32_t>(value.Lo64 >> 32);
    const auto low = static_cast<std::uint32_t>(value.Lo64);
    return decimalOf(value.sign != 0, digitsOf({value.Hi32, middle, low}),
                     -std::int64_t{value.scale});
}

std::optional<Number> numberInText(BSTR text) {
    const auto number = readNumber(Text::viewOf(text));
    if (!number) {
        return std::nullopt;
    }
    return std::visit([](const auto& value) { return Number(value); }, *number);
}

template <typename Integer>
struct IntegerOf {
    using Result = std::optional<Integer>;
    static constexpr auto low = std::numeric_limits<Integer>::min();
    static constexpr auto high = std::numeric_limits<Integer>::max();

    Result operator()(std::int64_t value) const noexcept {
        return value < low || value > high ? Result() : static_cast<Integer>(value);
    }
    Result operator()(std::uint64_t value) const noexcept {
        return value > std::uint64_t{high} ? Result() : static_cast<Integer>(value);
    }
    Result operator()(double value) const noexcept {
        // The default rounding mode rounds halves to even.
        const double rounded = std::nearbyint(value);
        const bool fits = rounded >= double{low} && rounded <= double{high};
        return fits ? static_cast<Integer>(rounded) : Result();
    }
    Result operator()(const DecimalValue& value) const {
        const auto whole = roundedToWhole(value);
        return whole ? (*this)(*whole) : Result();
    }
    Result operator()(BitPattern value) const noexcept {
        using Unsigned = std::make_unsigned_t<Integer>;
        const bool fits = value.bits <= std::numeric_limits<Unsigned>::max();
        return fits ? static_cast<Integer>(static_cast<Unsigned>(value.bits)) : Result();
    }
};

struct BooleanOf {
    using Result = std::optional<bool>;

    Result operator()(std::int64_t value) const noexcept { return value != 0; }
    Result operator()(std::uint64_t value) const noexcept { return value != 0; }
    Result operator()(double value) const noexcept { return value != 0; }
    Result operator()(const DecimalValue& value) const {
        const double real = realOf(value);
        return std::isinf(real) ? Result() : real != 0;
    }
    Result operator()(BitPattern value) const noexcept {
        // Automation converts a bit pattern to floating point first, which works up to this value.
        constexpr std::uint64_t most = 0x80000000;
        return value.bits > most ? Result() : value.bits != 0;
    }
};

}  // namespace

std::optional<Number> numberOf(const VARIANT& value) {
    switch (value.vt) {
        case VT_EMPTY:
            return Number(std::int64_t{0});
        case VT_I1:
            return Number(std::int64_t{value.cVal});
        case VT_UI1:
            return Number(std::int64_t{value.bVal});
        case VT_I2:
        case VT_BOOL:
            return Number(std::int64_t{value.iVal});
        case VT_UI2:
            return Number(std::int64_t{value.uiVal});
        case VT_I4:
        case VT_INT:
            return Number(std::int64_t{value.lVal});
        case VT_UI4:
        case VT_UINT:
            return Number(std::int64_t{value.ulVal});
        case VT_I8:
            return Number(std::int64_t{value.llVal});
        case VT_UI8:
            return Number(std::uint64_t{value.ullVal});
        case VT_R4:
            return Number(double{value.fltVal});
        case VT_R8:
        case VT_DATE:
            return Number(value.dblVal);
        case VT_CY:
            return Number(currencyNumber(value.cyVal));
        case VT_DECIMAL:
            return Number(decimalNumber(decimalIn(value)));
        case VT_BSTR:
            return numberInText(value.bstrVal);
        default:
            return std::nullopt;
    }
}

bool isDamagedDecimal(const VARIANT& value) noexcept {
    constexpr std::uint8_t negative = 0x80;
    constexpr std::uint8_t mostPlaces = 28;
    if (value.vt != VT_DECIMAL) {
        return false;
    }
    const DECIMAL decimal = decimalIn(value);
    return decimal.scale > mostPlaces || (decimal.sign != 0 && decimal.sign != negative);
}

std::optional<std::int16_t> toShort(const Number& number) {
    return std::visit(IntegerOf<std::int16_t>(), number);
}

std::optional<std::int32_t> toLong(const Number& number) {
    return std::visit(IntegerOf<std::int32_t>(), number);
}

std::optional<bool> toBoolean(const Number& number) {
    return std::visit(BooleanOf(), number);
}

}  // namespace quillmark
