#pragma once

#include "dochtml/automation.h"

namespace quillmark {

/// Registers both classes and the type library with the system, all or none.
[[nodiscard]] HRESULT registerServer();
/// Removes what `registerServer` wrote.
[[nodiscard]] HRESULT unregisterServer();

}  // namespace quillmark
