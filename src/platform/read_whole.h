#pragma once

#include <optional>
#include <string>

#include "foundation/orx_string.h"

namespace quillmark {

/// The bytes of a small file, all of them, or nothing when it cannot be opened or read to its end.
[[nodiscard]] std::optional<std::string> readWhole(const OrxString& fileName);

}  // namespace quillmark
