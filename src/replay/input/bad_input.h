#pragma once

#include <stdexcept>

namespace quillmark::replay {

/// A command line or a file given on it that the tool cannot work with; the text says why. The
/// run ends before anything is driven.
class BadInput : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace quillmark::replay
