#pragma once

#include <string>
#include <string_view>

namespace quillmark::manual {

/// The text for `insertText`, so that a reader sees it as it is: "&" and "<" would be markup.
[[nodiscard]] std::string shown(std::string_view text);

/// Names of the manual's bookmarks. They begin with "GUID", so that links to them may stand
/// inside a text.
[[nodiscard]] std::string operationTag(const std::string& name);
[[nodiscard]] std::string groupTag(const std::string& id);
[[nodiscard]] std::string chapterTag(const std::string& id);

/// A line of a description as one text for `insertText`: code is marked up, names of operations
/// other than `current` and links become embedded cross-references. Bold runs are left to
/// `Composer`. Throws `std::runtime_error` for a link with an unknown kind of target.
struct Span;
[[nodiscard]] std::string spanMarkup(const Span& span, const std::string& current);

}  // namespace quillmark::manual
