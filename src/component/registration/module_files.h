#pragma once

#include <string>

namespace quillmark {

/// The full name of the library's own file, UTF-8.
[[nodiscard]] std::string modulePath();

/// The text of a registration script of the library: resource 5101 (the driver's) or 5105 (the
/// page's).
[[nodiscard]] std::string registrationScript(int resource);

inline constexpr int driverScript = 5101;
inline constexpr int pageScript = 5105;

}  // namespace quillmark
