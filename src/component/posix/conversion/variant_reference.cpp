#include "component/posix/conversion/variant_reference.h"

#include <cstdint>
#include <cstring>

namespace quillmark {
namespace {

constexpr VARTYPE baseTypeOf(VARTYPE type) noexcept {
    return static_cast<VARTYPE>(type & VT_TYPEMASK);
}

/// The size of a value of that type in bytes; 0 for a type that cannot be referred to.
std::size_t sizeOf(VARTYPE type) noexcept {
    switch (type) {
        case VT_I1:
        case VT_UI1:
            return sizeof(std::uint8_t);
        case VT_I2:
        case VT_UI2:
        case VT_BOOL:
            return sizeof(std::uint16_t);
        case VT_I8:
        case VT_UI8:
        case VT_R8:
        case VT_CY:
        case VT_DATE:
            return sizeof(std::uint64_t);
        case VT_BSTR:
        case VT_DISPATCH:
        case VT_UNKNOWN:
            return sizeof(void*);
        case VT_RECORD:
            return 0;
        default:
            return sizeof(std::uint32_t);
    }
}

}  // namespace

bool isVariantType(VARTYPE type) noexcept {
    constexpr unsigned notInVariants = VT_VECTOR | VT_RESERVED;
    constexpr VARTYPE unused = 15;
    const VARTYPE base = baseTypeOf(type);
    if ((type & notInVariants) != 0 || base == unused || (base > VT_UINT && base != VT_RECORD)) {
        return false;
    }
    // The empty and the null type cannot be combined with the flags for references and arrays.
    return base > VT_NULL || type == base;
}

HRESULT followReference(const VARIANT& source, VARIANT& value) noexcept {
    value = source;
    if ((source.vt & VT_BYREF) == 0) {
        return S_OK;
    }
    if (source.byref == nullptr) {
        return DISP_E_TYPEMISMATCH;
    }
    if (source.vt == (VT_BYREF | VT_VARIANT)) {
        // The inner variant may itself be a reference, but only to a value.
        const VARIANT& inner = *source.pvarVal;
        return inner.vt == source.vt ? E_INVALIDARG : followReference(inner, value);
    }
    VariantInit(&value);
    value.vt = static_cast<VARTYPE>(source.vt & ~unsigned{VT_BYREF});
    if (value.vt == VT_DECIMAL) {
        std::memcpy(&value, source.byref, sizeof(DECIMAL));
        value.vt = VT_DECIMAL;
    } else if ((value.vt & VT_ARRAY) == 0) {
        std::memcpy(&value.llVal, source.byref, sizeOf(value.vt));
    }
    return S_OK;
}

}  // namespace quillmark
