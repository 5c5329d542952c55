#include "component/object/call_arguments.h"

#include "dochtml/text.h"

namespace quillmark {
namespace {

VARTYPE variantTypeOf(ParameterKind kind) noexcept {
    switch (kind) {
        case ParameterKind::shortInteger:
            return VT_I2;
        case ParameterKind::longInteger:
            return VT_I4;
        case ParameterKind::boolean:
            return VT_BOOL;
        case ParameterKind::string:
        case ParameterKind::outString:
            break;
    }
    return VT_BSTR;
}

/// The value as the operation table takes it. A text stays in the variant.
Argument argumentOf(const VARIANT& variant) {
    switch (variant.vt) {
        case VT_I2:
            return std::int64_t{variant.iVal};
        case VT_I4:
            return std::int64_t{variant.lVal};
        case VT_BOOL:
            return variant.boolVal != VARIANT_FALSE;
        default:
            return Text::viewOf(variant.bstrVal);
    }
}

/// Hosts pass this value for an argument that they omit.
bool isLeftOut(const VARIANT& variant) noexcept {
    return variant.vt == VT_ERROR && variant.scode == DISP_E_PARAMNOTFOUND;
}

bool isReferenceTo(const VARIANT& variant, int type) noexcept {
    return variant.vt == (VT_BYREF | type) && variant.byref != nullptr;
}

}  // namespace

std::span<const Argument> CallArguments::values() const noexcept {
    return std::span(values_).first(operation_.parameters.size());
}

HRESULT CallArguments::read(const DISPPARAMS& host, LCID locale, UINT* badArgument) {
    const HRESULT ordered = order(host, badArgument);
    if (FAILED(ordered)) {
        return ordered;
    }
    for (std::size_t i = 0; i < operation_.parameters.size(); ++i) {
        const HRESULT converted = convert(i, locale);
        if (FAILED(converted)) {
            if (badArgument != nullptr) {
                *badArgument = static_cast<UINT>(slots_[i].host - host.rgvarg);
            }
            return converted;
        }
    }
    return S_OK;
}

HRESULT CallArguments::order(const DISPPARAMS& host, UINT* badArgument) {
    const std::size_t wanted = operation_.parameters.size();
    if (host.cArgs != wanted || host.cNamedArgs > host.cArgs) {
        return DISP_E_BADPARAMCOUNT;
    }
    if ((wanted != 0 && host.rgvarg == nullptr) ||
        (host.cNamedArgs != 0 && host.rgdispidNamedArgs == nullptr)) {
        return E_INVALIDARG;
    }
    // The named arguments come first, then the others from last to first.
    for (UINT i = host.cNamedArgs; i < host.cArgs; ++i) {
        slots_[host.cArgs - 1 - i].host = &host.rgvarg[i];
    }
    for (UINT i = 0; i < host.cNamedArgs; ++i) {
        const DISPID position = host.rgdispidNamedArgs[i];
        const bool known = position >= 0 && static_cast<std::size_t>(position) < wanted;
        if (!known || slots_[static_cast<std::size_t>(position)].host != nullptr) {
            if (badArgument != nullptr) {
                *badArgument = i;
            }
            return DISP_E_PARAMNOTFOUND;
        }
        slots_[static_cast<std::size_t>(position)].host = &host.rgvarg[i];
    }
    return S_OK;
}

HRESULT CallArguments::convert(std::size_t position, LCID locale) {
    Slot& slot = slots_[position];
    if (isLeftOut(*slot.host)) {
        return DISP_E_PARAMNOTOPTIONAL;
    }
    const ParameterKind kind = operation_.parameters[position].kind;
    if (kind == ParameterKind::outString) {
        return prepareOutText(position, locale);
    }
    // Nearly every host passes the type that the operation takes; such a value is used in place.
    if (slot.host->vt == variantTypeOf(kind)) {
        values_[position] = argumentOf(*slot.host);
        return S_OK;
    }
    VARIANT& converted = slot.converted.emplace().get();
    const HRESULT result = convertVariant(converted, *slot.host, locale, variantTypeOf(kind));
    if (SUCCEEDED(result)) {
        values_[position] = argumentOf(converted);
    }
    return result;
}

HRESULT CallArguments::prepareOutText(std::size_t position, LCID locale) {
    Slot& slot = slots_[position];
    values_[position] = &outText_.emplace();
    if (isReferenceTo(*slot.host, VT_BSTR)) {
        *slot.host->pbstrVal = nullptr;
        return S_OK;
    }
    if (isReferenceTo(*slot.host, VT_VARIANT)) {
        return VariantClear(slot.host->pvarVal);
    }
    // When the host passes a value, the call is made, but the host does not receive the text.
    return convertVariant(slot.converted.emplace().get(), *slot.host, locale, VT_BSTR);
}

void CallArguments::handOutTexts() {
    if (!outText_) {
        return;
    }
    for (std::size_t i = 0; i < operation_.parameters.size(); ++i) {
        Slot& slot = slots_[i];
        if (operation_.parameters[i].kind != ParameterKind::outString) {
            continue;
        }
        if (isReferenceTo(*slot.host, VT_BSTR)) {
            *slot.host->pbstrVal = Text(*outText_).release();
        } else if (isReferenceTo(*slot.host, VT_VARIANT)) {
            slot.host->pvarVal->bstrVal = Text(*outText_).release();
            slot.host->pvarVal->vt = VT_BSTR;
        }
    }
}

}  // namespace quillmark
