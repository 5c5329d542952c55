#pragma once

#include "dochtml/automation.h"

namespace quillmark {

/// Creates a settings page, aggregated into `outer` unless that is null, and returns the requested
/// interface in `object`. Returns `CLASS_E_CLASSNOTAVAILABLE` on systems without property pages.
[[nodiscard]] HRESULT makePageObject(IUnknown* outer, REFIID iid, void** object) noexcept;

}  // namespace quillmark
