#pragma once

#include "dochtml/automation.h"

namespace quillmark {

/// Makes a settings page, alone or inside `outer`, and hands out the interface asked for, for a
/// class object's `CreateInstance`. Where the system has no property pages the answer is
/// `CLASS_E_CLASSNOTAVAILABLE`.
[[nodiscard]] HRESULT makePageObject(IUnknown* outer, REFIID iid, void** object) noexcept;

}  // namespace quillmark
