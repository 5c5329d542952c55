#pragma once

#include "dochtml/automation.h"

namespace quillmark {

/// Makes both classes and the type library known to the system, all or nothing.
[[nodiscard]] HRESULT registerServer();
/// Removes what `registerServer` wrote.
[[nodiscard]] HRESULT unregisterServer();

}  // namespace quillmark
