#pragma once

#include <string>
#include <string_view>

namespace quillmark {

/// The fixed front of every page: document type, generator, title, style sheet.
///
/// `title` and `extra` stand in it as they are. `styleSheetLink` empty leaves the LINK element
/// out, `extra` empty writes nothing.
[[nodiscard]] std::string htmlHead(std::string_view title, std::string_view styleSheetLink,
                                   std::string_view extra);

}  // namespace quillmark
