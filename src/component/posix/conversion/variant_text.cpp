#include "component/posix/conversion/variant_text.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

#include "component/posix/conversion/date_text.h"
#include "component/posix/conversion/variant_number.h"
#include "dochtml/text.h"
#include "foundation/ascii.h"

namespace quillmark {
namespace {

/// The result of undefined operations such as 0/0.
bool isIndefinite(double value) noexcept {
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    const double indefinite = std::copysign(notANumber, -1.0);
    return std::bit_cast<std::uint64_t>(value) == std::bit_cast<std::uint64_t>(indefinite);
}

/// Formats like "%G" of the C library, but with a point in every locale, and zero without a sign.
std::string shownReal(double value, int digits) {
    if (isIndefinite(value)) {
        return "-NAN(IND)";
    }
    std::array<char, 32> text{};
    const auto [end, error] =
        std::to_chars(text.data(), text.data() + text.size(), value == 0 ? 0.0 : value,
                      std::chars_format::general, digits);
    std::string shown(text.data(), end);
    for (char& character : shown) {
        character = ascii::toUpper(character);
    }
    return shown;
}

/// Formats a number, a floating-point one with the given number of digits.
struct ShownNumber {
    int realDigits;

    std::string operator()(std::int64_t value) const { return std::to_string(value); }
    std::string operator()(std::uint64_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return shownReal(value, realDigits); }
    std::string operator()(const DecimalValue& value) const { return shownInFull(value); }
    std::string operator()(BitPattern value) const { return std::to_string(value.bits); }
};

std::optional<std::string> shownNumber(const VARIANT& value) {
    constexpr int floatDigits = 7;
    constexpr int doubleDigits = 15;
    const auto number = numberOf(value);
    if (!number) {
        return std::nullopt;
    }
    return std::visit(ShownNumber{value.vt == VT_R4 ? floatDigits : doubleDigits}, *number);
}

}  // namespace

HRESULT textOf(const VARIANT& value, std::u16string& text) {
    if (value.vt == VT_BSTR) {
        text = Text::viewOf(value.bstrVal);
        return S_OK;
    }
    if (value.vt == VT_EMPTY) {
        text.clear();
        return S_OK;
    }
    const bool isDate = value.vt == VT_DATE;
    const auto shown = isDate ? shownDate(value.date) : shownNumber(value);
    if (!shown) {
        return isDate ? E_INVALIDARG : DISP_E_TYPEMISMATCH;
    }
    text.assign(shown->begin(), shown->end());
    return S_OK;
}

}  // namespace quillmark
