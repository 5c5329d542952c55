#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <optional>
#include <string>

#include "component/object/owned_variant.h"
#include "dochtml/text.h"
#include "foundation/ascii.h"

// The conversions between the kinds of values that a host can pass, as automation makes them.

namespace quillmark {
namespace {

constexpr VARTYPE baseTypeOf(VARTYPE type) noexcept {
    return static_cast<VARTYPE>(type & ~unsigned{VT_BYREF});
}

template <typename Value>
Value valueAt(const void* place) noexcept {
    Value value{};
    std::memcpy(&value, place, sizeof value);
    return value;
}

/// The value behind a reference, not owned; nothing when it refers to nothing.
std::optional<VARIANT> withoutReference(const VARIANT& source) noexcept {
    if ((source.vt & VT_BYREF) == 0) {
        return source;
    }
    if (source.byref == nullptr) {
        return std::nullopt;
    }
    if (baseTypeOf(source.vt) == VT_VARIANT) {
        const VARIANT inner = *source.pvarVal;
        // A reference leads to a value, or to a variant that holds one; not further.
        return (inner.vt & VT_BYREF) == 0 ? std::optional(inner) : std::nullopt;
    }
    VARIANT value;
    VariantInit(&value);
    value.vt = baseTypeOf(source.vt);
    switch (value.vt) {
        case VT_I1:
        case VT_UI1:
            value.bVal = valueAt<std::uint8_t>(source.byref);
            break;
        case VT_I2:
        case VT_UI2:
        case VT_BOOL:
            value.uiVal = valueAt<std::uint16_t>(source.byref);
            break;
        case VT_I8:
        case VT_UI8:
        case VT_R8:
            value.ullVal = valueAt<std::uint64_t>(source.byref);
            break;
        case VT_BSTR:
            value.bstrVal = valueAt<BSTR>(source.byref);
            break;
        default:
            value.ulVal = valueAt<std::uint32_t>(source.byref);
            break;
    }
    return value;
}

/// A whole number from any number, halves to the even neighbour.
struct Number {
    bool isWhole = true;
    std::int64_t whole = 0;
    double real = 0;
    /// Above the largest signed one.
    bool isHuge = false;
};

Number wholeNumber(std::int64_t value) noexcept {
    return {true, value, 0, false};
}
Number realNumber(double value) noexcept {
    return {false, 0, value, false};
}

std::string_view trimmed(std::string_view text) noexcept {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// The text in ASCII; other units become "?", which is in no number.
std::string asciiOf(std::u16string_view text) {
    std::string ascii;
    for (const char16_t unit : text) {
        ascii += unit < 0x80 ? static_cast<char>(unit) : '?';
    }
    return std::string(trimmed(ascii));
}

std::optional<Number> numberIn(std::u16string_view text) {
    const std::string ascii = asciiOf(text);
    const bool hasPlus = ascii.starts_with('+') && !ascii.starts_with("+-");
    const char* const begin = ascii.data() + (hasPlus ? 1 : 0);
    const char* const end = ascii.data() + ascii.size();
    double value = 0;
    const auto [rest, error] = std::from_chars(begin, end, value);
    if (begin == end || rest != end || error != std::errc() || !std::isfinite(value)) {
        return std::nullopt;
    }
    return realNumber(value);
}

std::optional<Number> numberOf(const VARIANT& value) {
    switch (value.vt) {
        case VT_EMPTY:
            return wholeNumber(0);
        case VT_I1:
            return wholeNumber(value.cVal);
        case VT_UI1:
            return wholeNumber(value.bVal);
        case VT_I2:
        case VT_BOOL:
            return wholeNumber(value.iVal);
        case VT_UI2:
            return wholeNumber(value.uiVal);
        case VT_I4:
        case VT_INT:
            return wholeNumber(value.lVal);
        case VT_UI4:
        case VT_UINT:
            return wholeNumber(value.ulVal);
        case VT_I8:
            return wholeNumber(value.llVal);
        case VT_UI8: {
            Number number = wholeNumber(value.llVal);
            number.isHuge = value.llVal < 0;
            return number;
        }
        case VT_R4:
            return realNumber(static_cast<double>(value.fltVal));
        case VT_R8:
            return realNumber(value.dblVal);
        case VT_BSTR:
            return numberIn(Text::viewOf(value.bstrVal));
        default:
            return std::nullopt;
    }
}

template <typename Integer>
HRESULT toInteger(const Number& number, Integer& out) noexcept {
    constexpr auto low = std::numeric_limits<Integer>::min();
    constexpr auto high = std::numeric_limits<Integer>::max();
    if (number.isWhole) {
        if (number.isHuge || number.whole < low || number.whole > high) {
            return DISP_E_OVERFLOW;
        }
        out = static_cast<Integer>(number.whole);
        return S_OK;
    }
    // The default rounding of the processor takes halves to the even neighbour.
    const double rounded = std::nearbyint(number.real);
    if (!(rounded >= double{low} && rounded <= double{high})) {
        return DISP_E_OVERFLOW;
    }
    out = static_cast<Integer>(rounded);
    return S_OK;
}

std::optional<bool> booleanOf(const VARIANT& value) {
    if (value.vt == VT_BSTR) {
        std::string word = asciiOf(Text::viewOf(value.bstrVal));
        for (char& character : word) {
            character = ascii::toLower(character);
        }
        if (word == "true" || word == "#true#") {
            return true;
        }
        if (word == "false" || word == "#false#") {
            return false;
        }
    }
    const auto number = numberOf(value);
    if (!number) {
        return std::nullopt;
    }
    return number->isWhole ? number->whole != 0 : number->real != 0;
}

/// As C's "%G" shows it, with a point in every locale.
std::string shownReal(double value, int digits) {
    std::array<char, 32> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value,
                                            std::chars_format::general, digits);
    std::string shown(text.data(), end);
    for (char& character : shown) {
        character = ascii::toUpper(character);
    }
    return shown;
}

std::string shownNumber(const VARIANT& value, const Number& number) {
    constexpr int floatDigits = 7;
    constexpr int doubleDigits = 15;
    if (number.isHuge) {
        return std::to_string(value.ullVal);
    }
    if (number.isWhole) {
        return std::to_string(number.whole);
    }
    return shownReal(number.real, value.vt == VT_R4 ? floatDigits : doubleDigits);
}

std::optional<std::u16string> textOf(const VARIANT& value) {
    if (value.vt == VT_BSTR) {
        return std::u16string(Text::viewOf(value.bstrVal));
    }
    if (value.vt == VT_EMPTY) {
        return std::u16string();
    }
    const auto number = numberOf(value);
    if (!number) {
        return std::nullopt;
    }
    const std::string shown = shownNumber(value, *number);
    return std::u16string(shown.begin(), shown.end());
}

/// A value whose kind no host can mean, such as an array of kind "variant" by value.
bool isKnownType(VARTYPE type) noexcept {
    const auto base = static_cast<VARTYPE>(type & ~unsigned{VT_BYREF | VT_ARRAY});
    return base <= VT_UINT && base != 15 && !(type == VT_VARIANT);
}

}  // namespace

HRESULT convertVariant(VARIANT& target, const VARIANT& source, LCID /*locale*/, VARTYPE type) {
    if (!isKnownType(source.vt)) {
        return DISP_E_BADVARTYPE;
    }
    const auto value = withoutReference(source);
    if (!value || (value->vt & VT_ARRAY) != 0) {
        return DISP_E_TYPEMISMATCH;
    }
    if (type == VT_BSTR) {
        const auto text = textOf(*value);
        if (!text) {
            return DISP_E_TYPEMISMATCH;
        }
        target.bstrVal = Text(*text).release();
    } else if (type == VT_BOOL) {
        const auto boolean = booleanOf(*value);
        if (!boolean) {
            return DISP_E_TYPEMISMATCH;
        }
        target.boolVal = *boolean ? VARIANT_TRUE : VARIANT_FALSE;
    } else {
        const auto number = numberOf(*value);
        if (!number) {
            return DISP_E_TYPEMISMATCH;
        }
        const HRESULT fits =
            type == VT_I2 ? toInteger(*number, target.iVal) : toInteger(*number, target.lVal);
        if (FAILED(fits)) {
            return fits;
        }
    }
    target.vt = type;
    return S_OK;
}

}  // namespace quillmark
