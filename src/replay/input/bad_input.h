#pragma once

#include <stdexcept>

namespace quillmark::replay {

/// An input that the tool cannot use; the text says why. It is thrown before anything is played.
class BadInput : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace quillmark::replay
