#pragma once

#include <string>
#include <string_view>

#include "platform/text_encoding.h"

namespace quillmark {

/// The head of a page: document type, generator, title and style sheet.
///
/// The content-type line names the encoding of the page. `title` and `extra`, the text at the end
/// of the HEAD element, are not escaped. An empty `styleSheetLink` omits the LINK element.
[[nodiscard]] std::string htmlHead(std::string_view title, std::string_view styleSheetLink,
                                   std::string_view extra,
                                   const TextEncoding& encoding = TextEncoding::codePage());

}  // namespace quillmark
