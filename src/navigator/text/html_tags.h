#pragma once

#include <cstddef>
#include <string_view>

/// Where tags end, for reading the text between them.
namespace quillmark::html_tags {

/// The end of the tag, comment, script or style sheet at the "<" at `at`; `at` itself when no tag
/// begins there. What is not closed reaches to the end.
[[nodiscard]] std::size_t endAt(std::string_view html, std::size_t at) noexcept;

/// The start of the text behind the first BODY tag; the end of `html` when there is none.
[[nodiscard]] std::size_t bodyStart(std::string_view html) noexcept;

}  // namespace quillmark::html_tags
