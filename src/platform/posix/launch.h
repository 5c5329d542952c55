#pragma once

#include <string>
#include <vector>

namespace quillmark {

/// Starts a program that is independent of this process: not its child, and with standard streams
/// that lead nowhere. A name without "/" is searched for in PATH. False if the program could not be
/// started.
[[nodiscard]] bool launchDetached(const std::string& program,
                                  const std::vector<std::string>& arguments);

}  // namespace quillmark
