#pragma once

#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "command_line/drive.h"

namespace quillmark {

/// A command line of the settings tool, parsed and checked. Texts are UTF-8, as given.
struct ToolOptions {
    std::string command;
    /// The arguments of the command.
    std::vector<std::string> operands;
    std::optional<std::string> settingsFile;
    std::vector<Drive> drives;
    bool help = false;
    bool version = false;
};

/// Parses the arguments, without the program's name. Throws `BadUsage`.
[[nodiscard]] ToolOptions parseToolOptions(std::span<const std::string> arguments);

/// Writes the text that `--help` shows. `location` is that of the store.
void writeToolHelp(std::ostream& out, const std::string& location);

}  // namespace quillmark
