#pragma once

#include <string_view>

namespace quillmark {

/// The line end in the system's text files: "\r\n" on Windows, "\n" elsewhere.
[[nodiscard]] std::string_view systemLineEnd() noexcept;

}  // namespace quillmark
