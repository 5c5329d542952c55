#pragma once

#include <stdexcept>

namespace quillmark {

/// A command line that the program cannot follow. The text says why.
class BadUsage : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace quillmark
