#pragma once

#include <string>
#include <string_view>

#include "foundation/orx_string.h"

namespace quillmark {

/// The page's texts are in UTF-8, those of the system's windows in UTF-16.
[[nodiscard]] std::wstring windowText(std::string_view utf8);
[[nodiscard]] OrxString pageText(std::wstring_view text);

}  // namespace quillmark
