#pragma once

#include <string>
#include <string_view>

namespace quillmark {

[[nodiscard]] std::wstring toWide(std::string_view utf8);
[[nodiscard]] std::string toUtf8(std::wstring_view text);

}  // namespace quillmark
