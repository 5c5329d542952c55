#pragma once

#include <functional>
#include <istream>
#include <memory>
#include <ostream>
#include <span>
#include <string>

#include "settings_ui/tool/answer_source.h"

namespace quillmark {

/// The streams and the path of the tool.
struct SettingsToolEnvironment {
    std::istream& in;
    std::ostream& out;
    std::ostream& errors;
    /// The path of the program (UTF-8), from which the support files are found.
    std::string executable;
    /// Makes the source of answers on the user's terminal, or null. Without it, answers come from
    /// `in`.
    std::function<std::unique_ptr<AnswerSource>()> makeTerminal = {};
};

/// The exit status of the tool.
enum class ToolStatus : int { done = 0, failed = 1, badUsage = 2 };

/// Runs `dochtml-settings`, the settings page for the command line. `arguments` are UTF-8, without
/// the program's name. Leaves the process's settings store as it found it.
[[nodiscard]] ToolStatus runSettingsTool(std::span<const std::string> arguments,
                                         const SettingsToolEnvironment& environment);

}  // namespace quillmark
