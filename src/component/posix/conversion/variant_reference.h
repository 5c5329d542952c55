#pragma once

#include "dochtml/automation.h"

namespace quillmark {

/// Whether a variant can have that type. Some type numbers are unused, and some flags are not for
/// variants.
[[nodiscard]] bool isVariantType(VARTYPE type) noexcept;

/// Copies the value of `source`, or the value that it refers to, into `value`, which does not own
/// it. Returns `DISP_E_TYPEMISMATCH` for a null reference, and `E_INVALIDARG` for a reference to a
/// variant that refers to another variant.
[[nodiscard]] HRESULT followReference(const VARIANT& source, VARIANT& value) noexcept;

}  // namespace quillmark
