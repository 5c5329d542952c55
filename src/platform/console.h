#pragma once

#include <string>
#include <vector>

namespace quillmark {

/// What a command line tool asks of its surroundings.
class Console {
public:
    /// The arguments behind the program's name, in UTF-8 on every system. `argc` and `argv` are
    /// those of `main`.
    [[nodiscard]] static std::vector<std::string> arguments(int argc, const char* const* argv);
    /// Where the running program lies: a name of the system's own (UTF-8), empty when unknown.
    [[nodiscard]] static std::string executablePath();
    /// Whether somebody watches standard error.
    [[nodiscard]] static bool errorsGoToTerminal() noexcept;
    /// Makes standard input hand out bytes as they come, on systems that change line ends.
    static void readInputAsBytes() noexcept;
};

}  // namespace quillmark
