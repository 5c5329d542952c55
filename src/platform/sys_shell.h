#pragma once

#include <vector>

#include "foundation/orx_string.h"

namespace quillmark {

/// Starts programs and opens files as the system's shell does.
class SysShell {
public:
    /// `start` returns this or more if the program was started.
    static constexpr int started = 33;

    /// Opens a file or a hyperlink with the program that the user has for it. Failures are ignored.
    static void open(const OrxString& fileName);
    /// Starts a program with a hidden window and does not wait for it. The program gets exactly
    /// these arguments, whatever characters they contain; file names are converted to the system's
    /// form. The result is less than `started` if the program is missing or cannot be started.
    [[nodiscard]] static int start(const OrxString& program,
                                   const std::vector<OrxString>& arguments);
};

}  // namespace quillmark
