#pragma once

#include <string>
#include <string_view>

namespace quillmark {

/// Appends an entry's text as the tree file holds it between its quotes: backslash and double
/// quote escaped, "&lt;" and "&nbsp;" turned into "<" and a blank, carriage returns and line
/// breaks ("<BR>\n") dropped. Other entities stay as they are: the navigator shows them so.
void appendTreeText(std::string& out, std::string_view text);

}  // namespace quillmark
