#pragma once

#include "dochtml/automation.h"

namespace quillmark {

/// A variant that releases its value in its destructor.
class OwnedVariant {
public:
    OwnedVariant() noexcept = default;
    OwnedVariant(const OwnedVariant&) = delete;
    OwnedVariant& operator=(const OwnedVariant&) = delete;
    ~OwnedVariant() { VariantClear(&variant_); }

    [[nodiscard]] VARIANT& get() noexcept { return variant_; }
    [[nodiscard]] const VARIANT& get() const noexcept { return variant_; }

private:
    /// All zero is the empty variant.
    VARIANT variant_{};
};

/// Converts the value of `source`, which may be a reference, to `type` (`VT_BSTR`, `VT_I2`, `VT_I4`
/// or `VT_BOOL`) and stores it in the empty `target`. For instance, a text of digits becomes a
/// number. Returns `DISP_E_TYPEMISMATCH`, `DISP_E_OVERFLOW` or `DISP_E_BADVARTYPE` when that is not
/// possible.
[[nodiscard]] HRESULT convertVariant(VARIANT& target, const VARIANT& source, LCID locale,
                                     VARTYPE type);

}  // namespace quillmark
