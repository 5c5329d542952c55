#pragma once

#include <string>

#include "platform/windows/windows_api.h"

namespace quillmark {

/// The program or library that this code is linked into. The handle is not counted: do not free it.
[[nodiscard]] HMODULE thisModule() noexcept;

/// The full file name of a loaded module. Null stands for the running program.
[[nodiscard]] std::wstring moduleFileName(HMODULE module);

}  // namespace quillmark
