#pragma once

#include <optional>
#include <string>

#include "foundation/orx_string.h"

namespace quillmark {

/// Reads a small file of the current `FileSystem`. Nothing if it cannot be opened or read to its
/// end.
[[nodiscard]] std::optional<std::string> readWhole(const OrxString& fileName);

}  // namespace quillmark
