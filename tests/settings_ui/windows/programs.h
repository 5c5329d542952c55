#pragma once

#include <string>

#include "platform/windows/windows_api.h"

namespace quillmark {

/// The tools under test.
struct Programs {
    std::string replay;
    std::string settings;
};

/// Filled by `main` from the command line.
[[nodiscard]] Programs& programs();

/// Runs the program to its end and returns its exit status. What it writes to its standard output
/// goes to `output` when given.
[[nodiscard]] DWORD runProgram(const std::string& program, const std::string& arguments,
                               std::string* output = nullptr);

}  // namespace quillmark
