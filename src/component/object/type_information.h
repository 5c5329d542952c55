#pragma once

#include "dochtml/automation.h"

namespace quillmark {

/// What the system can tell of `IDocument`: 1 where it has type libraries, 0 elsewhere.
[[nodiscard]] UINT documentTypeInfoCount() noexcept;
/// The description of `IDocument` from the library's own type library, counted for the caller.
[[nodiscard]] HRESULT documentTypeInfo(LCID locale, ITypeInfo** info);

/// Makes the library's type library known to the system; success where there is none.
[[nodiscard]] HRESULT registerTypeLibrary();
/// Takes that back; success when it was not known.
[[nodiscard]] HRESULT unregisterTypeLibrary();

}  // namespace quillmark
