#pragma once

#include <string_view>

namespace quillmark {

/// What ends a line of a text file: "\n", on Windows "\r\n".
[[nodiscard]] std::string_view systemLineEnd() noexcept;

}  // namespace quillmark
