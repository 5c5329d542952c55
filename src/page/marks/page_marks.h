#pragma once

#include <string_view>

/// The names of the marks that the driver itself places.
namespace quillmark::page_marks {

/// The mark at the top of every page. It exists until the page is finished.
inline constexpr std::string_view topOfPage = "TOPOFPAGE";
/// The mark for the contents listing. A page with this mark is written when the document is closed.
inline constexpr std::string_view contentsListing = "TOC";

}  // namespace quillmark::page_marks
