#pragma once

#include "dochtml/automation.h"

namespace quillmark {

/// Whether a host can mean a value of that kind: there are numbers between the kinds and flags that
/// no variant has.
[[nodiscard]] bool isVariantType(VARTYPE type) noexcept;

/// Puts the value itself, or the one behind a reference, into `value`, which does not own it.
/// Answers `DISP_E_TYPEMISMATCH` for a reference that is null, `E_INVALIDARG` for one to a variant
/// that refers to a variant again.
[[nodiscard]] HRESULT followReference(const VARIANT& source, VARIANT& value) noexcept;

}  // namespace quillmark
