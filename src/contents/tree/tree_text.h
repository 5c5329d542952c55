#pragma once

#include <string>
#include <string_view>

namespace quillmark {

/// Appends an entry's text as it is written between quotes in the tree file. Backslashes and
/// double quotes are escaped. "&lt;" becomes "<", and "&nbsp;" becomes a blank. Carriage returns
/// and line breaks ("<BR>\n") are dropped. Other entities stay, and the navigator shows them so.
void appendTreeText(std::string& out, std::string_view text);

}  // namespace quillmark
