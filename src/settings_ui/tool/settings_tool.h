#pragma once

#include <istream>
#include <ostream>
#include <span>
#include <string>

namespace quillmark {

/// What the tool finds around itself.
struct ToolSurroundings {
    std::istream& in;
    std::ostream& out;
    std::ostream& errors;
    /// Where the program lies (UTF-8); the support files are found from there.
    std::string executable;
};

/// How a run ended: the exit status of the tool.
enum class ToolStatus : int { done = 0, failed = 1, badUsage = 2 };

/// `dochtml-settings`: the settings page for a command line. `arguments` are those behind the
/// program's name, in UTF-8. The store in force afterwards is the one that was before.
[[nodiscard]] ToolStatus runSettingsTool(std::span<const std::string> arguments,
                                         const ToolSurroundings& around);

}  // namespace quillmark
