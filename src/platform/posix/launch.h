#pragma once

#include <string>
#include <vector>

namespace quillmark {

/// Starts a program and lets go of it: it is nobody's child, reads nothing and writes nowhere.
/// A name without "/" is looked for on the search path. False when it could not be started.
[[nodiscard]] bool launchDetached(const std::string& program,
                                  const std::vector<std::string>& arguments);

}  // namespace quillmark
