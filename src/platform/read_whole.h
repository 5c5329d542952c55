#pragma once

#include <optional>
#include <string>

#include "foundation/orx_string.h"

namespace quillmark {

/// The bytes of a small file, or nothing when it cannot be opened for reading.
[[nodiscard]] std::optional<std::string> readWhole(const OrxString& fileName);

}  // namespace quillmark
