#pragma once

#include <optional>
#include <ostream>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace quillmark {

/// A command line that cannot be followed; the text says why.
class BadUsage : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A command line of the settings tool, taken apart. Texts are UTF-8, as given.
struct ToolOptions {
    std::string command;
    /// What stands behind the command.
    std::vector<std::string> operands;
    std::optional<std::string> settingsFile;
    std::vector<std::pair<char, std::string>> drives;
    bool help = false;
    bool version = false;
};

/// Takes the arguments behind the program's name apart. Throws `BadUsage`.
[[nodiscard]] ToolOptions parseToolOptions(std::span<const std::string> arguments);

/// What `--help` shows.
void writeToolHelp(std::ostream& out);

}  // namespace quillmark
