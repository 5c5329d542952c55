#pragma once

#include "foundation/orx_string.h"

namespace quillmark {

/// What the driver asks of the system's shell.
class SysShell {
public:
    /// An instance result of this or more means that the program was started.
    static constexpr int started = 33;

    /// Opens a file with its default action. Nobody looks at the result.
    static void open(const OrxString& fileName);
    /// Starts a program with a hidden window and does not wait for it to finish. `arguments` is
    /// one text; double quotes hold an argument with blanks together. Returns the instance
    /// result, below `started` when the program is missing or cannot be started.
    [[nodiscard]] static int start(const OrxString& program, const OrxString& arguments);
};

}  // namespace quillmark
