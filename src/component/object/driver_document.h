#pragma once

#include <memory>

#include "driver/boundary/i_document.h"

namespace quillmark {

/// Creates a driver for one document.
[[nodiscard]] std::unique_ptr<IDocument> makeDriverDocument();

}  // namespace quillmark
