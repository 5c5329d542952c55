#pragma once

#include <string>

#include "dochtml/automation.h"

namespace quillmark {

/// Puts what a person is shown of a value, which is no reference, into `text`. Answers
/// `DISP_E_TYPEMISMATCH` for a value of a kind that has no text, `E_INVALIDARG` for a date out of
/// range.
[[nodiscard]] HRESULT textOf(const VARIANT& value, std::u16string& text);

}  // namespace quillmark
