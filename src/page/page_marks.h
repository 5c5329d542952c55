#pragma once

#include <string_view>

namespace quillmark::page_marks {

/// The top of every page, until the page is finished.
inline constexpr std::string_view topOfPage = "TOPOFPAGE";
/// Where the contents listing goes; a page that has it is written when the document is closed.
inline constexpr std::string_view contentsListing = "TOC";

}  // namespace quillmark::page_marks
