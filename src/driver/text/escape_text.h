#pragma once

#include <string>
#include <string_view>

namespace quillmark {

/// The conversion of a host's text to HTML. It is no general escaping: only four things change.
/// A tab becomes two non-breaking spaces and a blank, a line feed a line break, two blanks in a
/// row a non-breaking space and a blank; and with `passThrough` on, where a text's own markup is
/// let through, "<<" becomes "&lt;&lt;". With it off every "<" is copied, "<<" too.
///
/// Returns `text` itself when nothing changes, else a view of `buffer`, which it then fills.
[[nodiscard]] std::string_view escapeText(std::string_view text, bool passThrough,
                                          std::string& buffer);

}  // namespace quillmark
