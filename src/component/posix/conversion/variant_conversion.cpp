#include <optional>
#include <string>
#include <string_view>

#include "component/object/owned_variant.h"
#include "component/posix/conversion/variant_number.h"
#include "component/posix/conversion/variant_reference.h"
#include "component/posix/conversion/variant_text.h"
#include "dochtml/text.h"
#include "foundation/ascii.h"

// Converts between the types of values that a host can pass, by the rules of automation.

namespace quillmark {
namespace {

/// Stores a value in the target variant.
template <typename Found, typename Value>
HRESULT put(const std::optional<Found>& found, Value& place) {
    if (!found) {
        return DISP_E_OVERFLOW;
    }
    place = *found;
    return S_OK;
}

HRESULT toNumber(VARIANT& target, const VARIANT& value, VARTYPE type) {
    if (isDamagedDecimal(value)) {
        return E_INVALIDARG;
    }
    const auto number = numberOf(value);
    if (!number) {
        return DISP_E_TYPEMISMATCH;
    }
    switch (type) {
        case VT_I2:
            return put(toShort(*number), target.iVal);
        case VT_I4:
            return put(toLong(*number), target.lVal);
        default:
            break;
    }
    const auto boolean = toBoolean(*number);
    return put(boolean ? std::optional(*boolean ? VARIANT_TRUE : VARIANT_FALSE) : std::nullopt,
               target.boolVal);
}

HRESULT toText(VARIANT& target, const VARIANT& value) {
    std::u16string text;
    const HRESULT shown = textOf(value, text);
    if (SUCCEEDED(shown)) {
        target.bstrVal = Text(text).release();
    }
    return shown;
}

/// The boolean that a text names: "true" or "false" in any case, or exactly the Basic form.
std::optional<bool> booleanWord(const VARIANT& value) {
    if (value.vt != VT_BSTR) {
        return std::nullopt;
    }
    const std::u16string_view units = Text::viewOf(value.bstrVal);
    const std::u16string_view word = units.substr(0, units.find(u'\0'));
    std::u16string lower(word);
    for (char16_t& unit : lower) {
        unit = ascii::toLower(unit);
    }
    if (lower == u"true" || word == u"#TRUE#") {
        return true;
    }
    if (lower == u"false" || word == u"#FALSE#") {
        return false;
    }
    return std::nullopt;
}

/// Converts the value of the object's default property.
HRESULT convertObject(VARIANT& target, IDispatch* object, LCID locale, VARTYPE type) {
    if (object == nullptr) {
        return DISP_E_BADVARTYPE;
    }
    DISPPARAMS none{};
    OwnedVariant value;
    if (FAILED(object->Invoke(DISPID_VALUE, IID_NULL, locale, DISPATCH_PROPERTYGET, &none,
                              &value.get(), nullptr, nullptr))) {
        return DISP_E_TYPEMISMATCH;
    }
    return convertVariant(target, value.get(), locale, type);
}

HRESULT convertValue(VARIANT& target, const VARIANT& value, VARTYPE type) {
    if (type == VT_BSTR) {
        return toText(target, value);
    }
    if (type == VT_BOOL) {
        if (const auto named = booleanWord(value)) {
            target.boolVal = *named ? VARIANT_TRUE : VARIANT_FALSE;
            return S_OK;
        }
    }
    return toNumber(target, value, type);
}

/// Variants cannot hold arrays on this system. Only an array of bytes could become a text, so for
/// that one the argument is invalid rather than of the wrong type.
HRESULT refuseArray(const VARIANT& value, VARTYPE type) {
    const bool isOfBytes = value.vt == (VT_ARRAY | VT_UI1);
    return isOfBytes && type == VT_BSTR ? E_INVALIDARG : DISP_E_TYPEMISMATCH;
}

}  // namespace

HRESULT convertVariant(VARIANT& target, const VARIANT& source, LCID locale, VARTYPE type) {
    if (!isVariantType(source.vt)) {
        return DISP_E_BADVARTYPE;
    }
    VARIANT value;
    const HRESULT followed = followReference(source, value);
    if (FAILED(followed)) {
        return followed;
    }
    if ((value.vt & VT_ARRAY) != 0) {
        return refuseArray(value, type);
    }
    if (value.vt == VT_DISPATCH) {
        return convertObject(target, value.pdispVal, locale, type);
    }
    const HRESULT result = convertValue(target, value, type);
    if (SUCCEEDED(result)) {
        target.vt = type;
    }
    return result;
}

}  // namespace quillmark
