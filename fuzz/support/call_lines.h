#pragma once

#include <string>

#include "support/line_mutator.h"

namespace quillmark::fuzzing {

/// A line of a session (support/session.h): any operation with texts and numbers that mean
/// something to the driver, any setting of the table, a file, or the whole beginning of a document.
[[nodiscard]] std::string madeCallLine(LineMutator::Random& random);

}  // namespace quillmark::fuzzing
