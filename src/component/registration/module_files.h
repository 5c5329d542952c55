#pragma once

#include <string>

namespace quillmark {

/// The full path of the library's own file, in UTF-8.
[[nodiscard]] std::string modulePath();

/// The text of one of the library's registration scripts: `driverScript` or `pageScript`. On
/// Windows the numbers are those of the resources.
[[nodiscard]] std::string registrationScript(int resource);

inline constexpr int driverScript = 5101;
inline constexpr int pageScript = 5105;

}  // namespace quillmark
