#pragma once

#include "foundation/orx_string.h"

namespace quillmark {

/// Starts programs and opens files as the system's shell does.
class SysShell {
public:
    /// `start` returns this or more if the program was started.
    static constexpr int started = 33;

    /// Opens a file or a hyperlink with the program that the user has for it. Failures are ignored.
    static void open(const OrxString& fileName);
    /// Starts a program with a hidden window and does not wait for it. `arguments` is a single
    /// text; use double quotes around arguments with blanks. The result is less than `started` if
    /// the program is missing or cannot be started.
    [[nodiscard]] static int start(const OrxString& program, const OrxString& arguments);
};

}  // namespace quillmark
