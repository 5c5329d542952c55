#pragma once

#include <string>

#include "manual_data.h"

namespace quillmark::manual {

/// The reference of all operations as a Markdown page, from the same descriptions as the manual.
[[nodiscard]] std::string operationsMarkdown(const ManualData& data);

}  // namespace quillmark::manual
