#pragma once

#include <cstdint>

#include "driver/document_context.h"

namespace quillmark {

/// The back and next arrows at the top of a page, and the line break behind them.
///
/// They lead to pages of the page's own directory, also for pages that were sent into a
/// subdirectory, and to pages that may turn out empty and never be written.
[[nodiscard]] OrxString arrowBar(const DocumentContext& context, std::uint32_t pageNumber,
                                 bool lastPage);

}  // namespace quillmark
