#pragma once

#include "dochtml/automation.h"

namespace quillmark {

/// A variant that lets go of what it holds.
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

/// Fills the empty `target` with the value of `source`, which may be a reference, as `type`
/// (`VT_BSTR`, `VT_I2`, `VT_I4` or `VT_BOOL`): a text of digits becomes a number and so on.
/// Answers `DISP_E_TYPEMISMATCH`, `DISP_E_OVERFLOW` or `DISP_E_BADVARTYPE` when there is no way.
[[nodiscard]] HRESULT convertVariant(VARIANT& target, const VARIANT& source, LCID locale,
                                     VARTYPE type);

}  // namespace quillmark
