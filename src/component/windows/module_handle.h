#pragma once

#include <string>

#include "platform/windows/windows_api.h"

namespace quillmark {

/// The library that this code is linked into.
[[nodiscard]] HMODULE moduleHandle() noexcept;
[[nodiscard]] std::wstring wideModulePath();

}  // namespace quillmark
