#pragma once

#include <string>

#include "driver/boundary/operation_table.h"

namespace quillmark::manual {

/// What a caller calls the kind of a parameter, such as "string" or "short".
[[nodiscard]] std::string kindName(ParameterKind kind);

/// The operation as a caller sees it: "insertXref(string text, string tagName)".
[[nodiscard]] std::string signature(const Operation& operation);

}  // namespace quillmark::manual
