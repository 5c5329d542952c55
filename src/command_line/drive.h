#pragma once

#include <string>

namespace quillmark {

/// A drive letter and its directory, on a system without drives.
struct Drive {
    char letter = 'C';
    /// The system's own name, in UTF-8.
    std::string directory;
};

/// Parses the value of `--drive`, "X=DIR". Throws `BadUsage`.
[[nodiscard]] Drive parseDrive(const std::string& text);

}  // namespace quillmark
