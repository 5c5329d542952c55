#pragma once

#include <string>

#include "foundation/orx_string.h"
#include "platform/windows/windows_api.h"

namespace quillmark {

/// A text of the code page as the system's wide calls take it.
[[nodiscard]] std::wstring wideText(std::string_view text);
/// A file name likewise, with "\" throughout; a long absolute one gets the prefix that lifts the
/// system's limit of 260 characters. Empty, which is no file's name, for one with a zero inside.
[[nodiscard]] std::wstring wideName(const OrxString& name);
/// A wide text of the system in the code page.
[[nodiscard]] OrxString narrowText(std::wstring_view text);

}  // namespace quillmark
