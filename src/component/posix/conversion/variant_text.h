#pragma once

#include <string>

#include "dochtml/automation.h"

namespace quillmark {

/// Formats a value, which must not be a reference, and stores the result in `text`. Returns
/// `DISP_E_TYPEMISMATCH` for a type that has no text form, and `E_INVALIDARG` for a date out of
/// range.
[[nodiscard]] HRESULT textOf(const VARIANT& value, std::u16string& text);

}  // namespace quillmark
