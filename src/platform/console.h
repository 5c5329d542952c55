#pragma once

#include <string>
#include <vector>

namespace quillmark {

/// What a command line tool needs to know about the process it runs in.
class Console {
public:
    /// The arguments after the program's name, in UTF-8 on every system. Pass the `argc` and `argv`
    /// of `main`.
    [[nodiscard]] static std::vector<std::string> arguments(int argc, const char* const* argv);
    /// The path of the running program in the system's own form (UTF-8). Empty if it is unknown.
    [[nodiscard]] static std::string executablePath();
    /// Whether standard error is a terminal.
    [[nodiscard]] static bool errorsGoToTerminal() noexcept;
    /// Lets a write that nobody reads, or that exceeds the limit on file sizes, fail with an error
    /// instead of ending the process.
    static void reportFailedWrites() noexcept;
    /// Turns off the conversion of line ends on standard input, on systems that have one.
    static void readInputAsBytes() noexcept;
};

}  // namespace quillmark
