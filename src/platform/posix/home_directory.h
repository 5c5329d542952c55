#pragma once

#include <string>

namespace quillmark {

/// The directory in an environment variable. Empty unless it is an absolute path.
[[nodiscard]] std::string environmentDirectory(const char* name);
/// The user's home directory, from the environment or else from the user database.
[[nodiscard]] std::string homeDirectory();

}  // namespace quillmark
