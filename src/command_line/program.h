#pragma once

#include <ostream>
#include <string>

namespace quillmark {

/// Runs a command line program: `body` with the arguments of `main`. Prepares the process first, so
/// that failing writes are reported. An exception becomes a message and status 1, also when there
/// is no memory for anything.
[[nodiscard]] int runProgram(const char* name, int argc, char** argv,
                             int (*body)(int argc, char** argv)) noexcept;

/// Writes what is left in `out`. Returns what is wrong, with the system's reason, or an empty text.
[[nodiscard]] std::string outputProblem(std::ostream& out);

}  // namespace quillmark
