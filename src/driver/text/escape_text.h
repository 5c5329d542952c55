#pragma once

#include <string>
#include <string_view>

namespace quillmark {

/// Converts a host's text to HTML. This is not general escaping; only four things change:
///
/// - a tab becomes two non-breaking spaces and a blank
/// - a line feed becomes a line break
/// - two blanks in a row become a non-breaking space and a blank
/// - "<<" becomes "&lt;&lt;", but only with `passThrough` on
///
/// Returns `text` itself when nothing changes. Otherwise fills `buffer` and returns a view of it.
[[nodiscard]] std::string_view escapeText(std::string_view text, bool passThrough,
                                          std::string& buffer);

}  // namespace quillmark
