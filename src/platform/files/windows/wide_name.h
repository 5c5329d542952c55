#pragma once

#include <string>

#include "foundation/orx_string.h"
#include "platform/windows/windows_api.h"

namespace quillmark {

/// Converts a text from the encoding in force (platform/text_encoding.h) to UTF-16, for the
/// system's wide calls.
[[nodiscard]] std::wstring wideText(std::string_view text);
/// Converts a file name in the same way, with "\" as the only separator. A long absolute name gets
/// the prefix that lifts the system's limit of 260 characters. A name with a zero byte becomes
/// empty, which is not the name of any file.
[[nodiscard]] std::wstring wideName(const OrxString& name);
/// Converts UTF-16 text of the system to the encoding in force.
[[nodiscard]] OrxString narrowText(std::wstring_view text);

}  // namespace quillmark
