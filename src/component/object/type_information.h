#pragma once

#include "dochtml/automation.h"

namespace quillmark {

/// The result of `IDispatch::GetTypeInfoCount`: 1 on systems with type libraries, 0 elsewhere.
[[nodiscard]] UINT documentTypeInfoCount() noexcept;
/// The description of `IDocument` from the library's own type library. The caller releases it.
[[nodiscard]] HRESULT documentTypeInfo(LCID locale, ITypeInfo** info);

/// Registers the library's type library. Succeeds on systems without type libraries.
[[nodiscard]] HRESULT registerTypeLibrary();
/// Unregisters it. Succeeds when it is not registered.
[[nodiscard]] HRESULT unregisterTypeLibrary();

}  // namespace quillmark
