#pragma once

#include <string>

namespace quillmark {

/// A directory that the environment names; empty unless it is an absolute one.
[[nodiscard]] std::string environmentDirectory(const char* name);
/// The user's home: what the environment says, or else the system's account of the user.
[[nodiscard]] std::string homeDirectory();

}  // namespace quillmark
